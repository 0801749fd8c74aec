// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/TextOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

int Sign(int number)
{
  return (number > 0) - (number < 0);
}

int OrderOfKeys(const std::string& text, const std::string& other)
{
  return Sign(TextOrder::Key(text).compare(TextOrder::Key(other)));
}

// A text that mixes cases, scripts and characters of every length in UTF-8.
QString RandomText(std::mt19937& random)
{
  static const char32_t letters[] = U"aAbBzZ09 _'\"éÉèößẞçÇıİſKΩωσςжЖ茶ｚＺﬁ\uFFFD\U00010400\U00010428🎂😀";
  QString text;
  for (unsigned length = random() % 8; length > 0; --length) {
    const char32_t letter = letters[random() % (std::size(letters) - 1)];
    text += QString::fromUcs4(&letter, 1);
  }
  return text;
}

std::string RandomBytes(std::mt19937& random)
{
  std::string bytes;
  for (unsigned length = random() % 8; length > 0; --length) {
    bytes += static_cast<char>(random() % 4 > 0 ? 0x80 + random() % 0x80 : random() % 0x80);
  }
  return bytes;
}

}

TEST(TextOrder, ComparesWithoutRegardToCaseAndByCodePointsOtherwise)
{
  const struct
  {
    const char* text;
    const char* other;
    int order;
  } kCases[] = {
      {"", "", 0},           {"", "a", -1},       {"", " ", -1},       {"a", "A", 0},
      {"a", "B", -1},        {"A", "b", -1},      {"b", "A", 1},       {"Z", "a", 1},
      {"abc", "ABCD", -1},   {"ABC", "abcd", -1}, {"1", "10", -1},     {"10", "2", -1},
      {"9", "a", -1},        {"9", "A", -1},      {"a b", "ab", -1},   {"O'Neil", "o'neil", 0},
      {"émile", "ÉMILE", 0}, {"e", "é", -1},      {"É", "e", 1},       {"é", "Z", 1},
      {"z", "É", -1},        {"è", "É", -1},      {"ÄÖÜ", "äöü", 0},   {"ñ", "n", 1},
      {"Ω", "ω", 0},         {"ΣΑΣ", "σασ", 0},   {"ЖАБА", "жаба", 0}, {"жа", "ЖБ", -1},
      {"Ａ", "ａ", 0},       {"ß", "ß", 0},       {"ß", "ẞ", 0},       {"ß", "s", 1},
      {"s", "ß", -1},        {"İ", "ı", -1},      {"ı", "i", 1},       {"茶", "茶", 0},
      {"é", "茶", -1},       {"茶", "🎂", -1},     {"｝", "🎂", -1},     {"🎂", "｝", 1},
      {"\uFFFD", "🎂", -1},   {"🎂", "😀", -1},      {"a🎂", "A🎂", 0},     {"\U00010400", "\U00010428", 0},
      {"e\u0301", "é", -1},
  };
  for (const auto& [text, other, order] : kCases) {
    EXPECT_EQ(Sign(TextOrder::Compare(text, other)), order) << text << " : " << other;
    EXPECT_EQ(Sign(TextOrder::Compare(other, text)), -order) << other << " : " << text;
    EXPECT_EQ(OrderOfKeys(text, other), order) << text << " : " << other;
    EXPECT_EQ(TextOrder::Less(QString::fromUtf8(text), QString::fromUtf8(other)), order < 0) << text << " : " << other;
  }
}

TEST(TextOrder, KeysOfEitherKindOfTextAreTheSame)
{
  std::mt19937 random(1);
  for (int i = 0; i < 2000; ++i) {
    const QString text = RandomText(random);
    EXPECT_EQ(TextOrder::Key(text), TextOrder::Key(text.toStdString())) << text.toStdString();
  }
}

TEST(TextOrder, NoTextIsTheEmptyText)
{
  EXPECT_EQ(TextOrder::Key(QString()), TextOrder::Key(QString("")));
  EXPECT_EQ(TextOrder::Compare(std::string_view(), ""), 0);
}

TEST(TextOrder, ZerosWithinATextCount)
{
  const std::string text("a\0b", 3);
  const std::string other("a\0c", 3);
  EXPECT_LT(TextOrder::Compare(text, other), 0);
  EXPECT_EQ(TextOrder::Compare(text, std::string("A\0B", 3)), 0);
  EXPECT_GT(TextOrder::Compare(text, "a"), 0);
  EXPECT_LT(TextOrder::Compare(text, "ab"), 0);
}

TEST(TextOrder, AMarkAtTheStartOfATextCounts)
{
  const QString text = QChar(0xFEFF) + QString("a");
  EXPECT_GT(TextOrder::Compare(text.toStdString(), "a"), 0);
  EXPECT_EQ(TextOrder::Key(text), TextOrder::Key(text.toStdString()));
}

TEST(TextOrder, IsTheSameFromEitherSide)
{
  std::mt19937 random(2);
  for (int i = 0; i < 5000; ++i) {
    const QString text = RandomText(random);
    const QString other = RandomText(random);
    const std::string utf8 = text.toStdString();
    const std::string otherUtf8 = other.toStdString();
    const int order = Sign(TextOrder::Compare(utf8, otherUtf8));
    EXPECT_EQ(Sign(TextOrder::Compare(otherUtf8, utf8)), -order) << utf8 << " : " << otherUtf8;
    EXPECT_EQ(OrderOfKeys(utf8, otherUtf8), order) << utf8 << " : " << otherUtf8;
    EXPECT_EQ(TextOrder::Less(text, other), order < 0) << utf8 << " : " << otherUtf8;
    EXPECT_EQ(TextOrder::Less(other, text), order > 0) << utf8 << " : " << otherUtf8;
  }
}

TEST(TextOrder, TextsThatDifferInSimpleCaseAloneAreEqual)
{
  for (char32_t letter = 1; letter < 0x11000; ++letter) {
    const char32_t small = QChar::toLower(letter);
    if (small != letter && QChar::toUpper(small) == letter) {
      const QString text = QString::fromUcs4(&letter, 1);
      const QString other = QString::fromUcs4(&small, 1);
      EXPECT_EQ(TextOrder::Key(text), TextOrder::Key(other)) << text.toStdString();
    }
  }
}

TEST(TextOrder, IsAnOrder)
{
  std::mt19937 random(3);
  std::vector<QString> texts;
  for (int i = 0; i < 300; ++i) {
    texts.push_back(RandomText(random));
  }
  std::sort(texts.begin(), texts.end(), TextOrder::Less);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (std::size_t j = i; j < texts.size(); ++j) {
      EXPECT_FALSE(TextOrder::Less(texts[j], texts[i])) << texts[j].toStdString() << " : " << texts[i].toStdString();
    }
  }
}

TEST(TextOrder, BytesThatAreNoTextAreOrderedToo)
{
  std::mt19937 random(4);
  for (int i = 0; i < 5000; ++i) {
    const std::string bytes = RandomBytes(random);
    const std::string other = RandomBytes(random);
    EXPECT_EQ(Sign(TextOrder::Compare(bytes, other)), -Sign(TextOrder::Compare(other, bytes)));
    EXPECT_EQ(Sign(TextOrder::Compare(bytes, other)), OrderOfKeys(bytes, other));
    EXPECT_EQ(TextOrder::Compare(bytes, bytes), 0);
  }
}

TEST(TextOrder, HalvesOfACharacterAreTakenWithoutACrash)
{
  for (const QString& text : {QString(QChar(0xD83C)), QString(QChar(0xDF82)), QString("a") + QChar(0xD83C)}) {
    EXPECT_FALSE(TextOrder::Less(text, text));
    EXPECT_TRUE(TextOrder::Less(QString(), text));
  }
}
