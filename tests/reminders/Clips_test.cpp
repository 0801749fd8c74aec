// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ReminderTest.h"

#include "reminders/Clips.h"
#include "support/SilentClip.h"

using modTextNotices::ClipFiles;
using modTextNotices::ClipIndex;

namespace {

class ClipsTest : public ReminderTest
{
protected:
  void WriteClips(int milliseconds) const { WriteSilentClips(folder, milliseconds); }

  // Which of the three notes show.
  static QString Notes()
  {
    QString notes;
    for (int i = 0; i < 3; ++i) {
      notes += Drive::Control(*Window(), QStringLiteral("imgNote_%1").arg(i)).isVisible() ? '1' : '0';
    }
    return notes;
  }

  // Ticks like the frame's timer until the clip that plays has ended.
  static void TickUntilTheNext()
  {
    const int playing = ClipIndex;
    EXPECT_TRUE(QTest::qWaitFor([&] {
      Clips::FollowClip();
      return ClipIndex != playing;
    }));
  }
};

}

TEST_F(ClipsTest, OneHitPlaysOneClipBesideItsNoteAndEndsTheQueue)
{
  WriteClips(60);
  AddPerson("Ann", "Lee", "May", "6");
  modTextNotices::CheckReminders(false);
  EXPECT_EQ(Notes(), QStringLiteral("100"));
  EXPECT_TRUE(frame.timer);
  EXPECT_EQ(ClipIndex, 1);
  TickUntilTheNext();
  EXPECT_EQ(Notes(), QStringLiteral("000"));
  EXPECT_FALSE(frame.timer);
  EXPECT_EQ(ClipIndex, 0);
  EXPECT_EQ(MediaDevice::Mode(), QString());
}

TEST_F(ClipsTest, ThreeHitsPlayInTheOrderOfTheirLines)
{
  WriteClips(60);
  AddPerson("Ann", "Lee", "May", "6");
  AddCouple("Mia", "Tom", "May", "7");
  AddEvent("Dentist", "May", "2026-05-08");
  modTextNotices::CheckReminders(false);
  EXPECT_EQ(Notes(), QStringLiteral("100"));
  TickUntilTheNext();
  EXPECT_EQ(Notes(), QStringLiteral("010"));
  EXPECT_TRUE(frame.timer);
  TickUntilTheNext();
  EXPECT_EQ(Notes(), QStringLiteral("001"));
  TickUntilTheNext();
  EXPECT_EQ(Notes(), QStringLiteral("000"));
  EXPECT_FALSE(frame.timer);
}

TEST_F(ClipsTest, ATickWhileAClipPlaysChangesNothing)
{
  WriteClips(60000);
  AddPerson("Ann", "Lee", "May", "6");
  modTextNotices::CheckReminders(false);
  Clips::FollowClip();
  Clips::FollowClip();
  EXPECT_EQ(MediaDevice::Mode(), QStringLiteral("playing"));
  EXPECT_EQ(Notes(), QStringLiteral("100"));
  EXPECT_EQ(ClipIndex, 1);
}

TEST_F(ClipsTest, ClosingTheWindowSilencesAndTheNextCheckStartsWithTheFirstClip)
{
  WriteClips(60);
  AddPerson("Ann", "Lee", "May", "6");
  AddCouple("Mia", "Tom", "May", "7");
  modTextNotices::CheckReminders(false);
  TickUntilTheNext();
  EXPECT_EQ(ClipIndex, 2);
  WriteClips(60000);
  Drive::Click(*Window(), "lblOptions_0");
  EXPECT_EQ(MediaDevice::Mode(), QString());
  EXPECT_EQ(ClipIndex, 0);
  EXPECT_TRUE(frame.timer) << "the timer stays on";
  Clips::FollowClip();
  EXPECT_EQ(ClipIndex, 0) << "and does nothing";
  modTextNotices::CheckReminders(false);
  EXPECT_EQ(Notes(), QStringLiteral("100"));
  EXPECT_EQ(MediaDevice::Mode(), QStringLiteral("playing"));
}

TEST_F(ClipsTest, EveryCommandOfTheStartUpNoticesSilencesAndGoesBackToTheFirstClip)
{
  WriteClips(60000);
  AddPerson("Ann", "Lee", "May", "6");
  for (const char* command : {"lblOptions_0", "lblOptions_1", "lblOptions_2"}) {
    SCOPED_TRACE(command);
    modTextNotices::CheckReminders(false);
    ASSERT_EQ(ClipIndex, 1);
    ASSERT_EQ(MediaDevice::Mode(), QStringLiteral("playing"));
    Drive::Click(*Window(), command);
    EXPECT_EQ(ClipIndex, 0);
    EXPECT_EQ(MediaDevice::Mode(), QString());
    EXPECT_EQ(Window(), nullptr);
  }
}

TEST_F(ClipsTest, AMissingOrDamagedClipIsQuiet)
{
  AddPerson("Ann", "Lee", "May", "6");
  modTextNotices::CheckReminders(false);
  EXPECT_TRUE(frame.timer);
  EXPECT_EQ(ClipIndex, 1);
  Clips::FollowClip();
  EXPECT_TRUE(frame.timer) << "the timer runs on with no effect";
  EXPECT_EQ(Notes(), QStringLiteral("100"));
  Drive::Click(*Window(), "lblOptions_0");
  QDir().mkpath(folder.File("/notices"));
  QFile broken(folder.File("/notices/hapbirth.wav"));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("no clip at all, but longer than the header of one would be");
  broken.close();
  modTextNotices::CheckReminders(false);
  Clips::FollowClip();
  EXPECT_EQ(MediaDevice::Mode(), QString());
}

TEST_F(ClipsTest, AnEmptyOrNegativeQueueEndsWithTheTimerOff)
{
  frame.timer = true;
  Clips::PlayNextClip();
  EXPECT_FALSE(frame.timer);
  frame.timer = true;
  ClipFiles = {"a"};
  ClipIndex = -1;
  Clips::PlayNextClip();
  EXPECT_FALSE(frame.timer);
  EXPECT_EQ(ClipIndex, 0);
}

TEST_F(ClipsTest, BeyondThreeClipsTheTimerRunsAlone)
{
  ClipFiles = {"a", "b", "c", "d"};
  ClipIndex = 3;
  Clips::PlayNextClip();
  EXPECT_TRUE(frame.timer);
  EXPECT_EQ(ClipIndex, 3);
}

TEST_F(ClipsTest, ATickWithTheTimerOffDoesNothing)
{
  ClipFiles = {"a"};
  frame.timer = false;
  Clips::FollowClip();
  EXPECT_FALSE(frame.timer);
  EXPECT_EQ(ClipIndex, 0);
}

TEST_F(ClipsTest, AFolderWithBlanksAndQuotesInItsNamePlays)
{
  const QString odd = folder.File(QStringLiteral("/my \"home\" folder"));
  QDir().mkpath(odd + QStringLiteral("/notices"));
  WriteSilentClip(odd + QStringLiteral("/notices/hapbirth.wav"), 60000);
  ClipFiles = {Clips::GetShortName(odd) + QStringLiteral("/notices/hapbirth.wav")};
  Clips::PlayNextClip();
  EXPECT_EQ(MediaDevice::Mode(), QStringLiteral("playing"));
  EXPECT_EQ(Clips::GetShortName(folder.File("/nowhere")), QString());
}

TEST_F(ClipsTest, OpeningASecondClipRestartsTheOneThatIsOpen)
{
  WriteClips(60000);
  MediaDevice::Open(folder.File("/notices/hapbirth.wav"));
  EXPECT_EQ(MediaDevice::Mode(), QStringLiteral("stopped"));
  MediaDevice::Play();
  MediaDevice::Open(folder.File("/notices/missing.wav"));
  MediaDevice::Play();
  EXPECT_EQ(MediaDevice::Mode(), QStringLiteral("playing"));
}
