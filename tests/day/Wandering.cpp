// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Wandering.h"

#include "Hand.h"
#include "Texts.h"

#include "controls/ComboBox.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/MonthCalendar.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>

#include <numeric>
#include <vector>

namespace Wandering {
namespace {

constexpr int kLongestTyped = 40;

QString NameOf(const QWidget& widget)
{
  return widget.objectName().isEmpty() ? QLatin1String(widget.metaObject()->className()) : widget.objectName();
}

QPoint AnyPlace(const QWidget& widget, Chance& chance)
{
  return {chance.Below(widget.width()), chance.Below(widget.height())};
}

// How much a control draws the user.
int WeightOf(const QWidget& widget)
{
  if (const auto* label = qobject_cast<const Label*>(&widget)) {
    return label->IsCommand() ? 8 : 1;
  }
  if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) {
    return 4;
  }
  if (qobject_cast<const MonthCalendar*>(&widget) != nullptr) {
    return 8;
  }
  const bool takesEntry =
      qobject_cast<const ListBox*>(&widget) != nullptr || qobject_cast<const ComboBox*>(&widget) != nullptr ||
      qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
      qobject_cast<const QAbstractItemView*>(&widget) != nullptr;
  return takesEntry ? 4 : 0;
}

bool IsInReach(const QWidget& widget, const QWidget& window)
{
  const QPoint middle = widget.mapTo(&window, widget.rect().center());
  return widget.isVisible() && widget.isEnabled() && widget.window() == &window && window.rect().contains(middle);
}

QWidget* AnyControl(QWidget& window, Chance& chance)
{
  std::vector<QWidget*> controls;
  std::vector<int> weights;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const int weight = WeightOf(*widget);
    if (weight > 0 && IsInReach(*widget, window)) {
      controls.push_back(widget);
      weights.push_back(weight);
    }
  }
  int left = chance.Below(std::accumulate(weights.begin(), weights.end(), 0));
  for (std::size_t i = 0; i < controls.size(); ++i) {
    left -= weights[i];
    if (left < 0) {
      return controls[i];
    }
  }
  return nullptr;
}

QString TypeInto(QWidget& box, Chance& chance)
{
  const QString text = Texts::Anything(chance);
  Hand::Replace(box, text, text.size() > kLongestTyped || chance.OneIn(2));
  return QStringLiteral("\"%1\"").arg(text.left(kLongestTyped).simplified());
}

QString UseList(ListBox& list, Chance& chance)
{
  const int line = chance.Below(list.ListCount());
  Hand::ClickLine(list, line);
  return QStringLiteral("line %1").arg(line);
}

QString UseCombo(ComboBox& box, Chance& chance)
{
  switch (chance.Below(5)) {
    case 0:
      Hand::ClickAt(box, AnyPlace(box, chance));
      return QStringLiteral("click");
    case 1:
      return TypeInto(box, chance);
    default: {
      const int line = chance.Below(box.ListCount());
      Hand::PickLine(box, line);
      return QStringLiteral("picks line %1").arg(line);
    }
  }
}

// Leaving the program altogether is rare.
bool EndsProgram(const QWidget& control)
{
  const auto* label = qobject_cast<const Label*>(&control);
  return label != nullptr && (label->text().contains(QLatin1String("Exit program")) ||
                              label->text().contains(QLatin1String("Close Quillmark")));
}

QString Use(QWidget& control, Chance& chance)
{
  if (EndsProgram(control) && !chance.OneIn(5)) {
    Hand::MoveOver(control, control.rect().center());
    return QStringLiteral("passes over");
  }
  if (auto* list = qobject_cast<ListBox*>(&control)) {
    return UseList(*list, chance);
  }
  if (auto* box = qobject_cast<ComboBox*>(&control)) {
    return UseCombo(*box, chance);
  }
  if (qobject_cast<QLineEdit*>(&control) != nullptr || qobject_cast<QPlainTextEdit*>(&control) != nullptr) {
    return TypeInto(control, chance);
  }
  if (qobject_cast<MonthCalendar*>(&control) != nullptr || qobject_cast<QAbstractItemView*>(&control) != nullptr) {
    Hand::ClickAt(control, AnyPlace(control, chance));
    return QStringLiteral("click anywhere");
  }
  Hand::Click(control);
  return QStringLiteral("click");
}

struct Stroke
{
  Qt::Key key;
  Qt::KeyboardModifiers held = Qt::NoModifier;
};

QString AnyKey(QWidget& window, Chance& chance)
{
  static const std::vector<Stroke> strokes = {{Qt::Key_Tab},
                                              {Qt::Key_Tab},
                                              {Qt::Key_Backtab, Qt::ShiftModifier},
                                              {Qt::Key_Return},
                                              {Qt::Key_Enter},
                                              {Qt::Key_Space},
                                              {Qt::Key_Escape},
                                              {Qt::Key_Up},
                                              {Qt::Key_Down},
                                              {Qt::Key_Left},
                                              {Qt::Key_Right},
                                              {Qt::Key_PageUp},
                                              {Qt::Key_PageDown},
                                              {Qt::Key_Home},
                                              {Qt::Key_End},
                                              {Qt::Key_Delete},
                                              {Qt::Key_Backspace},
                                              {Qt::Key_F1},
                                              {Qt::Key_F4},
                                              {Qt::Key_F10},
                                              {Qt::Key_Menu},
                                              {Qt::Key_7},
                                              {Qt::Key_A},
                                              {Qt::Key_Return, Qt::ControlModifier},
                                              {Qt::Key_C, Qt::ControlModifier},
                                              {Qt::Key_V, Qt::ControlModifier},
                                              {Qt::Key_Z, Qt::ControlModifier},
                                              {Qt::Key_X, Qt::ControlModifier},
                                              {Qt::Key_F, Qt::ControlModifier},
                                              {Qt::Key_H, Qt::AltModifier},
                                              {Qt::Key_O, Qt::AltModifier},
                                              {Qt::Key_Left, Qt::AltModifier},
                                              {Qt::Key_Down, Qt::AltModifier}};
  const Stroke& stroke = chance.Of(strokes);
  Hand::Press(window, stroke.key, stroke.held);
  return QKeySequence(QKeyCombination(stroke.held, stroke.key)).toString();
}

QString MoveAbout(QWidget& control, Chance& chance)
{
  const QPoint place = AnyPlace(control, chance);
  switch (chance.Below(8)) {
    case 0:
      Hand::Wheel(control, place, chance.OneIn(2) ? 1 : -1);
      return QStringLiteral("wheel");
    case 1:
      Hand::ClickAt(control, place, Qt::RightButton);
      return QStringLiteral("right click");
    case 2:
      Hand::DoubleClick(control, place);
      return QStringLiteral("double click");
    case 3:
      Hand::ClickAt(control, place);
      return QStringLiteral("click anywhere");
    default:
      Hand::MoveOver(control, place);
      return QStringLiteral("moves over");
  }
}

QString InMenu(QMenu& menu, Chance& chance)
{
  QList<QAction*> entries = menu.actions();
  entries.removeIf([](const QAction* entry) { return entry->isSeparator() || !entry->isVisible(); });
  if (entries.isEmpty() || chance.OneIn(7)) {
    Hand::Press(menu, chance.OneIn(3) ? Qt::Key_Down : Qt::Key_Escape);
    return QStringLiteral("a key in a menu");
  }
  QAction* entry = chance.Of(entries);
  const QString name = entry->objectName() + QLatin1Char(' ') + entry->text();
  Hand::ClickAt(menu, menu.actionGeometry(entry).center());
  return QStringLiteral("menu ") + name;
}

}

QString In(QWidget& window, Chance& chance)
{
  const QString where = NameOf(window) + QLatin1Char(' ');
  QWidget* control = AnyControl(window, chance);
  const int kind = chance.Below(100);
  if (control == nullptr || kind < 18) {
    return where + QStringLiteral("key ") + AnyKey(window, chance);
  }
  const QString what = where + NameOf(*control) + QStringLiteral(": ");
  return what + (kind < 35 ? MoveAbout(*control, chance) : Use(*control, chance));
}

QString InPopup(QWidget& popup, Chance& chance)
{
  if (auto* menu = qobject_cast<QMenu*>(&popup)) {
    return InMenu(*menu, chance);
  }
  auto* view = popup.findChild<QAbstractItemView*>();
  if (view == nullptr || chance.OneIn(4)) {
    Hand::Press(popup, Qt::Key_Escape);
    return QStringLiteral("Escape in a list");
  }
  if (chance.OneIn(2)) {
    static const std::vector<Qt::Key> keys = {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_Return};
    const Qt::Key key = chance.Of(keys);
    Hand::Press(popup, key);
    return QStringLiteral("%1 in a list").arg(QKeySequence(key).toString());
  }
  Hand::ClickAt(*view->viewport(), AnyPlace(*view->viewport(), chance));
  return QStringLiteral("click in a list");
}

}
