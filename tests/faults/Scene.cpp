// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Scene.h"

#include "controls/EntryBox.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "platform/Application.h"
#include "platform/Command.h"
#include "shell/StartUp.h"
#include "support/Drive.h"
#include "support/Hands.h"

#include <QAction>

#include <stdexcept>

Scene::Scene(const ProgramFolder& folder) : folder_(folder)
{
  Application::RunGuarded([this] { StartUp(frame_); });
  QCoreApplication::processEvents();
}

QWidget& Scene::Page(const QString& name)
{
  Form* page = Forms::Loaded(name);
  if (page == nullptr) {
    throw std::runtime_error("no page " + name.toStdString());
  }
  return *page;
}

void Scene::Choose(const QString& menuEntry)
{
  auto* action = frame_.findChild<QAction*>(menuEntry);
  if (action == nullptr || !action->isEnabled()) {
    throw std::runtime_error("no menu entry " + menuEntry.toStdString());
  }
  Application::RunGuarded([action] { action->trigger(); });
}

void Scene::Click(QWidget& page, const QString& control)
{
  Drive::Click(page, control);
}

void Scene::Type(QWidget& page, const QString& box, const QString& text)
{
  QWidget& control = Drive::Control(page, box);
  control.setFocus();
  QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&control, Qt::Key_Delete);
  QTest::keyClicks(&control, text);
}

void Scene::Press(QWidget& page, const QString& control, Qt::Key key)
{
  QTest::keyClick(&Drive::Control(page, control), key);
}

void Scene::Tick(QWidget& page, const QString& button)
{
  Hands::Tick(Drive::Control(page, button));
}

void Scene::Pick(QWidget& page, const QString& combo, const QString& line)
{
  Hands::PickLine(dynamic_cast<ComboBox&>(Drive::Control(page, combo)), line);
}

void Scene::ClickLine(QWidget& page, const QString& list, const QString& line)
{
  auto& box = dynamic_cast<ListBox&>(Drive::Control(page, list));
  Hands::ClickLine(box, static_cast<int>(Hands::LinesOf(box).indexOf(line)));
}

void Scene::ChoosePicture(QWidget& page, const QColor& colour)
{
  const QString path = folder_.File(QStringLiteral("/chosen.png"));
  Hands::SavePicture(path, colour);
  dialogs_.ExpectChoice(path);
  Click(page, QStringLiteral("cmdAddPic"));
}
