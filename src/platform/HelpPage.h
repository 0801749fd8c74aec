// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTextBrowser>

class HelpBook;

// Shows a page of the help. Drawings and pictures are drawn for the screen that they are
// on, none wider than a page of text; pictures of windows have a thin line round them.
class HelpPage : public QTextBrowser
{
  Q_OBJECT

public:
  // `book` outlives the page.
  HelpPage(const HelpBook& book, QWidget* parent);

  // Marks the words wherever they stand, and goes to the first of them; no words unmark.
  void Mark(const QString& words);

protected:
  QVariant loadResource(int type, const QUrl& name) override;

private:
  [[nodiscard]] QVariant Picture(const QByteArray& file) const;

  const HelpBook& book_;
};
