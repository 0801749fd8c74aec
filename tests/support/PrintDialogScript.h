// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPageSize>
#include <QPrintDialog>

#include <functional>
#include <vector>

// Answers the print dialogs of a test, in the order they are expected; any other is a failure,
// and is closed. Dialogs that did not come are a failure at the end.
class PrintDialogScript : public QObject
{
public:
  using Act = std::function<void(QPrintDialog& dialog)>;

  PrintDialogScript();
  ~PrintDialogScript() override;

  // The user prints to a PDF file on this paper, upright or not, having done `act` before.
  void ExpectPdf(const QString& path, QPageSize::PageSizeId paper = QPageSize::A4, const Act& act = {});
  // The user prints on the printer of that name, having done `act` before.
  void ExpectPrinter(const QString& name, const Act& act = {});
  void ExpectCancel();

  // For `act`: the user chooses pages, copies, or the paper's properties.
  static void ChoosePages(QPrintDialog& dialog, int from, int to);
  static void ChooseCopies(QPrintDialog& dialog, int copies);
  static void ChoosePaper(QPrintDialog& dialog, QPageSize::PageSizeId paper);
  static void ChooseLandscape(QPrintDialog& dialog);
  static void ChooseMargins(QPrintDialog& dialog, double millimetres);

  // The names of the printers that a dialog offers, the PDF file included.
  static QStringList Offered(const QPrintDialog& dialog);

  // How many dialogs have come so far.
  [[nodiscard]] std::size_t Count() const { return came_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void Answer(QPrintDialog& dialog);

  std::vector<Act> expected_;
  std::size_t came_ = 0;
};
