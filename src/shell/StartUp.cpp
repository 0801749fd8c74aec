// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/StartUp.h"

#include "anniversaries/frmAnn.h"
#include "calendar/frmCalEdit.h"
#include "calendar/frmPrintCal.h"
#include "calendar/frmReminders.h"
#include "charts/frmCharts.h"
#include "controls/Forms.h"
#include "lookup/frmQuillmark.h"
#include "occasions/frmSpecial.h"
#include "people/frmNew.h"
#include "reminders/frmNotice.h"
#include "reminders/frmTextNotice.h"
#include "shell/frmAbout.h"
#include "shell/frmAutoStart.h"
#include "shell/frmIntro.h"
#include "shell/mdiQuillmark.h"

void RegisterForms()
{
  Forms::Register(QStringLiteral("frmIntro"), [] { return new frmIntro; });
  Forms::Register(QStringLiteral("frmAbout"), [] { return new frmAbout; });
  Forms::Register(QStringLiteral("frmAnn"), [] { return new frmAnn; });
  Forms::Register(QStringLiteral("frmAutoStart"), [] { return new frmAutoStart; });
  Forms::Register(QStringLiteral("frmCalEdit"), [] { return new frmCalEdit; });
  Forms::Register(QStringLiteral("frmCharts"), [] { return new frmCharts; });
  Forms::Register(QStringLiteral("frmNew"), [] { return new frmNew; });
  Forms::Register(QStringLiteral("frmNotice"), [] { return new frmNotice; });
  Forms::Register(QStringLiteral("frmPrintCal"), [] { return new frmPrintCal; });
  Forms::Register(QStringLiteral("frmQuillmark"), [] { return new frmQuillmark; });
  Forms::Register(QStringLiteral("frmReminders"), [] { return new frmReminders; });
  Forms::Register(QStringLiteral("frmSpecial"), [] { return new frmSpecial; });
  Forms::Register(QStringLiteral("frmTextNotice"), [] { return new frmTextNotice; });
}

void StartUp(mdiQuillmark& frame)
{
  frame.Initialise();
  frame.Load();
  if (frame.HasEnded()) {
    return;
  }
  Forms::Load(QStringLiteral("frmIntro")).Show();
  if (!frame.isVisible()) {
    frame.show();
  }
}
