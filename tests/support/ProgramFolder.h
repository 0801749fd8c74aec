// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTemporaryDir>
#include <QVariant>

#include <vector>

// A program's folder of its own for one test, with the delivered database and text
// files, and the database file seen from outside, through a connection of its own.
class ProgramFolder
{
public:
  ProgramFolder();
  ~ProgramFolder();

  [[nodiscard]] QString Path() const { return folder_.path(); }
  [[nodiscard]] QString File(const QString& relative) const { return folder_.path() + relative; }
  [[nodiscard]] QString DatabasePath() const { return File(QStringLiteral("/quillmark2002.mdb")); }

  // Runs SQL on the database file. Parameters are bound in turn; a null QVariant is NULL.
  void Execute(const QString& sql, const QVariantList& parameters = {}) const;

  // All rows of a query.
  [[nodiscard]] std::vector<QVariantList> Rows(const QString& sql) const;
  // The first column of the first row; invalid without a row or for NULL.
  [[nodiscard]] QVariant Value(const QString& sql) const;

private:
  QTemporaryDir folder_;
};
