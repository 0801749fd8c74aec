// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RecordPrintingTest.h"

namespace {

const QString kNoRecords = QStringLiteral("There are no records in the database");
const QString kNoItems = QStringLiteral("Please select items to print, such as address, birthday and so on.");
const QString kNoName = QStringLiteral("Please select a name");
const QString kNoOption = QStringLiteral("You must select a printing option");

// No print dialog is expected where a message is.
class RecordPrintingMessages : public RecordPrintingTest
{
protected:
  void ExpectMessage(const QString& text)
  {
    const std::size_t before = boxes.Count();
    boxes.Expect(text);
    Click("lblOptions_10");
    EXPECT_EQ(boxes.Count(), before + 1);
    EXPECT_EQ(dialogs.Count(), 0U);
    EXPECT_TRUE(IsShown("fraPrint"));
  }

  // Presses "Print", with the dialog cancelled and no message.
  void Cancel()
  {
    const std::size_t before = boxes.Count();
    dialogs.ExpectCancel();
    Click("lblOptions_10");
    EXPECT_EQ(boxes.Count(), before);
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(IsShown("fraPrint"));
  }
};

}

TEST_F(RecordPrintingMessages, OfAnEmptyDatabaseComesBeforeAllOthers)
{
  Open();
  Click("lblOptions_1");
  ExpectMessage(kNoRecords);
  Tick("optPrint_0");
  ExpectMessage(kNoRecords);
  Tick("optPrint_1");
  ExpectMessage(kNoRecords);
  Click("lblAll_0");
  ExpectMessage(kNoRecords);
}

TEST_F(RecordPrintingMessages, OfItemsComesBeforeThoseOfNamesAndOptions)
{
  AddAnna();
  Open();
  Click("lblOptions_1");
  ExpectMessage(kNoItems);
  Tick("optPrint_0");
  ExpectMessage(kNoItems);
  ClickName(0);
  ExpectMessage(kNoItems);
  Tick("optPrint_1");
  ExpectMessage(kNoItems);
}

TEST_F(RecordPrintingMessages, OfTheNameComesForOneIndividualWithoutOneWhateverIsTicked)
{
  AddAnna();
  Open();
  Click("lblOptions_1");
  Tick("optPrint_0");
  for (const char* box : kBoxes) {
    Tick(box);
    ExpectMessage(kNoName);
    Tick(box);
  }
}

TEST_F(RecordPrintingMessages, OfTheOptionComesWithoutADialogWithAndWithoutAName)
{
  AddAnna();
  Open();
  Tick("chkInfo_0");
  Click("lblOptions_1");
  ExpectMessage(kNoOption);
  ClickName(0);
  ExpectMessage(kNoOption);
}

TEST_F(RecordPrintingMessages, NoneComesForACancelledDialogAndTheNextPrintingWorks)
{
  const int anna = AddAnna();
  AddPerson("Bess", "Wood");
  Open();
  Tick("chkInfo_0");
  Click("lblOptions_1");
  ClickName(0);
  Tick("optPrint_0");
  Tick("chkDate");
  Cancel();
  EXPECT_EQ(modID::SelectedPersonID, anna);
  EXPECT_TRUE(IsTicked("optPrint_0") && IsTicked("chkDate") && IsTicked("chkInfo_0"));
  EXPECT_EQ(Lines(Print()), "November 05, 2026|Anna Wood|Home phone: 555-1000");
  EXPECT_EQ(modID::SelectedPersonID, anna);

  QFile::remove(path);
  Tick("optPrint_1");
  Cancel();
  EXPECT_EQ(modID::SelectedPersonID, 0);
  EXPECT_TRUE(IsTicked("optPrint_1") && IsTicked("chkDate") && IsTicked("chkInfo_0"));
  EXPECT_EQ(Lines(Print()), "November 05, 2026|Anna Wood|Home phone: 555-1000|Bess Wood|Home phone: unavailable");
}

TEST_F(RecordPrintingMessages, NoneComesForAFileThatCannotBeWrittenAndTheNextPrintingWorks)
{
  AddAnna();
  Open();
  Tick("chkInfo_0");
  Click("lblOptions_1");
  ClickName(0);
  const QString gone = output.filePath("gone");
  for (const char* option : {"optPrint_0", "optPrint_1"}) {
    Tick(option);
    ASSERT_TRUE(QDir().mkdir(gone));
    // Gone between the dialog's check of the file and the printing.
    dialogs.ExpectPdf(gone + "/list.pdf", QPageSize::A4, [gone](QPrintDialog& dialog) {
      QObject::connect(&dialog, &QDialog::accepted, &dialog, [gone] { EXPECT_TRUE(QDir().rmdir(gone)); });
    });
    const std::size_t before = boxes.Count();
    Click("lblOptions_10");
    EXPECT_EQ(boxes.Count(), before) << option;
    EXPECT_FALSE(QDir(gone).exists());
    EXPECT_TRUE(IsShown("fraPrint"));
    ClickName(0);
    EXPECT_EQ(Lines(Print()), "Anna Wood|Home phone: 555-1000") << option;
  }
}

TEST_F(RecordPrintingMessages, PrintingLeavesThePanelAsItIsAndExitClearsIt)
{
  AddAnna();
  Open();
  Tick("chkInfo_0");
  Click("lblOptions_1");
  EXPECT_EQ(Control("lblOptions_1").toolTip(), "Print lists of selected information");
  Tick("chkDate");
  PrintOne();
  EXPECT_TRUE(IsShown("fraPrint"));
  EXPECT_TRUE(IsTicked("optPrint_0"));
  EXPECT_TRUE(IsTicked("chkDate"));
  EXPECT_TRUE(IsTicked("chkInfo_0"));
  Click("lblOptions_5");
  EXPECT_FALSE(IsShown("fraPrint"));
  Click("lblOptions_1");
  EXPECT_TRUE(IsShown("fraPrint"));
  EXPECT_FALSE(IsTicked("optPrint_0"));
  EXPECT_FALSE(IsTicked("optPrint_1"));
  EXPECT_FALSE(IsTicked("chkDate"));
  EXPECT_TRUE(IsTicked("chkInfo_0"));
}
