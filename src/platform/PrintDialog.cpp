// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PrintDialog.h"

#include "platform/BoxOwner.h"
#include "platform/Command.h"
#include "platform/PrintDocument.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "platform/WindowIcon.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QLineEdit>
#include <QPrintDialog>
#include <QRadioButton>
#include <QStandardPaths>

namespace {

// What the dialog begins with. The printer is unnamed for a file, and the paper is that printer's.
struct Kept
{
  QString printerName;
  QPageSize paper;
  QString folder;
};

Kept kept;

QString FolderForFiles()
{
  if (!kept.folder.isEmpty()) {
    return kept.folder;
  }
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

// With a file name, in case the user wants a file. Naming one changes the printer, so it comes first.
std::unique_ptr<QPrinter> FirstChoice()
{
  auto printer = PrintDocument::UsualPrinter();
  const QPrinter::OutputFormat format = printer->outputFormat();
  printer->setOutputFileName(FolderForFiles() + QStringLiteral("/Quillmark.pdf"));
  printer->setOutputFormat(format);
  if (!kept.printerName.isEmpty()) {
    printer->setPrinterName(kept.printerName);
  }
  if (printer->printerName() == kept.printerName && kept.paper.isValid()) {
    printer->setPageSize(kept.paper);
  }
  return printer;
}

// Pages are chosen here, not once more by the print server.
void OfferOneChoiceOfPages(const QPrintDialog& dialog)
{
  if (auto* serverPages = dialog.findChild<QRadioButton*>(QStringLiteral("pagesRadioButton"))) {
    serverPages->hide();
  }
  if (auto* serverPages = dialog.findChild<QLineEdit*>(QStringLiteral("pagesLineEdit"))) {
    serverPages->hide();
  }
}

void Keep(const QPrinter& printer)
{
  kept.printerName = printer.printerName();
  kept.paper = printer.pageLayout().pageSize();
  if (!printer.outputFileName().isEmpty()) {
    kept.folder = QFileInfo(printer.outputFileName()).absolutePath();
  }
}

}

void ShowPrinter(PrinterDefault choice)
{
  const Command::Pause pause;
  std::unique_ptr<QPrinter> printer = FirstChoice();
  QPrintDialog dialog(printer.get(), BoxOwner());
  dialog.setWindowIcon(WindowIcon());
  OfferOneChoiceOfPages(dialog);
  if (dialog.exec() != QDialog::Accepted) {
    RaiseError(ErrorNumber::kCancelled);
  }
  if (choice == PrinterDefault::kKeep) {
    Keep(*printer);
  }
  Printer::Use(std::move(printer));
}
