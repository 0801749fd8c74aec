// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/frmNotice.h"

#include "controls/FixedDialog.h"
#include "looks/modMouseMove.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "platform/App.h"
#include "platform/HelpViewer.h"
#include "platform/LoadPicture.h"
#include "platform/MediaDevice.h"
#include "platform/Screen.h"
#include "platform/Twips.h"
#include "reminders/Clips.h"
#include "store/DBEngine.h"
#include "store/Options.h"
#include "ui_frmNotice.h"

namespace {

constexpr int kDone = 0;
constexpr int kWhyUseReminders = 4;
constexpr int kTextMessage = 0;
constexpr int kAudioMessage = 1;
constexpr int kTimerMilliseconds = 250;

std::unique_ptr<Ui::frmNotice> MakeDesign(frmNotice& page)
{
  auto design = std::make_unique<Ui::frmNotice>();
  design->setupUi(&page);
  return design;
}

}

frmNotice::frmNotice()
    : Form(QStringLiteral("frmNotice"), Kind::kWindow),
      ui_(MakeDesign(*this)),
      panels_{{{ReminderKind::kBirthday,
                *this,
                {QStringLiteral("optOneOrMany"), ui_->cboDays, ui_->chkCancelBirth, ui_->lblCurrentBirth,
                 ui_->lblTextAudio}},
               {ReminderKind::kAnniversary,
                *this,
                {QStringLiteral("optOneOrManyAnn"), ui_->cboAnnDays, ui_->chkCancelAnn, ui_->lblCurrentAnn,
                 ui_->lblTextAudioAnn}},
               {ReminderKind::kEvent,
                *this,
                {QStringLiteral("optOneOrManyCal"), ui_->cboCalDays, ui_->chkCancelCal, ui_->lblCurrentCal,
                 ui_->lblTextAudioCal}}}},
      tmrTimerPreview_(this)
{
  MakeFixedDialog(*this);
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  chkTextAudio_.Collect(*this, QStringLiteral("chkTextAudio"));
  tmrTimerPreview_.setObjectName(QStringLiteral("tmrTimerPreview"));
  tmrTimerPreview_.setInterval(kTimerMilliseconds);
  ConnectControls();
}

frmNotice::~frmNotice() = default;

void frmNotice::ConnectControls()
{
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmNotice::lblOptions_Click);
  connect(&chkTextAudio_, &ControlArraySignals::Click, this, &frmNotice::chkTextAudio_Click);
  connect(ui_->chkReminderOnStart, &QCheckBox::clicked, this, &frmNotice::chkReminderOnStart_Click);
  connect(&tmrTimerPreview_, &QTimer::timeout, this, &frmNotice::tmrTimerPreview_Timer);
}

void frmNotice::Form_Load()
{
  Database database = DBEngine::OpenDatabase();
  const auto options = Options::Open(database);
  setWindowIcon(LoadPicture(App::File(QStringLiteral("/animp.ico"))));
  const NoticeSettings::Methods methods = NoticeSettings::ReadMethods(*options);
  chkTextAudio_[kTextMessage].setChecked(methods.text);
  chkTextAudio_[kAudioMessage].setChecked(methods.audio);
  ui_->chkReminderOnStart->setChecked(Options::IsTrue(options->Fields(QStringLiteral("ReminderOnStart")).Value()));
  for (NoticePanel& panel : panels_) {
    panel.Load(*options);
  }
  modToolTips::SetTips(*this);
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
  move(PixelsFromTwips(Screen::CentredLeft(ScaleWidth())), PixelsFromTwips(Screen::CentredTop(ScaleHeight())));
}

void frmNotice::Form_QueryUnload(bool& cancel)
{
  MediaDevice::Close();
  for (const NoticePanel& panel : panels_) {
    const std::optional<QString> message = panel.ClosingMessage();
    if (!message) {
      continue;
    }
    const MsgBoxAnswer answer = MsgBox(*message, MsgBoxButtons::kOkCancel);
    if (answer == MsgBoxAnswer::kOk) {
      cancel = true;
      return;
    }
    CloseWarnings(answer);
  }
}

void frmNotice::CloseWarnings(MsgBoxAnswer answer)
{
  if (answer != MsgBoxAnswer::kCancel) {
    return;
  }
  for (NoticePanel& panel : panels_) {
    panel.Reset();
  }
}

void frmNotice::chkTextAudio_Click(int index)
{
  Options::Write(index == kTextMessage ? QStringLiteral("TextMessage") : QStringLiteral("AudioMessage"),
                 chkTextAudio_[index].isChecked());
  for (NoticePanel& panel : panels_) {
    panel.TellMethod();
  }
}

void frmNotice::chkReminderOnStart_Click(bool ticked)
{
  Options::Write(QStringLiteral("ReminderOnStart"), ticked);
}

void frmNotice::lblOptions_Click(int index)
{
  if (index == kDone) {
    Unload();
  } else if (index == kWhyUseReminders) {
    HelpViewer::ShowContents();
  } else {
    Preview(kAllKinds[static_cast<std::size_t>(index - 1)]);
  }
}

void frmNotice::Preview(ReminderKind kind)
{
  MediaDevice::Open(Clips::FileFor(kind));
  tmrTimerPreview_.start();
  MediaDevice::Play();
}

void frmNotice::tmrTimerPreview_Timer()
{
  if (MediaDevice::Mode().left(4) == QLatin1String("stop")) {
    MediaDevice::Close();
    tmrTimerPreview_.stop();
  }
}
