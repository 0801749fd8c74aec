// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Command.h"
#include "store/DBEngine.h"
#include "store/Queries.h"
#include "support/ProgramFolder.h"

#include <optional>

#include <gtest/gtest.h>

namespace {

constexpr int kPeople = 5000;

// Long enough for a walk to be read in one pass over the table.
class LongWalk : public testing::Test
{
protected:
  LongWalk()
  {
    folder.Execute(
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<5000) "
                       "INSERT INTO People (LastName, FirstName, City, Gender) "
                       "SELECT 'L' || (i*7919%10007), 'F' || i, 'C' || i, 'Male' FROM n"));
    database = DBEngine::OpenDatabase();
    people = database->OpenRecordset(Queries::kAddresses, Database::kDynaset);
  }

  [[nodiscard]] QString Text(const char* column) const
  {
    return people->Fields(QLatin1String(column)).Value().toString();
  }

  // What the current row must say, by its key.
  [[nodiscard]] QString ExpectedName() const
  {
    const int key = people->Fields(QStringLiteral("PeopleID")).Value().toInt();
    return QStringLiteral("L%1, F%2").arg(key * 7919 % 10007).arg(key);
  }

  ProgramFolder folder;
  std::optional<Database> database;
  std::unique_ptr<Recordset> people;
};

}

TEST_F(LongWalk, EveryRowSaysWhatStandsUnderItsKey)
{
  Command::Run([this] {
    int count = 0;
    for (; !people->Eof(); people->MoveNext()) {
      ASSERT_EQ(Text("FullName"), ExpectedName());
      ++count;
    }
    EXPECT_EQ(count, kPeople);
  });
}

TEST_F(LongWalk, AColumnAskedForLateIsRead)
{
  Command::Run([this] {
    for (int row = 0; row < 3000; ++row) {
      ASSERT_EQ(Text("FullName"), ExpectedName());
      people->MoveNext();
    }
    const QVariant& name = people->Fields(QStringLiteral("FullName")).Peek();
    const QString before = name.toString();
    for (; !people->Eof(); people->MoveNext()) {
      ASSERT_EQ(Text("City"), QStringLiteral("C") + people->Fields(QStringLiteral("PeopleID")).Value().toString());
      ASSERT_EQ(Text("FullName"), ExpectedName());
    }
    EXPECT_FALSE(before.isEmpty());
  });
}

TEST_F(LongWalk, AValueStaysGoodWhileFurtherColumnsOfItsRowAreAskedFor)
{
  Command::Run([this] {
    for (int row = 0; row < 3000; ++row) {
      static_cast<void>(Text("FullName"));
      people->MoveNext();
    }
    const QVariant& name = people->Fields(QStringLiteral("FullName")).Peek();
    const QString before = name.toString();
    for (const char* column : {"City", "Street", "Gender", "LastName", "FirstName", "Notes"}) {
      static_cast<void>(people->Fields(QLatin1String(column)).Peek());
      EXPECT_EQ(name.toString(), before) << column;
    }
  });
}

TEST_F(LongWalk, ChangesOnTheWayAreSeen)
{
  Command::Run([this] {
    const auto other = database->OpenRecordset(Queries::kAddresses, Database::kDynaset);
    other->MoveLast();
    const QString last = other->Fields(QStringLiteral("PeopleID")).Value().toString();
    for (int row = 0; row < 3000; ++row) {
      static_cast<void>(Text("FullName"));
      people->MoveNext();
    }
    other->Edit();
    other->Fields(QStringLiteral("FirstName")).SetValue(QStringLiteral("Changed"));
    other->Update();
    other->MovePrevious();
    other->Delete();
    int count = 3000;
    QString seen;
    for (; !people->Eof(); people->MoveNext()) {
      seen = Text("FullName");
      ++count;
    }
    EXPECT_EQ(count, kPeople - 1);
    EXPECT_TRUE(seen.endsWith(QStringLiteral(", Changed"))) << seen.toStdString() << last.toStdString();
  });
}

TEST_F(LongWalk, AJumpOutOfTheWalkLandsRight)
{
  Command::Run([this] {
    for (int row = 0; row < 3000; ++row) {
      static_cast<void>(Text("FullName"));
      people->MoveNext();
    }
    people->MoveFirst();
    EXPECT_EQ(Text("FullName"), ExpectedName());
    people->MoveLast();
    EXPECT_EQ(Text("FullName"), ExpectedName());
    people->MovePrevious();
    EXPECT_EQ(Text("FullName"), ExpectedName());
  });
}

TEST_F(LongWalk, ACursorOpenedAfterAChangeIsInTheNewOrder)
{
  const auto first = [this] {
    const auto cursor = database->OpenRecordset(Queries::kRecords, Database::kDynaset);
    return cursor->Fields(QStringLiteral("FullName")).Value().toString();
  };
  EXPECT_EQ(first(), Text("FullName"));
  people->MoveLast();
  people->Edit();
  people->Fields(QStringLiteral("LastName")).SetValue(QStringLiteral("Aaron"));
  people->Update();
  EXPECT_TRUE(first().startsWith(QStringLiteral("Aaron, "))) << first().toStdString();
  folder.Execute(QStringLiteral("UPDATE People SET LastName = 'Aa', FirstName = 'From outside' WHERE PeopleID = 7"));
  EXPECT_EQ(first(), QStringLiteral("Aa, From outside"));
}
