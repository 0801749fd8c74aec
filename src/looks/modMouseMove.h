// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>

class Form;

// Labels and lists that light up under the mouse.
namespace modMouseMove {

// What can be lit: an array of a form and the look that changes.
enum class Row
{
  kOptions,      // lblOptions: the back colour
  kOptionsText,  // lblOptions: the text
  kNames,        // lblNames
  kAll,          // lblAll
  kDay,          // lblDay
  kData,         // lblData
  kReminders,    // lstReminders, lit by the calendar itself
};

// The back colour of a list of the calendar while it is lit.
inline const QColor kLitList(0xFF, 0xF9, 0xE9);

// Lights one element of the form's array and puts out all others. An index outside the
// array only puts out.
void Highlight(Form& form, Row row, int index);

// Puts out what is lit. With nothing lit this costs one test.
void Reset(Form& form, Row row);

// Reset for every row.
void ResetAll(Form& form);

// Joins a form, once, at its load: what the mouse is on lights up, and goes out when
// the mouse is on anything else or leaves.
void Watch(Form& form);

}
