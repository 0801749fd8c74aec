// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ChartsTest.h"

#include "charts/modConvert.h"
#include "controls/PictureBox.h"
#include "looks/modThemes.h"
#include "support/HeldDatabase.h"
#include "store/DBEngine.h"
#include "store/StoreError.h"
#include "support/ErrorOf.h"

#include <QDir>
#include <QLabel>

namespace {

struct SubjectTexts
{
  const char* caption;
  const char* tip;
  const char* yTitle;
  const char* xTitle;
};

constexpr SubjectTexts kSubjects[] = {
    {"People by city", "Plots number of people in each city ", "People", "City"},
    {"People by age", "Plots number of people in each age class", "People", "Age group"},
    {"Birthdays by month", "Plots number of birthdays in each month", "Birthdays", "Month"},
    {"Anniversaries by month", "Plots number of anniversaries in each month", "Anniversaries", "Month"},
    {"People by State/Province", "Plots number of people in each state or province", "People", "State/Province"},
};

const std::pair<const char*, const char*> kKinds[] = {
    {"Bar chart", "Information is presented as a bar graph"},
    {"Circles", "Information is presented as pie charts"},
};

constexpr const char* kNoMonths =
    "Jan: 0, Feb: 0, Mar: 0, Apr: 0, May: 0, Jun: 0, Jul: 0, Aug: 0, Sep: 0, Oct: 0, Nov: 0, Dec: 0";
constexpr const char* kNoAges =
    "&lt;10: 0, 10-19: 0, 20-29: 0, 30-39: 0, 40-49: 0, 50-59: 0, 60-69: 0, 70-79: 0, 80-89: 0, &gt;89: 0";

class ChartPage : public ChartsTest
{
protected:
  static std::string TextOf(const char* label)
  {
    return static_cast<QLabel&>(Drive::Control(Page(), label)).text().toStdString();
  }
  static bool ChartIsShown() { return Chart().isVisible(); }

  // The classes of age that hold somebody, as the chart shows them.
  std::string AgesShown(const QStringList& years)
  {
    folder.Execute("DELETE FROM People");
    for (const QString& year : years) {
      folder.Execute("INSERT INTO People (FirstName, BirthYear) VALUES ('Ann', ?)", {year});
    }
    modConvert::TallyAges();
    Choose(Subject::kAge);
    QStringList shown;
    for (const QString& caption : Chart().InWords().split(", ")) {
      if (!caption.endsWith(": 0")) {
        shown.append(caption);
      }
    }
    return shown.join(", ").toStdString();
  }
};

}

TEST_F(ChartPage, HasItsCaptions)
{
  Open();
  EXPECT_EQ(Page().windowTitle(), "Charts");
  EXPECT_EQ(TextOf("lblTitle"), " Create a chart...");
  EXPECT_EQ(TextOf("lblChoices"), "Select the information that you would like to view");
  EXPECT_EQ(TextOf("lblKinds"), "Select the type of chart ");
  EXPECT_EQ(TextOf("lblOptions_0"), "<< Main");
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(Choice(i).text(), kSubjects[i].caption);
  }
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Kind(i).text(), kKinds[i].first);
  }
}

TEST_F(ChartPage, OpensWithoutASubjectAndWithoutAChart)
{
  AddPerson("Ayr");
  Open();
  for (int i = 0; i < 5; ++i) {
    EXPECT_FALSE(Choice(i).isChecked()) << i;
  }
  EXPECT_FALSE(ChartIsShown());
  EXPECT_EQ(Chart().ChartType(), ChartControl::kBars);
  EXPECT_TRUE(Kind(0).isChecked()) << "the kind that stands is marked";
  EXPECT_EQ(Chart().PlotBackColor(), QColor(253, 253, 248));
  EXPECT_EQ(Chart().Bars().chart()->plotAreaBackgroundBrush().color(), QColor(253, 253, 248));
  EXPECT_EQ(Chart().Circles().chart()->plotAreaBackgroundBrush().color(), QColor(253, 253, 248));
}

TEST_F(ChartPage, NothingIsKeptBetweenVisits)
{
  AddPerson("Ayr");
  Open();
  ChooseCircles();
  Choose(Subject::kCity);
  EXPECT_TRUE(ChartIsShown());
  Drive::Click(Page(), "lblOptions_0");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Open();
  EXPECT_FALSE(Choice(Subject::kCity).isChecked());
  EXPECT_FALSE(ChartIsShown());
  EXPECT_EQ(Chart().ChartType(), ChartControl::kBars);
}

TEST_F(ChartPage, EachSubjectShowsItsRowsAsBarsAndAsCirclesUnderItsTitles)
{
  AddPerson("Bonn", "Vermont");
  AddPerson("Ayr", "Ontario");
  AddPerson("bonn", {});
  folder.Execute("UPDATE TotalAge SET Total = rowid");
  folder.Execute("UPDATE TotalBirthdays SET Total = 2 * rowid");
  folder.Execute("UPDATE TotalAnn SET Total = 3 * rowid");
  const char* const kRows[] = {
      "Ayr: 1, Bonn: 2",
      "<10: 1, 10-19: 2, 20-29: 3, 30-39: 4, 40-49: 5, 50-59: 6, 60-69: 7, 70-79: 8, 80-89: 9, >89: 10",
      "Jan: 2, Feb: 4, Mar: 6, Apr: 8, May: 10, Jun: 12, Jul: 14, Aug: 16, Sep: 18, Oct: 20, Nov: 22, Dec: 24",
      "Jan: 3, Feb: 6, Mar: 9, Apr: 12, May: 15, Jun: 18, Jul: 21, Aug: 24, Sep: 27, Oct: 30, Nov: 33, Dec: 36",
      "Ontario: 1, Vermont: 1",
  };
  Open();
  for (int subject = 0; subject < 5; ++subject) {
    const QString rows = QString::fromLatin1(kRows[subject]);
    ChooseBars();
    Choose(subject);
    EXPECT_TRUE(ChartIsShown());
    EXPECT_EQ(Bars(), QString(rows).replace("<", "&lt;").replace(">", "&gt;").toStdString()) << "axes read mark-up";
    EXPECT_EQ(Chart().YAxisTitle(), kSubjects[subject].yTitle);
    EXPECT_EQ(Chart().XAxisTitle(), kSubjects[subject].xTitle);
    EXPECT_EQ(Chart().Bars().Totals().titleText(), kSubjects[subject].yTitle);
    EXPECT_EQ(Chart().Bars().Names().titleText(), kSubjects[subject].xTitle);
    EXPECT_TRUE(Chart().Bars().isVisible());
    EXPECT_FALSE(Chart().Circles().isVisible());
    ChooseCircles();
    EXPECT_EQ(Slices(), rows.toStdString());
    EXPECT_FALSE(Chart().Bars().isVisible());
    EXPECT_TRUE(Chart().Circles().isVisible());
    EXPECT_EQ(InWords(), rows.toStdString());
    EXPECT_EQ(Chart().accessibleName(), kSubjects[subject].caption);
  }
}

TEST_F(ChartPage, TheKindStaysWhateverTheSubject)
{
  AddPerson("Ayr", "Ontario");
  Open();
  Choose(Subject::kCity);
  EXPECT_EQ(int(Chart().ChartType()), 1);
  ChooseCircles();
  EXPECT_EQ(int(Chart().ChartType()), 14);
  Choose(Subject::kProvince);
  EXPECT_EQ(int(Chart().ChartType()), 14);
  EXPECT_EQ(Slices(), "Ontario: 1");
  ChooseBars();
  EXPECT_EQ(int(Chart().ChartType()), 1);
  EXPECT_EQ(Bars(), "Ontario: 1");
}

TEST_F(ChartPage, AChangeOfKindWithoutASubjectSetsTheTypeAndShowsNothing)
{
  AddPerson("Ayr");
  Open();
  ChooseCircles();
  EXPECT_EQ(Chart().ChartType(), ChartControl::kCircles);
  EXPECT_FALSE(ChartIsShown());
  ChooseBars();
  EXPECT_EQ(Chart().ChartType(), ChartControl::kBars);
  EXPECT_FALSE(ChartIsShown());
  ChooseCircles();
  Choose(Subject::kCity);
  EXPECT_TRUE(ChartIsShown());
  EXPECT_EQ(Slices(), "Ayr: 1") << "the kind chosen before";
}

TEST_F(ChartPage, WithoutCitiesTheChartIsEmpty)
{
  AddPerson({}, {});
  Open();
  for (const int subject : {Subject::kCity, Subject::kProvince}) {
    ChooseBars();
    Choose(subject);
    EXPECT_TRUE(ChartIsShown());
    EXPECT_EQ(Bars(), "");
    EXPECT_EQ(InWords(), "");
    EXPECT_EQ(Chart().XAxisTitle(), kSubjects[subject].xTitle);
    EXPECT_EQ(Chart().Bars().Totals().max(), 1);
    ChooseCircles();
    EXPECT_EQ(Slices(), "");
    EXPECT_TRUE(Chart().Circles().Labels().isEmpty());
  }
}

TEST_F(ChartPage, WithoutPeopleAllTalliesAreZeroAndNamesStand)
{
  Open();
  Choose(Subject::kAge);
  EXPECT_EQ(Bars(), kNoAges);
  Choose(Subject::kBirthdays);
  EXPECT_EQ(Bars(), kNoMonths);
  ChooseCircles();
  EXPECT_EQ(Slices(), kNoMonths);
  EXPECT_TRUE(Chart().Circles().Labels().isEmpty());
}

TEST_F(ChartPage, WithoutCouplesAllTwelveMonthsAreZero)
{
  folder.Execute("UPDATE TotalAnn SET Total = 9");
  modConvert::TallyAnniversaries();
  Open();
  Choose(Subject::kAnniversaries);
  EXPECT_EQ(Bars(), kNoMonths);
}

TEST_F(ChartPage, PeopleBornThisYearAreBelowTen)
{
  Open();
  EXPECT_EQ(AgesShown({"2026"}), "<10: 1");
}

TEST_F(ChartPage, TheAgeOfNinetyIsAboveEightyNine)
{
  Open();
  EXPECT_EQ(AgesShown({"1936"}), ">89: 1");
  EXPECT_EQ(AgesShown({"1937"}), "80-89: 1");
  EXPECT_EQ(AgesShown({"1937", "1936", "1936"}), "80-89: 1, >89: 2");
}

TEST_F(ChartPage, AMonthWithoutAYearIsABirthdayAndNoAge)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth) VALUES ('Ann', 'May')");
  modConvert::TallyBirthdays();
  modConvert::TallyAges();
  Open();
  Choose(Subject::kBirthdays);
  EXPECT_EQ(Bars(), "Jan: 0, Feb: 0, Mar: 0, Apr: 0, May: 1, Jun: 0, Jul: 0, Aug: 0, Sep: 0, Oct: 0, Nov: 0, Dec: 0");
  Choose(Subject::kAge);
  EXPECT_EQ(Bars(), kNoAges);
}

TEST_F(ChartPage, ThePageCountsNoTallyItself)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthYear) VALUES ('Ann', 'May', '1980')");
  Open();
  Choose(Subject::kBirthdays);
  EXPECT_EQ(Bars(), kNoMonths);
  Choose(Subject::kAge);
  EXPECT_EQ(Bars(), kNoAges);
  Drive::Click(Page(), "lblOptions_0");
  EXPECT_EQ(folder.Value("SELECT sum(Total) FROM TotalBirthdays"), 0);
}

TEST_F(ChartPage, AChoiceReadsTheFileAnewEachTime)
{
  AddPerson("Ayr");
  Open();
  Choose(Subject::kCity);
  EXPECT_EQ(Bars(), "Ayr: 1");
  AddPerson("Ayr");
  EXPECT_EQ(Bars(), "Ayr: 1");
  Choose(Subject::kCity);
  EXPECT_EQ(Bars(), "Ayr: 2");
}

TEST_F(ChartPage, PeopleWithoutNamesCountAsAnybody)
{
  folder.Execute("INSERT INTO People (City, Province) VALUES ('Ayr', 'Ontario'), ('Ayr', NULL)");
  Open();
  Choose(Subject::kCity);
  EXPECT_EQ(Bars(), "Ayr: 2");
  Choose(Subject::kProvince);
  EXPECT_EQ(Bars(), "Ontario: 1");
}

TEST_F(ChartPage, ABlankThatIsNotNullIsAGroupOfItsOwn)
{
  AddPerson("");
  AddPerson({});
  AddPerson("Ayr");
  Open();
  Choose(Subject::kCity);
  EXPECT_EQ(Bars(), ": 1, Ayr: 1");
}

TEST_F(ChartPage, DamagedTalliesAreShownAsFarAsTheyGo)
{
  folder.Execute("DELETE FROM TotalAge WHERE Age IN ('<10', '30-39')");
  folder.Execute("UPDATE TotalAge SET Total = 'many' WHERE Age = '40-49'");
  folder.Execute("UPDATE TotalAge SET Total = -4 WHERE Age = '50-59'");
  folder.Execute("UPDATE TotalAge SET Total = 3 WHERE Age = '10-19'");
  folder.Execute("INSERT INTO TotalAge VALUES ('100', 1)");
  folder.Execute("DELETE FROM TotalAnn");
  Open();
  Choose(Subject::kAge);
  EXPECT_EQ(Bars(), "10-19: 3, 20-29: 0, 40-49: 0, 50-59: 0, 60-69: 0, 70-79: 0, 80-89: 0, &gt;89: 0, 100: 1");
  Choose(Subject::kAnniversaries);
  EXPECT_EQ(Bars(), "");
}

TEST_F(ChartPage, AMissingTallyEndsTheProgramWithItsMessage)
{
  folder.Execute("DROP TABLE TotalAge");
  Open();
  boxes.Expect("Run-time error '3078':\n\nThere is no table 'TotalAge' in the database.");
  Choose(Subject::kAge);
  EXPECT_EQ(boxes.Count(), 1U);
  EXPECT_EQ(endings, 1);
}

TEST_F(ChartPage, AFileThatAnotherProgramLocksEndsTheProgramWithItsMessage)
{
  AddPerson("Ayr");
  Open();
  const DatabaseTaken taken(folder.DatabasePath());
  boxes.Expect("Run-time error '3260':\n\nThe database is locked by another program.");
  Choose(Subject::kCity);
  EXPECT_EQ(boxes.Count(), 1U);
  EXPECT_EQ(endings, 1);
  EXPECT_FALSE(ChartIsShown());
}

TEST_F(ChartPage, TipsAreThoseOfItsTable)
{
  Open();
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(Choice(i).toolTip(), kSubjects[i].tip);
  }
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Kind(i).toolTip(), kKinds[i].second);
  }
  EXPECT_EQ(Drive::Control(Page(), "lblOptions_0").toolTip(), "Go back to the main page");
}

TEST_F(ChartPage, WithTipsOffNoControlHasOne)
{
  modToolTips::SetTipsOff(true);
  Open();
  for (const QWidget* control : Page().Controls()) {
    EXPECT_EQ(control->toolTip(), "") << control->objectName().toStdString();
  }
}

TEST_F(ChartPage, KeepsTheDatabaseFromCareWhileItIsOpen)
{
  Open();
  EXPECT_FALSE(frame.careAllowed);
  Choose(Subject::kCity);
  Drive::Click(Page(), "lblOptions_0");
  EXPECT_TRUE(frame.careAllowed);
  EXPECT_NO_THROW(DBEngine::CompactDatabase(folder.DatabasePath(), folder.File("/copy.mdb")))
      << "nothing holds the file any more";
}

TEST_F(ChartPage, WithoutSettingsItDoesNotOpenAndCareStays)
{
  folder.Execute("DROP TABLE Options");
  EXPECT_EQ(ErrorOf([] { Command::Run([] { Forms::Load("frmCharts"); }); }), StoreError::kUnknownTable);
  EXPECT_TRUE(frame.careAllowed);
}

TEST_F(ChartPage, MainGoesBackToTheMainPage)
{
  Open();
  Drive::Click(Page(), "lblOptions_0");
  EXPECT_EQ(Forms::Loaded("frmCharts"), nullptr);
  ASSERT_NE(Forms::Loaded("frmIntro"), nullptr);
  EXPECT_TRUE(Forms::Loaded("frmIntro")->isVisible());
}

TEST_F(ChartPage, MainIsPressedByKeyboardAndLightsUnderTheMouse)
{
  Open();
  auto& main = static_cast<Label&>(Drive::Control(Page(), "lblOptions_0"));
  Drive::MoveOver(Page(), "lblOptions_0");
  EXPECT_EQ(main.BackStyle(), Label::kOpaque);
  EXPECT_EQ(main.ForeColor(), QColor(Qt::black));
  Drive::MoveOver(Page(), "imgTheme");
  EXPECT_EQ(main.BackStyle(), Label::kTransparent);
  QTest::keyClick(&main, Qt::Key_Return);
  EXPECT_EQ(Forms::Loaded("frmCharts"), nullptr);
}

TEST_F(ChartPage, TheChartStaysHiddenThroughEveryResizeBeforeTheFirstChoice)
{
  AddPerson("Ayr");
  Open();
  for (const QSize size : {QSize(900, 700), QSize(1200, 800), QSize(744, 529)}) {
    Page().resize(size);
    EXPECT_FALSE(ChartIsShown());
  }
  frame.state = WindowState::kMaximised;
  Page().resize(1400, 900);
  EXPECT_FALSE(ChartIsShown());
  ChooseCircles();
  Page().resize(1000, 900);
  EXPECT_FALSE(ChartIsShown());
  Choose(Subject::kCity);
  EXPECT_TRUE(ChartIsShown());
}

TEST_F(ChartPage, AResizeKeepsTheChartInProportionAndOnShow)
{
  AddPerson("Ayr");
  Open();
  const QRect before = Chart().geometry();
  Choose(Subject::kCity);
  frame.window.resize(1488, 1058);
  Page().resize(1488, 1058);
  EXPECT_TRUE(ChartIsShown());
  EXPECT_NEAR(Chart().x(), before.x() * 2, 1);
  EXPECT_NEAR(Chart().y(), before.y() * 2, 1);
  EXPECT_NEAR(Chart().width(), before.width() * 2, 1);
  EXPECT_NEAR(Chart().height(), before.height() * 2, 1);
  EXPECT_GT(Chart().Bars().chart()->plotArea().height(), before.height());
  EXPECT_EQ(Bars(), "Ayr: 1");
}

TEST_F(ChartPage, MinimisedAResizeMovesNothing)
{
  Open();
  const QRect before = Chart().geometry();
  frame.state = WindowState::kMinimised;
  Page().resize(1488, 1058);
  EXPECT_EQ(Chart().geometry(), before);
  frame.state = WindowState::kNormal;
  Page().resize(744, 529);
  EXPECT_EQ(Chart().geometry(), before);
}

TEST_F(ChartPage, ThemesPutTheirPictureOrTheCircle)
{
  QDir(folder.Path()).mkdir("themes");
  const std::pair<const char*, QColor> kPictures[] = {{"rollerbladesw.jpg", Qt::red},
                                                      {"arrangementw.jpg", Qt::green},
                                                      {"radiow.jpg", Qt::blue},
                                                      {"beew.jpg", Qt::black}};
  for (const auto& [name, colour] : kPictures) {
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(colour);
    ASSERT_TRUE(picture.save(folder.File(QStringLiteral("/themes/") + name), nullptr, 100));
  }
  Open();
  auto& image = static_cast<PictureBox&>(Drive::Control(Page(), "imgTheme"));
  const QWidget& circle = Drive::Control(Page(), "Shape15");
  for (int theme = 0; theme < 6; ++theme) {
    modThemes::Choose(theme);
    modThemes::ApplyTheme();
    EXPECT_EQ(circle.isVisible(), theme >= 4) << theme;
    EXPECT_EQ(image.Picture().isNull(), theme >= 4) << theme;
    EXPECT_EQ(Page().BackColor(), theme == 5 ? QColor(0xFF, 0xF9, 0xE9) : QColor(Qt::white)) << theme;
    if (theme < 4) {
      const QColor shown = image.Picture().toImage().pixelColor(4, 4);
      const QColor& expected = kPictures[theme].second;
      EXPECT_NEAR(shown.red(), expected.red(), 8) << theme;
      EXPECT_NEAR(shown.green(), expected.green(), 8) << theme;
      EXPECT_NEAR(shown.blue(), expected.blue(), 8) << theme;
    }
  }
}

TEST_F(ChartPage, EveryControlIsReachedByTab)
{
  Open();
  Choose(Subject::kCity);
  Choice(Subject::kCity).setFocus();
  QStringList reached;
  for (int i = 0; i < 4; ++i) {
    QTest::keyClick(Page().window()->focusWidget(), Qt::Key_Tab);
    reached.append(Page().window()->focusWidget()->objectName());
  }
  EXPECT_EQ(reached, QStringList({"optOptions_0", "mscChart", "lblOptions_0", "optChoices_0"}));
}

TEST_F(ChartPage, ChoicesAreMadeByTheArrowKeys)
{
  AddPerson("Ayr", "Ontario");
  Open();
  Choice(Subject::kCity).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&Choice(Subject::kCity), Qt::Key_Space);
  EXPECT_EQ(Bars(), "Ayr: 1");
  QTest::keyClick(&Choice(Subject::kCity), Qt::Key_Down);
  EXPECT_TRUE(Choice(Subject::kAge).isChecked());
  EXPECT_EQ(Bars(), kNoAges);
  EXPECT_EQ(Chart().XAxisTitle(), "Age group");
  Kind(0).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&Kind(0), Qt::Key_Right);
  EXPECT_EQ(Chart().ChartType(), ChartControl::kCircles);
  EXPECT_TRUE(Choice(Subject::kAge).isChecked()) << "the two sets of buttons know nothing of each other";
}

TEST_F(ChartPage, AHundredThousandPeopleAreCounted)
{
  folder.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<100000) "
      "INSERT INTO People (City, Province) SELECT 'City ' || i, 'Province ' || (i % 4) FROM n");
  Open();
  Choose(Subject::kProvince);
  EXPECT_EQ(Bars(), "Province 0: 25000, Province 1: 25000, Province 2: 25000, Province 3: 25000");
  Choose(Subject::kCity);
  EXPECT_LT(Chart().Bars().Names().count(), 40);
  EXPECT_EQ(Chart().ScrollBar().maximum() + Chart().Bars().Shown(), 100'000);
  ChooseCircles();
  EXPECT_EQ(Chart().Circles().Series().count(), 300);
  EXPECT_EQ(Chart().Circles().Series().sum(), 100'000);
  EXPECT_EQ(Chart().Circles().Series().slices().last()->label(), "Others");
}
