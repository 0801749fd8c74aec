// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include <QListView>
#include <QTimer>

namespace {

const QString kDuration = QStringLiteral("Please select duration of birthday notification");

// The settings of the reminders, from the menu of the real frame.
class SetReminders : public ShellTest
{
protected:
  // Opens the page by its menu entry and does `work` on it; comes back when it is closed.
  bool OpenPage(const std::function<void(QWidget&)>& work)
  {
    bool seen = false;
    Drive::WhenShown("frmNotice", [&](QWidget& page) {
      seen = true;
      work(page);
    });
    Menu("mnuSetReminders").trigger();
    return seen;
  }

  static void ClickMark(QWidget& page, const char* name)
  {
    QWidget& button = Drive::Control(page, name);
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
  }

  static void Press(QWidget& page, const char* name, Qt::Key key) { QTest::keyClick(&Drive::Control(page, name), key); }

  // What a check by the menu says.
  QString CheckByMenu()
  {
    QString said;
    Drive::WhenShown("frmTextNotice", [&](QWidget& form) {
      auto& list = static_cast<QListView&>(Drive::Control(form, "lstNotices"));
      said = list.isVisible() ? list.model()->index(0, 0).data().toString()
                              : static_cast<QLabel&>(Drive::Control(form, "lblNotice")).text();
      Drive::Click(form, "lblOptions_0");
    });
    Menu("mnuReminderCheck").trigger();
    return said;
  }
};

}

TEST_F(SetReminders, TheMenuShowsThePageAsAModalWindowOverTheFrame)
{
  Start();
  EXPECT_TRUE(OpenPage([&](QWidget& page) {
    EXPECT_TRUE(page.isWindow());
    EXPECT_TRUE(page.isModal());
    EXPECT_EQ(page.windowTitle(), QStringLiteral("Set reminders"));
    EXPECT_TRUE(MainPage().isVisible());
    Drive::Click(page, "lblOptions_0");
  }));
  EXPECT_EQ(Forms::Loaded("frmNotice"), nullptr);
  EXPECT_TRUE(MainPage().isVisible());
}

TEST_F(SetReminders, TheNextCheckGoesByWhatWasSet)
{
  Clock::StopOn(QDate(2026, 5, 20));
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '22')");
  Set("ReminderOnStart=0");
  Start();
  EXPECT_EQ(CheckByMenu(), QStringLiteral(" Birthday coming up"));

  OpenPage([&](QWidget& page) {
    for (const char* box : {"chkCancelBirth", "chkCancelAnn", "chkCancelCal"}) {
      ClickMark(page, box);
    }
    Drive::Click(page, "lblOptions_0");
  });
  EXPECT_EQ(CheckByMenu(),
            QStringLiteral("Reminders are not active. Go to the Reminders Set-up page to format reminders."));

  OpenPage([&](QWidget& page) {
    ClickMark(page, "optOneOrMany_0");
    Press(page, "cboDays", Qt::Key_Down);
    Press(page, "cboDays", Qt::Key_Down);
    Drive::Click(page, "lblOptions_0");
  });
  EXPECT_EQ(Option("BirthOnce"), 1);
  EXPECT_EQ(Option("BirthLength"), 1);
  EXPECT_EQ(CheckByMenu(), QStringLiteral("According to your reminder settings, you have no events coming up"));

  OpenPage([&](QWidget& page) {
    Press(page, "cboDays", Qt::Key_Down);
    Drive::Click(page, "lblOptions_0");
  });
  EXPECT_EQ(Option("BirthLength"), 2);
  EXPECT_EQ(CheckByMenu(), QStringLiteral(" Birthday coming up"));
}

TEST_F(SetReminders, WhatWasSetHoldsAtTheNextStart)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Set("ReminderOnStart=0");
  Start();
  EXPECT_NE(frame->State(), WindowState::kMinimised);
  OpenPage([&](QWidget& page) {
    ClickMark(page, "chkReminderOnStart");
    Drive::Click(page, "lblOptions_0");
  });
  frame->Unload();
  frame.reset();
  Start();
  EXPECT_EQ(frame->State(), WindowState::kMinimised);
  EXPECT_NE(Forms::Loaded("frmTextNotice"), nullptr);
}

TEST_F(SetReminders, APageThatIsHalfSetStaysOpenUntilItIsInOrder)
{
  Start();
  EXPECT_TRUE(OpenPage([&](QWidget& page) {
    Press(page, "cboDays", Qt::Key_Delete);
    boxes.Expect(kDuration, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
    page.close();
    EXPECT_EQ(Forms::Loaded("frmNotice"), &page);
    EXPECT_TRUE(page.isVisible());
    Press(page, "cboDays", Qt::Key_Down);
    Drive::Click(page, "lblOptions_0");
  }));
  EXPECT_EQ(Forms::Loaded("frmNotice"), nullptr);
  EXPECT_EQ(Option("BirthLength"), 0);
}

TEST_F(SetReminders, TheEndOfTheProgramClosesThePageAsAnyOtherWay)
{
  constexpr int kRefused = 7;
  Start();
  bool opened = false;
  QTimer::singleShot(0, qApp, [&] {
    opened = OpenPage([&](QWidget& page) {
      Press(page, "cboDays", Qt::Key_Delete);
      boxes.Expect(kDuration, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel);
      if (!frame->Unload()) {
        QCoreApplication::exit(kRefused);
      }
    });
  });
  EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS);
  EXPECT_TRUE(opened);
  EXPECT_TRUE(frame->HasEnded());
  EXPECT_TRUE(Forms::AllLoaded().empty());
  for (const char* column : {"BirthAudio", "BirthMany", "AnnAudio", "AnnMany", "CalAudio", "CalMany"}) {
    EXPECT_EQ(Option(column), 0) << column;
  }
  EXPECT_TRUE(Option("AnnLength").isNull());
}
