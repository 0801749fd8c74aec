// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RecordHands.h"

namespace {

// The couple editor and the record editor, one after the other.
class RoundTrip : public AnniversariesTest
{
protected:
  // Ann and Bob, and Cleo and Dan, are made couples on the couple editor, with pictures.
  void MakeCouples()
  {
    QDir(folder.Path()).mkdir("PeoplePics");
    ann = AddWoman("Ann", "Adams");
    bob = AddMan("Bob", "Brown");
    cleo = AddWoman("Cleo", "Cole");
    dan = AddMan("Dan", "Dunn");
    Open();
    MakeCouple("Adams, Ann", "Brown, Bob", kJune);
    MakeCouple("Cole, Cleo", "Dunn, Dan", kMarch);
    ASSERT_EQ(PictureFiles(), QStringList({"1.bmp", "2.bmp"}));
  }
  void MakeCouple(const QString& wife, const QString& husband, const Day& day)
  {
    ClickLine(kWomen, wife);
    ClickLine(kMen, husband);
    PickDay(day);
    const QString path = folder.File("/mine.png");
    Hands::SavePicture(path);
    dialogs.ExpectChoice(path);
    Click("cmdAddPic");
    Update();
  }

  void OpenRecord(int person)
  {
    modID::SelectedPersonID = person;
    OpenPage("frmNew");
  }
  void DeleteRecord(QMessageBox::StandardButton married)
  {
    Record::ExpectQuestion(boxes, QMessageBox::Yes);
    Record::ExpectMarriedQuestion(boxes, married);
    Record::Click(Record::kDelete);
    EXPECT_EQ(boxes.Count(), 2U);
  }

  int ann = 0;
  int bob = 0;
  int cleo = 0;
  int dan = 0;
};

}

TEST_F(RoundTrip, TheRecordEditorShowsTheDateOfTheCouple)
{
  MakeCouples();
  OpenRecord(dan);
  EXPECT_FALSE(IsOpen("frmAnn"));
  EXPECT_EQ(dynamic_cast<QLabel&>(Drive::Control(Record::Page(), "lblCompleteAnn")).text(), "March 3 1980");
}

TEST_F(RoundTrip, CancellingTheDeletionOfAPartnerLeavesEverythingInPlace)
{
  MakeCouples();
  Hands::SavePicture(folder.File(QString("/PeoplePics/%1.bmp").arg(cleo)));
  OpenRecord(cleo);
  const auto people = People();
  const auto couples = Couples();
  DeleteRecord(QMessageBox::Cancel);
  EXPECT_EQ(People(), people);
  EXPECT_EQ(Couples(), couples);
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp", "2.bmp"}));
  EXPECT_TRUE(QFile::exists(folder.File(QString("/PeoplePics/%1.bmp").arg(cleo))));
  for (const char* box : {"txtFirst", "txtNotes", "cboSex", "cboStreet"}) {
    EXPECT_TRUE(Record::Box(box).Locked()) << box;
  }
}

TEST_F(RoundTrip, DeletingAWifePartsTheCouple)
{
  MakeCouples();
  OpenRecord(cleo);
  DeleteRecord(QMessageBox::Ok);
  EXPECT_EQ(CoupleCount(), 1);
  EXPECT_EQ(Couple(2), "no row");
  EXPECT_EQ(WeddingOf(cleo), "no row");
  EXPECT_EQ(WeddingOf(dan), "-|-|-");
  EXPECT_EQ(WeddingOf(ann), "June|12|1999");
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp"}));
  ExpectCopiesAgree();
}

TEST_F(RoundTrip, DeletingAHusbandPartsTheCouple)
{
  MakeCouples();
  OpenRecord(bob);
  DeleteRecord(QMessageBox::Ok);
  EXPECT_EQ(Couple(1), "no row");
  EXPECT_EQ(WeddingOf(ann), "-|-|-");
  EXPECT_EQ(WeddingOf(cleo), "March|3|1980");
  EXPECT_EQ(PictureFiles(), QStringList({"2.bmp"}));
  Open();
  EXPECT_EQ(Lines(kCouples), QStringList({"Cleo and Dan"}));
  EXPECT_EQ(Lines(kMen), QStringList({"Dunn, Dan"}));
}

TEST_F(RoundTrip, DeletingAPartnerRemovesThePicturesOfPersonAndCouple)
{
  MakeCouples();
  const QString picture = folder.File(QString("/PeoplePics/%1.bmp").arg(cleo));
  const QString other = folder.File(QString("/PeoplePics/%1.bmp").arg(dan));
  Hands::SavePicture(picture);
  Hands::SavePicture(other);
  OpenRecord(cleo);
  DeleteRecord(QMessageBox::Ok);
  EXPECT_FALSE(QFile::exists(picture));
  EXPECT_TRUE(QFile::exists(other));
  EXPECT_EQ(PictureFiles(), QStringList({"1.bmp"}));
}

TEST_F(RoundTrip, RenamingAPartnerRenamesThemInTheCouple)
{
  MakeCouples();
  OpenRecord(cleo);
  Record::Click(Record::kEdit);
  Record::Type("txtFirst", "Clara");
  Record::Type("txtLast", "Dunn");
  Record::Click(Record::kFinishEdit);
  EXPECT_EQ(Couple(2), QString("%1|Clara|Dunn|%2|Dan|Dunn|March|3|1980").arg(cleo).arg(dan).toStdString());
  EXPECT_EQ(Couple(1), QString("%1|Ann|Adams|%2|Bob|Brown|June|12|1999").arg(ann).arg(bob).toStdString());
  Open();
  EXPECT_EQ(Lines(kCouples), QStringList({"Ann and Bob", "Clara and Dan"}));
}

TEST_F(RoundTrip, EditAnniversaryOpensTheCoupleOfThePerson)
{
  MakeCouples();
  OpenRecord(dan);
  Record::Click(Record::kAnniversary);
  DropUnloaded();
  EXPECT_FALSE(IsOpen("frmNew"));
  ASSERT_TRUE(IsOpen("frmAnn"));
  ExpectChosen("Cole, Cleo", "Dunn, Dan", kMarch);
  ExpectPicture(Qt::red);
}

TEST_F(RoundTrip, EditAnniversaryOfASingleChoosesNobody)
{
  MakeCouples();
  OpenRecord(AddWoman("Eve"));
  Record::Click(Record::kAnniversary);
  DropUnloaded();
  ASSERT_TRUE(IsOpen("frmAnn"));
  ExpectChosen("", "", kNoDay);
}
