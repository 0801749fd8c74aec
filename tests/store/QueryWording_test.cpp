// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Queries.h"

#include <gtest/gtest.h>
// clang-format off

namespace {

struct Wording
{
  const QString& query;
  const char* text;
};

const Wording kWordings[] = {
    {Queries::kPeopleByFirstName,
     R"sql(SELECT People.PeopleID, People.LastName, People.FirstName, People.City, People.Province, People.Country, People.Phone, People.Mobile, People.Business, People.Email, People.Postal, People.BirthMonth, People.BirthDate, People.BirthYear, People.AnnMonth, People.AnnDate, People.AnnYear, People.Notes, People.Street, People.SecondAddress, FirstName & " " & LastName AS FullName From People ORDER BY FirstName & LastName)sql"},
    {Queries::kPeopleByLastName,
     R"sql(SELECT People.PeopleID, People.LastName, People.FirstName, People.City, People.Province, People.Country, People.Phone, People.Mobile, People.Business, People.Email, People.Postal, People.BirthMonth, People.BirthDate, People.BirthYear, People.AnnMonth, People.AnnDate, People.AnnYear, People.Street, People.SecondAddress, People.Notes, LastName & ", " & FirstName AS FullName From People ORDER BY LastName & FirstName)sql"},
    {Queries::kPeople,
     R"sql(SELECT People.PeopleID, People.LastName, People.FirstName, People.City, People.Province, People.Country, People.Phone, People.Mobile, People.Email, People.Business, People.Postal, People.BirthMonth, People.BirthDate, People.BirthYear, People.AnnMonth, People.AnnDate, People.AnnYear, People.Notes, People.Street, People.SecondAddress, FirstName & " " & LastName AS FullName From People ORDER BY FirstName & LastName)sql"},
    {Queries::kBirthdaysByMonth,
     R"sql(SELECT People.BirthMonth, People.PeopleID, People.FirstName, People.Gender, People.LastName, People.BirthYear, People.BirthDate from People ORDER BY BirthMonth, BirthDate)sql"},
    {Queries::kAnniversariesByMonth,
     R"sql(SELECT Ann.AnnMonth, Ann.AnnID, Ann.Spouse1First, Ann.Spouse1ID, Ann.Spouse2ID, Ann.Spouse2First, Ann.Spouse1Last, Ann.Spouse2Last, Ann.AnnYear, Ann.AnnDate From Ann ORDER by Ann.AnnMonth, Ann.AnnDate)sql"},
    {Queries::kAddresses,
     R"sql(SELECT People.PeopleID, People.LastName, People.FirstName, People.SpouseFirst, People.SpouseLast, People.SecondAddress, People.City, People.Province, People.Country, People.Phone, People.Mobile, People.Email, People.Postal, People.BirthMonth, People.BirthDate, People.BirthYear, People.AnnMonth, People.AnnDate, People.AnnYear, People.Street, People.Gender, People.Notes, AnnMonth & " " & AnnDate & " " & AnnYear AS CompleteAnn, LastName & ", " & FirstName AS FullName From People ORDER BY LastName & firstname)sql"},
    {Queries::kRecords,
     R"sql(SELECT People.PeopleID, People.LastName, People.FirstName, People.SpouseFirst, People.SpouseLast, People.SecondAddress, People.City, People.Province, People.Country, People.Phone, People.Mobile, People.Email, People.Business, People.Postal, People.BirthMonth, People.BirthDate, People.BirthYear, People.AnnMonth, People.AnnDate, People.AnnYear, People.Street, People.Gender, People.Notes, AnnMonth & " " & AnnDate & " " & AnnYear AS CompleteAnn, LastName & ", " & FirstName AS FullName From People ORDER BY LastName & firstname)sql"},
    {Queries::kPartners,
     R"sql(SELECT People.PeopleID, People.LastName, People.FirstName, People.SpouseFirst, People.SpouseLast, People.AnnMonth, People.AnnDate, People.AnnYear, People.Gender, LastName & ", " & FirstName AS FullName From People ORDER BY LastName & Firstname)sql"},
    {Queries::kCoupleDates,
     R"sql(SELECT Ann.AnnMonth, Ann.AnnDate, Ann.AnnYear From Ann)sql"},
    {Queries::kTotalAnn,
     R"sql(SELECT TotalAnn.Month, TotalAnn.Total FROM TotalAnn)sql"},
    {Queries::kAnnMonths,
     R"sql(SELECT Ann.AnnMonth FROM Ann ORDER BY Ann.AnnMonth)sql"},
    {Queries::kTotalBirthdays,
     R"sql(SELECT TotalBirthdays.Month, TotalBirthdays.Total FROM TotalBirthdays)sql"},
    {Queries::kBirthMonths,
     R"sql(SELECT People.BirthMonth FROM People ORDER BY People.BirthMonth)sql"},
    {Queries::kTotalAge,
     R"sql(SELECT TotalAge.Age, TotalAge.Total FROM TotalAge)sql"},
    {Queries::kBirthYears,
     R"sql(SELECT People.BirthYear FROM People ORDER BY People.BirthYear)sql"},
    {Queries::kPeopleByCity,
     R"sql(SELECT People.City, Count(City) AS Total FROM People WHERE Not IsNull(City) GROUP BY City)sql"},
    {Queries::kPeopleByProvince,
     R"sql(SELECT People.Province, Count(Province) AS Total FROM People WHERE Not IsNull(Province) GROUP BY Province)sql"},
    {Queries::kEventsOfMonth,
     R"sql(SELECT Reminders.Date, Reminders.Event, Reminders.Month, Reminders.Time, Reminders.Notes From Reminders ORDER by Reminders.Month, Reminders.Time)sql"},
    {Queries::kEvents,
     R"sql(SELECT Reminders.Date, Reminders.ID, Reminders.Event, Reminders.Month, Reminders.Time, Reminders.Notes From Reminders ORDER by Reminders.Month, Reminders.Time)sql"},
    {Queries::kEventChanges,
     R"sql(SELECT Reminders.Date, Reminders.Event, Reminders.ID, Reminders.Month, Reminders.Time, Reminders.Notes From Reminders ORDER by Reminders.Month, Reminders.Time)sql"},
    {Queries::kEventsToPrint,
     R"sql(SELECT Reminders.Month, Reminders.Event, Reminders.Time, Reminders.Notes, Reminders.Date FROM Reminders ORDER by Reminders.Date)sql"},
    {Queries::kNoticeBirthdays,
     R"sql(SELECT People.BirthMonth, People.BirthDate, People.FirstName, People.LastName From People ORDER by People.BirthMonth, People.BirthDate)sql"},
    {Queries::kNoticeAnniversaries,
     R"sql(SELECT Ann.Spouse1First, Ann.Spouse2First, Ann.AnnMonth, Ann.AnnDate From Ann ORDER by Ann.AnnMonth, Ann.AnnDate)sql"},
    {Queries::kNoticeEvents,
     R"sql(SELECT Reminders.Date, Reminders.Month, Reminders.Event from Reminders ORDER by Reminders.Month)sql"},
    {Queries::kCheckBirthdays,
     R"sql(SELECT People.BirthMonth, People.BirthDate From People ORDER by People.BirthMonth, People.BirthDate)sql"},
    {Queries::kCheckAnniversaries,
     R"sql(SELECT People.AnnMonth, People.AnnDate From People ORDER by People.AnnMonth, People.AnnDate)sql"},
    {Queries::kCheckEvents,
     R"sql(SELECT Reminders.Date, Reminders.Month from Reminders ORDER by Reminders.Month)sql"},
};

}

TEST(Queries, StandWordForWord)
{
  for (const Wording& wording : kWordings) {
    EXPECT_EQ(wording.query.toStdString(), wording.text);
  }
}
