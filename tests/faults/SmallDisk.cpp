// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SmallDisk.h"

#include <QFile>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

SmallDisk::SmallDisk()
{
  mounted_ = unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
             mount("none", Path().constData(), "tmpfs", 0, "size=32m,mode=0755") == 0;
}

SmallDisk::~SmallDisk()
{
  if (mounted_) {
    umount2(Path().constData(), MNT_DETACH);
  }
}

void SmallDisk::Fill(qint64 room) const
{
  struct statvfs disk = {};
  ASSERT_EQ(statvfs(Path().constData(), &disk), 0);
  const auto free = static_cast<qint64>(disk.f_bavail * disk.f_frsize);
  const int file = open(QFile::encodeName(Filler()).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  EXPECT_EQ(posix_fallocate(file, 0, free - room), 0);
  close(file);
}

void SmallDisk::Empty() const
{
  QFile::remove(Filler());
}
