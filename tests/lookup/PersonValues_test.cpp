// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/PersonValues.h"

#include "store/DBEngine.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace {

struct DateCase
{
  QVariant month;
  QVariant day;
  QVariant year;
  const char* text;
  bool gap;
};

}

TEST(OccasionDate, EveryCombinationOfMissingParts)
{
  const std::vector<DateCase> cases = {
      {{}, {}, {}, "unavailable", false},   {"March", {}, {}, "March *", true},
      {{}, "5", {}, "* 5", true},           {"March", "5", {}, "March 5", false},
      {{}, {}, "1962", "* *, 1962", true},  {"March", {}, "1962", "March *, 1962", true},
      {{}, "5", "1962", "* 5, 1962", true}, {"March", "5", "1962", "March 5, 1962", false},
  };
  for (const DateCase& date : cases) {
    const OccasionDate occasion = {date.month, date.day, date.year};
    EXPECT_EQ(occasion.Text().toStdString(), date.text);
    EXPECT_EQ(occasion.HasGap(), date.gap) << date.text;
  }
}

TEST(PersonValues, NullAndTheEmptyTextAreUnknown)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (Phone, Mobile, Business, Email, Notes) VALUES (NULL, '', ' ', 'a@b.c', '0')");
  Database database = DBEngine::OpenDatabase();
  const std::unique_ptr<Recordset> people = database.OpenRecordset("People", Database::kTable);
  EXPECT_TRUE(KnownValue(*people, "Phone").isNull());
  EXPECT_TRUE(KnownValue(*people, "Mobile").isNull());
  EXPECT_EQ(KnownValue(*people, "Business").toString().toStdString(), " ");
  EXPECT_EQ(KnownValue(*people, "Email").toString().toStdString(), "a@b.c");
  EXPECT_EQ(ShownValue(*people, "Phone").toStdString(), "unavailable");
  EXPECT_EQ(ShownValue(*people, "Mobile").toStdString(), "unavailable");
  EXPECT_EQ(ShownValue(*people, "Business").toStdString(), " ");
  EXPECT_EQ(ShownValue(*people, "Email").toStdString(), "a@b.c");
  EXPECT_EQ(ShownValue(*people, "Notes").toStdString(), "0");
}

TEST(PersonValues, WithoutARowTheyFail)
{
  const ProgramFolder folder;
  folder.Execute("INSERT INTO People (Phone) VALUES ('1')");
  Database database = DBEngine::OpenDatabase();
  const std::unique_ptr<Recordset> people = database.OpenRecordset("People", Database::kTable);
  people->MoveNext();
  ASSERT_TRUE(people->Eof());
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(KnownValue(*people, "Phone")); }), 3021);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(ShownValue(*people, "Phone")); }), 3021);
}
