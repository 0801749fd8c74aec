// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/MonthGrid.h"

#include <QColor>
#include <QWidget>

// A month drawn as a grid of days, one of which is the current date. The date is chosen
// by mouse, wheel, keyboard or program and never leaves the years of the calendar; the
// month shown is always the one that it lies in. Type is drawn in its size up to 560 by
// 460 pixels, and grows with a larger calendar to half as large again.
class MonthCalendar : public QWidget
{
  Q_OBJECT
  Q_PROPERTY(QDate value READ Value WRITE SetValue NOTIFY Change)
  Q_PROPERTY(int yearbegin READ YearBegin WRITE SetYearBegin)
  Q_PROPERTY(int yearend READ YearEnd WRITE SetYearEnd)
  Q_PROPERTY(bool showdatetip MEMBER showDateTip_)
  Q_PROPERTY(QColor backcolor MEMBER backColor_ NOTIFY LookChanged)
  Q_PROPERTY(QColor flatlinecolor MEMBER flatLineColor_ NOTIFY LookChanged)
  Q_PROPERTY(QColor currentperiodbackcolor MEMBER currentPeriodBackColor_ NOTIFY LookChanged)
  Q_PROPERTY(QColor currentperiodforecolor MEMBER currentPeriodForeColor_ NOTIFY LookChanged)
  Q_PROPERTY(QColor preperiodbackcolor MEMBER prePeriodBackColor_ NOTIFY LookChanged)
  Q_PROPERTY(QColor preperiodforecolor MEMBER prePeriodForeColor_ NOTIFY LookChanged)
  Q_PROPERTY(QColor postperiodbackcolor MEMBER postPeriodBackColor_ NOTIFY LookChanged)
  Q_PROPERTY(QColor postperiodforecolor MEMBER postPeriodForeColor_ NOTIFY LookChanged)
  Q_PROPERTY(QColor dayheaderbackcolor MEMBER dayHeaderBackColor_ NOTIFY LookChanged)
  Q_PROPERTY(QColor dayheaderforecolor MEMBER dayHeaderForeColor_ NOTIFY LookChanged)
  Q_PROPERTY(QString dayheaderfontname MEMBER dayHeaderFontName_ NOTIFY LookChanged)
  Q_PROPERTY(double dayheaderfontsize MEMBER dayHeaderFontSize_ NOTIFY LookChanged)
  Q_PROPERTY(bool dayheaderfontbold MEMBER dayHeaderFontBold_ NOTIFY LookChanged)
  Q_PROPERTY(bool dayheaderfontitalic MEMBER dayHeaderFontItalic_ NOTIFY LookChanged)
  Q_PROPERTY(QString daysfontname MEMBER daysFontName_ NOTIFY LookChanged)
  Q_PROPERTY(double daysfontsize MEMBER daysFontSize_ NOTIFY LookChanged)
  Q_PROPERTY(bool daysfontbold MEMBER daysFontBold_ NOTIFY LookChanged)
  Q_PROPERTY(bool daysfontitalic MEMBER daysFontItalic_ NOTIFY LookChanged)
  Q_PROPERTY(QColor activedayforecolor READ ActiveDayForeColor WRITE SetActiveDayForeColor NOTIFY LookChanged)
  Q_PROPERTY(QString activedayfontname MEMBER activeDayFontName_ NOTIFY LookChanged)
  Q_PROPERTY(double activedayfontsize READ ActiveDayFontSize WRITE SetActiveDayFontSize NOTIFY LookChanged)
  Q_PROPERTY(bool activedayfontbold MEMBER activeDayFontBold_ NOTIFY LookChanged)
  Q_PROPERTY(bool activedayfontitalic MEMBER activeDayFontItalic_ NOTIFY LookChanged)

public:
  // Stands on today.
  explicit MonthCalendar(QWidget* parent = nullptr);

  // The current date. A date outside the years, or an invalid one, is not taken.
  [[nodiscard]] QDate Value() const { return value_; }
  void SetValue(QDate date);

  // The first and the last year, 1 to 9999. Either pushes the other along, and the current date to
  // the nearest one inside.
  [[nodiscard]] int YearBegin() const { return yearBegin_; }
  void SetYearBegin(int year);
  [[nodiscard]] int YearEnd() const { return yearEnd_; }
  void SetYearEnd(int year);

  // The type of the current day: its size in points, and its colour.
  [[nodiscard]] double ActiveDayFontSize() const { return activeDayFontSize_; }
  void SetActiveDayFontSize(double points);
  [[nodiscard]] QColor ActiveDayForeColor() const { return activeDayForeColor_; }
  void SetActiveDayForeColor(const QColor& color);

  [[nodiscard]] QSize sizeHint() const override { return {320, 264}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {240, 200}; }

Q_SIGNALS:
  // The current date is another one, whoever changed it; before SetValue returns.
  void Change();
  void LookChanged();

protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

private:
  [[nodiscard]] MonthGrid Grid() const { return {rect().adjusted(0, 0, -1, -1), value_}; }
  [[nodiscard]] double Zoom() const;
  [[nodiscard]] bool IsInside(QDate date) const;
  // What can be taken at a point, or nothing.
  [[nodiscard]] MonthGrid::Place PlaceAt(const QPoint& point) const;
  void SetYears(int begin, int end);
  void SetHovered(const MonthGrid::Place& place);

  void PaintTitle(QPainter& painter, const MonthGrid& grid) const;
  void PaintDayNames(QPainter& painter, const MonthGrid& grid) const;
  void PaintDay(QPainter& painter, const MonthGrid& grid, int cell) const;
  void PaintLines(QPainter& painter, const MonthGrid& grid) const;

  QDate value_;
  int yearBegin_ = 1900;
  int yearEnd_ = 2050;
  bool showDateTip_ = false;
  QColor backColor_ = Qt::white;
  QColor flatLineColor_{192, 192, 192};
  QColor currentPeriodBackColor_ = Qt::white;
  QColor currentPeriodForeColor_ = Qt::black;
  QColor prePeriodBackColor_ = Qt::white;
  QColor prePeriodForeColor_{128, 128, 128};
  QColor postPeriodBackColor_ = Qt::white;
  QColor postPeriodForeColor_{128, 128, 128};
  QColor dayHeaderBackColor_{209, 140, 65};
  QColor dayHeaderForeColor_ = Qt::white;
  QString dayHeaderFontName_ = QStringLiteral("Arial");
  double dayHeaderFontSize_ = 9.75;
  bool dayHeaderFontBold_ = false;
  bool dayHeaderFontItalic_ = false;
  QString daysFontName_ = QStringLiteral("Arial");
  double daysFontSize_ = 9.75;
  bool daysFontBold_ = false;
  bool daysFontItalic_ = false;
  QColor activeDayForeColor_ = Qt::black;
  QString activeDayFontName_ = QStringLiteral("Arial");
  double activeDayFontSize_ = 9.75;
  bool activeDayFontBold_ = false;
  bool activeDayFontItalic_ = false;

  MonthGrid::Place pressed_;
  MonthGrid::Place hovered_;
  int turned_ = 0;
  bool showsFocus_ = true;
};
