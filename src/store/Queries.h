// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// The fixed queries of the program, word for word.
namespace Queries {

// The name list of the look-up page, by first name.
inline const QString kPeopleByFirstName = QStringLiteral(
    "SELECT People.PeopleID, People.LastName, People.FirstName, People.City, People.Province, "
    "People.Country, People.Phone, People.Mobile, People.Business, People.Email, People.Postal, "
    "People.BirthMonth, People.BirthDate, People.BirthYear, People.AnnMonth, People.AnnDate, People.AnnYear, "
    "People.Notes, People.Street, People.SecondAddress, FirstName & \" \" & LastName AS FullName From People "
    "ORDER BY FirstName & LastName");

// The name list of the look-up page, by last name.
inline const QString kPeopleByLastName = QStringLiteral(
    "SELECT People.PeopleID, People.LastName, People.FirstName, People.City, People.Province, "
    "People.Country, People.Phone, People.Mobile, People.Business, People.Email, People.Postal, "
    "People.BirthMonth, People.BirthDate, People.BirthYear, People.AnnMonth, People.AnnDate, People.AnnYear, "
    "People.Street, People.SecondAddress, People.Notes, LastName & \", \" & FirstName AS FullName From "
    "People ORDER BY LastName & FirstName");

// The people behind the look-up page.
inline const QString kPeople = QStringLiteral(
    "SELECT People.PeopleID, People.LastName, People.FirstName, People.City, People.Province, "
    "People.Country, People.Phone, People.Mobile, People.Email, People.Business, People.Postal, "
    "People.BirthMonth, People.BirthDate, People.BirthYear, People.AnnMonth, People.AnnDate, People.AnnYear, "
    "People.Notes, People.Street, People.SecondAddress, FirstName & \" \" & LastName AS FullName From People "
    "ORDER BY FirstName & LastName");

// The birthdays of the occasions page.
inline const QString kBirthdaysByMonth = QStringLiteral(
    "SELECT People.BirthMonth, People.PeopleID, People.FirstName, People.Gender, People.LastName, "
    "People.BirthYear, People.BirthDate from People ORDER BY BirthMonth, BirthDate");

// The couples of the occasions page.
inline const QString kAnniversariesByMonth = QStringLiteral(
    "SELECT Ann.AnnMonth, Ann.AnnID, Ann.Spouse1First, Ann.Spouse1ID, Ann.Spouse2ID, Ann.Spouse2First, "
    "Ann.Spouse1Last, Ann.Spouse2Last, Ann.AnnYear, Ann.AnnDate From Ann ORDER by Ann.AnnMonth, Ann.AnnDate");

// The people whose address can be copied on the record editor.
inline const QString kAddresses = QStringLiteral(
    "SELECT People.PeopleID, People.LastName, People.FirstName, People.SpouseFirst, People.SpouseLast, "
    "People.SecondAddress, People.City, People.Province, People.Country, People.Phone, People.Mobile, "
    "People.Email, People.Postal, People.BirthMonth, People.BirthDate, People.BirthYear, People.AnnMonth, "
    "People.AnnDate, People.AnnYear, People.Street, People.Gender, People.Notes, AnnMonth & \" \" & AnnDate "
    "& \" \" & AnnYear AS CompleteAnn, LastName & \", \" & FirstName AS FullName From People ORDER BY "
    "LastName & firstname");

// The records of the record editor.
inline const QString kRecords = QStringLiteral(
    "SELECT People.PeopleID, People.LastName, People.FirstName, People.SpouseFirst, People.SpouseLast, "
    "People.SecondAddress, People.City, People.Province, People.Country, People.Phone, People.Mobile, "
    "People.Email, People.Business, People.Postal, People.BirthMonth, People.BirthDate, People.BirthYear, "
    "People.AnnMonth, People.AnnDate, People.AnnYear, People.Street, People.Gender, People.Notes, AnnMonth & "
    "\" \" & AnnDate & \" \" & AnnYear AS CompleteAnn, LastName & \", \" & FirstName AS FullName From People "
    "ORDER BY LastName & firstname");

// The partner lists of the couple editor.
inline const QString kPartners = QStringLiteral(
    "SELECT People.PeopleID, People.LastName, People.FirstName, People.SpouseFirst, People.SpouseLast, "
    "People.AnnMonth, People.AnnDate, People.AnnYear, People.Gender, LastName & \", \" & FirstName AS "
    "FullName From People ORDER BY LastName & Firstname");

// The wedding dates whose blanks are repaired.
inline const QString kCoupleDates = QStringLiteral("SELECT Ann.AnnMonth, Ann.AnnDate, Ann.AnnYear From Ann");

// The tally of anniversaries, and what it counts.
inline const QString kTotalAnn = QStringLiteral("SELECT TotalAnn.Month, TotalAnn.Total FROM TotalAnn");
inline const QString kAnnMonths = QStringLiteral("SELECT Ann.AnnMonth FROM Ann ORDER BY Ann.AnnMonth");

// The tally of birthdays, and what it counts.
inline const QString kTotalBirthdays =
    QStringLiteral("SELECT TotalBirthdays.Month, TotalBirthdays.Total FROM TotalBirthdays");
inline const QString kBirthMonths = QStringLiteral("SELECT People.BirthMonth FROM People ORDER BY People.BirthMonth");

// The tally of ages, and what it counts.
inline const QString kTotalAge = QStringLiteral("SELECT TotalAge.Age, TotalAge.Total FROM TotalAge");
inline const QString kBirthYears = QStringLiteral("SELECT People.BirthYear FROM People ORDER BY People.BirthYear");

// The chart by city.
inline const QString kPeopleByCity =
    QStringLiteral("SELECT People.City, Count(City) AS Total FROM People WHERE Not IsNull(City) GROUP BY City");

// The chart by province.
inline const QString kPeopleByProvince = QStringLiteral(
    "SELECT People.Province, Count(Province) AS Total FROM People WHERE Not IsNull(Province) GROUP BY "
    "Province");

// The events of a month on the calendar.
inline const QString kEventsOfMonth = QStringLiteral(
    "SELECT Reminders.Date, Reminders.Event, Reminders.Month, Reminders.Time, Reminders.Notes From Reminders "
    "ORDER by Reminders.Month, Reminders.Time");

// Events with their keys, on the calendar and in its editor.
inline const QString kEvents = QStringLiteral(
    "SELECT Reminders.Date, Reminders.ID, Reminders.Event, Reminders.Month, Reminders.Time, Reminders.Notes "
    "From Reminders ORDER by Reminders.Month, Reminders.Time");

// The events that the event editor changes.
inline const QString kEventChanges = QStringLiteral(
    "SELECT Reminders.Date, Reminders.Event, Reminders.ID, Reminders.Month, Reminders.Time, Reminders.Notes "
    "From Reminders ORDER by Reminders.Month, Reminders.Time");

// The events of a printed calendar.
inline const QString kEventsToPrint = QStringLiteral(
    "SELECT Reminders.Month, Reminders.Event, Reminders.Time, Reminders.Notes, Reminders.Date FROM Reminders "
    "ORDER by Reminders.Date");

// The details behind the lines of the notices window.
inline const QString kNoticeBirthdays = QStringLiteral(
    "SELECT People.BirthMonth, People.BirthDate, People.FirstName, People.LastName From People ORDER by "
    "People.BirthMonth, People.BirthDate");
inline const QString kNoticeAnniversaries = QStringLiteral(
    "SELECT Ann.Spouse1First, Ann.Spouse2First, Ann.AnnMonth, Ann.AnnDate From Ann ORDER by Ann.AnnMonth, "
    "Ann.AnnDate");
inline const QString kNoticeEvents =
    QStringLiteral("SELECT Reminders.Date, Reminders.Month, Reminders.Event from Reminders ORDER by Reminders.Month");

// What the reminder check looks through.
inline const QString kCheckBirthdays = QStringLiteral(
    "SELECT People.BirthMonth, People.BirthDate From People ORDER by People.BirthMonth, People.BirthDate");
inline const QString kCheckAnniversaries =
    QStringLiteral("SELECT People.AnnMonth, People.AnnDate From People ORDER by People.AnnMonth, People.AnnDate");
inline const QString kCheckEvents =
    QStringLiteral("SELECT Reminders.Date, Reminders.Month from Reminders ORDER by Reminders.Month");

}
