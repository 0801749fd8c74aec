// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "OccasionsTest.h"

#include "platform/HelpViewer.h"
#include "support/AddressCatcher.h"
#include "support/HelpOnScreen.h"

#include <QAbstractButton>
#include <QBuffer>
#include <QDataStream>
#include <QDesktopServices>
#include <QFile>
#include <QUrl>

namespace {

class SpecialPanels : public OccasionsPageTest
{
protected:
  static std::string TipOf(const QString& name) { return Control(name).toolTip().toStdString(); }
  static QAbstractButton& Button(const QString& name) { return dynamic_cast<QAbstractButton&>(Control(name)); }

  // Visible, and above everything else on the page.
  static void ExpectOnTop(const QString& panel)
  {
    EXPECT_TRUE(IsShown(panel)) << panel.toStdString();
    QWidget* const at = Page().childAt(Control(panel).geometry().center());
    ASSERT_NE(at, nullptr);
    EXPECT_TRUE(at == &Control(panel) || Control(panel).isAncestorOf(at)) << at->objectName().toStdString();
  }

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
  static void MoveOverList(const QString& name)
  {
    QTest::mouseMove(List(name).viewport(), QPoint(5, 5));
    QTest::mouseMove(List(name).viewport(), QPoint(6, 6));
  }
  static Qt::CursorShape PointerOver(const QString& name)
  {
    MoveOverList(name);
    return List(name).viewport()->cursor().shape();
  }

  // What Connect opens for these choices.
  static void Connect(const QString& month, const QString& day)
  {
    Pick("cboMonth", month);
    Pick("cboDay", day);
    Click("lblOptions_8");
  }
  static void EmptyByBackspace(const QString& combo)
  {
    Press(combo, Qt::Key_End);
    while (!Combo(combo).Text().isEmpty()) {
      const qsizetype length = Combo(combo).Text().size();
      Press(combo, Qt::Key_Backspace);
      ASSERT_EQ(Combo(combo).Text().size(), length - 1);
    }
  }
};

const QList<std::pair<QString, QString>> kTips = {{"lstBirthdays", "Click on a name for more information"},
                                                  {"lstAnn", "Click on a couple for more information"},
                                                  {"lblOptions_0", "Go back to the main page"},
                                                  {"lblOptions_1", "Click to open a monthly calendar"},
                                                  {"lblOptions_2", "Print"},
                                                  {"lblOptions_3", "Close"},
                                                  {"lblOptions_4", "Print special events by month"},
                                                  {"lblOptions_5", "View celebrity birthdays for any day in the year"},
                                                  {"lblOptions_6", "Open database for editing"},
                                                  {"lblOptions_7", "Close"},
                                                  {"lblOptions_9", "Close"},
                                                  {"lblOptions_10", "Close calendar"},
                                                  {"optPrint_0", "Print special events for the displayed month"},
                                                  {"optPrint_1", " Print special events for the entire year"},
                                                  {"optData_0", "Edit records for an individual or add a new record"},
                                                  {"optData_1", "Edit wedding annivarsary records"},
                                                  {"cboMonth", "Select a month"},
                                                  {"cboDay", "Select a day"},
                                                  {"cboYear", "Click to select a year"},
                                                  {"calCalendar", "Scroll through the months to view special events"}};

}

TEST_F(SpecialPanels, EveryCaptionStandsInFull)
{
  Open();
  const QList<std::pair<QString, std::string>> captions = {{"lblOptions_0", "<< Main"},
                                                           {"lblOptions_1", " View calendar"},
                                                           {"lblOptions_2", "Print"},
                                                           {"lblOptions_3", "Exit"},
                                                           {"lblOptions_4", " Print"},
                                                           {"lblOptions_5", " Famous birthdays"},
                                                           {"lblOptions_6", " Open database"},
                                                           {"lblOptions_7", "Exit"},
                                                           {"lblOptions_8", "Connect"},
                                                           {"lblOptions_9", "Exit"},
                                                           {"lblOptions_10", "Exit calendar"},
                                                           {"lblMonthCaption", "Month"},
                                                           {"lblConnection", "Requires an internet connection"}};
  for (const auto& [name, caption] : captions) {
    EXPECT_EQ(Caption(name), caption) << name.toStdString();
  }
  EXPECT_EQ(Button("optData_0").text().toStdString(), "Personal records");
  EXPECT_EQ(Button("optData_1").text().toStdString(), "Wedding anniversaries");
  EXPECT_EQ(Control("fraFamous").property("title").toString().toStdString(), "Famous birthdays");
  EXPECT_EQ(Control("fraPrint").property("title").toString().toStdString(), "Print records for...");
}

TEST_F(SpecialPanels, EveryTipStandsInFull)
{
  AddPerson("Ann", "May", "9");
  AddCouple("Ann", "Bob", "May", "9");
  Open();
  for (const auto& [name, tip] : kTips) {
    EXPECT_EQ(TipOf(name), tip.toStdString()) << name.toStdString();
  }
  EXPECT_EQ(TipOf("lblOptions_8").substr(0, 6), "Go to ");
  EXPECT_GT(TipOf("lblOptions_8").size(), 6U);
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(Month(i).toolTip().toStdString(), "Click to select a month") << i;
  }
}

TEST_F(SpecialPanels, WithTheTipsOffThereAreNone)
{
  modToolTips::SetTipsOff(true);
  Open();
  for (const auto& [name, tip] : kTips) {
    EXPECT_EQ(TipOf(name), "") << name.toStdString();
  }
  EXPECT_EQ(TipOf("lblOptions_8"), "");
  EXPECT_EQ(Month(3).toolTip().toStdString(), "");
}

TEST_F(SpecialPanels, EachPanelOpensOnTopAndCloses)
{
  Open();
  const QList<std::array<QString, 3>> panels = {{"fraCalendar", "lblOptions_1", "lblOptions_10"},
                                                {"fraPrint", "lblOptions_4", "lblOptions_3"},
                                                {"fraFamous", "lblOptions_5", "lblOptions_9"},
                                                {"fraDatabase", "lblOptions_6", "lblOptions_7"}};
  for (const auto& [panel, open, close] : panels) {
    EXPECT_FALSE(IsShown(panel)) << panel.toStdString();
    Click(open);
    ExpectOnTop(panel);
    Click(close);
    EXPECT_FALSE(IsShown(panel)) << panel.toStdString();
  }
}

TEST_F(SpecialPanels, LeavingTheCalendarMakesTheEmphasisPlainInAnyCase)
{
  Open();
  Click("lblOptions_1");
  Click("lblOptions_10");
  EXPECT_EQ(Calendar().ActiveDayFontSize(), 10);
}

TEST_F(SpecialPanels, APanelOpenedLaterLiesAboveTheOthers)
{
  Open();
  Click("lblOptions_6");
  Click("lblOptions_1");
  ExpectOnTop("fraCalendar");
  Click("lblOptions_5");
  ExpectOnTop("fraFamous");
  Click("lblOptions_6");
  ExpectOnTop("fraDatabase");
}

TEST_F(SpecialPanels, ClosingTheCalendarLowersTheEmphasis)
{
  AddPerson("Ann", "May", "9");
  Open();
  Click("lblOptions_1");
  ClickLine(kBirthdays, 0);
  ExpectRaised();
  Click("lblOptions_10");
  ExpectPlain();
  EXPECT_EQ(ShownDay(), "2026-05-09");
}

TEST_F(SpecialPanels, ClosingThePrintPanelClearsItsChoices)
{
  Open();
  const QStringList choices = {"optPrint_0", "optPrint_1", "chkAgeAnn", "chkDate"};
  for (const char* month : {"optPrint_0", "optPrint_1"}) {
    Click("lblOptions_4");
    for (const QString& name : {QString(month), QString("chkAgeAnn"), QString("chkDate")}) {
      Button(name).click();
      ASSERT_TRUE(Button(name).isChecked()) << name.toStdString();
    }
    Click("lblOptions_3");
    for (const QString& name : choices) {
      EXPECT_FALSE(Button(name).isChecked()) << name.toStdString();
    }
  }
}

TEST_F(SpecialPanels, PersonalRecordsGetTheIds)
{
  const int ann = AddPerson("Ann", "May", "9");
  AddCouple("Ann", "Bob", "May", "9", {}, 31, 32);
  Open();
  ClickLine(kBirthdays, 0);
  ClickLine(kCouples, 0);
  Click("lblOptions_6");
  Press("optData_0", Qt::Key_Space);
  DropUnloaded();
  EXPECT_FALSE(IsOpen());
  ASSERT_TRUE(IsOpen("frmNew"));
  EXPECT_TRUE(Forms::Loaded("frmNew")->isVisible());
  EXPECT_EQ(modID::SelectedPersonID, ann);
  EXPECT_EQ(modID::CoupleSpouse1ID, 31);
  EXPECT_EQ(modID::CoupleSpouse2ID, 32);
  EXPECT_TRUE(frame.careAllowed);
}

TEST_F(SpecialPanels, WeddingAnniversariesGetTheIds)
{
  AddCouple("Ann", "Bob", "May", "9", {}, 31, 32);
  Open();
  ClickLine(kCouples, 0);
  Click("lblOptions_6");
  Press("optData_1", Qt::Key_Space);
  DropUnloaded();
  EXPECT_FALSE(IsOpen());
  ASSERT_TRUE(IsOpen("frmAnn"));
  EXPECT_TRUE(Forms::Loaded("frmAnn")->isVisible());
  EXPECT_EQ(modID::CoupleSpouse1ID, 31);
  EXPECT_EQ(modID::CoupleSpouse2ID, 32);
}

TEST_F(SpecialPanels, MainClearsTheIds)
{
  AddPerson("Ann", "May", "9");
  AddCouple("Ann", "Bob", "May", "9", {}, 31, 32);
  Open();
  ClickLine(kBirthdays, 0);
  ClickLine(kCouples, 0);
  ASSERT_NE(modID::SelectedPersonID, 0);
  Click("lblOptions_0");
  DropUnloaded();
  EXPECT_FALSE(IsOpen());
  ASSERT_TRUE(IsOpen("frmIntro"));
  EXPECT_TRUE(Forms::Loaded("frmIntro")->isVisible());
  EXPECT_EQ(modID::SelectedPersonID, 0);
  EXPECT_EQ(modID::CoupleSpouse1ID, 0);
  EXPECT_EQ(modID::CoupleSpouse2ID, 0);
}

TEST_F(SpecialPanels, TheDatabaseIsLeftAloneWhileThePageIsOpen)
{
  Open();
  EXPECT_FALSE(frame.careAllowed);
  ClickMonth(2);
  EXPECT_FALSE(frame.careAllowed);
  Click("lblOptions_0");
  EXPECT_TRUE(frame.careAllowed);
}

TEST_F(SpecialPanels, FamousBirthdaysOpenOnToday)
{
  Clock::StopOn(QDate(2026, 3, 7));
  AddressCatcher catcher;
  Open();
  Click("lblOptions_5");
  EXPECT_EQ(Combo("cboMonth").Text().toStdString(), "March");
  EXPECT_EQ(Combo("cboDay").Text().toStdString(), "7");
  EXPECT_EQ(Hands::LinesOf(Combo("cboMonth")).join(' ').toStdString(),
            "January February March April May June July August September October November December");
  QStringList days;
  for (int day = 1; day <= 31; ++day) {
    days.append(QString::number(day));
  }
  EXPECT_EQ(Hands::LinesOf(Combo("cboDay")), days);
  Click("lblOptions_8");
  ASSERT_EQ(catcher.Taken.size(), 1);
  EXPECT_EQ(catcher.Taken[0].path().toStdString(), folder.File("/famous/mar.html").toStdString());
  EXPECT_EQ(catcher.Taken[0].fragment().toStdString(), "07");
}

TEST_F(SpecialPanels, EveryMonthHasItsPageAndLaterDaysStandAsTheyAre)
{
  AddressCatcher catcher;
  Open();
  Click("lblOptions_5");
  const QStringList keys = {"jan", "feb", "mar", "apr", "may", "jun", "jul", "aug", "sep", "oct", "nov", "dec"};
  const QStringList days = {"10", "31", "1", "9", "11", "19", "20", "29", "30", "2", "5", "15"};
  const QStringList anchors = {"10", "31", "01", "09", "11", "19", "20", "29", "30", "02", "05", "15"};
  const QStringList months = Hands::LinesOf(Combo("cboMonth"));
  ASSERT_EQ(months.size(), 12);
  for (int i = 0; i < 12; ++i) {
    Connect(months[i], days[i]);
    ASSERT_EQ(catcher.Taken.size(), i + 1);
    EXPECT_EQ(catcher.Taken[i].fileName().toStdString(), (keys[i] + ".html").toStdString());
    EXPECT_EQ(catcher.Taken[i].fragment().toStdString(), anchors[i].toStdString());
  }
}

TEST_F(SpecialPanels, TheChoiceIsNotKept)
{
  Open();
  Click("lblOptions_5");
  Pick("cboMonth", "October");
  Pick("cboDay", "20");
  Click("lblOptions_9");
  Click("lblOptions_5");
  EXPECT_EQ(Combo("cboMonth").Text().toStdString(), "May");
  EXPECT_EQ(Combo("cboDay").Text().toStdString(), "5");
  EXPECT_EQ(Combo("cboMonth").ListCount(), 12);
  EXPECT_EQ(Combo("cboDay").ListCount(), 31);
}

TEST_F(SpecialPanels, ConnectWantsAMonthAndADay)
{
  AddressCatcher catcher;
  Open();
  Click("lblOptions_5");
  EmptyByBackspace("cboDay");
  boxes.Expect("You have not entered a day");
  Click("lblOptions_8");
  EmptyByBackspace("cboMonth");
  boxes.Expect("You have not entered a month");
  Click("lblOptions_8");
  Pick("cboDay", "3");
  boxes.Expect("You have not entered a month");
  Click("lblOptions_8");
  EXPECT_EQ(boxes.Count(), 3U);
  EXPECT_TRUE(catcher.Taken.isEmpty());
}

TEST_F(SpecialPanels, ConnectTakesAMonthThatIsCutForNone)
{
  AddressCatcher catcher;
  Open();
  Click("lblOptions_5");
  Press("cboMonth", Qt::Key_End);
  Press("cboMonth", Qt::Key_Backspace);
  ASSERT_EQ(Combo("cboMonth").Text().toStdString(), "Ma");
  boxes.Expect("You have not entered a month");
  Click("lblOptions_8");
  EXPECT_EQ(boxes.Count(), 1U);
  EXPECT_TRUE(catcher.Taken.isEmpty());
}

TEST_F(SpecialPanels, KeysAreThrownAway)
{
  Open();
  Click("lblOptions_5");
  for (const QString& combo : {QString("cboMonth"), QString("cboDay")}) {
    const std::string before = Combo(combo).Text().toStdString();
    Control(combo).setFocus();
    QTest::keyClicks(&Control(combo), "ja1 x9");
    EXPECT_EQ(Combo(combo).Text().toStdString(), before);
  }
  Press("cboMonth", Qt::Key_Backspace);
  EXPECT_EQ(Combo("cboMonth").Text().toStdString(), "Ma");
}

TEST_F(SpecialPanels, WithoutTheMonthsFileTheProgramReportsIt)
{
  Open();
  ASSERT_TRUE(QFile::remove(folder.File("/months.txt")));
  int endings = 0;
  Application::SetEnding([&](int) { ++endings; });
  boxes.Expect("Run-time error '53':\n\nFile not found");
  Click("lblOptions_5");
  EXPECT_EQ(endings, 1);
  EXPECT_EQ(boxes.Count(), 1U);
  EXPECT_FALSE(IsShown("fraFamous"));
}

TEST_F(SpecialPanels, AHandAndATipShowOverListsWithLines)
{
  WriteCursor();
  AddPerson("Ann", "May", "9");
  AddCouple("Ann", "Bob", "May", "9");
  Open();
  EXPECT_EQ(PointerOver(kBirthdays), Qt::BitmapCursor);
  EXPECT_EQ(PointerOver(kCouples), Qt::BitmapCursor);
  EXPECT_EQ(TipOf(kBirthdays), "Click on a name for more information");
  EXPECT_EQ(TipOf(kCouples), "Click on a couple for more information");
  ClickMonth(5);
  EXPECT_EQ(PointerOver(kBirthdays), Qt::ArrowCursor);
  EXPECT_EQ(PointerOver(kCouples), Qt::ArrowCursor);
  EXPECT_EQ(TipOf(kBirthdays), "");
  EXPECT_EQ(TipOf(kCouples), "");
  ClickMonth(4);
  EXPECT_EQ(PointerOver(kBirthdays), Qt::BitmapCursor);
  EXPECT_EQ(TipOf(kBirthdays), "Click on a name for more information");
}

TEST_F(SpecialPanels, TheHandComesWithoutATipWhenTipsAreOff)
{
  WriteCursor();
  AddPerson("Ann", "May", "9");
  modToolTips::SetTipsOff(true);
  Open();
  EXPECT_EQ(PointerOver(kBirthdays), Qt::BitmapCursor);
  EXPECT_EQ(TipOf(kBirthdays), "");
}

TEST_F(SpecialPanels, TheBeigeThemeIsAppliedAtTheLoad)
{
  folder.Execute("UPDATE Options SET Theme=5");
  Open();
  EXPECT_EQ(Page().BackColor().name().toStdString(), "#fff9e9");
  for (const char* name : {"picThemes", "fraResults", "picPerson"}) {
    EXPECT_EQ(Control(name).property("BackColor").value<QColor>().name().toStdString(), "#fff9e9") << name;
  }
  EXPECT_EQ(Marked("shpMonth"), 0);
  EXPECT_TRUE(IsShown("Shape15"));
}

TEST_F(SpecialPanels, APictureThemeIsAppliedAtTheLoad)
{
  folder.Execute("UPDATE Options SET Theme=1");
  Hands::SavePicture(folder.File("/themes/fruitw.jpg"), Qt::green, {24, 30});
  Open();
  EXPECT_EQ(dynamic_cast<PictureBox&>(Control("picThemes")).Picture().size(), QSize(24, 30));
  EXPECT_TRUE(IsShown("picThemes"));
  EXPECT_EQ(Marked("shpMonth"), 1);
  EXPECT_FALSE(IsShown("Shape15"));
}

TEST_F(SpecialPanels, TheCalendarClosesTheHelpAndOtherPanelsLeaveIt)
{
  HelpOnScreen::Lay(folder.Path());
  Open();
  HelpViewer::ShowContents();
  for (const char* other : {"lblOptions_4", "lblOptions_3", "lblOptions_5", "lblOptions_9"}) {
    Click(other);
    EXPECT_NE(HelpOnScreen::Window(), nullptr) << other;
  }
  Click("lblOptions_1");
  EXPECT_EQ(HelpOnScreen::Window(), nullptr);
  EXPECT_TRUE(IsShown("fraCalendar"));
}
