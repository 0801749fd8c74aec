// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Verdict.h"

#include <QRegularExpression>

namespace Verdict {
namespace {

const QString kBox = QStringLiteral("box: ");

QStringList BoxesOf(const Apart::Outcome& outcome)
{
  return outcome.said.filter(QRegularExpression(u'^' + kBox));
}

// The number of the failure that ended the program; empty if it did not say.
QString NumberIn(const QStringList& boxes)
{
  static const QRegularExpression number(QStringLiteral("^box: Run-time error '([0-9]+)':  [^ ].+"));
  return boxes.isEmpty() ? QString() : number.match(boxes.last()).captured(1);
}

bool TellsSomething(const QString& box)
{
  constexpr qsizetype kLongest = 1200;
  const QString text = box.mid(kBox.size());
  const auto isOdd = [](QChar c) { return c.category() == QChar::Other_Control || c == QChar::ReplacementCharacter; };
  return !text.trimmed().isEmpty() && text.size() < kLongest && std::none_of(text.begin(), text.end(), isOdd);
}

}

QString Of(const Apart::Outcome& outcome)
{
  switch (outcome.end) {
    case Apart::End::kCrashed:
      return QStringLiteral("crashed");
    case Apart::End::kHung:
      return QStringLiteral("hung");
    case Apart::End::kStopped:
      return QStringLiteral("stopped with ") + NumberIn(BoxesOf(outcome));
    case Apart::End::kWell:
      break;
  }
  const bool spoke = !BoxesOf(outcome).isEmpty() || !outcome.said.filter(QStringLiteral("refused")).isEmpty();
  return spoke ? QStringLiteral("spoke") : QStringLiteral("quiet");
}

QStringList Faults(const Apart::Outcome& outcome)
{
  QStringList faults = outcome.said.filter(QRegularExpression(QStringLiteral("^(written|endless)")));
  if (outcome.end == Apart::End::kCrashed || outcome.end == Apart::End::kHung) {
    faults.append(Of(outcome));
  }
  if (outcome.end == Apart::End::kStopped && NumberIn(BoxesOf(outcome)).isEmpty()) {
    faults.append(QStringLiteral("ended without a message"));
  }
  for (const QString& box : BoxesOf(outcome)) {
    if (!TellsSomething(box)) {
      faults.append(QStringLiteral("a message that tells nothing: ") + box);
    }
  }
  return faults;
}

std::string Story(const Apart::Outcome& outcome)
{
  return (Of(outcome) + QStringLiteral("\n  ") + outcome.said.join(QStringLiteral("\n  "))).toStdString();
}

}
