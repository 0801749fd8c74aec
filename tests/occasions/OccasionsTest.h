// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ComboBox.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/MonthCalendar.h"
#include "controls/MultiLineTextBox.h"
#include "controls/PictureBox.h"
#include "controls/Shape.h"
#include "controls/modID.h"
#include "looks/Style.h"
#include "looks/modToolTips.h"
#include "occasions/frmSpecial.h"
#include "platform/Application.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "support/Drive.h"
#include "support/MessageBoxScript.h"
#include "support/ProgramFolder.h"

#include <QAbstractItemView>
#include <QDir>
#include <QImage>
#include <QStandardPaths>

#include <gtest/gtest.h>

// A page that only stands there.
class BlankPage : public Form
{
public:
  explicit BlankPage(const QString& name) : Form(name, Kind::kPage) {}
};

// A frame with a plain window for the pages, which remembers what it is told.
class PlainFrame : public Frame
{
public:
  [[nodiscard]] WindowState State() const override { return WindowState::kNormal; }
  void SetState(WindowState /*state*/) override {}
  bool Unload() override { return true; }
  void PlacePage(Form& page) override
  {
    page.setParent(&window);
    window.resize(page.size());
    page.move(0, 0);
    page.show();
    window.show();
    window.activateWindow();
  }
  void OpenPage(const QString& name) override { Forms::Load(name).Show(); }
  void AllowDatabaseCare(bool allowed) override { careAllowed = allowed; }
  [[nodiscard]] bool TimerEnabled() const override { return false; }
  void SetTimerEnabled(bool /*enabled*/) override {}

  QWidget window;
  bool careAllowed = true;
};

inline const QString kBirthdays = QStringLiteral("lstBirthdays");
inline const QString kCouples = QStringLiteral("lstAnn");
inline const QString kBirthdayHint = QStringLiteral("Click on a name (above) for more birthday details");
inline const QString kAnniversaryHint = QStringLiteral("Click on a couple (above) for more anniversary details");

// The real page of occasions in a frame of its own, over a database of the test's own, on
// 5 May 2026.
class OccasionsPageTest : public testing::Test
{
protected:
  OccasionsPageTest()
  {
    QStandardPaths::setTestModeEnabled(true);
    Style::Apply(*qApp);
    Application::SetEnding([](int) { ADD_FAILURE() << "the program has ended"; });
    Forms::Register("frmSpecial", [] { return new frmSpecial; });
    for (const char* name : {"frmIntro", "frmNew", "frmAnn"}) {
      Forms::Register(name, [=] { return new BlankPage(name); });
    }
    QDir(folder.Path()).mkdir("PeoplePics");
    QDir(folder.Path()).mkdir("AnnPics");
    QDir(folder.Path()).mkdir("themes");
    Clock::StopOn(QDate(2026, 5, 5));
    modID::SelectedPersonID = modID::CoupleSpouse1ID = modID::CoupleSpouse2ID = 0;
  }

  ~OccasionsPageTest() override
  {
    for (Form* form : Forms::AllLoaded()) {
      Attempt([form] { form->Unload(); });
    }
    DropUnloaded();
    Forms::UnregisterAll();
    Application::SetEnding({});
    Clock::StopOn({});
    modToolTips::SetTipsOff(false);
    modID::SelectedPersonID = modID::CoupleSpouse1ID = modID::CoupleSpouse2ID = 0;
  }

  static void DropUnloaded() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

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

  void Open()
  {
    Command::Run([] { Forms::Load("frmSpecial").Show(); });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame.window));
  }

  static bool IsOpen(const char* name = "frmSpecial") { return Forms::Loaded(name) != nullptr; }
  static Form& Page() { return *Forms::Loaded("frmSpecial"); }
  static QWidget& Control(const QString& name) { return Drive::Control(Page(), name); }
  static ListBox& List(const QString& name) { return dynamic_cast<ListBox&>(Control(name)); }
  static ComboBox& Combo(const QString& name) { return dynamic_cast<ComboBox&>(Control(name)); }
  static MonthCalendar& Calendar() { return dynamic_cast<MonthCalendar&>(Control("calCalendar")); }
  static Label& Month(int index) { return dynamic_cast<Label&>(Control(QStringLiteral("lblMonth_%1").arg(index))); }
  static Image& Picture() { return dynamic_cast<Image&>(Control("imgPerson")); }
  static bool IsShown(const QString& name) { return Control(name).isVisibleTo(&Page()); }

  static std::string Caption(const QString& label)
  {
    return dynamic_cast<QLabel&>(Control(label)).text().toStdString();
  }
  static std::string TextOf(const QString& box)
  {
    return dynamic_cast<MultiLineTextBox&>(Control(box)).Text().toStdString();
  }
  template <typename Box>
  static QStringList LinesOf(const Box& box)
  {
    QStringList lines;
    for (int i = 0; i < box.ListCount(); ++i) {
      lines.append(box.List(i));
    }
    return lines;
  }
  // The lines of a list, with a bar between them.
  static std::string Lines(const QString& list) { return LinesOf(List(list)).join('|').toStdString(); }
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

  static void Click(const QString& name) { Drive::Click(Page(), name); }
  static void ClickMonth(int index) { Click(QStringLiteral("lblMonth_%1").arg(index)); }
  static void ClickLine(const QString& list, int line)
  {
    ListBox& box = List(list);
    const QModelIndex index = box.model()->index(line, 0);
    ASSERT_TRUE(index.isValid()) << list.toStdString() << " " << line;
    box.scrollTo(index);
    QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, box.visualRect(index).center());
  }
  static void Press(const QString& name, Qt::Key key) { QTest::keyClick(&Control(name), key); }

  // Opens the list of the box and clicks a line.
  static void Pick(const QString& combo, const QString& line)
  {
    ComboBox& box = Combo(combo);
    const qsizetype row = LinesOf(box).indexOf(line);
    ASSERT_GE(row, 0) << line.toStdString();
    box.showPopup();
    QAbstractItemView& view = *box.view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.window()));
    const QModelIndex index = view.model()->index(static_cast<int>(row), 0);
    view.scrollTo(index);
    QTest::mouseMove(view.viewport(), view.visualRect(index).center());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); }));
  }

  // --- Pictures.

  [[nodiscard]] QString PersonFile(int person) const
  {
    return folder.File(QStringLiteral("/PeoplePics/%1.bmp").arg(person));
  }
  [[nodiscard]] QString CoupleFile(int couple) const
  {
    return folder.File(QStringLiteral("/AnnPics/%1.bmp").arg(couple));
  }
  static void SavePicture(const QString& path, const QColor& colour = Qt::red, QSize size = {40, 20})
  {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    ASSERT_TRUE(image.save(path)) << path.toStdString();
  }
  // The colour in the middle of the picture on show; empty without one.
  static std::string ShownColour()
  {
    const QImage image = Picture().Picture().toImage();
    return image.isNull() ? std::string()
                          : image.pixelColor(image.width() / 2, image.height() / 2).name().toStdString();
  }

  ProgramFolder folder;
  MessageBoxScript boxes;
  PlainFrame frame;
};
