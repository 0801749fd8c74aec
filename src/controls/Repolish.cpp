// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Repolish.h"

#include <QStyle>
#include <QWidget>

void Repolish(QWidget& widget)
{
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
  widget.update();
}
