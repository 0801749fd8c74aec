// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/PresetTitles.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

std::string In(const QByteArray& contents)
{
  return PresetTitles::In(contents).join(u'|').toStdString();
}

}

TEST(PresetTitles, AreTheFieldsOfAText)
{
  const std::pair<const char*, const char*> cases[] = {
      {"", ""},
      {"Dentist", "Dentist"},
      {"Dentist\n", "Dentist"},
      {"Dentist\nDoctor\nVet", "Dentist|Doctor|Vet"},
      {"Dentist\r\nDoctor\r\nVet\r\n", "Dentist|Doctor|Vet"},
      {"Dentist\rDoctor\r", "Dentist|Doctor"},
      {"Dentist,Doctor, Vet", "Dentist|Doctor|Vet"},
      {"Dentist, Doctor\nVet,Rent\n", "Dentist|Doctor|Vet|Rent"},
      {"\"Tea, 4 cups\"\nVet", "Tea, 4 cups|Vet"},
      {"\"Dentist\",\"Doctor\"\r\n\"Vet\"", "Dentist|Doctor|Vet"},
      {"\"say \"\"hi\"\"\",Vet", "say \"hi\"|Vet"},
      {"\"\"\"\",Vet", "\"|Vet"},
      {"\"\"\"a\",Vet", "\"a|Vet"},
      {"\"a\"\"\",Vet", "a\"|Vet"},
      {"5\" nails, Vet", "5\" nails|Vet"},
      {"it's, O'Neil", "it's|O'Neil"},
      {"  Dentist  \n\t Vet \t", "Dentist|Vet"},
      {"  \"Dentist\"  , Vet", "Dentist|Vet"},
      {"\" Dentist \",Vet", " Dentist |Vet"},
      {"\"Tea\" time,Vet", "Teatime|Vet"},
      {"\"Tea, open\nVet", "Tea, open|Vet"},
      {"\"\nVet", "Vet"},
      {"a,\"", "a"},
      {"a,\"b", "a|b"},
      {"\n\n , ,,\r\n\"\",\"  \"\nVet\n\n", "Vet"},
      {"Book club", "Book club"},
      {"Vet\nVet", "Vet|Vet"},
  };
  for (const auto& [contents, titles] : cases) {
    EXPECT_EQ(In(contents), titles) << contents;
  }
}

TEST(PresetTitles, AreReadInTheEncodingOfTheFile)
{
  const QString titles = QStringLiteral("Café\n茶\nVet");
  EXPECT_EQ(In(titles.toUtf8()), "Café|茶|Vet");
  EXPECT_EQ(In("\xEF\xBB\xBF" + titles.toUtf8()), "Café|茶|Vet");
  EXPECT_EQ(In(QByteArray("\xFF\xFE") + QByteArray(reinterpret_cast<const char*>(titles.utf16()), titles.size() * 2)),
            "Café|茶|Vet");
  EXPECT_EQ(In("Caf\xE9,F\xEAte\r\n"), "Café|Fête");
  EXPECT_EQ(In("Vet,Caf\xE9"), "Vet|Café");
  EXPECT_EQ(In("\xEF\xBB\xBF"), "");
  EXPECT_EQ(In("5 \x80,Mum\x92s,\x93Tea\x94"), "5 €|Mum’s|“Tea”");
}

TEST(PresetTitles, OfBytesThatAreNoTextAreStillFields)
{
  QByteArray bytes;
  for (int i = 0; i < 70'000; ++i) {
    bytes.append(static_cast<char>((i * 7 + i / 256) & 0xFF));
  }
  const QStringList titles = PresetTitles::In(bytes);
  EXPECT_FALSE(titles.isEmpty());
  for (const QString& title : titles) {
    ASSERT_FALSE(title.trimmed().isEmpty());
    ASSERT_FALSE(title.contains(u'\n') || title.contains(u'\r')) << title.toStdString();
  }
}

TEST(PresetTitles, LeaveOutWhatNobodyWouldWriteAsATitle)
{
  const QByteArray longest(255, 'n');
  EXPECT_EQ(In("Vet," + longest + ",Rent"), "Vet|" + longest.toStdString() + "|Rent");
  EXPECT_EQ(In("Vet," + longest + "n,Rent"), "Vet|Rent");
  EXPECT_EQ(In(QByteArray(10'000'000, 'n')), "");
  EXPECT_EQ(In(QByteArray(10'000'000, '"')), "");
}

TEST(PresetTitles, OfTenMegabytesAreAllThere)
{
  QByteArray contents;
  int count = 0;
  for (; contents.size() < 10'000'000; ++count) {
    contents += "Event " + QByteArray::number(count) + "\r\n";
  }
  const QStringList titles = PresetTitles::In(contents);
  ASSERT_EQ(titles.size(), count);
  EXPECT_EQ(titles.front().toStdString(), "Event 0");
  EXPECT_EQ(titles.back().toStdString(), "Event " + std::to_string(count - 1));
}

TEST(PresetTitles, AreReadFromTheProgramsFolder)
{
  const ProgramFolder folder;
  const QStringList delivered = PresetTitles::Read();
  EXPECT_GE(delivered.size(), 10);
  for (const QString& title : delivered) {
    EXPECT_LE(title.size(), 12) << title.toStdString();
  }
  QFile file(folder.File("/reminders.txt"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  file.write("Mine,\"My, own\"");
  file.close();
  EXPECT_EQ(PresetTitles::Read(), QStringList({"Mine", "My, own"}));
  ASSERT_TRUE(file.remove());
  EXPECT_EQ(ErrorOf([] { static_cast<void>(PresetTitles::Read()); }), ErrorNumber::kFileNotFound);
  ASSERT_TRUE(QDir(folder.Path()).mkdir("reminders.txt"));
  EXPECT_EQ(ErrorOf([] { static_cast<void>(PresetTitles::Read()); }), ErrorNumber::kFileAccess);
}
