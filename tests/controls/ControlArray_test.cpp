// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ControlArray.h"
#include "controls/Label.h"
#include "controls/ListBox.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QSignalSpy>
#include <QTest>

namespace {

template <typename T>
T& Add(QWidget& parent, const QString& name)
{
  auto* control = new T(&parent);
  control->setObjectName(name);
  control->resize(100, 20);
  return *control;
}

template <typename T>
std::vector<int> IndexesOf(const ControlArray<T>& array)
{
  std::vector<int> indexes;
  for (const auto& [index, element] : array.All()) {
    indexes.push_back(index);
  }
  return indexes;
}

template <typename T>
std::pair<int, QString> FailureAt(const ControlArray<T>& array, int index)
{
  try {
    static_cast<void>(array[index]);
  } catch (const RuntimeError& error) {
    return {error.Number(), error.Text()};
  }
  return {0, {}};
}

}

TEST(ControlArray, ElementsAreFoundByTheirIndex)
{
  QWidget form;
  Label& second = Add<Label>(form, QStringLiteral("lblOptions_1"));
  Label& first = Add<Label>(form, QStringLiteral("lblOptions_0"));
  Label& eleventh = Add<Label>(form, QStringLiteral("lblOptions_10"));
  ControlArray<Label> array;
  array.Collect(form, QStringLiteral("lblOptions"));
  EXPECT_EQ(&array[0], &first);
  EXPECT_EQ(&array[1], &second);
  EXPECT_EQ(&array[10], &eleventh);
}

TEST(ControlArray, BoundsAndGapsAreKept)
{
  QWidget form;
  for (const char* name : {"lblDay_7", "lblDay_2", "lblDay_4"}) {
    Add<Label>(form, QString::fromLatin1(name));
  }
  ControlArray<Label> array;
  array.Collect(form, QStringLiteral("lblDay"));
  EXPECT_EQ(array.LBound(), 2);
  EXPECT_EQ(array.UBound(), 7);
  EXPECT_EQ(IndexesOf(array), (std::vector<int>{2, 4, 7}));
}

TEST(ControlArray, ElementsMayStandInsideOtherControls)
{
  QWidget form;
  auto& panel = Add<QWidget>(form, QStringLiteral("fraTools"));
  Label& inner = Add<Label>(panel, QStringLiteral("lblOptions_3"));
  ControlArray<Label> array;
  array.Collect(form, QStringLiteral("lblOptions"));
  EXPECT_EQ(&array[3], &inner);
}

TEST(ControlArray, OnlyElementsOfTheNameAndKindAreTaken)
{
  QWidget form;
  for (const char* name : {"lblOptions_0", "lblOptions", "lblOptionsText_1", "lblOptions_x", "lbl_2", "lblPersons_3"}) {
    Add<Label>(form, QString::fromLatin1(name));
  }
  Add<ListBox>(form, QStringLiteral("lblOptions_4"));
  ControlArray<Label> array;
  array.Collect(form, QStringLiteral("lblOptions"));
  EXPECT_EQ(IndexesOf(array), std::vector<int>{0});
}

TEST(ControlArray, MissingElementIsAFailureThatNamesTheIndex)
{
  QWidget form;
  Add<Label>(form, QStringLiteral("lblOptions_0"));
  Add<Label>(form, QStringLiteral("lblOptions_2"));
  ControlArray<Label> array;
  array.Collect(form, QStringLiteral("lblOptions"));
  for (const int index : {-1, 1, 3}) {
    const auto [number, text] = FailureAt(array, index);
    EXPECT_EQ(number, 340);
    EXPECT_EQ(text.toStdString(), "Control array element '" + std::to_string(index) + "' doesn't exist");
  }
  EXPECT_EQ(FailureAt(array, 2).first, 0);
}

TEST(ControlArray, EmptyArrayHasNoElements)
{
  ControlArray<Label> array;
  array.Collect(QWidget(), QStringLiteral("lblOptions"));
  EXPECT_EQ(array.LBound(), 0);
  EXPECT_EQ(array.UBound(), -1);
  EXPECT_EQ(FailureAt(array, 0).first, 340);
}

TEST(ControlArray, ClickOnAnElementTellsItsIndex)
{
  QWidget form;
  Label& first = Add<Label>(form, QStringLiteral("lblOptions_1"));
  Label& second = Add<Label>(form, QStringLiteral("lblOptions_5"));
  ControlArray<Label> array;
  array.Collect(form, QStringLiteral("lblOptions"));
  const QSignalSpy clicks(&array, &ControlArraySignals::Click);
  QTest::mouseClick(&second, Qt::LeftButton);
  QTest::mouseClick(&first, Qt::LeftButton);
  ASSERT_EQ(clicks.count(), 2);
  EXPECT_EQ(clicks[0].value(0).toInt(), 5);
  EXPECT_EQ(clicks[1].value(0).toInt(), 1);
}

TEST(ControlArray, LineChosenInAListTellsTheIndexOfTheList)
{
  QWidget form;
  ListBox& list = Add<ListBox>(form, QStringLiteral("lstReminders_36"));
  list.AddItem(QStringLiteral(" Dentist 3:00pm"));
  ControlArray<ListBox> array;
  array.Collect(form, QStringLiteral("lstReminders"));
  const QSignalSpy clicks(&array, &ControlArraySignals::Click);
  list.SetListIndex(0);
  ASSERT_EQ(clicks.count(), 1);
  EXPECT_EQ(clicks[0].value(0).toInt(), 36);
}

TEST(ControlArray, ControlsWithoutAClickOfOurOwnAreCollectedToo)
{
  QWidget form;
  QCheckBox& check = Add<QCheckBox>(form, QStringLiteral("chkInfo_1"));
  ControlArray<QCheckBox> array;
  array.Collect(form, QStringLiteral("chkInfo"));
  EXPECT_EQ(&array[1], &check);
}
