// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Every page by keyboard alone, and as a screen reader tells it.

#include "ShellTest.h"

#include "platform/Command.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAbstractSpinBox>

#include <set>

namespace {

struct View
{
  const char* page;
  std::vector<const char*> opened;  // commands that open a panel on it

  friend void PrintTo(const View& view, std::ostream* out)
  {
    *out << view.page;
    for (const char* command : view.opened) {
      *out << ' ' << command;
    }
  }
};

std::string Told(const QWidget& widget)
{
  return widget.objectName().toStdString() + " (" + widget.metaObject()->className() + ")";
}

// What a user meets: the parts of a combo box, a scroll area or a list belong to it.
bool IsControl(const QWidget& widget)
{
  return widget.focusPolicy() != Qt::NoFocus && !widget.objectName().isEmpty() &&
         !widget.objectName().startsWith(QLatin1String("qt_"));
}

class PagesByKeyboard : public ShellTest, public testing::WithParamInterface<View>
{
protected:
  PagesByKeyboard()
  {
    folder.Execute(
        "INSERT INTO People (FirstName, LastName, Gender, BirthMonth, BirthDate, BirthYear) VALUES "
        "('Ann', 'Adams', 'Female', 'May', '5', '1980'), ('Bob', 'Adams', 'Male', 'May', '9', '1981');"
        "INSERT INTO Ann (Spouse1ID, Spouse1First, Spouse2ID, Spouse2First, AnnMonth, AnnDate) VALUES "
        "(1, 'Ann', 2, 'Bob', 'May', '7');"
        "INSERT INTO Reminders (Month, Date, Event) VALUES ('May', '2026-05-06', 'Dentist');");
    Start();
  }

  Form& Open()
  {
    const QString name = QLatin1String(GetParam().page);
    Command::Run([&] { Forms::Load(name).Show(); });
    Form& form = *Forms::Loaded(name);
    form.window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.window()));
    for (const char* command : GetParam().opened) {
      Drive::Click(form, QLatin1String(command));
    }
    QCoreApplication::processEvents();
    return form;
  }

  static std::vector<QWidget*> Controls(const Form& form)
  {
    std::vector<QWidget*> controls;
    for (QWidget* widget : form.findChildren<QWidget*>()) {
      if (IsControl(*widget)) {
        controls.push_back(widget);
      }
    }
    return controls;
  }

  // Which of a group of options the focus comes to is not the point.
  static bool IsOtherOption(const QWidget& widget)
  {
    const auto* option = qobject_cast<const QAbstractButton*>(&widget);
    return option != nullptr && option->autoExclusive() && option->isCheckable();
  }

  static std::set<const QWidget*> WalkByTab(const Form& form)
  {
    constexpr int kEnough = 400;
    std::set<const QWidget*> reached;
    for (int presses = 0; presses < kEnough; ++presses) {
      QTest::keyClick(form.window(), Qt::Key_Tab);
      const QWidget* focus = QApplication::focusWidget();
      for (; focus != nullptr && !IsControl(*focus); focus = focus->parentWidget()) {
      }
      reached.insert(focus);
    }
    return reached;
  }
};

}

TEST_P(PagesByKeyboard, TellEachControlByNameAndRole)
{
  const Form& form = Open();
  for (QWidget* widget : Controls(form)) {
    if (!widget->isVisible()) {
      continue;
    }
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(told, nullptr) << Told(*widget);
    EXPECT_FALSE(told->text(QAccessible::Name).trimmed().isEmpty()) << Told(*widget);
    EXPECT_NE(told->role(), QAccessible::NoRole) << Told(*widget);
    EXPECT_NE(told->role(), QAccessible::StaticText) << Told(*widget);
    EXPECT_NE(told->role(), QAccessible::Client) << Told(*widget);
    if (const auto* label = qobject_cast<const Label*>(widget); label != nullptr && label->IsCommand()) {
      EXPECT_EQ(told->role(), QAccessible::Button) << Told(*widget);
    }
  }
}

TEST_P(PagesByKeyboard, AreWalkedThroughByTab)
{
  const Form& form = Open();
  const auto reached = WalkByTab(form);
  for (const QWidget* widget : Controls(form)) {
    if (widget->isVisible() && widget->isEnabled() && !IsOtherOption(*widget)) {
      EXPECT_TRUE(reached.contains(widget)) << Told(*widget);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Each, PagesByKeyboard,
                         testing::Values(View{"frmIntro", {}}, View{"frmNew", {}}, View{"frmNew", {"lblOptions_6"}},
                                         View{"frmNew", {"lblOptions_7"}}, View{"frmAnn", {}}, View{"frmQuillmark", {}},
                                         View{"frmSpecial", {}}, View{"frmSpecial", {"lblOptions_1"}},
                                         View{"frmSpecial", {"lblOptions_4"}}, View{"frmSpecial", {"lblOptions_5"}},
                                         View{"frmSpecial", {"lblOptions_6"}}, View{"frmCharts", {}},
                                         View{"frmReminders", {}}),
                         [](const testing::TestParamInfo<View>& view) {
                           std::string name = view.param.page;
                           for (const char* command : view.param.opened) {
                             name += std::string("With") + command;
                           }
                           std::erase(name, '_');
                           return name;
                         });
