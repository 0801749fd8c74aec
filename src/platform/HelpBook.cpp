// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HelpBook.h"

#include "platform/HelpViewer.h"

#include <QAbstractItemModel>
#include <QByteArray>
#include <QFileInfo>
#include <QHelpContentModel>
#include <QHelpEngine>
#include <QHelpLink>
#include <QTemporaryDir>
#include <QTextDocument>

#include <algorithm>

namespace {

bool IsPage(const QUrl& address)
{
  return address.path().endsWith(QLatin1String(".html"));
}

// The text without the title that it begins with.
HelpSearch::Page PageFrom(const QUrl& address, const QByteArray& html)
{
  QTextDocument document;
  document.setHtml(QString::fromUtf8(html));
  const QString title = document.metaInformation(QTextDocument::DocumentTitle);
  const QString text = document.toPlainText().remove(QChar::ObjectReplacementCharacter).simplified();
  return {address, title, text.startsWith(title) ? text.mid(title.size() + 1) : text};
}

QModelIndex Find(const HelpBook& book, const QModelIndex& parent, const QUrl& page)
{
  const QAbstractItemModel& topics = book.Topics();
  for (int row = 0; row < topics.rowCount(parent); ++row) {
    const QModelIndex topic = topics.index(row, 0, parent);
    if (book.AddressOf(topic) == page) {
      return topic;
    }
    if (const QModelIndex below = Find(book, topic, page); below.isValid()) {
      return below;
    }
  }
  return {};
}

}

HelpBook::HelpBook()
    : folder_(std::make_unique<QTemporaryDir>()),
      engine_(std::make_unique<QHelpEngine>(folder_->filePath(QStringLiteral("quillmark.qhc"))))
{
  engine_->setReadOnly(false);
  engine_->setUsesFilterEngine(true);
}

HelpBook::~HelpBook() = default;

std::unique_ptr<HelpBook> HelpBook::Open(const QString& file)
{
  if (!QFileInfo(file).isFile()) {
    return nullptr;
  }
  std::unique_ptr<HelpBook> book(new HelpBook);
  if (!book->Register(file) || !book->IsWhole()) {
    return nullptr;
  }
  book->engine_->contentModel()->createContents(QString());
  return book;
}

bool HelpBook::Register(const QString& file) const
{
  return folder_->isValid() && engine_->setupData() && engine_->registerDocumentation(file);
}

bool HelpBook::IsWhole() const
{
  const QList<QUrl> addresses = Addresses();
  return !PageOf(HelpViewer::kFirstPage).isEmpty() &&
         std::none_of(addresses.begin(), addresses.end(),
                      [this](const QUrl& address) { return Read(address).isEmpty(); });
}

QUrl HelpBook::PageOf(int context) const
{
  const QList<QHelpLink> links = engine_->documentsForIdentifier(QString::number(context));
  return links.isEmpty() ? QUrl() : links.first().url;
}

QByteArray HelpBook::Read(const QUrl& address) const
{
  return engine_->fileData(address.adjusted(QUrl::RemoveFragment));
}

QList<QUrl> HelpBook::Addresses() const
{
  QList<QUrl> addresses;
  for (const QString& name : engine_->registeredDocumentations()) {
    addresses += engine_->files(name, QString());
  }
  return addresses;
}

const std::vector<HelpSearch::Page>& HelpBook::Pages() const
{
  if (pages_.empty()) {
    for (const QUrl& address : Addresses()) {
      if (IsPage(address)) {
        pages_.push_back(PageFrom(address, Read(address)));
      }
    }
  }
  return pages_;
}

QAbstractItemModel& HelpBook::Topics() const
{
  return *engine_->contentModel();
}

QUrl HelpBook::AddressOf(const QModelIndex& topic) const
{
  const QHelpContentItem* item = topic.isValid() ? engine_->contentModel()->contentItemAt(topic) : nullptr;
  return item == nullptr ? QUrl() : item->url();
}

QModelIndex HelpBook::TopicOf(const QUrl& page) const
{
  return Find(*this, {}, page.adjusted(QUrl::RemoveFragment));
}
