// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/PersonRecords.h"

#include "controls/modID.h"
#include "people/RecordBoxes.h"
#include "platform/Attempt.h"
#include "platform/Command.h"
#include "store/DBEngine.h"
#include "store/Queries.h"

PersonRecords::PersonRecords()
    : database_(DBEngine::OpenDatabase()), cursor_(database_.OpenRecordset(Queries::kRecords, Database::kDynaset))
{}

std::unique_ptr<Recordset> PersonRecords::OpenTable(const char* name)
{
  return database_.OpenRecordset(QLatin1String(name), Database::kTable);
}

std::unique_ptr<Recordset> PersonRecords::OpenAddresses()
{
  return database_.OpenRecordset(Queries::kAddresses, Database::kDynaset);
}

std::unique_ptr<Recordset> PersonRecords::Find(int personID)
{
  auto people = OpenTable("People");
  Couples::Find(*people, "PrimaryKey", personID);
  return people;
}

int PersonRecords::CurrentPeopleID() const
{
  return cursor_->AbsolutePosition() < 0 ? 0 : static_cast<int>(cursor_->GetBookmark().key);
}

void PersonRecords::GoTo(int personID)
{
  Field& key = cursor_->Fields(QStringLiteral("PeopleID"));
  cursor_->MoveFirst();
  while (!cursor_->Eof() && key.Peek().toInt() != personID) {
    cursor_->MoveNext();
  }
}

bool PersonRecords::Step(void (Recordset::*move)())
{
  const bool forward = move == &Recordset::MoveNext || move == &Recordset::MoveLast;
  if (move != &Recordset::MoveNext || !cursor_->Eof()) {
    (*cursor_.*move)();
  }
  if (!cursor_->Eof() && !cursor_->Bof()) {
    return true;
  }
  if (forward) {
    cursor_->MovePrevious();
  } else {
    cursor_->MoveNext();
  }
  return false;
}

bool PersonRecords::FindName(const QString& fullName)
{
  Attempt([&] { cursor_->FindFirst(QStringLiteral("fullname=\"%1\"").arg(fullName)); });
  return !cursor_->Eof() && !cursor_->NoMatch();
}

bool PersonRecords::Add(const RecordBoxes& boxes)
{
  const bool written = Attempt([&] {
    cursor_->AddNew();
    boxes.WriteFields(*cursor_);
    cursor_->Update();
    cursor_->MoveLast();
    boxes.InfoConvert(database_, CurrentPeopleID());
    Command::Settle();
  });
  if (!written) {
    Command::Abandon();
    LeaveNoCurrentRow();
  }
  return written;
}

// The steps are taken apart, since the first fails where no row can be read, and leads to
// the last one all the same.
void PersonRecords::LeaveNoCurrentRow()
{
  Attempt([this] { cursor_->CancelUpdate(); });
  Attempt([this] { cursor_->MoveLast(); });
  Attempt([this] { cursor_->MoveNext(); });
}

// The step to the next row and back is kept: it makes that row a visited one. It is taken
// only within what was begun by the write, where no other program can stop the way back.
bool PersonRecords::Change(const RecordBoxes& boxes)
{
  const bool written = Attempt([&] {
    const Recordset::Bookmark place = cursor_->GetBookmark();
    cursor_->Edit();
    boxes.WriteFields(*cursor_);
    cursor_->Update();
    cursor_->MoveNext();
    cursor_->SetBookmark(place);
    boxes.InfoConvert(database_, CurrentPeopleID());
    Couples::CopyName(*OpenTable("Ann"), CurrentPeopleID(), cursor_->Fields(QStringLiteral("FirstName")).Value(),
                      cursor_->Fields(QStringLiteral("LastName")).Value());
    Command::Settle();
  });
  if (!written) {
    Attempt([this] { cursor_->CancelUpdate(); });
    Command::Abandon();
  }
  return written;
}

std::vector<Couples::Couple> PersonRecords::CouplesOfCurrent()
{
  const int person = CurrentPeopleID();
  return person == 0 ? std::vector<Couples::Couple>() : Couples::Of(*OpenTable("Ann"), person);
}

void PersonRecords::HandOverCouple()
{
  for (const Couples::Couple& couple : CouplesOfCurrent()) {
    modID::CoupleSpouse1ID = couple.spouse1ID;
    modID::CoupleSpouse2ID = couple.spouse2ID;
  }
}

bool PersonRecords::Delete(const std::vector<Couples::Couple>& couples)
{
  const int person = CurrentPeopleID();
  const bool deleted = Attempt([&] {
    DeleteCouples(couples);
    if (!couples.empty()) {
      Couples::ForgetWedding(*OpenTable("People"), couples.back().PartnerOf(person));
    }
    cursor_->Delete();
    Command::Settle();
  });
  if (!deleted) {
    Command::Abandon();
  }
  LandAfterDelete();
  Attempt([this] { VisitAllRows(); });
  return deleted;
}

void PersonRecords::DeleteCouples(const std::vector<Couples::Couple>& couples)
{
  const auto table = OpenTable("Ann");
  for (const Couples::Couple& couple : couples) {
    if (Couples::GoTo(*table, couple)) {
      table->Delete();
    }
  }
}

void PersonRecords::LandAfterDelete()
{
  Attempt([this] {
    cursor_->MovePrevious();
    if (!IsEmpty() && cursor_->Bof()) {
      cursor_->MoveNext();
    }
  });
}

// The cursor has been through all its rows afterwards, and counts them.
void PersonRecords::VisitAllRows()
{
  if (IsEmpty()) {
    return;
  }
  const Recordset::Bookmark place = cursor_->GetBookmark();
  cursor_->MoveLast();
  cursor_->SetBookmark(place);
}
