// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/modMouseMove.h"

#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/ListBox.h"

#include <QEvent>
#include <QHash>

#include <algorithm>
#include <array>

namespace modMouseMove {
namespace {

const QColor kLitText(0xD1, 0x8C, 0x41);
constexpr int kRowCount = 7;

struct Look
{
  const char* array = nullptr;
  bool underline = false;
};

constexpr std::array<Look, kRowCount> kLooks = {{
    {"lblOptions"},
    {"lblOptions"},
    {"lblNames", true},
    {"lblAll", true},
    {"lblDay"},
    {"lblData"},
    {"lstReminders"},
}};

constexpr std::array<const char*, 5> kFormsWithLitText = {"frmQuillmark", "frmSpecial", "frmNew", "frmReminders",
                                                          "frmCalEdit"};

std::array<bool, kRowCount> clean = {true, true, true, true, true, true, true};

bool& Clean(Row row)
{
  return clean[static_cast<std::size_t>(row)];
}

Form::Elements ElementsOf(const Form& form, Row row)
{
  return form.ArrayNamed(QLatin1String(kLooks[static_cast<std::size_t>(row)].array));
}

bool HasLitText(const Form& form)
{
  const auto isIt = [&](const char* name) { return form.Name() == QLatin1String(name); };
  return std::any_of(kFormsWithLitText.begin(), kFormsWithLitText.end(), isIt);
}

void SetText(Label& label, bool lit)
{
  const QColor from = lit ? QColor(Qt::black) : kLitText;
  if (label.ForeColor() == from) {
    label.SetForeColor(lit ? kLitText : QColor(Qt::black));
  }
}

void SetBack(Label& label, Row row, bool lit)
{
  label.SetBackStyle(lit ? Label::kOpaque : Label::kTransparent);
  if (kLooks[static_cast<std::size_t>(row)].underline) {
    label.SetFontUnderline(lit);
  }
}

void PutOutList(ListBox& list)
{
  if (list.isVisible() && list.BackColor() == kLitList) {
    list.SetBackColor(Qt::white);
  }
}

void SetLit(QWidget* element, Row row, bool lit)
{
  auto* label = qobject_cast<Label*>(element);
  if (row == Row::kReminders) {
    auto* list = qobject_cast<ListBox*>(element);
    if (list != nullptr && !lit) {
      PutOutList(*list);
    }
  } else if (label != nullptr && row == Row::kOptionsText) {
    SetText(*label, lit);
  } else if (label != nullptr) {
    SetBack(*label, row, lit);
  }
}

// One for each form: hears what the mouse is on.
class Watcher : public QObject
{
public:
  explicit Watcher(Form& form) : QObject(&form), form_(form)
  {
    for (const Row row : {Row::kOptions, Row::kNames, Row::kAll, Row::kDay, Row::kData, Row::kReminders}) {
      const Form::Elements elements = ElementsOf(form, row);
      for (std::size_t i = 0; i < elements.widgets.size(); ++i) {
        places_.insert(elements.widgets[i], {row, elements.lower + static_cast<int>(i)});
      }
    }
    Listen(form);
    for (QWidget* control : form.Controls()) {
      Listen(*control);
    }
  }

  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter) {
      MoveOver(*watched);
    } else if (event->type() == QEvent::Leave) {
      ResetAll(form_);
    }
    return false;
  }

private:
  struct Place
  {
    Row row;
    int index;
  };

  void Listen(QWidget& widget)
  {
    widget.setMouseTracking(true);
    // A label would pass its moves on to the form behind it.
    widget.setAttribute(Qt::WA_NoMousePropagation, qobject_cast<Label*>(&widget) != nullptr);
    widget.installEventFilter(this);
  }

  void MoveOver(QObject& watched)
  {
    const auto place = places_.constFind(&watched);
    if (place == places_.constEnd() || !static_cast<QWidget&>(watched).isEnabled()) {
      ResetAll(form_);
      return;
    }
    ResetOthers(place->row);
    if (place->row == Row::kReminders) {
      return;
    }
    Highlight(form_, place->row, place->index);
    if (place->row == Row::kOptions && HasLitText(form_)) {
      Highlight(form_, Row::kOptionsText, place->index);
    }
  }

  void ResetOthers(Row lit)
  {
    for (int i = 0; i < kRowCount; ++i) {
      const Row row = static_cast<Row>(i);
      const bool together = lit == Row::kOptions && row == Row::kOptionsText;
      if (row != lit && !together) {
        Reset(form_, row);
      }
    }
  }

  Form& form_;
  QHash<const QObject*, Place> places_;
};

}

void Highlight(Form& form, Row row, int index)
{
  const Form::Elements elements = ElementsOf(form, row);
  for (std::size_t i = 0; i < elements.widgets.size(); ++i) {
    SetLit(elements.widgets[i], row, elements.lower + static_cast<int>(i) == index);
  }
  Clean(row) = false;
}

void Reset(Form& form, Row row)
{
  if (Clean(row)) {
    return;
  }
  for (QWidget* element : ElementsOf(form, row).widgets) {
    SetLit(element, row, false);
  }
  Clean(row) = true;
}

void ResetAll(Form& form)
{
  for (int row = 0; row < kRowCount; ++row) {
    Reset(form, static_cast<Row>(row));
  }
}

void Watch(Form& form)
{
  new Watcher(form);
}

}
