// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/LetterTexts.h"

#include <gtest/gtest.h>

using LetterTexts::Recipient;

namespace {

const QDate kToday(2026, 3, 5);

// A part that is there, or one of the three ways in which it can be missing.
QVariant Part(const char* value, int way)
{
  switch (way) {
    case 0:
      return QString::fromLatin1(value);
    case 1:
      return {};
    case 2:
      return QString();
    default:
      return QStringLiteral("");
  }
}

struct Block
{
  bool hasFirst;
  bool hasSecond;
  const char* text;
};

// `missing` is the way in which the parts that are not there are missing.
Recipient Person(const Block& street, const Block& city, const Block& country, int missing)
{
  const auto way = [missing](bool isThere) { return isThere ? 0 : missing; };
  return {"Ann",
          "Lee",
          {Part("1 Elm Street", way(street.hasFirst)), Part("Flat 2", way(street.hasSecond)),
           Part("York", way(city.hasFirst)), Part("ON", way(city.hasSecond)), Part("A1 2B", way(country.hasSecond)),
           Part("Canada", way(country.hasFirst))}};
}

constexpr Block kStreets[] = {
    {true, true, "1 Elm Street\nFlat 2"}, {true, false, "1 Elm Street"}, {false, true, ""}, {false, false, ""}};
constexpr Block kCities[] = {{true, true, "York, ON"}, {true, false, "York"}, {false, true, "ON"}, {false, false, ""}};
constexpr Block kCountries[] = {
    {true, true, "Canada, A1 2B"}, {true, false, "Canada"}, {false, true, "A1 2B"}, {false, false, ""}};

// Calls `check` with every person that has some parts and not others.
template <typename Check>
void ForEveryCombination(Check&& check)
{
  for (const Block& street : kStreets) {
    for (const Block& city : kCities) {
      for (const Block& country : kCountries) {
        for (int missing = 1; missing <= 3; ++missing) {
          SCOPED_TRACE(testing::Message() << street.hasFirst << street.hasSecond << city.hasFirst << city.hasSecond
                                          << country.hasFirst << country.hasSecond << " missing as " << missing);
          check(Person(street, city, country, missing), street, city, country);
        }
      }
    }
  }
}

const Block kAll = {true, true, ""};
const Block kNone = {false, false, ""};

}

TEST(LetterTexts, AnAddressIsThreeBlocksWhateverIsMissing)
{
  ForEveryCombination([](const Recipient& person, const Block& street, const Block& city, const Block& country) {
    EXPECT_EQ(LetterTexts::StreetBlock(person.address).toStdString(), street.text);
    EXPECT_EQ(LetterTexts::CityBlock(person.address).toStdString(), city.text);
    EXPECT_EQ(LetterTexts::CountryBlock(person.address).toStdString(), country.text);
    EXPECT_EQ(LetterTexts::FullAddress(person.address).toStdString(),
              std::string(street.text) + "\n" + city.text + "\n" + country.text);
  });
}

TEST(LetterTexts, ALetterInAnEditorHasALineForEachBlockThatIsThere)
{
  ForEveryCombination([](const Recipient& person, const Block& street, const Block& city, const Block& country) {
    std::string expected = "March 05, 2026\n\n\nAnn Lee";
    expected += street.hasFirst ? "\n1 Elm Street" : "";
    expected += street.hasSecond ? "\nFlat 2" : "";
    expected += *city.text != '\0' ? std::string("\n") + city.text : "";
    expected += *country.text != '\0' ? std::string("\n") + country.text : "";
    EXPECT_EQ(LetterTexts::NotepadText(person, kToday, true).toStdString(), expected + "\n\nDear Ann:");
  });
}

TEST(LetterTexts, ALetterInAWordProcessorKeepsTheLinesOfBlocksThatAreMissing)
{
  ForEveryCombination([](const Recipient& person, const Block& street, const Block& city, const Block& country) {
    const std::string address = std::string(street.text) + "\n" + city.text + "\n" + country.text;
    EXPECT_EQ(LetterTexts::WordText(person, kToday, true).toStdString(),
              "March 05, 2026\n\nAnn Lee\n" + address + "\n\nDear Ann:");
  });
}

TEST(LetterTexts, WithoutTheAddressTheDateInAnEditorIsFollowedByThreeLineBreaks)
{
  ForEveryCombination([](const Recipient& person, const Block&, const Block&, const Block&) {
    EXPECT_EQ(LetterTexts::NotepadText(person, kToday, false).toStdString(), "March 05, 2026\n\n\nDear Ann:");
  });
}

TEST(LetterTexts, WithoutTheAddressTheDateInAWordProcessorIsFollowedByTwo)
{
  ForEveryCombination([](const Recipient& person, const Block&, const Block&, const Block&) {
    EXPECT_EQ(LetterTexts::WordText(person, kToday, false).toStdString(), "March 05, 2026\n\nDear Ann:");
  });
}

TEST(LetterTexts, ALoneSecondAddressIsALineInAnEditorAndNoneInAWordProcessor)
{
  const Recipient person = Person({false, true, ""}, kNone, kNone, 1);
  EXPECT_EQ(LetterTexts::NotepadText(person, kToday, true).toStdString(),
            "March 05, 2026\n\n\nAnn Lee\nFlat 2\n\nDear Ann:");
  EXPECT_EQ(LetterTexts::WordText(person, kToday, true).toStdString(), "March 05, 2026\n\nAnn Lee\n\n\n\n\nDear Ann:");
}

TEST(LetterTexts, TheDateIsEnglishWithTwoDigitsForTheDay)
{
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German));
  const struct
  {
    QDate date;
    const char* line;
  } cases[] = {{{2026, 1, 1}, "January 01, 2026"},   {{2024, 2, 29}, "February 29, 2024"},
               {{2026, 3, 31}, "March 31, 2026"},    {{2026, 5, 9}, "May 09, 2026"},
               {{2026, 10, 10}, "October 10, 2026"}, {{1999, 12, 31}, "December 31, 1999"},
               {{2002, 9, 30}, "September 30, 2002"}};
  for (const auto& [date, line] : cases) {
    const QString text = LetterTexts::WordText(Person(kAll, kAll, kAll, 1), date, false);
    EXPECT_EQ(text.section('\n', 0, 0).toStdString(), line);
  }
  QLocale::setDefault(before);
}
