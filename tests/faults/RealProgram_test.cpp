// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "FaultsTest.h"

#include "desktop/VirtualDesktop.h"

#include <QFile>

#include <algorithm>

namespace {

// The program that a household has, on a display of its own, over what a killed one left.
class RealProgram : public FaultsTest
{
protected:
  static std::vector<Trouble> OnlyKills(std::vector<Trouble> all)
  {
    all.erase(std::remove_if(all.begin(), all.end(), [](const Trouble& trouble) { return !trouble.Kills(); }),
              all.end());
    return all;
  }

  // Into the file that stands there, if there is one: the forked program has it open.
  static void Copy(const QString& from, const QString& to)
  {
    QFile source(from);
    QFile target(to);
    ASSERT_TRUE(source.open(QIODevice::ReadOnly)) << from.toStdString();
    ASSERT_TRUE(target.open(QIODevice::WriteOnly)) << to.toStdString();
    target.write(source.readAll());
  }
  // Everything, with the journal that the killed one left.
  void CopyToDesktop() const
  {
    QFile::remove(desktop->File("/quillmark2002.mdb-journal"));
    for (const QString& name : household.Take().keys()) {
      Copy(Folder().File("/" + name), desktop->File("/" + name));
    }
  }
  void CopyBack() const
  {
    QFile::remove(Folder().File("/quillmark2002.mdb-journal"));
    Copy(desktop->File("/quillmark2002.mdb"), Folder().DatabasePath());
    if (const QString journal = desktop->File("/quillmark2002.mdb-journal"); QFile::exists(journal)) {
      Copy(journal, Folder().File("/quillmark2002.mdb-journal"));
    }
  }

  // The main window comes, and no message.
  void ExpectThatItStarts() const
  {
    const auto program = desktop->StartProgram();
    const auto window = desktop->AwaitWindow(*program, "Quillmark");
    ASSERT_TRUE(window);
    EXPECT_FALSE(desktop->Property(*window, "_NET_WM_WINDOW_TYPE").contains("TYPE_DIALOG"));
    program->kill();
    program->waitForFinished();
  }

  std::optional<VirtualDesktop> desktop;
};

}

TEST_P(RealProgram, StartsAfterItWasKilled)
{
  constexpr std::size_t kUsual = 2;
  const Player player(Folder(), GetParam());
  ASSERT_FALSE(player.Deeds().empty());
  Begin();
  temporaryFiles.Set({});  // the real program does not fit on the small disk
  desktop.emplace();
  for (const Trouble& trouble : Chosen(OnlyKills(DoUndisturbed(player, 0)), kUsual)) {
    SCOPED_TRACE(trouble.text.toStdString());
    EXPECT_TRUE(Disturb(player, trouble).ending.killed);
    CopyToDesktop();
    ExpectThatItStarts();
    CopyBack();
    household.WriteAnything();
    static_cast<void>(ExpectWhole(household.Read(), trouble));
  }
}

INSTANTIATE_TEST_SUITE_P(Deeds, RealProgram,
                         testing::Values(Stages::OfRecords().at(4), Stages::OfCouples().at(1),
                                         Stages::OfEvents().front()),
                         NameOfStage);
