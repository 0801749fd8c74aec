// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMap>
#include <QStringList>

// Reads a desktop entry as desktops do. Throws a std::runtime_error for what is none.
class EntryReader
{
public:
  explicit EntryReader(const QByteArray& entry);

  [[nodiscard]] static EntryReader OfFile(const QString& path);

  [[nodiscard]] QStringList Keys() const { return values_.keys(); }

  // Empty if the key is not there.
  [[nodiscard]] QString Value(const QString& key) const { return values_.value(key); }

  // The command line of `Exec`, argument by argument.
  [[nodiscard]] QStringList Command() const;

private:
  QMap<QString, QString> values_;
};
