-- SPDX-FileCopyrightText: 2026 The Quillmark authors
-- SPDX-License-Identifier: GPL-3.0-or-later

-- The tables of a household's database. Unknown is NULL. Months are full English names,
-- days and years are digits as text. Keys are never used again.

CREATE TABLE People (
  PeopleID INTEGER PRIMARY KEY AUTOINCREMENT,
  LastName TEXT,
  FirstName TEXT,
  SpouseFirst TEXT,
  SpouseLast TEXT,
  Street TEXT,
  SecondAddress TEXT,
  City TEXT,
  Province TEXT,
  Country TEXT,
  Postal TEXT,
  Phone TEXT,
  Mobile TEXT,
  Business TEXT,
  Email TEXT,
  Notes TEXT,
  BirthMonth TEXT COLLATE NOCASE,
  BirthDate TEXT,
  BirthYear TEXT,
  AnnMonth TEXT,
  AnnDate TEXT,
  AnnYear TEXT,
  Gender TEXT,
  "Convert" BOOLEAN NOT NULL DEFAULT 0
);
CREATE INDEX BirthMonth ON People (BirthMonth);

CREATE TABLE Ann (
  AnnID INTEGER PRIMARY KEY AUTOINCREMENT,
  Spouse1ID INTEGER,
  Spouse1First TEXT,
  Spouse1Last TEXT,
  Spouse2ID INTEGER,
  Spouse2First TEXT,
  Spouse2Last TEXT,
  AnnMonth TEXT COLLATE NOCASE,
  AnnDate TEXT,
  AnnYear TEXT
);
CREATE UNIQUE INDEX Spouse1ID ON Ann (Spouse1ID);
CREATE UNIQUE INDEX Spouse2ID ON Ann (Spouse2ID);
CREATE INDEX AnnMonth ON Ann (AnnMonth);
CREATE INDEX AnnDate ON Ann (AnnDate);
CREATE INDEX AnnYear ON Ann (AnnYear);

CREATE TABLE Reminders (
  ID INTEGER PRIMARY KEY AUTOINCREMENT,
  "Month" TEXT COLLATE NOCASE,
  "Date" DATE,
  Event TEXT,
  "Time" TIME,
  Notes TEXT
);
CREATE INDEX "Month" ON Reminders ("Month");
CREATE INDEX "Date" ON Reminders ("Date");

CREATE TABLE TotalBirthdays ("Month" TEXT PRIMARY KEY COLLATE NOCASE, Total SMALLINT NOT NULL DEFAULT 0);
CREATE TABLE TotalAnn ("Month" TEXT PRIMARY KEY COLLATE NOCASE, Total SMALLINT NOT NULL DEFAULT 0);
CREATE TABLE TotalAge (Age TEXT PRIMARY KEY, Total SMALLINT NOT NULL DEFAULT 0);

CREATE TABLE Options (
  WindowState BOOLEAN,
  Theme SMALLINT,
  ToolTips BOOLEAN,
  ReminderOnStart BOOLEAN,
  TextMessage BOOLEAN,
  AudioMessage BOOLEAN,
  BirthAudio BOOLEAN,
  BirthOnce BOOLEAN,
  BirthMany BOOLEAN,
  BirthLength SMALLINT,
  AnnAudio BOOLEAN,
  AnnOnce BOOLEAN,
  AnnMany BOOLEAN,
  AnnLength SMALLINT,
  CalAudio BOOLEAN,
  CalOnce BOOLEAN,
  CalMany BOOLEAN,
  CalLength SMALLINT
);
