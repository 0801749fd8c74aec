// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Clock.h"

namespace Clock {
namespace {

QDate stoppedOn;

}

QDate Today()
{
  return stoppedOn.isValid() ? stoppedOn : QDate::currentDate();
}

void StopOn(QDate date)
{
  stoppedOn = date;
}

}
