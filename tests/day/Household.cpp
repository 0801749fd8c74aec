// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Household.h"

#include "Invariants.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>

#include <sqlite3.h>
#include <stdexcept>
#include <sys/stat.h>

namespace {

QByteArray Contents(const QString& path)
{
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw std::runtime_error("cannot read " + path.toStdString());
  }
  return file.readAll();
}

void Copy(const QString& from, const QString& to)
{
  if (!QFile::copy(from, to)) {
    throw std::runtime_error("cannot copy " + from.toStdString());
  }
}

void CopyAll(const QString& from, const QString& to, const QStringList& patterns)
{
  QDir().mkpath(to);
  for (const QString& name : QDir(from).entryList(patterns, QDir::Files)) {
    Copy(from + '/' + name, to + '/' + name);
  }
}

void Write(const QString& path, const QByteArray& content)
{
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
    throw std::runtime_error("cannot write " + path.toStdString());
  }
}

QString SavedPicture(const QString& path, QSize size, const QColor& colour)
{
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  if (!image.save(path)) {
    throw std::runtime_error("cannot save " + path.toStdString());
  }
  return path;
}

int KeyOf(const QString& picture)
{
  return picture.chopped(4).toInt();
}

}

Household::Household(QDate today)
{
  LayFiles();
  FillIn(today);
  LayChoices();
  laid_ = QDir(folder_.Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

void Household::LayFiles() const
{
  const QString laid = QStringLiteral(QUILLMARK_LAID_FOLDER);
  CopyAll(laid, folder_.Path(), {"Help.hlp", "animp.ico", "hand.cur"});
  for (const char* name : {"/themes", "/notices", "/famous"}) {
    CopyAll(laid + name, folder_.File(name), {"*"});
  }
  const QString sample = QCoreApplication::applicationDirPath() + QStringLiteral("/../assets/sample");
  for (const char* name : {"/PeoplePics", "/AnnPics"}) {
    CopyAll(sample + name, folder_.File(name), {"*.bmp"});
  }
}

void Household::FillIn(QDate today) const
{
  QByteArray sql = Contents(QStringLiteral(QUILLMARK_SOURCE "/assets/sample/household.sql"));
  sql.replace(".bail on", "");  // meant for the shell of the database
  sql.replace("date('now', 'localtime')", '\'' + today.toString(Qt::ISODate).toUtf8() + '\'');
  sqlite3* handle = nullptr;
  sqlite3_open(folder_.DatabasePath().toUtf8().constData(), &handle);
  const int code = sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr);
  sqlite3_close(handle);
  if (code != SQLITE_OK) {
    throw std::runtime_error("cannot fill in the household");
  }
}

void Household::LayChoices()
{
  const QString whole = SavedPicture(files_.filePath("wide.jpg"), {600, 400}, Qt::darkGreen);
  Write(files_.filePath("cut.jpg"), Contents(whole).left(200));
  Write(files_.filePath("text.png"), "no picture");
  choices_ = {whole,
              SavedPicture(files_.filePath("tall.png"), {90, 700}, Qt::red),
              SavedPicture(files_.filePath("dot.bmp"), {1, 1}, Qt::blue),
              SavedPicture(files_.filePath("large.png"), {2400, 1800}, Qt::yellow),
              files_.filePath("cut.jpg"),
              files_.filePath("text.png"),
              files_.filePath("missing.png")};
}

int Household::Count(const QString& table) const
{
  return folder_.Value(QStringLiteral("SELECT count(*) FROM ") + table).toInt();
}

QString Household::Stamp() const
{
  QString stamp;
  for (const QString& path : {folder_.DatabasePath(), folder_.File("/PeoplePics"), folder_.File("/AnnPics")}) {
    struct stat state = {};
    stat(path.toUtf8().constData(), &state);
    stamp += QStringLiteral("%1 %2.%3 ").arg(state.st_ino).arg(state.st_mtim.tv_sec).arg(state.st_mtim.tv_nsec);
  }
  return stamp;
}

QStringList Household::Faults(const Circumstances& circumstances)
{
  const QString stamp = Stamp() + QString::number(circumstances.remindersAreBeingSet);
  if (stamp == stamp_) {
    return {};
  }
  stamp_ = stamp;
  ++looks_;
  QStringList faults;
  TestTables(circumstances, faults);
  TestCouples(faults);
  TestTallies(circumstances, faults);
  TestFiles(circumstances, faults);
  return faults;
}

void Household::Require(QStringList& faults, const QString& what, const QString& sqlOfOffenders) const
{
  for (const QVariantList& row : folder_.Rows(sqlOfOffenders)) {
    faults.append(QStringLiteral("%1: %2").arg(what, QVariant(row).toStringList().join(QStringLiteral(" | "))));
  }
}

void Household::TestTables(const Circumstances& circumstances, QStringList& faults) const
{
  for (const auto& [what, sql] : Invariants::OfTheTables()) {
    Require(faults, what, sql);
  }
  if (!circumstances.remindersAreBeingSet) {
    const auto [what, sql] = Invariants::OfReminderSettings();
    Require(faults, what, sql);
  }
}

// The editor lets the gender of a partner be changed. Their couple stays as it is, and what
// holds for couples need not hold for those two from then on.
void Household::TestCouples(QStringList& faults)
{
  for (const QVariantList& row : folder_.Rows(Invariants::CouplesOfOtherGenders())) {
    if (!couples_.contains(row[0].toInt())) {
      faults.append(QStringLiteral("a new couple of the wrong genders: %1").arg(row[0].toInt()));
    }
    changed_ << row[1].toInt() << row[2].toInt();
  }
  for (const QVariantList& row : folder_.Rows(QStringLiteral("SELECT AnnID FROM Ann"))) {
    couples_ << row[0].toInt();
  }
  QStringList keys;
  for (const int key : changed_) {
    keys.append(QString::number(key));
  }
  for (const auto& [what, sql] : Invariants::OfCouples(keys.join(QLatin1Char(',')))) {
    Require(faults, what, sql);
  }
}

void Household::TestTallies(const Circumstances& circumstances, QStringList& faults) const
{
  if (circumstances.weddingsAreCounted) {
    Require(faults, QStringLiteral("weddings of a month"), Invariants::MonthsMiscounted("TotalAnn", "Ann", "AnnMonth"));
  }
  if (circumstances.birthdaysAreCounted) {
    Require(faults, QStringLiteral("birthdays of a month"),
            Invariants::MonthsMiscounted("TotalBirthdays", "People", "BirthMonth"));
    Require(faults, QStringLiteral("people of an age"), Invariants::AgesMiscounted(circumstances.yearOfTally));
  }
}

// A picture may outlive its person if one was chosen or removed while somebody was added.
void Household::TestFiles(const Circumstances& circumstances, QStringList& faults)
{
  for (const QString& name : QDir(folder_.Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
    if (!laid_.contains(name)) {
      faults.append(QStringLiteral("a file is left behind: ") + name);
    }
  }
  for (const auto& [folder, table, key] :
       {std::tuple("/PeoplePics", "People", "PeopleID"), std::tuple("/AnnPics", "Ann", "AnnID")}) {
    QSet<int> keys;
    for (const QVariantList& row : folder_.Rows(QStringLiteral("SELECT %1 FROM %2").arg(key, table))) {
      keys << row[0].toInt();
    }
    for (const QString& picture : QDir(folder_.File(folder)).entryList(QDir::Files | QDir::Hidden)) {
      const QString path = QLatin1String(folder) + '/' + picture;
      if (keys.contains(KeyOf(picture)) || strays_.contains(path)) {
        continue;
      }
      if (circumstances.pictureMayStay && KeyOf(picture) > 0 && QLatin1String(table) == QLatin1String("People")) {
        strays_ << path;
      } else {
        faults.append(QStringLiteral("a picture of nobody: ") + path);
      }
    }
  }
}
