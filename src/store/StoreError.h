// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RuntimeError.h"

struct sqlite3;

// Failures of the store, thrown as RuntimeErrors.
namespace StoreError {

inline constexpr int kNoIndex = 3019;
inline constexpr int kNoEdit = 3020;
inline constexpr int kNoCurrentRecord = 3021;
inline constexpr int kDuplicate = 3022;
inline constexpr int kFileNotFound = 3024;
inline constexpr int kDiskFull = 3026;
inline constexpr int kReadOnly = 3027;
inline constexpr int kDiskError = 3043;
inline constexpr int kUnknownColumn = 3061;
inline constexpr int kSyntax = 3075;
inline constexpr int kUnknownTable = 3078;
inline constexpr int kBadBookmark = 3159;
inline constexpr int kRecordDeleted = 3167;
inline constexpr int kAlreadyExists = 3204;
inline constexpr int kLocked = 3260;
inline constexpr int kUnknownItem = 3265;
inline constexpr int kNullNotAllowed = 3314;
inline constexpr int kNotADatabase = 3343;
inline constexpr int kInUse = 3356;
inline constexpr int kClosed = 3420;
inline constexpr int kUnknownIndex = 3800;

// Throws `number` with its text; `subject` is named in it where the text names something.
[[noreturn]] void Raise(int number, const QString& subject = {});

// Throws what a code of SQLite means, or the last failed call on the connection.
[[noreturn]] void RaiseFor(int code);
[[noreturn]] void RaiseFor(sqlite3* connection);

}
