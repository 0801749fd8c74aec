// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Invariants.h"

#include <QStringList>

namespace Invariants {
namespace {

const QString kMonths = QStringLiteral(
    "('January','February','March','April','May','June','July','August','September','October','November','December')");

const QString kPartners = QStringLiteral(
    " FROM Ann a JOIN People w ON w.PeopleID = a.Spouse1ID JOIN People h ON h.PeopleID = a.Spouse2ID WHERE ");

QString AnyIsEmpty(const QStringList& columns)
{
  return columns.join(QStringLiteral(" = '' OR ")) + QStringLiteral(" = ''");
}

// A kind of reminder is cancelled, given once or repeated.
QString NoState(const QString& kind)
{
  return QStringLiteral(
             "NOT (%1Audio = 0 AND %1Once = 0 AND %1Many = 0 AND %1Length IS NULL) AND "
             "NOT (%1Audio = 1 AND %1Once + %1Many = 1 AND %1Length >= 0)")
      .arg(kind);
}

std::vector<Rule> OfPeople()
{
  return {
      {"a person without a name or gender",
       "SELECT PeopleID FROM People WHERE trim(coalesce(FirstName, '')) = '' OR trim(coalesce(LastName, '')) = '' OR "
       "coalesce(Gender, '') NOT IN ('Female', 'Male')"},
      {"a person with a name that is too long",
       "SELECT PeopleID FROM People WHERE length(FirstName) > 30 OR length(LastName) > 30 OR length(City) > 30"},
      {"an unknown value of a person that is not Null",
       "SELECT PeopleID FROM People WHERE " +
           AnyIsEmpty({"Street", "SecondAddress", "City", "Province", "Country", "Postal", "Phone", "Mobile",
                       "Business", "Email", "Notes", "BirthMonth", "BirthDate", "BirthYear", "AnnMonth", "AnnDate",
                       "AnnYear"})},
      {"a birthday that is none",
       "SELECT PeopleID FROM People WHERE BirthMonth NOT IN " + kMonths +
           " OR CAST(BirthDate AS INTEGER) NOT BETWEEN 1 AND 31 OR CAST(BirthYear AS INTEGER) NOT BETWEEN 1900 AND "
           "2050 OR (BirthMonth = 'February' AND CAST(BirthDate AS INTEGER) > 29)"},
      {"a person marked as converted", "SELECT PeopleID FROM People WHERE \"Convert\" <> 0"},
  };
}

std::vector<Rule> OfEventsAndSettings()
{
  return {
      {"an event without a title of at most 12 characters",
       "SELECT ID FROM Reminders WHERE length(coalesce(Event, '')) NOT BETWEEN 1 AND 12"},
      {"an event whose date and month differ",
       "SELECT ID FROM Reminders WHERE date(\"Date\") IS NOT \"Date\" OR \"Month\" IS NOT "
       "substr('January  February March    April    May      June     July     August   SeptemberOctober  November "
       "December ', CAST(strftime('%m', \"Date\") AS INTEGER) * 9 - 8, length(\"Month\")) OR length(\"Month\") < 3"},
      {"an event at a time that is none",
       "SELECT ID FROM Reminders WHERE \"Time\" IS NOT NULL AND time(\"Time\") IS NOT \"Time\""},
      {"not one row of settings", "SELECT count(*) FROM Options HAVING count(*) <> 1"},
      {"a theme or a switch of the tips that is none",
       "SELECT * FROM Options WHERE coalesce(Theme, -1) NOT BETWEEN 0 AND 5 OR coalesce(ToolTips, 2) NOT IN (0, 1)"},
  };
}

}

std::vector<Rule> OfTheTables()
{
  std::vector<Rule> rules = {
      {"the file is damaged", "SELECT integrity_check FROM pragma_integrity_check WHERE integrity_check <> 'ok'"},
      {"rows of a tally are missing",
       "SELECT 1 WHERE (SELECT count(*) FROM TotalBirthdays) <> 12 OR (SELECT count(*) FROM TotalAnn) <> 12 OR "
       "(SELECT count(*) FROM TotalAge) <> 10"},
  };
  for (const auto& more : {OfPeople(), OfEventsAndSettings()}) {
    rules.insert(rules.end(), more.begin(), more.end());
  }
  return rules;
}

std::vector<Rule> OfCouples(const QString& exceptPeople)
{
  const QString others = QStringLiteral("NOT (w.PeopleID IN (%1) OR h.PeopleID IN (%1)) AND ").arg(exceptPeople);
  return {
      {"a partner who is nobody",
       "SELECT AnnID FROM Ann WHERE coalesce(Spouse1ID, 0) NOT IN (SELECT PeopleID FROM People) OR "
       "coalesce(Spouse2ID, 0) NOT IN (SELECT PeopleID FROM People)"},
      {"a couple with other names than its partners",
       "SELECT AnnID" + kPartners +
           "a.Spouse1First IS NOT w.FirstName OR a.Spouse1Last IS NOT w.LastName OR "
           "a.Spouse2First IS NOT h.FirstName OR a.Spouse2Last IS NOT h.LastName"},
      {"an unknown wedding that is not Null",
       "SELECT AnnID FROM Ann WHERE " + AnyIsEmpty({"AnnMonth", "AnnDate", "AnnYear"})},
      {"a wedding that its partners have otherwise",
       "SELECT AnnID" + kPartners + others +
           "(a.AnnMonth IS NOT w.AnnMonth OR a.AnnDate IS NOT w.AnnDate OR a.AnnYear IS NOT w.AnnYear OR "
           "a.AnnMonth IS NOT h.AnnMonth OR a.AnnDate IS NOT h.AnnDate OR a.AnnYear IS NOT h.AnnYear)"},
      {"a wedding of somebody who is not married",
       "SELECT PeopleID FROM People WHERE coalesce(AnnMonth, AnnDate, AnnYear) IS NOT NULL AND PeopleID NOT IN "
       "(SELECT Spouse1ID FROM Ann UNION SELECT Spouse2ID FROM Ann) AND PeopleID NOT IN (" +
           exceptPeople + ")"},
  };
}

Rule OfReminderSettings()
{
  return {"settings of reminders that their page does not leave behind",
          "SELECT * FROM Options WHERE " + NoState("Birth") + " OR " + NoState("Ann") + " OR " + NoState("Cal")};
}

QString CouplesOfOtherGenders()
{
  return "SELECT AnnID, w.PeopleID, h.PeopleID" + kPartners + "w.Gender <> 'Female' OR h.Gender <> 'Male'";
}

QString MonthsMiscounted(const char* totals, const char* table, const char* column)
{
  return QStringLiteral(
             "SELECT \"Month\", Total, (SELECT count(*) FROM %2 WHERE substr(%3, 1, 3) = \"Month\") AS Counted FROM %1 "
             "WHERE Total <> Counted")
      .arg(QLatin1String(totals), QLatin1String(table), QLatin1String(column));
}

QString AgesMiscounted(int year)
{
  return QStringLiteral(
             "WITH Ages AS (SELECT min(9, max(0, (%1 - CAST(BirthYear AS INTEGER)) / 10)) AS Class FROM People WHERE "
             "BirthYear IS NOT NULL) SELECT Age, Total, (SELECT count(*) FROM Ages WHERE Class = CASE Age WHEN '<10' "
             "THEN 0 WHEN '>89' THEN 9 ELSE CAST(substr(Age, 1, 1) AS INTEGER) END) AS Counted FROM TotalAge WHERE "
             "Total <> Counted")
      .arg(year);
}

}
