// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QHash>
#include <QObject>

class QWidget;

// Moves the focus from box to box by Enter.
class EnterWalk : public QObject
{
  Q_OBJECT

public:
  using QObject::QObject;

  // From now on Enter in `from` gives the focus to `to`.
  void Join(QWidget& from, QWidget& to);

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  QHash<QObject*, QWidget*> next_;
};
