// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

#include <QHelpEvent>
#include <QToolTip>

namespace {

const QColor kLitList(0xFF, 0xF9, 0xE9);
const QColor kLitText(0xD1, 0x8C, 0x41);

class RemindersHover : public RemindersTest
{
protected:
  ~RemindersHover() override { QToolTip::hideText(); }

  void OpenWithEvents()
  {
    AddEvent("2026-05-12", "One");
    AddEvent("2026-05-12", "Two");
    AddEvent("2026-05-14", "Picnic");
    Open();
    QTest::mouseMove(&Page(), QPoint(690, 505));
    QTest::mouseMove(&Page(), QPoint(691, 506));
  }

  static QPoint MiddleOf(ListBox& list, int line) { return list.visualRect(list.model()->index(line, 0)).center(); }
  static void MoveOverLine(int cell, int line)
  {
    ListBox& list = Cell(cell);
    QTest::mouseMove(list.viewport(), MiddleOf(list, line) - QPoint(1, 0));
    QTest::mouseMove(list.viewport(), MiddleOf(list, line));
  }
  static void MoveOver(const QString& name) { Drive::MoveOver(Page(), name); }
  static bool MarkShown() { return IsShown("picSelect"); }

  // The mark stands at the height of that line, in the part of the picture that is its cell.
  static void ExpectMarkAt(int cell, int line)
  {
    ASSERT_TRUE(MarkShown());
    ListBox& list = Cell(cell);
    const QRect row = list.visualRect(list.model()->index(line, 0));
    const QRect onPage(list.viewport()->mapTo(&Page(), row.topLeft()), row.size());
    QWidget& mark = Control("picSelect");
    const QRect place(mark.parentWidget()->mapTo(&Page(), mark.pos()), mark.size());
    EXPECT_GE(place.center().y(), onPage.top()) << cell << " " << line;
    EXPECT_LE(place.center().y(), onPage.bottom()) << cell << " " << line;
    const QRect listOnPage(list.parentWidget()->mapTo(&Page(), list.pos()), list.size());
    EXPECT_GE(place.center().x(), listOnPage.left() - 8);
    EXPECT_LE(place.center().x(), listOnPage.right());
  }

  // Of those that show.
  static std::vector<int> LitLists()
  {
    std::vector<int> lit;
    for (int i = 0; i < kCellCount; ++i) {
      if (IsShown(Cell(i)) && Cell(i).BackColor() == kLitList) {
        lit.push_back(i);
      }
    }
    return lit;
  }
  static std::vector<int> LitDays()
  {
    std::vector<int> lit;
    for (int i = 0; i < kCellCount; ++i) {
      if (Day(i).BackStyle() == Label::kOpaque) {
        lit.push_back(i);
      }
    }
    return lit;
  }

  static std::string TipAt(int cell, int line)
  {
    ListBox& list = Cell(cell);
    const QPoint point = MiddleOf(list, line);
    QHelpEvent ask(QEvent::ToolTip, point, list.viewport()->mapToGlobal(point));
    QApplication::sendEvent(list.viewport(), &ask);
    return QToolTip::text().toStdString();
  }
};

using Indices = std::vector<int>;

}

TEST_F(RemindersHover, NothingIsLitAtFirst)
{
  OpenWithEvents();
  EXPECT_EQ(LitLists(), Indices());
  EXPECT_EQ(LitDays(), Indices());
  EXPECT_FALSE(MarkShown());
}

TEST_F(RemindersHover, ADayLightsUpUnderTheMouse)
{
  OpenWithEvents();
  MoveOver("lblDay_16");
  EXPECT_EQ(LitDays(), Indices{16});
  MoveOver("lblDay_17");
  EXPECT_EQ(LitDays(), Indices{17});
  MoveOver("picReminders");
  EXPECT_EQ(LitDays(), Indices());
}

TEST_F(RemindersHover, ALitDayKeepsItsColour)
{
  OpenWithEvents();
  MoveOver("lblDay_16");
  EXPECT_EQ(Day(16).ForeColor(), kTodayColour);
  MoveOver("lblDay_17");
  EXPECT_EQ(Day(17).ForeColor(), kDayColour);
  MoveOver("picReminders");
  ExpectMonth(2026, 5);
}

TEST_F(RemindersHover, AnEventRowIsMarkedAndItsListLitUnderTheMouse)
{
  OpenWithEvents();
  MoveOverLine(16, 0);
  EXPECT_EQ(LitLists(), Indices{16});
  ExpectMarkAt(16, 0);
  MoveOverLine(16, 1);
  EXPECT_EQ(LitLists(), Indices{16});
  ExpectMarkAt(16, 1);
}

TEST_F(RemindersHover, AnotherListPutsTheFirstOut)
{
  OpenWithEvents();
  MoveOverLine(16, 0);
  MoveOverLine(18, 0);
  EXPECT_EQ(LitLists(), Indices{18});
  EXPECT_EQ(Cell(16).BackColor(), QColor(Qt::white));
  ExpectMarkAt(18, 0);
}

TEST_F(RemindersHover, ADayPutsTheListsOutAndTakesTheMarkAway)
{
  OpenWithEvents();
  MoveOverLine(16, 1);
  ASSERT_TRUE(MarkShown());
  MoveOver("lblDay_16");
  EXPECT_EQ(LitDays(), Indices{16});
  EXPECT_EQ(LitLists(), Indices());
  EXPECT_EQ(Cell(16).BackColor(), QColor(Qt::white));
  EXPECT_FALSE(MarkShown());
  MoveOverLine(16, 0);
  EXPECT_EQ(LitDays(), Indices());
  EXPECT_EQ(LitLists(), Indices{16});
  ExpectMarkAt(16, 0);
}

TEST_F(RemindersHover, AnythingElsePutsTheListsOut)
{
  OpenWithEvents();
  for (const char* other : {"picReminders", "", "lblTitle", "lblMonth", "lblOptions_0", "Label2_3"}) {
    MoveOverLine(16, 0);
    ASSERT_EQ(LitLists(), Indices{16}) << other;
    MoveOver(other);
    EXPECT_EQ(LitLists(), Indices()) << other;
    EXPECT_FALSE(MarkShown()) << other;
  }
}

TEST_F(RemindersHover, TheMarkDoesNotOutliveItsMonth)
{
  OpenWithEvents();
  MoveOverLine(16, 0);
  ASSERT_TRUE(MarkShown());
  QTest::keyClick(&Page(), Qt::Key_PageDown);
  ExpectMonth(2026, 6);
  EXPECT_FALSE(MarkShown());
}

TEST_F(RemindersHover, AListLeftByAStepIsPlainWhenItComesBack)
{
  OpenWithEvents();
  MoveOverLine(16, 0);
  QTest::keyClick(&Page(), Qt::Key_PageDown);
  MoveOver("lblTitle");
  QTest::keyClick(&Page(), Qt::Key_PageUp);
  ExpectMonth(2026, 5);
  EXPECT_EQ(LitLists(), Indices());
  EXPECT_FALSE(MarkShown());
}

TEST_F(RemindersHover, ACommandLightsUpWithItsText)
{
  OpenWithEvents();
  auto& next = dynamic_cast<Label&>(Control("lblOptions_0"));
  auto& previous = dynamic_cast<Label&>(Control("lblOptions_1"));
  ASSERT_EQ(next.ForeColor(), QColor(Qt::black));
  MoveOver("lblOptions_0");
  EXPECT_EQ(next.BackStyle(), Label::kOpaque);
  EXPECT_EQ(next.ForeColor(), kLitText);
  MoveOver("lblOptions_1");
  EXPECT_EQ(next.BackStyle(), Label::kTransparent);
  EXPECT_EQ(next.ForeColor(), QColor(Qt::black));
  EXPECT_EQ(previous.BackStyle(), Label::kOpaque);
  MoveOver("");
  EXPECT_EQ(previous.BackStyle(), Label::kTransparent);
  EXPECT_EQ(previous.ForeColor(), QColor(Qt::black));
}

TEST_F(RemindersHover, ALineThatIsCutOffIsToldWhole)
{
  AddEvent("2026-05-12", "A title that is far too long for the cell of a day", "21:30:00");
  Open();
  EXPECT_NE(TipAt(16, 0).find("A title that is far too long for the cell of a day 9:30pm"), std::string::npos)
      << TipAt(16, 0);
}

TEST_F(RemindersHover, ALineThatFitsHasTheTipOfItsList)
{
  OpenWithEvents();
  EXPECT_EQ(TipAt(16, 0), "Click on an event for more details");
}

TEST_F(RemindersHover, ACutOffLineWithMarkupIsToldAsItIs)
{
  const QString title = "<b>A title</b> that is far too long & wide for the cell of a day";
  AddEvent("2026-05-12", title);
  Open();
  const std::string tip = TipAt(16, 0);
  EXPECT_TRUE(tip.find(title.toStdString()) != std::string::npos ||
              tip.find(title.toHtmlEscaped().toStdString()) != std::string::npos)
      << tip;
  EXPECT_FALSE(Qt::mightBeRichText(QString::fromStdString(tip)) && tip.find("<b>") != std::string::npos) << tip;
}

TEST_F(RemindersHover, WithoutTipsNoLineIsTold)
{
  modToolTips::SetTipsOff(true);
  AddEvent("2026-05-12", "A title that is far too long for the cell of a day", "21:30:00");
  Open();
  EXPECT_EQ(TipAt(16, 0), "");
}
