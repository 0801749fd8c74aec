// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

// Takes the addresses of a kind that are opened, in place of the desktop.
class AddressCatcher : public QObject
{
  Q_OBJECT

public:
  explicit AddressCatcher(const QString& scheme = QStringLiteral("file")) : scheme_(scheme)
  {
    QDesktopServices::setUrlHandler(scheme_, this, "Take");
  }
  ~AddressCatcher() override { QDesktopServices::unsetUrlHandler(scheme_); }

  QList<QUrl> Taken;

public Q_SLOTS:
  void Take(const QUrl& address) { Taken.append(address); }

private:
  QString scheme_;
};
