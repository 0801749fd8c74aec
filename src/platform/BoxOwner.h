// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

// The window that a box, a dialog or a modal form is to stand over: the active one. It is never
// the help, which its user may close while the other waits, and which itself follows whatever
// waits; then it is the window that waits already, or the one of the program. Null if there is
// none.
[[nodiscard]] QWidget* BoxOwner();
