// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Chance.h"

#include <QString>

// What users type: sensible, odd and long.
namespace Texts {

[[nodiscard]] QString FirstName(Chance& chance);
[[nodiscard]] QString LastName(Chance& chance);
[[nodiscard]] QString Word(Chance& chance);
[[nodiscard]] QString Time(Chance& chance);
[[nodiscard]] QString Long(Chance& chance);

// Any of these, and what nobody expects.
[[nodiscard]] QString Anything(Chance& chance);

}
