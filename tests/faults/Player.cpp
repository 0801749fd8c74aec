// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Player.h"

#include "platform/App.h"
#include "platform/Application.h"
#include "platform/Command.h"
#include "support/FullDisk.h"
#include "support/WithoutRights.h"
#include "support/YesMan.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <cstring>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr unsigned kPatienceSeconds = 60;

const QByteArray kReady = "ready";
const QByteArray kPage = "page";
const QByteArray kFailed = "failed";

// Messages begin with a word that says what they are.
const QByteArray kDeed = "deed ";
const QByteArray kBox = "box ";
const QByteArray kStep = "step ";
const QByteArray kStruck = "struck ";
const QByteArray kEnded = "ended ";

template <typename Plain>
QByteArray Packed(const Plain& plain)
{
  return {reinterpret_cast<const char*>(&plain), sizeof plain};
}

template <typename Plain>
Plain Unpacked(const QByteArray& bytes)
{
  Plain plain;
  std::memcpy(&plain, bytes.constData(), sizeof plain);
  return plain;
}

void Report(const Line& line)
{
  FileCalls::Stop();
  for (const FileCalls::Step& step : FileCalls::Steps()) {
    line.Say(kStep + QByteArray::number(static_cast<int>(step.kind)) + ' ' + step.call.c_str() + ' ' +
             step.path.c_str());
  }
  line.Say(kStruck + QByteArray::number(FileCalls::Struck()));
  if (testing::Test::HasFailure()) {
    line.Say(kFailed);
  }
}

// In a process of its own, which ends here or before.
[[noreturn]] void DoAndEnd(const Scene::Deed& deed, const Order& order, const Line& line)
{
  alarm(kPatienceSeconds);
  const YesMan yesMan([&](const QString& text) { line.Say(kBox + text.toUtf8()); });
  Application::SetEnding([&](int status) {
    Report(line);
    _exit(status);
  });
  std::optional<FullDisk> disk;
  if (order.longestFile >= 0) {
    disk.emplace(static_cast<rlim_t>(order.longestFile));
  }
  std::optional<WithoutRights> rights;
  if (order.withoutRights) {
    rights.emplace();
  }
  FileCalls::Watch(App::Path().toStdString(), order.fault, order.number);
  deed.act();
  Report(line);
  _exit(EXIT_SUCCESS);
}

void DoInCopy(const Scene::Deed& deed, const Order& order, const Line& line)
{
  const pid_t copy = fork();
  if (copy == 0) {
    DoAndEnd(deed, order, line);
  }
  line.Say(kEnded + Packed(AwaitEnding(copy)));
}

// Whatever brought the program here is over, so that each deed is a command of its own. The
// program's folder is let go of, so that the next start is no second copy.
// The toolkit's threads that help with painting are not there in a copy, so that it paints no
// window anew.
[[noreturn]] void Serve(const std::vector<Scene::Deed>& deeds, const Line& line)
{
  const Command::Pause pause;
  QCoreApplication::processEvents();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    window->setUpdatesEnabled(false);
  }
  App::SetPath(App::Path());
  for (const Scene::Deed& deed : deeds) {
    line.Say(kDeed + deed.name.toUtf8());
  }
  line.Say(testing::Test::HasFailure() ? kFailed : kReady);
  while (const auto message = line.Hear()) {
    const auto order = Unpacked<Order>(*message);
    DoInCopy(deeds.at(static_cast<std::size_t>(order.deed)), order, line);
  }
  _exit(EXIT_SUCCESS);
}

void Play(const ProgramFolder& folder, const Stage& stage, const Line& line)
{
  try {
    Scene scene(folder);
    scene.OnOffer([&](const auto& deeds) { Serve(deeds, line); });
    stage.play(scene);
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
  line.Say(kFailed);
  _exit(EXIT_FAILURE);
}

void Look(const ProgramFolder& folder, const Stage& stage, const Line& line)
{
  alarm(kPatienceSeconds);
  const YesMan yesMan([&](const QString& text) { line.Say(kBox + text.toUtf8()); });
  try {
    Scene scene(folder);
    scene.OnOffer([&](const auto&) {
      line.Say(kPage);
      _exit(EXIT_SUCCESS);
    });
    stage.look(scene);
  } catch (const std::exception& error) {
    line.Say(kBox + error.what());
  }
}

void Take(const QByteArray& message, Outcome& outcome)
{
  if (message.startsWith(kBox)) {
    outcome.boxes.append(QString::fromUtf8(message.mid(kBox.size())));
  } else if (message.startsWith(kStep)) {
    const QList<QByteArray> parts = message.split(' ');
    outcome.steps.push_back({static_cast<FileCalls::Kind>(parts.at(1).toInt()), parts.at(2).toStdString(),
                             parts.mid(3).join(' ').toStdString()});
  } else if (message.startsWith(kStruck)) {
    outcome.struck = message.mid(kStruck.size()).toInt();
  } else if (message == kFailed) {
    outcome.failed = true;
  }
}

}

Player::Player(const ProgramFolder& folder, const Stage& stage)
    : program_([&](const Line& line) { Play(folder, stage, line); })
{
  while (const auto message = program_.Other().Hear()) {
    if (message->startsWith(kDeed)) {
      deeds_.append(QString::fromUtf8(message->mid(kDeed.size())));
    } else if (message == kReady) {
      return;
    } else {
      break;
    }
  }
  deeds_.clear();
}

Outcome Player::Do(const Order& order) const
{
  Outcome outcome;
  program_.Other().Say(Packed(order));
  while (const auto message = program_.Other().Hear()) {
    if (message->startsWith(kEnded)) {
      outcome.ending = Unpacked<Ending>(message->mid(kEnded.size()));
      return outcome;
    }
    Take(*message, outcome);
  }
  outcome.failed = true;  // the program is gone
  return outcome;
}

Start StartAgain(const ProgramFolder& folder, const Stage& stage)
{
  const ForkedProcess program([&](const Line& line) { Look(folder, stage, line); });
  Start start;
  while (const auto message = program.Other().Hear()) {
    if (message->startsWith(kBox)) {
      start.boxes.append(QString::fromUtf8(message->mid(kBox.size())));
    } else if (message == kPage) {
      start.hasPage = true;
    }
  }
  return start;
}
