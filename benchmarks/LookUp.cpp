// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The look-up page with 100,000 people: opening and reordering against the names and keys
// read in order by bare SQLite calls, a click on a name against itself with 200.

#include "BareFrame.h"
#include "Household.h"
#include "Measure.h"

#include "controls/Forms.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "looks/Style.h"
#include "lookup/frmQuillmark.h"
#include "platform/App.h"
#include "platform/Application.h"
#include "platform/Command.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QTemporaryDir>

#include <sqlite3.h>

namespace {

constexpr int kFew = 200;
constexpr int kMany = 100'000;

// A program's folder with so many people.
class People
{
public:
  explicit People(int people) : path_(folder_.filePath(QStringLiteral("quillmark2002.mdb")))
  {
    App::SetPath(folder_.path());
    MakeHousehold(path_, people);
  }
  ~People() { Close(); }
  People(const People&) = delete;
  People& operator=(const People&) = delete;

  void Open()
  {
    Command::Run([this] {
      form_ = &Forms::Load(QStringLiteral("frmQuillmark"));
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
  template <typename Control>
  Control& Get(const char* name)
  {
    return *static_cast<Control*>(form_->Control(QLatin1String(name)));
  }
  [[nodiscard]] const QString& Path() const { return path_; }

private:
  QTemporaryDir folder_;
  QString path_;
  Form* form_ = nullptr;
};

void ReadNames(const QString& path)
{
  sqlite3* handle = nullptr;
  sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(handle, "SELECT FirstName || ' ' || LastName, PeopleID FROM People ORDER BY FirstName || LastName",
                     -1, &statement, nullptr);
  QStringList names;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    names.append(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0))));
    benchmark::DoNotOptimize(sqlite3_column_int64(statement, 1));
  }
  benchmark::DoNotOptimize(names.size());
  sqlite3_finalize(statement);
  sqlite3_close(handle);
}

double SecondsToReadNames(const People& people)
{
  return MedianOf([&] { return SecondsFor([&] { ReadNames(people.Path()); }); });
}

void Opening(benchmark::State& state)
{
  People people(kMany);
  for (auto _ : state) {
    const double open = MedianOf([&] {
      const double seconds = SecondsFor([&] { people.Open(); });
      people.Close();
      return seconds;
    });
    ReportRatio(state, open, SecondsToReadNames(people), 3.0);
  }
}

void Reordering(benchmark::State& state)
{
  People people(kMany);
  people.Open();
  for (auto _ : state) {
    int order = 0;
    const double reorder = MedianOf([&] {
      auto& label = people.Get<Label>(++order % 2 == 0 ? "lblNames_0" : "lblNames_1");
      return SecondsFor([&] { Command::Run([&] { Q_EMIT label.Click(); }); });
    });
    ReportRatio(state, reorder, SecondsToReadNames(people), 3.0);
  }
}

double SecondsPerClick(int count)
{
  People people(count);
  people.Open();
  for (const char* box : {"chkInfo_0", "chkInfo_2", "chkPersonal_0", "chkNotes"}) {
    people.Get<QCheckBox>(box).setChecked(true);
  }
  auto& list = people.Get<ListBox>("lstNames");
  int line = 0;
  return MedianOf([&] {
    line = (line + count / 3 + 1) % count;
    return SecondsFor([&] { Command::Run([&] { list.SetListIndex(line); }); });
  });
}

void Click(benchmark::State& state)
{
  for (auto _ : state) {
    ReportRatio(state, SecondsPerClick(kMany), SecondsPerClick(kFew), 2.0);
  }
}

}

BENCHMARK(Opening)->Iterations(1);
BENCHMARK(Reordering)->Iterations(1);
BENCHMARK(Click)->Iterations(1);

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  Style::Apply(application);
  const BareFrame frame;
  Forms::Register(QStringLiteral("frmQuillmark"), [] { return new frmQuillmark; });
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
