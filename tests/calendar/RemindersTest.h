// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/frmReminders.h"
#include "calendar/modCalVariables.h"
#include "controls/MultiLineTextBox.h"
#include "controls/PictureBox.h"
#include "controls/Shape.h"
#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "support/PageTest.h"

#include <QCursor>
#include <QScreen>

#include <gtest/gtest.h>

// A form that only stands there, and does at its load what a test wants.
class FormBesideCalendar : public Form
{
public:
  FormBesideCalendar(const QString& name, Kind kind, std::function<void()> atLoad = {})
      : Form(name, kind), atLoad_(std::move(atLoad))
  {}

protected:
  void Form_Load() override
  {
    if (atLoad_) {
      atLoad_();
    }
  }

private:
  std::function<void()> atLoad_;
};

// The real wall calendar in a frame of its own, over a database of the test's own, on
// 12 May 2026. May 2026 takes the cells 5 to 35; 12 May is cell 16.
class RemindersTest : public PageTest<frmReminders>
{
protected:
  static constexpr int kCellCount = 37;
  static inline const QColor kDayColour{209, 140, 65};
  static inline const QColor kTodayColour{0, 0, 255};

  RemindersTest()
  {
    RegisterBeside("frmCalEdit", Form::Kind::kWindow);
    Clock::StopOn(QDate(2026, 5, 12));
    ForgetShared();
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
  }

  ~RemindersTest() override { ForgetShared(); }

  static void RegisterBeside(const QString& name, Form::Kind kind, const std::function<void()>& atLoad = {})
  {
    Forms::Register(name, [=] { return new FormBesideCalendar(name, kind, atLoad); });
  }

  static void ForgetShared()
  {
    modThemes::SetCalendarHasPicture(false);
    modCalVariables::CalMonth = modCalVariables::CalYear = 0;
    modCalVariables::CalDaysInMonth = modCalVariables::CalFirstWeekday = 0;
    modCalVariables::CalMonthName.clear();
    modCalVariables::CalCellDates.clear();
    modCalVariables::CalSelectedDate = {};
    modCalVariables::CalDateText.clear();
    modCalVariables::CalCellIndex = 0;
    modCalVariables::CalEventIds.clear();
  }

  // --- The database, seen from outside.

  // Adds an event of that date, in its own month unless another is named. Returns the key.
  int AddEvent(const QString& date, const QVariant& event, const QVariant& time = {}, const QVariant& notes = {},
               const QVariant& month = MonthOfDate()) const
  {
    const QVariant name = month == MonthOfDate() ? MonthName(QDate::fromString(date, Qt::ISODate).month()) : month;
    folder.Execute("INSERT INTO Reminders (Month, Date, Event, Time, Notes) VALUES (?,?,?,?,?)",
                   {name, date.isEmpty() ? QVariant() : QVariant(date), event, time, notes});
    return folder.Value("SELECT max(ID) FROM Reminders").toInt();
  }
  static QVariant MonthOfDate() { return QStringLiteral("the month of the date"); }

  static QString MonthName(int month)
  {
    static const QStringList names = {"January", "February", "March",     "April",   "May",      "June",
                                      "July",    "August",   "September", "October", "November", "December"};
    return names.value(month - 1);
  }

  // --- The page.

  void Open()
  {
    modThemes::SetCalendarHasPicture(false);
    PageTest::Open();
  }
  void OpenOn(QDate today)
  {
    Clock::StopOn(today);
    Open();
  }

  static QString Element(const char* array, int index) { return QStringLiteral("%1_%2").arg(array).arg(index); }
  static Label& Day(int cell) { return dynamic_cast<Label&>(Control(Element("lblDay", cell))); }
  static ListBox& Cell(int cell) { return dynamic_cast<ListBox&>(Control(Element("lstReminders", cell))); }
  static ListBox& List(const QString& name) { return dynamic_cast<ListBox&>(Control(name)); }
  using PageTest::IsShown;
  static bool IsShown(const QWidget& control) { return control.isVisibleTo(&Page()); }
  static bool DetailsShown() { return IsShown("txtNotesDisplay"); }

  static std::string Details()
  {
    return dynamic_cast<MultiLineTextBox&>(Control("txtNotesDisplay")).Text().toStdString();
  }
  // The lines of a cell, with a bar between them.
  static std::string Lines(int cell) { return Hands::LinesOf(Cell(cell)).join('|').toStdString(); }

  // The cells whose list shows, with their lines.
  static std::map<int, std::string> ShownEvents()
  {
    std::map<int, std::string> shown;
    for (int i = 0; i < kCellCount; ++i) {
      if (IsShown(Cell(i))) {
        shown[i] = Lines(i);
      }
    }
    return shown;
  }
  static std::map<int, std::string> ShownDays()
  {
    std::map<int, std::string> shown;
    for (int i = 0; i < kCellCount; ++i) {
      if (IsShown(Day(i))) {
        shown[i] = Day(i).text().toStdString();
      }
    }
    return shown;
  }

  // The cell of a date in the grid of its own month.
  static int CellOf(QDate date) { return QDate(date.year(), date.month(), 1).dayOfWeek() % 7 + date.day() - 1; }
  static int CellOf(const char* date) { return CellOf(QDate::fromString(date, Qt::ISODate)); }

  // Place of a control on what it stands on, in twips.
  static QRect Twips(const QString& name)
  {
    const QRect pixels = Control(name).geometry();
    return {pixels.x() * 15, pixels.y() * 15, pixels.width() * 15, pixels.height() * 15};
  }

  // Everything that says which month is on show says this one.
  static void ExpectMonth(int year, int month)
  {
    SCOPED_TRACE(std::to_string(year) + "-" + std::to_string(month));
    const QDate first(year, month, 1);
    const int days = first.daysInMonth();
    const int weekday = first.dayOfWeek() % 7 + 1;
    EXPECT_EQ(modCalVariables::CalMonth, month);
    EXPECT_EQ(modCalVariables::CalYear, year);
    EXPECT_EQ(modCalVariables::CalDaysInMonth, days);
    EXPECT_EQ(modCalVariables::CalFirstWeekday, weekday);
    EXPECT_EQ(modCalVariables::CalMonthName.toStdString(), MonthName(month).toStdString());
    EXPECT_EQ(Caption("lblMonth"), MonthName(month).toStdString());
    EXPECT_EQ(Caption("lblYear"), std::to_string(year));
    EXPECT_EQ(List("lstMonth").ListIndex(), month - 1);
    EXPECT_EQ(List("lstYear").ListIndex(), year < 1900 || year > 2050 ? -1 : year - 1900);
    ExpectDays(first, days, weekday);
    ExpectRows(days + weekday - 1 <= 28 ? 4 : days + weekday - 1 <= 35 ? 5 : 6);
  }

  static void ExpectDays(QDate first, int days, int weekday)
  {
    const int cells = days + weekday - 1;
    ASSERT_GE(modCalVariables::CalCellDates.size(), cells);
    for (int i = 0; i < kCellCount; ++i) {
      const int day = i + 2 - weekday;
      const bool within = day >= 1 && day <= days;
      EXPECT_EQ(IsShown(Day(i)), within) << i;
      if (i < cells) {
        EXPECT_EQ(modCalVariables::CalCellDates[i].toStdString(),
                  modCalVariables::DateText(first.addDays(day - 1)).toStdString())
            << i;
      }
      if (within) {
        const bool isToday = first.addDays(day - 1) == Clock::Today();
        EXPECT_EQ(Day(i).text().toStdString(), std::to_string(day)) << i;
        EXPECT_EQ(Day(i).ForeColor().name().toStdString(), (isToday ? kTodayColour : kDayColour).name().toStdString())
            << i;
      }
    }
  }

  static void ExpectRows(int rows)
  {
    const int rule = Control(Element("shpHLine", rows - 1)).y();
    const int less = rows == 6 ? 1 : 0;  // 20 twips
    EXPECT_NEAR(Control("picReminders").height(), rule - less, less) << rows;
    EXPECT_LE(Control("picReminders").height(), rule);
    const QWidget& saturday = Control("Label2_6");
    EXPECT_EQ(Control("picReminders").width(), saturday.x() + saturday.width());
  }

  // --- Hands on the page.

  static void Next() { Click("lblOptions_0"); }
  static void Previous() { Click("lblOptions_1"); }
  static void ClickEvent(int cell, int line = 0) { Hands::ClickLine(Cell(cell), line); }
  static void ChooseMonth(int month)
  {
    Click("lblMonth");
    Hands::ClickLine(List("lstMonth"), month - 1);
  }
  static void ChooseYear(int year)
  {
    Click("lblYear");
    Hands::ClickLine(List("lstYear"), year - 1900);
  }
  static void ClickPicture() { QTest::mouseClick(&Control("picReminders"), Qt::LeftButton, {}, QPoint(40, 20)); }
  static QWidget& DetailsViewport() { return *dynamic_cast<MultiLineTextBox&>(Control("txtNotesDisplay")).viewport(); }

  // Does `work`, which is to show the form modally; looks at the page meanwhile, then closes the form.
  static void WithModal(
      const QString& name, const std::function<void()>& work, const std::function<void()>& look = [] {})
  {
    auto seen = std::make_shared<bool>(false);
    Drive::WhenShown(name, [=](QWidget& form) {
      *seen = true;
      EXPECT_TRUE(form.isModal());
      look();
      form.close();
    });
    work();
    EXPECT_TRUE(*seen) << name.toStdString();
  }
};
