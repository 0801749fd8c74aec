// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Shell.h"

#include <QDesktopServices>
#include <QUrl>

bool Shell::Open(const QUrl& address)
{
  return QDesktopServices::openUrl(address);
}
