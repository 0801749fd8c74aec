// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Resources.h"

#include "support/Heap.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QWidget>

#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" void __sanitizer_print_memory_profile(std::size_t percent, std::size_t most);
#endif

namespace {

constexpr double kMegabyte = 1 << 20;

// With a style sheet the toolkit keeps somewhat less than a kilobyte of each list or box that has
// gone, until its place in memory is given out again, and it keeps what it has drawn, such as
// letters and pictures, up to limits of its own. A page that did not go would be far more by the
// end of a day.
constexpr qint64 kHeapToSpare = 8 << 20;
constexpr int kObjectsToSpare = 80;
constexpr int kDescriptorsToSpare = 2;

qint64 Resident()
{
  QFile file(QStringLiteral("/proc/self/statm"));
  return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) : 0;
}

int Entries(const QString& folder)
{
  return static_cast<int>(QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

int Objects()
{
  auto count = static_cast<int>(qApp->findChildren<QObject*>().size());
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    count += 1 + static_cast<int>(window->findChildren<QObject*>().size());
  }
  return count;
}

QString Grown(const char* what, qint64 before, qint64 now, qint64 toSpare)
{
  return now <= before + toSpare ? QString() : QStringLiteral("%1 from %2 to %3; ").arg(what).arg(before).arg(now);
}

}

Resources Resources::Now()
{
  return {.heap = Heap::BytesInUse(),
          .resident = Resident(),
          .objects = Objects(),
          .widgets = static_cast<int>(QApplication::allWidgets().size()),
          .windows = static_cast<int>(QApplication::topLevelWidgets().size()),
          .descriptors = Entries(QStringLiteral("/proc/self/fd")),
          .threads = Entries(QStringLiteral("/proc/self/task"))};
}

void Resources::ListHeap()
{
#ifdef __SANITIZE_ADDRESS__
  constexpr std::size_t kPercent = 90;
  constexpr std::size_t kMostPlaces = 40;
  __sanitizer_print_memory_profile(kPercent, kMostPlaces);
#endif
}

QString Resources::Heading()
{
  return QStringLiteral("  heap MB  memory MB  objects  widgets  windows  files  threads");
}

QString Resources::Text() const
{
  return QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
      .arg(static_cast<double>(heap) / kMegabyte, 9, 'f', 2)
      .arg(static_cast<double>(resident) / kMegabyte, 10, 'f', 1)
      .arg(objects, 8)
      .arg(widgets, 8)
      .arg(windows, 8)
      .arg(descriptors, 6)
      .arg(threads, 8);
}

QString Resources::GrownSince(const Resources& before) const
{
  return Grown("heap", before.heap, heap, kHeapToSpare) + Grown("objects", before.objects, objects, kObjectsToSpare) +
         Grown("widgets", before.widgets, widgets, kObjectsToSpare) +
         Grown("windows", before.windows, windows, kDescriptorsToSpare) +
         Grown("open files", before.descriptors, descriptors, kDescriptorsToSpare) +
         Grown("threads", before.threads, threads, kDescriptorsToSpare);
}
