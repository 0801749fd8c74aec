// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

#include "support/HeldDatabase.h"
#include "store/StatementCounter.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"

namespace {

using Events = std::map<int, std::string>;

class RemindersEvents : public RemindersTest
{
protected:
  [[nodiscard]] std::vector<QVariantList> Rows() const { return folder.Rows("SELECT * FROM Reminders ORDER BY ID"); }

  // Does `work` while another program has the database, which is to end the program with that failure.
  void WhileTaken(const std::function<void()>& work)
  {
    int endings = 0;
    Application::SetEnding([&](int) { ++endings; });
    const std::size_t boxesBefore = boxes.Count();
    boxes.Expect("Run-time error '3260':\n\nThe database is locked by another program.");
    {
      const DatabaseTaken taken(folder.DatabasePath());
      work();
    }
    EXPECT_EQ(endings, 1);
    EXPECT_EQ(boxes.Count(), boxesBefore + 1);
    Application::SetEnding([](int) { ADD_FAILURE() << "the program has ended"; });
  }
};

}

TEST_F(RemindersEvents, AMonthWithoutEventsShowsNoLists)
{
  AddEvent("2026-06-01", "Later");
  Open();
  EXPECT_EQ(ShownEvents(), Events());
  for (int i = 0; i < kCellCount; ++i) {
    EXPECT_EQ(Cell(i).ListCount(), 0) << i;
  }
}

TEST_F(RemindersEvents, EveryEventStandsInTheCellOfItsDate)
{
  AddEvent("2026-05-01", "First");
  AddEvent("2026-05-12", "Dentist", "09:30:00");
  AddEvent("2026-05-31", "Last", "21:30:00", "Notes do not show");
  Open();
  EXPECT_EQ(ShownEvents(), (Events{{5, " First "}, {16, " Dentist 9:30am"}, {35, " Last 9:30pm"}}));
}

TEST_F(RemindersEvents, TheOneWithoutATimeComesFirst)
{
  AddEvent("2026-05-12", "Timed", "00:00:00");
  AddEvent("2026-05-12", "Untimed");
  Open();
  EXPECT_EQ(Lines(16), " Untimed | Timed 12:00am");
}

TEST_F(RemindersEvents, TheEventsOfADayStandByTimeAndThoseOfOneTimeAsEntered)
{
  AddEvent("2026-05-12", "E", "13:00:00");
  AddEvent("2026-05-12", "C", "09:00:00");
  AddEvent("2026-05-12", "Y");
  AddEvent("2026-05-12", "D", "09:00:00");
  AddEvent("2026-05-12", "X");
  AddEvent("2026-05-12", "F", "21:15:00");
  AddEvent("2026-05-12", "B", "08:59:00");
  Open();
  EXPECT_EQ(Lines(16), " Y | X | B 8:59am| C 9:00am| D 9:00am| E 1:00pm| F 9:15pm");
}

TEST_F(RemindersEvents, AnEventShowsInItsOwnYearOnly)
{
  AddEvent("2002-03-05", "Once");
  Open();
  ChooseMonth(3);
  for (const int year : {2003, 2001, 1902}) {
    ChooseYear(year);
    EXPECT_EQ(ShownEvents(), Events()) << year;
  }
  ChooseYear(2002);
  EXPECT_EQ(ShownEvents(), (Events{{CellOf("2002-03-05"), " Once "}}));
  Next();
  EXPECT_EQ(ShownEvents(), Events());
}

TEST_F(RemindersEvents, AnEventOn29FebruaryShowsInItsLeapYear)
{
  AddEvent("2024-02-29", "Leap");
  Open();
  ChooseMonth(2);
  ChooseYear(2024);
  EXPECT_EQ(ShownEvents(), (Events{{CellOf("2024-02-29"), " Leap "}}));
  ChooseYear(2023);
  EXPECT_EQ(ShownEvents(), Events());
  ChooseYear(2028);
  EXPECT_EQ(ShownEvents(), Events());
}

TEST_F(RemindersEvents, DatesBesideTheMonthDoNotShowInTheirCells)
{
  AddEvent("2025-12-31", "Eve");
  AddEvent("2026-01-01", "New Year");
  AddEvent("2026-02-01", "February");
  OpenOn(QDate(2026, 1, 10));
  EXPECT_EQ(ShownEvents(), (Events{{CellOf("2026-01-01"), " New Year "}}));
  Previous();
  EXPECT_EQ(ShownEvents(), (Events{{CellOf("2025-12-31"), " Eve "}}));
}

TEST_F(RemindersEvents, AnEventOnTheLastDayDoesNotShowInTheYearChosenNext)
{
  AddEvent("2026-08-31", "Last");
  OpenOn(QDate(2026, 8, 10));
  EXPECT_EQ(ShownEvents(), (Events{{CellOf("2026-08-31"), " Last "}}));
  ChooseYear(2027);
  ExpectMonth(2027, 8);
  EXPECT_EQ(ShownEvents(), Events());
  ChooseYear(2026);
  EXPECT_EQ(ShownEvents(), (Events{{CellOf("2026-08-31"), " Last "}}));
}

TEST_F(RemindersEvents, BirthdaysAndAnniversariesDoNotShow)
{
  folder.Execute("INSERT INTO People (FirstName, LastName, BirthMonth, BirthDate) VALUES ('Ann','Wood','May','12')");
  folder.Execute(
      "INSERT INTO Ann (Spouse1ID, Spouse2ID, Spouse1First, Spouse2First, AnnMonth, AnnDate) VALUES "
      "(1, 2, 'Ann', 'Bob', 'May', '12')");
  Open();
  EXPECT_EQ(ShownEvents(), Events());
}

TEST_F(RemindersEvents, ARowWhoseMonthDoesNotFitItsDateDoesNotShow)
{
  AddEvent("2026-05-12", "Misfit", {}, {}, "June");
  AddEvent("2026-05-13", "Nameless", {}, {}, QVariant());
  AddEvent("2026-05-14", "Right");
  Open();
  EXPECT_EQ(ShownEvents(), (Events{{18, " Right "}}));
  Next();
  EXPECT_EQ(ShownEvents(), Events());
}

TEST_F(RemindersEvents, ARowOfTheMonthDatedBeforeItsFirstShowsInThatCell)
{
  AddEvent("2026-05-31", "Early", {}, {}, "June");
  OpenOn(QDate(2026, 6, 10));
  EXPECT_FALSE(IsShown(Day(0)));
  EXPECT_EQ(ShownEvents(), (Events{{0, " Early "}}));
}

TEST_F(RemindersEvents, DamagedRowsDoNoHarm)
{
  AddEvent("2026-05-12", QVariant());
  AddEvent("2026-05-12", QVariant(), "10:00:00");
  AddEvent({}, "Dateless", {}, {}, "May");
  AddEvent({}, QVariant(), {}, {}, QVariant());
  AddEvent("no date", "Bad", {}, {}, "May");
  AddEvent("2026-05-13", "Right", "11:00:00");
  AddEvent("2026-05-14", "Odd", "noon");
  Open();
  EXPECT_EQ(ShownEvents(), (Events{{16, "  |  10:00am"}, {17, " Right 11:00am"}, {18, " Odd "}}));
}

TEST_F(RemindersEvents, EveryKindOfTitleShowsAsItIs)
{
  const QStringList titles = {"O'Neil", "\"A\" & B", "<b>x</b>", "%1", QStringLiteral("Zoë 👩‍👩‍👧"),
                              "a|b",    "   "};
  for (const QString& title : titles) {
    AddEvent("2026-05-12", title);
  }
  Open();
  ASSERT_EQ(Cell(16).ListCount(), titles.size());
  for (int i = 0; i < titles.size(); ++i) {
    EXPECT_EQ(Cell(16).List(i).toStdString(), (" " + titles[i] + " ").toStdString());
  }
}

TEST_F(RemindersEvents, AnotherMonthTakesTheEventsAway)
{
  AddEvent("2026-05-12", "May");
  AddEvent("2026-06-02", "June");
  Open();
  Next();
  EXPECT_EQ(ShownEvents(), (Events{{CellOf("2026-06-02"), " June "}}));
  EXPECT_EQ(Cell(16).ListCount(), 0);
  ChooseMonth(7);
  EXPECT_EQ(ShownEvents(), Events());
  ChooseMonth(5);
  EXPECT_EQ(ShownEvents(), (Events{{16, " May "}}));
}

TEST_F(RemindersEvents, EveryDrawingReadsTheDatabaseAnew)
{
  Open();
  AddEvent("2026-05-12", "New");
  Next();
  Previous();
  EXPECT_EQ(ShownEvents(), (Events{{16, " New "}}));
  folder.Execute("DELETE FROM Reminders");
  ChooseMonth(5);
  EXPECT_EQ(ShownEvents(), Events());
}

TEST_F(RemindersEvents, AllTheDaysOfAFullMonth)
{
  Events expected;
  for (int day = 1; day <= 31; ++day) {
    const QDate date(2026, 8, day);
    const QString text = date.toString(Qt::ISODate);
    AddEvent(text, QStringLiteral("Two %1").arg(day), "10:00:00");
    AddEvent(text, QStringLiteral("One %1").arg(day));
    expected[day + 5] = QStringLiteral(" One %1 | Two %1 10:00am").arg(day).toStdString();
  }
  OpenOn(QDate(2026, 8, 1));
  EXPECT_EQ(ShownEvents(), expected);
}

TEST_F(RemindersEvents, AMonthIsDrawnWithoutReadingTheOthers)
{
  const auto draw = [&] {
    const StatementCounter counter(folder.DatabasePath());
    ChooseMonth(6);
    EXPECT_EQ(ShownEvents().size(), 31U) << "31 May has a cell of this grid, and the rows all say June";
    EXPECT_EQ(counter.Scanned, 0);
    return counter.Rows;
  };
  Open();
  folder.Execute(
      "INSERT INTO Reminders (Month, Date, Event) WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n "
      "WHERE i < 19999) SELECT 'June', date('1990-01-01', '+' || i || ' days'), 'Event ' || i FROM n");
  const int among = draw();
  folder.Execute("DELETE FROM Reminders WHERE Date NOT BETWEEN '2026-05-31' AND '2026-06-30'");
  const int alone = draw();
  EXPECT_EQ(among, alone);
  EXPECT_GE(alone, 31);
}

TEST_F(RemindersEvents, ALockedDatabaseKeepsThePageFromLoading)
{
  AddEvent("2026-05-12", "Dentist");
  const std::vector<QVariantList> before = Rows();
  {
    const DatabaseTaken taken(folder.DatabasePath());
    EXPECT_EQ(ErrorOf([] { Command::Run([] { static_cast<void>(Forms::Load("frmReminders")); }); }),
              StoreError::kLocked);
  }
  EXPECT_FALSE(IsOpen());
  DropUnloaded();
  EXPECT_EQ(Rows(), before);
  Open();
  ExpectMonth(2026, 5);
  EXPECT_EQ(ShownEvents(), (Events{{16, " Dentist "}}));
}

TEST_F(RemindersEvents, ALockedDatabaseEndsAStepAndHarmsNothing)
{
  AddEvent("2026-05-12", "Dentist");
  AddEvent("2026-06-12", "Picnic");
  const std::vector<QVariantList> before = Rows();
  Open();
  WhileTaken([] { Next(); });
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(Rows(), before);
  const QDate shown(modCalVariables::CalYear, modCalVariables::CalMonth, 1);
  ASSERT_TRUE(shown == QDate(2026, 5, 1) || shown == QDate(2026, 6, 1));
  Next();
  ExpectMonth(shown.addMonths(1).year(), shown.addMonths(1).month());
  ChooseMonth(6);
  EXPECT_EQ(ShownEvents(), (Events{{CellOf("2026-06-12"), " Picnic "}}));
}

TEST_F(RemindersEvents, ALockedDatabaseEndsAClickOnAnEventAndHarmsNothing)
{
  AddEvent("2026-05-12", "Dentist", {}, "Bring the card");
  const std::vector<QVariantList> before = Rows();
  Open();
  WhileTaken([] { ClickEvent(16); });
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(Rows(), before);
  ClickEvent(16);
  EXPECT_TRUE(DetailsShown());
  EXPECT_EQ(Details(), "Dentist - Bring the card");
  ExpectMonth(2026, 5);
}
