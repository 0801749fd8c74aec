// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class Form;

// The pop-up tips of all forms, which the user can switch off.
namespace modToolTips {

// True when the tips are off.
[[nodiscard]] bool TipsOff();
void SetTipsOff(bool off);

// For a form's load: sets the form's tips, or empties all of them when tips are off.
void SetTips(Form& form);

// The user's choice: takes effect on all loaded forms, and is written to the settings.
void Choose(bool off);

}
