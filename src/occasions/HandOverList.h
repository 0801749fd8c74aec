// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCursor>
#include <QObject>
#include <QString>

class ListBox;

// Shows a hand and a tip over a list, unless its first line says that there is nothing.
class HandOverList : public QObject
{
  Q_OBJECT

public:
  // Goes with the list.
  HandOverList(ListBox& list, QString nothing, QString tip);

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  ListBox& list_;
  QString nothing_;
  QString tip_;
  QCursor hand_;
};
