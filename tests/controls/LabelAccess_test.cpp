// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Label.h"
#include "controls/LabelAccess.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>

namespace {

class LabelAccessTest : public testing::Test
{
protected:
  LabelAccessTest()
  {
    LabelAccess::Install();
    LabelAccess::Install();
  }

  QAccessibleInterface& Access()
  {
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&label_);
    EXPECT_NE(access, nullptr);
    return *access;
  }

  void MakeCommand(const char* text)
  {
    label_.SetRole(QStringLiteral("command"));
    label_.setText(QString::fromLatin1(text));
  }

  void Press() { Access().actionInterface()->doAction(QAccessibleActionInterface::pressAction()); }

  Label label_;
  QSignalSpy clicks_{&label_, &Label::Click};
};

}

TEST_F(LabelAccessTest, CommandIsAButtonWithATrimmedName)
{
  MakeCommand(" Make charts ");
  EXPECT_EQ(Access().role(), QAccessible::Button);
  EXPECT_EQ(Access().text(QAccessible::Name), QStringLiteral("Make charts"));
}

TEST_F(LabelAccessTest, NameFollowsTheText)
{
  MakeCommand("Next  >>");
  ASSERT_EQ(Access().text(QAccessible::Name), QStringLiteral("Next  >>"));
  label_.setText(QStringLiteral("<<  Previous "));
  EXPECT_EQ(Access().text(QAccessible::Name), QStringLiteral("<<  Previous"));
}

TEST_F(LabelAccessTest, TextWithoutARoleIsStaticText)
{
  label_.setText(QStringLiteral("the people you keep in mind"));
  EXPECT_EQ(Access().role(), QAccessible::StaticText);
  EXPECT_EQ(Access().text(QAccessible::Name), QStringLiteral("the people you keep in mind"));
  QAccessibleActionInterface* actions = Access().actionInterface();
  EXPECT_TRUE(actions == nullptr || !actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
}

TEST_F(LabelAccessTest, CommandCanBePressed)
{
  MakeCommand(" Exit program");
  ASSERT_NE(Access().actionInterface(), nullptr);
  EXPECT_TRUE(Access().actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  Press();
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(LabelAccessTest, DisabledCommandIsNotPressed)
{
  MakeCommand(" Exit program");
  label_.setEnabled(false);
  EXPECT_TRUE(Access().state().disabled);
  ASSERT_NE(Access().actionInterface(), nullptr);
  Press();
  EXPECT_EQ(clicks_.count(), 0);
  label_.setEnabled(true);
  Press();
  EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(LabelAccessTest, OtherActionsDoNotPress)
{
  MakeCommand(" Exit program");
  ASSERT_NE(Access().actionInterface(), nullptr);
  Access().actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(clicks_.count(), 0);
}

TEST_F(LabelAccessTest, CommandSaysThatItTakesTheFocus)
{
  MakeCommand(" Exit program");
  EXPECT_TRUE(Access().state().focusable);
}
