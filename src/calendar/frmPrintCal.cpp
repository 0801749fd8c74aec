// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/frmPrintCal.h"

#include "controls/FixedDialog.h"
#include "controls/Forms.h"
#include "looks/modMouseMove.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "platform/Attempt.h"
#include "platform/MsgBox.h"
#include "platform/PrintDialog.h"
#include "platform/Printer.h"
#include "store/DBEngine.h"
#include "ui_frmPrintCal.h"

#include <QKeyEvent>

namespace {

constexpr int kPrint = 0;
constexpr int kCancel = 1;

}

frmPrintCal::frmPrintCal()
    : Form(QStringLiteral("frmPrintCal"), Kind::kWindow), ui_(std::make_unique<Ui::frmPrintCal>())
{
  ui_->setupUi(this);
  MakeFixedDialog(*this);
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmPrintCal::lblOptions_Click);
}

frmPrintCal::~frmPrintCal() = default;

void frmPrintCal::Form_Load()
{
  modToolTips::SetTips(*this);
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
}

void frmPrintCal::keyPressEvent(QKeyEvent* event)
{
  if (event->key() == Qt::Key_Escape) {
    Unload();
  }
}

void frmPrintCal::lblOptions_Click(int index)
{
  if (index == kPrint) {
    Print();
  } else if (index == kCancel) {
    Unload();
  }
}

void frmPrintCal::Print()
{
  if (!ui_->optFormat_0->isChecked() && !ui_->optFormat_1->isChecked()) {
    MsgBox(QStringLiteral("Please select a format"));
    return;
  }
  using CalendarPrinting::Format;
  const Format format = ui_->optFormat_0->isChecked() ? Format::kPortrait : Format::kLandscape;
  const Form& calendar = Forms::Load(QStringLiteral("frmReminders"));
  calendar.Control(QStringLiteral("txtNotesDisplay"))->hide();
  if (Attempt([&] { PrintMonth(calendar, format); })) {
    MsgBox(QStringLiteral("Printing completed"));
  } else {
    Attempt([] { Printer::EndDoc(); });
  }
}

void frmPrintCal::PrintMonth(const Form& calendar, CalendarPrinting::Format format)
{
  const PrintedMonth month = ReadCalendar(calendar);
  ShowPrinter();
  CalendarPrinting::PrintGrid(month, format);
  if (ui_->chkList->isChecked()) {
    Database database = DBEngine::OpenDatabase();
    CalendarPrinting::PrintList(month, format, database);
  }
  Printer::EndDoc();
}
