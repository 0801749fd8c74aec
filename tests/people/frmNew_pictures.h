// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "PeopleTest.h"

// The page with files to choose pictures from.
class PicturesTest : public PeopleTest
{
protected:
  [[nodiscard]] QString Written(const QString& name, const QByteArray& contents) const
  {
    QFile file(folder.File("/" + name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
    return file.fileName();
  }
  [[nodiscard]] QString Drawn(const QString& name, QSize size = {40, 20}, const QColor& colour = Qt::red) const
  {
    QString path = folder.File("/" + name);
    EXPECT_TRUE(Plain(size, colour).save(path, nullptr, 100)) << name.toStdString();
    return path;
  }
  static QByteArray Contents(const QString& path)
  {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
  }

  void Choose(const QString& path)
  {
    dialogs.ExpectChoice(path);
    Click("cmdAddPic");
  }
  void CancelChoice()
  {
    dialogs.ExpectCancel();
    Click("cmdAddPic");
  }

  static void StartNewPerson()
  {
    Click(PeopleTexts::kAdd);
    Type("txtFirst", "Dan");
    Type("txtLast", "Dunn");
    Pick("cboSex", "Male");
  }

  static void ExpectRed(const QImage& image)
  {
    ASSERT_FALSE(image.isNull());
    const QColor colour = image.pixelColor(image.width() / 2, image.height() / 2);
    EXPECT_GT(colour.red(), 240);
    EXPECT_LT(colour.green(), 15);
    EXPECT_LT(colour.blue(), 15);
  }

  // The picture touches its box on one axis, and stands in its middle on the other.
  static void ExpectFitted(double proportion)
  {
    const QSize box = Control("picPerson").size();
    const QRect shown = Picture().geometry();
    EXPECT_TRUE(IsShown("imgPerson"));
    EXPECT_TRUE(IsShown("picPerson"));
    EXPECT_TRUE(Picture().Stretch());
    const bool wide = proportion > double(box.width()) / box.height();
    EXPECT_NEAR(shown.width(), wide ? box.width() : box.height() * proportion, 1);
    EXPECT_NEAR(shown.height(), wide ? box.width() / proportion : box.height(), 1);
    EXPECT_NEAR(shown.x(), (box.width() - shown.width()) / 2.0, 1);
    EXPECT_NEAR(shown.y(), (box.height() - shown.height()) / 2.0, 1);
  }

  // A bitmap 2.5 times as large as the picture stood on the page.
  static void ExpectStored(const QString& path, QSize shown)
  {
    EXPECT_EQ(Contents(path).left(2).toStdString(), "BM");
    const QImage stored(path);
    EXPECT_NEAR(stored.width(), shown.width() * 2.5, 2.5);
    EXPECT_NEAR(stored.height(), shown.height() * 2.5, 2.5);
  }

  void OpenInEdit()
  {
    AddPerson("Ann", "Adams");
    Save(PictureFile(1), {40, 20}, Qt::blue);
    Open();
    Click(PeopleTexts::kEdit);
  }
};
