// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MonthCalendarAccess.h"

#include "controls/MonthCalendar.h"

#include <QAccessibleWidget>

namespace {

class CalendarInterface : public QAccessibleWidget
{
public:
  explicit CalendarInterface(MonthCalendar& calendar)
      : QAccessibleWidget(&calendar, QAccessible::SpinBox), calendar_(calendar)
  {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override
  {
    return kind == QAccessible::Value ? calendar_.accessibleDescription() : QAccessibleWidget::text(kind);
  }

private:
  MonthCalendar& calendar_;
};

QAccessibleInterface* Make(const QString&, QObject* object)
{
  auto* calendar = qobject_cast<MonthCalendar*>(object);
  return calendar == nullptr ? nullptr : new CalendarInterface(*calendar);
}

}

void MonthCalendarAccess::Install()
{
  static bool installed = false;
  if (!installed) {
    QAccessible::installFactory(Make);
    installed = true;
  }
}
