// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Message boxes. Each waits until it is answered, as a pause in the running command.
enum class MsgBoxButtons
{
  kOk,
  kOkCancel,
  kYesNo,
};

enum class MsgBoxAnswer
{
  kOk,
  kCancel,
  kYes,
  kNo,
};

// Shows `text` over the active window, or what BoxOwner says. Closing the box by its title
// bar answers Cancel or No, or OK where that is all there is.
MsgBoxAnswer MsgBox(const QString& text, MsgBoxButtons buttons = MsgBoxButtons::kOk,
                    const QString& title = QStringLiteral("Quillmark"));
