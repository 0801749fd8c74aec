// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RuntimeError.h"

namespace {

QString UsualText(int number)
{
  switch (number) {
    case ErrorNumber::kOverflow:
      return QStringLiteral("Overflow");
    case ErrorNumber::kSubscriptOutOfRange:
      return QStringLiteral("Subscript out of range");
    case ErrorNumber::kTypeMismatch:
      return QStringLiteral("Type mismatch");
    case ErrorNumber::kFileNotFound:
      return QStringLiteral("File not found");
    case ErrorNumber::kFileAccess:
      return QStringLiteral("Path/File access error");
    case ErrorNumber::kInvalidUseOfNull:
      return QStringLiteral("Invalid use of Null");
    case ErrorNumber::kObjectUnloaded:
      return QStringLiteral("Object was unloaded");
    case ErrorNumber::kSetWithinPage:
      return QStringLiteral("Property cannot be set within a page");
    case ErrorNumber::kInvalidPicture:
      return QStringLiteral("Invalid picture");
    case ErrorNumber::kPrinter:
      return QStringLiteral("Printer error");
    default:
      return QStringLiteral("Unexpected error");
  }
}

// A text that names something may name what no screen holds.
QString Shortened(const QString& text)
{
  constexpr qsizetype kLongest = 1000;
  if (text.size() <= kLongest) {
    return text;
  }
  const bool halfACharacter = text[kLongest - 1].isHighSurrogate();
  return text.first(halfACharacter ? kLongest - 1 : kLongest) + QChar(0x2026);
}

}

RuntimeError::RuntimeError(int number, const QString& text)
    : number_(number), text_(Shortened(text)), what_(Message().toUtf8())
{}

QString RuntimeError::Message() const
{
  return QStringLiteral("Run-time error '%1':\n\n%2").arg(number_).arg(text_);
}

void RaiseError(int number)
{
  throw RuntimeError(number, UsualText(number));
}

void RaiseNoSuchElement(int index)
{
  throw RuntimeError(ErrorNumber::kNoSuchElement,
                     QStringLiteral("Control array element '%1' doesn't exist").arg(index));
}
