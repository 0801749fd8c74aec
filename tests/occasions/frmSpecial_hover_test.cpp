// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "OccasionsTest.h"

namespace {

constexpr int kMay = 4;

class SpecialHover : public OccasionsPageTest
{
protected:
  void OpenAtRest()
  {
    AddPerson("Ann", "May", "9");
    AddCouple("Ann", "Bob", "May", "9");
    Open();
    MoveOver();
  }
  static void MoveOver(const QString& name = {}) { Drive::MoveOver(Page(), name); }

  // The commands that are lit, by name.
  static std::string Lit() { return OpaqueLabels().filter("lblOptions_").join(' ').toStdString(); }
  static std::string TextColour(const QString& name)
  {
    return dynamic_cast<Label&>(Control(name)).ForeColor().name().toStdString();
  }
  static void ExpectLit(const QString& name)
  {
    EXPECT_EQ(Lit(), name.toStdString());
    EXPECT_EQ(TextColour(name), "#d18c41") << name.toStdString();
  }
  static void ExpectOut(const QString& name)
  {
    EXPECT_EQ(Lit(), "");
    EXPECT_EQ(TextColour(name), "#000000") << name.toStdString();
  }
};

}

TEST_F(SpecialHover, CommandsLightUpWithTheirText)
{
  OpenAtRest();
  QString before;
  for (const QString name : {"lblOptions_0", "lblOptions_1", "lblOptions_4", "lblOptions_5", "lblOptions_6"}) {
    EXPECT_EQ(TextColour(name), "#000000") << name.toStdString();
    MoveOver(name);
    ExpectLit(name);
    if (!before.isEmpty()) {
      EXPECT_EQ(TextColour(before), "#000000") << before.toStdString();
    }
    before = name;
  }
  MoveOver();
  ExpectOut(before);
}

TEST_F(SpecialHover, CommandsOfThePanelsLightUpToo)
{
  OpenAtRest();
  const QList<std::array<QString, 2>> panels = {{"lblOptions_1", "fraCalendar"},
                                                {"lblOptions_4", "fraPrint"},
                                                {"lblOptions_5", "fraFamous"},
                                                {"lblOptions_6", "fraDatabase"}};
  const QList<QStringList> commands = {
      {"lblOptions_10"}, {"lblOptions_2", "lblOptions_3"}, {"lblOptions_8", "lblOptions_9"}, {"lblOptions_7"}};
  for (qsizetype i = 0; i < panels.size(); ++i) {
    const auto& [open, panel] = panels[i];
    Click(open);
    for (const QString& name : commands[i]) {
      MoveOver(name);
      ExpectLit(name);
      MoveOver(panel);
      ExpectOut(name);
    }
  }
}

TEST_F(SpecialHover, AnythingElsePutsOut)
{
  OpenAtRest();
  for (const char* other : {"lblTitle", "lblMonth_3", "lblBirthdays", "lblAnn", "lstBirthdays", "lstAnn", "cboYear",
                            "fraResults", "txtBDetails", "txtAnnInfo", "picThemes"}) {
    MoveOver("lblOptions_5");
    ASSERT_EQ(Lit(), "lblOptions_5");
    MoveOver(other);
    ExpectOut("lblOptions_5");
  }
}

TEST_F(SpecialHover, TheListsThemselvesPutOut)
{
  OpenAtRest();
  for (const QString& list : {kBirthdays, kCouples}) {
    MoveOver("lblOptions_0");
    ASSERT_EQ(Lit(), "lblOptions_0");
    QTest::mouseMove(List(list).viewport(), QPoint(5, 5));
    QTest::mouseMove(List(list).viewport(), QPoint(6, 6));
    ExpectOut("lblOptions_0");
  }
}

TEST_F(SpecialHover, TheStripOfMonthsKeepsItsLook)
{
  OpenAtRest();
  for (const char* name : {"lblMonth_0", "lblOptions_0", "lblMonth_4", "lblTitle"}) {
    MoveOver(name);
    EXPECT_EQ(SelectedMonths(), std::vector<int>{kMay}) << name;
  }
}
