// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/ClipboardText.h"

#include "controls/MultiLineTextBox.h"
#include "controls/Shape.h"
#include "controls/TextBox.h"
#include "lookup/PersonResults.h"

#include <QCheckBox>

#include <gtest/gtest.h>

namespace {

// An item with controls of its own.
struct Item
{
  QCheckBox check;
  MultiLineTextBox box;
  Shape shape;

  [[nodiscard]] ResultBox Result() { return {check, box, box, shape}; }
};

// The eight items; each shows its own name, all of them unticked.
class ClipboardTextTest : public testing::Test
{
protected:
  ClipboardTextTest()
  {
    phone.box.SetText("phone");
    mobile.box.SetText("mobile");
    business.box.SetText("business");
    email.box.SetText("email");
    address.box.SetText("street\r\ncity\r\ncountry");
    birthday.box.SetText("birthday");
    anniversary.box.SetText("anniversary");
    notes.box.SetText("notes");
  }

  // With one kind of line break.
  std::string Make(const QString& name = "Ann Wood")
  {
    return ClipboardText::Make(name, results).replace("\r\n", "\n").toStdString();
  }

  Item phone, mobile, business, email, address, birthday, anniversary, notes;
  std::array<Item*, 8> inOrder = {&phone, &mobile, &business, &email, &address, &birthday, &anniversary, &notes};
  std::array<std::string, 8> texts = {"phone",    "mobile",      "business", "email", "street\ncity\ncountry",
                                      "birthday", "anniversary", "notes"};
  PersonResults results{phone.Result(),    mobile.Result(),      business.Result(), email.Result(), address.Result(),
                        birthday.Result(), anniversary.Result(), notes.Result(),    AddressBlock()};
};

}

TEST_F(ClipboardTextTest, EveryItemButTheBusinessPhoneCounts)
{
  EXPECT_FALSE(ClipboardText::HasItems(results));
  for (Item* item : inOrder) {
    item->check.setChecked(true);
    EXPECT_EQ(ClipboardText::HasItems(results), item != &business);
    item->check.setChecked(false);
  }
}

TEST_F(ClipboardTextTest, EverySelectionOfItemsInTheirOrder)
{
  for (unsigned ticks = 0; ticks < 256; ++ticks) {
    std::string wanted = "Ann Wood";
    for (std::size_t i = 0; i < inOrder.size(); ++i) {
      const bool ticked = (ticks >> i & 1U) != 0;
      inOrder.at(i)->check.setChecked(ticked);
      wanted += ticked ? "\n\n" + texts.at(i) : "";
    }
    EXPECT_EQ(Make(), wanted) << ticks;
    EXPECT_EQ(ClipboardText::HasItems(results), (ticks & ~4U) != 0) << ticks;
  }
}

TEST_F(ClipboardTextTest, AfterAnEmptyNameTheFirstItemStandsAlone)
{
  email.check.setChecked(true);
  EXPECT_EQ(Make(QString()), "email");
  notes.check.setChecked(true);
  EXPECT_EQ(Make(QStringLiteral("")), "email\n\nnotes");
}

TEST_F(ClipboardTextTest, TheNameStandsAsItIs)
{
  EXPECT_EQ(Make("Wood, Ann"), "Wood, Ann");
  EXPECT_EQ(Make("%1 & <b>Zoë</b>"), "%1 & <b>Zoë</b>");
}
