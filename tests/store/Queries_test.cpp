// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "store/DBEngine.h"
#include "store/Queries.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace {

const QString* const kAllQueries[] = {
    &Queries::kPeopleByFirstName, &Queries::kPeopleByLastName,    &Queries::kPeople,
    &Queries::kBirthdaysByMonth,  &Queries::kAnniversariesByMonth, &Queries::kAddresses,
    &Queries::kRecords,           &Queries::kPartners,            &Queries::kCoupleDates,
    &Queries::kTotalAnn,          &Queries::kAnnMonths,           &Queries::kTotalBirthdays,
    &Queries::kBirthMonths,       &Queries::kTotalAge,            &Queries::kBirthYears,
    &Queries::kPeopleByCity,      &Queries::kPeopleByProvince,    &Queries::kEventsOfMonth,
    &Queries::kEvents,            &Queries::kEventChanges,        &Queries::kEventsToPrint,
    &Queries::kNoticeBirthdays,   &Queries::kNoticeAnniversaries, &Queries::kNoticeEvents,
    &Queries::kCheckBirthdays,    &Queries::kCheckAnniversaries,  &Queries::kCheckEvents,
};

}

TEST(Queries, AllOfThemOpenOnTheDeliveredDatabase)
{
  const ProgramFolder folder;
  Database database = DBEngine::OpenDatabase();
  for (const QString* query : kAllQueries) {
    EXPECT_NO_THROW(static_cast<void>(database.OpenRecordset(*query, Database::kDynaset))) << query->toStdString();
  }
}
