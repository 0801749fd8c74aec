// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ChartsTest.h"

#include "charts/ChartLook.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QGraphicsTextItem>
#include <QHelpEvent>
#include <QToolTip>
#include <QWheelEvent>

namespace {

// The chart of the page, with cities of every number and length.
class ChartControlTest : public ChartsTest
{
protected:
  void OpenCities()
  {
    Open();
    Choose(Subject::kCity);
    QCoreApplication::processEvents();
  }

  static QStringList Names()
  {
    QStringList names = Chart().Bars().Names().categories();
    for (QString& name : names) {
      name.remove(QChar(0x200B));
    }
    return names;
  }

  // The places of the names below the bars, on the chart.
  static std::vector<QRectF> PlacesOfNames()
  {
    const QStringList names = Chart().Bars().Names().categories();
    std::vector<QRectF> places;
    for (const QGraphicsItem* item : Chart().Bars().scene()->items()) {
      const auto* text = qgraphicsitem_cast<const QGraphicsTextItem*>(item);
      if (text != nullptr && text->isVisible() && names.contains(text->toPlainText().toHtmlEscaped())) {
        places.push_back(text->sceneBoundingRect());
      }
    }
    return places;
  }
  static void ExpectApart(const std::vector<QRectF>& places)
  {
    for (std::size_t i = 0; i < places.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        // Texts have a margin of 4 pixels around them.
        EXPECT_FALSE(places[i].adjusted(4, 4, -4, -4).intersects(places[j].adjusted(4, 4, -4, -4)));
      }
    }
  }

  // Of the names beside the circle: apart, on the chart and off the circle. How many there are.
  static std::size_t ExpectNamesInTheirRoom()
  {
    const CircleChart& circles = Chart().Circles();
    const QRectF room(circles.rect());
    const double radius = circles.Series().pieSize() * std::min(room.width(), room.height()) / 2;
    std::vector<QRectF> places;
    for (const QGraphicsItem* item : circles.scene()->items()) {
      if (const auto* text = qgraphicsitem_cast<const QGraphicsSimpleTextItem*>(item)) {
        places.push_back(text->sceneBoundingRect());
      }
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
      EXPECT_TRUE(room.contains(places[i]));
      EXPECT_TRUE(places[i].left() > room.center().x() + radius || places[i].right() < room.center().x() - radius);
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(places[i].adjusted(0, 1, 0, -1).intersects(places[j].adjusted(0, 1, 0, -1)));
      }
    }
    return places.size();
  }

  static std::string TipAt(ChartView& view, const QPoint& place)
  {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(view.viewport(), &event);
    return QToolTip::isVisible() ? QToolTip::text().toStdString() : std::string();
  }
  static QPoint PlaceOfBar(int bar, double total)
  {
    BarChart& bars = Chart().Bars();
    return bars.mapFromScene(
        bars.chart()->mapToScene(bars.chart()->mapToPosition(QPointF(bar, total), &bars.Series())));
  }
  static std::string AsTip(const QString& text)
  {
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(text.toHtmlEscaped()).toStdString();
  }

  static void Turn(int delta)
  {
    BarChart& bars = Chart().Bars();
    const QPointF place = bars.rect().center();
    QWheelEvent event(place, bars.mapToGlobal(place), {}, QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(bars.viewport(), &event);
  }
};

}

TEST_F(ChartControlTest, TwoCitiesAreAllInViewWithTheirNamesAcross)
{
  AddPerson("Ayr");
  AddPerson("Bonn");
  AddPerson("Bonn");
  OpenCities();
  EXPECT_EQ(Bars(), "Ayr: 1, Bonn: 2");
  EXPECT_FALSE(Chart().ScrollBar().isVisible());
  EXPECT_EQ(Chart().Bars().Names().labelsAngle(), 0);
  EXPECT_TRUE(Chart().Bars().Series().isLabelsVisible());
  const double widthOfOne = Chart().Bars().chart()->plotArea().width() / 2;
  EXPECT_LE(Chart().Bars().Series().barWidth() * widthOfOne, 64 + 1e-6);
}

TEST_F(ChartControlTest, TheAxisOfTotalsCountsInWholeNumbers)
{
  for (const int people : {1, 2, 3, 7, 19}) {
    folder.Execute("DELETE FROM People");
    for (int i = 0; i < people; ++i) {
      AddPerson("Ayr");
    }
    if (Forms::Loaded("frmCharts") == nullptr) {
      Open();
    }
    Choose(Subject::kCity);
    const QValueAxis& axis = Chart().Bars().Totals();
    EXPECT_EQ(axis.min(), 0);
    EXPECT_GT(axis.max(), people);
    const double step = axis.max() / (axis.tickCount() - 1);
    EXPECT_EQ(step, std::floor(step)) << people;
    EXPECT_GE(step, 1) << people;
    EXPECT_EQ(axis.labelFormat(), "%d");
  }
}

TEST_F(ChartControlTest, TwoHundredCitiesScrollAndTheirNamesNeverMeet)
{
  AddCities(200);
  OpenCities();
  EXPECT_TRUE(Chart().ScrollBar().isVisible());
  const auto shown = static_cast<int>(Chart().Bars().Shown());
  EXPECT_GT(shown, 10);
  EXPECT_LT(shown, 40);
  EXPECT_EQ(Chart().ScrollBar().maximum(), 200 - shown);
  EXPECT_EQ(Names().first(), "City 0000");
  EXPECT_EQ(Names().size(), shown);
  const std::vector<QRectF> places = PlacesOfNames();
  EXPECT_EQ(static_cast<int>(places.size()), shown);
  ExpectApart(places);
}

TEST_F(ChartControlTest, ScrollingReachesTheLastCityOnTheSameScale)
{
  AddCities(200);
  OpenCities();
  const double top = Chart().Bars().Totals().max();
  Chart().ScrollBar().setValue(Chart().ScrollBar().maximum());
  EXPECT_EQ(Names().last(), "City 0199");
  EXPECT_TRUE(Bars().ends_with("City 0199: 5"));
  EXPECT_EQ(Chart().Bars().Totals().max(), top);
  Chart().ScrollBar().setValue(3);
  EXPECT_EQ(Names().first(), "City 0003");
}

TEST_F(ChartControlTest, KeysAndWheelScroll)
{
  AddCities(200);
  OpenCities();
  ChartControl& chart = Chart();
  chart.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&chart, Qt::Key_Right);
  EXPECT_EQ(Names().first(), "City 0001");
  QTest::keyClick(&chart, Qt::Key_Left);
  EXPECT_EQ(Names().first(), "City 0000");
  QTest::keyClick(&chart, Qt::Key_PageDown);
  EXPECT_EQ(chart.ScrollBar().value(), chart.Bars().Shown());
  QTest::keyClick(&chart, Qt::Key_PageUp);
  EXPECT_EQ(chart.ScrollBar().value(), 0);
  QTest::keyClick(&chart, Qt::Key_End);
  EXPECT_EQ(Names().last(), "City 0199");
  QTest::keyClick(&chart, Qt::Key_Home);
  EXPECT_EQ(Names().first(), "City 0000");
  QTest::keyClick(&chart, Qt::Key_A);
  EXPECT_EQ(Names().first(), "City 0000");
  Turn(-120);
  EXPECT_EQ(Names().first(), "City 0003");
  Turn(120);
  EXPECT_EQ(Names().first(), "City 0000");
  for (int small = 0; small < 8; ++small) {
    Turn(-5);
  }
  EXPECT_EQ(Names().first(), "City 0001");
}

TEST_F(ChartControlTest, AnotherSubjectBeginsAtTheLeft)
{
  AddCities(200);
  OpenCities();
  Chart().ScrollBar().setValue(100);
  Choose(Subject::kAge);
  EXPECT_FALSE(Chart().ScrollBar().isVisible());
  Choose(Subject::kCity);
  EXPECT_EQ(Names().first(), "City 0000");
  EXPECT_EQ(Chart().ScrollBar().value(), 0);
  folder.Execute("UPDATE People SET Province = City");
  Chart().ScrollBar().setValue(100);
  Choose(Subject::kProvince);
  EXPECT_EQ(Names().first(), "City 0000");
  EXPECT_EQ(Chart().ScrollBar().value(), 0);
}

TEST_F(ChartControlTest, CirclesDoNotScrollAndBarsComeBackWhereTheyWere)
{
  AddCities(200);
  OpenCities();
  Chart().ScrollBar().setValue(50);
  ChooseCircles();
  EXPECT_FALSE(Chart().ScrollBar().isVisible());
  EXPECT_EQ(Chart().Circles().Series().count(), 200);
  QTest::keyClick(&Chart(), Qt::Key_Right);
  ChooseBars();
  EXPECT_TRUE(Chart().ScrollBar().isVisible());
  EXPECT_EQ(Names().first(), "City 0050");
}

TEST_F(ChartControlTest, ALargerChartShowsMoreBars)
{
  AddCities(200);
  OpenCities();
  const qsizetype before = Chart().Bars().Shown();
  Chart().ScrollBar().setValue(Chart().ScrollBar().maximum());
  frame.window.resize(1900, 1000);
  Page().resize(1900, 1000);
  QCoreApplication::processEvents();
  EXPECT_GT(Chart().Bars().Shown(), 2 * before);
  EXPECT_EQ(Names().last(), "City 0199");
  ExpectApart(PlacesOfNames());
  Page().resize(744, 529);
  EXPECT_EQ(Chart().Bars().Shown(), before);
}

TEST_F(ChartControlTest, LongNamesStandOnEndAndAreCutToTheirRoom)
{
  const QString wide(30, u'W');
  AddPerson(wide);
  AddPerson("Llanfairpwllgwyngyllgogerychwy");
  for (const char* city : {"Ayr", "Bonn", "Cork", "Dijon", "Evry"}) {
    AddPerson(city);
  }
  OpenCities();
  EXPECT_EQ(Chart().Bars().Names().labelsAngle(), -90);
  EXPECT_EQ(Names().first(), "Ayr");
  EXPECT_TRUE(Names().last().endsWith(u'…'));
  EXPECT_TRUE(Names().last().startsWith("WWW"));
  ExpectApart(PlacesOfNames());
  for (const QRectF& place : PlacesOfNames()) {
    EXPECT_LE(place.bottom() - 4, Chart().Bars().height());
  }
  EXPECT_EQ(TipAt(Chart().Bars(), PlaceOfBar(6, 0.5)), AsTip(wide + ": 1")) << "the tip has it whole";
}

TEST_F(ChartControlTest, LongNamesThatAreCutAlikeKeepTheirBars)
{
  const QString same(29, u'W');
  for (const char* end : {"a", "b", "c"}) {
    AddPerson(same + end);
    AddPerson(same + end);
  }
  AddPerson("Ayr");
  OpenCities();
  EXPECT_EQ(Chart().Bars().Names().count(), 4);
  const QStringList names = Names();
  EXPECT_EQ(names[1], names[2]);
  EXPECT_EQ(names[2], names[3]);
  EXPECT_EQ(Chart().Bars().Series().barSets().first()->at(3), 2);
}

TEST_F(ChartControlTest, NamesAreNoMarkUp)
{
  AddPerson("A & B");
  AddPerson("<b>Bold</b>");
  OpenCities();
  std::vector<std::string> shown;
  for (const QGraphicsItem* item : Chart().Bars().scene()->items()) {
    if (const auto* text = qgraphicsitem_cast<const QGraphicsTextItem*>(item)) {
      shown.push_back(text->toPlainText().toStdString());
    }
  }
  EXPECT_EQ(std::count(shown.begin(), shown.end(), "A & B"), 1);
  EXPECT_EQ(std::count(shown.begin(), shown.end(), "<b>Bold</b>"), 1);
  EXPECT_EQ(TipAt(Chart().Bars(), PlaceOfBar(0, 0.5)), AsTip("<b>Bold</b>: 1"));
}

TEST_F(ChartControlTest, BarsTellTheirNameAndTotal)
{
  AddPerson("Ayr");
  AddPerson("Bonn");
  AddPerson("Bonn");
  OpenCities();
  EXPECT_EQ(TipAt(Chart().Bars(), PlaceOfBar(0, 0.5)), AsTip("Ayr: 1"));
  EXPECT_EQ(TipAt(Chart().Bars(), PlaceOfBar(1, 1.5)), AsTip("Bonn: 2"));
  EXPECT_EQ(TipAt(Chart().Bars(), PlaceOfBar(0, 1.9)), AsTip("Ayr: 1")) << "also above a low bar";
  EXPECT_EQ(TipAt(Chart().Bars(), QPoint(2, 2)), "");
  EXPECT_EQ(TipAt(Chart().Bars(), PlaceOfBar(0, -0.5)), "");
}

TEST_F(ChartControlTest, ScrolledBarsTellTheirOwnName)
{
  AddCities(200);
  OpenCities();
  Chart().ScrollBar().setValue(7);
  EXPECT_EQ(TipAt(Chart().Bars(), PlaceOfBar(0, 0.5)), AsTip("City 0007: 3"));
}

TEST_F(ChartControlTest, SlicesTellTheirNameAndTotal)
{
  AddPerson("Ayr");
  AddPerson("Bonn");
  AddPerson("Bonn");
  AddPerson("Bonn");
  Open();
  ChooseCircles();
  Choose(Subject::kCity);
  CircleChart& circles = Chart().Circles();
  const QPoint centre = circles.rect().center();
  EXPECT_EQ(TipAt(circles, centre + QPoint(20, -20)), AsTip("Ayr: 1"));
  EXPECT_EQ(TipAt(circles, centre + QPoint(-20, 0)), AsTip("Bonn: 3"));
  EXPECT_EQ(TipAt(circles, QPoint(3, 3)), "");
}

TEST_F(ChartControlTest, WithTipsOffNothingIsTold)
{
  AddPerson("Ayr");
  OpenCities();
  modToolTips::SetTipsOff(true);
  EXPECT_EQ(TipAt(Chart().Bars(), PlaceOfBar(0, 0.5)), "");
  ChooseCircles();
  EXPECT_EQ(TipAt(Chart().Circles(), Chart().Circles().rect().center() + QPoint(20, 0)), "");
}

TEST_F(ChartControlTest, SlicesHaveTheirNamesBesideThem)
{
  folder.Execute("UPDATE TotalBirthdays SET Total = rowid");
  Open();
  ChooseCircles();
  Choose(Subject::kBirthdays);
  QStringList labels = Chart().Circles().Labels();
  QStringList expected;
  const QStringList months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  for (int month = 0; month < 12; ++month) {
    expected.append(QStringLiteral("%1: %2").arg(months[month]).arg(month + 1));
  }
  labels.sort();
  expected.sort();
  EXPECT_EQ(labels, expected);
}

TEST_F(ChartControlTest, NamesBesideTheCircleNeverMeetAndStayOnTheChart)
{
  AddCities(200);
  Open();
  ChooseCircles();
  Choose(Subject::kCity);
  EXPECT_GT(ExpectNamesInTheirRoom(), 12U);
  folder.Execute("DELETE FROM People");
  for (int i = 1; i <= 30; ++i) {
    AddPerson(QString(i, u'W'));
  }
  Choose(Subject::kCity);
  EXPECT_GT(ExpectNamesInTheirRoom(), 12U);
}

TEST_F(ChartControlTest, TotalsStayWhereNamesAreCut)
{
  AddPerson(QString(30, u'W'));
  AddPerson(QString(30, u'M'));
  AddPerson(QString(30, u'M'));
  Open();
  ChooseCircles();
  Choose(Subject::kCity);
  QStringList labels = Chart().Circles().Labels();
  labels.sort();
  ASSERT_EQ(labels.size(), 2);
  EXPECT_TRUE(labels[0].startsWith("MMM"));
  EXPECT_TRUE(labels[0].endsWith("…: 2"));
  EXPECT_TRUE(labels[1].endsWith("…: 1"));
}

TEST_F(ChartControlTest, ColoursAreThoseOfThePalette)
{
  AddCities(13);
  Open();
  Choose(Subject::kCity);
  EXPECT_EQ(Chart().Bars().Series().barSets().first()->color(), QColor(0xD1, 0x8C, 0x41));
  ChooseCircles();
  const QList<QPieSlice*> slices = Chart().Circles().Series().slices();
  for (qsizetype i = 0; i < slices.size(); ++i) {
    EXPECT_EQ(slices[i]->color(), ChartLook::SliceColour(std::size_t(i), std::size_t(slices.size()))) << i;
  }
  EXPECT_EQ(slices[0]->color(), QColor(0xD1, 0x8C, 0x41));
  EXPECT_EQ(slices[5]->color(), QColor(0x80, 0x40, 0x00));
}

TEST_F(ChartControlTest, TellsAScreenReaderAllThatItShows)
{
  AddCities(30);
  OpenCities();
  QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&Chart());
  ASSERT_NE(told, nullptr);
  EXPECT_EQ(told->role(), QAccessible::Chart);
  EXPECT_EQ(told->text(QAccessible::Name), "People by city");
  const QString description = told->text(QAccessible::Description);
  EXPECT_TRUE(description.startsWith("City 0000: 1, City 0001: 2, "));
  EXPECT_TRUE(description.endsWith(", City 0029: 5")) << "also what is not in view";
}

TEST_F(ChartControlTest, ShowsTheFocusOfTheKeyboard)
{
  AddPerson("Ayr");
  OpenCities();
  const QImage plain = Chart().grab().toImage();
  Chart().setFocus(Qt::TabFocusReason);
  EXPECT_NE(Chart().grab().toImage(), plain);
  Choice(0).setFocus();
  EXPECT_EQ(Chart().grab().toImage(), plain);
}

TEST_F(ChartControlTest, TitlesThatComeLaterLeaveTheBarsTheirRoom)
{
  AddCities(200);
  DataControl data;
  data.SetConnectionString(folder.DatabasePath());
  data.SetRecordSource("SELECT City, Count(City) AS Total FROM People GROUP BY City");
  ChartControl chart;
  chart.SetDataSource(data);
  chart.resize(448, 416);
  chart.show();
  data.Refresh();
  const qsizetype before = chart.Bars().Shown();
  chart.SetYAxisTitle("People");
  chart.SetXAxisTitle("City");
  EXPECT_LT(chart.Bars().Shown(), before);
  const double room = chart.Bars().chart()->plotArea().width();
  EXPECT_GE(room / double(chart.Bars().Shown()), 20);
  chart.SetYAxisTitle("");
  EXPECT_EQ(chart.Bars().Shown(), before);
}

TEST_F(ChartControlTest, StandsWithoutASource)
{
  ChartControl chart;
  chart.resize(300, 200);
  chart.show();
  chart.SetChartType(ChartControl::kCircles);
  chart.SetChartType(ChartControl::kBars);
  QTest::keyClick(&chart, Qt::Key_Right);
  EXPECT_EQ(chart.InWords(), "");
  EXPECT_EQ(InSeries::Bars(chart.Bars()), "");
}

TEST_F(ChartControlTest, TinySizesAreNoFailure)
{
  AddCities(30);
  OpenCities();
  for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(17, 17), QSize(30, 30), QSize(20, 400), QSize(400, 40)}) {
    Chart().resize(size);
    ChooseCircles();
    ChooseBars();
    Choose(Subject::kCity);
    Chart().grab();
  }
  Page().resize(745, 529);
  EXPECT_EQ(Names().first(), "City 0000");
}
