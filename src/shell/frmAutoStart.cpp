// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/frmAutoStart.h"

#include "controls/FixedDialog.h"
#include "looks/modMouseMove.h"
#include "looks/modThemes.h"
#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/LoadPicture.h"
#include "platform/MsgBox.h"
#include "platform/RuntimeError.h"
#include "shell/Autostart.h"
#include "ui_frmAutoStart.h"

namespace {

constexpr int kExit = 0;
constexpr int kStart = 1;

constexpr int kStarts = 0;
constexpr int kDoesNotStart = 1;
constexpr int kAlreadyDidNot = 2;

void TellOfError()
{
  MsgBox(QStringLiteral("There has been an error. Please try again."));
}

}

frmAutoStart::frmAutoStart()
    : Form(QStringLiteral("frmAutoStart"), Kind::kWindow), ui_(std::make_unique<Ui::frmAutoStart>())
{
  ui_->setupUi(this);
  MakeFixedDialog(*this);
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  lblNotice_.Collect(*this, QStringLiteral("lblNotice"));
  ConnectControls();
}

frmAutoStart::~frmAutoStart() = default;

void frmAutoStart::ConnectControls()
{
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmAutoStart::lblOptions_Click);
}

void frmAutoStart::Form_Load()
{
  setWindowIcon(LoadPicture(App::File(QStringLiteral("/animp.ico"))));
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
}

void frmAutoStart::lblOptions_Click(int index)
{
  if (index == kExit) {
    Unload();
  } else if (index == kStart) {
    Start();
  } else {
    DoNotStart();
  }
}

void frmAutoStart::Start()
{
  if (Attempt(Autostart::Create)) {
    ShowNotice(kStarts);
  } else {
    TellOfError();
  }
}

void frmAutoStart::DoNotStart()
{
  try {
    Autostart::Remove();
    ShowNotice(kDoesNotStart);
  } catch (const RuntimeError& error) {
    if (error.Number() == ErrorNumber::kFileNotFound) {
      ShowNotice(kAlreadyDidNot);
    } else {
      TellOfError();
    }
  }
}

void frmAutoStart::ShowNotice(int index)
{
  for (const auto& [each, notice] : lblNotice_.All()) {
    notice->setVisible(each == index);
  }
}
