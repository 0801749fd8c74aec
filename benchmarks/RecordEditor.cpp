// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The editors with 100,000 people: its opening against bare SQLite calls, its steps
// and writes against themselves with 200, its search against a bare scan.

#include "BareFrame.h"
#include "Household.h"
#include "Measure.h"

#include "anniversaries/frmAnn.h"
#include "controls/Forms.h"
#include "looks/Style.h"
#include "people/AddressList.h"
#include "people/PersonRecords.h"
#include "people/RecordBoxes.h"
#include "people/frmNew.h"
#include "platform/App.h"
#include "platform/Application.h"
#include "platform/Command.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <limits>
#include <sqlite3.h>

namespace {

constexpr int kFew = 200;
constexpr int kMany = 100'000;
constexpr int kRuns = 15;

// A program's folder with so many people, and a page open on it.
class Editor
{
public:
  explicit Editor(int people, const char* page = "frmNew") : page_(QLatin1String(page))
  {
    App::SetPath(folder_.path());
    path_ = folder_.filePath(QStringLiteral("quillmark2002.mdb"));
    MakeHousehold(path_, people);
    QFile::copy(QStringLiteral(QUILLMARK_LAID_FOLDER "/months.txt"), folder_.filePath(QStringLiteral("months.txt")));
    QDir(folder_.path()).mkdir(QStringLiteral("PeoplePics"));
  }
  ~Editor() { Close(); }
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  void Open()
  {
    Command::Run([this] {
      form_ = &Forms::Load(page_);
      form_->Show();
    });
  }
  void Close()
  {
    if (form_ != nullptr) {
      Command::Run([this] { form_->Unload(); });
      form_ = nullptr;
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }
  void Push(const char* button)
  {
    Command::Run([&] { static_cast<QPushButton*>(form_->Control(QLatin1String(button)))->click(); });
  }
  [[nodiscard]] const QString& Path() const { return path_; }

private:
  QString page_;
  QTemporaryDir folder_;
  QString path_;
  Form* form_ = nullptr;
};

// What a list of people needs: names, keys and genders.
void ReadNames(const QString& path)
{
  sqlite3* handle = nullptr;
  sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(
      handle, "SELECT LastName || ', ' || FirstName, PeopleID, Gender FROM People ORDER BY LastName || FirstName", -1,
      &statement, nullptr);
  const auto text = [&](int column) {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)));
  };
  QStringList names;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    names.append(text(0));
    benchmark::DoNotOptimize(sqlite3_column_int64(statement, 1));
    benchmark::DoNotOptimize(sqlite3_column_text(statement, 2));
  }
  benchmark::DoNotOptimize(names.size());
  sqlite3_finalize(statement);
  sqlite3_close(handle);
}

void ScanForName(const QString& path)
{
  sqlite3* handle = nullptr;
  sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(handle, "SELECT PeopleID FROM People WHERE LastName || ', ' || FirstName = 'Nobody, At all'", -1,
                     &statement, nullptr);
  while (sqlite3_step(statement) == SQLITE_ROW) {
  }
  sqlite3_finalize(statement);
  sqlite3_close(handle);
}

void Opening(benchmark::State& state, const char* page)
{
  Editor editor(kMany, page);
  for (auto _ : state) {
    const double bare = MedianOf([&] { return SecondsFor([&] { ReadNames(editor.Path()); }); });
    const double open = MedianOf([&] {
      const double seconds = SecondsFor([&] { editor.Open(); });
      editor.Close();
      return seconds;
    });
    ReportRatio(state, open, bare, 3.0);
  }
}

double SecondsPerStep(int people, const std::function<void(Editor&)>& step)
{
  Editor editor(people);
  editor.Open();
  for (int i = 0; i < 2 * kRuns; ++i) {
    editor.Push("cmdNext");
  }
  const double seconds = MedianOf([&] { return SecondsFor([&] { step(editor); }); });
  editor.Close();
  return seconds;
}

void Step(benchmark::State& state, const char* button)
{
  const auto step = [&](Editor& editor) { editor.Push(button); };
  for (auto _ : state) {
    ReportRatio(state, SecondsPerStep(kMany, step), SecondsPerStep(kFew, step), 2.0);
  }
}

// The list of names, as it is rebuilt after each write.
void NameList(benchmark::State& state)
{
  const Editor editor(kMany);
  PersonRecords records;
  ComboBox box;
  AddressList list(box);
  for (auto _ : state) {
    const double bare = MedianOf([&] { return SecondsFor([&] { ReadNames(editor.Path()); }); });
    const double rebuilt = MedianOf([&] {
      Command::Run([&] {  // so that the order is found anew
        const auto person = records.Find(kFew);
        person->Edit();
        person->Fields(QStringLiteral("Notes")).SetValue(QStringLiteral("Changed"));
        person->Update();
      });
      return SecondsFor([&] { Command::Run([&] { list.Refresh(*records.OpenAddresses()); }); });
    });
    ReportRatio(state, rebuilt, bare, 3.0);
  }
}

double SecondsPerWrite(int people, const std::function<void(PersonRecords&, const RecordBoxes&)>& write)
{
  Editor editor(people);
  editor.Open();
  const RecordBoxes boxes(*Forms::Loaded(QStringLiteral("frmNew")));
  PersonRecords records;
  const double seconds = MedianOf([&] {
    return SecondsFor([&] {
      Command::Run([&] {
        records.Step(&Recordset::MoveNext);
        write(records, boxes);
      });
    });
  });
  editor.Close();
  return seconds;
}

// Finish and Delete but for the list.
void Write(benchmark::State& state, void (*write)(PersonRecords&, const RecordBoxes&))
{
  for (auto _ : state) {
    ReportRatio(state, SecondsPerWrite(kMany, write), SecondsPerWrite(kFew, write), 2.0);
  }
}

void Add(PersonRecords& records, const RecordBoxes& boxes)
{
  records.Add(boxes);
}

void Change(PersonRecords& records, const RecordBoxes& boxes)
{
  records.Change(boxes);
}

void Delete(PersonRecords& records, const RecordBoxes& /*boxes*/)
{
  records.Delete(records.CouplesOfCurrent());
}

// With all three tallies. Nothing limits it; the names are for comparison.
void Leaving(benchmark::State& state)
{
  Editor editor(kMany);
  for (auto _ : state) {
    const double bare = MedianOf([&] { return SecondsFor([&] { ReadNames(editor.Path()); }); });
    const double leave = MedianOf([&] {
      editor.Open();
      return SecondsFor([&] { editor.Close(); });
    });
    ReportRatio(state, leave, bare, std::numeric_limits<double>::infinity());
  }
}

void Search(benchmark::State& state)
{
  Editor editor(kMany);
  PersonRecords records;
  for (auto _ : state) {
    const double bare = MedianOf([&] { return SecondsFor([&] { ScanForName(editor.Path()); }); });
    const double found = MedianOf(
        [&] { return SecondsFor([&] { Command::Run([&] { records.FindName(QStringLiteral("nobody, at all")); }); }); });
    ReportRatio(state, found, bare, 2.0);
  }
}

}

BENCHMARK_CAPTURE(Opening, record_editor, "frmNew")->Iterations(1);
BENCHMARK_CAPTURE(Opening, couple_editor, "frmAnn")->Iterations(1);
BENCHMARK_CAPTURE(Step, first, "cmdFirst")->Iterations(1);
BENCHMARK_CAPTURE(Step, next, "cmdNext")->Iterations(1);
BENCHMARK_CAPTURE(Step, previous, "cmdPrevious")->Iterations(1);
BENCHMARK_CAPTURE(Step, last, "cmdLast")->Iterations(1);
BENCHMARK_CAPTURE(Write, add, Add)->Iterations(1);
BENCHMARK_CAPTURE(Write, change, Change)->Iterations(1);
BENCHMARK_CAPTURE(Write, delete, Delete)->Iterations(1);
BENCHMARK(NameList)->Iterations(1);
BENCHMARK(Leaving)->Iterations(1);
BENCHMARK(Search)->Iterations(1);

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  Style::Apply(application);
  const BareFrame frame;
  Forms::Register(QStringLiteral("frmAnn"), [] { return new frmAnn; });
  Forms::Register(QStringLiteral("frmNew"), [] { return new frmNew; });
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
