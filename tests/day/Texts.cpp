// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Texts.h"

#include <QStringList>

namespace Texts {

QString FirstName(Chance& chance)
{
  static const QStringList names = {"Ann",    "Bob", "Zoë", "Łucja", "Ada", "Jean-Luc",
                                    "O'Hara", "Mia", "Åse", "Иван",  "Jo"};
  return chance.Of(names);
}

QString LastName(Chance& chance)
{
  static const QStringList names = {"Adams",   "Brown", "van der Velde", "O'Neil",           "Müller", "Nowak",
                                    "Ødegård", "Lee",   "de la Cruz",    "Smith \"Smitty\"", "李"};
  return chance.Of(names);
}

QString Word(Chance& chance)
{
  static const QStringList words = {"Dentist", "12 Mill Lane", "Leeds",     "LS1 4AB", "0113 496 0000", "a@example.org",
                                    "Party",   "Ontario",      "call back", "x",       "100 % sure"};
  return chance.Of(words);
}

QString Time(Chance& chance)
{
  static const QStringList times = {"9:30 pm", "9:30PM", "21:30", "9 pm", " 9:30:15 am ", "25:00", "noon", "", "0:00"};
  return chance.Of(times);
}

QString Long(Chance& chance)
{
  QString text;
  const int words = chance.Between(10, 200);
  for (int i = 0; i < words; ++i) {
    text += Word(chance) + (chance.OneIn(9) ? QLatin1Char('\n') : QLatin1Char(' '));
  }
  return text;
}

QString Anything(Chance& chance)
{
  static const QStringList odd = {"",
                                  " ",
                                  "   ",
                                  "'",
                                  "\"",
                                  "'; DROP TABLE People; --",
                                  "%",
                                  "_",
                                  "&Save",
                                  "<b>bold</b>",
                                  "\t",
                                  "🎂🎂",
                                  "e\u0301",
                                  "\u202eabc",
                                  "茶",
                                  "0",
                                  "-1",
                                  "1e9",
                                  "99999999999999999999",
                                  "31",
                                  "February",
                                  "2000",
                                  "a, b",
                                  "\\",
                                  "NULL"};
  switch (chance.Below(8)) {
    case 0:
      return FirstName(chance);
    case 1:
      return LastName(chance);
    case 2:
      return LastName(chance) + ", " + FirstName(chance);
    case 3:
      return Time(chance);
    case 4:
      return Long(chance);
    case 5:
      return Word(chance);
    default:
      return chance.Of(odd);
  }
}

}
