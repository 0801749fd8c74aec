// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/ClipboardText.h"

#include "lookup/PersonResults.h"

namespace ClipboardText {

bool HasItems(const PersonResults& results)
{
  return results.phone.IsWanted() || results.email.IsWanted() || results.address.IsWanted() ||
         results.mobile.IsWanted() || results.SpecialWanted() || results.notes.IsWanted();
}

// Lines end as they do on this desktop.
QString Make(const QString& name, PersonResults& results)
{
  QString text = name;
  for (const ResultBox* box : results.All()) {
    if (box->IsWanted()) {
      text += (text.isEmpty() ? QString() : QStringLiteral("\n\n")) + box->Text();
    }
  }
  return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

}
