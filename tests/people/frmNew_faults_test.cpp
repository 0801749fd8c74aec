// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

#include "support/HeldDatabase.h"

using namespace PeopleTexts;

namespace {

constexpr qint64 kPatience = 20'000;

class EditorFaults : public PeopleTest
{
protected:
  void AddFamily()
  {
    AddPerson("Ann", "Adams", {{"Street", "1 High St"}, {"Notes", "n"}});
    AddPerson("Bob", "Brown");
    AddPerson("Cy", "Cole");
    couple = AddCouple(1, 2);
    Save(PictureFile(1), {40, 20}, Qt::blue);
    Save(PictureFile(3), {40, 20}, Qt::green);
    Save(CouplePictureFile(couple));
  }

  [[nodiscard]] std::vector<std::string> Everything() const
  {
    std::vector<std::string> all = People();
    for (const std::string& line : Couples()) {
      all.push_back(line);
    }
    return all;
  }

  static void FillNew(const QString& first, const QString& last)
  {
    Click(kAdd);
    Paste("txtFirst", first);
    Paste("txtLast", last);
    Pick("cboSex", "Male");
  }

  static void ExpectBrowsing()
  {
    EXPECT_FALSE(IsShown("fraAdd"));
    EXPECT_FALSE(IsShown("fraEdit"));
    EXPECT_TRUE(Control("fraNav").isEnabled());
    EXPECT_TRUE(Control(kAdd).isEnabled());
    for (const QString& name : kAllBoxes) {
      EXPECT_TRUE(Box(name).Locked()) << name.toStdString();
    }
  }

  void ExpectDelete(bool married)
  {
    boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, "Delete Record");
    if (married) {
      boxes.Expect(kMarriedQuestion, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok,
                   "Delete anniversary information");
    }
  }

  int couple = 0;
};

}

TEST_F(EditorFaults, EveryKindOfTextSurvives)
{
  const QStringList texts = {QStringLiteral("O'Neil"),           QStringLiteral("Jim \"Jimmy\""),
                             QStringLiteral("Zoë Łukasz Ñandú"), QStringLiteral("👩‍👩‍👧 😀"),
                             QStringLiteral("שלום عليكم"),       QStringLiteral("'); DROP TABLE People; --"),
                             QStringLiteral("% _ * ? [a] #"),    QStringLiteral("a\\b & c | d"),
                             QStringLiteral("<b>x</b>"),         QStringLiteral("NULL"),
                             QStringLiteral("e\u0301"),          QStringLiteral("a\u00A0b")};
  Open();
  for (const QString& text : texts) {
    FillNew(text, text);
    Paste("txtStreet", text);
    Paste("txtNotes", text + "\n\t" + text);
    Click(kFinishAdd);
    EXPECT_EQ(Shown("txtFirst"), text.toStdString());
  }
  ASSERT_EQ(People().size(), static_cast<std::size_t>(texts.size()));
  for (int i = 0; i < texts.size(); ++i) {
    const std::string text = texts[i].toStdString();
    EXPECT_EQ(Stored(i + 1, "FirstName"), text);
    EXPECT_EQ(Stored(i + 1, "LastName"), text);
    EXPECT_EQ(Stored(i + 1, "Street"), text);
    EXPECT_EQ(Stored(i + 1, "Notes"), text + "\n\t" + text);
    Leave();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Open(i + 1);
    EXPECT_EQ(Shown("txtFirst"), text);
    EXPECT_EQ(Shown("txtLast"), text);
    EXPECT_EQ(Shown("txtNotes"), text + "\n\t" + text);
    EXPECT_TRUE(Lines("cboStreet").contains(texts[i] + ", " + texts[i]));
  }
}

TEST_F(EditorFaults, AnEditWithoutAChangeChangesNothing)
{
  AddPerson(QStringLiteral("Zoë \"Z\""), QStringLiteral("O'Neil 😀"),
            {{"Notes", QStringLiteral("a\n\n b \t\u2028c\u00A0")},
             {"Street", QStringLiteral("שלום")},
             {"Phone", "1\n2\t3"},
             {"Email", "a@b.c"},
             {"BirthMonth", "May"},
             {"BirthDate", "9"},
             {"BirthYear", "1980"}});
  AddPerson("Bob", "Brown");
  folder.Execute("UPDATE People SET Notes = replace(Notes, char(0x2028), '')");
  Open(1);
  const auto before = People();
  Click(kEdit);
  Click(kFinishEdit);
  EXPECT_EQ(People(), before);
}

TEST_F(EditorFaults, ThirtyOneCharactersOfAnyScriptArePastedAndRefused)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  Paste("txtFirst", QString(31, QChar(0x00E9)));
  boxes.Expect("You cannot enter more than 30 characters for a first name");
  Click(kFinishEdit);
  EXPECT_TRUE(IsShown("fraEdit"));
  Paste("txtFirst", QString(30, QChar(0x00E9)));
  Click(kFinishEdit);
  EXPECT_EQ(Stored(1, "FirstName"), QString(30, QChar(0x00E9)).toStdString());
}

TEST_F(EditorFaults, TenMegabytesOfNotesSurviveInTime)
{
  AddPerson("Ann", "Adams");
  const QString notes = QStringLiteral("All work and no play makes Jack a dull boy, Zoë said to him again and again\n")
                            .repeated(10 * 1024 * 1024 / 76);
  QElapsedTimer timer;
  timer.start();
  Open();
  Click(kEdit);
  Paste("txtNotes", notes);
  Click(kFinishEdit);
  EXPECT_TRUE(folder.Value("SELECT Notes FROM People").toString() == notes);
  Reopen();
  EXPECT_TRUE(Box("txtNotes").Text() == notes);
  EXPECT_LT(timer.elapsed(), kPatience);
}

TEST_F(EditorFaults, OneLineOfAMegabyteSurvivesInTime)
{
  AddPerson("Ann", "Adams");
  const QString notes = QStringLiteral("word ").repeated(200'000);
  QElapsedTimer timer;
  timer.start();
  Open();
  Click(kEdit);
  Paste("txtNotes", notes);
  Paste("txtEmail", notes);
  Click(kFinishEdit);
  EXPECT_TRUE(folder.Value("SELECT Notes FROM People").toString() == notes);
  EXPECT_TRUE(folder.Value("SELECT Email FROM People").toString() == notes);
  EXPECT_LT(timer.elapsed(), kPatience);
}

TEST_F(EditorFaults, AnAdditionToALockedStoreLeavesNothing)
{
  AddFamily();
  Save(folder.File("/chosen.png"));
  Open();
  const auto before = Everything();
  FillNew("Dan", "Dunn");
  dialogs.ExpectChoice(folder.File("/chosen.png"));
  Click("cmdAddPic");
  QElapsedTimer timer;
  timer.start();
  {
    const DatabaseTaken other(folder.DatabasePath());
    Click(kFinishAdd);
  }
  EXPECT_LT(timer.elapsed(), kPatience);
  ExpectBrowsing();
  EXPECT_EQ(Everything(), before);
  EXPECT_EQ(QImage(PictureFile(1)).pixelColor(5, 5), QColor(Qt::blue));
  EXPECT_EQ(QDir(folder.File("/PeoplePics")).entryList(QDir::Files), QStringList({"1.bmp", "3.bmp"}));
}

TEST_F(EditorFaults, AfterALockedStoreAnAdditionSucceeds)
{
  AddFamily();
  Open();
  const auto before = Everything();
  FillNew("Dan", "Dunn");
  {
    const DatabaseTaken other(folder.DatabasePath());
    Click(kFinishAdd);
  }
  EXPECT_EQ(Everything(), before);
  FillNew("Eve", "Evans");
  Click(kFinishAdd);
  EXPECT_EQ(Dump("SELECT FirstName, LastName FROM People WHERE PeopleID > 3"), std::vector<std::string>{"Eve|Evans|"});
  EXPECT_EQ(Counter(), " 4 of 4 people");
  EXPECT_EQ(Lines("cboStreet"), QStringList({"Adams, Ann", "Brown, Bob", "Cole, Cy", "Evans, Eve"}));
}

// The boxes hold the person that was lost; they must not be taken for somebody else's.
TEST_F(EditorFaults, WhatWasLostInALockedStoreIsNotWrittenOverSomebodyElse)
{
  AddFamily();
  Open();
  const auto before = Everything();
  FillNew("Dan", "Dunn");
  {
    const DatabaseTaken other(folder.DatabasePath());
    Click(kFinishAdd);
  }
  Click(kEdit);
  Click(kFinishEdit);
  EXPECT_EQ(Everything(), before);
  boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, "Delete Record");
  Click(kDelete);
  EXPECT_EQ(Everything(), before);
  EXPECT_EQ(QImage(PictureFile(1)).pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(EditorFaults, AnEditInALockedStoreLeavesTheRecordAsItWas)
{
  AddFamily();
  Open();
  const auto before = Everything();
  Click(kEdit);
  Type("txtFirst", "New");
  Type("txtCity", "Bath");
  Empty("txtStreet");
  Click("cmdDeletePic");
  QElapsedTimer timer;
  timer.start();
  {
    const DatabaseTaken other(folder.DatabasePath());
    Click(kFinishEdit);
  }
  EXPECT_LT(timer.elapsed(), kPatience);
  ExpectBrowsing();
  EXPECT_EQ(Everything(), before);
  Click("cmdNext");
  EXPECT_EQ(Name(), "Bob Brown");
  Click("cmdPrevious");
  EXPECT_EQ(Name(), "Ann Adams");
}

TEST_F(EditorFaults, AfterALockedStoreAnEditSucceeds)
{
  AddFamily();
  Open();
  Click(kEdit);
  Type("txtFirst", "New");
  {
    const DatabaseTaken other(folder.DatabasePath());
    Click(kFinishEdit);
  }
  Click(kEdit);
  Type("txtFirst", "Newer");
  Type("txtCity", "Bath");
  Click(kFinishEdit);
  EXPECT_EQ(Dump("SELECT FirstName, City, Street FROM People ORDER BY PeopleID"),
            (std::vector<std::string>{"Newer|Bath|1 High St|", "Bob|NULL|NULL|", "Cy|NULL|NULL|"}));
  EXPECT_EQ(Dump("SELECT Spouse1First FROM Ann"), std::vector<std::string>{"Newer|"});
}

TEST_F(EditorFaults, ADeleteInALockedStoreLeavesEverything)
{
  AddFamily();
  Open(3);
  const auto before = Everything();
  QElapsedTimer timer;
  timer.start();
  ExpectDelete(false);
  {
    const DatabaseTaken other(folder.DatabasePath());
    Click(kDelete);
  }
  EXPECT_LT(timer.elapsed(), kPatience);
  ExpectBrowsing();
  EXPECT_EQ(Everything(), before);
  EXPECT_TRUE(QFile::exists(PictureFile(3)));
  Click("cmdFirst");
  ExpectDelete(true);
  Click(kDelete);
  EXPECT_EQ(Dump("SELECT PeopleID FROM People"), (std::vector<std::string>{"2|", "3|"}));
}

// The lock comes between the two questions.
TEST_F(EditorFaults, ADeleteOfAPartnerInALockedStoreLeavesTheCouple)
{
  AddFamily();
  Open();
  const auto before = Everything();
  ExpectDelete(true);
  std::unique_ptr<DatabaseTaken> other;
  {
    AtMessageBox atBox([&] {
      if (boxes.Count() == 1) {
        other = std::make_unique<DatabaseTaken>(folder.DatabasePath());
      }
    });
    Click(kDelete);
    EXPECT_EQ(atBox.Looks, 2);
  }
  ASSERT_NE(other, nullptr);
  other.reset();
  ExpectBrowsing();
  EXPECT_EQ(Everything(), before);
  for (const QString& file : {PictureFile(1), CouplePictureFile(couple)}) {
    EXPECT_TRUE(QFile::exists(file)) << file.toStdString();
  }
  ExpectDelete(true);
  Click("cmdFirst");
  Click(kDelete);
  EXPECT_EQ(Dump("SELECT PeopleID, AnnYear FROM People"), (std::vector<std::string>{"2|NULL|", "3|NULL|"}));
  EXPECT_TRUE(Couples().empty());
}

TEST_F(EditorFaults, CancellingAndACancelledSearchEndInNoMessageWhileTheStoreIsLocked)
{
  AddFamily();
  Open();
  const DatabaseTaken other(folder.DatabasePath());
  Click(kEdit);
  Click(kCancelEdit);
  Click(kAdd);
  Click(kCancelAdd);
  questions.Expect("Please enter a last name and first name, in this format: Smith, Jim", "Search for a name",
                   std::nullopt);
  Click(kSearch);
  ExpectBrowsing();
}

TEST_F(EditorFaults, TheAnniversaryPageIsReachedWhileTheStoreIsLocked)
{
  AddFamily();
  Open();
  const DatabaseTaken other(folder.DatabasePath());
  Click(kAnniversary);
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(IsOpen("frmAnn"));
}

TEST_F(EditorFaults, AQuickFillFromALockedStoreEndsInNoMessage)
{
  AddFamily();
  Open();
  Click(kAdd);
  Type("txtFirst", "Dan");
  const DatabaseTaken other(folder.DatabasePath());
  Pick("cboStreet", "Adams, Ann");
  EXPECT_EQ(Shown("txtFirst"), "Dan");
  EXPECT_TRUE(IsShown("fraAdd"));
}

TEST_F(EditorFaults, TheMainPageIsReachedWhileTheStoreIsLocked)
{
  AddFamily();
  Open();
  const DatabaseTaken other(folder.DatabasePath());
  Click(kMain);
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(IsOpen("frmIntro"));
}

TEST_F(EditorFaults, ARowDeletedByAnotherProgramComesBackByNoEdit)
{
  AddFamily();
  Open(3);
  folder.Execute("DELETE FROM People WHERE PeopleID=3");
  const auto before = Everything();
  Click(kEdit);
  Type("txtCity", "Bath");
  Click(kFinishEdit);
  ExpectBrowsing();
  EXPECT_EQ(Everything(), before);
}
