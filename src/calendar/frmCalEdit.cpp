// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/frmCalEdit.h"

#include "calendar/CalendarCell.h"
#include "calendar/EventTexts.h"
#include "calendar/EventTitle.h"
#include "calendar/MonthShape.h"
#include "calendar/PresetTitles.h"
#include "calendar/modCalVariables.h"
#include "controls/FixedDialog.h"
#include "controls/ListBox.h"
#include "looks/modMouseMove.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "platform/Attempt.h"
#include "platform/BoxOwner.h"
#include "platform/Command.h"
#include "platform/MsgBox.h"
#include "store/DBEngine.h"
#include "ui_frmCalEdit.h"

#include <QKeyEvent>
#include <QShortcut>

#include <algorithm>

using namespace modCalVariables;

namespace {

constexpr int kOpenAdd = 0;
constexpr int kOpenDelete = 1;
constexpr int kOpenEdit = 2;
constexpr int kClose = 3;

constexpr int kAdd = 0;
constexpr int kDelete = 1;
constexpr int kApply = 2;
constexpr int kCloseDelete = 3;
constexpr int kCloseEdit = 4;
constexpr int kCloseAdd = 5;

constexpr int kTickMilliseconds = 500;
constexpr int kTicksOfDone = 3;

std::vector<CalendarEvent> EventsOfDay(Database& database)
{
  return CalendarEvents::On(database, CalMonthName, CalSelectedDate);
}

// Lists the events, none selected; their IDs stand in the order of the lines.
void ShowTitles(ListBox& list, const std::vector<CalendarEvent>& events)
{
  CalEventIds = CalendarEvents::IdsOf(events);
  QStringList titles;
  for (const CalendarEvent& event : events) {
    titles.append(event.title);
  }
  list.Clear();
  list.AddItems(titles);
}

// Nothing while no line is selected.
std::optional<int> ChosenId(const ListBox& list)
{
  const auto line = static_cast<std::size_t>(list.ListIndex());
  return line < CalEventIds.size() ? std::optional(CalEventIds[line]) : std::nullopt;
}

}

frmCalEdit::frmCalEdit()
    : Form(QStringLiteral("frmCalEdit"), Kind::kWindow),
      ui_(std::make_unique<Ui::frmCalEdit>()),
      titleLimit_(EventTitle::kLongest),
      tmrTimer_(this)
{
  ui_->setupUi(this);
  MakeFixedDialog(*this);
  tmrTimer_.setObjectName(QStringLiteral("tmrTimer"));
  tmrTimer_.setInterval(kTickMilliseconds);
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  lblData_.Collect(*this, QStringLiteral("lblData"));
  titleLimit_.Join(*ui_->cboReminders);
  titleLimit_.Join(*ui_->txtEvent);
  ConnectControls();
  ConnectKeys();
}

frmCalEdit::~frmCalEdit() = default;

void frmCalEdit::ConnectControls()
{
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmCalEdit::lblOptions_Click);
  connect(&lblData_, &ControlArraySignals::Click, this, &frmCalEdit::lblData_Click);
  connect(ui_->lstChanges, &ListBox::Click, this, &frmCalEdit::lstChanges_Click);
  connect(&tmrTimer_, &QTimer::timeout, this, &frmCalEdit::tmrTimer_Timer);
}

void frmCalEdit::ConnectKeys()
{
  enterWalk_.Join(*ui_->cboReminders, *ui_->txtAddTime);
  enterWalk_.Join(*ui_->txtAddTime, *ui_->txtNotes);
  enterWalk_.Join(*ui_->txtEvent, *ui_->txtTime);
  enterWalk_.Join(*ui_->txtTime, *ui_->txtNotesEdit);
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* finish = new QShortcut(Qt::CTRL | key, this);
    finish->setAutoRepeat(false);
    connect(finish, &QShortcut::activated, this, &frmCalEdit::FinishByKey);
  }
}

void frmCalEdit::Form_Load()
{
  ui_->lblDate->setText(CalDateText);
  ui_->cboReminders->AddItems(PresetTitles::Read());
  for (int cell = 0; cell < MonthShape::CellsOf(CalDaysInMonth, CalFirstWeekday); ++cell) {
    if (ListBox* list = CalendarCell::OnCalendar(cell)) {
      CalendarCell::SetDate(*list, CalCellDates.value(cell));
    }
  }
  modToolTips::SetTips(*this);
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
  StandOverCalendar();
}

// No shortcut, which would come before the list of a combo box that the key closes.
void frmCalEdit::keyPressEvent(QKeyEvent* event)
{
  if (event->key() == Qt::Key_Escape) {
    Unload();
  }
}

void frmCalEdit::StandOverCalendar()
{
  if (const QWidget* below = BoxOwner()) {
    move(below->frameGeometry().center() - rect().center());
  }
}

void frmCalEdit::lblOptions_Click(int index)
{
  switch (index) {
    case kOpenAdd:
      OpenAdd();
      break;
    case kOpenDelete:
      OpenDelete();
      break;
    case kOpenEdit:
      OpenEdit();
      break;
    case kClose:
      Unload();
      break;
    default:
      break;
  }
}

void frmCalEdit::lblData_Click(int index)
{
  switch (index) {
    case kAdd:
      AddEvent();
      break;
    case kDelete:
      DeleteEvent();
      break;
    case kApply:
      ApplyChanges();
      break;
    case kCloseDelete:
      ClosePanel(*ui_->fraDelete);
      break;
    case kCloseEdit:
      ClosePanel(*ui_->fraEdit);
      break;
    case kCloseAdd:
      ClosePanel(*ui_->fraAdd);
      break;
    default:
      break;
  }
}

void frmCalEdit::FinishByKey()
{
  if (ui_->fraAdd->isVisible()) {
    AddEvent();
  } else if (ui_->fraEdit->isVisible()) {
    ApplyChanges();
  }
}

void frmCalEdit::OpenPanel(QWidget& panel, const QString& heading)
{
  ui_->lblDate->setText(heading + CalDateText);
  for (QWidget* each : {ui_->fraAdd, ui_->fraDelete, ui_->fraEdit}) {
    each->setVisible(each == &panel);
  }
}

void frmCalEdit::ClosePanel(QWidget& panel)
{
  setFocus();
  panel.hide();
  ui_->lblDate->setText(CalDateText);
}

void frmCalEdit::OpenAdd()
{
  ui_->txtNotes->SetText({});
  OpenPanel(*ui_->fraAdd, QStringLiteral("Add an event for "));
  ui_->cboReminders->setFocus();
}

void frmCalEdit::OpenDelete()
{
  OpenPanel(*ui_->fraDelete, QStringLiteral("Delete an event for "));
  Database database = DBEngine::OpenDatabase();
  ShowTitles(*ui_->lstDelete, EventsOfDay(database));
  ui_->lstDelete->setFocus();
}

void frmCalEdit::OpenEdit()
{
  Database database = DBEngine::OpenDatabase();
  ShowEdit(EventsOfDay(database));
}

void frmCalEdit::ShowEdit(const std::vector<CalendarEvent>& events)
{
  ClearChanges();
  OpenPanel(*ui_->fraEdit, QStringLiteral("Edit an event for "));
  ShowTitles(*ui_->lstChanges, events);
  ui_->lstChanges->setFocus();
}

void frmCalEdit::ClearChanges()
{
  ui_->txtEvent->SetText({});
  ui_->txtTime->SetText({});
  ui_->txtNotesEdit->SetText({});
}

void frmCalEdit::lstChanges_Click()
{
  const std::optional<int> id = ChosenId(*ui_->lstChanges);
  ClearChanges();
  Database database = DBEngine::OpenDatabase();
  const std::vector<CalendarEvent> events = EventsOfDay(database);
  const auto chosen =
      std::find_if(events.begin(), events.end(), [id](const CalendarEvent& event) { return event.id == id; });
  if (chosen != events.end()) {
    ui_->txtEvent->SetText(chosen->title);
    ui_->txtTime->SetText(EventTexts::LongTime(chosen->time));
    ui_->txtNotesEdit->SetText(chosen->notes);
  }
}

// The row and what is shown of it afterwards go together. Whatever fails is told as a time
// that could not be read.
std::optional<std::vector<CalendarEvent>> frmCalEdit::Write(const Work& work)
{
  std::vector<CalendarEvent> events;
  const bool written = Attempt([&] {
    Database database = DBEngine::OpenDatabase();
    work(database);
    events = EventsOfDay(database);
    Command::Settle();
  });
  if (!written) {
    Command::Abandon();
    MsgBox(QStringLiteral("Sorry, but you have not formatted the time properly"));
    return std::nullopt;
  }
  CalEventIds = CalendarEvents::IdsOf(events);
  CalendarCell::Redraw(CalCellIndex, events);
  return events;
}

void frmCalEdit::AddEvent()
{
  const EventRecords::Entry entry{ui_->cboReminders->Text(), ui_->txtAddTime->Text(), ui_->txtNotes->Text()};
  const QString refusal = EventTitle::Refusal(entry.title, QStringLiteral("You have not entered an event"));
  if (!refusal.isEmpty()) {
    MsgBox(refusal);
    ui_->cboReminders->setFocus();
    return;
  }
  if (!Write([&](Database& database) { EventRecords::Add(database, CalMonthName, CalSelectedDate, entry); })) {
    return;
  }
  ShowDone(*ui_->lblDone3);
  ui_->cboReminders->SetText({});
  ui_->txtAddTime->SetText({});
  ui_->txtNotes->SetText({});
  ui_->cboReminders->setFocus();
}

void frmCalEdit::DeleteEvent()
{
  const std::optional<int> id = ChosenId(*ui_->lstDelete);
  Database database = DBEngine::OpenDatabase();
  if (!id || !EventRecords::Any(database)) {
    return;
  }
  EventRecords::Delete(database, CalSelectedDate, *id);
  const std::vector<CalendarEvent> events = EventsOfDay(database);
  const bool anyLeft = EventRecords::Any(database);
  Command::Settle();
  ShowTitles(*ui_->lstDelete, events);
  CalendarCell::Redraw(CalCellIndex, events);
  if (QWidget* mark = CalendarCell::MarkOnCalendar(); mark != nullptr && anyLeft && events.empty()) {
    mark->hide();
  }
  ShowDone(*ui_->lblDone2);
}

void frmCalEdit::ApplyChanges()
{
  const EventRecords::Entry entry{ui_->txtEvent->Text(), ui_->txtTime->Text(), ui_->txtNotesEdit->Text()};
  const QString blank = QStringLiteral("The event field cannot be blank");
  const QString refusal = EventTitle::Refusal(entry.title, blank);
  if (!refusal.isEmpty()) {
    MsgBox(refusal);
    if (refusal == blank) {
      ui_->txtEvent->setFocus();
    }
    return;
  }
  const std::optional<int> id = ChosenId(*ui_->lstChanges);
  if (!id) {
    return;
  }
  auto change = EventRecords::Change::kGone;
  const auto events =
      Write([&](Database& database) { change = EventRecords::Write(database, CalSelectedDate, *id, entry); });
  if (!events) {
    return;
  }
  if (change == EventRecords::Change::kUntitled) {
    MsgBox(QStringLiteral("You must select an event to edit"));
    return;
  }
  ShowEdit(*events);
  if (change == EventRecords::Change::kWritten) {
    ShowDone(*ui_->lblDone);
  }
}

void frmCalEdit::ShowDone(Label& done)
{
  done.show();
  ticks_ = 0;
  tmrTimer_.start();
}

void frmCalEdit::tmrTimer_Timer()
{
  ++ticks_;
  if (ticks_ == kTicksOfDone) {
    for (Label* done : {ui_->lblDone, ui_->lblDone2, ui_->lblDone3}) {
      done->hide();
    }
    tmrTimer_.stop();
    ticks_ = 0;
  }
}
