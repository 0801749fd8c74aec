// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/EventTitle.h"

#include "platform/Characters.h"

QString EventTitle::Refusal(const QString& title, const QString& blank)
{
  if (Characters::IsBlank(title)) {
    return blank;
  }
  return Characters::LengthOf(title) > kLongest
             ? QStringLiteral("For proper display, you cannot enter more than 12 letters and spaces")
             : QString();
}
