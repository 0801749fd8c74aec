// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/CalendarEvents.h"
#include "calendar/EventRecords.h"
#include "store/DBEngine.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

using EventRecords::Change;

namespace {

const QDate kDate(2026, 5, 12);

class EventRecordsTest : public testing::Test
{
protected:
  int Store(const QString& date, const QString& event, const QVariant& time = {}, const QVariant& notes = {}) const
  {
    folder.Execute("INSERT INTO Reminders (Month, Date, Event, Time, Notes) VALUES ('May',?,?,?,?)",
                   {date, event, time, notes});
    return folder.Value("SELECT max(ID) FROM Reminders").toInt();
  }
  [[nodiscard]] std::vector<std::string> Rows() const
  {
    std::vector<std::string> rows;
    for (const QVariantList& row : folder.Rows("SELECT Month, Date, Event, Time, Notes FROM Reminders ORDER BY ID")) {
      QStringList texts;
      for (const QVariant& value : row) {
        texts.append(value.isNull() ? "-" : value.toString());
      }
      rows.push_back(texts.join('|').toStdString());
    }
    return rows;
  }
  using Lines = std::vector<std::string>;

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

}

TEST_F(EventRecordsTest, AnEventIsAdded)
{
  EventRecords::Add(database, "May", kDate, {"Dentist", "9:30 pm", "Bring the card"});
  EventRecords::Add(database, "May", kDate, {"  Vet  ", "", ""});
  EventRecords::Add(database, "May", kDate, {"Rent", "9 am", " "});
  EXPECT_EQ(Rows(), Lines({"May|2026-05-12|Dentist|21:30:00|Bring the card", "May|2026-05-12|  Vet  |-|-",
                           "May|2026-05-12|Rent|09:00:00| "}));
}

TEST_F(EventRecordsTest, AnEventWhoseTimeCannotBeReadIsNotAdded)
{
  for (const char* time : {"noonish", " ", "25:00"}) {
    EXPECT_EQ(ErrorOf([&] {
                EventRecords::Add(database, "May", kDate, {"Dentist", time, "notes"});
              }),
              ErrorNumber::kTypeMismatch);
  }
  EXPECT_EQ(Rows(), Lines());
}

TEST_F(EventRecordsTest, AnEventIsChangedOnItsDate)
{
  const int id = Store("2026-05-12", "Dentist", "09:00:00", "Bring the card");
  Store("2026-05-12", "Dentist", "09:00:00", "Another");
  EXPECT_EQ(EventRecords::Write(database, kDate, id, {"Vet", "9:30 pm", ""}), Change::kWritten);
  EXPECT_EQ(Rows(), Lines({"May|2026-05-12|Vet|21:30:00|-", "May|2026-05-12|Dentist|09:00:00|Another"}));
  EXPECT_EQ(EventRecords::Write(database, kDate, id, {"Vet", "", "New"}), Change::kWritten);
  EXPECT_EQ(Rows(), Lines({"May|2026-05-12|Vet|-|New", "May|2026-05-12|Dentist|09:00:00|Another"}));
}

TEST_F(EventRecordsTest, AChangeWhoseTimeCannotBeReadIsNotWritten)
{
  const int id = Store("2026-05-12", "Dentist", "09:00:00", "Bring the card");
  EXPECT_EQ(ErrorOf([&] {
              EventRecords::Write(database, kDate, id, {"Vet", "noonish", "New"});
            }),
            ErrorNumber::kTypeMismatch);
  EXPECT_EQ(Rows(), Lines({"May|2026-05-12|Dentist|09:00:00|Bring the card"}));
}

TEST_F(EventRecordsTest, AChangeWithoutATitleIsNotWritten)
{
  const int id = Store("2026-05-12", "Dentist");
  EXPECT_EQ(EventRecords::Write(database, kDate, id, {"", "9 am", ""}), Change::kUntitled);
  EXPECT_EQ(Rows(), Lines({"May|2026-05-12|Dentist|-|-"}));
}

TEST_F(EventRecordsTest, AnEventThatIsNotThereIsNeitherChangedNorDeleted)
{
  const int id = Store("2026-05-13", "Dentist");
  for (const int wanted : {id, id + 1, 0, -1}) {
    EXPECT_EQ(EventRecords::Write(database, kDate, wanted, {"Vet", "", ""}), Change::kGone);
    EventRecords::Delete(database, kDate, wanted);
  }
  EXPECT_EQ(Rows(), Lines({"May|2026-05-13|Dentist|-|-"}));
}

TEST_F(EventRecordsTest, TheEventOfThatIdIsDeleted)
{
  Store("2026-05-12", "Dentist", "09:00:00");
  const int id = Store("2026-05-12", "Dentist", "10:00:00");
  Store("2026-05-12", "Dentist", "11:00:00");
  EventRecords::Delete(database, kDate, id);
  EXPECT_EQ(Rows(), Lines({"May|2026-05-12|Dentist|09:00:00|-", "May|2026-05-12|Dentist|11:00:00|-"}));
}

TEST_F(EventRecordsTest, AnyEventCountsOnWhateverDate)
{
  EXPECT_FALSE(EventRecords::Any(database));
  const int id = Store("1999-01-01", "Dentist");
  EXPECT_TRUE(EventRecords::Any(database));
  EventRecords::Delete(database, QDate(1999, 1, 1), id);
  EXPECT_FALSE(EventRecords::Any(database));
}
