// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/mdiQuillmark.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "looks/modToolTips.h"
#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
#include "platform/Command.h"
#include "platform/HelpViewer.h"
#include "platform/LoadPicture.h"
#include "platform/MediaDevice.h"
#include "platform/MsgBox.h"
#include "platform/Screen.h"
#include "platform/Twips.h"
#include "reminders/Clips.h"
#include "reminders/modTextNotices.h"
#include "shell/PageSwitch.h"
#include "store/DBEngine.h"
#include "store/Options.h"
#include "ui_mdiQuillmark.h"

#include <QCloseEvent>
#include <QThread>

#include <algorithm>

namespace {

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2050;
constexpr int kPoorScreenPixels = 640;

// A frame below the smallest size is set to a little more, so that it does not
// stand on the threshold itself.
constexpr int kSmallestWidth = 11500;
constexpr int kSmallestHeight = 9085;
constexpr int kGap = 5;

constexpr int kTimerMilliseconds = 1000;

bool IsYearToRunIn()
{
  const int year = Clock::Today().year();
  return year >= kFirstYear && year <= kLastYear;
}

std::unique_ptr<Ui::mdiQuillmark> MakeDesign(mdiQuillmark& frame)
{
  auto design = std::make_unique<Ui::mdiQuillmark>();
  design->setupUi(&frame);
  return design;
}

int AtLeast(int pixels, int smallestTwips)
{
  return TwipsFromPixels(pixels) < smallestTwips ? PixelsFromTwips(smallestTwips + kGap) : pixels;
}

}

struct mdiQuillmark::Store
{
  Database database = DBEngine::OpenDatabase();
  std::unique_ptr<Recordset> theme = Options::Open(database);
  std::unique_ptr<Recordset> windowState = Options::Open(database);
  std::unique_ptr<Recordset> toolTips = Options::Open(database);
};

mdiQuillmark::mdiQuillmark() : ui_(MakeDesign(*this)), menu_(*ui_), tmrTimer_(this)
{
  tmrTimer_.setObjectName(QStringLiteral("tmrTimer"));
  tmrTimer_.setInterval(kTimerMilliseconds);
  connect(&tmrTimer_, &QTimer::timeout, this, &Clips::FollowClip);
}

mdiQuillmark::~mdiQuillmark() = default;

void mdiQuillmark::Initialise()
{
  if (IsYearToRunIn()) {
    modTextNotices::CheckReminders(false);
  }
}

void mdiQuillmark::Load()
{
  if (loaded_ || ended_) {
    return;
  }
  if (!guarded_) {
    store_ = std::make_unique<Store>();
    guarded_ = true;
    if (!PassGuards()) {
      Unload();
      return;
    }
    WarnOfResolution();
  }
  RestoreState();
  setWindowIcon(LoadPicture(App::File(QStringLiteral("/animp.ico"))));
  Centre();
  menu_.MarkTheme(Options::Required(*store_->theme, QStringLiteral("Theme")).toInt());
  modToolTips::SetTipsOff(Options::Required(*store_->toolTips, QStringLiteral("ToolTips")).toBool());
  menu_.MarkTips();
  store_.reset();  // the file is to be free for compaction
  loaded_ = true;
}

bool mdiQuillmark::PassGuards()
{
  if (!IsYearToRunIn()) {
    MsgBox(QStringLiteral("Sorry, but Quillmark will not operate at your current PC date setting."));
    return false;
  }
  if (App::PrevInstance()) {
    MsgBox(QStringLiteral("Sorry, but Quillmark is already running. You can't open it a second time."));
    return false;
  }
  return true;
}

void mdiQuillmark::WarnOfResolution() const
{
  if (Screen::Width() / Screen::TwipsPerPixelX() == kPoorScreenPixels) {
    MsgBox(
        QStringLiteral("Quillmark may not function as expected at your current screen resolution of "
                       "640 x 480 pixels. Please increase the resolution."));
  }
}

void mdiQuillmark::RestoreState()
{
  const QVariant maximised = store_->windowState->Fields(QStringLiteral("WindowState")).Value();
  if (!maximised.isNull()) {
    setWindowState(maximised.toBool() ? Qt::WindowMaximized : Qt::WindowNoState);
  }
}

void mdiQuillmark::Centre()
{
  move(PixelsFromTwips(Screen::CentredLeft(TwipsFromPixels(width()))),
       PixelsFromTwips(Screen::CentredTop(TwipsFromPixels(height()))));
}

WindowState mdiQuillmark::State() const
{
  if (isMinimized()) {
    return WindowState::kMinimised;
  }
  return isMaximized() ? WindowState::kMaximised : WindowState::kNormal;
}

// Whoever touches the frame first has it loaded, so that its load cannot undo what is set.
void mdiQuillmark::MustBeLoaded()
{
  Load();
  if (ended_) {
    RaiseError(ErrorNumber::kObjectUnloaded);
  }
}

void mdiQuillmark::SetState(WindowState state)
{
  MustBeLoaded();
  switch (state) {
    case WindowState::kMinimised:
      showMinimized();
      break;
    case WindowState::kMaximised:
      showMaximized();
      break;
    case WindowState::kNormal:
      showNormal();
      break;
  }
}

void mdiQuillmark::PlacePage(Form& page)
{
  if (ui_->pages->indexOf(&page) < 0) {
    ui_->pages->addWidget(&page);
  }
  ui_->pages->setCurrentWidget(&page);
  page.show();
}

void mdiQuillmark::OpenPage(const QString& name)
{
  PageSwitch::OpenPage(name);
}

void mdiQuillmark::AllowDatabaseCare(bool allowed)
{
  careAllowed_ = allowed;
  ui_->mnuBackup->setEnabled(allowed);
  EnableCompaction();
}

void mdiQuillmark::AllowCompaction(bool allowed)
{
  compactionAllowed_ = allowed;
  EnableCompaction();
}

void mdiQuillmark::EnableCompaction()
{
  ui_->mnuCompact->setEnabled(careAllowed_ && compactionAllowed_);
}

bool mdiQuillmark::TimerEnabled() const
{
  return tmrTimer_.isActive();
}

void mdiQuillmark::SetTimerEnabled(bool enabled)
{
  if (enabled) {
    MustBeLoaded();
    tmrTimer_.start();
  } else {
    tmrTimer_.stop();
  }
}

// What the desktop puts around the frame is part of its size on a screen that has no room
// for it besides.
QSize mdiQuillmark::CountedDecoration() const
{
  const QSize around = frameGeometry().size() - size();
  const QSize needed = QSize(PixelsFromTwips(kSmallestWidth + kGap), PixelsFromTwips(kSmallestHeight + kGap)) + around;
  const QSize screen(PixelsFromTwips(Screen::Width()), PixelsFromTwips(Screen::Height()));
  return needed.boundedTo(screen) == needed ? QSize(0, 0) : around;
}

QSize mdiQuillmark::Allowed(const QSize& size) const
{
  const QSize around = CountedDecoration();
  const QSize whole = size + around;
  return QSize(AtLeast(whole.width(), kSmallestWidth), AtLeast(whole.height(), kSmallestHeight)) - around;
}

void mdiQuillmark::resizeEvent(QResizeEvent* event)
{
  QMainWindow::resizeEvent(event);
  const QSize allowed = Allowed(size());
  if (State() == WindowState::kNormal && allowed != size()) {
    resize(allowed);
  }
}

// The desktop tells its decoration once the frame stands on the screen.
void mdiQuillmark::moveEvent(QMoveEvent* event)
{
  QMainWindow::moveEvent(event);
  FitToSmallScreen();
}

void mdiQuillmark::FitToSmallScreen()
{
  if (fitted_ || !isVisible() || State() != WindowState::kNormal || CountedDecoration().isNull()) {
    return;
  }
  fitted_ = true;
  resize(Allowed({}));
  move(std::max(0, PixelsFromTwips(Screen::CentredLeft(TwipsFromPixels(frameGeometry().width())))),
       std::max(0, PixelsFromTwips(Screen::CentredTop(TwipsFromPixels(frameGeometry().height())))));
}

// A page that was sized while the frame was minimised is fitted when that comes back.
void mdiQuillmark::changeEvent(QEvent* event)
{
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || State() == WindowState::kMinimised) {
    return;
  }
  if (QWidget* page = ui_->pages->currentWidget()) {
    QResizeEvent resized(page->size(), page->size());
    QCoreApplication::sendEvent(page, &resized);
  }
}

void mdiQuillmark::closeEvent(QCloseEvent* event)
{
  event->setAccepted(Unload());
}

bool mdiQuillmark::Unload()
{
  if (ended_) {
    return true;
  }
  if (!QueryUnload()) {
    return false;
  }
  ended_ = true;
  for (Form* form : Forms::AllLoaded()) {
    form->Unload();
  }
  hide();
  store_.reset();
  if (QThread::currentThread()->loopLevel() > 0) {
    QCoreApplication::exit(EXIT_SUCCESS);  // not quit, which would ask every window once more
  }
  return true;
}

bool mdiQuillmark::QueryUnload()
{
  if (PageSwitch::RefuseWhileEditing()) {
    return false;
  }
  Database database = DBEngine::OpenDatabase();
  const auto options = Options::Open(database);
  tmrTimer_.stop();
  HelpViewer::Quit();
  MediaDevice::Close();
  WriteState(*options);
  Command::Settle();  // what fails as the pages go does not take it back
  return true;
}

void mdiQuillmark::WriteState(Recordset& options) const
{
  if (State() == WindowState::kMinimised) {
    return;
  }
  options.Edit();
  options.Fields(QStringLiteral("WindowState")).SetValue(State() == WindowState::kMaximised);
  options.Update();
}
