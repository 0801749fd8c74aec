// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AnniversariesTest.h"

#include "controls/Shape.h"
#include "looks/modToolTips.h"

#include <QAbstractButton>
#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QTimer>

namespace {

const QList<std::pair<QString, QString>> kTips = {
    {kWomen, "Select a name"},
    {kMen, "Select a name"},
    {"cboAnnMonth", "Select a month"},
    {"cboAnnDate", "Select a day"},
    {"cboAnnYear", "Select a year"},
    {kCouples, "Select a couple, then click Delete"},
    {AnnCommand::kUpdate, "Click here after you've entered your information"},
    {AnnCommand::kMain, "Go back to the main page"},
    {AnnCommand::kDelete, "Click to delete couple"},
    {AnnCommand::kCancel, "Click to cancel addition of anniversary"}};

class CoupleEditorLoad : public AnniversariesTest
{
protected:
  ~CoupleEditorLoad() override { modToolTips::SetTipsOff(false); }

  static QStringList Numbers(int from, int to)
  {
    QStringList numbers;
    for (int number = from; number <= to; ++number) {
      numbers.append(QString::number(number));
    }
    return numbers;
  }

  static QStringList TextsOnPage()
  {
    QStringList texts;
    for (const QLabel* label : Page().findChildren<QLabel*>()) {
      texts.append(label->text());
    }
    return texts;
  }

  // A cursor file with one picture of 32 by 32.
  void WriteCursor() const
  {
    QByteArray png;
    QBuffer buffer(&png);
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::black);
    ASSERT_TRUE(image.save(&buffer, "PNG"));
    QFile file(folder.File("/hand.cur"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QDataStream stream(&file);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << quint16(2) << quint16(1);
    stream << quint8(32) << quint8(32) << quint8(0) << quint8(0) << quint16(5) << quint16(0);
    stream << quint32(png.size()) << quint32(22);
    file.write(png);
  }

  void OpenInTheme(int theme)
  {
    folder.Execute("UPDATE Options SET Theme=?", {theme});
    Open();
  }
  static int StyleOfPanel() { return dynamic_cast<Shape&>(Control("shpEdit")).FillStyle(); }
  static std::string BackColor() { return Page().BackColor().name().toStdString(); }

  static const Label& Command(const QString& name) { return dynamic_cast<const Label&>(Control(name)); }
  static bool IsLit(const QString& command) { return Command(command).BackStyle() == Label::kOpaque; }
  static void MoveOverList(const QString& list)
  {
    QTest::mouseMove(List(list).viewport(), QPoint(3, 3));
    QTest::mouseMove(List(list).viewport(), QPoint(4, 4));
  }

  [[nodiscard]] std::vector<std::string> Totals() const
  {
    return Dump("SELECT \"Month\", Total FROM TotalAnn WHERE Total <> 0 ORDER BY \"Month\"");
  }
};

}

TEST_F(CoupleEditorLoad, FillsTheBoxesOfTheDate)
{
  Open();
  EXPECT_EQ(Hands::LinesOf(Combo("cboAnnMonth")),
            QStringList({"January", "February", "March", "April", "May", "June", "July", "August", "September",
                         "October", "November", "December"}));
  EXPECT_EQ(Hands::LinesOf(Combo("cboAnnDate")), Numbers(1, 31));
  EXPECT_EQ(Hands::LinesOf(Combo("cboAnnYear")), Numbers(1900, 2050));
  EXPECT_EQ(ShownDay(), kNoDay.Text());
}

TEST_F(CoupleEditorLoad, TakesTheMonthsFromTheFile)
{
  QFile file(folder.File("/months.txt"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("Hornung\nLenzing");
  file.close();
  Open();
  EXPECT_EQ(Hands::LinesOf(Combo("cboAnnMonth")), QStringList({"Hornung", "Lenzing"}));
}

TEST_F(CoupleEditorLoad, ListsWomenAndMenApart)
{
  AddWoman("Ann", "Adams");
  AddMan("Bob", "Brown");
  AddWoman("Cleo", "Cole");
  AddPerson("Dana", "Dunn", QVariant());
  AddPerson("Eli", "Ember", "");
  Open();
  EXPECT_EQ(Lines(kWomen), QStringList({"Adams, Ann", "Cole, Cleo"}));
  EXPECT_EQ(Lines(kMen), QStringList({"Brown, Bob"}));
}

TEST_F(CoupleEditorLoad, ListsPeopleByBothNamesRunTogether)
{
  for (const auto& [first, last] : QList<std::pair<QString, QString>>{
           {"Zoe", "Li"}, {"Ann", "Lim"}, {"bea", "adams"}, {"Ann", "Adams"}, {"Cy", "Young"}}) {
    AddWoman(first, last);
    AddMan(first, last);
  }
  Open();
  const QStringList ordered = {"Adams, Ann", "adams, bea", "Lim, Ann", "Li, Zoe", "Young, Cy"};
  EXPECT_EQ(Lines(kWomen), ordered);
  EXPECT_EQ(Lines(kMen), ordered);
}

TEST_F(CoupleEditorLoad, ListsCouplesByFirstNamesInTheOrderOfTheTable)
{
  const int zoe = AddWoman("Zoe", "Able");
  const int ann = AddWoman("Ann", "Baker");
  const int yan = AddMan("Yan");
  const int bob = AddMan("Bob");
  Marry(zoe, bob);
  Marry(ann, yan);
  Open();
  EXPECT_EQ(Lines(kCouples), QStringList({"Zoe and Bob", "Ann and Yan"}));
}

TEST_F(CoupleEditorLoad, AnEmptyDatabaseGivesEmptyLists)
{
  Open();
  EXPECT_TRUE(Lines(kWomen).isEmpty());
  EXPECT_TRUE(Lines(kMen).isEmpty());
  EXPECT_TRUE(Lines(kCouples).isEmpty());
}

TEST_F(CoupleEditorLoad, ChoosesNobodyOfItsOwn)
{
  Marry(AddWoman("Ann"), AddMan("Bob"));
  GivePicture(1);
  Open();
  ExpectChosen("", "", kNoDay);
  EXPECT_EQ(List(kWomen).ListIndex(), -1);
  EXPECT_EQ(List(kMen).ListIndex(), -1);
  EXPECT_EQ(List(kCouples).ListIndex(), -1);
  EXPECT_FALSE(IsDone());
  ExpectPictureCommands(false);
  ExpectNoPicture();
}

TEST_F(CoupleEditorLoad, ChoosesTheCoupleItIsOpenedFor)
{
  Marry(AddWoman("Ann"), AddMan("Bob"), kJune);
  const int cleo = AddWoman("Cleo");
  const int dan = AddMan("Dan");
  GivePicture(Marry(cleo, dan, kMarch), Qt::blue);
  Open(cleo, dan);
  ExpectChosen("Wood, Cleo", "Marsh, Dan", kMarch);
  ExpectPictureCommands(true);
  ExpectPicture(Qt::blue);
}

TEST_F(CoupleEditorLoad, OpenedForAnUnmarriedWifeLeavesTheMenAlone)
{
  const int ann = AddWoman("Ann");
  AddMan("Bob");
  Open(ann);
  ExpectChosen("Wood, Ann", "", kNoDay);
  ExpectPictureCommands(true);
}

TEST_F(CoupleEditorLoad, OpenedForAnUnmarriedHusbandLeavesTheWomenAlone)
{
  AddWoman("Ann");
  Open(0, AddMan("Bob"));
  ExpectChosen("", "Marsh, Bob", kNoDay);
}

TEST_F(CoupleEditorLoad, OpenedForPeopleWhoAreGoneChoosesNobody)
{
  AddWoman("Ann");
  AddMan("Bob");
  Open(98, 99);
  ExpectChosen("", "", kNoDay);
}

TEST_F(CoupleEditorLoad, ForgetsWhomItWasOpenedFor)
{
  const int ann = AddWoman("Ann");
  Open(ann, AddMan("Bob"));
  EXPECT_EQ(modID::CoupleSpouse1ID, 0);
  EXPECT_EQ(modID::CoupleSpouse2ID, 0);
}

TEST_F(CoupleEditorLoad, LeavingForgetsWhomThePageIsToOpenFor)
{
  Open();
  modID::CoupleSpouse1ID = 4;
  modID::CoupleSpouse2ID = 5;
  Leave();
  EXPECT_EQ(modID::CoupleSpouse1ID, 0);
  EXPECT_EQ(modID::CoupleSpouse2ID, 0);
}

TEST_F(CoupleEditorLoad, ForbidsTheCareOfTheDatabaseUntilItIsLeft)
{
  Open();
  EXPECT_FALSE(frame.careAllowed);
  Leave();
  EXPECT_TRUE(frame.careAllowed);
}

TEST_F(CoupleEditorLoad, UnloadsTheOtherPagesThatHoldTheStore)
{
  for (const char* name : {"frmIntro", "frmSpecial", "frmCharts", "frmNew", "frmQuillmark", "frmReminders"}) {
    Forms::Load(name);
  }
  Open();
  for (const char* name : {"frmSpecial", "frmCharts", "frmNew", "frmQuillmark", "frmReminders"}) {
    EXPECT_FALSE(IsOpen(name)) << name;
  }
  EXPECT_TRUE(IsOpen("frmIntro"));
}

TEST_F(CoupleEditorLoad, ShowsItsTexts)
{
  Open();
  EXPECT_EQ(Page().windowTitle(), "Anniversaries");
  const QStringList texts = TextsOnPage();
  for (const char* text : {" Women", " Men", "Selected wife:", "Selected husband:", "Instructions:",
                           "1. Select husband and wife from list", "2. Select anniversary date",
                           "3. Add, edit, or delete an image (optional)", "4. Click Update", "Done"}) {
    EXPECT_EQ(texts.count(text), 1) << text;
  }
  EXPECT_EQ(Caption(AnnCommand::kUpdate), "Update");
  EXPECT_EQ(Caption(AnnCommand::kMain), "<< Main");
  EXPECT_EQ(Caption(AnnCommand::kDelete), "Delete");
  EXPECT_EQ(Caption(AnnCommand::kCancel), "Cancel");
  EXPECT_EQ(Caption(AnnCommand::kNotListed), "If not listed, click here");
  EXPECT_EQ(dynamic_cast<QAbstractButton&>(Control("cmdAddPic")).text(), "Add or change image");
  EXPECT_EQ(dynamic_cast<QAbstractButton&>(Control("cmdDeletePic")).text(), "Delete image");
}

TEST_F(CoupleEditorLoad, ShowsTips)
{
  Open();
  for (const auto& [control, tip] : kTips) {
    EXPECT_EQ(Control(control).toolTip(), tip) << control.toStdString();
  }
  for (const QString& control : {AnnCommand::kNotListed, QString("cmdAddPic"), QString("cmdDeletePic")}) {
    EXPECT_EQ(Control(control).toolTip(), "") << control.toStdString();
  }
}

TEST_F(CoupleEditorLoad, ShowsNoTipsWhenTheyAreOff)
{
  modToolTips::SetTipsOff(true);
  Open();
  for (const QWidget* control : Page().findChildren<QWidget*>()) {
    EXPECT_EQ(control->toolTip(), "") << control->objectName().toStdString();
  }
}

TEST_F(CoupleEditorLoad, AnEmptyTableOfCouplesLeavesAllMonthsAtZero)
{
  folder.Execute("UPDATE TotalAnn SET Total = 7");
  Open();
  Leave();
  EXPECT_EQ(folder.Value("SELECT count(*) FROM TotalAnn WHERE Total = 0").toInt(), 12);
  EXPECT_EQ(folder.Value("SELECT count(*) FROM TotalAnn").toInt(), 12);
}

TEST_F(CoupleEditorLoad, LeavingCountsAnniversariesAnewAndNothingElse)
{
  Marry(AddWoman("Ann"), AddMan("Bob"), kJune);
  Marry(AddWoman("Cleo"), AddMan("Dan"), kJune);
  Marry(AddWoman("Eve"), AddMan("Fred"), kMarch);
  Marry(AddWoman("Gail"), AddMan("Hal"), kNoDay);
  folder.Execute("UPDATE People SET BirthMonth = 'May', BirthYear = '1980'");
  for (const char* table : {"TotalAnn", "TotalBirthdays", "TotalAge"}) {
    folder.Execute(QStringLiteral("UPDATE %1 SET Total = 7").arg(table));
  }
  Open();
  EXPECT_EQ(folder.Value("SELECT count(*) FROM TotalAnn WHERE Total = 7").toInt(), 12);
  Leave();
  EXPECT_EQ(Totals(), std::vector<std::string>({"Jun|2", "Mar|1"}));
  EXPECT_EQ(folder.Value("SELECT count(*) FROM TotalBirthdays WHERE Total = 7").toInt(), 12);
  EXPECT_EQ(folder.Value("SELECT count(*) FROM TotalAge WHERE Total = 7").toInt(), 10);
}

TEST_F(CoupleEditorLoad, MainLeavesForTheMainPage)
{
  Marry(AddWoman("Ann"), AddMan("Bob"), kJune);
  Open();
  Click(AnnCommand::kMain);
  EXPECT_FALSE(IsOpen("frmAnn"));
  EXPECT_TRUE(IsOpen("frmIntro"));
  EXPECT_TRUE(frame.careAllowed);
  EXPECT_EQ(Totals(), std::vector<std::string>({"Jun|1"}));
}

TEST_F(CoupleEditorLoad, NotListedLeavesForTheRecordEditor)
{
  Open();
  Click(AnnCommand::kNotListed);
  EXPECT_FALSE(IsOpen("frmAnn"));
  EXPECT_TRUE(IsOpen("frmNew"));
  EXPECT_FALSE(IsOpen("frmIntro"));
  EXPECT_FALSE(frame.careAllowed);
}

TEST_F(CoupleEditorLoad, TheCursorOfTheFolderPointsOverTheLists)
{
  WriteCursor();
  Open();
  for (const QString& list : {kWomen, kMen, kCouples}) {
    QTest::mouseMove(List(list).viewport(), QPoint(3, 3));
    EXPECT_EQ(List(list).viewport()->cursor().shape(), Qt::BitmapCursor) << list.toStdString();
  }
  EXPECT_NE(Control("lblDone1").cursor().shape(), Qt::BitmapCursor);
}

TEST_F(CoupleEditorLoad, WithoutTheCursorOfTheFolderTheArrowStaysOverTheLists)
{
  ASSERT_FALSE(QFile::exists(folder.File("/hand.cur")));
  Open();
  for (const QString& list : {kWomen, kMen, kCouples}) {
    MoveOverList(list);
    EXPECT_EQ(List(list).viewport()->cursor().shape(), Qt::ArrowCursor) << list.toStdString();
  }
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(CoupleEditorLoad, AppliesAPictureTheme)
{
  for (const auto& [theme, picture] :
       QList<std::pair<int, QString>>{{0, "footw2"}, {1, "canw2"}, {2, "trumpw2"}, {3, "shellw3"}}) {
    const QSize size(20 + theme, 30);
    Hands::SavePicture(folder.File("/themes/" + picture + ".jpg"), Qt::red, size);
    OpenInTheme(theme);
    EXPECT_EQ(Page().Picture().size(), size);
    EXPECT_EQ(BackColor(), "#ffffff");
    EXPECT_EQ(StyleOfPanel(), Shape::kHollow);
    EXPECT_FALSE(IsShown("Shape15"));
    Leave();
  }
}

TEST_F(CoupleEditorLoad, AppliesAColourTheme)
{
  for (const auto& [theme, colour] : QList<std::pair<int, std::string>>{{4, "#ffffff"}, {5, "#fff9e9"}}) {
    OpenInTheme(theme);
    EXPECT_TRUE(Page().Picture().isNull());
    EXPECT_EQ(BackColor(), colour);
    EXPECT_EQ(StyleOfPanel(), Shape::kSolid);
    EXPECT_TRUE(IsShown("Shape15"));
    Leave();
  }
}

TEST_F(CoupleEditorLoad, TheMouseLightsOneCommandAtATime)
{
  Open();
  Drive::MoveOver(Page());
  const QStringList commands = {AnnCommand::kUpdate, AnnCommand::kMain, AnnCommand::kDelete, AnnCommand::kCancel,
                                AnnCommand::kNotListed};
  for (const QString& command : commands) {
    Drive::MoveOver(Page(), command);
    for (const QString& other : commands) {
      EXPECT_EQ(IsLit(other), other == command) << other.toStdString() << " under " << command.toStdString();
    }
    EXPECT_EQ(Command(command).ForeColor(), QColor(Qt::black)) << command.toStdString();
  }
  Drive::MoveOver(Page());
  EXPECT_FALSE(IsLit(commands.last()));
}

TEST_F(CoupleEditorLoad, AMoveOverAListPutsTheCommandsOut)
{
  Open();
  for (const QString& list : {kWomen, kMen, kCouples}) {
    Drive::MoveOver(Page(), AnnCommand::kUpdate);
    ASSERT_TRUE(IsLit(AnnCommand::kUpdate));
    MoveOverList(list);
    EXPECT_FALSE(IsLit(AnnCommand::kUpdate)) << list.toStdString();
  }
}

TEST_F(CoupleEditorLoad, TheTimerOfDoneIsOffAtFirstAndTicksTwiceASecond)
{
  Open();
  const auto* timer = Page().findChild<QTimer*>("tmrTimer");
  ASSERT_NE(timer, nullptr);
  EXPECT_EQ(timer->interval(), 500);
  EXPECT_FALSE(timer->isActive());
}
