// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// From the start of the process to the first paint of the main page, with 200 people,
// against an empty window with a menu bar: time at most 2.0, memory at most 1.6.

#include "Household.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <chrono>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace {

struct Cost
{
  double seconds = 0;
  double kilobytes = 0;
};

Cost RunOnce(const QByteArray& program, const QByteArray& argument)
{
  QByteArray name = program;
  QByteArray first = argument;
  char* arguments[] = {name.data(), first.data(), nullptr};
  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  posix_spawn(&child, program.constData(), nullptr, nullptr, arguments, environ);
  rusage usage{};
  wait4(child, nullptr, 0, &usage);
  return {std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(),
          static_cast<double>(usage.ru_maxrss)};
}

void Start(benchmark::State& state)
{
  const QTemporaryDir work;
  const QString folder = work.filePath(QStringLiteral("Quillmark"));
  QProcess::execute(QStringLiteral("cp"), {QStringLiteral("-r"), QStringLiteral(QUILLMARK_LAID_FOLDER), folder});
  MakeHousehold(folder + QStringLiteral("/quillmark2002.mdb"), 200);
  std::vector<double> times[2];
  std::vector<double> memory[2];
  for (auto _ : state) {
    const Cost empty = RunOnce(BENCHMARK_FOLDER "/start_empty", {});
    const Cost program = RunOnce(BENCHMARK_FOLDER "/start_quillmark", folder.toUtf8());
    times[0].push_back(empty.seconds);
    times[1].push_back(program.seconds);
    memory[0].push_back(empty.kilobytes);
    memory[1].push_back(program.kilobytes);
    state.SetIterationTime(program.seconds);
  }
  state.counters["empty_ms"] = Median(times[0]) * 1000;
  state.counters["start_ms"] = Median(times[1]) * 1000;
  state.counters["time_ratio"] = Median(times[1]) / Median(times[0]);
  state.counters["time_must"] = 2.0;
  state.counters["empty_MB"] = Median(memory[0]) / 1024;
  state.counters["start_MB"] = Median(memory[1]) / 1024;
  state.counters["memory_ratio"] = Median(memory[1]) / Median(memory[0]);
  state.counters["memory_must"] = 1.6;
}

}

BENCHMARK(Start)->UseManualTime()->Iterations(21);

int main(int argc, char** argv)
{
  if (qEnvironmentVariableIsEmpty("DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
