// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ComboBox.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "platform/Command.h"
#include "support/Drive.h"

#include <gtest/gtest.h>

#include <QFrame>
#include <QImage>
#include <QLineEdit>
#include <QPointer>
#include <QTextEdit>
#include <QWindow>

namespace {

// A form of 400 by 200 pixels with what a test puts on it.
class Page : public Form
{
public:
  Page(const QString& name, Kind kind) : Form(name, kind) { resize(400, 200); }

  template <typename T>
  T& Add(const char* name, QWidget* parent = nullptr)
  {
    auto* control = new T(parent != nullptr ? parent : this);
    control->setObjectName(QString::fromLatin1(name));
    control->setGeometry(10, 10, 100, 30);
    return *control;
  }

  bool refusesToUnload = false;
  bool unloadsOnCloseBox = true;
  QStringList events;

protected:
  void Form_Load() override { events.append(QStringLiteral("load")); }
  void Form_QueryUnload(bool& cancel) override { cancel = refusesToUnload; }
  void Form_Resize() override { events.append(QStringLiteral("resize %1 x %2").arg(ScaleWidth()).arg(ScaleHeight())); }
  void Form_CloseBox() override
  {
    events.append(QStringLiteral("close box"));
    if (unloadsOnCloseBox) {
      Form::Form_CloseBox();
    }
  }
};

// Holds the pages it is given in a window of 800 by 400 pixels.
class StandInFrame : public Frame
{
public:
  StandInFrame() { window_.resize(800, 400); }

  [[nodiscard]] WindowState State() const override { return WindowState::kMaximised; }
  void SetState(WindowState /*state*/) override {}
  bool Unload() override { return true; }
  void PlacePage(Form& page) override
  {
    placed.append(page.Name());
    page.setParent(&window_);
    page.setGeometry(window_.rect());
    page.show();
    window_.show();
  }
  void OpenPage(const QString& /*name*/) override {}
  [[nodiscard]] bool TimerEnabled() const override { return false; }
  void AllowDatabaseCare(bool /*allowed*/) override {}
  void SetTimerEnabled(bool /*enabled*/) override {}

  QStringList placed;

private:
  QWidget window_;
};

class FormTest : public testing::Test
{
protected:
  ~FormTest() override
  {
    for (Form* form : Forms::AllLoaded()) {
      static_cast<Page*>(form)->refusesToUnload = false;
      form->Unload();
    }
    Forms::UnregisterAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  using Build = std::function<void(Page&)>;

  static Page& Load(
      const char* name, Form::Kind kind, Build build = [](Page&) {})
  {
    const QString formName = QString::fromLatin1(name);
    Forms::Register(formName, [=] {
      auto* page = new Page(formName, kind);
      build(*page);
      return page;
    });
    return static_cast<Page&>(Forms::Load(formName));
  }

  static Page& Window(Build build = [](Page&) {}) { return Load("frmNotice", Form::Kind::kWindow, std::move(build)); }

  static std::string NamesOf(const std::vector<QWidget*>& widgets)
  {
    QStringList names;
    for (const QWidget* widget : widgets) {
      names.append(widget != nullptr ? widget->objectName() : QStringLiteral("-"));
    }
    return names.join(u' ').toStdString();
  }
};

// Counts what its command makes lasting.
class Writes : public Command::Participant
{
public:
  ~Writes() override { Command::Withdraw(*this); }
  void Settle() override { ++settled; }
  void Abandon() noexcept override { ++abandoned; }

  int settled = 0;
  int abandoned = 0;
};

}

TEST_F(FormTest, NameIsTheObjectName)
{
  const Page& page = Load("frmNew", Form::Kind::kPage);
  EXPECT_EQ(page.Name(), QStringLiteral("frmNew"));
  EXPECT_EQ(page.objectName(), QStringLiteral("frmNew"));
  EXPECT_EQ(page.FormKind(), Form::Kind::kPage);
}

TEST_F(FormTest, ScaleIsTheInnerAreaInTwips)
{
  Page& page = Window();
  page.resize(697, 514);
  EXPECT_EQ(page.ScaleWidth(), 10455);
  EXPECT_EQ(page.ScaleHeight(), 7710);
}

TEST_F(FormTest, BackColourIsWhiteAtFirstAndPainted)
{
  Page& page = Window();
  EXPECT_EQ(page.BackColor(), QColor(Qt::white));
  EXPECT_EQ(page.grab().toImage().pixelColor(200, 100), QColor(Qt::white));
  const QColor beige(0xFF, 0xF9, 0xE9);
  page.SetBackColor(beige);
  EXPECT_EQ(page.BackColor(), beige);
  const QImage painted = page.grab().toImage();
  for (const QPoint& corner : {QPoint(0, 0), QPoint(399, 0), QPoint(200, 100), QPoint(0, 199), QPoint(399, 199)}) {
    EXPECT_EQ(painted.pixelColor(corner), beige);
  }
}

TEST_F(FormTest, ControlsStandInTheOrderOfTheDesign)
{
  const Page& page = Window([](Page& form) {
    form.Add<Label>("lblTitle");
    auto& panel = form.Add<QFrame>("fraAdd");
    form.Add<Label>("lblOptions_0", &panel);
    form.Add<ComboBox>("cboMonth", &panel);
    form.Add<ListBox>("lstNames");
    form.Add<QTextEdit>("txtNotes");
    form.Add<QLineEdit>("txtFirst");
  });
  EXPECT_EQ(NamesOf(page.Controls()), "lblTitle fraAdd lblOptions_0 cboMonth lstNames txtNotes txtFirst");
}

TEST_F(FormTest, ControlsAreThereWhileTheFormLoads)
{
  class Counting : public Form
  {
  public:
    Counting() : Form(QStringLiteral("frmAnn"), Kind::kPage)
    {
      auto* label = new Label(this);
      label->setObjectName(QStringLiteral("lblTitle"));
    }
    std::size_t atLoad = 0;

  protected:
    void Form_Load() override { atLoad = Controls().size(); }
  };
  Forms::Register(QStringLiteral("frmAnn"), [] { return new Counting; });
  const Form& form = Forms::Load(QStringLiteral("frmAnn"));
  EXPECT_EQ(static_cast<const Counting&>(form).atLoad, 1U);
  Forms::Unload(QStringLiteral("frmAnn"));
}

TEST_F(FormTest, ControlIsFoundByItsName)
{
  Label* label = nullptr;
  const Page& page = Window([&](Page& form) {
    auto& panel = form.Add<QFrame>("fraAdd");
    label = &form.Add<Label>("lblTitle", &panel);
  });
  EXPECT_EQ(page.Control(QStringLiteral("lblTitle")), label);
  EXPECT_EQ(page.Control(QStringLiteral("lblOther")), nullptr);
}

TEST_F(FormTest, ArrayIsFoundByItsNameWithItsGaps)
{
  const Page& page = Window([](Page& form) {
    for (const char* name : {"lblDay_7", "lblDay_2", "lblDay", "lblDays_3", "lblWay_9", "lblDay_x", "lblDay_4"}) {
      form.Add<Label>(name);
    }
  });
  const Form::Elements days = page.ArrayNamed(QStringLiteral("lblDay"));
  EXPECT_EQ(days.lower, 2);
  EXPECT_EQ(NamesOf(days.widgets), "lblDay_2 - lblDay_4 - - lblDay_7");
}

TEST_F(FormTest, ArrayThatIsNotThereHasNoElements)
{
  const Page& page = Window([](Page& form) { form.Add<Label>("lblDay_0"); });
  EXPECT_TRUE(page.ArrayNamed(QStringLiteral("lblNames")).widgets.empty());
}

TEST_F(FormTest, ResizeIsToldOnceTheFormIsLoaded)
{
  Page& page = Window();
  page.Show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
  page.resize(420, 220);
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.events.contains(QStringLiteral("resize 6300 x 3300")); }));
  EXPECT_EQ(page.events.front(), QStringLiteral("load"));
}

TEST_F(FormTest, NoResizeIsToldBeforeTheFormIsLoaded)
{
  const Page& page = Window([](Page& form) {
    form.resize(500, 300);
    static_cast<void>(form.grab());
  });
  EXPECT_EQ(page.events, QStringList(QStringLiteral("load")));
}

TEST_F(FormTest, WindowIsShownAndHiddenAsAWindowOfItsOwn)
{
  Page& page = Window();
  EXPECT_FALSE(page.isVisible());
  page.Show();
  EXPECT_TRUE(page.isVisible());
  EXPECT_TRUE(page.isWindow());
  EXPECT_FALSE(page.isModal());
  page.Hide();
  EXPECT_FALSE(page.isVisible());
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNotice")), &page);
}

TEST_F(FormTest, PageIsShownInsideTheFrame)
{
  StandInFrame frame;
  Page& page = Load("frmNew", Form::Kind::kPage);
  page.Show();
  EXPECT_EQ(frame.placed, QStringList(QStringLiteral("frmNew")));
  EXPECT_TRUE(page.isVisible());
  EXPECT_FALSE(page.isWindow());
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.events.contains(QStringLiteral("resize 12000 x 6000")); }));
  EXPECT_EQ(page.events.front(), QStringLiteral("load"));
  Forms::Unload(QStringLiteral("frmNew"));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(FormTest, ModalWindowHoldsItsCallerUntilItIsHidden)
{
  Page& page = Window();
  bool wasModal = false;
  Drive::WhenShown(QStringLiteral("frmNotice"), [&](QWidget& shown) {
    wasModal = shown.windowModality() == Qt::ApplicationModal;
    page.Hide();
  });
  page.ShowModal();
  EXPECT_TRUE(wasModal);
  EXPECT_FALSE(page.isVisible());
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNotice")), &page);
}

TEST_F(FormTest, ModalWindowHoldsItsCallerUntilItIsUnloaded)
{
  const QPointer<Form> page = &Window();
  Drive::WhenShown(QStringLiteral("frmNotice"), [](QWidget&) { Forms::Unload(QStringLiteral("frmNotice")); });
  page->ShowModal();
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNotice")), nullptr);
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }));
}

TEST_F(FormTest, ModalWindowMayBeUnloadedByItsOwnCommand)
{
  const QPointer<Form> page = &Window([](Page& form) {
    auto& close = form.Add<Label>("lblOptions_0");
    QObject::connect(&close, &Label::Click, [] { Forms::Unload(QStringLiteral("frmNotice")); });
  });
  Drive::WhenShown(QStringLiteral("frmNotice"),
                   [](QWidget& shown) { Drive::Click(shown, QStringLiteral("lblOptions_0")); });
  page->ShowModal();
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }));
}

TEST_F(FormTest, ModalWindowStandsUntilARefusedUnloadIsAllowed)
{
  Page& page = Window();
  page.refusesToUnload = true;
  bool stoodOn = false;
  Drive::WhenShown(QStringLiteral("frmNotice"), [&](QWidget& shown) {
    shown.close();
    stoodOn = shown.isVisible() && !page.Unload();
    page.refusesToUnload = false;
    shown.close();
  });
  page.ShowModal();
  EXPECT_TRUE(stoodOn);
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNotice")), nullptr);
}

TEST_F(FormTest, ModalWindowCanBeShownAgain)
{
  Page& page = Window();
  for (int round = 0; round < 2; ++round) {
    bool shown = false;
    Drive::WhenShown(QStringLiteral("frmNotice"), [&](QWidget&) {
      shown = true;
      page.Hide();
    });
    page.ShowModal();
    EXPECT_TRUE(shown);
  }
}

TEST_F(FormTest, ModalWindowIsADialogOfTheActiveOneAndKeepsItsPlace)
{
  QWidget below;
  below.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&below));
  Page& page = Window();
  page.move(140, 90);
  bool seen = false;
  Drive::WhenShown(QStringLiteral("frmNotice"), [&](QWidget& shown) {
    seen = true;
    EXPECT_EQ(shown.windowType(), Qt::Dialog);
    EXPECT_EQ(shown.windowHandle()->transientParent(), below.windowHandle());
    EXPECT_EQ(shown.pos(), QPoint(140, 90));
    page.Hide();
  });
  page.ShowModal();
  EXPECT_TRUE(seen);
}

TEST_F(FormTest, WindowThatIsNotModalStandsAlone)
{
  QWidget below;
  below.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&below));
  Page& page = Window();
  for (const auto show : {&Form::Show, &Form::ShowTopmost}) {
    (page.*show)();
    EXPECT_EQ(page.windowType(), Qt::Window);
    EXPECT_EQ(page.windowHandle()->transientParent(), nullptr);
  }
}

TEST_F(FormTest, ModalWindowsMayStandAboveEachOther)
{
  Page& below = Window();
  Page& above = Load("frmPrintCal", Form::Kind::kWindow);
  QStringList order;
  Drive::WhenShown(QStringLiteral("frmNotice"), [&](QWidget&) {
    Drive::WhenShown(QStringLiteral("frmPrintCal"), [&](QWidget&) {
      order.append(QStringLiteral("above"));
      above.Hide();
    });
    above.ShowModal();
    order.append(QStringLiteral("below"));
    EXPECT_TRUE(below.isVisible());
    below.Hide();
  });
  below.ShowModal();
  EXPECT_EQ(order, QStringList({QStringLiteral("above"), QStringLiteral("below")}));
}

TEST_F(FormTest, ModalWindowSettlesTheCommandThatShowsIt)
{
  Page& page = Window();
  Writes writes;
  long serialOutside = 0;
  long serialInside = 0;
  int settledInside = 0;
  Drive::WhenShown(QStringLiteral("frmNotice"), [&](QWidget&) {
    serialInside = Command::Serial();
    settledInside = writes.settled;
    page.Hide();
  });
  Command::Run([&] {
    serialOutside = Command::Serial();
    Command::Enlist(writes);
    page.ShowModal();
    EXPECT_TRUE(Command::IsRunning());
  });
  EXPECT_FALSE(Command::IsRunning());
  EXPECT_EQ(settledInside, 1);
  EXPECT_NE(serialInside, serialOutside);
  EXPECT_EQ(writes.abandoned, 0);
}

TEST_F(FormTest, TopmostWindowIsAboveAllOthersAndNotModal)
{
  Page& page = Window();
  page.ShowTopmost();
  EXPECT_TRUE(page.isVisible());
  EXPECT_FALSE(page.isModal());
  EXPECT_TRUE(page.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(FormTest, CloseBoxUnloadsTheForm)
{
  const QPointer<Page> page = &Window();
  page->Show();
  page->close();
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNotice")), nullptr);
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }));
}

TEST_F(FormTest, CloseBoxDoesWhatTheFormSays)
{
  Page& page = Window();
  page.unloadsOnCloseBox = false;
  page.Show();
  page.close();
  EXPECT_EQ(page.events.count(QStringLiteral("close box")), 1);
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNotice")), &page);
  EXPECT_TRUE(page.isVisible());
}

TEST_F(FormTest, CloseBoxOfAFormThatRefusesLeavesItOnTheScreen)
{
  Page& page = Window();
  page.refusesToUnload = true;
  page.Show();
  page.close();
  EXPECT_TRUE(page.isVisible());
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNotice")), &page);
  EXPECT_FALSE(page.Unload());
}

TEST_F(FormTest, ClickOnACommandMayUnloadItsForm)
{
  const QPointer<Form> page = &Window([](Page& form) {
    auto& close = form.Add<Label>("lblOptions_0");
    close.SetRole(QStringLiteral("command"));
    QObject::connect(&close, &Label::Click, [] { Forms::Unload(QStringLiteral("frmNotice")); });
  });
  page->Show();
  Drive::Click(*page, QStringLiteral("lblOptions_0"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }));
  EXPECT_TRUE(Forms::AllLoaded().empty());
}
