// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

#include <set>

using namespace PeopleTexts;

namespace {

class QuickFill : public PeopleTest
{
protected:
  static QVariantMap Address(const QString& mark)
  {
    QVariantMap columns;
    for (const auto& [box, column] : kColumns) {
      columns[column] = mark + column;
    }
    columns["Gender"] = "Male";
    columns["BirthMonth"] = "May";
    columns["BirthDate"] = "9";
    columns["BirthYear"] = "1980";
    return columns;
  }

  // The seven boxes that are filled.
  static std::vector<std::string> Filled()
  {
    std::vector<std::string> texts;
    for (const char* box :
         {"txtStreet", "txtSecondAddress", "txtCity", "txtProv", "txtPostal", "txtPhone", "txtCountry"}) {
      texts.push_back(Shown(box));
    }
    return texts;
  }

  // All others.
  static std::vector<std::string> Others()
  {
    std::vector<std::string> texts;
    for (const char* box : {"txtFirst", "txtLast", "txtMobile", "txtBus", "txtEmail", "txtNotes", "cboSex",
                            "cboBirthMonth", "cboBirthDate", "cboBirthYear"}) {
      texts.push_back(Shown(box));
    }
    return texts;
  }

  static std::vector<std::string> FilledWith(const std::string& mark)
  {
    return {mark + "Street", mark + "SecondAddress", mark + "City",   mark + "Province",
            mark + "Postal", mark + "Phone",         mark + "Country"};
  }
};

}

TEST_F(QuickFill, CopiesTheAddressAndTheHomePhoneIntoANewPerson)
{
  AddPerson("Ann", "Adams", Address("a "));
  AddPerson("Bob", "Brown", Address("b "));
  Open();
  const auto before = People();
  Click(kAdd);
  Type("txtFirst", "Dan");
  Type("txtLast", "Dunn");
  Type("txtCity", "typed");
  const auto others = Others();
  Pick("cboStreet", "Brown, Bob");
  EXPECT_EQ(Filled(), FilledWith("b "));
  EXPECT_EQ(Others(), others);
  EXPECT_EQ(Shown("cboStreet"), "Brown, Bob");
  EXPECT_FALSE(HasPicture());
  EXPECT_EQ(People(), before);
}

TEST_F(QuickFill, WorksInAnEditAndIsStoredByItsFinish)
{
  const int ann = AddPerson("Ann", "Adams", Address("a "));
  AddPerson("Bob", "Brown", Address("b "));
  Open();
  Click(kEdit);
  const auto others = Others();
  Pick("cboStreet", "Brown, Bob");
  EXPECT_EQ(Filled(), FilledWith("b "));
  EXPECT_EQ(Others(), others);
  EXPECT_EQ(Stored(ann, "Street"), "a Street");
  Click(kFinishEdit);
  EXPECT_EQ(Stored(ann, "Street"), "b Street");
  EXPECT_EQ(Stored(ann, "Mobile"), "a Mobile");
  EXPECT_EQ(Name(), "Ann Adams");
}

TEST_F(QuickFill, IsTakenBackByACancel)
{
  AddPerson("Ann", "Adams", Address("a "));
  AddPerson("Bob", "Brown", Address("b "));
  Open();
  const auto before = People();
  Click(kEdit);
  Pick("cboStreet", "Brown, Bob");
  Click(kCancelEdit);
  EXPECT_EQ(Filled(), FilledWith("a "));
  EXPECT_EQ(People(), before);
}

TEST_F(QuickFill, DoesNothingWhileLocked)
{
  AddPerson("Ann", "Adams", Address("a "));
  AddPerson("Bob", "Brown", Address("b "));
  Open();
  Combo("cboStreet").SetListIndex(1);
  EXPECT_EQ(Filled(), FilledWith("a "));
  Combo("cboStreet").showPopup();
  EXPECT_FALSE(Combo("cboStreet").view()->isVisible());
}

TEST_F(QuickFill, NullColumnsEmptyTheirBoxes)
{
  AddPerson("Ann", "Adams", Address("a "));
  AddPerson("Bob", "Brown", {{"Street", "2 Low St"}});
  Open();
  Click(kEdit);
  Pick("cboStreet", "Brown, Bob");
  EXPECT_EQ(Filled(), (std::vector<std::string>{"2 Low St", "", "", "", "", "", ""}));
}

TEST_F(QuickFill, OfTwoOfOneNameTheChosenLineCounts)
{
  AddPerson("Ann", "Adams");
  AddPerson("Jim", "Smith", {{"City", "Wells"}});
  AddPerson("Jim", "Smith", {{"City", "Exeter"}});
  Open();
  ASSERT_EQ(Lines("cboStreet"), QStringList({"Adams, Ann", "Smith, Jim", "Smith, Jim"}));
  Click(kAdd);
  PickLine("cboStreet", 1);
  const std::string first = Shown("txtCity");
  PickLine("cboStreet", 2);
  const std::string second = Shown("txtCity");
  EXPECT_EQ(std::set({first, second}), std::set<std::string>({"Wells", "Exeter"}));
  PickLine("cboStreet", 1);
  EXPECT_EQ(Shown("txtCity"), first);
}

TEST_F(QuickFill, TheSameLineCanBeChosenAgain)
{
  AddPerson("Ann", "Adams", {{"City", "Bath"}});
  Open();
  Click(kAdd);
  Pick("cboStreet", "Adams, Ann");
  Type("txtCity", "typed");
  Pick("cboStreet", "Adams, Ann");
  EXPECT_EQ(Shown("txtCity"), "Bath");
}

TEST_F(QuickFill, TheChosenNameIsStoredNowhere)
{
  AddPerson("Ann", "Adams", {{"City", "Bath"}});
  Open();
  Click(kAdd);
  Type("txtFirst", "Dan");
  Type("txtLast", "Dunn");
  Pick("cboSex", "Male");
  Pick("cboStreet", "Adams, Ann");
  Click(kFinishAdd);
  const QVariantList row = folder.Rows("SELECT * FROM People WHERE FirstName='Dan'").at(0);
  for (const QVariant& value : row) {
    EXPECT_NE(value.toString(), "Adams, Ann");
  }
  EXPECT_EQ(Stored(2, "City"), "Bath");
}

TEST_F(QuickFill, KnowsWhoWasAddedAndRenamedAndDeleted)
{
  AddPerson("Ann", "Adams", {{"City", "Bath"}});
  AddPerson("Bob", "Brown", {{"City", "Wells"}});
  Open();
  Click(kAdd);
  Type("txtFirst", "Abe");
  Type("txtLast", "Abel");
  Type("txtCity", "Exeter");
  Pick("cboSex", "Male");
  Click(kFinishAdd);
  Click("cmdFirst");
  boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, "Delete Record");
  Click(kDelete);
  EXPECT_EQ(Lines("cboStreet"), QStringList({"Abel, Abe", "Brown, Bob"}));
  Click(kEdit);
  PickLine("cboStreet", 0);
  EXPECT_EQ(Shown("txtCity"), "Exeter");
  PickLine("cboStreet", 1);
  EXPECT_EQ(Shown("txtCity"), "Wells");
}

TEST_F(QuickFill, ReadsTheAddressAsItIsInTheStoreNow)
{
  AddPerson("Ann", "Adams", {{"City", "Bath"}});
  Open();
  folder.Execute("UPDATE People SET City='Wells'");
  Click(kAdd);
  Pick("cboStreet", "Adams, Ann");
  EXPECT_EQ(Shown("txtCity"), "Wells");
}

TEST_F(QuickFill, WithNobodyThereIsNothingToChoose)
{
  Open();
  Click(kAdd);
  EXPECT_EQ(Combo("cboStreet").ListCount(), 0);
  Type("txtCity", "typed");
  Combo("cboStreet").SetListIndex(0);
  EXPECT_EQ(Shown("txtCity"), "typed");
}
