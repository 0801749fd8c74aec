// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRegularExpression>
#include <QUrl>

#include <vector>

// Looking for words in the pages of the help.
namespace HelpSearch {

struct Page
{
  QUrl address;
  QString title;
  QString text;  // without the title and without line breaks
};

struct Hit
{
  QUrl address;
  QString title;
  QString excerpt;  // the text around the first of the words
};

// The pages that have all the words, each at the beginning of a word, in any case. Those
// with the words in their title come first, then those that have them most often. No
// words find nothing.
[[nodiscard]] std::vector<Hit> Find(const std::vector<Page>& pages, const QString& words);

// What finds any of the words in a text; an empty pattern for no words.
[[nodiscard]] QRegularExpression PatternOf(const QString& words);

}
