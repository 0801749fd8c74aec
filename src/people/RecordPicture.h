// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>

class Form;
class Image;
class PictureBox;

// The picture of the record on a page: shown in imgPerson inside picPerson, chosen and
// removed by the user, and stored as a bitmap under the record's key. What fails is
// passed over: a record without a picture is a normal state.
class RecordPicture
{
public:
  // `folder` is one of the program's folder, as "/PeoplePics/". `key` tells the key of the
  // record at hand, 0 if there is none.
  RecordPicture(const Form& page, QString folder, std::function<int()> key);

  bool ClearShownPicture = false;  // the next FileDelete empties the image
  bool KeepPictureFile = false;    // FileDelete leaves the file

  [[nodiscard]] bool HasPicture() const;
  void Empty();
  void LoadImage();   // without a file the image is left as it is
  void HideAndFit();  // an image with a picture comes back into sight
  void Fit();
  void FileDelete();
  void FileDelete(int key);
  void StorePicture();

  // Makes the file what the image shows. The old one goes only when a new one takes its
  // place, or when there is none to store.
  void StoreOrDelete();

  // As LoadImage and HideAndFit, with the whole box out of sight meanwhile, from empty.
  void ShowInBox();

  // The commands of the page. Where a choice fails, the stored picture comes back if
  // `stored`.
  void Choose(bool stored);
  void Remove();

  // For the page's resize.
  void Resize();

  // Removes the picture of a couple.
  static void AnnFileDelete(int annID);

private:
  [[nodiscard]] QString File() const;
  void TakeBack(bool stored);

  Image& image_;
  PictureBox& box_;
  PictureBox& canvas_;
  QString folder_;
  std::function<int()> key_;
};
