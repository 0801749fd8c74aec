// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

// Takes the addresses of files that are opened, in place of the desktop.
class AddressCatcher : public QObject
{
  Q_OBJECT

public:
  AddressCatcher() { QDesktopServices::setUrlHandler("file", this, "Take"); }
  ~AddressCatcher() override { QDesktopServices::unsetUrlHandler("file"); }

  QList<QUrl> Taken;

public Q_SLOTS:
  void Take(const QUrl& address) { Taken.append(address); }
};
