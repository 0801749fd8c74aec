// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/frmReminders.h"
#include "calendar/modCalVariables.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "controls/MultiLineTextBox.h"
#include "controls/PictureBox.h"
#include "controls/Shape.h"
#include "looks/Style.h"
#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "platform/Application.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "support/Drive.h"
#include "support/MessageBoxScript.h"
#include "support/ProgramFolder.h"

#include <QCursor>
#include <QDir>
#include <QScreen>
#include <QStandardPaths>

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

// A frame with a plain window for the pages, which remembers what it is told.
class FrameOfCalendar : public Frame
{
public:
  [[nodiscard]] WindowState State() const override { return state; }
  void SetState(WindowState newState) override { state = newState; }
  bool Unload() override { return true; }
  void PlacePage(Form& page) override
  {
    placed.append(page.Name());
    page.setParent(&window);
    window.resize(page.size());
    page.move(0, 0);
    page.show();
    window.show();
    window.activateWindow();
  }
  void OpenPage(const QString& name) override { Forms::Load(name).Show(); }
  void AllowDatabaseCare(bool allowed) override { care.push_back(allowed); }
  [[nodiscard]] bool TimerEnabled() const override { return false; }
  void SetTimerEnabled(bool /*enabled*/) override {}

  QWidget window;
  WindowState state = WindowState::kNormal;
  QStringList placed;
  std::vector<bool> care;
};

// The real wall calendar in a frame of its own, over a database of the test's own, on
// 12 May 2026. May 2026 takes the cells 5 to 35; 12 May is cell 16.
class RemindersTest : public testing::Test
{
protected:
  static constexpr int kCellCount = 37;
  static inline const QColor kDayColour{209, 140, 65};
  static inline const QColor kTodayColour{0, 0, 255};

  RemindersTest()
  {
    QStandardPaths::setTestModeEnabled(true);
    Style::Apply(*qApp);
    Application::SetEnding([](int) { ADD_FAILURE() << "the program has ended"; });
    Forms::Register("frmReminders", [] { return new frmReminders; });
    RegisterBeside("frmIntro", Form::Kind::kPage);
    RegisterBeside("frmCalEdit", Form::Kind::kWindow);
    QDir(folder.Path()).mkdir("themes");
    Clock::StopOn(QDate(2026, 5, 12));
    ForgetShared();
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
  }

  ~RemindersTest() override
  {
    for (Form* form : Forms::AllLoaded()) {
      Attempt([form] { form->Unload(); });
    }
    DropUnloaded();
    Forms::UnregisterAll();
    Application::SetEnding({});
    Clock::StopOn({});
    modToolTips::SetTipsOff(false);
    ForgetShared();
  }

  static void DropUnloaded() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

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
    Command::Run([] { Forms::Load("frmReminders").Show(); });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame.window));
  }
  void OpenOn(QDate today)
  {
    Clock::StopOn(today);
    Open();
  }

  static bool IsOpen(const char* name = "frmReminders") { return Forms::Loaded(name) != nullptr; }
  static Form& Page() { return *Forms::Loaded("frmReminders"); }
  static QWidget& Control(const QString& name) { return Drive::Control(Page(), name); }
  static QString Element(const char* array, int index) { return QStringLiteral("%1_%2").arg(array).arg(index); }
  static Label& Day(int cell) { return dynamic_cast<Label&>(Control(Element("lblDay", cell))); }
  static ListBox& Cell(int cell) { return dynamic_cast<ListBox&>(Control(Element("lstReminders", cell))); }
  static ListBox& List(const QString& name) { return dynamic_cast<ListBox&>(Control(name)); }
  static bool IsShown(const QString& name) { return Control(name).isVisibleTo(&Page()); }
  static bool IsShown(const QWidget& control) { return control.isVisibleTo(&Page()); }
  static bool DetailsShown() { return IsShown("txtNotesDisplay"); }

  static std::string Caption(const QString& label)
  {
    return dynamic_cast<QLabel&>(Control(label)).text().toStdString();
  }
  static std::string Details()
  {
    return dynamic_cast<MultiLineTextBox&>(Control("txtNotesDisplay")).Text().toStdString();
  }
  static QStringList LinesOf(const ListBox& box)
  {
    QStringList lines;
    for (int i = 0; i < box.ListCount(); ++i) {
      lines.append(box.List(i));
    }
    return lines;
  }
  // The lines of a cell, with a bar between them.
  static std::string Lines(int cell) { return LinesOf(Cell(cell)).join('|').toStdString(); }

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

  static void Click(const QString& name) { Drive::Click(Page(), name); }
  static void Next() { Click("lblOptions_0"); }
  static void Previous() { Click("lblOptions_1"); }
  static void ClickLine(ListBox& box, int line)
  {
    const QModelIndex index = box.model()->index(line, 0);
    ASSERT_TRUE(index.isValid()) << box.objectName().toStdString() << " " << line;
    box.scrollTo(index);
    QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, box.visualRect(index).center());
  }
  static void ClickEvent(int cell, int line = 0) { ClickLine(Cell(cell), line); }
  static void ChooseMonth(int month)
  {
    Click("lblMonth");
    ClickLine(List("lstMonth"), month - 1);
  }
  static void ChooseYear(int year)
  {
    Click("lblYear");
    ClickLine(List("lstYear"), year - 1900);
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

  ProgramFolder folder;
  MessageBoxScript boxes;
  FrameOfCalendar frame;
};
