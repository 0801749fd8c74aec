// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HelpWindow.h"

#include "platform/HelpBook.h"
#include "platform/HelpPage.h"
#include "platform/HelpViewer.h"
#include "platform/Shell.h"
#include "platform/WindowIcon.h"

#include <QAbstractItemModel>
#include <QBoxLayout>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeView>
#include <QWindow>

namespace {

constexpr QSize kFirstSize(976, 720);
constexpr QSize kSmallestSize(640, 400);
constexpr int kListWidth = 288;
constexpr int kMargin = 16;
constexpr int kGap = 8;

template <typename Control>
Control* Named(Control* control, const QString& name, const QString& accessibleName, const QString& role = {})
{
  control->setObjectName(name);
  control->setAccessibleName(accessibleName);
  control->setProperty("role", role);
  return control;
}

QPushButton* Button(const QString& name, const QString& caption, const QString& accessibleName)
{
  auto* button = Named(new QPushButton(caption), name, accessibleName);
  button->setAutoDefault(false);
  return button;
}

QWidget* Column(QWidget& top, QWidget& below)
{
  auto* column = new QWidget;
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins({});
  layout->setSpacing(kGap);
  layout->addWidget(&top);
  layout->addWidget(&below);
  return column;
}

}

HelpWindow::HelpWindow(std::unique_ptr<HelpBook> book)
    : book_(std::move(book)),
      txtPage_(
          Named(new HelpPage(*book_, this), QStringLiteral("txtPage"), QStringLiteral("Page"), QStringLiteral("page"))),
      tvwTopics_(
          Named(new QTreeView(this), QStringLiteral("tvwTopics"), QStringLiteral("Topics"), QStringLiteral("topics"))),
      lstFound_(Named(new QListWidget(this), QStringLiteral("lstFound"), QStringLiteral("Pages found"),
                      QStringLiteral("found"))),
      fraLists_(new QStackedWidget(this)),
      txtSearch_(
          Named(new QLineEdit(this), QStringLiteral("txtSearch"), QStringLiteral("Search"), QStringLiteral("search"))),
      cmdBack_(Button(QStringLiteral("cmdBack"), QStringLiteral("< Back"), QStringLiteral("Back"))),
      cmdForward_(Button(QStringLiteral("cmdForward"), QStringLiteral("Forward >"), QStringLiteral("Forward"))),
      cmdHome_(Button(QStringLiteral("cmdHome"), QStringLiteral("Home"), QStringLiteral("Home")))
{
  setObjectName(QStringLiteral("HelpViewer"));
  setWindowTitle(QStringLiteral("Quillmark Help"));
  setWindowIcon(WindowIcon());
  setAttribute(Qt::WA_DeleteOnClose);
  SetUpControls();
  ArrangeControls();
  ConnectControls();
  AddKeys();
  SetFirstSize();
  ShowTopics();
}

// The controls read the book, and go before it.
HelpWindow::~HelpWindow()
{
  qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

void HelpWindow::SetUpControls()
{
  fraLists_->setObjectName(QStringLiteral("fraLists"));
  fraLists_->addWidget(tvwTopics_);
  fraLists_->addWidget(lstFound_);
  txtSearch_->setPlaceholderText(QStringLiteral("Search the help"));
  txtSearch_->setClearButtonEnabled(true);
  tvwTopics_->setModel(&book_->Topics());
  tvwTopics_->setHeaderHidden(true);
  tvwTopics_->setRootIsDecorated(false);
  tvwTopics_->setItemsExpandable(false);
  lstFound_->setTextElideMode(Qt::ElideRight);
  lstFound_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  cmdBack_->setEnabled(false);
  cmdForward_->setEnabled(false);
}

void HelpWindow::ArrangeControls()
{
  auto* commands = new QWidget(this);
  auto* row = new QHBoxLayout(commands);
  row->setContentsMargins({});
  row->setSpacing(kGap);
  for (QPushButton* command : {cmdBack_, cmdForward_, cmdHome_}) {
    command->setFixedHeight(txtSearch_->sizeHint().height());
    row->addWidget(command);
  }
  row->addStretch();

  auto* halves = new QSplitter(this);
  halves->setChildrenCollapsible(false);
  halves->setHandleWidth(kMargin);
  halves->addWidget(Column(*txtSearch_, *fraLists_));
  halves->addWidget(Column(*commands, *txtPage_));
  halves->setStretchFactor(1, 1);
  halves->setSizes({kListWidth, kFirstSize.width() - kListWidth});
  auto* room = new QHBoxLayout(this);
  room->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  room->addWidget(halves);
}

void HelpWindow::ConnectControls()
{
  connect(cmdBack_, &QPushButton::clicked, txtPage_, &QTextBrowser::backward);
  connect(cmdForward_, &QPushButton::clicked, txtPage_, &QTextBrowser::forward);
  connect(cmdHome_, &QPushButton::clicked, this, &HelpWindow::cmdHome_Click);
  connect(txtPage_, &QTextBrowser::backwardAvailable, cmdBack_, &QWidget::setEnabled);
  connect(txtPage_, &QTextBrowser::forwardAvailable, cmdForward_, &QWidget::setEnabled);
  connect(txtPage_, &QTextBrowser::anchorClicked, this, &HelpWindow::GoTo);
  connect(txtPage_, &QTextBrowser::sourceChanged, this, &HelpWindow::ShowTopicOf);
  connect(tvwTopics_, &QTreeView::clicked, this, &HelpWindow::tvwTopics_Click);
  connect(tvwTopics_, &QTreeView::activated, this, &HelpWindow::tvwTopics_Click);
  connect(tvwTopics_->model(), &QAbstractItemModel::modelReset, this, &HelpWindow::ShowTopics);
  connect(lstFound_, &QListWidget::itemClicked, this, &HelpWindow::lstFound_Click);
  connect(lstFound_, &QListWidget::itemActivated, this, &HelpWindow::lstFound_Click);
  connect(txtSearch_, &QLineEdit::textChanged, this, &HelpWindow::txtSearch_Change);
  txtSearch_->installEventFilter(this);
}

void HelpWindow::AddKeys()
{
  const auto add = [this](const QKeySequence& keys, auto work) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, work);
  };
  add(Qt::ALT | Qt::Key_Left, [this] { txtPage_->backward(); });
  add(Qt::ALT | Qt::Key_Right, [this] { txtPage_->forward(); });
  add(Qt::ALT | Qt::Key_Home, [this] { cmdHome_Click(); });
  add(Qt::Key_Escape, [this] { close(); });
  add(Qt::CTRL | Qt::Key_F, [this] {
    txtSearch_->setFocus(Qt::ShortcutFocusReason);
    txtSearch_->selectAll();
  });
}

void HelpWindow::SetFirstSize()
{
  const QRect room = screen()->availableGeometry();
  setMinimumSize(kSmallestSize.boundedTo(room.size()));
  resize(kFirstSize.boundedTo(room.size() * 0.9));
  move(room.center() - rect().center());
}

void HelpWindow::GoTo(const QUrl& address)
{
  if (address.scheme() == QLatin1String("qthelp")) {
    txtPage_->setSource(address);
  } else {
    Shell::Open(address);
  }
}

void HelpWindow::Present()
{
  if (!isVisible()) {
    winId();  // makes the window that is to follow
    FollowModalWindow();
    txtPage_->setFocus();
  }
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

// A window that waits for its user would keep the user from the help that they need for
// it. Its own windows it lets through.
void HelpWindow::FollowModalWindow()
{
  if (QWindow* modal = QGuiApplication::modalWindow()) {
    windowHandle()->setTransientParent(modal);
  }
}

bool HelpWindow::event(QEvent* event)
{
  if (event->type() == QEvent::WindowBlocked) {
    FollowModalWindow();
  }
  return QWidget::event(event);
}

// From the search, Enter opens the first page that was found, and Down goes to the list.
bool HelpWindow::eventFilter(QObject* watched, QEvent* event)
{
  if (event->type() == QEvent::KeyPress && lstFound_->isVisible()) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      lstFound_Click(lstFound_->item(0));
      return true;
    }
    if (key == Qt::Key_Down) {
      lstFound_->setFocus(Qt::TabFocusReason);
      lstFound_->setCurrentRow(0);
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void HelpWindow::txtSearch_Change()
{
  const QString words = txtSearch_->text();
  lstFound_->clear();
  for (const HelpSearch::Hit& hit : HelpSearch::Find(book_->Pages(), words)) {
    auto* item = new QListWidgetItem(hit.title + QLatin1Char('\n') + hit.excerpt, lstFound_);
    item->setData(Qt::UserRole, hit.address);
  }
  if (lstFound_->count() == 0) {
    auto* none = new QListWidgetItem(QStringLiteral("No page has these words"), lstFound_);
    none->setFlags(Qt::NoItemFlags);
  }
  fraLists_->setCurrentWidget(words.trimmed().isEmpty() ? static_cast<QWidget*>(tvwTopics_) : lstFound_);
  if (words.trimmed().isEmpty()) {
    txtPage_->Mark({});
  }
}

void HelpWindow::lstFound_Click(QListWidgetItem* item)
{
  if (const QUrl address = item->data(Qt::UserRole).toUrl(); !address.isEmpty()) {
    GoTo(address);
    txtPage_->Mark(txtSearch_->text());
  }
}

void HelpWindow::tvwTopics_Click(const QModelIndex& topic)
{
  GoTo(book_->AddressOf(topic));
}

void HelpWindow::cmdHome_Click()
{
  GoTo(book_->PageOf(HelpViewer::kFirstPage));
}

void HelpWindow::ShowTopics()
{
  tvwTopics_->expandAll();
  ShowTopicOf(txtPage_->source());
}

void HelpWindow::ShowTopicOf(const QUrl& page)
{
  tvwTopics_->setCurrentIndex(book_->TopicOf(page));
  txtPage_->Mark(txtSearch_->text());
}
