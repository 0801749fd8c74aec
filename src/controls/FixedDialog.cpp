// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/FixedDialog.h"
#include "platform/WindowIcon.h"

#include <QIcon>
#include <QWidget>

void MakeFixedDialog(QWidget& window)
{
  window.setFixedSize(window.size());
  window.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                        Qt::CustomizeWindowHint);
  window.setWindowIcon(WindowIcon());
}
