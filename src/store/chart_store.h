#pragma once
// The chart store: saved charts are rows of ChartSave.
//  - SaveChart: a new chart, after the duplicate check of its name.
//  - ListCharts: the list of the "Available Users" dialog by its DataGen filter.
//  - OpenChart: what the birth form shows for a saved chart.
//  - UpdateChart, DeleteChart: a chart already saved.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"
#include "store/field_message.h"

namespace kelvaro::store {

// What the birth form hands to the store once its own validation has passed.
struct ChartFields {
  std::string name;
  std::string gender;  // "Male" is stored as "Male", anything else as "Female"
  std::int64_t countryId = 0;
  std::string city;
  std::string day;    // the form's texts: "14", "Jul", "1965"
  std::string month;
  std::string year;
  int hour = 0;    // 24-hour clock
  int minute = 0;
  int second = 0;  // a new chart keeps it; an update stores 0
  double latDeg = 0.0;
  std::string latNS;
  double latMin = 0.0;
  double lonDeg = 0.0;
  std::string lonEW;
  double lonMin = 0.0;
  std::int64_t zoneSno = 0;  // SNo of the chosen TimeZone row; 0 for none
  // The offset the chart was calculated with, in hours east, when it came
  // from the zone's rules or overruled them; nothing when it is the zone
  // row's. The note says why, zoneId names the place's IANA zone.
  std::optional<double> clockOffsetHours;
  std::string clockOffsetNote;
  std::string zoneId;
  bool clockOffsetByUser = false;
};

// "Velnesh~14-Jul-1965": the name, "~" and the birth date.
std::string ChartNameOf(std::string_view name, std::string_view day, std::string_view month, std::string_view year);

// Saves a new chart. Fails with "Enter Chart Name" for an empty name, "Enter
// Correct Date" for a date that does not exist, and "Chart Name Already Used ,
// Enter Another Name" when a stored ChartName equals the trimmed name as a
// whole. Stored names carry the "~" date suffix and the name has none, so only
// a stored name without a suffix can match: a second chart of the same person
// and date is stored without complaint, as the program has always done.
// Success: id is the new Sno, message "Chart Successfully Saved".
WriteResult SaveChart(Database& db, const ChartFields& fields);

struct ChartListItem {
  std::int64_t sno = 0;
  std::string chartName;
};

struct ChartList {
  std::string label;  // "Select User Details" and so on
  std::vector<ChartListItem> items;
};

// The dialog's list by DataGen: "All", "Male", "Female" (from ChartSave) or
// "G" (from GChartSave), ordered by ChartName. Any other filter gives an
// empty list with no label.
ChartList ListCharts(Database& db, std::string_view dataGen);

// A saved chart as the birth form shows it.
struct OpenedChart {
  std::int64_t sno = 0;  // txt_VC_UserId
  std::string name;      // ChartName cut before its first "~"
  std::string gender;
  int day = 0;
  std::string month;  // "Jul"
  int year = 0;
  int hour12 = 12;  // 1..12
  bool pm = false;
  int minute = 0;
  std::int64_t countryId = 0;  // the country is chosen by its id, not by list position
  std::string city;
  double latDeg = 0.0;
  std::string latNS;
  double latMin = 0.0;
  double lonDeg = 0.0;
  std::string lonEW;
  double lonMin = 0.0;
  std::string latText;  // txtLatDetails: "17 N 20"
  std::string lonText;  // txtLonDetails: "78 E 30"
  std::optional<std::int64_t> zoneSno;  // txt_VC_TimeDiffId; nothing when the column is empty
  std::string zoneText;                 // "Asia/Kolkata  (5.5 hrs E)"; empty without a zone row
  double timeDiff = 0.0;
  std::string timeDiffEW;
  // As saved (ChartFields); nothing and empty for a chart saved before they
  // were kept.
  std::optional<double> clockOffsetHours;
  std::string clockOffsetNote;
  std::string zoneId;
  bool clockOffsetByUser = false;
};

// The hour of a 24-hour clock on the form's 12-hour clock. Noon is 12 PM and
// midnight 12 AM, so that a chart saved at 12:xx PM reopens as 12:xx PM.
void TwelveHourClock(int hour24, int& hour12, bool& pm);

std::optional<OpenedChart> OpenChart(Database& db, std::int64_t sno);

// Rewrites a saved chart in place: ChartName from the form's day, month and
// year texts, ChartSecond 0. Fails with "Enter Correct Date" for a date that
// does not exist. Success message: "Details are Sucessfully Updated". A chart
// that no longer exists gives a StoreError, as the program has always failed
// on that path.
WriteResult UpdateChart(Database& db, std::int64_t sno, const ChartFields& fields);

// Deletes a chart; false when there was no such chart.
bool DeleteChart(Database& db, std::int64_t sno);
inline constexpr std::string_view kChartDeletedMessage = "Successfully Deleted";

}  // namespace kelvaro::store
