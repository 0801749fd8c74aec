// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Chance.h"

#include <QString>

class QWidget;

// A user who tries things out. Each does one thing by chance and says what it was.
namespace Wandering {

// In a window: uses one of its controls, presses a key, moves about.
QString In(QWidget& window, Chance& chance);

// In what is open above the windows: a menu or the list of a box.
QString InPopup(QWidget& popup, Chance& chance);

}
