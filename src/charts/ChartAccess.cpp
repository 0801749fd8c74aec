// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/ChartAccess.h"

#include "charts/ChartControl.h"

#include <QAccessibleWidget>

namespace {

class ChartInterface : public QAccessibleWidget
{
public:
  explicit ChartInterface(ChartControl& chart) : QAccessibleWidget(&chart, QAccessible::Chart), chart_(chart) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override
  {
    return kind == QAccessible::Description ? chart_.InWords() : QAccessibleWidget::text(kind);
  }

private:
  ChartControl& chart_;
};

QAccessibleInterface* Make(const QString&, QObject* object)
{
  auto* chart = qobject_cast<ChartControl*>(object);
  return chart == nullptr ? nullptr : new ChartInterface(*chart);
}

}

void ChartAccess::Install()
{
  static bool installed = false;
  if (!installed) {
    QAccessible::installFactory(Make);
    installed = true;
  }
}
