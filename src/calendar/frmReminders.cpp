// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/frmReminders.h"

#include "calendar/CalendarCell.h"
#include "calendar/CellHover.h"
#include "calendar/DetailsPlace.h"
#include "calendar/EventTexts.h"
#include "calendar/MonthShape.h"
#include "calendar/modCalVariables.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "looks/modMouseMove.h"
#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "platform/Clock.h"
#include "platform/Months.h"
#include "platform/Twips.h"
#include "store/DBEngine.h"
#include "ui_frmReminders.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <algorithm>

using namespace modCalVariables;

namespace {

constexpr int kNext = 0;
constexpr int kPrevious = 1;
constexpr int kMain = 2;
constexpr int kPrint = 3;

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2050;
constexpr int kLastOfFirstRow = 6;
constexpr int kFirstOfFifthRow = 28;
constexpr int kNone = -1;

const QColor kDayColour(209, 140, 65);
const QColor kTodayColour(0, 0, 255);

QRect InTwips(const QRect& pixels)
{
  return {TwipsFromPixels(pixels.x()), TwipsFromPixels(pixels.y()), TwipsFromPixels(pixels.width()),
          TwipsFromPixels(pixels.height())};
}

void SelectQuietly(ListBox& list, int index)
{
  const QSignalBlocker quiet(list);
  list.SetListIndex(index < list.ListCount() ? index : -1);
  list.scrollTo(list.currentIndex(), QAbstractItemView::PositionAtCenter);
}

void FillYears(ListBox& list)
{
  QStringList years;
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    years.append(QString::number(year));
  }
  list.AddItems(years);
}

}

frmReminders::frmReminders()
    : Form(QStringLiteral("frmReminders"), Kind::kPage), ui_(std::make_unique<Ui::frmReminders>())
{
  ui_->setupUi(this);
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  lblDay_.Collect(*this, QStringLiteral("lblDay"));
  lstReminders_.Collect(*this, QStringLiteral("lstReminders"));
  ui_->txtNotesDisplay->SetLocked(true);
  ConnectControls();
}

frmReminders::~frmReminders() = default;

void frmReminders::ConnectControls()
{
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmReminders::lblOptions_Click);
  connect(&lblDay_, &ControlArraySignals::Click, this, &frmReminders::lblDay_Click);
  connect(&lstReminders_, &ControlArraySignals::Click, this, &frmReminders::lstReminders_Click);
  connect(ui_->lblMonth, &Label::Click, this, &frmReminders::lblMonth_Click);
  connect(ui_->lblYear, &Label::Click, this, &frmReminders::lblYear_Click);
  connect(ui_->lstMonth, &ListBox::Click, this, &frmReminders::lstMonth_Click);
  connect(ui_->lstYear, &ListBox::Click, this, &frmReminders::lstYear_Click);
  ui_->picReminders->installEventFilter(this);
  ui_->txtNotesDisplay->viewport()->installEventFilter(this);
  ui_->txtNotesDisplay->setContextMenuPolicy(Qt::NoContextMenu);
}

void frmReminders::Form_Load()
{
  Frame::Current().AllowDatabaseCare(false);
  HideDays();
  CalYear = Clock::Today().year();
  CalMonth = Clock::Today().month();
  WorkOutMonth();
  ConvertMonth();
  ShowCaptions();
  Calendar(CalDaysInMonth, CalFirstWeekday);
  modToolTips::SetTips(*this);
  for (const QLatin1StringView& month : kMonthNames) {
    ui_->lstMonth->AddItem(month);
  }
  FillYears(*ui_->lstYear);
  modResize::ObjectsToResize(*this, QStringLiteral("lstReminders"), listTags_);
  modThemes::ApplyTheme();
  SelectInLists();
  modMouseMove::Watch(*this);
  new CellHover(*this, lstReminders_, lblDay_, *ui_->picSelect);
}

void frmReminders::Form_Unload()
{
  Frame::Current().AllowDatabaseCare(true);
}

void frmReminders::Form_Resize()
{
  ResizeReminders();
}

void frmReminders::ResizeReminders()
{
  if (Frame::Current().State() == WindowState::kMinimised) {
    return;
  }
  ui_->txtNotesDisplay->hide();
  modResize::Resize(*this, QStringLiteral("lstReminders"), listTags_);
  modThemes::FitCalendarPicture(*this);
  PlaceBottomRule();
}

// The picture ends where its last rule would begin.
void frmReminders::PlaceBottomRule()
{
  ui_->shpBottom->move(0, ui_->picReminders->height() - ui_->shpBottom->height());
}

void frmReminders::Forward()
{
  ++CalMonth;
  if (CalMonth > 12) {
    CalMonth = 1;
    ++CalYear;
  }
  DrawMonth();
}

void frmReminders::Back()
{
  --CalMonth;
  if (CalMonth < 1) {
    CalMonth = 12;
    --CalYear;
  }
  DrawMonth();
}

void frmReminders::Step(int months)
{
  HideAbove();
  if (months > 0) {
    Forward();
  } else {
    Back();
  }
  SelectInLists();
}

void frmReminders::WorkOutMonth()
{
  CalFirstWeekday = MonthShape::FirstWeekday(CalYear, CalMonth);
  CalDaysInMonth = MonthShape::DaysIn(CalYear, CalMonth);
}

void frmReminders::ConvertMonth()
{
  if (CalMonth >= 1 && CalMonth <= 12) {
    CalMonthName = kMonthNames[static_cast<std::size_t>(CalMonth - 1)];
  }
}

void frmReminders::ShowCaptions()
{
  ui_->lblMonth->setText(CalMonthName);
  ui_->lblYear->setText(QString::number(CalYear));
}

void frmReminders::DrawMonth()
{
  HideDays();
  WorkOutMonth();
  ConvertMonth();
  ShowCaptions();
  Calendar(CalDaysInMonth, CalFirstWeekday);
}

// The days of the rows between stand in every month.
void frmReminders::HideDays()
{
  for (const auto& [index, day] : lblDay_.All()) {
    if (index <= kLastOfFirstRow || index >= kFirstOfFifthRow) {
      day->hide();
    }
  }
  modMouseMove::Reset(*this, modMouseMove::Row::kReminders);
  for (const auto& [index, list] : lstReminders_.All()) {
    list->hide();
  }
}

void frmReminders::Calendar(int days, int firstWeekday)
{
  const int cells = MonthShape::CellsOf(days, firstWeekday);
  for (int cell = 0; cell < cells; ++cell) {
    DrawCell(cell, days, firstWeekday);
  }
  modThemes::FitCalendarPicture(*this);
  for (const auto& [index, list] : lstReminders_.All()) {
    list->Clear();
    list->hide();
  }
  Database database = DBEngine::OpenDatabase();
  const QDate first = MonthShape::DateOf(0, CalYear, CalMonth, firstWeekday);
  ShowEvents(CalendarEvents::Between(database, CalMonthName, first, first.addDays(cells - 1)));
}

void frmReminders::DrawCell(int cell, int days, int firstWeekday)
{
  const QDate date = MonthShape::DateOf(cell, CalYear, CalMonth, firstWeekday);
  CalendarCell::SetDate(lstReminders_[cell], DateText(date));
  while (CalCellDates.size() <= cell) {
    CalCellDates.append(QString());
  }
  CalCellDates[cell] = DateText(date);
  const int day = MonthShape::DayOf(cell, firstWeekday);
  Label& label = lblDay_[cell];
  if (day < 1 || day > days) {
    label.clear();
    return;
  }
  label.setText(QString::number(day));
  label.SetForeColor(date == Clock::Today() ? kTodayColour : kDayColour);
  label.setAccessibleName(QStringLiteral("%1 %2, %3").arg(CalMonthName).arg(day).arg(CalYear));
  lstReminders_[cell].setAccessibleName(QStringLiteral("Events of ") + label.accessibleName());
  label.show();
}

void frmReminders::ShowEvents(const std::vector<CalendarEvent>& events)
{
  for (const auto& [index, list] : lstReminders_.All()) {
    std::vector<CalendarEvent> ofDay;
    std::copy_if(events.begin(), events.end(), std::back_inserter(ofDay),
                 [cell = list](const CalendarEvent& event) { return CalendarCell::IsOf(*cell, event.date); });
    if (!ofDay.empty()) {
      CalendarCell::Add(*list, ofDay);
    }
  }
}

void frmReminders::SelectInLists()
{
  SelectQuietly(*ui_->lstMonth, CalMonth - 1);
  SelectQuietly(*ui_->lstYear, CalYear - kFirstYear);
}

QDate frmReminders::DateOfDay(int index) const
{
  return DateSerial(ui_->lblYear->text().toInt(), CalMonth, lblDay_[index].text().toInt());
}

void frmReminders::lblOptions_Click(int index)
{
  switch (index) {
    case kNext:
      Step(1);
      break;
    case kPrevious:
      Step(-1);
      break;
    case kMain:
      Unload();
      Forms::Load(QStringLiteral("frmIntro")).Show();
      break;
    case kPrint:
      modThemes::SetCalendarHasPicture(true);
      Forms::Load(QStringLiteral("frmPrintCal")).ShowModal();
      break;
    default:
      break;
  }
}

void frmReminders::lblDay_Click(int index)
{
  CalSelectedDate = DateOfDay(index);
  CalDateText = QStringLiteral("%1 %2, %3").arg(ui_->lblMonth->text(), lblDay_[index].text(), ui_->lblYear->text());
  CalCellIndex = index;
  ui_->txtNotesDisplay->hide();
  ui_->picSelect->hide();
  Forms::Load(QStringLiteral("frmCalEdit")).ShowModal();
}

// The lines stand in the order of the events. One that is gone by now has no details.
void frmReminders::lstReminders_Click(int index)
{
  const ListBox& cell = lstReminders_[index];
  ui_->txtNotesDisplay->hide();
  ForgetChoices(index);
  CalSelectedDate = DateOfDay(index);
  Database database = DBEngine::OpenDatabase();
  const std::vector<CalendarEvent> events = CalendarEvents::On(database, CalMonthName, CalSelectedDate);
  CalEventIds = CalendarEvents::IdsOf(events);
  const auto line = static_cast<std::size_t>(cell.ListIndex());
  if (line < events.size()) {
    ShowDetails(events[line], cell);
  }
}

void frmReminders::ShowDetails(const CalendarEvent& event, const ListBox& cell)
{
  const QRect box = InTwips(ui_->txtNotesDisplay->geometry());
  const QRect picture = InTwips(ui_->picReminders->geometry());
  const QPoint place =
      DetailsPlace(box.size(), InTwips(cell.geometry()), picture.topLeft(), QSize(ScaleWidth(), ScaleHeight()));
  ui_->txtNotesDisplay->move(PixelsFromTwips(place.x()), PixelsFromTwips(place.y()));
  ui_->txtNotesDisplay->SetText(EventTexts::Details(event));
  ui_->txtNotesDisplay->raise();
  ui_->txtNotesDisplay->show();
}

// One line at a time is marked on the whole grid.
void frmReminders::ForgetChoices(int except)
{
  for (const auto& [index, list] : lstReminders_.All()) {
    if (index != except) {
      list->SetListIndex(kNone);
    }
  }
}

void frmReminders::lblMonth_Click()
{
  ui_->lstMonth->setVisible(!ui_->lstMonth->isVisible());
  ui_->lstMonth->setFocus();
}

void frmReminders::lblYear_Click()
{
  ui_->lstYear->setVisible(!ui_->lstYear->isVisible());
  ui_->lstYear->setFocus();
}

void frmReminders::lstMonth_Click()
{
  CalMonth = ui_->lstMonth->ListIndex() + 1;
  DrawMonth();
  ui_->lblMonth->setFocus();
  ui_->lstMonth->hide();
  ui_->txtNotesDisplay->hide();
}

void frmReminders::lstYear_Click()
{
  CalYear = ui_->lstYear->Text().toInt();
  DrawMonth();
  ui_->lblYear->setFocus();
  ui_->lstYear->hide();
  ui_->txtNotesDisplay->hide();
}

void frmReminders::HideLists()
{
  ui_->lstMonth->hide();
  ui_->lstYear->hide();
}

void frmReminders::HideAbove()
{
  HideLists();
  ui_->txtNotesDisplay->hide();
}

bool frmReminders::eventFilter(QObject* watched, QEvent* event)
{
  if (watched == ui_->picReminders && event->type() == QEvent::MouseButtonRelease) {
    if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
      HideAbove();
    }
  } else if (watched == ui_->picReminders && event->type() == QEvent::Resize) {
    PlaceBottomRule();
  } else if (watched == ui_->txtNotesDisplay->viewport() && event->type() == QEvent::MouseButtonRelease) {
    const Qt::MouseButton button = static_cast<QMouseEvent*>(event)->button();
    ui_->txtNotesDisplay->setHidden(button == Qt::LeftButton || button == Qt::RightButton);
  }
  return false;
}

void frmReminders::keyPressEvent(QKeyEvent* event)
{
  switch (event->key()) {
    case Qt::Key_PageDown:
      Step(1);
      break;
    case Qt::Key_PageUp:
      Step(-1);
      break;
    case Qt::Key_Escape:
      HideAbove();
      break;
    default:
      WalkDays(event->key());
  }
}

void frmReminders::WalkDays(int key)
{
  const std::map<int, int> steps = {{Qt::Key_Left, -1},
                                    {Qt::Key_Right, 1},
                                    {Qt::Key_Up, -MonthShape::kColumns},
                                    {Qt::Key_Down, MonthShape::kColumns}};
  const auto step = steps.find(key);
  for (const auto& [index, day] : lblDay_.All()) {
    const int next = step == steps.end() ? kNone : index + step->second;
    if (day->hasFocus() && next >= 0 && next < MonthShape::kCells && lblDay_[next].isVisible()) {
      lblDay_[next].setFocus(Qt::TabFocusReason);
      return;
    }
  }
}
