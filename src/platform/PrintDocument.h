// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPainter>
#include <QPrinter>

#include <memory>

// The pages of one document on their way to a printer or a PDF file. Of the pages, only those
// that the printer's page range asks for are painted.
class PrintDocument
{
public:
  explicit PrintDocument(std::unique_ptr<QPrinter> printer);
  ~PrintDocument();
  PrintDocument(const PrintDocument&) = delete;
  PrintDocument& operator=(const PrintDocument&) = delete;

  // The system's default printer on its usual paper or, without any, one that can only be given
  // a file. The margins are a quarter of an inch, or what the printer needs if that is more.
  [[nodiscard]] static std::unique_ptr<QPrinter> UsualPrinter();

  // In twips.
  [[nodiscard]] QSizeF PrintableArea() const;

  [[nodiscard]] QPageLayout::Orientation Orientation() const;
  void SetOrientation(QPageLayout::Orientation orientation);

  // True once a page was asked for.
  [[nodiscard]] bool IsBegun() const { return begun_; }

  // The painter of the current page, in twips times `scale`; null if the page is left out. Begins
  // the document and the page if need be. Throws 482 if the printer refuses.
  [[nodiscard]] QPainter* Page(double scale);

  // The pages after this one.
  void NewPage(double scale);

  // Hands the document over. Throws 482 if it did not arrive.
  void End();

private:
  [[nodiscard]] bool IsWanted() const;
  void Begin(double scale);

  std::unique_ptr<QPrinter> printer_;
  QPainter painter_;
  int page_ = 1;
  bool begun_ = false;
  bool pageBegun_ = false;
};
