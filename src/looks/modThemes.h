// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class Form;

// A theme is a look for all pages: a picture on each, or a plain background.
namespace modThemes {

inline constexpr int kThemeCount = 6;

// True once the calendar has its theme picture, which a form loaded above it must not
// replace. Cleared when another page or theme is chosen.
[[nodiscard]] bool CalendarHasPicture();
void SetCalendarHasPicture(bool has);

// Sizes the calendar's picture to the rows of its grid.
void FitCalendarPicture(const Form& form);

// Gives all loaded forms the theme of the settings. Ends in silence on any failure.
void ApplyTheme();

// Writes the user's choice to the settings; the calendar's picture is to be replaced.
void Choose(int theme);

}
