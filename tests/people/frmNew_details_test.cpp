// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/HeldDatabase.h"
#include "frmNew_pictures.h"
#include "support/ErrorOf.h"

using namespace PeopleTexts;

namespace {

const std::string kWedding = "June|12|1999|";
const std::string kNoWedding = "NULL|NULL|NULL|";

// A page whose loading fails.
class PageThatFails : public Form
{
public:
  explicit PageThatFails(const QString& name) : Form(name, Kind::kPage) {}

protected:
  void Form_Load() override { RaiseError(ErrorNumber::kFileNotFound); }
};

class EditorDetails : public PicturesTest
{
protected:
  void AddThree() const
  {
    AddPerson("Ann", "Adams", {{"City", "Bath"}});
    AddPerson("Bob", "Brown", {{"City", "Bath"}});
    AddPerson("Cy", "Cole", {{"City", "Bath"}});
  }

  [[nodiscard]] std::string WeddingOf(int person) const
  {
    return Dump(QStringLiteral("SELECT AnnMonth, AnnDate, AnnYear FROM People WHERE PeopleID=%1").arg(person)).at(0);
  }

  void DeleteWithTwoCouples()
  {
    boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, "Delete Record");
    for (int couple = 0; couple < 2; ++couple) {
      boxes.Expect(kMarriedQuestion, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok,
                   "Delete anniversary information");
    }
    Click(kDelete);
  }

  // Somebody is added while the store is locked.
  void LoseAnAddition() const
  {
    StartNewPerson();
    const DatabaseTaken taken(folder.DatabasePath());
    Click(kFinishAdd);
  }

  // Edits who is on the page; nobody else may change, nor anybody take another's name.
  void ExpectAnEditChangesOnlyWhoIsShown() const
  {
    const auto names = [this] { return Dump("SELECT FirstName, LastName FROM People ORDER BY PeopleID"); };
    const auto before = names();
    const std::string shown = Name();
    Click(kEdit);
    Type("txtCity", "Wells");
    Click(kFinishEdit);
    EXPECT_EQ(names(), before);
    for (const QVariantList& row : folder.Rows("SELECT FirstName || ' ' || LastName, City FROM People")) {
      const std::string name = AsText(row[0]);
      EXPECT_EQ(AsText(row[1]), name == shown ? "Wells" : "Bath") << name << " while " << shown << " is shown";
    }
  }

  static std::string BackColorOf(const QString& name)
  {
    return Control(name).property("BackColor").value<QColor>().name().toStdString();
  }
  static void ExpectPanels(const std::string& colour)
  {
    for (const char* panel : {"fraAdd", "fraEdit", "fraTools", "fraOther", "fraNav", "picPerson"}) {
      EXPECT_EQ(BackColorOf(panel), colour) << panel;
    }
  }

  void StoreTheme(int theme) const { folder.Execute("UPDATE Options SET Theme = ?", {theme}); }

  void SpoilTallies() const
  {
    for (const char* table : {"TotalBirthdays", "TotalAnn", "TotalAge"}) {
      folder.Execute(QStringLiteral("UPDATE %1 SET Total = 7").arg(table));
    }
  }
  void OpenForTallies(const QString& birthYear)
  {
    AddCouple(AddPerson("Ann", "Adams", {{"BirthMonth", "May"}, {"BirthYear", birthYear}}), AddPerson("Bob", "Brown"));
    SpoilTallies();
    Open();
  }
  [[nodiscard]] int SumOf(const char* table) const
  {
    return folder.Value(QStringLiteral("SELECT sum(Total) FROM %1").arg(table)).toInt();
  }
};

}

TEST_F(EditorDetails, ACancelledAdditionDropsTheChosenPicture)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kAdd);
  Choose(Drawn("chosen.png"));
  ASSERT_TRUE(HasPicture());
  Click(kCancelAdd);
  EXPECT_EQ(Name(), "Ann Adams");
  ExpectNoPicture();
}

TEST_F(EditorDetails, ACancelledEditDropsTheChosenPicture)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  Choose(Drawn("chosen.png"));
  ASSERT_TRUE(HasPicture());
  Click(kCancelEdit);
  EXPECT_EQ(Name(), "Ann Adams");
  ExpectNoPicture();
}

TEST_F(EditorDetails, AYearThatIsNoNumberComesAfterTheOtherTallies)
{
  OpenForTallies("19x0");
  EXPECT_EQ(ErrorOf([this] { Leave(); }), ErrorNumber::kTypeMismatch);
  EXPECT_EQ(folder.Value("SELECT Total FROM TotalAnn WHERE Month='Jun'"), 1);
  EXPECT_EQ(SumOf("TotalAnn"), 1);
  EXPECT_EQ(folder.Value("SELECT Total FROM TotalBirthdays WHERE Month='May'"), 1);
  EXPECT_EQ(SumOf("TotalBirthdays"), 1);
}

TEST_F(EditorDetails, AnniversariesAreCountedFirstAndAgesLast)
{
  OpenForTallies("1980");
  folder.Execute("CREATE TABLE Written (Place TEXT)");
  for (const char* table : {"TotalAge", "TotalAnn", "TotalBirthdays"}) {
    folder.Execute(
        QStringLiteral("CREATE TRIGGER Note%1 AFTER UPDATE ON %1 BEGIN INSERT INTO Written VALUES ('%1'); END")
            .arg(table));
  }
  Leave();
  EXPECT_EQ(Dump("SELECT Place FROM Written GROUP BY Place ORDER BY max(rowid)"),
            (std::vector<std::string>{"TotalAnn|", "TotalBirthdays|", "TotalAge|"}));
}

TEST_F(EditorDetails, OfTwoCouplesOnlyThePartnerOfTheLastLosesTheWedding)
{
  AddThree();
  AddCouple(1, 2);
  AddCouple(3, 1);
  Open(1);
  DeleteWithTwoCouples();
  EXPECT_TRUE(Couples().empty());
  EXPECT_EQ(WeddingOf(2), kWedding);
  EXPECT_EQ(WeddingOf(3), kNoWedding);
}

TEST_F(EditorDetails, TheLastCoupleIsTheLastOfTheTableWhicheverSideThePersonIsOn)
{
  AddThree();
  AddCouple(3, 1);
  AddCouple(1, 2);
  Open(1);
  DeleteWithTwoCouples();
  EXPECT_TRUE(Couples().empty());
  EXPECT_EQ(WeddingOf(2), kNoWedding);
  EXPECT_EQ(WeddingOf(3), kWedding);
}

TEST_F(EditorDetails, OfTwoCouplesTheLastIsHandedToTheAnniversaryPage)
{
  AddThree();
  AddCouple(1, 2);
  AddCouple(3, 1);
  Open(1);
  Click(kAnniversary);
  EXPECT_EQ(modID::CoupleSpouse1ID, 3);
  EXPECT_EQ(modID::CoupleSpouse2ID, 1);
}

TEST_F(EditorDetails, OfTwoCouplesTheLastIsHandedOverOnTheOtherSideToo)
{
  AddThree();
  AddCouple(3, 1);
  AddCouple(1, 2);
  Open(1);
  Click(kAnniversary);
  EXPECT_EQ(modID::CoupleSpouse1ID, 1);
  EXPECT_EQ(modID::CoupleSpouse2ID, 2);
}

TEST_F(EditorDetails, ACancelEmptiesTheQuickFill)
{
  AddThree();
  Open();
  for (const auto& [begin, cancel] : {std::pair(kAdd, kCancelAdd), std::pair(kEdit, kCancelEdit)}) {
    Click(begin);
    Pick("cboStreet", "Brown, Bob");
    ASSERT_EQ(Shown("cboStreet"), "Brown, Bob");
    Click(cancel);
    EXPECT_EQ(Shown("cboStreet"), "") << cancel.toStdString();
  }
}

TEST_F(EditorDetails, TheNextPersonEmptiesTheQuickFill)
{
  AddThree();
  Open();
  Combo("cboStreet").SetListIndex(2);
  ASSERT_EQ(Shown("cboStreet"), "Cole, Cy");
  Click("cmdNext");
  EXPECT_EQ(Name(), "Bob Brown");
  EXPECT_EQ(Shown("cboStreet"), "");
}

TEST_F(EditorDetails, AFinishedEditHasVisitedTheNextPerson)
{
  AddThree();
  Open();
  Click(kEdit);
  Click(kFinishEdit);
  EXPECT_EQ(Counter(), " 1 of 1 people");
  Click(kAdd);
  Click(kCancelAdd);
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 1 of 2 people");
}

TEST_F(EditorDetails, TheBeigeThemeIsAppliedAtTheLoad)
{
  StoreTheme(5);
  Open();
  EXPECT_EQ(Page().BackColor().name().toStdString(), "#fff9e9");
  ExpectPanels("#fff9e9");
  EXPECT_TRUE(Page().Picture().isNull());
  EXPECT_TRUE(IsShown("Shape15"));
}

TEST_F(EditorDetails, TheWhiteThemeIsAppliedAtTheLoad)
{
  StoreTheme(4);
  Open();
  EXPECT_EQ(Page().BackColor().name().toStdString(), "#ffffff");
  ExpectPanels("#ffffff");
  EXPECT_TRUE(Page().Picture().isNull());
  EXPECT_TRUE(IsShown("Shape15"));
}

// The folder of the themes is empty.
TEST_F(EditorDetails, WithoutItsThemeThePageAndItsPictureBoxAreWhite)
{
  Open();
  EXPECT_EQ(Page().BackColor().name().toStdString(), "#ffffff");
  EXPECT_EQ(BackColorOf("picPerson"), "#ffffff");
  EXPECT_EQ(Background("picPerson"), "#ffffff");
}

TEST_F(EditorDetails, APictureThemeIsAppliedAtTheLoad)
{
  StoreTheme(1);
  QDir(folder.Path()).mkdir("themes");
  Save(folder.File("/themes/mariw.jpg"), {24, 30});
  Open();
  ExpectPanels("#ffffff");
  EXPECT_EQ(Page().Picture().size(), QSize(24, 30));
  EXPECT_EQ(Page().BackColor().name().toStdString(), "#ffffff");
  EXPECT_FALSE(IsShown("Shape15"));
}

TEST_F(EditorDetails, TheMouseLightsACommandAndPutsItOut)
{
  AddThree();
  Open();
  const auto& add = dynamic_cast<Label&>(Control(kAdd));
  Drive::MoveOver(Page());
  ASSERT_EQ(add.BackStyle(), Label::kTransparent);
  ASSERT_EQ(add.ForeColor().name().toStdString(), "#000000");
  Drive::MoveOver(Page(), kAdd);
  EXPECT_EQ(add.BackStyle(), Label::kOpaque);
  EXPECT_EQ(add.ForeColor().name().toStdString(), "#d18c41");
  Drive::MoveOver(Page());
  EXPECT_EQ(add.BackStyle(), Label::kTransparent);
  EXPECT_EQ(add.ForeColor().name().toStdString(), "#000000");
}

TEST_F(EditorDetails, OnlyTheNamesAreBold)
{
  Open();
  for (const QString& box : kTextBoxes) {
    const bool isName = box == QStringLiteral("txtFirst") || box == QStringLiteral("txtLast");
    EXPECT_EQ(Control(box).font().bold(), isName) << box.toStdString();
  }
}

TEST_F(EditorDetails, AnAnniversaryPageThatFailsEndsOnTheMainPage)
{
  AddThree();
  Forms::Register("frmAnn", [] { return new PageThatFails("frmAnn"); });
  Open();
  Click(kAnniversary);
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(IsOpen("frmAnn"));
  ASSERT_TRUE(IsOpen("frmIntro"));
  EXPECT_TRUE(Forms::Loaded("frmIntro")->isVisible());
}

TEST_F(EditorDetails, NextAfterSomebodyWhoIsNotThereShowsTheLast)
{
  AddThree();
  Open(99);
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 0 of 3 people");
  Click("cmdNext");
  EXPECT_EQ(Name(), "Cy Cole");
  EXPECT_EQ(Counter(), " 3 of 3 people");
  ExpectAnEditChangesOnlyWhoIsShown();
  EXPECT_EQ(Stored(3, "City"), "Wells");
}

TEST_F(EditorDetails, NextAfterALostAdditionShowsTheLast)
{
  AddThree();
  Open();
  LoseAnAddition();
  Click("cmdNext");
  EXPECT_EQ(Name(), "Cy Cole");
  EXPECT_EQ(Counter(), " 3 of 3 people");
  ExpectAnEditChangesOnlyWhoIsShown();
  EXPECT_EQ(Stored(3, "City"), "Wells");
}

TEST_F(EditorDetails, NextFromALastPersonDeletedOutsideKeepsPageAndRowTogether)
{
  AddThree();
  Open();
  Click("cmdLast");
  folder.Execute("DELETE FROM People WHERE PeopleID=3");
  Click("cmdNext");
  ExpectAnEditChangesOnlyWhoIsShown();
}

TEST_F(EditorDetails, NextTwiceFromALastPersonDeletedOutsideKeepsPageAndRowTogether)
{
  AddThree();
  Open();
  Click("cmdLast");
  folder.Execute("DELETE FROM People WHERE PeopleID=3");
  Click("cmdNext");
  Click("cmdNext");
  ExpectAnEditChangesOnlyWhoIsShown();
}
