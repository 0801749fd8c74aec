// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Hand.h"

#include "controls/ComboBox.h"
#include "controls/ListBox.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace Hand {
namespace {

constexpr int kToTheMark = 8;

// The window may go with the first half of a click or of a key.
void PressAndRelease(const QPointer<QWindow>& window, QPoint place, Qt::MouseButton button)
{
  if (window) {
    QTest::mousePress(window, button, {}, place);
  }
  if (window) {
    QTest::mouseRelease(window, button, {}, place);
  }
}

void PressAndRelease(const QPointer<QWindow>& window, Qt::Key key, const QString& text, Qt::KeyboardModifiers held)
{
  if (window) {
    QTest::sendKeyEvent(QTest::Press, window, key, text, held);
  }
  if (window) {
    QTest::sendKeyEvent(QTest::Release, window, key, text, held);
  }
}

// Other letters come by an input method, which names no key.
Qt::Key KeyOf(QChar letter)
{
  const char16_t code = letter.unicode();
  return code >= u' ' && code <= u'~' ? QTest::asciiToKey(static_cast<char>(code)) : Qt::Key_unknown;
}

QPoint InWindow(const QWidget& widget, QPoint place)
{
  return widget.mapTo(widget.window(), place);
}

QWindow* KeyWindow(const QWidget& window)
{
  const QWidget* popup = QApplication::activePopupWidget();
  return popup == nullptr ? window.window()->windowHandle() : popup->windowHandle();
}

}

void ClickAt(QWidget& widget, QPoint place, Qt::MouseButton button)
{
  PressAndRelease(widget.window()->windowHandle(), InWindow(widget, place), button);
}

void Click(QWidget& widget)
{
  const auto* button = qobject_cast<QAbstractButton*>(&widget);
  const bool hasMark = button != nullptr && button->isCheckable();
  ClickAt(widget, hasMark ? QPoint(kToTheMark, widget.height() / 2) : widget.rect().center());
}

void DoubleClick(QWidget& widget, QPoint place)
{
  if (QWindow* window = widget.window()->windowHandle()) {
    QTest::mouseDClick(window, Qt::LeftButton, {}, InWindow(widget, place));
  }
}

void MoveOver(QWidget& widget, QPoint place)
{
  if (QWindow* window = widget.window()->windowHandle()) {
    QTest::mouseMove(window, InWindow(widget, place));
  }
}

void Wheel(QWidget& widget, QPoint place, int notches)
{
  QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, notches * QWheelEvent::DefaultDeltasPerStep},
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&widget, &event);
}

void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers held)
{
  PressAndRelease(KeyWindow(window), key, {}, held);
}

void Type(QWidget& window, const QString& text)
{
  const QPointer<QWidget> guarded = window.window();
  for (const QChar letter : text) {
    if (guarded) {
      PressAndRelease(KeyWindow(*guarded), KeyOf(letter), letter, {});
    }
  }
}

void Replace(QWidget& box, const QString& text, bool paste)
{
  const QPointer<QWidget> window = box.window();
  Click(box);
  if (!window) {
    return;
  }
  Press(*window, Qt::Key_A, Qt::ControlModifier);
  Press(*window, Qt::Key_Delete);
  if (paste) {
    QGuiApplication::clipboard()->setText(text);
    Press(*window, Qt::Key_V, Qt::ControlModifier);
  } else {
    Type(*window, text);
  }
}

void ClickLine(ListBox& list, int line)
{
  const QModelIndex index = list.model()->index(line, 0);
  if (index.isValid()) {
    list.scrollTo(index);
    ClickAt(*list.viewport(), list.visualRect(index).center());
  }
}

void PickLine(ComboBox& box, int line)
{
  box.showPopup();
  QAbstractItemView& view = *box.view();
  const QModelIndex index = view.model()->index(line, 0);
  if (view.isVisible() && index.isValid()) {
    view.scrollTo(index);
    MoveOver(*view.viewport(), view.visualRect(index).center());
    ClickAt(*view.viewport(), view.visualRect(index).center());
  }
}

}
