// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/AddressBlock.h"

#include "store/DBEngine.h"
#include "store/Queries.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr int kStreet = 1;
constexpr int kSecond = 2;
constexpr int kCity = 4;
constexpr int kProvince = 8;
constexpr int kCountry = 16;
constexpr int kPostal = 32;
constexpr int kEverything = 63;

// What an address of these parts, and of no others, is to read.
struct Wanted
{
  QString text;
  QString street;
  QString city;
  QString country;
};

Wanted WantedFor(int parts)
{
  if ((parts & ~kSecond) == 0) {
    return {"unavailable", {}, {}, {}};
  }
  const std::array<const char*, 4> streets = {"street address unavailable", "1 High Street", "Flat 2",
                                              "1 High Street\r\nFlat 2"};
  const std::array<const char*, 4> printed = {"street address unavailable", "1 High Street", "Flat 2",
                                              "1 High Street\r\n\t\t\tFlat 2"};
  const std::array<const char*, 4> cities = {"city and province/state not available", "Leeds", "Yorkshire",
                                             "Leeds, Yorkshire"};
  const std::array<const char*, 4> countries = {"country and postal code not available", "England", "LS1 1AA",
                                                "England, LS1 1AA"};
  const auto street = static_cast<std::size_t>(parts & 3);
  const auto city = static_cast<std::size_t>(parts >> 2 & 3);
  const auto country = static_cast<std::size_t>(parts >> 4 & 3);
  return {QString(streets.at(street)) + "\r\n" + cities.at(city) + "\r\n" + countries.at(country), printed.at(street),
          cities.at(city), countries.at(country)};
}

AddressParts PartsFor(int parts)
{
  const auto part = [parts](int bit, const char* text) { return (parts & bit) != 0 ? QVariant(text) : QVariant(); };
  AddressParts address;
  address.street = part(kStreet, "1 High Street");
  address.secondAddress = part(kSecond, "Flat 2");
  address.city = part(kCity, "Leeds");
  address.province = part(kProvince, "Yorkshire");
  address.country = part(kCountry, "England");
  address.postal = part(kPostal, "LS1 1AA");
  return address;
}

std::string Plain(const QString& text)
{
  return text.isNull() ? "NULL" : text.toStdString();
}

void ExpectBlock(const AddressBlock& block, int parts, const std::string& of = {})
{
  const Wanted wanted = WantedFor(parts);
  EXPECT_EQ(Plain(block.text), Plain(wanted.text)) << parts << of;
  EXPECT_EQ(Plain(block.printableStreet), Plain(wanted.street)) << parts << of;
  EXPECT_EQ(Plain(block.city), Plain(wanted.city)) << parts << of;
  EXPECT_EQ(Plain(block.country), Plain(wanted.country)) << parts << of;
}

// An empty program's folder with people of whom nothing but the address is known.
class StoredAddresses : public testing::Test
{
protected:
  // The six columns in the order of the bits.
  void Add(const QVariantList& columns) const
  {
    folder.Execute("INSERT INTO People (Street, SecondAddress, City, Province, Country, Postal) VALUES (?,?,?,?,?,?)",
                   columns);
  }

  ProgramFolder folder;
};

}

TEST(AddressBlock, EveryCombinationOfMissingParts)
{
  for (int parts = 0; parts <= kEverything; ++parts) {
    ExpectBlock(MakeAddressBlock(PartsFor(parts)), parts);
  }
}

TEST(AddressBlock, ALoneSecondAddressDoesNotCount)
{
  const AddressBlock block = MakeAddressBlock(PartsFor(kSecond));
  EXPECT_EQ(block.text.toStdString(), "unavailable");
  EXPECT_TRUE(block.printableStreet.isNull());
  EXPECT_TRUE(block.city.isNull());
  EXPECT_TRUE(block.country.isNull());
}

TEST(AddressBlock, TheWholeAddressInFull)
{
  const AddressBlock block = MakeAddressBlock(PartsFor(kEverything));
  EXPECT_EQ(block.text.toStdString(), "1 High Street\r\nFlat 2\r\nLeeds, Yorkshire\r\nEngland, LS1 1AA");
  EXPECT_EQ(block.printableStreet.toStdString(), "1 High Street\r\n\t\t\tFlat 2");
}

TEST(AddressBlock, PartsStandAsTheyAre)
{
  AddressParts parts;
  parts.street = QStringLiteral("  %1 <b>Ünter\tden</b> Linden & Söhne ");
  parts.city = QStringLiteral("%2");
  parts.province = QStringLiteral("%1, %3");
  parts.country = QStringLiteral("日本");
  EXPECT_EQ(MakeAddressBlock(parts).text.toStdString(), "  %1 <b>Ünter\tden</b> Linden & Söhne \r\n%2, %1, %3\r\n日本");
}

TEST_F(StoredAddresses, EachPartPresentNullOrEmpty)
{
  const std::array<const char*, 6> values = {"1 High Street", "Flat 2", "Leeds", "Yorkshire", "England", "LS1 1AA"};
  constexpr int kAllOfThree = 729;
  std::vector<int> present;
  QVariantList all;
  QStringList rows;
  for (int code = 0; code < kAllOfThree; ++code) {
    int parts = 0;
    int rest = code;
    for (std::size_t i = 0; i < values.size(); ++i, rest /= 3) {
      all.append(rest % 3 == 0 ? QVariant() : rest % 3 == 1 ? QVariant(QStringLiteral("")) : QVariant(values.at(i)));
      parts |= rest % 3 == 2 ? 1 << i : 0;
    }
    rows.append("(?,?,?,?,?,?)");
    present.push_back(parts);
  }
  folder.Execute("INSERT INTO People (Street, SecondAddress, City, Province, Country, Postal) VALUES " + rows.join(','),
                 all);
  Database database = DBEngine::OpenDatabase();
  const std::unique_ptr<Recordset> people = database.OpenRecordset("People", Database::kTable);
  ASSERT_EQ(people->RecordCount(), kAllOfThree);
  for (int code = 0; code < kAllOfThree; ++code, people->MoveNext()) {
    ASSERT_FALSE(people->Eof());
    ExpectBlock(MakeAddressBlock(ReadAddress(*people)), present.at(static_cast<std::size_t>(code)),
                " of " + std::to_string(code));
  }
}

TEST_F(StoredAddresses, EachColumnIsReadIntoItsOwnPart)
{
  Add({"s", "a", "c", "p", "o", "z"});
  Database database = DBEngine::OpenDatabase();
  for (const QString& query : {Queries::kPeople, Queries::kPeopleByFirstName, Queries::kPeopleByLastName}) {
    const std::unique_ptr<Recordset> people = database.OpenRecordset(query, Database::kDynaset);
    const AddressParts parts = ReadAddress(*people);
    EXPECT_EQ(parts.street.toString().toStdString(), "s");
    EXPECT_EQ(parts.secondAddress.toString().toStdString(), "a");
    EXPECT_EQ(parts.city.toString().toStdString(), "c");
    EXPECT_EQ(parts.province.toString().toStdString(), "p");
    EXPECT_EQ(parts.country.toString().toStdString(), "o");
    EXPECT_EQ(parts.postal.toString().toStdString(), "z");
  }
}
