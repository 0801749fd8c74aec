// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/DateBoxes.h"

#include "controls/ComboBox.h"
#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>

namespace {

class DateBoxesTest : public testing::Test
{
protected:
  void WriteMonths(const QByteArray& contents) const
  {
    QFile file(folder.File("/months.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
  }

  std::string Lines()
  {
    QStringList lines;
    for (int i = 0; i < box.ListCount(); ++i) {
      lines.append(box.List(i));
    }
    return lines.join(u'|').toStdString();
  }

  ProgramFolder folder;
  ComboBox box;
  QSignalSpy clicks{&box, &ComboBox::Click};
};

}

TEST_F(DateBoxesTest, MonthsAreThoseOfTheYear)
{
  DateBoxes::FillMonths(box);
  EXPECT_EQ(Lines(), "January|February|March|April|May|June|July|August|September|October|November|December");
}

TEST_F(DateBoxesTest, MonthsAreTheLinesOfTheFile)
{
  WriteMonths("Vendémiaire\r\nBrumaire\r\nFrimaire");
  DateBoxes::FillMonths(box);
  EXPECT_EQ(Lines(), "Vendémiaire|Brumaire|Frimaire");
}

TEST_F(DateBoxesTest, MonthsNeedTheirFile)
{
  ASSERT_TRUE(QFile::remove(folder.File("/months.txt")));
  EXPECT_EQ(ErrorOf([&] { DateBoxes::FillMonths(box); }), ErrorNumber::kFileNotFound);
  EXPECT_EQ(box.ListCount(), 0);
}

TEST_F(DateBoxesTest, DaysAreThoseOfTheLongestMonth)
{
  DateBoxes::FillDays(box);
  ASSERT_EQ(box.ListCount(), 31);
  for (int day = 1; day <= 31; ++day) {
    EXPECT_EQ(box.List(day - 1), QString::number(day));
  }
}

TEST_F(DateBoxesTest, YearsAreThoseOfTheProgram)
{
  DateBoxes::FillYears(box);
  ASSERT_EQ(box.ListCount(), 151);
  for (int year = 1900; year <= 2050; ++year) {
    EXPECT_EQ(box.List(year - 1900), QString::number(year));
  }
}

TEST_F(DateBoxesTest, NothingIsChosen)
{
  for (const ComboBox::TypingKind typing : {ComboBox::Listed, ComboBox::BackspaceOnly}) {
    for (void (*fill)(ComboBox&) : {DateBoxes::FillMonths, DateBoxes::FillDays, DateBoxes::FillYears}) {
      box.Clear();
      box.SetTyping(typing);
      fill(box);
      EXPECT_EQ(box.ListIndex(), -1);
      EXPECT_EQ(box.Text(), QString());
    }
  }
  EXPECT_EQ(clicks.count(), 0);
}
