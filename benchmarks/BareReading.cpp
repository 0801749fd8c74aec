// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BareReading.h"

#include <QStringList>

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <stdexcept>

namespace {

template <typename Take>
void ForEachRow(const QString& path, const char* query, Take&& take)
{
  sqlite3* handle = nullptr;
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK ||
      sqlite3_prepare_v2(handle, query, -1, &statement, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(handle));
  }
  while (sqlite3_step(statement) == SQLITE_ROW) {
    take(statement);
  }
  sqlite3_finalize(statement);
  sqlite3_close(handle);
}

void ReadColumns(sqlite3_stmt* statement, int from)
{
  for (int column = from; column < sqlite3_column_count(statement); ++column) {
    benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
  }
}

}

void ReadBare(const QString& path, const char* query)
{
  QStringList lines;
  ForEachRow(path, query, [&](sqlite3_stmt* statement) {
    lines.append(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0))));
    ReadColumns(statement, 1);
  });
  benchmark::DoNotOptimize(lines.size());
}

void ScanBare(const QString& path, const char* query)
{
  ForEachRow(path, query, [](sqlite3_stmt* statement) { ReadColumns(statement, 0); });
}
