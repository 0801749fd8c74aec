// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;
class ComboBox;
class ListBox;

// The mouse and the keyboard of one user. All that is done comes to the windows as it would
// from the screen, so that a window which is kept from its user does not get it.
namespace Hand {

void ClickAt(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
void Click(QWidget& widget);  // into its middle; a check box or an option button near its mark
void DoubleClick(QWidget& widget, QPoint place);
void MoveOver(QWidget& widget, QPoint place);
void Wheel(QWidget& widget, QPoint place, int notches);

// Keys for the window, or for the list or menu that is open above it.
void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier);
void Type(QWidget& window, const QString& text);

// Clicks into the box, takes all of it and puts the text in its place.
void Replace(QWidget& box, const QString& text, bool paste);

// A line of a list, or of a box's list, which is opened for it.
void ClickLine(ListBox& list, int line);
void PickLine(ComboBox& box, int line);

}
