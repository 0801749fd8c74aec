// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/DataControl.h"

#include "support/HeldDatabase.h"
#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <QDir>
#include <QSignalSpy>
#include <QSqlDatabase>

#include <gtest/gtest.h>

namespace {

class DataControlTest : public testing::Test
{
protected:
  DataControlTest() { data.SetConnectionString(folder.DatabasePath()); }

  void AddCity(const QVariant& city) const { folder.Execute("INSERT INTO People (City) VALUES (?)", {city}); }
  std::string Read(const QString& query)
  {
    data.SetRecordSource(query);
    data.Refresh();
    QStringList texts;
    for (const ChartRow& row : data.Rows()) {
      texts.append(QStringLiteral("%1=%2").arg(row.name).arg(row.total));
    }
    return texts.join(u' ').toStdString();
  }
  int ErrorOfReading(const QString& query)
  {
    return ErrorOf([&] { Read(query); });
  }

  ProgramFolder folder;
  DataControl data;
};

// Whether this process has the file open.
bool IsOpenHere(const QString& path)
{
  const QDir descriptors("/proc/self/fd");
  for (const QFileInfo& entry : descriptors.entryInfoList(QDir::System | QDir::Files | QDir::NoDotAndDotDot)) {
    if (entry.symLinkTarget() == QFileInfo(path).canonicalFilePath()) {
      return true;
    }
  }
  return false;
}

}

TEST_F(DataControlTest, ReadsEachOfTheFiveSubjects)
{
  folder.Execute("INSERT INTO People (City, Province) VALUES ('Bonn', 'Vermont'), ('Ayr', 'Ontario'), ('Bonn', NULL)");
  folder.Execute("UPDATE TotalAge SET Total = 4 WHERE Age = '<10'");
  folder.Execute("UPDATE TotalBirthdays SET Total = 5 WHERE Month = 'Mar'");
  folder.Execute("UPDATE TotalAnn SET Total = 6 WHERE Month = 'Dec'");
  EXPECT_EQ(Read(Queries::kPeopleByCity), "Ayr=1 Bonn=2");
  EXPECT_EQ(Read(Queries::kPeopleByProvince), "Ontario=1 Vermont=1");
  EXPECT_EQ(Read(Queries::kTotalAge), "<10=4 10-19=0 20-29=0 30-39=0 40-49=0 50-59=0 60-69=0 70-79=0 80-89=0 >89=0");
  EXPECT_EQ(Read(Queries::kTotalBirthdays), "Jan=0 Feb=0 Mar=5 Apr=0 May=0 Jun=0 Jul=0 Aug=0 Sep=0 Oct=0 Nov=0 Dec=0");
  EXPECT_EQ(Read(Queries::kTotalAnn), "Jan=0 Feb=0 Mar=0 Apr=0 May=0 Jun=0 Jul=0 Aug=0 Sep=0 Oct=0 Nov=0 Dec=6");
}

TEST_F(DataControlTest, GroupsAsTheStoreDoes)
{
  for (const QVariant& city : {QVariant("Évry"), QVariant("évry"), QVariant("AYR"), QVariant("Straße"), QVariant(),
                               QVariant("strasse"), QVariant("ÉVRY"), QVariant("ayr"), QVariant("")}) {
    AddCity(city);
  }
  const std::string read = Read(Queries::kPeopleByCity);
  Database database = DBEngine::OpenDatabase();
  const auto cursor = database.OpenRecordset(Queries::kPeopleByCity, Database::kDynaset);
  ChartRows rows;
  for (; !cursor->Eof(); cursor->MoveNext()) {
    rows.push_back({cursor->Fields("City").Value().toString(), cursor->Fields("Total").Value().toDouble()});
  }
  EXPECT_EQ(data.Rows(), rows) << read;
  EXPECT_EQ(rows.size(), 5U);
}

TEST_F(DataControlTest, ReadsOnlyWhenItIsToldTo)
{
  AddCity("Ayr");
  const QSignalSpy refreshed(&data, &DataControl::Refreshed);
  data.SetRecordSource(Queries::kPeopleByCity);
  EXPECT_TRUE(data.Rows().empty());
  EXPECT_EQ(refreshed.count(), 0);
  data.Refresh();
  EXPECT_EQ(data.Rows(), (ChartRows{{"Ayr", 1}}));
  EXPECT_EQ(refreshed.count(), 1);
  AddCity("Ayr");
  EXPECT_EQ(data.Rows(), (ChartRows{{"Ayr", 1}}));
  data.Refresh();
  EXPECT_EQ(data.Rows(), (ChartRows{{"Ayr", 2}}));
}

TEST_F(DataControlTest, LeavesTheFileClosedAndNothingBehind)
{
  AddCity("Ayr");
  {
    const Database database = DBEngine::OpenDatabase();
    EXPECT_TRUE(IsOpenHere(folder.DatabasePath()));
  }
  Read(Queries::kPeopleByCity);
  EXPECT_FALSE(IsOpenHere(folder.DatabasePath()));
  EXPECT_TRUE(QSqlDatabase::connectionNames().isEmpty());
  EXPECT_EQ(ErrorOfReading("SELECT City FROM Persons"), StoreError::kUnknownTable);
  EXPECT_FALSE(IsOpenHere(folder.DatabasePath()));
  EXPECT_TRUE(QSqlDatabase::connectionNames().isEmpty());
  EXPECT_NO_THROW(DBEngine::CompactDatabase(folder.DatabasePath(), folder.File("/copy.mdb")));
  const DatabaseTaken taken(folder.DatabasePath());
}

TEST_F(DataControlTest, NeverWrites)
{
  AddCity("Ayr");
  QFile file(folder.DatabasePath());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray before = file.readAll();
  Read(Queries::kPeopleByCity);
  Read(Queries::kTotalAge);
  file.seek(0);
  EXPECT_EQ(file.readAll(), before);
}

TEST_F(DataControlTest, AFileThatAnotherProgramLocksIsToldByItsNumberAndTheRowsStay)
{
  AddCity("Ayr");
  Read(Queries::kPeopleByCity);
  AddCity("Bonn");
  {
    const DatabaseTaken taken(folder.DatabasePath());
    const QSignalSpy refreshed(&data, &DataControl::Refreshed);
    EXPECT_EQ(ErrorOfReading(Queries::kPeopleByCity), StoreError::kLocked);
    EXPECT_EQ(refreshed.count(), 0);
    EXPECT_EQ(data.Rows(), (ChartRows{{"Ayr", 1}}));
    EXPECT_TRUE(QSqlDatabase::connectionNames().isEmpty());
  }
  EXPECT_EQ(Read(Queries::kPeopleByCity), "Ayr=1 Bonn=1");
}

// The session of a page knows the tables already, so that the lock meets the reading itself.
TEST_F(DataControlTest, ALockThatComesLaterIsToldAsWell)
{
  const Database session = DBEngine::OpenDatabase();
  Read(Queries::kPeopleByCity);
  const DatabaseTaken taken(folder.DatabasePath());
  EXPECT_EQ(ErrorOfReading(Queries::kPeopleByCity), StoreError::kLocked);
  EXPECT_TRUE(QSqlDatabase::connectionNames().isEmpty());
}

TEST_F(DataControlTest, AMissingOrDamagedFileIsToldByItsNumberAndMadeByNobody)
{
  QFile::remove(folder.DatabasePath());
  EXPECT_EQ(ErrorOfReading(Queries::kTotalAge), StoreError::kFileNotFound);
  EXPECT_FALSE(QFile::exists(folder.DatabasePath()));
  QFile file(folder.DatabasePath());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray("Dear diary\n").repeated(500));
  file.close();
  EXPECT_EQ(ErrorOfReading(Queries::kTotalAge), StoreError::kNotADatabase);
}

TEST_F(DataControlTest, MissingTablesAndColumnsAreToldByTheirNumber)
{
  folder.Execute("DROP TABLE TotalAge");
  EXPECT_EQ(ErrorOfReading(Queries::kTotalAge), StoreError::kUnknownTable);
  folder.Execute("ALTER TABLE TotalAnn RENAME COLUMN Total TO Sum");
  EXPECT_EQ(ErrorOfReading(Queries::kTotalAnn), StoreError::kUnknownColumn);
  EXPECT_EQ(ErrorOfReading("DROP TABLE People"), StoreError::kSyntax);
}

TEST_F(DataControlTest, WhatIsNoCountIsNothing)
{
  folder.Execute("DROP TABLE TotalAge");
  folder.Execute("CREATE TABLE TotalAge (Age TEXT, Total SMALLINT)");
  folder.Execute(
      "INSERT INTO TotalAge VALUES ('a', 3), ('b', NULL), ('c', 'many'), ('d', -2), (NULL, 1), ('e', '4'), "
      "('f', x'00ff'), ('g', 9e999), ('a', 5)");
  EXPECT_EQ(Read(Queries::kTotalAge), "a=3 b=0 c=0 d=0 =1 e=4 f=0 g=0 a=5");
}

TEST_F(DataControlTest, NamesStandOnOneLine)
{
  AddCity("Ayr\nupon\nSea");
  EXPECT_EQ(Read(Queries::kPeopleByCity), "Ayr upon Sea=1");
}

TEST_F(DataControlTest, FilesOfAnyNameAreRead)
{
  AddCity("Ayr");
  for (const char* name : {"/a;b=c.mdb", "/%41?mode=memory.mdb", "/Évry 1.mdb", "/file:x.mdb"}) {
    const QString path = folder.File(QString::fromUtf8(name));
    ASSERT_TRUE(QFile::copy(folder.DatabasePath(), path));
    data.SetConnectionString(path);
    EXPECT_EQ(Read(Queries::kPeopleByCity), "Ayr=1") << name;
  }
}

TEST_F(DataControlTest, ReadsAHundredThousandPeopleWithAsManyCities)
{
  folder.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<100000) "
      "INSERT INTO People (City) SELECT 'City ' || i FROM n");
  Read(Queries::kPeopleByCity);
  EXPECT_EQ(data.Rows().size(), 100'000U);
}
