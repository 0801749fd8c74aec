// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "CalendarBehind.h"

#include "calendar/frmCalEdit.h"
#include "calendar/modCalVariables.h"
#include "controls/ComboBox.h"
#include "controls/EntryBox.h"
#include "controls/ListBox.h"
#include "looks/Style.h"
#include "looks/modToolTips.h"
#include "platform/Application.h"
#include "platform/Attempt.h"
#include "support/Hands.h"
#include "support/MessageBoxScript.h"
#include "support/ProgramFolder.h"

#include <QClipboard>
#include <QStandardPaths>
#include <QTimer>

#include <gtest/gtest.h>

// The commands of the editor by their places in lblOptions and lblData.
namespace Editor {
inline const QString kOpenAdd = QStringLiteral("lblOptions_0");
inline const QString kOpenDelete = QStringLiteral("lblOptions_1");
inline const QString kOpenEdit = QStringLiteral("lblOptions_2");
inline const QString kClose = QStringLiteral("lblOptions_3");

inline const QString kAdd = QStringLiteral("lblData_0");
inline const QString kDelete = QStringLiteral("lblData_1");
inline const QString kApply = QStringLiteral("lblData_2");
inline const QString kCloseDelete = QStringLiteral("lblData_3");
inline const QString kCloseEdit = QStringLiteral("lblData_4");
inline const QString kCloseAdd = QStringLiteral("lblData_5");

inline const QString kNoEvent = QStringLiteral("You have not entered an event");
inline const QString kTooLong = QStringLiteral("For proper display, you cannot enter more than 12 letters and spaces");
inline const QString kBlank = QStringLiteral("The event field cannot be blank");
inline const QString kBadTime = QStringLiteral("Sorry, but you have not formatted the time properly");
}

// The real event editor over the calendar, with a database of the test's own, on 12 May
// 2026, which is cell 16 of its month.
class CalendarTest : public testing::Test
{
protected:
  static inline const QDate kDay{2026, 5, 12};
  static constexpr int kCell = 16;

  CalendarTest()
  {
    QStandardPaths::setTestModeEnabled(true);
    Style::Apply(*qApp);
    Application::SetEnding([this](int) { ++endings; });
    Forms::Register("frmCalEdit", [] { return new frmCalEdit; });
  }

  ~CalendarTest() override
  {
    EXPECT_EQ(endings, expectedEndings) << "the program has ended";
    for (Form* form : Forms::AllLoaded()) {
      Attempt([form] { form->Unload(); });
    }
    DropUnloaded();
    Forms::UnregisterAll();
    Application::SetEnding({});
    Clock::StopOn({});
    modToolTips::SetTipsOff(false);
    modCalVariables::CalEventIds.clear();
    modCalVariables::CalCellDates.clear();
  }

  static void DropUnloaded() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  // --- The database, seen from outside.

  // Adds an event of that date. Returns the key.
  int StoreOn(QDate date, const QString& event, const QVariant& time = {}, const QVariant& notes = {}) const
  {
    folder.Execute("INSERT INTO Reminders (Month, Date, Event, Time, Notes) VALUES (?,?,?,?,?)",
                   {QLocale::c().monthName(date.month()), date.toString(Qt::ISODate), event, time, notes});
    return folder.Value("SELECT max(ID) FROM Reminders").toInt();
  }
  int Store(const QString& event, const QVariant& time = {}, const QVariant& notes = {}) const
  {
    return StoreOn(kDay, event, time, notes);
  }

  using Lines = std::vector<std::string>;

  // All events, "month|date|event|time|notes" with "-" for Null, in the order of their IDs.
  [[nodiscard]] Lines Rows() const { return Dump("SELECT Month, Date, Event, Time, Notes FROM Reminders ORDER BY ID"); }
  [[nodiscard]] Lines Dump(const QString& sql) const
  {
    Lines lines;
    for (const QVariantList& row : folder.Rows(sql)) {
      QStringList texts;
      for (const QVariant& value : row) {
        texts.append(value.isNull() ? "-" : value.toString());
      }
      lines.push_back(texts.join('|').toStdString());
    }
    return lines;
  }
  // As a row of the day of the test.
  static std::string Row(const std::string& rest) { return "May|2026-05-12|" + rest; }

  // --- The forms.

  // Opens the calendar, and the editor for a day of it as a click on the day does, but not
  // modally, so that the test goes on.
  void Open(QDate day = kDay)
  {
    using namespace modCalVariables;
    if (!CalendarBehind::IsOpen()) {
      calendar.Open(day);
    }
    CalSelectedDate = day;
    CalDateText = QLocale::c().monthName(day.month()) + day.toString(QStringLiteral(" d, yyyy"));
    CalCellIndex = QDate(day.year(), day.month(), 1).dayOfWeek() % 7 + day.day() - 1;
    Command::Run([] { Forms::Load("frmCalEdit").Show(); });
    // Waiting for the window itself would end at once, since the one below it is active.
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == &Page(); }));
  }
  void Open(QDate day, const QString& command)
  {
    Open(day);
    Click(command);
  }

  static bool IsOpen() { return Forms::Loaded("frmCalEdit") != nullptr; }
  static Form& Page() { return *Forms::Loaded("frmCalEdit"); }
  static QWidget& Control(const QString& name) { return Drive::Control(Page(), name); }
  static EntryBox& Box(const QString& name) { return dynamic_cast<EntryBox&>(Control(name)); }
  static ListBox& List(const QString& name) { return dynamic_cast<ListBox&>(Control(name)); }
  static ComboBox& Presets() { return dynamic_cast<ComboBox&>(Control("cboReminders")); }

  static std::string Text(const QString& box) { return Box(box).Text().toStdString(); }
  static std::string Caption(const QString& label)
  {
    return dynamic_cast<QLabel&>(Control(label)).text().toStdString();
  }
  static std::string Heading() { return Caption("lblDate"); }
  static bool IsShown(const QString& name) { return Control(name).isVisibleTo(&Page()); }
  static std::string Focus()
  {
    const QWidget* widget = Page().focusWidget();
    return widget == nullptr ? std::string() : widget->objectName().toStdString();
  }
  static std::string LinesOf(const ListBox& list) { return Hands::LinesOf(list).join('|').toStdString(); }
  static std::string LinesOf(const QString& list) { return LinesOf(List(list)); }

  // The list of the day on the calendar; its lines, or "hidden".
  static ListBox& CellList(int cell = kCell)
  {
    return dynamic_cast<ListBox&>(Drive::Control(CalendarBehind::Page(), QStringLiteral("lstReminders_%1").arg(cell)));
  }
  static std::string Cell(int cell = kCell)
  {
    const ListBox& list = CellList(cell);
    return list.isVisibleTo(&CalendarBehind::Page()) ? LinesOf(list) : "hidden";
  }

  // The panels that are open, and the Done labels that show, each by its name.
  static std::string OpenPanels() { return Shown({"fraAdd", "fraDelete", "fraEdit"}); }
  static std::string Done() { return Shown({"lblDone", "lblDone2", "lblDone3"}); }
  static std::string Shown(const QStringList& names)
  {
    QStringList shown;
    std::copy_if(names.begin(), names.end(), std::back_inserter(shown),
                 [](const QString& name) { return IsShown(name); });
    return shown.join(' ').toStdString();
  }

  // --- Hands on the editor.

  static void Click(const QString& name) { Drive::Click(Page(), name); }
  static void Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::keyClick(&Control(name), key, modifiers);
  }
  static void Empty(const QString& name)
  {
    Control(name).setFocus();
    Press(name, Qt::Key_A, Qt::ControlModifier);
    Press(name, Qt::Key_Delete);
  }
  static void Type(const QString& name, const QString& text)
  {
    Empty(name);
    QTest::keyClicks(&Control(name), text);
  }
  static void Paste(const QString& name, const QString& text)
  {
    Empty(name);
    QApplication::clipboard()->setText(text);
    Press(name, Qt::Key_V, Qt::ControlModifier);
  }
  static void ClickLine(const QString& list, int line) { Hands::ClickLine(List(list), line); }
  static void PickPreset(int line) { Hands::PickLine(Presets(), line); }

  static void FillAdd(const QString& event, const QString& time = {}, const QString& notes = {})
  {
    Box("cboReminders").SetText(event);
    Box("txtAddTime").SetText(time);
    Box("txtNotes").SetText(notes);
  }
  static void FillEdit(const QString& event, const QString& time = {}, const QString& notes = {})
  {
    Box("txtEvent").SetText(event);
    Box("txtTime").SetText(time);
    Box("txtNotesEdit").SetText(notes);
  }
  static std::string AddBoxes() { return Text("cboReminders") + '|' + Text("txtAddTime") + '|' + Text("txtNotes"); }
  static std::string EditBoxes() { return Text("txtEvent") + '|' + Text("txtTime") + '|' + Text("txtNotesEdit"); }

  // The timer of the Done labels, and a tick of it.
  static QTimer& Timer() { return *Page().findChild<QTimer*>("tmrTimer"); }
  static void Tick()
  {
    QTimerEvent tick(Timer().timerId());
    QCoreApplication::sendEvent(&Timer(), &tick);
  }

  // The command is refused with these words; the rows, the cell and what was typed stay.
  void ExpectRefused(const QString& command, const QString& message)
  {
    const Lines rows = Rows();
    const std::string shown = Everything();
    const std::size_t came = boxes.Count();
    boxes.Expect(message);
    Click(command);
    EXPECT_EQ(boxes.Count(), came + 1) << message.toStdString();
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(Everything(), shown);
  }

  // All that the editor and the cell show.
  static std::string Everything()
  {
    return Heading() + '\n' + OpenPanels() + '\n' + Done() + '\n' + AddBoxes() + '\n' + EditBoxes() + '\n' +
           LinesOf("lstDelete") + '\n' + LinesOf("lstChanges") + '\n' + std::to_string(List("lstDelete").ListIndex()) +
           ' ' + std::to_string(List("lstChanges").ListIndex()) + '\n' + Cell();
  }

  ProgramFolder folder;
  MessageBoxScript boxes;
  CalendarBehind calendar;
  int endings = 0;
  int expectedEndings = 0;
};
