// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QString>

#include <memory>

class QPrinter;

// The printer: lines of text, and drawn lines, on the pages of one document at a time. The
// document goes where ShowPrinter settled, or else to the system's default printer.
//
// Measures are twips from the upper left corner of the printable area, the same on every device.
// Nothing is opened before something is printed. EndDoc closes the document and gives everything
// below its first value. What prints throws 482 if there is no printer, or if it refuses; the
// document is gone then, and EndDoc has nothing left to do.
namespace Printer {

enum class PageOrientation
{
  kPortrait = 1,
  kLandscape = 2,
};

// Where printing goes on after a text.
enum class LineEnd
{
  kBreak,
  kStay,
};

// "arial", 12 points, not bold, black at first. Characters that the font has not are taken from
// other fonts.
[[nodiscard]] QString FontName();
void SetFontName(const QString& name);
[[nodiscard]] double FontSize();
void SetFontSize(double points);
[[nodiscard]] bool FontBold();
void SetFontBold(bool bold);
[[nodiscard]] QColor ForeColor();
void SetForeColor(const QColor& color);

// The upper left corner of the next text. 0 at the top of a page. What is set is kept exactly.
[[nodiscard]] double CurrentX();
void SetCurrentX(double x);
[[nodiscard]] double CurrentY();
void SetCurrentY(double y);

// The printable area: its upper left corner, always 0, and its size.
[[nodiscard]] double ScaleLeft();
[[nodiscard]] double ScaleTop();
[[nodiscard]] double ScaleWidth();
[[nodiscard]] double ScaleHeight();

// Portrait at first, or what the print dialog says. Throws 396 once something is printed.
[[nodiscard]] PageOrientation Orientation();
void SetOrientation(PageOrientation orientation);

// Says how much room the pages of this document need, from the upper left corner. If the printable
// area has less, all that is printed is made smaller by one factor; ScaleWidth and ScaleHeight
// then tell the area in these smaller twips. Nothing is made larger. Throws 396 once something
// is printed.
void Fit(double width, double height);

// Size of a text as Print at X 0 would set it: the widest line, and the height of all its lines.
[[nodiscard]] double TextWidth(const QString& text);
[[nodiscard]] double TextHeight(const QString& text);

// Prints a text with its upper left corner at the current place, and goes to X 0 below it or,
// with kStay, to its end. A tab goes on at the next tab stop: they stand eight average characters
// of the font apart, counted from the left of the printable area. After a line break within the
// text, printing goes on at X 0 below. Nothing wraps: what is longer than the paper is cut off
// at its edge.
void Print(const QString& text = {}, LineEnd end = LineEnd::kBreak);

// Draws a line, 10 twips thick, and goes to its end.
void Line(double fromX, double fromY, double toX, double toY);

// Ends the page. The next one begins when something is printed on it.
void NewPage();

// Ends the document. Throws 482 if the printer did not take it.
void EndDoc();

// Prints the next document on `printer`. Ends the one that is open.
void Use(std::unique_ptr<QPrinter> printer);

}
