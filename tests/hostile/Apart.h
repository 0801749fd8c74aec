// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// Runs work in a process of its own, where it may crash or hang.
namespace Apart {

enum class End
{
  kWell,     // the work came to its end
  kStopped,  // the program ended itself after a message
  kCrashed,  // by a signal, a sanitizer or an exception
  kHung,     // the work took too long
};

struct Outcome
{
  End end = End::kWell;
  QStringList said;  // what the work said, line by line
};

using Say = std::function<void(const QString& line)>;

// The program's own end within the work, by Application::StopOn, is kStopped.
[[nodiscard]] Outcome Run(const std::function<void(const Say& say)>& work);

}
