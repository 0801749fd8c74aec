-- SPDX-FileCopyrightText: 2026 The Quillmark authors
-- SPDX-License-Identifier: GPL-3.0-or-later

-- What a new database holds: the rows of the tallies, and the settings.

INSERT INTO TotalBirthdays ("Month") VALUES
  ('Jan'), ('Feb'), ('Mar'), ('Apr'), ('May'), ('Jun'),
  ('Jul'), ('Aug'), ('Sep'), ('Oct'), ('Nov'), ('Dec');

INSERT INTO TotalAnn ("Month") SELECT "Month" FROM TotalBirthdays ORDER BY rowid;

INSERT INTO TotalAge (Age) VALUES
  ('<10'), ('10-19'), ('20-29'), ('30-39'), ('40-49'),
  ('50-59'), ('60-69'), ('70-79'), ('80-89'), ('>89');

-- Garden, tips on; text and sound at the start: all birthdays and anniversaries
-- within 7 days, calendar events within 3.
INSERT INTO Options VALUES (
  0, 1, 0,
  1, 1, 1,
  1, 0, 1, 7,
  1, 0, 1, 7,
  1, 0, 1, 3
);
