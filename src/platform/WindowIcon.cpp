// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/WindowIcon.h"

#include "platform/App.h"

#include <QFileInfo>

// A pipe in its place would be waited for.
QIcon WindowIcon()
{
  const QString path = App::File(QStringLiteral("/animp.ico"));
  return QFileInfo(path).isFile() ? QIcon(path) : QIcon();
}
