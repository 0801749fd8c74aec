// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"

#include "lookup/LetterDocuments.h"
#include "lookup/Letters.h"
#include "platform/Clock.h"
#include "support/AddressCatcher.h"
#include "support/OwnDesktop.h"

namespace {

constexpr const char* kLetterButtons[] = {"lblOptions_6", "lblOptions_7", "lblOptions_8"};
const QString kEmail = QStringLiteral("lblOptions_3");

class LookupLetters : public LookupPageTest
{
protected:
  // The folders of the user are the test's own already, and not those of the toolkit's tests.
  LookupLetters()
  {
    QStandardPaths::setTestModeEnabled(false);
    Clock::StopOn(QDate(2026, 3, 5));
    desktop_.LayEntry("editor.desktop", "editor %f");
    desktop_.LayEntry("rich.desktop", "rich %f");
    desktop_.LayEntry("writer.desktop", "soffice --writer %f");
    desktop_.Lay("config/mimeapps.list",
                 "[Default Applications]\ntext/plain=editor.desktop\napplication/rtf=rich.desktop\n"
                 "application/vnd.oasis.opendocument.text=writer.desktop\n");
  }
  ~LookupLetters() override
  {
    Clock::StopOn({});
    QStandardPaths::setTestModeEnabled(true);
  }

  void LayPrograms() const
  {
    for (const char* program : {"editor", "rich", "soffice"}) {
      desktop_.LayProgram(program);
    }
  }

  // What the program is handed after a click.
  OwnDesktop::Start Letter(const QString& button)
  {
    Click(button);
    return desktop_.AwaitStart(++starts_);
  }

  // The letters of all three programs, from the text in the editors and in the word processor.
  void ExpectLetters(const QString& inEditors, const QString& inWordProcessor)
  {
    EXPECT_EQ(Letter("lblOptions_6").content.toStdString(), inEditors.toStdString());
    EXPECT_EQ(Letter("lblOptions_7").content.toStdString(),
              LetterDocuments::OpenDocument(inWordProcessor).toStdString());
    EXPECT_EQ(Letter("lblOptions_8").content.toStdString(), LetterDocuments::RichText(inEditors).toStdString());
  }

  OwnDesktop desktop_;

private:
  std::size_t starts_ = 0;
};

TEST_F(LookupLetters, WithoutAPersonEachLetterAsksForOneAndTheMessageForAName)
{
  LayPrograms();
  AddAnn();
  Open();
  for (const char* button : kLetterButtons) {
    boxes.Expect("You must first select a person");
    Click(button);
  }
  boxes.Expect("You must first select a name");
  Click(kEmail);
  EXPECT_TRUE(desktop_.Starts().empty());
}

TEST_F(LookupLetters, WithNobodyThereNothingIsSaidAndNobodySelected)
{
  LayPrograms();
  Open();
  for (const char* button : kLetterButtons) {
    modID::SelectedPersonID = 7;
    Click(button);
    EXPECT_EQ(modID::SelectedPersonID, 0) << button;
  }
  modID::SelectedPersonID = 7;
  Click(kEmail);
  EXPECT_EQ(modID::SelectedPersonID, 0);
  EXPECT_TRUE(desktop_.Starts().empty());
}

TEST_F(LookupLetters, AreOpenedInTheProgramOfTheirButton)
{
  LayPrograms();
  AddAnn();
  Open();
  ClickLine(0);
  EXPECT_EQ(Letter("lblOptions_6").program, "editor");
  EXPECT_EQ(Letter("lblOptions_7").program, "soffice");
  EXPECT_EQ(Letter("lblOptions_8").program, "rich");
}

TEST_F(LookupLetters, BeginWithTheDateAndTheSalutation)
{
  LayPrograms();
  AddAnn();
  Open();
  ClickLine(0);
  ExpectLetters("March 05, 2026\n\n\nDear Ann:", "March 05, 2026\n\nDear Ann:");
}

TEST_F(LookupLetters, CarryTheWholeAddressWhateverIsTicked)
{
  LayPrograms();
  AddAnn();
  Open();
  ClickLine(0);
  Click("lblOptions_2");
  Tick("chkAddress");
  const QString person = "Ann Wood\n1 High Street\nFlat 2\nLeeds, Yorkshire\nEngland, LS1 1AA\n\nDear Ann:";
  ExpectLetters("March 05, 2026\n\n\n" + person, "March 05, 2026\n\n" + person);
}

TEST_F(LookupLetters, LeaveOutALoneSecondAddressOnlyInTheWordProcessor)
{
  LayPrograms();
  AddPerson("Bob", "Marsh", {{"SecondAddress", "Flat 2"}, {"City", "Leeds"}});
  Open();
  ClickLine(0);
  Click("lblOptions_2");
  Tick("chkAddress");
  ExpectLetters("March 05, 2026\n\n\nBob Marsh\nFlat 2\nLeeds\n\nDear Bob:",
                "March 05, 2026\n\nBob Marsh\n\nLeeds\n\n\nDear Bob:");
}

TEST_F(LookupLetters, WithoutAProgramSayWhichIsMissing)
{
  AddAnn();
  Open();
  ClickLine(0);
  boxes.Expect("Sorry, Microsoft Notepad is either not on your system or cannot be opened.");
  Click("lblOptions_6");
  boxes.Expect("Sorry, Microsoft Word is either not on your system or cannot be opened.");
  Click("lblOptions_7");
  boxes.Expect("Error: Microsoft WordPad does not appear to be on your system.");
  Click("lblOptions_8");
}

TEST_F(LookupLetters, AMessageGoesToTheAddressOfTheSelectedPerson)
{
  AddressCatcher catcher("mailto");
  AddAnn();
  AddPerson("Bob", "Marsh", {{"Email", "bob@example.com"}});
  Open();
  for (const int line : {1, 0}) {
    ClickLine(line);
    Click(kEmail);
  }
  ASSERT_EQ(catcher.Taken.size(), 2);
  EXPECT_EQ(catcher.Taken[0].toEncoded().toStdString(), "mailto:%20bob@example.com");
  EXPECT_EQ(catcher.Taken[1].toEncoded().toStdString(), "mailto:%20ann@example.com");
}

TEST_F(LookupLetters, WithoutAnAddressThereIsNoMessage)
{
  const int person = AddPerson("Bob", "Marsh");
  Open();
  ClickLine(0);
  boxes.Expect("Sorry, there is no email address for this person in the database");
  Click(kEmail);
  Change(person, "Email", "");
  ClickLine(0);
  boxes.Expect("Sorry, there is no email address for this person in the database");
  Click(kEmail);
}

TEST_F(LookupLetters, ALetterToSomebodyDeletedMeanwhileSaysThatItFails)
{
  LayPrograms();
  const int person = AddAnn();
  Open();
  ClickLine(0);
  Remove(person);
  boxes.Expect("Sorry, Microsoft Notepad is either not on your system or cannot be opened.");
  Click("lblOptions_6");
  EXPECT_TRUE(desktop_.Starts().empty());
}

}
