// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

// One picture: its file name without ".png", and what is done, from where the picture
// before was taken, until the form stands as it is to be shown.
struct Stop
{
  QString picture;
  QString form;
  void (*reach)();
};

// The way through every page and window of the program, from its start with the made-up
// household on kTourDay.
const std::vector<Stop>& Tour();
