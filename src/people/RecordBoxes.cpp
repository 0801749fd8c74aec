// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/RecordBoxes.h"

#include "controls/EntryBox.h"
#include "controls/Form.h"
#include "platform/Attempt.h"
#include "platform/Characters.h"
#include "store/Database.h"

#include <array>
#include <map>

namespace {

// What an empty box leaves in its column.
enum class Empty
{
  kText,  // the empty text; the entry rules see to it that there is one
  kNullIfBlank,
  kNullIfEmpty,
};

struct Bound
{
  const char* column;
  const char* box;
  Empty empty;
};

constexpr std::array<Bound, 17> kColumns = {{
    {"FirstName", "txtFirst", Empty::kText},
    {"LastName", "txtLast", Empty::kText},
    {"Street", "txtStreet", Empty::kNullIfBlank},
    {"SecondAddress", "txtSecondAddress", Empty::kNullIfBlank},
    {"City", "txtCity", Empty::kNullIfBlank},
    {"Province", "txtProv", Empty::kNullIfBlank},
    {"Country", "txtCountry", Empty::kNullIfBlank},
    {"Postal", "txtPostal", Empty::kNullIfBlank},
    {"Phone", "txtPhone", Empty::kNullIfBlank},
    {"Mobile", "txtMobile", Empty::kNullIfBlank},
    {"Business", "txtBus", Empty::kNullIfBlank},
    {"Email", "txtEmail", Empty::kNullIfBlank},
    {"Notes", "txtNotes", Empty::kNullIfBlank},
    {"BirthMonth", "cboBirthMonth", Empty::kNullIfEmpty},
    {"BirthDate", "cboBirthDate", Empty::kNullIfEmpty},
    {"BirthYear", "cboBirthYear", Empty::kNullIfEmpty},
    {"Gender", "cboSex", Empty::kText},
}};

bool LeavesNull(const Bound& bound, const QString& text)
{
  switch (bound.empty) {
    case Empty::kNullIfBlank:
      return Characters::IsBlank(text);
    case Empty::kNullIfEmpty:
      return text.isEmpty();
    case Empty::kText:
      break;
  }
  return false;
}

}

RecordBoxes::RecordBoxes(const Form& form) : form_(form)
{
  for (QWidget* control : form.findChildren<QWidget*>()) {
    if (auto* box = dynamic_cast<EntryBox*>(control)) {
      boxes_.push_back(box);
    }
  }
}

EntryBox& RecordBoxes::Box(const char* name) const
{
  return dynamic_cast<EntryBox&>(*form_.Control(QLatin1String(name)));
}

void RecordBoxes::LockFields() const
{
  for (EntryBox* box : boxes_) {
    box->SetLocked(true);
  }
}

void RecordBoxes::UnlockFields() const
{
  for (EntryBox* box : boxes_) {
    box->SetLocked(false);
  }
}

void RecordBoxes::ClearFields() const
{
  for (EntryBox* box : boxes_) {
    box->SetText({});
  }
}

void RecordBoxes::Show(Recordset& row) const
{
  for (const Bound& bound : kColumns) {
    const QVariant value = row.Fields(QLatin1String(bound.column)).Value();
    if (!value.isNull()) {
      Box(bound.box).SetText(value.toString());
    }
  }
}

EntryRules::Entry RecordBoxes::Entry() const
{
  const auto text = [this](const char* name) { return Box(name).Text(); };
  return {text("txtFirst"),   text("txtLast"),
          text("txtStreet"),  text("txtSecondAddress"),
          text("txtCity"),    text("txtProv"),
          text("txtCountry"), text("txtPostal"),
          text("cboSex"),     {text("cboBirthMonth"), text("cboBirthDate"), text("cboBirthYear")}};
}

void RecordBoxes::Focus(EntryRules::Box box) const
{
  static const std::map<EntryRules::Box, const char*> kNames = {{EntryRules::Box::kFirstName, "txtFirst"},
                                                                {EntryRules::Box::kLastName, "txtLast"},
                                                                {EntryRules::Box::kGender, "cboSex"},
                                                                {EntryRules::Box::kStreet, "txtStreet"}};
  if (const auto name = kNames.find(box); name != kNames.end()) {
    form_.Control(QLatin1String(name->second))->setFocus();
  }
}

void RecordBoxes::CopyAddress(Recordset& row) const
{
  constexpr std::array<std::pair<const char*, const char*>, 7> kCopied = {{{"Street", "txtStreet"},
                                                                           {"SecondAddress", "txtSecondAddress"},
                                                                           {"City", "txtCity"},
                                                                           {"Province", "txtProv"},
                                                                           {"Postal", "txtPostal"},
                                                                           {"Phone", "txtPhone"},
                                                                           {"Country", "txtCountry"}}};
  for (const auto& [column, box] : kCopied) {
    Box(box).SetText(row.Fields(QLatin1String(column)).Value().toString());
  }
}

void RecordBoxes::WriteFields(Recordset& row) const
{
  for (const Bound& bound : kColumns) {
    Attempt([&] { row.Fields(QLatin1String(bound.column)).SetValue(Box(bound.box).Text()); });
  }
}

void RecordBoxes::InfoConvert(Database& database, int personID) const
{
  const auto people = database.OpenRecordset(QStringLiteral("People"), Database::kTable);
  people->SetIndex(QStringLiteral("PrimaryKey"));
  people->Seek(QStringLiteral("="), personID);
  for (const Bound& bound : kColumns) {
    if (LeavesNull(bound, Box(bound.box).Text())) {
      people->Edit();
      people->Fields(QLatin1String(bound.column)).SetValue(QVariant());
      people->Update();
    }
  }
}
