// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PeopleTest.h"

#include "looks/modToolTips.h"

using namespace PeopleTexts;

namespace {

class EditorLoad : public PeopleTest
{
protected:
  static QStringList Numbers(int from, int to)
  {
    QStringList numbers;
    for (int number = from; number <= to; ++number) {
      numbers.append(QString::number(number));
    }
    return numbers;
  }

  static std::string Tip(const QString& name) { return Control(name).toolTip().toStdString(); }
};

}

TEST_F(EditorLoad, FillsTheLists)
{
  Open();
  const QStringList months = {"January", "February", "March",     "April",   "May",      "June",
                              "July",    "August",   "September", "October", "November", "December"};
  EXPECT_EQ(Lines("cboBirthMonth"), months);
  EXPECT_EQ(Lines("cboSex"), QStringList({"Female", "Male"}));
  EXPECT_EQ(Lines("cboBirthDate"), Numbers(1, 31));
  EXPECT_EQ(Lines("cboBirthYear"), Numbers(1900, 2050));
}

TEST_F(EditorLoad, TakesTheMonthsFromTheFile)
{
  QFile file(folder.File("/months.txt"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("Hornung\nLenzing");
  file.close();
  Open();
  EXPECT_EQ(Lines("cboBirthMonth"), QStringList({"Hornung", "Lenzing"}));
}

TEST_F(EditorLoad, AnEmptyTableShowsNobody)
{
  Open();
  for (const QString& name : kAllBoxes) {
    EXPECT_EQ(Shown(name), "") << name.toStdString();
  }
  EXPECT_EQ(Counter(), " 0 of 0 people");
  EXPECT_TRUE(Lines("cboStreet").isEmpty());
  ExpectNoPicture();
}

TEST_F(EditorLoad, ForbidsTheCareOfTheDatabaseUntilItIsLeft)
{
  Open();
  EXPECT_FALSE(frame.careAllowed);
  Leave();
  EXPECT_TRUE(frame.careAllowed);
}

TEST_F(EditorLoad, UnloadsTheOtherPagesThatHoldTheStore)
{
  for (const char* name : {"frmIntro", "frmSpecial", "frmCharts", "frmAnn", "frmQuillmark", "frmReminders"}) {
    Forms::Load(name);
  }
  Open();
  for (const char* name : {"frmSpecial", "frmCharts", "frmAnn", "frmQuillmark", "frmReminders"}) {
    EXPECT_FALSE(IsOpen(name)) << name;
  }
  EXPECT_TRUE(IsOpen("frmIntro"));
}

TEST_F(EditorLoad, ShowsTheFirstByBothNamesRunTogether)
{
  AddPerson("Zoe", "Li");
  AddPerson("Ann", "Lim");
  AddPerson("bob", "young");
  Open();
  EXPECT_EQ(Name(), "Ann Lim");
  EXPECT_EQ(Counter(), " 1 of 1 people");
  EXPECT_EQ(Lines("cboStreet"), QStringList({"Lim, Ann", "Li, Zoe", "young, bob"}));
}

TEST_F(EditorLoad, ShowsEveryColumn)
{
  QVariantMap columns;
  for (const auto& [box, column] : kColumns) {
    columns[column] = "in " + column;
  }
  columns["Gender"] = "Male";
  columns["BirthMonth"] = "July";
  columns["BirthDate"] = "9";
  columns["BirthYear"] = "1971";
  columns["AnnMonth"] = "May";
  columns["AnnYear"] = "1999";
  AddPerson("in FirstName", "in LastName", columns);
  Save(PictureFile(1), {40, 20}, Qt::blue);
  Open();
  for (const auto& [box, column] : kColumns) {
    EXPECT_EQ(Shown(box), column == "FirstName" || column == "LastName" ? ("in " + column).toStdString()
                                                                        : columns[column].toString().toStdString());
  }
  EXPECT_EQ(Caption("lblCompleteAnn"), "May  1999");
  EXPECT_EQ(Shown("cboStreet"), "");
  EXPECT_EQ(ShownColour(), "#0000ff");
  EXPECT_TRUE(IsShown("imgPerson"));
}

TEST_F(EditorLoad, WithoutAnAnniversaryOnlyItsTwoBlanksAreShown)
{
  AddPerson("Ann", "Adams");
  Open();
  EXPECT_EQ(Caption("lblCompleteAnn"), "  ");
}

TEST_F(EditorLoad, ATextThatALineIsLackingForIsShownAllTheSame)
{
  AddPerson("Ann", "Adams", {{"BirthMonth", "Janua"}, {"BirthDate", "32"}, {"BirthYear", "2051"}});
  Open();
  EXPECT_EQ(Shown("cboBirthMonth"), "Janua");
  EXPECT_EQ(Shown("cboBirthDate"), "32");
  EXPECT_EQ(Shown("cboBirthYear"), "2051");
}

TEST_F(EditorLoad, ShowsTheSelectedPerson)
{
  AddPerson("Ann", "Adams", {{"Notes", "first"}, {"Phone", "1"}});
  AddPerson("Bob", "Brown");
  const int cy = AddPerson("Cy", "Cole", {{"City", "Bath"}});
  AddPerson("Dan", "Dunn");
  Save(PictureFile(cy), {40, 20}, Qt::green);
  Open(cy);
  EXPECT_EQ(Name(), "Cy Cole");
  EXPECT_EQ(Shown("txtNotes"), "");
  EXPECT_EQ(Shown("txtPhone"), "");
  EXPECT_EQ(Shown("txtCity"), "Bath");
  EXPECT_EQ(ShownColour(), "#00ff00");
  EXPECT_EQ(Counter(), " 3 of 3 people");
  EXPECT_EQ(modID::SelectedPersonID, 0);
}

TEST_F(EditorLoad, ASelectedPersonWithoutAPictureDoesNotGetTheFirstOnes)
{
  Save(PictureFile(AddPerson("Ann", "Adams")));
  Open(AddPerson("Bob", "Brown"));
  EXPECT_EQ(Name(), "Bob Brown");
  ExpectNoPicture();
}

TEST_F(EditorLoad, ASelectedPersonWhoIsGoneLeavesTheFirstOnThePage)
{
  AddPerson("Ann", "Adams");
  AddPerson("Bob", "Brown");
  AddPerson("Cy", "Cole");
  Open(99);
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 0 of 3 people");
  EXPECT_EQ(modID::SelectedPersonID, 0);
  Click("cmdPrevious");
  EXPECT_EQ(Name(), "Cy Cole");
  EXPECT_EQ(Counter(), " 3 of 3 people");
}

TEST_F(EditorLoad, WithNobodyCurrentAnEditAndADeleteChangeNobody)
{
  AddPerson("Ann", "Adams");
  AddPerson("Bob", "Brown");
  Open(99);
  const auto before = People();
  Click(kEdit);
  Type("txtFirst", "Other");
  Click(kFinishEdit);
  EXPECT_EQ(People(), before);
  EXPECT_FALSE(IsShown("fraEdit"));
  boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, "Delete Record");
  Click(kDelete);
  EXPECT_EQ(People(), before);
}

TEST_F(EditorLoad, NobodyIsSelectedAfterThePageIsLeft)
{
  Open();
  modID::SelectedPersonID = 5;
  Leave();
  EXPECT_EQ(modID::SelectedPersonID, 0);
  EXPECT_FALSE(IsOpen());
}

TEST_F(EditorLoad, BeginsWithTheFirstPersonAgainAfterItWasLeft)
{
  AddPerson("Ann", "Adams");
  AddPerson("Bob", "Brown");
  Open();
  Click("cmdNext");
  Reopen();
  EXPECT_EQ(Name(), "Ann Adams");
  EXPECT_EQ(Counter(), " 1 of 1 people");
}

TEST_F(EditorLoad, ANameThatIsNullIsShownEmpty)
{
  folder.Execute("INSERT INTO People (FirstName, City) VALUES (NULL, 'Bath'), ('Ann', 'Wells')");
  Open();
  EXPECT_EQ(Name(), " ");
  EXPECT_EQ(Shown("txtCity"), "Bath");
}

TEST_F(EditorLoad, AKeyOfAnySizeIsFound)
{
  AddPerson("Ann", "Adams");
  AddPerson("Bob", "Brown", {{"PeopleID", 70'000}});
  Open(70'000);
  EXPECT_EQ(Name(), "Bob Brown");
  Click(kEdit);
  Type("txtCity", " ");
  Type("txtFirst", "New");
  Click(kFinishEdit);
  EXPECT_EQ(Stored(70'000, "FirstName"), "New");
  EXPECT_EQ(Stored(70'000, "City"), "NULL");
}

TEST_F(EditorLoad, CaptionsAreInFull)
{
  Open();
  EXPECT_EQ(Page().windowTitle().toStdString(), "Add or edit records");
  const std::pair<const char*, const char*> captions[] = {{"lblTitleFind", "Database"},
                                                          {"Label1", "p e r s o n a l  r e c o r d s "},
                                                          {"lblOptions_0", "Finish"},
                                                          {"lblOptions_1", "Cancel"},
                                                          {"lblOptions_2", "<< Main"},
                                                          {"lblOptions_3", "Search for a name"},
                                                          {"lblOptions_4", "Cancel"},
                                                          {"lblOptions_5", "Finish"},
                                                          {"lblOptions_6", "Add a new name"},
                                                          {"lblOptions_7", "Edit a record"},
                                                          {"lblOptions_8", "Delete a record"},
                                                          {"lblOptions_9", "Edit anniversary"},
                                                          {"lblOptions_10", "(Refer to Help before using)"}};
  for (const auto& [name, caption] : captions) {
    EXPECT_EQ(Caption(name), caption) << name;
  }
  const std::pair<const char*, const char*> buttons[] = {{"cmdFirst", " l<"},
                                                         {"cmdPrevious", "<"},
                                                         {"cmdNext", ">"},
                                                         {"cmdLast", " >l"},
                                                         {"cmdAddPic", "Add or change image"},
                                                         {"cmdDeletePic", "Delete image"}};
  for (const auto& [name, caption] : buttons) {
    EXPECT_EQ(Control(name).property("text").toString().toStdString(), caption) << name;
  }
  const std::pair<const char*, const char*> panels[] = {{"fraAdd", "Add a new name"},
                                                        {"fraEdit", "Edit this record"},
                                                        {"fraNav", "Navigation"},
                                                        {"fraTools", "Database tools"},
                                                        {"fraOther", "Search Options"}};
  for (const auto& [name, caption] : panels) {
    EXPECT_EQ(Control(name).property("title").toString().toStdString(), caption) << name;
  }
}

TEST_F(EditorLoad, EveryBoxHasItsLabel)
{
  Open();
  QStringList captions;
  for (const Label* label : Page().findChildren<Label*>()) {
    captions.append(label->text());
  }
  for (const char* caption :
       {" Name (required)", " First",      " Last",       " Address",    " Address 1", " Address 2",
        " City/Town",       " State/Prov", " Country",    " Zip/Postal", " Contact",   " Home phone",
        " Mobile",          " Bus. phone", " Email",      " Special",    " Birthday",  " Gender (required)",
        " Anniversary",     " Notes",      " Quick-fill "}) {
    EXPECT_EQ(captions.count(caption), 1) << caption;
  }
}

TEST_F(EditorLoad, EveryCommandStandsInItsFrame)
{
  Open();
  const std::pair<int, const char*> places[] = {
      {0, "fraAdd"},   {1, "fraAdd"},   {2, "frmNew"},   {3, "fraOther"},   {4, "fraEdit"},      {5, "fraEdit"},
      {6, "fraTools"}, {7, "fraTools"}, {8, "fraTools"}, {9, "fraSpecial"}, {10, "fraQuickfill"}};
  for (const auto& [index, place] : places) {
    const QWidget& command = Control(QStringLiteral("lblOptions_%1").arg(index));
    EXPECT_EQ(command.parentWidget()->objectName().toStdString(), place) << index;
  }
}

TEST_F(EditorLoad, TipsAreThereUntilTheyAreOff)
{
  Open();
  EXPECT_EQ(Tip("lblOptions_8"), "Delete this person from the database");
  EXPECT_EQ(Tip("cmdLast"), "Click to go to the last record");
  EXPECT_EQ(Tip("cboStreet"), "Fills in boxes with information already entered for another person.");
  EXPECT_EQ(Tip("txtStreet"), "First line of street address");
  EXPECT_EQ(Tip("txtSecondAddress"), "Second line of street address, if needed");
  EXPECT_EQ(Tip("lblAnniversary"), "Go to the anniversaries page to enter this information");
  Leave();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  folder.Execute("UPDATE Options SET ToolTips=1");
  modToolTips::SetTipsOff(true);
  Open();
  for (const QWidget* control : Page().Controls()) {
    EXPECT_EQ(control->toolTip().toStdString(), "") << control->objectName().toStdString();
  }
  modToolTips::SetTipsOff(false);
}
