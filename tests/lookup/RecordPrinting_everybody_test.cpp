// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RecordPrintingTest.h"

#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

namespace {

class RecordPrintingOfEverybody : public RecordPrintingTest
{
protected:
  // "P0001 Wood" and so on, each with a phone.
  void AddMany(int count) const
  {
    folder.Execute(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<?) "
        "INSERT INTO People (FirstName, LastName, Phone, Notes) "
        "SELECT printf('P%05d', i), 'Wood', printf('555-%05d', i), 'Likes tea' FROM n",
        {count});
  }
};

class RecordPrintingOnPaper : public RecordPrintingOfEverybody,
                              public testing::WithParamInterface<QPageSize::PageSizeId>
{
};

}

TEST_F(RecordPrintingOfEverybody, FollowsTheListWithWhatIsKnownOfEach)
{
  AddPerson("Cora", "Wood", {{"Phone", "555-3"}, {"City", "Leeds"}});
  AddAnna();
  AddPerson("Bess", "Wood", {{"BirthMonth", "May"}, {"BirthDate", "9"}, {"Notes", "Plays chess"}});
  OpenWithAll();
  EXPECT_EQ(Lines(PrintAll()),
            "Anna Wood|Home phone: 555-1000|Mobile: 555-2000|Business phone: 555-3000|Email: anna@example.com|"
            "Address: 1High Street|Flat Two|Leeds, Yorkshire|England, LS1 1AA|Birthday: March 5, 1962|"
            "Anniversary: June 12, 1990|Notes: Likes tea|"
            "Bess Wood|Home phone: unavailable|Mobile: unavailable|Business phone: unavailable|Email: unavailable|"
            "Address: unavailable|Birthday: May 9|Anniversary: unavailable|Notes: Plays chess|"
            "Cora Wood|Home phone: 555-3|Mobile: unavailable|Business phone: unavailable|Email: unavailable|"
            "Address: street address unavailable|Leeds|country and postal code not available|Birthday: unavailable|"
            "Anniversary: unavailable|Notes: unavailable");
}

TEST_F(RecordPrintingOfEverybody, FollowsTheOrderByLastName)
{
  AddPerson("Anna", "Wood", {{"Phone", "1"}});
  AddPerson("Bess", "Adams", {{"Phone", "2"}});
  Open();
  Click("lblNames_1");
  Tick("chkInfo_0");
  Click("lblOptions_1");
  EXPECT_EQ(Lines(PrintAll()), "Adams, Bess|Home phone: 2|Wood, Anna|Home phone: 1");
}

TEST_F(RecordPrintingOfEverybody, LeavesAnEmptyLineBetweenPeople)
{
  AddMany(3);
  Open();
  Tick("chkInfo_0");
  Click("lblOptions_1");
  const PrintedPages pages = PrintAll();
  const double block = 2 * kHeadingHeight + kLineHeight;
  for (int person = 0; person < 3; ++person) {
    const QString name = QStringLiteral("P0000%1").arg(person + 1);
    ExpectAt(pages, name, kLeft, kTop + person * block);
    ExpectFont(pages, name, 14, true);
    const QString phone = QStringLiteral("555-0000%1").arg(person + 1);
    ExpectAt(pages, phone, kColumn, kTop + kHeadingHeight + person * block);
    ExpectFont(pages, phone, 12, false);
  }
}

TEST_F(RecordPrintingOfEverybody, BeginsWithTheDate)
{
  AddMany(2);
  Open();
  Tick("chkInfo_0");
  Click("lblOptions_1");
  Tick("chkDate");
  const PrintedPages pages = PrintAll();
  EXPECT_EQ(Lines(pages), "November 05, 2026|P00001 Wood|Home phone: 555-00001|P00002 Wood|Home phone: 555-00002");
  ExpectAt(pages, "November", kLeft, kTop);
  ExpectAt(pages, "P00001", kLeft, kTop + 2 * kLineHeight + kHeadingHeight);
}

TEST_F(RecordPrintingOfEverybody, LeavesNobodySelectedUntilTheNextClickOnAName)
{
  AddMany(2);
  const int second = folder.Value("SELECT max(PeopleID) FROM People").toInt();
  Open();
  Tick("chkInfo_0");
  Click("lblOptions_1");
  ClickName(1);
  PrintAll();
  EXPECT_EQ(modID::SelectedPersonID, 0);
  EXPECT_EQ(Names().ListIndex(), 1);
  EXPECT_EQ(Name(), "P00002 Wood");

  Tick("optPrint_0");
  boxes.Expect("Please select a name");
  Click("lblOptions_10");
  EXPECT_EQ(dialogs.Count(), 1U);

  ClickName(1);
  EXPECT_EQ(modID::SelectedPersonID, second);
  EXPECT_EQ(Lines(Print()), "P00002 Wood|Home phone: 555-00002");
}

TEST_F(RecordPrintingOfEverybody, PrintsTheSameAgain)
{
  AddMany(2);
  Open();
  Tick("chkInfo_0");
  Click("lblOptions_1");
  const std::string first = Lines(PrintAll());
  EXPECT_EQ(first, "P00001 Wood|Home phone: 555-00001|P00002 Wood|Home phone: 555-00002");
  EXPECT_EQ(Lines(Print()), first);
}

TEST_P(RecordPrintingOnPaper, BreaksPagesBetweenTheMarginsAndLosesNothing)
{
  constexpr int kPeople = 70;
  AddMany(kPeople);
  Open();
  Tick("chkInfo_0");
  Tick("chkNotes");
  Click("lblOptions_1");
  const PrintedPages pages = PrintAll(GetParam());
  EXPECT_GE(pages.Count(), 5);
  EXPECT_EQ(pages.Size(1).width() < 12000, GetParam() == QPageSize::A4);
  ExpectWithinMargins(pages);
  QStringList expected;
  QStringList found;
  for (int person = 1; person <= kPeople; ++person) {
    const QString number = QString::number(person).rightJustified(5, '0');
    expected << "P" + number + " Wood"
             << "Home phone: 555-" + number << "Notes: Likes tea";
  }
  for (int page = 1; page <= pages.Count(); ++page) {
    found += pages.Lines(page);
    const auto first = std::find_if(pages.Words().begin(), pages.Words().end(),
                                    [page](const PrintedWord& word) { return word.page == page; });
    EXPECT_NEAR(first->y, kTop, kNear) << page;
  }
  EXPECT_EQ(found.join('|').toStdString(), expected.join('|').toStdString());
}

INSTANTIATE_TEST_SUITE_P(Papers, RecordPrintingOnPaper, testing::Values(QPageSize::A4, QPageSize::Letter),
                         [](const auto& paper) { return paper.param == QPageSize::A4 ? "A4" : "Letter"; });

TEST_F(RecordPrintingOfEverybody, CanBeCancelledInTheMiddle)
{
  constexpr int kPeople = 3000;
  AddMany(kPeople);
  OpenWithAll();
  Tick("optPrint_1");
  dialogs.ExpectPdf(path);
  int cancelledAt = 0;
  int timeouts = 0;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
    auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    if (progress == nullptr || ++timeouts < 3) {
      return;
    }
    watch.stop();
    EXPECT_EQ(progress->labelText(), "Printing...");
    EXPECT_EQ(progress->maximum(), kPeople);
    cancelledAt = progress->value();
    QTest::mouseClick(progress->findChild<QPushButton*>(), Qt::LeftButton);
  });
  watch.start(1);
  Click("lblOptions_10");
  EXPECT_GT(cancelledAt, 0);
  EXPECT_LT(cancelledAt, kPeople);
  EXPECT_EQ(boxes.Count(), 0U);
  EXPECT_EQ(modID::SelectedPersonID, 0);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(IsShown("fraPrint"));
  {
    const PrintedPages begun(path);
    ASSERT_GE(begun.Count(), 1);
    EXPECT_EQ(begun.Lines(1).value(0), "P00001 Wood");
    EXPECT_TRUE(std::none_of(begun.Words().begin(), begun.Words().end(),
                             [](const PrintedWord& word) { return word.text == "P03000"; }));
  }
  Click("lblAll_1");
  Tick("chkInfo_0");
  EXPECT_EQ(Lines(PrintOne(2)), "P00003 Wood|Home phone: 555-00003");
}
