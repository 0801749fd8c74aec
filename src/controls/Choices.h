// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>

#include <initializer_list>

// Option buttons of which one or none is chosen.
namespace Choices {

// Chooses none; the toolkit keeps one of an exclusive group chosen.
inline void Clear(std::initializer_list<QAbstractButton*> options)
{
  for (QAbstractButton* option : options) {
    option->setAutoExclusive(false);
    option->setChecked(false);
    option->setAutoExclusive(true);
  }
}

}
