// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LoadCursor.h"

#include "platform/RuntimeError.h"
#include "support/ProgramFolder.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

namespace {

int NumberThrown(const QString& path)
{
  try {
    static_cast<void>(LoadCursor(path));
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

}

TEST(LoadCursor, TheDeliveredHandPointsWithItsFingertip)
{
  const QCursor hand = LoadCursor(QStringLiteral(QUILLMARK_LAID_FOLDER "/hand.cur"));
  EXPECT_EQ(hand.hotSpot(), QPoint(11, 2));
  EXPECT_EQ(hand.pixmap().size(), QSize(32, 32));
}

TEST(LoadCursor, WhatIsNoCursorIsRefused)
{
  const ProgramFolder folder;
  EXPECT_EQ(NumberThrown(folder.File("/nowhere.cur")), 53);
  const QString text = folder.File("/text.cur");
  QFile file(text);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no cursor");
  file.close();
  EXPECT_EQ(NumberThrown(text), 481);
  const QString picture = folder.File("/picture.png");
  ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32).save(picture));
  EXPECT_EQ(NumberThrown(picture), 481);
}
