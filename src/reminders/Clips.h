// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "reminders/ReminderRule.h"

#include <QString>

// Playing the clips of a check, one after the other, and the note beside the line
// that is sounding.
namespace Clips {

// The folder under a name that no command can be split by: its real path. Empty if
// there is no such folder.
[[nodiscard]] QString GetShortName(const QString& folder);

// The full path of a kind's clip.
[[nodiscard]] QString FileFor(ReminderKind kind);

// Starts the clip that is next in the queue, or ends the queue when it has run out.
// Ends in silence on any failure.
void PlayNextClip();

// What the frame's timer does at each tick.
void FollowClip();

}
