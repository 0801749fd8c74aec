// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/PresetTitles.h"

#include "platform/App.h"
#include "platform/Files.h"

#include <QStringConverter>

#include <algorithm>

namespace PresetTitles {
namespace {

constexpr qsizetype kLongest = 255;
constexpr QChar kQuote = u'"';

QString Decoded(const QByteArray& contents)
{
  // Stateless, so that a character that is cut off at the end is an error too.
  QStringDecoder unicode(QStringConverter::encodingForData(contents).value_or(QStringConverter::Utf8),
                         QStringConverter::Flag::Stateless);
  QString text = unicode.decode(contents);
  if (!unicode.hasError()) {
    return text;
  }
  QStringDecoder western("windows-1252");
  return western.isValid() ? QString(western.decode(contents)) : QString::fromLatin1(contents);
}

bool EndsLine(QChar character)
{
  return character == u'\n' || character == u'\r';
}

bool EndsField(QChar character)
{
  return character == u',' || EndsLine(character);
}

bool EndsQuotes(QChar character)
{
  return character == kQuote || EndsLine(character);
}

// Reads the fields of a text one after the other.
class FieldReader
{
public:
  explicit FieldReader(QStringView text) : rest_(text) {}

  [[nodiscard]] bool AtEnd() const { return rest_.isEmpty(); }

  QString Next()
  {
    Take([](QChar character) { return !character.isSpace() || EndsLine(character); });
    const QString quoted = TakeQuoted();
    const QStringView plain = Take(EndsField).trimmed();
    Drop();
    return quoted + plain.toString();
  }

private:
  void Drop() { rest_ = rest_.mid(1); }

  QStringView Take(bool (*ends)(QChar))
  {
    const auto* const end = std::find_if(rest_.begin(), rest_.end(), ends);
    const QStringView taken = rest_.first(end - rest_.begin());
    rest_ = rest_.sliced(taken.size());
    return taken;
  }

  // What stands in quotes, at most to the end of the line. Two quotes within are one.
  QString TakeQuoted()
  {
    QString taken;
    for (bool again = false; rest_.startsWith(kQuote); again = true) {
      taken += again ? QStringLiteral("\"") : QString();
      Drop();
      taken += Take(EndsQuotes);
      if (rest_.startsWith(kQuote)) {
        Drop();
      }
    }
    return taken;
  }

  QStringView rest_;
};

}

QStringList Read()
{
  return In(Files::ReadFile(App::File(QStringLiteral("/reminders.txt"))));
}

QStringList In(const QByteArray& contents)
{
  const QString text = Decoded(contents);
  QStringList titles;
  for (FieldReader fields(text); !fields.AtEnd();) {
    const QString title = fields.Next();
    if (!title.trimmed().isEmpty() && title.size() <= kLongest) {
      titles.append(title);
    }
  }
  return titles;
}

}
