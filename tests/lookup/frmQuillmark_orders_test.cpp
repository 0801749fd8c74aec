// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"
#include "support/HeldDatabase.h"

#include <set>

namespace {

class LookupOrders : public LookupPageTest
{
protected:
  // Whom each line stands for, line by line.
  static std::vector<int> KeysBehindTheLines()
  {
    std::vector<int> keys;
    for (int line = 0; line < Names().ListCount(); ++line) {
      ClickLine(line);
      keys.push_back(modID::SelectedPersonID);
    }
    return keys;
  }
  static void ExpectAnnInFull()
  {
    ExpectShown(kItems[0], "555-1000");
    ExpectShown(kItems[7], "Likes tea");
    EXPECT_EQ(Name(), "Ann Wood");
    EXPECT_EQ(TextOf("txtContact"), "Contact records for Ann");
  }
};

}

TEST_F(LookupOrders, ByFirstNameAndByLastName)
{
  const int eve = AddPerson("Eve", "Adams");
  const int ann = AddPerson("Ann", "Wood");
  const int bob = AddPerson("Bob", "Marsh");
  Open();
  EXPECT_EQ(KeysBehindTheLines(), (std::vector<int>{ann, bob, eve}));
  Click(kLastNameOrder);
  EXPECT_EQ(Lines(), "Adams, Eve|Marsh, Bob|Wood, Ann");
  EXPECT_EQ(KeysBehindTheLines(), (std::vector<int>{eve, bob, ann}));
  Click(kFirstNameOrder);
  EXPECT_EQ(Lines(), "Ann Wood|Bob Marsh|Eve Adams");
  EXPECT_EQ(KeysBehindTheLines(), (std::vector<int>{ann, bob, eve}));
}

TEST_F(LookupOrders, TheNamesAreOrderedAsOneWord)
{
  AddPerson("Ann", "Zed");
  AddPerson("Anna", "Bee");
  AddPerson("Li", "Wood");
  AddPerson("Zoe", "Woodall");
  Open();
  EXPECT_EQ(Lines(), "Anna Bee|Ann Zed|Li Wood|Zoe Woodall");
  Click(kLastNameOrder);
  EXPECT_EQ(Lines(), "Bee, Anna|Woodall, Zoe|Wood, Li|Zed, Ann");
}

TEST_F(LookupOrders, CaseDoesNotMatterAndAccentsComeLast)
{
  for (const char* first : {"zoe", "Émile", "bob", "ANNA", "Ann", "étienne", "Ömer", "Carl"}) {
    AddPerson(first, "x");
  }
  Open();
  EXPECT_EQ(Lines(), "ANNA x|Ann x|bob x|Carl x|zoe x|Émile x|étienne x|Ömer x");
  Click(kLastNameOrder);
  EXPECT_EQ(Lines(), "x, Ann|x, ANNA|x, bob|x, Carl|x, zoe|x, Émile|x, étienne|x, Ömer");
}

TEST_F(LookupOrders, PeopleOfOneNameAreToldApart)
{
  std::set<int> keys;
  for (const char* phone : {"1", "2", "3"}) {
    keys.insert(AddPerson("Ann", "Wood", {{"Phone", phone}}));
  }
  Open();
  for (const QString& order : {kLastNameOrder, kFirstNameOrder}) {
    const std::vector<int> behind = KeysBehindTheLines();
    EXPECT_EQ(std::set<int>(behind.begin(), behind.end()), keys);
    Tick("chkInfo_0");
    for (int line = 0; line < 3; ++line) {
      ClickLine(line);
      EXPECT_EQ(Shown("txtPhoneInfo"), std::to_string(modID::SelectedPersonID));
    }
    Click(order);
  }
}

TEST_F(LookupOrders, KeysMayBeLarge)
{
  AddPerson("Ann", "Wood", {{"PeopleID", 2'000'000'000}, {"Phone", "1"}});
  Open();
  Tick("chkInfo_0");
  ClickLine(0);
  EXPECT_EQ(modID::SelectedPersonID, 2'000'000'000);
  EXPECT_EQ(Shown("txtPhoneInfo"), "1");
}

TEST_F(LookupOrders, PeopleWithoutNamesHaveTheirLinesToo)
{
  const int nobody = AddPerson({}, {}, {{"Phone", "1"}});
  const int wood = AddPerson({}, "Wood", {{"Phone", "2"}});
  const int ann = AddPerson("Ann", {}, {{"Phone", "3"}});
  const int blank = AddPerson("", "", {{"Phone", "4"}});
  Open();
  ASSERT_EQ(Names().ListCount(), 4);
  EXPECT_EQ(Names().List(0).toStdString(), " ");
  EXPECT_EQ(Names().List(1).toStdString(), " ");
  EXPECT_EQ(Names().List(2).toStdString(), "Ann ");
  EXPECT_EQ(Names().List(3).toStdString(), " Wood");
  const std::vector<int> behind = KeysBehindTheLines();
  EXPECT_EQ(std::set<int>(behind.begin(), behind.begin() + 2), (std::set<int>{nobody, blank}));
  EXPECT_EQ(behind[2], ann);
  EXPECT_EQ(behind[3], wood);
  Click(kLastNameOrder);
  EXPECT_EQ(Lines(), ", |, |, Ann|Wood, ");
  EXPECT_EQ(KeysBehindTheLines()[3], wood);
}

TEST_F(LookupOrders, TheVeryFirstClickRebuildsTheListEvenByFirstName)
{
  AddAnn();
  Open();
  Click(kCheckAll);
  ClickLine(0);
  AddPerson("Bob", "Marsh");
  Click(kFirstNameOrder);
  EXPECT_EQ(Lines(), "Ann Wood|Bob Marsh");
  ExpectTicks(false);
  EXPECT_EQ(modID::SelectedPersonID, 0);
  ExpectNothingShown();
}

TEST_F(LookupOrders, TheOrderInForceAgainDoesNothing)
{
  const int ann = AddAnn();
  Open();
  for (const QString& order : {kLastNameOrder, kFirstNameOrder}) {
    Click(order);
    Click(kCheckAll);
    ClickLine(0);
    ExpectAnnInFull();
    const std::string lines = Lines();
    AddPerson("Zoe", "Zed");
    Click(order);
    Click(order);
    EXPECT_EQ(Lines(), lines);
    EXPECT_EQ(Names().ListIndex(), 0);
    EXPECT_EQ(modID::SelectedPersonID, ann);
    ExpectTicks(true);
    ExpectAnnInFull();
    folder.Execute("DELETE FROM People WHERE FirstName='Zoe'");
  }
}

TEST_F(LookupOrders, AnotherOrderResetsEverything)
{
  UseGarden();
  const int ann = AddAnn();
  Change(ann, "BirthDate", {});
  Hands::SavePicture(PictureFile(ann));
  Open();
  Click(kCheckAll);
  ClickLine(0);
  ExpectAnnInFull();
  ExpectPicture("#ff0000");
  ASSERT_TRUE(IsShown("lblExplain"));
  Click(kLastNameOrder);
  EXPECT_EQ(Lines(), "Wood, Ann");
  EXPECT_EQ(Names().ListIndex(), -1);
  EXPECT_EQ(modID::SelectedPersonID, 0);
  EXPECT_EQ(Name(), "");
  ExpectTicks(false);
  ExpectPlainTitles();
  ExpectNothingShown();
  EXPECT_EQ(TextOf("txtNotes"), "");
  EXPECT_FALSE(IsShown("lblExplain"));
  ExpectThemePicture();
}

TEST_F(LookupOrders, AfterAResetTicksShowNothing)
{
  AddAnn();
  Open();
  Click(kCheckAll);
  ClickLine(0);
  Click(kLastNameOrder);
  Click(kCheckAll);
  ExpectNothingShown();
  ExpectPlainTitles();
  EXPECT_FALSE(IsShown("lblExplain"));
  ClickLine(0);
  ExpectAnnInFull();
}

TEST_F(LookupOrders, ARenameIsSeenOnceTheListIsRebuilt)
{
  const int ann = AddPerson("Ann", "Wood");
  AddPerson("Bob", "Marsh");
  Open();
  Change(ann, "FirstName", "Zoe");
  EXPECT_EQ(Lines(), "Ann Wood|Bob Marsh");
  ClickLine(0);
  EXPECT_EQ(modID::SelectedPersonID, ann);
  EXPECT_EQ(Lines(), "Ann Wood|Bob Marsh");
  Click(kFirstNameOrder);
  EXPECT_EQ(Lines(), "Bob Marsh|Zoe Wood");
  ClickLine(1);
  EXPECT_EQ(modID::SelectedPersonID, ann);
  EXPECT_EQ(Name(), "Zoe Wood");
}

TEST_F(LookupOrders, WhenEverybodyIsGoneTheListStaysAsItIs)
{
  AddAnn();
  Open();
  Click(kCheckAll);
  ClickLine(0);
  folder.Execute("DELETE FROM People");
  Click(kLastNameOrder);
  EXPECT_EQ(Lines(), "Ann Wood");
  ExpectTicks(true);
  EXPECT_EQ(Name(), "Ann Wood");
  EXPECT_FALSE(IsShown("txtEmpty"));
  ClickLine(0);
  Press("lstNames", Qt::Key_Down);
  AddPerson("Bob", "Marsh");
  Click(kFirstNameOrder);
  EXPECT_EQ(Lines(), "Bob Marsh");
  ExpectTicks(false);
}

TEST_F(LookupOrders, AfterEverybodyIsGoneAnUntickEndsNothing)
{
  AddAnn();
  Open();
  Click(kCheckAll);
  ClickLine(0);
  folder.Execute("DELETE FROM People");
  Click(kLastNameOrder);
  Tick("chkPersonal_0");
  Tick("chkNotes");
  EXPECT_TRUE(IsOpen());
}

TEST_F(LookupOrders, WithTheDatabaseLockedTheProgramReportsIt)
{
  AddAnn();
  Open();
  Click(kCheckAll);
  ClickLine(0);
  const DatabaseTaken taken(folder.DatabasePath());
  ExpectEnding(3260, [] { Click(kLastNameOrder); });
  EXPECT_EQ(Lines(), "Ann Wood");
  ExpectTicks(true);
  EXPECT_EQ(boxes.Count(), 1U);
}

TEST_F(LookupOrders, TheOrdersAreChosenByKeyboard)
{
  AddPerson("Eve", "Adams");
  AddPerson("Ann", "Wood");
  Open();
  Control(kLastNameOrder).setFocus(Qt::TabFocusReason);
  Press(kLastNameOrder, Qt::Key_Space);
  EXPECT_EQ(Lines(), "Adams, Eve|Wood, Ann");
  Control(kFirstNameOrder).setFocus(Qt::TabFocusReason);
  Press(kFirstNameOrder, Qt::Key_Return);
  EXPECT_EQ(Lines(), "Ann Wood|Eve Adams");
}
