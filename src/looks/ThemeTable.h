// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <string_view>

// What a theme changes on one form. Names of controls that a form has not are empty.
struct ThemedForm
{
  std::string_view form;
  std::array<std::string_view, 4> pictures;  // of the picture themes, by their number
  std::string_view pictureHolder;            // empty: the form's own picture
  std::string_view coloured;                 // controls that take the back colour, by blanks
  std::string_view shown;                    // takes it too, and is shown with a picture theme, before the picture
  std::string_view hidden;                   // control hidden with every theme
  std::string_view panel;                    // shape that is hollow with a picture theme
};

inline constexpr std::array<ThemedForm, 7> kThemedForms = {{
    {"frmIntro", {"snowboardw.jpg", "flowersw.jpg", "guitarw.jpg", "butterflyw.jpg"}, "imgTheme", "", "", "", ""},
    {"frmQuillmark",
     {"bicyclew.jpg", "irisw4.jpg", "wchellow3.jpg", "giraffew.jpg"},
     "picThemes",
     "fraResults picPerson",
     "picThemes",
     "picPerson",
     "shpNames"},
    {"frmSpecial",
     {"soccerw.jpg", "fruitw.jpg", "bongow.jpg", "maplew.jpg"},
     "picThemes",
     "fraResults picPerson",
     "picThemes",
     "picPerson",
     "shpMonth"},
    {"frmNew",
     {"mittw.jpg", "mariw.jpg", "pianow2.jpg", "beetlew.jpg"},
     "",
     "fraAdd fraEdit fraTools fraOther fraNav picPerson",
     "",
     "",
     ""},
    {"frmCharts", {"rollerbladesw.jpg", "arrangementw.jpg", "radiow.jpg", "beew.jpg"}, "imgTheme", "", "", "", ""},
    {"frmReminders", {"hockw2.jpg", "amaryllisw.jpg", "chellow2.jpg", "birdw2.jpg"}, "picReminders", "", "", "", ""},
    {"frmAnn", {"footw2.jpg", "canw2.jpg", "trumpw2.jpg", "shellw3.jpg"}, "", "", "", "", "shpEdit"},
}};
