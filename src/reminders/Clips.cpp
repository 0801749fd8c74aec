// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/Clips.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/MediaDevice.h"
#include "reminders/modTextNotices.h"

#include <QFileInfo>

namespace Clips {
namespace {

using namespace modTextNotices;

void ShowNote(int index, bool visible)
{
  const Form* window = Forms::Loaded(QStringLiteral("frmTextNotice"));
  if (QWidget* note = window == nullptr ? nullptr : window->Control(QStringLiteral("imgNote_%1").arg(index))) {
    note->setVisible(visible);
  }
}

QString FileName(ReminderKind kind)
{
  switch (kind) {
    case ReminderKind::kBirthday:
      return QStringLiteral("hapbirth.wav");
    case ReminderKind::kAnniversary:
      return QStringLiteral("wmfade2.wav");
    case ReminderKind::kEvent:
      break;
  }
  return QStringLiteral("jad0044.wav");
}

void EndQueue()
{
  Frame::Current().SetTimerEnabled(false);
  MediaDevice::Close();
  ClipIndex = 0;
}

void PlayClip()
{
  constexpr int kMostClips = 3;
  if (ClipIndex < 0 || ClipIndex >= ClipFiles.size()) {
    EndQueue();
    return;
  }
  Frame::Current().SetTimerEnabled(true);
  if (ClipIndex >= kMostClips) {
    return;
  }
  MediaDevice::Open(ClipFiles[ClipIndex]);
  MediaDevice::Play();
  if (ClipIndex > 0) {
    ShowNote(ClipIndex - 1, false);
  }
  ShowNote(ClipIndex, true);
  ++ClipIndex;
}

}

QString GetShortName(const QString& folder)
{
  return QFileInfo(folder).canonicalFilePath();
}

QString FileFor(ReminderKind kind)
{
  return GetShortName(App::Path()) + QStringLiteral("/notices/") + FileName(kind);
}

void PlayNextClip()
{
  Attempt(PlayClip);
}

void FollowClip()
{
  Frame& frame = Frame::Current();
  if (!frame.TimerEnabled() || MediaDevice::Mode().left(4) != QLatin1String("stop")) {
    return;
  }
  MediaDevice::Close();
  frame.SetTimerEnabled(false);
  for (const int note : {0, 1, 2}) {
    ShowNote(note, false);
  }
  PlayNextClip();
}

}
