// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Forms.h"

#include "controls/Form.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <map>
#include <memory>

namespace {

std::map<QString, Forms::Maker>& Makers()
{
  static std::map<QString, Forms::Maker> makers;
  return makers;
}

std::vector<Form*>& LoadedForms()
{
  static std::vector<Form*> forms;
  return forms;
}

}

void Forms::Register(const QString& name, Maker maker)
{
  Makers()[name] = std::move(maker);
}

void Forms::UnregisterAll()
{
  Makers().clear();
}

Form& Forms::Load(const QString& name)
{
  if (Form* form = Loaded(name)) {
    return *form;
  }
  const auto maker = Makers().find(name);
  if (maker == Makers().end()) {
    RaiseError(ErrorNumber::kObjectUnloaded);
  }
  std::unique_ptr<Form> form(maker->second());
  LoadedForms().push_back(form.get());
  form->Load();
  return *form.release();
}

Form* Forms::Loaded(const QString& name)
{
  const auto found =
      std::find_if(LoadedForms().begin(), LoadedForms().end(), [&](const Form* form) { return form->Name() == name; });
  return found == LoadedForms().end() ? nullptr : *found;
}

std::vector<Form*> Forms::AllLoaded()
{
  return LoadedForms();
}

bool Forms::Unload(const QString& name)
{
  Form* form = Loaded(name);
  return form == nullptr || form->Unload();
}

void Forms::Forget(Form& form)
{
  std::erase(LoadedForms(), &form);
}
