// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/modThemes.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/PictureBox.h"
#include "controls/Shape.h"
#include "looks/ThemeTable.h"
#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/LoadPicture.h"
#include "platform/Twips.h"
#include "store/DBEngine.h"
#include "store/Options.h"

#include <algorithm>

namespace modThemes {
namespace {

constexpr int kFirstColourTheme = 4;
constexpr int kBeigeTheme = 5;
const QColor kWhite(0xFF, 0xFF, 0xFF);
const QColor kBeige(0xFF, 0xF9, 0xE9);

bool calendarHasPicture = false;

QString ToText(std::string_view text)
{
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QColor ColourOf(int theme)
{
  return theme == kBeigeTheme ? kBeige : kWhite;
}

void SetVisible(const Form& form, std::string_view name, bool visible)
{
  if (QWidget* control = name.empty() ? nullptr : form.Control(ToText(name))) {
    control->setVisible(visible);
  }
}

void ColourControl(QWidget& control, const QColor& colour)
{
  if (control.metaObject()->indexOfProperty("BackColor") >= 0) {
    control.setProperty("BackColor", colour);
    return;
  }
  QPalette palette = control.palette();
  palette.setColor(QPalette::Window, colour);
  palette.setColor(control.backgroundRole(), colour);
  control.setPalette(palette);
  control.setAutoFillBackground(true);
}

void ColourControls(const Form& form, const QString& names, const QColor& colour)
{
  for (const QString& name : names.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    if (QWidget* control = form.Control(name)) {
      ColourControl(*control, colour);
    }
  }
}

QPixmap PictureFor(const ThemedForm& themed, int theme)
{
  if (theme >= kFirstColourTheme) {
    return LoadPicture();
  }
  return LoadPicture(App::File(QStringLiteral("/themes/") + ToText(themed.pictures[static_cast<std::size_t>(theme)])));
}

void PlacePicture(Form& form, const ThemedForm& themed, int theme)
{
  const QPixmap picture = PictureFor(themed, theme);
  if (themed.pictureHolder.empty()) {
    form.SetPicture(picture);
  } else if (auto* box = qobject_cast<PictureBox*>(form.Control(ToText(themed.pictureHolder)))) {
    box->SetPicture(picture);
  }
}

void ApplyToForm(Form& form, const ThemedForm& themed, int theme)
{
  const bool hasPicture = theme < kFirstColourTheme;
  ColourControls(form, ToText(themed.shown), ColourOf(theme));
  if (hasPicture) {
    SetVisible(form, themed.shown, true);
  }
  PlacePicture(form, themed, theme);
  ColourControls(form, ToText(themed.coloured), ColourOf(theme));
  SetVisible(form, themed.hidden, false);
  if (auto* panel = qobject_cast<Shape*>(form.Control(ToText(themed.panel)))) {
    panel->SetFillStyle(hasPicture ? Shape::kHollow : Shape::kSolid);
  }
  SetVisible(form, "Shape15", !hasPicture);
}

bool IsVisibleElement(const Form& form, const char* name)
{
  const QWidget* element = form.Control(QLatin1String(name));
  return element != nullptr && element->isVisibleTo(&form);
}

int TopOf(const Form& form, const char* name)
{
  const QWidget* control = form.Control(QLatin1String(name));
  return control == nullptr ? 0 : control->y();
}

void ApplyToCalendar(Form& form, const ThemedForm& themed, int theme)
{
  if (calendarHasPicture) {
    return;
  }
  ApplyToForm(form, themed, theme);
  FitCalendarPicture(form);
  calendarHasPicture = true;
}

void ApplyToBackground(Form& form, int theme)
{
  if (theme == kBeigeTheme && form.BackColor() == kWhite) {
    form.SetBackColor(kBeige);
  } else if (theme != kBeigeTheme && form.BackColor() == kBeige) {
    form.SetBackColor(kWhite);
  }
}

void ApplyToOneForm(Form& form, int theme)
{
  ApplyToBackground(form, theme);
  const auto themed = std::find_if(kThemedForms.begin(), kThemedForms.end(),
                                   [&](const ThemedForm& row) { return form.Name() == ToText(row.form); });
  if (form.Name() == QLatin1String("frmPrintCal") && theme >= kFirstColourTheme) {
    ColourControls(form, QStringLiteral("chkList"), ColourOf(theme));
  } else if (form.Name() == QLatin1String("frmReminders")) {
    ApplyToCalendar(form, *themed, theme);
  } else if (themed != kThemedForms.end()) {
    ApplyToForm(form, *themed, theme);
  }
}

int ReadTheme()
{
  Database database = DBEngine::OpenDatabase();
  const int theme = Options::Required(*Options::Open(database), QStringLiteral("Theme")).toInt();
  if (theme < 0 || theme >= kThemeCount) {
    RaiseError(ErrorNumber::kSubscriptOutOfRange);
  }
  return theme;
}

}

bool CalendarHasPicture()
{
  return calendarHasPicture;
}

void SetCalendarHasPicture(bool has)
{
  calendarHasPicture = has;
}

void FitCalendarPicture(const Form& form)
{
  QWidget* picture = form.Control(QStringLiteral("picReminders"));
  const QWidget* lastHeading = form.Control(QStringLiteral("Label2_6"));
  if (picture == nullptr || lastHeading == nullptr) {
    return;
  }
  int height = TopOf(form, "shpHLine_5") - qRound(20.0 / kTwipsPerPixel);
  if (!IsVisibleElement(form, "lblDay_28")) {
    height = TopOf(form, "shpHLine_3");
  } else if (!IsVisibleElement(form, "lblDay_35")) {
    height = TopOf(form, "shpHLine_4");
  }
  picture->resize(lastHeading->x() + lastHeading->width(), height);
}

void ApplyTheme()
{
  Attempt([] {
    const int theme = ReadTheme();
    for (Form* form : Forms::AllLoaded()) {
      ApplyToOneForm(*form, theme);
    }
  });
}

void Choose(int theme)
{
  Options::Write(QStringLiteral("Theme"), theme);
  calendarHasPicture = false;
}

}
