// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "reminders/ReminderRule.h"

#include <QDate>
#include <QStringList>

class Database;

// Who or what is coming up of one kind, by the rule of the settings.
struct NoticeDetails
{
  QStringList entries;  // in the order of the query
  QString sentence;     // empty if nothing fits

  [[nodiscard]] static NoticeDetails Read(Database& database, ReminderKind kind, const ReminderRule& rule, QDate today);
};
