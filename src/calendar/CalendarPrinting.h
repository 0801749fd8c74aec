// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "calendar/PrintedMonth.h"

class Database;

// Prints a month as a grid of days with their events, and a list of the events.
namespace CalendarPrinting {

enum class Format
{
  kPortrait,
  kLandscape,
};

// The grid, on a page of its own.
void PrintGrid(const PrintedMonth& month, Format format);

// The events of the month with times and details: below the grid in portrait, on the next page
// in landscape.
void PrintList(const PrintedMonth& month, Format format, Database& database);

}
