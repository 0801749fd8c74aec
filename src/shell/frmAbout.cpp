// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/frmAbout.h"

#include "controls/FixedDialog.h"
#include "controls/Frame.h"
#include "looks/modMouseMove.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "platform/LoadPicture.h"
#include "platform/Shell.h"
#include "ui_frmAbout.h"

#include <QIcon>
#include <QUrl>

static void LoadResources()
{
  Q_INIT_RESOURCE(shell);
}

namespace {

constexpr int kExit = 0;
constexpr int kMailAddress = 1;

}

frmAbout::frmAbout() : Form(QStringLiteral("frmAbout"), Kind::kWindow), ui_(std::make_unique<Ui::frmAbout>())
{
  LoadResources();
  ui_->setupUi(this);
  MakeFixedDialog(*this);
  ui_->picLogo->SetPicture(LoadPicture(QStringLiteral(":/shell/logo.svg")));
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  lblOptions_[kMailAddress].SetFontUnderline(true);
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmAbout::lblOptions_Click);
}

frmAbout::~frmAbout() = default;

void frmAbout::Form_Load()
{
  Frame::Current().AllowCompaction(false);
  modToolTips::SetTips(*this);
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
}

void frmAbout::Form_Unload()
{
  Frame::Current().AllowCompaction(true);
}

void frmAbout::lblOptions_Click(int index)
{
  if (index == kExit) {
    Unload();
  } else if (index == kMailAddress) {
    Shell::Open(QUrl(QStringLiteral("mailto: ") + lblOptions_[kMailAddress].text()));
  }
}
