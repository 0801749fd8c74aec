// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

// The reminder check, and the state that it shares with the notices window and the clips.
namespace modTextNotices {

inline bool BirthdayHit = false;
inline bool AnniversaryHit = false;
inline bool CalendarHit = false;

// The notices window was opened by a check that the user asked for.
inline bool ManualCheck = false;

// The full path of each queued clip, in playing order, and the next one to play.
inline QStringList ClipFiles;
inline int ClipIndex = 0;

// Tells the user what is coming up. `manual` is True if the user asked, False at the
// program's start. Comes back when a window that it shows modally is closed. Ends in
// silence on any failure.
void CheckReminders(bool manual);

}
