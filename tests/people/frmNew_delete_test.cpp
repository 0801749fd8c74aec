// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

using namespace PeopleTexts;

namespace {

class EditorDelete : public PeopleTest
{
protected:
  void ExpectQuestion(QMessageBox::StandardButton answer)
  {
    boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, answer, "Delete Record");
  }
  void ExpectMarried(QMessageBox::StandardButton answer)
  {
    boxes.Expect(kMarriedQuestion, QMessageBox::Ok | QMessageBox::Cancel, answer, "Delete anniversary information");
  }
  void Delete()
  {
    ExpectQuestion(QMessageBox::Yes);
    Click(kDelete);
  }

  static void ExpectLocked()
  {
    for (const QString& name : kAllBoxes) {
      EXPECT_TRUE(Box(name).Locked()) << name.toStdString();
      EXPECT_EQ(Background(name), "#fff7d3") << name.toStdString();
    }
  }
  static void ExpectUnlocked()
  {
    for (const QString& name : kAllBoxes) {
      EXPECT_FALSE(Box(name).Locked()) << name.toStdString();
      EXPECT_EQ(Background(name), "#ffffff") << name.toStdString();
    }
  }

  void AddThree() const
  {
    AddPerson("Ann", "Adams", {{"Street", "1 High St"}});
    AddPerson("Bob", "Brown", {{"City", "Bath"}});
    AddPerson("Cy", "Cole", {{"Notes", "n"}});
  }

  [[nodiscard]] std::vector<std::string> Names() const
  {
    return Dump("SELECT FirstName FROM People ORDER BY PeopleID");
  }
};

}

TEST_F(EditorDelete, BoxesAreWhiteAndUnlockedWhileTheQuestionStands)
{
  AddThree();
  Open();
  AtMessageBox atBox([] { ExpectUnlocked(); });
  ExpectQuestion(QMessageBox::No);
  Click(kDelete);
  EXPECT_EQ(atBox.Looks, 1);
  ExpectLocked();
}

TEST_F(EditorDelete, NoLeavesEverythingButRaisesTheFlag)
{
  AddThree();
  Save(PictureFile(1));
  Open();
  const auto before = People();
  ExpectQuestion(QMessageBox::No);
  Click(kDelete);
  EXPECT_EQ(People(), before);
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 1 of 1 people");
  EXPECT_TRUE(QFile::exists(PictureFile(1)));
  EXPECT_TRUE(HasPicture());
  EXPECT_TRUE(modID::RecordDeleted);
  ExpectLocked();
}

TEST_F(EditorDelete, YesRaisesTheFlagWhichIsNeverTakenBack)
{
  AddThree();
  Open();
  EXPECT_FALSE(modID::RecordDeleted);
  Delete();
  EXPECT_TRUE(modID::RecordDeleted);
  Click("cmdNext");
  Reopen();
  EXPECT_TRUE(modID::RecordDeleted);
}

TEST_F(EditorDelete, TheFirstRightAfterOpeningShowsTheNewFirst)
{
  AddThree();
  Open();
  Delete();
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(Shown("txtCity"), "Bath");
  EXPECT_EQ(Shown("txtStreet"), "");
  EXPECT_EQ(Counter(), " 1 of 2 people");
  EXPECT_EQ(Names(), (std::vector<std::string>{"Bob|", "Cy|"}));
  EXPECT_EQ(Lines("cboStreet"), QStringList({"Brown, Bob", "Cole, Cy"}));
  ExpectLocked();
}

TEST_F(EditorDelete, TheFirstAfterAllWereSeenShowsTheNewFirst)
{
  AddThree();
  Open();
  Click("cmdLast");
  Click("cmdFirst");
  Delete();
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(Counter(), " 1 of 2 people");
  Click("cmdPrevious");
  EXPECT_EQ(Name(), "Bob Brown");
  Click("cmdNext");
  EXPECT_EQ(Name(), "Cy Cole");
}

TEST_F(EditorDelete, OneInTheMiddleShowsTheOneBefore)
{
  AddThree();
  AddPerson("Dan", "Dunn");
  Open();
  Click("cmdNext");
  Click("cmdNext");
  Delete();
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(Shown("txtNotes"), "");
  EXPECT_EQ(Counter(), " 2 of 3 people");
  Click("cmdNext");
  EXPECT_EQ(Name(), "Dan Dunn");
}

TEST_F(EditorDelete, TheLastShowsTheOneBefore)
{
  AddThree();
  Open();
  Click("cmdLast");
  Delete();
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(Counter(), " 2 of 2 people");
  EXPECT_EQ(Names(), (std::vector<std::string>{"Ann|", "Bob|"}));
}

TEST_F(EditorDelete, TheOnlyPersonLeavesAnEmptyPage)
{
  AddPerson("Ann", "Adams", {{"Street", "1 High St"}, {"BirthYear", "1980"}, {"Notes", "n"}});
  Save(PictureFile(1));
  Open();
  Delete();
  for (const QString& name : kAllBoxes) {
    EXPECT_EQ(Shown(name), "") << name.toStdString();
  }
  EXPECT_EQ(Counter(), " 0 of 0 people");
  EXPECT_FALSE(HasPicture());
  EXPECT_TRUE(Lines("cboStreet").isEmpty());
  EXPECT_TRUE(People().empty());
  EXPECT_FALSE(QFile::exists(PictureFile(1)));
  ExpectLocked();
}

TEST_F(EditorDelete, TheOnlyPersonTakesTheirAnniversaryFromThePage)
{
  AddPerson("Ann", "Adams", {{"AnnMonth", "June"}, {"AnnYear", "1999"}});
  Open();
  EXPECT_EQ(Caption("lblCompleteAnn"), "June  1999");
  Delete();
  EXPECT_EQ(Caption("lblCompleteAnn"), "");
}

TEST_F(EditorDelete, NothingMoreCanBeDoneToNobody)
{
  AddPerson("Ann", "Adams");
  Open();
  Delete();
  for (const QString& name : {kDelete, kEdit, kSearch, QStringLiteral("cmdFirst"), QStringLiteral("cmdPrevious"),
                              QStringLiteral("cmdNext"), QStringLiteral("cmdLast")}) {
    Click(name);
  }
  EXPECT_EQ(boxes.Count(), 1U);
  EXPECT_EQ(Counter(), " 0 of 0 people");
  EXPECT_FALSE(IsShown("fraEdit"));
}

TEST_F(EditorDelete, AllOfThemOneAfterAnother)
{
  AddThree();
  Open();
  for (int left = 3; left > 0; --left) {
    EXPECT_EQ(People().size(), static_cast<std::size_t>(left));
    Delete();
  }
  EXPECT_TRUE(People().empty());
  EXPECT_EQ(Counter(), " 0 of 0 people");
  EXPECT_EQ(Name(), " ");
}

TEST_F(EditorDelete, AKeyIsNotUsedAgain)
{
  AddThree();
  Open();
  Click("cmdLast");
  Delete();
  Click(kAdd);
  Type("txtFirst", "Dan");
  Type("txtLast", "Dunn");
  Pick("cboSex", "Male");
  Click(kFinishAdd);
  EXPECT_EQ(Dump("SELECT PeopleID FROM People ORDER BY PeopleID"), (std::vector<std::string>{"1|", "2|", "4|"}));
  EXPECT_EQ(Counter(), " 3 of 3 people");
}

TEST_F(EditorDelete, CancelAtTheMarriedQuestionLeavesEverything)
{
  AddThree();
  const int couple = AddCouple(1, 2);
  Save(PictureFile(1));
  Save(PictureFile(2));
  Save(CouplePictureFile(couple));
  Open();
  const auto people = People();
  const auto couples = Couples();
  ExpectQuestion(QMessageBox::Yes);
  ExpectMarried(QMessageBox::Cancel);
  Click(kDelete);
  EXPECT_EQ(People(), people);
  EXPECT_EQ(Couples(), couples);
  for (const QString& file : {PictureFile(1), PictureFile(2), CouplePictureFile(couple)}) {
    EXPECT_TRUE(QFile::exists(file)) << file.toStdString();
  }
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_TRUE(HasPicture());
  EXPECT_FALSE(modID::RecordDeleted);
  ExpectLocked();
}

TEST_F(EditorDelete, AWifeTakesTheCoupleAndBothPicturesWithHer)
{
  AddThree();
  const int couple = AddCouple(1, 2);
  const int other = AddCouple(3, AddPerson("Dan", "Dunn"));
  for (const int person : {1, 2, 3}) {
    Save(PictureFile(person));
  }
  Save(CouplePictureFile(couple));
  Save(CouplePictureFile(other));
  Open();
  ExpectQuestion(QMessageBox::Yes);
  ExpectMarried(QMessageBox::Ok);
  Click(kDelete);
  EXPECT_EQ(Dump("SELECT PeopleID, AnnMonth, AnnDate, AnnYear FROM People ORDER BY PeopleID"),
            (std::vector<std::string>{"2|NULL|NULL|NULL|", "3|June|12|1999|", "4|June|12|1999|"}));
  EXPECT_EQ(Dump("SELECT AnnID FROM Ann"), std::vector<std::string>{std::to_string(other) + "|"});
  EXPECT_FALSE(QFile::exists(PictureFile(1)));
  EXPECT_FALSE(QFile::exists(CouplePictureFile(couple)));
  EXPECT_TRUE(QFile::exists(PictureFile(2)));
  EXPECT_TRUE(QFile::exists(PictureFile(3)));
  EXPECT_TRUE(QFile::exists(CouplePictureFile(other)));
  EXPECT_EQ(Name(), "Bob Brown");
}

TEST_F(EditorDelete, AHusbandTakesTheCoupleWithHim)
{
  AddThree();
  AddCouple(3, 2);
  Open(2);
  ExpectQuestion(QMessageBox::Yes);
  ExpectMarried(QMessageBox::Ok);
  Click(kDelete);
  EXPECT_TRUE(Couples().empty());
  EXPECT_EQ(Dump("SELECT PeopleID, AnnMonth, AnnDate, AnnYear FROM People ORDER BY PeopleID"),
            (std::vector<std::string>{"1|NULL|NULL|NULL|", "3|NULL|NULL|NULL|"}));
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 1 of 2 people");
}

TEST_F(EditorDelete, ThePartnerReachedNextNoLongerShowsTheWedding)
{
  AddThree();
  AddCouple(2, 3);
  Open(2);
  ExpectQuestion(QMessageBox::Yes);
  ExpectMarried(QMessageBox::Ok);
  Click(kDelete);
  Click("cmdNext");
  EXPECT_EQ(Name(), "Cy Cole");
  EXPECT_EQ(Caption("lblCompleteAnn"), "  ");
}

TEST_F(EditorDelete, WithoutACoupleNobodyElsesDateIsTouched)
{
  AddThree();
  folder.Execute("UPDATE People SET AnnMonth='June', AnnDate='12', AnnYear='1999' WHERE PeopleID > 1");
  Open();
  const auto others = Dump("SELECT * FROM People WHERE PeopleID > 1");
  Delete();
  EXPECT_EQ(Dump("SELECT * FROM People"), others);
}

TEST_F(EditorDelete, EachOfTwoCouplesIsAskedAbout)
{
  AddThree();
  AddCouple(1, 2);
  AddCouple(3, 1);
  Open();
  ExpectQuestion(QMessageBox::Yes);
  ExpectMarried(QMessageBox::Ok);
  ExpectMarried(QMessageBox::Ok);
  Click(kDelete);
  EXPECT_TRUE(Couples().empty());
  EXPECT_EQ(Names(), (std::vector<std::string>{"Bob|", "Cy|"}));
}

TEST_F(EditorDelete, CancelAtTheSecondCoupleDeletesNoRecordAtAll)
{
  AddThree();
  const int couple = AddCouple(1, 2);
  AddCouple(3, 1);
  Save(CouplePictureFile(couple));
  Open();
  const auto people = People();
  const auto couples = Couples();
  ExpectQuestion(QMessageBox::Yes);
  ExpectMarried(QMessageBox::Ok);
  ExpectMarried(QMessageBox::Cancel);
  Click(kDelete);
  EXPECT_EQ(People(), people);
  EXPECT_EQ(Couples(), couples);
  EXPECT_TRUE(QFile::exists(CouplePictureFile(couple)));
}

TEST_F(EditorDelete, APictureShowsWithItsPersonOnly)
{
  AddThree();
  Save(PictureFile(2), {40, 20}, Qt::blue);
  Open();
  Delete();
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(ShownColour(), "#0000ff");
  EXPECT_TRUE(IsShown("imgPerson"));
  Delete();
  EXPECT_EQ(Name(), "Cy Cole");
  ExpectNoPicture();
}

TEST_F(EditorDelete, AFileIsLeftBehindAfterAnAdditionWithAPicture)
{
  AddThree();
  Save(PictureFile(1));
  Save(folder.File("/chosen.png"));
  Open();
  Click(kAdd);
  Type("txtFirst", "Dan");
  Type("txtLast", "Dunn");
  Pick("cboSex", "Male");
  dialogs.ExpectChoice(folder.File("/chosen.png"));
  Click("cmdAddPic");
  Click(kFinishAdd);
  Click("cmdFirst");
  Delete();
  EXPECT_TRUE(QFile::exists(PictureFile(1)));
  EXPECT_EQ(Names(), (std::vector<std::string>{"Bob|", "Cy|", "Dan|"}));
}

TEST_F(EditorDelete, AFileIsLeftBehindAfterAPictureWasRemovedInACancelledAddition)
{
  AddThree();
  Save(PictureFile(1));
  Open();
  Click(kAdd);
  Click("cmdDeletePic");
  Click(kCancelAdd);
  EXPECT_TRUE(HasPicture());
  Delete();
  EXPECT_TRUE(QFile::exists(PictureFile(1)));
}

TEST_F(EditorDelete, AChoiceThatWasCancelledKeepsNoFile)
{
  AddThree();
  Save(PictureFile(1));
  Open();
  Click(kAdd);
  dialogs.ExpectCancel();
  Click("cmdAddPic");
  Click(kCancelAdd);
  Delete();
  EXPECT_FALSE(QFile::exists(PictureFile(1)));
}

TEST_F(EditorDelete, AnEditBetweenHasTheFileDeletedAgain)
{
  for (const QString& end : {kFinishEdit, kCancelEdit}) {
    const int person = AddPerson("Aa", "Aa");
    AddPerson("Bb", "Bb");
    Save(PictureFile(person));
    Open();
    Click(kAdd);
    Click("cmdDeletePic");
    Click(kCancelAdd);
    Click(kEdit);
    Click(end);
    Delete();
    EXPECT_FALSE(QFile::exists(PictureFile(person))) << end.toStdString();
    Leave();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(EditorDelete, AnOpenedPageForgetsThatAFileWasToBeKept)
{
  AddThree();
  Save(PictureFile(1));
  Open();
  Click(kAdd);
  Click("cmdDeletePic");
  Click(kCancelAdd);
  Reopen();
  Delete();
  EXPECT_FALSE(QFile::exists(PictureFile(1)));
}
