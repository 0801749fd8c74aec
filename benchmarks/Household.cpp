// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Household.h"

#include <QDate>
#include <QFile>
#include <QLocale>

#include <sqlite3.h>
#include <stdexcept>

namespace {

QByteArray SourceFile(const char* name)
{
  QFile file(QStringLiteral(QUILLMARK_SOURCE "/src/store/") + QLatin1String(name));
  if (!file.open(QIODevice::ReadOnly)) {
    throw std::runtime_error(name);
  }
  return file.readAll();
}

// Half of the year lies between these months and today.
QByteArray InsertPeople(int people)
{
  const int month = QDate::currentDate().addMonths(6).month();
  return QStringLiteral(
             "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<%1) "
             "INSERT INTO People (LastName, FirstName, Street, City, Province, Country, Postal, Phone, Mobile, Email, "
             "Notes, BirthMonth, BirthDate, BirthYear, AnnMonth, AnnDate, AnnYear, Gender) "
             "SELECT 'Last' || (i*7919%%100003), 'First' || (i%%997), i || ' Long Street', 'City' || (i%%50), "
             "'Province', "
             "'Country', 'AB' || i, '555-0100', '555-0101', 'someone' || i || '@example.org', "
             "'Notes of some length on this very person, number ' || i, '%2', 1+i%%28, 1930+i%%90, '%3', 1+i%%28, "
             "1980, "
             "CASE i%%2 WHEN 0 THEN 'Male' ELSE 'Female' END FROM n")
      .replace(QLatin1String("%%"), QLatin1String("\x01"))
      .arg(people)
      .arg(QLocale::c().monthName(month), QLocale::c().monthName(month % 12 + 1))
      .replace(QLatin1String("\x01"), QLatin1String("%"))
      .toUtf8();
}

// 120 in the year, the same for any number of events; the others on every day of the
// 100 years from the one after next on, over and over.
QByteArray InsertEvents(int events, int year)
{
  return QStringLiteral(
             "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n WHERE i+1<%1), "
             "days(i, day) AS (SELECT i, CASE WHEN i<120 THEN date('%2-01-01', '+' || (i/10) || ' months', "
             "'+' || (i%10) || ' days') ELSE date('%2-01-01', '+2 years', '+' || (i*7%36525) || ' days') END FROM n), "
             "names(m, name) AS (VALUES ('01','January'),('02','February'),('03','March'),('04','April'),('05','May'),"
             "('06','June'),('07','July'),('08','August'),('09','September'),('10','October'),('11','November'),"
             "('12','December')) "
             "INSERT INTO Reminders (Month, Date, Event, Time, Notes) SELECT name, day, 'Event ' || (i%1000), "
             "CASE i%3 WHEN 0 THEN NULL ELSE '10:30:00' END, 'Notes of some length on this very event, number ' || i "
             "FROM days JOIN names ON m = substr(day, 6, 2) ORDER BY i")
      .arg(events)
      .arg(year)
      .toUtf8();
}

// The name of a month for the number that an expression gives: 0 for March, 9 for December.
QByteArray LaterMonth(const QByteArray& number)
{
  return "(SELECT name FROM later WHERE m = " + number + ")";
}

QByteArray MarryPeople(int people)
{
  return "CREATE TEMP TABLE later AS WITH names(m, name) AS (VALUES (0,'March'),(1,'April'),(2,'May'),(3,'June'),"
         "(4,'July'),(5,'August'),(6,'September'),(7,'October'),(8,'November'),(9,'December')) SELECT * FROM names;"
         "UPDATE People SET BirthMonth = CASE WHEN PeopleID <= 17 THEN 'January' WHEN PeopleID <= 34 THEN 'February' "
         "ELSE " +
         LaterMonth("PeopleID % 10") +
         " END;"
         "INSERT INTO Ann (Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last, AnnMonth, "
         "AnnDate,"
         " AnnYear) SELECT w.PeopleID, w.FirstName, w.LastName, h.PeopleID, h.FirstName, h.LastName,"
         " CASE WHEN w.PeopleID < 17 THEN 'January' WHEN w.PeopleID < 33 THEN 'February' ELSE " +
         LaterMonth("w.PeopleID / 2 % 10") +
         " END, 1 + w.PeopleID % 28, '1980' FROM People w JOIN People h ON h.PeopleID = w.PeopleID + 1"
         " WHERE w.PeopleID % 2 = 1 AND w.PeopleID < " +
         QByteArray::number(people / 2) +
         ";"
         "UPDATE People SET AnnMonth = NULL, AnnDate = NULL, AnnYear = NULL;"
         "UPDATE People SET (AnnMonth, AnnDate, AnnYear) = (SELECT AnnMonth, AnnDate, AnnYear FROM Ann"
         " WHERE Spouse1ID = PeopleID OR Spouse2ID = PeopleID) WHERE PeopleID <= " +
         QByteArray::number(people / 2);
}

void Make(const QString& path, const QByteArray& rows)
{
  QFile::remove(path);
  sqlite3* handle = nullptr;
  sqlite3_open(path.toUtf8().constData(), &handle);
  for (const QByteArray& sql : {SourceFile("schema.sql"), SourceFile("delivered.sql"), rows}) {
    if (sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(handle));
    }
  }
  sqlite3_close(handle);
}

}

void MakeHousehold(const QString& path, int people)
{
  Make(path, InsertPeople(people));
}

void MakeFamilies(const QString& path, int people)
{
  Make(path, InsertPeople(people) + ";" + MarryPeople(people));
}

void MakeTowns(const QString& path, int people, int cities)
{
  Make(path, InsertPeople(people) + "; UPDATE People SET City = 'City ' || (PeopleID * 7919 % " +
                 QByteArray::number(cities) + ")");
}

void MakeCalendar(const QString& path, int events, int year)
{
  Make(path, InsertEvents(events, year));
}
