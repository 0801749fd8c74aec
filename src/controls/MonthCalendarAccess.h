// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// What a screen reader is told of a month calendar: a box whose value, a date, the arrow keys step.
namespace MonthCalendarAccess {

// Once for the program; further calls do nothing.
void Install();

}
