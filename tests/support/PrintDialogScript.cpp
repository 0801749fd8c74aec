// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/PrintDialogScript.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

const QString kPdf = QStringLiteral("Print to File (PDF)");

// The control of that name; the test ends at once without it.
template <typename Control>
Control& Part(const QWidget& dialog, const char* name)
{
  auto* control = dialog.findChild<Control*>(QLatin1String(name));
  if (control == nullptr) {
    ADD_FAILURE() << "the print dialog has no " << name;
    std::abort();
  }
  return *control;
}

void Press(QDialog& dialog, QDialogButtonBox::StandardButton which)
{
  const auto* buttons = dialog.findChild<QDialogButtonBox*>({}, Qt::FindDirectChildrenOnly);
  QPushButton* button = buttons == nullptr ? nullptr : buttons->button(which);
  if (button == nullptr) {
    ADD_FAILURE() << "the print dialog has no such button";
    dialog.reject();
    return;
  }
  EXPECT_TRUE(button->isEnabled());
  button->click();
  if (dialog.isVisible()) {
    ADD_FAILURE() << "the print dialog does not take what is chosen";
    dialog.reject();
  }
}

void ChoosePrinter(QPrintDialog& dialog, const QString& name)
{
  auto& printers = Part<QComboBox>(dialog, "printers");
  const int index = printers.findText(name);
  EXPECT_GE(index, 0) << "the print dialog does not offer " << name.toStdString();
  printers.setCurrentIndex(index);
}

// Opens the properties, does `act` in them and takes them.
void InProperties(QPrintDialog& dialog, const std::function<void(QDialog& properties)>& act)
{
  QTimer::singleShot(0, qApp, [&] {
    auto* properties = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(properties, nullptr);
    ASSERT_NE(properties, &dialog);
    act(*properties);
    Press(*properties, QDialogButtonBox::Ok);
  });
  Part<QPushButton>(dialog, "properties").click();
}

}

PrintDialogScript::PrintDialogScript()
{
  qApp->installEventFilter(this);
}

PrintDialogScript::~PrintDialogScript()
{
  qApp->removeEventFilter(this);
  if (came_ < expected_.size()) {
    ADD_FAILURE() << "print dialogs did not come: " << expected_.size() - came_;
  }
}

void PrintDialogScript::ExpectPdf(const QString& path, QPageSize::PageSizeId paper, const Act& act)
{
  expected_.emplace_back([=](QPrintDialog& dialog) {
    ChoosePrinter(dialog, kPdf);
    Part<QLineEdit>(dialog, "filename").setText(path);
    ChoosePaper(dialog, paper);
    if (act) {
      act(dialog);
    }
    Press(dialog, QDialogButtonBox::Ok);
  });
}

void PrintDialogScript::ExpectPrinter(const QString& name, const Act& act)
{
  expected_.emplace_back([=](QPrintDialog& dialog) {
    ChoosePrinter(dialog, name);
    if (act) {
      act(dialog);
    }
    Press(dialog, QDialogButtonBox::Ok);
  });
}

void PrintDialogScript::ExpectCancel()
{
  expected_.emplace_back([](QPrintDialog& dialog) { Press(dialog, QDialogButtonBox::Cancel); });
}

void PrintDialogScript::ChoosePages(QPrintDialog& dialog, int from, int to)
{
  Part<QRadioButton>(dialog, "printRange").click();
  Part<QSpinBox>(dialog, "from").setValue(from);
  Part<QSpinBox>(dialog, "to").setValue(to);
}

void PrintDialogScript::ChooseCopies(QPrintDialog& dialog, int copies)
{
  Part<QSpinBox>(dialog, "copies").setValue(copies);
}

void PrintDialogScript::ChoosePaper(QPrintDialog& dialog, QPageSize::PageSizeId paper)
{
  InProperties(dialog, [&](QDialog& properties) {
    auto& sizes = Part<QComboBox>(properties, "pageSizeCombo");
    const int index = sizes.findData(QVariant::fromValue(QPageSize(paper)));
    ASSERT_GE(index, 0);
    sizes.setCurrentIndex(index);
  });
}

void PrintDialogScript::ChooseLandscape(QPrintDialog& dialog)
{
  InProperties(dialog, [](QDialog& properties) { Part<QRadioButton>(properties, "landscape").click(); });
}

void PrintDialogScript::ChooseMargins(QPrintDialog& dialog, double millimetres)
{
  InProperties(dialog, [&](QDialog& properties) {
    for (const char* name : {"leftMargin", "topMargin", "rightMargin", "bottomMargin"}) {
      Part<QDoubleSpinBox>(properties, name).setValue(millimetres);
    }
  });
}

QStringList PrintDialogScript::Offered(const QPrintDialog& dialog)
{
  const auto& printers = Part<QComboBox>(dialog, "printers");
  QStringList names;
  for (int i = 0; i < printers.count(); ++i) {
    if (!printers.itemText(i).isEmpty()) {
      names.append(printers.itemText(i));
    }
  }
  return names;
}

bool PrintDialogScript::eventFilter(QObject* watched, QEvent* event)
{
  auto* dialog = qobject_cast<QPrintDialog*>(watched);
  if (dialog != nullptr && event->type() == QEvent::Show) {
    QTimer::singleShot(0, dialog, [this, dialog] { Answer(*dialog); });
  }
  return false;
}

void PrintDialogScript::Answer(QPrintDialog& dialog)
{
  if (came_ >= expected_.size()) {
    ADD_FAILURE() << "an unexpected print dialog";
    dialog.reject();
    return;
  }
  expected_[came_++](dialog);
}
