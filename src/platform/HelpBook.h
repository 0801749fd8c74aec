// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/HelpSearch.h"

#include <memory>

class QAbstractItemModel;
class QByteArray;
class QHelpEngine;
class QModelIndex;
class QTemporaryDir;

// The pages of a compressed help file, read where it stands. What the toolkit writes of
// its own while a book is open stands in a temporary folder and goes with the book.
class HelpBook
{
public:
  // Null if the file is missing, is no help file, or cannot be read to its end.
  static std::unique_ptr<HelpBook> Open(const QString& file);
  ~HelpBook();
  HelpBook(const HelpBook&) = delete;
  HelpBook& operator=(const HelpBook&) = delete;

  // The page with this context number; empty if there is none.
  [[nodiscard]] QUrl PageOf(int context) const;

  // What stands at an address, a page or a picture; empty if nothing does.
  [[nodiscard]] QByteArray Read(const QUrl& address) const;

  // The addresses of all that the book holds.
  [[nodiscard]] QList<QUrl> Addresses() const;

  // All pages in the order of the book's files, for a search.
  [[nodiscard]] const std::vector<HelpSearch::Page>& Pages() const;

  // The table of contents. It fills by itself, and is reset once it has.
  [[nodiscard]] QAbstractItemModel& Topics() const;
  [[nodiscard]] QUrl AddressOf(const QModelIndex& topic) const;
  // The topic of a page; invalid if the table has none, or has not filled yet.
  [[nodiscard]] QModelIndex TopicOf(const QUrl& page) const;

private:
  HelpBook();

  [[nodiscard]] bool Register(const QString& file) const;
  [[nodiscard]] bool IsWhole() const;

  std::unique_ptr<QTemporaryDir> folder_;
  std::unique_ptr<QHelpEngine> engine_;
  mutable std::vector<HelpSearch::Page> pages_;
};
