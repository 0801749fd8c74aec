// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QtGlobal>

// Another value for a variable of the environment, or none, as long as this lives.
class EnvironmentVariable
{
public:
  EnvironmentVariable(const char* name, const QByteArray& value) : name_(name), before_(qgetenv(name)) { Set(value); }
  ~EnvironmentVariable() { Set(before_); }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

  // A null value unsets it.
  void Set(const QByteArray& value) const
  {
    if (value.isNull()) {
      qunsetenv(name_);
    } else {
      qputenv(name_, value);
    }
  }

private:
  const char* name_;
  QByteArray before_;
};
