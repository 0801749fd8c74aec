// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Day.h"

#include "Dialogs.h"
#include "Hand.h"
#include "Wandering.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/modID.h"
#include "lookup/Letters.h"
#include "platform/Application.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "platform/HelpViewer.h"
#include "reminders/modTextNotices.h"
#include "shell/StartUp.h"
#include "shell/mdiQuillmark.h"
#include "support/HelpOnScreen.h"

#include <QAction>
#include <QClipboard>
#include <QDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace {

const QDate kFirstDay(2028, 2, 20);
constexpr int kLastYear = 2048;
constexpr int kRests = 10;     // in a day, the last at its end
constexpr int kWarmUp = 4000;  // actions, after which all pages have been open in all themes
constexpr int kMostWaysOut = 1000;
constexpr unsigned kPatience = 60;  // seconds for one action

// An action that does not end: where it is says more than that.
extern "C" void __sanitizer_print_stack_trace();
void TellOfHanging(int /*signal*/)
{
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_print_stack_trace();
#endif
  static constexpr char message[] = "An action does not end.\n";
  _exit(write(STDERR_FILENO, message, sizeof message - 1) > 0 ? EXIT_FAILURE : EXIT_FAILURE + 1);
}

}

Day::Day(unsigned seed, int actions, const QString& log)
    : chance_(seed), seed_(seed), actions_(actions), log_(log), household_(kFirstDay)
{
  if (!log_.open(QIODevice::WriteOnly | QIODevice::Text | QIODevice::Unbuffered)) {
    Fail(QStringLiteral("the log cannot be written"));
  }
  std::signal(SIGALRM, TellOfHanging);
  qApp->installEventFilter(this);
  Application::SetEnding([this](int) { Fail(QStringLiteral("the program has stopped")); });
  Clock::StopOn(kFirstDay);
  circumstances_.yearOfTally = kFirstDay.year();
  RegisterForms();
}

Day::~Day()
{
  Application::SetEnding({});
  Clock::StopOn({});
  Forms::UnregisterAll();
}

void Day::Run()
{
  QTimer::singleShot(0, this, &Day::Step);
  while (done_ < actions_ || resting_) {
    StartProgram();
    Application::exec();
  }
  frame_.reset();
  alarm(0);
  Summarise();
  TestGrowth();
}

// From the first rest after all has been open once to the last; a short day has none.
void Day::TestGrowth()
{
  const auto warm = std::find_if(rests_.begin(), rests_.end(), [](const auto& rest) { return rest.first >= kWarmUp; });
  const QString grown = warm == rests_.end() ? QString() : rests_.back().second.GrownSince(warm->second);
  if (!grown.isEmpty()) {
    Fail(grown);
  }
}

// What a new process begins with.
void Day::StartProgram()
{
  ++starts_;
  frame_.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  modTextNotices::ManualCheck = false;
  modID::SelectedPersonID = modID::CoupleSpouse1ID = modID::CoupleSpouse2ID = 0;
  errand_.clear();
  frame_ = std::make_unique<mdiQuillmark>();
  Say(QStringLiteral("the program starts"));
  Application::RunGuarded([this] { StartUp(*frame_); });
  Letters::TidyUp();
}

// While a box or a modal form waits in the midst of an action, the next ones go on in its event
// loop; an action that only lets events pass is not interrupted.
void Day::Step()
{
  if (!levels_.empty() && levels_.back() == QThread::currentThread()->loopLevel()) {
    QTimer::singleShot(1, this, &Day::Step);
    return;
  }
  if (frame_->HasEnded()) {
    QTimer::singleShot(0, this, &Day::Step);
    QCoreApplication::exit();
    return;
  }
  alarm(kPatience);
  QTimer::singleShot(0, this, &Day::Step);
  levels_.push_back(QThread::currentThread()->loopLevel());
  const Command::Pause pause;  // all that the user does is a command of its own
  Look();
  if (ShouldRest()) {
    ComeToRest();
  } else {
    ++done_;
    Act();
  }
  levels_.pop_back();
}

bool Day::ShouldRest() const
{
  return resting_ || done_ >= static_cast<int>(rests_.size() + 1) * actions_ / kRests;
}

QWidget* Day::WindowAtHand() const
{
  if (QWidget* modal = QApplication::activeModalWidget()) {
    return modal;
  }
  Form* notices = Forms::Loaded(QStringLiteral("frmTextNotice"));
  if (notices != nullptr && notices->isVisible() && frame_->isMinimized()) {
    return notices;
  }
  return frame_.get();
}

void Day::Act()
{
  if (QWidget* popup = QApplication::activePopupWidget()) {
    Say(QStringLiteral("in a popup"));
    Say(QStringLiteral("  ") + Wandering::InPopup(*popup, chance_));
    return;
  }
  QWidget& window = *WindowAtHand();
  QWidget* help = HelpOnScreen::Window();
  if (help != nullptr && chance_.OneIn(12)) {
    Say(QStringLiteral("help"));
    help->activateWindow();
    Say(QStringLiteral("  ") + Wandering::In(*help, chance_));
  } else if (&window == frame_.get()) {
    ActInFrame();
  } else {
    AnswerOrWander(window);
  }
}

void Day::AnswerOrWander(QWidget& window)
{
  Say(window.objectName() + QLatin1Char(' ') + QLatin1String(window.metaObject()->className()));
  if (auto* dialog = qobject_cast<QDialog*>(&window)) {
    Say(QStringLiteral("  ") + Dialogs::Answer(*dialog, chance_, household_));
  } else if (!errand_.empty() && !chance_.OneIn(12)) {
    FollowErrand();
  } else if (chance_.OneIn(30)) {
    Say(QStringLiteral("  closes it"));
    window.close();
  } else {
    Say(QStringLiteral("  ") + Wandering::In(window, chance_));
  }
}

void Day::ActInFrame()
{
  if (frame_->isMinimized()) {
    Say(QStringLiteral("restores the frame"));
    frame_->showNormal();
    frame_->activateWindow();
  } else if (!ActInTheWorld()) {
    if (errand_.empty() && chance_.OneIn(6)) {
      errand_ = Errands::Any(chance_, household_);
    }
    if (!errand_.empty() && !chance_.OneIn(12)) {
      FollowErrand();
    } else if (chance_.OneIn(8)) {
      auto& bar = *frame_->findChild<QMenuBar*>();
      Say(QStringLiteral("opens a menu"));
      Hand::ClickAt(bar, bar.actionGeometry(chance_.Of(bar.actions())).center());
    } else {
      Say(QStringLiteral("wanders"));
      Say(QStringLiteral("  ") + Wandering::In(*frame_, chance_));
    }
  }
}

void Day::FollowErrand()
{
  const Errands::Deed deed = errand_.front();
  errand_.pop_front();
  Say(QStringLiteral("errand %1 %2 %3")
          .arg(QLatin1String(deed.form), QLatin1String(deed.control), deed.text.left(40).simplified()));
  const QString done = Errands::Do(deed, *WindowAtHand(), *frame_, chance_);
  Say(QStringLiteral("  ") + (done.isEmpty() ? QStringLiteral("cannot be done") : done));
  if (done.isEmpty()) {
    errand_.clear();
  }
}

// True if something was done beside what the program asks its user for.
bool Day::ActInTheWorld()
{
  const int what = chance_.Below(1000);
  if (what < 10) {
    MoveClock();
  } else if (what < 24) {
    ResizeFrame();
  } else if (what < 32) {
    Say(QStringLiteral("waits"));
    QTest::qWait(chance_.Between(20, 700));
  } else if (what < 35) {
    Say(QStringLiteral("closes the frame"));
    frame_->close();
  } else {
    return false;
  }
  return true;
}

void Day::MoveClock()
{
  QDate day = Clock::Today().addDays(1);
  if (day.year() > kLastYear) {
    day = kFirstDay;
  } else if (chance_.OneIn(3)) {
    const std::vector<QDate> others = {QDate(day.year(), 2, 28), QDate(day.year(), 3, 1).addDays(-1),
                                       QDate(day.year(), 12, 31), QDate(day.year() + 1, 1, 1), day.addDays(40)};
    day = chance_.Of(others);
  }
  Say(QStringLiteral("it is ") + day.toString(Qt::ISODate));
  Clock::StopOn(day);
}

void Day::ResizeFrame()
{
  switch (chance_.Below(5)) {
    case 0:
      Say(QStringLiteral("minimises the frame"));
      frame_->showMinimized();
      break;
    case 1:
      Say(QStringLiteral("maximises the frame"));
      frame_->showMaximized();
      break;
    case 2:
      Say(QStringLiteral("restores the frame"));
      frame_->showNormal();
      break;
    default: {
      const QSize size(chance_.Between(300, 1280), chance_.Between(200, 1000));
      Say(QStringLiteral("resizes the frame to %1 x %2").arg(size.width()).arg(size.height()));
      frame_->resize(size);
    }
  }
}

// One way out at a time, until nothing but the main page stands.
void Day::ComeToRest()
{
  resting_ = true;
  if (++waysOut_ > kMostWaysOut) {
    Fail(QStringLiteral("there is no way to the main page"));
  }
  errand_.clear();
  Form* editor = Forms::Loaded(QStringLiteral("frmNew"));
  const auto cancels = [&](const char* panel, const char* command) {
    const bool shown = editor != nullptr && editor->Control(QLatin1String(panel))->isVisibleTo(editor);
    if (shown) {
      Hand::Click(*editor->Control(QLatin1String(command)));
    }
    return shown;
  };
  Say(QStringLiteral("comes to rest"));
  if (QWidget* popup = QApplication::activePopupWidget()) {
    Say(QStringLiteral("  a popup"));
    popup->close();
  } else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
    Say(QStringLiteral("  a dialog"));
    Hand::Press(*dialog, Qt::Key_Escape);
  } else if (QWidget* window = WindowAtHand(); window != frame_.get()) {
    Say(QStringLiteral("  a window ") + window->objectName());
    window->close();
  } else if (frame_->State() != WindowState::kNormal) {
    Say(QStringLiteral("  the frame"));
    frame_->showNormal();
  } else if (!cancels("fraAdd", "lblOptions_1") && !cancels("fraEdit", "lblOptions_4")) {
    Measure();
  }
}

// In one theme, since their pictures differ in size.
void Day::Measure()
{
  HelpViewer::Quit();
  frame_->findChild<QAction*>(QStringLiteral("mnuTheme_1"))->trigger();
  Application::RunGuarded([this] { frame_->OpenPage(QStringLiteral("frmIntro")); });
  frame_->resize(1024, 768);
  QGuiApplication::clipboard()->clear();
  QTest::qWait(1000);  // letters and timers are done by then
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QPixmapCache::clear();
  rests_.emplace_back(done_, Resources::Now());
  if (qEnvironmentVariableIsSet("QUILLMARK_LIST_HEAP")) {
    Resources::ListHeap();
  }
  Say(QStringLiteral("holds %1; %2 people, %3 couples, %4 events")
          .arg(rests_.back().second.Text())
          .arg(household_.Count("People"))
          .arg(household_.Count("Ann"))
          .arg(household_.Count("Reminders")));
  resting_ = false;
  waysOut_ = 0;
  if (done_ >= actions_) {
    frame_->close();
  }
}

// The tallies of people are those of the last leaving of their editor, which was a moment ago if
// it stood there at the last look.
void Day::FollowEditors()
{
  Form* editor = Forms::Loaded(QStringLiteral("frmNew"));
  if (editor == nullptr && editorIsOpen_) {
    circumstances_.yearOfTally = Clock::Today().year();
  } else if (editor != nullptr && !editorIsOpen_) {
    circumstances_.pictureMayStay = false;
    for (const char* command : {"cmdAddPic", "cmdDeletePic"}) {
      connect(&dynamic_cast<QPushButton&>(*editor->Control(QLatin1String(command))), &QPushButton::clicked, this,
              [this] { circumstances_.pictureMayStay = true; });
    }
  }
  editorIsOpen_ = editor != nullptr;
  circumstances_.remindersAreBeingSet = Forms::Loaded(QStringLiteral("frmNotice")) != nullptr;
  circumstances_.birthdaysAreCounted = !editorIsOpen_;
  circumstances_.weddingsAreCounted = !editorIsOpen_ && Forms::Loaded(QStringLiteral("frmAnn")) == nullptr;
}

void Day::Look()
{
  FollowEditors();
  const QStringList faults = household_.Faults(circumstances_);
  if (!faults.isEmpty()) {
    Fail(faults.join(QStringLiteral("; ")));
  }
}

bool Day::eventFilter(QObject* watched, QEvent* event)
{
  const auto* box = qobject_cast<QMessageBox*>(watched);
  if (box != nullptr && event->type() == QEvent::Show) {
    ++boxes_[box->text().simplified()];
    if (box->text().startsWith(QLatin1String("Run-time error"))) {
      Fail(box->text());
    }
  }
  return false;
}

void Day::Say(const QString& what)
{
  log_.write(QStringLiteral("%1 %2\n").arg(done_).arg(what).toUtf8());
}

void Day::Fail(const QString& why)
{
  Say(why);
  fprintf(stderr, "The day of seed %u failed at action %d: %s\nIts actions stand in %s.\n", seed_, done_,
          qUtf8Printable(why), qUtf8Printable(log_.fileName()));
  _exit(EXIT_FAILURE);
}

void Day::Summarise() const
{
  printf("seed %u: %d actions, %d starts, %d looks at changed tables\n%8s %s\n", seed_, done_, starts_,
         household_.Looks(), "action", qUtf8Printable(Resources::Heading()));
  for (const auto& [action, resources] : rests_) {
    printf("%8d %s\n", action, qUtf8Printable(resources.Text()));
  }
  for (auto box = boxes_.cbegin(); box != boxes_.cend(); ++box) {
    printf("%6d x %s\n", box.value(), qUtf8Printable(box.key()));
  }
  fflush(stdout);  // the search for leaks ends the process without that
}
