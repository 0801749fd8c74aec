// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/modToolTips.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "looks/ToolTipTable.h"
#include "platform/Attempt.h"
#include "store/Options.h"

#include <algorithm>

namespace modToolTips {
namespace {

bool tipsOff = false;

bool HasTips(const Form& form)
{
  return std::any_of(kToolTips.begin(), kToolTips.end(),
                     [&](const ToolTipRow& row) { return form.Name() == QLatin1String(row.form); });
}

void SetRow(const Form& form, const ToolTipRow& row)
{
  const QString name = QLatin1String(row.control);
  const QString text = QString::fromUtf8(row.text);
  if (QWidget* control = form.Control(name)) {
    control->setToolTip(text);
    return;
  }
  for (QWidget* element : form.ArrayNamed(name).widgets) {
    if (element != nullptr) {
      element->setToolTip(text);
    }
  }
}

}

bool TipsOff()
{
  return tipsOff;
}

void SetTipsOff(bool off)
{
  tipsOff = off;
}

void SetTips(Form& form)
{
  if (tipsOff) {
    for (QWidget* control : form.Controls()) {
      control->setToolTip({});
    }
    return;
  }
  for (const ToolTipRow& row : kToolTips) {
    if (form.Name() == QLatin1String(row.form)) {
      SetRow(form, row);
    }
  }
}

void Choose(bool off)
{
  tipsOff = off;
  Attempt([] { Options::Write(QStringLiteral("ToolTips"), tipsOff); });
  for (Form* form : Forms::AllLoaded()) {
    if (HasTips(*form)) {
      SetTips(*form);
    }
  }
}

}
