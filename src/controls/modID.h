// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// What one page hands to the next.
namespace modID {

// PeopleID of the person last selected, 0 for none.
inline int SelectedPersonID = 0;

}
