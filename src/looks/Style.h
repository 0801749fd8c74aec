// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QApplication;

// The one palette and style sheet of all forms. Forms say a role ("title", "heading",
// "command", "details" ...), and the sheet says how it looks.
namespace Style {

void Apply(QApplication& application);

}
