// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"

namespace {

constexpr auto kLitText = "#d18c41";

class LookupHover : public LookupPageTest
{
protected:
  void OpenAtRest()
  {
    AddPerson("Ann", "Wood");
    Open();
    MoveOver();
  }
  static void MoveOver(const QString& name = {}) { Drive::MoveOver(Page(), name); }

  // The labels that are lit, by name.
  static std::string Lit() { return OpaqueLabels().join(' ').toStdString(); }
  static std::string TextColour(const QString& name) { return LabelOf(name).ForeColor().name().toStdString(); }
};

}

TEST_F(LookupHover, CommandsLightUpWithTheirText)
{
  OpenAtRest();
  EXPECT_EQ(Lit(), "");
  for (const char* name :
       {"lblOptions_0", "lblOptions_1", "lblOptions_2", "lblOptions_3", "lblOptions_4", "lblOptions_11"}) {
    EXPECT_EQ(TextColour(name), "#000000") << name;
    MoveOver(name);
    EXPECT_EQ(Lit(), name);
    EXPECT_EQ(TextColour(name), kLitText) << name;
    EXPECT_FALSE(LabelOf(name).FontUnderline());
  }
  MoveOver();
  EXPECT_EQ(Lit(), "");
  EXPECT_EQ(TextColour("lblOptions_11"), "#000000");
}

TEST_F(LookupHover, CommandsOfThePanelsLightUpToo)
{
  OpenAtRest();
  const QList<std::pair<QString, QStringList>> panels = {
      {"lblOptions_1", {"lblOptions_10", "lblOptions_5"}},
      {"lblOptions_2", {"lblOptions_6", "lblOptions_7", "lblOptions_8", "lblOptions_9"}},
      {"lblOptions_11", {"lblOptions_12"}}};
  for (const auto& [open, commands] : panels) {
    Click(open);
    for (const QString& name : commands) {
      MoveOver(name);
      EXPECT_EQ(Lit(), name.toStdString());
      EXPECT_EQ(TextColour(name), kLitText) << name.toStdString();
    }
  }
  MoveOver("fraDatabase");
  EXPECT_EQ(Lit(), "");
}

TEST_F(LookupHover, OrdersAndCheckAllLightUpUnderlined)
{
  OpenAtRest();
  for (const char* name : {"lblNames_0", "lblNames_1", "lblAll_0", "lblAll_1"}) {
    EXPECT_FALSE(LabelOf(name).FontUnderline());
    MoveOver(name);
    EXPECT_EQ(Lit(), name);
    EXPECT_TRUE(LabelOf(name).FontUnderline()) << name;
  }
  MoveOver();
  for (const char* name : {"lblNames_0", "lblNames_1", "lblAll_0", "lblAll_1"}) {
    EXPECT_FALSE(LabelOf(name).FontUnderline()) << name;
  }
  EXPECT_EQ(Lit(), "");
}

TEST_F(LookupHover, TwoKindsNeverStayLitTogether)
{
  OpenAtRest();
  for (const char* name : {"lblNames_0", "lblOptions_0", "lblAll_1", "lblNames_1", "lblAll_0", "lblOptions_4"}) {
    MoveOver(name);
    EXPECT_EQ(Lit(), name);
  }
}

TEST_F(LookupHover, AnythingElsePutsOut)
{
  OpenAtRest();
  for (const char* other : {"fraResults", "lstNames", "lblTitle", "picThemes", "chkInfo_0", "txtContact", "lblName"}) {
    for (const char* name : {"lblNames_0", "lblOptions_0", "lblAll_1"}) {
      MoveOver(name);
      ASSERT_EQ(Lit(), name);
      MoveOver(other);
      EXPECT_EQ(Lit(), "") << other;
    }
  }
}

TEST_F(LookupHover, TheListItselfPutsOut)
{
  OpenAtRest();
  MoveOver("lblOptions_0");
  QTest::mouseMove(Names().viewport(), QPoint(5, 5));
  QTest::mouseMove(Names().viewport(), QPoint(6, 6));
  EXPECT_EQ(Lit(), "");
}
