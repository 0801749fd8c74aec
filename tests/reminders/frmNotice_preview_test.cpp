// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "NoticePageTest.h"

#include "platform/HelpViewer.h"
#include "reminders/Clips.h"
#include "support/HelpOnScreen.h"
#include "support/SilentClip.h"

#include <QTimer>

namespace {

constexpr int kLong = 60'000;
constexpr int kSecond = 1000;
constexpr int kShort = 60;

class NoticePreview : public NoticePageTest
{
protected:
  void WriteClips(int milliseconds) const { WriteSilentClips(folder, milliseconds); }
  static QTimer& Timer() { return *Page().findChild<QTimer*>(QStringLiteral("tmrTimerPreview")); }
};

}

TEST_F(NoticePreview, EachListenPlaysTheClipOfItsKind)
{
  const std::pair<const char*, const char*> clips[] = {{"lblOptions_1", "/notices/hapbirth.wav"},
                                                       {"lblOptions_2", "/notices/wmfade2.wav"},
                                                       {"lblOptions_3", "/notices/jad0044.wav"}};
  QDir().mkpath(folder.File("/notices"));
  Open();
  for (const auto& [listen, clip] : clips) {
    Drive::Click(Page(), listen);
    EXPECT_EQ(MediaDevice::Mode(), QString()) << "no file, no sound, no message";
    WriteSilentClip(folder.File(QLatin1String(clip)), kLong);
    Drive::Click(Page(), listen);
    EXPECT_EQ(MediaDevice::Mode(), QStringLiteral("playing")) << clip;
    MediaDevice::Close();
  }
}

TEST_F(NoticePreview, TheTimerRunsUntilTheClipHasEndedAndClosesIt)
{
  WriteClips(kShort);
  Open();
  Drive::Click(Page(), "lblOptions_1");
  EXPECT_TRUE(Timer().isActive());
  EXPECT_TRUE(QTest::qWaitFor([] { return !Timer().isActive(); }));
  EXPECT_EQ(MediaDevice::Mode(), QString());
}

TEST_F(NoticePreview, ASecondClickRestartsTheClipThatIsOpen)
{
  WriteClips(kLong);
  WriteSilentClip(folder.File("/notices/hapbirth.wav"), kSecond);
  const auto hasStopped = [] { return MediaDevice::Mode() == QStringLiteral("stopped"); };
  Open();
  Drive::Click(Page(), "lblOptions_1");
  Drive::Click(Page(), "lblOptions_2");
  EXPECT_EQ(MediaDevice::Mode(), QStringLiteral("playing"));
  EXPECT_TRUE(Timer().isActive());
  Timer().stop();  // the clip is to stay open at its end
  EXPECT_TRUE(QTest::qWaitFor(hasStopped)) << "the second clip is long";
  Drive::Click(Page(), "lblOptions_3");
  EXPECT_EQ(MediaDevice::Mode(), QStringLiteral("playing")) << "from the beginning";
  EXPECT_TRUE(Timer().isActive());
  Timer().stop();
  EXPECT_TRUE(QTest::qWaitFor(hasStopped)) << "the third clip is long, too";
}

TEST_F(NoticePreview, ClosingThePageSilences)
{
  WriteClips(kLong);
  Open();
  Drive::Click(Page(), "lblOptions_3");
  EXPECT_TRUE(Page().Unload());
  EXPECT_EQ(MediaDevice::Mode(), QString());
}

TEST_F(NoticePreview, AClosingThatIsCancelledHasSilencedAllTheSame)
{
  WriteClips(kLong);
  Open();
  Press("cboDays", Qt::Key_Delete);
  Drive::Click(Page(), "lblOptions_3");
  ExpectQuestion(QLatin1String(kPanels[0].askDuration), QMessageBox::Ok);
  EXPECT_FALSE(Page().Unload());
  EXPECT_EQ(MediaDevice::Mode(), QString());
  Drive::Click(Page(), "lblOptions_3");
  EXPECT_EQ(MediaDevice::Mode(), QStringLiteral("playing")) << "and plays again";
}

TEST_F(NoticePreview, APreviewLeavesTheQueueOfTheCheckAlone)
{
  WriteClips(kLong);
  modTextNotices::ClipFiles = {"a", "b"};
  modTextNotices::ClipIndex = 1;
  Open();
  Drive::Click(Page(), "lblOptions_2");
  EXPECT_EQ(modTextNotices::ClipFiles, QStringList({"a", "b"}));
  EXPECT_EQ(modTextNotices::ClipIndex, 1);
  EXPECT_FALSE(frame.timer);
}

TEST_F(NoticePreview, WhyUseRemindersOpensTheHelp)
{
  HelpOnScreen::Lay(folder.Path());
  Drive::Click(Open(), "lblOptions_4");
  EXPECT_EQ(HelpOnScreen::WindowCount(), 1);
  EXPECT_EQ(HelpOnScreen::Page(), "index.html");
  HelpViewer::Quit();
}
