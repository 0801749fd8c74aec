// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/Occasions.h"

#include "platform/Months.h"
#include "store/DBEngine.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace {

class OccasionsTest : public testing::Test
{
protected:
  void AddPerson(const QVariant& month, const QVariant& day, const QString& firstName = "Ann",
                 const QVariant& year = "1970") const
  {
    folder.Execute(
        "INSERT INTO People (FirstName, LastName, Gender, BirthMonth, BirthDate, BirthYear) "
        "VALUES (?, 'Lee', 'Female', ?, ?, ?)",
        {firstName, month, day, year});
  }

  void AddCouple(const QVariant& month, const QVariant& day, const QString& spouse1 = "Ann",
                 const QVariant& year = "1990") const
  {
    folder.Execute(
        "INSERT INTO Ann (Spouse1First, Spouse1Last, Spouse2First, Spouse2Last, AnnMonth, AnnDate, AnnYear) "
        "VALUES (?, 'Lee', 'Bob', 'Ray', ?, ?, ?)",
        {spouse1, month, day, year});
  }

  std::string BirthdayEntries(const QString& month) { return Joined(Occasions::BirthdaysOf(database, month)); }

  std::string AnniversaryEntries(const QString& month) { return Joined(Occasions::AnniversariesOf(database, month)); }

  template <typename Rows>
  static std::string Joined(const Rows& rows)
  {
    QStringList entries;
    for (const auto& row : rows) {
      entries.append(Occasions::Entry(row));
    }
    return entries.join(u'|').toStdString();
  }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

std::string BirthdayEntry(const QVariant& day)
{
  return Occasions::Entry(Occasions::Birthday{1, "Ann", "Lee", "Female", "May", day, {}}).toStdString();
}

std::string AnniversaryEntry(const QVariant& day)
{
  return Occasions::Entry(Occasions::Anniversary{1, 2, 3, "Ann", "Lee", "Bob", "Ray", "May", day, {}}).toStdString();
}

}

TEST_F(OccasionsTest, BirthdayIsReadWhole)
{
  folder.Execute(
      "INSERT INTO People (PeopleID, FirstName, LastName, Gender, BirthMonth, BirthDate, BirthYear) "
      "VALUES (70000, 'Jim', 'O''Hara', 'Male', 'May', '9', '1970')");
  const auto rows = Occasions::BirthdaysOf(database, "May");
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].peopleID, 70000);
  EXPECT_EQ(rows[0].firstName, "Jim");
  EXPECT_EQ(rows[0].lastName, "O'Hara");
  EXPECT_EQ(rows[0].gender, "Male");
  EXPECT_EQ(rows[0].month, "May");
  EXPECT_EQ(rows[0].date, QVariant("9"));
  EXPECT_EQ(rows[0].year, QVariant("1970"));
}

TEST_F(OccasionsTest, AnniversaryIsReadWhole)
{
  folder.Execute("INSERT INTO Ann VALUES (7, 10, 'Ann', 'Lee', 20, 'Bob', 'Ray', 'June', '21', '1990')");
  const auto rows = Occasions::AnniversariesOf(database, "June");
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].annID, 7);
  EXPECT_EQ(rows[0].spouse1ID, 10);
  EXPECT_EQ(rows[0].spouse2ID, 20);
  EXPECT_EQ(rows[0].spouse1First, "Ann");
  EXPECT_EQ(rows[0].spouse1Last, "Lee");
  EXPECT_EQ(rows[0].spouse2First, "Bob");
  EXPECT_EQ(rows[0].spouse2Last, "Ray");
  EXPECT_EQ(rows[0].month, "June");
  EXPECT_EQ(rows[0].date, QVariant("21"));
  EXPECT_EQ(rows[0].year, QVariant("1990"));
}

TEST_F(OccasionsTest, NullAndEmptyPartsAreNull)
{
  folder.Execute("INSERT INTO People (BirthMonth) VALUES ('May')");
  folder.Execute("INSERT INTO People (BirthMonth, BirthDate, BirthYear) VALUES ('May', '', '')");
  folder.Execute("INSERT INTO Ann (AnnMonth) VALUES ('May')");
  folder.Execute("INSERT INTO Ann (AnnMonth, AnnDate, AnnYear) VALUES ('May', '', '')");
  const auto birthdays = Occasions::BirthdaysOf(database, "May");
  ASSERT_EQ(birthdays.size(), 2U);
  for (const Occasions::Birthday& row : birthdays) {
    EXPECT_FALSE(row.date.isValid());
    EXPECT_FALSE(row.year.isValid());
    EXPECT_EQ(row.firstName + row.lastName + row.gender, "");
  }
  const auto anniversaries = Occasions::AnniversariesOf(database, "May");
  ASSERT_EQ(anniversaries.size(), 2U);
  for (const Occasions::Anniversary& row : anniversaries) {
    EXPECT_FALSE(row.date.isValid());
    EXPECT_FALSE(row.year.isValid());
    EXPECT_EQ(row.spouse1ID, 0);
    EXPECT_EQ(row.spouse1First + row.spouse2Last, "");
  }
}

TEST_F(OccasionsTest, WithoutRowsNoMonthHasAny)
{
  for (const QLatin1StringView month : kMonthNames) {
    EXPECT_EQ(BirthdayEntries(month), "") << month.data();
    EXPECT_EQ(AnniversaryEntries(month), "") << month.data();
  }
}

TEST_F(OccasionsTest, EveryMonthHasItsOwn)
{
  for (const QLatin1StringView month : kMonthNames) {
    AddPerson(QString(month), "10");
    AddCouple(QString(month), "11");
  }
  for (const QLatin1StringView month : kMonthNames) {
    const std::string name = month.data();
    EXPECT_EQ(BirthdayEntries(month), name + " 10 - Ann Lee");
    EXPECT_EQ(AnniversaryEntries(month), name + " 11 - Ann and Bob");
  }
}

TEST_F(OccasionsTest, AMonthWithPeopleMayHaveNoCouples)
{
  AddPerson("May", "10");
  AddCouple("June", "11");
  EXPECT_EQ(BirthdayEntries("May"), "May 10 - Ann Lee");
  EXPECT_EQ(AnniversaryEntries("May"), "");
  EXPECT_EQ(BirthdayEntries("June"), "");
  EXPECT_EQ(AnniversaryEntries("June"), "June 11 - Ann and Bob");
}

TEST_F(OccasionsTest, WithoutAMonthNobodyIsListed)
{
  AddPerson({}, {}, "Ann", {});
  AddPerson("", "", "Bob", "");
  AddCouple({}, {});
  AddPerson("May", "3", "Cid", {});
  EXPECT_EQ(BirthdayEntries("May"), "May  3 - Cid Lee");
  EXPECT_EQ(BirthdayEntries("January"), "");
  EXPECT_EQ(AnniversaryEntries("January"), "");
}

TEST_F(OccasionsTest, DaysStandInTextOrder)
{
  for (int day = 31; day > 0; --day) {
    AddPerson("May", QString::number(day));
    AddCouple("May", QString::number(day));
  }
  AddPerson("May", {});
  AddCouple("May", {});
  const QStringList order =
      QString("|1|10|11|12|13|14|15|16|17|18|19|2|20|21|22|23|24|25|26|27|28|29|3|30|31|4|5|6|7|8|9").split(u'|');
  QStringList birthdays;
  for (const Occasions::Birthday& row : Occasions::BirthdaysOf(database, "May")) {
    birthdays.append(row.date.toString());
  }
  EXPECT_EQ(birthdays, order);
  QStringList anniversaries;
  for (const Occasions::Anniversary& row : Occasions::AnniversariesOf(database, "May")) {
    anniversaries.append(row.date.toString());
  }
  EXPECT_EQ(anniversaries, order);
}

TEST_F(OccasionsTest, TwoOfOneDayKeepTheirKeys)
{
  AddPerson("May", "9", "Ann");
  AddPerson("May", "9", "Ann");
  const auto rows = Occasions::BirthdaysOf(database, "May");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(Occasions::Entry(rows[0]), Occasions::Entry(rows[1]));
  EXPECT_EQ(rows[0].peopleID + 1, rows[1].peopleID);
}

// The store finds "may" for "May", the walk then compares exactly.
TEST_F(OccasionsTest, BirthdaysOfAMonthInOtherLettersArePassedOver)
{
  AddPerson("may", "1", "Ann");
  AddPerson("May", "2", "Bob");
  AddPerson("MAY", "3", "Cid");
  AddPerson("May", "4", "Dan");
  AddPerson("may", "5", "Eve");
  EXPECT_EQ(BirthdayEntries("May"), "May  2 - Bob Lee|May  4 - Dan Lee");
  EXPECT_EQ(BirthdayEntries("may"), "may  1 - Ann Lee|may  5 - Eve Lee");
  EXPECT_EQ(BirthdayEntries("mAY"), "");
}

TEST_F(OccasionsTest, AnniversariesEndAtAMonthInOtherLetters)
{
  AddCouple("May", "1", "Ann");
  AddCouple("May", "2", "Bea");
  AddCouple("may", "3", "Cid");
  AddCouple("May", "4", "Dan");
  EXPECT_EQ(AnniversaryEntries("May"), "May 1 - Ann and Bob|May 2 - Bea and Bob");
  EXPECT_EQ(AnniversaryEntries("may"), "");
}

TEST_F(OccasionsTest, RowsChangedElsewhereAreSeen)
{
  AddPerson("May", "2", "Ann");
  AddCouple("May", "2", "Ann");
  EXPECT_EQ(BirthdayEntries("May"), "May  2 - Ann Lee");
  EXPECT_EQ(AnniversaryEntries("May"), "May 2 - Ann and Bob");
  AddPerson("May", "1", "Bob");
  folder.Execute("UPDATE Ann SET AnnMonth='June'");
  EXPECT_EQ(BirthdayEntries("May"), "May  1 - Bob Lee|May  2 - Ann Lee");
  EXPECT_EQ(AnniversaryEntries("May"), "");
}

TEST(OccasionsEntry, BirthdayBelowTenHasTwoBlanks)
{
  for (int day = 1; day <= 31; ++day) {
    const std::string number = std::to_string(day);
    EXPECT_EQ(BirthdayEntry(QString::number(day)), "May " + std::string(day < 10 ? " " : "") + number + " - Ann Lee");
    EXPECT_EQ(AnniversaryEntry(QString::number(day)), "May " + number + " - Ann and Bob");
  }
}

TEST(OccasionsEntry, TakesDaysOfEveryOtherShape)
{
  const struct
  {
    QVariant day;
    const char* birthday;
    const char* anniversary;
  } kCases[] = {
      {QVariant(), "May  - Ann Lee", "May  - Ann and Bob"},     {"", "May  - Ann Lee", "May  - Ann and Bob"},
      {" 9", "May   9 - Ann Lee", "May  9 - Ann and Bob"},      {"09", "May  09 - Ann Lee", "May 09 - Ann and Bob"},
      {"9.9", "May  9.9 - Ann Lee", "May 9.9 - Ann and Bob"},   {"-12", "May  -12 - Ann Lee", "May -12 - Ann and Bob"},
      {"1e30", "May 1e30 - Ann Lee", "May 1e30 - Ann and Bob"}, {"x", "May x - Ann Lee", "May x - Ann and Bob"},
      {"9th", "May 9th - Ann Lee", "May 9th - Ann and Bob"},
  };
  for (const auto& one : kCases) {
    EXPECT_EQ(BirthdayEntry(one.day), one.birthday);
    EXPECT_EQ(AnniversaryEntry(one.day), one.anniversary);
  }
}

TEST(OccasionsEntry, JoinsMissingNamesAsNothing)
{
  EXPECT_EQ(Occasions::Entry(Occasions::Birthday{1, "Ann", {}, {}, "May", "9", {}}), "May  9 - Ann ");
  EXPECT_EQ(Occasions::Entry(Occasions::Birthday{1, {}, "Lee", {}, "May", "10", {}}), "May 10 -  Lee");
  EXPECT_EQ(Occasions::Entry(Occasions::Anniversary{1, 2, 3, {}, "Lee", {}, "Ray", "May", "9", {}}), "May 9 -  and ");
}
