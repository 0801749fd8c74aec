// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/frmTextNotice.h"

#include "controls/Frame.h"
#include "looks/modMouseMove.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/LoadPicture.h"
#include "platform/MediaDevice.h"
#include "platform/Screen.h"
#include "platform/Twips.h"
#include "platform/WindowIcon.h"
#include "reminders/NoticeDetails.h"
#include "reminders/NoticeTexts.h"
#include "reminders/modTextNotices.h"
#include "store/DBEngine.h"
#include "store/Options.h"
#include "ui_frmTextNotice.h"

#include <map>

static void LoadResources()
{
  Q_INIT_RESOURCE(reminders);
}

namespace {

constexpr int kWidthWithDetails = 7740;
constexpr int kMessageFontSize = 10;

}

frmTextNotice::frmTextNotice()
    : Form(QStringLiteral("frmTextNotice"), Kind::kWindow), ui_(std::make_unique<Ui::frmTextNotice>())
{
  LoadResources();
  ui_->setupUi(this);
  setFixedSize(size());
  setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                 Qt::CustomizeWindowHint);
  setWindowIcon(WindowIcon());
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  imgNote_.Collect(*this, QStringLiteral("imgNote"));
  for (const auto& [index, note] : imgNote_.All()) {
    note->SetPicture(LoadPicture(QStringLiteral(":/reminders/note.svg")));
  }
  ConnectControls();
}

frmTextNotice::~frmTextNotice() = default;

void frmTextNotice::ConnectControls()
{
  connect(ui_->lstNotices, &ListBox::Click, this, &frmTextNotice::lstNotices_Click);
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmTextNotice::lblOptions_Click);
}

void frmTextNotice::Form_Load()
{
  modToolTips::SetTips(*this);
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
}

void frmTextNotice::Form_Unload()
{
  MediaDevice::Close();
}

void frmTextNotice::Form_CloseBox()
{
  lblOptions_Click(0);
}

void frmTextNotice::SetLines(const std::vector<ReminderKind>& kinds)
{
  ui_->lstNotices->Clear();
  for (const ReminderKind kind : kinds) {
    ui_->lstNotices->AddItem(NoticeTexts::Line(kind));
  }
}

void frmTextNotice::SetFirstCommand(const QString& caption, const QString& tip)
{
  lblOptions_[0].setText(caption);
  lblOptions_[0].setToolTip(modToolTips::TipsOff() ? QString() : tip);
}

void frmTextNotice::ShowFurtherCommands(bool visible)
{
  lblOptions_[1].setVisible(visible);
  lblOptions_[2].setVisible(visible);
}

void frmTextNotice::ShowMessage(const QString& message)
{
  QFont font = ui_->lblNotice->font();
  font.setPointSize(kMessageFontSize);
  ui_->lblNotice->setFont(font);
  ui_->lblNotice->setText(message);
  ui_->lstNotices->hide();
  ShowFurtherCommands(false);
}

void frmTextNotice::Centre()
{
  move(PixelsFromTwips(Screen::CentredLeft(ScaleWidth())), PixelsFromTwips(Screen::QuarterDown()));
}

void frmTextNotice::lstNotices_Click()
{
  Attempt([this] {
    const QString line = ui_->lstNotices->Text();
    for (const ReminderKind kind : kAllKinds) {
      if (line == NoticeTexts::Line(kind)) {
        ShowDetails(kind);
      }
    }
  });
}

// All queries are opened first: where one fails, the window stays as it is.
void frmTextNotice::ShowDetails(ReminderKind kind)
{
  Database database = DBEngine::OpenDatabase();
  const auto options = Options::Open(database);
  std::map<ReminderKind, std::unique_ptr<Recordset>> rows;
  for (const ReminderKind each : kAllKinds) {
    rows[each] = database.OpenRecordset(NoticeDetails::QueryFor(each), Database::kDynaset);
  }
  setFixedWidth(PixelsFromTwips(kWidthWithDetails));
  ui_->lstMoreInfo->Clear();
  if (!RemindersActive(*options)) {
    return;
  }
  const auto showSentence = [this](const QString& sentence) { ui_->lblExplain->setText(sentence); };
  ui_->lstMoreInfo->AddItems(
      NoticeDetails::ReadEntries(*rows[kind], kind, ReadRule(*options, kind), Clock::Today(), showSentence));
}

void frmTextNotice::lblOptions_Click(int index)
{
  modTextNotices::ClipIndex = 0;
  Unload();
  if (index == 0 && modTextNotices::ManualCheck) {
    modTextNotices::ManualCheck = false;
  } else if (index == 0) {
    BringFrameBack();
  } else if (index == 1) {
    Frame::Current().SetState(WindowState::kMinimised);
  } else {
    Frame::Current().Unload();
  }
}

void frmTextNotice::BringFrameBack()
{
  Database database = DBEngine::OpenDatabase();
  const QVariant maximised = Options::Open(database)->Fields(QStringLiteral("WindowState")).Value();
  if (Options::IsFalse(maximised)) {
    Frame::Current().SetState(WindowState::kNormal);
  } else if (Options::IsTrue(maximised)) {
    Frame::Current().SetState(WindowState::kMaximised);
  }
}
