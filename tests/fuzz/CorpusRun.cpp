// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Feeds a target every file of its corpus, and seeded mutations of them:
// fuzz_X CORPUS MUTATIONS [SEED]. The input at hand is kept in "fuzz_X.last", for a
// process that does not come to its end.

#include "FuzzTarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <random>
#include <vector>

namespace {

class Mutator
{
public:
  Mutator(const std::vector<QByteArray>& corpus, unsigned seed) : corpus_(corpus), random_(seed) {}

  QByteArray Next()
  {
    QByteArray input = Pick();
    for (int changes = Below(4) + 1; changes > 0; --changes) {
      Change(input);
    }
    return input;
  }

private:
  int Below(qsizetype limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  const QByteArray& Pick() { return corpus_[static_cast<std::size_t>(Below(static_cast<qsizetype>(corpus_.size())))]; }

  void Change(QByteArray& input)
  {
    const qsizetype place = Below(input.size() + 1);
    const qsizetype length = Below(16) + 1;
    switch (Below(6)) {
      case 0:
        input.truncate(place);
        break;
      case 1:
        input.remove(place, length);
        break;
      case 2:
        input.insert(place, Pick().mid(Below(8), length));
        break;
      case 3:
        input.replace(place, length, QByteArray(length, static_cast<char>(Below(256))));
        break;
      case 4:
        input = input.left(place) + Pick().mid(place);
        break;
      default:
        FlipBit(input, place);
    }
  }

  void FlipBit(QByteArray& input, qsizetype place)
  {
    if (place < input.size()) {
      input[place] = static_cast<char>(input[place] ^ (1 << Below(8)));
    }
  }

  const std::vector<QByteArray>& corpus_;
  std::mt19937 random_;
};

std::vector<QByteArray> Read(const QDir& folder)
{
  std::vector<QByteArray> corpus;
  for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
    QFile file(folder.filePath(name));
    if (file.open(QIODevice::ReadOnly)) {
      corpus.push_back(file.readAll());
    }
  }
  return corpus;
}

// One input, written down first.
void Try(QFile& last, const QByteArray& input)
{
  last.seek(0);
  last.write(input);
  last.resize(input.size());
  last.flush();
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                         static_cast<std::size_t>(input.size()));
}

}

// The toolkit's font and theme libraries keep memory to the end on purpose.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
  return "detect_leaks=0";
}

int main(int count, char** arguments)
{
  const std::vector<QByteArray> corpus =
      count > 2 ? Read(QDir(QString::fromLocal8Bit(arguments[1]))) : std::vector<QByteArray>();
  QFile last(QFileInfo(QString::fromLocal8Bit(arguments[0])).fileName() + QStringLiteral(".last"));
  if (corpus.empty() || !last.open(QIODevice::WriteOnly)) {
    std::fprintf(stderr, "usage: %s CORPUS MUTATIONS [SEED]\n", arguments[0]);
    return EXIT_FAILURE;
  }
  for (const QByteArray& input : corpus) {
    Try(last, input);
  }
  const int mutations = QByteArray(arguments[2]).toInt();
  Mutator mutator(corpus, count > 3 ? QByteArray(arguments[3]).toUInt() : 1U);
  for (int i = 0; i < mutations; ++i) {
    Try(last, mutator.Next());
  }
  last.remove();
  std::printf("%zu inputs of the corpus, %d mutations\n", corpus.size(), mutations);
  return EXIT_SUCCESS;
}
