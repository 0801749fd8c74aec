// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "controls/modID.h"
#include "looks/Style.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/LoadPicture.h"
#include "platform/MediaDevice.h"
#include "platform/Screen.h"
#include "platform/Twips.h"
#include "reminders/modTextNotices.h"
#include "shell/StartUp.h"
#include "shell/mdiQuillmark.h"
#include "support/Drive.h"
#include "support/MessageBoxScript.h"
#include "support/ProgramFolder.h"

#include <QAction>
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

// A page that is not built yet, or one whose panels matter here.
class StandInPage : public Form
{
public:
  explicit StandInPage(const QString& name, Kind kind = Kind::kPage, const QStringList& panels = {}) : Form(name, kind)
  {
    for (const QString& panel : panels) {
      auto* widget = new QWidget(this);
      widget->setObjectName(panel);
      widget->hide();
    }
  }
};

// The real frame with the main page in a program's folder of its own.
class ShellTest : public testing::Test
{
protected:
  ShellTest()
  {
    Style::Apply(*qApp);
    RegisterForms();
    QFile::copy(QStringLiteral(QUILLMARK_LAID_FOLDER "/animp.ico"), folder.File(QStringLiteral("/animp.ico")));
    Clock::StopOn(QDate(2026, 5, 5));
    modTextNotices::ManualCheck = false;
  }

  ~ShellTest() override
  {
    if (frame) {
      Forms::Unload(QStringLiteral("frmNew"));
      Attempt([this] { frame->Unload(); });
    }
    frame.reset();
    for (Form* form : Forms::AllLoaded()) {
      form->Unload();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Forms::UnregisterAll();
    Clock::StopOn({});
    Screen::Pretend({});
  }

  void RegisterPage(const QString& name, Form::Kind kind = Form::Kind::kPage, const QStringList& panels = {})
  {
    Forms::Register(name, [=] { return new StandInPage(name, kind, panels); });
  }

  void Start()
  {
    frame = std::make_unique<mdiQuillmark>();
    StartUp(*frame);
    QCoreApplication::processEvents();
  }

  void ActivateFrame()
  {
    frame->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == frame.get(); }));
  }

  void Set(const QString& assignments) const { folder.Execute(QStringLiteral("UPDATE Options SET ") + assignments); }

  [[nodiscard]] QVariant Option(const QString& column) const
  {
    return folder.Value(QStringLiteral("SELECT %1 FROM Options").arg(column));
  }

  [[nodiscard]] QAction& Menu(const QString& name) const
  {
    auto* action = frame->findChild<QAction*>(name);
    if (action == nullptr) {
      throw std::runtime_error("no menu " + name.toStdString());
    }
    return *action;
  }

  static Form& MainPage() { return *Forms::Loaded(QStringLiteral("frmIntro")); }

  // The delivered pictures of the themes.
  void LayThemes() const
  {
    ASSERT_TRUE(QFile::link(QStringLiteral(QUILLMARK_LAID_FOLDER "/themes"), folder.File(QStringLiteral("/themes"))));
  }
  [[nodiscard]] QImage ThemePicture(const char* name) const
  {
    return name == nullptr ? QImage() : LoadPicture(folder.File(QStringLiteral("/themes/") + name)).toImage();
  }
  static QImage PictureIn(QWidget& form, const QString& box)
  {
    return dynamic_cast<PictureBox&>(Drive::Control(form, box)).Picture().toImage();
  }

  ProgramFolder folder;
  MessageBoxScript boxes;
  std::unique_ptr<mdiQuillmark> frame;
};
