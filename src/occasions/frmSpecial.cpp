// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "occasions/frmSpecial.h"

#include "controls/Choices.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "controls/modID.h"
#include "looks/modMouseMove.h"
#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "occasions/FamousBirthdays.h"
#include "occasions/HandOverList.h"
#include "occasions/OccasionPrinting.h"
#include "people/Couples.h"
#include "people/DateBoxes.h"
#include "platform/Clock.h"
#include "platform/HelpViewer.h"
#include "platform/Months.h"
#include "platform/MsgBox.h"
#include "platform/Numeric.h"
#include "platform/Shell.h"
#include "store/DBEngine.h"
#include "ui_frmSpecial.h"

namespace {

constexpr int kMain = 0;
constexpr int kViewCalendar = 1;
constexpr int kPrint = 2;
constexpr int kExitPrint = 3;
constexpr int kOpenPrint = 4;
constexpr int kOpenFamous = 5;
constexpr int kOpenDatabase = 6;
constexpr int kExitDatabase = 7;
constexpr int kConnect = 8;
constexpr int kExitFamous = 9;
constexpr int kExitCalendar = 10;

constexpr double kPlainSize = 10;
constexpr double kRaisedSize = 14;
const QColor kRaised(192, 0, 0);
const QColor kMonthText(128, 64, 0);

const QString kNoBirthdays = QStringLiteral("No birthdays this month");
const QString kNoAnniversaries = QStringLiteral("No anniversaries this month");

// Both sentences left out, with the line break between them.
const QString kNoSentences = QStringLiteral("\r\n");

// The two states of the shape behind the details.
constexpr int kPlainShape = 0;
constexpr int kMarkedShape = 1;

}

frmSpecial::frmSpecial()
    : Form(QStringLiteral("frmSpecial"), Kind::kPage),
      ui_([this] {
        auto ui = std::make_unique<Ui::frmSpecial>();
        ui->setupUi(this);
        return ui;
      }()),
      picture_(*ui_->picPerson, *ui_->imgPerson, *ui_->picThemes),
      birthdays_{*ui_->lstBirthdays, *ui_->txtBirthInfo, *ui_->txtBDetails, *ui_->shpBirth, false, {}},
      anniversaries_{*ui_->lstAnn, *ui_->txtAnnInfo, *ui_->txtADetails, *ui_->shpAnn, false, {}}
{
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  lblMonth_.Collect(*this, QStringLiteral("lblMonth"));
  optData_.Collect(*this, QStringLiteral("optData"));
  for (Side* side : {&birthdays_, &anniversaries_}) {
    side->info.SetLocked(true);
    side->details.SetLocked(true);
  }
  ConnectControls();
}

frmSpecial::~frmSpecial() = default;

void frmSpecial::ConnectControls()
{
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmSpecial::lblOptions_Click);
  connect(&lblMonth_, &ControlArraySignals::Click, this, &frmSpecial::lblMonth_Click);
  connect(&optData_, &ControlArraySignals::Click, this, &frmSpecial::optData_Click);
  connect(ui_->cboYear, &ComboBox::Click, this, &frmSpecial::cboYear_Click);
  connect(ui_->calCalendar, &MonthCalendar::Change, this, &frmSpecial::calCalendar_Change);
  connect(ui_->lstBirthdays, &ListBox::Click, this, &frmSpecial::lstBirthdays_Click);
  connect(ui_->lstAnn, &ListBox::Click, this, &frmSpecial::lstAnn_Click);
}

void frmSpecial::Form_Load()
{
  database_ = DBEngine::OpenDatabase();
  DateBoxes::FillYears(*ui_->cboYear);
  ui_->calCalendar->SetValue(Clock::Today());
  Frame::Current().AllowDatabaseCare(false);
  modResize::InitControlsToResize(*this);
  ui_->cboYear->SetText(QString::number(ui_->calCalendar->Value().year()));
  SelectMonth(ui_->calCalendar->Value().month() - 1);
  Calendar();
  ThisMonth();
  AnnMonth();
  modToolTips::SetTips(*this);
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
  new HandOverList(*ui_->lstBirthdays, kNoBirthdays, QStringLiteral("Click on a name for more information"));
  new HandOverList(*ui_->lstAnn, kNoAnniversaries, QStringLiteral("Click on a couple for more information"));
}

void frmSpecial::Form_Unload()
{
  database_.reset();
  Frame::Current().AllowDatabaseCare(true);
}

void frmSpecial::Form_Resize()
{
  if (Frame::Current().State() == WindowState::kMinimised) {
    return;
  }
  ui_->picPerson->hide();
  modResize::ResizeControls(*this);
  picture_.Resized();
}

void frmSpecial::Calendar()
{
  month_ = kMonthNames[static_cast<std::size_t>(ui_->calCalendar->Value().month() - 1)];
}

void frmSpecial::ThisMonth()
{
  if (month_ == lastBirthdayMonth_) {
    return;
  }
  picture_.Clear();
  lastBirthdayMonth_ = month_;
  ui_->lblBirthdays->setText(month_ + QStringLiteral(" birthdays"));
  birthdays_.info.SetText(QStringLiteral("Birthday details for..."));
  Occasions::Entries entries = Occasions::BirthdayEntriesOf(*database_, month_);
  birthdays_.keys = std::move(entries.keys);
  Fill(birthdays_, entries.lines, kNoBirthdays, QStringLiteral("Click on a name (above) for more birthday details"));
}

void frmSpecial::AnnMonth()
{
  if (month_ == lastAnnMonth_) {
    return;
  }
  lastAnnMonth_ = month_;
  anniversaries_.info.SetText(QStringLiteral("Anniversary details for..."));
  ui_->lblAnn->setText(month_ + QStringLiteral(" anniversaries"));
  Couples::ConvertBlanks(*database_);
  Occasions::Entries entries = Occasions::AnniversaryEntriesOf(*database_, month_);
  anniversaries_.keys = std::move(entries.keys);
  Fill(anniversaries_, entries.lines, kNoAnniversaries,
       QStringLiteral("Click on a couple (above) for more anniversary details"));
}

void frmSpecial::Fill(Side& side, const QStringList& lines, const QString& none, const QString& hint)
{
  side.list.Clear();
  side.list.AddItems(lines.isEmpty() ? QStringList(none) : lines);
  side.details.SetText(lines.isEmpty() ? QString() : hint);
  side.details.setVisible(!lines.isEmpty());
  side.shape.SetFillStyle(lines.isEmpty() ? kPlainShape : kMarkedShape);
}

void frmSpecial::SelectMonth(int index)
{
  for (const auto& [month, label] : lblMonth_.All()) {
    label->SetBackStyle(month == index ? Label::kOpaque : Label::kTransparent);
    label->SetForeColor(month == index ? QColor(Qt::white) : kMonthText);
  }
}

void frmSpecial::LowerEmphasis()
{
  if (ui_->calCalendar->ActiveDayFontSize() == kRaisedSize) {
    SetPlainEmphasis();
  }
}

void frmSpecial::SetPlainEmphasis()
{
  ui_->calCalendar->SetActiveDayFontSize(kPlainSize);
  ui_->calCalendar->SetActiveDayForeColor(Qt::black);
}

void frmSpecial::lblMonth_Click(int index)
{
  SelectMonth(index);
  ui_->calCalendar->SetValue(QDate(ToInteger(ui_->cboYear->Text()), index + 1, 1));
  LowerEmphasis();
}

void frmSpecial::cboYear_Click()
{
  yearBusy_ = true;
  ui_->calCalendar->SetValue(QDate(ToInteger(ui_->cboYear->Text()), ui_->calCalendar->Value().month(), 1));
  yearBusy_ = false;
}

void frmSpecial::calCalendar_Change()
{
  if (calendarBusy_ || !database_) {
    return;
  }
  birthdays_.firstClick = false;
  anniversaries_.firstClick = false;
  LowerEmphasis();
  Calendar();
  ThisMonth();
  AnnMonth();
  if (!yearBusy_) {
    ui_->cboYear->SetText(QString::number(ui_->calCalendar->Value().year()));
    SelectMonth(ui_->calCalendar->Value().month() - 1);
  }
  if (ui_->lstBirthdays->ListIndex() >= 0) {
    lstBirthdays_Click();
  }
  if (ui_->lstAnn->ListIndex() >= 0) {
    lstAnn_Click();
  }
}

// The rows may have changed since the list was filled; who is gone leaves no sentence.
void frmSpecial::lstBirthdays_Click()
{
  const auto key = ChosenKey(birthdays_);
  if (!key) {
    return;
  }
  const auto found = Occasions::BirthdayOf(*database_, *key);
  if (!found || found->month != month_) {
    if (!Occasions::BirthdaysOf(*database_, month_).empty()) {
      birthdays_.details.SetText(kNoSentences);
    }
    return;
  }
  modID::SelectedPersonID = found->peopleID;
  picture_.Show(QStringLiteral("/PeoplePics/%1.bmp").arg(found->peopleID));
  if (found->date.isNull()) {
    ShowUnknown(birthdays_);
    return;
  }
  ShowDetails(birthdays_, OccasionSentences::Of(*found, ui_->calCalendar->Value().year(), Clock::Today()));
}

void frmSpecial::lstAnn_Click()
{
  const auto key = ChosenKey(anniversaries_);
  if (!key) {
    return;
  }
  const auto found = Occasions::AnniversaryOf(*database_, *key);
  if (!found || found->month != month_) {
    if (!Occasions::AnniversariesOf(*database_, month_).empty()) {
      anniversaries_.details.SetText(kNoSentences);
    }
    return;
  }
  picture_.Show(QStringLiteral("/AnnPics/%1.bmp").arg(found->annID));
  if (found->date.isNull()) {
    ShowUnknown(anniversaries_);
    return;
  }
  modID::CoupleSpouse1ID = found->spouse1ID;
  modID::CoupleSpouse2ID = found->spouse2ID;
  ShowDetails(anniversaries_, OccasionSentences::Of(*found, ui_->calCalendar->Value().year(), Clock::Today()));
}

// A line that says that there is nobody has no key.
std::optional<int> frmSpecial::ChosenKey(const Side& side)
{
  const auto index = static_cast<std::size_t>(side.list.ListIndex());
  return index < side.keys.size() ? std::optional(side.keys[index]) : std::nullopt;
}

void frmSpecial::ShowUnknown(Side& side)
{
  side.details.SetText(QStringLiteral("No further information available"));
}

void frmSpecial::ShowDetails(Side& side, const OccasionSentences::Details& details)
{
  side.info.SetText(details.caption);
  MoveCalendar(details);
  if (!side.firstClick) {
    side.firstClick = true;
    side.details.show();
    side.shape.SetFillStyle(kMarkedShape);
  }
  side.details.SetText(details.text);
}

// A birthday of 29 February is marked nowhere in a common year; the calendar shows the
// day before its stand-in.
void frmSpecial::MoveCalendar(const OccasionSentences::Details& details)
{
  calendarBusy_ = true;
  ui_->calCalendar->SetValue(details.shifted ? details.occasion.addDays(-1) : details.occasion);
  calendarBusy_ = false;
  if (!details.shifted) {
    ui_->calCalendar->SetActiveDayFontSize(kRaisedSize);
    ui_->calCalendar->SetActiveDayForeColor(kRaised);
  }
}

void frmSpecial::lblOptions_Click(int index)
{
  switch (index) {
    case kMain:
      modID::SelectedPersonID = 0;
      modID::CoupleSpouse1ID = 0;
      modID::CoupleSpouse2ID = 0;
      LeaveFor("frmIntro");
      break;
    case kViewCalendar:
      HelpViewer::Quit();
      OpenPanel(*ui_->fraCalendar);
      break;
    case kExitCalendar:
      CloseCalendar();
      break;
    case kPrint:
      Print();
      break;
    case kOpenPrint:
      OpenPanel(*ui_->fraPrint);
      break;
    case kExitPrint:
      ClosePrint();
      break;
    case kOpenFamous:
      OpenFamous();
      break;
    case kConnect:
      Connect();
      break;
    case kExitFamous:
      ui_->fraFamous->hide();
      break;
    case kOpenDatabase:
      OpenPanel(*ui_->fraDatabase);
      break;
    case kExitDatabase:
      ui_->fraDatabase->hide();
      break;
  }
}

void frmSpecial::OpenPanel(QWidget& panel)
{
  panel.raise();
  panel.show();
}

void frmSpecial::CloseCalendar()
{
  SetPlainEmphasis();
  ui_->fraCalendar->hide();
}

void frmSpecial::Print()
{
  OccasionPrinting::Print(*database_, {ui_->optPrint_0->isChecked() ? month_ : QString(), ui_->optPrint_1->isChecked(),
                                       ui_->chkAgeAnn->isChecked(), ui_->chkDate->isChecked()});
}

void frmSpecial::ClosePrint()
{
  Choices::Clear({ui_->optPrint_0, ui_->optPrint_1});
  ui_->chkAgeAnn->setChecked(false);
  ui_->chkDate->setChecked(false);
  ui_->fraPrint->hide();
}

void frmSpecial::OpenFamous()
{
  ui_->cboMonth->Clear();
  ui_->cboDay->Clear();
  DateBoxes::FillMonths(*ui_->cboMonth);
  DateBoxes::FillDays(*ui_->cboDay);
  const QDate today = Clock::Today();
  ui_->cboMonth->SetText(kMonthNames[static_cast<std::size_t>(today.month() - 1)]);
  ui_->cboDay->SetText(QString::number(today.day()));
  OpenPanel(*ui_->fraFamous);
}

void frmSpecial::Connect()
{
  if (MonthNumber(ui_->cboMonth->Text()) == 0) {
    MsgBox(QStringLiteral("You have not entered a month"));
  } else if (ui_->cboDay->Text().isEmpty()) {
    MsgBox(QStringLiteral("You have not entered a day"));
  } else {
    Shell::Open(FamousBirthdays::AddressOf(ui_->cboMonth->Text(), ui_->cboDay->Text()));
  }
}

void frmSpecial::optData_Click(int index)
{
  LeaveFor(index == 0 ? "frmNew" : "frmAnn");
}

void frmSpecial::LeaveFor(const char* page)
{
  Unload();
  Forms::Load(QLatin1String(page)).Show();
}
