// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/ComboBox.h"
#include "controls/ListBox.h"

#include <QAbstractItemView>
#include <QColor>
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

// What a hand and an eye do with lists, marks and pictures.
namespace Hands {

// All lines of a list box or a combo box.
template <typename Box>
QStringList LinesOf(const Box& box)
{
  QStringList lines;
  for (int i = 0; i < box.ListCount(); ++i) {
    lines.append(box.List(i));
  }
  return lines;
}

inline void ClickLine(ListBox& box, int line)
{
  const QModelIndex index = box.model()->index(line, 0);
  ASSERT_TRUE(index.isValid()) << box.objectName().toStdString() << " has no line " << line;
  box.scrollTo(index);
  QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, box.visualRect(index).center());
}

// Opens the list of the box and clicks a line of it.
inline void PickLine(ComboBox& box, int line)
{
  box.showPopup();
  QAbstractItemView& view = *box.view();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(view.window()));
  const QModelIndex index = view.model()->index(line, 0);
  view.scrollTo(index);
  QTest::mouseMove(view.viewport(), view.visualRect(index).center());
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
  ASSERT_TRUE(QTest::qWaitFor([&] { return !view.isVisible(); }));
}

inline void PickLine(ComboBox& box, const QString& text)
{
  const qsizetype line = LinesOf(box).indexOf(text);
  ASSERT_GE(line, 0) << text.toStdString() << " is not in " << LinesOf(box).join("; ").toStdString();
  PickLine(box, static_cast<int>(line));
}

// Clicks on a check box or an option button, near its mark.
inline void Tick(QWidget& button)
{
  QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
}

inline void SavePicture(const QString& path, const QColor& colour = Qt::red, QSize size = {40, 20})
{
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  ASSERT_TRUE(image.save(path)) << path.toStdString();
}

// The colour in the middle of a picture; empty without one.
inline std::string MiddleColour(const QImage& image)
{
  return image.isNull() ? std::string() : image.pixelColor(image.width() / 2, image.height() / 2).name().toStdString();
}

}
