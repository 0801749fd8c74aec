// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/HeldDatabase.h"
#include "frmNew_pictures.h"

using namespace PeopleTexts;

namespace {

const QString kNotThere = QStringLiteral("Sorry, that name is not in the database");

// Rows that cannot be read, since another program has the database. Whatever the page
// shows then, nobody may lose what is known of them by a later Finish.
class EditorUnreadRows : public PicturesTest
{
protected:
  // The last of them is added on the page, so that every row must be read anew.
  void OpenWithFour()
  {
    for (const auto& [first, last] :
         QList<std::pair<QString, QString>>{{"Ann", "Adams"}, {"Bob", "Brown"}, {"Cy", "Cole"}}) {
      AddPerson(first, last, {{"City", "Bath"}, {"Notes", "Of " + first}, {"BirthMonth", "May"}});
    }
    Open();
    StartNewPerson();
    Type("txtCity", "Wells");
    Click(kFinishAdd);
    ASSERT_EQ(Name(), "Dan Dunn");
  }

  void WhileTaken(const std::function<void()>& work) const
  {
    const DatabaseTaken taken(folder.DatabasePath());
    work();
  }

  void Search(const QString& name)
  {
    questions.Expect("Please enter a last name and first name, in this format: Smith, Jim", "Search for a name", name);
    Click(kSearch);
  }

  // An edit of whoever is current, by all that a Finish demands, changes nobody.
  void ExpectAnEditChangesNobody() const
  {
    const auto before = People();
    Click(kEdit);
    Paste("txtFirst", "Zoe");
    Paste("txtLast", "Zimmer");
    Pick("cboSex", "Female");
    Click(kFinishEdit);
    EXPECT_EQ(People(), before);
  }

  static void ExpectNobody()
  {
    for (const QString& name : kAllBoxes) {
      EXPECT_EQ(Shown(name), "") << name.toStdString();
      EXPECT_TRUE(Box(name).Locked()) << name.toStdString();
    }
    EXPECT_EQ(Caption("lblCompleteAnn"), "");
    EXPECT_EQ(Counter(), " 0 of 4 people");
    ExpectNoPicture();
  }
  static void ExpectBrowsingGoesOn()
  {
    Click("cmdNext");
    EXPECT_EQ(Name(), "Dan Dunn");
    EXPECT_EQ(Shown("txtCity"), "Wells");
    EXPECT_EQ(Counter(), " 4 of 4 people");
  }
  void ExpectNobodyIsLost() const
  {
    ExpectNobody();
    ExpectAnEditChangesNobody();
    ExpectBrowsingGoesOn();
  }

  void ExpectEndingWhileTaken(const QString& button)
  {
    int endings = 0;
    Application::SetEnding([&](int) { ++endings; });
    boxes.Expect("Run-time error '3260':\n\nThe database is locked by another program.");
    WhileTaken([&] { Click(button); });
    EXPECT_EQ(endings, 1) << button.toStdString();
    ExpectNoEnding();
  }
};

}

TEST_F(EditorUnreadRows, ACancelledEditLeavesNobodyCurrent)
{
  OpenWithFour();
  Click(kEdit);
  Type("txtCity", "Ely");
  WhileTaken([] { Click(kCancelEdit); });
  ExpectNobodyIsLost();
}

TEST_F(EditorUnreadRows, ACancelledAdditionLeavesNobodyCurrent)
{
  OpenWithFour();
  Click(kAdd);
  Type("txtCity", "Ely");
  WhileTaken([] { Click(kCancelAdd); });
  ExpectNobodyIsLost();
}

TEST_F(EditorUnreadRows, ADeleteThatFailsLeavesNobodyCurrent)
{
  OpenWithFour();
  AddCouple(1, 4);
  const auto before = People();
  boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, "Delete Record");
  boxes.Expect(kMarriedQuestion, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok,
               "Delete anniversary information");
  std::unique_ptr<DatabaseTaken> taken;
  {
    AtMessageBox atBox([&] {
      if (boxes.Count() == 1) {
        taken = std::make_unique<DatabaseTaken>(folder.DatabasePath());
      }
    });
    Click(kDelete);
  }
  ASSERT_NE(taken, nullptr);
  taken.reset();
  EXPECT_EQ(People(), before);
  ExpectNobodyIsLost();
}

TEST_F(EditorUnreadRows, ASearchThatFailsLeavesNobodyCurrent)
{
  OpenWithFour();
  WhileTaken([this] { Search("Brown, Bob"); });
  EXPECT_EQ(boxes.Count(), 0U);
  ExpectNobodyIsLost();
}

TEST_F(EditorUnreadRows, ASearchThatFailsShowsTheRowThatWasReadBeforeAgain)
{
  AddPerson("Ann", "Adams", {{"City", "Bath"}});
  AddPerson("Bob", "Brown");
  Open();
  WhileTaken([this] { Search("Brown, Bob"); });
  EXPECT_EQ(boxes.Count(), 0U);
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Shown("txtCity"), "Bath");
  EXPECT_EQ(Counter(), " 1 of 1 people");
  Search("Brown, Bob");
  EXPECT_EQ(Name(), "Bob Brown");
}

TEST_F(EditorUnreadRows, ASearchThatFailsAfterOneInVainFindsNobody)
{
  AddPerson("Ann", "Adams");
  AddPerson("Bob", "Brown");
  Open();
  boxes.Expect(kNotThere);
  Search("Nobody, N");
  boxes.Expect(kNotThere);
  WhileTaken([this] { Search("Brown, Bob"); });
  EXPECT_EQ(boxes.Count(), 2U);
  EXPECT_EQ(Name(), "Ann Adams");
}

TEST_F(EditorUnreadRows, AnAdditionThatIsLostIsNotTakenForTheLastPerson)
{
  OpenWithFour();
  const auto before = People();
  Click(kAdd);
  Paste("txtFirst", "Eve");
  Paste("txtLast", "Evans");
  Pick("cboSex", "Female");
  WhileTaken([] { Click(kFinishAdd); });
  EXPECT_EQ(Name(), "Eve Evans");
  EXPECT_EQ(Counter(), " 0 of 4 people");
  EXPECT_EQ(People(), before);
  ExpectAnEditChangesNobody();
  ExpectBrowsingGoesOn();
}

TEST_F(EditorUnreadRows, AnEditThatIsLostIsNotTakenForTheNextPerson)
{
  OpenWithFour();
  Click("cmdPrevious");
  ASSERT_EQ(Name(), "Cy Cole");
  const auto before = People();
  Click(kEdit);
  Type("txtCity", "Ely");
  WhileTaken([] { Click(kFinishEdit); });
  EXPECT_EQ(People(), before);
  Click(kEdit);
  Click(kFinishEdit);
  EXPECT_EQ(Dump("SELECT FirstName, City FROM People ORDER BY PeopleID"),
            (std::vector<std::string>{"Ann|Bath|", "Bob|Bath|", "Cy|Ely|", "Dan|Wells|"}));
}

TEST_F(EditorUnreadRows, AnEditThatIsLostIsTakenBackByACancel)
{
  OpenWithFour();
  Click("cmdPrevious");
  Click(kEdit);
  Type("txtCity", "Ely");
  WhileTaken([] { Click(kFinishEdit); });
  Click(kEdit);
  Click(kCancelEdit);
  EXPECT_EQ(Name(), "Cy Cole");
  EXPECT_EQ(Shown("txtCity"), "Bath");
}

TEST_F(EditorUnreadRows, SomebodyDeletedOutsideIsNotTakenForTheNextPerson)
{
  OpenWithFour();
  Click("cmdFirst");
  folder.Execute("DELETE FROM People WHERE PeopleID=1");
  Click(kEdit);
  Type("txtCity", "Ely");
  Click(kFinishEdit);
  ExpectAnEditChangesNobody();
}

TEST_F(EditorUnreadRows, EveryMoveEndsInTheErrorOfTheStore)
{
  OpenWithFour();
  for (const char* button : {"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"}) {
    Reopen();
    StartNewPerson();
    Click(kFinishAdd);
    ExpectEndingWhileTaken(button);
  }
  EXPECT_EQ(boxes.Count(), 4U);
}
