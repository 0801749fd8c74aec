-- SPDX-FileCopyrightText: 2026 The Quillmark authors
-- SPDX-License-Identifier: GPL-3.0-or-later
--
-- Fills an address book with a made-up household, dated around the day it runs:
--   sqlite3 FILE < household.sql
-- 40 people, 10 couples and 25 events. Nobody here exists; nothing already in the book is changed,
-- save for the tallies, which are counted anew.

.bail on

BEGIN;

-- ---------------------------------------------------------------------------------------------
-- Helpers. They live in the temporary database only and go when the connection closes.

CREATE TEMP TABLE MonthName AS
  SELECT column1 AS Number, column2 AS Month FROM (VALUES
    ('01', 'January'), ('02', 'February'), ('03', 'March'), ('04', 'April'), ('05', 'May'), ('06', 'June'),
    ('07', 'July'), ('08', 'August'), ('09', 'September'), ('10', 'October'), ('11', 'November'), ('12', 'December'));

-- Asked once, so that a run across midnight stays of one piece.
CREATE TEMP TABLE Today AS SELECT date('now', 'localtime') AS Date;

-- The days around today, 0 being today, with the parts that the tables want.
CREATE TEMP TABLE Calendar AS
  WITH RECURSIVE Span(Days) AS (SELECT -60 UNION ALL SELECT Days + 1 FROM Span WHERE Days < 90),
       Dated AS (SELECT Days, date(Date, Days || ' days') AS Date FROM Span, Today)
  SELECT Days, Date, Month, CAST(CAST(strftime('%d', Date) AS INTEGER) AS TEXT) AS Day,
         CAST(strftime('%Y', Date) AS INTEGER) AS Year
  FROM Dated JOIN MonthName ON Number = strftime('%m', Date);

-- Keys count from 1 in this file; the real ones follow those ever given out.
CREATE TEMP TABLE Base AS
  SELECT coalesce((SELECT seq FROM sqlite_sequence WHERE name = 'People'), 0) AS ID;

CREATE TEMP TABLE Person (Key INTEGER PRIMARY KEY, FirstName, LastName, Gender, Month, Day, Year);
CREATE TEMP TABLE Address (Key INTEGER PRIMARY KEY, Street, SecondAddress, City, Province, Postal, Country);
CREATE TEMP TABLE Contact (Key INTEGER PRIMARY KEY, Phone, Mobile, Business, Email);
CREATE TEMP TABLE Remark (Key INTEGER PRIMARY KEY, Notes);
CREATE TEMP TABLE Couple (Key INTEGER PRIMARY KEY, Wife INTEGER, Husband INTEGER, Month, Day, Year);
CREATE TEMP TABLE Soon (Kind, Key INTEGER, Days INTEGER, Years INTEGER);

-- A day near today, Years ago (no Years: year unknown). On 29 February the year is moved to a leap year.
CREATE TEMP VIEW SoonDate AS
  SELECT Kind, Key, Month, Day,
         CAST(Year - CASE WHEN Month = 'February' AND Day = '29' THEN (Years + 3) / 4 * 4 ELSE Years END AS TEXT)
           AS Year
  FROM Soon JOIN Calendar USING (Days);

-- ---------------------------------------------------------------------------------------------
-- People. A birthday that is NULL here is either near today (see Soon) or unknown.

INSERT INTO Person VALUES
  -- Ten couples, wife before husband.
  ( 1, 'Margit',    'Halvorsrud',     'Female', NULL, NULL, NULL),
  ( 2, 'Eivind',    'Halvorsrud',     'Male',   'March', '7', '1957'),
  ( 3, 'Aoife',     'O''Dunnegan',    'Female', NULL, NULL, NULL),
  ( 4, 'Pádraig',   'O''Dunnegan',    'Male',   'August', '19', '1980'),
  ( 5, 'Zofia',     'Kłosowicz',      'Female', NULL, NULL, NULL),
  ( 6, 'Tadeusz',   'Wierzbołowski',  'Male',   'May', '3', '1961'),
  ( 7, 'Chiara',    'Bellandrini',    'Female', NULL, NULL, NULL),
  ( 8, 'Ottavio',   'Bellandrini',    'Male',   NULL, NULL, NULL),
  ( 9, 'Thu Hằng',  'Đoàn Lê',        'Female', 'July', '28', '1970'),
  (10, 'Quốc Minh', 'Trần Võ',        'Male',   NULL, NULL, NULL),
  (11, '千歳',      '山岸',           'Female', 'September', '9', '1984'),
  (12, '弥平太',    '山岸',           'Male',   NULL, NULL, NULL),                 -- nothing known
  (13, 'Ελένη',     'Καρβουνάρη',     'Female', 'October', '26', '1958'),
  (14, 'Στέλιος',   'Καρβουνάρης',    'Male',   NULL, NULL, NULL),
  (15, 'Nasrin',    'Tehrandoost',    'Female', 'March', '21', '1978'),
  (16, 'Kaveh',     'Tehrandoost',    'Male',   NULL, NULL, NULL),
  (17, 'Lakshmi',   'Padmanellore',   'Female', NULL, NULL, NULL),
  (18, 'Harish',    'Padmanellore',   'Male',   'June', '30', '1979'),
  (19, 'Amélie',    'Desrochettes',   'Female', NULL, NULL, NULL),
  (20, 'Théodore',  'Desrochettes',   'Male',   'November', '2', '1991'),
  -- Family and friends.
  (21, 'Søren',     'Lindegaard-Østby', 'Male', 'April', '12', NULL),              -- year unknown
  (22, 'Thomas',    'Ferngrove',      'Male',   NULL, NULL, NULL),                 -- two of the
  (23, 'Thomas',    'Ferngrove',      'Male',   'January', '17', '1956'),          -- very same name
  (24, 'Maximiliane Josefin Friederike', 'Oberhuber-Schwarzenbergstätten', 'Female', NULL, NULL, NULL),
  (25, 'Олеся',     'Верхогляд',      'Female', 'January', '1', '1988'),
  (26, 'נועה',      'פרדסקין',        'Female', NULL, NULL, NULL),
  (27, 'سلمى',      'النخلاوي',       'Female', 'August', '8', '1999'),
  (28, 'Renzo',     'D''Amarilli',    'Male',   'October', NULL, '1941'),          -- day unknown
  (29, '晴川',      '司徒',           'Male',   'February', NULL, NULL),           -- month only
  (30, 'Kofi',      'Adomfeh',        'Male',   NULL, NULL, '1936'),               -- year only
  (31, 'Thandiwe',  'Mkhizana',       'Female', NULL, NULL, NULL),                 -- nothing known
  (32, 'Joaquín',   'Peñalverde',     'Male',   NULL, '15', '1973'),               -- month unknown
  (33, 'Ximena',    'Peñalverde',     'Female', 'February', '29', '1996'),
  (34, 'Lars-Uwe',  'Grünwaldt',      'Male',   'February', '29', NULL),
  (35, 'Þórdís',    'Hraunfelldal',   'Female', 'December', '31', '1967'),
  (36, 'Mehmet',    'Çınarlıoğlu',    'Male',   NULL, '23', NULL),                 -- day only
  (37, 'İpek',      'Çınarlıoğlu',    'Female', 'May', '19', '2004'),
  (38, 'Élodie',    'Desrochettes',   'Female', NULL, NULL, NULL),
  (39, 'Liam',      'O''Dunnegan',    'Male',   NULL, NULL, NULL),
  (40, 'Mei-Lin',   'Sorrelwhite',    'Female', 'November', '11', '1933');

-- Birthdays near today: person, days from today, age on that day.
INSERT INTO Soon VALUES
  ('Person',  3,   0, 44), ('Person',  5,   1, 61), ('Person', 38,   2,  4), ('Person', 22,   3, 38),
  ('Person', 26,   5, NULL), ('Person', 24, 6, 90), ('Person', 14,   7, 70), ('Person', 19,  12, 33),
  ('Person', 16,  21, 52), ('Person', 39,  30, 14), ('Person',  7,  47, 27), ('Person',  8,  68, 29),
  ('Person', 10,  -1, 58), ('Person', 17,  -6, 48), ('Person',  1, -20, 66);

-- One word, one city, one country, two lines, full: every shape an address takes. Who is missing has none.
INSERT INTO Address VALUES
  ( 1, 'Fjellveien 114', NULL, 'Lillemoen', NULL, '2698', 'Norway'),
  ( 2, 'Fjellveien 114', NULL, 'Lillemoen', NULL, '2698', 'Norway'),
  ( 3, '7 Tanner''s Row', 'Flat 2B', 'Ballyfennock', 'Co. Clare', 'V95 Q0Q0', 'Ireland'),
  ( 4, '7 Tanner''s Row', 'Flat 2B', 'Ballyfennock', 'Co. Clare', 'V95 Q0Q0', 'Ireland'),
  ( 5, 'ul. Żurawia 3 m. 12', NULL, 'Łężno', 'Mazowieckie', '05-999', 'Poland'),
  ( 6, 'ul. Żurawia 3 m. 12', NULL, 'Łężno', 'Mazowieckie', '05-999', 'Poland'),
  ( 7, 'Via dei Mirti 40', 'Scala C, interno 9', 'Montebrenno', 'PG', '06099', 'Italy'),
  ( 8, 'Via dei Mirti 40', 'Scala C, interno 9', 'Montebrenno', 'PG', '06099', 'Italy'),
  ( 9, '1188 Larkspur Crescent', NULL, 'Port Ashby', 'British Columbia', 'V0N 9Z9', 'Canada'),
  (10, '1188 Larkspur Crescent', NULL, 'Port Ashby', 'British Columbia', 'V0N 9Z9', 'Canada'),
  (11, '緑丘町 4-5-6', NULL, '白浜野市', NULL, '999-0000', '日本'),
  (12, '緑丘町 4-5-6', NULL, '白浜野市', NULL, '999-0000', '日本'),
  (13, 'Οδός Ελαιώνων 21', NULL, 'Καλαμιά', NULL, '200 99', 'Ελλάδα'),
  (14, 'Οδός Ελαιώνων 21', NULL, 'Καλαμιά', NULL, '200 99', 'Ελλάδα'),
  (15, '52 Quince Lane', 'Garden entrance', 'Harrowmere', 'Ontario', 'K0A 9X9', 'Canada'),
  (16, '52 Quince Lane', 'Garden entrance', 'Harrowmere', 'Ontario', 'K0A 9X9', 'Canada'),
  (17, '9/4 Third Cross, Banyan Layout', NULL, 'Nellorepet', 'Tamil Nadu', '600999', 'India'),
  (18, '9/4 Third Cross, Banyan Layout', NULL, 'Nellorepet', 'Tamil Nadu', '600999', 'India'),
  (19, '18 bis, rue des Tilleuls', NULL, 'Saint-Aubrac-les-Étangs', NULL, '63999', 'France'),
  (20, '18 bis, rue des Tilleuls', NULL, 'Saint-Aubrac-les-Étangs', NULL, '63999', 'France'),
  (21, 'Havnegade 5, 2. tv', NULL, 'Nørre Vejlby', NULL, '9990', 'Denmark'),
  (22, '31 Old Mill Road', NULL, 'Elmbridge Cross', 'Vermont', '05999', 'USA'),
  (23, 'PO Box 117', 'Rural Route 4', 'Elmbridge Cross', 'Vermont', '05999', 'USA'),
  (24, 'Schloss Hinterwaldkirchen 1', 'Ostflügel, zweite Stiege links', 'Unterhinterwaldkirchen am See',
       'Oberösterreich', '4999', 'Austria'),
  (25, 'вул. Вишнева, 8', NULL, 'Зелений Гай', NULL, '09999', 'Україна'),
  (26, NULL, NULL, 'חוף הדקל', NULL, NULL, NULL),
  (27, NULL, NULL, NULL, NULL, NULL, 'Morocco'),
  (28, 'Rosewood', NULL, NULL, NULL, NULL, NULL),
  (29, NULL, NULL, 'Kingsmoor', NULL, NULL, NULL),
  (30, NULL, NULL, NULL, NULL, NULL, 'Ghana'),
  (32, 'Paseo de los Olmos 77', '3.º izquierda', 'Villarrobla', 'Salamanca', '37999', 'Spain'),
  (33, NULL, NULL, 'Villarrobla', 'Salamanca', NULL, NULL),
  (34, 'Ahornweg 12a', NULL, 'Bad Lindenau', NULL, '01999', 'Germany'),
  (35, 'Hraunfell', NULL, NULL, NULL, '999', 'Iceland'),
  (36, 'Çınar Sokağı No: 6', 'Kat 3, Daire 11', 'Yeşilpınar', NULL, '48999', 'Türkiye'),
  (38, '18 bis, rue des Tilleuls', NULL, 'Saint-Aubrac-les-Étangs', NULL, '63999', 'France'),
  (39, '7 Tanner''s Row', 'Flat 2B', 'Ballyfennock', 'Co. Clare', 'V95 Q0Q0', 'Ireland'),
  (40, 'Willows', NULL, NULL, NULL, NULL, NULL);

INSERT INTO Contact VALUES
  ( 1, '555-0101', '555-0102', NULL, 'margit.h@example.org'),
  ( 2, '555-0101', NULL, '555-0103', 'eivind@example.net'),
  ( 3, '555-0104', '555-0105', '555-0106', 'aoife.odunnegan@example.org'),
  ( 4, '555-0104', '555-0107', NULL, 'padraig@example.org'),
  ( 5, NULL, '555-0108', NULL, 'zofia.k@example.net'),
  ( 6, NULL, '555-0109', '555-0110 ext. 42', NULL),
  ( 7, NULL, '555-0111', NULL, 'chiara@example.org'),
  ( 8, NULL, '555-0112', NULL, 'ottavio.b@example.net'),
  ( 9, '604-555-0113', NULL, NULL, 'thuhang@example.org'),
  (10, '604-555-0113', '604-555-0114', NULL, NULL),
  (11, '+81 555-0115', NULL, NULL, 'chitose@example.net'),
  (13, '+30 555-0116', NULL, NULL, NULL),
  (15, '613-555-0117', '613-555-0118', NULL, 'nasrin.t@example.org'),
  (16, '613-555-0117', NULL, '613-555-0119', 'kaveh.t@example.org'),
  (17, NULL, '+91 555-0120', NULL, 'lakshmi@example.net'),
  (18, NULL, '+91 555-0121', '+91 555-0122', 'harish@example.net'),
  (19, '+33 555-0123', '+33 555-0124', NULL, 'amelie@example.org'),
  (20, '+33 555-0123', NULL, NULL, 'theo@example.org'),
  (21, NULL, '+45 555-0125', NULL, 'soeren@example.net'),
  (22, '802-555-0126', '802-555-0127', NULL, 'tom.ferngrove@example.org'),
  (23, '802-555-0128', NULL, NULL, NULL),
  (24, '+43 555-0129', NULL, '+43 555-0130', 'm.j.f.oberhuber@example.net'),
  (25, NULL, '+380 555-0131', NULL, 'olesia@example.org'),
  (26, NULL, '+972 555-0132', NULL, 'noa@example.net'),
  (28, '555-0133', NULL, NULL, NULL),
  (31, NULL, '555-0134', NULL, 'thandiwe@example.org'),
  (32, '+34 555-0135', NULL, NULL, 'joaquin@example.net'),
  (34, NULL, NULL, '+49 555-0136', 'werkstatt@example.org'),
  (35, '+354 555-0137', NULL, NULL, 'thordis@example.org'),
  (37, NULL, '555-0138', NULL, 'ipek@example.net'),
  (40, '555-0139', NULL, NULL, NULL);

INSERT INTO Remark VALUES
  ( 1, 'Keeps the spare key to the cabin.'),
  ( 3, 'Gave us the sourdough starter; its name is "Bubbles". Allergic to hazelnuts & cashews.'),
  ( 6, 'Never call before 10:00.'),
  (11, '年賀状を忘れずに。'),
  (22, 'The younger one, Thomas''s son. Plays the cello.'),
  (23, 'The elder. Does not use e-mail: write letters.'),
  (24, 'Answers to "Maxi". Sends a parcel of plum jam every autumn and wants the empty jars back, washed and with '
       || 'their lids, before the first of March. Prefers being called on Sunday afternoons between three and five, '
       || 'when the tenants are out and the dogs are asleep; lets it ring a long time, so be patient. Has promised '
       || 'the walnut writing desk to whoever learns to play the zither. Her birthday is kept twice: with cake for '
       || 'the family on the day itself, and with soup for the whole village on the Saturday after.'),
  (28, 'Born in October, he says, and that the day is nobody''s business.'),
  (31, 'Met on the night train.' || char(10) || 'Ask for:' || char(10) || '- street' || char(10) || '- birthday'),
  (34, 'Born on 29 February: celebrates on 1 March in other years.'),
  (36, 'Birthday on a 23rd. Month?'),
  (39, 'Size 38 shoes, collects stamps with ships on them.');

-- ---------------------------------------------------------------------------------------------
-- Couples.

INSERT INTO Couple VALUES
  ( 1,  1,  2, NULL, NULL, NULL),              -- near today
  ( 2,  3,  4, NULL, NULL, NULL),              -- near today
  ( 3,  5,  6, 'December', '31', '1989'),      -- different surnames
  ( 4,  7,  8, NULL, NULL, NULL),              -- no date
  ( 5,  9, 10, 'September', '3', NULL),        -- different surnames, year unknown
  ( 6, 11, 12, 'April', NULL, '2011'),         -- day unknown
  ( 7, 13, 14, NULL, NULL, NULL),              -- near today
  ( 8, 15, 16, NULL, NULL, '2004'),            -- year only
  ( 9, 17, 18, 'February', '29', '2008'),
  (10, 19, 20, NULL, NULL, NULL);              -- near today

-- Couple, days from today, years married on that day.
INSERT INTO Soon VALUES
  ('Couple', 1, 2, 40), ('Couple', 2, 6, 16), ('Couple', 7, 25, 45), ('Couple', 10, -10, 9);

-- ---------------------------------------------------------------------------------------------
-- Into the book.

INSERT INTO People (PeopleID, LastName, FirstName, Street, SecondAddress, City, Province, Country, Postal, Phone,
                    Mobile, Business, Email, Notes, BirthMonth, BirthDate, BirthYear, Gender)
  SELECT ID + Person.Key, LastName, FirstName, Street, SecondAddress, City, Province, Country, Postal, Phone,
         Mobile, Business, Email, Notes, coalesce(SoonDate.Month, Person.Month),
         coalesce(SoonDate.Day, Person.Day), coalesce(SoonDate.Year, Person.Year), Gender
  FROM Base, Person
  LEFT JOIN Address USING (Key)
  LEFT JOIN Contact USING (Key)
  LEFT JOIN Remark USING (Key)
  LEFT JOIN SoonDate ON SoonDate.Kind = 'Person' AND SoonDate.Key = Person.Key
  ORDER BY Person.Key;

INSERT INTO Ann (Spouse1ID, Spouse1First, Spouse1Last, Spouse2ID, Spouse2First, Spouse2Last,
                 AnnMonth, AnnDate, AnnYear)
  SELECT Woman.PeopleID, Woman.FirstName, Woman.LastName, Man.PeopleID, Man.FirstName, Man.LastName,
         coalesce(SoonDate.Month, Couple.Month), coalesce(SoonDate.Day, Couple.Day),
         coalesce(SoonDate.Year, Couple.Year)
  FROM Base, Couple
  JOIN People AS Woman ON Woman.PeopleID = ID + Wife
  JOIN People AS Man ON Man.PeopleID = ID + Husband
  LEFT JOIN SoonDate ON SoonDate.Kind = 'Couple' AND SoonDate.Key = Couple.Key
  ORDER BY Couple.Key;

-- Both partners carry the couple's date.
UPDATE People
  SET AnnMonth = Ann.AnnMonth, AnnDate = Ann.AnnDate, AnnYear = Ann.AnnYear
  FROM Ann, Base WHERE PeopleID = Spouse1ID AND PeopleID > ID;
UPDATE People
  SET AnnMonth = Ann.AnnMonth, AnnDate = Ann.AnnDate, AnnYear = Ann.AnnYear
  FROM Ann, Base WHERE PeopleID = Spouse2ID AND PeopleID > ID;

-- Events: days from today, title, time, details.
INSERT INTO Reminders (Month, Date, Event, Time, Notes)
  SELECT Month, Date, column2, column3, column4
  FROM (VALUES
    (-31, 'Chimney',      '10:00:00', 'Sweep comes; clear the hearth.'),
    (-24, 'Vaccination',  '16:20:00', NULL),
    (-17, 'Book club',    '19:30:00', 'At Ximena''s. Bring the long novel back.'),
    (-15, 'Rent',         NULL,       NULL),
    (-11, 'Night train',  '23:59:00', 'Platform 4, coach 7, berths 31 and 33.'),
    ( -8, 'Library book', NULL,       'Two books and one atlas.'),
    ( -5, 'Concert',      '20:00:00', 'Cello: Thomas the younger.'),
    ( -2, 'Haircut',      '17:45:00', NULL),
    ( -1, 'Bins out',     NULL,       NULL),
    (  0, 'Dentist',      '14:30:00', 'Check-up, both children. Bring the card.'),
    (  1, 'Dinner',       '19:00:00', 'At the O''Dunnegans''; we bring dessert, no nuts.'),
    (  3, 'School fair',  NULL,       'Cake for the stall: lemon.'),
    (  5, 'Choir',        '18:15:00', NULL),
    (  8, 'Bins out',     NULL,       NULL),
    (  9, 'Car service',  '08:00:00', 'The small one.'),
    (  9, 'Car service',  '13:30:00', 'The van; winter tyres are in the shed.'),
    ( 13, 'Fête',         NULL,       'Saint-Aubrac, on the square.'),
    ( 15, 'Rent',         NULL,       NULL),
    ( 19, '茶',           '15:00:00', '山岸さんと。'),
    ( 23, 'Vet',          '09:10:00', 'Both cats. The basket is in the loft.'),
    ( 28, 'Webinar',      '00:00:00', 'Midnight here, breakfast there.'),
    ( 36, 'Passport',     '11:00:00', 'Photographs, old passport, form in two copies, the fee in cash. The office is '
                                      || 'on the second floor; the lift is slow, so be ten minutes early.'),
    ( 44, 'Recycling',    NULL,       NULL),
    ( 52, 'Holiday',      NULL,       'First day of the holidays.'),
    ( 60, 'Insurance',    NULL,       'Last day to give notice.'))
  JOIN Calendar ON Days = column1
  ORDER BY Days, column3;

-- ---------------------------------------------------------------------------------------------
-- Tallies. What is unknown counts nowhere.

CREATE TEMP VIEW AgeClass AS
  SELECT CASE WHEN Age < 10 THEN '<10' WHEN Age > 89 THEN '>89'
              ELSE (Age / 10 * 10) || '-' || (Age / 10 * 10 + 9) END AS Class
  FROM (SELECT CAST(strftime('%Y', Date) AS INTEGER) - CAST(BirthYear AS INTEGER) AS Age
        FROM People, Today WHERE BirthYear IS NOT NULL);

UPDATE TotalBirthdays SET Total =
  (SELECT count(*) FROM People WHERE substr(BirthMonth, 1, 3) = TotalBirthdays.Month);
UPDATE TotalAnn SET Total =
  (SELECT count(*) FROM Ann WHERE substr(AnnMonth, 1, 3) = TotalAnn.Month);
UPDATE TotalAge SET Total =
  (SELECT count(*) FROM AgeClass WHERE Class = TotalAge.Age);

COMMIT;
