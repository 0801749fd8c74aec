// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include "charts/ChartControl.h"
#include "charts/DataControl.h"
#include "people/frmNew.h"
#include "controls/ComboBox.h"

#include <QAbstractButton>

namespace {

// The real editors and the real chart page in the real frame.
class ChartsInTheFrame : public ShellTest
{
protected:
  void OpenEditor()
  {
    Menu("mnuPersonal").trigger();
    ASSERT_NE(Forms::Loaded("frmNew"), nullptr);
  }
  static QWidget& Editor() { return *Forms::Loaded("frmNew"); }
  static void Type(const char* box, const QString& text)
  {
    QWidget& widget = Drive::Control(Editor(), box);
    widget.setFocus();
    QTest::keyClicks(&widget, text);
  }
  static void Set(const char* combo, const QString& text)
  {
    static_cast<ComboBox&>(Drive::Control(Editor(), combo)).SetText(text);
  }
  static void AddPerson()
  {
    Drive::Click(Editor(), "lblOptions_6");
    Type("txtFirst", "Dan");
    Type("txtLast", "Dunn");
    Type("txtCity", "Dijon");
    Type("txtProv", "Burgundy");
    Set("cboSex", "Male");
    Set("cboBirthMonth", "May");
    Set("cboBirthYear", "2020");
    Drive::Click(Editor(), "lblOptions_0");
  }

  static Form& Charts() { return *Forms::Loaded("frmCharts"); }
  void OpenCharts()
  {
    QTest::mouseClick(&Drive::Control(MainPage(), "lblOptions_2"), Qt::LeftButton);
    ASSERT_NE(Forms::Loaded("frmCharts"), nullptr);
  }
  // What the chart of a subject says.
  static std::string Chart(int subject)
  {
    QWidget& button = Drive::Control(Charts(), QStringLiteral("optChoices_%1").arg(subject));
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
    const auto& chart = static_cast<ChartControl&>(Drive::Control(Charts(), "mscChart"));
    EXPECT_TRUE(chart.isVisibleTo(&Charts()));
    QStringList texts;
    for (const QString& caption : chart.InWords().split(", ", Qt::SkipEmptyParts)) {
      if (!caption.endsWith(": 0")) {
        texts.append(caption);
      }
    }
    return texts.join(", ").toStdString();
  }

  static constexpr int kCity = 0;
  static constexpr int kAge = 1;
  static constexpr int kBirthdays = 2;
  static constexpr int kAnniversaries = 3;
  static constexpr int kProvince = 4;
};

}

TEST_F(ChartsInTheFrame, AreOpenedFromTheMainPageAndLeftForIt)
{
  Start();
  OpenCharts();
  EXPECT_TRUE(Charts().isVisible());
  EXPECT_FALSE(MainPage().isVisible());
  EXPECT_EQ(Charts().size(), frame->centralWidget()->size());
  EXPECT_FALSE(Menu("mnuCompact").isEnabled());
  EXPECT_FALSE(Menu("mnuBackup").isEnabled());
  Drive::Click(Charts(), "lblOptions_0");
  EXPECT_EQ(Forms::Loaded("frmCharts"), nullptr);
  EXPECT_TRUE(MainPage().isVisible());
  EXPECT_TRUE(Menu("mnuCompact").isEnabled());
  EXPECT_TRUE(Menu("mnuBackup").isEnabled());
}

TEST_F(ChartsInTheFrame, GiveWayToAnotherPage)
{
  Start();
  OpenCharts();
  Chart(kCity);
  Menu("mnuAnn").trigger();
  EXPECT_EQ(Forms::Loaded("frmCharts"), nullptr);
  EXPECT_TRUE(Forms::Loaded("frmAnn")->isVisible());
}

TEST_F(ChartsInTheFrame, ShowAPersonAsSoonAsTheEditorIsLeft)
{
  folder.Execute(
      "INSERT INTO People (FirstName, LastName, Gender, City, Province, BirthMonth, BirthYear) VALUES "
      "('Ann', 'Adams', 'Female', 'Ayr', 'Ontario', 'May', '1980')");
  Start();
  OpenEditor();
  AddPerson();
  Drive::Click(Editor(), "lblOptions_2");
  OpenCharts();
  EXPECT_EQ(Chart(kCity), "Ayr: 1, Dijon: 1");
  EXPECT_EQ(Chart(kProvince), "Burgundy: 1, Ontario: 1");
  EXPECT_EQ(Chart(kBirthdays), "May: 2");
  EXPECT_EQ(Chart(kAge), "<10: 1, 40-49: 1");
  EXPECT_EQ(Chart(kAnniversaries), "");
}

TEST_F(ChartsInTheFrame, ShowMonthsAndAgesOfOldWhileTheEditorIsOpen)
{
  Start();
  OpenEditor();
  Drive::Click(Editor(), "lblOptions_2");
  OpenEditor();
  AddPerson();
  Forms::Load("frmCharts");
  ASSERT_NE(Forms::Loaded("frmNew"), nullptr);
  Charts().resize(744, 529);
  EXPECT_EQ(Chart(kBirthdays), "");
  EXPECT_EQ(Chart(kAge), "");
  EXPECT_EQ(Chart(kCity), "Dijon: 1") << "people are counted as they stand";
  EXPECT_EQ(Chart(kProvince), "Burgundy: 1");
  Forms::Unload("frmNew");
  EXPECT_EQ(Chart(kBirthdays), "May: 1");
  EXPECT_EQ(Chart(kAge), "<10: 1");
}

TEST_F(ChartsInTheFrame, ShowNewAnniversariesAloneOnceTheCoupleEditorIsLeft)
{
  folder.Execute(
      "INSERT INTO People (FirstName, LastName, Gender, BirthMonth, BirthYear) VALUES "
      "('Ann', 'Adams', 'Female', 'May', '1980')");
  folder.Execute("INSERT INTO Ann (Spouse1ID, Spouse2ID, AnnMonth) VALUES (1, 2, 'June')");
  Start();
  OpenCharts();
  EXPECT_EQ(Chart(kAnniversaries), "");
  Menu("mnuAnn").trigger();
  Drive::Click(*Forms::Loaded("frmAnn"), "lblOptions_1");
  OpenCharts();
  EXPECT_EQ(Chart(kAnniversaries), "Jun: 1");
  EXPECT_EQ(Chart(kBirthdays), "");
  EXPECT_EQ(Chart(kAge), "");
}

TEST_F(ChartsInTheFrame, TakeTheirTipsFromTheMenuAtOnce)
{
  Start();
  OpenCharts();
  const QWidget& city = Drive::Control(Charts(), "optChoices_0");
  EXPECT_EQ(city.toolTip(), "Plots number of people in each city ");
  Menu("mnuToolTips_0").trigger();
  EXPECT_EQ(city.toolTip(), "");
  Menu("mnuToolTips_1").trigger();
  EXPECT_EQ(city.toolTip(), "Plots number of people in each city ");
}

TEST_F(ChartsInTheFrame, StayWhereTheyAreWhileTheFrameIsMinimised)
{
  folder.Execute("INSERT INTO People (FirstName, City) VALUES ('Ann', 'Ayr')");
  Start();
  OpenCharts();
  EXPECT_EQ(Chart(kCity), "Ayr: 1");
  const auto& chart = Drive::Control(Charts(), "mscChart");
  const QRect before = chart.geometry();
  frame->SetState(WindowState::kMinimised);
  Charts().resize(300, 200);
  EXPECT_EQ(chart.geometry(), before);
}
