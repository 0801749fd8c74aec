// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

#include <cmath>

namespace {

class RemindersResize : public RemindersTest
{
protected:
  static constexpr int kWidth = 697;
  static constexpr int kHeight = 514;

  // A measure at the design size, kept with four decimals, at another size.
  static int Scaled(int design, int designSize, int size)
  {
    return qRound(std::round(design * 10000.0 / designSize) / 10000.0 * size);
  }
  static QRect Scaled(const QRect& design)
  {
    const QSize size = Page().size();
    return {Scaled(design.x(), kWidth, size.width()), Scaled(design.y(), kHeight, size.height()),
            Scaled(design.width(), kWidth, size.width()), Scaled(design.height(), kHeight, size.height())};
  }

  // The controls at their proportions of the page's present size.
  static void ExpectScaled()
  {
    SCOPED_TRACE(std::to_string(Page().width()) + " by " + std::to_string(Page().height()));
    for (int i = 0; i < kCellCount; ++i) {
      const QRect list(96 * (i % 7), 40 + 72 * (i / 7), 97, 46);
      EXPECT_EQ(Cell(i).geometry(), Scaled(list)) << i;
      EXPECT_EQ(Day(i).geometry(), Scaled(QRect(list.x() + 72, list.y() - 24, 25, 25))) << i;
    }
    const std::array<int, 6> rules = {88, 160, 232, 304, 377, 452};
    for (int i = 0; i < 6; ++i) {
      EXPECT_EQ(Control(Element("shpHLine", i)).y(),
                Scaled(rules.at(static_cast<std::size_t>(i)), kHeight, Page().height()));
    }
    EXPECT_EQ(Control("lblMonth").geometry(), Scaled(QRect(224, 32, 121, 19)));
    EXPECT_EQ(Control("lstMonth").geometry(), Scaled(QRect(224, 56, 121, 114)));
    EXPECT_EQ(Control("lblYear").geometry(), Scaled(QRect(352, 32, 121, 19)));
    EXPECT_EQ(Control("lstYear").geometry(), Scaled(QRect(352, 56, 121, 114)));
    EXPECT_EQ(Control("picReminders").pos(), Scaled(QRect(8, 56, 0, 0)).topLeft());
    EXPECT_EQ(Control("txtNotesDisplay").size(), Scaled(QRect(0, 0, 209, 57)).size());
  }

  static std::vector<QRect> Places()
  {
    std::vector<QRect> places;
    for (const QWidget* control : Page().Controls()) {
      places.push_back(control->geometry());
    }
    return places;
  }
};

}

TEST_F(RemindersResize, TheControlsKeepTheirProportions)
{
  Open();
  ExpectScaled();
  for (const QSize size : {QSize(1394, 1028), QSize(900, 700), QSize(500, 400), QSize(kWidth, kHeight)}) {
    Page().resize(size);
    ExpectScaled();
    ExpectRows(6);
  }
}

TEST_F(RemindersResize, ThePictureFollowsTheRowsInUse)
{
  OpenOn(QDate(2026, 2, 10));
  Page().resize(1394, 1028);
  ExpectRows(4);
  Next();
  ExpectScaled();
  ExpectRows(5);
  ChooseMonth(8);
  ExpectScaled();
  ExpectRows(6);
  Page().resize(900, 700);
  ExpectScaled();
  ExpectRows(6);
  ChooseMonth(2);
  ExpectRows(4);
  Page().resize(kWidth, kHeight);
  ExpectScaled();
  ExpectMonth(2026, 2);
}

TEST_F(RemindersResize, AMonthDrawnBetweenTwoSizesDoesNotDisturbTheLists)
{
  AddEvent("2026-06-12", "Picnic");
  Open();
  Page().resize(900, 700);
  Next();
  EXPECT_EQ(ShownEvents().size(), 1U);
  Page().resize(1394, 1028);
  ExpectScaled();
  EXPECT_EQ(ShownEvents(), (std::map<int, std::string>{{CellOf("2026-06-12"), " Picnic "}}));
  Previous();
  Page().resize(kWidth, kHeight);
  ExpectScaled();
  ExpectMonth(2026, 5);
}

TEST_F(RemindersResize, EventsAreFoundByTheirDatesAfterAResize)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  Page().resize(900, 700);
  ClickEvent(16);
  EXPECT_EQ(Details(), "Dentist -  No further information available.");
  EXPECT_EQ(modCalVariables::CalSelectedDate, QDate(2026, 5, 12));
}

TEST_F(RemindersResize, TheDetailsCloseUnlessTheFrameIsMinimised)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  for (const WindowState state : {WindowState::kNormal, WindowState::kMaximised}) {
    frame.state = state;
    ClickEvent(16);
    ASSERT_TRUE(DetailsShown());
    Page().resize(Page().width() + 100, Page().height() + 50);
    EXPECT_FALSE(DetailsShown());
    ExpectScaled();
    ExpectRows(6);
  }
}

TEST_F(RemindersResize, AMinimisedFrameChangesNothing)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  ClickEvent(16);
  const std::vector<QRect> before = Places();
  frame.state = WindowState::kMinimised;
  Page().resize(300, 200);
  EXPECT_TRUE(DetailsShown());
  EXPECT_EQ(Places(), before);
  frame.state = WindowState::kNormal;
  Page().resize(900, 700);
  EXPECT_FALSE(DetailsShown());
  ExpectScaled();
  ExpectRows(6);
}

TEST_F(RemindersResize, APageLoadedIntoALargerFrameTakesItsProportionsFromItsDesign)
{
  frame.state = WindowState::kMaximised;
  Command::Run([] { static_cast<void>(Forms::Load("frmReminders")); });
  Page().resize(1394, 1028);
  Command::Run([] { Page().Show(); });
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frame.window));
  ExpectScaled();
  ExpectRows(6);
  ExpectMonth(2026, 5);
}

TEST_F(RemindersResize, AnOpenListStaysOpen)
{
  Open();
  Click("lblMonth");
  Page().resize(900, 700);
  EXPECT_TRUE(IsShown("lstMonth"));
}
