// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/Frame.h"
#include "shell/FrameMenu.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace Ui {
class mdiQuillmark;
}
class Recordset;

// The main frame: the window with the menu, inside which one page is shown at a time.
// It lives from the program's start to its end.
class mdiQuillmark : public QMainWindow, public Frame
{
  Q_OBJECT

public:
  mdiQuillmark();
  ~mdiQuillmark() override;

  // Before the load: looks for reminders, if the year is one that the program runs in.
  void Initialise();

  // Runs the guards and restores what the settings say. Does nothing if it is loaded.
  void Load();

  // True once the frame is unloaded, by its user or by a guard.
  [[nodiscard]] bool HasEnded() const { return ended_; }

  [[nodiscard]] WindowState State() const override;
  void SetState(WindowState state) override;
  bool Unload() override;
  void PlacePage(Form& page) override;
  void OpenPage(const QString& name) override;
  void AllowDatabaseCare(bool allowed) override;
  void AllowCompaction(bool allowed) override;
  [[nodiscard]] bool TimerEnabled() const override;
  void SetTimerEnabled(bool enabled) override;

protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  struct Store;

  bool PassGuards();
  void WarnOfResolution() const;
  void RestoreState();
  void Centre();
  [[nodiscard]] QSize CountedDecoration() const;
  [[nodiscard]] QSize Allowed(const QSize& size) const;
  void FitToSmallScreen();
  bool QueryUnload();
  void MustBeLoaded();
  void EnableCompaction();
  void WriteState(Recordset& options) const;

  std::unique_ptr<Ui::mdiQuillmark> ui_;
  std::unique_ptr<Store> store_;
  FrameMenu menu_;
  QTimer tmrTimer_;
  bool careAllowed_ = true;
  bool compactionAllowed_ = true;
  bool guarded_ = false;  // the guards have spoken, also if the load failed behind them
  bool loaded_ = false;
  bool fitted_ = false;  // to a screen that is too small for it with its decoration
  bool ended_ = false;
};
