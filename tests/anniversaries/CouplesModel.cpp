// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CouplesModel.h"

namespace {

std::string Row(const QStringList& texts)
{
  QStringList shown = texts;
  for (QString& text : shown) {
    if (text.isEmpty()) {
      text = "-";
    }
  }
  return shown.join('|').toStdString();
}

}

int CouplesModel::AddPerson(const Person& person)
{
  people_[++lastPerson_] = person;
  return lastPerson_;
}

void CouplesModel::DeletePerson(int person)
{
  couples_.erase(CoupleOf(person));
  people_.erase(person);
}

bool CouplesModel::Marry(int wife, int husband, const Day& day)
{
  const int wifes = CoupleOf(wife);
  const int husbands = CoupleOf(husband);
  if (wifes != 0 && husbands != 0 && wifes != husbands) {
    return false;
  }
  const int changed = wifes != 0 ? wifes : husbands;
  couples_[changed != 0 ? changed : ++lastCouple_] = {wife, husband, day};
  return true;
}

int CouplesModel::CoupleOf(int person) const
{
  for (const auto& [key, couple] : couples_) {
    if (couple.wife == person || couple.husband == person) {
      return key;
    }
  }
  return 0;
}

int CouplesModel::PartnerOf(int person) const
{
  const auto found = couples_.find(CoupleOf(person));
  if (found == couples_.end()) {
    return 0;
  }
  return found->second.wife == person ? found->second.husband : found->second.wife;
}

Day CouplesModel::DayOf(int person) const
{
  const auto found = couples_.find(CoupleOf(person));
  return found == couples_.end() ? kNoDay : found->second.day;
}

int CouplesModel::PersonNamed(const QString& first) const
{
  for (const auto& [key, person] : people_) {
    if (person.first == first) {
      return key;
    }
  }
  return 0;
}

std::vector<int> CouplesModel::People(bool women) const
{
  std::vector<int> keys;
  for (const auto& [key, person] : people_) {
    if (person.isWoman == women) {
      keys.push_back(key);
    }
  }
  return keys;
}

std::vector<int> CouplesModel::Singles(bool women) const
{
  std::vector<int> keys = People(women);
  std::erase_if(keys, [this](int key) { return CoupleOf(key) != 0; });
  return keys;
}

QString CouplesModel::LineOf(const Couple& couple) const
{
  return people_.at(couple.wife).first + " and " + people_.at(couple.husband).first;
}

std::vector<std::string> CouplesModel::PeopleRows() const
{
  std::vector<std::string> rows;
  for (const auto& [key, person] : people_) {
    const Day day = DayOf(key);
    rows.push_back(Row({QString::number(key), person.first, person.last, person.isWoman ? "Female" : "Male",
                        person.notes, day.month, day.day, day.year}));
  }
  return rows;
}

std::vector<std::string> CouplesModel::CoupleRows() const
{
  std::vector<std::string> rows;
  for (const auto& [key, couple] : couples_) {
    const Person& wife = people_.at(couple.wife);
    const Person& husband = people_.at(couple.husband);
    rows.push_back(
        Row({QString::number(key), QString::number(couple.wife), wife.first, wife.last, QString::number(couple.husband),
             husband.first, husband.last, couple.day.month, couple.day.day, couple.day.year}));
  }
  return rows;
}

std::vector<std::string> CouplesModel::TotalRows() const
{
  std::map<std::string, int> totals;
  for (const auto& [key, couple] : couples_) {
    if (!couple.day.month.isEmpty()) {
      ++totals[couple.day.month.left(3).toStdString()];
    }
  }
  std::vector<std::string> rows;
  for (const auto& [month, total] : totals) {
    rows.push_back(month + '|' + std::to_string(total));
  }
  return rows;
}
