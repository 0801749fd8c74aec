// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ReminderTest.h"

#include "controls/Label.h"
#include "looks/modThemes.h"

namespace {

class NoticesTest : public ReminderTest
{
protected:
  frmTextNotice& Open()
  {
    modTextNotices::CheckReminders(false);
    return *Window();
  }

  static QStringList Details(QWidget& form) { return Lines(form, QStringLiteral("lstMoreInfo")); }
  static QString Sentence(QWidget& form) { return Caption(form, QStringLiteral("lblExplain")); }

  // The commands that are lit.
  static QStringList Lit(const Form& form)
  {
    QStringList lit;
    for (const QWidget* command : form.ArrayNamed(QStringLiteral("lblOptions")).widgets) {
      if (static_cast<const Label*>(command)->BackStyle() == Label::kOpaque) {
        lit.append(command->objectName());
      }
    }
    return lit;
  }
};

}

TEST_F(NoticesTest, OpensNarrowAndWidensAtAClickOnALine)
{
  AddPerson("Ann", "Lee", "May", "5");
  frmTextNotice& window = Open();
  EXPECT_EQ(window.ScaleWidth(), 3750);
  EXPECT_EQ(window.ScaleHeight(), 3240);
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(window.ScaleWidth(), 7740);
  EXPECT_EQ(window.ScaleHeight(), 3240);
}

TEST_F(NoticesTest, ListsTheNearestFirst)
{
  AddPerson("Zoe", "Far", "May", "17");
  AddPerson("Yan", "Near", "May", "8");
  AddPerson("Xia", "Today", "May", "5");
  AddPerson("Wim", "Tomorrow", "May", "6");
  AddPerson("Not", "Due", "May", "20");
  Set("BirthLength=14");
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList({"In  0 days (today) - Xia Today", "In  1 day - Wim Tomorrow",
                                          "In  3 days - Yan Near", "In 12 days - Zoe Far"}));
  EXPECT_EQ(Sentence(window),
            QStringLiteral("You've chosen to be notified of all birthdays occurring within the next 14 days:"));
}

TEST_F(NoticesTest, ManyWithNoDaysListsBareNamesInOrder)
{
  AddPerson("zoe", "Lee", "May", "5");
  AddPerson("Ann", "Lee", "May", "5");
  AddPerson("Ben", "Lee", "May", "5");
  Set("BirthLength=0");
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList({"Ann Lee", "Ben Lee", "zoe Lee"}));
  EXPECT_EQ(Sentence(window), QStringLiteral("You've chosen to be notified of birthdays occurring today:"));
}

TEST_F(NoticesTest, OnceListsBareNamesAndTheSentenceSaysTheDay)
{
  AddPerson("Ann", "Lee", "May", "6");
  AddPerson("Ben", "Lee", "May", "7");
  Set("BirthOnce=1, BirthMany=0, BirthLength=1");
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList{"Ann Lee"});
  EXPECT_EQ(Sentence(window), QStringLiteral("You've chosen to be notified of birthdays occurring tomorrow:"));
}

TEST_F(NoticesTest, ASecondLineReplacesTheDetailsAndKeepsTheWidth)
{
  AddPerson("Ann", "Lee", "May", "6");
  AddCouple("Mia", "Tom", "May", "7");
  AddEvent("Dentist", "May", "2026-05-08");
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList{"In  1 day - Ann Lee"});
  ClickLine(window, "lstNotices", 1);
  EXPECT_EQ(Details(window), QStringList{"In  2 days - Mia and Tom"});
  EXPECT_EQ(Sentence(window),
            QStringLiteral("You've chosen to be notified of all anniversaries occurring within the next 7 days:"));
  ClickLine(window, "lstNotices", 2);
  EXPECT_EQ(Details(window), QStringList{"In  3 days - Dentist"}) << "never the time";
  EXPECT_EQ(Sentence(window),
            QStringLiteral("You've chosen to be notified of all calendar events occurring within the next 3 days:"));
  EXPECT_EQ(window.ScaleWidth(), 7740);
}

TEST_F(NoticesTest, ANameWithoutFirstNameBeginsWithABlank)
{
  folder.Execute("INSERT INTO People (LastName, BirthMonth, BirthDate) VALUES ('Lee', 'May', '5')");
  Set("BirthLength=0");
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList{" Lee"});
}

TEST_F(NoticesTest, ALineWithNothingBehindItLeavesAnEmptyListAndTheSentence)
{
  AddPerson("Ann", "Lee", "May", "6");
  folder.Execute("INSERT INTO People (FirstName, AnnMonth, AnnDate) VALUES ('Mia', 'May', '6')");
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  const QString sentence = Sentence(window);
  ClickLine(window, "lstNotices", 1);
  EXPECT_EQ(Details(window), QStringList());
  EXPECT_EQ(Sentence(window), sentence);
  EXPECT_EQ(window.ScaleWidth(), 7740);
}

TEST_F(NoticesTest, SettingsSwitchedOffMeanwhileEmptyTheDetails)
{
  AddPerson("Ann", "Lee", "May", "6");
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  Set("BirthAudio=0, AnnAudio=0, CalAudio=0");
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList());
}

TEST_F(NoticesTest, AFailureInAClickIsSilent)
{
  AddPerson("Ann", "Lee", "May", "6");
  frmTextNotice& window = Open();
  folder.Execute("DROP TABLE Ann");
  folder.Execute("UPDATE People SET BirthDate='sixth'");
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList());
  EXPECT_EQ(window.ScaleWidth(), 3750) << "all queries come before anything is done";
}

TEST_F(NoticesTest, ADamagedRowBehindOneThatFitsLeavesTheSentenceAndNoEntries)
{
  AddPerson("Ann", "Lee", "May", "6");
  frmTextNotice& window = Open();
  AddPerson("Ben", "Lee", "May", "sixth");
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(window.ScaleWidth(), 7740);
  EXPECT_EQ(Details(window), QStringList());
  EXPECT_EQ(Sentence(window),
            QStringLiteral("You've chosen to be notified of all birthdays occurring within the next 7 days:"));
}

TEST_F(NoticesTest, RowsWithUnknownPartsStandBesideHitsInSilence)
{
  AddPerson("Ann", "Lee", "February", "29");
  AddPerson("Ben", "Lee", "February", {});
  AddPerson("Cid", "Lee", "", "1");
  Clock::StopOn(QDate(2026, 2, 26));
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList{"In  3 days - Ann Lee"});
}

TEST_F(NoticesTest, InDecemberAJanuaryBirthdayIsTold)
{
  AddPerson("Ann", "Lee", "January", "1");
  Clock::StopOn(QDate(2026, 12, 31));
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList{"In  1 day - Ann Lee"});
}

TEST_F(NoticesTest, AnAnniversaryTodayUnderTheOneDayRule)
{
  AddCouple("Mia", "Tom", "May", "5");
  Set("AnnOnce=1, AnnMany=0, AnnLength=0");
  frmTextNotice& window = Open();
  ClickLine(window, "lstNotices", 0);
  EXPECT_EQ(Details(window), QStringList{"Mia and Tom"});
  EXPECT_EQ(Sentence(window), QStringLiteral("You've chosen to be notified of anniversaries ccuring today:"));
}

TEST_F(NoticesTest, ControlsStandAtTheirPlaces)
{
  AddPerson("Ann", "Lee", "May", "6");
  frmTextNotice& window = Open();
  const auto twips = [&](const char* name) {
    const QRect place = Drive::Control(window, name).geometry();
    return QRect(place.x() * 15, place.y() * 15, place.width() * 15, place.height() * 15);
  };
  EXPECT_EQ(twips("lstNotices"), QRect(360, 1080, 3255, 780));
  EXPECT_EQ(twips("lblExplain"), QRect(3840, 600, 3495, 495));
  EXPECT_EQ(twips("lstMoreInfo"), QRect(3840, 1080, 3615, 1230));
}

TEST_F(NoticesTest, ALineIsReachedByKeyboard)
{
  AddPerson("Ann", "Lee", "May", "6");
  AddEvent("Dentist", "May", "2026-05-08");
  frmTextNotice& window = Open();
  QWidget& list = Drive::Control(window, "lstNotices");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(Details(window), QStringList{"In  3 days - Dentist"});
}

TEST_F(NoticesTest, CommandsLightUpUnderTheMouseOneAtATime)
{
  AddPerson("Ann", "Lee", "May", "6");
  frmTextNotice& window = Open();
  Drive::MoveOver(window);
  EXPECT_EQ(Lit(window), QStringList());
  for (const char* command : {"lblOptions_0", "lblOptions_1", "lblOptions_2"}) {
    Drive::MoveOver(window, command);
    EXPECT_EQ(Lit(window), QStringList{command});
  }
  Drive::MoveOver(window, "lstNotices");
  EXPECT_EQ(Lit(window), QStringList());
  Drive::MoveOver(window, "lblOptions_1");
  Drive::MoveOver(window);
  EXPECT_EQ(Lit(window), QStringList());
}

TEST_F(NoticesTest, TheWindowTakesTheBackgroundOfTheTheme)
{
  AddPerson("Ann", "Lee", "May", "6");
  for (const auto& [theme, colour] : {std::pair{5, "#fff9e9"}, std::pair{4, "#ffffff"}, std::pair{1, "#ffffff"}}) {
    Set(QStringLiteral("Theme=%1").arg(theme));
    frmTextNotice& window = Open();
    EXPECT_EQ(window.BackColor().name(), QLatin1String(colour)) << theme;
    Drive::Click(window, "lblOptions_0");
  }
  frmTextNotice& standing = Open();
  Set("Theme=5");
  modThemes::ApplyTheme();
  EXPECT_EQ(standing.BackColor().name(), QStringLiteral("#fff9e9")) << "a theme chosen while it stands";
}

TEST_F(NoticesTest, ViewQuillmarkBringsTheFrameBackAsItWasClosed)
{
  AddPerson("Ann", "Lee", "May", "6");
  Drive::Click(Open(), "lblOptions_0");
  EXPECT_EQ(frame.state, WindowState::kNormal);
  EXPECT_EQ(Window(), nullptr);
  Set("WindowState=1");
  Drive::Click(Open(), "lblOptions_0");
  EXPECT_EQ(frame.state, WindowState::kMaximised);
  Set("WindowState=NULL");
  Drive::Click(Open(), "lblOptions_0");
  EXPECT_EQ(frame.state, WindowState::kMinimised) << "any other value leaves it";
}

TEST_F(NoticesTest, AManualNoticeLeavesTheFrameAlone)
{
  AddPerson("Ann", "Lee", "May", "6");
  Set("WindowState=1");
  EXPECT_TRUE(CheckAndSee([](QWidget&) {}));
  EXPECT_EQ(frame.state, WindowState::kNormal);
}

TEST_F(NoticesTest, MinimizeAndCloseDoSo)
{
  AddPerson("Ann", "Lee", "May", "6");
  frmTextNotice& window = Open();
  frame.state = WindowState::kNormal;
  Drive::Click(window, "lblOptions_1");
  EXPECT_EQ(frame.state, WindowState::kMinimised);
  EXPECT_EQ(frame.unloads, 0);
  EXPECT_EQ(Window(), nullptr);
  Drive::Click(Open(), "lblOptions_2");
  EXPECT_EQ(frame.unloads, 1);
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(NoticesTest, TheCloseBoxDoesWhatTheFirstCommandDoes)
{
  AddPerson("Ann", "Lee", "May", "6");
  Open().close();
  EXPECT_EQ(frame.state, WindowState::kNormal);
  EXPECT_EQ(Window(), nullptr);
}

TEST_F(NoticesTest, TheNextWindowStartsFromItsDefaults)
{
  AddPerson("Ann", "Lee", "May", "6");
  frmTextNotice& first = Open();
  ClickLine(first, "lstNotices", 0);
  Drive::Click(first, "lblOptions_0");
  frmTextNotice& second = Open();
  EXPECT_EQ(second.ScaleWidth(), 3750);
  EXPECT_EQ(Details(second), QStringList());
  EXPECT_EQ(Caption(second, "lblNotice"), QStringLiteral("Click on a reminder for more information..."));
  EXPECT_EQ(Sentence(second), QString());
}
