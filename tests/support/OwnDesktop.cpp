// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/OwnDesktop.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 30000;

QByteArray Contents(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}

OwnDesktop::OwnDesktop()
{
  for (const char* name : {"home", "config", "data", "cache", "runtime", "bin", "starts"}) {
    EXPECT_TRUE(QDir(folder_.path()).mkdir(QLatin1String(name)));
  }
  QFile::setPermissions(File("runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  Set("HOME", File("home"));
  Set("PATH", File("bin"));
  Set("XDG_CONFIG_HOME", File("config"));
  Set("XDG_CONFIG_DIRS", File("configs"));
  Set("XDG_DATA_HOME", File("data"));
  Set("XDG_DATA_DIRS", File("system") + ':' + File("system2"));
  Set("XDG_CACHE_HOME", File("cache"));
  Set("XDG_RUNTIME_DIR", File("runtime"));
  Set("XDG_CURRENT_DESKTOP", {});
}

OwnDesktop::~OwnDesktop()
{
  Release();
  for (auto variable = before_.cbegin(); variable != before_.cend(); ++variable) {
    if (variable.value().isNull()) {
      qunsetenv(variable.key().constData());
    } else {
      qputenv(variable.key().constData(), variable.value());
    }
  }
}

void OwnDesktop::Set(const char* variable, const QString& value)
{
  before_[variable] = qEnvironmentVariableIsSet(variable) ? qgetenv(variable) + "" : QByteArray();
  qputenv(variable, value.toUtf8());
}

void OwnDesktop::Lay(const QString& relative, const QByteArray& content) const
{
  QDir().mkpath(QFileInfo(File(relative)).path());
  QFile file(File(relative));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_EQ(file.write(content), content.size());
}

void OwnDesktop::LayScript(const QString& name, const QByteArray& script) const
{
  Lay("bin/" + name, "#!/bin/sh\n" + script + "\n");
  EXPECT_TRUE(QFile::setPermissions(File("bin/" + name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void OwnDesktop::LayProgram(const QString& name, const QByteArray& script) const
{
  const QByteArray start = File("starts").toUtf8() + "/$$";
  LayScript(name,
            "for file; do :; done\n"
            "/bin/mkdir \"" +
                start + ".new\" && cd \"" + start +
                ".new\" || exit 9\n"
                "printf '%s\\0' \"${0##*/}\" \"$@\" >arguments\n"
                "if [ -f \"$file\" ]; then\n"
                "  /bin/cat \"$file\" >content\n"
                "  printf '%s %s' $(/usr/bin/stat -c %a \"$file\" \"${file%/*}\") >permissions\n"
                "fi\n"
                "/bin/mv \"" +
                start + ".new\" \"" + start + "\"\n" + script);
}

QByteArray OwnDesktop::UntilReleased() const
{
  const QByteArray released = File("released").toUtf8();
  return "while [ -d \"" + folder_.path().toUtf8() + "\" ] && [ ! -e \"" + released + "\" ]; do /bin/sleep 0.05; done";
}

void OwnDesktop::Release() const
{
  Lay("released", {});
}

void OwnDesktop::LayEntry(const QString& name, const QByteArray& exec, const QByteArray& further) const
{
  Lay("data/applications/" + name,
      "[Desktop Entry]\nType=Application\nName=A program\nExec=" + exec + "\n" + further + "\n");
}

void OwnDesktop::Choose(const QByteArray& mimeType, const QByteArray& entries) const
{
  Lay("config/mimeapps.list", "[Default Applications]\n" + mimeType + "=" + entries + "\n");
}

void OwnDesktop::AddSystemPrograms() const
{
  qputenv("PATH", File("bin").toUtf8() + ":/usr/bin:/bin");
}

OwnDesktop::Start OwnDesktop::AwaitStart(std::size_t number) const
{
  const bool haveCome = QTest::qWaitFor([&] { return Starts().size() >= number; }, kPatience);
  EXPECT_TRUE(haveCome) << "no start number " << number;
  return haveCome ? Starts().back() : Start();
}

std::vector<OwnDesktop::Start> OwnDesktop::Starts() const
{
  std::vector<Start> starts;
  const QDir folder(File("starts"));
  for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time | QDir::Reversed)) {
    if (name.endsWith(QLatin1String(".new"))) {
      continue;
    }
    const QString start = folder.filePath(name) + '/';
    QStringList words = QString::fromUtf8(Contents(start + "arguments")).split(QChar(u'\0'));
    words.removeLast();
    const QString program = words.takeFirst();
    starts.push_back({program, words, Contents(start + "content"), Contents(start + "permissions")});
  }
  return starts;
}
