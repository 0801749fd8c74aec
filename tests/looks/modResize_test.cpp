// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/modResize.h"

#include "controls/ComboBox.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/PictureBox.h"
#include "controls/Shape.h"

#include <gtest/gtest.h>

#include <QEvent>
#include <QFrame>
#include <QTest>

namespace {

// A page whose controls a test puts on it before it is loaded.
class Page : public Form
{
public:
  Page(const QString& name, QSize designSize) : Form(name, Kind::kPage) { resize(designSize); }

  template <typename T = Label>
  T& Add(const char* name, const QRect& place, QWidget* parent = nullptr)
  {
    auto* control = new T(parent != nullptr ? parent : this);
    control->setObjectName(QString::fromLatin1(name));
    control->setGeometry(place);
    return *control;
  }

  int resizes = 0;

protected:
  void Form_Load() override { modResize::InitControlsToResize(*this); }
  void Form_Resize() override
  {
    ++resizes;
    modResize::ResizeWithFrame(*this);
  }
};

class StandInFrame : public Frame
{
public:
  [[nodiscard]] WindowState State() const override { return state_; }
  void SetState(WindowState state) override { state_ = state; }
  bool Unload() override { return true; }
  void PlacePage(Form& page) override
  {
    page.setParent(&window);
    page.setGeometry(window.rect());
    page.show();
    window.show();
  }
  void OpenPage(const QString& /*name*/) override {}
  [[nodiscard]] bool TimerEnabled() const override { return false; }
  void AllowDatabaseCare(bool /*allowed*/) override {}
  void SetTimerEnabled(bool /*enabled*/) override {}

  QWidget window;

private:
  WindowState state_ = WindowState::kNormal;
};

// Counts how often controls are moved and sized.
class Counter : public QObject
{
public:
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (event->type() == QEvent::Move) {
      ++moves[watched];
    } else if (event->type() == QEvent::Resize) {
      ++resizes[watched];
    }
    return false;
  }

  std::map<QObject*, int> moves;
  std::map<QObject*, int> resizes;
};

class ResizeTest : public testing::Test
{
protected:
  ~ResizeTest() override
  {
    for (Form* form : Forms::AllLoaded()) {
      form->Unload();
    }
    Forms::UnregisterAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static Page& Load(QSize designSize, const std::function<void(Page&)>& build)
  {
    const QString name = QStringLiteral("frmIntro");
    Forms::Register(name, [=] {
      auto* page = new Page(name, designSize);
      build(*page);
      return page;
    });
    return static_cast<Page&>(Forms::Load(name));
  }

  static QWidget& Control(const Form& form, const char* name) { return *form.Control(QString::fromLatin1(name)); }
  static QRect PlaceOf(const Form& form, const char* name) { return Control(form, name).geometry(); }
  static std::string TagOf(const Form& form, const char* name)
  {
    return modResize::TagOf(Control(form, name)).toStdString();
  }

  // The form at another size, its controls moved.
  static void Resize(Form& form, int width, int height)
  {
    form.resize(width, height);
    modResize::ResizeControls(form);
  }

  StandInFrame frame_;
};

void ExpectNear(const QRect& actual, const QRect& expected)
{
  EXPECT_NEAR(actual.x(), expected.x(), 1);
  EXPECT_NEAR(actual.y(), expected.y(), 1);
  EXPECT_NEAR(actual.width(), expected.width(), 1);
  EXPECT_NEAR(actual.height(), expected.height(), 1);
}

}

TEST(FormatRatio, HasAPointAndFourDecimals)
{
  struct Case
  {
    double ratio;
    const char* field;
  };
  const std::vector<Case> cases = {
      {0, ".0000"},          {0.25, ".2500"},    {0.5, ".5000"},       {1.0 / 3, ".3333"}, {2.0 / 3, ".6667"},
      {0.0001, ".0001"},     {0.00004, ".0000"}, {0.00006, ".0001"},   {0.99994, ".9999"}, {0.99995, "1.0000"},
      {0.03125, ".0313"},    {0.09375, ".0938"}, {-0.03125, "-.0313"}, {1, "1.0000"},      {1.5, "1.5000"},
      {12.34567, "12.3457"}, {-0.25, "-.2500"},  {-0.0125, "-.0125"},  {-1, "-1.0000"},    {-1.25, "-1.2500"},
      {-0.99995, "-1.0000"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(modResize::FormatRatio(c.ratio).toStdString(), c.field) << c.ratio;
  }
}

TEST(ReadRatios, CutsAtFixedPlaces)
{
  struct Case
  {
    const char* what;
    const char* tag;
    std::array<double, 4> ratios;
  };
  const std::vector<Case> cases = {
      {"all inside", ".2500.1250.5000.0625", {.25, .125, .5, .0625}},
      {"at the edge", ".0000.0000.9999.9999", {0, 0, .9999, .9999}},
      {"as wide as the form", ".0000.10001.0000.0625", {0, .1, 1, .062}},
      {"as wide and as high as the form", ".0000.00001.00001.0000", {0, 0, 1, 1}},
      {"as high as the form", ".0000.0000.50001.0000", {0, 0, .5, 1}},
      {"left of 1 or more", "1.2340.2500.5000.1239", {1.234, .25, .5, .123}},
      {"a last decimal of 7 before a shift", "1.2347.2500.5000.1239", {1.234, 7.25, .5, .123}},
      {"last decimals of 7 behind a shift", "1.2340.2507.5007.1239", {1.234, .25, 7.5, 7.123}},
      {"a last decimal of 7 before no shift", ".2347.2507.5007.1239", {.2347, .2507, .5007, .1239}},
      {"left below 0", "-.1000.2000.3000.4000", {-.1, .2, .3, .4}},
      {"left below 0 ending in 7", "-.1237.2000.3000.4000", {-.123, 7.2, .3, .4}},
      {"top below 0", ".1000-.2000.3000.4000", {.1, -.2, .3, .4}},
      {"left far below 0", "-1.2347.2000.3000.4000", {-1.23, 47.2, 0.3, 0.4}},
      {"a minus drawn into the field behind", "1.0000-.2500.5000.1000", {1, 0, 0.5, 0.1}},
      {"no tag", "", {0, 0, 0, 0}},
      {"a date for a tag", "3/15/2002", {3, 2002, 0, 0}},
  };
  for (const Case& c : cases) {
    const std::array<double, 4> ratios = modResize::ReadRatios(QString::fromLatin1(c.tag));
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_DOUBLE_EQ(ratios[i], c.ratios[i]) << c.what << ", field " << i;
    }
  }
}

TEST(Val, ReadsTheNumberThatATextBeginsWith)
{
  struct Case
  {
    const char* text;
    double value;
  };
  const std::vector<Case> cases = {
      {".2500", .25}, {"7.250", 7.25}, {"-.250", -.25}, {"-1.25", -1.25}, {"12", 12}, {"12 Elm St", 12}, {"1.2.3", 1.2},
      {"1-.25", 1},   {"0.-.5", 0},    {"", 0},         {"abc", 0},       {".", 0},   {"-", 0},          {"-.", 0},
      {"--1", 0},     {"00.50", .5},   {"٣", 0},        {"1٣", 1},        {"2.٣", 2},
  };
  for (const Case& c : cases) {
    EXPECT_DOUBLE_EQ(modResize::Val(QString::fromUtf8(c.text)), c.value) << c.text;
  }
}

TEST_F(ResizeTest, TagIsKeptOnTheControl)
{
  Label first;
  const Label second;
  EXPECT_EQ(modResize::TagOf(first), QString());
  modResize::SetTag(first, QStringLiteral("3/15/2002"));
  EXPECT_EQ(modResize::TagOf(first), QStringLiteral("3/15/2002"));
  EXPECT_EQ(modResize::TagOf(second), QString());
}

TEST_F(ResizeTest, ProportionsAreWrittenAtLoad)
{
  const Page& page = Load({400, 200}, [](Page& form) {
    auto& panel = form.Add<QFrame>("fraTools", {200, 100, 100, 50});
    form.Add("lblInner", {50, 25, 40, 20}, &panel);
    form.Add("lblTitle", {100, 50, 200, 25});
    form.Add("lblZero", {0, 0, 1, 1});
    form.Add("lblWide", {0, 20, 400, 100});
    form.Add("lblLeft", {-100, 0, 100, 100});
    form.Add("lblRight", {600, 0, 100, 100});
  });
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"fraTools", ".5000.5000.2500.2500"},  {"lblInner", ".1250.1250.1000.1000"}, {"lblTitle", ".2500.2500.5000.1250"},
      {"lblZero", ".0000.0000.0025.0050"},   {"lblWide", ".0000.10001.0000.5000"}, {"lblLeft", "-.2500.0000.2500.5000"},
      {"lblRight", "1.5000.0000.2500.5000"},
  };
  for (const auto& [name, tag] : cases) {
    EXPECT_EQ(TagOf(page, name), tag) << name;
  }
  EXPECT_EQ(TagOf(page, "lblTitle").size(), 20U);
}

TEST_F(ResizeTest, ControlsOfEveryKindFollowTheForm)
{
  Page& page = Load({400, 200}, [](Page& form) {
    form.Add("lblTitle", {100, 50, 200, 25});
    form.Add<ListBox>("lstNames", {0, 100, 100, 50});
    form.Add<PictureBox>("imgTheme", {300, 100, 50, 50});
    form.Add<Shape>("shpRule", {100, 80, 200, 10});
    auto& panel = form.Add<QFrame>("fraTools", {200, 100, 100, 50});
    form.Add("lblInner", {50, 25, 40, 20}, &panel);
  });
  Resize(page, 800, 600);
  EXPECT_EQ(PlaceOf(page, "lblTitle"), QRect(200, 150, 400, 75));
  EXPECT_EQ(PlaceOf(page, "lstNames"), QRect(0, 300, 200, 150));
  EXPECT_EQ(PlaceOf(page, "imgTheme"), QRect(600, 300, 100, 150));
  EXPECT_EQ(PlaceOf(page, "shpRule"), QRect(200, 240, 400, 30));
  EXPECT_EQ(PlaceOf(page, "fraTools"), QRect(400, 300, 200, 150));
  EXPECT_EQ(PlaceOf(page, "lblInner"), QRect(100, 75, 80, 60));
}

TEST_F(ResizeTest, SizesAreAlwaysTakenFromTheProportionsOfTheLoad)
{
  Page& page = Load({744, 529}, [](Page& form) {
    form.Add("lblOptions_0", {24, 184, 338, 30});
    form.Add("lblOptions_1", {77, 333, 111, 17});
  });
  const std::string tag = TagOf(page, "lblOptions_1");
  for (const QSize size : {QSize(200, 100), QSize(1920, 1080), QSize(333, 777), QSize(744, 529)}) {
    Resize(page, size.width(), size.height());
  }
  EXPECT_EQ(TagOf(page, "lblOptions_1"), tag);
  ExpectNear(PlaceOf(page, "lblOptions_0"), {24, 184, 338, 30});
  ExpectNear(PlaceOf(page, "lblOptions_1"), {77, 333, 111, 17});
}

TEST_F(ResizeTest, ControlAtTheLeftEdgeStaysThere)
{
  Page& page = Load({400, 200}, [](Page& form) { form.Add("lblTitle", {0, 50, 100, 25}); });
  for (const int width : {100, 401, 1920}) {
    Resize(page, width, 300);
    EXPECT_EQ(PlaceOf(page, "lblTitle").x(), 0);
  }
}

TEST_F(ResizeTest, ControlAsWideAsTheFormLosesADecimalOfItsHeight)
{
  Page& page = Load({1000, 2000}, [](Page& form) { form.Add("lblTitle", {0, 200, 1000, 125}); });
  ASSERT_EQ(TagOf(page, "lblTitle"), ".0000.10001.0000.0625");
  Resize(page, 1000, 2000);
  EXPECT_EQ(PlaceOf(page, "lblTitle"), QRect(0, 200, 1000, 124));
}

TEST_F(ResizeTest, ControlBehindAFieldThatEndsInSevenIsPlacedFarOutside)
{
  Page& page = Load({300, 200}, [](Page& form) { form.Add("lblTitle", {302, 50, 30, 20}); });
  ASSERT_EQ(TagOf(page, "lblTitle"), "1.0067.2500.1000.1000");
  Resize(page, 300, 200);
  ExpectNear(PlaceOf(page, "lblTitle"), {302, 1450, 30, 20});
}

TEST_F(ResizeTest, NoTagMovesAControlFartherThanTheToolkitCounts)
{
  Page& page = Load({400, 200}, [](Page& form) { form.Add("lblTitle", {0, 0, 100, 25}); });
  page.resize(1'000'000, 1'000'000);
  modResize::SetTag(Control(page, "lblTitle"), QStringLiteral("99999-999999999-9999"));
  modResize::ResizeControls(page);
  const QRect place = PlaceOf(page, "lblTitle");
  EXPECT_EQ(place.topLeft(), QPoint(QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX));
  EXPECT_EQ(place.width(), QWIDGETSIZE_MAX);
}

TEST_F(ResizeTest, ComboBoxKeepsItsHeight)
{
  Page& page = Load({400, 200}, [](Page& form) { form.Add<ComboBox>("cboMonth", {100, 50, 80, 24}); });
  Resize(page, 800, 600);
  EXPECT_EQ(PlaceOf(page, "cboMonth"), QRect(200, 150, 160, 24));
  Resize(page, 200, 100);
  EXPECT_EQ(PlaceOf(page, "cboMonth"), QRect(50, 25, 40, 24));
}

TEST_F(ResizeTest, MinimisedFrameMovesNothingAndKeepsTheProportions)
{
  Page& page = Load({400, 200}, [](Page& form) { form.Add("lblTitle", {100, 50, 200, 25}); });
  frame_.SetState(WindowState::kMinimised);
  page.resize(100, 100);
  modResize::ResizeWithFrame(page);
  EXPECT_EQ(PlaceOf(page, "lblTitle"), QRect(100, 50, 200, 25));
  EXPECT_EQ(TagOf(page, "lblTitle"), ".2500.2500.5000.1250");

  for (const WindowState state : {WindowState::kNormal, WindowState::kMaximised}) {
    frame_.SetState(state);
    page.resize(page.width() * 2, page.height() * 2);
    modResize::ResizeWithFrame(page);
    EXPECT_EQ(PlaceOf(page, "lblTitle").width(), page.width() / 2);
  }
}

TEST_F(ResizeTest, PageOpenedInALargeFrameKeepsTheProportionsOfItsDesign)
{
  Page& page = Load({400, 200}, [](Page& form) { form.Add("lblTitle", {100, 50, 200, 25}); });
  frame_.SetState(WindowState::kMaximised);
  frame_.window.resize(1600, 1000);
  page.Show();
  EXPECT_TRUE(QTest::qWaitFor([&] { return PlaceOf(page, "lblTitle") == QRect(400, 250, 800, 125); }));
  EXPECT_EQ(TagOf(page, "lblTitle"), ".2500.2500.5000.1250");
}

TEST_F(ResizeTest, EachControlIsMovedAtMostOnceAtAResize)
{
  Page& page = Load({800, 600}, [](Page& form) {
    for (int i = 0; i < 80; ++i) {
      const QByteArray number = QByteArray::number(i);
      const QRect place(10 + i % 8 * 90, 10 + i / 8 * 55, 80, 24);
      if (i % 4 == 0) {
        form.Add<ComboBox>("cbo" + number, place);
      } else if (i % 4 == 1) {
        form.Add<ListBox>("lst" + number, place);
      } else {
        form.Add("lbl" + number, place);
      }
    }
  });
  ASSERT_EQ(page.Controls().size(), 80U);
  frame_.window.resize(800, 600);
  page.Show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame_.window));
  QCoreApplication::processEvents();

  Counter counter;
  for (QWidget* control : page.Controls()) {
    control->installEventFilter(&counter);
  }
  const int resizesBefore = page.resizes;
  page.resize(1000, 900);
  QCoreApplication::processEvents();
  EXPECT_EQ(page.resizes, resizesBefore + 1);
  EXPECT_EQ(counter.moves.size(), 80U);
  EXPECT_EQ(counter.resizes.size(), 80U);
  for (QWidget* control : page.Controls()) {
    EXPECT_LE(counter.moves[control], 1) << control->objectName().toStdString();
    EXPECT_LE(counter.resizes[control], 1) << control->objectName().toStdString();
  }
}

TEST_F(ResizeTest, CalendarKeepsTheTagsOfItsListsBeside)
{
  const QString array = QStringLiteral("lstReminders");
  Page& page = Load({400, 200}, [](Page& form) {
    form.Add("lblTitle", {0, 0, 100, 20});
    form.Add<ListBox>("lstReminders_0", {100, 50, 80, 20});
    form.Add<ListBox>("lstReminders_1", {200, 50, 80, 20});
    form.Add<ListBox>("lstReminders_2", {300, 50, 40, 40});
  });
  const QStringList expected = {
      QStringLiteral(".2500.2500.2000.1000"),
      QStringLiteral(".5000.2500.2000.1000"),
      QStringLiteral(".7500.2500.1000.2000"),
  };
  QStringList tags;
  modResize::ObjectsToResize(page, array, tags);
  EXPECT_EQ(tags, expected);
  modResize::ObjectsToResize(page, array, tags);
  EXPECT_EQ(tags, expected);
  EXPECT_EQ(TagOf(page, "lblTitle"), ".0000.0000.2500.1000");

  for (const char* name : {"lstReminders_0", "lstReminders_1", "lstReminders_2"}) {
    modResize::SetTag(Control(page, name), QStringLiteral("3/15/2002"));
  }
  page.resize(800, 400);
  modResize::Resize(page, array, tags);
  EXPECT_EQ(TagOf(page, "lstReminders_1"), expected[1].toStdString());
  EXPECT_EQ(PlaceOf(page, "lblTitle"), QRect(0, 0, 200, 40));
  EXPECT_EQ(PlaceOf(page, "lstReminders_0"), QRect(200, 100, 160, 40));
  EXPECT_EQ(PlaceOf(page, "lstReminders_1"), QRect(400, 100, 160, 40));
  EXPECT_EQ(PlaceOf(page, "lstReminders_2"), QRect(600, 100, 80, 80));
}

TEST_F(ResizeTest, CalendarMatchesTagsAndListsWhereTheArrayDoesNotBeginAtZero)
{
  const QString array = QStringLiteral("lstReminders");
  Page& page = Load({400, 200}, [](Page& form) {
    form.Add<ListBox>("lstReminders_2", {200, 50, 80, 20});
    form.Add<ListBox>("lstReminders_1", {100, 50, 80, 20});
  });
  QStringList tags;
  modResize::ObjectsToResize(page, array, tags);
  for (const char* name : {"lstReminders_1", "lstReminders_2"}) {
    modResize::SetTag(Control(page, name), {});
  }
  modResize::Resize(page, array, tags);
  EXPECT_EQ(TagOf(page, "lstReminders_1"), ".2500.2500.2000.1000");
  EXPECT_EQ(TagOf(page, "lstReminders_2"), ".5000.2500.2000.1000");
}
