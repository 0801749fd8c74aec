// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Utf8.h"

QString FromUtf8(std::string_view utf8)
{
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  return utf8.starts_with(kMark) ? QChar(QChar::ByteOrderMark) + text : text;
}
