// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Chance.h"

#include <QDialog>

class Household;

// What a user does with the boxes and dialogs of the program and of the toolkit.
namespace Dialogs {

// One answer, or a part of it, by chance; says what it was. A dialog that will not go is
// closed in the end.
QString Answer(QDialog& dialog, Chance& chance, const Household& household);

}
