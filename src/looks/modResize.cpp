// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/modResize.h"

#include "controls/Form.h"
#include "controls/Frame.h"

#include <QComboBox>
#include <QVariant>

#include <algorithm>

namespace modResize {
namespace {

constexpr auto kTag = "Tag";
constexpr qsizetype kFieldLength = 5;
constexpr int kDecimals = 4;

bool IsDigit(QChar character)
{
  return character >= u'0' && character <= u'9';
}

// A Tag can say anything, but no control goes farther than the toolkit can count.
int PartOf(int side, double ratio)
{
  constexpr double kFarthest = QWIDGETSIZE_MAX;
  return qRound(std::clamp(ratio * side, -kFarthest, kFarthest));
}

}

QString TagOf(const QWidget& control)
{
  return control.property(kTag).toString();
}

void SetTag(QWidget& control, const QString& tag)
{
  control.setProperty(kTag, tag);
}

QString FormatRatio(double ratio)
{
  QString text = QString::number(ratio, 'f', kDecimals);
  const qsizetype digit = text.startsWith(QLatin1Char('-')) ? 1 : 0;
  if (text[digit] == QLatin1Char('0')) {
    text.remove(digit, 1);
  }
  return text;
}

double Val(QStringView text)
{
  qsizetype end = 0;
  bool point = false;
  text = text.trimmed();
  if (text.startsWith(QLatin1Char('-')) || text.startsWith(QLatin1Char('+'))) {
    ++end;
  }
  while (end < text.size() && (IsDigit(text[end]) || (text[end] == QLatin1Char('.') && !point))) {
    point = point || text[end] == QLatin1Char('.');
    ++end;
  }
  return text.first(end).toDouble();
}

std::array<double, 4> ReadRatios(const QString& tag)
{
  std::array<double, 4> ratios{};
  for (std::size_t field = 0; field < ratios.size(); ++field) {
    ratios[field] = Val(QStringView(tag).mid(static_cast<qsizetype>(field) * kFieldLength).left(kFieldLength));
  }
  return ratios;
}

void InitControlsToResize(Form& form)
{
  const double width = form.width();
  const double height = form.height();
  for (QWidget* control : form.Controls()) {
    const QRect place = control->geometry();
    SetTag(*control, FormatRatio(place.left() / width) + FormatRatio(place.top() / height) +
                         FormatRatio(place.width() / width) + FormatRatio(place.height() / height));
  }
}

void ResizeControls(Form& form)
{
  for (QWidget* control : form.Controls()) {
    const auto [left, top, width, height] = ReadRatios(TagOf(*control));
    const int kept = qobject_cast<QComboBox*>(control) == nullptr ? PartOf(form.height(), height) : control->height();
    control->setGeometry(PartOf(form.width(), left), PartOf(form.height(), top), PartOf(form.width(), width), kept);
  }
}

void ResizeWithFrame(Form& form)
{
  if (Frame::Exists() && Frame::Current().State() != WindowState::kMinimised) {
    ResizeControls(form);
  }
}

void ObjectsToResize(Form& form, const QString& listArray, QStringList& listTags)
{
  InitControlsToResize(form);
  listTags.clear();
  for (const QWidget* list : form.ArrayNamed(listArray).widgets) {
    listTags.append(list == nullptr ? QString() : TagOf(*list));
  }
}

void Resize(Form& form, const QString& listArray, const QStringList& listTags)
{
  const Form::Elements lists = form.ArrayNamed(listArray);
  for (std::size_t i = 0; i < lists.widgets.size(); ++i) {
    if (lists.widgets[i] != nullptr) {
      SetTag(*lists.widgets[i], listTags.value(static_cast<qsizetype>(i)));
    }
  }
  ResizeControls(form);
}

}
