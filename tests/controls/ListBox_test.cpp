// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ListBox.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>

namespace {

constexpr int kMany = 100'000;

QStringList Lines(std::initializer_list<const char*> lines)
{
  QStringList list;
  for (const char* line : lines) {
    list.append(QString::fromUtf8(line));
  }
  return list;
}

QStringList ManyLines()
{
  QStringList lines;
  for (int i = 0; i < kMany; ++i) {
    lines.append(QStringLiteral("Anderson, Margaret %1").arg(i));
  }
  return lines;
}

QStringList LinesOf(const ListBox& list)
{
  QStringList lines;
  for (int i = 0; i < list.ListCount(); ++i) {
    lines.append(list.List(i));
  }
  return lines;
}

void ClickLine(ListBox& list, int index, Qt::MouseButton button = Qt::LeftButton)
{
  const QModelIndex line = list.model()->index(index, 0);
  QTest::mouseClick(list.viewport(), button, {}, list.visualRect(line).center());
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

template <typename View>
void ShowOnce(View& view)
{
  view.show();
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
  static_cast<void>(view.grab());
}

// A list of four lines on the screen.
class ListBoxTest : public testing::Test
{
protected:
  ListBoxTest()
  {
    list_.resize(200, 150);
    list_.AddItems(Lines({"Ann", "Bob", "Cid", "Dan"}));
  }

  void Show()
  {
    list_.show();
    list_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&list_));
    clicks_.clear();
  }

  ListBox list_;
  QSignalSpy clicks_{&list_, &ListBox::Click};
};

}

TEST_F(ListBoxTest, LinesStandInTheOrderTheyCame)
{
  list_.AddItem(QStringLiteral("Abe"));
  EXPECT_EQ(list_.ListCount(), 5);
  EXPECT_EQ(LinesOf(list_), Lines({"Ann", "Bob", "Cid", "Dan", "Abe"}));
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(ListBoxTest, LineOutsideIsEmpty)
{
  EXPECT_EQ(list_.List(-1), QString());
  EXPECT_EQ(list_.List(4), QString());
}

TEST_F(ListBoxTest, LineCanBeReplaced)
{
  list_.SetListIndex(1);
  list_.SetList(1, QStringLiteral("Bea"));
  EXPECT_EQ(LinesOf(list_), Lines({"Ann", "Bea", "Cid", "Dan"}));
  EXPECT_EQ(list_.ListIndex(), 1);
  EXPECT_EQ(list_.Text(), QStringLiteral("Bea"));
}

TEST_F(ListBoxTest, NothingIsSelectedAtFirst)
{
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(list_.Text(), QString());
}

TEST_F(ListBoxTest, TakingTheFocusChoosesNothing)
{
  list_.show();
  list_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&list_));
  list_.setFocus(Qt::TabFocusReason);
  ASSERT_TRUE(list_.hasFocus());
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(ListBoxTest, FirstLineOfAFocusedListIsANewIndex)
{
  Show();
  list_.setFocus(Qt::TabFocusReason);
  clicks_.clear();
  list_.SetListIndex(0);
  EXPECT_EQ(list_.ListIndex(), 0);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ListBoxTest, NewIndexIsAClick)
{
  list_.SetListIndex(2);
  EXPECT_EQ(clicks_.count(), 1);
  EXPECT_EQ(list_.ListIndex(), 2);
  EXPECT_EQ(list_.Text(), QStringLiteral("Cid"));
  list_.SetListIndex(2);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ListBoxTest, IndexMinusOneSelectsNothing)
{
  list_.SetListIndex(2);
  list_.SetListIndex(-1);
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(list_.Text(), QString());
  EXPECT_FALSE(list_.selectionModel()->hasSelection());
}

TEST_F(ListBoxTest, SelectedLineIsTheOnlyOneMarked)
{
  list_.SetListIndex(0);
  list_.SetListIndex(3);
  ASSERT_EQ(list_.selectionModel()->selectedIndexes().size(), 1);
  EXPECT_EQ(list_.selectionModel()->selectedIndexes().front().row(), 3);
}

TEST_F(ListBoxTest, LineIsChosenByMouse)
{
  Show();
  ClickLine(list_, 1);
  EXPECT_EQ(clicks_.count(), 1);
  EXPECT_EQ(list_.ListIndex(), 1);
}

TEST_F(ListBoxTest, SelectedLineCanBeClickedAgain)
{
  Show();
  ClickLine(list_, 1);
  ClickLine(list_, 1);
  EXPECT_EQ(clicks_.count(), 2);
  list_.SetListIndex(2);
  ClickLine(list_, 2);
  EXPECT_EQ(clicks_.count(), 4);
}

TEST_F(ListBoxTest, HandlerSeesTheLineThatWasClicked)
{
  Show();
  QStringList seen;
  QObject::connect(&list_, &ListBox::Click, &list_, [&] { seen.append(list_.Text()); });
  ClickLine(list_, 3);
  QTest::keyClick(&list_, Qt::Key_Up);
  list_.SetListIndex(0);
  EXPECT_EQ(seen, Lines({"Dan", "Cid", "Ann"}));
}

TEST_F(ListBoxTest, LineClickedWithAModifierKeyIsSelected)
{
  Show();
  for (const Qt::KeyboardModifier key : {Qt::ControlModifier, Qt::ShiftModifier}) {
    for (int time = 0; time < 2; ++time) {
      clicks_.clear();
      QTest::mouseClick(list_.viewport(), Qt::LeftButton, key, list_.visualRect(list_.model()->index(1, 0)).center());
      EXPECT_EQ(list_.ListIndex(), 1) << key;
      EXPECT_EQ(clicks_.count(), 1) << key;
    }
    list_.SetListIndex(-1);
  }
}

TEST_F(ListBoxTest, RightButtonChoosesNothing)
{
  Show();
  list_.SetListIndex(1);
  clicks_.clear();
  ClickLine(list_, 3, Qt::RightButton);
  EXPECT_EQ(list_.ListIndex(), 1);
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(ListBoxTest, HandlerNeverSeesAClickWithoutALine)
{
  Show();
  QStringList seen;
  QObject::connect(&list_, &ListBox::Click, &list_, [&] { seen.append(list_.Text()); });
  const auto middle = [this](int index) { return list_.visualRect(list_.model()->index(index, 0)).center(); };
  QTest::mousePress(list_.viewport(), Qt::LeftButton, {}, middle(0));
  for (int index = 1; index < 3; ++index) {
    QMouseEvent drag(QEvent::MouseMove, middle(index), list_.viewport()->mapToGlobal(middle(index)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(list_.viewport(), &drag);
  }
  QTest::mouseRelease(list_.viewport(), Qt::LeftButton, {}, middle(2));
  QTest::keyClick(&list_, Qt::Key_Down);
  QTest::keyClick(&list_, Qt::Key_A);
  QTest::keyClick(&list_, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_FALSE(seen.isEmpty());
  EXPECT_FALSE(seen.contains(QString())) << seen.join(u'|').toStdString();
}

TEST_F(ListBoxTest, ClickBelowTheLastLineChoosesNothing)
{
  Show();
  ClickLine(list_, 1);
  QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, QPoint(50, 140));
  EXPECT_EQ(clicks_.count(), 1);
  EXPECT_EQ(list_.ListIndex(), 1);
}

TEST_F(ListBoxTest, LineIsChosenByKeyboard)
{
  struct Case
  {
    Qt::Key key;
    int index;
    int clicks;
  };
  Show();
  list_.SetListIndex(1);
  const std::vector<Case> cases = {
      {Qt::Key_Down, 2, 2}, {Qt::Key_End, 3, 3}, {Qt::Key_Down, 3, 3},
      {Qt::Key_Home, 0, 4}, {Qt::Key_Up, 0, 4},  {Qt::Key_B, 1, 5},
  };
  for (const Case& c : cases) {
    QTest::keyClick(&list_, c.key);
    EXPECT_EQ(list_.ListIndex(), c.index) << c.key;
    EXPECT_EQ(clicks_.count(), c.clicks) << c.key;
  }
}

TEST_F(ListBoxTest, FirstArrowKeyChoosesTheFirstLine)
{
  Show();
  list_.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&list_, Qt::Key_Down);
  EXPECT_EQ(list_.ListIndex(), 0);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ListBoxTest, LinesCannotBeEdited)
{
  Show();
  list_.SetListIndex(1);
  QTest::keyClick(&list_, Qt::Key_F2);
  QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, list_.visualRect(list_.currentIndex()).center());
  EXPECT_EQ(list_.viewport()->findChild<QWidget*>(), nullptr);
}

TEST_F(ListBoxTest, RemovingALineIsQuiet)
{
  list_.SetListIndex(2);
  list_.RemoveItem(0);
  EXPECT_EQ(LinesOf(list_), Lines({"Bob", "Cid", "Dan"}));
  EXPECT_EQ(list_.Text(), QStringLiteral("Cid"));
  EXPECT_EQ(list_.ListIndex(), 1);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ListBoxTest, RemovingTheSelectedLineSelectsNoOther)
{
  for (const int index : {1, 2, 0}) {
    list_.Clear();
    list_.AddItems(Lines({"Ann", "Bob", "Cid"}));
    list_.SetListIndex(index);
    clicks_.clear();
    list_.RemoveItem(index);
    EXPECT_EQ(list_.ListIndex(), -1) << index;
    EXPECT_EQ(list_.Text(), QString()) << index;
    EXPECT_EQ(clicks_.count(), 0) << index;
  }
}

TEST_F(ListBoxTest, AfterTheSelectedLineWentItsNeighbourCanBeClicked)
{
  Show();
  list_.SetListIndex(1);
  list_.RemoveItem(1);
  clicks_.clear();
  ClickLine(list_, 1);
  EXPECT_EQ(clicks_.count(), 1);
  EXPECT_EQ(list_.Text(), QStringLiteral("Cid"));
}

TEST_F(ListBoxTest, ClearingIsQuiet)
{
  Show();
  list_.SetListIndex(2);
  clicks_.clear();
  list_.Clear();
  EXPECT_EQ(list_.ListCount(), 0);
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(list_.Text(), QString());
  list_.AddItem(QStringLiteral("Eve"));
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(ListBoxTest, FilledAgainTheSameIndexIsANewClick)
{
  list_.SetListIndex(0);
  list_.Clear();
  list_.AddItems(Lines({"Eve", "Fay"}));
  list_.SetListIndex(0);
  EXPECT_EQ(clicks_.count(), 2);
  EXPECT_EQ(list_.Text(), QStringLiteral("Eve"));
}

TEST_F(ListBoxTest, HandlerMayEmptyTheList)
{
  Show();
  QObject::connect(&list_, &ListBox::Click, &list_, [this] { list_.Clear(); });
  ClickLine(list_, 2);
  EXPECT_EQ(list_.ListCount(), 0);
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ListBoxTest, LineThatIsSelectedFarBelowIsScrolledInto)
{
  list_.AddItems(ManyLines().mid(0, 500));
  Show();
  list_.SetListIndex(400);
  const QRect line = list_.visualRect(list_.model()->index(400, 0));
  EXPECT_TRUE(list_.viewport()->rect().contains(line.center()));
}

TEST(SortedListBox, KeepsItsLinesInTextOrder)
{
  struct Case
  {
    const char* what;
    QStringList lines;
    QStringList sorted;
  };
  const std::vector<Case> cases = {
      {"without regard to case", Lines({"banana", "Cherry", "apple", "Date"}),
       Lines({"apple", "banana", "Cherry", "Date"})},
      {"a blank stands before digits", Lines({"Ann - In 12 days", "Ann - In  3 days", "Ann - In 120 days"}),
       Lines({"Ann - In  3 days", "Ann - In 12 days", "Ann - In 120 days"})},
      {"equal ones in the order they came", Lines({"bob", "Ann", "BOB", "ann", "Bob"}),
       Lines({"Ann", "ann", "bob", "BOB", "Bob"})},
      {"letters of other alphabets", Lines({"\u00C9mile", "\u00E9lan", "Zoe"}),
       Lines({"Zoe", "\u00E9lan", "\u00C9mile"})},
      {"a longer text after its beginning", Lines({"Annabel", "Ann", ""}), Lines({"", "Ann", "Annabel"})},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    ListBox atOnce;
    atOnce.SetSorted(true);
    atOnce.AddItems(c.lines);
    EXPECT_EQ(LinesOf(atOnce), c.sorted);

    ListBox oneByOne;
    oneByOne.SetSorted(true);
    for (const QString& line : c.lines) {
      oneByOne.AddItem(line);
    }
    EXPECT_EQ(LinesOf(oneByOne), c.sorted);

    ListBox inTwoParts;
    inTwoParts.SetSorted(true);
    inTwoParts.AddItems(c.lines.mid(0, 1));
    inTwoParts.AddItems(c.lines.mid(1));
    EXPECT_EQ(LinesOf(inTwoParts), c.sorted);
  }
}

TEST(SortedListBox, FurtherLineIsQuietAndLeavesTheSelectionOnItsLine)
{
  ListBox list;
  list.SetSorted(true);
  list.AddItems(Lines({"Bob", "Dan"}));
  list.SetListIndex(1);
  const QSignalSpy clicks(&list, &ListBox::Click);
  list.AddItem(QStringLiteral("Ann"));
  EXPECT_EQ(list.Text(), QStringLiteral("Dan"));
  list.AddItems(Lines({"Cid", "Abe"}));
  EXPECT_EQ(list.Text(), QStringLiteral("Dan"));
  EXPECT_EQ(list.ListIndex(), 4);
  EXPECT_EQ(clicks.count(), 0);
}

TEST(LongListBox, IsFilledAtOnceAndShownAboutAsFastAsAPlainView)
{
  const QStringList lines = ManyLines();
  const double plain = Nanoseconds([&] {
    QStringListModel model;
    QListView view;
    view.setUniformItemSizes(true);
    view.setModel(&model);
    view.resize(200, 400);
    model.setStringList(QStringList(lines.begin(), lines.end()));
    ShowOnce(view);
  });
  const double ours = Nanoseconds([&] {
    ListBox list;
    list.resize(200, 400);
    list.AddItems(lines);
    ShowOnce(list);
    ASSERT_EQ(list.ListCount(), kMany);
    ASSERT_EQ(list.List(kMany - 1), lines.back());
  });
  EXPECT_LT(ours, 3 * plain);
}

TEST(LongListBox, IsFilledLineByLineAboutAsFastAsAPlainView)
{
  const QStringList lines = ManyLines();
  const double plain = Nanoseconds([&] {
    QStringListModel model;
    QListView view;
    view.setUniformItemSizes(true);
    view.setModel(&model);
    view.resize(200, 400);
    for (int i = 0; i < kMany; ++i) {
      model.insertRow(i);
      model.setData(model.index(i), lines[i]);
    }
    ShowOnce(view);
  });
  const double ours = Nanoseconds([&] {
    ListBox list;
    list.resize(200, 400);
    for (const QString& line : lines) {
      list.AddItem(line);
    }
    ShowOnce(list);
    ASSERT_EQ(list.ListCount(), kMany);
  });
  EXPECT_LT(ours, 3 * plain);
}

TEST(LongListBox, LastLineIsReachedAndClicked)
{
  ListBox list;
  list.resize(200, 400);
  list.AddItems(ManyLines());
  ShowOnce(list);
  list.verticalScrollBar()->setValue(list.verticalScrollBar()->maximum());
  const QSignalSpy clicks(&list, &ListBox::Click);
  ClickLine(list, kMany - 1);
  EXPECT_EQ(list.ListIndex(), kMany - 1);
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ListBoxTest, OnlyWholeLinesAreShown)
{
  for (int i = 0; i < 40; ++i) {
    list_.AddItem(QString::number(i));
  }
  Show();
  const int line = list_.sizeHintForRow(0);
  for (const int lines : {1, 3, 5}) {
    for (const int rest : {1, line / 2, line - 1}) {
      list_.resize(200, 2 * list_.frameWidth() + lines * line + rest);
      EXPECT_EQ(list_.viewport()->height(), lines * line) << lines << " lines and " << rest;
    }
  }
}

TEST_F(ListBoxTest, AListLowerThanALineShowsWhatItCan)
{
  Show();
  const int height = list_.sizeHintForRow(0) - 4;
  list_.resize(200, 2 * list_.frameWidth() + height);
  EXPECT_EQ(list_.viewport()->height(), height);
}

TEST_F(ListBoxTest, WhiteCellLetsThroughWhatIsBehindAndAnotherColourDoesNot)
{
  QWidget ground;
  QPalette palette;
  palette.setColor(QPalette::Window, Qt::red);
  ground.setPalette(palette);
  list_.setParent(&ground);
  list_.setStyleSheet(QStringLiteral("border: none; background: rgba(255, 255, 255, 50%)"));
  const auto below = [&] { return ground.grab().toImage().pixelColor(100, 100); };
  list_.SetBackColor(Qt::white);
  EXPECT_EQ(below(), QColor(Qt::white));
  list_.setProperty("role", QStringLiteral("cell"));
  EXPECT_LT(below().green(), 200);
  EXPECT_EQ(below().red(), 255);
  list_.SetBackColor(Qt::yellow);
  EXPECT_EQ(below(), QColor(Qt::yellow));
  list_.setParent(nullptr);
}
