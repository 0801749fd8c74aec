// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MonthCalendar.h"

#include "controls/MonthCalendarAccess.h"
#include "platform/Clock.h"
#include "platform/Months.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <cstdlib>
#include <utility>

namespace {

const QColor kBrown(0x80, 0x40, 0x00);
const QColor kPaleBrown(0xD9, 0xC4, 0xA0);
const QColor kCurrentGround(0xFF, 0xE9, 0xB8);
const QColor kHoveredGround(0xFF, 0xF7, 0xE3);
constexpr int kCornerRadius = 4;
constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;

QFont FontOf(const QString& name, double points, bool bold, bool italic)
{
  QFont font(name);
  font.setPointSizeF(qBound(1.0, points, 200.0));
  font.setBold(bold);
  font.setItalic(italic);
  return font;
}

QString InFull(QDate date)
{
  return QLocale::c().toString(date, QStringLiteral("dddd, d MMMM yyyy"));
}

// One chevron for a month, two for a year.
void PaintArrow(QPainter& painter, const QRect& room, int step, const QColor& color)
{
  const double reach = room.height() / 8.0 + 1;
  const int sign = step < 0 ? -1 : 1;
  const QList<double> shifts = std::abs(step) > 1 ? QList<double>{-0.1, 1.1} : QList<double>{0.5};
  painter.setPen(QPen(color, room.height() / 16.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  for (const double shift : shifts) {
    const QPointF tip = QRectF(room).center() + QPointF(sign * shift * reach, 0);
    painter.drawPolyline(QPolygonF({tip + QPointF(-sign * reach, -reach), tip, tip + QPointF(-sign * reach, reach)}));
  }
}

}

MonthCalendar::MonthCalendar(QWidget* parent) : QWidget(parent)
{
  MonthCalendarAccess::Install();
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAccessibleName(QStringLiteral("Calendar"));
  connect(this, &MonthCalendar::LookChanged, this, qOverload<>(&QWidget::update));
  value_ = QDate(yearBegin_, 1, 1);
  SetValue(Clock::Today());
  setAccessibleDescription(InFull(value_));
}

void MonthCalendar::SetValue(QDate date)
{
  if (date == value_ || !IsInside(date)) {
    return;
  }
  value_ = date;
  setAccessibleDescription(InFull(value_));
  update();
  Q_EMIT Change();
}

void MonthCalendar::SetYearBegin(int year)
{
  SetYears(year, qMax(year, yearEnd_));
}

void MonthCalendar::SetYearEnd(int year)
{
  SetYears(qMin(year, yearBegin_), year);
}

void MonthCalendar::SetYears(int begin, int end)
{
  if (begin < 1 || end > 9999) {
    return;
  }
  yearBegin_ = begin;
  yearEnd_ = end;
  update();
  SetValue(qBound(QDate(begin, 1, 1), value_, QDate(end, 12, 31)));
}

void MonthCalendar::SetActiveDayFontSize(double points)
{
  activeDayFontSize_ = points;
  Q_EMIT LookChanged();
}

void MonthCalendar::SetActiveDayForeColor(const QColor& color)
{
  activeDayForeColor_ = color;
  Q_EMIT LookChanged();
}

bool MonthCalendar::IsInside(QDate date) const
{
  return date.isValid() && date.year() >= yearBegin_ && date.year() <= yearEnd_;
}

double MonthCalendar::Zoom() const
{
  return qBound(1.0, qMin(width() / 560.0, height() / 460.0), 1.5);
}

MonthGrid::Place MonthCalendar::PlaceAt(const QPoint& point) const
{
  const MonthGrid::Place place = Grid().At(point);
  const bool canBeTaken = IsInside(place.step == 0 ? place.day : value_.addMonths(place.step));
  return canBeTaken ? place : MonthGrid::Place();
}

bool MonthCalendar::event(QEvent* event)
{
  if (event->type() == QEvent::ToolTip && showDateTip_) {
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const QDate day = PlaceAt(help->pos()).day; day.isValid()) {
      QToolTip::showText(help->globalPos(), InFull(day), this);
      return true;
    }
  }
  return QWidget::event(event);
}

void MonthCalendar::mousePressEvent(QMouseEvent* event)
{
  pressed_ = event->button() == Qt::LeftButton ? PlaceAt(event->position().toPoint()) : MonthGrid::Place();
}

void MonthCalendar::mouseReleaseEvent(QMouseEvent* event)
{
  const MonthGrid::Place place = PlaceAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && place == std::exchange(pressed_, {})) {
    SetValue(place.step == 0 ? place.day : value_.addMonths(place.step));
    SetHovered(PlaceAt(event->position().toPoint()));
  }
}

void MonthCalendar::mouseMoveEvent(QMouseEvent* event)
{
  SetHovered(PlaceAt(event->position().toPoint()));
}

void MonthCalendar::leaveEvent(QEvent*)
{
  SetHovered({});
}

void MonthCalendar::SetHovered(const MonthGrid::Place& place)
{
  if (hovered_ != place) {
    hovered_ = place;
    update();
  }
}

void MonthCalendar::wheelEvent(QWheelEvent* event)
{
  turned_ += event->angleDelta().y();
  const int notches = turned_ / kNotch;
  turned_ %= kNotch;
  SetValue(value_.addMonths(-notches));
  SetHovered(PlaceAt(event->position().toPoint()));
}

void MonthCalendar::keyPressEvent(QKeyEvent* event)
{
  const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
  const bool isControl = held == Qt::ControlModifier;
  const QDate date = isControl || held == Qt::NoModifier ? MonthGrid::Moved(value_, event->key(), isControl) : QDate();
  if (!date.isValid()) {
    QWidget::keyPressEvent(event);
    return;
  }
  showsFocus_ = true;
  update();
  SetValue(date);
}

// The line stays away after a click, until a key is pressed.
void MonthCalendar::focusInEvent(QFocusEvent* event)
{
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::MouseFocusReason) {
    showsFocus_ = false;
  } else if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
    showsFocus_ = true;
  }
  update();
}

void MonthCalendar::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), backColor_);
  const MonthGrid grid = Grid();
  PaintTitle(painter, grid);
  PaintDayNames(painter, grid);
  for (int cell = 0; cell < MonthGrid::kCells; ++cell) {
    PaintDay(painter, grid, cell);
  }
  PaintLines(painter, grid);
}

void MonthCalendar::PaintTitle(QPainter& painter, const MonthGrid& grid) const
{
  for (const int step : MonthGrid::kSteps) {
    const QRect room = grid.Arrow(step);
    if (hovered_.step == step) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(kHoveredGround);
      painter.drawRoundedRect(room, kCornerRadius, kCornerRadius);
    }
    PaintArrow(painter, room, step, IsInside(value_.addMonths(step)) ? kBrown : kPaleBrown);
  }
  QFont font(QStringLiteral("Arial"));
  font.setBold(true);
  font.setPixelSize(grid.Title().height() * 15 / 32);
  painter.setFont(font);
  painter.setPen(kBrown);
  const QLatin1StringView name = kMonthNames.at(static_cast<std::size_t>(value_.month() - 1));
  painter.drawText(grid.Title(), Qt::AlignCenter, QStringLiteral("%1 %2").arg(name).arg(value_.year()));
}

void MonthCalendar::PaintDayNames(QPainter& painter, const MonthGrid& grid) const
{
  painter.setFont(FontOf(dayHeaderFontName_, dayHeaderFontSize_ * Zoom(), dayHeaderFontBold_, dayHeaderFontItalic_));
  painter.setPen(dayHeaderForeColor_);
  for (int column = 0; column < MonthGrid::kDaysOfWeek; ++column) {
    const QRect room = grid.DayName(column);
    painter.fillRect(room, dayHeaderBackColor_);
    const int dayOfWeek = column == 0 ? Qt::Sunday : column;
    painter.drawText(room, Qt::AlignCenter, QLocale::c().dayName(dayOfWeek, QLocale::ShortFormat));
  }
}

// Days outside the years stay blank.
void MonthCalendar::PaintDay(QPainter& painter, const MonthGrid& grid, int cell) const
{
  const QDate day = grid.Day(cell);
  const int period = grid.PeriodOf(day);
  const QRect room = grid.Cell(cell);
  painter.fillRect(room, period < 0   ? prePeriodBackColor_
                         : period > 0 ? postPeriodBackColor_
                                      : currentPeriodBackColor_);
  if (!IsInside(day)) {
    return;
  }
  const bool isCurrent = day == value_;
  if (isCurrent || day == hovered_.day) {
    const bool hasLine = isCurrent && hasFocus() && showsFocus_;
    const double inset = hasLine ? 0.5 : 0;
    painter.setPen(hasLine ? QPen(kBrown, 1, Qt::DotLine) : QPen(Qt::NoPen));
    painter.setBrush(isCurrent ? kCurrentGround : kHoveredGround);
    const QRectF ground = QRectF(room.adjusted(2, 2, -1, -1)).adjusted(inset, inset, -inset, -inset);
    painter.drawRoundedRect(ground, kCornerRadius, kCornerRadius);
  }
  painter.setFont(
      isCurrent ? FontOf(activeDayFontName_, activeDayFontSize_ * Zoom(), activeDayFontBold_, activeDayFontItalic_)
                : FontOf(daysFontName_, daysFontSize_ * Zoom(), daysFontBold_, daysFontItalic_));
  painter.setPen(isCurrent    ? activeDayForeColor_
                 : period < 0 ? prePeriodForeColor_
                 : period > 0 ? postPeriodForeColor_
                              : currentPeriodForeColor_);
  painter.drawText(room.adjusted(1, 1, 0, 0), Qt::AlignCenter, QString::number(day.day()));
}

void MonthCalendar::PaintLines(QPainter& painter, const MonthGrid& grid) const
{
  const int daysTop = grid.Cell(0).top();
  for (int column = 1; column < MonthGrid::kDaysOfWeek; ++column) {
    painter.fillRect(grid.Cell(column).left(), daysTop, 1, height() - daysTop, flatLineColor_);
  }
  for (int cell = MonthGrid::kDaysOfWeek; cell < MonthGrid::kCells; cell += MonthGrid::kDaysOfWeek) {
    painter.fillRect(0, grid.Cell(cell).top(), width(), 1, flatLineColor_);
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(flatLineColor_);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
