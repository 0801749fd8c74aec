// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class Image;
class PictureBox;

// The picture of a person or couple on a page where, without one, the theme's stands.
// The size of the box is shared between such pages.
class PagePicture
{
public:
  // Owns none of them. The image stands in the box.
  PagePicture(PictureBox& box, Image& image, PictureBox& theme);

  // Shows the file, by its place in the program's folder, or the theme if there is none.
  void Show(const QString& file);

  void Clear();

  // After the page was resized, with the box in the size that a picture may take.
  void Resized();

private:
  void Fit();

  PictureBox& box_;
  Image& image_;
  PictureBox& theme_;
};
