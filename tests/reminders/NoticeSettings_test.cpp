// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NoticeSettings.h"

#include "OptionsRow.h"

#include "platform/RuntimeError.h"
#include "support/ErrorOf.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace {

constexpr auto kBirthday = ReminderKind::kBirthday;
constexpr auto kAnniversary = ReminderKind::kAnniversary;
constexpr auto kEvent = ReminderKind::kEvent;

const char* const kTypeOfBirthday =
    "Please select type of birthday notification (one day only or repeated over several days)";
const char* const kTypeOfAnniversary =
    "Please select type of anniversary notification (one day only or repeated over several days)";
const char* const kTypeOfEvent =
    "Please select type of calendar notification (one day only or repeated over several days)";
const char* const kMethod = "Please select notification method (text/audio)";

class NoticeSettingsTest : public testing::Test
{
protected:
  // All twelve columns of the kinds, and the three that hold for all.
  [[nodiscard]] std::string Row() const
  {
    return OptionsRow(folder,
                      QStringLiteral("BirthAudio, BirthOnce, BirthMany, BirthLength, AnnAudio, AnnOnce, AnnMany, "
                                     "AnnLength, CalAudio, CalOnce, CalMany, CalLength, TextMessage, AudioMessage, "
                                     "ReminderOnStart"));
  }

  ProgramFolder folder;
};

}

TEST_F(NoticeSettingsTest, ARuleIsWrittenWholeAndAlone)
{
  EXPECT_EQ(Row(), "1 0 1 7 1 0 1 7 1 0 1 3 1 1 1") << "as delivered";
  NoticeSettings::SetRule(kBirthday, DayRule::kOneDay, QStringLiteral("0"));
  EXPECT_EQ(Row(), "1 1 0 0 1 0 1 7 1 0 1 3 1 1 1");
  NoticeSettings::SetRule(kAnniversary, DayRule::kOneDay, QStringLiteral("30"));
  EXPECT_EQ(Row(), "1 1 0 0 1 1 0 30 1 0 1 3 1 1 1");
  NoticeSettings::SetRule(kEvent, DayRule::kManyDays, QStringLiteral("12"));
  EXPECT_EQ(Row(), "1 1 0 0 1 1 0 30 1 0 1 12 1 1 1");
  NoticeSettings::SetRule(kBirthday, DayRule::kManyDays, QStringLiteral("1"));
  EXPECT_EQ(Row(), "1 0 1 1 1 1 0 30 1 0 1 12 1 1 1");
}

TEST_F(NoticeSettingsTest, CancellingOneKindLeavesTheOthersAndTheMethodsAlone)
{
  NoticeSettings::Cancel(kAnniversary);
  EXPECT_EQ(Row(), "1 0 1 7 0 0 0 - 1 0 1 3 1 1 1");
  NoticeSettings::Cancel(kEvent);
  EXPECT_EQ(Row(), "1 0 1 7 0 0 0 - 0 0 0 - 1 1 1");
  NoticeSettings::Cancel(kBirthday);
  EXPECT_EQ(Row(), "0 0 0 - 0 0 0 - 0 0 0 - 1 1 1");
}

TEST_F(NoticeSettingsTest, TakingTheNumberAwayKeepsTheRule)
{
  NoticeSettings::DropDays(kBirthday);
  EXPECT_EQ(Row(), "0 0 1 - 1 0 1 7 1 0 1 3 1 1 1");
  NoticeSettings::DropDays(kBirthday);
  EXPECT_EQ(Row(), "0 0 1 - 1 0 1 7 1 0 1 3 1 1 1");
}

TEST_F(NoticeSettingsTest, TakingAnUnusedNumberAwayLeavesTheSwitch)
{
  folder.Execute("UPDATE Options SET BirthAudio=NULL");
  NoticeSettings::DropUnusedDays(kBirthday);
  EXPECT_EQ(Row(), "- 0 1 - 1 0 1 7 1 0 1 3 1 1 1");
}

TEST_F(NoticeSettingsTest, ANumberThatIsNoneOrTooLargeIsRefusedAndNothingWritten)
{
  EXPECT_EQ(ErrorOf([] { NoticeSettings::SetRule(kBirthday, DayRule::kOneDay, QStringLiteral("3000000000")); }), 6);
  EXPECT_EQ(ErrorOf([] { NoticeSettings::SetRule(kBirthday, DayRule::kOneDay, QStringLiteral("soon")); }), 13);
  EXPECT_EQ(Row(), "1 0 1 7 1 0 1 7 1 0 1 3 1 1 1");
}

TEST_F(NoticeSettingsTest, ReadsTheMethodsAndWhatIsOn)
{
  folder.Execute("UPDATE Options SET TextMessage=0, AudioMessage=1, CalAudio=0, AnnAudio=NULL");
  EXPECT_FALSE(NoticeSettings::ReadMethods().text);
  EXPECT_TRUE(NoticeSettings::ReadMethods().audio);
  EXPECT_TRUE(NoticeSettings::ReadMethods().Any());
  EXPECT_TRUE(NoticeSettings::IsOn(kBirthday));
  EXPECT_FALSE(NoticeSettings::IsOn(kAnniversary));
  EXPECT_FALSE(NoticeSettings::IsOn(kEvent));
  folder.Execute("UPDATE Options SET AudioMessage=0");
  EXPECT_FALSE(NoticeSettings::ReadMethods().Any());
}

TEST(ClosingMessage, AsksForWhatIsMissing)
{
  struct Case
  {
    ReminderKind kind;
    NoticeSettings::PanelState state;
    const char* message;
  };
  constexpr bool no = false;
  constexpr bool yes = true;
  // on, has a method, shows a number, has an option
  const Case cases[] = {
      {kBirthday, {no, yes, no, no}, ""},
      {kBirthday, {no, no, no, no}, ""},
      {kBirthday, {yes, yes, yes, yes}, ""},
      {kBirthday, {yes, yes, no, yes}, ""},
      {kBirthday, {yes, yes, no, no}, ""},
      {kBirthday, {no, yes, yes, no}, kTypeOfBirthday},
      {kBirthday, {no, no, yes, no}, kTypeOfBirthday},
      {kBirthday, {no, yes, yes, yes}, kTypeOfBirthday},
      {kAnniversary, {no, yes, yes, no}, kTypeOfAnniversary},
      {kEvent, {no, yes, yes, no}, kTypeOfEvent},
      {kBirthday, {yes, no, yes, yes}, kMethod},
      {kAnniversary, {yes, no, yes, yes}, kMethod},
      {kEvent, {yes, no, no, no}, kMethod},
      {kBirthday, {no, yes, no, yes}, "Please select duration of birthday notification"},
      {kBirthday, {no, no, no, yes}, "Please select duration of birthday notification"},
      {kAnniversary, {no, yes, no, yes}, "Please select duration of anniversary notification"},
      {kEvent, {no, yes, no, yes}, "Please select duration of calendar notification"},
  };
  for (const Case& c : cases) {
    const auto message = NoticeSettings::ClosingMessage(c.kind, c.state);
    EXPECT_EQ(message.value_or(QString()).toStdString(), c.message)
        << c.state.on << c.state.hasMethod << c.state.daysShown << c.state.optionChosen;
    EXPECT_EQ(message.has_value(), *c.message != '\0');
  }
}
