// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <random>

// Damages the bytes of a file as bad disks, torn copies and other programs do.
class Damage
{
public:
  explicit Damage(unsigned seed) : random_(seed) {}

  // Of a database: its header, schema, pages, rows or list of free pages, or its end.
  [[nodiscard]] QByteArray Database(QByteArray whole);

  // Of any file.
  [[nodiscard]] QByteArray File(QByteArray whole);

  int Below(qsizetype limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

private:
  void Flip(QByteArray& bytes, qsizetype from, qsizetype to, int most);
  void Overwrite(QByteArray& bytes, qsizetype from, qsizetype length);
  void CopyPage(QByteArray& bytes);
  void CutOff(QByteArray& bytes);
  qsizetype SomePage(const QByteArray& bytes);

  std::mt19937 random_;
};
