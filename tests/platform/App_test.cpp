// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/App.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class AppFolder : public testing::Test
{
protected:
  ~AppFolder() override { App::SetPath({}); }

  QTemporaryDir folder;
  QTemporaryDir otherFolder;
};

// Another running copy of the program, which claims a folder and lives until it is killed.
class OtherCopy
{
public:
  enum class Helper
  {
    kNone,
    kStarted,
  };

  // With a helper the copy starts another program, which lives on after it.
  explicit OtherCopy(const QString& folder, Helper helper = Helper::kNone)
  {
    int answers[2] = {};
    if (pipe2(answers, O_CLOEXEC) != 0 || pipe2(helperInput_, O_CLOEXEC) != 0) {
      return;
    }
    process_ = fork();
    if (process_ == 0) {
      close(answers[0]);
      close(helperInput_[1]);
      App::SetPath(folder);
      const char answer = App::PrevInstance() ? 'T' : 'F';
      if (helper == Helper::kStarted) {
        StartHelper();
      }
      static_cast<void>(!write(answers[1], &answer, 1));
      for (;;) {
        pause();
      }
    }
    close(answers[1]);
    static_cast<void>(!read(answers[0], &answer_, 1));
    close(answers[0]);
  }

  ~OtherCopy()
  {
    Kill();
    close(helperInput_[0]);
    close(helperInput_[1]);
  }
  OtherCopy(const OtherCopy&) = delete;
  OtherCopy& operator=(const OtherCopy&) = delete;

  // What it was told of copies before it: 'T', 'F', or '?' if it could not be started.
  [[nodiscard]] char Answer() const { return answer_; }

  void Kill()
  {
    if (process_ > 0) {
      kill(process_, SIGKILL);
      waitpid(process_, nullptr, 0);
      process_ = -1;
    }
  }

private:
  // Returns when the other program runs, which closes what it must not inherit.
  void StartHelper() const
  {
    int started[2] = {};
    if (pipe2(started, O_CLOEXEC) != 0) {
      _exit(1);
    }
    if (fork() == 0) {
      dup2(helperInput_[0], STDIN_FILENO);
      execlp("cat", "cat", nullptr);
      _exit(1);
    }
    close(started[1]);
    char nothing = 0;
    static_cast<void>(!read(started[0], &nothing, 1));
    close(started[0]);
  }

  pid_t process_ = -1;
  int helperInput_[2] = {-1, -1};
  char answer_ = '?';
};

}

TEST_F(AppFolder, IsTheOneThatWasTaken)
{
  App::SetPath(folder.path());
  EXPECT_EQ(App::Path(), folder.path());
  EXPECT_EQ(App::File("/months.txt"), folder.path() + "/months.txt");
}

TEST_F(AppFolder, HasNoSlashAtItsEnd)
{
  App::SetPath(folder.path() + "/");
  EXPECT_EQ(App::Path(), folder.path());
  EXPECT_EQ(App::File("/sub/file"), folder.path() + "/sub/file");
}

TEST_F(AppFolder, IsTheProgramsOwnUnlessAnotherIsTaken)
{
  App::SetPath(folder.path());
  App::SetPath({});
  EXPECT_NE(App::Path(), folder.path());
  EXPECT_TRUE(QDir(App::Path()).isAbsolute());
  EXPECT_FALSE(App::Path().endsWith('/'));
}

TEST_F(AppFolder, TitleIsTheProgramsName)
{
  EXPECT_STREQ(App::kTitle, "Quillmark");
}

TEST_F(AppFolder, NoOtherCopyRunsInAFolderOfItsOwn)
{
  App::SetPath(folder.path());
  EXPECT_FALSE(App::PrevInstance());
  EXPECT_FALSE(App::PrevInstance());
}

TEST_F(AppFolder, AnotherCopyIsSeenWhileItLives)
{
  OtherCopy other(folder.path());
  ASSERT_EQ(other.Answer(), 'F');
  App::SetPath(folder.path());
  EXPECT_TRUE(App::PrevInstance());
  EXPECT_TRUE(App::PrevInstance());
  other.Kill();
  EXPECT_FALSE(App::PrevInstance());
}

TEST_F(AppFolder, IsClaimedAnewWhenTheCopyComesBackToIt)
{
  App::SetPath(folder.path());
  ASSERT_FALSE(App::PrevInstance());
  App::SetPath(otherFolder.path());
  ASSERT_FALSE(App::PrevInstance());
  App::SetPath(folder.path());
  EXPECT_FALSE(App::PrevInstance());
}

TEST_F(AppFolder, AnotherFolderIsFree)
{
  const OtherCopy other(otherFolder.path());
  ASSERT_EQ(other.Answer(), 'F');
  App::SetPath(folder.path());
  EXPECT_FALSE(App::PrevInstance());
}

TEST_F(AppFolder, AnotherWayToTheSameFolderIsNotFree)
{
  const QString link = otherFolder.path() + "/link";
  ASSERT_EQ(symlink(folder.path().toUtf8().constData(), link.toUtf8().constData()), 0);
  const OtherCopy other(folder.path());
  ASSERT_EQ(other.Answer(), 'F');
  App::SetPath(link);
  EXPECT_TRUE(App::PrevInstance());
}

TEST_F(AppFolder, ThirdCopySeesTheFirst)
{
  OtherCopy first(folder.path());
  OtherCopy second(folder.path());
  EXPECT_EQ(first.Answer(), 'F');
  EXPECT_EQ(second.Answer(), 'T');
  second.Kill();
  App::SetPath(folder.path());
  EXPECT_TRUE(App::PrevInstance());
  first.Kill();
  EXPECT_FALSE(App::PrevInstance());
}

TEST_F(AppFolder, TakingAnotherFolderLetsGoOfTheClaim)
{
  App::SetPath(folder.path());
  ASSERT_FALSE(App::PrevInstance());
  App::SetPath(otherFolder.path());
  const OtherCopy other(folder.path());
  EXPECT_EQ(other.Answer(), 'F');
}

TEST_F(AppFolder, WhatACopyHasStartedDoesNotHoldItsFolder)
{
  OtherCopy other(folder.path(), OtherCopy::Helper::kStarted);
  ASSERT_EQ(other.Answer(), 'F');
  App::SetPath(folder.path());
  EXPECT_TRUE(App::PrevInstance());
  other.Kill();
  EXPECT_FALSE(App::PrevInstance());
}

TEST_F(AppFolder, WhatAKilledCopyLeftBehindDoesNotHoldTheFolder)
{
  for (int i = 0; i < 3; ++i) {
    OtherCopy other(folder.path());
    EXPECT_EQ(other.Answer(), 'F');
    other.Kill();
  }
  App::SetPath(folder.path());
  EXPECT_FALSE(App::PrevInstance());
}
