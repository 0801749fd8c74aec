// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PrintProgress.h"

#include "platform/App.h"
#include "platform/BoxOwner.h"
#include "platform/Command.h"
#include "platform/RuntimeError.h"
#include "platform/WindowIcon.h"

#include <QCoreApplication>
#include <QIcon>
#include <QProgressDialog>

#include <algorithm>

namespace {

constexpr int kMomentMilliseconds = 500;
constexpr int kBetweenLooksMilliseconds = 50;
constexpr int kWidth = 320;

}

PrintProgress::PrintProgress(int steps) : steps_(steps)
{
  sinceLook_.start();
}

PrintProgress::~PrintProgress() = default;

void PrintProgress::Step()
{
  ++done_;
  if (!sinceLook_.hasExpired(dialog_ ? kBetweenLooksMilliseconds : kMomentMilliseconds)) {
    return;
  }
  const Command::Pause pause;
  if (!dialog_) {
    Show();
  }
  dialog_->setValue(std::min(done_, steps_));
  QCoreApplication::processEvents();
  if (dialog_->wasCanceled()) {
    RaiseError(ErrorNumber::kCancelled);
  }
  sinceLook_.start();
}

// It neither comes nor goes by itself.
void PrintProgress::Show()
{
  dialog_ = std::make_unique<QProgressDialog>(BoxOwner());
  dialog_->setWindowTitle(QLatin1String(App::kTitle));
  dialog_->setWindowIcon(WindowIcon());
  dialog_->setLabelText(QStringLiteral("Printing..."));
  dialog_->setCancelButtonText(QStringLiteral("Cancel"));
  dialog_->setWindowModality(Qt::ApplicationModal);
  dialog_->setAutoReset(false);
  dialog_->setAutoClose(false);
  dialog_->setMinimumDuration(0);
  dialog_->setRange(0, steps_);
  dialog_->setMinimumWidth(kWidth);
  dialog_->show();
}
