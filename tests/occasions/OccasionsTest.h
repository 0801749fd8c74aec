// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/MonthCalendar.h"
#include "controls/MultiLineTextBox.h"
#include "controls/PictureBox.h"
#include "controls/Shape.h"
#include "occasions/frmSpecial.h"
#include "support/PageTest.h"

inline const QString kBirthdays = QStringLiteral("lstBirthdays");
inline const QString kCouples = QStringLiteral("lstAnn");
inline const QString kBirthdayHint = QStringLiteral("Click on a name (above) for more birthday details");
inline const QString kAnniversaryHint = QStringLiteral("Click on a couple (above) for more anniversary details");

// The real page of occasions in a frame of its own, over a database of the test's own, on
// 5 May 2026.
class OccasionsPageTest : public PageTest<frmSpecial>
{
protected:
  OccasionsPageTest() : PageTest({"frmIntro", "frmNew", "frmAnn"}) { Clock::StopOn(QDate(2026, 5, 5)); }

  // --- The database, seen from outside. Both return the key. Couples are of strangers,
  // unless they are named.

  int AddPerson(const QString& first, const QVariant& month, const QVariant& day, const QVariant& year = {},
                const QVariant& gender = "Female") const
  {
    folder.Execute(
        "INSERT INTO People (FirstName, LastName, Gender, BirthMonth, BirthDate, BirthYear) VALUES (?,'Wood',?,?,?,?)",
        {first, gender, month, day, year});
    return folder.Value("SELECT max(PeopleID) FROM People").toInt();
  }
  int AddCouple(const QString& wife, const QString& husband, const QVariant& month, const QVariant& day,
                const QVariant& year = {}, int wifeID = 0, int husbandID = 0) const
  {
    if (wifeID == 0) {
      wifeID = 1001 + 2 * folder.Value("SELECT count(*) FROM Ann").toInt();
      husbandID = wifeID + 1;
    }
    folder.Execute(
        "INSERT INTO Ann (Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last, AnnMonth, "
        "AnnDate, AnnYear) VALUES (?,?,'Wood',?,?,'Wood',?,?,?)",
        {wifeID, wife, husbandID, husband, month, day, year});
    return folder.Value("SELECT max(AnnID) FROM Ann").toInt();
  }

  // --- The page.

  static ListBox& List(const QString& name) { return dynamic_cast<ListBox&>(Control(name)); }
  static ComboBox& Combo(const QString& name) { return dynamic_cast<ComboBox&>(Control(name)); }
  static MonthCalendar& Calendar() { return dynamic_cast<MonthCalendar&>(Control("calCalendar")); }
  static Label& Month(int index) { return dynamic_cast<Label&>(Control(QStringLiteral("lblMonth_%1").arg(index))); }
  static Image& Picture() { return dynamic_cast<Image&>(Control("imgPerson")); }
  static std::string TextOf(const QString& box)
  {
    return dynamic_cast<MultiLineTextBox&>(Control(box)).Text().toStdString();
  }
  // The lines of a list, with a bar between them.
  static std::string Lines(const QString& list) { return Hands::LinesOf(List(list)).join('|').toStdString(); }
  static std::string ShownDay() { return Calendar().Value().toString(Qt::ISODate).toStdString(); }
  static std::string ShownYear() { return Combo("cboYear").Text().toStdString(); }
  static int Marked(const QString& shape) { return dynamic_cast<Shape&>(Control(shape)).FillStyle(); }

  // The indices of the month labels with the selected look; every other one has the plain look.
  static std::vector<int> SelectedMonths()
  {
    std::vector<int> selected;
    for (int i = 0; i < 12; ++i) {
      if (Month(i).BackStyle() == Label::kOpaque) {
        selected.push_back(i);
      }
      EXPECT_EQ(Month(i).ForeColor().name().toStdString(),
                Month(i).BackStyle() == Label::kOpaque ? "#ffffff" : "#804000")
          << i;
    }
    return selected;
  }
  static void ExpectRaised()
  {
    EXPECT_EQ(Calendar().ActiveDayFontSize(), 14);
    EXPECT_EQ(Calendar().ActiveDayForeColor().name().toStdString(), "#c00000");
  }
  static void ExpectPlain()
  {
    EXPECT_EQ(Calendar().ActiveDayFontSize(), 10);
    EXPECT_EQ(Calendar().ActiveDayForeColor().name().toStdString(), "#000000");
  }

  // --- Hands on the page.

  static void ClickMonth(int index) { Click(QStringLiteral("lblMonth_%1").arg(index)); }
  static void ClickLine(const QString& list, int line) { Hands::ClickLine(List(list), line); }
  static void Pick(const QString& combo, const QString& line) { Hands::PickLine(Combo(combo), line); }

  // --- Pictures.

  [[nodiscard]] QString PersonFile(int person) const
  {
    return folder.File(QStringLiteral("/PeoplePics/%1.bmp").arg(person));
  }
  [[nodiscard]] QString CoupleFile(int couple) const
  {
    return folder.File(QStringLiteral("/AnnPics/%1.bmp").arg(couple));
  }
  // The garden theme, with its picture for this page.
  void UseGarden() const
  {
    folder.Execute("UPDATE Options SET Theme=1");
    Hands::SavePicture(folder.File("/themes/fruitw.jpg"), Qt::green, {24, 30});
  }
  static PictureBox& Decoration() { return dynamic_cast<PictureBox&>(Control("picThemes")); }
  static void ExpectDecoration()
  {
    EXPECT_FALSE(IsShown("picPerson"));
    EXPECT_EQ(Picture().Handle(), 0);
    EXPECT_TRUE(IsShown("picThemes"));
    EXPECT_EQ(Decoration().Picture().size(), QSize(24, 30));
  }
  // The colour in the middle of the picture on show; empty without one.
  static std::string ShownColour() { return Hands::MiddleColour(Picture().Picture().toImage()); }
};
