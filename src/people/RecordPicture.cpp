// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/RecordPicture.h"

#include "controls/Form.h"
#include "controls/Image.h"
#include "controls/PictureBox.h"
#include "people/modImages.h"
#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/Files.h"
#include "platform/LoadPicture.h"
#include "platform/MsgBox.h"
#include "platform/FileDialog.h"
#include "platform/SavePicture.h"
#include "platform/Twips.h"

#include <QPainter>

namespace {

constexpr double kStoredSize = 2.5;  // times the size on the page

template <typename T>
T& Find(const Form& page, const char* name)
{
  return *qobject_cast<T*>(page.Control(QLatin1String(name)));
}

QString FileOf(const QString& folder, int key)
{
  return App::File(folder + QString::number(key) + QStringLiteral(".bmp"));
}

QImage Drawn(const QPixmap& picture, const QSize& size)
{
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.drawPixmap(0, 0, picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  return image;
}

}

RecordPicture::RecordPicture(const Form& page, QString folder, std::function<int()> key)
    : image_(Find<Image>(page, "imgPerson")),
      box_(Find<PictureBox>(page, "picPerson")),
      canvas_(Find<PictureBox>(page, "picFinal")),
      folder_(std::move(folder)),
      key_(std::move(key))
{}

QString RecordPicture::File() const
{
  return FileOf(folder_, key_());
}

bool RecordPicture::HasPicture() const
{
  return image_.Handle() != 0;
}

void RecordPicture::Empty()
{
  image_.SetPicture(LoadPicture());
}

void RecordPicture::LoadImage()
{
  Attempt([this] {
    image_.SetPicture(LoadPicture(File()));
    image_.SetStretch(true);
  });
}

void RecordPicture::Fit()
{
  modImages::FitImage(image_);
}

void RecordPicture::HideAndFit()
{
  image_.hide();
  Fit();
}

void RecordPicture::ShowInBox()
{
  Empty();
  box_.hide();
  LoadImage();
  HideAndFit();
  box_.show();
}

void RecordPicture::FileDelete()
{
  FileDelete(key_());
}

void RecordPicture::FileDelete(int key)
{
  if (ClearShownPicture) {
    Empty();
    ClearShownPicture = false;
  }
  if (!KeepPictureFile) {
    Attempt([&] { Files::DeleteFile(FileOf(folder_, key)); });
  }
}

void RecordPicture::AnnFileDelete(int annID)
{
  Attempt([&] { Files::DeleteFile(FileOf(QStringLiteral("/AnnPics/"), annID)); });
}

void RecordPicture::StorePicture()
{
  Attempt([this] {
    const QImage drawn = Drawn(image_.Picture(), image_.size() * kStoredSize);
    canvas_.resize(drawn.size());
    canvas_.SetPicture(QPixmap::fromImage(drawn));
    SavePicture(drawn, File());
  });
}

void RecordPicture::StoreOrDelete()
{
  KeepPictureFile = false;
  if (HasPicture()) {
    StorePicture();
  } else {
    FileDelete();
  }
}

void RecordPicture::Choose(bool stored)
{
  try {
    Empty();
    const QString file = ShowOpen();
    image_.hide();
    image_.SetPicture(LoadPicture(file));
    Fit();
    box_.show();
    KeepPictureFile = true;
  } catch (const RuntimeError& error) {
    if (error.Number() == ErrorNumber::kInvalidPicture) {
      MsgBox(QStringLiteral("Sorry, that is not a valid image format"));
      TakeBack(stored);
    } else if (error.Number() == ErrorNumber::kCancelled) {
      TakeBack(stored);
    }
  }
}

void RecordPicture::TakeBack(bool stored)
{
  if (stored) {
    LoadImage();
  }
  HideAndFit();
  box_.show();
}

void RecordPicture::Remove()
{
  ClearShownPicture = true;
  KeepPictureFile = true;
  FileDelete();
  Fit();
}

void RecordPicture::Resize()
{
  box_.hide();
  image_.hide();
  modImages::BoxWidth = TwipsFromPixels(box_.width());
  modImages::BoxHeight = TwipsFromPixels(box_.height());
  Fit();
  box_.show();
}
