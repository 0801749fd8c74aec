// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/ProgramEntry.h"

#include <QList>

// Which programs the user and the desktop keep for a kind of document.
namespace Associations {

// Those that were chosen as the program for it, the first choice first. They may be gone.
[[nodiscard]] QList<ProgramEntry> Chosen(const QString& mimeType);

// All that can open it, but for those that were taken off, in no order that counts.
[[nodiscard]] QList<ProgramEntry> Able(const QString& mimeType);

}
