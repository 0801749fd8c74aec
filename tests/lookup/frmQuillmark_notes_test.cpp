// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "LookupTest.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>

namespace {

constexpr qint64 kPatience = 20'000;
const LookupItem& kNotes = kItems[7];

using LookupNotes = LookupPageTest;

}

TEST_F(LookupNotes, NullAndTheEmptyTextAreUnavailable)
{
  AddPerson("Ann", "Wood");
  AddPerson("Bob", "Wood", {{"Notes", ""}});
  AddPerson("Eve", "Wood", {{"Notes", " "}});
  Open();
  Tick("chkNotes");
  ClickLine(0);
  ExpectShown(kNotes, "unavailable");
  ClickLine(1);
  ExpectShown(kNotes, "unavailable");
  ClickLine(2);
  ExpectShown(kNotes, " ");
}

TEST_F(LookupNotes, LinesAndOddTextsStandAsTheyAre)
{
  const QString lines = QStringLiteral("one\r\n\ttwo\n\nthree <b>x</b> & 日本 👩‍👩‍👧");
  AddPerson("Ann", "Wood", {{"Notes", lines}});
  Open();
  ClickLine(0);
  Tick("chkNotes");
  ExpectShown(kNotes, lines.toStdString());
  EXPECT_EQ(dynamic_cast<QPlainTextEdit&>(Control("txtNotes")).toPlainText().toStdString(),
            "one\n\ttwo\n\nthree <b>x</b> & 日本 👩‍👩‍👧");
}

TEST_F(LookupNotes, AnUntickHidesThem)
{
  AddAnn();
  Open();
  ClickLine(0);
  Tick("chkNotes");
  ExpectShown(kNotes, "Likes tea");
  Tick("chkNotes");
  ExpectHidden(kNotes);
}

TEST_F(LookupNotes, TypingIsSwallowed)
{
  AddAnn();
  Open();
  ClickLine(0);
  Tick("chkNotes");
  Control("txtNotes").setFocus();
  QTest::keyClicks(&Control("txtNotes"), "Likes coffee");
  Press("txtNotes", Qt::Key_Delete);
  Press("txtNotes", Qt::Key_Backspace);
  ExpectShown(kNotes, "Likes tea");
  EXPECT_EQ(folder.Value("SELECT Notes FROM People").toString().toStdString(), "Likes tea");
}

TEST_F(LookupNotes, TenMegabytesComeQuicklyWhole)
{
  constexpr int kLines = 100'000;
  const QString line(99, QLatin1Char('n'));
  const QString lines = QStringList(kLines, line).join('\n');
  const QString one(10'000'000, QLatin1Char('x'));
  AddPerson("Ann", "Wood", {{"Notes", lines}});
  AddPerson("Bob", "Wood", {{"Notes", one}});
  AddPerson("Eve", "Wood", {{"Notes", "short"}});
  QElapsedTimer clock;
  clock.start();
  Open();
  Tick("chkNotes");
  ClickLine(0);
  EXPECT_TRUE(TextOf("txtNotes") == lines.toStdString());
  ClickLine(1);
  EXPECT_TRUE(TextOf("txtNotes") == one.toStdString());
  Click(kCopy);
  EXPECT_TRUE(Clipboard() == "Bob Wood\n\n" + one.toStdString());
  ClickLine(2);
  ExpectShown(kNotes, "short");
  EXPECT_LT(clock.elapsed(), kPatience);
}
