// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Household.h"

#include "anniversaries/frmAnn.h"
#include "controls/Image.h"
#include "people/frmNew.h"
#include "support/FileDialogScript.h"
#include "support/PageTest.h"

// The commands of the page by their place in lblOptions.
namespace AnnCommand {
inline const QString kUpdate = QStringLiteral("lblOptions_0");
inline const QString kMain = QStringLiteral("lblOptions_1");
inline const QString kDelete = QStringLiteral("lblOptions_2");
inline const QString kCancel = QStringLiteral("lblOptions_3");
inline const QString kNotListed = QStringLiteral("lblOptions_4");
}

inline const QString kWomen = QStringLiteral("lstPartner1");
inline const QString kMen = QStringLiteral("lstPartner2");
inline const QString kCouples = QStringLiteral("lstDelete");
inline const QStringList kDateBoxes = {"cboAnnMonth", "cboAnnDate", "cboAnnYear"};
inline const QString kNotOccurred = QStringLiteral("That date has not yet occurred. Please try again.");
inline const QString kBothMarried =
    QStringLiteral("Both these people are already married. Please delete the original couples and start over");
inline const QString kNoImage = QStringLiteral("Sorry, that is not a valid image format");

// The real couple editor in a frame of its own, over a database of the test's own, on
// 5 May 2026.
class AnniversariesTest : public PageTest<frmAnn>, protected Household
{
protected:
  AnniversariesTest()
      : PageTest({"frmIntro", "frmSpecial", "frmCharts", "frmQuillmark", "frmReminders"}), Household(folder)
  {
    Forms::Register("frmNew", [] { return new frmNew; });
    Clock::StopOn(QDate(2026, 5, 5));
  }

  // --- The page.

  void Open(int wife = 0, int husband = 0)
  {
    modID::CoupleSpouse1ID = wife;
    modID::CoupleSpouse2ID = husband;
    PageTest::Open();
  }

  static ListBox& List(const QString& name) { return dynamic_cast<ListBox&>(Control(name)); }
  static ComboBox& Combo(const QString& name) { return dynamic_cast<ComboBox&>(Control(name)); }
  static Image& Picture() { return dynamic_cast<Image&>(Control("imgPerson")); }

  static QStringList Lines(const QString& list) { return Hands::LinesOf(List(list)); }

  static std::string Chosen(const QString& list) { return List(list).Text().toStdString(); }
  static bool IsDone() { return IsShown("lblDone1"); }
  static std::string ShownDay()
  {
    return Day{Combo("cboAnnMonth").Text(), Combo("cboAnnDate").Text(), Combo("cboAnnYear").Text()}.Text();
  }
  static void ExpectPictureCommands(bool enabled)
  {
    EXPECT_EQ(Control("cmdAddPic").isEnabled(), enabled);
    EXPECT_EQ(Control("cmdDeletePic").isEnabled(), enabled);
  }

  // Both lists, both labels and the date at once.
  static void ExpectChosen(const QString& wife, const QString& husband, const Day& day)
  {
    EXPECT_EQ(Chosen(kWomen), wife.toStdString());
    EXPECT_EQ(Chosen(kMen), husband.toStdString());
    EXPECT_EQ(Caption("lblPartner1"), wife.toStdString());
    EXPECT_EQ(Caption("lblPartner2"), husband.toStdString());
    EXPECT_EQ(ShownDay(), day.Text());
  }

  // --- What the page shows of a picture.

  static std::string ShownColour() { return Hands::MiddleColour(Picture().Picture().toImage()); }
  static void ExpectPicture(const QColor& colour)
  {
    EXPECT_EQ(ShownColour(), colour.name().toStdString());
    EXPECT_TRUE(IsShown("imgPerson"));
    EXPECT_TRUE(IsShown("picPerson"));
  }
  static void ExpectNoPicture()
  {
    EXPECT_EQ(Picture().Handle(), 0);
    EXPECT_EQ(ShownColour(), "");
    EXPECT_TRUE(IsShown("picPerson"));
  }

  // --- Hands on the page.

  static void Update() { Click(AnnCommand::kUpdate); }
  static void Delete() { Click(AnnCommand::kDelete); }

  static void ClickLine(const QString& list, int line) { Hands::ClickLine(List(list), line); }
  static void ClickLine(const QString& list, const QString& text)
  {
    const qsizetype line = Lines(list).indexOf(text);
    ASSERT_GE(line, 0) << text.toStdString() << " is not in " << Lines(list).join("; ").toStdString();
    ClickLine(list, static_cast<int>(line));
  }

  static void Erase(const QString& combo)
  {
    Press(combo, Qt::Key_A, Qt::ControlModifier);
    Press(combo, Qt::Key_Backspace);
  }
  // Opens the list of the box and clicks a line; an empty line erases the box.
  static void Pick(const QString& combo, const QString& line)
  {
    if (line.isEmpty()) {
      Erase(combo);
    } else {
      Hands::PickLine(Combo(combo), line);
    }
  }
  static void PickDay(const Day& day)
  {
    Pick("cboAnnMonth", day.month);
    Pick("cboAnnDate", day.day);
    Pick("cboAnnYear", day.year);
  }

  // Update is refused with these words, and nothing is written.
  void ExpectRefused(const QString& message)
  {
    const auto people = People();
    const auto couples = Couples();
    const std::size_t came = boxes.Count();
    boxes.Expect(message);
    Update();
    EXPECT_EQ(boxes.Count(), came + 1) << message.toStdString();
    EXPECT_EQ(People(), people);
    EXPECT_EQ(Couples(), couples);
    EXPECT_FALSE(IsDone());
  }

  FileDialogScript dialogs;
};
