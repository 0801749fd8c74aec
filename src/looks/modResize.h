// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include <array>

class Form;
class QWidget;

// Controls that scale with their form: each control's proportions stand in its Tag, a
// text of four fields of 5 characters (left, top, width, height) with four decimals.
// A field for a ratio of 1 or more, or below 0, is longer, and moves what is read
// behind it; that is kept.
namespace modResize {

// The Tag of a control.
[[nodiscard]] QString TagOf(const QWidget& control);
void SetTag(QWidget& control, const QString& tag);

// Fills the Tags from the present geometry. For a form's load, before anything moves.
void InitControlsToResize(Form& form);

// Moves the controls to their proportions of the form's present size. A combo box
// keeps its height.
void ResizeControls(Form& form);

// What a page calls at each resize: ResizeControls, unless the frame is minimised.
void ResizeWithFrame(Form& form);

// The calendar's variants. Its lists use their Tags for other things, so these are
// kept beside, and put back before the controls are moved.
void ObjectsToResize(Form& form, const QString& listArray, QStringList& listTags);
void Resize(Form& form, const QString& listArray, const QStringList& listTags);

// A ratio as a field.
[[nodiscard]] QString FormatRatio(double ratio);

// The four ratios of a Tag, cut at fixed places.
[[nodiscard]] std::array<double, 4> ReadRatios(const QString& tag);

// The number that a text begins with; 0 if it begins with none.
[[nodiscard]] double Val(QStringView text);

}
