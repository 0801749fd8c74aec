// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/LabelAccess.h"

#include "controls/Label.h"

#include <QAccessibleWidget>
#include <QApplication>

namespace {

class LabelInterface : public QAccessibleWidget
{
public:
  explicit LabelInterface(Label& label)
      : QAccessibleWidget(&label, label.IsCommand() ? QAccessible::Button : QAccessible::StaticText), label_(label)
  {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override
  {
    const QString given = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && given.isEmpty() ? label_.text().trimmed() : given;
  }

  [[nodiscard]] QStringList actionNames() const override
  {
    QStringList names = QAccessibleWidget::actionNames();
    if (label_.IsCommand() && label_.isEnabled()) {
      names.prepend(pressAction());
    }
    return names;
  }

  void doAction(const QString& name) override
  {
    if (name == pressAction() && label_.isEnabled() && !IsBlocked()) {
      Q_EMIT label_.Click();
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

private:
  // A window that stands modally keeps the others from being used.
  [[nodiscard]] bool IsBlocked() const
  {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != label_.window();
  }

  Label& label_;
};

QAccessibleInterface* Make(const QString&, QObject* object)
{
  auto* label = qobject_cast<Label*>(object);
  return label == nullptr ? nullptr : new LabelInterface(*label);
}

}

void LabelAccess::Install()
{
  static bool installed = false;
  if (!installed) {
    QAccessible::installFactory(Make);
    installed = true;
  }
}
