// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Household.h"

#include <QDate>
#include <QFile>
#include <QLocale>

#include <algorithm>
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

}

void MakeHousehold(const QString& path, int people)
{
  QFile::remove(path);
  sqlite3* handle = nullptr;
  sqlite3_open(path.toUtf8().constData(), &handle);
  for (const QByteArray& sql : {SourceFile("schema.sql"), SourceFile("delivered.sql"), InsertPeople(people)}) {
    if (sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(handle));
    }
  }
  sqlite3_close(handle);
}

double Median(std::vector<double> values)
{
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}
