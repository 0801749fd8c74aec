// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QString>

// A file of groups of keys and values, as desktops keep what they know of programs.
class KeyFile
{
public:
  // Reads the file; one that cannot be read is empty.
  explicit KeyFile(const QString& path);

  // The value as it stands in the file; empty if there is none.
  [[nodiscard]] QString Value(const QString& group, const QString& key) const;

  // The parts of a value that is a list.
  [[nodiscard]] QStringList Values(const QString& group, const QString& key) const;

  [[nodiscard]] bool IsTrue(const QString& group, const QString& key) const;

private:
  QHash<QString, QHash<QString, QString>> groups_;
};
