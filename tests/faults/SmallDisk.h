// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QTemporaryDir>

// A small disk in memory, which only this process and those it starts can see. Where such
// a disk may not be had, a plain folder stands in for it, that cannot be filled.
class SmallDisk
{
public:
  SmallDisk();
  ~SmallDisk();
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  [[nodiscard]] QByteArray Path() const { return folder_.path().toUtf8(); }
  [[nodiscard]] bool CanBeFilled() const { return mounted_; }

  // Leaves no more room than that.
  void Fill(qint64 room) const;
  void Empty() const;

private:
  [[nodiscard]] QString Filler() const { return folder_.filePath(QStringLiteral("filler")); }

  QTemporaryDir folder_;
  bool mounted_ = false;
};
