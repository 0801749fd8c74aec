// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RecordPrintingTest.h"

#include <QProcess>

#include <cmath>

namespace {

class RecordPrinting : public RecordPrintingTest
{
protected:
  // Notes of so many lines.
  static QString Notes(int lines)
  {
    QStringList notes;
    for (int line = 1; line <= lines; ++line) {
      notes.append(QStringLiteral("note%1").arg(line));
    }
    return notes.join("\r\n");
  }

  // Where the line at that height of the first page begins.
  static double LeftOf(const PrintedPages& pages, double y)
  {
    double left = pages.Size(1).width();
    for (const PrintedWord& word : pages.Words()) {
      if (std::abs(word.y - y) < kLineHeight / 2) {
        left = std::min(left, word.x);
      }
    }
    return left;
  }
};

struct ItemLine
{
  const char* box;
  const char* line;
};

// The words, and the stop at which the value begins.
const std::array<ItemLine, 8> kItemLines = {{
    {"chkInfo_0", "Home phone: 555-1000"},
    {"chkInfo_3", "Mobile: 555-2000"},
    {"chkInfo_4", "Business phone: 555-3000"},
    {"chkInfo_1", "Email: anna@example.com"},
    {"chkInfo_2", "Address: 1High Street|Flat Two|Leeds, Yorkshire|England, LS1 1AA"},
    {"chkPersonal_0", "Birthday: March 5, 1962"},
    {"chkPersonal_1", "Anniversary: June 12, 1990"},
    {"chkNotes", "Notes: Likes tea"},
}};

}

TEST_F(RecordPrinting, PrintsEveryItemOfOnePersonInOrder)
{
  AddAnna();
  OpenWithAll();
  QStringList expected = {"Anna Wood"};
  for (const ItemLine& item : kItemLines) {
    expected.append(item.line);
  }
  EXPECT_EQ(Lines(PrintOne()), expected.join('|').toStdString());
}

TEST_F(RecordPrinting, PrintsEveryItemAloneUnderTheName)
{
  AddAnna();
  Open();
  Click("lblOptions_1");
  for (const ItemLine& item : kItemLines) {
    Tick(item.box);
    EXPECT_EQ(Lines(PrintOne()), std::string("Anna Wood|") + item.line) << item.box;
    Tick(item.box);
  }
}

TEST_F(RecordPrinting, SetsTheValuesInOneColumnAndTheLinesOneBelowTheOther)
{
  AddAnna();
  OpenWithAll();
  const PrintedPages pages = PrintOne();
  ASSERT_EQ(pages.Count(), 1);
  ExpectAt(pages, "Anna", kLeft, kTop);
  double y = kTop + kHeadingHeight;
  const std::vector<std::pair<QString, QString>> lines = {{"Home", "555-1000"},
                                                          {"Mobile:", "555-2000"},
                                                          {"Business", "555-3000"},
                                                          {"Email:", "anna@example.com"},
                                                          {"Address:", "1High"}};
  for (const auto& [caption, value] : lines) {
    ExpectAt(pages, caption, kLeft, y);
    ExpectAt(pages, value, kColumn, y);
    y += kLineHeight;
  }
  ExpectAt(pages, "Flat", kStreetColumn, y);
  ExpectAt(pages, "Leeds,", kColumn, y + kLineHeight);
  ExpectAt(pages, "England,", kColumn, y + 2 * kLineHeight);
  y += 3 * kLineHeight;
  for (const auto& [caption, value] : std::vector<std::pair<QString, QString>>{
           {"Birthday:", "March"}, {"Anniversary:", "June"}, {"Notes:", "Likes"}}) {
    ExpectAt(pages, caption, kLeft, y);
    ExpectAt(pages, value, kColumn, y);
    y += kLineHeight;
  }
}

TEST_F(RecordPrinting, SetsTheNameInFourteenPointsBoldAndTheRestInTwelvePlain)
{
  AddAnna();
  OpenWithAll();
  const PrintedPages pages = PrintOne();
  ExpectFont(pages, "Anna", 14, true);
  ExpectFont(pages, "Wood", 14, true);
  ExpectFont(pages, "Business", 12, false);
  ExpectFont(pages, "anna@example.com", 12, false);
  ExpectFont(pages, "Yorkshire", 12, false);
  ExpectFont(pages, "Likes", 12, false);
  QProcess fonts;
  fonts.start("pdffonts", {path});
  ASSERT_TRUE(fonts.waitForFinished());
  const QString names = fonts.readAllStandardOutput();
  EXPECT_TRUE(names.contains("LiberationSans-Bold") || names.contains("Arial-Bold")) << names.toStdString();
  EXPECT_TRUE(names.contains("LiberationSans ") || names.contains("ArialMT")) << names.toStdString();
}

TEST_F(RecordPrinting, PrintsUnavailableForAllThatIsNotKnown)
{
  AddPerson("Anna", "Wood");
  OpenWithAll();
  EXPECT_EQ(Lines(PrintOne()),
            "Anna Wood|Home phone: unavailable|Mobile: unavailable|Business phone: unavailable|Email: unavailable|"
            "Address: unavailable|Birthday: unavailable|Anniversary: unavailable|Notes: unavailable");
}

TEST_F(RecordPrinting, PrintsAddressesWithGapsInThreeOrFourLines)
{
  struct Case
  {
    QVariantMap columns;
    const char* lines;
  };
  const std::vector<Case> cases = {
      {{{"SecondAddress", "Flat Two"}}, "unavailable"},
      {{{"Country", "England"}}, "street address unavailable|city and province/state not available|England"},
      {{{"Street", "1High Street"}},
       "1High Street|city and province/state not available|country and postal code not available"},
      {{{"SecondAddress", "Flat Two"}, {"City", "Leeds"}}, "Flat Two|Leeds|country and postal code not available"},
      {{{"Street", "1High Street"}, {"SecondAddress", "Flat Two"}, {"Province", "Yorkshire"}, {"Postal", "LS1"}},
       "1High Street|Flat Two|Yorkshire|LS1"},
  };
  for (const Case& one : cases) {
    AddPerson(QStringLiteral("Anna%1").arg(&one - cases.data()), "Wood", one.columns);
  }
  Open();
  Tick("chkInfo_2");
  Click("lblOptions_1");
  for (const Case& one : cases) {
    const auto line = static_cast<int>(&one - cases.data());
    EXPECT_EQ(Lines(PrintOne(line)), "Anna" + std::to_string(line) + " Wood|Address: " + one.lines);
  }
}

TEST_F(RecordPrinting, PrintsDatesWithGapsAsThePageShowsThem)
{
  AddPerson("Anna", "Wood", {{"BirthMonth", "March"}, {"BirthYear", "1962"}, {"AnnYear", "1990"}});
  OpenWithAll();
  Click("lblAll_1");
  Tick("chkPersonal_0");
  Tick("chkPersonal_1");
  EXPECT_EQ(Lines(PrintOne()), "Anna Wood|Birthday: March *, 1962|Anniversary: * *, 1990");
}

TEST_F(RecordPrinting, PrintsTheDateAboveAnEmptyLine)
{
  AddAnna();
  Open();
  Tick("chkInfo_0");
  Click("lblOptions_1");
  Tick("chkDate");
  const PrintedPages pages = PrintOne();
  EXPECT_EQ(Lines(pages), "November 05, 2026|Anna Wood|Home phone: 555-1000");
  ExpectAt(pages, "November", kLeft, kTop);
  ExpectFont(pages, "November", 12, false);
  const double name = kTop + 2 * kLineHeight + kHeadingHeight;
  ExpectAt(pages, "Anna", kLeft, name);
  ExpectAt(pages, "Home", kLeft, name + kHeadingHeight);
}

TEST_F(RecordPrinting, PrintsTheNameOfTheListsOrderAndPlainNotes)
{
  AddAnna();
  Open();
  Click("lblNames_1");
  ClickName(0);
  Tick("chkNotes");
  EXPECT_EQ(dynamic_cast<QAbstractButton&>(Control("chkNotes")).text(), "Notes for Anna");
  Click("lblOptions_1");
  EXPECT_EQ(Lines(PrintOne()), "Wood, Anna|Notes: Likes tea");
}

TEST_F(RecordPrinting, WrapsLongNotesAndCutsLinesBehindTheEightiethCharacter)
{
  const QString prose = QStringList(60, "Anna likes the garden, tea and long letters from abroad.").join(' ');
  AddPerson("Anna", "Wood", {{"Notes", prose}});
  AddPerson("Bess", "Wood", {{"Notes", "short\r\n\r\n" + QString(100, 'i') + "\r\nlast"}});
  Open();
  Tick("chkNotes");
  Click("lblOptions_1");

  const PrintedPages wrapped = PrintOne(0);
  const QStringList lines = wrapped.Lines(1);
  ASSERT_GT(lines.size(), 30);
  EXPECT_EQ(("Notes: " + prose).toStdString(), lines.mid(1).join(' ').toStdString());
  ExpectWithinMargins(wrapped);
  // A line that is full is about as wide as the box: so many letters of ten points.
  double widest = 0;
  for (const PrintedWord& word : wrapped.Words()) {
    widest = std::max(widest, word.right - kColumn);
    if (word.y > kTop + 2 * kHeadingHeight) {
      EXPECT_GE(word.x, kColumn - kNear) << word.text.toStdString();
    }
  }
  EXPECT_LE(widest, 6135 * 12.0 / 10.0 * 1.02);
  EXPECT_GE(widest, 6135 * 12.0 / 10.0 * 0.8);

  const PrintedPages cut = PrintOne(1);
  EXPECT_EQ(Lines(cut), "Bess Wood|Notes: short|" + std::string(80, 'i') + "|last");
  const double first = kTop + kHeadingHeight;
  ExpectAt(cut, "short", kColumn, first);
  ExpectAt(cut, QString(80, 'i'), kColumn, first + 2 * kLineHeight);
  ExpectAt(cut, "last", kColumn, first + 3 * kLineHeight);
}

// However full the page is when the next name comes, that has no empty line above it there.
TEST_F(RecordPrinting, SetsANameAtTheTopOfAPageWithoutAnEmptyLine)
{
  constexpr double kBottom = 16838 - 2 * PrintedPages::kMargin - 1000;
  const int fill = 1 + static_cast<int>(std::floor((kBottom - kTop - kHeadingHeight) / kLineHeight));
  AddPerson("Anna", "Wood");
  AddPerson("Bess", "Wood", {{"Notes", "here"}});
  Open();
  Tick("chkNotes");
  Click("lblOptions_1");
  for (int lines : {fill, fill - 1}) {
    folder.Execute("UPDATE People SET Notes=? WHERE FirstName='Anna'", {Notes(lines)});
    Click("lblNames_1");
    Click("lblNames_0");
    Tick("chkNotes");
    const PrintedPages pages = PrintAll();
    ASSERT_EQ(pages.Count(), 2) << lines;
    EXPECT_EQ(pages.Lines(1).size(), 1 + lines);
    EXPECT_EQ(pages.Lines(2), QStringList({"Bess Wood", "Notes: here"}));
    ExpectAt(pages, "Bess", kLeft, kTop, 2);
    ExpectAt(pages, "here", kColumn, kTop + kHeadingHeight, 2);
  }
}

TEST_F(RecordPrinting, PrintsTextsInAnyScript)
{
  AddPerson(QStringLiteral("Zoë"), QStringLiteral("Юлия"),
            {{"Phone", QStringLiteral("Ελλάδα & sons")}, {"Notes", QStringLiteral("中文 & עברית 😀\tend")}});
  OpenWithAll();
  const PrintedPages pages = PrintOne();
  EXPECT_EQ(pages.Lines(1).value(0), QStringLiteral("Zoë Юлия"));
  EXPECT_EQ(pages.Lines(1).value(1), QStringLiteral("Home phone: Ελλάδα & sons"));
  EXPECT_EQ(pages.Count(), 1);
  EXPECT_GT(pages.Word("end").x, kColumn);
}

TEST_F(RecordPrinting, GoesOnBelowWithWhatIsTooWideForThePaper)
{
  const QString street = "Flat 27, The Old Brewery Building, 1283 Saint Bartholomew's Crescent North East";
  AddPerson("Maximiliana Josephina Bernadette Constantia", "Featherstonehaugh Cholmondeley Marjoribanks",
            {{"Email", QString(90, 'm')}, {"Street", street}, {"City", "Leeds"}, {"Country", "England"}});
  Open();
  Tick("chkInfo_1");
  Tick("chkInfo_2");
  Click("lblOptions_1");
  ClickName(0);
  Tick("optPrint_0");
  for (QPageSize::PageSizeId paper : {QPageSize::A4, QPageSize::Letter}) {
    const PrintedPages pages = Print(paper);
    ExpectWithinMargins(pages);
    QString text = pages.Lines(1).join(QString());
    QString expected =
        "Maximiliana Josephina Bernadette Constantia Featherstonehaugh Cholmondeley Marjoribanks Email:" +
        QString(90, 'm') + "Address:" + street + "Leeds England";
    EXPECT_EQ(text.remove(' ').toStdString(), expected.remove(' ').toStdString());
    const double email = kTop + 2 * kHeadingHeight;
    EXPECT_NEAR(LeftOf(pages, kTop + kHeadingHeight), kLeft, kNear);
    EXPECT_NEAR(LeftOf(pages, email), kLeft, kNear);
    EXPECT_NEAR(LeftOf(pages, email + kLineHeight), kColumn, kNear);
    EXPECT_NEAR(LeftOf(pages, email + 2 * kLineHeight), kColumn, kNear);
    EXPECT_NEAR(LeftOf(pages, email + 3 * kLineHeight), kLeft, kNear);
    EXPECT_NEAR(LeftOf(pages, email + 4 * kLineHeight), kColumn, kNear);
    ExpectAt(pages, "Leeds", kColumn, email + 5 * kLineHeight);
  }
}

// With no place for an address of four lines, its last one stands on the next page.
TEST_F(RecordPrinting, LeavesNoLineOfAnAddressBelowThePaper)
{
  AddPerson("Anna", "Wood", {{"Notes", Notes(42)}});
  AddPerson("Bess", "Wood", {{"Notes", "one"}});
  AddPerson("Cora", "Wood",
            {{"Street", "1High"}, {"SecondAddress", "Flat"}, {"City", "Leeds"}, {"Country", "England"}});
  Open();
  Tick("chkInfo_2");
  Tick("chkNotes");
  Click("lblOptions_1");
  const PrintedPages pages = PrintAll();
  ASSERT_EQ(pages.Count(), 2);
  const double first = kTop + 5 * kHeadingHeight + 45 * kLineHeight;
  EXPECT_NEAR(pages.Word("1High").y, first, 4 * kNear);
  EXPECT_NEAR(pages.Word("Leeds").y, first + 2 * kLineHeight, 4 * kNear);
  EXPECT_EQ(pages.Word("Leeds").page, 1);
  ExpectAt(pages, "England", kColumn, kTop, 2);
  EXPECT_EQ(pages.Lines(2), QStringList({"England", "Notes: unavailable"}));
}
