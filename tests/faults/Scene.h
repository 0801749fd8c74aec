// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/FileDialogScript.h"
#include "support/ProgramFolder.h"

#include "shell/mdiQuillmark.h"

#include <functional>
#include <vector>

// The program as its user has it before them: the frame with the main page, and hands on
// it. On 5 May 2026.
class Scene
{
public:
  explicit Scene(const ProgramFolder& folder);

  [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }
  [[nodiscard]] mdiQuillmark& Frame() { return frame_; }
  [[nodiscard]] static QWidget& Page(const QString& name);

  void Choose(const QString& menuEntry);
  static void Click(QWidget& page, const QString& control);
  static void Type(QWidget& page, const QString& box, const QString& text);
  static void Press(QWidget& page, const QString& control, Qt::Key key);
  static void Tick(QWidget& page, const QString& button);
  static void Pick(QWidget& page, const QString& combo, const QString& line);
  static void ClickLine(QWidget& page, const QString& list, const QString& line);

  // Draws a picture and chooses it on the page.
  void ChoosePicture(QWidget& page, const QColor& colour);

  [[nodiscard]] FileDialogScript& Dialogs() { return dialogs_; }

  // What the user does to have something written, each under its name.
  struct Deed
  {
    QString name;
    std::function<void()> act;
  };
  // Leaves the program as it stands, for the deeds to be done.
  void Offer(const std::vector<Deed>& deeds) { offer_(deeds); }
  void OnOffer(std::function<void(const std::vector<Deed>&)> take) { offer_ = std::move(take); }

private:
  const ProgramFolder& folder_;
  mdiQuillmark frame_;
  FileDialogScript dialogs_;
  std::function<void(const std::vector<Deed>&)> offer_;
};
