// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/modImages.h"

#include "controls/Image.h"
#include "platform/Twips.h"

#include <algorithm>

namespace modImages {
namespace {

// In twips, not rounded yet.
struct Size
{
  double width = 0;
  double height = 0;

  [[nodiscard]] double Proportion() const { return width / height; }
};

Size InTwips(const QSize& pixels)
{
  return {pixels.width() * double{kTwipsPerPixel}, pixels.height() * double{kTwipsPerPixel}};
}

Size Fitted(const Size& room, double proportion, int margin)
{
  if (room.Proportion() < proportion) {
    const double width = room.width - 2.0 * margin;
    return {width, width / proportion};
  }
  const double height = room.height - 2.0 * margin;
  return {height * proportion, height};
}

// Half the difference, in pixels: it is a whole number of twips before it is halved.
int Centred(double room, double size)
{
  return PixelsFromTwips(qRound(room - size) / 2);
}

void ShowEmpty(Image& image)
{
  if (UnstretchEmpty) {
    image.SetStretch(false);
  }
  image.setGeometry(0, 0, PixelsFromTwips(BoxWidth), PixelsFromTwips(BoxHeight));
}

}

void FitImage(Image& image, int margin)
{
  if (image.Handle() == 0) {
    ShowEmpty(image);
    return;
  }
  image.SetStretch(false);
  const Size room = InTwips(image.parentWidget()->contentsRect().size());
  const Size size = Fitted(room, InTwips(image.size()).Proportion(), margin);
  image.show();
  image.setGeometry(Centred(room.width, size.width), Centred(room.height, size.height),
                    std::max(1, qRound(size.width / kTwipsPerPixel)),
                    std::max(1, qRound(size.height / kTwipsPerPixel)));
  image.SetStretch(true);
}

}
