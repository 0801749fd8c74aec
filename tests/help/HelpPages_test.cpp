// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HelpBook.h"
#include "platform/HelpSearch.h"

#include <QAbstractItemModel>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct Command
{
  QString form;
  QString caption;
};

// What a page refers to and says.
struct Reading
{
  QString fault;  // of the mark-up; empty if it is in order
  QString title;
  QString heading;
  QStringList links;
  QStringList pictures;
  QStringList sheets;
  QSet<QString> places;
  QList<Command> commands;
};

// The text up to the end of the element, without its mark-up.
QString TextOf(QXmlStreamReader& xml)
{
  return xml.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
}

void ReadCommand(QXmlStreamReader& xml, const QStringList& classes, Reading& reading)
{
  const QString caption = TextOf(xml);
  reading.commands.append({classes.value(1), caption});
}

void ReadElement(QXmlStreamReader& xml, Reading& reading)
{
  const QString name = xml.name().toString();
  const QXmlStreamAttributes attributes = xml.attributes();
  if (attributes.hasAttribute("id")) {
    reading.places.insert(attributes.value("id").toString());
  }
  if (name == "a") {
    reading.links.append(attributes.value("href").toString());
  } else if (name == "img") {
    reading.pictures.append(attributes.value("src").toString());
  } else if (name == "link") {
    reading.sheets.append(attributes.value("href").toString());
  } else if (name == "title") {
    reading.title = TextOf(xml);
  } else if (name == "h1") {
    reading.heading = TextOf(xml);
  } else if (name == "span") {
    const QStringList classes = attributes.value("class").toString().split(' ');
    if (classes.value(0) == "command") {
      ReadCommand(xml, classes, reading);
    }
  }
}

Reading Read(const QByteArray& html)
{
  Reading reading;
  QXmlStreamReader xml(html);
  while (!xml.atEnd()) {
    if (xml.readNext() == QXmlStreamReader::StartElement) {
      ReadElement(xml, reading);
    }
  }
  reading.fault = xml.hasError() ? xml.errorString() : QString();
  return reading;
}

// What a form says, without the signs for access keys.
QSet<QString> CaptionsOf(const QString& path)
{
  QSet<QString> captions;
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  QXmlStreamReader xml(&file);
  while (!xml.atEnd()) {
    if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("string")) {
      captions.insert(xml.readElementText().remove('&').simplified());
    }
  }
  return captions;
}

// The captions of every form.
QMap<QString, QSet<QString>> AllForms()
{
  QMap<QString, QSet<QString>> forms;
  QDirIterator files(QStringLiteral(QUILLMARK_SOURCE "/src"), {"*.ui"}, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString path = files.next();
    forms[QFileInfo(path).completeBaseName()] = CaptionsOf(path);
  }
  return forms;
}

// The addresses and titles of all topics from one on.
void Collect(const HelpBook& book, const QModelIndex& parent, QMap<QString, QString>& topics)
{
  for (int row = 0; row < book.Topics().rowCount(parent); ++row) {
    const QModelIndex topic = book.Topics().index(row, 0, parent);
    const QString file = book.AddressOf(topic).fileName();
    EXPECT_FALSE(topics.contains(file)) << file.toStdString() << " is there twice";
    topics[file] = topic.data().toString();
    Collect(book, topic, topics);
  }
}

class HelpPages : public testing::Test
{
protected:
  HelpPages()
  {
    if (book == nullptr) {
      throw std::runtime_error("the laid help file cannot be read");
    }
    for (const QUrl& address : book->Addresses()) {
      if (address.fileName().endsWith(".html")) {
        pages[address] = Read(book->Read(address));
      }
    }
  }

  [[nodiscard]] QMap<QString, QString> Topics() const
  {
    EXPECT_TRUE(QTest::qWaitFor([this] { return book->Topics().rowCount() > 0; }));
    QMap<QString, QString> topics;
    Collect(*book, {}, topics);
    return topics;
  }

  void ExpectThere(const QUrl& page, const QString& reference) const
  {
    const QUrl target = page.resolved(QUrl(reference));
    EXPECT_FALSE(book->Read(target).isEmpty())
        << page.fileName().toStdString() << " refers to " << reference.toStdString();
    if (target.hasFragment()) {
      EXPECT_TRUE(pages[target.adjusted(QUrl::RemoveFragment)].places.contains(target.fragment()))
          << page.fileName().toStdString() << " refers to " << reference.toStdString();
    }
  }

  // The words of the index by the file that they lead to, and the context numbers.
  struct Index
  {
    QList<std::pair<QString, QString>> words;
    QMap<QString, QString> contexts;
  };
  static Index ReadIndex()
  {
    Index index;
    QFile file(QStringLiteral(QUILLMARK_SOURCE "/assets/help/Help.qhp"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
      if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("keyword")) {
        const QString page = xml.attributes().value("ref").toString();
        index.words.append({xml.attributes().value("name").toString(), page});
        if (xml.attributes().hasAttribute("id")) {
          index.contexts[xml.attributes().value("id").toString()] = page;
        }
      }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return index;
  }

  const std::unique_ptr<HelpBook> book = HelpBook::Open(QStringLiteral(QUILLMARK_LAID_FOLDER "/Help.hlp"));
  QMap<QUrl, Reading> pages;
};

}

TEST_F(HelpPages, EverySourceIsInTheBookAsItStands)
{
  QDirIterator sources(QStringLiteral(QUILLMARK_SOURCE "/assets/help"), {"*.html"}, QDir::Files);
  int count = 0;
  while (sources.hasNext()) {
    QFile source(sources.next());
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    EXPECT_EQ(book->Read(book->PageOf(1).resolved(QUrl(sources.fileName()))), source.readAll())
        << sources.fileName().toStdString();
    ++count;
  }
  EXPECT_EQ(count, pages.size());
  EXPECT_GE(count, 20);
}

TEST_F(HelpPages, EveryPageIsWellFormed)
{
  for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
    EXPECT_EQ(page->fault.toStdString(), "") << page.key().fileName().toStdString();
  }
}

TEST_F(HelpPages, EveryPageIsReachedFromTheContents)
{
  const QMap<QString, QString> topics = Topics();
  for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
    EXPECT_TRUE(topics.contains(page.key().fileName())) << page.key().fileName().toStdString();
  }
  EXPECT_EQ(topics.size(), pages.size());
}

TEST_F(HelpPages, EveryPageBearsTheNameOfItsTopic)
{
  const QMap<QString, QString> topics = Topics();
  for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
    const std::string topic = topics[page.key().fileName()].toStdString();
    EXPECT_EQ(page->title.toStdString(), topic);
    EXPECT_EQ(page->heading.toStdString(), topic);
  }
}

TEST_F(HelpPages, EveryLinkAndEveryPictureIsThere)
{
  qsizetype links = 0;
  for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
    for (const QString& reference : page->links + page->pictures + page->sheets) {
      ExpectThere(page.key(), reference);
    }
    EXPECT_EQ(page->sheets, QStringList("help.css")) << page.key().fileName().toStdString();
    EXPECT_FALSE(page->pictures.isEmpty()) << page.key().fileName().toStdString();
    links += page->links.size();
  }
  EXPECT_GE(links, 50);
}

TEST_F(HelpPages, EveryPictureCanBeDrawn)
{
  for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
    for (const QString& picture : page->pictures) {
      EXPECT_FALSE(QImage::fromData(book->Read(page.key().resolved(QUrl(picture)))).isNull()) << picture.toStdString();
    }
  }
}

TEST_F(HelpPages, EveryDrawingIsShownSomewhere)
{
  QSet<QUrl> shown;
  for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
    for (const QString& picture : page->pictures) {
      shown.insert(page.key().resolved(QUrl(picture)));
    }
  }
  for (const QUrl& address : book->Addresses()) {
    if (address.path().contains("/drawings/")) {
      EXPECT_TRUE(shown.contains(address)) << address.fileName().toStdString();
    }
  }
}

TEST_F(HelpPages, EveryCommandNamesAForm)
{
  const QMap<QString, QSet<QString>> forms = AllForms();
  for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
    for (const Command& command : page->commands) {
      EXPECT_TRUE(forms.contains(command.form))
          << page.key().fileName().toStdString() << ": " << command.caption.toStdString();
    }
  }
}

TEST_F(HelpPages, EveryCommandIsOneOfTheCaptionsOfItsForm)
{
  const QMap<QString, QSet<QString>> forms = AllForms();
  int looked = 0;
  for (auto page = pages.cbegin(); page != pages.cend(); ++page) {
    for (const Command& command : page->commands) {
      EXPECT_TRUE(forms[command.form].contains(command.caption))
          << page.key().fileName().toStdString() << ": " << command.form.toStdString() << " has no \""
          << command.caption.toStdString() << '"';
      ++looked;
    }
  }
  EXPECT_GE(looked, 80);
}

TEST_F(HelpPages, ContextNumbersLeadToTheirPages)
{
  const Index index = ReadIndex();
  EXPECT_EQ(index.contexts.value("1"), "index.html");
  EXPECT_EQ(index.contexts.value("2"), "quick-fill.html");
  for (auto context = index.contexts.cbegin(); context != index.contexts.cend(); ++context) {
    EXPECT_EQ(book->PageOf(context.key().toInt()).fileName(), *context);
  }
}

TEST_F(HelpPages, TheSearchFindsEveryWordOfTheIndexOnItsPage)
{
  const Index index = ReadIndex();
  EXPECT_GE(index.words.size(), 30);
  for (const auto& [word, page] : index.words) {
    const std::vector<HelpSearch::Hit> hits = HelpSearch::Find(book->Pages(), word);
    EXPECT_TRUE(std::any_of(hits.begin(), hits.end(),
                            [&](const HelpSearch::Hit& hit) { return hit.address.fileName() == page; }))
        << word.toStdString() << " on " << page.toStdString();
  }
}
