// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Chance.h"
#include "Errands.h"
#include "Household.h"
#include "Resources.h"

#include <QFile>
#include <QMap>
#include <QObject>

#include <memory>
#include <vector>

class mdiQuillmark;

// One long day of a user with the program: so many actions by chance in the real frame with all
// its pages. What goes wrong ends the process with status 1, and says where.
class Day : public QObject
{
  Q_OBJECT

public:
  // Every action is written to the log before it is done.
  Day(unsigned seed, int actions, const QString& log);
  ~Day() override;

  // Begins the day, and the program anew whenever the user has ended it, up to the last action.
  void Run();

  bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
  void Step();

private:
  void StartProgram();
  void Act();
  void ActInFrame();
  [[nodiscard]] bool ActInTheWorld();
  void MoveClock();
  void ResizeFrame();
  void FollowErrand();
  void AnswerOrWander(QWidget& window);
  [[nodiscard]] QWidget* WindowAtHand() const;

  [[nodiscard]] bool ShouldRest() const;
  void ComeToRest();
  void Measure();
  void TestGrowth();

  void FollowEditors();
  void Look();
  void Say(const QString& what);
  [[noreturn]] void Fail(const QString& why);
  void Summarise() const;

  Chance chance_;
  unsigned seed_;
  int actions_;
  int done_ = 0;
  QFile log_;
  Household household_;
  Household::Circumstances circumstances_;
  bool editorIsOpen_ = false;  // as of the last look
  std::unique_ptr<mdiQuillmark> frame_;
  Errands::Errand errand_;
  std::vector<int> levels_;  // of event loops, at the actions that run
  std::vector<std::pair<int, Resources>> rests_;
  QMap<QString, int> boxes_;  // how often each has spoken
  int starts_ = 0;
  int waysOut_ = 0;  // taken on the way to the rest
  bool resting_ = false;
};
