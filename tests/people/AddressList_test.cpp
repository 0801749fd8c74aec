// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/AddressList.h"

#include "controls/ComboBox.h"
#include "store/DBEngine.h"
#include "store/Queries.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <set>

namespace {

class AddressListTest : public testing::Test
{
protected:
  AddressListTest() { box.SetTyping(ComboBox::NoTyping); }

  void AddPerson(int personID, const QVariant& last, const QVariant& first) const
  {
    folder.Execute("INSERT INTO People (PeopleID, LastName, FirstName) VALUES (?, ?, ?)", {personID, last, first});
  }

  void Refresh()
  {
    const std::unique_ptr<Recordset> people = Open();
    list.Refresh(*people);
    EXPECT_TRUE(people->Eof());
  }

  std::unique_ptr<Recordset> Open() { return database.OpenRecordset(Queries::kAddresses, Database::kDynaset); }

  // The lines with the keys of their people.
  std::string Lines()
  {
    QStringList lines;
    for (int i = 0; i < box.ListCount(); ++i) {
      box.SetListIndex(i);
      lines.append(QStringLiteral("%1=%2").arg(box.List(i)).arg(list.ChosenID()));
    }
    box.SetListIndex(-1);
    return lines.join(u'|').toStdString();
  }

  ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  ComboBox box;
  AddressList list{box};
};

}

TEST_F(AddressListTest, WithNobodyIsEmptyAndNothingIsChosen)
{
  EXPECT_EQ(list.ChosenID(), 0);
  Refresh();
  EXPECT_EQ(box.ListCount(), 0);
  EXPECT_EQ(list.ChosenID(), 0);
}

TEST_F(AddressListTest, ListsPeopleInTheOrderOfTheCursor)
{
  AddPerson(5, "Clark", "Cid");
  AddPerson(9, "adams", "Ann");
  AddPerson(2, "Brown", "Bob");
  Refresh();
  EXPECT_EQ(Lines(), "adams, Ann=9|Brown, Bob=2|Clark, Cid=5");
}

TEST_F(AddressListTest, TellsPeopleOfTheSameNameApart)
{
  AddPerson(3, "Smith", "Ann");
  AddPerson(1, "Smith", "Ann");
  AddPerson(8, "Smith", "Ann");
  Refresh();
  ASSERT_EQ(box.ListCount(), 3);
  std::set<int> keys;
  for (int i = 0; i < 3; ++i) {
    box.SetListIndex(i);
    EXPECT_EQ(box.Text(), "Smith, Ann");
    keys.insert(list.ChosenID());
  }
  EXPECT_EQ(keys, std::set<int>({1, 3, 8}));
}

TEST_F(AddressListTest, NothingIsChosenAfterARefresh)
{
  AddPerson(3, "Smith", "Ann");
  QSignalSpy clicks(&box, &ComboBox::Click);
  Refresh();
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(list.ChosenID(), 0);
  EXPECT_EQ(clicks.count(), 0);
  box.SetListIndex(0);
  EXPECT_EQ(list.ChosenID(), 3);
  Refresh();
  EXPECT_EQ(list.ChosenID(), 0);
}

TEST_F(AddressListTest, IsListedAnew)
{
  AddPerson(3, "Smith", "Ann");
  AddPerson(4, "Young", "Yves");
  Refresh();
  folder.Execute("DELETE FROM People WHERE PeopleID=3");
  AddPerson(5, "Brown", "Bob");
  Refresh();
  EXPECT_EQ(Lines(), "Brown, Bob=5|Young, Yves=4");
}

TEST_F(AddressListTest, BeginsWithTheFirstRowWhereverTheCursorStands)
{
  AddPerson(1, "Adams", "Ann");
  AddPerson(2, "Brown", "Bob");
  const std::unique_ptr<Recordset> people = Open();
  people->MoveLast();
  list.Refresh(*people);
  EXPECT_EQ(box.ListCount(), 2);
  ASSERT_TRUE(people->Eof());
  list.Refresh(*people);
  EXPECT_EQ(Lines(), "Adams, Ann=1|Brown, Bob=2");
}

TEST_F(AddressListTest, PeopleWithoutANameHaveALineToo)
{
  AddPerson(1, {}, {});
  AddPerson(2, "Adams", {});
  Refresh();
  EXPECT_EQ(Lines(), ", =1|Adams, =2");
}
