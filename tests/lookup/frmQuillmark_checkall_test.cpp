// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"

namespace {

class LookupCheckAll : public LookupPageTest
{
protected:
  static void ExpectEverythingOfAnn()
  {
    ExpectTicks(true);
    ExpectShown(kItems[0], "555-1000");
    ExpectShown(kItems[1], "ann@example.com");
    ExpectShown(kItems[2], "1 High Street\r\nFlat 2\r\nLeeds, Yorkshire\r\nEngland, LS1 1AA");
    ExpectShown(kItems[3], "555-2000");
    ExpectShown(kItems[4], "555-3000");
    ExpectShown(kItems[5], "March 5, 1962");
    ExpectShown(kItems[6], "June 12, 1990");
    ExpectShown(kItems[7], "Likes tea");
    EXPECT_EQ(TextOf("txtContact"), "Contact records for Ann");
    EXPECT_EQ(TextOf("txtSpecial"), "Special occasions for Ann");
    EXPECT_EQ(NotesTitle(), "Notes for Ann");
    EXPECT_FALSE(IsShown("lblExplain"));
  }
};

}

TEST_F(LookupCheckAll, CheckAllShowsEverythingAndClearAllHidesIt)
{
  const int ann = AddAnn();
  Open();
  ClickLine(0);
  Click(kCheckAll);
  ExpectEverythingOfAnn();
  Click(kCheckAll);
  ExpectEverythingOfAnn();
  Click(kClearAll);
  ExpectTicks(false);
  ExpectNothingShown();
  ExpectPlainTitles();
  EXPECT_EQ(modID::SelectedPersonID, ann);
  EXPECT_EQ(Name(), "Ann Wood");
  Click(kClearAll);
  ExpectNothingShown();
}

TEST_F(LookupCheckAll, CheckAllCompletesSomeTicks)
{
  AddAnn();
  Open();
  ClickLine(0);
  TickAll({"chkInfo_1", "chkPersonal_1"});
  Click(kCheckAll);
  ExpectEverythingOfAnn();
}

TEST_F(LookupCheckAll, BeforeANameOnlyTheTicksChange)
{
  AddAnn();
  Open();
  Click(kCheckAll);
  ExpectTicks(true);
  ExpectNothingShown();
  ExpectPlainTitles();
  ClickLine(0);
  ExpectEverythingOfAnn();
  Click(kClearAll);
  ExpectTicks(false);
}

TEST_F(LookupCheckAll, TheExplanationComesAndGoes)
{
  AddPerson("Ann", "Wood", {{"AnnYear", "1990"}});
  Open();
  ClickLine(0);
  Click(kCheckAll);
  EXPECT_TRUE(IsShown("lblExplain"));
  Click(kClearAll);
  EXPECT_FALSE(IsShown("lblExplain"));
}

TEST_F(LookupCheckAll, ByKeyboard)
{
  AddAnn();
  Open();
  ClickLine(0);
  Control(kCheckAll).setFocus(Qt::TabFocusReason);
  Press(kCheckAll, Qt::Key_Space);
  ExpectEverythingOfAnn();
  Control(kClearAll).setFocus(Qt::TabFocusReason);
  Press(kClearAll, Qt::Key_Return);
  ExpectTicks(false);
  ExpectNothingShown();
}
