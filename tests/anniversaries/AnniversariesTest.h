// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Household.h"
#include "StandInFrame.h"

#include "anniversaries/frmAnn.h"
#include "controls/ComboBox.h"
#include "controls/Image.h"
#include "controls/ListBox.h"
#include "controls/modID.h"
#include "looks/Style.h"
#include "people/frmNew.h"
#include "platform/Application.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "support/Drive.h"
#include "support/FileDialogScript.h"
#include "support/MessageBoxScript.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QStandardPaths>

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
class AnniversariesTest : public testing::Test, protected Household
{
protected:
  AnniversariesTest()
  {
    QStandardPaths::setTestModeEnabled(true);
    Style::Apply(*qApp);
    Application::SetEnding([](int) { ADD_FAILURE() << "the program has ended"; });
    Forms::Register("frmAnn", [] { return new frmAnn; });
    Forms::Register("frmNew", [] { return new frmNew; });
    for (const char* name : {"frmIntro", "frmSpecial", "frmCharts", "frmQuillmark", "frmReminders"}) {
      Forms::Register(name, [=] { return new EmptyPage(name); });
    }
    Clock::StopOn(QDate(2026, 5, 5));
    modID::SelectedPersonID = modID::CoupleSpouse1ID = modID::CoupleSpouse2ID = 0;
  }

  ~AnniversariesTest() override
  {
    for (Form* form : Forms::AllLoaded()) {
      Attempt([form] { form->Unload(); });
    }
    DropUnloaded();
    Forms::UnregisterAll();
    Application::SetEnding({});
    Clock::StopOn({});
    modID::SelectedPersonID = modID::CoupleSpouse1ID = modID::CoupleSpouse2ID = 0;
  }

  static void DropUnloaded() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  // --- The page.

  void Open(int wife = 0, int husband = 0)
  {
    modID::CoupleSpouse1ID = wife;
    modID::CoupleSpouse2ID = husband;
    OpenPage("frmAnn");
  }
  void OpenPage(const QString& name)
  {
    Command::Run([&] { Forms::Load(name).Show(); });
    DropUnloaded();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame.window));
  }
  static void Leave()
  {
    Command::Run([] { Forms::Unload("frmAnn"); });
    DropUnloaded();
  }

  static bool IsOpen(const char* name) { return Forms::Loaded(name) != nullptr; }
  static Form& Page(const char* name = "frmAnn") { return *Forms::Loaded(name); }
  static QWidget& Control(const QString& name) { return Drive::Control(Page(), name); }
  static ListBox& List(const QString& name) { return dynamic_cast<ListBox&>(Control(name)); }
  static ComboBox& Combo(const QString& name) { return dynamic_cast<ComboBox&>(Control(name)); }
  static Image& Picture() { return dynamic_cast<Image&>(Control("imgPerson")); }

  template <typename Box>
  static QStringList LinesOf(const Box& box)
  {
    QStringList lines;
    for (int i = 0; i < box.ListCount(); ++i) {
      lines.append(box.List(i));
    }
    return lines;
  }
  static QStringList Lines(const QString& list) { return LinesOf(List(list)); }

  static std::string Chosen(const QString& list) { return List(list).Text().toStdString(); }
  static std::string Caption(const QString& label)
  {
    return dynamic_cast<QLabel&>(Control(label)).text().toStdString();
  }
  static bool IsShown(const QString& name) { return Control(name).isVisibleTo(&Page()); }
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

  static std::string ShownColour() { return Middle(Picture().Picture().toImage()); }
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

  static void Click(const QString& name) { Drive::Click(Page(), name); }
  static void Update() { Click(AnnCommand::kUpdate); }
  static void Delete() { Click(AnnCommand::kDelete); }

  static void ClickLine(const QString& list, int line)
  {
    ListBox& box = List(list);
    const QModelIndex index = box.model()->index(line, 0);
    ASSERT_TRUE(index.isValid()) << list.toStdString() << " " << line;
    box.scrollTo(index);
    QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, box.visualRect(index).center());
  }
  static void ClickLine(const QString& list, const QString& text)
  {
    const qsizetype line = Lines(list).indexOf(text);
    ASSERT_GE(line, 0) << text.toStdString() << " is not in " << Lines(list).join("; ").toStdString();
    ClickLine(list, static_cast<int>(line));
  }

  static void Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::keyClick(&Control(name), key, modifiers);
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
      PickLine(Combo(combo), line);
    }
  }
  static void PickLine(ComboBox& box, const QString& line)
  {
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

  MessageBoxScript boxes;
  FileDialogScript dialogs;
  StandInFrame frame;
};
