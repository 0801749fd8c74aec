// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Schema.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QFile>

#include <map>
#include <stdexcept>

namespace {

QStringList Texts(const ProgramFolder& folder, const QString& sql)
{
  QStringList texts;
  for (const QVariantList& row : folder.Rows(sql)) {
    texts.append(row.value(0).toString());
  }
  return texts;
}

QStringList Lines(const QString& path)
{
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return {};
  }
  QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
  if (lines.last().isEmpty()) {
    lines.removeLast();
  }
  return lines;
}

}

TEST(Schema, FindsColumnsAndIndexesWithoutRegardToCase)
{
  const TableSchema table{
      "Reminders", "ID", {{"ID", ColumnType::kInteger}, {"Month", ColumnType::kText}}, {{"Month", "Month"}}};
  ASSERT_NE(table.FindColumn("month"), nullptr);
  EXPECT_EQ(table.FindColumn("month")->name, "Month");
  ASSERT_NE(table.FindColumn("ID"), nullptr);
  EXPECT_EQ(table.FindColumn("id")->type, ColumnType::kInteger);
  ASSERT_NE(table.FindIndex("MONTH"), nullptr);
  EXPECT_EQ(table.FindIndex("MONTH")->column, "Month");
  for (const QString name : {"", "Mont", "Months", "Month "}) {
    EXPECT_EQ(table.FindColumn(name), nullptr) << name.toStdString();
    EXPECT_EQ(table.FindIndex(name), nullptr) << name.toStdString();
  }
  EXPECT_EQ(table.FindIndex("ID"), nullptr);
}

TEST(Schema, QuotesNames)
{
  EXPECT_EQ(QuoteName("Month"), "\"Month\"");
  EXPECT_EQ(QuoteName(""), "\"\"");
  EXPECT_EQ(QuoteName("a\"b"), "\"a\"\"b\"");
  EXPECT_EQ(QuoteName("it's"), "\"it's\"");
}

TEST(DeliveredDatabase, HasSevenTablesWithTheirColumns)
{
  const std::map<QString, QStringList> expected{
      {"People",
       {"PeopleID",   "LastName",  "FirstName", "SpouseFirst", "SpouseLast", "Street",   "SecondAddress", "City",
        "Province",   "Country",   "Postal",    "Phone",       "Mobile",     "Business", "Email",         "Notes",
        "BirthMonth", "BirthDate", "BirthYear", "AnnMonth",    "AnnDate",    "AnnYear",  "Gender",        "Convert"}},
      {"Ann",
       {"AnnID", "Spouse1ID", "Spouse1First", "Spouse1Last", "Spouse2ID", "Spouse2First", "Spouse2Last", "AnnMonth",
        "AnnDate", "AnnYear"}},
      {"Reminders", {"ID", "Month", "Date", "Event", "Time", "Notes"}},
      {"TotalBirthdays", {"Month", "Total"}},
      {"TotalAnn", {"Month", "Total"}},
      {"TotalAge", {"Age", "Total"}},
      {"Options",
       {"WindowState", "Theme", "ToolTips", "ReminderOnStart", "TextMessage", "AudioMessage", "BirthAudio", "BirthOnce",
        "BirthMany", "BirthLength", "AnnAudio", "AnnOnce", "AnnMany", "AnnLength", "CalAudio", "CalOnce", "CalMany",
        "CalLength"}},
  };
  const ProgramFolder folder;
  std::map<QString, QStringList> tables;
  for (const QString& table :
       Texts(folder, "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite!_%' ESCAPE '!'")) {
    tables[table] = Texts(folder, QStringLiteral("SELECT name FROM pragma_table_info('%1') ORDER BY cid").arg(table));
  }
  EXPECT_EQ(tables, expected);
}

TEST(DeliveredDatabase, HasItsIndexesAndNoOthers)
{
  const ProgramFolder folder;
  EXPECT_EQ(
      folder.Rows("SELECT m.name, l.name, i.name, l.\"unique\" FROM sqlite_master m, pragma_index_list(m.name) l, "
                  "pragma_index_info(l.name) i WHERE m.type = 'table' AND l.origin = 'c' ORDER BY 1, 2"),
      std::vector<QVariantList>({
          {"Ann", "AnnDate", "AnnDate", 0},
          {"Ann", "AnnMonth", "AnnMonth", 0},
          {"Ann", "AnnYear", "AnnYear", 0},
          {"Ann", "Spouse1ID", "Spouse1ID", 1},
          {"Ann", "Spouse2ID", "Spouse2ID", 1},
          {"People", "BirthMonth", "BirthMonth", 0},
          {"Reminders", "Date", "Date", 0},
          {"Reminders", "Month", "Month", 0},
      }));
}

TEST(DeliveredDatabase, HoldsNobodyYet)
{
  const ProgramFolder folder;
  for (const QString table : {"People", "Ann", "Reminders"}) {
    EXPECT_EQ(folder.Value("SELECT Count(*) FROM " + table), 0) << table.toStdString();
  }
}

TEST(DeliveredDatabase, TalliesStandAtZeroInTheirOrder)
{
  const ProgramFolder folder;
  const QStringList months{"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  EXPECT_EQ(Texts(folder, "SELECT Month FROM TotalBirthdays ORDER BY rowid"), months);
  EXPECT_EQ(Texts(folder, "SELECT Month FROM TotalAnn ORDER BY rowid"), months);
  EXPECT_EQ(Texts(folder, "SELECT Age FROM TotalAge ORDER BY rowid"),
            QStringList({"<10", "10-19", "20-29", "30-39", "40-49", "50-59", "60-69", "70-79", "80-89", ">89"}));
  for (const QString table : {"TotalBirthdays", "TotalAnn", "TotalAge"}) {
    EXPECT_EQ(folder.Value("SELECT Count(*) FROM " + table + " WHERE Total IS NOT 0"), 0) << table.toStdString();
  }
}

TEST(DeliveredDatabase, HasOneRowOfOptions)
{
  const ProgramFolder folder;
  EXPECT_EQ(folder.Rows("SELECT WindowState, Theme, ToolTips, ReminderOnStart, TextMessage, AudioMessage FROM Options"),
            std::vector<QVariantList>({{0, 1, 0, 1, 1, 1}}));
  EXPECT_EQ(folder.Rows("SELECT BirthAudio, BirthOnce, BirthMany, BirthLength FROM Options"),
            std::vector<QVariantList>({{1, 0, 1, 7}}));
  EXPECT_EQ(folder.Rows("SELECT AnnAudio, AnnOnce, AnnMany, AnnLength FROM Options"),
            std::vector<QVariantList>({{1, 0, 1, 7}}));
  EXPECT_EQ(folder.Rows("SELECT CalAudio, CalOnce, CalMany, CalLength FROM Options"),
            std::vector<QVariantList>({{1, 0, 1, 3}}));
}

TEST(DeliveredDatabase, RefusesAChangeOfATallyToNull)
{
  const ProgramFolder folder;
  EXPECT_THROW(folder.Execute("UPDATE TotalAge SET Total = NULL"), std::runtime_error);
}

TEST(DeliveredTexts, MonthsAreTheTwelveInOrder)
{
  const ProgramFolder folder;
  EXPECT_EQ(Lines(folder.File("/months.txt")),
            QStringList({"January", "February", "March", "April", "May", "June", "July", "August", "September",
                         "October", "November", "December"}));
}

TEST(DeliveredTexts, EventTitlesAreShortAndNoneIsEmpty)
{
  const ProgramFolder folder;
  const QStringList titles = Lines(folder.File("/reminders.txt"));
  EXPECT_FALSE(titles.isEmpty());
  for (const QString& title : titles) {
    EXPECT_FALSE(title.trimmed().isEmpty());
    EXPECT_EQ(title, title.trimmed());
    EXPECT_LE(title.size(), 12) << title.toStdString();
  }
}
