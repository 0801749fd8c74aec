// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HelpSearch.h"

#include <algorithm>

namespace HelpSearch {
namespace {

constexpr qsizetype kExcerptBefore = 30;
constexpr qsizetype kExcerptLength = 90;
constexpr qsizetype kWorthOfTitle = 1000;

QStringList WordsOf(const QString& words)
{
  return words.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QRegularExpression Beginning(const QString& alternatives)
{
  return QRegularExpression(QStringLiteral("(?<!\\w)(?:%1)").arg(alternatives),
                            QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
}

// 0 if one of the words is nowhere on the page.
qsizetype WorthOf(const Page& page, const QStringList& words)
{
  qsizetype worth = 0;
  for (const QString& word : words) {
    const QRegularExpression pattern = Beginning(QRegularExpression::escape(word));
    const qsizetype found = kWorthOfTitle * page.title.count(pattern) + page.text.count(pattern);
    if (found == 0) {
      return 0;
    }
    worth += found;
  }
  return worth;
}

QString Excerpt(const QString& text, const QRegularExpression& pattern)
{
  const qsizetype hit = std::max<qsizetype>(text.indexOf(pattern), 0);
  qsizetype begin = std::max<qsizetype>(hit - kExcerptBefore, 0);
  if (begin > 0) {
    begin = std::min(text.indexOf(QLatin1Char(' '), begin) + 1, hit);
  }
  const QString shown = text.mid(begin, kExcerptLength);
  return (begin > 0 ? QStringLiteral("... ") : QString()) + shown;
}

}

QRegularExpression PatternOf(const QString& words)
{
  QStringList alternatives = WordsOf(words);
  std::transform(alternatives.begin(), alternatives.end(), alternatives.begin(),
                 [](const QString& word) { return QRegularExpression::escape(word); });
  return alternatives.isEmpty() ? QRegularExpression() : Beginning(alternatives.join(QLatin1Char('|')));
}

std::vector<Hit> Find(const std::vector<Page>& pages, const QString& words)
{
  const QStringList wanted = WordsOf(words);
  const QRegularExpression pattern = PatternOf(words);
  std::vector<std::pair<qsizetype, Hit>> found;
  for (const Page& page : pages) {
    if (const qsizetype worth = WorthOf(page, wanted); worth > 0) {
      found.push_back({worth, {page.address, page.title, Excerpt(page.text, pattern)}});
    }
  }
  std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  std::vector<Hit> hits;
  std::transform(found.begin(), found.end(), std::back_inserter(hits), [](const auto& each) { return each.second; });
  return hits;
}

}
