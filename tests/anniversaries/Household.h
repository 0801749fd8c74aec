// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/Hands.h"
#include "support/ProgramFolder.h"

#include <QDir>

#include <gtest/gtest.h>

// A date as the rows hold it; an empty part stands for Null.
struct Day
{
  QString month;
  QString day;
  QString year;

  [[nodiscard]] std::string Text() const { return (month + '|' + day + '|' + year).toStdString(); }
};

inline const Day kNoDay = {};
inline const Day kJune = {QStringLiteral("June"), QStringLiteral("12"), QStringLiteral("1999")};
inline const Day kMarch = {QStringLiteral("March"), QStringLiteral("3"), QStringLiteral("1980")};

// People and couples in the database of one test, written and read from outside, and the
// folder of the couples' pictures. Null reads as "-".
class Household
{
public:
  explicit Household(const ProgramFolder& folder) : folder_(folder) {}

  int AddPerson(const QString& first, const QString& last, const QVariant& gender) const
  {
    folder_.Execute("INSERT INTO People (FirstName, LastName, Gender) VALUES (?,?,?)", {first, last, gender});
    return folder_.Value("SELECT max(PeopleID) FROM People").toInt();
  }
  int AddWoman(const QString& first, const QString& last = "Wood") const { return AddPerson(first, last, "Female"); }
  int AddMan(const QString& first, const QString& last = "Marsh") const { return AddPerson(first, last, "Male"); }

  // Marries two people, with the date in all three places. Returns the couple's key.
  int Marry(int wife, int husband, const Day& day = kJune) const
  {
    folder_.Execute(
        "INSERT INTO Ann (Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last) SELECT "
        "w.PeopleID, w.FirstName, w.LastName, h.PeopleID, h.FirstName, h.LastName FROM People w, People h WHERE "
        "w.PeopleID = ? AND h.PeopleID = ?",
        {wife, husband});
    const int couple = folder_.Value("SELECT max(AnnID) FROM Ann").toInt();
    folder_.Execute(Dated("Ann", "AnnID"), Values(day) << couple);
    SetWedding(wife, day);
    SetWedding(husband, day);
    return couple;
  }

  // The copy of the date in the person's own row.
  void SetWedding(int person, const Day& day) const
  {
    folder_.Execute(Dated("People", "PeopleID"), Values(day) << person);
  }
  [[nodiscard]] std::string WeddingOf(int person) const
  {
    return First(QStringLiteral("SELECT AnnMonth, AnnDate, AnnYear FROM People WHERE PeopleID=%1").arg(person));
  }

  // "wife's key|first|last|husband's key|first|last|month|day|year"
  [[nodiscard]] std::string Couple(int couple) const
  {
    return First(QStringLiteral("SELECT Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last, "
                                "AnnMonth, AnnDate, AnnYear FROM Ann WHERE AnnID=%1")
                     .arg(couple));
  }

  [[nodiscard]] std::vector<std::string> Dump(const QString& sql) const
  {
    std::vector<std::string> lines;
    for (const QVariantList& row : folder_.Rows(sql)) {
      QStringList texts;
      for (const QVariant& value : row) {
        texts.append(value.isNull() ? "-" : value.toString());
      }
      lines.push_back(texts.join('|').toStdString());
    }
    return lines;
  }
  [[nodiscard]] std::vector<std::string> People() const { return Dump("SELECT * FROM People ORDER BY PeopleID"); }
  [[nodiscard]] std::vector<std::string> Couples() const { return Dump("SELECT * FROM Ann ORDER BY AnnID"); }
  [[nodiscard]] int CoupleCount() const { return folder_.Value("SELECT count(*) FROM Ann").toInt(); }

  // Everybody's own row holds the date of their couple, or none.
  void ExpectCopiesAgree() const
  {
    EXPECT_EQ(Dump("SELECT p.PeopleID FROM People p LEFT JOIN Ann a ON p.PeopleID IN (a.Spouse1ID, a.Spouse2ID) WHERE "
                   "NOT (p.AnnMonth IS a.AnnMonth AND p.AnnDate IS a.AnnDate AND p.AnnYear IS a.AnnYear)"),
              std::vector<std::string>());
  }

  // --- Pictures.

  [[nodiscard]] QString PictureFile(int couple) const
  {
    return folder_.File(QStringLiteral("/AnnPics/%1.bmp").arg(couple));
  }
  void GivePicture(int couple, const QColor& colour = Qt::red) const
  {
    Hands::SavePicture(PictureFile(couple), colour);
  }
  [[nodiscard]] QStringList PictureFiles() const
  {
    return QDir(folder_.File("/AnnPics")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
  }
  [[nodiscard]] std::string StoredColour(int couple) const { return Hands::MiddleColour(QImage(PictureFile(couple))); }

private:
  static QVariant OrNull(const QString& text) { return text.isEmpty() ? QVariant() : QVariant(text); }
  static QVariantList Values(const Day& day) { return {OrNull(day.month), OrNull(day.day), OrNull(day.year)}; }
  static QString Dated(const QString& table, const QString& key)
  {
    return QStringLiteral("UPDATE %1 SET AnnMonth=?, AnnDate=?, AnnYear=? WHERE %2=?").arg(table, key);
  }
  [[nodiscard]] std::string First(const QString& sql) const
  {
    const std::vector<std::string> lines = Dump(sql);
    return lines.empty() ? "no row" : lines.front();
  }

  const ProgramFolder& folder_;
};
