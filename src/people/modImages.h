// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class Image;

// Fits pictures of people and couples into their boxes, for every page that shows one.
namespace modImages {

// The size, in twips, that an image without a picture takes.
inline int BoxWidth = 0;
inline int BoxHeight = 0;

// True while an image without a picture is not to stretch.
inline bool UnstretchEmpty = false;

// Makes the picture as large as its container lets it, less a margin in twips all
// round, in its own proportion and in the middle, and shows it. An image without a
// picture takes the size of the box, and stays as visible or hidden as it was.
void FitImage(Image& image, int margin = 0);

}
