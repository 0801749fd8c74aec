// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ShellTest.h"

#include "controls/PictureBox.h"
#include "looks/modToolTips.h"
#include "shell/frmAbout.h"
#include "support/AddressCatcher.h"

namespace {

class About : public ShellTest
{
protected:
  // Opens the dialog by the menu, does the work while it stands, and closes it.
  void WhileOpen(const std::function<void(Form& dialog)>& work)
  {
    bool seen = false;
    Drive::WhenShown("frmAbout", [&](QWidget& dialog) {
      seen = true;
      work(static_cast<Form&>(dialog));
      if (Forms::Loaded("frmAbout") != nullptr) {
        Drive::Click(dialog, "lblOptions_0");
      }
    });
    Menu("mnuAbout").trigger();
    EXPECT_TRUE(seen);
    EXPECT_EQ(Forms::Loaded("frmAbout"), nullptr);
  }

  static Label& LabelOf(Form& dialog, const QString& name)
  {
    return dynamic_cast<Label&>(Drive::Control(dialog, name));
  }
  static std::string Caption(Form& dialog, const QString& name) { return LabelOf(dialog, name).text().toStdString(); }
};

}

TEST_F(About, SaysWhatItIsAndWhereToWrite)
{
  Start();
  WhileOpen([](Form& dialog) {
    EXPECT_EQ(dialog.windowTitle().toStdString(), "About Quillmark");
    EXPECT_EQ(Caption(dialog, "lblTitle"), "Quillmark 2.0 powered by");
    EXPECT_EQ(Caption(dialog, "lblMaker"), "The Quillmark authors");
    EXPECT_EQ(Caption(dialog, "lblRights"), "All Rights Reserved");
    EXPECT_EQ(Caption(dialog, "lblSuggestions"), "For more information, contact:");
    EXPECT_EQ(Caption(dialog, "lblOptions_1"), "household@quillmark.example");
    EXPECT_EQ(Caption(dialog, "lblOptions_0"), "Exit");
    EXPECT_FALSE(dynamic_cast<PictureBox&>(Drive::Control(dialog, "picLogo")).Picture().isNull());
    EXPECT_FALSE(dialog.windowIcon().isNull());
  });
}

TEST_F(About, TheAddressLooksLikeALinkAndTheMouseIsAHandOnIt)
{
  Start();
  WhileOpen([](Form& dialog) {
    EXPECT_TRUE(LabelOf(dialog, "lblOptions_1").FontUnderline());
    EXPECT_EQ(LabelOf(dialog, "lblOptions_1").cursor().shape(), Qt::PointingHandCursor);
    EXPECT_FALSE(LabelOf(dialog, "lblOptions_0").FontUnderline());
    EXPECT_EQ(LabelOf(dialog, "lblOptions_0").cursor().shape(), Qt::ArrowCursor);
    Drive::MoveOver(dialog, "lblOptions_1");
    Drive::MoveOver(dialog);
    EXPECT_TRUE(LabelOf(dialog, "lblOptions_1").FontUnderline()) << "lit or not";
  });
}

TEST_F(About, BearsTheTipsOfItsDesignUntilItIsLoaded)
{
  frmAbout dialog;
  EXPECT_EQ(Drive::Control(dialog, "lblOptions_0").toolTip().toStdString(), "Close window");
  EXPECT_EQ(Drive::Control(dialog, "lblOptions_1").toolTip().toStdString(), "Click to send email");
}

TEST_F(About, IsModal)
{
  Start();
  WhileOpen([](Form& dialog) {
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
  });
}

TEST_F(About, TheAddressStartsAnEmail)
{
  Start();
  AddressCatcher catcher(QStringLiteral("mailto"));
  WhileOpen([&](Form& dialog) {
    Drive::Click(dialog, "lblOptions_1");
    EXPECT_TRUE(dialog.isVisible());
  });
  ASSERT_EQ(catcher.Taken.size(), 1);
  EXPECT_EQ(catcher.Taken[0].toString().toStdString(), "mailto: household@quillmark.example");
}

TEST_F(About, TheCommandsAreUsedByTheKeyboard)
{
  Start();
  AddressCatcher catcher(QStringLiteral("mailto"));
  WhileOpen([&](Form& dialog) {
    QTest::keyClick(&Drive::Control(dialog, "lblOptions_1"), Qt::Key_Return);
    QTest::keyClick(&Drive::Control(dialog, "lblOptions_0"), Qt::Key_Space);
    EXPECT_EQ(Forms::Loaded("frmAbout"), nullptr);
  });
  EXPECT_EQ(catcher.Taken.size(), 1);
}

TEST_F(About, TheDatabaseCannotBeCompactedWhileItIsOpen)
{
  Start();
  WhileOpen([this](Form&) {
    EXPECT_FALSE(Menu("mnuCompact").isEnabled());
    EXPECT_TRUE(Menu("mnuBackup").isEnabled());
  });
  EXPECT_TRUE(Menu("mnuCompact").isEnabled());
  EXPECT_TRUE(Menu("mnuBackup").isEnabled());
}

TEST_F(About, APageThatForbidsTheCompactionGoesOnForbiddingIt)
{
  Start();
  frame->OpenPage("frmNew");
  WhileOpen([this](Form&) { EXPECT_FALSE(Menu("mnuCompact").isEnabled()); });
  EXPECT_FALSE(Menu("mnuCompact").isEnabled());
  EXPECT_FALSE(Menu("mnuBackup").isEnabled());
  Drive::Click(*Forms::Loaded("frmNew"), "lblOptions_2");
  EXPECT_TRUE(Menu("mnuCompact").isEnabled());
  EXPECT_TRUE(Menu("mnuBackup").isEnabled());
}

TEST_F(About, TheCloseBoxAllowsTheCompactionAgain)
{
  Start();
  WhileOpen([](Form& dialog) { dialog.close(); });
  EXPECT_TRUE(Menu("mnuCompact").isEnabled());
}

TEST_F(About, TipsShowUnlessTheyAreOff)
{
  Start();
  WhileOpen([this](Form& dialog) {
    EXPECT_EQ(Drive::Control(dialog, "lblOptions_0").toolTip().toStdString(), "Go back to the main page");
    EXPECT_EQ(Drive::Control(dialog, "lblOptions_1").toolTip().toStdString(), "Click to send email");
    Menu("mnuToolTips_0").trigger();
    EXPECT_EQ(Drive::Control(dialog, "lblOptions_0").toolTip().toStdString(), "");
  });
  WhileOpen([this](Form& dialog) {
    for (const char* name : {"lblOptions_0", "lblOptions_1"}) {
      EXPECT_EQ(Drive::Control(dialog, name).toolTip().toStdString(), "");
    }
    Menu("mnuToolTips_1").trigger();
    EXPECT_EQ(Drive::Control(dialog, "lblOptions_0").toolTip().toStdString(), "Go back to the main page");
  });
}

TEST_F(About, TakesTheBeigeTheme)
{
  Set("Theme=5");
  Start();
  WhileOpen([](Form& dialog) { EXPECT_EQ(dialog.BackColor().name().toStdString(), "#fff9e9"); });
  Set("Theme=4");
  WhileOpen([](Form& dialog) { EXPECT_EQ(dialog.BackColor().name().toStdString(), "#ffffff"); });
}

TEST_F(About, CommandsLightUpAndTheLinesAboveThemPutThemOut)
{
  Start();
  frame->move(4000, 4000);  // the mouse of the platform for tests knows no window above another
  WhileOpen([](Form& dialog) {
    const Label& exit = LabelOf(dialog, "lblOptions_0");
    const Label& address = LabelOf(dialog, "lblOptions_1");
    for (const char* over : {"lblMaker", "lblSuggestions", ""}) {
      Drive::MoveOver(dialog, "lblOptions_0");
      EXPECT_EQ(exit.BackStyle(), Label::kOpaque);
      Drive::MoveOver(dialog, "lblOptions_1");
      EXPECT_EQ(exit.BackStyle(), Label::kTransparent);
      EXPECT_EQ(address.BackStyle(), Label::kOpaque);
      Drive::MoveOver(dialog, over);
      EXPECT_EQ(address.BackStyle(), Label::kTransparent) << over;
    }
    EXPECT_EQ(exit.ForeColor().name().toStdString(), "#000000");
    EXPECT_EQ(address.ForeColor().name().toStdString(), "#804000");
  });
}
