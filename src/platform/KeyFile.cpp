// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/KeyFile.h"

#include <QFile>
#include <QTextStream>

KeyFile::KeyFile(const QString& path)
{
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return;
  }
  QTextStream stream(&file);
  QString group;
  QString line;
  while (stream.readLineInto(&line)) {
    const qsizetype equals = line.indexOf(QLatin1Char('='));
    if (line.startsWith(QLatin1Char('['))) {
      group = line.mid(1, line.lastIndexOf(QLatin1Char(']')) - 1);
    } else if (equals > 0 && !line.startsWith(QLatin1Char('#'))) {
      groups_[group].insert(line.first(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
  }
}

QString KeyFile::Value(const QString& group, const QString& key) const
{
  return groups_.value(group).value(key);
}

QStringList KeyFile::Values(const QString& group, const QString& key) const
{
  return Value(group, key).split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

bool KeyFile::IsTrue(const QString& group, const QString& key) const
{
  return Value(group, key) == QLatin1String("true");
}
