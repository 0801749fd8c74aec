// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/PagePicture.h"

#include "controls/Image.h"
#include "controls/PictureBox.h"
#include "looks/modThemes.h"
#include "people/modImages.h"
#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/LoadPicture.h"
#include "platform/Twips.h"

PagePicture::PagePicture(PictureBox& box, Image& image, PictureBox& theme) : box_(box), image_(image), theme_(theme) {}

void PagePicture::Show(const QString& file)
{
  box_.resize(PixelsFromTwips(modImages::BoxWidth), PixelsFromTwips(modImages::BoxHeight));
  image_.SetPicture(LoadPicture());
  box_.hide();
  image_.hide();
  Attempt([&] { image_.SetPicture(LoadPicture(App::File(file))); });
  if (image_.Handle() == 0) {
    modThemes::ApplyTheme();
    return;
  }
  Fit();
}

void PagePicture::Clear()
{
  image_.SetPicture(LoadPicture());
  box_.hide();
  modThemes::ApplyTheme();
}

void PagePicture::Resized()
{
  modImages::BoxWidth = TwipsFromPixels(box_.width());
  modImages::BoxHeight = TwipsFromPixels(box_.height());
  if (image_.Handle() != 0) {
    Fit();
  }
}

void PagePicture::Fit()
{
  theme_.hide();
  theme_.SetPicture(LoadPicture());
  modImages::FitImage(image_);
  box_.resize(image_.size());
  image_.move(0, 0);
  box_.show();
}
