// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <exception>

// A statement that failed, with the number and the text that the user sees when
// nobody catches it ("Run-time error 'N':" and the text). Of a very long text only the
// beginning is kept.
class RuntimeError : public std::exception
{
public:
  RuntimeError(int number, const QString& text);

  [[nodiscard]] int Number() const { return number_; }
  [[nodiscard]] const QString& Text() const { return text_; }

  // "Run-time error 'N':", an empty line and the text.
  [[nodiscard]] QString Message() const;

  [[nodiscard]] const char* what() const noexcept override { return what_.constData(); }

private:
  int number_;
  QString text_;
  QByteArray what_;
};

// Numbers of failures that do not belong to the store.
namespace ErrorNumber {
inline constexpr int kOverflow = 6;
inline constexpr int kOutOfMemory = 7;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kFileNotFound = 53;
inline constexpr int kFileAccess = 75;
inline constexpr int kInvalidUseOfNull = 94;
inline constexpr int kNoSuchElement = 340;
inline constexpr int kObjectUnloaded = 364;
inline constexpr int kSetWithinPage = 396;
inline constexpr int kInvalidPicture = 481;
inline constexpr int kPrinter = 482;
inline constexpr int kCancelled = 32755;
}

// Throws the failure with its usual text.
[[noreturn]] void RaiseError(int number);

// Throws 340, for an index that a control array has not.
[[noreturn]] void RaiseNoSuchElement(int index);
