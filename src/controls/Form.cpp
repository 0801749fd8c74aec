// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Form.h"

#include "controls/Forms.h"
#include "controls/Frame.h"
#include "platform/BoxOwner.h"
#include "platform/Command.h"
#include "platform/RuntimeError.h"
#include "platform/Twips.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QPainter>
#include <QPointer>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

// The right third, in from the edges by the margin.
QRect RightThird(const QSize& form)
{
  constexpr int kMargin = 32;
  const int width = form.width() / 3 - kMargin;
  return {form.width() - kMargin - width, kMargin, width, form.height() - 2 * kMargin};
}

QRect InProportion(const QRect& place, const QSize& from, const QSize& to)
{
  const double across = double(to.width()) / from.width();
  const double down = double(to.height()) / from.height();
  return {qRound(place.x() * across), qRound(place.y() * down), qRound(place.width() * across),
          qRound(place.height() * down)};
}

// In the lower right corner of its room.
QRect Placed(const QSize& picture, const QRect& room)
{
  QRect place(QPoint(), picture.scaled(room.size(), Qt::KeepAspectRatio));
  place.moveBottomRight(room.bottomRight());
  return place;
}

bool IsDesigned(const QWidget& widget)
{
  return !widget.objectName().isEmpty() && !widget.objectName().startsWith(QLatin1String("qt_"));
}

}

Form::Form(const QString& name, Kind kind) : kind_(kind)
{
  setObjectName(name);
}

Form::~Form()
{
  Forms::Forget(*this);
}

void Form::Load()
{
  const QList<QWidget*> children = findChildren<QWidget*>();
  std::copy_if(children.begin(), children.end(), std::back_inserter(controls_),
               [](const QWidget* child) { return IsDesigned(*child); });
  // Fonts and sizes of the style sheet are to hold before anything is filled in.
  ensurePolished();
  for (const QWidget* control : controls_) {
    control->ensurePolished();
  }
  Form_Load();
  loaded_ = true;
}

void Form::Open(Qt::WindowModality modality)
{
  if (kind_ == Kind::kPage) {
    Frame::Current().PlacePage(*this);
    return;
  }
  setWindowModality(modality);
  show();
  raise();
  activateWindow();
}

// Put away alone, a dialog would leave the window below without a sign of what it waits for.
void Form::StandOver(const QWidget* below)
{
  setWindowFlag(Qt::Dialog);
  winId();
  windowHandle()->setTransientParent(below == nullptr ? nullptr : below->windowHandle());
}

void Form::Show()
{
  Open(Qt::NonModal);
}

void Form::ShowModal()
{
  const Command::Pause pause;
  hide();
  StandOver(BoxOwner());
  Open(Qt::ApplicationModal);
  QEventLoop loop;
  modalLoop_ = &loop;
  const QPointer<Form> self(this);
  loop.exec();
  if (self) {
    self->modalLoop_ = nullptr;
  }
}

void Form::ShowTopmost()
{
  setWindowFlag(Qt::WindowStaysOnTopHint);
  Open(Qt::NonModal);
}

void Form::Hide()
{
  hide();
}

bool Form::Unload()
{
  if (Forms::Loaded(Name()) != this) {
    return true;
  }
  bool cancel = false;
  Form_QueryUnload(cancel);
  if (cancel) {
    return false;
  }
  const auto leave = [this] {
    Forms::Forget(*this);
    hide();
    deleteLater();
  };
  try {
    Form_Unload();
  } catch (const RuntimeError&) {
    leave();
    throw;
  }
  leave();
  return true;
}

int Form::ScaleWidth() const
{
  return TwipsFromPixels(width());
}

int Form::ScaleHeight() const
{
  return TwipsFromPixels(height());
}

void Form::SetBackColor(const QColor& color)
{
  backColor_ = color;
  update();
}

void Form::SetPicture(const QPixmap& picture)
{
  picture_ = picture;
  update();
}

void Form::SetPicturePlace(const QRect& place)
{
  picturePlace_ = place;
  designSize_ = size();
  update();
}

QWidget* Form::Control(const QString& name) const
{
  return findChild<QWidget*>(name);
}

Form::Elements Form::ArrayNamed(const QString& name) const
{
  std::vector<std::pair<int, QWidget*>> found;
  const QString prefix = name + QLatin1Char('_');
  for (QWidget* control : controls_) {
    const QString controlName = control->objectName();
    if (!controlName.startsWith(prefix)) {
      continue;
    }
    bool isNumber = false;
    const int index = QStringView(controlName).mid(prefix.size()).toInt(&isNumber);
    if (isNumber) {
      found.emplace_back(index, control);
    }
  }
  Elements elements;
  if (found.empty()) {
    return elements;
  }
  std::sort(found.begin(), found.end());
  elements.lower = found.front().first;
  elements.widgets.resize(static_cast<std::size_t>(found.back().first - elements.lower + 1));
  for (const auto& [index, control] : found) {
    elements.widgets[static_cast<std::size_t>(index - elements.lower)] = control;
  }
  return elements;
}

void Form::closeEvent(QCloseEvent* event)
{
  event->ignore();
  Form_CloseBox();
}

void Form::hideEvent(QHideEvent* event)
{
  QWidget::hideEvent(event);
  if (modalLoop_ != nullptr && !event->spontaneous()) {
    std::exchange(modalLoop_, nullptr)->quit();
  }
}

void Form::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  painter.fillRect(rect(), backColor_);
  if (!picture_.isNull()) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect room = picturePlace_.isEmpty() ? RightThird(size()) : InProportion(picturePlace_, designSize_, size());
    painter.drawPixmap(Placed(picture_.size(), room), picture_);
  }
}

void Form::resizeEvent(QResizeEvent* event)
{
  QWidget::resizeEvent(event);
  if (loaded_) {
    Form_Resize();
  }
}
