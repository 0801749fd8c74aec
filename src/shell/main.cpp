// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/Style.h"
#include "platform/Application.h"
#include "platform/Command.h"
#include "platform/RuntimeError.h"
#include "shell/StartUp.h"
#include "shell/mdiQuillmark.h"

int main(int argc, char** argv)
{
  Application application(argc, argv);
  Style::Apply(application);
  RegisterForms();
  mdiQuillmark frame;
  try {
    Command::Run([&] { StartUp(frame); });
  } catch (const RuntimeError& error) {
    Application::StopOn(error);
  }
  return frame.HasEnded() ? EXIT_SUCCESS : Application::exec();
}
