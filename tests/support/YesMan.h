// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>

#include <functional>

// Tells of every message box, and answers it with Yes or OK; one that asks its user to
// select something, with Cancel if it can.
class YesMan : public QObject
{
public:
  explicit YesMan(std::function<void(const QString& text)> say) : say_(std::move(say))
  {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override
  {
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (box != nullptr && event->type() == QEvent::Show) {
      say_(box->text());
      QTimer::singleShot(0, box, [box] { Answer(*box)->click(); });
    }
    return false;
  }

private:
  static QAbstractButton* Answer(const QMessageBox& box)
  {
    QAbstractButton* cancel = box.button(QMessageBox::Cancel);
    if (cancel != nullptr && box.text().startsWith(QStringLiteral("Please select"))) {
      return cancel;
    }
    QAbstractButton* yes = box.button(QMessageBox::Yes);
    return yes != nullptr ? yes : box.button(QMessageBox::Ok);
  }

  std::function<void(const QString& text)> say_;
};
