// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/DesktopEntry.h"

namespace DesktopEntry {
namespace {

QString Line(const char* key, const QString& text)
{
  return QLatin1String(key) + QLatin1Char('=') + Value(text) + QLatin1Char('\n');
}

// Blanks at the ends of a value would not be read as a part of it.
void EscapeBlanksAtTheEnds(QString& value)
{
  const QString escaped = QStringLiteral("\\s");
  if (value.endsWith(QLatin1Char(' '))) {
    value.replace(value.size() - 1, 1, escaped);
  }
  if (value.startsWith(QLatin1Char(' '))) {
    value.replace(0, 1, escaped);
  }
}

}

QString Argument(const QString& text)
{
  QString quoted;
  for (const QChar c : text) {
    if (QStringLiteral("\"`$\\").contains(c)) {
      quoted += QLatin1Char('\\');
    } else if (c == QLatin1Char('%')) {
      quoted += c;
    }
    quoted += c;
  }
  return QLatin1Char('"') + quoted + QLatin1Char('"');
}

// Desktops look for a program by its name as it is written, with the percent signs doubled,
// and an equal sign may not stand in it. As an argument of another it may be any.
QString CommandLine(const QString& binary)
{
  if (!binary.contains(QLatin1Char('%')) && !binary.contains(QLatin1Char('='))) {
    return Argument(binary);
  }
  return QStringLiteral("/bin/sh -c ") + Argument(QStringLiteral("exec \"$0\"")) + QLatin1Char(' ') + Argument(binary);
}

QString Value(const QString& text)
{
  QString value = text;
  value.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
  value.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
  value.replace(QLatin1Char('\r'), QStringLiteral("\\r"));
  value.replace(QLatin1Char('\t'), QStringLiteral("\\t"));
  EscapeBlanksAtTheEnds(value);
  return value;
}

QByteArray Text(const Program& program)
{
  const QString text =
      QStringLiteral("[Desktop Entry]\n") + Line("Type", QStringLiteral("Application")) +
      Line("Version", QStringLiteral("1.0")) + Line("Name", program.name) + Line("Comment", program.comment) +
      Line("Exec", CommandLine(program.binary)) + Line("Path", program.workingDirectory) + Line("Icon", program.icon) +
      Line("Terminal", QStringLiteral("false")) + Line("X-GNOME-Autostart-enabled", QStringLiteral("true"));
  return text.toUtf8();
}

}
