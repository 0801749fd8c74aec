// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class Form;

enum class WindowState
{
  kNormal,
  kMinimised,
  kMaximised,
};

// The main frame, as the pages see it.
class Frame
{
public:
  // The one frame. Throws 364 if there is none.
  [[nodiscard]] static Frame& Current();
  [[nodiscard]] static bool Exists();

  [[nodiscard]] virtual WindowState State() const = 0;
  virtual void SetState(WindowState state) = 0;

  // Closes the frame and with it the program. False if that is refused.
  virtual bool Unload() = 0;

  // Shows the page, and none beside it, inside the frame.
  virtual void PlacePage(Form& page) = 0;

  // Leaves the open page for the one of that name; a page with an open edit refuses.
  virtual void OpenPage(const QString& name) = 0;

  // Whether the database may be compacted and backed up now. A page that holds cursors
  // open forbids it for as long.
  virtual void AllowDatabaseCare(bool allowed) = 0;

  // Whether the database may be compacted, as far as a window above the page is concerned:
  // where the page forbids it, it stays forbidden. A frame without that command takes no heed.
  virtual void AllowCompaction(bool allowed) { static_cast<void>(allowed); }

  // The one-second timer that follows the clips.
  [[nodiscard]] virtual bool TimerEnabled() const = 0;
  virtual void SetTimerEnabled(bool enabled) = 0;

protected:
  Frame();
  virtual ~Frame();
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;
};
