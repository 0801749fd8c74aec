// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "HouseholdFolder.h"

#include "support/Hands.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <sys/stat.h>

namespace {

constexpr const char* kDatabase = "quillmark2002.mdb";
constexpr const char* kCopy = "Quillmark1.mdb";

QByteArray Contents(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Into the file that stands there, if there is one: whoever has it open goes on with it.
void Write(const QString& path, const QByteArray& contents)
{
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
  file.write(contents);
}

void SetMode(const QString& path, int mode)
{
  EXPECT_EQ(chmod(QFile::encodeName(path).constData(), static_cast<mode_t>(mode)), 0) << path.toStdString();
}

QByteArray Text(const QVariant& value)
{
  return value.isNull() ? QByteArray("NULL") : '\'' + value.toString().toUtf8() + '\'';
}

}

HouseholdFolder::HouseholdFolder()
{
  AddPeople();
  AddCouplesAndEvents();
  AddFiles();
}

void HouseholdFolder::AddPeople() const
{
  folder_.Execute(
      "INSERT INTO People (FirstName, LastName, Gender, Street, BirthMonth, BirthDate, BirthYear, Notes) VALUES "
      "('Ann', 'Adams', 'Female', '1 High St', 'August', '9', '1980', 'n'), "
      "('Bob', 'Brown', 'Male', NULL, 'January', '31', NULL, NULL), "
      "('Cy', 'Cole', 'Male', NULL, NULL, NULL, NULL, 'single'), "
      "('Eve', 'Evans', 'Female', NULL, NULL, NULL, '1955', NULL), "
      "('Fay', 'Fox', 'Female', NULL, NULL, NULL, '1954', NULL), "
      "('Guy', 'Fox', 'Male', NULL, NULL, NULL, '1953', NULL)");
  folder_.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 60) "
      "INSERT INTO People (FirstName, LastName, Gender, City, BirthMonth, BirthDate, BirthYear, Notes) "
      "SELECT 'Émile ' || i, 'Zola', CASE i % 2 WHEN 0 THEN 'Male' ELSE 'Female' END, 'Paris', 'October', "
      "1 + i % 28, 1930 + i, hex(zeroblob(100)) FROM n");
}

// The tallies are those of another day, so that each is rebuilt to something else.
void HouseholdFolder::AddCouplesAndEvents() const
{
  for (const auto& [wife, husband] : {std::pair(1, 2), std::pair(5, 6)}) {
    folder_.Execute(
        "INSERT INTO Ann (Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last, AnnMonth, "
        "AnnDate, AnnYear) SELECT w.PeopleID, w.FirstName, w.LastName, h.PeopleID, h.FirstName, h.LastName, 'July', "
        "'12', '1999' FROM People w, People h WHERE w.PeopleID = ? AND h.PeopleID = ?",
        {wife, husband});
  }
  folder_.Execute("UPDATE People SET AnnMonth='July', AnnDate='12', AnnYear='1999' WHERE PeopleID IN (1, 2, 5, 6)");
  folder_.Execute(
      "INSERT INTO Reminders (Month, Date, Event, Time, Notes) VALUES ('May', '2026-05-25', 'Vet', '14:00:00', 'cat'), "
      "('May', '2026-05-25', 'Shop', NULL, NULL), ('June', '2026-06-25', 'Fair', NULL, NULL)");
  for (const char* tally : {"TotalAnn", "TotalBirthdays", "TotalAge"}) {
    folder_.Execute(QStringLiteral("UPDATE %1 SET Total = 7").arg(tally));
  }
}

void HouseholdFolder::AddFiles() const
{
  for (const char* pictures : {"PeoplePics", "AnnPics"}) {
    QDir(folder_.Path()).mkdir(pictures);
  }
  for (const char* picture : {"/PeoplePics/1.bmp", "/PeoplePics/3.bmp", "/AnnPics/1.bmp", "/AnnPics/2.bmp"}) {
    Hands::SavePicture(folder_.File(picture), Qt::blue, {60, 50});
  }
  for (const char* laid : {"/animp.ico", "/hand.cur"}) {
    QFile::copy(QStringLiteral(QUILLMARK_LAID_FOLDER) + laid, folder_.File(laid));
  }
  Write(folder_.File("/backup.mdb"), "an older backup");
}

bool HouseholdFolder::HasDatabase() const
{
  return QFile::exists(folder_.DatabasePath());
}

bool HouseholdFolder::HasCopy() const
{
  return QFile::exists(folder_.File("/") + kCopy);
}

void HouseholdFolder::PutCopyInPlace() const
{
  EXPECT_TRUE(QFile::rename(folder_.File("/") + kCopy, folder_.DatabasePath()));
}

HouseholdFolder::State HouseholdFolder::Read() const
{
  State state;
  for (const char* query :
       {"PRAGMA integrity_check", "SELECT sql FROM sqlite_master ORDER BY name", "SELECT * FROM sqlite_sequence",
        "SELECT * FROM People ORDER BY PeopleID", "SELECT * FROM Ann ORDER BY AnnID",
        "SELECT * FROM Reminders ORDER BY ID", "SELECT * FROM TotalAnn ORDER BY 1",
        "SELECT * FROM TotalBirthdays ORDER BY 1", "SELECT * FROM TotalAge ORDER BY 1", "SELECT * FROM Options"}) {
    state.rows += query;
    for (const QVariantList& row : folder_.Rows(query)) {
      state.rows += '\n';
      for (const QVariant& value : row) {
        state.rows += Text(value) + ',';
      }
    }
    state.rows += '\n';
  }
  state.files = Take();
  state.files.remove(kDatabase);
  return state;
}

void HouseholdFolder::WriteAnything() const
{
  folder_.Execute("UPDATE Options SET Theme = Theme + 1");
  folder_.Execute("UPDATE Options SET Theme = Theme - 1");
}

HouseholdFolder::Image HouseholdFolder::Take() const
{
  Image image;
  QDirIterator files(folder_.Path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString path = files.next();
    image.insert(QDir(folder_.Path()).relativeFilePath(path), Contents(path));
  }
  return image;
}

void HouseholdFolder::PutBack(const Image& image) const
{
  const Image now = Take();
  for (auto file = now.begin(); file != now.end(); ++file) {
    if (!image.contains(file.key())) {
      EXPECT_TRUE(QFile::remove(folder_.File("/") + file.key())) << file.key().toStdString();
    }
  }
  for (auto file = image.begin(); file != image.end(); ++file) {
    if (!now.contains(file.key()) || now[file.key()] != file.value()) {
      Write(folder_.File("/") + file.key(), file.value());
    }
  }
}

void HouseholdFolder::TakeRights(Locked locked) const
{
  constexpr int kAllFolder = 0777;
  constexpr int kAllFile = 0666;
  constexpr int kReadFolder = 0555;
  constexpr int kReadFile = 0444;
  SetModes(folder_.Path(), kAllFolder, kAllFile);
  switch (locked) {
    case Locked::kFolder:
      SetMode(folder_.Path(), kReadFolder);
      break;
    case Locked::kPictures:
      SetModes(folder_.File("/PeoplePics"), kReadFolder, kReadFile);
      SetModes(folder_.File("/AnnPics"), kReadFolder, kReadFile);
      break;
    case Locked::kEverything:
      SetModes(folder_.Path(), kReadFolder, kReadFile);
      break;
  }
}

void HouseholdFolder::GiveRights() const
{
  SetModes(folder_.Path(), 0700, 0600);
}

void HouseholdFolder::SetModes(const QString& path, int folders, int files) const
{
  SetMode(path, folders | S_IRWXU);
  QDirIterator entries(path, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
  while (entries.hasNext()) {
    const QString entry = entries.next();
    SetMode(entry, entries.fileInfo().isDir() ? folders : files);
  }
  SetMode(path, folders);
}
