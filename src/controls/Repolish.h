// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QWidget;

// Has the style sheet look at the widget's properties anew.
void Repolish(QWidget& widget);
