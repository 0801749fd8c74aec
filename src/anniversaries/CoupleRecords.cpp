// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "anniversaries/CoupleRecords.h"

#include "people/Couples.h"
#include "platform/Attempt.h"
#include "platform/Command.h"
#include "store/DBEngine.h"
#include "store/Queries.h"
#include "store/StoreError.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char*, 3> kDateColumns = {"AnnMonth", "AnnDate", "AnnYear"};

const char* KeyColumn(CoupleRecords::Spouse spouse)
{
  return spouse == CoupleRecords::Spouse::kWife ? "Spouse1ID" : "Spouse2ID";
}

QVariant TextOrNull(const QString& text)
{
  return text.isEmpty() ? QVariant() : QVariant(text);
}

void SetDate(Recordset& row, const QVariant& month, const PartialDate& wedding)
{
  row.Fields(QStringLiteral("AnnMonth")).SetValue(month);
  row.Fields(QStringLiteral("AnnDate")).SetValue(TextOrNull(wedding.day));
  row.Fields(QStringLiteral("AnnYear")).SetValue(TextOrNull(wedding.year));
}

void CopyDate(Recordset& person, const PartialDate& wedding)
{
  person.Edit();
  SetDate(person, TextOrNull(wedding.month), wedding);
  person.Update();
}

void CopyPerson(Recordset& couple, const QString& spouse, Recordset& person)
{
  couple.Fields(spouse + QStringLiteral("First")).SetValue(person.Fields(QStringLiteral("FirstName")).Value());
  couple.Fields(spouse + QStringLiteral("Last")).SetValue(person.Fields(QStringLiteral("LastName")).Value());
  couple.Fields(spouse + QStringLiteral("ID")).SetValue(person.Fields(QStringLiteral("PeopleID")).Value());
}

// Those of a gender who have a wedding date.
std::vector<int> DatedPeople(Recordset& people, const QString& gender)
{
  std::vector<int> dated;
  for (; !people.Eof(); people.MoveNext()) {
    const auto isKnown = [&](const char* column) { return !people.Fields(QLatin1String(column)).Peek().isNull(); };
    if (std::any_of(kDateColumns.begin(), kDateColumns.end(), isKnown) &&
        people.Fields(QStringLiteral("Gender")).Peek().toString() == gender) {
      dated.push_back(people.Fields(QStringLiteral("PeopleID")).Peek().toInt());
    }
  }
  return dated;
}

}

CoupleRecords::CoupleRecords() : database_(DBEngine::OpenDatabase()), couples_(OpenTable("Ann")) {}

std::unique_ptr<Recordset> CoupleRecords::OpenTable(const char* name)
{
  return database_.OpenRecordset(QLatin1String(name), Database::kTable);
}

CoupleRecords::Partners CoupleRecords::People()
{
  const auto people = database_.OpenRecordset(Queries::kPartners, Database::kDynaset);
  const Field& gender = people->Fields(QStringLiteral("Gender"));
  const Field& name = people->Fields(QStringLiteral("Fullname"));
  const Field& key = people->Fields(QStringLiteral("PeopleID"));
  Partners partners;
  for (; !people->Eof(); people->MoveNext()) {
    const QString of = gender.Peek().toString();
    if (of != QLatin1String("Female") && of != QLatin1String("Male")) {
      continue;
    }
    KeyedLines& listed = of == QLatin1String("Female") ? partners.women : partners.men;
    listed.lines.append(name.Peek().toString());
    listed.keys.push_back(key.Peek().toInt());
  }
  return partners;
}

KeyedLines CoupleRecords::All()
{
  const auto couples = OpenTable("Ann");
  KeyedLines listed;
  for (; !couples->Eof(); couples->MoveNext()) {
    listed.lines.append(couples->Fields(QStringLiteral("Spouse1First")).Peek().toString() + QStringLiteral(" and ") +
                        couples->Fields(QStringLiteral("Spouse2First")).Peek().toString());
    listed.keys.push_back(couples->Fields(QStringLiteral("AnnID")).Peek().toInt());
  }
  return listed;
}

PartialDate CoupleRecords::WeddingOf(int personID)
{
  const auto people = OpenTable("People");
  if (!Couples::Find(*people, "PrimaryKey", personID)) {
    return {};
  }
  const auto text = [&](const char* column) { return people->Fields(QLatin1String(column)).Value().toString(); };
  return {text("AnnMonth"), text("AnnDate"), text("AnnYear")};
}

bool CoupleRecords::GoToCoupleOf(Spouse spouse, int personID)
{
  return Couples::Find(*couples_, KeyColumn(spouse), personID);
}

int CoupleRecords::CurrentAnnID() const
{
  int key = 0;
  Attempt([&] { key = couples_->Fields(QStringLiteral("AnnID")).Value().toInt(); });
  return key;
}

int CoupleRecords::CurrentSpouseID(Spouse spouse) const
{
  int key = 0;
  Attempt([&] { key = couples_->Fields(QLatin1String(KeyColumn(spouse))).Value().toInt(); });
  return key;
}

std::vector<int> CoupleRecords::CouplesOfEither(int wifeID, int husbandID)
{
  std::vector<int> found;
  for (const auto& [spouse, key] : {std::pair(Spouse::kWife, wifeID), std::pair(Spouse::kHusband, husbandID)}) {
    if (GoToCoupleOf(spouse, key)) {
      found.push_back(CurrentAnnID());
    }
  }
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

CoupleRecords::Outcome CoupleRecords::Write(int wifeID, int husbandID, const PartialDate& wedding)
{
  try {
    const auto wife = OpenTable("People");
    const auto husband = OpenTable("People");
    if (!Couples::Find(*wife, "PrimaryKey", wifeID) || !Couples::Find(*husband, "PrimaryKey", husbandID)) {
      return Outcome::kFailed;
    }
    WriteCouple(*wife, *husband, wedding);
    CopyDate(*wife, wedding);
    CopyDate(*husband, wedding);
    ClearStaleDates();
    Couples::ConvertBlanks(database_);
    Command::Settle();
  } catch (const RuntimeError& error) {
    Attempt([this] { couples_->CancelUpdate(); });
    Command::Abandon();
    return error.Number() == StoreError::kDuplicate ? Outcome::kAlreadyMarried : Outcome::kFailed;
  }
  return Outcome::kWritten;
}

// If each of the two is in a couple of their own, the first to be changed is refused.
void CoupleRecords::WriteCouple(Recordset& wife, Recordset& husband, const PartialDate& wedding)
{
  const int wifeID = wife.Fields(QStringLiteral("PeopleID")).Value().toInt();
  const int husbandID = husband.Fields(QStringLiteral("PeopleID")).Value().toInt();
  const std::vector<int> found = CouplesOfEither(wifeID, husbandID);
  for (const int annID : found) {
    Couples::Find(*couples_, "PrimaryKey", annID);
    couples_->Edit();
    SetColumns(wife, husband, wedding);
  }
  if (found.empty()) {
    couples_->AddNew();
    SetColumns(wife, husband, wedding);
  }
  GoToCoupleOf(Spouse::kWife, wifeID);
}

// A month that is left open is written as it stands, and made Null with all others.
void CoupleRecords::SetColumns(Recordset& wife, Recordset& husband, const PartialDate& wedding)
{
  CopyPerson(*couples_, QStringLiteral("Spouse1"), wife);
  CopyPerson(*couples_, QStringLiteral("Spouse2"), husband);
  SetDate(*couples_, wedding.month, wedding);
  couples_->Update();
}

// Takes the date away from those who were replaced in their couple.
void CoupleRecords::ClearStaleDates()
{
  const auto couples = OpenTable("Ann");
  const auto people = OpenTable("People");
  for (const auto& [gender, spouse] : {std::pair("Female", Spouse::kWife), std::pair("Male", Spouse::kHusband)}) {
    const auto listed = database_.OpenRecordset(Queries::kPartners, Database::kDynaset);
    for (const int person : DatedPeople(*listed, QLatin1String(gender))) {
      if (!Couples::Find(*couples, KeyColumn(spouse), person)) {
        Couples::ForgetWedding(*people, person);
      }
    }
  }
}

bool CoupleRecords::Delete(int annID)
{
  const bool deleted = Attempt([&] {
    Couples::Find(*couples_, "PrimaryKey", annID);
    const int wifeID = CurrentSpouseID(Spouse::kWife);
    const int husbandID = CurrentSpouseID(Spouse::kHusband);
    couples_->Delete();
    const auto people = OpenTable("People");
    Couples::ForgetWedding(*people, wifeID);
    Couples::ForgetWedding(*people, husbandID);
    Couples::ConvertBlanks(database_);
    Command::Settle();
  });
  if (!deleted) {
    Command::Abandon();
  }
  return deleted;
}
