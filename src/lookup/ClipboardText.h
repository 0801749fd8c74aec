// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

struct PersonResults;

// What the look-up page copies to the clipboard.
namespace ClipboardText {

// Whether anything is ticked that counts. The business phone does not, though it is copied
// along with others.
[[nodiscard]] bool HasItems(const PersonResults& results);

// The name and the texts of what is ticked, parted by empty lines.
[[nodiscard]] QString Make(const QString& name, PersonResults& results);

}
