// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The reminder check over 100,000 people of whom nobody is due, against the same
// columns read by bare SQLite calls in no order. At most 2.0.

#include "Household.h"
#include "Measure.h"

#include "platform/App.h"
#include "platform/Application.h"
#include "platform/Command.h"
#include "reminders/modTextNotices.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

void ReadBare(const QString& path)
{
  sqlite3* handle = nullptr;
  sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  for (const char* sql : {"SELECT BirthMonth, BirthDate FROM People", "SELECT AnnMonth, AnnDate FROM People",
                          "SELECT \"Date\", \"Month\" FROM Reminders"}) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle, sql, -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW) {
      benchmark::DoNotOptimize(sqlite3_column_text(statement, 0));
      benchmark::DoNotOptimize(sqlite3_column_text(statement, 1));
    }
    sqlite3_finalize(statement);
  }
  sqlite3_close(handle);
}

void ReminderCheck(benchmark::State& state)
{
  const QTemporaryDir folder;
  App::SetPath(folder.path());
  const QString path = folder.filePath(QStringLiteral("quillmark2002.mdb"));
  MakeHousehold(path, static_cast<int>(state.range(0)));
  std::vector<double> checks;
  std::vector<double> bare;
  for (auto _ : state) {
    bare.push_back(SecondsFor([&] { ReadBare(path); }));
    checks.push_back(SecondsFor([] { Command::Run([] { modTextNotices::CheckReminders(false); }); }));
    state.SetIterationTime(checks.back());
  }
  state.counters["bare_ms"] = Median(bare) * 1000;
  state.counters["check_ms"] = Median(checks) * 1000;
  state.counters["ratio"] = Median(checks) / Median(bare);
  state.counters["must"] = 2.0;
}

}

BENCHMARK(ReminderCheck)->Arg(200)->Arg(10000)->Arg(100000)->UseManualTime()->Iterations(21);

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const Application application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
