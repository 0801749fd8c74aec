// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CalendarTest.h"

#include "store/Connection.h"
#include "store/DBEngine.h"
#include "support/FullDisk.h"
#include "support/HeldDatabase.h"

#include <sqlite3.h>

namespace {

// Breaks off every reading of rows after a write, on the program's own connection.
class BrokenReads
{
public:
  explicit BrokenReads(const QString& path) : connection_(Connection::To(path))
  {
    sqlite3_trace_v2(connection_->Handle(), SQLITE_TRACE_STMT, Look, this);
  }
  ~BrokenReads() { sqlite3_trace_v2(connection_->Handle(), 0, nullptr, nullptr); }
  BrokenReads(const BrokenReads&) = delete;
  BrokenReads& operator=(const BrokenReads&) = delete;

  [[nodiscard]] int Broken() const { return broken_; }

private:
  static int Look(unsigned /*event*/, void* self, void* statement, void* /*text*/)
  {
    auto& reads = *static_cast<BrokenReads*>(self);
    const QByteArray sql = sqlite3_sql(static_cast<sqlite3_stmt*>(statement));
    reads.written_ = reads.written_ || sql.startsWith("INSERT") || sql.startsWith("UPDATE");
    if (reads.written_ && sql.startsWith("SELECT")) {
      ++reads.broken_;
      sqlite3_interrupt(reads.connection_->Handle());
    }
    return 0;
  }

  std::shared_ptr<Connection> connection_;
  bool written_ = false;
  int broken_ = 0;
};

class EventEditorFaults : public CalendarTest
{
protected:
  // An event, and another that is about to be added or changed.
  void OpenAdding()
  {
    Store("Vet", "14:00:00");
    Open(kDay, Editor::kOpenAdd);
    FillAdd("Dentist", "9:30 am", "Bring the card");
  }
  void OpenChanging()
  {
    Store("Vet", "14:00:00");
    Open(kDay, Editor::kOpenEdit);
    ClickLine("lstChanges", 0);
    FillEdit("Dentist", "9:30 am", "Bring the card");
  }

  // The same editor goes on, once nothing stands in its way.
  void ExpectAddWorks()
  {
    Click(Editor::kAdd);
    EXPECT_EQ(Rows(), Lines({Row("Vet|14:00:00|-"), Row("Dentist|09:30:00|Bring the card")}));
    EXPECT_EQ(Cell(), " Dentist 9:30am| Vet 2:00pm");
  }
  void ExpectChangeWorks()
  {
    Click(Editor::kApply);
    EXPECT_EQ(Rows(), Lines({Row("Dentist|09:30:00|Bring the card")}));
    EXPECT_EQ(Cell(), " Dentist 9:30am");
  }

  // From outside, every change of that kind fails from now on, or is let through again.
  void Forbid(const QString& change) const
  {
    folder.Execute(
        QStringLiteral("CREATE TRIGGER Forbidden %1 ON Reminders BEGIN SELECT RAISE(ABORT, 'no'); END").arg(change));
  }
  void Allow() const { folder.Execute("DROP TRIGGER Forbidden"); }

  // As ExpectRefused, but the rows cannot be looked at meanwhile.
  void ExpectRefusedWhile(const char* held, const QString& command)
  {
    const Lines rows = Rows();
    const std::string shown = Everything();
    boxes.Expect(Editor::kBadTime);
    {
      const HeldDatabase holder(folder.DatabasePath(), held);
      Click(command);
    }
    EXPECT_EQ(boxes.Count(), 1U);
    EXPECT_EQ(Rows(), rows);
    EXPECT_EQ(Everything(), shown);
  }
};

}

TEST_F(EventEditorFaults, AStoreThatIsLockedAddsNothing)
{
  OpenAdding();
  ExpectRefusedWhile("BEGIN EXCLUSIVE", Editor::kAdd);
  ExpectAddWorks();
}

TEST_F(EventEditorFaults, AStoreThatCanOnlyBeReadAddsNothing)
{
  OpenAdding();
  ExpectRefusedWhile("BEGIN IMMEDIATE", Editor::kAdd);
  ExpectAddWorks();
}

TEST_F(EventEditorFaults, AStoreThatSomebodyReadsAddsNothing)
{
  OpenAdding();
  ExpectRefusedWhile("BEGIN; SELECT * FROM Reminders", Editor::kAdd);
  ExpectAddWorks();
}

TEST_F(EventEditorFaults, AStoreThatIsLockedChangesNothing)
{
  OpenChanging();
  ExpectRefusedWhile("BEGIN EXCLUSIVE", Editor::kApply);
  ExpectChangeWorks();
}

TEST_F(EventEditorFaults, AStoreThatCanOnlyBeReadChangesNothing)
{
  OpenChanging();
  ExpectRefusedWhile("BEGIN IMMEDIATE", Editor::kApply);
  ExpectChangeWorks();
}

TEST_F(EventEditorFaults, AStoreThatSomebodyReadsChangesNothing)
{
  OpenChanging();
  ExpectRefusedWhile("BEGIN; SELECT * FROM Reminders", Editor::kApply);
  ExpectChangeWorks();
}

TEST_F(EventEditorFaults, AStoreThatIsTakenAwayIsNotWritten)
{
  OpenAdding();
  ASSERT_TRUE(QFile::rename(folder.DatabasePath(), folder.File("/elsewhere")));
  boxes.Expect(Editor::kBadTime);
  const std::string shown = Everything();
  Click(Editor::kAdd);
  EXPECT_EQ(Everything(), shown);
  ASSERT_TRUE(QFile::rename(folder.File("/elsewhere"), folder.DatabasePath()));
  ExpectAddWorks();
}

TEST_F(EventEditorFaults, ADatabaseThatCannotGrowAddsNothing)
{
  OpenAdding();
  FillAdd("Dentist", "9:30 am", QString(500'000, u'n'));
  const auto connection = Connection::To(folder.DatabasePath());
  connection->Execute("PRAGMA max_page_count = 1");
  ExpectRefused(Editor::kAdd, Editor::kBadTime);
  connection->Execute("PRAGMA max_page_count = 1000000");
  FillAdd("Dentist", "9:30 am", "Bring the card");
  ExpectAddWorks();
}

TEST_F(EventEditorFaults, ADatabaseThatCannotGrowChangesNothing)
{
  OpenChanging();
  FillEdit("Dentist", "9:30 am", QString(500'000, u'n'));
  const auto connection = Connection::To(folder.DatabasePath());
  connection->Execute("PRAGMA max_page_count = 1");
  ExpectRefused(Editor::kApply, Editor::kBadTime);
  connection->Execute("PRAGMA max_page_count = 1000000");
  FillEdit("Dentist", "9:30 am", "Bring the card");
  ExpectChangeWorks();
}

TEST_F(EventEditorFaults, AFullDiskAddsNothing)
{
  OpenAdding();
  FillAdd("Dentist", "9:30 am", QString(500'000, u'n'));
  for (const rlim_t bytes : {rlim_t(100), rlim_t(5'000), rlim_t(100'000)}) {
    SCOPED_TRACE(bytes);
    const FullDisk full(bytes);
    ExpectRefused(Editor::kAdd, Editor::kBadTime);
  }
  FillAdd("Dentist", "9:30 am", "Bring the card");
  ExpectAddWorks();
}

TEST_F(EventEditorFaults, AFullDiskChangesNothing)
{
  OpenChanging();
  FillEdit("Dentist", "9:30 am", QString(500'000, u'n'));
  for (const rlim_t bytes : {rlim_t(100), rlim_t(5'000), rlim_t(100'000)}) {
    SCOPED_TRACE(bytes);
    const FullDisk full(bytes);
    ExpectRefused(Editor::kApply, Editor::kBadTime);
  }
  FillEdit("Dentist", "9:30 am", "Bring the card");
  ExpectChangeWorks();
}

TEST_F(EventEditorFaults, AWriteThatFailsAfterItsRowLeavesNoRow)
{
  OpenAdding();
  Forbid("AFTER INSERT");
  ExpectRefused(Editor::kAdd, Editor::kBadTime);
  Allow();
  ExpectAddWorks();
}

TEST_F(EventEditorFaults, AChangeThatFailsAfterItsRowLeavesTheRow)
{
  OpenChanging();
  Forbid("AFTER UPDATE");
  ExpectRefused(Editor::kApply, Editor::kBadTime);
  Allow();
  ExpectChangeWorks();
}

TEST_F(EventEditorFaults, AnAddWhoseOutcomeCannotBeReadIsTakenBack)
{
  OpenAdding();
  {
    const BrokenReads broken(folder.DatabasePath());
    ExpectRefused(Editor::kAdd, Editor::kBadTime);
    EXPECT_GT(broken.Broken(), 0);
  }
  ExpectAddWorks();
}

TEST_F(EventEditorFaults, AChangeWhoseOutcomeCannotBeReadIsTakenBack)
{
  OpenChanging();
  {
    const BrokenReads broken(folder.DatabasePath());
    ExpectRefused(Editor::kApply, Editor::kBadTime);
    EXPECT_GT(broken.Broken(), 0);
  }
  ExpectChangeWorks();
}

TEST_F(EventEditorFaults, ADeletionThatFailsEndsTheProgramAndDeletesNothing)
{
  for (const char* held : {"BEGIN EXCLUSIVE", "BEGIN IMMEDIATE"}) {
    SCOPED_TRACE(held);
    folder.Execute("DELETE FROM Reminders");
    Store("Dentist", "09:30:00");
    Open(kDay, Editor::kOpenDelete);
    ClickLine("lstDelete", 0);
    boxes.Expect("Run-time error '3260':\n\nThe database is locked by another program.");
    {
      const HeldDatabase holder(folder.DatabasePath(), held);
      Click(Editor::kDelete);
    }
    EXPECT_EQ(endings, ++expectedEndings);
    EXPECT_EQ(Rows(), Lines({Row("Dentist|09:30:00|-")}));
    Command::Run([] { Forms::Unload("frmCalEdit"); });
    DropUnloaded();
  }
}

TEST_F(EventEditorFaults, AStoreThatIsLockedEndsTheProgramWhereEventsAreListed)
{
  Store("Dentist");
  Open();
  for (const QString& command : {Editor::kOpenDelete, Editor::kOpenEdit}) {
    boxes.Expect("Run-time error '3260':\n\nThe database is locked by another program.");
    const HeldDatabase holder(folder.DatabasePath(), "BEGIN EXCLUSIVE");
    Click(command);
    EXPECT_EQ(endings, ++expectedEndings);
  }
}
