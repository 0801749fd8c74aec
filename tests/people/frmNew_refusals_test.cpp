// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

using namespace PeopleTexts;

namespace {

const QString kTooLong = QString(31, 'x');
const QString kNotYet = QStringLiteral("That date has not yet occurred. Please try again.");

// A month, a day and a year, and the message that refuses them; none if they pass.
struct DateCase
{
  const char* month;
  const char* day;
  const char* year;
  const char* message;
};

class EntryRefusals : public PeopleTest
{
protected:
  // Finishes the addition or the edit that is open.
  static void Finish() { Click(IsShown("fraAdd") ? kFinishAdd : kFinishEdit); }

  void ExpectRefused(const QString& message, const std::string& focus)
  {
    boxes.Expect(message);
    Finish();
    EXPECT_TRUE(IsShown("fraAdd") || IsShown("fraEdit"));
    EXPECT_EQ(Focus(), focus) << message.toStdString();
  }

  void ExpectTaken()
  {
    Finish();
    EXPECT_FALSE(IsShown("fraAdd") || IsShown("fraEdit"));
  }

  // A person with that birth date, also one that no list has, in an edit.
  void OpenWithDate(const DateCase& date)
  {
    folder.Execute("DELETE FROM People");
    AddPerson("Ann", "Adams", {{"BirthMonth", date.month}, {"BirthDate", date.day}, {"BirthYear", date.year}});
    Open();
    Click(kEdit);
    Control("txtCity").setFocus();
  }

  void CheckDates(const std::vector<DateCase>& cases)
  {
    for (const DateCase& date : cases) {
      SCOPED_TRACE(std::string(date.month) + "/" + date.day + "/" + date.year);
      OpenWithDate(date);
      if (*date.message == '\0') {
        ExpectTaken();
      } else {
        ExpectRefused(date.message, "txtCity");
      }
      EXPECT_EQ(Shown("cboBirthMonth"), date.month);
      EXPECT_EQ(Shown("cboBirthDate"), date.day);
      EXPECT_EQ(Shown("cboBirthYear"), date.year);
      folder.Execute("UPDATE People SET BirthYear=NULL");
      Leave();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }
};

}

TEST_F(EntryRefusals, ComeInTheirOrderAndSetTheFocus)
{
  AddPerson("Zoe", "Zimmer");
  Open();
  Click(kAdd);
  Paste("txtSecondAddress", kTooLong);
  for (const char* box : {"txtCity", "txtProv", "txtCountry", "txtPostal"}) {
    Paste(box, kTooLong);
  }
  Pick("cboBirthMonth", "April");
  Pick("cboBirthDate", "31");
  Control("txtEmail").setFocus();
  ExpectRefused("A first name must be entered, or click Cancel", "txtFirst");
  Paste("txtFirst", kTooLong);
  ExpectRefused("A last name must be entered, or click Cancel", "txtLast");
  Paste("txtLast", kTooLong);
  ExpectRefused("A gender must be entered, or click Cancel", "cboSex");
  Pick("cboSex", "Male");
  ExpectRefused("Please fill in Address 1 before using Address 2", "txtStreet");
  Paste("txtStreet", kTooLong);
  const std::pair<const char*, const char*> lengths[] = {{"txtFirst", "first name"},
                                                         {"txtLast", "last name"},
                                                         {"txtStreet", "street address"},
                                                         {"txtSecondAddress", "street address"},
                                                         {"txtCity", "city"},
                                                         {"txtProv", "state or province"},
                                                         {"txtCountry", "country"},
                                                         {"txtPostal", "zip or postal code"}};
  for (const auto& [box, word] : lengths) {
    Control("txtEmail").setFocus();
    ExpectRefused(QStringLiteral("You cannot enter more than 30 characters for a %1").arg(word), "txtEmail");
    Paste(box, kTooLong.left(30));
  }
  Control("txtEmail").setFocus();
  ExpectRefused("April 31 is not valid. Please try again.", "txtEmail");
  Pick("cboBirthDate", "30");
  EXPECT_EQ(People().size(), 1U);
  ExpectTaken();
  EXPECT_EQ(People().size(), 2U);
}

TEST_F(EntryRefusals, AreTheSameInAnEdit)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  Empty("txtFirst");
  ExpectRefused("A first name must be entered, or click Cancel", "txtFirst");
  Type("txtFirst", "Ann");
  Empty("txtLast");
  ExpectRefused("A last name must be entered, or click Cancel", "txtLast");
  Paste("txtLast", kTooLong);
  Control("txtCity").setFocus();
  ExpectRefused("You cannot enter more than 30 characters for a last name", "txtCity");
  EXPECT_EQ(Shown("txtLast"), kTooLong.toStdString());
  EXPECT_EQ(Stored(1, "LastName"), "Adams");
}

TEST_F(EntryRefusals, TheBlankNameIsAMissingOne)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  Type("txtFirst", "   ");
  ExpectRefused("A first name must be entered, or click Cancel", "txtFirst");
  EXPECT_EQ(Shown("txtFirst"), "   ");
  Type("txtFirst", "Ann");
  Type("txtLast", " ");
  ExpectRefused("A last name must be entered, or click Cancel", "txtLast");
}

TEST_F(EntryRefusals, ASecondAddressOfBlanksIsEmptied)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  Type("txtSecondAddress", "  ");
  ExpectTaken();
  EXPECT_EQ(Shown("txtSecondAddress"), "");
  EXPECT_EQ(Stored(1, "SecondAddress"), "NULL");
}

TEST_F(EntryRefusals, ASecondAddressOfBlanksIsEmptiedAlsoBeforeALaterRefusal)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  Type("txtSecondAddress", "  ");
  Paste("txtCity", kTooLong);
  ExpectRefused("You cannot enter more than 30 characters for a city", "txtCity");
  EXPECT_EQ(Shown("txtSecondAddress"), "");
}

TEST_F(EntryRefusals, ASecondAddressNeedsTheFirst)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  Type("txtSecondAddress", "Flat 2");
  ExpectRefused("Please fill in Address 1 before using Address 2", "txtStreet");
  Type("txtStreet", " ");
  Control("txtCity").setFocus();
  ExpectRefused("Please fill in Address 1 before using Address 2", "txtStreet");
  EXPECT_EQ(Shown("txtStreet"), " ");
  Type("txtStreet", "1 High St");
  ExpectTaken();
}

TEST_F(EntryRefusals, PhonesAndNotesHaveNoLimit)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  for (const char* box : {"txtPhone", "txtMobile", "txtBus", "txtEmail", "txtNotes"}) {
    Paste(box, kTooLong);
  }
  ExpectTaken();
  EXPECT_EQ(Stored(1, "Email"), kTooLong.toStdString());
}

TEST_F(EntryRefusals, ADayMustBeOneOfItsMonth)
{
  CheckDates({
      {"February", "30", "", "February 30 is not valid. Please try again."},
      {"February", "31", "2000", "February 31 is not valid. Please try again."},
      {"April", "31", "", "April 31 is not valid. Please try again."},
      {"April", "31", "1990", "April 31 is not valid. Please try again."},
      {"June", "31", "", "June 31 is not valid. Please try again."},
      {"September", "31", "", "September 31 is not valid. Please try again."},
      {"November", "31", "", "November 31 is not valid. Please try again."},
      {"April", "30", "", ""},
      {"January", "31", "1990", ""},
      {"December", "31", "", ""},
  });
}

TEST_F(EntryRefusals, The29thOfFebruaryNeedsAFourthYear)
{
  CheckDates({
      {"February", "29", "", ""},
      {"February", "29", "2000", ""},
      {"February", "29", "1900", ""},
      {"February", "29", "1999", "February 29, 1999 is not a valid date. Please try again."},
      {"February", "28", "1999", ""},
      {"February", "29", "2050", "February 29, 2050 is not a valid date. Please try again."},
  });
}

TEST_F(EntryRefusals, TextsThatNoListHasAreInvalid)
{
  CheckDates({
      {"Januar", "", "", "Januar is not valid. Please try again."},
      {"january", "", "", "january is not valid. Please try again."},
      {"Smarch", "32", "1800", "Smarch is not valid. Please try again."},
      {"", "x", "y", "x is an invalid value. Please try again."},
      {"", "99", "y", "y is an invalid value. Please try again."},
      {"", "0", "", "0 is an invalid value. Please try again."},
      {"May", "-1", "", "-1 is an invalid value. Please try again."},
      {"", "32", "1800", "32 is an invalid value. Please try again."},
      {"", "", "1899", "1899 is an invalid value. Please try again."},
      {"", "", "2051", "2051 is an invalid value. Please try again."},
      {"", "", "19", "19 is an invalid value. Please try again."},
      {"", "31.4", "", ""},
      {"", "31.6", "", "31.6 is an invalid value. Please try again."},
  });
}

TEST_F(EntryRefusals, TheFutureIsRefused)
{
  const std::string notYet = kNotYet.toStdString();
  CheckDates({
      {"May", "5", "2026", ""},
      {"May", "6", "2026", notYet.c_str()},
      {"May", "4", "2026", ""},
      {"June", "1", "2026", notYet.c_str()},
      {"December", "31", "2025", ""},
      {"January", "1", "2027", notYet.c_str()},
      {"", "", "2050", notYet.c_str()},
  });
}

TEST_F(EntryRefusals, PartsOfADatePass)
{
  const std::string notYet = kNotYet.toStdString();
  CheckDates({
      {"", "", "", ""},
      {"December", "31", "", ""},
      {"December", "", "", ""},
      {"", "31", "", ""},
      {"", "", "2026", ""},
      {"", "", "2027", notYet.c_str()},
      {"May", "", "2026", ""},
      {"June", "", "2026", notYet.c_str()},
      {"June", "", "2025", ""},
      {"January", "", "2027", notYet.c_str()},
      {"", "31", "2026", ""},
      {"", "1", "2027", notYet.c_str()},
  });
}

TEST_F(EntryRefusals, PartsOfADateAreStoredAsTheyAre)
{
  AddPerson("Ann", "Adams", {{"BirthMonth", "May"}, {"BirthDate", "9"}, {"BirthYear", "1980"}});
  Open();
  Click(kEdit);
  Press("cboBirthDate", Qt::Key_End);
  Press("cboBirthDate", Qt::Key_Backspace);
  ExpectTaken();
  EXPECT_EQ(Dump("SELECT BirthMonth, BirthDate, BirthYear FROM People"), std::vector<std::string>{"May|NULL|1980|"});
}

TEST_F(EntryRefusals, AMonthShortenedByBackspaceIsRepeated)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  Pick("cboBirthMonth", "January");
  Press("cboBirthMonth", Qt::Key_End);
  Press("cboBirthMonth", Qt::Key_Backspace);
  ExpectRefused("Januar is not valid. Please try again.", Focus());
  EXPECT_EQ(Shown("cboBirthMonth"), "Januar");
}

TEST_F(EntryRefusals, AYearShortenedByBackspaceIsRepeated)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  Pick("cboBirthYear", "1985");
  Press("cboBirthYear", Qt::Key_End);
  Press("cboBirthYear", Qt::Key_Backspace);
  Press("cboBirthYear", Qt::Key_Backspace);
  ExpectRefused("19 is an invalid value. Please try again.", Focus());
}

TEST_F(EntryRefusals, TodayIsAskedAtTheFinish)
{
  AddPerson("Ann", "Adams", {{"BirthMonth", "May"}, {"BirthDate", "6"}, {"BirthYear", "2026"}});
  Open();
  Click(kEdit);
  Control("txtCity").setFocus();
  ExpectRefused(kNotYet, "txtCity");
  Clock::StopOn(QDate(2026, 5, 6));
  ExpectTaken();
}
