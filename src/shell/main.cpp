// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/Letters.h"
#include "looks/Style.h"
#include "platform/App.h"
#include "platform/Application.h"
#include "platform/Privacy.h"
#include "shell/StartUp.h"
#include "shell/mdiQuillmark.h"

int main(int argc, char** argv)
{
  Privacy::KeepToOwner();
  Application application(argc, argv);
  Style::Apply(application);
  Privacy::CloseToOthers(App::Path());
  RegisterForms();
  mdiQuillmark frame;
  Application::RunGuarded([&] { StartUp(frame); });
  if (frame.HasEnded()) {
    return EXIT_SUCCESS;
  }
  Letters::TidyUp();
  return Application::exec();
}
