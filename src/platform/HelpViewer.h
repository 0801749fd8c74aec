// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The help window, with the pages of "/Help.hlp" in the program's folder. There is one at
// most. It stands beside the other windows and can be used while any of them waits for
// its user; only Quit and its user close it.
namespace HelpViewer {

// Context numbers of pages that the program knows.
inline constexpr int kFirstPage = 1;
inline constexpr int kQuickFill = 2;

// Opens the help at its first page, with the table of contents.
void ShowContents();

// Opens the help at the page with this context number; at the first page if none has it.
void ShowContext(int number);

// Closes the help if it is open.
void Quit();

// Without a readable help file, the first two say so in a message box and do no more.

}
