// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/modMouseMove.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/PictureBox.h"
#include "looks/Style.h"
#include "support/Drive.h"

#include <gtest/gtest.h>

#include <QFrame>
#include <QMouseEvent>

namespace {

using modMouseMove::Row;

const QColor kAccent(0xD1, 0x8C, 0x41);
const QColor kLitList(0xFF, 0xF9, 0xE9);

// A window with rows of labels and lists; its upper left corner is free.
class Page : public Form
{
public:
  explicit Page(const QString& name) : Form(name, Kind::kWindow)
  {
    resize(400, 400);
    for (const char* array : {"lblOptions", "lblNames", "lblAll", "lblDay", "lblData"}) {
      for (int i = 0; i < 3; ++i) {
        auto& label = Add<Label>(QString::fromLatin1(array) + QStringLiteral("_%1").arg(i));
        label.setText(QStringLiteral(" Print"));
        label.SetForeColor(Qt::black);
        label.SetBackColor(Qt::yellow);
        if (QLatin1String(array) == QLatin1String("lblOptions")) {
          label.SetRole(QStringLiteral("command"));
        }
      }
    }
    for (int i = 0; i < 3; ++i) {
      Add<ListBox>(QStringLiteral("lstReminders_%1").arg(i));
    }
    Add<Label>(QStringLiteral("lblTitle")).setText(QStringLiteral("Personal Info"));
    Add<ListBox>(QStringLiteral("lstNames"));
    Add<PictureBox>(QStringLiteral("imgTheme"));
    auto& panel = Add<QFrame>(QStringLiteral("fraTools"));
    auto& inner = Add<Label>(QStringLiteral("lblOptions_4"), &panel);
    inner.setGeometry(20, 5, 60, 15);
    inner.setText(QStringLiteral("Close"));
    inner.SetRole(QStringLiteral("command"));
    inner.SetForeColor(Qt::black);
  }

protected:
  void Form_Load() override { modMouseMove::Watch(*this); }

private:
  template <typename T>
  T& Add(const QString& name, QWidget* parent = nullptr)
  {
    auto* control = new T(parent != nullptr ? parent : this);
    control->setObjectName(name);
    control->setGeometry(20 + count_ % 3 * 120, 20 + count_ / 3 * 40, 100, 30);
    ++count_;
    return *control;
  }

  int count_ = 0;
};

class MouseMoveTest : public testing::Test
{
protected:
  ~MouseMoveTest() override
  {
    for (Form* form : Forms::AllLoaded()) {
      modMouseMove::ResetAll(*form);
      form->Unload();
    }
    Forms::UnregisterAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  Form& Load(const char* name)
  {
    const QString formName = QString::fromLatin1(name);
    Forms::Register(formName, [formName] { return new Page(formName); });
    form_ = &Forms::Load(formName);
    modMouseMove::ResetAll(*form_);
    return *form_;
  }

  Form& Show(const char* name)
  {
    Form& form = Load(name);
    form.Show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
    MoveOver("");
    return form;
  }

  void MoveOver(const char* name) { Drive::MoveOver(*form_, QString::fromLatin1(name)); }

  void Leave()
  {
    QTest::mouseMove(form_, QPoint(-100, -100));
    QCoreApplication::processEvents();
  }

  Label& At(const char* name) { return static_cast<Label&>(Drive::Control(*form_, QString::fromLatin1(name))); }
  ListBox& List(const char* name) { return *qobject_cast<ListBox*>(form_->Control(QLatin1String(name))); }

  // The labels that show their back colour, by name.
  std::string Lit()
  {
    return NamesOf([](const Label& label) { return label.BackStyle() == Label::kOpaque; });
  }
  std::string Accented()
  {
    return NamesOf([](const Label& label) { return label.ForeColor() == kAccent; });
  }
  std::string Underlined()
  {
    return NamesOf([](const Label& label) { return label.FontUnderline(); });
  }

  void Light(const char* list, const QColor& color = kLitList) { List(list).SetBackColor(color); }
  QColor ColourOf(const char* list) { return List(list).BackColor(); }

  Form* form_ = nullptr;

private:
  std::string NamesOf(const std::function<bool(const Label&)>& wanted)
  {
    QStringList names;
    for (QWidget* control : form_->Controls()) {
      const auto* label = qobject_cast<Label*>(control);
      if (label != nullptr && wanted(*label)) {
        names.append(label->objectName());
      }
    }
    return names.join(u' ').toStdString();
  }
};

struct BackStyleRow
{
  Row row;
  const char* array;
  bool underlines;
};

const std::vector<BackStyleRow> kBackStyleRows = {
    {Row::kOptions, "lblOptions", false}, {Row::kNames, "lblNames", true}, {Row::kAll, "lblAll", true},
    {Row::kDay, "lblDay", false},         {Row::kData, "lblData", false},
};

}

TEST_F(MouseMoveTest, HighlightLightsOneAndPutsOutTheOthers)
{
  Load("frmQuillmark");
  for (const BackStyleRow& row : kBackStyleRows) {
    const std::string array = row.array;
    modMouseMove::Highlight(*form_, row.row, 1);
    EXPECT_EQ(Lit(), array + "_1");
    EXPECT_EQ(Underlined(), row.underlines ? array + "_1" : "");
    modMouseMove::Highlight(*form_, row.row, 1);
    EXPECT_EQ(Lit(), array + "_1");
    modMouseMove::Highlight(*form_, row.row, 2);
    EXPECT_EQ(Lit(), array + "_2");
    EXPECT_EQ(Underlined(), row.underlines ? array + "_2" : "");
    modMouseMove::Reset(*form_, row.row);
    EXPECT_EQ(Lit(), "");
    EXPECT_EQ(Underlined(), "");
    EXPECT_EQ(Accented(), "");
  }
}

TEST_F(MouseMoveTest, IndexOutsideOnlyPutsOut)
{
  Load("frmQuillmark");
  for (const BackStyleRow& row : kBackStyleRows) {
    for (const int outside : {-1, 3, 99}) {
      modMouseMove::Highlight(*form_, row.row, 0);
      ASSERT_EQ(Lit(), std::string(row.array) + "_0");
      modMouseMove::Highlight(*form_, row.row, outside);
      EXPECT_EQ(Lit(), "") << row.array << " " << outside;
      EXPECT_EQ(Underlined(), "") << row.array << " " << outside;
    }
  }
}

TEST_F(MouseMoveTest, TextIsLitByRowOfItsOwn)
{
  Load("frmNew");
  modMouseMove::Highlight(*form_, Row::kOptionsText, 1);
  EXPECT_EQ(Accented(), "lblOptions_1");
  EXPECT_EQ(Lit(), "");
  modMouseMove::Highlight(*form_, Row::kOptionsText, 2);
  EXPECT_EQ(Accented(), "lblOptions_2");
  EXPECT_EQ(At("lblOptions_1").ForeColor(), QColor(Qt::black));
  modMouseMove::Highlight(*form_, Row::kOptionsText, 3);
  EXPECT_EQ(Accented(), "");
  modMouseMove::Highlight(*form_, Row::kOptionsText, 4);
  EXPECT_EQ(Accented(), "lblOptions_4");
  modMouseMove::Reset(*form_, Row::kOptionsText);
  EXPECT_EQ(Accented(), "");
  EXPECT_EQ(At("lblOptions_4").ForeColor(), QColor(Qt::black));
}

TEST_F(MouseMoveTest, TextColourOfThePagesOwnIsLeftAlone)
{
  Load("frmNew");
  At("lblOptions_1").SetForeColor(Qt::blue);
  modMouseMove::Highlight(*form_, Row::kOptionsText, 1);
  EXPECT_EQ(At("lblOptions_1").ForeColor(), QColor(Qt::blue));
  modMouseMove::Highlight(*form_, Row::kOptionsText, 0);
  EXPECT_EQ(At("lblOptions_1").ForeColor(), QColor(Qt::blue));
  modMouseMove::Reset(*form_, Row::kOptionsText);
  EXPECT_EQ(At("lblOptions_1").ForeColor(), QColor(Qt::blue));
  EXPECT_EQ(At("lblOptions_0").ForeColor(), QColor(Qt::black));
}

TEST_F(MouseMoveTest, WithNothingLitAResetTouchesNothing)
{
  Load("frmQuillmark");
  for (const BackStyleRow& row : kBackStyleRows) {
    const QByteArray name = QByteArray(row.array) + "_0";
    At(name).SetBackStyle(Label::kOpaque);
    modMouseMove::Reset(*form_, row.row);
    EXPECT_EQ(Lit(), name.toStdString());
    modMouseMove::Highlight(*form_, row.row, 1);
    modMouseMove::Reset(*form_, row.row);
    EXPECT_EQ(Lit(), "");
  }
  At("lblOptions_0").SetForeColor(kAccent);
  modMouseMove::Reset(*form_, Row::kOptionsText);
  EXPECT_EQ(Accented(), "lblOptions_0");
}

TEST_F(MouseMoveTest, ResettingOneKindLeavesTheOthersLit)
{
  Load("frmCalEdit");
  modMouseMove::Highlight(*form_, Row::kOptions, 0);
  modMouseMove::Highlight(*form_, Row::kOptionsText, 0);
  modMouseMove::Highlight(*form_, Row::kData, 2);
  modMouseMove::Reset(*form_, Row::kOptions);
  EXPECT_EQ(Lit(), "lblData_2");
  EXPECT_EQ(Accented(), "lblOptions_0");
}

TEST_F(MouseMoveTest, ResetAllPutsOutEverything)
{
  Form& form = Load("frmReminders");
  form.Show();
  for (const BackStyleRow& row : kBackStyleRows) {
    modMouseMove::Highlight(form, row.row, 1);
  }
  modMouseMove::Highlight(form, Row::kOptionsText, 1);
  modMouseMove::Highlight(form, Row::kReminders, 1);
  Light("lstReminders_1");
  modMouseMove::ResetAll(form);
  EXPECT_EQ(Lit(), "");
  EXPECT_EQ(Accented(), "");
  EXPECT_EQ(Underlined(), "");
  EXPECT_EQ(ColourOf("lstReminders_1"), QColor(Qt::white));
}

TEST_F(MouseMoveTest, VisibleListsThatAreLitGoBackToWhite)
{
  Show("frmReminders");
  modMouseMove::Highlight(*form_, Row::kReminders, 0);
  Light("lstReminders_0");
  Light("lstReminders_1", Qt::cyan);
  Light("lstReminders_2");
  List("lstReminders_2").hide();
  modMouseMove::Reset(*form_, Row::kReminders);
  EXPECT_EQ(ColourOf("lstReminders_0"), QColor(Qt::white));
  EXPECT_EQ(ColourOf("lstReminders_1"), QColor(Qt::cyan));
  EXPECT_EQ(ColourOf("lstReminders_2"), kLitList);
}

TEST_F(MouseMoveTest, FormWithoutTheArrayIsNoFailure)
{
  class Bare : public Form
  {
  public:
    Bare() : Form(QStringLiteral("frmAutoStart"), Kind::kWindow) {}
  };
  Forms::Register(QStringLiteral("frmAutoStart"), [] { return new Bare; });
  Form& form = Forms::Load(QStringLiteral("frmAutoStart"));
  for (const Row row :
       {Row::kOptions, Row::kOptionsText, Row::kNames, Row::kAll, Row::kDay, Row::kData, Row::kReminders}) {
    EXPECT_NO_THROW(modMouseMove::Highlight(form, row, 0));
    EXPECT_NO_THROW(modMouseMove::Reset(form, row));
  }
}

TEST_F(MouseMoveTest, LabelLightsUpUnderTheMouse)
{
  Show("frmIntro");
  EXPECT_EQ(Lit(), "");
  MoveOver("lblOptions_1");
  EXPECT_EQ(Lit(), "lblOptions_1");
}

TEST_F(MouseMoveTest, MouseGoesStraightFromOneLabelToAnother)
{
  Show("frmNew");
  for (const char* name : {"lblOptions_0", "lblOptions_2", "lblOptions_1", "lblOptions_4", "lblOptions_0"}) {
    MoveOver(name);
    EXPECT_EQ(Lit(), name);
    EXPECT_EQ(Accented(), name);
  }
}

TEST_F(MouseMoveTest, LabelGoesOutWhenTheMouseIsOnAnythingElse)
{
  Show("frmNew");
  for (const char* name : {"", "fraTools", "lblTitle", "lstNames", "imgTheme"}) {
    MoveOver("lblOptions_1");
    ASSERT_EQ(Lit(), "lblOptions_1");
    MoveOver(name);
    EXPECT_EQ(Lit(), "") << name;
    EXPECT_EQ(Accented(), "") << name;
  }
}

TEST_F(MouseMoveTest, LabelGoesOutWhenTheMouseLeaves)
{
  Show("frmNew");
  MoveOver("lblOptions_1");
  ASSERT_EQ(Lit(), "lblOptions_1");
  Leave();
  EXPECT_EQ(Lit(), "");
  EXPECT_EQ(Accented(), "");
}

TEST_F(MouseMoveTest, LabelOnAPanelGoesOutWhenTheMouseIsOnThePanel)
{
  Show("frmNew");
  MoveOver("lblOptions_4");
  EXPECT_EQ(Lit(), "lblOptions_4");
  MoveOver("fraTools");
  EXPECT_EQ(Lit(), "");
}

TEST_F(MouseMoveTest, TextIsLitOnTheFormsThatAskForItAlone)
{
  const std::vector<std::pair<const char*, bool>> cases = {
      {"frmQuillmark", true},  {"frmSpecial", true}, {"frmNew", true},         {"frmReminders", true},
      {"frmCalEdit", true},    {"frmIntro", false},  {"frmAnn", false},        {"frmCharts", false},
      {"frmNotice", false},    {"frmAbout", false},  {"frmTextNotice", false}, {"frmPrintCal", false},
      {"frmAutoStart", false},
  };
  for (const auto& [name, textIsLit] : cases) {
    SCOPED_TRACE(name);
    Show(name);
    MoveOver("lblOptions_2");
    EXPECT_EQ(Lit(), "lblOptions_2");
    EXPECT_EQ(Accented(), textIsLit ? "lblOptions_2" : "");
    MoveOver("");
    EXPECT_EQ(Lit(), "");
    EXPECT_EQ(Accented(), "");
    form_->Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(MouseMoveTest, ArrangementAndAllLabelsAreUnderlinedToo)
{
  Show("frmQuillmark");
  for (const char* name : {"lblNames_0", "lblNames_1", "lblAll_1", "lblAll_0"}) {
    MoveOver(name);
    EXPECT_EQ(Lit(), name);
    EXPECT_EQ(Underlined(), name);
    EXPECT_EQ(Accented(), "");
  }
  MoveOver("");
  EXPECT_EQ(Lit(), "");
  EXPECT_EQ(Underlined(), "");
}

TEST_F(MouseMoveTest, TwoKindsAreNeverLitTogether)
{
  struct Case
  {
    const char* form;
    std::vector<const char*> way;
  };
  const std::vector<Case> cases = {
      {"frmQuillmark", {"lblNames_0", "lblOptions_1", "lblAll_1", "lblNames_1", "lblAll_0", "lblOptions_0"}},
      {"frmReminders", {"lblDay_0", "lblOptions_1", "lblDay_2", "lblDay_1", "lblOptions_0"}},
      {"frmCalEdit", {"lblOptions_0", "lblData_1", "lblOptions_2", "lblData_0"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.form);
    Show(c.form);
    for (const char* name : c.way) {
      MoveOver(name);
      EXPECT_EQ(Lit(), name);
      EXPECT_EQ(Accented(), QByteArray(name).startsWith("lblOptions") ? name : "");
    }
    form_->Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(MouseMoveTest, OtherKindsGoOutEvenIfTheirLeavingWasNotTold)
{
  Load("frmQuillmark");
  for (const char* name : {"lblNames_0", "lblOptions_1", "lblAll_1", "lblNames_1", "lblAll_0"}) {
    Label& label = At(name);
    const QPoint middle = label.rect().center();
    QMouseEvent move(QEvent::MouseMove, middle, label.mapToGlobal(middle), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&label, &move);
    EXPECT_EQ(Lit(), name);
  }
}

TEST_F(MouseMoveTest, DayLabelUnderTheMousePutsOutTheLists)
{
  for (const char* next : {"lblDay_1", "lblOptions_1", "lblTitle", ""}) {
    Show("frmReminders");
    MoveOver("lstReminders_0");
    modMouseMove::Highlight(*form_, Row::kReminders, 0);
    Light("lstReminders_0");
    MoveOver(next);
    EXPECT_EQ(ColourOf("lstReminders_0"), QColor(Qt::white)) << next;
    form_->Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(MouseMoveTest, ListUnderTheMousePutsOutTheLabels)
{
  Show("frmReminders");
  for (const char* label : {"lblDay_1", "lblOptions_1"}) {
    MoveOver(label);
    ASSERT_EQ(Lit(), label);
    MoveOver("lstReminders_0");
    EXPECT_EQ(Lit(), "");
  }
}

TEST_F(MouseMoveTest, TextThatThePageChangedStaysWhileTheMouseComesAndGoes)
{
  Show("frmSpecial");
  At("lblOptions_1").SetForeColor(Qt::blue);
  MoveOver("lblOptions_1");
  EXPECT_EQ(Lit(), "lblOptions_1");
  EXPECT_EQ(At("lblOptions_1").ForeColor(), QColor(Qt::blue));
  MoveOver("");
  EXPECT_EQ(At("lblOptions_1").ForeColor(), QColor(Qt::blue));
}

TEST_F(MouseMoveTest, PageThatWasUnloadedWhileLitDoesNotHinderTheNextOne)
{
  Show("frmIntro");
  MoveOver("lblOptions_1");
  form_->Unload();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Show("frmNew");
  MoveOver("lblOptions_0");
  EXPECT_EQ(Lit(), "lblOptions_0");
  MoveOver("");
  EXPECT_EQ(Lit(), "");
}

TEST_F(MouseMoveTest, LooksChangeWithTheProgramsStyleToo)
{
  class Styled : public Form
  {
  public:
    Styled() : Form(QStringLiteral("frmQuillmark"), Kind::kWindow)
    {
      resize(400, 200);
      for (const char* name : {"lblOptions_0", "lblNames_0", "lblAll_0"}) {
        auto* label = new Label(this);
        label->setObjectName(QString::fromLatin1(name));
        label->SetRole(QStringLiteral("command"));
        label->setText(QStringLiteral(" Print"));
        label->setGeometry(20, 20 + 40 * int(findChildren<Label*>().size()), 100, 30);
      }
    }

  protected:
    void Form_Load() override { modMouseMove::Watch(*this); }
  };
  Style::Apply(*qApp);
  Forms::Register(QStringLiteral("frmQuillmark"), [] { return new Styled; });
  form_ = &Forms::Load(QStringLiteral("frmQuillmark"));
  form_->Show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(form_));
  MoveOver("lblOptions_0");
  EXPECT_EQ(Accented(), "lblOptions_0");
  for (const char* name : {"lblNames_0", "lblAll_0"}) {
    MoveOver(name);
    EXPECT_EQ(Lit(), name);
    EXPECT_EQ(Underlined(), name);
    EXPECT_EQ(At("lblOptions_0").ForeColor(), QColor(Qt::black));
  }
  MoveOver("");
  EXPECT_EQ(Underlined(), "");
  EXPECT_EQ(At("lblNames_0").font().pointSize(), 11);
}

TEST_F(MouseMoveTest, ListThatIsLitIsSeenToBe)
{
  Style::Apply(*qApp);
  Show("frmReminders");
  const auto ground = [this] {
    QWidget& list = List("lstReminders_0");
    return list.grab().toImage().pixelColor(list.width() / 2, list.height() / 2);
  };
  ASSERT_NE(ground(), kLitList);
  modMouseMove::Highlight(*form_, Row::kReminders, 0);
  Light("lstReminders_0");
  EXPECT_EQ(ground(), kLitList);
  modMouseMove::Reset(*form_, Row::kReminders);
  EXPECT_EQ(ground(), QColor(Qt::white));
}

TEST_F(MouseMoveTest, ADisabledLabelStaysDark)
{
  Show("frmIntro");
  At("lblOptions_1").setEnabled(false);
  MoveOver("lblOptions_0");
  EXPECT_EQ(Lit(), "lblOptions_0");
  MoveOver("lblOptions_1");
  EXPECT_EQ(Lit(), "");
}
