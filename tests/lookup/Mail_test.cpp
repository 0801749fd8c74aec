// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/Mail.h"

#include "support/OwnDesktop.h"

#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 30000;

struct Case
{
  QString address;
  const char* given;
};

const Case kAddresses[] = {
    {"ann@example.org", "mailto:%20ann@example.org"},
    {" ann@example.org ", "mailto:%20ann@example.org"},
    {"ann+list@example.org", "mailto:%20ann%2Blist@example.org"},
    {"ann@x.org?cc=bob@x.org", "mailto:%20ann@x.org%3Fcc%3Dbob@x.org"},
    {"ann@x.org&bcc=bob@x.org", "mailto:%20ann@x.org%26bcc%3Dbob@x.org"},
    {"ann@x.org%3Fcc=bob", "mailto:%20ann@x.org%253Fcc%3Dbob"},
    {"ann@x.org#top", "mailto:%20ann@x.org%23top"},
    {"ann@x.org,bob@x.org;eve@x.org", "mailto:%20ann@x.org%2Cbob@x.org%3Beve@x.org"},
    {"ann@x.org\r\nBcc: bob@x.org\n", "mailto:%20ann@x.orgBcc%3A%20bob@x.org"},
    {u"ann@x.org\u2028Bcc:b\u0000c\u0085d\u001B"_qs, "mailto:%20ann@x.orgBcc%3Abcd"},
    {"--attach=/etc/passwd", "mailto:%20--attach%3D%2Fetc%2Fpasswd"},
    {"-a@x.org", "mailto:%20-a@x.org"},
    {"\"Ann Lee\" <ann@x.org>", "mailto:%20%22Ann%20Lee%22%20%3Cann@x.org%3E"},
    {"o'neil@x.org", "mailto:%20o%27neil@x.org"},
    {"`id`$(id)|id\\@x.org", "mailto:%20%60id%60%24%28id%29%7Cid%5C@x.org"},
    {"//example.org/x", "mailto:%20%2F%2Fexample.org%2Fx"},
    {u"zo\u00EB@x.org"_qs, "mailto:%20zo%C3%AB@x.org"},
};

// A virtual display: without one the toolkit hands nothing over.
class VirtualDisplay
{
public:
  VirtualDisplay()
  {
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "320x200x24", "-nolisten", "tcp"});
    while (!server_.canReadLine() && server_.waitForReadyRead(kPatience)) {
    }
    name_ = ":" + QString::fromLatin1(server_.readLine()).trimmed();
  }
  ~VirtualDisplay()
  {
    server_.terminate();
    server_.waitForFinished(kPatience);
  }
  VirtualDisplay(const VirtualDisplay&) = delete;
  VirtualDisplay& operator=(const VirtualDisplay&) = delete;

  [[nodiscard]] const QString& Name() const { return name_; }

private:
  QProcess server_;
  QString name_;
};

class MailTest : public testing::Test
{
protected:
  // Begins a message in a process of its own, which is to end well and by itself.
  void Write(const QString& address) const
  {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", display_.Name());
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    QProcess writer;
    writer.setProcessEnvironment(environment);
    writer.start(QUILLMARK_WRITE_MAIL, QStringList());
    writer.write(address.toUtf8());
    writer.closeWriteChannel();
    EXPECT_TRUE(writer.waitForFinished(kPatience));
    EXPECT_EQ(writer.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(writer.exitCode(), 0) << writer.readAllStandardError().toStdString();
  }

  VirtualDisplay display_;
  OwnDesktop desktop_;
};

}

TEST(MailAddress, NothingInAnAddressIsMoreThanTheRecipient)
{
  for (const auto& [address, given] : kAddresses) {
    const QUrl url = Mail::AddressOf(address);
    EXPECT_EQ(url.toEncoded().toStdString(), given);
    EXPECT_FALSE(url.hasQuery());
    EXPECT_FALSE(url.hasFragment());
    EXPECT_EQ(url.scheme(), "mailto");
  }
}

TEST_F(MailTest, TheDesktopsHandlerIsGivenTheEscapedAddressAndNothingElse)
{
  desktop_.LayProgram("xdg-open");
  std::size_t starts = 0;
  for (const auto& [address, given] : kAddresses) {
    Write(address);
    EXPECT_EQ(desktop_.AwaitStart(++starts).arguments, QStringList{QString::fromLatin1(given)});
  }
}

TEST_F(MailTest, TheMailProgramThatTheUserChoseIsStarted)
{
  desktop_.AddSystemPrograms();
  desktop_.LayProgram("mailer");
  desktop_.LayEntry("mailer.desktop", "mailer --compose %u", "MimeType=x-scheme-handler/mailto;");
  desktop_.Choose("x-scheme-handler/mailto", "mailer.desktop");
  Write("--x@y.org\n?cc=`id`&\"b\"");
  EXPECT_EQ(desktop_.AwaitStart(1).arguments,
            (QStringList{"--compose", "mailto:%20--x@y.org%3Fcc%3D%60id%60%26%22b%22"}));
}

TEST_F(MailTest, AHandlerThatHangsKeepsNobodyWaiting)
{
  desktop_.LayProgram("xdg-open", desktop_.UntilReleased() + "\n: >../../ended");
  Write("ann@example.org");
  EXPECT_EQ(desktop_.AwaitStart(1).program, "xdg-open");
  EXPECT_FALSE(QFile::exists(desktop_.File("ended")));
}

TEST_F(MailTest, AHandlerThatFailsOrIsMissingIsPassedOverInSilence)
{
  Write("ann@example.org");
  desktop_.LayProgram("xdg-open", "exit 4");
  Write("ann@example.org");
  EXPECT_EQ(desktop_.AwaitStart(1).program, "xdg-open");
}
