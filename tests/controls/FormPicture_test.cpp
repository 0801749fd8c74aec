// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Form.h"
#include "controls/Forms.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTest>

namespace {

const QRect kPlace(40, 20, 100, 50);

class Notice : public Form
{
public:
  explicit Notice(const QRect& place) : Form(QStringLiteral("frmNotice"), Kind::kWindow)
  {
    resize(600, 300);
    SetPicturePlace(place);
  }
};

class FormPicture : public testing::Test
{
protected:
  ~FormPicture() override
  {
    Forms::Unload(QStringLiteral("frmNotice"));
    Forms::UnregisterAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  // A form of 600 by 300 pixels.
  static Form& Load(const QRect& place = {})
  {
    Forms::Register(QStringLiteral("frmNotice"), [=] { return new Notice(place); });
    return Forms::Load(QStringLiteral("frmNotice"));
  }

  static QPixmap PictureOf(int width, int height)
  {
    QPixmap picture(width, height);
    picture.fill(Qt::red);
    return picture;
  }

  // Where the picture is seen.
  static QRect Seen(Form& form)
  {
    const QImage painted = form.grab().toImage();
    QRect seen;
    for (int y = 0; y < painted.height(); ++y) {
      for (int x = 0; x < painted.width(); ++x) {
        if (painted.pixelColor(x, y) == QColor(Qt::red)) {
          seen |= QRect(x, y, 1, 1);
        }
      }
    }
    return seen;
  }
};

}

TEST_F(FormPicture, StandsOnTheRightThird)
{
  Form& form = Load();
  form.SetPicture(PictureOf(400, 400));
  EXPECT_EQ(form.Picture().size(), QSize(400, 400));
  EXPECT_FALSE(form.PicturePlace().isValid());
  const QRect seen = Seen(form);
  EXPECT_TRUE(QRect(400, 0, 200, 300).contains(seen));
  EXPECT_EQ(seen.width(), seen.height());
  EXPECT_GT(seen.width(), 150);
  EXPECT_EQ(form.grab().toImage().pixelColor(500, 5), QColor(Qt::white));
}

TEST_F(FormPicture, EmptyLeavesTheBackColour)
{
  for (const QRect& place : {QRect(), kPlace}) {
    Form& form = Load(place);
    form.SetPicture(PictureOf(40, 40));
    ASSERT_TRUE(Seen(form).isValid());
    form.SetPicture({});
    EXPECT_TRUE(form.Picture().isNull());
    EXPECT_FALSE(Seen(form).isValid());
    form.Unload();
  }
}

TEST_F(FormPicture, FillsItsPlace)
{
  Form& form = Load(kPlace);
  EXPECT_EQ(form.PicturePlace(), kPlace);
  for (const QSize size : {QSize(200, 100), QSize(20, 10)}) {
    form.SetPicture(PictureOf(size.width(), size.height()));
    EXPECT_EQ(Seen(form), kPlace) << size.width();
  }
}

TEST_F(FormPicture, KeepsItsProportionWithinItsPlace)
{
  Form& form = Load(kPlace);
  form.SetPicture(PictureOf(30, 30));
  EXPECT_EQ(Seen(form).size(), QSize(50, 50));
  EXPECT_TRUE(kPlace.contains(Seen(form)));
  form.SetPicture(PictureOf(400, 100));
  EXPECT_EQ(Seen(form).size(), QSize(100, 25));
  EXPECT_TRUE(kPlace.contains(Seen(form)));
}

TEST_F(FormPicture, ItsPlaceGrowsWithTheForm)
{
  Form& form = Load(kPlace);
  form.SetPicture(PictureOf(200, 100));
  form.resize(1200, 600);
  EXPECT_EQ(Seen(form), QRect(80, 40, 200, 100));
  form.resize(1200, 300);
  EXPECT_TRUE(QRect(80, 20, 200, 50).contains(Seen(form)));
  EXPECT_EQ(Seen(form).size(), QSize(100, 50));
  form.resize(600, 300);
  EXPECT_EQ(Seen(form), kPlace) << "it comes back to where it stood";
}

TEST_F(FormPicture, PlaceIsAPropertyOfADesign)
{
  Form& form = Load();
  EXPECT_TRUE(form.setProperty("PicturePlace", kPlace));
  EXPECT_EQ(form.PicturePlace(), kPlace);
}
