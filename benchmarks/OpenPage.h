// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/Form.h"
#include "controls/Forms.h"
#include "platform/App.h"
#include "platform/Command.h"

#include <QCoreApplication>
#include <QTemporaryDir>

// A program's folder of its own, and a page that may be opened on it.
class OpenPage
{
public:
  // `fill` writes the database.
  template <typename Fill>
  OpenPage(const char* page, Fill&& fill) : page_(QLatin1String(page))
  {
    App::SetPath(folder_.path());
    for (const char* name : {"months.txt", "reminders.txt"}) {
      QFile::copy(QStringLiteral(QUILLMARK_LAID_FOLDER "/") + QLatin1String(name), File(name));
    }
    fill(DatabasePath());
  }
  ~OpenPage() { Close(); }
  OpenPage(const OpenPage&) = delete;
  OpenPage& operator=(const OpenPage&) = delete;

  void Open()
  {
    Command::Run([this] {
      form_ = &Forms::Load(page_);
      form_->Show();
    });
  }
  void Close()
  {
    if (form_ != nullptr) {
      Command::Run([this] { form_->Unload(); });
      form_ = nullptr;
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

  template <typename Control>
  [[nodiscard]] Control& Get(const char* name)
  {
    return *static_cast<Control*>(form_->Control(QLatin1String(name)));
  }
  [[nodiscard]] Form& Page() { return *form_; }
  [[nodiscard]] QString DatabasePath() const { return File("quillmark2002.mdb"); }

private:
  [[nodiscard]] QString File(const char* name) const { return folder_.filePath(QLatin1String(name)); }

  QString page_;
  QTemporaryDir folder_;
  Form* form_ = nullptr;
};
