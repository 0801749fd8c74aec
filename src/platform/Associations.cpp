// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Associations.h"

#include "platform/KeyFile.h"

#include <QStandardPaths>

namespace Associations {
namespace {

struct Identifiers
{
  QStringList chosen;
  QStringList able;
};

// The lists of associations, the one that counts most first.
QStringList ListPaths()
{
  QStringList names;
  for (const QString& desktop : qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts)) {
    names.append(desktop.toLower() + QStringLiteral("-mimeapps.list"));
  }
  names.append(QStringLiteral("mimeapps.list"));
  QStringList paths;
  for (const auto location : {QStandardPaths::GenericConfigLocation, QStandardPaths::ApplicationsLocation}) {
    for (const QString& folder : QStandardPaths::standardLocations(location)) {
      for (const QString& name : names) {
        paths.append(folder + u'/' + name);
      }
    }
  }
  return paths;
}

void AddAllBut(const QStringList& removed, const QStringList& found, QStringList& identifiers)
{
  for (const QString& identifier : found) {
    if (!removed.contains(identifier) && !identifiers.contains(identifier)) {
      identifiers.append(identifier);
    }
  }
}

Identifiers IdentifiersFor(const QString& mimeType)
{
  Identifiers identifiers;
  QStringList removed;
  for (const QString& path : ListPaths()) {
    const KeyFile list(path);
    AddAllBut(removed, list.Values(QStringLiteral("Default Applications"), mimeType), identifiers.chosen);
    AddAllBut(removed, list.Values(QStringLiteral("Added Associations"), mimeType), identifiers.able);
    removed += list.Values(QStringLiteral("Removed Associations"), mimeType);
  }
  for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation)) {
    const KeyFile cache(folder + QStringLiteral("/mimeinfo.cache"));
    AddAllBut(removed, cache.Values(QStringLiteral("MIME Cache"), mimeType), identifiers.able);
  }
  return identifiers;
}

// "kde-kate.desktop" may stand in a folder: kde/kate.desktop.
QString PathOf(QString identifier)
{
  for (qsizetype hyphen = -1;;) {
    QString path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, identifier);
    hyphen = identifier.indexOf(u'-', hyphen + 1);
    if (!path.isEmpty() || hyphen < 0) {
      return path;
    }
    identifier[hyphen] = u'/';
  }
}

QList<ProgramEntry> Entries(const QStringList& identifiers)
{
  QList<ProgramEntry> entries;
  for (const QString& identifier : identifiers) {
    if (const QString path = PathOf(identifier); !path.isEmpty()) {
      entries.append(ProgramEntry::Read(path));
    }
  }
  return entries;
}

}

QList<ProgramEntry> Chosen(const QString& mimeType)
{
  return Entries(IdentifiersFor(mimeType).chosen);
}

QList<ProgramEntry> Able(const QString& mimeType)
{
  return Entries(IdentifiersFor(mimeType).able);
}

}
