// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QUrl;

// The desktop's own handlers of addresses.
namespace Shell {

// Opens the address in the program that the desktop keeps for it. Returns at once; false
// if there is none.
bool Open(const QUrl& address);

}
