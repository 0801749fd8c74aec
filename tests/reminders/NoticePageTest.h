// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "OptionsRow.h"
#include "ReminderTest.h"

#include "controls/ComboBox.h"
#include "looks/Style.h"
#include "looks/modToolTips.h"
#include "reminders/frmNotice.h"
#include "support/MessageBoxScript.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QImage>
#include <QRadioButton>

// The settings page over a program's folder of its own, driven as a user does.
class NoticePageTest : public ReminderTest
{
protected:
  NoticePageTest()
  {
    Style::Apply(*qApp);
    modToolTips::SetTipsOff(false);
    Forms::Register(QStringLiteral("frmNotice"), [] { return new frmNotice; });
    QImage icon(16, 16, QImage::Format_ARGB32);
    icon.fill(Qt::darkYellow);
    EXPECT_TRUE(icon.save(folder.File(QStringLiteral("/animp.ico")), "ICO"));
  }

  ~NoticePageTest() override
  {
    delete Forms::Loaded(QStringLiteral("frmNotice"));
    modToolTips::SetTipsOff(false);
  }

  static frmNotice& Open()
  {
    Form& page = Forms::Load(QStringLiteral("frmNotice"));
    page.Show();
    page.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&page));
    return static_cast<frmNotice&>(page);
  }
  static frmNotice& Page() { return static_cast<frmNotice&>(*Forms::Loaded(QStringLiteral("frmNotice"))); }
  static bool IsOpen() { return Forms::Loaded(QStringLiteral("frmNotice")) != nullptr; }

  // Closes the page as it is and loads it anew.
  static frmNotice& Reopen()
  {
    EXPECT_TRUE(Page().Unload());
    return Open();
  }

  static ComboBox& Days(const char* name) { return static_cast<ComboBox&>(Drive::Control(Page(), name)); }
  static QRadioButton& Option(const char* name) { return static_cast<QRadioButton&>(Drive::Control(Page(), name)); }
  static QCheckBox& Check(const char* name) { return static_cast<QCheckBox&>(Drive::Control(Page(), name)); }
  static std::string Text(const char* name) { return Caption(Page(), QLatin1String(name)).toStdString(); }
  static bool IsShown(const char* name) { return Drive::Control(Page(), name).isVisible(); }

  // Clicks where a button has its mark.
  static void ClickMark(const char* name)
  {
    QWidget& button = Drive::Control(Page(), name);
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
  }

  // Opens the list by its arrow and clicks the number in it.
  static void Choose(const char* list, int number)
  {
    ComboBox& days = Days(list);
    const QPoint arrow(days.width() - 8, days.height() / 2);
    QTest::mouseMove(&days, arrow);
    QTest::mouseClick(&days, Qt::LeftButton, {}, arrow);
    QAbstractItemView& view = *days.view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.window()));
    const QModelIndex index = view.model()->index(number, 0);
    view.scrollTo(index);
    const QPoint line = view.visualRect(index).center();
    QTest::mouseMove(view.viewport(), line);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, line);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); }));
    ASSERT_EQ(days.Text(), QString::number(number));
  }

  static void Type(const char* list, const char* text)
  {
    Days(list).setFocus();
    QTest::keyClicks(&Days(list), QString::fromLatin1(text));
  }

  static void Press(const char* list, Qt::Key key)
  {
    Days(list).setFocus();
    QTest::keyClick(&Days(list), key);
  }

  // on, once, many and length of a kind in the file; "-" for Null.
  [[nodiscard]] std::string Rule(const char* prefix) const
  {
    const QString columns = QStringLiteral("%1Audio, %1Once, %1Many, %1Length");
    return OptionsRow(folder, columns.arg(QLatin1String(prefix)));
  }
  [[nodiscard]] std::string Rules() const { return Rule("Birth") + " | " + Rule("Ann") + " | " + Rule("Cal"); }
  [[nodiscard]] int Setting(const char* column) const
  {
    return folder.Value(QStringLiteral("SELECT %1 FROM Options").arg(QLatin1String(column))).toInt();
  }

  void AllOff() const
  {
    Set("BirthAudio=0, BirthOnce=0, BirthMany=0, BirthLength=NULL, AnnAudio=0, AnnOnce=0, AnnMany=0, AnnLength=NULL, "
        "CalAudio=0, CalOnce=0, CalMany=0, CalLength=NULL");
  }

  void ExpectQuestion(const QString& text, QMessageBox::StandardButton answer)
  {
    boxes.Expect(text, QMessageBox::Ok | QMessageBox::Cancel, answer);
  }

  // A panel and its words, for what holds for all three alike.
  struct Panel
  {
    const char* prefix;
    const char* once;
    const char* many;
    const char* days;
    const char* cancel;
    const char* status;
    const char* method;
    const char* none;
    const char* onTheDay;
    const char* askType;
    const char* askDuration;
  };
  static constexpr std::array<Panel, 3> kPanels = {{
      {"Birth", "optOneOrMany_0", "optOneOrMany_1", "cboDays", "chkCancelBirth", "lblCurrentBirth", "lblTextAudio",
       "No birthday notifications", "Reminder on the day of a birthday.",
       "Please select type of birthday notification (one day only or repeated over several days)",
       "Please select duration of birthday notification"},
      {"Ann", "optOneOrManyAnn_0", "optOneOrManyAnn_1", "cboAnnDays", "chkCancelAnn", "lblCurrentAnn",
       "lblTextAudioAnn", "No anniversary notifications", "Reminder on the day of an anniversary.",
       "Please select type of anniversary notification (one day only or repeated over several days)",
       "Please select duration of anniversary notification"},
      {"Cal", "optOneOrManyCal_0", "optOneOrManyCal_1", "cboCalDays", "chkCancelCal", "lblCurrentCal",
       "lblTextAudioCal", "No calendar notifications", "Reminder on the day of a calendar event.",
       "Please select type of calendar notification (one day only or repeated over several days)",
       "Please select duration of calendar notification"},
  }};

  static constexpr auto kAskMethod = "Please select notification method (text/audio)";

  MessageBoxScript boxes;
};
