// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/Label.h"
#include "controls/modID.h"
#include "looks/Style.h"
#include "looks/modToolTips.h"
#include "platform/Application.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "support/Drive.h"
#include "support/Hands.h"
#include "support/MessageBoxScript.h"
#include "support/ProgramFolder.h"
#include "support/WindowedFrame.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QStandardPaths>

#include <gtest/gtest.h>

// A real page in a frame of its own, over a database of the test's own. The pages beside
// it only stand there.
template <typename RealPage>
class PageTest : public testing::Test
{
protected:
  explicit PageTest(const QStringList& pagesBeside = {"frmIntro"})
  {
    QStandardPaths::setTestModeEnabled(true);
    Style::Apply(*qApp);
    ExpectNoEnding();
    Forms::Register(kName, [] { return new RealPage; });
    for (const QString& name : pagesBeside) {
      Forms::Register(name, [=] { return new EmptyPage(name); });
    }
    for (const char* pictures : {"PeoplePics", "AnnPics", "themes"}) {
      QDir(folder.Path()).mkdir(pictures);
    }
    ForgetChoices();
  }

  ~PageTest() override
  {
    for (Form* form : Forms::AllLoaded()) {
      Attempt([form] { form->Unload(); });
    }
    DropUnloaded();
    Forms::UnregisterAll();
    Application::SetEnding({});
    Clock::StopOn({});
    modToolTips::SetTipsOff(false);
    ForgetChoices();
  }

  static void ExpectNoEnding()
  {
    Application::SetEnding([](int) { ADD_FAILURE() << "the program has ended"; });
  }
  static void DropUnloaded() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  void Open() { OpenPage(kName); }
  void OpenPage(const QString& name)
  {
    Command::Run([&] { Forms::Load(name).Show(); });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame.window));
  }
  static void Leave()
  {
    Command::Run([] { Forms::Unload(kName); });
    DropUnloaded();
  }

  static bool IsOpen(const QString& name = kName) { return Forms::Loaded(name) != nullptr; }
  static Form& Page(const QString& name = kName) { return *Forms::Loaded(name); }
  static QWidget& Control(const QString& name) { return Drive::Control(Page(), name); }
  static bool IsShown(const QString& name) { return Control(name).isVisibleTo(&Page()); }
  static bool IsTicked(const QString& name) { return dynamic_cast<QAbstractButton&>(Control(name)).isChecked(); }
  static std::string Caption(const QString& label)
  {
    return dynamic_cast<QLabel&>(Control(label)).text().toStdString();
  }
  // The labels that show their own back colour, by name.
  static QStringList OpaqueLabels()
  {
    QStringList names;
    for (const QWidget* control : Page().Controls()) {
      const auto* label = qobject_cast<const Label*>(control);
      if (label != nullptr && label->BackStyle() == Label::kOpaque) {
        names.append(label->objectName());
      }
    }
    return names;
  }

  static void Click(const QString& name) { Drive::Click(Page(), name); }
  static void Tick(const QString& name) { Hands::Tick(Control(name)); }
  static void Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::keyClick(&Control(name), key, modifiers);
  }

  static inline const QString kName = QString::fromLatin1(RealPage::staticMetaObject.className());

  ProgramFolder folder;
  MessageBoxScript boxes;
  WindowedFrame frame;

private:
  static void ForgetChoices()
  {
    modID::SelectedPersonID = modID::CoupleSpouse1ID = modID::CoupleSpouse2ID = 0;
    modID::RecordDeleted = false;
  }
};
