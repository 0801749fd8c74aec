// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// What becomes of the choice after the next document.
enum class PrinterDefault
{
  kKeep,    // the next print dialog begins with the same printer and paper
  kForget,  // it begins as if this one had not been
};

// Lets the user choose where the next document goes: one of the system's printers or a PDF file,
// with paper, margins, orientation, copies and pages. A pause in the running command. Every
// dialog begins in portrait, with one copy of all pages, on the system's default printer or the
// one kept; without any printer it offers the PDF file. An open document is ended first. Throws
// 32755 if the user cancels; then nothing is changed.
void ShowPrinter(PrinterDefault choice = PrinterDefault::kKeep);
