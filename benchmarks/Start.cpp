// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// From the start of the process to the first paint of the main page, against an empty window
// with a menu bar.

#include "Household.h"
#include "Measure.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <map>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace {

constexpr int kStarts = 21;

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

struct Costs
{
  Cost empty;
  Cost program;
};

// By turns, so that what else the machine does meets both.
Costs Measure(int people)
{
  const QTemporaryDir work;
  const QString folder = work.filePath(QStringLiteral("Quillmark"));
  QProcess::execute(QStringLiteral("cp"), {QStringLiteral("-r"), QStringLiteral(QUILLMARK_LAID_FOLDER), folder});
  MakeHousehold(folder + QStringLiteral("/quillmark2002.mdb"), people);
  Costs costs;
  const auto run = [](const char* program, const QByteArray& argument, std::vector<double>& memory) {
    const Cost cost = RunOnce(program, argument);
    memory.push_back(cost.kilobytes);
    return cost.seconds;
  };
  std::vector<double> memory[2];
  const Figures time = ByTurns([&] { return run(BENCHMARK_FOLDER "/start_quillmark", folder.toUtf8(), memory[1]); },
                               [&] { return run(BENCHMARK_FOLDER "/start_empty", {}, memory[0]); }, kStarts);
  return {{*time.limit, Median(memory[0])}, {time.measured, Median(memory[1])}};
}

const Costs& CostsOf(int people)
{
  static std::map<int, Costs> known;
  const auto found = known.find(people);
  return found != known.end() ? found->second : known.emplace(people, Measure(people)).first->second;
}

}

Lines StartLines()
{
  const std::string empty = "an empty Qt window with a menu bar";
  return {
      {"start to first paint of the main page, 200 people: time",
       empty,
       2.0,
       [](int people) {
         return Figures{CostsOf(people).program.seconds, CostsOf(people).empty.seconds};
       },
       {200}},
      {"the same: memory",
       empty,
       1.6,
       [](int people) {
         return Figures{CostsOf(people).program.kilobytes, CostsOf(people).empty.kilobytes};
       },
       {200},
       1,
       1.0 / 1024,
       "MB"},
  };
}
