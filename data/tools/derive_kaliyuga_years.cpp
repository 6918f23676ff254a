// Derives DayVal and YearRemain of the sixty KaliyugaYearDetails rows from the
// program's own engine, so that the year-start rule lands on the sunrise of
// the day on which the Sun enters sidereal Aries (Lahiri), or on the next
// day's sunrise when the entry falls after sunset, for every year of the
// present sixty-year period, 1987 to 2046. Days are reckoned at Ujjain
// (23 11 N, 75 46 E, Indian Standard Time), the meridian of the classical
// almanacs.
//
// Usage: kelvaro_derive_kaliyuga_years data/kaliyuga_years.csv > new.csv
// The names and YearVal of the given file are kept; the derived columns are
// written anew. data/README.md explains the derivation.
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "astronomy/find_planet_position.h"
#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "common/date_text.h"
#include "common/number_rules.h"
#include "panchanga/solar_year.h"

namespace {

using kelvaro::DateAdd;
using kelvaro::Interval;
using kelvaro::OleDate;

constexpr int kFirstYear = 1987;  // Yearno 1, "Prabhava"
constexpr double kFractionStep = 1e-4;  // YearRemain is written to four decimals

kelvaro::SunTimes UjjainSunTimes(OleDate date) {
  kelvaro::clsFindSunrise rise;
  kelvaro::clsFindSunSet set;
  return {rise.FnFindSunrise(date, "N", 23, 11, "E", 75, 46, 0, 5.5, "E"),
          set.FnFindSunset(date, "N", 23, 11, "E", 75, 46, 0, 5.5, "E")};
}

// Sidereal longitude of the Sun, folded to -180..180 around 0 Aries.
double SunFromAries(OleDate moment) {
  kelvaro::ClsFindPlanetPosition f;
  f.FindSunMoonValues(moment, "N", 23, 11, "E", 75, 46, 5.5, "E", 0, "Lahiri", 0, 0);
  const double lon = f.FnFindSunPosition();
  return lon > 180 ? lon - 360 : lon;
}

// The first whole minute (the engine reads minutes) at which the Sun stands at
// or past 0 Aries, searched between 8 and 20 April.
OleDate EntryMoment(int year) {
  long lo = 0, hi = 12 * 1440;
  const OleDate base = OleDate::FromParts(year, 4, 8);
  auto at = [&](long minute) { return DateAdd(Interval::Minute, static_cast<double>(minute), base); };
  if (SunFromAries(at(lo)) >= 0 || SunFromAries(at(hi)) < 0) {
    throw std::runtime_error("the Sun's entry into Aries is not between 8 and 20 April " + std::to_string(year));
  }
  while (hi - lo > 1) {
    const long mid = (lo + hi) / 2;
    (SunFromAries(at(mid)) >= 0 ? hi : lo) = mid;
  }
  return at(hi);
}

class OneRow : public kelvaro::KaliyugaYearTable {
 public:
  OneRow(int yearno, kelvaro::KaliyugaYearValues values) : yearno_(yearno), values_(std::move(values)) {}
  std::optional<kelvaro::KaliyugaYearValues> Row(int yearno) const override {
    if (yearno != yearno_) return std::nullopt;
    return values_;
  }

 private:
  int yearno_;
  kelvaro::KaliyugaYearValues values_;
};

struct Derived {
  int DayVal;
  double YearRemain;
  OleDate entry, start;
};

Derived Derive(int year, const kelvaro::KaliyugaYearValues& names) {
  const OleDate entry = EntryMoment(year);
  const OleDate entryDay = entry.DateOnly();
  const kelvaro::SunTimes day = UjjainSunTimes(entryDay);
  // The target day, and the fraction of it from sunrise to the entry (none
  // when the entry lies before that sunrise or after that day's sunset).
  OleDate target = entryDay;
  double fraction = 0;
  if (entry >= day.sunset) {
    target = DateAdd(Interval::Day, 1, entryDay);
  } else if (entry > day.sunrise) {
    const double exact = static_cast<double>(kelvaro::DateDiff(Interval::Second, day.sunrise, entry)) / 86400;
    fraction = std::floor(exact / kFractionStep) * kFractionStep;  // down, so the rule never passes the entry
  }
  // f = YearRemain + correction must have that fraction; keep YearRemain in 0..1.
  const double correction = year < 2046 ? 0.7609 : 0.2814;
  const int weekdayAdded = year < 2046 ? 1 : 0;
  double remain = fraction - correction;
  if (remain < 0) remain += 1;
  remain = std::round(remain / kFractionStep) * kFractionStep;
  const int whole = static_cast<int>(kelvaro::Int(remain + correction));
  const int dayVal = ((target.Weekday() - whole - weekdayAdded - 1) % 7 + 7) % 7 + 1;

  kelvaro::KaliyugaYearValues row = names;
  row.DayVal = static_cast<std::int16_t>(dayVal);
  row.YearRemain = remain;
  const auto start = kelvaro::FindYearStart(year, OneRow(kelvaro::KaliyugaYearNumber(year), row), UjjainSunTimes);
  const OleDate wanted = UjjainSunTimes(target).sunrise;
  if (!start || *start != wanted) {
    throw std::runtime_error("the derived row of " + std::to_string(year) + " does not land on " +
                             kelvaro::FormatDate(wanted, "dd/mmm/yyyy hh:mm AM/PM"));
  }
  return {dayVal, remain, entry, *start};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: kelvaro_derive_kaliyuga_years data/kaliyuga_years.csv > new.csv\n";
    return 2;
  }
  std::ifstream in(argv[1]);
  std::string line;
  if (!in || !std::getline(in, line)) {
    std::cerr << "cannot read " << argv[1] << "\n";
    return 1;
  }
  std::map<int, kelvaro::KaliyugaYearValues> rows;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty()) continue;
    std::istringstream fields(line);
    std::string yearno, name, yearVal;
    std::getline(fields, yearno, ',');
    std::getline(fields, name, ',');
    std::getline(fields, yearVal, ',');
    rows[std::stoi(yearno)] = {name, std::stod(yearVal), 0, 0};
  }
  if (rows.size() != 60) {
    std::cerr << argv[1] << " must hold sixty rows\n";
    return 1;
  }
  try {
    std::printf("Yearno,yearname,YearVal,DayVal,YearRemain\n");
    for (int yearno = 1; yearno <= 60; ++yearno) {
      const int year = kFirstYear + yearno - 1;
      const Derived d = Derive(year, rows[yearno]);
      std::printf("%d,%s,%.0f,%d,%.4f\n", yearno, rows[yearno].yearname.c_str(), rows[yearno].YearVal, d.DayVal,
                  d.YearRemain);
      std::fprintf(stderr, "%d %-12s entry %s  year start %s\n", year, rows[yearno].yearname.c_str(),
                   kelvaro::FormatDate(d.entry, "dd/mmm/yyyy HH:NN").c_str(),
                   kelvaro::FormatDate(d.start, "dd/mmm/yyyy HH:NN").c_str());
    }
  } catch (const std::exception& e) {
    std::cerr << "kelvaro_derive_kaliyuga_years: " << e.what() << "\n";
    return 1;
  }
  return 0;
}
