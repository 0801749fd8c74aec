// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/DialectTokens.h"

#include "store/StoreError.h"

namespace Dialect {
namespace {

bool IsWordCharacter(QChar c)
{
  return c.isLetterOrNumber() || c == QLatin1Char('_');
}

Token ReadWord(const QString& source, qsizetype& at)
{
  const qsizetype start = at;
  while (at < source.size() && IsWordCharacter(source[at])) {
    ++at;
  }
  return {TokenKind::kWord, source.mid(start, at - start)};
}

Token ReadText(const QString& source, qsizetype& at)
{
  const QChar quote = source[at++];
  Token token{TokenKind::kText, {}};
  while (at < source.size()) {
    if (source[at] == quote) {
      if (at + 1 >= source.size() || source[at + 1] != quote) {
        ++at;
        return token;
      }
      ++at;
    }
    token.text.append(source[at++]);
  }
  StoreError::Raise(StoreError::kSyntax, source);
}

}

std::vector<Token> Tokenize(const QString& source)
{
  std::vector<Token> tokens;
  qsizetype at = 0;
  while (at < source.size()) {
    const QChar c = source[at];
    if (c.isSpace()) {
      ++at;
    } else if (IsWordCharacter(c)) {
      tokens.push_back(ReadWord(source, at));
    } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
      tokens.push_back(ReadText(source, at));
    } else if (QStringView(u".,&()=").contains(c)) {
      tokens.push_back({TokenKind::kSymbol, QString(c)});
      ++at;
    } else {
      StoreError::Raise(StoreError::kSyntax, source.mid(at));
    }
  }
  tokens.push_back({});
  return tokens;
}

}
