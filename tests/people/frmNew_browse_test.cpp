// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

using namespace PeopleTexts;

namespace {

const QString kNotThere = QStringLiteral("Sorry, that name is not in the database");

class EditorBrowsing : public PeopleTest
{
protected:
  void AddFour() const
  {
    AddPerson(
        "Ann", "Adams",
        {{"Street", "1 High St"}, {"SecondAddress", "Flat 2"}, {"Notes", "line 1\nline 2"}, {"BirthMonth", "May"}});
    AddPerson("Bob", "Brown");
    AddPerson("Cy", "Cole", {{"City", "Bath"}});
    AddPerson("Dan", "Dunn");
  }

  static std::string AllShown()
  {
    std::string text;
    for (const QString& name : kAllBoxes) {
      text += Shown(name) + "|";
    }
    return text + Caption("lblCompleteAnn") + "|" + Counter() + "|" + ShownColour();
  }

  void Search(const std::optional<QString>& answer)
  {
    questions.Expect("Please enter a last name and first name, in this format: Smith, Jim", "Search for a name",
                     answer);
    Click(kSearch);
  }
};

}

TEST_F(EditorBrowsing, TheButtonsMoveAndTheTotalGrows)
{
  AddFour();
  Open();
  EXPECT_EQ(Counter(), " 1 of 1 people");
  Click("cmdNext");
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(Counter(), " 2 of 2 people");
  Click("cmdPrevious");
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 1 of 2 people");
  Click("cmdLast");
  EXPECT_EQ(Name(), "Dan Dunn");
  EXPECT_EQ(Counter(), " 4 of 4 people");
  Click("cmdPrevious");
  EXPECT_EQ(Name(), "Cy Cole");
  EXPECT_EQ(Counter(), " 3 of 4 people");
  Click("cmdFirst");
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 1 of 4 people");
}

TEST_F(EditorBrowsing, InAnEmptyTableTheButtonsDoNothing)
{
  Open();
  for (const char* button : {"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"}) {
    Click(button);
    EXPECT_EQ(Counter(), " 0 of 0 people") << button;
    EXPECT_EQ(Name(), " ") << button;
  }
}

TEST_F(EditorBrowsing, NextOnTheLastLeavesThePage)
{
  AddFour();
  Save(PictureFile(4), {40, 20}, Qt::blue);
  Open();
  Click("cmdLast");
  const std::string before = AllShown();
  Click("cmdNext");
  EXPECT_EQ(AllShown(), before);
  EXPECT_EQ(Counter(), " 4 of 4 people");
  EXPECT_TRUE(IsShown("imgPerson"));
  EXPECT_TRUE(Control("cmdNext").isEnabled());
  Click("cmdPrevious");
  EXPECT_EQ(Name(), "Cy Cole");
}

TEST_F(EditorBrowsing, PreviousOnTheFirstLeavesThePage)
{
  AddFour();
  Open();
  const std::string before = AllShown();
  Click("cmdPrevious");
  EXPECT_EQ(AllShown(), before);
  EXPECT_TRUE(Control("cmdPrevious").isEnabled());
  Click("cmdNext");
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(Counter(), " 2 of 2 people");
}

TEST_F(EditorBrowsing, TheOnlyPersonStaysWithEveryButton)
{
  AddPerson("Ann", "Adams");
  Open();
  for (const char* button : {"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"}) {
    Click(button);
    EXPECT_EQ(Name(), "Ann Adams") << button;
    EXPECT_EQ(Counter(), " 1 of 1 people") << button;
  }
}

TEST_F(EditorBrowsing, NullColumnsShowEmptyAfterFullOnes)
{
  AddFour();
  Open();
  EXPECT_EQ(Shown("txtSecondAddress"), "Flat 2");
  EXPECT_EQ(Shown("txtNotes"), "line 1\nline 2");
  Click("cmdNext");
  EXPECT_EQ(Shown("txtSecondAddress"), "");
  EXPECT_EQ(Shown("txtNotes"), "");
  EXPECT_EQ(Shown("cboBirthMonth"), "");
}

TEST_F(EditorBrowsing, TheWeddingIsShownAsItComes)
{
  AddPerson("Ann", "Adams", {{"AnnMonth", "June"}, {"AnnDate", "12"}, {"AnnYear", "1999"}});
  AddPerson("Bob", "Brown", {{"AnnMonth", "June"}, {"AnnYear", "1999"}});
  AddPerson("Cy", "Cole");
  AddPerson("Dan", "Dunn", {{"AnnMonth", "June"}, {"AnnDate", "12"}});
  Open();
  EXPECT_EQ(Caption("lblCompleteAnn"), "June 12 1999");
  Click("cmdNext");
  EXPECT_EQ(Caption("lblCompleteAnn"), "June  1999");
  Click("cmdNext");
  EXPECT_EQ(Caption("lblCompleteAnn"), "  ");
  Click("cmdNext");
  EXPECT_EQ(Caption("lblCompleteAnn"), "June 12 ");
}

TEST_F(EditorBrowsing, APersonReachedByAButtonShowsTheirOwnPictureOrNone)
{
  AddFour();
  Save(PictureFile(1), {40, 20}, Qt::red);
  Save(PictureFile(3), {20, 40}, Qt::blue);
  Open();
  EXPECT_EQ(ShownColour(), "#ff0000");
  Click("cmdNext");
  ExpectNoPicture();
  Click("cmdNext");
  EXPECT_EQ(ShownColour(), "#0000ff");
  EXPECT_TRUE(IsShown("imgPerson"));
  EXPECT_TRUE(IsShown("picPerson"));
}

TEST_F(EditorBrowsing, AFileThatIsNoPictureIsNone)
{
  AddFour();
  QFile file(PictureFile(1));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no picture");
  file.close();
  Open();
  ExpectNoPicture();
}

TEST_F(EditorBrowsing, AFoundPersonIsShown)
{
  AddFour();
  Open();
  Search("Cole, Cy");
  EXPECT_EQ(Name(), "Cy Cole");
  EXPECT_EQ(Shown("txtCity"), "Bath");
  EXPECT_EQ(Shown("txtNotes"), "");
  EXPECT_EQ(Counter(), " 3 of 3 people");
  Click("cmdNext");
  EXPECT_EQ(Name(), "Dan Dunn");
}

TEST_F(EditorBrowsing, AFoundPersonCanStandBefore)
{
  AddFour();
  Open();
  Click("cmdLast");
  Search("Adams, Ann");
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 1 of 4 people");
}

TEST_F(EditorBrowsing, SmallAndCapitalLettersAreTheSameToTheSearch)
{
  AddFour();
  Open();
  Search("brown, bob");
  EXPECT_EQ(Name(), "Bob Brown");
  Search("DUNN, DAN");
  EXPECT_EQ(Name(), "Dan Dunn");
}

TEST_F(EditorBrowsing, OnlyAWholeNameIsFound)
{
  AddFour();
  Open();
  Click("cmdNext");
  for (const char* name : {"Cole", "Cole,Cy", "Cy Cole", " Cole, Cy", "Cole, Cy ", "*"}) {
    const std::string before = AllShown();
    boxes.Expect(kNotThere);
    Search(name);
    EXPECT_EQ(AllShown(), before) << name;
  }
  Click("cmdPrevious");
  EXPECT_EQ(Name(), "Ann Adams");
}

TEST_F(EditorBrowsing, AfterAFailedSearchTheShownPersonIsStillTheOneAtHand)
{
  AddFour();
  Open();
  Click("cmdNext");
  boxes.Expect(kNotThere);
  Search("Nobody, N");
  Click(kEdit);
  Type("txtCity", "Wells");
  Click(kFinishEdit);
  EXPECT_EQ(Stored(2, "City"), "Wells");
  EXPECT_EQ(folder.Value("SELECT count(*) FROM People WHERE City='Wells'"), 1);
}

TEST_F(EditorBrowsing, ACancelledSearchDoesNothing)
{
  AddFour();
  Open();
  const std::string before = AllShown();
  Search(std::nullopt);
  Search("");
  EXPECT_EQ(AllShown(), before);
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(EditorBrowsing, ADoubleQuoteShowsTheSamePersonAgain)
{
  AddFour();
  Open();
  Click("cmdNext");
  const std::string before = AllShown();
  Search("Cole, \"Cy\"");
  EXPECT_EQ(AllShown(), before);
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(EditorBrowsing, ADoubleQuoteAfterAFailedSearchFindsNobody)
{
  AddFour();
  Open();
  boxes.Expect(kNotThere);
  Search("Nobody, N");
  boxes.Expect(kNotThere);
  Search("\"");
  EXPECT_EQ(Name(), "Ann Adams");
}

TEST_F(EditorBrowsing, AnApostropheIsPartOfAName)
{
  AddFour();
  AddPerson("Pat", "O'Neil' OR '1'='1");
  Open();
  Search("O'Neil' OR '1'='1, Pat");
  EXPECT_EQ(Name(), "Pat O'Neil' OR '1'='1");
}

TEST_F(EditorBrowsing, ARenamedPersonIsFoundByTheNewName)
{
  AddFour();
  Open();
  Click(kEdit);
  Type("txtLast", "Zimmer");
  Click(kFinishEdit);
  Click("cmdLast");
  boxes.Expect(kNotThere);
  Search("Adams, Ann");
  Search("Zimmer, Ann");
  EXPECT_EQ(Name(), "Ann Zimmer");
  EXPECT_EQ(Counter(), " 1 of 4 people");
}

TEST_F(EditorBrowsing, APersonAddedSinceIsFound)
{
  AddFour();
  Open();
  Click(kAdd);
  Type("txtFirst", "Abe");
  Type("txtLast", "Abel");
  Pick("cboSex", "Male");
  Click(kFinishAdd);
  Click("cmdFirst");
  Search("Abel, Abe");
  EXPECT_EQ(Name(), "Abe Abel");
  EXPECT_EQ(Counter(), " 5 of 5 people");
}

TEST_F(EditorBrowsing, OfTwoOfOneNameTheFirstIsFound)
{
  AddPerson("Ann", "Adams", {{"City", "Bath"}});
  AddPerson("Jim", "Smith", {{"City", "Wells"}});
  AddPerson("Jim", "Smith", {{"City", "Exeter"}});
  Open();
  Click("cmdNext");
  const std::string first = Shown("txtCity");
  Click("cmdLast");
  Search("Smith, Jim");
  EXPECT_EQ(Shown("txtCity"), first);
  EXPECT_EQ(Counter(), " 2 of 3 people");
}

TEST_F(EditorBrowsing, AFoundPersonWithoutAPictureKeepsTheOneOnThePage)
{
  AddFour();
  Save(PictureFile(1), {40, 20}, Qt::red);
  Save(PictureFile(4), {40, 20}, Qt::blue);
  Open();
  Search("Brown, Bob");
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(ShownColour(), "#ff0000");
  EXPECT_TRUE(IsShown("imgPerson"));
  Search("Dunn, Dan");
  EXPECT_EQ(ShownColour(), "#0000ff");
  Click("cmdFirst");
  Click("cmdNext");
  EXPECT_EQ(Name(), "Bob Brown");
  ExpectNoPicture();
}

TEST_F(EditorBrowsing, ASearchClearsTheAnniversaryOfTheOneBefore)
{
  AddFour();
  AddCouple(1, 2);
  Open();
  Search("Cole, Cy");
  EXPECT_EQ(Caption("lblCompleteAnn"), "  ");
  Search("Brown, Bob");
  EXPECT_EQ(Caption("lblCompleteAnn"), "June 12 1999");
}
