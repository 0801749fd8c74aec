// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPoint>
#include <QRect>

// Where the box with the details of an event opens, all in twips: beside the middle of its
// cell and below it; to the left and above where it would leave the page. `cell` lies on the
// picture, `picture` on the page.
[[nodiscard]] QPoint DetailsPlace(const QSize& box, const QRect& cell, const QPoint& picture, const QSize& page);
