// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/frmQuillmark.h"

#include "controls/Choices.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "controls/modID.h"
#include "looks/modMouseMove.h"
#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "lookup/ClipboardText.h"
#include "lookup/Correspondence.h"
#include "people/Couples.h"
#include "people/modImages.h"
#include "platform/Attempt.h"
#include "platform/MsgBox.h"
#include "store/DBEngine.h"
#include "store/Queries.h"
#include "ui_frmQuillmark.h"

#include <QApplication>
#include <QClipboard>

namespace {

constexpr int kMain = 0;
constexpr int kOpenPrint = 1;
constexpr int kOpenLetter = 2;
constexpr int kEmail = 3;
constexpr int kClip = 4;
constexpr int kExitPrint = 5;
constexpr int kNotepad = 6;
constexpr int kWord = 7;
constexpr int kWordPad = 8;
constexpr int kExitLetter = 9;
constexpr int kPrint = 10;
constexpr int kOpenDatabase = 11;
constexpr int kExitDatabase = 12;

constexpr int kByFirstName = 0;
constexpr int kCheckAll = 0;
constexpr int kTimerMilliseconds = 500;

}

frmQuillmark::frmQuillmark()
    : Form(QStringLiteral("frmQuillmark"), Kind::kPage),
      ui_([this] {
        auto ui = std::make_unique<Ui::frmQuillmark>();
        ui->setupUi(this);
        return ui;
      }()),
      results_{{*ui_->chkInfo_0, *ui_->txtPhoneInfo, *ui_->txtPhoneInfo, *ui_->shpPhone},
               {*ui_->chkInfo_3, *ui_->txtMobileInfo, *ui_->txtMobileInfo, *ui_->shpMobile},
               {*ui_->chkInfo_4, *ui_->txtBusInfo, *ui_->txtBusInfo, *ui_->shpBus},
               {*ui_->chkInfo_1, *ui_->txtEmailInfo, *ui_->txtEmailInfo, *ui_->shpEmail},
               {*ui_->chkInfo_2, *ui_->txtAddress, *ui_->txtAddress, *ui_->shpAddress},
               {*ui_->chkPersonal_0, *ui_->txtBirthInfo, *ui_->txtBirthInfo, *ui_->shpBirth},
               {*ui_->chkPersonal_1, *ui_->txtAnnInfo, *ui_->txtAnnInfo, *ui_->shpAnn},
               {*ui_->chkNotes, *ui_->txtNotes, *ui_->txtNotes, *ui_->shpNotes},
               {}},
      titles_(*ui_->txtContact, *ui_->txtSpecial, *ui_->chkNotes),
      names_(*ui_->lstNames),
      printing_(names_, results_, *ui_->txtHidden, [this] { FindWanted(); }),
      picture_(*ui_->picPerson, *ui_->imgPerson, *ui_->picThemes)
{
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  lblNames_.Collect(*this, QStringLiteral("lblNames"));
  lblAll_.Collect(*this, QStringLiteral("lblAll"));
  optData_.Collect(*this, QStringLiteral("optData"));
  tmrTimer_.setObjectName(QStringLiteral("tmrTimer"));
  tmrTimer_.setInterval(kTimerMilliseconds);
  ui_->txtEmpty->SetLocked(true);
  ui_->txtEmpty->SetText(QStringLiteral("No names available. Open the database to make entries."));
  ConnectControls();
}

frmQuillmark::~frmQuillmark() = default;

void frmQuillmark::ConnectControls()
{
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmQuillmark::lblOptions_Click);
  connect(&lblNames_, &ControlArraySignals::Click, this, &frmQuillmark::lblNames_Click);
  connect(&lblAll_, &ControlArraySignals::Click, this, &frmQuillmark::lblAll_Click);
  connect(&optData_, &ControlArraySignals::Click, this, &frmQuillmark::optData_Click);
  connect(ui_->lstNames, &ListBox::Click, this, &frmQuillmark::lstNames_Click);
  for (const QCheckBox* box : {ui_->chkInfo_0, ui_->chkInfo_1, ui_->chkInfo_2, ui_->chkInfo_3, ui_->chkInfo_4}) {
    connect(box, &QCheckBox::toggled, this, &frmQuillmark::chkInfo_Click);
  }
  for (const QCheckBox* box : {ui_->chkPersonal_0, ui_->chkPersonal_1}) {
    connect(box, &QCheckBox::toggled, this, &frmQuillmark::chkPersonal_Click);
  }
  connect(ui_->chkNotes, &QCheckBox::toggled, this, &frmQuillmark::chkNotes_Click);
  connect(&tmrTimer_, &QTimer::timeout, this, &frmQuillmark::tmrTimer_Timer);
}

void frmQuillmark::Form_Load()
{
  Frame::Current().AllowDatabaseCare(false);
  modResize::InitControlsToResize(*this);
  modImages::UnstretchEmpty = true;
  modToolTips::SetTips(*this);
  SetSelected(0);
  Attempt([this] { DAOPeople(); });
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
}

void frmQuillmark::Form_Unload()
{
  names_.Close();
  modImages::UnstretchEmpty = false;
  Frame::Current().AllowDatabaseCare(true);
}

void frmQuillmark::Form_Resize()
{
  if (Frame::Current().State() == WindowState::kMinimised) {
    return;
  }
  ui_->picPerson->hide();
  modResize::ResizeControls(*this);
  picture_.Resized();
}

void frmQuillmark::DAOPeople()
{
  if (!names_.Open(Queries::kPeople)) {
    ui_->txtEmpty->show();
  }
}

void frmQuillmark::lblNames_Click(int index)
{
  if (index + 1 == lastOrder_) {
    return;
  }
  lastOrder_ = index + 1;
  if (names_.Open(index == kByFirstName ? Queries::kPeopleByFirstName : Queries::kPeopleByLastName)) {
    ui_->txtEmpty->hide();
    ResetSelection();
  }
}

// Without a person the check boxes do nothing on their way to unticked.
void frmQuillmark::ResetSelection()
{
  SetSelected(0);
  for (ResultBox* box : results_.All()) {
    box->SetWanted(false);
  }
  ShowNobody();
}

void frmQuillmark::ShowNobody()
{
  results_.HideAll();
  ui_->lblName->clear();
  titles_.ShowPlain();
  ui_->txtNotes->SetText(QString());
  picture_.Clear();
}

void frmQuillmark::SetSelected(int personID)
{
  modID::SelectedPersonID = personID;
  selectedID_ = personID;
}

void frmQuillmark::lstNames_Click()
{
  ui_->lblExplain->hide();
  if (names_.IsEmpty()) {
    return;
  }
  SetSelected(names_.GoToChosen());
  if (selectedID_ == 0 || !Attempt([this] { ShowPerson(); })) {
    SetSelected(0);
    ShowNobody();
  }
}

void frmQuillmark::ShowPerson()
{
  FindWanted();
  TitleChange();
  picture_.Show(QStringLiteral("/PeoplePics/%1.bmp").arg(selectedID_));
  ui_->lblName->setText(ValueOf("FirstName") + QLatin1Char(' ') + ValueOf("LastName"));
}

// A tick for a person who is gone by now shows nothing more; here and below.
void frmQuillmark::chkInfo_Click()
{
  FindContact();
  Attempt([this] { TitleChange(); });
}

void frmQuillmark::chkPersonal_Click()
{
  ui_->lblExplain->hide();
  if (!Attempt([this] {
        FindSpecial();
        TitleChange();
      })) {
    results_.ForgetSpecial();
  }
}

void frmQuillmark::chkNotes_Click()
{
  if (!Attempt([this] {
        FindNotes();
        TitleChange();
      })) {
    results_.ForgetNotes();
  }
}

void frmQuillmark::lblAll_Click(int index)
{
  for (ResultBox* box : results_.All()) {
    box->SetWanted(index == kCheckAll);
  }
  Attempt([this] { TitleChange(); });
}

void frmQuillmark::FindWanted()
{
  if (results_.ContactWanted()) {
    FindContact();
  }
  if (results_.SpecialWanted()) {
    FindSpecial();
  }
  if (results_.notes.IsWanted()) {
    FindNotes();
  }
}

void frmQuillmark::FindContact()
{
  if (modID::SelectedPersonID == 0) {
    return;
  }
  if (!Attempt([this] { results_.ShowContact(names_.Person()); })) {
    results_.ForgetContact();
    MsgBox(QStringLiteral("Unexpected error... please try again"));
  }
}

void frmQuillmark::FindSpecial()
{
  if (modID::SelectedPersonID != 0 && results_.ShowSpecial(names_.Person())) {
    ui_->lblExplain->show();
  }
}

void frmQuillmark::FindNotes()
{
  if (modID::SelectedPersonID != 0) {
    results_.ShowNotes(names_.Person());
  }
}

QString frmQuillmark::ValueOf(const char* column)
{
  return names_.Person().Fields(QLatin1String(column)).Value().toString();
}

void frmQuillmark::TitleChange()
{
  if (modID::SelectedPersonID != 0) {
    titles_.Show(ValueOf("FirstName"), results_);
  }
}

void frmQuillmark::lblOptions_Click(int index)
{
  switch (index) {
    case kMain:
      Unload();
      modID::SelectedPersonID = 0;
      Forms::Load(QStringLiteral("frmIntro")).Show();
      break;
    case kOpenPrint:
      OpenPanel(*ui_->fraPrint);
      break;
    case kPrint:
      printing_.Print({ui_->optPrint_0->isChecked(), ui_->optPrint_1->isChecked(), ui_->chkDate->isChecked()});
      break;
    case kExitPrint:
      ClosePrint();
      break;
    case kOpenLetter:
      OpenPanel(*ui_->fraLetter);
      break;
    case kNotepad:
    case kWord:
    case kWordPad:
      WriteLetter(index);
      break;
    case kExitLetter:
      CloseLetter();
      break;
    case kEmail:
      Correspondence::SendEmail(names_);
      break;
    case kClip:
      Clip();
      break;
    case kOpenDatabase:
      OpenPanel(*ui_->fraDatabase);
      break;
    case kExitDatabase:
      ui_->fraDatabase->hide();
      break;
    default:
      break;
  }
}

void frmQuillmark::OpenPanel(QWidget& panel)
{
  panel.raise();
  panel.show();
}

void frmQuillmark::ClosePrint()
{
  Choices::Clear({ui_->optPrint_0, ui_->optPrint_1});
  ui_->fraPrint->hide();
  ui_->chkDate->setChecked(false);
}

void frmQuillmark::WriteLetter(int index)
{
  constexpr std::array kPrograms = {LetterProgram::kNotepad, LetterProgram::kWord, LetterProgram::kWordPad};
  Correspondence::WriteLetter(names_, kPrograms.at(static_cast<std::size_t>(index - kNotepad)),
                              ui_->chkAddress->isChecked());
}

void frmQuillmark::CloseLetter()
{
  ui_->fraLetter->hide();
  ui_->chkAddress->setChecked(false);
}

void frmQuillmark::optData_Click(int index)
{
  Database database = DBEngine::OpenDatabase();
  if (const auto couple =
          Couples::LastOf(*database.OpenRecordset(QStringLiteral("Ann"), Database::kTable), modID::SelectedPersonID)) {
    modID::CoupleSpouse1ID = couple->spouse1ID;
    modID::CoupleSpouse2ID = couple->spouse2ID;
  }
  database.Close();
  Leave(index == 0 ? "frmNew" : "frmAnn");
}

void frmQuillmark::Leave(const char* page)
{
  Unload();
  Forms::Load(QLatin1String(page)).Show();
}

void frmQuillmark::Clip()
{
  if (modID::SelectedPersonID == 0) {
    MsgBox(QStringLiteral("Please select a name"));
    return;
  }
  if (!ClipboardText::HasItems(results_)) {
    MsgBox(QStringLiteral("Please select items to copy"));
    return;
  }
  QApplication::clipboard()->clear();
  QApplication::clipboard()->setText(ClipboardText::Make(ui_->lstNames->Text(), results_));
  ui_->lblDone->show();
  ticks_ = 0;
  tmrTimer_.start();
}

void frmQuillmark::tmrTimer_Timer()
{
  if (++ticks_ > 1) {
    ui_->lblDone->hide();
    tmrTimer_.stop();
    ticks_ = 0;
  }
}
