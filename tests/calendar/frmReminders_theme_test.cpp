// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

#include <QImage>

namespace {

constexpr int kSports = 0;
constexpr int kGarden = 1;
constexpr int kMusic = 2;
constexpr int kNature = 3;
constexpr int kWhite = 4;
constexpr int kBeige = 5;
const QColor kBeigeColour(0xFF, 0xF9, 0xE9);

class RemindersTheme : public RemindersTest
{
protected:
  RemindersTheme()
  {
    const std::array<const char*, 4> names = {"hockw2.jpg", "amaryllisw.jpg", "chellow2.jpg", "birdw2.jpg"};
    for (int theme = 0; theme < 4; ++theme) {
      QImage image(SizeOf(theme), QImage::Format_RGB32);
      image.fill(Qt::green);
      EXPECT_TRUE(image.save(folder.File("/themes/") + names.at(static_cast<std::size_t>(theme))));
    }
  }

  // Every picture is known by its size.
  static QSize SizeOf(int theme) { return {40 + theme, 30}; }
  static PictureBox& Grid() { return dynamic_cast<PictureBox&>(Control("picReminders")); }

  void Use(int theme) const { folder.Execute("UPDATE Options SET Theme=?", {theme}); }
  // What a click on the menu does.
  static void Choose(int theme)
  {
    Command::Run([=] {
      modThemes::Choose(theme);
      modThemes::ApplyTheme();
    });
  }
  static void ExpectTheme(int theme)
  {
    SCOPED_TRACE(theme);
    EXPECT_EQ(Grid().Picture().size(), theme < kWhite ? SizeOf(theme) : QSize(0, 0));
    EXPECT_EQ(IsShown("Shape15"), theme >= kWhite);
    EXPECT_EQ(Page().BackColor(), theme == kBeige ? kBeigeColour : QColor(Qt::white));
    EXPECT_TRUE(modThemes::CalendarHasPicture());
  }
};

}

TEST_F(RemindersTheme, EachThemeIsTakenAtTheLoad)
{
  for (const int theme : {kSports, kGarden, kMusic, kNature, kWhite, kBeige}) {
    Use(theme);
    Open();
    ExpectTheme(theme);
    ExpectMonth(2026, 5);
    Forms::Unload("frmReminders");
    DropUnloaded();
  }
}

TEST_F(RemindersTheme, AnotherThemeIsTakenWhileTheCalendarIsOpen)
{
  Use(kGarden);
  Open();
  for (const int theme : {kMusic, kBeige, kSports, kWhite, kNature}) {
    Choose(theme);
    ExpectTheme(theme);
    ExpectMonth(2026, 5);
  }
}

TEST_F(RemindersTheme, TheGridKeepsItsRowsWhenTheThemeChanges)
{
  Use(kGarden);
  OpenOn(QDate(2026, 2, 10));
  Choose(kMusic);
  ExpectRows(4);
  Next();
  Choose(kWhite);
  ExpectRows(5);
  ChooseMonth(8);
  Choose(kBeige);
  ExpectRows(6);
}

TEST_F(RemindersTheme, TheFormForPrintingLeavesTheGridAsItWas)
{
  AddEvent("2026-05-12", "Dentist");
  RegisterBeside("frmPrintCal", Form::Kind::kWindow, [] { modThemes::ApplyTheme(); });
  Use(kGarden);
  Open();
  Page().resize(900, 700);
  const qint64 picture = Grid().Picture().cacheKey();
  const QRect place = Grid().geometry();
  modThemes::SetCalendarHasPicture(false);
  WithModal("frmPrintCal", [] { Click("lblOptions_3"); });
  EXPECT_EQ(Grid().Picture().cacheKey(), picture);
  EXPECT_EQ(Grid().geometry(), place);
  EXPECT_EQ(ShownEvents(), (std::map<int, std::string>{{16, " Dentist "}}));
  ExpectMonth(2026, 5);
}

TEST_F(RemindersTheme, TheEventEditorLeavesTheGridAsItWas)
{
  RegisterBeside("frmCalEdit", Form::Kind::kWindow, [] { modThemes::ApplyTheme(); });
  Use(kGarden);
  Open();
  const qint64 picture = Grid().Picture().cacheKey();
  WithModal("frmCalEdit", [] { Click("lblDay_16"); });
  EXPECT_EQ(Grid().Picture().cacheKey(), picture);
  ExpectMonth(2026, 5);
}

TEST_F(RemindersTheme, AMissingPictureIsPassedOver)
{
  QFile::remove(folder.File("/themes/amaryllisw.jpg"));
  Use(kGarden);
  Open();
  EXPECT_TRUE(Grid().Picture().isNull());
  ExpectMonth(2026, 5);
}

TEST_F(RemindersTheme, ThePictureIsSeenBehindTheDays)
{
  Use(kGarden);
  Open();
  const auto greenPixels = [] {
    const QImage image = Page().grab().toImage();
    int green = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor pixel = image.pixelColor(x, y);
        green += pixel.green() > 200 && pixel.red() < 100 && pixel.blue() < 100 ? 1 : 0;
      }
    }
    return green;
  };
  EXPECT_GT(greenPixels(), 10'000);
  Choose(kWhite);
  EXPECT_EQ(greenPixels(), 0);
}
