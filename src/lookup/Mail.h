// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QUrl;

// Messages, written in the desktop's mail program.
namespace Mail {

// Begins a message to the address and returns at once. Nothing is said if there is no
// mail program.
void Write(const QString& address);

// The address as the mail program is given it. All of it is the recipient: nothing in it
// is taken for a further field or an option.
[[nodiscard]] QUrl AddressOf(const QString& address);

}
