// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ComboBox.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QListView>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>

namespace {

constexpr int kMany = 100'000;

QStringList ManyLines()
{
  QStringList lines;
  for (int i = 0; i < kMany; ++i) {
    lines.append(QStringLiteral("Anderson, Margaret %1").arg(i));
  }
  return lines;
}

// The least time of three runs, in nanoseconds.
template <typename Work>
double Nanoseconds(Work&& work)
{
  qint64 least = std::numeric_limits<qint64>::max();
  for (int run = 0; run < 3; ++run) {
    QElapsedTimer timer;
    timer.start();
    work();
    least = std::min(least, timer.nsecsElapsed());
  }
  return static_cast<double>(least);
}

// What can be said to a plain box so that it does not look at every line.
void MakeSwift(QComboBox& box, QStringListModel& model)
{
  auto* view = new QListView(&box);
  view->setUniformItemSizes(true);
  box.setView(view);
  box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box.setModel(&model);
}

void ShowOnce(QComboBox& box)
{
  box.show();
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  static_cast<void>(box.grab());
}

class ComboBoxTest : public testing::Test
{
protected:
  ComboBoxTest()
  {
    box_.resize(150, 24);
    box_.AddItems({QStringLiteral("January"), QStringLiteral("February"), QStringLiteral("March")});
  }

  void Show()
  {
    box_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&box_));
  }

  // Opens the list and clicks a line of it.
  void ChooseFromList(int index)
  {
    box_.showPopup();
    QAbstractItemView& view = *box_.view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.window()));
    const QPoint line = view.visualRect(view.model()->index(index, 0)).center();
    // A list that has only just opened takes a release for the end of the click that opened it.
    QTest::mouseMove(view.viewport(), line);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, line);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); }));
  }

  ComboBox box_;
  QSignalSpy clicks_{&box_, &ComboBox::Click};
};

}

TEST_F(ComboBoxTest, NothingIsChosenWhenLinesCome)
{
  EXPECT_EQ(box_.ListCount(), 3);
  EXPECT_EQ(box_.ListIndex(), -1);
  EXPECT_EQ(box_.Text(), QString());
  box_.AddItem(QStringLiteral("April"));
  EXPECT_EQ(box_.ListIndex(), -1);
  EXPECT_EQ(clicks_.count(), 0);

  ComboBox oneByOne;
  oneByOne.AddItem(QStringLiteral("1"));
  EXPECT_EQ(oneByOne.ListIndex(), -1);
}

TEST_F(ComboBoxTest, FurtherLinesLeaveTheChoiceAlone)
{
  box_.SetListIndex(2);
  box_.AddItems({QStringLiteral("April"), QStringLiteral("May")});
  EXPECT_EQ(box_.ListIndex(), 2);
  EXPECT_EQ(box_.Text(), QStringLiteral("March"));
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ComboBoxTest, LinesAreReadByIndexAndEmptyOutside)
{
  EXPECT_EQ(box_.List(0), QStringLiteral("January"));
  EXPECT_EQ(box_.List(2), QStringLiteral("March"));
  EXPECT_EQ(box_.List(3), QString());
  EXPECT_EQ(box_.List(-1), QString());
}

TEST_F(ComboBoxTest, NewIndexIsAClick)
{
  box_.SetListIndex(1);
  EXPECT_EQ(clicks_.count(), 1);
  EXPECT_EQ(box_.Text(), QStringLiteral("February"));
  box_.SetListIndex(1);
  EXPECT_EQ(clicks_.count(), 1);
  box_.SetListIndex(0);
  EXPECT_EQ(clicks_.count(), 2);
}

TEST_F(ComboBoxTest, IndexMinusOneChoosesNothing)
{
  box_.SetListIndex(1);
  box_.SetListIndex(-1);
  EXPECT_EQ(box_.ListIndex(), -1);
  EXPECT_EQ(box_.Text(), QString());
}

TEST_F(ComboBoxTest, ClearingIsQuiet)
{
  box_.SetListIndex(1);
  clicks_.clear();
  box_.Clear();
  EXPECT_EQ(box_.ListCount(), 0);
  EXPECT_EQ(box_.ListIndex(), -1);
  EXPECT_EQ(box_.Text(), QString());
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(ComboBoxTest, FilledAgainTheSameIndexIsANewClick)
{
  box_.SetListIndex(0);
  box_.Clear();
  box_.AddItem(QStringLiteral("1900"));
  EXPECT_EQ(box_.ListIndex(), -1);
  box_.SetListIndex(0);
  EXPECT_EQ(clicks_.count(), 2);
  EXPECT_EQ(box_.Text(), QStringLiteral("1900"));
}

TEST_F(ComboBoxTest, LineIsChosenByKeyboard)
{
  Show();
  box_.SetListIndex(0);
  QTest::keyClick(&box_, Qt::Key_Down);
  EXPECT_EQ(box_.ListIndex(), 1);
  EXPECT_EQ(clicks_.count(), 2);
  QTest::keyClick(&box_, Qt::Key_End);
  EXPECT_EQ(box_.ListIndex(), 2);
  EXPECT_EQ(clicks_.count(), 3);
  QTest::keyClick(&box_, Qt::Key_Down);
  EXPECT_EQ(clicks_.count(), 3);
}

TEST_F(ComboBoxTest, LineIsChosenFromTheList)
{
  Show();
  ChooseFromList(2);
  EXPECT_EQ(box_.ListIndex(), 2);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ComboBoxTest, HandlerSeesTheLineThatWasChosen)
{
  Show();
  QStringList seen;
  QObject::connect(&box_, &ComboBox::Click, &box_, [&] { seen.append(box_.Text()); });
  ChooseFromList(1);
  box_.SetListIndex(0);
  EXPECT_EQ(seen, QStringList({QStringLiteral("February"), QStringLiteral("January")}));
}

TEST_F(ComboBoxTest, OpeningAndLeavingTheListChoosesNothing)
{
  Show();
  box_.showPopup();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(box_.view()->window()));
  QTest::keyClick(box_.view(), Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !box_.view()->isVisible(); }));
  EXPECT_EQ(box_.ListIndex(), -1);
  EXPECT_EQ(clicks_.count(), 0);
}

TEST(LongComboBox, IsFilledAndShownAboutAsFastAsAPlainBoxOverAModel)
{
  const QStringList lines = ManyLines();
  const double plain = Nanoseconds([&] {
    QStringListModel model;
    QComboBox box;
    MakeSwift(box, model);
    model.setStringList(QStringList(lines.begin(), lines.end()));
    ShowOnce(box);
  });
  const double ours = Nanoseconds([&] {
    ComboBox box;
    box.AddItems(lines);
    ShowOnce(box);
    ASSERT_EQ(box.ListCount(), kMany);
    ASSERT_EQ(box.List(kMany - 1), lines.back());
    ASSERT_EQ(box.ListIndex(), -1);
  });
  EXPECT_LT(ours, 3 * plain);
}

TEST(LongComboBox, OpensItsListWithoutLookingAtEveryLine)
{
  const QStringList lines = ManyLines();
  QStringListModel model(lines);
  const double plain = Nanoseconds([&] {
    QListView view;
    view.setUniformItemSizes(true);
    view.setModel(&model);
    view.show();
    QCoreApplication::processEvents();
  });
  ComboBox box;
  box.setStyleSheet(QStringLiteral("combobox-popup: 0"));  // as the style of the program says
  box.AddItems(lines);
  ShowOnce(box);
  const double ours = Nanoseconds([&] {
    box.showPopup();
    QCoreApplication::processEvents();
    box.hidePopup();
  });
  EXPECT_LT(ours, 3 * plain);
}
