// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/modPrinterMargins.h"

#include "platform/Printer.h"

namespace modPrinterMargins {

void PrinterMargins()
{
  Printer::SetCurrentX(Printer::ScaleLeft() + kLeftMargin);
  if (Printer::CurrentY() == 0) {
    Printer::SetCurrentY(Printer::ScaleTop() + kTopMargin);
  }
  if (Printer::ScaleHeight() - kBottomMargin < Printer::CurrentY()) {
    Printer::NewPage();
    Printer::SetCurrentX(Printer::ScaleLeft() + kLeftMargin);
    Printer::SetCurrentY(Printer::ScaleTop() + kTopMargin);
    ListTop = kTopMargin;
  }
}

}
