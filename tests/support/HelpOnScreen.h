// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QWidget;

// The help window, as its user sees it.
namespace HelpOnScreen {

// Copies the laid help file into a program's folder.
void Lay(const QString& folder);

// The window; null while none is open.
QWidget* Window();
int WindowCount();

// The file name of the page on show; empty while no window is open.
std::string Page();

}
