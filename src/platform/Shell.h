// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

#include <functional>

class QUrl;

// The desktop's own handlers of addresses, and other programs.
namespace Shell {

// Opens the address in the program that the desktop keeps for it. Returns at once; false
// if there is none.
bool Open(const QUrl& address);

// Starts a program, given with its arguments. It is on its own: it goes on when this one
// ends, and neither sees what the other writes. Returns when it has run for a moment; false
// if it could not be started or ended in failure by then. If it ends later on, `ended` is
// called, once and from the event loop.
bool Start(const QStringList& command, const std::function<void()>& ended);

}
