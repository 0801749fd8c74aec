// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RemindersTest.h"

#include "calendar/frmPrintCal.h"
#include "platform/Printer.h"
#include "support/PrintDialogScript.h"
#include "support/PrintedPages.h"

#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QRadioButton>

#include <csignal>
#include <sys/resource.h>

namespace {

const QString kPortrait = QStringLiteral("optFormat_0");
const QString kLandscape = QStringLiteral("optFormat_1");
const QString kList = QStringLiteral("chkList");
const QString kPrint = QStringLiteral("lblOptions_0");
const QString kCancel = QStringLiteral("lblOptions_1");

const QString kNoFormat = QStringLiteral("Please select a format");
const QString kCompleted = QStringLiteral("Printing completed");

class PrintCalTest : public RemindersTest
{
protected:
  PrintCalTest()
  {
    Forms::Register("frmPrintCal", [] { return new frmPrintCal; });
  }
  ~PrintCalTest() override { Printer::EndDoc(); }

  // Opens the dialog from the calendar page, which is to be on screen, and works in it.
  void InDialog(const std::function<void()>& work)
  {
    auto seen = std::make_shared<bool>(false);
    Drive::WhenShown("frmPrintCal", [=](QWidget& form) {
      *seen = true;
      EXPECT_TRUE(form.isModal());
      work();
      if (IsOpen("frmPrintCal")) {
        form.close();
      }
    });
    Click("lblOptions_3");
    EXPECT_TRUE(*seen);
    DropUnloaded();
    EXPECT_FALSE(IsOpen("frmPrintCal"));
  }

  static Form& Dialog() { return *Forms::Loaded("frmPrintCal"); }
  static void Press(const QString& name) { Drive::Click(Dialog(), name); }
  static void Choose(const QString& option)
  {
    QTest::mouseClick(&Drive::Control(Dialog(), option), Qt::LeftButton, {}, QPoint(8, 12));
  }
  static std::string TextOf(const QString& name)
  {
    return Drive::Control(Dialog(), name).property("text").toString().toStdString();
  }
  static std::string TipOf(const QString& name) { return Drive::Control(Dialog(), name).toolTip().toStdString(); }
  static bool IsChecked(const QString& name)
  {
    return dynamic_cast<QAbstractButton&>(Drive::Control(Dialog(), name)).isChecked();
  }

  // The user prints to the test's file.
  void PrintPdf(QPageSize::PageSizeId paper = QPageSize::A4)
  {
    QFile::remove(path);
    PrintDialogScript dialogs;
    dialogs.ExpectPdf(path, paper);
    const std::size_t came = boxes.Count();
    boxes.Expect(kCompleted);
    Press(kPrint);
    EXPECT_EQ(boxes.Count(), came + 1);
  }
  // The user lets the print dialog go.
  void PrintAndCancel()
  {
    PrintDialogScript dialogs;
    dialogs.ExpectCancel();
    const std::size_t came = boxes.Count();
    Press(kPrint);
    EXPECT_EQ(boxes.Count(), came) << "cancelling says nothing";
  }
  // The words on the page's grid and list, in one line.
  [[nodiscard]] std::string Printed(int page = 1) const
  {
    return PrintedPages(path).Lines(page).join(' ').toStdString();
  }
  static bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

  QString path = folder.File("/month.pdf");
};

}

TEST_F(PrintCalTest, OffersTwoFormatsAndTheListWithNoneChosen)
{
  Open();
  InDialog([] {
    EXPECT_EQ(TextOf(kPortrait), "Portait ");
    EXPECT_EQ(TextOf(kLandscape), "Landscape");
    EXPECT_EQ(TextOf(kList), "Include list of dates, events, times and details printed below calendar");
    EXPECT_EQ(TextOf(kPrint), "Print");
    EXPECT_EQ(TextOf(kCancel), "Cancel");
    EXPECT_EQ(TipOf(kPortrait), "Prints in portait orientation with events (but not dates) on the calendar");
    EXPECT_EQ(TipOf(kLandscape), "Prints in landscape orientation with events and dates on the calendar");
    EXPECT_EQ(TipOf(kPrint), "Print calendar");
    EXPECT_EQ(TipOf(kCancel), "Close");
    EXPECT_EQ(TipOf(kList), "");
    for (const QString& name : {kPortrait, kLandscape, kList}) {
      EXPECT_FALSE(IsChecked(name)) << name.toStdString();
    }
  });
}

TEST_F(PrintCalTest, TakesOneFormatAtATime)
{
  Open();
  InDialog([] {
    Choose(kPortrait);
    Choose(kList);
    Choose(kLandscape);
    EXPECT_FALSE(IsChecked(kPortrait));
    EXPECT_TRUE(IsChecked(kLandscape));
    EXPECT_TRUE(IsChecked(kList));
  });
}

TEST_F(PrintCalTest, HasNoTipsWhereTheyAreOff)
{
  modToolTips::SetTipsOff(true);
  Open();
  InDialog([] {
    for (const QString& name : {kPortrait, kLandscape, kPrint, kCancel}) {
      EXPECT_EQ(TipOf(name), "") << name.toStdString();
    }
  });
}

TEST_F(PrintCalTest, IsModalOverTheCalendarAndClosesWithCancel)
{
  Open();
  InDialog([] {
    EXPECT_EQ(Dialog().windowModality(), Qt::ApplicationModal);
    EXPECT_TRUE(IsOpen());
    Press(kCancel);
    EXPECT_FALSE(IsOpen("frmPrintCal"));
  });
  EXPECT_TRUE(Page().isVisible());
  InDialog([] { EXPECT_FALSE(IsChecked(kPortrait)) << "it is loaded anew"; });
}

TEST_F(PrintCalTest, ItsCheckBoxTakesTheColourOfABackgroundTheme)
{
  Open();
  for (const auto& [theme, colour] : {std::pair{5, QColor(0xFF, 0xF9, 0xE9)}, std::pair{4, QColor(Qt::white)}}) {
    folder.Execute("UPDATE Options SET Theme = ?", {theme});
    InDialog([&, wanted = colour] {
      const QWidget& box = Drive::Control(Dialog(), kList);
      EXPECT_EQ(box.palette().color(QPalette::Window).name().toStdString(), wanted.name().toStdString());
    });
  }
}

TEST_F(PrintCalTest, ItsCommandsLightUpUnderTheMouseOneAtATime)
{
  Open();
  InDialog([&] {
    Dialog().move(frame.window.frameGeometry().topRight());
    const auto isLit = [](const QString& name) {
      return dynamic_cast<Label&>(Drive::Control(Dialog(), name)).BackStyle() == Label::kOpaque;
    };
    Drive::MoveOver(Dialog());
    EXPECT_FALSE(isLit(kPrint) || isLit(kCancel));
    Drive::MoveOver(Dialog(), kPrint);
    EXPECT_TRUE(isLit(kPrint));
    Drive::MoveOver(Dialog(), kCancel);
    EXPECT_TRUE(isLit(kCancel));
    EXPECT_FALSE(isLit(kPrint));
    Drive::MoveOver(Dialog(), kList);
    EXPECT_FALSE(isLit(kCancel));
    Drive::MoveOver(Dialog(), kPrint);
    Drive::MoveOver(Dialog());
    EXPECT_FALSE(isLit(kPrint));
  });
}

TEST_F(PrintCalTest, AsksForAFormatBeforeAnythingElse)
{
  const PrintDialogScript none;
  Open();
  InDialog([&] {
    boxes.Expect(kNoFormat);
    Press(kPrint);
    EXPECT_EQ(boxes.Count(), 1U);
    Choose(kList);
    boxes.Expect(kNoFormat);
    Press(kPrint);
    EXPECT_EQ(boxes.Count(), 2U);
    EXPECT_TRUE(IsOpen("frmPrintCal"));
  });
  EXPECT_EQ(none.Count(), 0U);
}

TEST_F(PrintCalTest, PrintsThePortraitOnOnePage)
{
  AddEvent("2026-05-12", "Dentist", "21:30:00", "Bring the letter");
  Open();
  InDialog([&] {
    Choose(kPortrait);
    PrintPdf();
    EXPECT_TRUE(IsOpen("frmPrintCal")) << "it stays for another printing";
  });
  const PrintedPages pages(path);
  EXPECT_EQ(pages.Count(), 1);
  EXPECT_LT(pages.Size(1).width(), pages.Size(1).height());
  EXPECT_EQ(pages.Word("May").page, 1);
  EXPECT_NEAR(pages.Word("12").x, 650 + 2 * 1500 + 100, 3);
  EXPECT_EQ(pages.Word("Dentist").page, 1);
  EXPECT_FALSE(Has(Printed(), "9:30pm"));
  EXPECT_FALSE(Has(Printed(), "Details"));
}

TEST_F(PrintCalTest, PrintsTheLandscapeOnOnePageWithTheTimes)
{
  AddEvent("2026-05-12", "Dentist", "21:30:00", "Bring the letter");
  Open();
  InDialog([&] {
    Choose(kLandscape);
    PrintPdf(QPageSize::Letter);
  });
  const PrintedPages pages(path);
  EXPECT_EQ(pages.Count(), 1);
  EXPECT_GT(pages.Size(1).width(), pages.Size(1).height());
  EXPECT_NEAR(pages.Word("12").x, 650 + 2 * 2000 + 100, 3);
  EXPECT_TRUE(Has(Printed(), "Dentist 9:30pm")) << Printed();
}

TEST_F(PrintCalTest, PrintsTheListBelowThePortraitAndBehindTheLandscape)
{
  AddEvent("2026-05-12", "Dentist", "21:30:00", "Bring the letter");
  Open();
  InDialog([&] {
    Choose(kList);
    Choose(kPortrait);
    PrintPdf();
    EXPECT_EQ(PrintedPages(path).Count(), 1);
    EXPECT_TRUE(Has(Printed(), "Date Event Time Details 12 Dentist 9:30pm Bring the letter")) << Printed();
    Choose(kLandscape);
    PrintPdf();
    EXPECT_EQ(PrintedPages(path).Count(), 2);
    EXPECT_EQ(Printed(2), "Date Event Time Details 12 Dentist 9:30pm Bring the letter");
  });
}

TEST_F(PrintCalTest, PrintsTheMonthOnShow)
{
  AddEvent("2026-05-12", "Today");
  AddEvent("2026-08-31", "Last");
  Open();
  for (int i = 0; i < 3; ++i) {
    Next();
  }
  ExpectMonth(2026, 8);
  InDialog([&] {
    Choose(kList);
    Choose(kPortrait);
    PrintPdf();
  });
  const PrintedPages pages(path);
  EXPECT_EQ(pages.Word("August").page, 1);
  EXPECT_NEAR(pages.Word("31").x, 650 + 1500 + 100, 3);
  EXPECT_NEAR(pages.Word("31").y, 2450 + 5 * 1300 + 50, 3);
  EXPECT_NEAR(pages.Word("Last").y, 2450 + 5 * 1300 + 350, 3);
  EXPECT_TRUE(Has(Printed(), "Details 31 Last")) << Printed();
  EXPECT_FALSE(Has(Printed(), "Today"));
  ExpectMonth(2026, 8);
}

TEST_F(PrintCalTest, PrintsADayWith40Events)
{
  for (int i = 0; i < 40; ++i) {
    AddEvent("2026-05-12", QStringLiteral("E%1").arg(i));
  }
  Open();
  InDialog([&] {
    Choose(kPortrait);
    PrintPdf();
    EXPECT_TRUE(Has(Printed(), "E0 E1 E2 more...")) << Printed();
    EXPECT_FALSE(Has(Printed(), "E3"));
    Choose(kList);
    PrintPdf();
    EXPECT_TRUE(Has(Printed() + Printed(2), "12 E39"));
  });
}

TEST_F(PrintCalTest, TakesTheLinesOfTheCellsAndOfTheDatabaseTheList)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  folder.Execute("UPDATE Reminders SET Event = 'Changed'");
  InDialog([&] {
    Choose(kList);
    Choose(kPortrait);
    PrintPdf();
  });
  const PrintedPages pages(path);
  EXPECT_LT(pages.Word("Dentist").y, 10250);
  EXPECT_GT(pages.Word("Changed").y, 10500);
}

TEST_F(PrintCalTest, WrapsDetailsAtTheWidthOfTheirBoxOnThePage)
{
  AddEvent("2026-05-12", "Dentist", {}, QString("word ").repeated(60).trimmed());
  Open();
  const auto linesAt = [&](int pixels) {
    Control("txtNotesDisplay").resize(pixels, 57);
    InDialog([&] {
      Choose(kList);
      Choose(kLandscape);
      PrintPdf();
    });
    EXPECT_EQ(Control("txtNotesDisplay").width(), pixels);
    return PrintedPages(path).Lines(2).size() - 1;
  };
  const auto narrow = linesAt(100);
  const auto wide = linesAt(400);
  EXPECT_GT(wide, 1);
  EXPECT_GT(narrow, 3 * wide - 3);
}

TEST_F(PrintCalTest, HidesTheDetailsThatStandOnThePage)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  ClickEvent(16);
  InDialog([&] {
    boxes.Expect(kNoFormat);
    Press(kPrint);
    EXPECT_TRUE(DetailsShown()) << "nothing is printed yet";
    Choose(kPortrait);
    PrintAndCancel();
    EXPECT_FALSE(DetailsShown());
  });
}

TEST_F(PrintCalTest, WritesTheDatesOfTheCellsBackBeforeItAsksForThePrinter)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  Page().resize(900, 700);
  const QString date = QStringLiteral("2026-05-12");
  ASSERT_NE(modResize::TagOf(Cell(16)).toStdString(), date.toStdString()) << "the resize has put its proportions there";
  InDialog([&] {
    Choose(kPortrait);
    PrintAndCancel();
    for (int cell = 0; cell < kCellCount - 1; ++cell) {
      EXPECT_EQ(modResize::TagOf(Cell(cell)).toStdString(), modCalVariables::CalCellDates[cell].toStdString()) << cell;
    }
    EXPECT_EQ(modResize::TagOf(Cell(16)).toStdString(), date.toStdString());
    modResize::SetTag(Cell(16), QStringLiteral("another"));
    Choose(kList);
    PrintPdf();
    EXPECT_EQ(modResize::TagOf(Cell(16)).toStdString(), date.toStdString());
  });
  EXPECT_TRUE(Has(Printed(), "Details 12 Dentist")) << Printed();
}

TEST_F(PrintCalTest, CancellingThePrintDialogPrintsNothingAndTheNextPrintingWorks)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  InDialog([&] {
    Choose(kPortrait);
    Choose(kList);
    PrintAndCancel();
    EXPECT_TRUE(IsOpen("frmPrintCal"));
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_TRUE(IsChecked(kPortrait));
    PrintAndCancel();
    PrintPdf();
  });
  EXPECT_TRUE(Has(Printed(), "12 Dentist"));
}

TEST_F(PrintCalTest, AFileThatCannotBeWrittenEndsInSilenceAndTheNextPrintingWorks)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  InDialog([&] {
    Choose(kLandscape);
    Choose(kList);
    const QString gone = folder.File("/gone");
    ASSERT_TRUE(QDir().mkdir(gone));
    {
      PrintDialogScript dialogs;
      dialogs.ExpectPdf(gone + "/month.pdf", QPageSize::A4, [&](QPrintDialog& dialog) {
        QObject::connect(&dialog, &QDialog::accepted, [=] { EXPECT_TRUE(QDir().rmdir(gone)); });
      });
      Press(kPrint);
    }
    EXPECT_EQ(boxes.Count(), 0U);
    EXPECT_FALSE(QFileInfo::exists(gone));
    EXPECT_TRUE(IsOpen("frmPrintCal"));
    PrintPdf();
  });
  EXPECT_EQ(PrintedPages(path).Count(), 2);
}

TEST_F(PrintCalTest, AFullDiskEndsInSilenceAndTheNextPrintingWorks)
{
  Open();
  InDialog([&] {
    Choose(kPortrait);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    {
      PrintDialogScript dialogs;
      dialogs.ExpectPdf(path, QPageSize::A4, [&](QPrintDialog& dialog) {
        QObject::connect(&dialog, &QDialog::accepted, [=] {
          const rlimit small{2000, before.rlim_max};
          EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
        });
      });
      Press(kPrint);
    }
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, previous);
    EXPECT_EQ(boxes.Count(), 0U);
    PrintPdf();
  });
  EXPECT_EQ(PrintedPages(path).Count(), 1);
}

TEST_F(PrintCalTest, ALostDatabaseEndsTheListInSilenceAndTheNextPrintingWorks)
{
  AddEvent("2026-05-12", "Dentist");
  Open();
  InDialog([&] {
    Choose(kLandscape);
    Choose(kList);
    ASSERT_TRUE(QFile::rename(folder.DatabasePath(), folder.File("/aside.mdb")));
    {
      PrintDialogScript dialogs;
      dialogs.ExpectPdf(path);
      Press(kPrint);
      EXPECT_EQ(boxes.Count(), 0U);
    }
    EXPECT_EQ(Printer::CurrentY(), 0) << "the document is ended";
    EXPECT_TRUE(IsOpen("frmPrintCal"));
    ASSERT_TRUE(QFile::rename(folder.File("/aside.mdb"), folder.DatabasePath()));
    PrintPdf();
  });
  EXPECT_EQ(PrintedPages(path).Count(), 2);
}

TEST_F(PrintCalTest, WithoutAnyPrinterOffersAFile)
{
  Open();
  InDialog([&] {
    Choose(kPortrait);
    PrintDialogScript dialogs;
    dialogs.ExpectPdf(path, QPageSize::A4, [](QPrintDialog& dialog) {
      EXPECT_EQ(PrintDialogScript::Offered(dialog), QStringList({"Print to File (PDF)"}));
    });
    boxes.Expect(kCompleted);
    Press(kPrint);
  });
  EXPECT_TRUE(QFileInfo::exists(path));
}
