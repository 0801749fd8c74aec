// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/EntryRules.h"

#include <gtest/gtest.h>

using EntryRules::Box;
using EntryRules::Entry;
using EntryRules::Refusal;
using EntryRules::ValidateEntry;

namespace {

const QDate kToday(2026, 5, 5);
const QString kThirty(30, u'n');
const QString kThirtyOne(31, u'n');

const char* const kNoFirst = "A first name must be entered, or click Cancel";
const char* const kNoLast = "A last name must be entered, or click Cancel";
const char* const kNoGender = "A gender must be entered, or click Cancel";
const char* const kNoStreet = "Please fill in Address 1 before using Address 2";

Entry Good()
{
  Entry entry;
  entry.firstName = "Ann";
  entry.lastName = "Smith";
  entry.gender = "Female";
  return entry;
}

std::string MessageOf(Entry entry, QDate today = kToday)
{
  const std::optional<Refusal> refusal = ValidateEntry(entry, today);
  EXPECT_TRUE(!refusal || !refusal->message.isEmpty());
  return refusal ? refusal->message.toStdString() : std::string();
}

Box BoxOf(Entry entry)
{
  const std::optional<Refusal> refusal = ValidateEntry(entry, kToday);
  EXPECT_TRUE(refusal);
  return refusal ? refusal->box : Box::kNone;
}

struct Limit
{
  QString Entry::*text;
  const char* message;
};

const Limit kLimits[] = {
    {&Entry::firstName, "You cannot enter more than 30 characters for a first name"},
    {&Entry::lastName, "You cannot enter more than 30 characters for a last name"},
    {&Entry::street, "You cannot enter more than 30 characters for a street address"},
    {&Entry::secondAddress, "You cannot enter more than 30 characters for a street address"},
    {&Entry::city, "You cannot enter more than 30 characters for a city"},
    {&Entry::province, "You cannot enter more than 30 characters for a state or province"},
    {&Entry::country, "You cannot enter more than 30 characters for a country"},
    {&Entry::postal, "You cannot enter more than 30 characters for a zip or postal code"},
};

}

TEST(EntryRules, NamesAndGenderAreEnough)
{
  EXPECT_EQ(MessageOf(Good()), "");
}

TEST(EntryRules, NamesAreRequired)
{
  for (const QString& blank : {QString(), QString(" "), QString("   "), QString(40, u' ')}) {
    Entry entry = Good();
    entry.firstName = blank;
    EXPECT_EQ(MessageOf(entry), kNoFirst);
    EXPECT_EQ(BoxOf(entry), Box::kFirstName);
    entry = Good();
    entry.lastName = blank;
    EXPECT_EQ(MessageOf(entry), kNoLast);
    EXPECT_EQ(BoxOf(entry), Box::kLastName);
  }
  Entry entry = Good();
  entry.firstName = " A ";
  EXPECT_EQ(MessageOf(entry), "");
}

TEST(EntryRules, GenderIsRequired)
{
  Entry entry = Good();
  entry.gender.clear();
  EXPECT_EQ(MessageOf(entry), kNoGender);
  EXPECT_EQ(BoxOf(entry), Box::kGender);
  entry.gender = "Male";
  EXPECT_EQ(MessageOf(entry), "");
}

TEST(EntryRules, SecondAddressNeedsTheFirst)
{
  for (const char* street : {"", " ", "   "}) {
    Entry entry = Good();
    entry.street = street;
    entry.secondAddress = "Flat 2";
    EXPECT_EQ(MessageOf(entry), kNoStreet) << '"' << street << '"';
    EXPECT_EQ(BoxOf(entry), Box::kStreet);
  }
  Entry entry = Good();
  entry.street = "1 Mill Lane";
  entry.secondAddress = "Flat 2";
  EXPECT_EQ(MessageOf(entry), "");
  entry.secondAddress.clear();
  entry.street = " ";
  EXPECT_EQ(MessageOf(entry), "");
}

TEST(EntryRules, SecondAddressOfBlanksIsEmptied)
{
  for (const QString street : {"", " ", "1 Mill Lane"}) {
    Entry entry = Good();
    entry.street = street;
    entry.secondAddress = QString(35, u' ');
    EXPECT_FALSE(ValidateEntry(entry, kToday));
    EXPECT_EQ(entry.secondAddress, QString());
    EXPECT_EQ(entry.street, street);
  }
  Entry entry = Good();
  entry.street = "1 Mill Lane";
  entry.secondAddress = " Flat 2 ";
  EXPECT_FALSE(ValidateEntry(entry, kToday));
  EXPECT_EQ(entry.secondAddress, " Flat 2 ");
}

TEST(EntryRules, SecondAddressIsEmptiedOnceNamesAndGenderAreThere)
{
  for (QString Entry::*required : {&Entry::firstName, &Entry::lastName, &Entry::gender}) {
    Entry entry = Good();
    entry.*required = QString();
    entry.secondAddress = "  ";
    EXPECT_TRUE(ValidateEntry(entry, kToday));
    EXPECT_EQ(entry.secondAddress, "  ");
  }
  Entry refusedLater = Good();
  refusedLater.secondAddress = "  ";
  refusedLater.city = kThirtyOne;
  EXPECT_TRUE(ValidateEntry(refusedLater, kToday));
  EXPECT_EQ(refusedLater.secondAddress, QString());
}

TEST(EntryRules, TextsMayHaveThirtyCharacters)
{
  for (const auto& [text, message] : kLimits) {
    Entry entry = Good();
    entry.street = "1 Mill Lane";
    entry.*text = kThirty;
    EXPECT_EQ(MessageOf(entry), "") << message;
    entry.*text = kThirtyOne;
    EXPECT_EQ(MessageOf(entry), message);
    EXPECT_EQ(BoxOf(entry), Box::kNone) << message;
    entry.*text = QString(1000, u'n');
    EXPECT_EQ(MessageOf(entry), message);
  }
}

TEST(EntryRules, BlanksAtTheEndsCount)
{
  Entry entry = Good();
  entry.city = " " + QString(29, u'n') + " ";
  EXPECT_EQ(MessageOf(entry), "You cannot enter more than 30 characters for a city");
  entry.city = QString(31, u' ');
  EXPECT_EQ(MessageOf(entry), "You cannot enter more than 30 characters for a city");
}

TEST(EntryRules, CharactersOutsideTheFirstPlaneCountOnce)
{
  Entry entry = Good();
  entry.firstName = QString("🎂").repeated(30);
  entry.lastName = QString("é").repeated(30);
  EXPECT_EQ(MessageOf(entry), "");
  entry.firstName += "🎂";
  EXPECT_EQ(MessageOf(entry), kLimits[0].message);
}

TEST(EntryRules, NothingElseIsAskedOfTheTexts)
{
  Entry entry = Good();
  entry.firstName = "1";
  entry.lastName = "<b>'\"";
  entry.postal = "no number";
  entry.gender = "another";
  EXPECT_EQ(MessageOf(entry), "");
}

TEST(EntryRules, TheBirthDateIsJudged)
{
  Entry entry = Good();
  entry.birth = {"April", "31", ""};
  EXPECT_EQ(MessageOf(entry), "April 31 is not valid. Please try again.");
  EXPECT_EQ(BoxOf(entry), Box::kNone);
  entry.birth = {"May", "6", "2026"};
  EXPECT_EQ(MessageOf(entry), "That date has not yet occurred. Please try again.");
  EXPECT_EQ(MessageOf(entry, QDate(2026, 5, 6)), "");
  EXPECT_EQ(BoxOf(entry), Box::kNone);
}

// An entry with every fault is put right one by one.
TEST(EntryRules, TheFirstThatIsBrokenIsTold)
{
  Entry entry;
  for (const Limit& limit : kLimits) {
    entry.*limit.text = kThirtyOne;
  }
  entry.firstName = " ";
  entry.lastName = " ";
  entry.street = " ";
  entry.birth = {"Smarch", "31", "1800"};
  EXPECT_EQ(MessageOf(entry), kNoFirst);
  entry.firstName = kThirtyOne;
  EXPECT_EQ(MessageOf(entry), kNoLast);
  entry.lastName = kThirtyOne;
  EXPECT_EQ(MessageOf(entry), kNoGender);
  entry.gender = "Male";
  EXPECT_EQ(MessageOf(entry), kNoStreet);
  entry.street = kThirtyOne;
  for (const auto& [text, message] : kLimits) {
    EXPECT_EQ(MessageOf(entry), message);
    entry.*text = kThirty;
  }
  EXPECT_EQ(MessageOf(entry), "Smarch is not valid. Please try again.");
  entry.birth.month = "June";
  EXPECT_EQ(MessageOf(entry), "June 31 is not valid. Please try again.");
  entry.birth.day = "30";
  EXPECT_EQ(MessageOf(entry), "1800 is an invalid value. Please try again.");
  entry.birth.year = "1900";
  EXPECT_EQ(MessageOf(entry), "");
}
