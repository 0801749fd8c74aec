// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

using namespace PeopleTexts;

namespace {

class TalliesOfTheEditor : public PeopleTest
{
protected:
  TalliesOfTheEditor()
  {
    for (const char* table : {"TotalBirthdays", "TotalAnn", "TotalAge"}) {
      folder.Execute(QStringLiteral("UPDATE %1 SET Total = 7").arg(table));
    }
  }

  // What is not 0, as "key total" in the order of the table.
  [[nodiscard]] std::string Totals(const char* table, const char* key) const
  {
    std::string text;
    for (const QVariantList& row :
         folder.Rows(QStringLiteral("SELECT \"%2\", Total FROM %1 WHERE Total <> 0 ORDER BY rowid").arg(table, key))) {
      text += (text.empty() ? "" : ", ") + row[0].toString().toStdString() + " " + row[1].toString().toStdString();
    }
    return text;
  }
  [[nodiscard]] std::string Birthdays() const { return Totals("TotalBirthdays", "Month"); }
  [[nodiscard]] std::string Anniversaries() const { return Totals("TotalAnn", "Month"); }
  [[nodiscard]] std::string Ages() const { return Totals("TotalAge", "Age"); }
};

}

TEST_F(TalliesOfTheEditor, AreLeftAloneWhileThePageIsOpen)
{
  AddPerson("Ann", "Adams", {{"BirthMonth", "May"}});
  Open();
  Click(kEdit);
  Click(kFinishEdit);
  EXPECT_EQ(folder.Value("SELECT min(Total) FROM TotalBirthdays"), 7);
  EXPECT_EQ(folder.Value("SELECT min(Total) FROM TotalAnn"), 7);
  EXPECT_EQ(folder.Value("SELECT min(Total) FROM TotalAge"), 7);
}

TEST_F(TalliesOfTheEditor, OfNobodyAreAllZero)
{
  Open();
  Leave();
  EXPECT_EQ(Birthdays(), "");
  EXPECT_EQ(Anniversaries(), "");
  EXPECT_EQ(Ages(), "");
  EXPECT_EQ(folder.Value("SELECT count(*) FROM TotalBirthdays"), 12);
  EXPECT_EQ(folder.Value("SELECT count(*) FROM TotalAnn"), 12);
  EXPECT_EQ(folder.Value("SELECT count(*) FROM TotalAge"), 10);
}

TEST_F(TalliesOfTheEditor, WithoutACoupleTheAnniversariesAreAllZero)
{
  AddPerson("Ann", "Adams", {{"AnnMonth", "May"}});
  Open();
  Leave();
  EXPECT_EQ(Anniversaries(), "");
}

TEST_F(TalliesOfTheEditor, CountEveryMonth)
{
  const QStringList months = {"January", "February", "March",     "April",   "May",      "June",
                              "July",    "August",   "September", "October", "November", "December"};
  for (const QString& month : months) {
    AddPerson("A", month, {{"BirthMonth", month}});
    folder.Execute("INSERT INTO Ann (AnnMonth) VALUES (?)", {month});
  }
  AddPerson("A", "Second", {{"BirthMonth", "March"}});
  AddPerson("A", "None");
  AddPerson("A", "Odd", {{"BirthMonth", "Marc"}});
  Open();
  Leave();
  const std::string once = "Jan 1, Feb 1, Mar 1, Apr 1, May 1, Jun 1, Jul 1, Aug 1, Sep 1, Oct 1, Nov 1, Dec 1";
  EXPECT_EQ(Anniversaries(), once);
  EXPECT_EQ(Birthdays(), "Jan 1, Feb 1, Mar 2, Apr 1, May 1, Jun 1, Jul 1, Aug 1, Sep 1, Oct 1, Nov 1, Dec 1");
}

TEST_F(TalliesOfTheEditor, CountAgesByTheCalendarYear)
{
  for (const char* year : {"2026", "2017", "2016", "2007", "1937", "1936", "1900", "2050"}) {
    AddPerson("A", year, {{"BirthYear", year}, {"BirthMonth", "December"}});
  }
  Open();
  Leave();
  EXPECT_EQ(Ages(), "<10 3, 10-19 2, 80-89 1, >89 2");
}

TEST_F(TalliesOfTheEditor, PutEveryAgeIntoOneClass)
{
  for (int age = 5; age < 100; age += 10) {
    AddPerson("A", QString::number(age), {{"BirthYear", QString::number(2026 - age)}});
  }
  Open();
  Leave();
  EXPECT_EQ(Ages(), "<10 1, 10-19 1, 20-29 1, 30-39 1, 40-49 1, 50-59 1, 60-69 1, 70-79 1, 80-89 1, >89 1");
}

TEST_F(TalliesOfTheEditor, AMonthWithoutAYearCountsAsABirthdayOnly)
{
  AddPerson("Ann", "Adams", {{"BirthMonth", "May"}});
  Open();
  Leave();
  EXPECT_EQ(Birthdays(), "May 1");
  EXPECT_EQ(Ages(), "");
}

TEST_F(TalliesOfTheEditor, CountWhatWasJustAdded)
{
  AddPerson("Ann", "Adams", {{"BirthMonth", "May"}, {"BirthYear", "1980"}});
  Open();
  Click(kAdd);
  Type("txtFirst", "Dan");
  Type("txtLast", "Dunn");
  Pick("cboSex", "Male");
  Pick("cboBirthMonth", "May");
  Pick("cboBirthYear", "2020");
  Click(kFinishAdd);
  Click(kMain);
  EXPECT_EQ(Birthdays(), "May 2");
  EXPECT_EQ(Ages(), "<10 1, 40-49 1");
}

TEST_F(TalliesOfTheEditor, NoLongerCountTheCoupleOfADeletedPerson)
{
  const int ann = AddPerson("Ann", "Adams", {{"BirthMonth", "May"}});
  AddCouple(ann, AddPerson("Bob", "Brown"));
  Open();
  boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, "Delete Record");
  boxes.Expect(kMarriedQuestion, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok,
               "Delete anniversary information");
  Click(kDelete);
  Click(kAnniversary);
  EXPECT_EQ(Anniversaries(), "");
  EXPECT_EQ(Birthdays(), "");
}

// What was counted before the failure stays.
TEST_F(TalliesOfTheEditor, AYearThatIsNoNumberStopsTheCountOfAges)
{
  AddPerson("Ann", "Adams", {{"BirthMonth", "May"}, {"BirthYear", "19x0"}});
  folder.Execute("INSERT INTO Ann (AnnMonth) VALUES ('June')");
  Open();
  try {
    Leave();
    FAIL() << "the year was taken";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), ErrorNumber::kTypeMismatch);
  }
  EXPECT_EQ(Anniversaries(), "Jun 1");
  EXPECT_EQ(Birthdays(), "May 1");
  EXPECT_EQ(Ages(), "");
}

TEST_F(TalliesOfTheEditor, AreWrittenOneAfterTheOther)
{
  folder.Execute("CREATE TABLE Written (Tally TEXT)");
  for (const QString tally : {"TotalBirthdays", "TotalAnn", "TotalAge"}) {
    folder.Execute("CREATE TRIGGER Write" + tally + " AFTER UPDATE ON " + tally +
                   " BEGIN INSERT INTO Written VALUES ('" + tally + "'); END");
  }
  Open();
  Leave();
  QStringList order;
  for (const QVariantList& row : folder.Rows("SELECT Tally FROM Written ORDER BY rowid")) {
    if (order.isEmpty() || order.last() != row[0].toString()) {
      order.append(row[0].toString());
    }
  }
  EXPECT_EQ(order.join(' ').toStdString(), "TotalAnn TotalBirthdays TotalAge");
}
