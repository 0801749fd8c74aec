// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Chance.h"

#include <QString>

#include <deque>

class Household;
class QWidget;
class mdiQuillmark;

// What users set out to do, one deed after the other, such as entering a person.
namespace Errands {

struct Deed
{
  enum class Kind
  {
    kGoHome,    // back to the main page, by the page's own command
    kMenu,      // an entry of the menu, by name
    kClick,     // on a control
    kClickDay,  // on one of the days of the calendar
    kEnter,     // a text into a box
    kPick,      // any line of a box or a list
  };

  Kind kind;
  const char* form = "";
  const char* control = "";
  QString text = {};
};

using Errand = std::deque<Deed>;

// One of the errands. People and events are neither let grow without end nor die out.
[[nodiscard]] Errand Any(Chance& chance, const Household& household);

// Does the deed in `window`, which can be reached by the user, or in the frame's menu. Says what
// it was; empty if it cannot be done as things stand.
QString Do(const Deed& deed, QWidget& window, mdiQuillmark& frame, Chance& chance);

}
