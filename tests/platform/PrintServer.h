// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// A print server of a test's own, the only one that the process sees while it lives. It has two
// printers, "Paper" and "Full". Paper, the default, keeps what it is given and prints nothing; its
// usual paper is Letter, of which it leaves 24 points blank at three sides and 54 at the bottom. Full
// takes no documents.
class PrintServer
{
public:
  PrintServer();
  ~PrintServer();
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;

  // Ends the server under the hands of who prints.
  void Stop();

  // How many documents it was given.
  [[nodiscard]] int Documents() const;
  // The file of one of them; they count from 1.
  [[nodiscard]] QString Document(int number) const;
  // How many copies of it are wanted.
  [[nodiscard]] int CopiesOf(int number) const;

private:
  void WriteConfiguration() const;
  void Write(const QString& relative, const QString& text) const;

  QTemporaryDir folder_;
  QProcess process_;
};
