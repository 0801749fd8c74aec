// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Attempt.h"
#include "platform/Command.h"
#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sqlite3.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Writes of cursors within commands, seen through a connection of somebody else.
class StoreInCommands : public testing::Test
{
protected:
  StoreInCommands() { folder.Execute("INSERT INTO People (LastName) VALUES ('Adams'), ('Brown'), ('Clark')"); }

  std::unique_ptr<Recordset> Open() { return database.OpenRecordset(Queries::kPartners, Database::kDynaset); }

  [[nodiscard]] QStringList Outside() const
  {
    QStringList names;
    for (const QVariantList& row : folder.Rows("SELECT LastName FROM People ORDER BY PeopleID")) {
      names.append(row.value(0).toString());
    }
    return names;
  }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  const QStringList before{"Adams", "Brown", "Clark"};
};

void SetLastName(Recordset& cursor, const QString& name)
{
  cursor.Edit();
  cursor.Fields("LastName").SetValue(name);
  cursor.Update();
}

void Add(Recordset& cursor, const QString& name)
{
  cursor.AddNew();
  cursor.Fields("LastName").SetValue(name);
  cursor.Update();
}

QStringList LastNames(Recordset& cursor)
{
  QStringList names;
  for (cursor.MoveFirst(); !cursor.Eof(); cursor.MoveNext()) {
    names.append(cursor.Fields("LastName").Value().toString());
  }
  return names;
}

}

TEST_F(StoreInCommands, OutsideACommandEachUpdateIsLastingAtOnce)
{
  const auto cursor = Open();
  SetLastName(*cursor, "Aaron");
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
  Add(*cursor, "Dent");
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark", "Dent"}));
  cursor->Delete();
  EXPECT_EQ(Outside(), QStringList({"Brown", "Clark", "Dent"}));
}

TEST_F(StoreInCommands, WritesAreSeenOutsideWhenTheCommandEnds)
{
  const auto cursor = Open();
  Command::Run([&] {
    SetLastName(*cursor, "Aaron");
    EXPECT_EQ(Outside(), before);
    Add(*cursor, "Dent");
    cursor->MoveNext();
    cursor->Delete();
    EXPECT_EQ(Outside(), before);
  });
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Clark", "Dent"}));
}

TEST_F(StoreInCommands, ACommandSeesItsOwnWrites)
{
  const auto cursor = Open();
  Command::Run([&] {
    SetLastName(*cursor, "Aaron");
    Add(*cursor, "Abbot");
    EXPECT_EQ(LastNames(*Open()), QStringList({"Aaron", "Abbot", "Brown", "Clark"}));
  });
}

TEST_F(StoreInCommands, TwoDatabasesShareACommand)
{
  const auto cursor = Open();
  Database second = DBEngine::OpenDatabase();
  const auto other = second.OpenRecordset("Options", Database::kTable);
  Command::Run([&] {
    SetLastName(*cursor, "Aaron");
    EXPECT_EQ(LastNames(*second.OpenRecordset("People", Database::kTable)), QStringList({"Aaron", "Brown", "Clark"}));
    other->Edit();
    other->Fields("Theme").SetValue(9);
    other->Update();
    EXPECT_EQ(folder.Value("SELECT Theme FROM Options"), 1);
    EXPECT_EQ(Outside(), before);
  });
  EXPECT_EQ(folder.Value("SELECT Theme FROM Options"), 9);
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
}

TEST_F(StoreInCommands, TwoFilesShareACommand)
{
  const ProgramFolder other;
  Database second(other.DatabasePath());
  const auto first = Open();
  const auto options = second.OpenRecordset("Options", Database::kTable);
  const auto write = [&] {
    SetLastName(*first, "Aaron");
    options->Edit();
    options->Fields("Theme").SetValue(9);
    options->Update();
  };
  EXPECT_THROW(Command::Run([&] {
                 write();
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(Outside(), before);
  EXPECT_EQ(other.Value("SELECT Theme FROM Options"), 1);
  Command::Run(write);
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
  EXPECT_EQ(other.Value("SELECT Theme FROM Options"), 9);
}

TEST_F(StoreInCommands, AnExceptionThatLeavesTheCommandTakesAllBack)
{
  const auto cursor = Open();
  EXPECT_THROW(Command::Run([&] {
                 SetLastName(*cursor, "Aaron");
                 Add(*cursor, "Dent");
                 cursor->MoveLast();
                 cursor->MovePrevious();
                 cursor->Delete();
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(Outside(), before);
  EXPECT_EQ(LastNames(*Open()), before);
}

TEST_F(StoreInCommands, ACursorSeesThatAChangeWasTakenBack)
{
  const auto cursor = Open();
  EXPECT_EQ(ErrorOf([&] {
              Command::Run([&] {
                SetLastName(*cursor, "Aaron");
                Add(*cursor, "Dent");
                RaiseError(ErrorNumber::kTypeMismatch);
              });
            }),
            ErrorNumber::kTypeMismatch);
  EXPECT_EQ(LastNames(*cursor), before);
  SetLastName(*Open(), "Abbot");
  EXPECT_EQ(LastNames(*cursor), QStringList({"Abbot", "Brown", "Clark"}));
}

TEST_F(StoreInCommands, ACursorSeesThatAChangeOfAnOrderingColumnWasTakenBack)
{
  folder.Execute("UPDATE People SET BirthMonth = 'May'");
  const auto cursor = database.OpenRecordset(Queries::kBirthdaysByMonth, Database::kDynaset);
  std::unique_ptr<Recordset> within;
  EXPECT_THROW(Command::Run([&] {
                 cursor->Edit();
                 cursor->Fields("BirthMonth").SetValue("June");
                 cursor->Update();
                 within = database.OpenRecordset(Queries::kBirthdaysByMonth, Database::kDynaset);
                 within->MoveLast();
                 EXPECT_EQ(within->Fields("BirthMonth").Value(), "May");
                 within->MoveFirst();
                 EXPECT_EQ(within->Fields("BirthMonth").Value(), "June");
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(cursor->Fields("BirthMonth").Value(), "May");
  EXPECT_EQ(within->Fields("BirthMonth").Value(), "May");
}

TEST_F(StoreInCommands, ARowAddedInACommandThatWasTakenBackIsGone)
{
  for (const bool isTable : {false, true}) {
    const auto cursor = isTable ? database.OpenRecordset("People", Database::kTable) : Open();
    EXPECT_THROW(Command::Run([&] {
                   Add(*cursor, "Dent");
                   cursor->MoveLast();
                   EXPECT_EQ(cursor->Fields("LastName").Value(), "Dent");
                   throw std::runtime_error("stop");
                 }),
                 std::runtime_error);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(cursor->Fields("LastName").Value()); }), StoreError::kRecordDeleted);
    cursor->MovePrevious();
    EXPECT_EQ(cursor->Fields("LastName").Value(), "Clark");
    cursor->MoveLast();
    EXPECT_EQ(cursor->Fields("LastName").Value(), "Clark");
  }
}

TEST_F(StoreInCommands, AFailureThatIsSteppedOverTakesNothingBack)
{
  folder.Execute("INSERT INTO Ann (Spouse1ID) VALUES (1)");
  const auto cursor = Open();
  const auto couples = database.OpenRecordset("Ann", Database::kTable);
  Command::Run([&] {
    SetLastName(*cursor, "Aaron");
    couples->AddNew();
    couples->Fields("Spouse1ID").SetValue(1);
    EXPECT_FALSE(Attempt([&] { couples->Update(); }));
    couples->CancelUpdate();
    cursor->MoveNext();
    SetLastName(*cursor, "Burns");
  });
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Burns", "Clark"}));
  EXPECT_EQ(folder.Value("SELECT Count(*) FROM Ann"), 1);
}

TEST_F(StoreInCommands, NestedCommandsAreOne)
{
  const auto cursor = Open();
  Command::Run([&] {
    Command::Run([&] { SetLastName(*cursor, "Aaron"); });
    EXPECT_EQ(Outside(), before);
  });
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
}

TEST_F(StoreInCommands, APauseMakesTheWritesBeforeItLasting)
{
  const auto cursor = Open();
  EXPECT_THROW(Command::Run([&] {
                 SetLastName(*cursor, "Aaron");
                 {
                   const Command::Pause pause;
                   EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
                   folder.Execute("UPDATE People SET LastName = 'Burns' WHERE LastName = 'Brown'");
                 }
                 SetLastName(*cursor, "Abbot");
                 EXPECT_EQ(Outside(), QStringList({"Aaron", "Burns", "Clark"}));
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Burns", "Clark"}));
}

TEST_F(StoreInCommands, WritesDuringAPauseAreLastingWhateverBecomesOfTheCommand)
{
  const auto cursor = Open();
  EXPECT_THROW(Command::Run([&] {
                 {
                   const Command::Pause pause;
                   SetLastName(*cursor, "Aaron");
                   EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
                   Command::Run([&] { Add(*cursor, "Dent"); });
                   EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark", "Dent"}));
                 }
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark", "Dent"}));
}

TEST_F(StoreInCommands, ChangesMadeElsewhereDuringAPauseAreSeenAfterIt)
{
  for (const bool isTable : {false, true}) {
    folder.Execute("UPDATE People SET LastName = 'Adams' WHERE PeopleID = 1");
    const auto cursor = isTable ? database.OpenRecordset("People", Database::kTable) : Open();
    Command::Run([&] {
      EXPECT_EQ(cursor->Fields("LastName").Value(), "Adams");
      {
        const Command::Pause pause;
        folder.Execute("UPDATE People SET LastName = 'Abbot' WHERE PeopleID = 1");
      }
      EXPECT_EQ(cursor->Fields("LastName").Value(), "Abbot");
    });
  }
}

TEST_F(StoreInCommands, SettlingMakesWhatWasWrittenSoFarLasting)
{
  const auto cursor = Open();
  EXPECT_THROW(Command::Run([&] {
                 SetLastName(*cursor, "Aaron");
                 Command::Settle();
                 EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
                 SetLastName(*cursor, "Abbot");
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
}

TEST_F(StoreInCommands, ClosingWithinACommandKeepsItsWritesTogether)
{
  const auto write = [&] {
    Database second = DBEngine::OpenDatabase();
    SetLastName(*second.OpenRecordset("People", Database::kTable), "Aaron");
    second.Close();
    EXPECT_EQ(Outside(), before);
  };
  database.Close();
  EXPECT_THROW(Command::Run([&] {
                 write();
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(Outside(), before);
  Command::Run(write);
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
}

TEST_F(StoreInCommands, ACopyMadeAfterClosingHoldsTheWritesOfItsCommand)
{
  const QString copy = folder.File("/copy.mdb");
  database.Close();
  Command::Run([&] {
    {
      Database second = DBEngine::OpenDatabase();
      SetLastName(*second.OpenRecordset("People", Database::kTable), "Aaron");
    }
    DBEngine::CompactDatabase(folder.DatabasePath(), copy);
  });
  Database copied = DBEngine::Workspaces(0).OpenDatabase(copy);
  EXPECT_EQ(LastNames(*copied.OpenRecordset("People", Database::kTable)), QStringList({"Aaron", "Brown", "Clark"}));
}

TEST_F(StoreInCommands, OthersCanWriteBetweenCommandsWhileCursorsAreOpen)
{
  const auto query = Open();
  const auto table = database.OpenRecordset("People", Database::kTable);
  const auto edited = Open();
  query->MoveNext();
  table->SetIndex("BirthMonth");
  edited->Edit();
  edited->Fields("LastName").SetValue("Aaron");
  Command::Run([&] {
    table->MoveNext();
    SetLastName(*query, "Burns");
  });

  sqlite3* outside = nullptr;
  sqlite3_open_v2(folder.DatabasePath().toUtf8().constData(), &outside, SQLITE_OPEN_READWRITE, nullptr);
  EXPECT_EQ(sqlite3_exec(outside, "BEGIN EXCLUSIVE; UPDATE People SET City = 'Ayr'; COMMIT", nullptr, nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(outside);

  edited->Update();
  EXPECT_EQ(edited->Fields("LastName").Value(), "Aaron");
  EXPECT_EQ(folder.Rows("SELECT LastName, City FROM People WHERE PeopleID = 1"),
            std::vector<QVariantList>({{"Aaron", "Ayr"}}));
}

TEST_F(StoreInCommands, AWriterElsewhereIsNotOverrun)
{
  const auto cursor = Open();
  sqlite3* outside = nullptr;
  sqlite3_open_v2(folder.DatabasePath().toUtf8().constData(), &outside, SQLITE_OPEN_READWRITE, nullptr);
  sqlite3_exec(outside, "BEGIN IMMEDIATE; UPDATE People SET LastName = 'Abbot' WHERE PeopleID = 1", nullptr, nullptr,
               nullptr);
  EXPECT_EQ(ErrorOf([&] { Command::Run([&] { SetLastName(*cursor, "Aaron"); }); }), StoreError::kLocked);
  EXPECT_FALSE(Command::IsRunning());
  EXPECT_EQ(sqlite3_exec(outside, "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(outside);
  EXPECT_EQ(Outside(), QStringList({"Abbot", "Brown", "Clark"}));
  cursor->CancelUpdate();
  Command::Run([&] { SetLastName(*cursor, "Aaron"); });
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Brown", "Clark"}));
}

TEST_F(StoreInCommands, AReaderElsewhereCanRefuseTheEndOfACommand)
{
  const auto cursor = Open();
  sqlite3* outside = nullptr;
  sqlite3_open_v2(folder.DatabasePath().toUtf8().constData(), &outside, SQLITE_OPEN_READWRITE, nullptr);
  sqlite3_exec(outside, "BEGIN; SELECT * FROM People", nullptr, nullptr, nullptr);
  EXPECT_EQ(ErrorOf([&] { Command::Run([&] { SetLastName(*cursor, "Aaron"); }); }), StoreError::kLocked);
  EXPECT_FALSE(Command::IsRunning());
  sqlite3_close(outside);
  EXPECT_EQ(Outside(), before);
  EXPECT_EQ(LastNames(*cursor), before);
  Command::Run([&] { SetLastName(*Open(), "Abbot"); });
  EXPECT_EQ(Outside(), QStringList({"Abbot", "Brown", "Clark"}));
}

TEST_F(StoreInCommands, AProcessKilledWithinACommandLeavesNothingHalf)
{
  database.Close();
  for (const int notes : {10, 200'000}) {
    const pid_t child = fork();
    if (child == 0) {
      Database own = DBEngine::OpenDatabase();
      const auto cursor = own.OpenRecordset("People", Database::kTable);
      Command::Run([&] {
        SetLastName(*cursor, "Aaron");
        for (int i = 0; i < 50; ++i) {
          cursor->AddNew();
          cursor->Fields("Notes").SetValue(QString(notes, u'x'));
          cursor->Update();
        }
        cursor->Delete();
        kill(getpid(), SIGKILL);
      });
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(Outside(), before);
    EXPECT_EQ(folder.Value("PRAGMA integrity_check"), "ok");
    Database again = DBEngine::OpenDatabase();
    EXPECT_EQ(again.OpenRecordset("People", Database::kTable)->RecordCount(), 3);
  }
}

TEST_F(StoreInCommands, AProcessKilledAfterACommandLeavesAllOfIt)
{
  database.Close();
  const pid_t child = fork();
  if (child == 0) {
    Database own = DBEngine::OpenDatabase();
    const auto cursor = own.OpenRecordset("People", Database::kTable);
    Command::Run([&] {
      SetLastName(*cursor, "Aaron");
      cursor->MoveNext();
      cursor->Delete();
    });
    kill(getpid(), SIGKILL);
    _exit(0);
  }
  waitpid(child, nullptr, 0);
  EXPECT_EQ(Outside(), QStringList({"Aaron", "Clark"}));
}

TEST_F(StoreInCommands, AnAdditionTakenBackLeavesTheFileAsItWas)
{
  const auto wholeFile = [&] { return folder.Rows("SELECT * FROM People, Options"); };
  const auto rows = wholeFile();
  EXPECT_THROW(Command::Run([&] {
                 const auto cursor = Open();
                 for (int i = 0; i < 100; ++i) {
                   Add(*cursor, QString(10'000, u'x'));
                 }
                 throw std::runtime_error("stop");
               }),
               std::runtime_error);
  EXPECT_EQ(wholeFile(), rows);
  EXPECT_EQ(folder.Value("PRAGMA integrity_check"), "ok");
}
