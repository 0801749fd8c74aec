// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class mdiQuillmark;

// Makes all forms of the program known by name.
void RegisterForms();

// Runs the start: the frame's initialisation and load, then the main page. Afterwards
// the frame is shown, or has ended if a guard has stopped the program.
void StartUp(mdiQuillmark& frame);
