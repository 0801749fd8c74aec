// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MonthCalendar.h"

#include "platform/Clock.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QHelpEvent>
#include <QImage>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

namespace {

const QColor kRaised(192, 0, 0);
const QDate kStart(2026, 5, 15);

int CountOf(const QImage& image, const QColor& color)
{
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      count += image.pixelColor(x, y) == color ? 1 : 0;
    }
  }
  return count;
}

class MonthCalendarTest : public testing::Test
{
protected:
  MonthCalendarTest()
  {
    window_.resize(400, 400);
    before_.setGeometry(0, 350, 100, 30);
    calendar_.setGeometry(0, 0, 320, 264);
    Start(kStart);
  }

  void Start(QDate date)
  {
    calendar_.SetValue(date);
    ASSERT_EQ(calendar_.Value(), date);
    changes_.clear();
  }

  void Show()
  {
    window_.show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  MonthGrid Grid() { return {calendar_.rect().adjusted(0, 0, -1, -1), calendar_.Value()}; }
  QRect CellOf(QDate day) { return Grid().Cell(Grid().CellOf(day)); }
  QPoint PlaceOf(QDate day) { return CellOf(day).center(); }
  void ClickAt(QPoint point, Qt::MouseButton button = Qt::LeftButton)
  {
    QTest::mouseClick(&calendar_, button, {}, point);
  }
  void ClickDay(QDate day) { ClickAt(PlaceOf(day)); }
  void ClickArrow(int step) { ClickAt(Grid().Arrow(step).center()); }

  void Turn(int angle)
  {
    QWheelEvent turn(QPointF(160, 150), calendar_.mapToGlobal(QPointF(160, 150)), {}, QPoint(0, angle), {}, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&calendar_, &turn);
  }

  void ExpectChange(QDate date, int changes, const char* what)
  {
    EXPECT_EQ(calendar_.Value().toString(Qt::ISODate), date.toString(Qt::ISODate)) << what;
    EXPECT_EQ(changes_.count(), changes) << what;
    changes_.clear();
  }

  QImage Painted() { return calendar_.grab().toImage(); }
  QImage PaintedDay(QDate day) { return Painted().copy(CellOf(day)); }

  QWidget window_;
  QLineEdit before_{&window_};
  MonthCalendar calendar_{&window_};
  QSignalSpy changes_{&calendar_, &MonthCalendar::Change};
};

}

TEST_F(MonthCalendarTest, PropertiesStandAtTheirDefaults)
{
  const QColor white = Qt::white;
  const QColor black = Qt::black;
  const QColor grey(128, 128, 128);
  const std::vector<std::pair<const char*, QVariant>> defaults = {
      {"showdatetip", false},
      {"yearbegin", 1900},
      {"yearend", 2050},
      {"backcolor", white},
      {"currentperiodbackcolor", white},
      {"preperiodbackcolor", white},
      {"postperiodbackcolor", white},
      {"currentperiodforecolor", black},
      {"activedayforecolor", black},
      {"preperiodforecolor", grey},
      {"postperiodforecolor", grey},
      {"dayheaderbackcolor", QColor(209, 140, 65)},
      {"dayheaderforecolor", white},
      {"flatlinecolor", QColor(192, 192, 192)},
      {"activedayfontname", QStringLiteral("Arial")},
      {"dayheaderfontname", QStringLiteral("Arial")},
      {"daysfontname", QStringLiteral("Arial")},
      {"activedayfontsize", 9.75},
      {"dayheaderfontsize", 9.75},
      {"daysfontsize", 9.75},
      {"activedayfontbold", false},
      {"dayheaderfontbold", false},
      {"daysfontbold", false},
      {"activedayfontitalic", false},
      {"dayheaderfontitalic", false},
      {"daysfontitalic", false},
  };
  for (const auto& [name, value] : defaults) {
    EXPECT_EQ(calendar_.property(name), value) << name;
  }
}

TEST_F(MonthCalendarTest, EveryPropertyOfTheLookShowsAndCanBePutBack)
{
  const std::vector<std::pair<const char*, QVariant>> others = {
      {"currentperiodbackcolor", QColor(Qt::cyan)},
      {"preperiodbackcolor", QColor(Qt::cyan)},
      {"postperiodbackcolor", QColor(Qt::cyan)},
      {"backcolor", QColor(Qt::cyan)},
      {"currentperiodforecolor", QColor(Qt::blue)},
      {"preperiodforecolor", QColor(Qt::blue)},
      {"postperiodforecolor", QColor(Qt::blue)},
      {"activedayforecolor", QColor(Qt::blue)},
      {"dayheaderbackcolor", QColor(Qt::blue)},
      {"dayheaderforecolor", QColor(Qt::blue)},
      {"flatlinecolor", QColor(Qt::blue)},
      {"activedayfontname", QStringLiteral("Times New Roman")},
      {"dayheaderfontname", QStringLiteral("Times New Roman")},
      {"daysfontname", QStringLiteral("Times New Roman")},
      {"activedayfontsize", 14.0},
      {"dayheaderfontsize", 8.0},
      {"daysfontsize", 8.0},
      {"activedayfontbold", true},
      {"dayheaderfontbold", true},
      {"daysfontbold", true},
      {"activedayfontitalic", true},
      {"dayheaderfontitalic", true},
      {"daysfontitalic", true},
  };
  const QImage plain = Painted();
  for (const auto& [name, value] : others) {
    const QVariant usual = calendar_.property(name);
    ASSERT_TRUE(calendar_.setProperty(name, value)) << name;
    EXPECT_EQ(calendar_.property(name), value) << name;
    EXPECT_NE(Painted(), plain) << name;
    calendar_.setProperty(name, usual);
    EXPECT_EQ(Painted(), plain) << name;
  }
  EXPECT_EQ(changes_.count(), 0);
}

TEST_F(MonthCalendarTest, StandsOnTodayAtFirst)
{
  struct Case
  {
    QDate today;
    QDate value;
  };
  for (const Case& c : {Case{{2031, 8, 9}, {2031, 8, 9}}, Case{{2051, 1, 1}, {1900, 1, 1}}}) {
    Clock::StopOn(c.today);
    EXPECT_EQ(MonthCalendar().Value(), c.value);
  }
  Clock::StopOn({});
}

TEST_F(MonthCalendarTest, SettingAnotherDateChangesOnceBeforeItReturns)
{
  QDate seen;
  QObject::connect(&calendar_, &MonthCalendar::Change, &calendar_, [&] { seen = calendar_.Value(); });
  calendar_.SetValue({2026, 6, 1});
  EXPECT_EQ(seen, QDate(2026, 6, 1));
  ExpectChange({2026, 6, 1}, 1, "another date");
  calendar_.SetValue({2026, 6, 1});
  ExpectChange({2026, 6, 1}, 0, "the same date");
  calendar_.setProperty("value", QDate(2026, 6, 2));
  ExpectChange({2026, 6, 2}, 1, "by name");
}

TEST_F(MonthCalendarTest, HandlerMaySetTheDateAgain)
{
  QObject::connect(&calendar_, &MonthCalendar::Change, &calendar_, [&] { calendar_.SetValue({2026, 7, 4}); });
  calendar_.SetValue({2026, 6, 1});
  ExpectChange({2026, 7, 4}, 2, "set in the handler");
}

TEST_F(MonthCalendarTest, DatesOutsideTheYearsAreNotTaken)
{
  for (const QDate& date :
       {QDate(1899, 12, 31), QDate(2051, 1, 1), QDate(100, 1, 1), QDate(9999, 12, 31), QDate(), QDate(2026, 2, 29)}) {
    calendar_.SetValue(date);
    ExpectChange(kStart, 0, "outside");
  }
  calendar_.SetValue({1900, 1, 1});
  ExpectChange({1900, 1, 1}, 1, "first");
  calendar_.SetValue({2050, 12, 31});
  ExpectChange({2050, 12, 31}, 1, "last");
}

TEST_F(MonthCalendarTest, NarrowerYearsTakeTheDateAlong)
{
  calendar_.SetYearBegin(2030);
  ExpectChange({2030, 1, 1}, 1, "begin");
  calendar_.SetYearEnd(2020);
  EXPECT_EQ(calendar_.YearBegin(), 2020);
  ExpectChange({2020, 12, 31}, 1, "end");
  calendar_.setProperty("yearbegin", 2060);
  EXPECT_EQ(calendar_.YearEnd(), 2060);
  ExpectChange({2060, 1, 1}, 1, "begin after the end");
  calendar_.SetYearBegin(0);
  calendar_.SetYearEnd(10000);
  EXPECT_EQ(calendar_.YearBegin(), 2060);
  EXPECT_EQ(calendar_.YearEnd(), 2060);
  calendar_.setProperty("yearend", 2061);
  ExpectChange({2060, 1, 1}, 0, "wider");
}

TEST_F(MonthCalendarTest, EmphasisIsKeptAndTellsNoChange)
{
  calendar_.SetActiveDayFontSize(14);
  calendar_.SetActiveDayForeColor(kRaised);
  EXPECT_EQ(calendar_.ActiveDayFontSize(), 14);
  EXPECT_EQ(calendar_.ActiveDayForeColor(), kRaised);
  EXPECT_EQ(calendar_.property("activedayfontsize"), QVariant(14.0));
  ExpectChange(kStart, 0, "emphasis");
}

TEST_F(MonthCalendarTest, EmphasisIsDrawnOnTheCurrentDayAlone)
{
  calendar_.SetActiveDayFontSize(10);
  const QImage plain = Painted();
  const QImage plainDay = PaintedDay(kStart);
  EXPECT_EQ(CountOf(plain, kRaised), 0);
  calendar_.SetActiveDayForeColor(kRaised);
  const int small = CountOf(Painted(), kRaised);
  EXPECT_GT(small, 0);
  calendar_.SetActiveDayFontSize(14);
  EXPECT_GT(CountOf(Painted(), kRaised), small);
  EXPECT_EQ(CountOf(Painted(), kRaised), CountOf(PaintedDay(kStart), kRaised));
  QImage others = Painted();
  for (int y = CellOf(kStart).top(); y <= CellOf(kStart).bottom(); ++y) {
    for (int x = CellOf(kStart).left(); x <= CellOf(kStart).right(); ++x) {
      others.setPixelColor(x, y, plain.pixelColor(x, y));
    }
  }
  EXPECT_EQ(others, plain);
  calendar_.SetActiveDayFontSize(10);
  calendar_.SetActiveDayForeColor(Qt::black);
  EXPECT_EQ(PaintedDay(kStart), plainDay);
}

TEST_F(MonthCalendarTest, EmphasisFollowsTheCurrentDay)
{
  calendar_.SetActiveDayForeColor(kRaised);
  calendar_.SetValue({2026, 5, 20});
  EXPECT_EQ(CountOf(PaintedDay(kStart), kRaised), 0);
  EXPECT_GT(CountOf(PaintedDay({2026, 5, 20}), kRaised), 0);
}

TEST_F(MonthCalendarTest, CurrentDayHasAGroundOfItsOwn)
{
  EXPECT_NE(PaintedDay(kStart).pixelColor(8, 8), QColor(Qt::white));
  EXPECT_EQ(PaintedDay(kStart.addDays(1)).pixelColor(8, 8), QColor(Qt::white));
}

TEST_F(MonthCalendarTest, HairlinesAndHeaderStandInTheirColours)
{
  for (const QSize& size : {QSize(240, 200), QSize(320, 264), QSize(900, 700)}) {
    calendar_.resize(size);
    const QImage painted = Painted();
    const QColor line(192, 192, 192);
    for (const int cell : {8, 24, 41}) {
      const QRect room = Grid().Cell(cell);
      EXPECT_EQ(painted.pixelColor(room.left(), room.top() + 5), line);
      EXPECT_EQ(painted.pixelColor(room.left() + 5, room.top()), line);
      EXPECT_EQ(painted.pixelColor(room.left() + 1, room.top() + 5), QColor(Qt::white));
      EXPECT_EQ(painted.pixelColor(room.left() + 5, room.top() + 1), QColor(Qt::white));
    }
    for (const QPoint& corner : {painted.rect().topLeft(), painted.rect().bottomRight()}) {
      EXPECT_EQ(painted.pixelColor(corner), line);
    }
    EXPECT_EQ(painted.pixelColor(Grid().DayName(3).topLeft() + QPoint(1, 1)), QColor(209, 140, 65));
  }
}

TEST_F(MonthCalendarTest, ClickTakesADayOfTheMonthAndOfItsNeighbours)
{
  for (const QDate& day : {QDate(2026, 5, 1), QDate(2026, 5, 31), QDate(2026, 4, 26), QDate(2026, 4, 30),
                           QDate(2026, 6, 1), QDate(2026, 6, 6)}) {
    Start(kStart);
    ClickDay(day);
    ExpectChange(day, 1, "click");
  }
  Start(kStart);
  ClickDay(kStart);
  ExpectChange(kStart, 0, "click on the current day");
}

TEST_F(MonthCalendarTest, OnlyAWholeClickByTheLeftButtonCounts)
{
  ClickAt(PlaceOf({2026, 5, 4}), Qt::RightButton);
  ClickAt(PlaceOf({2026, 5, 4}), Qt::MiddleButton);
  ClickAt(Grid().Title().center());
  ClickAt(Grid().DayName(2).center());
  QTest::mousePress(&calendar_, Qt::LeftButton, {}, PlaceOf({2026, 5, 4}));
  QTest::mouseRelease(&calendar_, Qt::LeftButton, {}, PlaceOf({2026, 5, 5}));
  QTest::mouseRelease(&calendar_, Qt::LeftButton, {}, PlaceOf({2026, 5, 4}));
  ExpectChange(kStart, 0, "no click");
}

TEST_F(MonthCalendarTest, ArrowsStepAMonthOrAYear)
{
  struct Case
  {
    QDate from;
    int step;
    QDate to;
  };
  const std::vector<Case> cases = {
      {{2026, 5, 15}, -1, {2026, 4, 15}}, {{2026, 5, 15}, 1, {2026, 6, 15}},    {{2026, 5, 15}, -12, {2025, 5, 15}},
      {{2026, 5, 15}, 12, {2027, 5, 15}}, {{2026, 5, 31}, -1, {2026, 4, 30}},   {{2026, 1, 31}, 1, {2026, 2, 28}},
      {{2028, 1, 31}, 1, {2028, 2, 29}},  {{2028, 2, 29}, 12, {2029, 2, 28}},   {{2028, 2, 29}, -12, {2027, 2, 28}},
      {{2026, 12, 31}, 1, {2027, 1, 31}}, {{2026, 1, 1}, -1, {2025, 12, 1}},    {{1900, 1, 31}, -1, {1900, 1, 31}},
      {{1900, 6, 1}, -12, {1900, 6, 1}},  {{1901, 1, 1}, -12, {1900, 1, 1}},    {{2050, 12, 1}, 1, {2050, 12, 1}},
      {{2050, 1, 1}, 12, {2050, 1, 1}},   {{2049, 12, 31}, 12, {2050, 12, 31}},
  };
  for (const Case& c : cases) {
    Start(c.from);
    ClickArrow(c.step);
    ExpectChange(c.to, c.from == c.to ? 0 : 1, "arrow ");
  }
}

TEST_F(MonthCalendarTest, QuickClicksOnAnArrowCountEach)
{
  const QPoint arrow = Grid().Arrow(1).center();
  ClickAt(arrow);
  QTest::mouseDClick(&calendar_, Qt::LeftButton, {}, arrow);
  QTest::mouseRelease(&calendar_, Qt::LeftButton, {}, arrow);
  ExpectChange({2026, 7, 15}, 2, "two clicks");
}

TEST_F(MonthCalendarTest, DaysOutsideTheYearsAreBlankAndNotTaken)
{
  Start({1900, 1, 1});
  EXPECT_EQ(CountOf(PaintedDay({1899, 12, 31}), Qt::white),
            (CellOf({1899, 12, 31}).width() - 1) * CellOf({1899, 12, 31}).height());
  ClickDay({1899, 12, 31});
  ExpectChange({1900, 1, 1}, 0, "before");
  Start({2050, 12, 31});
  ClickDay({2051, 1, 1});
  ExpectChange({2050, 12, 31}, 0, "after");
}

TEST_F(MonthCalendarTest, WheelStepsAMonth)
{
  Turn(120);
  ExpectChange({2026, 4, 15}, 1, "up");
  Turn(-120);
  ExpectChange(kStart, 1, "down");
  Turn(-60);
  ExpectChange(kStart, 0, "half");
  Turn(-60);
  ExpectChange({2026, 6, 15}, 1, "the other half");
  Turn(-240);
  ExpectChange({2026, 8, 15}, 1, "two");
  Start({1900, 1, 31});
  Turn(120);
  ExpectChange({1900, 1, 31}, 0, "before the first month");
  Start({2050, 12, 31});
  Turn(-120);
  ExpectChange({2050, 12, 31}, 0, "after the last month");
}

TEST_F(MonthCalendarTest, KeysMoveTheDate)
{
  struct Case
  {
    QDate from;
    Qt::Key key;
    Qt::KeyboardModifiers held;
    QDate to;
  };
  const std::vector<Case> cases = {
      {kStart, Qt::Key_Left, {}, {2026, 5, 14}},
      {kStart, Qt::Key_Right, {}, {2026, 5, 16}},
      {kStart, Qt::Key_Up, {}, {2026, 5, 8}},
      {kStart, Qt::Key_Down, Qt::KeypadModifier, {2026, 5, 22}},
      {kStart, Qt::Key_Home, {}, {2026, 5, 1}},
      {kStart, Qt::Key_End, {}, {2026, 5, 31}},
      {{2026, 5, 31}, Qt::Key_End, {}, {2026, 5, 31}},
      {kStart, Qt::Key_PageUp, {}, {2026, 4, 15}},
      {{2026, 5, 31}, Qt::Key_PageDown, {}, {2026, 6, 30}},
      {kStart, Qt::Key_PageUp, Qt::ControlModifier, {2025, 5, 15}},
      {{2028, 2, 29}, Qt::Key_PageDown, Qt::ControlModifier, {2029, 2, 28}},
      {kStart, Qt::Key_Left, Qt::AltModifier, kStart},
      {kStart, Qt::Key_Left, Qt::ControlModifier, kStart},
      {kStart, Qt::Key_A, {}, kStart},
      {{1900, 1, 1}, Qt::Key_Left, {}, {1900, 1, 1}},
      {{1900, 1, 7}, Qt::Key_Up, {}, {1900, 1, 7}},
      {{1900, 1, 1}, Qt::Key_PageUp, {}, {1900, 1, 1}},
      {{1900, 12, 1}, Qt::Key_PageUp, Qt::ControlModifier, {1900, 12, 1}},
      {{2050, 12, 31}, Qt::Key_Right, {}, {2050, 12, 31}},
      {{2050, 12, 25}, Qt::Key_Down, {}, {2050, 12, 25}},
      {{2050, 12, 24}, Qt::Key_Down, {}, {2050, 12, 31}},
      {{2050, 12, 31}, Qt::Key_PageDown, {}, {2050, 12, 31}},
      {{2050, 1, 1}, Qt::Key_PageDown, Qt::ControlModifier, {2050, 1, 1}},
  };
  for (const Case& c : cases) {
    Start(c.from);
    QTest::keyClick(&calendar_, c.key, c.held);
    ExpectChange(c.to, c.from == c.to ? 0 : 1, "key ");
  }
}

TEST_F(MonthCalendarTest, FocusLineComesByTabOrAKeyAndNotByAClick)
{
  Show();
  before_.setFocus();
  const QImage without = Painted();
  QTest::keyClick(&before_, Qt::Key_Tab);
  ASSERT_TRUE(calendar_.hasFocus());
  EXPECT_NE(Painted(), without);
  before_.setFocus();
  EXPECT_EQ(Painted(), without);
  calendar_.setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(Painted(), without);
  QTest::keyClick(&calendar_, Qt::Key_Right);
  QTest::keyClick(&calendar_, Qt::Key_Left);
  EXPECT_NE(Painted(), without);
}

TEST_F(MonthCalendarTest, ClickTakesTheFocus)
{
  Show();
  before_.setFocus();
  QTest::mouseClick(window_.windowHandle(), Qt::LeftButton, {}, PlaceOf({2026, 5, 4}));
  EXPECT_TRUE(calendar_.hasFocus());
  ExpectChange({2026, 5, 4}, 1, "click");
}

TEST_F(MonthCalendarTest, DisabledCalendarStandsStill)
{
  calendar_.setEnabled(false);
  ClickDay({2026, 5, 4});
  ClickArrow(1);
  QTest::keyClick(&calendar_, Qt::Key_Left);
  Turn(120);
  ExpectChange(kStart, 0, "disabled");
}

TEST_F(MonthCalendarTest, WhatThePointerStandsOnIsLit)
{
  Show();
  before_.setFocus();
  QTest::mouseMove(window_.windowHandle(), QPoint(390, 390));
  const QImage plain = Painted();
  QTest::mouseMove(window_.windowHandle(), PlaceOf({2026, 5, 4}));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Painted() != plain; }));
  EXPECT_NE(PaintedDay({2026, 5, 4}), plain.copy(CellOf({2026, 5, 4})));
  QTest::mouseMove(window_.windowHandle(), Grid().Arrow(12).center());
  ASSERT_TRUE(QTest::qWaitFor([&] { return PaintedDay({2026, 5, 4}) == plain.copy(CellOf({2026, 5, 4})); }));
  EXPECT_NE(Painted().copy(Grid().Arrow(12)), plain.copy(Grid().Arrow(12)));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&calendar_, &leave);
  EXPECT_EQ(Painted(), plain);
}

TEST_F(MonthCalendarTest, DateTipIsShownOnlyIfAskedFor)
{
  Show();
  const QPoint place = PlaceOf({2026, 5, 4});
  QHelpEvent help(QEvent::ToolTip, place, calendar_.mapToGlobal(place));
  QApplication::sendEvent(&calendar_, &help);
  EXPECT_TRUE(QToolTip::text().isEmpty());
  calendar_.setProperty("showdatetip", true);
  QApplication::sendEvent(&calendar_, &help);
  EXPECT_EQ(QToolTip::text(), QStringLiteral("Monday, 4 May 2026"));
  QToolTip::hideText();
}

TEST_F(MonthCalendarTest, ScreenReaderIsToldTheDate)
{
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&calendar_);
  ASSERT_NE(access, nullptr);
  EXPECT_EQ(access->text(QAccessible::Name), QStringLiteral("Calendar"));
  EXPECT_EQ(access->text(QAccessible::Description), QStringLiteral("Friday, 15 May 2026"));
  EXPECT_TRUE(access->state().focusable);
  calendar_.SetValue({1900, 1, 1});
  EXPECT_EQ(access->text(QAccessible::Description), QStringLiteral("Monday, 1 January 1900"));
  Clock::StopOn({2026, 2, 28});
  EXPECT_EQ(MonthCalendar().accessibleDescription(), QStringLiteral("Saturday, 28 February 2026"));
  Clock::StopOn({});
}

TEST_F(MonthCalendarTest, NamesAreEnglishInEveryLocale)
{
  const QImage english = Painted();
  const QLocale usual;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(Painted(), english);
  calendar_.SetValue({2026, 5, 17});
  EXPECT_EQ(calendar_.accessibleDescription(), QStringLiteral("Sunday, 17 May 2026"));
  QLocale::setDefault(usual);
}

TEST(MonthCalendarAccess, TellsItsDateAsTheValueOfABox)
{
  MonthCalendar calendar;
  calendar.SetValue(QDate(2026, 5, 9));
  QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&calendar);
  ASSERT_NE(told, nullptr);
  EXPECT_EQ(told->role(), QAccessible::SpinBox);
  EXPECT_EQ(told->text(QAccessible::Name), "Calendar");
  EXPECT_EQ(told->text(QAccessible::Value), calendar.accessibleDescription());
  EXPECT_TRUE(told->text(QAccessible::Value).contains("9")) << told->text(QAccessible::Value).toStdString();
}
