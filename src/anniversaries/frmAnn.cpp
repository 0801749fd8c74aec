// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "anniversaries/frmAnn.h"

#include "charts/modConvert.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "controls/modID.h"
#include "looks/modMouseMove.h"
#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "people/DateBoxes.h"
#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/LoadCursor.h"
#include "platform/MsgBox.h"
#include "ui_frmAnn.h"

namespace {

constexpr int kUpdate = 0;
constexpr int kMain = 1;
constexpr int kDelete = 2;
constexpr int kCancel = 3;
constexpr int kNotListed = 4;

constexpr int kTickMilliseconds = 500;
constexpr int kTicksOfDone = 2;

using Spouse = CoupleRecords::Spouse;

}

frmAnn::frmAnn()
    : Form(QStringLiteral("frmAnn"), Kind::kPage),
      ui_([this] {
        auto ui = std::make_unique<Ui::frmAnn>();
        ui->setupUi(this);
        return ui;
      }()),
      picture_(*this, QStringLiteral("/AnnPics/"), [this] { return records_->CurrentAnnID(); }),
      wives_(*ui_->lstPartner1),
      husbands_(*ui_->lstPartner2),
      couples_(*ui_->lstDelete),
      tmrTimer_(this)
{
  tmrTimer_.setObjectName(QStringLiteral("tmrTimer"));
  tmrTimer_.setInterval(kTickMilliseconds);
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  ConnectControls();
}

frmAnn::~frmAnn() = default;

void frmAnn::ConnectControls()
{
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmAnn::lblOptions_Click);
  connect(ui_->lstPartner1, &ListBox::Click, this, &frmAnn::lstPartner1_Click);
  connect(ui_->lstPartner2, &ListBox::Click, this, &frmAnn::lstPartner2_Click);
  connect(ui_->cmdAddPic, &QPushButton::clicked, this, &frmAnn::cmdAddPic_Click);
  connect(ui_->cmdDeletePic, &QPushButton::clicked, this, &frmAnn::cmdDeletePic_Click);
  connect(&tmrTimer_, &QTimer::timeout, this, &frmAnn::tmrTimer_Timer);
  enterWalk_.Join(*ui_->cboAnnMonth, *ui_->cboAnnDate);
  enterWalk_.Join(*ui_->cboAnnDate, *ui_->cboAnnYear);
}

void frmAnn::Form_Load()
{
  DateBoxes::FillMonths(*ui_->cboAnnMonth);
  DateBoxes::FillDays(*ui_->cboAnnDate);
  DateBoxes::FillYears(*ui_->cboAnnYear);
  for (const char* page : {"frmSpecial", "frmCharts", "frmNew", "frmQuillmark", "frmReminders"}) {
    Forms::Unload(QLatin1String(page));
  }
  Frame::Current().AllowDatabaseCare(false);
  modResize::InitControlsToResize(*this);
  modToolTips::SetTips(*this);
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
  ShowHandOverLists();
  BuildLists();
  SelectCouple();
}

// Without the cursor's file the arrow stays.
void frmAnn::ShowHandOverLists()
{
  Attempt([this] {
    const QCursor hand = LoadCursor(App::File(QStringLiteral("/hand.cur")));
    for (ListBox* list : {ui_->lstPartner1, ui_->lstPartner2, ui_->lstDelete}) {
      list->viewport()->setCursor(hand);
    }
  });
}

void frmAnn::BuildLists()
{
  records_ = std::make_unique<CoupleRecords>();
  CoupleRecords::Partners people = records_->People();
  wives_.Fill(people.women.lines, std::move(people.women.keys));
  husbands_.Fill(people.men.lines, std::move(people.men.keys));
  RefreshCouples();
}

void frmAnn::SelectCouple()
{
  const int wifeID = std::exchange(modID::CoupleSpouse1ID, 0);
  const int husbandID = std::exchange(modID::CoupleSpouse2ID, 0);
  if (wifeID != 0) {
    wives_.Choose(wifeID);
  }
  if (husbandID != 0) {
    husbands_.Choose(husbandID);
  }
}

void frmAnn::Form_Unload()
{
  records_.reset();
  modID::CoupleSpouse1ID = 0;
  modID::CoupleSpouse2ID = 0;
  Frame::Current().AllowDatabaseCare(true);
  modConvert::TallyAnniversaries();
}

void frmAnn::Form_Resize()
{
  if (Frame::Current().State() == WindowState::kMinimised) {
    return;
  }
  modResize::ResizeControls(*this);
  for (ComboBox* box : {ui_->cboAnnMonth, ui_->cboAnnDate, ui_->cboAnnYear}) {
    box->resize(ui_->fraDate->width(), box->height());
  }
  picture_.Resize();
}

void frmAnn::lblOptions_Click(int index)
{
  switch (index) {
    case kUpdate:
      UpdateCouple();
      break;
    case kMain:
      LeaveFor("frmIntro");
      break;
    case kDelete:
      DeleteCouple();
      break;
    case kCancel:
      CancelEntry();
      break;
    case kNotListed:
      LeaveFor("frmNew");
      break;
    default:
      break;
  }
}

void frmAnn::LeaveFor(const char* page)
{
  Unload();
  Forms::Load(QLatin1String(page)).Show();
}

QString frmAnn::RefuseEntry() const
{
  if (ui_->lstPartner1->ListCount() == 0 && ui_->lstPartner2->ListCount() == 0) {
    return QStringLiteral("There are no names in the database");
  }
  if (ui_->lstPartner1->ListIndex() < 0 || ui_->lstPartner2->ListIndex() < 0) {
    return QStringLiteral("Please select both partners");
  }
  return RefuseDate(Wedding(), Clock::Today());
}

void frmAnn::UpdateCouple()
{
  const QString refusal = RefuseEntry();
  if (!refusal.isEmpty()) {
    MsgBox(refusal);
    return;
  }
  switch (records_->Write(wives_.ChosenKey(), husbands_.ChosenKey(), Wedding())) {
    case CoupleRecords::Outcome::kAlreadyMarried:
      MsgBox(
          QStringLiteral("Both these people are already married. Please delete the original couples and start over"));
      return;
    case CoupleRecords::Outcome::kWritten:
      picture_.StoreOrDelete();
      ShowDone();
      break;
    case CoupleRecords::Outcome::kFailed:
      break;
  }
  Attempt([this] { RefreshCouples(); });
}

void frmAnn::RefreshCouples()
{
  KeyedLines couples = records_->All();
  couples_.Fill(couples.lines, std::move(couples.keys));
}

void frmAnn::ShowDone()
{
  ui_->lblDone1->show();
  ticks_ = 0;
  tmrTimer_.start();
  EnablePictureCommands(false);
}

void frmAnn::tmrTimer_Timer()
{
  ++ticks_;
  if (ticks_ == kTicksOfDone) {
    ui_->lblDone1->hide();
    tmrTimer_.stop();
    ticks_ = 0;
  }
}

void frmAnn::DeleteCouple()
{
  if (ui_->lstDelete->ListCount() == 0) {
    return;
  }
  const int annID = couples_.ChosenKey();
  if (annID == 0) {
    MsgBox(QStringLiteral("Please select a couple"));
    return;
  }
  if (records_->Delete(annID)) {
    RecordPicture::AnnFileDelete(annID);
  }
  Attempt([this] { RefreshCouples(); });
  ClearEntry();
}

void frmAnn::CancelEntry()
{
  ClearEntry();
  ui_->lstPartner1->SetListIndex(-1);
  ui_->lstPartner2->SetListIndex(-1);
  EnablePictureCommands(false);
}

void frmAnn::ClearEntry()
{
  ui_->lblPartner1->clear();
  ui_->lblPartner2->clear();
  SetWedding({});
  picture_.Empty();
}

void frmAnn::EnablePictureCommands(bool enabled)
{
  ui_->cmdAddPic->setEnabled(enabled);
  ui_->cmdDeletePic->setEnabled(enabled);
}

void frmAnn::lstPartner1_Click()
{
  ShowPartner(Spouse::kWife);
}

void frmAnn::lstPartner2_Click()
{
  ShowPartner(Spouse::kHusband);
}

// Choosing the other partner comes back here for that one; who is chosen already is not
// chosen again, so that it ends there.
void frmAnn::ShowPartner(Spouse spouse)
{
  const bool isWife = spouse == Spouse::kWife;
  const ListBox& list = isWife ? *ui_->lstPartner1 : *ui_->lstPartner2;
  if (list.ListIndex() < 0) {
    return;
  }
  const int person = isWife ? wives_.ChosenKey() : husbands_.ChosenKey();
  (isWife ? ui_->lblPartner1 : ui_->lblPartner2)->setText(list.Text());
  EnablePictureCommands(true);
  picture_.Empty();
  SetWedding(records_->WeddingOf(person));
  if (records_->GoToCoupleOf(spouse, person)) {
    const Spouse other = isWife ? Spouse::kHusband : Spouse::kWife;
    (isWife ? husbands_ : wives_).Choose(records_->CurrentSpouseID(other));
  }
  picture_.ShowInBox();
}

PartialDate frmAnn::Wedding() const
{
  return {ui_->cboAnnMonth->Text(), ui_->cboAnnDate->Text(), ui_->cboAnnYear->Text()};
}

void frmAnn::SetWedding(const PartialDate& wedding)
{
  ui_->cboAnnMonth->SetText(wedding.month);
  ui_->cboAnnDate->SetText(wedding.day);
  ui_->cboAnnYear->SetText(wedding.year);
}

void frmAnn::cmdAddPic_Click()
{
  picture_.Choose(true);
}

void frmAnn::cmdDeletePic_Click()
{
  picture_.Remove();
}
