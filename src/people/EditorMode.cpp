// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "people/EditorMode.h"

#include "controls/Form.h"
#include "controls/Label.h"
#include "platform/MsgBox.h"

namespace {

const QColor kPaleYellow(0xFF, 0xF7, 0xD3);

}

QWidget& EditorMode::Control(const char* name) const
{
  return *form_.Control(QLatin1String(name));
}

bool EditorMode::Shows(const char* panel) const
{
  return Control(panel).isVisibleTo(&form_);
}

bool EditorMode::IsAdding() const
{
  return Shows("fraAdd");
}

bool EditorMode::IsEditing() const
{
  return Shows("fraEdit");
}

void EditorMode::EnableBrowsing(bool enabled) const
{
  // Search, add, edit and delete.
  for (const char* name : {"lblOptions_3", "lblOptions_6", "lblOptions_7", "lblOptions_8"}) {
    auto& command = static_cast<Label&>(Control(name));
    if (!enabled) {
      command.SetBackStyle(Label::kTransparent);
    }
    command.setEnabled(enabled);
  }
  Control("fraNav").setEnabled(enabled);
  Control("cmdAddPic").setEnabled(!enabled);
  Control("cmdDeletePic").setEnabled(!enabled);
  static_cast<Label&>(Control("lblValues")).SetBackColor(enabled ? QColor(Qt::white) : kPaleYellow);
}

// Over the commands that have no use until the panel is closed.
void EditorMode::Open(const char* panel) const
{
  Control(panel).raise();
  Control(panel).show();
}

void EditorMode::BeginAdding() const
{
  EnableBrowsing(false);
  Open("fraAdd");
}

void EditorMode::BeginEditing() const
{
  EnableBrowsing(false);
  Open("fraEdit");
}

void EditorMode::ReturnToBrowse() const
{
  Control("fraAdd").hide();
  Control("fraEdit").hide();
  EnableBrowsing(true);
}

bool EditorMode::RefuseWhileBusy(const QString& message) const
{
  if (!IsAdding() && !IsEditing()) {
    return false;
  }
  MsgBox(message);
  return true;
}
