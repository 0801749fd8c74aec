// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/Options.h"

#include "platform/RuntimeError.h"
#include "store/DBEngine.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

TEST(Options, ASettingIsWrittenAtOnceAndAlone)
{
  const ProgramFolder folder;
  const QVariantList before = folder.Rows("SELECT * FROM Options").front();
  Options::Write(QStringLiteral("Theme"), 4);
  QVariantList expected = before;
  expected[1] = 4;
  EXPECT_EQ(folder.Rows("SELECT * FROM Options").front(), expected);
}

TEST(Options, SettingsOfOneCallAreWrittenTogetherOrNotAtAll)
{
  const ProgramFolder folder;
  const QVariantList before = folder.Rows("SELECT * FROM Options").front();
  EXPECT_EQ(ErrorOf([] {
              Options::Write({{QStringLiteral("BirthMany"), false}, {QStringLiteral("Nothing"), 1}});
            }),
            3265);
  EXPECT_EQ(folder.Rows("SELECT * FROM Options").front(), before);
  Options::Write({{QStringLiteral("BirthMany"), false}, {QStringLiteral("BirthLength"), QVariant()}});
  EXPECT_EQ(folder.Value("SELECT BirthMany FROM Options"), 0);
  EXPECT_TRUE(folder.Value("SELECT BirthLength FROM Options").isNull());
}

TEST(Options, ARequiredSettingThatIsNullFails)
{
  const ProgramFolder folder;
  folder.Execute("UPDATE Options SET Theme=NULL");
  Database database = DBEngine::OpenDatabase();
  const auto options = Options::Open(database);
  EXPECT_TRUE(Options::Required(*options, QStringLiteral("TextMessage")).toBool());
  int number = 0;
  try {
    static_cast<void>(Options::Required(*options, QStringLiteral("Theme")));
  } catch (const RuntimeError& error) {
    number = error.Number();
  }
  EXPECT_EQ(number, 94);
}

TEST(Options, NullIsNeitherTrueNorFalse)
{
  EXPECT_TRUE(Options::IsTrue(true));
  EXPECT_FALSE(Options::IsTrue(false));
  EXPECT_FALSE(Options::IsTrue(QVariant()));
  EXPECT_TRUE(Options::IsFalse(false));
  EXPECT_FALSE(Options::IsFalse(true));
  EXPECT_FALSE(Options::IsFalse(QVariant()));
}
