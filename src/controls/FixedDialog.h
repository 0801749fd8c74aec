// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

// Makes a window a dialog of the size that it has now, with a close box and the program's icon.
void MakeFixedDialog(QWidget& window);
