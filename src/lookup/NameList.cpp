// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/NameList.h"

#include "controls/ListBox.h"
#include "platform/Attempt.h"
#include "store/DBEngine.h"
#include "store/StoreError.h"

bool NameList::Open(const QString& query)
{
  if (!database_) {
    database_ = DBEngine::OpenDatabase();
  }
  people_ = database_->OpenRecordset(query, Database::kDynaset);
  if (people_->Eof()) {
    return false;
  }
  Fill();
  return true;
}

void NameList::Close()
{
  people_.reset();
  database_.reset();
}

Recordset& NameList::Person()
{
  if (!people_) {
    StoreError::Raise(StoreError::kClosed);
  }
  return *people_;
}

bool NameList::IsEmpty()
{
  return Person().RecordCount() == 0;
}

void NameList::Fill()
{
  Field& name = people_->Fields(QStringLiteral("FullName"));
  Field& key = people_->Fields(QStringLiteral("PeopleID"));
  QStringList lines;
  keys_.clear();
  for (people_->MoveFirst(); !people_->Eof(); people_->MoveNext()) {
    lines.append(name.Peek().toString());
    keys_.push_back(key.Peek().toInt());
  }
  box_.Clear();
  box_.AddItems(lines);
}

int NameList::GoToChosen()
{
  const int line = box_.ListIndex();
  if (line < 0) {
    return 0;
  }
  const int key = keys_.at(static_cast<std::size_t>(line));
  return Attempt([&] { Person().SetBookmark({key, line}); }) ? key : 0;
}
