// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// What one page hands to the next.
namespace modID {

// PeopleID of the person last selected, 0 for none.
inline int SelectedPersonID = 0;

// PeopleID of the wife and of the husband that the couple editor is to select, 0 for none.
inline int CoupleSpouse1ID = 0;
inline int CoupleSpouse2ID = 0;

// True once the user was asked whether to delete a person.
inline bool RecordDeleted = false;

}
