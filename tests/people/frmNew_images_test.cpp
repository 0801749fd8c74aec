// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "frmNew_pictures.h"
#include "support/WithoutRights.h"

#include <QFileDialog>
#include <QImageReader>
#include <QImageWriter>

#include <sys/stat.h>

using namespace PeopleTexts;

namespace {

const QByteArray kGif(
    "GIF89a\x01\0\x01\0\x80\0\0\xff\0\0\0\0\0,\0\0\0\0\x01\0\x01\0\0\x02\x02"
    "D\x01\0;",
    35);
const QByteArray kSvg(R"(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="20">)"
                      R"(<rect width="40" height="20" fill="#ff0000"/></svg>)");

void AppendNumber(QByteArray& bytes, quint32 number)
{
  for (int shift = 24; shift >= 0; shift -= 8) {
    bytes.append(static_cast<char>(number >> shift));
  }
}

void AppendChunk(QByteArray& file, const QByteArray& kindAndData)
{
  quint32 sum = ~0U;
  for (const char byte : kindAndData) {
    sum ^= static_cast<uchar>(byte);
    for (int bit = 0; bit < 8; ++bit) {
      sum = (sum >> 1) ^ (0xEDB88320U & (0U - (sum & 1U)));
    }
  }
  AppendNumber(file, static_cast<quint32>(kindAndData.size()) - 4);
  file.append(kindAndData);
  AppendNumber(file, ~sum);
}

// Packed bits, the lowest first.
class Bits
{
public:
  // Codes of the packing come with their highest bit first.
  void AppendCode(unsigned code, int length)
  {
    for (int bit = length - 1; bit >= 0; --bit) {
      last_ = static_cast<uchar>(last_ | (((code >> bit) & 1U) << used_));
      if (++used_ == 8) {
        bytes_.append(static_cast<char>(std::exchange(last_, uchar(0))));
        used_ = 0;
      }
    }
  }
  [[nodiscard]] QByteArray Bytes() const { return used_ == 0 ? bytes_ : bytes_ + static_cast<char>(last_); }

private:
  QByteArray bytes_;
  uchar last_ = 0;
  int used_ = 0;
};

// That many zeros, packed: one of them, runs of 258 like it, and single ones.
QByteArray PackedZeros(quint64 count)
{
  Bits bits;
  bits.AppendCode(0b110, 3);
  bits.AppendCode(0b00110000, 8);
  for (quint64 run = (count - 1) / 258; run > 0; --run) {
    bits.AppendCode(0b11000101, 8);
    bits.AppendCode(0, 5);
  }
  for (quint64 single = (count - 1) % 258; single > 0; --single) {
    bits.AppendCode(0b00110000, 8);
  }
  bits.AppendCode(0, 7);
  QByteArray packed("\x78\x01");
  packed.append(bits.Bytes());
  AppendNumber(packed, static_cast<quint32>(count % 65521) << 16 | 1U);
  return packed;
}

// A whole black picture of one byte a pixel, in few bytes.
QByteArray BlackPng(quint32 width, quint32 height)
{
  QByteArray header("IHDR");
  AppendNumber(header, width);
  AppendNumber(header, height);
  header.append(QByteArray("\x08\0\0\0\0", 5));
  QByteArray file("\x89PNG\r\n\x1A\n");
  AppendChunk(file, header);
  AppendChunk(file, "IDAT" + PackedZeros(quint64(width + 1) * height));
  AppendChunk(file, "IEND");
  return file;
}

// Another program takes the file away as soon as the dialog that chose it closes.
class FileThatGoes : public QObject
{
public:
  explicit FileThatGoes(QString path) : path_(std::move(path)) { qApp->installEventFilter(this); }
  ~FileThatGoes() override { qApp->removeEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (qobject_cast<QFileDialog*>(watched) != nullptr && event->type() == QEvent::Hide) {
      EXPECT_TRUE(QFile::remove(path_));
    }
    return false;
  }

private:
  QString path_;
};

class EditorImages : public PicturesTest
{
protected:
  void ChooseWhatGoes()
  {
    const FileThatGoes file(Drawn("goes.png"));
    Choose(folder.File("/goes.png"));
    EXPECT_FALSE(QFile::exists(folder.File("/goes.png")));
  }
  void ChooseNoPicture()
  {
    boxes.Expect(kNoImage);
    Choose(Written("letter.txt", "A letter.\n"));
  }

  void OpenForAnAddition()
  {
    AddPerson("Ann", "Adams");
    Save(PictureFile(1), {40, 20}, Qt::blue);
    Open();
    Click(kAdd);
  }
  // The addition is given up, and the person on the page deleted.
  void ExpectDeleteLeavesTheFile(bool leaves)
  {
    Click(kCancelAdd);
    boxes.Expect(kDeleteQuestion, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, "Delete Record");
    Click(kDelete);
    EXPECT_TRUE(People().empty());
    EXPECT_EQ(QFile::exists(PictureFile(1)), leaves);
  }
};

}

TEST_F(EditorImages, OfEveryKindAreShownAndStoredAsABitmap)
{
  QStringList paths = {Drawn("a.png"),           Drawn("a.jpg"),         Drawn("a.bmp"),
                       Drawn("a.ico", {32, 16}), Written("a.gif", kGif), Written("a.svg", kSvg)};
  if (QImageWriter::supportedImageFormats().contains("webp")) {
    paths.append(Drawn("a.webp"));
  }
  Open();
  for (const QString& path : paths) {
    SCOPED_TRACE(path.toStdString());
    StartNewPerson();
    Choose(path);
    ExpectRed(Picture().Picture().toImage());
    EXPECT_TRUE(IsShown("imgPerson"));
    const QSize shown = Picture().size();
    Click(kFinishAdd);
    const int person = folder.Value("SELECT max(PeopleID) FROM People").toInt();
    ExpectStored(PictureFile(person), shown);
    ExpectRed(QImage(PictureFile(person)));
  }
  EXPECT_EQ(QDir(folder.File("/PeoplePics")).entryList(QDir::Files).size(), paths.size());
}

TEST_F(EditorImages, AreKnownByWhatTheyHoldNotByTheirName)
{
  OpenInEdit();
  static_cast<void>(Drawn("a.png"));
  QFile::rename(folder.File("/a.png"), folder.File("/a.txt"));
  Choose(folder.File("/a.txt"));
  EXPECT_EQ(ShownColour(), "#ff0000");
}

TEST_F(EditorImages, WhatIsNoPictureIsRefusedAndTheStoredOneComesBack)
{
  OpenInEdit();
  const QByteArray stored = Contents(PictureFile(1));
  const QByteArray png = Contents(Drawn("whole.png", {300, 300}));
  const QStringList paths = {Written("letter.txt", "A letter.\n"), Written("letter.png", "A letter.\n"),
                             Written("empty.png", ""), Written("half.png", png.left(png.size() / 2)),
                             Written("blank.bmp", QByteArray(200, '\0'))};
  for (const QString& path : paths) {
    SCOPED_TRACE(path.toStdString());
    boxes.Expect(kNoImage);
    Choose(path);
    EXPECT_EQ(ShownColour(), "#0000ff");
    ExpectFitted(2);
    EXPECT_EQ(Contents(PictureFile(1)), stored);
  }
  EXPECT_TRUE(IsShown("fraEdit"));
}

TEST_F(EditorImages, WhatIsNoPictureLeavesANewPersonWithout)
{
  AddPerson("Ann", "Adams");
  Save(PictureFile(1));
  Open();
  StartNewPerson();
  Choose(Drawn("a.png"));
  boxes.Expect(kNoImage);
  Choose(Written("letter.txt", "A letter.\n"));
  ExpectNoPicture();
  Click(kFinishAdd);
  EXPECT_FALSE(QFile::exists(PictureFile(2)));
}

TEST_F(EditorImages, OneThatWouldTakeTooMuchMemoryIsRefused)
{
  OpenInEdit();
  Choose(Written("small.png", BlackPng(30, 20)));
  EXPECT_EQ(ShownColour(), "#000000");
  const QString path = Written("large.png", BlackPng(30'000, 30'000));
  ASSERT_EQ(QImageReader(path).size(), QSize(30'000, 30'000));
  boxes.Expect(kNoImage);
  Choose(path);
  EXPECT_EQ(ShownColour(), "#0000ff");
}

TEST_F(EditorImages, OneThatMayNotBeOpenedIsRefused)
{
  const QString path = Drawn("secret.png");
  ASSERT_EQ(chmod(folder.Path().toUtf8().constData(), 0755), 0);
  ASSERT_EQ(chmod(path.toUtf8().constData(), 0), 0);
  Open();
  Click(kAdd);
  boxes.Expect(kNoImage);
  {
    const WithoutRights rights;
    ASSERT_TRUE(rights.Done());
    Choose(path);
  }
  ExpectNoPicture();
}

TEST_F(EditorImages, AFileThatGoesAfterItsChoiceLeavesTheBoxEmptyWithoutAWord)
{
  OpenInEdit();
  ChooseWhatGoes();
  EXPECT_EQ(boxes.Count(), 0U);
  EXPECT_FALSE(HasPicture());
  EXPECT_FALSE(IsShown("imgPerson"));
  EXPECT_TRUE(IsShown("fraEdit"));
  Click(kCancelEdit);
  EXPECT_EQ(ShownColour(), "#0000ff");
}

TEST_F(EditorImages, WhatIsRefusedDoesNotKeepTheFileOfWhoIsDeletedNext)
{
  OpenForAnAddition();
  ChooseNoPicture();
  ChooseWhatGoes();
  CancelChoice();
  ExpectDeleteLeavesTheFile(false);
}

TEST_F(EditorImages, WhatIsRefusedAfterAChoiceKeepsTheFileOfWhoIsDeletedNext)
{
  OpenForAnAddition();
  Choose(Drawn("a.png"));
  ChooseNoPicture();
  ChooseWhatGoes();
  CancelChoice();
  ExpectDeleteLeavesTheFile(true);
}
