// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RandomRun.h"

namespace {

constexpr std::size_t kFewPeople = 6;
constexpr std::size_t kManyPeople = 20;

const QStringList kMonths = {"January", "February", "March",     "April",   "May",      "June",
                             "July",    "August",   "September", "October", "November", "December"};
const QStringList kLastNames = {"Adams", "O'Brien", "de Vries", "smith", "Li"};

}

void RandomRun::Took(const std::string& step)
{
  ++taken[step];
  last = step;
}

Day RandomRun::SomeDay()
{
  Day day = {kMonths[Below(12)], QString::number(1 + Below(28)), QString::number(1950 + Below(70))};
  for (QString* part : {&day.month, &day.day, &day.year}) {
    if (OneIn(6)) {
      part->clear();
    }
  }
  return day;
}

CouplesModel::Person RandomRun::SomeName(CouplesModel::Person person)
{
  ++serial_;
  person.first = QStringLiteral("N%1").arg(serial_);
  person.last = kLastNames[Below(static_cast<int>(kLastNames.size()))];
  return person;
}

void RandomRun::Step()
{
  if (OneIn(IsOpen("frmAnn") ? 30 : 12) || (!IsOpen("frmNew") && !IsOpen("frmAnn"))) {
    ChangePage();
  } else if (IsOpen("frmNew")) {
    StepOnRecordEditor();
  } else {
    StepOnCoupleEditor();
  }
}

void RandomRun::ExpectAsModelled() const
{
  EXPECT_EQ(Dump(CouplesModel::kPeople), model_.PeopleRows());
  EXPECT_EQ(Dump(CouplesModel::kCouples), model_.CoupleRows());
  if (IsOpen("frmAnn")) {
    const auto name = [&](int person) {
      return person == 0 ? std::string() : model_.At(person).FullName().toStdString();
    };
    EXPECT_EQ(Chosen(kWomen), name(wife_));
    EXPECT_EQ(Chosen(kMen), name(husband_));
    EXPECT_EQ(ShownDay(), day_.Text());
  }
}

// --- From page to page.

void RandomRun::ChangePage()
{
  if (IsOpen("frmNew")) {
    LeaveRecordEditor();
  } else if (IsOpen("frmAnn")) {
    LeaveCoupleEditor();
  } else {
    OpenEither();
  }
}

void RandomRun::LeaveRecordEditor()
{
  if (OneIn(2)) {
    Took("edit anniversary");
    const int person = ShownPerson();
    const int partner = model_.PartnerOf(person);
    const bool isWoman = person == 0 || model_.At(person).isWoman;
    Record::Click(Record::kAnniversary);
    const bool isMarried = partner != 0;
    CoupleEditorHasOpened(isMarried ? (isWoman ? person : partner) : 0, isMarried ? (isWoman ? partner : person) : 0);
  } else {
    Took("leave the record editor");
    Record::Click(Record::kMain);
    EXPECT_TRUE(IsOpen("frmIntro"));
  }
  DropUnloaded();
  EXPECT_FALSE(IsOpen("frmNew"));
  EXPECT_EQ(Dump(CouplesModel::kTotals), model_.TotalRows());
}

void RandomRun::LeaveCoupleEditor()
{
  Took("leave the couple editor");
  const bool toRecords = OneIn(2);
  Click(toRecords ? AnnCommand::kNotListed : AnnCommand::kMain);
  DropUnloaded();
  EXPECT_FALSE(IsOpen("frmAnn"));
  EXPECT_TRUE(IsOpen(toRecords ? "frmNew" : "frmIntro"));
  EXPECT_EQ(Dump(CouplesModel::kTotals), model_.TotalRows());
}

void RandomRun::OpenEither()
{
  Took("open an editor");
  if (OneIn(2)) {
    OpenPage("frmNew");
  } else {
    OpenPage("frmAnn");
    CoupleEditorHasOpened(0, 0);
  }
}

void RandomRun::CoupleEditorHasOpened(int wife, int husband)
{
  wife_ = wife;
  husband_ = husband;
  day_ = model_.DayOf(wife);
  ASSERT_TRUE(IsOpen("frmAnn"));
  for (const bool women : {true, false}) {
    QStringList names;
    for (const int person : model_.People(women)) {
      names.append(model_.At(person).FullName());
    }
    QStringList listed = Lines(women ? kWomen : kMen);
    names.sort();
    listed.sort();
    EXPECT_EQ(listed, names);
  }
}

// --- On the record editor.

void RandomRun::StepOnRecordEditor()
{
  if (model_.Size() < kFewPeople) {
    AddSomebody();
  } else if (model_.Size() > kManyPeople) {
    DeleteShown();
  } else {
    using Work = void (RandomRun::*)();
    constexpr Work kSteps[] = {&RandomRun::AddSomebody, &RandomRun::ChangeShown, &RandomRun::ChangeShown,
                               &RandomRun::DeleteShown, &RandomRun::Browse,      &RandomRun::Browse};
    (this->*kSteps[Below(6)])();
  }
}

int RandomRun::ShownPerson() const
{
  const int person = model_.PersonNamed(Record::Box("txtFirst").Text());
  EXPECT_EQ(person == 0, model_.Size() == 0);
  return person;
}

void RandomRun::AddSomebody()
{
  const CouplesModel::Person person = SomeName({"", "", OneIn(2) ? "a note" : "", OneIn(2)});
  Record::Click(Record::kAdd);
  Record::Type("txtFirst", person.first);
  Record::Type("txtLast", person.last);
  Record::Type("txtNotes", person.notes);
  Hands::PickLine(dynamic_cast<ComboBox&>(Drive::Control(Record::Page(), "cboSex")),
                  person.isWoman ? "Female" : "Male");
  if (OneIn(8)) {
    Took("cancel an addition");
    Record::Click(Record::kCancelAdd);
  } else {
    Took("add a person");
    Record::Click(Record::kFinishAdd);
    model_.AddPerson(person);
  }
}

void RandomRun::ChangeShown()
{
  const int shown = ShownPerson();
  if (shown == 0) {
    return;
  }
  CouplesModel::Person person = model_.At(shown);
  Record::Click(Record::kEdit);
  std::string step = "change notes";
  if (OneIn(2)) {
    step = "rename";
    person = SomeName(person);
    Record::Type("txtFirst", person.first);
    Record::Type("txtLast", person.last);
  } else {
    person.notes = OneIn(3) ? QString() : QStringLiteral("note %1").arg(Below(1000));
    Record::Type("txtNotes", person.notes);
  }
  if (OneIn(8)) {
    Took("cancel an edit");
    Record::Click(Record::kCancelEdit);
  } else {
    Took(step);
    Record::Click(Record::kFinishEdit);
    model_.At(shown) = person;
  }
}

void RandomRun::DeleteShown()
{
  const int shown = ShownPerson();
  const bool isMarried = model_.CoupleOf(shown) != 0;
  if (OneIn(6)) {
    Took("refuse a deletion");
    Record::ExpectQuestion(boxes, QMessageBox::No);
  } else if (isMarried && OneIn(4)) {
    Took("refuse a deletion with partner");
    Record::ExpectQuestion(boxes, QMessageBox::Yes);
    Record::ExpectMarriedQuestion(boxes, QMessageBox::Cancel);
  } else {
    Took(isMarried ? "delete a person with partner" : "delete a person");
    Record::ExpectQuestion(boxes, QMessageBox::Yes);
    if (isMarried) {
      Record::ExpectMarriedQuestion(boxes, QMessageBox::Ok);
    }
    model_.DeletePerson(shown);
  }
  Record::Click(Record::kDelete);
}

void RandomRun::Browse()
{
  Took("browse");
  const QStringList buttons = {"cmdFirst", "cmdPrevious", "cmdNext", "cmdLast"};
  Record::Click(buttons[Below(4)]);
  static_cast<void>(ShownPerson());
}

// --- On the couple editor.

void RandomRun::StepOnCoupleEditor()
{
  using Work = void (RandomRun::*)();
  constexpr Work kSteps[] = {&RandomRun::ChooseSomebody, &RandomRun::ChooseSomebody, &RandomRun::ChooseSomebody,
                             &RandomRun::EnterDay,       &RandomRun::UpdateChosen,   &RandomRun::UpdateChosen,
                             &RandomRun::UpdateChosen,   &RandomRun::UpdateWrongDay, &RandomRun::DeleteSomeCouple,
                             &RandomRun::CancelEntry,    &RandomRun::MarryTwice};
  (this->*kSteps[Below(11)])();
}

void RandomRun::ChooseWife(int person)
{
  ClickLine(kWomen, model_.At(person).FullName());
  wife_ = person;
  husband_ = model_.CoupleOf(person) != 0 ? model_.PartnerOf(person) : husband_;
  day_ = model_.DayOf(person);
}

void RandomRun::ChooseHusband(int person)
{
  ClickLine(kMen, model_.At(person).FullName());
  husband_ = person;
  wife_ = model_.CoupleOf(person) != 0 ? model_.PartnerOf(person) : wife_;
  day_ = model_.DayOf(person);
}

void RandomRun::ChooseSomebody()
{
  const bool women = OneIn(2);
  const std::vector<int> people = OneIn(2) ? model_.Singles(women) : model_.People(women);
  if (people.empty()) {
    return;
  }
  Took("choose somebody");
  if (women) {
    ChooseWife(OneOf(people));
  } else {
    ChooseHusband(OneOf(people));
  }
}

// Most users change one part of a date at a time.
void RandomRun::EnterDay()
{
  Took("enter a date");
  const Day day = SomeDay();
  const int part = Below(4);
  if (part == 0 || part == 3) {
    Pick("cboAnnMonth", day_.month = day.month);
  }
  if (part == 1 || part == 3 || day_.day == "30") {
    Pick("cboAnnDate", day_.day = day.day);
  }
  if (part == 2 || part == 3) {
    Pick("cboAnnYear", day_.year = day.year);
  }
}

void RandomRun::UpdateChosen()
{
  if (wife_ == 0 || husband_ == 0 || OneIn(3)) {
    ChooseSomebody();
    ChooseSomebody();
  }
  if (wife_ == 0 || husband_ == 0) {
    Took("update without partners");
    boxes.Expect(model_.Size() == 0 ? "There are no names in the database" : "Please select both partners");
    Update();
    return;
  }
  const int wifes = model_.CoupleOf(wife_);
  const int husbands = model_.CoupleOf(husband_);
  Took(wifes == 0 && husbands == 0 ? "make a couple" : wifes == husbands ? "change a date" : "replace a partner");
  Update();
  EXPECT_TRUE(model_.Marry(wife_, husband_, day_));
  EXPECT_TRUE(IsDone());
  QStringList lines;
  for (const auto& [key, couple] : model_.Couples()) {
    lines.append(model_.LineOf(couple));
  }
  EXPECT_EQ(Lines(kCouples), lines);
}

// There is no 30 February, but a 30 January.
void RandomRun::UpdateWrongDay()
{
  if (wife_ == 0 || husband_ == 0) {
    return;
  }
  Took("refuse a date");
  Pick("cboAnnMonth", "February");
  Pick("cboAnnDate", day_.day = "30");
  boxes.Expect("February 30 is not valid. Please try again.");
  Update();
  Pick("cboAnnMonth", day_.month = "January");
}

void RandomRun::DeleteSomeCouple()
{
  if (model_.Couples().empty()) {
    Took("delete without couples");
    Delete();
    return;
  }
  Took("delete a couple");
  auto couple = model_.Couples().begin();
  std::advance(couple, Below(static_cast<int>(model_.Couples().size())));
  ClickLine(kCouples, model_.LineOf(couple->second));
  Delete();
  model_.Part(couple->first);
  day_ = kNoDay;
}

void RandomRun::CancelEntry()
{
  Took("cancel an entry");
  Click(AnnCommand::kCancel);
  wife_ = husband_ = 0;
  day_ = kNoDay;
}

// Two who were single when they were chosen are married to others from outside meanwhile.
void RandomRun::MarryTwice()
{
  const std::vector<int> women = model_.Singles(true);
  const std::vector<int> men = model_.Singles(false);
  if (women.size() < 2 || men.size() < 2) {
    return;
  }
  Took("refuse a double marriage");
  Click(AnnCommand::kCancel);
  wife_ = husband_ = 0;
  ChooseWife(women[0]);
  ChooseHusband(men[0]);
  for (const auto& [wife, husband] : {std::pair(women[0], men[1]), std::pair(women[1], men[0])}) {
    Marry(wife, husband, kJune);
    EXPECT_TRUE(model_.Marry(wife, husband, kJune));
  }
  EXPECT_FALSE(model_.Marry(women[0], men[0], day_));
  boxes.Expect(kBothMarried);
  Update();
  EXPECT_FALSE(model_.Couples().empty());
  LeaveCoupleEditor();
}
