// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "OccasionPrintingTest.h"
#include "support/HeldDatabase.h"

#include <optional>

namespace {

constexpr int kMay = 4;

class OccasionPrintingMessages : public OccasionPrintingTest
{
protected:
  // No print dialog comes with a message.
  void ExpectMessage(const QString& text)
  {
    const std::size_t before = boxes.Count();
    boxes.Expect(text);
    Click("lblOptions_2");
    EXPECT_EQ(boxes.Count(), before + 1);
    EXPECT_EQ(dialogs.Count(), 0U);
    EXPECT_TRUE(IsShown("fraPrint"));
  }

  // Presses "Print" where nothing is to be said.
  void PrintSilently()
  {
    const std::size_t before = boxes.Count();
    Click("lblOptions_2");
    EXPECT_EQ(boxes.Count(), before);
    EXPECT_TRUE(IsShown("fraPrint"));
  }
};

const char* const kMayLines = "May|Birthdays: May 9 - Ann Wood|Anniversaries: No anniversaries this month";

}

TEST_F(OccasionPrintingMessages, OfNoPeopleComesFirstEvenWithCouples)
{
  AddCouple("Ada", "Bob", "May", "8");
  OpenOn(kMay);
  ExpectMessage("There are no records in the database");
  Tick(kSelectedMonth);
  ExpectMessage("There are no records in the database");
  Tick(kAllMonths);
  ExpectMessage("There are no records in the database");
}

TEST_F(OccasionPrintingMessages, OfTheOptionComesWithoutADialog)
{
  AddPerson("Ann", "May", "9");
  OpenOn(kMay);
  ExpectMessage("You must select a printing option");
  Tick("chkDate");
  Tick("chkAgeAnn");
  ExpectMessage("You must select a printing option");
}

TEST_F(OccasionPrintingMessages, NoneComesForACancelledDialogAndTheNextPrintingWorks)
{
  AddPerson("Ann", "May", "9");
  OpenOn(kMay);
  for (const QString& option : {kAllMonths, kSelectedMonth}) {
    Tick(option);
    dialogs.ExpectCancel();
    PrintSilently();
    EXPECT_TRUE(IsTicked(option));
    EXPECT_FALSE(QFile::exists(path));
  }
  EXPECT_EQ(AllLines(Print()), kMayLines);
}

TEST_F(OccasionPrintingMessages, NoneComesForAFileThatCannotBeWrittenAndTheNextPrintingWorks)
{
  AddPerson("Ann", "May", "9");
  OpenOn(kMay);
  Tick(kSelectedMonth);
  const QString gone = output.filePath("gone");
  ASSERT_TRUE(QDir().mkdir(gone));
  // Gone between the dialog's check of the file and the printing.
  dialogs.ExpectPdf(gone + "/list.pdf", QPageSize::A4, [gone](QPrintDialog& dialog) {
    QObject::connect(&dialog, &QDialog::accepted, &dialog, [gone] { EXPECT_TRUE(QDir().rmdir(gone)); });
  });
  PrintSilently();
  EXPECT_FALSE(QDir(gone).exists());
  EXPECT_EQ(AllLines(Print()), kMayLines);
}

TEST_F(OccasionPrintingMessages, NoneComesForADateThatIsNoneAndWhatIsPrintedStays)
{
  AddPerson("Ann", "May", "9");
  AddPerson("Bess", "February", "1");
  AddPerson("Cora", "February", "31", "1990");
  OpenOn(kMay);
  Tick(kAllMonths);
  for (const char* ages : {"chkAgeAnn", "chkAgeAnn"}) {
    QFile::remove(path);
    dialogs.ExpectPdf(path);
    PrintSilently();
    EXPECT_EQ(AllLines(PrintedPages(path)),
              "January|Birthdays: No birthdays this month|Anniversaries: No anniversaries this month|"
              "February|Birthdays: February 1 - Bess Wood");
    Tick(ages);
  }
  EXPECT_EQ(AllLines(PrintWith(kSelectedMonth)), kMayLines);
}

TEST_F(OccasionPrintingMessages, NoneComesForAWeddingDayThatIsNone)
{
  AddPerson("Ann", "May", "9");
  AddCouple("Ada", "Bob", "May", "32", "1990");
  OpenOn(kMay);
  Tick(kSelectedMonth);
  dialogs.ExpectPdf(path);
  PrintSilently();
  EXPECT_EQ(AllLines(PrintedPages(path)), "May|Birthdays: May 9 - Ann Wood");
}

TEST_F(OccasionPrintingMessages, NoneComesForALockedDatabaseAndTheNextPrintingWorks)
{
  AddPerson("Ann", "May", "9");
  OpenOn(kMay);
  for (const QString& option : {kAllMonths, kSelectedMonth}) {
    Tick(option);
    const DatabaseTaken taken(folder.DatabasePath());
    PrintSilently();
    EXPECT_EQ(dialogs.Count(), 0U);
    EXPECT_TRUE(IsTicked(option));
  }
  EXPECT_EQ(AllLines(Print()), kMayLines);
}

TEST_F(OccasionPrintingMessages, NoneComesForADatabaseLockedMeanwhileAndTheNextPrintingWorks)
{
  AddPerson("Ann", "May", "9");
  OpenOn(kMay);
  Tick(kSelectedMonth);
  std::optional<DatabaseTaken> taken;
  // Locked between the dialog and the printing.
  dialogs.ExpectPdf(path, QPageSize::A4, [&](QPrintDialog& dialog) {
    QObject::connect(&dialog, &QDialog::accepted, &dialog, [&] { taken.emplace(folder.DatabasePath()); });
  });
  PrintSilently();
  ASSERT_TRUE(taken.has_value());
  EXPECT_EQ(AllLines(PrintedPages(path)), "May");
  taken.reset();
  EXPECT_EQ(AllLines(Print()), kMayLines);
}
