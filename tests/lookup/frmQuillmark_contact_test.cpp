// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"

namespace {

using LookupContact = LookupPageTest;

struct PhoneCase
{
  const char* check;
  const char* box;
  const char* column;
};

constexpr std::array<PhoneCase, 4> kPhones = {{{"chkInfo_0", "txtPhoneInfo", "Phone"},
                                               {"chkInfo_3", "txtMobileInfo", "Mobile"},
                                               {"chkInfo_4", "txtBusInfo", "Business"},
                                               {"chkInfo_1", "txtEmailInfo", "Email"}}};

}

TEST_F(LookupContact, EachPhoneIsItsOwnColumn)
{
  AddAnn();
  Open();
  TickAll({"chkInfo_0", "chkInfo_1", "chkInfo_3", "chkInfo_4"});
  ClickLine(0);
  EXPECT_EQ(Shown("txtPhoneInfo"), "555-1000");
  EXPECT_EQ(Shown("txtMobileInfo"), "555-2000");
  EXPECT_EQ(Shown("txtBusInfo"), "555-3000");
  EXPECT_EQ(Shown("txtEmailInfo"), "ann@example.com");
  EXPECT_EQ(Shown("txtAddress"), "-");
}

TEST_F(LookupContact, WhatIsNullOrEmptyIsUnavailable)
{
  for (const PhoneCase& phone : kPhones) {
    AddPerson(phone.column, "1 has it", {{phone.column, "value"}});
    AddPerson(phone.column, "2 has it empty", {{phone.column, ""}});
  }
  Open();
  for (const PhoneCase& phone : kPhones) {
    Tick(phone.check);
  }
  for (int line = 0; line < Names().ListCount(); ++line) {
    ClickLine(line);
    for (const PhoneCase& phone : kPhones) {
      const bool has = Names().List(line) == QLatin1String(phone.column) + QStringLiteral(" 1 has it");
      EXPECT_EQ(Shown(phone.box), has ? "value" : "unavailable") << Names().List(line).toStdString();
    }
  }
}

TEST_F(LookupContact, ValuesStandAsTheyAre)
{
  const QString text = QStringLiteral("<b>1</b> & \"2\"  %1 日本 'x'");
  AddPerson("Ann", "Wood", {{"Phone", text}, {"Email", text}, {"Street", text}, {"Notes", text}});
  Open();
  Click(kCheckAll);
  ClickLine(0);
  EXPECT_EQ(Shown("txtPhoneInfo"), text.toStdString());
  EXPECT_EQ(Shown("txtEmailInfo"), text.toStdString());
  EXPECT_EQ(Shown("txtAddress"),
            text.toStdString() + "\r\ncity and province/state not available\r\ncountry and postal code not available");
  EXPECT_EQ(Shown("txtNotes"), text.toStdString());
}

TEST_F(LookupContact, TheAddressInItsForms)
{
  const std::vector<std::pair<QVariantMap, std::string>> cases = {
      {{}, "unavailable"},
      {{{"SecondAddress", "Flat 2"}}, "unavailable"},
      {{{"Street", ""}, {"City", ""}, {"Province", ""}, {"Country", ""}, {"Postal", ""}}, "unavailable"},
      {{{"Country", "England"}}, "street address unavailable\r\ncity and province/state not available\r\nEngland"},
      {{{"SecondAddress", "Flat 2"}, {"Postal", "LS1 1AA"}},
       "Flat 2\r\ncity and province/state not available\r\nLS1 1AA"},
      {{{"Street", "1 High Street"}, {"Province", "Yorkshire"}, {"City", ""}},
       "1 High Street\r\nYorkshire\r\ncountry and postal code not available"},
      {{{"Street", "1 High Street"},
        {"SecondAddress", "Flat 2"},
        {"City", "Leeds"},
        {"Province", "Yorkshire"},
        {"Country", "England"},
        {"Postal", "LS1 1AA"}},
       "1 High Street\r\nFlat 2\r\nLeeds, Yorkshire\r\nEngland, LS1 1AA"}};
  for (std::size_t i = 0; i < cases.size(); ++i) {
    AddPerson(QString::number(i), "Wood", cases[i].first);
  }
  Open();
  Tick("chkInfo_2");
  for (std::size_t i = 0; i < cases.size(); ++i) {
    ClickLine(static_cast<int>(i));
    ExpectShown(kItems[2], cases[i].second);
  }
}

TEST_F(LookupContact, APersonWithOnlyACountryGetsThreeLines)
{
  AddPerson("Ann", "Wood", {{"Country", "England"}});
  Open();
  ClickLine(0);
  Tick("chkInfo_2");
  ExpectShown(kItems[2], "street address unavailable\r\ncity and province/state not available\r\nEngland");
  Tick("chkInfo_2");
  ExpectHidden(kItems[2]);
}

TEST_F(LookupContact, AContactTickLeavesTheOtherGroupsAlone)
{
  const int ann = AddAnn();
  Change(ann, "BirthDate", {});
  Open();
  ClickLine(0);
  Tick("chkPersonal_0");
  Tick("chkNotes");
  Tick("chkInfo_0");
  EXPECT_TRUE(IsShown("lblExplain"));
  EXPECT_EQ(Shown("txtBirthInfo"), "March *, 1962");
  EXPECT_EQ(Shown("txtNotes"), "Likes tea");
  Tick("chkInfo_0");
  EXPECT_TRUE(IsShown("lblExplain"));
  EXPECT_EQ(Shown("txtBirthInfo"), "March *, 1962");
  EXPECT_EQ(Shown("txtNotes"), "Likes tea");
}
