// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "StandInFrame.h"

#include "controls/Forms.h"
#include "platform/Clock.h"
#include "platform/MediaDevice.h"
#include "reminders/frmTextNotice.h"
#include "reminders/modTextNotices.h"
#include "support/Drive.h"
#include "support/ProgramFolder.h"

#include <QDir>
#include <QLabel>
#include <QListView>

#include <gtest/gtest.h>

// A household with reminders of birthdays and anniversaries within 7 days and of
// events within 3, on a day of the test's choice.
class ReminderTest : public testing::Test
{
protected:
  ReminderTest()
  {
    Forms::Register(QStringLiteral("frmTextNotice"), [] { return new frmTextNotice; });
    Clock::StopOn(QDate(2026, 5, 5));
    modTextNotices::ClipFiles.clear();
    modTextNotices::ClipIndex = 0;
    modTextNotices::ManualCheck = false;
    modTextNotices::BirthdayHit = modTextNotices::AnniversaryHit = modTextNotices::CalendarHit = false;
  }

  ~ReminderTest() override
  {
    Forms::Unload(QStringLiteral("frmTextNotice"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    MediaDevice::Close();
    Forms::UnregisterAll();
    Clock::StopOn({});
  }

  void AddPerson(const QString& first, const QString& last, const QString& month, const QString& day) const
  {
    folder.Execute(QStringLiteral("INSERT INTO People (FirstName, LastName, BirthMonth, BirthDate) VALUES (?,?,?,?)"),
                   {first, last, month, day});
  }

  // A couple with its date in both places.
  void AddCouple(const QString& woman, const QString& man, const QString& month, const QString& day) const
  {
    folder.Execute(QStringLiteral("INSERT INTO People (FirstName, LastName, AnnMonth, AnnDate) VALUES (?,'W',?,?)"),
                   {woman, month, day});
    folder.Execute(QStringLiteral("INSERT INTO Ann (Spouse1First, Spouse2First, AnnMonth, AnnDate) VALUES (?,?,?,?)"),
                   {woman, man, month, day});
  }

  void AddEvent(const QString& title, const QString& month, const QString& date) const
  {
    folder.Execute(
        QStringLiteral("INSERT INTO Reminders (Event, \"Month\", \"Date\", \"Time\") VALUES (?,?,?,'09:30:00')"),
        {title, month, date});
  }

  void Set(const QString& assignments) const { folder.Execute(QStringLiteral("UPDATE Options SET ") + assignments); }

  static frmTextNotice* Window() { return static_cast<frmTextNotice*>(Forms::Loaded(QStringLiteral("frmTextNotice"))); }

  static QStringList Lines(QWidget& form, const QString& list)
  {
    const QAbstractItemModel* model = static_cast<QListView&>(Drive::Control(form, list)).model();
    QStringList lines;
    for (int row = 0; row < model->rowCount(); ++row) {
      lines.append(model->index(row, 0).data().toString());
    }
    return lines;
  }

  static QString Caption(QWidget& form, const QString& label)
  {
    return static_cast<QLabel&>(Drive::Control(form, label)).text();
  }

  static void ClickLine(QWidget& form, const QString& list, int row)
  {
    auto& view = static_cast<QListView&>(Drive::Control(form, list));
    const QRect place = view.visualRect(view.model()->index(row, 0));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place.center());
  }

  // Runs a check that shows its window modally; `work` sees it, then it is closed.
  static bool CheckAndSee(const std::function<void(QWidget&)>& work)
  {
    bool seen = false;
    Drive::WhenShown(QStringLiteral("frmTextNotice"), [&](QWidget& form) {
      seen = true;
      EXPECT_TRUE(form.isModal());
      work(form);
      Drive::Click(form, QStringLiteral("lblOptions_0"));
    });
    modTextNotices::CheckReminders(true);
    return seen;
  }

  ProgramFolder folder;
  StandInFrame frame;
};
