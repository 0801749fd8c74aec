// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Dialogs.h"

#include "Hand.h"
#include "Household.h"
#include "Texts.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QSpinBox>

namespace Dialogs {
namespace {

constexpr auto kTries = "answers";
constexpr int kPatience = 8;

QAbstractButton* ButtonOf(const QDialog& dialog, bool accepts)
{
  const auto boxes = dialog.findChildren<QDialogButtonBox*>();
  for (const QDialogButtonBox* box : boxes) {
    for (QAbstractButton* button : box->buttons()) {
      const QDialogButtonBox::ButtonRole role = box->buttonRole(button);
      const bool isAccepting = role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::YesRole;
      const bool isRejecting = role == QDialogButtonBox::RejectRole || role == QDialogButtonBox::NoRole;
      if (button->isVisible() && button->isEnabled() && (accepts ? isAccepting : isRejecting)) {
        return button;
      }
    }
  }
  return nullptr;
}

QString Close(QDialog& dialog, bool accepts)
{
  QAbstractButton* button = ButtonOf(dialog, accepts);
  if (button == nullptr) {
    Hand::Press(dialog, accepts ? Qt::Key_Return : Qt::Key_Escape);
    return accepts ? QStringLiteral("Return") : QStringLiteral("Escape");
  }
  const QString text = button->text();
  Hand::Click(*button);
  return text;
}

QString AnswerBox(QMessageBox& box, Chance& chance)
{
  const QString said = QStringLiteral("box \"%1\": ").arg(box.text().simplified());
  if (chance.OneIn(8)) {
    Hand::Press(box, chance.OneIn(2) ? Qt::Key_Escape : Qt::Key_Return);
    return said + QStringLiteral("a key");
  }
  const QList<QAbstractButton*> buttons = box.buttons();
  QAbstractButton* button = chance.OneIn(3) ? chance.Of(buttons) : ButtonOf(box, true);
  if (button == nullptr) {
    Hand::Press(box, Qt::Key_Escape);
    return said + QStringLiteral("Escape");
  }
  const QString text = button->text();
  Hand::Click(*button);
  return said + text;
}

QString AnswerFile(QFileDialog& dialog, Chance& chance, const Household& household)
{
  const bool saves = dialog.acceptMode() == QFileDialog::AcceptSave;
  if (chance.OneIn(4)) {
    return QStringLiteral("file dialog: ") + Close(dialog, false);
  }
  QString path = saves ? household.WritableFile("backup.mdb") : chance.Of(household.Choices());
  if (chance.OneIn(12)) {
    path = chance.OneIn(2) ? QStringLiteral("/nowhere/at/all") : Texts::Word(chance);
  }
  if (auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
    name->setText(path);
  }
  return QStringLiteral("file dialog, %1: ").arg(path) + Close(dialog, true);
}

QString AnswerPrinting(QPrintDialog& dialog, Chance& chance, const Household& household)
{
  if (auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"))) {
    file->setText(household.WritableFile("print.pdf"));
  }
  auto* properties = dialog.findChild<QPushButton*>(QStringLiteral("properties"));
  if (properties != nullptr && properties->isEnabled() && chance.OneIn(6)) {
    Hand::Click(*properties);
    return QStringLiteral("print dialog: properties");
  }
  return QStringLiteral("print dialog: ") + Close(dialog, !chance.OneIn(4));
}

QString AnswerInput(QInputDialog& dialog, Chance& chance, const Household& household)
{
  QString text = Texts::Anything(chance);
  if (chance.OneIn(2)) {
    text = household.Folder().Value("SELECT LastName || ', ' || FirstName FROM People ORDER BY random()").toString();
  }
  if (auto* line = dialog.findChild<QLineEdit*>()) {
    Hand::Replace(*line, text, true);
  }
  return QStringLiteral("input box, \"%1\": ").arg(text.left(40)) + Close(dialog, !chance.OneIn(4));
}

}

QString Answer(QDialog& dialog, Chance& chance, const Household& household)
{
  const int tries = dialog.property(kTries).toInt() + 1;
  dialog.setProperty(kTries, tries);
  if (tries > kPatience) {
    dialog.reject();
    return QStringLiteral("closes ") + QLatin1String(dialog.metaObject()->className());
  }
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
    return AnswerBox(*box, chance);
  }
  if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
    return AnswerFile(*files, chance, household);
  }
  if (auto* printing = qobject_cast<QPrintDialog*>(&dialog)) {
    return AnswerPrinting(*printing, chance, household);
  }
  if (auto* input = qobject_cast<QInputDialog*>(&dialog)) {
    return AnswerInput(*input, chance, household);
  }
  return QStringLiteral("%1: ").arg(QLatin1String(dialog.metaObject()->className())) + Close(dialog, chance.OneIn(2));
}

}
