// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HelpSearch.h"

#include <gtest/gtest.h>

namespace {

const std::vector<HelpSearch::Page> kPages = {
    {QUrl("qthelp://book/cake.html"), "Cakes", "How to bake a cake for a birthday, with candles."},
    {QUrl("qthelp://book/cards.html"), "Birthday cards", "Write them early; the post is slow. Birthdays come fast."},
    {QUrl("qthelp://book/29.html"), "Leap days", "Someone born on 29 February. The string is not a ring. C++ (again)."},
    {QUrl("qthelp://book/cafe.html"), "Café", "Straße und Élodie."},
};

// The titles of what is found, with a bar between them.
std::string Find(const QString& words)
{
  QStringList titles;
  for (const HelpSearch::Hit& hit : HelpSearch::Find(kPages, words)) {
    titles.append(hit.title);
  }
  return titles.join('|').toStdString();
}

std::string Excerpt(const QString& text, const QString& words)
{
  const auto hits = HelpSearch::Find({{QUrl(), "Title", text}}, words);
  return hits.empty() ? std::string("none") : hits.front().excerpt.toStdString();
}

}

TEST(HelpSearch, FindsPagesThatHaveAllTheWords)
{
  const std::pair<const char*, const char*> cases[] = {
      {"cake", "Cakes"},
      {"birthday", "Birthday cards|Cakes"},
      {"BIRTHDAY", "Birthday cards|Cakes"},
      {"birthday cake", "Cakes"},
      {"  cake \t birthday ", "Cakes"},
      {"birthday wedding", ""},
      {"29 february", "Leap days"},
      {"candles.", "Cakes"},
      {"", ""},
      {"   ", ""},
      {"nowhere", ""},
  };
  for (const auto& [words, titles] : cases) {
    EXPECT_EQ(Find(words), titles) << words;
  }
}

TEST(HelpSearch, AWordIsFoundByItsBeginningOnly)
{
  EXPECT_EQ(Find("birth"), "Birthday cards|Cakes");
  EXPECT_EQ(Find("day"), "Leap days");
  EXPECT_EQ(Find("ring"), "Leap days");
  EXPECT_EQ(Find("tring"), "");
}

TEST(HelpSearch, SignsOfPatternsAreTakenAsTheyStand)
{
  EXPECT_EQ(Find("c++"), "Leap days");
  EXPECT_EQ(Find("(again"), "Leap days");
  EXPECT_EQ(Find(".*"), "");
  EXPECT_EQ(Find("[a-z]"), "");
  EXPECT_EQ(Find("a|b"), "");
  EXPECT_EQ(Find("\\"), "");
}

TEST(HelpSearch, LettersOfAllLanguagesAreFoundInAnyCase)
{
  EXPECT_EQ(Find(QStringLiteral("élodie")), "Café");
  EXPECT_EQ(Find(QStringLiteral("CAFÉ")), "Café");
  EXPECT_EQ(Find(QStringLiteral("raße")), "");
}

TEST(HelpSearch, ATitleCountsMoreThanAnyText)
{
  const std::vector<HelpSearch::Page> pages = {{QUrl(), "Other", QStringLiteral("tea ").repeated(99)},
                                               {QUrl(), "Twice", "tea tea"},
                                               {QUrl(), "Tea", "nothing else"},
                                               {QUrl(), "Twice again", "tea tea"}};
  QStringList titles;
  for (const HelpSearch::Hit& hit : HelpSearch::Find(pages, "tea")) {
    titles.append(hit.title);
  }
  EXPECT_EQ(titles, QStringList({"Tea", "Other", "Twice", "Twice again"}));
}

TEST(HelpSearch, TheExcerptStandsAroundTheFirstWord)
{
  EXPECT_EQ(Excerpt("A card is written early.", "card"), "A card is written early.");
  EXPECT_EQ(Excerpt("Nothing of it.", "title"), "Nothing of it.");
  const QString lead = QStringLiteral("One two three four five six seven eight nine ten. ");
  EXPECT_EQ(Excerpt(lead + "A card.", "card"), "... six seven eight nine ten. A card.");
  EXPECT_EQ(Excerpt(QString(60, 'x') + " card", "card"), "... card");
  EXPECT_EQ(Excerpt(QStringLiteral("card ").repeated(100), "card").size(), 90U);
}

TEST(HelpSearch, ThePatternFindsAnyOfTheWords)
{
  EXPECT_EQ(QStringLiteral("a cake, two Cakes and a birthday").count(HelpSearch::PatternOf("cake birthday")), 3);
  EXPECT_TRUE(HelpSearch::PatternOf("  ").pattern().isEmpty());
}
