// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Opens the file, runs a query by bare SQLite calls and closes it. The first column is read
// into a list of strings, the others are read and dropped.
void ReadBare(const QString& path, const char* query);

// The same without a list.
void ScanBare(const QString& path, const char* query);
