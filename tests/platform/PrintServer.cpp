// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PrintServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <cups/cups.h>
#include <gtest/gtest.h>

namespace {

constexpr auto kFolders = R"(ServerRoot %1/root
CacheDir %1/cache
StateDir %1/state
RequestRoot %1/spool
TempDir %1/spool/tmp
AccessLog %1/log/access
ErrorLog %1/log/error
PageLog %1/log/page
FileDevice Yes
)";

constexpr auto kServer = R"(Listen %1/socket
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order allow,deny
Allow all
</Limit>
</Policy>
)";

constexpr auto kPrinters = R"(<DefaultPrinter Paper>
DeviceURI file:///dev/null
State Stopped
Accepting Yes
</DefaultPrinter>
<Printer Full>
DeviceURI file:///dev/null
State Stopped
Accepting No
</Printer>
)";

constexpr auto kPaper = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "PAPER.PPD"
*Product: "(Paper)"
*PSVersion: "(3010.000) 1"
*Manufacturer: "Quillmark"
*ModelName: "Paper"
*ShortNickName: "Paper"
*NickName: "Paper"
*cupsFilter2: "application/pdf application/pdf 0 -"
*ColorDevice: True
*DefaultColorSpace: RGB
*LanguageLevel: "3"
*OpenUI *PageSize: PickOne
*DefaultPageSize: Letter
*PageSize Letter: ""
*PageSize A4: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*DefaultPageRegion: Letter
*PageRegion Letter: ""
*PageRegion A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: Letter
*ImageableArea Letter: "24 54 588 768"
*ImageableArea A4: "24 54 571 818"
*DefaultPaperDimension: Letter
*PaperDimension Letter: "612 792"
*PaperDimension A4: "595 842"
)ppd";

}

PrintServer::PrintServer()
{
  WriteConfiguration();
  process_.start("/usr/sbin/cupsd",
                 {"-f", "-c", folder_.filePath("cupsd.conf"), "-s", folder_.filePath("cups-files.conf")});
  const QString socket = folder_.filePath("socket");
  cupsSetServer(socket.toLocal8Bit().constData());
  QElapsedTimer time;
  time.start();
  cups_dest_t* printers = nullptr;
  int count = 0;
  while ((count = cupsGetDests(&printers)) < 2 && !time.hasExpired(20'000)) {
    cupsFreeDests(count, printers);
    QThread::msleep(20);
  }
  cupsFreeDests(count, printers);
  EXPECT_EQ(count, 2) << "the print server does not come: " << process_.readAllStandardError().toStdString();
}

PrintServer::~PrintServer()
{
  Stop();
  cupsSetServer("/nonexistent");
}

void PrintServer::Stop()
{
  if (process_.state() != QProcess::NotRunning) {
    process_.terminate();
    if (!process_.waitForFinished(20'000)) {
      process_.kill();
      process_.waitForFinished();
    }
  }
}

int PrintServer::Documents() const
{
  return static_cast<int>(QDir(folder_.filePath("spool")).entryList({"d*"}, QDir::Files).size());
}

QString PrintServer::Document(int number) const
{
  return folder_.filePath(QStringLiteral("spool/d%1-001").arg(number, 5, 10, QLatin1Char('0')));
}

// From the description of the job that the server keeps in its memory.
int PrintServer::CopiesOf(int number) const
{
  ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
  const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(number);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
  ipp_t* response = cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/");
  ipp_attribute_t* copies = ippFindAttribute(response, "copies", IPP_TAG_INTEGER);
  const int found = copies == nullptr ? 1 : ippGetInteger(copies, 0);
  ippDelete(response);
  return found;
}

void PrintServer::WriteConfiguration() const
{
  for (const char* name : {"root/ppd", "cache", "state/certs", "spool/tmp", "log"}) {
    EXPECT_TRUE(QDir(folder_.path()).mkpath(name));
  }
  Write("cups-files.conf", QString(kFolders).arg(folder_.path()));
  Write("cupsd.conf", QString(kServer).arg(folder_.path()));
  Write("root/printers.conf", kPrinters);
  Write("root/mime.types", "application/pdf pdf string(0,%PDF)\n");
  Write("root/ppd/Paper.ppd", kPaper);
  Write("root/ppd/Full.ppd", kPaper);
}

void PrintServer::Write(const QString& relative, const QString& text) const
{
  QFile file(folder_.filePath(relative));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text.toUtf8());
}
