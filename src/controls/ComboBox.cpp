// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ComboBox.h"

#include "controls/LinesModel.h"
#include "controls/Repolish.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QValidator>

namespace {

constexpr int kVisibleLines = 12;  // the months of a year

// Lets pass what some line begins with.
class BeginningOfALine : public QValidator
{
public:
  BeginningOfALine(const LinesModel& lines, QObject* parent) : QValidator(parent), lines_(lines) {}

  State validate(QString& text, int& /*cursor*/) const override
  {
    for (int index = 0; index < lines_.Count(); ++index) {
      if (lines_.Line(index).startsWith(text)) {
        return Acceptable;
      }
    }
    return text.isEmpty() ? Acceptable : Invalid;
  }

private:
  const LinesModel& lines_;
};

bool IsMouseButton(QEvent::Type type)
{
  return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease || type == QEvent::MouseButtonDblClick;
}

bool Steps(int key)
{
  return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

}

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent), lines_(new LinesModel(this))
{
  auto* list = new QListView(this);
  list->setUniformItemSizes(true);
  list->setLayoutMode(QListView::SinglePass);
  setView(list);
  setModel(lines_);
  setCurrentIndex(-1);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMaxVisibleItems(kVisibleLines);
  connect(this, &QComboBox::activated, this, &ComboBox::Click);
}

int ComboBox::ListCount() const
{
  return lines_->Count();
}

QString ComboBox::List(int index) const
{
  return lines_->Line(index);
}

void ComboBox::SetListIndex(int index)
{
  if (index != currentIndex()) {
    setCurrentIndex(index);
    Q_EMIT Click();
  }
}

void ComboBox::SetText(const QString& text)
{
  setCurrentIndex(text.isEmpty() ? -1 : findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
  if (typing_ != Listed) {
    setEditText(text);
  }
}

void ComboBox::SetLocked(bool locked)
{
  if (locked == locked_) {
    return;
  }
  locked_ = locked;
  if (typing_ != Listed) {
    lineEdit()->setReadOnly(locked);
  }
  Repolish(*this);
}

void ComboBox::SetTyping(TypingKind typing)
{
  typing_ = typing;
  if (typing == Listed) {
    setEditable(false);
  } else {
    MakeEditable();
  }
}

void ComboBox::MakeEditable()
{
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  lineEdit()->setReadOnly(locked_);
  const Qt::ContextMenuPolicy menu = typing_ == AnyText ? Qt::DefaultContextMenu : Qt::NoContextMenu;
  // The box would show the menu of its text in the text's place.
  setContextMenuPolicy(menu);
  lineEdit()->setContextMenuPolicy(menu);
  lineEdit()->setAcceptDrops(typing_ == AnyText);
  lineEdit()->installEventFilter(this);
  lineEdit()->setValidator(typing_ == TypedLines ? new BeginningOfALine(*lines_, lineEdit()) : nullptr);
  // The toolkit would choose the line of a typed text when the box is left.
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
}

void ComboBox::AddItem(const QString& line)
{
  AddItems({line});
}

// A combo box of the toolkit would choose the first line that comes.
void ComboBox::AddItems(const QStringList& lines)
{
  const int chosen = currentIndex();
  const QString text = currentText();
  const QSignalBlocker quiet(this);
  lines_->Insert(ListCount(), lines);
  setCurrentIndex(chosen);
  if (typing_ != Listed) {
    setEditText(text);
  }
}

void ComboBox::Clear()
{
  const QSignalBlocker quiet(this);
  lines_->Clear();
  setCurrentIndex(-1);
  if (typing_ != Listed) {
    clearEditText();
  }
}

// Opening the list and stepping through it begin at the text, however it came.
void ComboBox::StandOnText()
{
  const QString text = currentText();
  if (typing_ != Listed && text != List(currentIndex())) {
    const QSignalBlocker quiet(this);
    SetText(text);
  }
}

void ComboBox::showPopup()
{
  if (!locked_) {
    StandOnText();
    QComboBox::showPopup();
  }
}

// A click into a text that is not typed opens the list, at its release, which would close
// it again. The other buttons would paste.
bool ComboBox::eventFilter(QObject* watched, QEvent* event)
{
  const QEvent::Type type = event->type();
  if (watched == lineEdit() && type == QEvent::InputMethod) {
    return !TakesTyping();
  }
  if (watched != lineEdit() || locked_ || typing_ == AnyText || !IsMouseButton(type)) {
    return QComboBox::eventFilter(watched, event);
  }
  const bool isLeft = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
  if (isLeft && typing_ == TypedLines) {
    return false;
  }
  if (isLeft && type == QEvent::MouseButtonRelease) {
    setFocus(Qt::MouseFocusReason);
    showPopup();
  }
  return true;
}

bool ComboBox::Passes(const QKeyEvent& event) const
{
  if (event.matches(QKeySequence::Copy) || event.matches(QKeySequence::SelectAll)) {
    return true;
  }
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_F4:
      return !locked_;
    case Qt::Key_Backspace:
      return typing_ == BackspaceOnly && !locked_ &&
             (event.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == Qt::NoModifier;
    default:
      return false;
  }
}

void ComboBox::keyPressEvent(QKeyEvent* event)
{
  if (!locked_) {
    Q_EMIT KeyDown(event->key());
  }
  if (Steps(event->key())) {
    StandOnText();
  }
  const bool takesAll = typing_ == Listed || TakesTyping();
  if ((takesAll && !locked_) || Passes(*event)) {
    QComboBox::keyPressEvent(event);
  } else if (event->text().isEmpty() || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
             event->key() == Qt::Key_Escape) {
    event->ignore();
  }
}

void ComboBox::inputMethodEvent(QInputMethodEvent* event)
{
  if (typing_ == Listed || (TakesTyping() && !locked_)) {
    QComboBox::inputMethodEvent(event);
  }
}

QVariant ComboBox::inputMethodQuery(Qt::InputMethodQuery query) const
{
  const bool takesNone = typing_ == BackspaceOnly || typing_ == NoTyping;
  return takesNone && query == Qt::ImEnabled ? QVariant(false) : QComboBox::inputMethodQuery(query);
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
  event->ignore();
}
