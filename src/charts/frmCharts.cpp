// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "charts/frmCharts.h"

#include "charts/DataControl.h"
#include "controls/Forms.h"
#include "controls/Frame.h"
#include "looks/modMouseMove.h"
#include "looks/modResize.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "store/DBEngine.h"
#include "store/Options.h"
#include "store/Queries.h"
#include "ui_frmCharts.h"

#include <array>

namespace {

constexpr QColor kPlotColour(253, 253, 248);

struct Subject
{
  const QString& query;
  const char* yTitle;
  const char* xTitle;
};

// By their place in optChoices.
const std::array<Subject, 5> kSubjects = {{
    {Queries::kPeopleByCity, "People", "City"},
    {Queries::kTotalAge, "People", "Age group"},
    {Queries::kTotalBirthdays, "Birthdays", "Month"},
    {Queries::kTotalAnn, "Anniversaries", "Month"},
    {Queries::kPeopleByProvince, "People", "State/Province"},
}};

}

frmCharts::frmCharts()
    : Form(QStringLiteral("frmCharts"), Kind::kPage),
      ui_(std::make_unique<Ui::frmCharts>()),
      adoCharts_(new DataControl(this))
{
  ui_->setupUi(this);
  adoCharts_->setObjectName(QStringLiteral("adoCharts"));
  ui_->mscChart->SetDataSource(*adoCharts_);
  lblOptions_.Collect(*this, QStringLiteral("lblOptions"));
  optChoices_.Collect(*this, QStringLiteral("optChoices"));
  optOptions_.Collect(*this, QStringLiteral("optOptions"));
  connect(&lblOptions_, &ControlArraySignals::Click, this, &frmCharts::lblOptions_Click);
  connect(&optChoices_, &ControlArraySignals::Click, this, &frmCharts::optChoices_Click);
  connect(&optOptions_, &ControlArraySignals::Click, this, &frmCharts::optOptions_Click);
}

frmCharts::~frmCharts() = default;

void frmCharts::Form_Load()
{
  database_ = DBEngine::OpenDatabase();
  options_ = Options::Open(*database_);
  modResize::InitControlsToResize(*this);
  adoCharts_->SetConnectionString(DBEngine::DatabasePath());
  ui_->mscChart->SetPlotBackColor(kPlotColour);
  Frame::Current().AllowDatabaseCare(false);
  modToolTips::SetTips(*this);
  modThemes::ApplyTheme();
  modMouseMove::Watch(*this);
}

void frmCharts::Form_Unload()
{
  options_.reset();
  database_.reset();
  Frame::Current().AllowDatabaseCare(true);
}

void frmCharts::Form_Resize()
{
  if (Frame::Current().State() == WindowState::kMinimised) {
    return;
  }
  ui_->mscChart->resize(ui_->mscChart->width(), 0);
  modResize::ResizeControls(*this);
  ui_->mscChart->setVisible(chosen_);
}

void frmCharts::optChoices_Click(int index)
{
  const Subject& subject = kSubjects[static_cast<std::size_t>(index)];
  adoCharts_->SetRecordSource(subject.query);
  adoCharts_->Refresh();
  ui_->mscChart->SetYAxisTitle(QLatin1String(subject.yTitle));
  ui_->mscChart->SetXAxisTitle(QLatin1String(subject.xTitle));
  ui_->mscChart->setAccessibleName(optChoices_[index].text());
  chosen_ = true;
  ui_->mscChart->show();
}

void frmCharts::optOptions_Click(int index)
{
  ui_->mscChart->SetChartType(index == 0 ? ChartControl::kBars : ChartControl::kCircles);
}

void frmCharts::lblOptions_Click(int)
{
  Unload();
  Forms::Load(QStringLiteral("frmIntro")).Show();
}
