// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Dialogs that ask for a file, each a pause in the running command. They begin in the
// folder of the last file chosen. Each throws 32755 if the user cancels.

// A file to open, of any kind. The first time it begins in the user's pictures.
[[nodiscard]] QString ShowOpen();

// A file to write, of that name unless the user gives another, and with that extension
// unless the user gives one; one that exists is taken without a question. The first time
// it begins in the user's documents.
[[nodiscard]] QString ShowSave(const QString& fileName, const QString& extension);
