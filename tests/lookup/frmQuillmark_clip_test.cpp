// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimer>

namespace {

class LookupClip : public LookupPageTest
{
protected:
  LookupClip() { QApplication::clipboard()->setText("before"); }

  static bool DoneGoes()
  {
    return QTest::qWaitFor([] { return !IsShown("lblDone"); }, 20'000);
  }
};

}

TEST_F(LookupClip, WithoutANameItAsksForOne)
{
  AddAnn();
  Open();
  boxes.Expect("Please select a name");
  Click(kCopy);
  Click(kCheckAll);
  boxes.Expect("Please select a name");
  Click(kCopy);
  EXPECT_EQ(boxes.Count(), 2U);
  EXPECT_EQ(Clipboard(), "before");
  EXPECT_FALSE(IsShown("lblDone"));
}

TEST_F(LookupClip, WithoutItemsItAsksForSome)
{
  AddAnn();
  Open();
  ClickLine(0);
  boxes.Expect("Please select items to copy");
  Click(kCopy);
  EXPECT_EQ(boxes.Count(), 1U);
  EXPECT_EQ(Clipboard(), "before");
  EXPECT_FALSE(IsShown("lblDone"));
}

TEST_F(LookupClip, ABusinessPhoneAloneCountsAsNothing)
{
  AddAnn();
  Open();
  ClickLine(0);
  Tick("chkInfo_4");
  boxes.Expect("Please select items to copy");
  Click(kCopy);
  EXPECT_EQ(Clipboard(), "before");
  EXPECT_FALSE(IsShown("lblDone"));
}

TEST_F(LookupClip, ABusinessPhoneIsCopiedWithTheEmail)
{
  AddAnn();
  Open();
  ClickLine(0);
  TickAll({"chkInfo_4", "chkInfo_1"});
  Click(kCopy);
  EXPECT_EQ(Clipboard(), "Ann Wood\n\n555-3000\n\nann@example.com");
  EXPECT_TRUE(IsShown("lblDone"));
  EXPECT_EQ(Caption("lblDone"), "Done");
}

TEST_F(LookupClip, EachOtherItemIsEnough)
{
  AddAnn();
  Open();
  ClickLine(0);
  const std::array<std::string, 8> texts = {"555-1000",
                                            "ann@example.com",
                                            "1 High Street\nFlat 2\nLeeds, Yorkshire\nEngland, LS1 1AA",
                                            "555-2000",
                                            {},
                                            "March 5, 1962",
                                            "June 12, 1990",
                                            "Likes tea"};
  for (std::size_t i = 0; i < kItems.size(); ++i) {
    if (!texts.at(i).empty()) {
      Tick(kItems.at(i).check);
      Click(kCopy);
      EXPECT_EQ(Clipboard(), "Ann Wood\n\n" + texts.at(i));
      Tick(kItems.at(i).check);
    }
  }
}

TEST_F(LookupClip, EverythingInItsOrder)
{
  AddAnn();
  Open();
  Click(kLastNameOrder);
  Click(kCheckAll);
  ClickLine(0);
  Click(kCopy);
  EXPECT_EQ(Clipboard(),
            "Wood, Ann\n\n555-1000\n\n555-2000\n\n555-3000\n\nann@example.com\n\n1 High Street\nFlat 2\nLeeds, "
            "Yorkshire\nEngland, LS1 1AA\n\nMarch 5, 1962\n\nJune 12, 1990\n\nLikes tea");
}

TEST_F(LookupClip, WhatIsUnavailableIsCopiedAsThat)
{
  AddPerson("Ann", "Wood", {{"BirthMonth", "March"}});
  Open();
  Click(kCheckAll);
  ClickLine(0);
  Click(kCopy);
  EXPECT_EQ(Clipboard(),
            "Ann Wood\n\nunavailable\n\nunavailable\n\nunavailable\n\nunavailable\n\nunavailable\n\nMarch "
            "*\n\nunavailable\n\nunavailable");
}

TEST_F(LookupClip, EveryLineEndsWithALineFeedAlone)
{
  AddPerson("Ann", "Wood", {{"Notes", "one\r\ntwo\nthree"}});
  Open();
  TickAll({"chkInfo_2", "chkNotes"});
  ClickLine(0);
  Click(kCopy);
  EXPECT_EQ(Clipboard(), "Ann Wood\n\nunavailable\n\none\ntwo\nthree");
}

TEST_F(LookupClip, TheNextCopyTakesThePlaceOfTheLast)
{
  AddAnn();
  AddPerson("Bob", "Marsh", {{"Phone", "1"}});
  Open();
  Tick("chkInfo_0");
  ClickLine(0);
  Click(kCopy);
  ClickLine(1);
  Click(kCopy);
  EXPECT_EQ(Clipboard(), "Bob Marsh\n\n1");
}

TEST_F(LookupClip, AfterAnotherOrderANameIsToBeSelectedAgain)
{
  AddAnn();
  Open();
  Tick("chkInfo_0");
  ClickLine(0);
  Click(kLastNameOrder);
  boxes.Expect("Please select a name");
  Click(kCopy);
  EXPECT_EQ(Clipboard(), "before");
}

TEST_F(LookupClip, DoneStandsForAboutASecond)
{
  AddAnn();
  Open();
  Tick("chkInfo_0");
  ClickLine(0);
  const auto* timer = Page().findChild<QTimer*>("tmrTimer");
  ASSERT_NE(timer, nullptr);
  EXPECT_EQ(timer->interval(), 500);
  for (int i = 0; i < 2; ++i) {
    const QSignalSpy ticks(timer, &QTimer::timeout);
    QElapsedTimer clock;
    clock.start();
    Click(kCopy);
    ASSERT_TRUE(IsShown("lblDone"));
    ASSERT_TRUE(DoneGoes());
    EXPECT_GE(clock.elapsed(), 900);
    EXPECT_EQ(ticks.count(), 2);
    EXPECT_FALSE(timer->isActive());
  }
}

TEST_F(LookupClip, ByKeyboard)
{
  AddAnn();
  Open();
  Tick("chkInfo_0");
  ClickLine(0);
  Control(kCopy).setFocus(Qt::TabFocusReason);
  Press(kCopy, Qt::Key_Return);
  EXPECT_EQ(Clipboard(), "Ann Wood\n\n555-1000");
}
