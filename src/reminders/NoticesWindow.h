// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// The four ways in which the notices window is shown. The first three come back when
// it is closed.
namespace NoticesWindow {

void TellNotActive();
void TellNothingComingUp();
void ShowManualNotices(bool withClips);

// Over the minimised frame; comes back at once.
void ShowStartUpNotices(bool withClips);

}
