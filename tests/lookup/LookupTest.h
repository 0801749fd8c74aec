// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/EntryBox.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "controls/Shape.h"
#include "lookup/frmQuillmark.h"
#include "people/modImages.h"
#include "store/StoreError.h"
#include "support/PageTest.h"

#include <QClipboard>

#include <array>

// One of the eight things that the page can show of a person.
struct LookupItem
{
  const char* check;
  const char* caption;
  const char* box;
  const char* shape;
};

inline constexpr std::array<LookupItem, 8> kItems = {{
    {"chkInfo_0", "Home phone", "txtPhoneInfo", "shpPhone"},
    {"chkInfo_1", "Email", "txtEmailInfo", "shpEmail"},
    {"chkInfo_2", "Address", "txtAddress", "shpAddress"},
    {"chkInfo_3", "Mobile", "txtMobileInfo", "shpMobile"},
    {"chkInfo_4", "Business phone", "txtBusInfo", "shpBus"},
    {"chkPersonal_0", "Birthday", "txtBirthInfo", "shpBirth"},
    {"chkPersonal_1", "Anniversary", "txtAnnInfo", "shpAnn"},
    {"chkNotes", "Notes", "txtNotes", "shpNotes"},
}};

inline const QString kFirstNameOrder = QStringLiteral("lblNames_0");
inline const QString kLastNameOrder = QStringLiteral("lblNames_1");
inline const QString kCheckAll = QStringLiteral("lblAll_0");
inline const QString kClearAll = QStringLiteral("lblAll_1");
inline const QString kMain = QStringLiteral("lblOptions_0");
inline const QString kCopy = QStringLiteral("lblOptions_4");

// The real look-up page in a frame of its own, over a database of the test's own.
class LookupPageTest : public PageTest<frmQuillmark>
{
protected:
  LookupPageTest() : PageTest({"frmIntro", "frmNew", "frmAnn"}) {}

  // --- The database, seen from outside. Names may be Null. Returns the key.

  int AddPerson(const QVariant& first, const QVariant& last, QVariantMap columns = {}) const
  {
    columns["FirstName"] = first;
    columns["LastName"] = last;
    const QStringList names = columns.keys();
    folder.Execute(QStringLiteral("INSERT INTO People (%1) VALUES (%2)")
                       .arg(names.join(','), QStringList(names.size(), "?").join(',')),
                   columns.values());
    return folder.Value("SELECT PeopleID FROM People ORDER BY rowid DESC LIMIT 1").toInt();
  }
  void Change(int person, const QString& column, const QVariant& value) const
  {
    folder.Execute(QStringLiteral("UPDATE People SET %1=? WHERE PeopleID=?").arg(column), {value, person});
  }
  void Remove(int person) const { folder.Execute("DELETE FROM People WHERE PeopleID=?", {person}); }

  // Somebody of whom everything is known.
  int AddAnn() const
  {
    return AddPerson("Ann", "Wood",
                     {{"Phone", "555-1000"},
                      {"Mobile", "555-2000"},
                      {"Business", "555-3000"},
                      {"Email", "ann@example.com"},
                      {"Street", "1 High Street"},
                      {"SecondAddress", "Flat 2"},
                      {"City", "Leeds"},
                      {"Province", "Yorkshire"},
                      {"Country", "England"},
                      {"Postal", "LS1 1AA"},
                      {"BirthMonth", "March"},
                      {"BirthDate", "5"},
                      {"BirthYear", "1962"},
                      {"AnnMonth", "June"},
                      {"AnnDate", "12"},
                      {"AnnYear", "1990"},
                      {"Notes", "Likes tea"}});
  }

  // --- The page.

  static ListBox& Names() { return dynamic_cast<ListBox&>(Control("lstNames")); }
  static QAbstractButton& Button(const QString& name) { return dynamic_cast<QAbstractButton&>(Control(name)); }
  static Label& LabelOf(const QString& name) { return dynamic_cast<Label&>(Control(name)); }
  static Image& Picture() { return dynamic_cast<Image&>(Control("imgPerson")); }
  static PictureBox& ThemePicture() { return dynamic_cast<PictureBox&>(Control("picThemes")); }
  static int Marked(const QString& shape) { return dynamic_cast<Shape&>(Control(shape)).FillStyle(); }

  // The lines of the list, with a bar between them.
  static std::string Lines() { return Hands::LinesOf(Names()).join('|').toStdString(); }
  // What stands in a box, shown or not.
  static std::string TextOf(const QString& box) { return dynamic_cast<EntryBox&>(Control(box)).Text().toStdString(); }
  // What a box shows; "-" while it is hidden.
  static std::string Shown(const QString& box) { return IsShown(box) ? TextOf(box) : "-"; }
  // As it is painted, where "&&" is one "&".
  static std::string ButtonCaption(const QString& button)
  {
    return Button(button).text().replace("&&", "&").toStdString();
  }
  static std::string NotesTitle() { return ButtonCaption("chkNotes"); }
  static std::string TipOf(const QString& name) { return Control(name).toolTip().toStdString(); }

  // The name that stands above the picture.
  static std::string Name() { return Caption("lblName"); }

  static void ExpectShown(const LookupItem& item, const std::string& text)
  {
    EXPECT_TRUE(IsShown(item.box)) << item.box;
    EXPECT_EQ(TextOf(item.box), text) << item.box;
    EXPECT_EQ(Marked(item.shape), 1) << item.shape;
  }
  static void ExpectHidden(const LookupItem& item)
  {
    EXPECT_FALSE(IsShown(item.box)) << item.box;
    EXPECT_EQ(Marked(item.shape), 0) << item.shape;
  }
  static void ExpectNothingShown()
  {
    for (const LookupItem& item : kItems) {
      ExpectHidden(item);
    }
  }
  static void ExpectTicks(bool ticked)
  {
    for (const LookupItem& item : kItems) {
      EXPECT_EQ(IsTicked(item.check), ticked) << item.check;
    }
  }
  static void ExpectPlainTitles()
  {
    EXPECT_EQ(TextOf("txtContact"), "Contact");
    EXPECT_EQ(TextOf("txtSpecial"), "Special occasions");
    EXPECT_EQ(NotesTitle(), "Notes");
  }

  // --- Hands on the page.

  static void TickAll(std::initializer_list<const char*> names)
  {
    for (const char* name : names) {
      Tick(name);
    }
  }
  static void ClickLine(int line) { Hands::ClickLine(Names(), line); }

  // Visible, and above everything else on the page.
  static void ExpectOnTop(const QString& panel)
  {
    EXPECT_TRUE(IsShown(panel)) << panel.toStdString();
    for (const QPoint& at : {Control(panel).geometry().center(), Control(panel).geometry().topLeft() + QPoint(9, 9)}) {
      QWidget* const widget = Page().childAt(at);
      ASSERT_NE(widget, nullptr);
      EXPECT_TRUE(widget == &Control(panel) || Control(panel).isAncestorOf(widget))
          << widget->objectName().toStdString();
    }
  }

  // Does `work`, which is to end in this failure, reported to the user, and in the end of
  // the program.
  template <typename Work>
  void ExpectEnding(int number, Work&& work)
  {
    QString message;
    try {
      StoreError::Raise(number);
    } catch (const RuntimeError& error) {
      message = error.Message();
    }
    int endings = 0;
    Application::SetEnding([&endings](int) { ++endings; });
    boxes.Expect(message);
    work();
    EXPECT_EQ(endings, 1);
    ExpectNoEnding();
  }

  // --- Pictures.

  [[nodiscard]] QString PictureFile(int person) const
  {
    return folder.File(QStringLiteral("/PeoplePics/%1.bmp").arg(person));
  }
  // The garden theme, with its picture for this page.
  void UseGarden() const
  {
    folder.Execute("UPDATE Options SET Theme=1");
    Hands::SavePicture(folder.File("/themes/irisw4.jpg"), Qt::green, {24, 30});
  }
  // The colour in the middle of the picture on show; empty without one.
  static std::string ShownColour() { return Hands::MiddleColour(Picture().Picture().toImage()); }
  static void ExpectPicture(const char* colour)
  {
    EXPECT_EQ(ShownColour(), colour);
    EXPECT_TRUE(IsShown("picPerson"));
    EXPECT_TRUE(IsShown("imgPerson"));
    EXPECT_FALSE(IsShown("picThemes"));
    EXPECT_EQ(Picture().pos(), QPoint(0, 0));
    EXPECT_EQ(Control("picPerson").size(), Picture().size());
  }
  static void ExpectThemePicture()
  {
    EXPECT_EQ(Picture().Handle(), 0);
    EXPECT_FALSE(IsShown("picPerson"));
    EXPECT_TRUE(IsShown("picThemes"));
    EXPECT_EQ(ThemePicture().Picture().size(), QSize(24, 30));
  }

  static std::string Clipboard() { return QApplication::clipboard()->text().toStdString(); }
};
