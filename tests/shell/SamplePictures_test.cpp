// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

// The program's folder with the made-up household in it, as it is laid for a look around.
class SamplePictures : public testing::TestWithParam<std::pair<const char*, const char*>>
{
protected:
  SamplePictures()
  {
    QFile household(QStringLiteral(QUILLMARK_SOURCE "/assets/sample/household.sql"));
    if (!household.open(QIODevice::ReadOnly)) {
      throw std::runtime_error("cannot read the household");
    }
    // The one line that is meant for the shell of the database.
    const QByteArray sql = household.readAll().replace(".bail on", "");
    sqlite3* handle = nullptr;
    sqlite3_open(folder.DatabasePath().toUtf8().constData(), &handle);
    const int code = sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr);
    sqlite3_close(handle);
    if (code != SQLITE_OK) {
      throw std::runtime_error("cannot fill in the household");
    }
  }

  ProgramFolder folder;
};

}

TEST_P(SamplePictures, LoadAndBelongToARow)
{
  const auto& [table, key] = GetParam();
  const QString made = QCoreApplication::applicationDirPath() + QStringLiteral("/../assets/sample/%1Pics/").arg(table);
  const QString drawn = QStringLiteral(QUILLMARK_SOURCE "/assets/sample/%1Pics").arg(table);
  const QStringList drawings = QDir(drawn).entryList({QStringLiteral("*.svg")});
  EXPECT_FALSE(drawings.isEmpty());
  for (const QString& drawing : drawings) {
    const QString id = drawing.chopped(4);
    const QImage picture(made + id + QStringLiteral(".bmp"));
    EXPECT_FALSE(picture.isNull()) << table << ' ' << id.toStdString();
    EXPECT_FALSE(picture.hasAlphaChannel()) << table << ' ' << id.toStdString();
    const QString query = QStringLiteral("SELECT count(*) FROM %1 WHERE CAST(%2 AS TEXT) = '%3'").arg(table, key, id);
    EXPECT_EQ(folder.Value(query), 1) << table << ' ' << id.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(OfPeopleAndCouples, SamplePictures,
                         testing::Values(std::pair("People", "PeopleID"), std::pair("Ann", "AnnID")),
                         [](const auto& given) { return std::string(given.param.first); });
