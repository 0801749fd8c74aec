// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "controls/EntryBox.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "people/frmNew.h"
#include "support/FileDialogScript.h"
#include "support/InputBoxScript.h"
#include "support/PageTest.h"

#include <QClipboard>
#include <QFile>
#include <QPointer>

// Looks at the page while a message box stands over it, before the box is answered.
class AtMessageBox : public QObject
{
public:
  explicit AtMessageBox(std::function<void()> look) : look_(std::move(look)) { qApp->installEventFilter(this); }
  ~AtMessageBox() override { qApp->removeEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (qobject_cast<QMessageBox*>(watched) != nullptr && event->type() == QEvent::Show) {
      ++Looks;
      look_();
    }
    return false;
  }

  int Looks = 0;

private:
  std::function<void()> look_;
};

// What the tests of the page say again and again.
namespace PeopleTexts {

inline const QStringList kTextBoxes = {"txtFirst", "txtLast",    "txtStreet", "txtSecondAddress", "txtCity",
                                       "txtProv",  "txtCountry", "txtPostal", "txtPhone",         "txtMobile",
                                       "txtBus",   "txtEmail",   "txtNotes"};
inline const QStringList kCombos = {"cboSex", "cboBirthMonth", "cboBirthDate", "cboBirthYear", "cboStreet"};
inline const QStringList kAllBoxes = kTextBoxes + kCombos;

// Which column each box stands for; cboStreet has none.
inline const QList<std::pair<QString, QString>> kColumns = {
    {"txtFirst", "FirstName"},     {"txtLast", "LastName"},
    {"txtStreet", "Street"},       {"txtSecondAddress", "SecondAddress"},
    {"txtCity", "City"},           {"txtProv", "Province"},
    {"txtCountry", "Country"},     {"txtPostal", "Postal"},
    {"txtPhone", "Phone"},         {"txtMobile", "Mobile"},
    {"txtBus", "Business"},        {"txtEmail", "Email"},
    {"txtNotes", "Notes"},         {"cboBirthMonth", "BirthMonth"},
    {"cboBirthDate", "BirthDate"}, {"cboBirthYear", "BirthYear"},
    {"cboSex", "Gender"}};

inline const QString kDeleteQuestion = QStringLiteral("Are you sure you want to delete this record?");
inline const QString kMarriedQuestion = QStringLiteral(
    "This person is married. Quillmark will also delete anniversary information for this couple. If you select "
    "Cancel, no records will be deleted.");
inline const QString kNoImage = QStringLiteral("Sorry, that is not a valid image format");

// The commands by their place in lblOptions.
inline const QString kFinishAdd = QStringLiteral("lblOptions_0");
inline const QString kCancelAdd = QStringLiteral("lblOptions_1");
inline const QString kMain = QStringLiteral("lblOptions_2");
inline const QString kSearch = QStringLiteral("lblOptions_3");
inline const QString kCancelEdit = QStringLiteral("lblOptions_4");
inline const QString kFinishEdit = QStringLiteral("lblOptions_5");
inline const QString kAdd = QStringLiteral("lblOptions_6");
inline const QString kEdit = QStringLiteral("lblOptions_7");
inline const QString kDelete = QStringLiteral("lblOptions_8");
inline const QString kAnniversary = QStringLiteral("lblOptions_9");
inline const QString kHelp = QStringLiteral("lblOptions_10");

}

// The real record editor in a frame of its own, over a database of the test's own, on
// 5 May 2026.
class PeopleTest : public PageTest<frmNew>
{
protected:
  PeopleTest() : PageTest({"frmIntro", "frmAnn", "frmSpecial", "frmCharts", "frmQuillmark", "frmReminders"})
  {
    Clock::StopOn(QDate(2026, 5, 5));
  }

  // --- The database, seen from outside.

  // Adds a person; a woman, unless the columns say another. Returns the key.
  int AddPerson(const QString& first, const QString& last, QVariantMap columns = {}) const
  {
    columns["FirstName"] = first;
    columns["LastName"] = last;
    if (!columns.contains("Gender")) {
      columns["Gender"] = "Female";
    }
    const QStringList names = columns.keys();
    folder.Execute(QStringLiteral("INSERT INTO People (%1) VALUES (%2)")
                       .arg(names.join(','), QStringList(names.size(), "?").join(',')),
                   columns.values());
    return folder.Value("SELECT max(PeopleID) FROM People").toInt();
  }

  // Marries two people, with the date in all three places. Returns the couple's key.
  int AddCouple(int wife, int husband) const
  {
    folder.Execute(
        "INSERT INTO Ann (Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last, AnnMonth, "
        "AnnDate, AnnYear) SELECT w.PeopleID, w.FirstName, w.LastName, h.PeopleID, h.FirstName, h.LastName, 'June', "
        "'12', '1999' FROM People w, People h WHERE w.PeopleID = ? AND h.PeopleID = ?",
        {wife, husband});
    folder.Execute("UPDATE People SET AnnMonth='June', AnnDate='12', AnnYear='1999' WHERE PeopleID IN (?,?)",
                   {wife, husband});
    return folder.Value("SELECT max(AnnID) FROM Ann").toInt();
  }

  // What a column holds; "NULL" for Null.
  [[nodiscard]] std::string Stored(int person, const QString& column) const
  {
    return AsText(folder.Value(QStringLiteral("SELECT \"%1\" FROM People WHERE PeopleID=%2").arg(column).arg(person)));
  }

  // All rows of a query, one text each, for comparing them before and after.
  [[nodiscard]] std::vector<std::string> Dump(const QString& sql) const
  {
    std::vector<std::string> lines;
    for (const QVariantList& row : folder.Rows(sql)) {
      std::string line;
      for (const QVariant& value : row) {
        line += AsText(value) + "|";
      }
      lines.push_back(line);
    }
    return lines;
  }
  [[nodiscard]] std::vector<std::string> People() const { return Dump("SELECT * FROM People ORDER BY PeopleID"); }
  [[nodiscard]] std::vector<std::string> Couples() const { return Dump("SELECT * FROM Ann ORDER BY AnnID"); }

  static std::string AsText(const QVariant& value) { return value.isNull() ? "NULL" : value.toString().toStdString(); }

  // --- The page.

  void Open(int selectedPerson = 0)
  {
    modID::SelectedPersonID = selectedPerson;
    PageTest::Open();
  }
  void Reopen()
  {
    Leave();
    Open();
  }

  static EntryBox& Box(const QString& name) { return dynamic_cast<EntryBox&>(Control(name)); }
  static ComboBox& Combo(const QString& name) { return dynamic_cast<ComboBox&>(Control(name)); }
  static Image& Picture() { return dynamic_cast<Image&>(Control("imgPerson")); }

  static std::string Shown(const QString& box) { return Box(box).Text().toStdString(); }
  static std::string Counter() { return Caption("lblValues"); }
  static std::string Name() { return Shown("txtFirst") + " " + Shown("txtLast"); }
  static bool HasPicture() { return Picture().Handle() != 0; }

  static QStringList Lines(const QString& combo) { return Hands::LinesOf(Combo(combo)); }

  // True as soon as that control has the page's focus.
  static bool HasFocus(const QString& name)
  {
    return QTest::qWaitFor([&] { return Page().window()->focusWidget() == &Control(name); }, 1000);
  }
  static std::string Focus()
  {
    const QWidget* widget = Page().window()->focusWidget();
    return widget == nullptr ? std::string() : widget->objectName().toStdString();
  }

  // The colour that most of a control is painted in.
  static std::string Background(const QString& name)
  {
    const QImage image = Control(name).grab().toImage();
    QHash<QRgb, int> counts;
    QRgb most = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (++counts[image.pixel(x, y)] >= counts.value(most)) {
          most = image.pixel(x, y);
        }
      }
    }
    return QColor(most).name().toStdString();
  }

  // --- Hands on the page.

  static void Empty(const QString& box)
  {
    Press(box, Qt::Key_A, Qt::ControlModifier);
    Press(box, Qt::Key_Delete);
  }
  static void Type(const QString& box, const QString& text)
  {
    Control(box).setFocus();
    Empty(box);
    QTest::keyClicks(&Control(box), text);
  }
  // Puts the text where the cursor is.
  static void Insert(const QString& box, const QString& text)
  {
    QApplication::clipboard()->setText(text);
    Press(box, Qt::Key_V, Qt::ControlModifier);
  }
  static void Paste(const QString& box, const QString& text)
  {
    Control(box).setFocus();
    Empty(box);
    Insert(box, text);
  }
  static void Pick(const QString& combo, const QString& line) { Hands::PickLine(Combo(combo), line); }
  static void PickLine(const QString& combo, int line) { Hands::PickLine(Combo(combo), line); }

  // --- Pictures.

  [[nodiscard]] QString PictureFile(int person) const
  {
    return folder.File(QStringLiteral("/PeoplePics/%1.bmp").arg(person));
  }
  [[nodiscard]] QString CouplePictureFile(int couple) const
  {
    return folder.File(QStringLiteral("/AnnPics/%1.bmp").arg(couple));
  }
  static QImage Plain(QSize size, const QColor& colour)
  {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
  }
  static void Save(const QString& path, QSize size = {40, 20}, const QColor& colour = Qt::red)
  {
    ASSERT_TRUE(Plain(size, colour).save(path)) << path.toStdString();
  }
  // The colour in the middle of what the page shows; empty without a picture.
  static std::string ShownColour() { return Hands::MiddleColour(Picture().Picture().toImage()); }
  // Neither a picture in the image nor the image in sight.
  static void ExpectNoPicture()
  {
    EXPECT_FALSE(HasPicture());
    EXPECT_FALSE(IsShown("imgPerson"));
    EXPECT_TRUE(IsShown("picPerson"));
  }

  FileDialogScript dialogs;
  InputBoxScript questions;
};
