// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <array>

namespace Ui {
class mdiQuillmark;
}
class QAction;

// The frame's menu: what its entries do, which of them can be used, and their check marks.
class FrameMenu : public QObject
{
  Q_OBJECT

public:
  // `ui` is the frame's design and outlives the menu.
  explicit FrameMenu(Ui::mdiQuillmark& ui);

  // Puts the check mark on the theme. Throws 340 for a theme that the menu has not.
  void MarkTheme(int theme);

  // Puts the check mark on whether tips are shown.
  void MarkTips();

private Q_SLOTS:
  void mnuLists_Click(int index);
  void mnuToolTips_Click(int index);
  void mnuTheme_Click(int index);
  void mnuAnn_Click();
  void mnuContents_Click();

private:
  void ConnectControls();
  void ConnectPage(QAction* action, const char* page);
  void ConnectDialog(QAction* action, const char* dialog);
  void NameSubmenus();

  Ui::mdiQuillmark& ui_;
  std::array<QAction*, 3> mnuLists_;
  std::array<QAction*, 2> mnuToolTips_;
  std::array<QAction*, 6> mnuTheme_;
};
