// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "OccasionsTest.h"

#include <map>

namespace {

constexpr int kRounding = 3;

// Ann has a wide picture, Eve a tall one and Joan none; the first couple has a tall one.
class SpecialResize : public OccasionsPageTest
{
protected:
  void OpenWithPictures()
  {
    UseGarden();
    Hands::SavePicture(PersonFile(AddPerson("Ann", "May", "1")), Qt::red, {400, 40});
    Hands::SavePicture(PersonFile(AddPerson("Eve", "May", "2")), Qt::blue, {20, 216});
    AddPerson("Joan", "May", "3");
    Hands::SavePicture(CoupleFile(AddCouple("Ann", "Bob", "May", "1")), Qt::yellow, {20, 216});
    Open();
  }

  static void ScaleTo(double factor) { Page().resize(QSizeF(kDesign * factor).toSize()); }

  static void ExpectPicture(const char* colour, double width, double height)
  {
    EXPECT_EQ(ShownColour(), colour);
    EXPECT_TRUE(IsShown("picPerson"));
    EXPECT_TRUE(IsShown("imgPerson"));
    EXPECT_FALSE(IsShown("picThemes"));
    EXPECT_NEAR(Picture().width(), width, kRounding);
    EXPECT_NEAR(Picture().height(), height, kRounding);
    EXPECT_EQ(Picture().pos(), QPoint(0, 0));
    EXPECT_EQ(Control("picPerson").size(), Picture().size());
  }

  // Where everything stands, but for the picture of a person, which is fitted.
  static std::vector<QRect> Places()
  {
    std::vector<QRect> places;
    for (const QWidget* control : Page().Controls()) {
      if (!control->objectName().endsWith("Person")) {
        places.push_back(control->geometry());
      }
    }
    return places;
  }
  static void ExpectScaled(const QString& name, const QRect& design, double factor)
  {
    const QRect place = Control(name).geometry();
    EXPECT_NEAR(place.x(), design.x() * factor, kRounding) << name.toStdString();
    EXPECT_NEAR(place.y(), design.y() * factor, kRounding) << name.toStdString();
    EXPECT_NEAR(place.width(), design.width() * factor, kRounding) << name.toStdString();
    if (qobject_cast<ComboBox*>(&Control(name)) == nullptr) {
      EXPECT_NEAR(place.height(), design.height() * factor, kRounding) << name.toStdString();
    }
  }

  static constexpr QSizeF kDesign = {744, 529};
  static constexpr QSize kRoom = {140, 216};
};

}

TEST_F(SpecialResize, APersonsPictureIsFittedAgain)
{
  OpenWithPictures();
  ClickLine(kBirthdays, 0);
  ExpectPicture("#ff0000", kRoom.width(), kRoom.width() / 10.0);
  ScaleTo(2);
  ExpectPicture("#ff0000", kRoom.width() * 2, kRoom.width() / 5.0);
  ClickLine(kBirthdays, 1);
  ExpectPicture("#0000ff", 40, kRoom.height() * 2);
  ScaleTo(1);
  ExpectPicture("#0000ff", 20, kRoom.height());
}

TEST_F(SpecialResize, ACouplesPictureIsFittedAgain)
{
  OpenWithPictures();
  ClickLine(kCouples, 0);
  ScaleTo(1.5);
  ExpectPicture("#ffff00", 30, kRoom.height() * 1.5);
}

TEST_F(SpecialResize, WithoutAPictureTheDecorationStays)
{
  OpenWithPictures();
  ScaleTo(2);
  ExpectDecoration();
  ClickLine(kBirthdays, 2);
  ScaleTo(1);
  ExpectDecoration();
  ClickLine(kBirthdays, 0);
  ExpectPicture("#ff0000", kRoom.width(), kRoom.width() / 10.0);
}

TEST_F(SpecialResize, EverythingKeepsItsProportions)
{
  Open();
  std::map<QString, QRect> design;
  for (const QWidget* control : Page().Controls()) {
    design[control->objectName()] = control->geometry();
  }
  for (const double factor : {1.5, 2.0, 1.0}) {
    ScaleTo(factor);
    for (const char* name : {"lblTitle", "lblMonth_0", "lblMonth_11", "cboYear", "lstBirthdays", "lstAnn", "fraResults",
                             "txtBDetails", "txtADetails", "picThemes", "picPerson", "fraCalendar", "fraPrint",
                             "fraFamous", "fraDatabase", "lblOptions_0", "lblOptions_6", "lblOptions_10"}) {
      ExpectScaled(name, design.at(name), factor);
    }
  }
}

TEST_F(SpecialResize, AMinimisedFrameChangesNothing)
{
  OpenWithPictures();
  ClickLine(kBirthdays, 0);
  const std::vector<QRect> before = Places();
  frame.state = WindowState::kMinimised;
  ScaleTo(2);
  EXPECT_EQ(Places(), before);
  ExpectPicture("#ff0000", kRoom.width(), kRoom.width() / 10.0);
  frame.state = WindowState::kMaximised;
  ScaleTo(1.5);
  EXPECT_NE(Places(), before);
  ExpectPicture("#ff0000", kRoom.width() * 1.5, kRoom.width() * 0.15);
}

TEST_F(SpecialResize, TheChoiceAndTheSentencesStay)
{
  OpenWithPictures();
  ClickLine(kBirthdays, 0);
  const std::string details = TextOf("txtBDetails");
  ASSERT_EQ(details, "Ann's birthday was 4 days ago.\r\n");
  ScaleTo(2);
  EXPECT_EQ(TextOf("txtBDetails"), details);
  EXPECT_EQ(List(kBirthdays).ListIndex(), 0);
  EXPECT_EQ(SelectedMonths(), std::vector<int>{4});
  EXPECT_EQ(ShownDay(), "2026-05-01");
}
