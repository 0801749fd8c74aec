// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "reminders/ReminderRule.h"

#include <QDate>
#include <QStringList>

#include <functional>

class Recordset;

// Who or what is coming up of one kind, by the rule of the settings.
namespace NoticeDetails {

// The query behind a kind's details.
[[nodiscard]] const QString& QueryFor(ReminderKind kind);

// Reads all rows of that query and gives an entry for each that fits, in their order.
// `onSentence` hears what the user has chosen as soon as a row fits.
[[nodiscard]] QStringList ReadEntries(Recordset& rows, ReminderKind kind, const ReminderRule& rule, QDate today,
                                      const std::function<void(const QString&)>& onSentence);

}
