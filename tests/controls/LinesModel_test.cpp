// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/LinesModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

class LinesModelTest : public testing::Test
{
protected:
  [[nodiscard]] QString All() const
  {
    QStringList lines;
    for (int i = 0; i < model_.Count(); ++i) {
      lines.append(model_.Line(i));
    }
    return lines.join(u'|');
  }

  LinesModel model_;
  QAbstractItemModelTester tester_{&model_, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

}

TEST_F(LinesModelTest, LinesAreInsertedReplacedAndRemovedInPlace)
{
  model_.Insert(0, {QStringLiteral("a"), QStringLiteral("d")});
  model_.Insert(1, {QStringLiteral("b"), QStringLiteral("c")});
  EXPECT_EQ(All(), QStringLiteral("a|b|c|d"));
  model_.Replace(3, QStringLiteral("e"));
  EXPECT_EQ(All(), QStringLiteral("a|b|c|e"));
  model_.Remove(0);
  EXPECT_EQ(All(), QStringLiteral("b|c|e"));
  model_.Clear();
  EXPECT_EQ(model_.Count(), 0);
}

TEST_F(LinesModelTest, ViewsAreToldOfEachChange)
{
  const QSignalSpy inserted(&model_, &QAbstractItemModel::rowsInserted);
  const QSignalSpy changed(&model_, &QAbstractItemModel::dataChanged);
  const QSignalSpy removed(&model_, &QAbstractItemModel::rowsRemoved);
  model_.Insert(0, {QStringLiteral("a"), QStringLiteral("b")});
  model_.Replace(1, QStringLiteral("c"));
  model_.Remove(0);
  EXPECT_EQ(inserted.count(), 1);
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(removed.count(), 1);
}

TEST_F(LinesModelTest, NoLinesToInsertChangeNothing)
{
  model_.Insert(0, {});
  EXPECT_EQ(model_.Count(), 0);
}

TEST_F(LinesModelTest, LineIsTheTextOfItsRow)
{
  model_.Insert(0, {QStringLiteral("Ann"), QStringLiteral("Bob")});
  EXPECT_EQ(model_.rowCount(), 2);
  EXPECT_EQ(model_.rowCount(model_.index(0)), 0);
  EXPECT_EQ(model_.data(model_.index(1), Qt::DisplayRole).toString(), QStringLiteral("Bob"));
  EXPECT_FALSE(model_.data(model_.index(1), Qt::DecorationRole).isValid());
  EXPECT_EQ(model_.Line(2), QString());
  EXPECT_EQ(model_.Line(-1), QString());
}

TEST_F(LinesModelTest, SortKeepsEqualLinesInTheOrderTheyCame)
{
  model_.Insert(0, {QStringLiteral("bob"), QStringLiteral("Ann"), QStringLiteral("Bob"), QStringLiteral("ann")});
  model_.Sort();
  EXPECT_EQ(All(), QStringLiteral("Ann|ann|bob|Bob"));
}

TEST_F(LinesModelTest, SortKeepsTheOrderOfManyEqualLines)
{
  QStringList lines;
  for (int i = 0; i < 100; ++i) {
    lines.append(i % 2 == 0 ? QStringLiteral("ann") : QStringLiteral("Ann"));
  }
  model_.Insert(0, lines);
  model_.Sort();
  EXPECT_EQ(All(), lines.join(u'|'));
}

TEST_F(LinesModelTest, SortedPlaceIsBehindEqualLines)
{
  model_.Insert(0, {QStringLiteral("Ann"), QStringLiteral("bob"), QStringLiteral("Cid")});
  EXPECT_EQ(model_.SortedPlace(QStringLiteral("Abe")), 0);
  EXPECT_EQ(model_.SortedPlace(QStringLiteral("BOB")), 2);
  EXPECT_EQ(model_.SortedPlace(QStringLiteral("dan")), 3);
}
