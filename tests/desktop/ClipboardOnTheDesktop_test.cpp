// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "VirtualDesktop.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int kPatience = 30'000;

// Looks somebody up and copies what is shown, as often as it takes the page to come up.
TEST(ClipboardOnTheDesktop, TheCopiedItemsAreReadByAnotherProgram)
{
  VirtualDesktop desktop;
  desktop.RunSql("UPDATE Options SET ReminderOnStart=0");
  desktop.RunSql(
      "INSERT INTO People (FirstName, LastName, Phone, Street, City) "
      "VALUES ('Zoë', 'Wood', '555-1000', '1 High Street', 'Leeds')");
  const auto program = desktop.StartProgram();
  const auto frame = desktop.AwaitWindow(*program, "Quillmark");
  ASSERT_TRUE(frame);
  QString copied;
  desktop.ClickAt(*frame, 80, 246);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        desktop.ClickAt(*frame, 450, 104);
        desktop.ClickAt(*frame, 86, 140);
        desktop.ClickAt(*frame, 546, 579);
        copied = desktop.Run("xclip", {"-o", "-selection", "clipboard"});
        return copied.contains("555-1000");
      },
      kPatience));
  EXPECT_EQ(copied.toStdString(),
            "Zoë Wood\n\n555-1000\n\nunavailable\n\nunavailable\n\nunavailable\n\n1 High Street\nLeeds\ncountry and "
            "postal code not available\n\nunavailable\n\nunavailable\n\nunavailable");
  program->kill();
  program->waitForFinished(kPatience);
}

}
