// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/KeyFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

KeyFile FileOf(const QByteArray& content)
{
  QTemporaryDir folder;
  QFile file(folder.filePath("keys"));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(content);
  file.close();
  return KeyFile(file.fileName());
}

}

TEST(KeyFile, ValuesAreFoundByTheirGroupAndKey)
{
  const KeyFile file = FileOf(
      "Key=before any group\n# [Comment]\n\n[First]\nKey=one\nOther = with blanks \nEmpty=\n#Key=comment\n"
      "[Second Group]\nKey=a=b;c\nKey[de]=translated\nno value\n=no key\n");
  EXPECT_EQ(file.Value("First", "Key"), "one");
  EXPECT_EQ(file.Value("First", "Other"), "with blanks");
  EXPECT_EQ(file.Value("First", "Empty"), "");
  EXPECT_EQ(file.Value("Second Group", "Key"), "a=b;c");
  EXPECT_EQ(file.Value("Second Group", "Key[de]"), "translated");
  EXPECT_EQ(file.Value("Second Group", "Other"), "");
  EXPECT_EQ(file.Value("Third", "Key"), "");
}

TEST(KeyFile, AListIsPartedBySemicolons)
{
  const KeyFile file = FileOf("[A]\nOne=x\nTwo=x;y;\nGaps=;x;;y\nNone=\n");
  EXPECT_EQ(file.Values("A", "One"), (QStringList{"x"}));
  EXPECT_EQ(file.Values("A", "Two"), (QStringList{"x", "y"}));
  EXPECT_EQ(file.Values("A", "Gaps"), (QStringList{"x", "y"}));
  EXPECT_EQ(file.Values("A", "None"), QStringList());
  EXPECT_EQ(file.Values("A", "Missing"), QStringList());
}

TEST(KeyFile, OnlyTheWordTrueIsTrue)
{
  const KeyFile file = FileOf("[A]\nYes=true\nNo=false\nOne=1\n");
  EXPECT_TRUE(file.IsTrue("A", "Yes"));
  EXPECT_FALSE(file.IsTrue("A", "No"));
  EXPECT_FALSE(file.IsTrue("A", "One"));
  EXPECT_FALSE(file.IsTrue("A", "Missing"));
}

TEST(KeyFile, AFileThatCannotBeReadIsEmpty)
{
  EXPECT_EQ(KeyFile("/nowhere/at/all").Value("A", "B"), "");
  EXPECT_EQ(FileOf(QByteArray("[A\nB=c\n\0\xFF\xFE]=", 12)).Value("X", "B"), "");
}
