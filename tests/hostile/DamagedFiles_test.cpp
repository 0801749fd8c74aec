// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Apart.h"
#include "Damage.h"
#include "Household.h"
#include "Verdict.h"
#include "Visit.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

// What may stand in the place of a file.
struct Replacement
{
  const char* what;
  bool keepsSome;  // of what stood there
  std::function<void(const QString& path, const QByteArray& whole, Damage& chance)> put;
};

void PutText(const QString& path, const QByteArray& /*whole*/, Damage& /*chance*/)
{
  Household::Write(path, "A letter.\n");
}

void PutFolder(const QString& path, const QByteArray& /*whole*/, Damage& /*chance*/)
{
  QDir().mkdir(path);
}

void PutPipe(const QString& path, const QByteArray& /*whole*/, Damage& /*chance*/)
{
  mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR);
}

const std::vector<Replacement> kReplacements = {
    {"nothing", false, [](const QString&, const QByteArray&, Damage&) {}},
    {"an empty file", false, [](const QString& path, const QByteArray&, Damage&) { Household::Write(path, {}); }},
    {"a text", false, PutText},
    {"a folder", false, PutFolder},
    {"a pipe", false, PutPipe},
    {"half of it", true,
     [](const QString& path, const QByteArray& whole, Damage&) {
       Household::Write(path, whole.left(whole.size() / 2));
     }},
    {"a damaged one", true,
     [](const QString& path, const QByteArray& whole, Damage& chance) { Household::Write(path, chance.File(whole)); }},
    {"noise in one line", false,
     [](const QString& path, const QByteArray&, Damage&) {
       Household::Write(path, QByteArray("\xff\xfe\0x", 4).repeated(500'000));
     }},
    {"very many lines", false, [](const QString& path, const QByteArray&, Damage&) {
       Household::Write(path, QByteArray("May\n").repeated(200'000));
     }}};

class DamagedFiles : public testing::Test
{
protected:
  static bool IsLongRun() { return qEnvironmentVariableIntValue("QUILLMARK_HOSTILE") > 0; }

  // Each replacement in the place of each file, one after the other; in a short run some of
  // them for each file, so that every replacement comes to its turn somewhere.
  void ForEachReplacement(const QStringList& files, const std::function<void(const Apart::Say&, Damage&)>& work)
  {
    std::size_t turn = 0;
    for (const QString& file : files) {
      for (std::size_t i = 0; i < kReplacements.size(); ++i) {
        if (IsLongRun() || (i + turn) % 4 == 0) {
          Try(file, kReplacements[i], work);
        }
      }
      ++turn;
    }
  }

  Apart::Outcome Try(const QString& file, const Replacement& replacement,
                     const std::function<void(const Apart::Say&, Damage&)>& work)
  {
    const QString path = household.File(file);
    const QString kept = path + ".kept";
    const QByteArray whole = Household::Contents(path);
    EXPECT_TRUE(QFile::rename(path, kept)) << path.toStdString();
    Damage chance(1);
    replacement.put(path, whole, chance);
    const Apart::Outcome outcome = Apart::Run([&](const Apart::Say& say) { work(say, chance); });
    EXPECT_EQ(Verdict::Faults(outcome).join(u';').toStdString(), "")
        << file.toStdString() << " is " << replacement.what << ": " << Verdict::Story(outcome);
    std::printf("%s is %s: %s\n", qPrintable(file), replacement.what, qPrintable(Verdict::Of(outcome)));
    if (!QFile::remove(path)) {
      QDir(path).removeRecursively();
    }
    EXPECT_TRUE(QFile::rename(kept, path));
    return outcome;
  }

  Household household;
};

}

TEST_F(DamagedFiles, WhatStandsInThePlaceOfTheDatabaseEndsTheProgramWithAMessage)
{
  for (const Replacement& replacement : kReplacements) {
    const Apart::Outcome outcome = Try("/quillmark2002.mdb", replacement,
                                       [](const Apart::Say& say, Damage& chance) { Visit::Program(say, chance, 1); });
    EXPECT_TRUE(outcome.end == Apart::End::kStopped || replacement.keepsSome) << replacement.what;
  }
}

TEST_F(DamagedFiles, AMessageDoesNotWaitForAnIcon)
{
  const Apart::Outcome outcome =
      Try("/animp.ico", {"a pipe", false, PutPipe}, [](const Apart::Say& say, Damage&) { Visit::Pages(say, {}); });
  EXPECT_EQ(outcome.end, Apart::End::kStopped);
}

TEST_F(DamagedFiles, TextsAndPicturesAreLeftOutOrToldOf)
{
  ForEachReplacement({"/months.txt", "/reminders.txt", "/animp.ico", "/PeoplePics/1.bmp", "/AnnPics/1.bmp",
                      "/themes/flowersw.jpg", "/themes/mariw.jpg"},
                     [](const Apart::Say& say, Damage& chance) { Visit::Program(say, chance, Visit::PageCount()); });
}

TEST_F(DamagedFiles, ClipsAndHelpAreSilentOrToldOf)
{
  ForEachReplacement({"/notices/hapbirth.wav", "/Help.hlp"}, [](const Apart::Say& say, Damage&) {
    Visit::Pages(say, {"the check", "the help"});
  });
}
