// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

// A database with as many people as wanted, none of whom has a birthday or an
// anniversary near today.
void MakeHousehold(const QString& path, int people);

// The same without people, but with events: so many in all, one a day on the first ten days
// of each month of `year`, the others in the years before and after.
void MakeCalendar(const QString& path, int events, int year);

// People, a quarter of whom are married to another quarter. January and February hold seventeen
// birthdays and eight weddings each, whatever the number of people; the others lie in the other
// months, as many in each.
void MakeFamilies(const QString& path, int people);

// People in so many cities, evenly.
void MakeTowns(const QString& path, int people, int cities);
