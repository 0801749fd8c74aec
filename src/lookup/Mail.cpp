// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/Mail.h"

#include "platform/Shell.h"

#include <QUrl>

namespace Mail {
namespace {

// A mail program decodes what is escaped before it writes its fields, so a line break
// would begin another one even then.
QString WithoutControls(QString address)
{
  address.removeIf([](QChar character) {
    return character.category() == QChar::Other_Control || character.category() == QChar::Separator_Line ||
           character.category() == QChar::Separator_Paragraph;
  });
  return address.trimmed();
}

}

void Write(const QString& address)
{
  Shell::Open(AddressOf(address));
}

QUrl AddressOf(const QString& address)
{
  return QUrl::fromEncoded("mailto:%20" + QUrl::toPercentEncoding(WithoutControls(address), "@"), QUrl::StrictMode);
}

}
