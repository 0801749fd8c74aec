// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/modThemes.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "controls/Shape.h"
#include "platform/LoadPicture.h"
#include "support/MessageBoxScript.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDir>
#include <QFrame>
#include <QImage>

namespace {

constexpr int kSports = 0;
constexpr int kGarden = 1;
constexpr int kMusic = 2;
constexpr int kNature = 3;
constexpr int kWhiteTheme = 4;
constexpr int kBeigeTheme = 5;

const QColor kWhite(0xFF, 0xFF, 0xFF);
const QColor kBeige(0xFF, 0xF9, 0xE9);

struct Themed
{
  const char* form;
  const char* holder;  // empty: the form's own picture
  std::array<const char*, 4> files;
};

const std::vector<Themed> kThemed = {
    {"frmIntro", "imgTheme", {"snowboardw.jpg", "flowersw.jpg", "guitarw.jpg", "butterflyw.jpg"}},
    {"frmQuillmark", "picThemes", {"bicyclew.jpg", "irisw4.jpg", "wchellow3.jpg", "giraffew.jpg"}},
    {"frmSpecial", "picThemes", {"soccerw.jpg", "fruitw.jpg", "bongow.jpg", "maplew.jpg"}},
    {"frmNew", "", {"mittw.jpg", "mariw.jpg", "pianow2.jpg", "beetlew.jpg"}},
    {"frmCharts", "imgTheme", {"rollerbladesw.jpg", "arrangementw.jpg", "radiow.jpg", "beew.jpg"}},
    {"frmReminders", "picReminders", {"hockw2.jpg", "amaryllisw.jpg", "chellow2.jpg", "birdw2.jpg"}},
    {"frmAnn", "", {"footw2.jpg", "canw2.jpg", "trumpw2.jpg", "shellw3.jpg"}},
};

// Every picture has a size of its own, by which it is known again.
QSize SizeOf(int form, int theme)
{
  return {20 + form * 4 + theme, 30};
}

QSize SizeOf(const char* formName, int theme)
{
  for (std::size_t i = 0; i < kThemed.size(); ++i) {
    if (std::string(kThemed[i].form) == formName) {
      return SizeOf(static_cast<int>(i), theme);
    }
  }
  return {};
}

class Page : public Form
{
public:
  explicit Page(const QString& name) : Form(name, Kind::kPage)
  {
    resize(744, 529);
    if (name == QStringLiteral("frmIntro")) {
      Add<PictureBox>("imgTheme");
    } else if (name == QStringLiteral("frmQuillmark") || name == QStringLiteral("frmSpecial")) {
      Add<PictureBox>("picThemes").hide();
      Add<Shape>(name == QStringLiteral("frmSpecial") ? "shpMonth" : "shpNames");
      Add<QFrame>("fraResults");
      Add<PictureBox>("picPerson").show();
    } else if (name == QStringLiteral("frmNew")) {
      for (const char* panel : {"fraAdd", "fraEdit", "fraTools", "fraOther", "fraNav"}) {
        Add<QFrame>(panel);
      }
      Add<PictureBox>("picPerson").show();
    } else if (name == QStringLiteral("frmCharts")) {
      Add<PictureBox>("imgTheme");
    } else if (name == QStringLiteral("frmReminders")) {
      AddGrid();
    } else if (name == QStringLiteral("frmAnn")) {
      Add<Shape>("shpEdit");
    } else if (name == QStringLiteral("frmPrintCal")) {
      Add<QCheckBox>("chkList");
    }
    if (name != QStringLiteral("frmIntro") && name != QStringLiteral("frmPrintCal")) {
      Add<Shape>("Shape15");
    }
    Add<QFrame>("fraOfItsOwn");
  }

  std::function<void()> atLoad = [] {};

protected:
  void Form_Load() override { atLoad(); }

private:
  template <typename T>
  T& Add(const char* name, QWidget* parent = nullptr)
  {
    auto* control = new T(parent != nullptr ? parent : this);
    control->setObjectName(QString::fromLatin1(name));
    return *control;
  }

  // The calendar's grid in the sizes of its design.
  void AddGrid()
  {
    auto& grid = Add<PictureBox>("picReminders");
    grid.setGeometry(8, 56, 677, 452);
    Add<Label>("Label2_6", &grid).setGeometry(576, 0, 97, 24);
    const std::vector<std::pair<const char*, int>> rules = {
        {"shpHLine_0", 88},  {"shpHLine_1", 160}, {"shpHLine_2", 232},
        {"shpHLine_3", 304}, {"shpHLine_4", 377}, {"shpHLine_5", 452},
    };
    for (const auto& [name, top] : rules) {
      Add<Shape>(name, &grid).setGeometry(0, top, 677, 1);
    }
    Add<Label>("lblDay_28", &grid).hide();
    Add<Label>("lblDay_35", &grid).hide();
  }
};

class ThemesTest : public testing::Test
{
protected:
  ThemesTest()
  {
    QDir(folder_.Path()).mkdir(QStringLiteral("themes"));
    for (std::size_t form = 0; form < kThemed.size(); ++form) {
      for (int theme = 0; theme < 4; ++theme) {
        QImage picture(SizeOf(static_cast<int>(form), theme), QImage::Format_RGB32);
        picture.fill(QColor::fromHsv(theme * 90, 255, 200));
        EXPECT_TRUE(picture.save(PictureFile(kThemed[form].files[static_cast<std::size_t>(theme)])));
      }
    }
    modThemes::SetCalendarHasPicture(false);
  }
  ~ThemesTest() override
  {
    for (Form* form : Forms::AllLoaded()) {
      form->Unload();
    }
    Forms::UnregisterAll();
    modThemes::SetCalendarHasPicture(false);
  }

  [[nodiscard]] QString PictureFile(const char* name) const
  {
    return folder_.File(QStringLiteral("/themes/") + QLatin1String(name));
  }

  static Form& Load(const char* name)
  {
    const QString formName = QString::fromLatin1(name);
    Forms::Register(formName, [formName] { return new Page(formName); });
    return Forms::Load(formName);
  }

  static void LoadAll()
  {
    for (const Themed& themed : kThemed) {
      Load(themed.form);
    }
    Load("frmPrintCal");
    Load("frmNotice");
  }

  void Store(const QVariant& theme) const { folder_.Execute(QStringLiteral("UPDATE Options SET Theme = ?"), {theme}); }

  void Apply(int theme) const
  {
    Store(theme);
    modThemes::ApplyTheme();
  }

  // A theme of the user's choice, as in the menu.
  static void Choose(int theme)
  {
    modThemes::Choose(theme);
    modThemes::ApplyTheme();
  }

  static QWidget& Control(const Form& form, const char* name)
  {
    QWidget* control = form.Control(QString::fromLatin1(name));
    EXPECT_NE(control, nullptr) << name;
    return *control;
  }
  static bool IsShown(const Form& form, const char* name) { return !Control(form, name).isHidden(); }
  static int FillStyleOf(const Form& form, const char* name)
  {
    return static_cast<Shape&>(Control(form, name)).FillStyle();
  }
  static QColor ColourOf(const Form& form, const char* name)
  {
    QWidget& control = Control(form, name);
    const auto* box = qobject_cast<PictureBox*>(&control);
    return box != nullptr ? box->BackColor() : control.palette().color(QPalette::Window);
  }

  // The size of the picture on show, which tells which one it is; empty for none.
  static QSize PictureOf(const Form& form)
  {
    for (const Themed& themed : kThemed) {
      if (form.Name() == QLatin1String(themed.form)) {
        const QPixmap picture =
            *themed.holder == '\0' ? form.Picture() : static_cast<PictureBox&>(Control(form, themed.holder)).Picture();
        return picture.isNull() ? QSize() : picture.size();
      }
    }
    return {};
  }

  ProgramFolder folder_;
};

}

TEST_F(ThemesTest, EveryFormGetsThePictureOfTheTheme)
{
  LoadAll();
  for (const int theme : {kNature, kMusic, kGarden, kSports}) {
    Choose(theme);
    for (const Themed& themed : kThemed) {
      EXPECT_EQ(PictureOf(*Forms::Loaded(QString::fromLatin1(themed.form))), SizeOf(themed.form, theme))
          << themed.form << ", theme " << theme;
    }
  }
}

TEST_F(ThemesTest, EveryPictureIsDeliveredAndLoads)
{
  for (const Themed& themed : kThemed) {
    for (const char* name : themed.files) {
      QPixmap picture;
      EXPECT_NO_THROW(picture = LoadPicture(QStringLiteral(QUILLMARK_LAID_FOLDER "/themes/") + QLatin1String(name)))
          << name;
      EXPECT_FALSE(picture.isNull()) << name;
    }
  }
}

TEST_F(ThemesTest, NoPictureIsLeftWithABackgroundTheme)
{
  for (const int theme : {kWhiteTheme, kBeigeTheme}) {
    LoadAll();
    Choose(kGarden);
    Choose(theme);
    for (const Themed& themed : kThemed) {
      EXPECT_EQ(PictureOf(*Forms::Loaded(QString::fromLatin1(themed.form))), QSize()) << themed.form;
    }
  }
}

TEST_F(ThemesTest, BackgroundTurnsFromWhiteToBeigeAndBackAndLeavesOtherColours)
{
  const QColor yellow(0xFF, 0xF7, 0xD3);
  struct Case
  {
    int theme;
    QColor before;
    QColor after;
  };
  std::vector<Case> cases = {
      {kBeigeTheme, kWhite, kBeige},
      {kBeigeTheme, kBeige, kBeige},
      {kBeigeTheme, yellow, yellow},
  };
  for (const int theme : {kSports, kGarden, kMusic, kNature, kWhiteTheme}) {
    cases.push_back({theme, kWhite, kWhite});
    cases.push_back({theme, kBeige, kWhite});
    cases.push_back({theme, yellow, yellow});
  }
  LoadAll();
  for (const Case& c : cases) {
    for (Form* form : Forms::AllLoaded()) {
      form->SetBackColor(c.before);
    }
    Choose(c.theme);
    for (const Form* form : Forms::AllLoaded()) {
      EXPECT_EQ(form->BackColor(), c.after) << form->Name().toStdString() << ", theme " << c.theme;
    }
  }
}

TEST_F(ThemesTest, PersonalAndOccasionPagesAtAPictureTheme)
{
  for (const auto& [name, panel] : {std::pair{"frmQuillmark", "shpNames"}, std::pair{"frmSpecial", "shpMonth"}}) {
    for (const int theme : {kSports, kGarden, kMusic, kNature}) {
      SCOPED_TRACE(name);
      const Form& form = Load(name);
      Apply(theme);
      EXPECT_TRUE(IsShown(form, "picThemes"));
      EXPECT_FALSE(IsShown(form, "picPerson"));
      EXPECT_FALSE(IsShown(form, "Shape15"));
      EXPECT_EQ(FillStyleOf(form, panel), Shape::kHollow);
      for (const char* coloured : {"picThemes", "fraResults", "picPerson"}) {
        EXPECT_EQ(ColourOf(form, coloured), kWhite) << coloured;
      }
      Forms::Unload(QString::fromLatin1(name));
    }
  }
}

TEST_F(ThemesTest, PersonalAndOccasionPagesAtABackgroundTheme)
{
  for (const auto& [name, panel] : {std::pair{"frmQuillmark", "shpNames"}, std::pair{"frmSpecial", "shpMonth"}}) {
    for (const auto& [theme, colour] : {std::pair{kWhiteTheme, kWhite}, std::pair{kBeigeTheme, kBeige}}) {
      SCOPED_TRACE(name);
      const Form& form = Load(name);
      Apply(theme);
      EXPECT_FALSE(IsShown(form, "picThemes"));
      Apply(kGarden);
      Control(form, "picPerson").show();
      Apply(theme);
      EXPECT_TRUE(IsShown(form, "picThemes"));
      EXPECT_FALSE(IsShown(form, "picPerson"));
      EXPECT_TRUE(IsShown(form, "Shape15"));
      EXPECT_EQ(FillStyleOf(form, panel), Shape::kSolid);
      for (const char* coloured : {"picThemes", "fraResults", "picPerson"}) {
        EXPECT_EQ(ColourOf(form, coloured), colour) << coloured;
      }
      Forms::Unload(QString::fromLatin1(name));
    }
  }
}

TEST_F(ThemesTest, PanelsOfTheRecordEditorTakeTheColour)
{
  const Form& form = Load("frmNew");
  for (const auto& [theme, colour] :
       {std::pair{kBeigeTheme, kBeige}, std::pair{kMusic, kWhite}, std::pair{kWhiteTheme, kWhite}}) {
    Apply(theme);
    for (const char* coloured : {"fraAdd", "fraEdit", "fraTools", "fraOther", "fraNav", "picPerson"}) {
      EXPECT_EQ(ColourOf(form, coloured), colour) << coloured << ", theme " << theme;
    }
    EXPECT_EQ(IsShown(form, "Shape15"), theme >= kWhiteTheme);
    EXPECT_TRUE(IsShown(form, "picPerson"));
  }
}

TEST_F(ThemesTest, DecorativeShapeShowsWithABackgroundThemeAlone)
{
  LoadAll();
  for (const int theme : {kBeigeTheme, kGarden, kWhiteTheme, kSports, kMusic, kNature}) {
    Choose(theme);
    for (const char* name : {"frmQuillmark", "frmSpecial", "frmNew", "frmCharts", "frmReminders", "frmAnn"}) {
      const Form& form = *Forms::Loaded(QString::fromLatin1(name));
      EXPECT_EQ(IsShown(form, "Shape15"), theme >= kWhiteTheme) << name << ", theme " << theme;
    }
    EXPECT_TRUE(IsShown(*Forms::Loaded(QStringLiteral("frmNotice")), "Shape15"));
  }
}

TEST_F(ThemesTest, PanelOfTheCouplePageIsHollowWithAPicture)
{
  const Form& form = Load("frmAnn");
  for (const int theme : {kSports, kWhiteTheme, kGarden, kBeigeTheme, kMusic, kWhiteTheme, kNature}) {
    Apply(theme);
    EXPECT_EQ(FillStyleOf(form, "shpEdit"), theme >= kWhiteTheme ? Shape::kSolid : Shape::kHollow) << theme;
  }
}

TEST_F(ThemesTest, CheckBoxOfTheCalendarPrintingTakesTheColourOfABackgroundThemeAlone)
{
  const Form& form = Load("frmPrintCal");
  Apply(kBeigeTheme);
  EXPECT_EQ(ColourOf(form, "chkList"), kBeige);
  Apply(kGarden);
  EXPECT_EQ(ColourOf(form, "chkList"), kBeige);
  Apply(kWhiteTheme);
  EXPECT_EQ(ColourOf(form, "chkList"), kWhite);
}

TEST_F(ThemesTest, ControlsThatAreNotNamedKeepTheirColour)
{
  LoadAll();
  std::vector<QColor> before;
  for (const Form* form : Forms::AllLoaded()) {
    before.push_back(ColourOf(*form, "fraOfItsOwn"));
    ASSERT_NE(before.back(), kBeige);
  }
  Choose(kBeigeTheme);
  std::vector<QColor> after;
  for (const Form* form : Forms::AllLoaded()) {
    after.push_back(ColourOf(*form, "fraOfItsOwn"));
  }
  EXPECT_EQ(after, before);
}

TEST_F(ThemesTest, FormThatIsNotLoadedTakesItsLookAtItsOwnLoad)
{
  Load("frmIntro");
  Apply(kGarden);
  Forms::Register(QStringLiteral("frmAnn"), [] {
    auto* page = new Page(QStringLiteral("frmAnn"));
    page->atLoad = [] { modThemes::ApplyTheme(); };
    return page;
  });
  const Form& form = Forms::Load(QStringLiteral("frmAnn"));
  EXPECT_EQ(PictureOf(form), SizeOf("frmAnn", kGarden));
  EXPECT_FALSE(IsShown(form, "Shape15"));
}

TEST_F(ThemesTest, CalendarGetsItsPictureOnce)
{
  const Form& form = Load("frmReminders");
  Apply(kGarden);
  EXPECT_TRUE(modThemes::CalendarHasPicture());
  EXPECT_EQ(PictureOf(form), SizeOf("frmReminders", kGarden));
  Control(form, "picReminders").resize(100, 100);
  Apply(kMusic);
  EXPECT_EQ(PictureOf(form), SizeOf("frmReminders", kGarden));
  EXPECT_EQ(Control(form, "picReminders").size(), QSize(100, 100));
  Apply(kWhiteTheme);
  EXPECT_EQ(PictureOf(form), SizeOf("frmReminders", kGarden));
  EXPECT_FALSE(IsShown(form, "Shape15"));
  modThemes::SetCalendarHasPicture(false);
  Apply(kMusic);
  EXPECT_EQ(PictureOf(form), SizeOf("frmReminders", kMusic));
}

TEST_F(ThemesTest, CalendarsBackgroundFollowsTheThemeEvenWhileItKeepsItsPicture)
{
  Form& form = Load("frmReminders");
  Apply(kGarden);
  Apply(kBeigeTheme);
  EXPECT_EQ(form.BackColor(), kBeige);
  EXPECT_EQ(PictureOf(form), SizeOf("frmReminders", kGarden));
}

TEST_F(ThemesTest, FlagOfTheCalendarIsSetOnlyWhenItsPictureWasPlaced)
{
  Load("frmIntro");
  Apply(kGarden);
  EXPECT_FALSE(modThemes::CalendarHasPicture());
  Load("frmReminders");
  Apply(kBeigeTheme);
  EXPECT_TRUE(modThemes::CalendarHasPicture());
}

TEST_F(ThemesTest, ChoosingAThemeReplacesThePictureOfTheOpenCalendar)
{
  const Form& form = Load("frmReminders");
  Apply(kGarden);
  Choose(kNature);
  EXPECT_EQ(PictureOf(form), SizeOf("frmReminders", kNature));
  EXPECT_TRUE(modThemes::CalendarHasPicture());
  Choose(kBeigeTheme);
  EXPECT_EQ(PictureOf(form), QSize());
  EXPECT_TRUE(IsShown(form, "Shape15"));
}

TEST_F(ThemesTest, ChoiceClearsTheFlagOfTheCalendar)
{
  modThemes::SetCalendarHasPicture(true);
  modThemes::Choose(kMusic);
  EXPECT_FALSE(modThemes::CalendarHasPicture());
}

TEST_F(ThemesTest, CalendarsPictureIsSizedToTheRowsOfItsGrid)
{
  struct Case
  {
    const char* what;
    bool day28;
    bool day35;
    double height;
  };
  const std::vector<Case> cases = {
      {"four rows", false, false, 304},
      {"five rows", true, false, 377},
      {"six rows", true, true, 452 - 20.0 / 15},
  };
  const Form& form = Load("frmReminders");
  const QWidget& picture = Control(form, "picReminders");
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Control(form, "lblDay_28").setVisible(c.day28);
    Control(form, "lblDay_35").setVisible(c.day35);
    for (const int theme : {kGarden, kWhiteTheme}) {
      Control(form, "picReminders").resize(10, 10);
      Choose(theme);
      EXPECT_EQ(picture.width(), 673);
      EXPECT_NEAR(picture.height(), c.height, 1);
    }
    Control(form, "picReminders").resize(10, 10);
    modThemes::FitCalendarPicture(form);
    EXPECT_EQ(picture.width(), 673);
    EXPECT_NEAR(picture.height(), c.height, 1);
    EXPECT_EQ(picture.pos(), QPoint(8, 56));
  }
}

TEST_F(ThemesTest, MissingPictureStopsInSilenceAndLeavesTheFormsNotReached)
{
  MessageBoxScript noBoxes;
  Form& reached = Load("frmIntro");
  Form& failing = Load("frmCharts");
  Form& left = Load("frmAnn");
  Apply(kGarden);
  for (Form* form : Forms::AllLoaded()) {
    form->SetBackColor(kBeige);
  }
  ASSERT_TRUE(QFile::remove(PictureFile("radiow.jpg")));
  EXPECT_NO_THROW(Choose(kMusic));
  EXPECT_EQ(PictureOf(reached), SizeOf("frmIntro", kMusic));
  EXPECT_EQ(PictureOf(failing), SizeOf("frmCharts", kGarden));
  EXPECT_EQ(PictureOf(left), SizeOf("frmAnn", kGarden));
  EXPECT_EQ(reached.BackColor(), kWhite);
  EXPECT_EQ(left.BackColor(), kBeige);
  EXPECT_EQ(noBoxes.Count(), 0U);
}

TEST_F(ThemesTest, MissingPictureStopsBehindTheColouredAndShownPlaceOfIt)
{
  for (const auto& [name, panel, file] :
       {std::tuple{"frmQuillmark", "shpNames", "irisw4.jpg"}, std::tuple{"frmSpecial", "shpMonth", "fruitw.jpg"}}) {
    SCOPED_TRACE(name);
    const Form& form = Load(name);
    Apply(kBeigeTheme);
    Control(form, "picThemes").hide();
    Control(form, "picPerson").show();
    ASSERT_TRUE(QFile::remove(PictureFile(file)));
    Apply(kGarden);
    EXPECT_EQ(ColourOf(form, "picThemes"), kWhite);
    EXPECT_TRUE(IsShown(form, "picThemes"));
    EXPECT_EQ(PictureOf(form), QSize());
    EXPECT_EQ(FillStyleOf(form, panel), Shape::kSolid);
    EXPECT_EQ(ColourOf(form, "fraResults"), kBeige);
    EXPECT_EQ(ColourOf(form, "picPerson"), kBeige);
    EXPECT_TRUE(IsShown(form, "picPerson"));
    EXPECT_TRUE(IsShown(form, "Shape15"));
    Forms::Unload(QString::fromLatin1(name));
  }
}

TEST_F(ThemesTest, FileThatIsNoPictureStopsInSilence)
{
  const Form& failing = Load("frmIntro");
  const Form& left = Load("frmAnn");
  Apply(kGarden);
  QFile file(PictureFile("guitarw.jpg"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write("no picture");
  file.close();
  EXPECT_NO_THROW(Choose(kMusic));
  EXPECT_EQ(PictureOf(failing), SizeOf("frmIntro", kGarden));
  EXPECT_EQ(PictureOf(left), SizeOf("frmAnn", kGarden));
}

TEST_F(ThemesTest, SettingsWithoutAThemeChangeNothing)
{
  struct Case
  {
    const char* what;
    std::function<void()> spoil;
  };
  const std::vector<Case> cases = {
      {"theme 9", [this] { Store(9); }},
      {"no theme", [this] { Store({}); }},
      {"no settings", [this] { folder_.Execute(QStringLiteral("DELETE FROM Options")); }},
      {"no database", [this] { ASSERT_TRUE(QFile::remove(folder_.DatabasePath())); }},
  };
  MessageBoxScript noBoxes;
  LoadAll();
  Apply(kGarden);
  for (Form* form : Forms::AllLoaded()) {
    form->SetBackColor(kBeige);
  }
  modThemes::SetCalendarHasPicture(false);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    c.spoil();
    EXPECT_NO_THROW(modThemes::ApplyTheme());
    for (const Themed& themed : kThemed) {
      const Form& form = *Forms::Loaded(QString::fromLatin1(themed.form));
      EXPECT_EQ(PictureOf(form), SizeOf(themed.form, kGarden)) << themed.form;
      EXPECT_EQ(form.BackColor(), kBeige) << themed.form;
    }
    EXPECT_FALSE(IsShown(*Forms::Loaded(QStringLiteral("frmNew")), "Shape15"));
    EXPECT_FALSE(modThemes::CalendarHasPicture());
  }
  EXPECT_EQ(noBoxes.Count(), 0U);
}

TEST_F(ThemesTest, FormThatLacksAControlIsNoFailureOfThePrograms)
{
  class Bare : public Form
  {
  public:
    Bare() : Form(QStringLiteral("frmQuillmark"), Kind::kPage) {}
  };
  Forms::Register(QStringLiteral("frmQuillmark"), [] { return new Bare; });
  Forms::Load(QStringLiteral("frmQuillmark"));
  EXPECT_NO_THROW(Apply(kGarden));
  EXPECT_NO_THROW(Apply(kBeigeTheme));
}

TEST_F(ThemesTest, ChoiceIsStored)
{
  ASSERT_EQ(modThemes::kThemeCount, 6);
  const QVariantList before = folder_.Rows(QStringLiteral("SELECT * FROM Options")).front();
  for (const int theme : {5, 4, 3, 2, 0, 1}) {
    modThemes::Choose(theme);
    EXPECT_EQ(folder_.Value(QStringLiteral("SELECT Theme FROM Options")).toInt(), theme);
  }
  EXPECT_EQ(folder_.Rows(QStringLiteral("SELECT * FROM Options")).front(), before);
}
