// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Printer.h"

#include "platform/PrintDocument.h"
#include "platform/PrintFont.h"
#include "platform/PrintText.h"
#include "platform/RuntimeError.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace {

constexpr double kLineThickness = 10;

struct State
{
  QString fontName = QStringLiteral("arial");
  double fontSize = 12;
  bool fontBold = false;
  QColor foreColor = Qt::black;
  double x = 0;
  double y = 0;
  QSizeF needed;
  std::optional<PrintFont> font;
  std::unique_ptr<PrintDocument> document;
};

State state;

// What is open goes with it.
void StartOver()
{
  state = State();
}

// The toolkit's printer may not outlive the application.
PrintDocument& Keep(std::unique_ptr<QPrinter> printer)
{
  static const bool registered = [] {
    qAddPostRoutine(StartOver);
    return true;
  }();
  static_cast<void>(registered);
  state.document = std::make_unique<PrintDocument>(std::move(printer));
  return *state.document;
}

PrintDocument& Document()
{
  return state.document ? *state.document : Keep(PrintDocument::UsualPrinter());
}

const PrintFont& Font()
{
  if (!state.font) {
    state.font.emplace(state.fontName, state.fontSize, state.fontBold);
  }
  return *state.font;
}

double Scale()
{
  const QSizeF area = Document().PrintableArea();
  double scale = 1;
  if (state.needed.width() > area.width()) {
    scale = area.width() / state.needed.width();
  }
  if (state.needed.height() > area.height()) {
    scale = std::min(scale, area.height() / state.needed.height());
  }
  return scale;
}

void RefuseWithinDocument()
{
  if (Document().IsBegun()) {
    RaiseError(ErrorNumber::kSetWithinPage);
  }
}

// A document that has failed is not gone on with.
template <typename Work>
auto OrGiveUp(Work&& work)
{
  try {
    return work();
  } catch (const RuntimeError&) {
    StartOver();
    throw;
  }
}

QPainter* Page()
{
  return OrGiveUp([] { return Document().Page(Scale()); });
}

void Paint(const PrintText& text)
{
  QPainter* page = Page();
  if (page == nullptr) {
    return;
  }
  page->setFont(Font().Font());
  page->setPen(state.foreColor);
  for (const PrintPiece& piece : text.pieces) {
    page->drawText(QPointF(piece.x, state.y + piece.line * Font().LineHeight() + Font().Ascent()), piece.text);
  }
}

}

namespace Printer {

QString FontName()
{
  return state.fontName;
}

void SetFontName(const QString& name)
{
  state.fontName = name;
  state.font.reset();
}

double FontSize()
{
  return state.fontSize;
}

void SetFontSize(double points)
{
  state.fontSize = points;
  state.font.reset();
}

bool FontBold()
{
  return state.fontBold;
}

void SetFontBold(bool bold)
{
  state.fontBold = bold;
  state.font.reset();
}

QColor ForeColor()
{
  return state.foreColor;
}

void SetForeColor(const QColor& color)
{
  state.foreColor = color;
}

double CurrentX()
{
  return state.x;
}

void SetCurrentX(double x)
{
  state.x = x;
}

double CurrentY()
{
  return state.y;
}

void SetCurrentY(double y)
{
  state.y = y;
}

double ScaleLeft()
{
  return 0;
}

double ScaleTop()
{
  return 0;
}

double ScaleWidth()
{
  return Document().PrintableArea().width() / Scale();
}

double ScaleHeight()
{
  return Document().PrintableArea().height() / Scale();
}

PageOrientation Orientation()
{
  const bool landscape = Document().Orientation() == QPageLayout::Landscape;
  return landscape ? PageOrientation::kLandscape : PageOrientation::kPortrait;
}

void SetOrientation(PageOrientation orientation)
{
  RefuseWithinDocument();
  const bool landscape = orientation == PageOrientation::kLandscape;
  Document().SetOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

void Fit(double width, double height)
{
  RefuseWithinDocument();
  state.needed = QSizeF(width, height);
}

double TextWidth(const QString& text)
{
  return CutForPrinting(text, Font(), 0).width;
}

double TextHeight(const QString& text)
{
  return CutForPrinting(text, Font(), 0).lines * Font().LineHeight();
}

void Print(const QString& text, LineEnd end)
{
  const PrintText cut = CutForPrinting(text, Font(), state.x);
  Paint(cut);
  const bool stays = end == LineEnd::kStay;
  state.x = stays ? cut.endX : 0;
  state.y += (stays ? cut.lines - 1 : cut.lines) * Font().LineHeight();
}

void Line(double fromX, double fromY, double toX, double toY)
{
  if (QPainter* page = Page()) {
    page->setPen(QPen(state.foreColor, kLineThickness, Qt::SolidLine, Qt::SquareCap));
    page->drawLine(QPointF(fromX, fromY), QPointF(toX, toY));
  }
  state.x = toX;
  state.y = toY;
}

void NewPage()
{
  OrGiveUp([] { Document().NewPage(Scale()); });
  state.x = 0;
  state.y = 0;
}

void EndDoc()
{
  const std::unique_ptr<PrintDocument> document = std::move(state.document);
  StartOver();
  if (document) {
    document->End();
  }
}

void Use(std::unique_ptr<QPrinter> printer)
{
  EndDoc();
  Keep(std::move(printer));
}

}
