// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/Mail.h"

#include <QFile>
#include <QGuiApplication>

// Begins a message to the address on its standard input, and ends.
int main(int argc, char** argv)
{
  const QGuiApplication application(argc, argv);
  QFile input;
  if (!input.open(stdin, QIODevice::ReadOnly)) {
    return EXIT_FAILURE;
  }
  Mail::Write(QString::fromUtf8(input.readAll()));
  return EXIT_SUCCESS;
}
