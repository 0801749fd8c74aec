// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"
#include "looks/modResize.h"
#include "support/HeldDatabase.h"

#include <QElapsedTimer>
#include <QFile>

namespace {

constexpr qint64 kPatience = 20'000;

class LookupLoad : public LookupPageTest
{
protected:
  static std::string BackOf(const QString& name)
  {
    return Control(name).property("BackColor").value<QColor>().name().toStdString();
  }
  static void ExpectNoName()
  {
    EXPECT_EQ(Lines(), "");
    EXPECT_EQ(Name(), "");
    EXPECT_EQ(modID::SelectedPersonID, 0);
    ExpectNothingShown();
    ExpectPlainTitles();
  }
};

}

TEST_F(LookupLoad, EveryCaptionStandsInFull)
{
  AddPerson("Ann", "Wood");
  Open();
  EXPECT_EQ(Page().windowTitle().toStdString(), "Personal information");
  const QList<std::pair<QString, std::string>> captions = {{"lblNames_0", "First Name"},
                                                           {"lblNames_1", "Last Name"},
                                                           {"lblAll_0", "Check all"},
                                                           {"lblAll_1", "Clear all"},
                                                           {"lblExplain", "* indicates missing information"},
                                                           {"lblDone", "Done"},
                                                           {"lblName", ""},
                                                           {"lblOptions_0", "<< Main"},
                                                           {"lblOptions_1", " Print records"},
                                                           {"lblOptions_2", " Write a letter"},
                                                           {"lblOptions_3", " Send an email"},
                                                           {"lblOptions_4", " Copy to clipboard"},
                                                           {"lblOptions_5", "Exit"},
                                                           {"lblOptions_6", "Notepad"},
                                                           {"lblOptions_7", "Word"},
                                                           {"lblOptions_8", "WordPad"},
                                                           {"lblOptions_9", "Exit"},
                                                           {"lblOptions_10", "Print"},
                                                           {"lblOptions_11", " Open database"},
                                                           {"lblOptions_12", "Exit"}};
  for (const auto& [name, caption] : captions) {
    EXPECT_EQ(Caption(name), caption) << name.toStdString();
  }
  for (const LookupItem& item : kItems) {
    EXPECT_EQ(ButtonCaption(item.check), item.caption);
  }
  EXPECT_EQ(ButtonCaption("optPrint_0"), "One individual");
  EXPECT_EQ(ButtonCaption("optPrint_1"), "All individuals");
  EXPECT_EQ(ButtonCaption("chkDate"), "Add current date");
  EXPECT_EQ(ButtonCaption("chkAddress"), "Include recipient's address with salutation");
  EXPECT_EQ(ButtonCaption("optData_0"), "Personal records");
  EXPECT_EQ(ButtonCaption("optData_1"), "Wedding anniversaries");
  EXPECT_EQ(Control("fraResults").property("title").toString().toStdString(), "Search Results");
  EXPECT_EQ(Control("fraPrint").property("title").toString().toStdString(), "Print records...");
  EXPECT_EQ(Control("fraLetter").property("title").toString().toStdString(), "Select a program...");
}

TEST_F(LookupLoad, ThePageOpensWithEverybodyByFirstNameAndNothingElse)
{
  AddPerson("Eve", "Adams");
  AddPerson("Ann", "Wood");
  AddPerson("Bob", "Marsh");
  modID::SelectedPersonID = 2;
  Open();
  EXPECT_EQ(Lines(), "Ann Wood|Bob Marsh|Eve Adams");
  EXPECT_EQ(Names().ListIndex(), -1);
  EXPECT_EQ(modID::SelectedPersonID, 0);
  EXPECT_EQ(Name(), "");
  ExpectTicks(false);
  ExpectNothingShown();
  ExpectPlainTitles();
  for (const char* hidden :
       {"txtEmpty", "lblExplain", "lblDone", "picPerson", "fraPrint", "fraLetter", "fraDatabase", "txtHidden"}) {
    EXPECT_FALSE(IsShown(hidden)) << hidden;
  }
}

TEST_F(LookupLoad, AnEmptyTableShowsTheHint)
{
  Open();
  EXPECT_TRUE(IsShown("txtEmpty"));
  EXPECT_EQ(TextOf("txtEmpty"), "No names available. Open the database to make entries.");
  ExpectNoName();
}

TEST_F(LookupLoad, WithAnEmptyTableAnOrderClickLeavesEverythingAsItWas)
{
  Open();
  Click(kCheckAll);
  for (const QString& order : {kFirstNameOrder, kLastNameOrder, kFirstNameOrder}) {
    Click(order);
    EXPECT_TRUE(IsShown("txtEmpty"));
    EXPECT_EQ(TextOf("txtEmpty"), "No names available. Open the database to make entries.");
    ExpectNoName();
    ExpectTicks(true);
  }
}

TEST_F(LookupLoad, WithAnEmptyTableTheListAnswersNothing)
{
  Open();
  Click(kCheckAll);
  QTest::mouseClick(Names().viewport(), Qt::LeftButton, {}, QPoint(10, 10));
  Press("lstNames", Qt::Key_Down);
  ExpectNoName();
}

TEST_F(LookupLoad, AnOrderClickBringsInWhoCameSince)
{
  Open();
  AddPerson("Ann", "Wood");
  Click(kLastNameOrder);
  EXPECT_EQ(Lines(), "Wood, Ann");
  ClickLine(0);
  EXPECT_EQ(Name(), "Ann Wood");
}

TEST_F(LookupLoad, TheDatabaseIsLeftAloneWhileThePageIsOpen)
{
  AddPerson("Ann", "Wood");
  Open();
  EXPECT_FALSE(frame.careAllowed);
  ClickLine(0);
  Click(kLastNameOrder);
  EXPECT_FALSE(frame.careAllowed);
  Leave();
  EXPECT_TRUE(frame.careAllowed);
}

TEST_F(LookupLoad, TheOpenPageKeepsEmptyImagesFromStretching)
{
  modImages::UnstretchEmpty = false;
  Open();
  EXPECT_TRUE(modImages::UnstretchEmpty);
  Leave();
  EXPECT_FALSE(modImages::UnstretchEmpty);
}

TEST_F(LookupLoad, EveryControlKnowsItsProportions)
{
  Open();
  EXPECT_GT(Page().Controls().size(), 60U);
  for (const QWidget* control : Page().Controls()) {
    EXPECT_GE(modResize::TagOf(*control).size(), 20) << control->objectName().toStdString();
  }
}

TEST_F(LookupLoad, ThePageGrowsInProportion)
{
  Open();
  const QRect names = Names().geometry();
  const QRect main = Control(kMain).geometry();
  const QRect page = Page().rect();
  Page().resize(page.width() * 2, page.height() * 2);
  constexpr int kRounding = 2;
  EXPECT_NEAR(Names().x(), names.x() * 2, kRounding);
  EXPECT_NEAR(Names().width(), names.width() * 2, kRounding);
  EXPECT_NEAR(Names().height(), names.height() * 2, kRounding);
  EXPECT_NEAR(Control(kMain).y(), main.y() * 2, kRounding);
  frame.state = WindowState::kMinimised;
  Page().resize(page.size());
  EXPECT_NEAR(Names().width(), names.width() * 2, kRounding);
  frame.state = WindowState::kMaximised;
  Page().resize(page.size() + QSize(1, 1));
  EXPECT_NEAR(Names().width(), names.width(), kRounding);
}

TEST_F(LookupLoad, APictureThemeIsAppliedAtTheLoad)
{
  UseGarden();
  Open();
  ExpectThemePicture();
  EXPECT_EQ(Marked("shpNames"), 1);
  EXPECT_FALSE(IsShown("Shape15"));
  for (const char* name : {"picThemes", "fraResults", "picPerson"}) {
    EXPECT_EQ(BackOf(name), "#ffffff") << name;
  }
}

TEST_F(LookupLoad, EveryPictureThemeHasItsPicture)
{
  const std::array<const char*, 4> pictures = {"bicyclew.jpg", "irisw4.jpg", "wchellow3.jpg", "giraffew.jpg"};
  for (int theme = 0; theme < 4; ++theme) {
    folder.Execute("UPDATE Options SET Theme=?", {theme});
    Hands::SavePicture(folder.File(QStringLiteral("/themes/") + pictures.at(static_cast<std::size_t>(theme))),
                       Qt::green, {20 + theme, 30});
    Open();
    EXPECT_EQ(ThemePicture().Picture().size(), QSize(20 + theme, 30)) << theme;
    Leave();
  }
}

TEST_F(LookupLoad, TheBeigeThemeIsAppliedAtTheLoad)
{
  folder.Execute("UPDATE Options SET Theme=5");
  Open();
  EXPECT_EQ(Page().BackColor().name().toStdString(), "#fff9e9");
  for (const char* name : {"picThemes", "fraResults", "picPerson"}) {
    EXPECT_EQ(BackOf(name), "#fff9e9") << name;
  }
  EXPECT_EQ(Marked("shpNames"), 0);
  EXPECT_TRUE(IsShown("Shape15"));
  EXPECT_TRUE(ThemePicture().Picture().isNull());
}

TEST_F(LookupLoad, WithTheDatabaseLockedThePageOpensInSilence)
{
  AddPerson("Ann", "Wood");
  modID::SelectedPersonID = 1;
  {
    const DatabaseTaken taken(folder.DatabasePath());
    Open();
    ExpectNoName();
    EXPECT_FALSE(IsShown("txtEmpty"));
    EXPECT_FALSE(frame.careAllowed);
    EXPECT_TRUE(modImages::UnstretchEmpty);
    EXPECT_EQ(TipOf(kFirstNameOrder), "Arrange by first name");
    Click(kCheckAll);
    Press("lstNames", Qt::Key_Down);
    ExpectNothingShown();
  }
  Click(kFirstNameOrder);
  EXPECT_EQ(Lines(), "Ann Wood");
  ClickLine(0);
  EXPECT_EQ(modID::SelectedPersonID, 1);
}

TEST_F(LookupLoad, WithoutADatabaseThePageOpensInSilence)
{
  ASSERT_TRUE(QFile::remove(folder.DatabasePath()));
  Open();
  ExpectNoName();
  Click(kCheckAll);
  Press("lstNames", Qt::Key_Down);
  ExpectNoName();
  Click(kMain);
  EXPECT_TRUE(IsOpen("frmIntro"));
}

TEST_F(LookupLoad, ALoadAfterAnotherStartsAfresh)
{
  const int ann = AddAnn();
  Open();
  Click(kCheckAll);
  ClickLine(0);
  Click(kFirstNameOrder);
  ClickLine(0);
  ASSERT_EQ(modID::SelectedPersonID, ann);
  Leave();
  AddPerson("Bob", "Marsh");
  Open();
  EXPECT_EQ(Lines(), "Ann Wood|Bob Marsh");
  EXPECT_EQ(modID::SelectedPersonID, 0);
  ExpectTicks(false);
  ExpectPlainTitles();
  Click("chkInfo_0");
  Click(kFirstNameOrder);
  ExpectTicks(false);
}

TEST_F(LookupLoad, FiveThousandPeopleComeQuickly)
{
  folder.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<5000) INSERT INTO People (FirstName, "
      "LastName, Phone) SELECT printf('First%05d', i), printf('Last%05d', 5001-i), 'phone ' || i FROM n");
  QElapsedTimer clock;
  clock.start();
  Open();
  ASSERT_EQ(Names().ListCount(), 5000);
  EXPECT_EQ(Names().List(0).toStdString(), "First00001 Last05000");
  Tick("chkInfo_0");
  for (const int line : {4999, 0, 2500, 4998}) {
    ClickLine(line);
    EXPECT_EQ(Shown("txtPhoneInfo"), "phone " + std::to_string(line + 1));
  }
  Click(kLastNameOrder);
  EXPECT_EQ(Names().List(0).toStdString(), "Last00001, First05000");
  Tick("chkInfo_0");
  ClickLine(4999);
  EXPECT_EQ(Shown("txtPhoneInfo"), "phone 1");
  for (int i = 0; i < 200; ++i) {
    Press("lstNames", Qt::Key_Up);
  }
  EXPECT_EQ(Shown("txtPhoneInfo"), "phone 201");
  EXPECT_LT(clock.elapsed(), kPatience);
}
