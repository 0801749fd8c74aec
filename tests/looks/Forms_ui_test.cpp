// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "FormDesign.h"

#include "controls/Label.h"
#include "looks/Style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDirIterator>
#include <QFontMetrics>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>

#include <memory>
#include <set>

namespace {

constexpr int kCommandInset = 8;

// Controls that stand outside the window until it grows.
const std::set<QString> kMayStandOutside = {
    QStringLiteral("frmTextNotice.lblExplain"),
    QStringLiteral("frmTextNotice.lstMoreInfo"),
    QStringLiteral("frmReminders.shpHLine_5"),
};

// The ornament of this page is the band behind the weekdays.
const QString kBandOfTheCalendar = QStringLiteral("frmReminders.Shape15");

// The longest texts that are set while the program runs.
const std::multimap<QString, QString> kLaterTexts = {
    {QStringLiteral("frmTextNotice.lblExplain"),
     QStringLiteral("You've chosen to be notified of all calendar events occurring within the next 30 days:")},
    {QStringLiteral("frmTextNotice.lblNotice"),
     QStringLiteral("Reminders are not active. Go to the Reminders Set-up page to format reminders.")},
    {QStringLiteral("frmNotice.lblCurrentBirth"),
     QStringLiteral("Reminder on the day of, and the day before, a birthday.")},
    {QStringLiteral("frmNotice.lblCurrentBirth"),
     QStringLiteral("Reminder for all birthdays occurring over the next 30 days.")},
    {QStringLiteral("frmNotice.lblCurrentAnn"),
     QStringLiteral("Reminder on the day of, and the day before, an anniversary.")},
    {QStringLiteral("frmNotice.lblCurrentAnn"),
     QStringLiteral("Reminder for all anniversaries occurring over the next 30 days.")},
    {QStringLiteral("frmNotice.lblCurrentCal"),
     QStringLiteral("Reminder on the day of, and the day before, a calendar event.")},
    {QStringLiteral("frmNotice.lblCurrentCal"),
     QStringLiteral("Reminder for all calendar events occurring over the next 30 days.")},
    {QStringLiteral("frmNotice.lblTextAudio"), QStringLiteral("Text and audio notification.")},
    {QStringLiteral("frmNotice.lblTextAudioAnn"), QStringLiteral("Text and audio notification.")},
    {QStringLiteral("frmNotice.lblTextAudioCal"), QStringLiteral("Text and audio notification.")},
    {QStringLiteral("frmCalEdit.lblDate"), QStringLiteral("Delete an event for September 30, 2026")},
    {QStringLiteral("frmNew.lblValues"), QStringLiteral(" 100000 of 100000 people")},
    {QStringLiteral("frmNew.lblCompleteAnn"), QStringLiteral("September 30 2026")},
};

bool PlacesItself(const Widget& widget)
{
  return widget.kind == QStringLiteral("QMenu") || widget.kind == QStringLiteral("QMenuBar") ||
         widget.kind == QStringLiteral("QStackedWidget");
}

bool IsDefaultName(const QString& name, const QString& kind)
{
  static const QRegularExpression designers(QStringLiteral("^(form|dialog|mainwindow|widget|page|line|action|menu|"
                                                           "menubar|statusbar|toolbar|centralwidget|separator|spacer)"
                                                           "\\d*(_\\d+)?$"),
                                            QRegularExpression::CaseInsensitiveOption);
  if (kind == QStringLiteral("QMenuBar")) {
    return false;
  }
  QString stem = kind.startsWith(u'Q') ? kind.mid(1) : kind;
  stem.replace(0, 1, stem.left(1).toLower());
  const QRegularExpression ofItsKind(QStringLiteral("^%1(_\\d+)?$").arg(stem));
  return designers.match(name).hasMatch() || ofItsKind.match(name).hasMatch();
}

bool TakesFocus(const Widget& widget)
{
  static const std::set<QString> kinds = {
      QStringLiteral("ListBox"),   QStringLiteral("ComboBox"),         QStringLiteral("QLineEdit"),
      QStringLiteral("QTextEdit"), QStringLiteral("QPlainTextEdit"),   QStringLiteral("QCheckBox"),
      QStringLiteral("QSpinBox"),  QStringLiteral("QRadioButton"),     QStringLiteral("QPushButton"),
      QStringLiteral("QListView"), QStringLiteral("QToolButton"),      QStringLiteral("QTextBrowser"),
      QStringLiteral("QComboBox"), QStringLiteral("QTableView"),       QStringLiteral("MonthCalendar"),
      QStringLiteral("TextBox"),   QStringLiteral("MultiLineTextBox"), QStringLiteral("ChartControl"),
  };
  if (widget.Property("focusPolicy") == QStringLiteral("Qt::NoFocus")) {
    return false;
  }
  return kinds.count(widget.kind) > 0 || (widget.kind == QStringLiteral("Label") && widget.IsCommand());
}

// Looks over a form and lists what is wrong with it.
class Inspector
{
public:
  explicit Inspector(const QByteArray& ui) : design_(DesignReader(ui).Read()) {}

  QStringList Faults()
  {
    if (!design_.form) {
      return {QStringLiteral("no form")};
    }
    Look(*design_.form, nullptr);
    for (const QString& action : design_.actions) {
      LookAtName(action, QStringLiteral("QAction"));
    }
    LookAtTabStops();
    return faults_;
  }

private:
  void Fault(const QString& name, const char* what) { faults_.append(name + u' ' + QLatin1String(what)); }

  [[nodiscard]] QString FullName(const Widget& widget) const { return design_.form->name + u'.' + widget.name; }

  void Look(const Widget& widget, const Widget* parent)
  {
    LookAtName(widget.name, widget.kind);
    if (!PlacesItself(widget)) {
      LookAtPlace(widget, parent);
      if (TakesFocus(widget)) {
        focusable_.append(widget.name);
      }
      LookAtTexts(widget);
    }
    for (const auto& child : widget.children) {
      Look(*child, &widget);
      if (child->name == QStringLiteral("Shape15") && FullName(*child) != kBandOfTheCalendar) {
        LookAtOrnament(*child, widget);
      }
    }
  }

  // Panels lie on top of everything, and the theme picture shows while the ornament does not.
  void LookAtOrnament(const Widget& ornament, const Widget& parent)
  {
    for (const auto& beside : parent.children) {
      const bool isPanel = beside->Property("role") == QStringLiteral("panel");
      const bool isInItsStead = beside->name == QStringLiteral("imgTheme");
      if (beside.get() != &ornament && !isPanel && !isInItsStead && beside->place.intersects(ornament.place)) {
        Fault(ornament.name, "stands behind another control");
      }
    }
  }

  void LookAtName(const QString& name, const QString& kind)
  {
    if (name.isEmpty()) {
      Fault(kind, "has no name");
    } else if (IsDefaultName(name, kind)) {
      Fault(name, "has a name that nobody chose");
    }
    if (!names_.insert(name).second) {
      Fault(name, "is there twice");
    }
  }

  void LookAtPlace(const Widget& widget, const Widget* parent)
  {
    if (!widget.hasPlace || widget.place.width() <= 0 || widget.place.height() <= 0) {
      Fault(widget.name, "has no geometry");
    } else if (parent != nullptr && kMayStandOutside.count(FullName(widget)) == 0 &&
               !QRect(QPoint(0, 0), parent->place.size()).contains(widget.place)) {
      Fault(widget.name, "stands outside its parent");
    }
  }

  void LookAtTabStops()
  {
    for (const QString& name : focusable_) {
      if (design_.tabStops.count(name) != 1) {
        Fault(name, design_.tabStops.contains(name) ? "is more than once in the tab order" : "is not in the tab order");
      }
    }
    for (const QString& name : design_.tabStops) {
      if (!focusable_.contains(name)) {
        Fault(name, "is in the tab order for nothing");
      }
    }
  }

  void LookAtTexts(const Widget& widget)
  {
    QStringList texts = {widget.Property("text"), widget.Property("title")};
    const auto [first, last] = kLaterTexts.equal_range(FullName(widget));
    for (auto later = first; later != last; ++later) {
      texts.append(later->second);
    }
    for (const QString& text : texts) {
      if (!text.isEmpty() && !Fits(widget, text)) {
        Fault(widget.name, "is too small for its caption");
      }
    }
  }

  static bool Fits(const Widget& widget, const QString& text)
  {
    if (widget.kind == QStringLiteral("Label")) {
      return FitsLabel(widget, text);
    }
    if (widget.kind == QStringLiteral("QCheckBox")) {
      return FitsButton<QCheckBox>(widget, text);
    }
    if (widget.kind == QStringLiteral("QRadioButton")) {
      return FitsButton<QRadioButton>(widget, text);
    }
    if (widget.kind == QStringLiteral("QPushButton")) {
      return FitsButton<QPushButton>(widget, text);
    }
    if (widget.kind == QStringLiteral("QGroupBox")) {
      return FitsGroupBox(widget, text);
    }
    return true;
  }

  static bool FitsGroupBox(const Widget& widget, const QString& title)
  {
    QGroupBox box;
    box.setProperty("role", widget.Property("role"));
    box.setTitle(title);
    box.ensurePolished();
    const QSize needed = box.minimumSizeHint();
    return needed.width() <= widget.place.width() && needed.height() <= widget.place.height();
  }

  static bool FitsLabel(const Widget& widget, const QString& text)
  {
    Label label;
    label.SetRole(widget.Property("role"));
    label.ensurePolished();
    const bool wraps = widget.Property("wordWrap") == QStringLiteral("true");
    const int inset = widget.IsCommand() ? kCommandInset : 0;
    const QSize room(widget.place.width() - 2 * inset, widget.place.height());
    const QRect taken =
        QFontMetrics(label.font()).boundingRect(QRect(0, 0, room.width(), 10'000), wraps ? Qt::TextWordWrap : 0, text);
    return taken.width() <= room.width() && taken.height() <= room.height();
  }

  template <typename Button>
  static bool FitsButton(const Widget& widget, const QString& text)
  {
    Button button;
    button.setProperty("role", widget.Property("role"));
    button.setText(text);
    button.ensurePolished();
    return button.sizeHint().width() <= widget.place.width() && button.sizeHint().height() <= widget.place.height();
  }

  Design design_;
  QStringList focusable_;
  QStringList faults_;
  std::set<QString> names_;
};

class FormsUiTest : public testing::Test
{
protected:
  FormsUiTest() { Style::Apply(*qApp); }

  static std::string FaultsOf(const QByteArray& ui) { return Inspector(ui).Faults().join(u'\n').toStdString(); }

  // The faults of a form frmTest of 200 by 100 pixels with these widgets and tab stops.
  static std::string FaultsOfForm(const QByteArray& widgets, const QByteArray& tabStops = {})
  {
    return FaultsOf("<ui version=\"4.0\"><class>frmTest</class><widget class=\"QWidget\" name=\"frmTest\">" +
                    Place(0, 0, 200, 100) + widgets + "</widget><tabstops>" + tabStops + "</tabstops></ui>");
  }

  static QByteArray Place(int x, int y, int width, int height)
  {
    return QStringLiteral(
               "<property name=\"geometry\"><rect><x>%1</x><y>%2</y><width>%3</width><height>%4</height>"
               "</rect></property>")
        .arg(x)
        .arg(y)
        .arg(width)
        .arg(height)
        .toUtf8();
  }

  static QByteArray Make(const char* kind, const char* name, const QByteArray& inside)
  {
    return QByteArray("<widget class=\"") + kind + "\" name=\"" + name + "\">" + inside + "</widget>";
  }

  static QByteArray Text(const char* text)
  {
    return QByteArray("<property name=\"text\"><string>") + text + "</string></property>";
  }
  static QByteArray Title(const char* title)
  {
    return QByteArray("<property name=\"title\"><string>") + title + "</string></property>";
  }
  static QByteArray Role(const char* role)
  {
    return QByteArray("<property name=\"role\" stdset=\"0\"><string>") + role + "</string></property>";
  }
};

}

TEST_F(FormsUiTest, DesignsOfAllFormsAreInOrder)
{
  QDirIterator files(QStringLiteral(QUILLMARK_SOURCE "/src"), {QStringLiteral("*.ui")}, QDir::Files,
                     QDirIterator::Subdirectories);
  int count = 0;
  while (files.hasNext()) {
    QFile file(files.next());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    EXPECT_EQ(FaultsOf(file.readAll()), "") << file.fileName().toStdString();
    ++count;
  }
  EXPECT_GE(count, 3);
}

TEST_F(FormsUiTest, FormIsNamedAsItsFile)
{
  QDirIterator files(QStringLiteral(QUILLMARK_SOURCE "/src"), {QStringLiteral("*.ui")}, QDir::Files,
                     QDirIterator::Subdirectories);
  while (files.hasNext()) {
    QFile file(files.next());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    EXPECT_EQ(DesignReader(file.readAll()).Read().form->name, QFileInfo(file.fileName()).completeBaseName());
  }
}

TEST_F(FormsUiTest, FaultsAreFound)
{
  const QByteArray place = Place(10, 10, 150, 30);
  struct Case
  {
    QByteArray widgets;
    QByteArray tabStops;
    const char* faults;
  };
  const std::vector<Case> cases = {
      {Make("Label", "lblTitle", place), {}, ""},
      {Make("Label", "label", place), {}, "label has a name that nobody chose"},
      {Make("Label", "label_2", place), {}, "label_2 has a name that nobody chose"},
      {Make("QPushButton", "pushButton", place), "<tabstop>pushButton</tabstop>",
       "pushButton has a name that nobody chose"},
      {Make("Label", "", place), {}, "Label has no name"},
      {Make("Label", "lblTitle", {}), {}, "lblTitle has no geometry"},
      {Make("Label", "lblTitle", Place(10, 10, 0, 30)), {}, "lblTitle has no geometry"},
      {Make("Label", "lblTitle", Place(100, 10, 101, 30)), {}, "lblTitle stands outside its parent"},
      {Make("Label", "lblTitle", Place(-1, 10, 20, 30)), {}, "lblTitle stands outside its parent"},
      {Make("QFrame", "fraTools", Place(100, 50, 50, 50) + Make("Label", "lblTitle", Place(0, 0, 50, 51))),
       {},
       "lblTitle stands outside its parent"},
      {Make("Label", "lblTitle", place) + Make("Label", "lblTitle", place), {}, "lblTitle is there twice"},
      {Make("ListBox", "lstNames", place), {}, "lstNames is not in the tab order"},
      {Make("ListBox", "lstNames", place), "<tabstop>lstNames</tabstop>", ""},
      {Make("ListBox", "lstNames", place), "<tabstop>lstNames</tabstop><tabstop>lstNames</tabstop>",
       "lstNames is more than once in the tab order"},
      {Make("Label", "lblOptions_0", place + Role("command")), {}, "lblOptions_0 is not in the tab order"},
      {Make("Label", "lblTitle", place), "<tabstop>lblTitle</tabstop>", "lblTitle is in the tab order for nothing"},
      {Make("Label", "lblTitle", place + Text("Short")), {}, ""},
      {Make("Label", "lblTitle", place + Text("A caption that is far too long for it")),
       {},
       "lblTitle is too small for its caption"},
      {Make("Label", "lblTitle", place + Role("title") + Text("Personal Info")),
       {},
       "lblTitle is too small for its caption"},
      {Make("QCheckBox", "chkNotes", place + Text("A caption that is far too long")), "<tabstop>chkNotes</tabstop>",
       "chkNotes is too small for its caption"},
      {Make("QGroupBox", "fraGender", place + Title("Gender")), {}, ""},
      {Make("QGroupBox", "fraGender", place + Title("A title that is far too long for its box")),
       {},
       "fraGender is too small for its caption"},
      {Make("TextBox", "txtFirst", place), {}, "txtFirst is not in the tab order"},
      {Make("MultiLineTextBox", "txtNotes", place), {}, "txtNotes is not in the tab order"},
      {"<action name=\"action_2\"></action>", {}, "action_2 has a name that nobody chose"},
      {Make("QStackedWidget", "pages", {}), {}, ""},
      {Make("Shape", "Shape15", place) + Make("PictureBox", "picPerson", Place(10, 50, 20, 20)), {}, ""},
      {Make("Shape", "Shape15", place) + Make("PictureBox", "picPerson", Place(10, 35, 20, 20)),
       {},
       "Shape15 stands behind another control"},
      {Make("Shape", "Shape15", place) + Make("GroupBox", "fraPrint", Place(10, 35, 20, 20) + Role("panel")), {}, ""},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(FaultsOfForm(c.widgets, c.tabStops), c.faults) << c.widgets.toStdString();
  }
}

TEST_F(FormsUiTest, WrappedCaptionMustFitInItsHeight)
{
  const QByteArray caption = Text("A caption that needs more than one line of it") +
                             "<property name=\"wordWrap\"><bool>true</bool></property>";
  EXPECT_EQ(FaultsOfForm(Make("Label", "lblTitle", Place(10, 10, 150, 60) + caption)), "");
  EXPECT_EQ(FaultsOfForm(Make("Label", "lblTitle", Place(10, 10, 150, 25) + caption)),
            "lblTitle is too small for its caption");
}

TEST_F(FormsUiTest, CommandNeedsRoomBesideItsCaption)
{
  Label label;
  label.SetRole(QStringLiteral("command"));
  label.ensurePolished();
  const int width = QFontMetrics(label.font()).boundingRect(QRect(0, 0, 500, 500), 0, QStringLiteral("Print")).width();
  const auto faults = [&](int room) {
    return FaultsOfForm(Make("Label", "lblOptions_0", Place(10, 10, room, 30) + Role("command") + Text("Print")),
                        "<tabstop>lblOptions_0</tabstop>");
  };
  EXPECT_EQ(faults(width + 16), "");
  EXPECT_EQ(faults(width + 15), "lblOptions_0 is too small for its caption");
}

TEST_F(FormsUiTest, LongestSentencesOfTheNoticesWindowAreLookedAt)
{
  const auto faults = [](const char* label, const char* role, int width, int height) {
    return FaultsOf(
        "<ui><widget class=\"QWidget\" name=\"frmTextNotice\">" + Place(0, 0, 600, 300) +
        Make("Label", label,
             Place(0, 0, width, height) + Role(role) + "<property name=\"wordWrap\"><bool>true</bool></property>") +
        "</widget></ui>");
  };
  EXPECT_EQ(faults("lblExplain", "sentence", 500, 60), "");
  EXPECT_EQ(faults("lblExplain", "sentence", 100, 20), "lblExplain is too small for its caption");
  EXPECT_EQ(faults("lblNotice", "heading", 500, 60), "");
  EXPECT_EQ(faults("lblNotice", "heading", 100, 20), "lblNotice is too small for its caption");
}
