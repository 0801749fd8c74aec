// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include "looks/modThemes.h"
#include "platform/RuntimeError.h"
#include "store/DBEngine.h"
#include "support/ErrorOf.h"
#include "support/Hands.h"
#include "support/SilentClip.h"

#include <QMenu>
#include <QMenuBar>
#include <QWindow>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

const QString kWrongDate = QStringLiteral("Sorry, but Quillmark will not operate at your current PC date setting.");
const QString kSecondCopy = QStringLiteral("Sorry, but Quillmark is already running. You can't open it a second time.");
const QString kPoorScreen = QStringLiteral(
    "Quillmark may not function as expected at your current screen resolution of 640 x 480 pixels. Please increase "
    "the resolution.");
const QString kFinishFirst = QStringLiteral("Please finish adding or editing your record before exiting");

// What another running copy holds.
class OtherCopy
{
public:
  explicit OtherCopy(const QString& folder) : handle_(open(QFile::encodeName(folder).constData(), O_RDONLY))
  {
    EXPECT_EQ(flock(handle_, LOCK_EX | LOCK_NB), 0);
  }
  ~OtherCopy() { close(handle_); }
  OtherCopy(const OtherCopy&) = delete;
  OtherCopy& operator=(const OtherCopy&) = delete;

private:
  int handle_;
};

QStringList Captions(const QMenu& menu)
{
  QStringList captions;
  for (const QAction* action : menu.actions()) {
    captions.append(action->isSeparator() ? QStringLiteral("-") : action->text());
  }
  return captions;
}

}

TEST_F(ShellTest, AYearOutsideTheRangeStopsTheProgramAfterTheMessage)
{
  for (const QDate day : {QDate(1899, 12, 31), QDate(2051, 1, 1)}) {
    Clock::StopOn(day);
    boxes.Expect(kWrongDate);
    Start();
    EXPECT_TRUE(frame->HasEnded());
    EXPECT_FALSE(frame->isVisible());
    EXPECT_EQ(Forms::Loaded("frmIntro"), nullptr);
  }
}

TEST_F(ShellTest, TheFirstAndTheLastYearRun)
{
  for (const QDate day : {QDate(1900, 1, 1), QDate(2050, 12, 31)}) {
    Clock::StopOn(day);
    Start();
    EXPECT_FALSE(frame->HasEnded());
    EXPECT_TRUE(frame->isVisible());
    frame->Unload();
    frame.reset();
  }
}

TEST_F(ShellTest, OutsideTheRangeNoRemindersAreLookedFor)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'January', '1')");
  Clock::StopOn(QDate(2051, 1, 1));
  boxes.Expect(kWrongDate);
  modTextNotices::BirthdayHit = false;
  Start();
  EXPECT_FALSE(modTextNotices::BirthdayHit);
}

TEST_F(ShellTest, ASecondCopyIsToldAndEnds)
{
  const OtherCopy other(folder.Path());
  boxes.Expect(kSecondCopy);
  Start();
  EXPECT_TRUE(frame->HasEnded());
  EXPECT_FALSE(frame->isVisible());
}

TEST_F(ShellTest, ASecondCopyWithSomethingDueShowsTheMessageAndNoNotices)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  const OtherCopy other(folder.Path());
  boxes.Expect(kSecondCopy);
  Start();
  EXPECT_TRUE(frame->HasEnded());
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
  }
}

TEST_F(ShellTest, ACopyInAnotherFolderIsNoSecondCopy)
{
  const QTemporaryDir elsewhere;
  const OtherCopy other(elsewhere.path());
  Start();
  EXPECT_FALSE(frame->HasEnded());
}

TEST_F(ShellTest, AScreenOf640PixelsIsWarnedOfAndTheProgramGoesOn)
{
  Screen::Pretend(QRect(0, 0, 640, 480));
  boxes.Expect(kPoorScreen);
  Start();
  EXPECT_TRUE(frame->isVisible());
}

TEST_F(ShellTest, AGuardEndsTheLoadBeforeThePoorScreenIsWarnedOf)
{
  Screen::Pretend(QRect(0, 0, 640, 480));
  {
    const OtherCopy other(folder.Path());
    boxes.Expect(kSecondCopy);
    Start();
    EXPECT_TRUE(frame->HasEnded());
    EXPECT_EQ(boxes.Count(), 1U);
  }
  frame.reset();
  Clock::StopOn(QDate(2051, 1, 1));
  boxes.Expect(kWrongDate);
  Start();
  EXPECT_TRUE(frame->HasEnded());
  EXPECT_EQ(boxes.Count(), 2U);
}

TEST_F(ShellTest, AScreenOf800PixelsIsNotWarnedOf)
{
  Screen::Pretend(QRect(0, 0, 800, 600));
  Start();
  EXPECT_EQ(boxes.Count(), 0U);
}

TEST_F(ShellTest, TheWindowStateIsRestored)
{
  Start();
  EXPECT_EQ(frame->State(), WindowState::kNormal);
  frame.reset();
  Set("WindowState=1");
  Start();
  EXPECT_EQ(frame->State(), WindowState::kMaximised);
}

TEST_F(ShellTest, TheWindowStateIsWrittenAtTheClose)
{
  Start();
  frame->SetState(WindowState::kMaximised);
  frame->close();
  EXPECT_EQ(Option("WindowState"), 1);
  frame.reset();
  Start();
  frame->SetState(WindowState::kNormal);
  frame->close();
  EXPECT_EQ(Option("WindowState"), 0);
}

TEST_F(ShellTest, AMinimisedCloseLeavesTheWindowState)
{
  for (const int state : {0, 1}) {
    Set(QStringLiteral("WindowState=%1").arg(state));
    Start();
    frame->SetState(WindowState::kMinimised);
    frame->close();
    EXPECT_TRUE(frame->HasEnded());
    EXPECT_EQ(Option("WindowState"), state);
    frame.reset();
  }
}

TEST_F(ShellTest, AFrameThatIsTooSmallSnapsJustAboveTheThreshold)
{
  Start();
  frame->resize(600, 500);
  EXPECT_EQ(TwipsFromPixels(frame->width()), 11505);
  EXPECT_EQ(TwipsFromPixels(frame->height()), 9090);
  frame->resize(766, 900);
  EXPECT_EQ(frame->size(), QSize(767, 900));
  frame->resize(900, 605);
  EXPECT_EQ(frame->size(), QSize(900, 606));
  frame->resize(767, 606);
  EXPECT_EQ(frame->size(), QSize(767, 606));
}

TEST_F(ShellTest, OnASmallScreenTheDecorationIsPartOfTheSize)
{
  Screen::Pretend(QRect(0, 0, 800, 600));
  Start();
  frame->move(1, 1);
  ASSERT_NE(frame->frameGeometry().size(), frame->size());
  EXPECT_TRUE(QTest::qWaitFor([this] { return frame->frameGeometry().size() == QSize(767, 606); }));
  EXPECT_EQ(frame->frameGeometry().top(), 0);
  frame->resize(600, 500);
  EXPECT_EQ(frame->frameGeometry().size(), QSize(767, 606));
  frame->move(20, 10);
  EXPECT_EQ(frame->pos(), QPoint(20, 10));
}

TEST_F(ShellTest, AMaximisedOrMinimisedFrameIsLeftAsSmallAsItIs)
{
  Start();
  for (const auto& [told, state] : {std::pair(Qt::WindowMaximized, WindowState::kMaximised),
                                    std::pair(Qt::WindowMinimized, WindowState::kMinimised)}) {
    frame->overrideWindowState(told);
    frame->windowHandle()->resize(600, 500);
    EXPECT_TRUE(QTest::qWaitFor([&] { return frame->size() == QSize(600, 500); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(frame->size(), QSize(600, 500));
    EXPECT_EQ(frame->State(), state);
    frame->overrideWindowState(Qt::WindowNoState);
    frame->windowHandle()->resize(610, 510);
    EXPECT_TRUE(QTest::qWaitFor([&] { return frame->size() == QSize(767, 606); })) << "the normal one snaps";
  }
}

// With the menu above it, a client area of its design's 552 pixels is below the smallest height.
TEST_F(ShellTest, AFreshFrameHasTheWidthOfItsDesignAndTheSmallestHeight)
{
  Start();
  EXPECT_EQ(TwipsFromPixels(frame->centralWidget()->width()), 11520);
  EXPECT_GE(TwipsFromPixels(frame->centralWidget()->height()), 8280);
  EXPECT_LT(8280 + TwipsFromPixels(frame->menuBar()->height()), 9085);
  EXPECT_EQ(TwipsFromPixels(frame->height()), 9090);
}

TEST_F(ShellTest, TheFrameIsCentredOnTheScreenUnderItsIconAndTitle)
{
  Screen::Pretend(QRect(0, 0, 1600, 1200));
  Start();
  EXPECT_EQ(frame->pos(), QPoint((1600 - frame->width()) / 2, (1200 - frame->height()) / 2));
  EXPECT_FALSE(frame->windowIcon().isNull());
  EXPECT_EQ(frame->windowTitle(), QStringLiteral("Quillmark"));
}

TEST_F(ShellTest, TheMenuIsCompleteWithItsCaptions)
{
  Start();
  const QMenuBar& bar = *frame->menuBar();
  QStringList menus;
  for (const QAction* action : bar.actions()) {
    menus.append(action->text());
  }
  EXPECT_EQ(menus, QStringList({"&Print", "&Options", "&Reminders", "&Database", "&Help"}));
  const std::pair<const char*, QStringList> submenus[] = {
      {"mnuPrint",
       {"&Lists of personal info (addresses, birthdays...)", "&Lists of monthly birthdays and anniversaries",
        "&Calendar of events"}},
      {"mnuOptions", {"&Autostart", "&Tips", "&Themes"}},
      {"mnuTips", {"Pop-up Tips Off", "Pop-up Tips On"}},
      {"mnuThemes", {"&Sports", "&Garden", "&Music", "&Nature", "&White background", "&Beige background"}},
      {"mnuAudio", {"&Set reminders", "&Check for reminders"}},
      {"mnuAdd", {"&Personal records", "&Anniversaries", "-", "&Compact database", "&Back up database"}},
      {"mnuHelp", {"&Contents", "-", "&About Quillmark"}},
  };
  for (const auto& [name, captions] : submenus) {
    EXPECT_EQ(Captions(*frame->findChild<QMenu*>(name)), captions) << name;
    EXPECT_NE(frame->findChild<QAction*>(name), nullptr) << name;
  }
  EXPECT_TRUE(Menu("mnuSep1").isSeparator());
  EXPECT_TRUE(Menu("mnuSep3").isSeparator());
  EXPECT_EQ(Menu("mnuContents").shortcut(), QKeySequence(Qt::Key_F1));
}

TEST_F(ShellTest, EveryEntryIsEnabledOnTheMainPage)
{
  Start();
  for (const char* name : {"mnuLists_0",    "mnuLists_1", "mnuLists_2",      "mnuAutostart",     "mnuToolTips_0",
                           "mnuToolTips_1", "mnuTheme_0", "mnuTheme_1",      "mnuTheme_2",       "mnuTheme_3",
                           "mnuTheme_4",    "mnuTheme_5", "mnuSetReminders", "mnuReminderCheck", "mnuPersonal",
                           "mnuAnn",        "mnuCompact", "mnuBackup",       "mnuContents",      "mnuAbout"}) {
    EXPECT_TRUE(Menu(name).isEnabled()) << name;
  }
}

TEST_F(ShellTest, TheThemeAndTheTipsCarryTheirMarks)
{
  Set("Theme=3, ToolTips=1");
  Start();
  for (int theme = 0; theme < 6; ++theme) {
    EXPECT_EQ(Menu(QStringLiteral("mnuTheme_%1").arg(theme)).isChecked(), theme == 3) << theme;
  }
  EXPECT_TRUE(Menu("mnuToolTips_0").isChecked());
  EXPECT_FALSE(Menu("mnuToolTips_1").isChecked());
  Menu("mnuToolTips_1").trigger();
  EXPECT_FALSE(Menu("mnuToolTips_0").isChecked());
  EXPECT_TRUE(Menu("mnuToolTips_1").isChecked());
  EXPECT_EQ(Option("ToolTips"), 0);
  Menu("mnuToolTips_1").trigger();
  EXPECT_TRUE(Menu("mnuToolTips_1").isChecked()) << "a second click keeps the mark";
  Menu("mnuTheme_5").trigger();
  EXPECT_TRUE(Menu("mnuTheme_5").isChecked());
  EXPECT_FALSE(Menu("mnuTheme_3").isChecked());
  EXPECT_EQ(Option("Theme"), 5);
}

TEST_F(ShellTest, AThemeOfTheMenuIsAppliedToTheOpenPagesAtOnceAndAloneCarriesTheMark)
{
  LayThemes();
  const struct
  {
    int theme;
    const char* onMainPage;
    const char* onCharts;
    const char* colour;
  } cases[] = {{5, nullptr, nullptr, "#fff9e9"},
               {0, "snowboardw.jpg", "rollerbladesw.jpg", "#ffffff"},
               {3, "butterflyw.jpg", "beew.jpg", "#ffffff"},
               {4, nullptr, nullptr, "#ffffff"},
               {2, "guitarw.jpg", "radiow.jpg", "#ffffff"},
               {1, "flowersw.jpg", "arrangementw.jpg", "#ffffff"}};
  Start();
  Drive::Click(MainPage(), "lblOptions_2");
  Form& charts = *Forms::Loaded("frmCharts");
  for (const auto& [theme, onMainPage, onCharts, colour] : cases) {
    SCOPED_TRACE(theme);
    Menu(QStringLiteral("mnuTheme_%1").arg(theme)).trigger();
    EXPECT_EQ(Option("Theme"), theme);
    EXPECT_EQ(PictureIn(MainPage(), "imgTheme"), ThemePicture(onMainPage));
    EXPECT_EQ(PictureIn(charts, "imgTheme"), ThemePicture(onCharts));
    EXPECT_EQ(charts.BackColor().name().toStdString(), colour);
    EXPECT_EQ(charts.Control("Shape15")->isVisible(), onCharts == nullptr);
    for (int item = 0; item < 6; ++item) {
      EXPECT_EQ(Menu(QStringLiteral("mnuTheme_%1").arg(item)).isChecked(), item == theme) << item;
    }
  }
}

TEST_F(ShellTest, AThemeThatIsNoneEndsTheStart)
{
  for (const char* theme : {"9", "-1", "6"}) {
    Set(QStringLiteral("Theme=") + theme);
    EXPECT_EQ(ErrorOf([&] { Start(); }), 340) << theme;
    frame.reset();
  }
}

TEST_F(ShellTest, AThemeThatIsNoneEndsTheStartAlsoWithSomethingDue)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Set("Theme=9");
  EXPECT_EQ(ErrorOf([&] { Start(); }), 340);
}

TEST_F(ShellTest, WhatIsMissingAtTheStartIsNamedByItsNumber)
{
  Set("ToolTips=NULL");
  EXPECT_EQ(ErrorOf([&] { Start(); }), 94);
  frame.reset();
  Set("ToolTips=0, Theme=NULL");
  EXPECT_EQ(ErrorOf([&] { Start(); }), 94);
  frame.reset();
  Set("Theme=1");
  QFile::remove(folder.File("/animp.ico"));
  EXPECT_EQ(ErrorOf([&] { Start(); }), 53);
  frame.reset();
  folder.Execute("DELETE FROM Options");
  EXPECT_EQ(ErrorOf([&] { Start(); }), 3021);
  frame.reset();
  folder.Execute("DROP TABLE Options");
  EXPECT_EQ(ErrorOf([&] { Start(); }), 3078);
  frame.reset();
  QFile::remove(folder.DatabasePath());
  EXPECT_EQ(ErrorOf([&] { Start(); }), 3024);
  EXPECT_FALSE(QFile::exists(folder.DatabasePath())) << "the program makes no database";
}

TEST_F(ShellTest, AFileThatIsNoDatabaseStaysAsItWas)
{
  const QByteArray text("Dear diary, today I saw a butterfly.\n");
  QFile file(folder.DatabasePath());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write(text.repeated(100));
  file.close();
  EXPECT_EQ(ErrorOf([&] { Start(); }), 3343);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), text.repeated(100));
}

TEST_F(ShellTest, SomethingDueMinimisesTheFrameWhateverItsWindowState)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Set("WindowState=1");
  Start();
  EXPECT_EQ(frame->State(), WindowState::kMinimised);
  EXPECT_EQ(Forms::AllLoaded().size(), 2U);
  Drive::Click(*Forms::Loaded("frmTextNotice"), "lblOptions_0");
  EXPECT_EQ(frame->State(), WindowState::kMaximised);
  EXPECT_EQ(Option("WindowState"), 1);
}

TEST_F(ShellTest, CloseQuillmarkOnTheNoticesEndsTheProgram)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Set("WindowState=1");
  Start();
  Drive::Click(*Forms::Loaded("frmTextNotice"), "lblOptions_2");
  EXPECT_TRUE(frame->HasEnded());
  EXPECT_TRUE(Forms::AllLoaded().empty());
  EXPECT_EQ(Option("WindowState"), 1) << "minimised, it writes nothing";
}

TEST_F(ShellTest, TheMenuChecksForReminders)
{
  Start();
  bool seen = false;
  Drive::WhenShown("frmTextNotice", [&](QWidget& form) {
    seen = true;
    EXPECT_EQ(static_cast<QLabel&>(Drive::Control(form, "lblNotice")).text(),
              QStringLiteral("According to your reminder settings, you have no events coming up"));
    Drive::Click(form, "lblOptions_0");
  });
  Menu("mnuReminderCheck").trigger();
  EXPECT_TRUE(seen);
}

TEST_F(ShellTest, ModalWindowsAreDialogsOfTheFrame)
{
  Start();
  for (const auto& [menu, dialog] :
       {std::pair("mnuAutostart", "frmAutoStart"), std::pair("mnuSetReminders", "frmNotice"),
        std::pair("mnuReminderCheck", "frmTextNotice"), std::pair("mnuAbout", "frmAbout"),
        std::pair("mnuLists_2", "frmPrintCal")}) {
    SCOPED_TRACE(dialog);
    ActivateFrame();
    bool seen = false;
    Drive::WhenShown(dialog, [&](QWidget& form) {
      seen = true;
      EXPECT_TRUE(form.isModal());
      EXPECT_EQ(form.windowType(), Qt::Dialog);
      EXPECT_EQ(form.windowHandle()->transientParent(), frame->windowHandle());
      form.close();
    });
    Menu(menu).trigger();
    EXPECT_TRUE(seen);
  }
}

TEST_F(ShellTest, StartUpNoticesStandAloneAndACheckOverThemIsADialogOfTheFrame)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Start();
  const Form& notices = *Forms::Loaded("frmTextNotice");
  EXPECT_EQ(notices.windowType(), Qt::Window);
  EXPECT_EQ(notices.windowHandle()->transientParent(), nullptr) << "the frame is minimised";
  frame->SetState(WindowState::kNormal);
  ActivateFrame();
  bool seen = false;
  Drive::WhenShown("frmTextNotice", [&](QWidget& form) {
    seen = true;
    EXPECT_EQ(form.windowHandle()->transientParent(), frame->windowHandle());
    form.close();
  });
  Menu("mnuReminderCheck").trigger();
  EXPECT_TRUE(seen);
}

TEST_F(ShellTest, AnOpenEditRefusesTheExitAndThePageSwitch)
{
  for (const char* panel : {"fraEdit", "fraAdd"}) {
    RegisterPage("frmNew", Form::Kind::kPage, {"fraEdit", "fraAdd"});
    RegisterPage("frmAnn");
    Start();
    Menu("mnuPersonal").trigger();
    Form& editor = *Forms::Loaded("frmNew");
    editor.Control(panel)->show();
    modID::SelectedPersonID = 7;

    boxes.Expect(kFinishFirst);
    frame->close();
    EXPECT_FALSE(frame->HasEnded());
    EXPECT_TRUE(frame->isVisible());

    boxes.Expect(kFinishFirst);
    Menu("mnuAnn").trigger();
    EXPECT_EQ(Forms::Loaded("frmNew"), &editor) << "nothing is unloaded";
    EXPECT_EQ(Forms::Loaded("frmAnn"), nullptr);
    EXPECT_EQ(modID::SelectedPersonID, 7);

    editor.Control(panel)->hide();
    frame->close();
    EXPECT_TRUE(frame->HasEnded());
    frame.reset();
  }
  modID::SelectedPersonID = 0;
}

TEST_F(ShellTest, OnePageIsOpenAtATime)
{
  RegisterPage("frmNew");
  RegisterPage("frmAnn");
  Start();
  Menu("mnuPersonal").trigger();
  EXPECT_TRUE(Forms::Loaded("frmNew")->isVisible());
  EXPECT_FALSE(MainPage().isVisible());
  modID::SelectedPersonID = 7;
  Menu("mnuAnn").trigger();
  EXPECT_EQ(Forms::Loaded("frmNew"), nullptr);
  EXPECT_TRUE(Forms::Loaded("frmAnn")->isVisible());
  EXPECT_EQ(Forms::Loaded("frmAnn")->size(), frame->centralWidget()->size());
  EXPECT_EQ(modID::SelectedPersonID, 0);
  Forms::Loaded("frmAnn")->Unload();
  MainPage().Show();
  EXPECT_TRUE(MainPage().isVisible());
}

TEST_F(ShellTest, TheListEntriesOpenTheirPageWithThePrintPanel)
{
  RegisterPage("frmQuillmark", Form::Kind::kPage, {"fraPrint"});
  RegisterPage("frmSpecial", Form::Kind::kPage, {"fraPrint"});
  Start();
  for (const auto& [menu, page] : {std::pair("mnuLists_0", "frmQuillmark"), std::pair("mnuLists_1", "frmSpecial")}) {
    Menu(menu).trigger();
    EXPECT_TRUE(Forms::Loaded(page)->Control("fraPrint")->isVisible()) << page;
  }
}

TEST_F(ShellTest, ChoosingTheOpenPageAgainKeepsThatVeryPage)
{
  folder.Execute(
      "INSERT INTO People (FirstName, LastName) VALUES ('Ann', 'Adams'), ('Bob', 'Brown'), ('Cid', 'Clark')");
  Start();
  Drive::Click(MainPage(), "lblOptions_0");
  Form* page = Forms::Loaded("frmQuillmark");
  ASSERT_NE(page, nullptr);
  auto& names = dynamic_cast<ListBox&>(Drive::Control(*page, "lstNames"));
  Hands::ClickLine(names, 1);
  ASSERT_EQ(names.ListIndex(), 1);
  ASSERT_FALSE(page->Control("fraPrint")->isVisible());
  Menu("mnuLists_0").trigger();
  ASSERT_EQ(Forms::Loaded("frmQuillmark"), page);
  EXPECT_TRUE(page->isVisible());
  EXPECT_EQ(names.ListIndex(), 1);
  EXPECT_TRUE(page->Control("fraPrint")->isVisible());
  EXPECT_FALSE(MainPage().isVisible());
}

TEST_F(ShellTest, CalendarOfEventsOpensTheCalendarAndThenItsPrintDialog)
{
  RegisterPage("frmReminders");
  RegisterPage("frmPrintCal", Form::Kind::kWindow);
  Start();
  bool seen = false;
  Drive::WhenShown("frmPrintCal", [&](QWidget& dialog) {
    seen = true;
    EXPECT_TRUE(dialog.isModal());
    EXPECT_TRUE(Forms::Loaded("frmReminders")->isVisible());
    dialog.close();
  });
  Menu("mnuLists_2").trigger();
  EXPECT_TRUE(seen);
}

TEST_F(ShellTest, TheOpenPageAndTheMainPageGoWithTheFrame)
{
  RegisterPage("frmNew");
  Start();
  Menu("mnuPersonal").trigger();
  frame->close();
  EXPECT_TRUE(Forms::AllLoaded().empty());
}

TEST_F(ShellTest, TheClosedFrameLetsGoOfTheDatabase)
{
  Start();
  frame->close();
  EXPECT_NO_THROW(DBEngine::CompactDatabase(folder.DatabasePath(), folder.File("/copy.mdb")));
}

TEST_F(ShellTest, AStopByAGuardWritesTheStateAsAnyClose)
{
  Set("WindowState=1");
  const OtherCopy other(folder.Path());
  boxes.Expect(kSecondCopy);
  Start();
  EXPECT_EQ(Option("WindowState"), 0) << "the frame was in its normal state";
}

TEST_F(ShellTest, AWrongYearIsSaidBeforeASecondCopy)
{
  const OtherCopy other(folder.Path());
  Clock::StopOn(QDate(2051, 1, 1));
  boxes.Expect(kWrongDate);
  Start();
  EXPECT_TRUE(frame->HasEnded());
}

TEST_F(ShellTest, BeforeTheFirstYearNoRemindersAreLookedFor)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'December', '31')");
  Clock::StopOn(QDate(1899, 12, 31));
  boxes.Expect(kWrongDate);
  modTextNotices::BirthdayHit = false;
  Start();
  EXPECT_FALSE(modTextNotices::BirthdayHit);
}

TEST_F(ShellTest, AWindowStateThatIsUnknownRestoresNothing)
{
  Set("WindowState=NULL");
  Start();
  EXPECT_EQ(frame->State(), WindowState::kNormal);
  EXPECT_TRUE(frame->isVisible());
}

TEST_F(ShellTest, ASecondCopyPlaysNoClip)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Set("TextMessage=0");
  const OtherCopy other(folder.Path());
  boxes.Expect(kSecondCopy);
  modTextNotices::ClipIndex = 0;
  Start();
  EXPECT_TRUE(frame->HasEnded());
  EXPECT_EQ(modTextNotices::ClipIndex, 0) << "the guard speaks before the first clip";
  EXPECT_FALSE(frame->TimerEnabled());
}

TEST_F(ShellTest, ClipsAloneLeaveTheFrameAsItIs)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Set("TextMessage=0, WindowState=1");
  WriteSilentClips(folder, 60'000);
  modTextNotices::ClipIndex = 0;
  Start();
  EXPECT_EQ(MediaDevice::Mode(), "playing");
  EXPECT_EQ(frame->State(), WindowState::kMaximised);
  EXPECT_TRUE(frame->TimerEnabled());
  frame->close();
  EXPECT_FALSE(frame->TimerEnabled());
  EXPECT_EQ(MediaDevice::Mode(), QString());
}

TEST_F(ShellTest, TheTimerOfTheClipsTicksEverySecondAndIsOffAtFirst)
{
  Start();
  EXPECT_EQ(frame->findChild<QTimer*>("tmrTimer", Qt::FindDirectChildrenOnly)->interval(), 1000);
  EXPECT_FALSE(frame->TimerEnabled());
}

TEST_F(ShellTest, AStandingNoticeGoesWithTheFrame)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Start();
  ASSERT_NE(Forms::Loaded("frmTextNotice"), nullptr);
  frame->SetState(WindowState::kNormal);
  frame->close();
  EXPECT_TRUE(Forms::AllLoaded().empty());
}

TEST_F(ShellTest, EveryOpenPageGivesWayToTheNext)
{
  const char* const pages[] = {"frmSpecial", "frmQuillmark", "frmNew", "frmCharts", "frmReminders"};
  for (const char* page : pages) {
    RegisterPage(page);
  }
  RegisterPage("frmAnn");
  Start();
  for (const char* page : pages) {
    frame->OpenPage(page);
    ASSERT_NE(Forms::Loaded(page), nullptr);
    Menu("mnuAnn").trigger();
    EXPECT_EQ(Forms::Loaded(page), nullptr) << page;
    EXPECT_TRUE(Forms::Loaded("frmAnn")->isVisible());
  }
}

TEST_F(ShellTest, APageSwitchFreesTheCalendarsPictureAndPrintingKeepsIt)
{
  RegisterPage("frmNew");
  RegisterPage("frmReminders");
  RegisterPage("frmPrintCal", Form::Kind::kWindow);
  Start();
  modThemes::SetCalendarHasPicture(true);
  Menu("mnuPersonal").trigger();
  EXPECT_FALSE(modThemes::CalendarHasPicture());
  bool kept = false;
  Drive::WhenShown("frmPrintCal", [&](QWidget& dialog) {
    kept = modThemes::CalendarHasPicture();
    dialog.close();
  });
  Menu("mnuLists_2").trigger();
  EXPECT_TRUE(kept);
}

TEST_F(ShellTest, TheOpenFrameLeavesTheDatabaseFree)
{
  Start();
  EXPECT_EQ(ErrorOf([&] { DBEngine::CompactDatabase(folder.DatabasePath(), folder.File("/copy.mdb")); }), 0);
  EXPECT_TRUE(QFile::exists(folder.File("/copy.mdb")));
}

TEST_F(ShellTest, ALoadThatFailsTwiceWarnsOfThePoorScreenOnce)
{
  folder.Execute("INSERT INTO People (FirstName, BirthMonth, BirthDate) VALUES ('Ann', 'May', '5')");
  Set("Theme=9");
  Screen::Pretend(QRect(0, 0, 640, 480));
  boxes.Expect(kPoorScreen);
  EXPECT_EQ(ErrorOf([&] { Start(); }), 340);
}
