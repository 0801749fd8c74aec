// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Household.h"

#include <QDirIterator>
#include <QImage>

Household::Household()
{
  LayFiles();
  FillDatabase();
  AddPictures();
}

// All but the database, which the folder has, and what no page reads.
void Household::LayFiles() const
{
  const QDir laid(QStringLiteral(QUILLMARK_LAID_FOLDER));
  QDirIterator files(laid.path(), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString relative = laid.relativeFilePath(files.next());
    if (!relative.startsWith(QStringLiteral("famous")) && relative != QStringLiteral("quillmark")) {
      const QString target = folder_.File(u'/' + relative);
      QDir().mkpath(QFileInfo(target).path());
      QFile::copy(files.filePath(), target);
    }
  }
}

void Household::FillDatabase() const
{
  folder_.Execute(QStringLiteral(
      "WITH RECURSIVE N (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM N WHERE i < 160) INSERT INTO People (LastName, "
      "FirstName, City, Province, Email, Notes, BirthMonth, BirthDate, BirthYear) SELECT 'Last' || i % 37, 'First' || "
      "i, "
      "'City ' || i % 9, 'Land ' || i % 3, 'who' || i || '@home.example', CASE i % 11 WHEN 0 THEN hex(zeroblob(3000)) "
      "WHEN 1 THEN NULL ELSE 'Notes of ' || i END, CASE i % 5 WHEN 0 THEN NULL ELSE 'May' END, i % 28 + 1, 1920 + i % "
      "100 "
      "FROM N"));
  folder_.Execute(QStringLiteral(
      "WITH RECURSIVE N (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM N WHERE i < 20) INSERT INTO Ann (Spouse1ID, "
      "Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last, AnnMonth, AnnDate, AnnYear) SELECT 2 * i, "
      "'First' || 2 * i, 'Last', 2 * i + 1, 'First' || 2 * i + 1, 'Last', CASE i % 2 WHEN 0 THEN 'May' ELSE 'June' "
      "END, "
      "i, 1950 + i FROM N"));
  folder_.Execute(
      QStringLiteral("WITH RECURSIVE N (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM N WHERE i < 60) INSERT INTO "
                     "Reminders (Month, Date, "
                     "Event, Time, Notes) SELECT 'May', date('2026-05-01', '+' || i % 31 || ' days'), 'Event ' || i, "
                     "CASE i % 3 WHEN 0 "
                     "THEN '09:30:00' END, 'Bring ' || i FROM N"));
  folder_.Execute(QStringLiteral("DELETE FROM People WHERE PeopleID % 4 = 1 AND PeopleID > 50"));
}

void Household::AddPictures() const
{
  QImage picture(60, 40, QImage::Format_RGB32);
  picture.fill(Qt::darkGreen);
  for (const char* name : {"/PeoplePics/1.bmp", "/PeoplePics/2.bmp", "/PeoplePics/4.bmp", "/AnnPics/1.bmp"}) {
    QDir().mkpath(QFileInfo(folder_.File(QLatin1String(name))).path());
    picture.save(folder_.File(QLatin1String(name)));
  }
}
