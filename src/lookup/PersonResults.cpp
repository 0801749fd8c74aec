// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/PersonResults.h"

#include "lookup/PersonValues.h"

#include <initializer_list>

namespace {

void ShowOrHide(ResultBox& box, Recordset& person, const char* column)
{
  if (box.IsWanted()) {
    box.Show(ShownValue(person, column));
  } else {
    box.Hide();
  }
}

// True if a date with a gap is shown.
bool ShowOrHide(ResultBox& box, const OccasionDate& date)
{
  if (!box.IsWanted()) {
    box.Hide();
    return false;
  }
  box.Show(date.Text());
  return date.HasGap();
}

void Forget(std::initializer_list<ResultBox*> boxes)
{
  for (ResultBox* box : boxes) {
    box->Show(QString());
    box->Hide();
  }
}

OccasionDate ReadDate(Recordset& person, const char* month, const char* day, const char* year)
{
  return {KnownValue(person, month), KnownValue(person, day), KnownValue(person, year)};
}

}

bool PersonResults::ContactWanted() const
{
  return phone.IsWanted() || mobile.IsWanted() || business.IsWanted() || email.IsWanted() || address.IsWanted();
}

bool PersonResults::SpecialWanted() const
{
  return birthday.IsWanted() || anniversary.IsWanted();
}

bool PersonResults::AnyWanted() const
{
  return ContactWanted() || SpecialWanted() || notes.IsWanted();
}

void PersonResults::ShowContact(Recordset& person)
{
  ShowOrHide(phone, person, "Phone");
  ShowOrHide(mobile, person, "Mobile");
  ShowOrHide(email, person, "Email");
  ShowOrHide(business, person, "Business");
  if (!address.IsWanted()) {
    address.Hide();
    return;
  }
  block = MakeAddressBlock(ReadAddress(person));
  address.Show(block.text);
}

bool PersonResults::ShowSpecial(Recordset& person)
{
  const bool birthdayHasGap = ShowOrHide(birthday, ReadDate(person, "BirthMonth", "BirthDate", "BirthYear"));
  const bool anniversaryHasGap = ShowOrHide(anniversary, ReadDate(person, "AnnMonth", "AnnDate", "AnnYear"));
  return birthdayHasGap || anniversaryHasGap;
}

void PersonResults::ShowNotes(Recordset& person)
{
  ShowOrHide(notes, person, "Notes");
}

void PersonResults::ForgetContact()
{
  block = {};
  Forget({&phone, &mobile, &business, &email, &address});
}

void PersonResults::ForgetSpecial()
{
  Forget({&birthday, &anniversary});
}

void PersonResults::ForgetNotes()
{
  Forget({&notes});
}

void PersonResults::HideAll()
{
  for (ResultBox* box : All()) {
    box->Hide();
  }
}
