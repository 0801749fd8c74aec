// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/DesktopEntry.h"
#include "support/EntryReader.h"

#include <gtest/gtest.h>

namespace {

DesktopEntry::Program ProgramIn(const QString& folder)
{
  return {"Quillmark", "A comment", folder + "/quillmark", folder, folder + "/animp.ico"};
}

QStringList Lines(const QString& folder)
{
  return QString::fromUtf8(DesktopEntry::Text(ProgramIn(folder))).split(u'\n');
}

const QStringList kOddFolders = {
    "/home/ann/two words",     "/home/ann/ends with a blank ",
    R"(/home/ann/"quoted")",   "/home/ann/it's",
    "/home/ann/$HOME",         "/home/ann/`date`",
    R"(/home/ann/back\slash)", R"(/home/ann/\\two)",
    R"(/home/ann/\n)",         R"(/home/ann/\"$`%)",
    "/home/ann/100%",          "/home/ann/%f%%U",
    "/home/ann/a=b",           "/home/ann/~#;&|<>()*?[]{}!",
    "/home/ann/tab\there",     "/home/ann/line\nbreak",
    "/home/ann/return\rhere",  QStringLiteral("/home/Émile/茶/🎂"),
};

}

TEST(DesktopEntry, SaysAllThatDesktopsAskFor)
{
  EXPECT_EQ(DesktopEntry::Text(ProgramIn("/home/ann/Quillmark")),
            "[Desktop Entry]\n"
            "Type=Application\n"
            "Version=1.0\n"
            "Name=Quillmark\n"
            "Comment=A comment\n"
            "Exec=\"/home/ann/Quillmark/quillmark\"\n"
            "Path=/home/ann/Quillmark\n"
            "Icon=/home/ann/Quillmark/animp.ico\n"
            "Terminal=false\n"
            "X-GNOME-Autostart-enabled=true\n");
}

TEST(DesktopEntry, ArgumentsAreQuoted)
{
  const struct
  {
    QString text;
    QString quoted;
  } kCases[] = {
      {"", R"("")"},
      {"/a/b", R"("/a/b")"},
      {"/a b", R"("/a b")"},
      {R"(/a"b)", R"("/a\"b")"},
      {"/a`b", R"("/a\`b")"},
      {"/a$b", R"("/a\$b")"},
      {R"(/a\b)", R"("/a\\b")"},
      {"/a%b", R"("/a%%b")"},
      {"/a'b=~#;&", R"("/a'b=~#;&")"},
      {QStringLiteral("/é🎂"), QStringLiteral("\"/é🎂\"")},
  };
  for (const auto& [text, quoted] : kCases) {
    EXPECT_EQ(DesktopEntry::Argument(text), quoted);
  }
}

TEST(DesktopEntry, ValuesAreEscaped)
{
  const struct
  {
    QString text;
    QString escaped;
  } kCases[] = {
      {"", ""},
      {"/a/b", "/a/b"},
      {"/a b", "/a b"},
      {"/a ", R"(/a\s)"},
      {" /a", R"(\s/a)"},
      {" ", R"(\s)"},
      {"/a  ", R"(/a \s)"},
      {R"(/a\b)", R"(/a\\b)"},
      {R"(/a\n)", R"(/a\\n)"},
      {"/a\nb\rc\td", R"(/a\nb\rc\td)"},
      {R"(/a"b`c$d%e)", R"(/a"b`c$d%e)"},
  };
  for (const auto& [text, escaped] : kCases) {
    EXPECT_EQ(DesktopEntry::Value(text), escaped);
  }
}

TEST(DesktopEntry, CommandLinesAreQuotedFirstAndEscapedThen)
{
  const QStringList lines = Lines("/a\"b`c$d\\e");
  EXPECT_EQ(lines[5], R"(Exec="/a\\"b\\`c\\$d\\\\e/quillmark")");
  EXPECT_EQ(lines[6], R"(Path=/a"b`c$d\\e)");
  EXPECT_EQ(lines[7], R"(Icon=/a"b`c$d\\e/animp.ico)");
}

TEST(DesktopEntry, ProgramsThatCannotBeNamedInFirstPlaceAreStartedByTheShell)
{
  for (const auto& [folder, written] : {std::pair("/100%", "/100%%"), std::pair("/%f", "/%%f"),
                                        std::pair("/a=b", "/a=b"), std::pair("/$=", R"(/\\$=)")}) {
    EXPECT_EQ(Lines(folder)[5], QString(R"(Exec=/bin/sh -c "exec \\"\\$0\\"" "%1/quillmark")").arg(written)) << folder;
    EXPECT_EQ(Lines(folder)[6], QString("Path=") + folder);
  }
}

TEST(DesktopEntry, AnyFolderIsReadAsItWas)
{
  for (const QString& folder : kOddFolders) {
    SCOPED_TRACE(folder.toStdString());
    const EntryReader entry(DesktopEntry::Text(ProgramIn(folder)));
    const bool byShell = folder.contains('%') || folder.contains('=');
    const QStringList shell = {"/bin/sh", "-c", "exec \"$0\""};
    EXPECT_EQ(entry.Command(), (byShell ? shell : QStringList()) + QStringList(folder + "/quillmark"));
    EXPECT_EQ(entry.Value("Path"), folder);
    EXPECT_EQ(entry.Value("Icon"), folder + "/animp.ico");
    EXPECT_EQ(entry.Value("Name"), "Quillmark");
    EXPECT_EQ(entry.Keys().size(), 9);
  }
}
