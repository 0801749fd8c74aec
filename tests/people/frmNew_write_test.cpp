// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

using namespace PeopleTexts;

namespace {

const QStringList kNullable = {"txtStreet", "txtSecondAddress", "txtCity", "txtProv",  "txtCountry", "txtPostal",
                               "txtPhone",  "txtMobile",        "txtBus",  "txtEmail", "txtNotes"};

class EditorWrites : public PeopleTest
{
protected:
  static QString ColumnOf(const QString& box)
  {
    for (const auto& [name, column] : kColumns) {
      if (name == box) {
        return column;
      }
    }
    return {};
  }

  static QString TextFor(const QString& box)
  {
    const QHash<QString, QString> dates = {
        {"cboSex", "Male"}, {"cboBirthMonth", "July"}, {"cboBirthDate", "9"}, {"cboBirthYear", "1971"}};
    return dates.value(box, "a " + box);
  }

  static void FillAll()
  {
    for (const auto& [box, column] : kColumns) {
      if (box.startsWith("txt")) {
        Type(box, TextFor(box));
      } else {
        Pick(box, TextFor(box));
      }
    }
  }

  void ExpectAllStored(int person) const
  {
    for (const auto& [box, column] : kColumns) {
      EXPECT_EQ(Stored(person, column), TextFor(box).toStdString()) << column.toStdString();
    }
    for (const char* column : {"AnnMonth", "AnnDate", "AnnYear", "SpouseFirst", "SpouseLast"}) {
      EXPECT_EQ(Stored(person, column), "NULL") << column;
    }
    EXPECT_EQ(Stored(person, "Convert"), "0");
  }

  static void AddByHand(const QString& first, const QString& last)
  {
    Click(kAdd);
    Type("txtFirst", first);
    Type("txtLast", last);
    Pick("cboSex", "Female");
    Click(kFinishAdd);
  }
};

}

TEST_F(EditorWrites, AnAdditionStoresEveryBox)
{
  AddPerson("Ann", "Adams");
  const int bob = AddPerson("Bob", "Brown");
  const auto before = People();
  Open();
  Click(kAdd);
  FillAll();
  Click(kFinishAdd);
  ExpectAllStored(bob + 1);
  EXPECT_EQ(Counter(), " 3 of 3 people");
  for (const auto& [box, column] : kColumns) {
    EXPECT_EQ(Shown(box), TextFor(box).toStdString());
  }
  EXPECT_EQ(Caption("lblCompleteAnn"), "");
  auto after = People();
  after.pop_back();
  EXPECT_EQ(after, before);
}

TEST_F(EditorWrites, AnEditStoresEveryBox)
{
  const int ann = AddPerson("Ann", "Adams");
  AddPerson("Bob", "Brown");
  Open();
  Click(kEdit);
  FillAll();
  Click(kFinishEdit);
  ExpectAllStored(ann);
  EXPECT_EQ(Counter(), " 1 of 1 people");
  EXPECT_EQ(Name(), "a txtFirst a txtLast");
  EXPECT_EQ(People().size(), 2U);
}

TEST_F(EditorWrites, AnEditOfAnotherThanTheFirstStoresThatOne)
{
  AddPerson("Ann", "Adams");
  const int bob = AddPerson("Bob", "Brown");
  AddPerson("Cy", "Cole");
  Open();
  Click("cmdNext");
  const auto before = Dump("SELECT * FROM People WHERE FirstName <> 'Bob'");
  Click(kEdit);
  Type("txtCity", "Bath");
  Click(kFinishEdit);
  EXPECT_EQ(Stored(bob, "City"), "Bath");
  EXPECT_EQ(Dump("SELECT * FROM People WHERE FirstName <> 'Bob'"), before);
  Click("cmdNext");
  EXPECT_EQ(Name(), "Cy Cole");
}

TEST_F(EditorWrites, EmptyBoxesAreStoredAsNull)
{
  Open();
  AddByHand("Dan", "Dunn");
  for (const auto& [box, column] : kColumns) {
    const bool entered = box == "txtFirst" || box == "txtLast" || box == "cboSex";
    EXPECT_EQ(Stored(1, column) == "NULL", !entered) << column.toStdString();
  }
}

TEST_F(EditorWrites, BoxesOfBlanksAreStoredAsNull)
{
  const int ann = AddPerson("Ann", "Adams", {{"Street", "1 High St"}});
  Open();
  Click(kEdit);
  for (const QString& box : kNullable) {
    Type(box, "  ");
  }
  Click(kFinishEdit);
  for (const QString& box : kNullable) {
    EXPECT_EQ(Stored(ann, ColumnOf(box)), "NULL") << box.toStdString();
  }
}

TEST_F(EditorWrites, EmptiedBoxesAreStoredAsNull)
{
  QVariantMap columns;
  for (const QString& box : kNullable) {
    columns[ColumnOf(box)] = "x";
  }
  columns["BirthMonth"] = "May";
  columns["BirthDate"] = "9";
  columns["BirthYear"] = "1980";
  const int ann = AddPerson("Ann", "Adams", columns);
  Open();
  Click(kEdit);
  for (const QString& box : kNullable) {
    Empty(box);
  }
  for (const char* box : {"cboBirthMonth", "cboBirthDate", "cboBirthYear"}) {
    Control(box).setFocus();
    Press(box, Qt::Key_End);
    for (int i = 0; i < 4; ++i) {
      Press(box, Qt::Key_Backspace);
    }
    EXPECT_EQ(Shown(box), "") << box;
  }
  Click(kFinishEdit);
  for (auto column = columns.keyBegin(); column != columns.keyEnd(); ++column) {
    EXPECT_EQ(Stored(ann, *column), "NULL") << column->toStdString();
  }
}

// A line break is no blank.
TEST_F(EditorWrites, NotesOfALineBreakAreKept)
{
  const int ann = AddPerson("Ann", "Adams", {{"Notes", "\n"}});
  Open();
  Click(kEdit);
  Click(kFinishEdit);
  EXPECT_EQ(Stored(ann, "Notes"), "\n");
}

TEST_F(EditorWrites, BlanksAroundATextAreKept)
{
  Open();
  Click(kAdd);
  Type("txtFirst", " Dan ");
  Type("txtLast", "  Dunn");
  Type("txtCity", " Bath ");
  Pick("cboSex", "Male");
  Click(kFinishAdd);
  EXPECT_EQ(Dump("SELECT FirstName, LastName, City FROM People"), std::vector<std::string>{" Dan |  Dunn| Bath |"});
}

TEST_F(EditorWrites, LettersKeepTheirCase)
{
  Open();
  AddByHand("dAN", "o'DUNN");
  EXPECT_EQ(Dump("SELECT FirstName, LastName FROM People"), std::vector<std::string>{"dAN|o'DUNN|"});
}

TEST_F(EditorWrites, TheColumnConvertStaysUntouched)
{
  AddPerson("Ann", "Adams");
  AddPerson("Bob", "Brown", {{"Convert", 1}});
  Open();
  Click(kEdit);
  Click(kFinishEdit);
  AddByHand("Dan", "Dunn");
  EXPECT_EQ(Dump("SELECT \"Convert\" FROM People ORDER BY PeopleID"), (std::vector<std::string>{"0|", "1|", "0|"}));
}

TEST_F(EditorWrites, ANewPersonStaysLastUntilThePageIsOpenedAgain)
{
  AddPerson("Bob", "Brown");
  AddPerson("Cy", "Cole");
  Open();
  AddByHand("Ann", "Adams");
  EXPECT_EQ(Counter(), " 3 of 3 people");
  EXPECT_EQ(Lines("cboStreet"), QStringList({"Adams, Ann", "Brown, Bob", "Cole, Cy"}));
  Click("cmdPrevious");
  EXPECT_EQ(Name(), "Cy Cole");
  Click("cmdFirst");
  EXPECT_EQ(Name(), "Bob Brown");
  Click("cmdLast");
  EXPECT_EQ(Name(), "Ann Adams");
  Reopen();
  EXPECT_EQ(Name(), "Ann Adams");
  Click("cmdNext");
  EXPECT_EQ(Name(), "Bob Brown");
}

TEST_F(EditorWrites, ARenamedPersonKeepsTheirPlaceButNotInTheList)
{
  AddPerson("Ann", "Adams");
  AddPerson("Bob", "Brown");
  Open();
  Click(kEdit);
  Type("txtLast", "Zimmer");
  Click(kFinishEdit);
  EXPECT_EQ(Lines("cboStreet"), QStringList({"Brown, Bob", "Zimmer, Ann"}));
  Click("cmdNext");
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(Counter(), " 2 of 2 people");
  Click("cmdPrevious");
  EXPECT_EQ(Name(), "Ann Zimmer");
}

TEST_F(EditorWrites, TwoAdditionsInARowAreTwoPeople)
{
  Open();
  AddByHand("Dan", "Dunn");
  AddByHand("Eve", "Evans");
  EXPECT_EQ(Counter(), " 2 of 2 people");
  EXPECT_EQ(Dump("SELECT PeopleID, FirstName FROM People ORDER BY PeopleID"),
            (std::vector<std::string>{"1|Dan|", "2|Eve|"}));
}

TEST_F(EditorWrites, ANewPersonCanBeEditedAtOnce)
{
  AddPerson("Ann", "Adams");
  Open();
  AddByHand("Dan", "Dunn");
  Click(kEdit);
  Type("txtCity", "Bath");
  Click(kFinishEdit);
  EXPECT_EQ(Dump("SELECT FirstName, City FROM People ORDER BY PeopleID"),
            (std::vector<std::string>{"Ann|NULL|", "Dan|Bath|"}));
}

TEST_F(EditorWrites, ACancelledAdditionBringsTheRowBack)
{
  const int bob = AddPerson("Bob", "Brown", {{"Street", "2 Low St"}, {"BirthMonth", "May"}, {"Notes", "a\nb"}});
  AddPerson("Ann", "Adams");
  AddCouple(1, 2);
  Save(PictureFile(bob));
  Open();
  Click("cmdNext");
  const auto before = People();
  Click(kAdd);
  FillAll();
  Click(kCancelAdd);
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(Shown("txtStreet"), "2 Low St");
  EXPECT_EQ(Shown("txtCity"), "");
  EXPECT_EQ(Shown("txtNotes"), "a\nb");
  EXPECT_EQ(Shown("cboBirthMonth"), "May");
  EXPECT_EQ(Shown("cboBirthYear"), "");
  EXPECT_EQ(Shown("cboSex"), "Female");
  EXPECT_EQ(Caption("lblCompleteAnn"), "June 12 1999");
  EXPECT_EQ(Counter(), " 2 of 2 people");
  EXPECT_TRUE(HasPicture());
  EXPECT_EQ(People(), before);
}

TEST_F(EditorWrites, ACancelledEditBringsTheRowBack)
{
  AddPerson("Ann", "Adams", {{"Street", "1 High St"}, {"BirthMonth", "May"}});
  Open();
  const auto before = People();
  Click(kEdit);
  FillAll();
  Click(kCancelEdit);
  EXPECT_EQ(Name(), "Ann Adams");
  for (const auto& [box, column] : kColumns) {
    const std::string stored = Stored(1, column);
    EXPECT_EQ(Shown(box), stored == "NULL" ? std::string() : stored) << box.toStdString();
  }
  EXPECT_EQ(Counter(), " 1 of 1 people");
  EXPECT_EQ(People(), before);
}

TEST_F(EditorWrites, ACancelledEditLeavesTheAnniversaryAsItStood)
{
  const int ann = AddPerson("Ann", "Adams");
  AddCouple(ann, AddPerson("Bob", "Brown"));
  Open();
  EXPECT_EQ(Caption("lblCompleteAnn"), "June 12 1999");
  Click(kEdit);
  folder.Execute("UPDATE People SET AnnYear='2001'");
  Click(kCancelEdit);
  EXPECT_EQ(Caption("lblCompleteAnn"), "June 12 1999");
}

TEST_F(EditorWrites, AnEditLeavesTheWeddingDateAlone)
{
  const int ann = AddPerson("Ann", "Adams");
  AddCouple(ann, AddPerson("Bob", "Brown"));
  Open();
  Click(kEdit);
  Type("txtCity", "Bath");
  Click(kFinishEdit);
  EXPECT_EQ(Dump("SELECT AnnMonth, AnnDate, AnnYear FROM People"),
            (std::vector<std::string>{"June|12|1999|", "June|12|1999|"}));
  EXPECT_EQ(Caption("lblCompleteAnn"), "June 12 1999");
}

TEST_F(EditorWrites, ANewNameIsCopiedIntoTheCouple)
{
  const int wife = AddPerson("Bea", "Brown");
  const int husband = AddPerson("Abe", "Adams");
  AddCouple(AddPerson("Eve", "Evans"), AddPerson("Fred", "Fox"));
  AddCouple(wife, husband);
  for (const auto& [person, name] : {std::pair(wife, "Wife"), std::pair(husband, "Man")}) {
    Open(person);
    Click(kEdit);
    Type("txtFirst", name);
    Type("txtLast", "New");
    Click(kFinishEdit);
    Leave();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  const auto couples =
      Dump("SELECT Spouse1First, Spouse1Last, Spouse2First, Spouse2Last, AnnMonth, AnnDate, AnnYear FROM Ann");
  EXPECT_EQ(couples, (std::vector<std::string>{"Eve|Evans|Fred|Fox|June|12|1999|", "Wife|New|Man|New|June|12|1999|"}));
}

TEST_F(EditorWrites, ANewNameIsCopiedIntoEveryCouple)
{
  const int ann = AddPerson("Ann", "Adams");
  AddCouple(ann, AddPerson("Bob", "Brown"));
  AddCouple(AddPerson("Eve", "Evans"), ann);
  Open();
  Click(kEdit);
  Type("txtFirst", "New");
  Click(kFinishEdit);
  EXPECT_EQ(Dump("SELECT Spouse1First, Spouse2First FROM Ann ORDER BY AnnID"),
            (std::vector<std::string>{"New|Bob|", "Eve|New|"}));
}

TEST_F(EditorWrites, AnAdditionTouchesNoCouple)
{
  const int ann = AddPerson("Ann", "Adams");
  AddCouple(ann, AddPerson("Bob", "Brown"));
  const auto before = Couples();
  Open();
  AddByHand("Dan", "Dunn");
  EXPECT_EQ(Couples(), before);
}
