// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/Couples.h"

#include "platform/Attempt.h"
#include "store/DBEngine.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace {

class CouplesTest : public testing::Test
{
protected:
  void AddCouple(int annID, const QVariant& spouse1, const QVariant& spouse2) const
  {
    folder.Execute(
        "INSERT INTO Ann (AnnID, Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, "
        "Spouse2Last, AnnMonth) VALUES (?, ?, 'One', 'First', ?, 'Two', 'Second', 'June')",
        {annID, spouse1, spouse2});
  }

  void AddPerson(int personID) const
  {
    folder.Execute(
        "INSERT INTO People (PeopleID, FirstName, BirthMonth, AnnMonth, AnnDate, AnnYear) "
        "VALUES (?, 'Ann', 'May', 'June', '7', '1990')",
        {personID});
  }

  std::unique_ptr<Recordset> Open(const char* table = "Ann")
  {
    return database.OpenRecordset(QString(table), Database::kTable);
  }

  std::string KeysOf(int personID)
  {
    const std::unique_ptr<Recordset> couples = Open();
    return KeysOf(*couples, personID);
  }

  static std::string KeysOf(Recordset& couples, int personID)
  {
    QStringList keys;
    for (const Couples::Couple& couple : Couples::Of(couples, personID)) {
      keys.append(QStringLiteral("%1:%2+%3").arg(couple.annID).arg(couple.spouse1ID).arg(couple.spouse2ID));
    }
    return keys.join(u' ').toStdString();
  }

  // The names of a couple.
  [[nodiscard]] std::string Names(int annID) const
  {
    QStringList names;
    const QVariantList row = folder
                                 .Rows(QStringLiteral("SELECT Spouse1First, Spouse1Last, Spouse2First, Spouse2Last "
                                                      "FROM Ann WHERE AnnID=%1")
                                           .arg(annID))
                                 .at(0);
    for (const QVariant& name : row) {
      names.append(name.isValid() ? name.toString() : QStringLiteral("Null"));
    }
    return names.join(u' ').toStdString();
  }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
};

}

TEST_F(CouplesTest, PartnerIsTheOtherOne)
{
  const Couples::Couple couple{1, 10, 20};
  EXPECT_EQ(couple.PartnerOf(10), 20);
  EXPECT_EQ(couple.PartnerOf(20), 10);
}

TEST_F(CouplesTest, ArePersonsWhicheverSideTheyStandOn)
{
  AddCouple(1, 10, 20);
  AddCouple(2, 30, 40);
  AddCouple(3, 50, 60);
  EXPECT_EQ(KeysOf(10), "1:10+20");
  EXPECT_EQ(KeysOf(20), "1:10+20");
  EXPECT_EQ(KeysOf(40), "2:30+40");
  EXPECT_EQ(KeysOf(60), "3:50+60");
  EXPECT_EQ(KeysOf(1), "");
  EXPECT_EQ(KeysOf(99), "");
}

TEST_F(CouplesTest, WithoutAnyThereAreNone)
{
  EXPECT_EQ(KeysOf(10), "");
  EXPECT_EQ(KeysOf(0), "");
}

TEST_F(CouplesTest, OfADamagedFileComeInTheOrderOfTheTable)
{
  AddCouple(7, 10, 20);
  AddCouple(3, 30, 10);
  AddCouple(5, 40, 50);
  EXPECT_EQ(KeysOf(10), "3:30+10 7:10+20");
}

TEST_F(CouplesTest, OfOneWithThemselvesIsOneCouple)
{
  AddCouple(4, 10, 10);
  EXPECT_EQ(KeysOf(10), "4:10+10");
}

TEST_F(CouplesTest, WithoutAPartnerAreStillFound)
{
  AddCouple(1, {}, 20);
  AddCouple(2, 30, {});
  AddCouple(3, {}, {});
  EXPECT_EQ(KeysOf(20), "1:0+20");
  EXPECT_EQ(KeysOf(30), "2:30+0");
}

TEST_F(CouplesTest, AreFoundWhereverTheCursorStands)
{
  AddCouple(1, 10, 20);
  AddCouple(2, 30, 40);
  AddCouple(3, 5, 6);
  const std::unique_ptr<Recordset> couples = Open();
  couples->MoveLast();
  EXPECT_EQ(KeysOf(*couples, 10), "1:10+20");
  EXPECT_EQ(KeysOf(*couples, 6), "3:5+6");
  couples->SetIndex("Spouse2ID");
  couples->MoveLast();
  couples->MoveNext();
  EXPECT_EQ(KeysOf(*couples, 20), "1:10+20");
  EXPECT_EQ(KeysOf(*couples, 30), "2:30+40");
}

TEST_F(CouplesTest, CursorGoesToACoupleThatIsThere)
{
  AddCouple(1, 10, 20);
  AddCouple(2, 30, 40);
  AddCouple(3, 50, 60);
  const std::unique_ptr<Recordset> couples = Open();
  for (const int personID : {40, 10, 50}) {
    const Couples::Couple couple = Couples::Of(*couples, personID).at(0);
    ASSERT_TRUE(Couples::GoTo(*couples, couple));
    EXPECT_EQ(couples->Fields("AnnID").Value().toInt(), couple.annID);
  }
}

TEST_F(CouplesTest, CursorFindsNoCoupleThatIsGone)
{
  AddCouple(1, 10, 20);
  AddCouple(2, 30, 40);
  const std::unique_ptr<Recordset> couples = Open();
  const Couples::Couple first = Couples::Of(*couples, 10).at(0);
  folder.Execute("DELETE FROM Ann WHERE AnnID=1");
  EXPECT_FALSE(Couples::GoTo(*couples, first));
  const Couples::Couple second = Couples::Of(*couples, 30).at(0);
  ASSERT_TRUE(Couples::GoTo(*couples, second));
  couples->Delete();
  EXPECT_FALSE(Couples::GoTo(*couples, second));
}

TEST_F(CouplesTest, WithoutSpousesAreGoneToAsWell)
{
  AddCouple(1, 10, 20);
  AddCouple(2, {}, 40);
  AddCouple(3, 50, {});
  const std::unique_ptr<Recordset> couples = Open();
  for (const int personID : {40, 50}) {
    const Couples::Couple couple = Couples::Of(*couples, personID).at(0);
    ASSERT_TRUE(Couples::GoTo(*couples, couple)) << personID;
    EXPECT_EQ(couples->Fields("AnnID").Value().toInt(), couple.annID);
  }
}

TEST_F(CouplesTest, TakeTheNewNameOfEitherSpouse)
{
  AddCouple(1, 10, 20);
  AddCouple(2, 30, 40);
  const std::unique_ptr<Recordset> couples = Open();
  Couples::CopyName(*couples, 10, "Ann", "Smith");
  EXPECT_EQ(Names(1), "Ann Smith Two Second");
  Couples::CopyName(*couples, 20, "Bob", "O'Hara");
  EXPECT_EQ(Names(1), "Ann Smith Bob O'Hara");
  EXPECT_EQ(Names(2), "One First Two Second");
  Couples::CopyName(*couples, 99, "Cid", "Clark");
  EXPECT_EQ(Names(2), "One First Two Second");
}

TEST_F(CouplesTest, TakeTheNewNameInEveryPlace)
{
  AddCouple(1, 10, 20);
  AddCouple(2, 30, 10);
  const std::unique_ptr<Recordset> couples = Open();
  Couples::CopyName(*couples, 10, "Ann", "Smith");
  EXPECT_EQ(Names(1), "Ann Smith Two Second");
  EXPECT_EQ(Names(2), "One First Ann Smith");
}

TEST_F(CouplesTest, TakeANameThatIsNull)
{
  AddCouple(1, 10, 20);
  const std::unique_ptr<Recordset> couples = Open();
  Couples::CopyName(*couples, 20, {}, "Smith");
  EXPECT_EQ(Names(1), "One First Null Smith");
}

TEST_F(CouplesTest, WeddingOfOnePersonIsForgotten)
{
  AddPerson(10);
  AddPerson(20);
  const std::unique_ptr<Recordset> people = Open("People");
  people->MoveLast();
  Couples::ForgetWedding(*people, 10);
  const auto row = [&](int personID) {
    return folder
        .Rows(QStringLiteral("SELECT AnnMonth, AnnDate, AnnYear, FirstName, BirthMonth FROM People WHERE PeopleID=%1")
                  .arg(personID))
        .at(0);
  };
  EXPECT_EQ(row(10), QVariantList({QVariant(), QVariant(), QVariant(), "Ann", "May"}));
  EXPECT_EQ(row(20), QVariantList({"June", "7", "1990", "Ann", "May"}));
}

TEST_F(CouplesTest, WeddingOfNobodyIsNotForgotten)
{
  AddPerson(10);
  const std::unique_ptr<Recordset> people = Open("People");
  Attempt([&] { Couples::ForgetWedding(*people, 99); });
  EXPECT_EQ(folder.Value("SELECT AnnMonth FROM People"), "June");
}
