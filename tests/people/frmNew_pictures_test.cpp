// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "frmNew_pictures.h"
#include "support/FullDisk.h"

using namespace PeopleTexts;

namespace {

class EditorPictures : public PicturesTest
{
};

}

TEST_F(EditorPictures, APersonWithoutAFileShowsTheEmptyBox)
{
  AddPerson("Ann", "Adams");
  Open();
  ExpectNoPicture();
  EXPECT_EQ(Picture().size(), Control("picPerson").size());
  EXPECT_EQ(Picture().pos(), QPoint(0, 0));
  EXPECT_FALSE(IsShown("picFinal"));
}

TEST_F(EditorPictures, ATallOneTouchesTopAndBottom)
{
  AddPerson("Ann", "Adams");
  Save(PictureFile(1), {30, 120});
  Open();
  ExpectFitted(30.0 / 120);
  EXPECT_EQ(Picture().y(), 0);
  EXPECT_EQ(Picture().height(), Control("picPerson").height());
}

TEST_F(EditorPictures, AWideOneTouchesLeftAndRight)
{
  AddPerson("Ann", "Adams");
  Save(PictureFile(1), {400, 100});
  Open();
  ExpectFitted(4);
  EXPECT_EQ(Picture().x(), 0);
  EXPECT_EQ(Picture().width(), Control("picPerson").width());
}

TEST_F(EditorPictures, ASmallOneGrowsAndAHugeOneShrinks)
{
  AddPerson("Ann", "Adams");
  AddPerson("Bob", "Brown");
  AddPerson("Cy", "Cole");
  Save(PictureFile(1), {1, 1});
  Save(PictureFile(2), {3000, 100});
  Save(PictureFile(3), {2, 1000});
  Open();
  ExpectFitted(1);
  Click("cmdNext");
  ExpectFitted(30);
  Click("cmdNext");
  ExpectFitted(0.002);
}

TEST_F(EditorPictures, FitAgainWhenThePageIsResized)
{
  AddPerson("Ann", "Adams");
  Save(PictureFile(1), {400, 100});
  Open();
  const int before = Control("picPerson").width();
  Page().resize(Page().size() * 1.5);
  EXPECT_NEAR(Control("picPerson").width(), before * 1.5, 2);
  ExpectFitted(4);
  for (const char* box : {"cboBirthMonth", "cboBirthDate", "cboBirthYear"}) {
    EXPECT_EQ(Control(box).width(), Control("fraBirthday").width()) << box;
  }
  EXPECT_EQ(Control("cboSex").width(), Control("fraGender").width());
  EXPECT_EQ(Control("cboStreet").width(), Control("fraCombo").width());
}

TEST_F(EditorPictures, WithoutAPictureTheImageTakesTheSizeOfItsBoxAtEveryResize)
{
  AddPerson("Ann", "Adams");
  Open();
  for (const double factor : {1.5, 0.8}) {
    Page().resize(Page().size() * factor);
    EXPECT_EQ(Picture().geometry(), QRect(QPoint(0, 0), Control("picPerson").size())) << factor;
  }
}

TEST_F(EditorPictures, TransparentOnesAreStoredOnWhite)
{
  AddPerson("Ann", "Adams");
  QImage clear(40, 20, QImage::Format_ARGB32);
  clear.fill(Qt::transparent);
  const QString path = folder.File("/clear.png");
  ASSERT_TRUE(clear.save(path));
  Open();
  Click(PeopleTexts::kEdit);
  Choose(path);
  Click(PeopleTexts::kFinishEdit);
  const QImage stored(PictureFile(1));
  ASSERT_FALSE(stored.isNull());
  EXPECT_EQ(stored.pixelColor(stored.width() / 2, stored.height() / 2), QColor(Qt::white));
}

TEST_F(EditorPictures, OfAFileForSharperScreensAreStoredWhole)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(PeopleTexts::kEdit);
  Choose(Drawn("mine@2x.png", {400, 200}));
  ExpectFitted(2);
  Click(PeopleTexts::kFinishEdit);
  const QImage stored(PictureFile(1));
  ASSERT_FALSE(stored.isNull());
  EXPECT_EQ(stored.pixelColor(stored.width() - 2, stored.height() - 2), QColor(Qt::red));
}

TEST_F(EditorPictures, AResizeWhileMinimisedChangesNothing)
{
  AddPerson("Ann", "Adams");
  Save(PictureFile(1), {400, 100});
  Open();
  const QRect before = Control("picPerson").geometry();
  frame.state = WindowState::kMinimised;
  Page().resize(Page().size() * 1.5);
  EXPECT_EQ(Control("picPerson").geometry(), before);
}

TEST_F(EditorPictures, ACancelledChoiceInAnEditBringsTheStoredOneBack)
{
  OpenInEdit();
  Choose(Drawn("a.png"));
  EXPECT_EQ(ShownColour(), "#ff0000");
  CancelChoice();
  EXPECT_EQ(ShownColour(), "#0000ff");
  ExpectFitted(2);
  Click(kFinishEdit);
  EXPECT_EQ(QImage(PictureFile(1)).pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(EditorPictures, ACancelledChoiceInAnAdditionLosesTheOneBefore)
{
  AddPerson("Ann", "Adams");
  Save(PictureFile(1));
  Open();
  StartNewPerson();
  Choose(Drawn("a.png"));
  CancelChoice();
  ExpectNoPicture();
  Click(kFinishAdd);
  EXPECT_FALSE(QFile::exists(PictureFile(2)));
}

TEST_F(EditorPictures, ACancelledChoiceWithoutAStoredOneShowsNone)
{
  AddPerson("Ann", "Adams");
  Open();
  Click(kEdit);
  CancelChoice();
  ExpectNoPicture();
  Click(kFinishEdit);
  EXPECT_FALSE(QFile::exists(PictureFile(1)));
}

TEST_F(EditorPictures, AnAdditionBeginsWithoutOne)
{
  AddPerson("Ann", "Adams");
  Save(PictureFile(1));
  Open();
  Click(kAdd);
  EXPECT_FALSE(HasPicture());
  EXPECT_EQ(Picture().size(), Control("picPerson").size());
}

TEST_F(EditorPictures, TheOneOfANewPersonTouchesNoOtherFile)
{
  AddPerson("Ann", "Adams");
  Save(PictureFile(1), {40, 20}, Qt::blue);
  const QByteArray before = Contents(PictureFile(1));
  Open();
  StartNewPerson();
  Choose(Drawn("a.jpg", {30, 40}));
  const QSize shown = Picture().size();
  EXPECT_FALSE(QFile::exists(PictureFile(2)));
  Click(kFinishAdd);
  EXPECT_EQ(Contents(PictureFile(1)), before);
  ExpectStored(PictureFile(2), shown);
  EXPECT_TRUE(HasPicture());
  EXPECT_FALSE(IsShown("picFinal"));
  Click("cmdFirst");
  EXPECT_EQ(ShownColour(), "#0000ff");
  Click("cmdLast");
  ExpectRed(Picture().Picture().toImage());
}

TEST_F(EditorPictures, ACancelledAdditionBringsTheOneOnThePageBack)
{
  AddPerson("Ann", "Adams");
  Save(PictureFile(1), {40, 20}, Qt::blue);
  const QByteArray before = Contents(PictureFile(1));
  Open();
  Click(kAdd);
  Choose(Drawn("a.png"));
  Click(kCancelAdd);
  EXPECT_EQ(ShownColour(), "#0000ff");
  ExpectFitted(2);
  EXPECT_EQ(Contents(PictureFile(1)), before);
  EXPECT_EQ(QDir(folder.File("/PeoplePics")).entryList(QDir::Files), QStringList{"1.bmp"});
}

TEST_F(EditorPictures, AChosenOneTakesThePlaceOfTheStoredAtTheFinish)
{
  OpenInEdit();
  const QByteArray before = Contents(PictureFile(1));
  Choose(Drawn("a.png", {20, 60}));
  const QSize shown = Picture().size();
  EXPECT_EQ(Contents(PictureFile(1)), before);
  Click(kFinishEdit);
  ExpectStored(PictureFile(1), shown);
  ExpectRed(QImage(PictureFile(1)));
}

TEST_F(EditorPictures, AnUntouchedOneIsDrawnAnewByAnEdit)
{
  OpenInEdit();
  const QSize shown = Picture().size();
  Click(kFinishEdit);
  ExpectStored(PictureFile(1), shown);
  EXPECT_EQ(QImage(PictureFile(1)).pixelColor(5, 5), QColor(Qt::blue));
  EXPECT_EQ(ShownColour(), "#0000ff");
}

TEST_F(EditorPictures, ADeletedOneIsBackAfterACancel)
{
  OpenInEdit();
  const QByteArray before = Contents(PictureFile(1));
  Click("cmdDeletePic");
  EXPECT_FALSE(HasPicture());
  EXPECT_EQ(Contents(PictureFile(1)), before);
  Click(kCancelEdit);
  EXPECT_EQ(ShownColour(), "#0000ff");
  ExpectFitted(2);
  EXPECT_EQ(Contents(PictureFile(1)), before);
}

TEST_F(EditorPictures, ADeletedOneIsGoneAfterTheFinish)
{
  OpenInEdit();
  AddPerson("Bob", "Brown");
  Click("cmdDeletePic");
  EXPECT_TRUE(QFile::exists(PictureFile(1)));
  Click(kFinishEdit);
  EXPECT_FALSE(QFile::exists(PictureFile(1)));
  EXPECT_FALSE(HasPicture());
  Reopen();
  ExpectNoPicture();
}

TEST_F(EditorPictures, AfterADeletedOneAnotherCanBeChosen)
{
  OpenInEdit();
  Click("cmdDeletePic");
  Choose(Drawn("a.png"));
  Click(kFinishEdit);
  ExpectRed(QImage(PictureFile(1)));
}

TEST_F(EditorPictures, ADeletedOneIsBackAfterARefusedFinishAndACancel)
{
  OpenInEdit();
  Click("cmdDeletePic");
  Empty("txtFirst");
  boxes.Expect("A first name must be entered, or click Cancel");
  Click(kFinishEdit);
  EXPECT_TRUE(QFile::exists(PictureFile(1)));
  EXPECT_FALSE(HasPicture());
  Click(kCancelEdit);
  EXPECT_EQ(ShownColour(), "#0000ff");
  EXPECT_TRUE(QFile::exists(PictureFile(1)));
}

// Another program has added somebody meanwhile.
TEST_F(EditorPictures, TheOneOfANewPersonBearsTheirOwnKey)
{
  AddPerson("Ann", "Adams");
  Open();
  StartNewPerson();
  Choose(Drawn("a.png"));
  const int other = AddPerson("Zoe", "Zimmer");
  Click(kFinishAdd);
  const int dan = folder.Value("SELECT PeopleID FROM People WHERE FirstName='Dan'").toInt();
  EXPECT_TRUE(QFile::exists(PictureFile(dan)));
  EXPECT_FALSE(QFile::exists(PictureFile(other)));
  Click(kEdit);
  Type("txtCity", "Bath");
  Click(kFinishEdit);
  EXPECT_EQ(Stored(dan, "City"), "Bath");
  EXPECT_EQ(Stored(other, "City"), "NULL");
}

TEST_F(EditorPictures, AChosenOneCanBeDeletedBeforeTheFinish)
{
  Open();
  StartNewPerson();
  Choose(Drawn("a.png"));
  Click("cmdDeletePic");
  Click(kFinishAdd);
  EXPECT_FALSE(HasPicture());
  EXPECT_TRUE(QDir(folder.File("/PeoplePics")).isEmpty());
}

TEST_F(EditorPictures, WithoutTheFolderTheRecordIsWrittenAllTheSame)
{
  ASSERT_TRUE(QDir(folder.Path()).rmdir("PeoplePics"));
  Open();
  StartNewPerson();
  Choose(Drawn("a.png"));
  Click(kFinishAdd);
  Click(kEdit);
  Type("txtCity", "Bath");
  Click(kFinishEdit);
  EXPECT_EQ(Dump("SELECT FirstName, City FROM People"), std::vector<std::string>{"Dan|Bath|"});
  EXPECT_FALSE(QFile::exists(folder.File("/PeoplePics")));
  EXPECT_FALSE(IsShown("fraEdit"));
}

// A folder in the file's place cannot be written to by anybody.
TEST_F(EditorPictures, WhereNoFileCanBeWrittenTheRecordIsWrittenAllTheSame)
{
  AddPerson("Ann", "Adams");
  Open();
  ASSERT_TRUE(QDir(folder.File("/PeoplePics")).mkpath("1.bmp/x"));
  Click(kEdit);
  Choose(Drawn("a.png"));
  Type("txtCity", "Bath");
  Click(kFinishEdit);
  EXPECT_EQ(Stored(1, "City"), "Bath");
  EXPECT_TRUE(QFileInfo(folder.File("/PeoplePics/1.bmp/x")).isDir());
  EXPECT_FALSE(IsShown("fraEdit"));
}

TEST_F(EditorPictures, AReadOnlyFolderStopsNoRecord)
{
  OpenInEdit();
  const QString pictures = folder.File("/PeoplePics");
  ASSERT_TRUE(QFile::setPermissions(pictures, QFile::ReadOwner | QFile::ExeOwner));
  Choose(Drawn("a.png"));
  Type("txtCity", "Bath");
  Click(kFinishEdit);
  EXPECT_TRUE(QFile::setPermissions(pictures, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  EXPECT_EQ(Stored(1, "City"), "Bath");
  EXPECT_TRUE(QFile::exists(PictureFile(1)));
}

// What grows most is the picture; everything else still finds its place.
TEST_F(EditorPictures, AStoredOneStaysWhereTheNewOneCannotBeWritten)
{
  OpenInEdit();
  const QByteArray before = Contents(PictureFile(1));
  Choose(Drawn("a.png"));
  Type("txtCity", "Bath");
  {
    const FullDisk disk(QFileInfo(folder.DatabasePath()).size() + 4096);
    Click(kFinishEdit);
  }
  EXPECT_EQ(Stored(1, "City"), "Bath");
  EXPECT_TRUE(QFile::exists(PictureFile(1)));
  EXPECT_EQ(Contents(PictureFile(1)), before);
  EXPECT_EQ(QDir(folder.File("/PeoplePics")).entryList(QDir::Files | QDir::Hidden), QStringList{"1.bmp"});
}
