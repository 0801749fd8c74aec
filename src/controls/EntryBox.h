// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// A box for an entry, as the pages see all kinds of them.
class EntryBox
{
public:
  virtual ~EntryBox() = default;

  [[nodiscard]] virtual QString Text() const = 0;
  virtual void SetText(const QString& text) = 0;

  // A locked box shows its text on pale yellow and lets nobody change it. It still
  // takes the focus, and its text can be copied.
  [[nodiscard]] virtual bool Locked() const = 0;
  virtual void SetLocked(bool locked) = 0;
};
