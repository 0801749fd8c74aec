// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/Hand.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <QWindow>

#include <optional>
#include <stdexcept>

namespace {

constexpr int kPatience = 30000;
constexpr int kGlance = 20;
constexpr int kBetweenLooks = 150;
constexpr int kStillLooks = 3;

// What `look` sees on the program's own thread.
template <typename Look>
auto See(const Look& look)
{
  decltype(look()) seen;
  QMetaObject::invokeMethod(
      qApp, [&] { seen = look(); }, Qt::BlockingQueuedConnection);
  return seen;
}

// Looks again and again until there is something to see.
template <typename Look>
auto Await(const QString& what, const Look& look)
{
  QElapsedTimer timer;
  timer.start();
  for (auto seen = See(look); !timer.hasExpired(kPatience); seen = See(look)) {
    if (seen) {
      return *seen;
    }
    QThread::msleep(kGlance);
  }
  throw std::runtime_error(QStringLiteral("%1 did not come in time").arg(what).toStdString());
}

void Xdotool(const QStringList& arguments)
{
  if (QProcess::execute(QStringLiteral("xdotool"), arguments) != 0) {
    throw std::runtime_error(("xdotool " + arguments.join(QLatin1Char(' '))).toStdString());
  }
}

void ClickAt(QPoint point)
{
  Xdotool({"mousemove", QString::number(point.x()), QString::number(point.y()), "click", "1"});
}

QWidget* Visible(const QString& form)
{
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == form && widget->isVisible() && !widget->window()->isMinimized()) {
      return widget;
    }
  }
  return nullptr;
}

QWidget* Visible(const QString& form, const QString& control)
{
  QWidget* found = Visible(form);
  found = found == nullptr || control.isEmpty() ? found : found->findChild<QWidget*>(control);
  return found != nullptr && found->isVisible() ? found : nullptr;
}

// A window that has just come up may still be moved, and takes no clicks before it is the active one.
bool TakesClicks(const QWidget& widget)
{
  const QWidget* window = widget.window();
  const bool isPopup = window->windowType() == Qt::Popup;
  return widget.isEnabled() && window->windowHandle()->isExposed() && (isPopup || window->isActiveWindow());
}

std::optional<QPoint> MiddleOf(const QWidget* widget, const QRect& part)
{
  return part.isEmpty() || !TakesClicks(*widget) ? std::nullopt : std::optional(widget->mapToGlobal(part.center()));
}

std::optional<QPoint> PlaceOfLine(const QString& form, const QString& list, const QString& beginning)
{
  auto* view = qobject_cast<QAbstractItemView*>(Visible(form, list));
  if (view == nullptr) {
    return std::nullopt;
  }
  const auto found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, beginning, 1,
                                          Qt::MatchStartsWith | Qt::MatchCaseSensitive);
  if (found.isEmpty()) {
    return std::nullopt;
  }
  view->scrollTo(found.first());
  return MiddleOf(view->viewport(), view->visualRect(found.first()));
}

// On whichever bar or open menu shows the action.
std::optional<QPoint> PlaceOfAction(const QString& name)
{
  for (const QWidget* widget : QApplication::allWidgets()) {
    const auto* bar = qobject_cast<const QMenuBar*>(widget);
    const auto* menu = qobject_cast<const QMenu*>(widget);
    for (QAction* action : widget->isVisible() ? widget->actions() : QList<QAction*>()) {
      if (action->objectName() == name && (bar != nullptr || menu != nullptr)) {
        return MiddleOf(widget, bar != nullptr ? bar->actionGeometry(action) : menu->actionGeometry(action));
      }
    }
  }
  return std::nullopt;
}

std::optional<QImage> Grab(const QString& form)
{
  const QWidget* widget = Visible(form);
  if (widget == nullptr) {
    return std::nullopt;
  }
  const QRect place(widget->window()->mapToGlobal(QPoint(0, 0)), widget->window()->size());
  QScreen& screen = *widget->screen();
  return screen.grabWindow(0, place.x(), place.y(), place.width(), place.height()).toImage();
}

}

void Hand::Click(const QString& form, const QString& control)
{
  ClickAt(Await(form + QLatin1Char(' ') + control, [&] {
    const QWidget* widget = Visible(form, control);
    return widget == nullptr ? std::nullopt : MiddleOf(widget, widget->rect());
  }));
}

void Hand::ClickLine(const QString& form, const QString& list, const QString& beginning)
{
  ClickAt(Await(list + QLatin1Char(' ') + beginning, [&] { return PlaceOfLine(form, list, beginning); }));
}

void Hand::ClickMenu(const QStringList& actions)
{
  for (const QString& action : actions) {
    ClickAt(Await(action, [&] { return PlaceOfAction(action); }));
  }
}

void Hand::Type(const QString& text)
{
  Xdotool({"type", text});
}

void Hand::Press(const QString& key)
{
  Xdotool({"key", key});
}

void Hand::Answer(const QString& text)
{
  Await(QStringLiteral("The question"), [] {
    const auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
    return box != nullptr && box->isActiveWindow() ? std::optional(true) : std::nullopt;
  });
  Type(text);
  Press(QStringLiteral("Return"));
}

void Hand::AwaitShown(const QString& form, const QString& control)
{
  Await(form + QLatin1Char(' ') + control,
        [&] { return Visible(form, control) != nullptr ? std::optional(true) : std::nullopt; });
}

QImage Hand::Picture(const QString& form)
{
  Xdotool({"mousemove", "0", "0"});
  QImage last;
  for (int still = 0, looks = 0; still < kStillLooks; ++looks) {
    const QImage next = Await(form, [&] { return Grab(form); });
    still = next == last ? still + 1 : 0;
    last = next;
    if (looks * kBetweenLooks > kPatience) {
      throw std::runtime_error((form + QStringLiteral(" does not come to rest")).toStdString());
    }
    QThread::msleep(kBetweenLooks);
  }
  return last;
}

QImage Hand::PictureOfDisplay()
{
  return See([] { return QApplication::primaryScreen()->grabWindow(0).toImage(); });
}
