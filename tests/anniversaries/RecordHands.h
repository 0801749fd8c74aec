// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "AnniversariesTest.h"

#include "controls/EntryBox.h"

// Hands on the record editor.
namespace Record {

inline const QString kFinishAdd = QStringLiteral("lblOptions_0");
inline const QString kCancelAdd = QStringLiteral("lblOptions_1");
inline const QString kMain = QStringLiteral("lblOptions_2");
inline const QString kCancelEdit = QStringLiteral("lblOptions_4");
inline const QString kFinishEdit = QStringLiteral("lblOptions_5");
inline const QString kAdd = QStringLiteral("lblOptions_6");
inline const QString kEdit = QStringLiteral("lblOptions_7");
inline const QString kDelete = QStringLiteral("lblOptions_8");
inline const QString kAnniversary = QStringLiteral("lblOptions_9");

inline Form& Page()
{
  return *Forms::Loaded("frmNew");
}

inline void Click(const QString& command)
{
  Drive::Click(Page(), command);
}

inline EntryBox& Box(const QString& name)
{
  return dynamic_cast<EntryBox&>(Drive::Control(Page(), name));
}

inline void Type(const QString& name, const QString& text)
{
  QWidget& box = Drive::Control(Page(), name);
  QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&box, Qt::Key_Delete);
  QTest::keyClicks(&box, text);
}

// What a click on Delete asks.
inline void ExpectQuestion(MessageBoxScript& boxes, QMessageBox::StandardButton answer)
{
  boxes.Expect("Are you sure you want to delete this record?", QMessageBox::Yes | QMessageBox::No, answer,
               "Delete Record");
}
inline void ExpectMarriedQuestion(MessageBoxScript& boxes, QMessageBox::StandardButton answer)
{
  boxes.Expect(
      "This person is married. Quillmark will also delete anniversary information for this couple. If you select "
      "Cancel, no records will be deleted.",
      QMessageBox::Ok | QMessageBox::Cancel, answer, "Delete anniversary information");
}

}
