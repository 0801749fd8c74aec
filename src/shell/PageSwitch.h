// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// Going from page to page: one page is open at a time, and a record that is being
// added or edited keeps its page.
namespace PageSwitch {

// True while the record editor shows its add or edit panel.
[[nodiscard]] bool EditorIsBusy();

// The same, and tells the user to finish first.
[[nodiscard]] bool RefuseWhileEditing();

// Shows the page of that name in place of the open one, or of the main page. False
// if an open edit refuses.
bool OpenPage(const QString& name);

}
