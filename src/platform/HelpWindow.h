// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <memory>

class HelpBook;
class HelpPage;
class QListWidget;
class QListWidgetItem;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTreeView;

// The window of the help: topics or what a search has found on the left, a page on the
// right. It deletes itself when it is closed.
class HelpWindow : public QWidget
{
  Q_OBJECT

public:
  explicit HelpWindow(std::unique_ptr<HelpBook> book);
  ~HelpWindow() override;

  [[nodiscard]] const HelpBook& Book() const { return *book_; }

  // Shows a page of the book; any other address goes to the desktop's own program.
  void GoTo(const QUrl& address);

  // Brings the window before its user.
  void Present();

protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
  void txtSearch_Change();
  void lstFound_Click(QListWidgetItem* item);
  void tvwTopics_Click(const QModelIndex& topic);
  void cmdHome_Click();
  void ShowTopics();
  void ShowTopicOf(const QUrl& page);

private:
  void SetUpControls();
  void ArrangeControls();
  void ConnectControls();
  void AddKeys();
  void SetFirstSize();
  void FollowModalWindow();

  std::unique_ptr<HelpBook> book_;
  HelpPage* txtPage_;
  QTreeView* tvwTopics_;
  QListWidget* lstFound_;
  QStackedWidget* fraLists_;
  QLineEdit* txtSearch_;
  QPushButton* cmdBack_;
  QPushButton* cmdForward_;
  QPushButton* cmdHome_;
};
