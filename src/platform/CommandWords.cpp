// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CommandWords.h"

namespace {

class Splitter
{
public:
  explicit Splitter(const QString& command)
  {
    for (const QChar character : command) {
      Take(character);
    }
    EndWord();
  }

  [[nodiscard]] QStringList Words() const { return quote_.isNull() && !isEscaped_ ? words_ : QStringList(); }

private:
  void Take(QChar character)
  {
    if (isEscaped_) {
      Add(character);
      isEscaped_ = false;
    } else if (character == u'\\' && quote_ != u'\'') {
      isEscaped_ = true;
    } else if (!quote_.isNull()) {
      TakeQuoted(character);
    } else if (character == u'"' || character == u'\'') {
      quote_ = character;
      hasWord_ = true;
    } else if (character.isSpace()) {
      EndWord();
    } else {
      Add(character);
    }
  }

  void TakeQuoted(QChar character)
  {
    if (character == quote_) {
      quote_ = QChar();
    } else {
      Add(character);
    }
  }

  void Add(QChar character)
  {
    word_ += character;
    hasWord_ = true;
  }

  void EndWord()
  {
    if (hasWord_) {
      words_.append(word_);
    }
    word_.clear();
    hasWord_ = false;
  }

  QStringList words_;
  QString word_;
  QChar quote_;
  bool hasWord_ = false;
  bool isEscaped_ = false;
};

}

QStringList CommandWords(const QString& command)
{
  return Splitter(command).Words();
}
