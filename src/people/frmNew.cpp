// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/frmNew.h"

#include "controls/Forms.h"
#include "controls/Frame.h"
#include "controls/modID.h"
#include "charts/modConvert.h"
#include "looks/modMouseMove.h"
#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "people/DateBoxes.h"
#include "people/EntryKeys.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "platform/HelpViewer.h"
#include "platform/InputBox.h"
#include "platform/MsgBox.h"
#include "ui_frmNew.h"

#include <QShortcut>

#include <array>
#include <utility>

namespace {

constexpr int kFinishAddition = 0;
constexpr int kFinishEdit = 5;

}

frmNew::frmNew()
    : Form(QStringLiteral("frmNew"), Kind::kPage),
      ui_([this] {
        auto ui = std::make_unique<Ui::frmNew>();
        ui->setupUi(this);
        return ui;
      }()),
      mode_(*this),
      boxes_(*this),
      picture_(*this, QStringLiteral("/PeoplePics/"), [this] { return records_->CurrentPeopleID(); }),
      addresses_(*ui_->cboStreet)
{
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  ConnectControls();
}

frmNew::~frmNew() = default;

void frmNew::ConnectControls()
{
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmNew::lblOptions_Click);
  connect(ui_->cmdFirst, &QPushButton::clicked, this, &frmNew::cmdFirst_Click);
  connect(ui_->cmdPrevious, &QPushButton::clicked, this, &frmNew::cmdPrevious_Click);
  connect(ui_->cmdNext, &QPushButton::clicked, this, &frmNew::cmdNext_Click);
  connect(ui_->cmdLast, &QPushButton::clicked, this, &frmNew::cmdLast_Click);
  connect(ui_->cboStreet, &ComboBox::Click, this, &frmNew::cboStreet_Click);
  connect(ui_->cmdAddPic, &QPushButton::clicked, this, &frmNew::cmdAddPic_Click);
  connect(ui_->cmdDeletePic, &QPushButton::clicked, this, &frmNew::cmdDeletePic_Click);
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
    const auto* finish = new QShortcut(Qt::CTRL | key, this);
    connect(finish, &QShortcut::activated, this, &frmNew::FinishByKey);
  }
  WalkByEnter();
}

void frmNew::WalkByEnter()
{
  enterWalk_.Join(*ui_->cboBirthMonth, *ui_->cboBirthDate);
  enterWalk_.Join(*ui_->cboBirthDate, *ui_->cboBirthYear);
  enterWalk_.Join(*ui_->cboBirthYear, *ui_->cboSex);
  enterWalk_.Join(*ui_->cboSex, *ui_->txtPhone);
}

void frmNew::Form_Load()
{
  DateBoxes::FillMonths(*ui_->cboBirthMonth);
  ui_->cboSex->AddItems({QStringLiteral("Female"), QStringLiteral("Male")});
  DateBoxes::FillDays(*ui_->cboBirthDate);
  DateBoxes::FillYears(*ui_->cboBirthYear);
  for (const char* page : {"frmSpecial", "frmCharts", "frmAnn", "frmQuillmark", "frmReminders"}) {
    Forms::Unload(QLatin1String(page));
  }
  Frame::Current().AllowDatabaseCare(false);
  records_ = std::make_unique<PersonRecords>();
  ShowFirstPerson();
  RefreshAddressList();
  ShowSelectedPerson();
  modResize::InitControlsToResize(*this);
  boxes_.LockFields();
  new EntryKeys(*this);
  modToolTips::SetTips(*this);
  ShowCounter();
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
}

void frmNew::ShowFirstPerson()
{
  if (!records_->IsEmpty()) {
    records_->Cursor().MoveFirst();
    ShowOpened();
  }
}

void frmNew::ShowSelectedPerson()
{
  const int selected = std::exchange(modID::SelectedPersonID, 0);
  if (selected == 0 || records_->IsEmpty()) {
    return;
  }
  records_->GoTo(selected);
  if (!records_->Cursor().Eof()) {
    ShowOpened();
  }
}

void frmNew::ShowOpened()
{
  ShowRow();
  picture_.Empty();
  ShowPicture();
}

// What stops the counting does not keep the page.
void frmNew::Form_Unload()
{
  records_.reset();
  modID::SelectedPersonID = 0;
  Frame::Current().AllowDatabaseCare(true);
  modConvert::TallyAnniversaries();
  modConvert::TallyBirthdays();
  modConvert::TallyAges();
}

void frmNew::Form_Resize()
{
  if (Frame::Current().State() == WindowState::kMinimised) {
    return;
  }
  modResize::ResizeControls(*this);
  for (ComboBox* box : {ui_->cboBirthMonth, ui_->cboBirthDate, ui_->cboBirthYear}) {
    box->resize(ui_->fraBirthday->width(), box->height());
  }
  ui_->cboSex->resize(ui_->fraGender->width(), ui_->cboSex->height());
  ui_->cboStreet->resize(ui_->fraCombo->width(), ui_->cboStreet->height());
  picture_.Resize();
}

// Whatever fails on the way is passed over; what was written is made lasting here, so
// that a failure of that ends nothing either.
void frmNew::lblOptions_Click(int index)
{
  static constexpr std::array<void (frmNew::*)(), 11> kCommands = {
      &frmNew::FinishAddition, &frmNew::CancelAddition,  &frmNew::GoToMainPage, &frmNew::SearchForName,
      &frmNew::CancelEdit,     &frmNew::FinishEdit,      &frmNew::AddNewName,   &frmNew::EditRecord,
      &frmNew::DeleteRecord,   &frmNew::EditAnniversary, &frmNew::ShowHelp};
  (this->*kCommands.at(static_cast<std::size_t>(index)))();
  Attempt([] { Command::Settle(); });
}

void frmNew::FinishByKey()
{
  if (mode_.IsAdding()) {
    lblOptions_Click(kFinishAddition);
  } else if (mode_.IsEditing()) {
    lblOptions_Click(kFinishEdit);
  }
}

void frmNew::AddNewName()
{
  mode_.BeginAdding();
  picture_.Empty();
  picture_.Fit();
  ui_->txtFirst->setFocus();
  boxes_.UnlockFields();
  boxes_.ClearFields();
  ui_->lblCompleteAnn->clear();
}

void frmNew::FinishAddition()
{
  if (!ValidateEntry()) {
    return;
  }
  if (records_->Add(boxes_) && picture_.HasPicture()) {
    picture_.StorePicture();
  }
  RefreshAddressList();
  boxes_.LockFields();
  mode_.ReturnToBrowse();
  ShowCounter();
}

void frmNew::CancelAddition()
{
  ShowOrLeave([this] { ShowRow(); });
  ShowCounter();
  picture_.Empty();
  ShowPicture();
  boxes_.LockFields();
  mode_.ReturnToBrowse();
}

void frmNew::EditRecord()
{
  if (!records_->IsEmpty()) {
    mode_.BeginEditing();
    boxes_.UnlockFields();
  }
}

void frmNew::FinishEdit()
{
  if (!ValidateEntry()) {
    return;
  }
  const bool written = records_->Change(boxes_);
  picture_.KeepPictureFile = false;
  if (written) {
    picture_.StoreOrDelete();
  }
  RefreshAddressList();
  boxes_.LockFields();
  mode_.ReturnToBrowse();
}

// The wedding date is left as it stands.
void frmNew::CancelEdit()
{
  boxes_.ClearFields();
  ShowOrLeave([this] { boxes_.Show(records_->Cursor()); });
  boxes_.LockFields();
  mode_.ReturnToBrowse();
  picture_.Empty();
  ShowPicture();
  picture_.KeepPictureFile = false;
}

bool frmNew::ValidateEntry()
{
  EntryRules::Entry entry = boxes_.Entry();
  const auto refusal = EntryRules::ValidateEntry(entry, Clock::Today());
  if (entry.secondAddress != ui_->txtSecondAddress->Text()) {
    ui_->txtSecondAddress->SetText(entry.secondAddress);
  }
  if (!refusal) {
    return true;
  }
  MsgBox(refusal->message);
  boxes_.Focus(refusal->box);
  return false;
}

void frmNew::DeleteRecord()
{
  if (records_->IsEmpty()) {
    return;
  }
  boxes_.UnlockFields();
  const MsgBoxAnswer answer = MsgBox(QStringLiteral("Are you sure you want to delete this record?"),
                                     MsgBoxButtons::kYesNo, QStringLiteral("Delete Record"));
  if (answer == MsgBoxAnswer::kYes && !DeletePerson()) {
    boxes_.LockFields();
    return;
  }
  boxes_.LockFields();
  modID::RecordDeleted = true;
  ShowCounter();
}

// False if the user keeps the person for the sake of the couple. Pictures go last: a
// record that could not be deleted keeps its own.
bool frmNew::DeletePerson()
{
  const int person = records_->CurrentPeopleID();
  std::vector<Couples::Couple> couples;
  if (!Attempt([&] { couples = records_->CouplesOfCurrent(); })) {
    return true;
  }
  for (std::size_t asked = 0; asked < couples.size(); ++asked) {
    if (MsgBox(QStringLiteral("This person is married. Quillmark will also delete anniversary information for this "
                              "couple. If you select Cancel, no records will be deleted."),
               MsgBoxButtons::kOkCancel, QStringLiteral("Delete anniversary information")) != MsgBoxAnswer::kOk) {
      return false;
    }
  }
  if (records_->Delete(couples)) {
    for (const Couples::Couple& couple : couples) {
      RecordPicture::AnnFileDelete(couple.annID);
    }
    picture_.FileDelete(person);
  }
  picture_.Empty();
  picture_.Fit();
  boxes_.ClearFields();
  ui_->lblCompleteAnn->clear();
  if (!records_->IsEmpty()) {
    ShowOrLeave([this] { ShowRow(); });
    ShowPicture();
  }
  RefreshAddressList();
  return true;
}

void frmNew::RefreshAddressList()
{
  addresses_.Clear();
  Attempt([this] { addresses_.Refresh(*records_->OpenAddresses()); });
}

void frmNew::SearchForName()
{
  if (records_->IsEmpty()) {
    return;
  }
  const QString name = InputBox(QStringLiteral("Please enter a last name and first name, in this format: Smith, Jim"),
                                QStringLiteral("Search for a name"));
  if (name.isEmpty()) {
    return;
  }
  if (!records_->FindName(name)) {
    MsgBox(QStringLiteral("Sorry, that name is not in the database"));
    return;
  }
  ShowOrLeave([this] { ShowRow(); });
  ShowPicture();
  ShowCounter();
}

void frmNew::EditAnniversary()
{
  if (mode_.RefuseWhileBusy(
          QStringLiteral("Please finish adding or editing your record before editing anniversary information"))) {
    return;
  }
  Attempt([this] { records_->HandOverCouple(); });
  Attempt([this] { Unload(); });
  if (!Attempt([] { Forms::Load(QStringLiteral("frmAnn")).Show(); })) {
    Frame::Current().AllowDatabaseCare(true);
    Forms::Load(QStringLiteral("frmIntro")).Show();
  }
}

void frmNew::ShowHelp()
{
  HelpViewer::ShowContext(HelpViewer::kQuickFill);
}

void frmNew::GoToMainPage()
{
  if (!mode_.RefuseWhileBusy(QStringLiteral("Please finish adding or editing your record before exiting"))) {
    Attempt([this] { Unload(); });
    Forms::Load(QStringLiteral("frmIntro")).Show();
  }
}

void frmNew::cmdFirst_Click()
{
  Browse(&Recordset::MoveFirst);
}

void frmNew::cmdPrevious_Click()
{
  Browse(&Recordset::MovePrevious);
}

void frmNew::cmdNext_Click()
{
  Browse(&Recordset::MoveNext);
}

void frmNew::cmdLast_Click()
{
  Browse(&Recordset::MoveLast);
}

// A step off either end is taken back and leaves the page as it is, unless the row that
// the page shows was no longer the current one.
void frmNew::Browse(void (Recordset::*step)())
{
  const int before = records_->CurrentPeopleID();
  if (!records_->IsEmpty() && (records_->Step(step) || records_->CurrentPeopleID() != before)) {
    ShowCurrentRecord();
  }
}

void frmNew::ShowRow()
{
  boxes_.ClearFields();
  ui_->lblCompleteAnn->clear();
  boxes_.Show(records_->Cursor());
  ui_->lblCompleteAnn->setText(records_->Cursor().Fields(QStringLiteral("CompleteAnn")).Value().toString());
}

void frmNew::ShowOrLeave(const std::function<void()>& show)
{
  if (!Attempt(show)) {
    boxes_.ClearFields();
    ui_->lblCompleteAnn->clear();
    picture_.Empty();
    records_->LeaveNoCurrentRow();
    ShowCounter();
  }
}

void frmNew::ShowPicture()
{
  picture_.LoadImage();
  picture_.HideAndFit();
}

void frmNew::ShowCurrentRecord()
{
  ShowRow();
  ShowCounter();
  picture_.ShowInBox();
}

void frmNew::ShowCounter()
{
  Recordset& cursor = records_->Cursor();
  ui_->lblValues->setText(
      QStringLiteral(" %1 of %2 people").arg(cursor.AbsolutePosition() + 1).arg(cursor.RecordCount()));
}

// The address and the home phone of the chosen person; names, birthday and the rest are
// left as they are.
void frmNew::cboStreet_Click()
{
  if (ui_->cboStreet->Locked()) {
    return;
  }
  Attempt([this] { boxes_.CopyAddress(*records_->Find(addresses_.ChosenID())); });
}

void frmNew::cmdAddPic_Click()
{
  picture_.Choose(!mode_.IsAdding());
}

void frmNew::cmdDeletePic_Click()
{
  picture_.Remove();
}
