// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"

namespace {

class LookupTitles : public LookupPageTest
{
protected:
  static void ExpectTitles(const std::string& contact, const std::string& special, const std::string& notes)
  {
    EXPECT_EQ(TextOf("txtContact"), contact);
    EXPECT_EQ(TextOf("txtSpecial"), special);
    EXPECT_EQ(NotesTitle(), notes);
  }
};

}

TEST_F(LookupTitles, EachTickNamesItsOwnGroup)
{
  AddAnn();
  Open();
  ClickLine(0);
  ExpectPlainTitles();
  for (const char* check : {"chkInfo_0", "chkInfo_1", "chkInfo_2", "chkInfo_3", "chkInfo_4"}) {
    Tick(check);
    ExpectTitles("Contact records for Ann", "Special occasions", "Notes");
    Tick(check);
    ExpectPlainTitles();
  }
  for (const char* check : {"chkPersonal_0", "chkPersonal_1"}) {
    Tick(check);
    ExpectTitles("Contact", "Special occasions for Ann", "Notes");
    Tick(check);
    ExpectPlainTitles();
  }
  Tick("chkNotes");
  ExpectTitles("Contact", "Special occasions", "Notes for Ann");
  Tick("chkNotes");
  ExpectPlainTitles();
}

TEST_F(LookupTitles, OneTickOfAGroupIsEnough)
{
  AddAnn();
  Open();
  ClickLine(0);
  TickAll({"chkInfo_0", "chkInfo_4", "chkPersonal_0", "chkPersonal_1"});
  TickAll({"chkInfo_0", "chkPersonal_0"});
  ExpectTitles("Contact records for Ann", "Special occasions for Ann", "Notes");
}

TEST_F(LookupTitles, TheyFollowTheName)
{
  AddPerson("Ann", "Wood");
  AddPerson("Bob", "Wood");
  Open();
  Click(kCheckAll);
  ExpectPlainTitles();
  ClickLine(0);
  ExpectTitles("Contact records for Ann", "Special occasions for Ann", "Notes for Ann");
  ClickLine(1);
  ExpectTitles("Contact records for Bob", "Special occasions for Bob", "Notes for Bob");
  Click(kClearAll);
  ExpectPlainTitles();
  ClickLine(0);
  ExpectPlainTitles();
}

TEST_F(LookupTitles, AnAmpersandIsPartOfTheName)
{
  AddPerson("Tom & Jo", "Wood");
  Open();
  Click(kCheckAll);
  ClickLine(0);
  EXPECT_EQ(TextOf("txtContact"), "Contact records for Tom & Jo");
  EXPECT_EQ(TextOf("txtSpecial"), "Special occasions for Tom & Jo");
  EXPECT_EQ(Button("chkNotes").text().toStdString(), "Notes for Tom && Jo");
  EXPECT_TRUE(Button("chkNotes").shortcut().isEmpty());
  EXPECT_EQ(Name(), "Tom & Jo Wood");
}
