// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

namespace Dialect {

enum class TokenKind
{
  kWord,
  kText,    // between single or double quotes; a doubled quote stands for one
  kSymbol,  // one of . , & ( ) =
  kEnd,
};

struct Token
{
  TokenKind kind = TokenKind::kEnd;
  QString text;
};

// The last token is of kind kEnd. Throws 3075 for anything that is no token.
[[nodiscard]] std::vector<Token> Tokenize(const QString& source);

}
