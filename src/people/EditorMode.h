// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class Form;
class QWidget;

// Whether the record editor browses, adds or edits, and what it shows then. The mode is
// the visible one of the panels fraAdd and fraEdit; with neither it browses.
class EditorMode
{
public:
  explicit EditorMode(const Form& form) : form_(form) {}

  [[nodiscard]] bool IsAdding() const;
  [[nodiscard]] bool IsEditing() const;

  void BeginAdding() const;
  void BeginEditing() const;
  void ReturnToBrowse() const;

  // True while adding or editing, after telling the user so.
  [[nodiscard]] bool RefuseWhileBusy(const QString& message) const;

private:
  [[nodiscard]] bool Shows(const char* panel) const;
  [[nodiscard]] QWidget& Control(const char* name) const;
  void EnableBrowsing(bool enabled) const;
  void Open(const char* panel) const;

  const Form& form_;
};
