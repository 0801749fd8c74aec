// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/mdiQuillmark.h"

#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/modID.h"
#include "looks/modThemes.h"
#include "looks/modToolTips.h"
#include "platform/App.h"
#include "platform/Attempt.h"
#include "platform/Clock.h"
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

mdiQuillmark::mdiQuillmark() : ui_(std::make_unique<Ui::mdiQuillmark>()), tmrTimer_(this)
{
  ui_->setupUi(this);
  tmrTimer_.setObjectName(QStringLiteral("tmrTimer"));
  tmrTimer_.setInterval(kTimerMilliseconds);
  CollectMenu();
  ConnectControls();
  EnableMenu();
}

mdiQuillmark::~mdiQuillmark() = default;

void mdiQuillmark::CollectMenu()
{
  mnuLists_ = {ui_->mnuLists_0, ui_->mnuLists_1, ui_->mnuLists_2};
  mnuToolTips_ = {ui_->mnuToolTips_0, ui_->mnuToolTips_1};
  mnuTheme_ = {ui_->mnuTheme_0, ui_->mnuTheme_1, ui_->mnuTheme_2, ui_->mnuTheme_3, ui_->mnuTheme_4, ui_->mnuTheme_5};
  for (QMenu* menu : ui_->menuBar->findChildren<QMenu*>()) {
    menu->menuAction()->setObjectName(menu->objectName());
  }
}

void mdiQuillmark::ConnectControls()
{
  connect(&tmrTimer_, &QTimer::timeout, this, &Clips::FollowClip);
  for (int index = 0; index < 3; ++index) {
    connect(mnuLists_[static_cast<std::size_t>(index)], &QAction::triggered, this,
            [=, this] { mnuLists_Click(index); });
  }
  for (int index = 0; index < 2; ++index) {
    connect(mnuToolTips_[static_cast<std::size_t>(index)], &QAction::triggered, this,
            [=, this] { mnuToolTips_Click(index); });
  }
  for (int index = 0; index < modThemes::kThemeCount; ++index) {
    connect(mnuTheme_[static_cast<std::size_t>(index)], &QAction::triggered, this,
            [=, this] { mnuTheme_Click(index); });
  }
  ConnectForm(ui_->mnuAutostart, "frmAutoStart", false);
  ConnectForm(ui_->mnuSetReminders, "frmNotice", false);
  ConnectForm(ui_->mnuAbout, "frmAbout", false);
  ConnectForm(ui_->mnuPersonal, "frmNew", true);
  connect(ui_->mnuReminderCheck, &QAction::triggered, this, [] { modTextNotices::CheckReminders(true); });
  connect(ui_->mnuAnn, &QAction::triggered, this, &mdiQuillmark::mnuAnn_Click);
}

void mdiQuillmark::ConnectForm(QAction* action, const char* form, bool isPage)
{
  const QString name = QLatin1String(form);
  connect(action, &QAction::triggered, this, [=, this] { isPage ? OpenPage(name) : Forms::Load(name).ShowModal(); });
}

void mdiQuillmark::EnableMenu()
{
  const std::pair<QAction*, const char*> entries[] = {
      {ui_->mnuLists_0, "frmQuillmark"},
      {ui_->mnuLists_1, "frmSpecial"},
      {ui_->mnuLists_2, "frmPrintCal"},
      {ui_->mnuAutostart, "frmAutoStart"},
      {ui_->mnuSetReminders, "frmNotice"},
      {ui_->mnuPersonal, "frmNew"},
      {ui_->mnuAnn, "frmAnn"},
      {ui_->mnuAbout, "frmAbout"},
  };
  for (const auto& [action, form] : entries) {
    action->setEnabled(Forms::IsKnown(QLatin1String(form)));
  }
}

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
  store_ = std::make_unique<Store>();
  if (!PassGuards()) {
    Unload();
    return;
  }
  WarnOfResolution();
  RestoreState();
  setWindowIcon(LoadPicture(App::File(QStringLiteral("/animp.ico"))));
  Centre();
  MarkTheme(Options::Required(*store_->theme, QStringLiteral("Theme")).toInt());
  modToolTips::SetTipsOff(Options::Required(*store_->toolTips, QStringLiteral("ToolTips")).toBool());
  MarkTips();
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

void mdiQuillmark::MarkTheme(int theme)
{
  if (theme < 0 || theme >= modThemes::kThemeCount) {
    throw RuntimeError(ErrorNumber::kNoSuchElement,
                       QStringLiteral("Control array element '%1' doesn't exist").arg(theme));
  }
  for (int index = 0; index < modThemes::kThemeCount; ++index) {
    mnuTheme_[static_cast<std::size_t>(index)]->setChecked(index == theme);
  }
}

void mdiQuillmark::MarkTips()
{
  mnuToolTips_[0]->setChecked(modToolTips::TipsOff());
  mnuToolTips_[1]->setChecked(!modToolTips::TipsOff());
}

WindowState mdiQuillmark::State() const
{
  if (isMinimized()) {
    return WindowState::kMinimised;
  }
  return isMaximized() ? WindowState::kMaximised : WindowState::kNormal;
}

// Whoever touches the frame first has it loaded, so that its load cannot undo what is set.
void mdiQuillmark::SetState(WindowState state)
{
  Load();
  if (ended_) {
    RaiseError(ErrorNumber::kObjectUnloaded);
  }
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

bool mdiQuillmark::TimerEnabled() const
{
  return tmrTimer_.isActive();
}

void mdiQuillmark::SetTimerEnabled(bool enabled)
{
  if (enabled) {
    tmrTimer_.start();
  } else {
    tmrTimer_.stop();
  }
}

void mdiQuillmark::resizeEvent(QResizeEvent* event)
{
  QMainWindow::resizeEvent(event);
  const QSize allowed(AtLeast(width(), kSmallestWidth), AtLeast(height(), kSmallestHeight));
  if (State() == WindowState::kNormal && allowed != size()) {
    resize(allowed);
  }
}

// A page that was sized while the frame was minimised is fitted when that comes back.
void mdiQuillmark::changeEvent(QEvent* event)
{
  QMainWindow::changeEvent(event);
  QWidget* page = ui_->pages->currentWidget();
  if (event->type() == QEvent::WindowStateChange && page != nullptr && State() != WindowState::kMinimised) {
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
  QCoreApplication::quit();
  return true;
}

bool mdiQuillmark::QueryUnload()
{
  if (PageSwitch::RefuseWhileEditing()) {
    return false;
  }
  SetTimerEnabled(false);
  MediaDevice::Close();
  WriteState();
  return true;
}

void mdiQuillmark::WriteState() const
{
  if (State() == WindowState::kMinimised) {
    return;
  }
  Options::Write(QStringLiteral("WindowState"), State() == WindowState::kMaximised);
}

void mdiQuillmark::mnuLists_Click(int index)
{
  static constexpr std::array kPages = {"frmQuillmark", "frmSpecial", "frmReminders"};
  const QString page = QLatin1String(kPages[static_cast<std::size_t>(index)]);
  if (!PageSwitch::OpenPage(page)) {
    return;
  }
  if (index == 2) {
    modThemes::SetCalendarHasPicture(true);
    Forms::Load(QStringLiteral("frmPrintCal")).ShowModal();
  } else if (QWidget* panel = Forms::Load(page).Control(QStringLiteral("fraPrint"))) {
    panel->show();
  }
}

void mdiQuillmark::mnuAnn_Click()
{
  if (PageSwitch::OpenPage(QStringLiteral("frmAnn"))) {
    modID::SelectedPersonID = 0;
  }
}

void mdiQuillmark::mnuToolTips_Click(int index)
{
  mnuToolTips_[0]->setChecked(index == 0);
  mnuToolTips_[1]->setChecked(index == 1);
  modToolTips::Choose(index == 0);
}

void mdiQuillmark::mnuTheme_Click(int index)
{
  modThemes::Choose(index);
  MarkTheme(index);
  modThemes::ApplyTheme();
}
