#include "panchanga/solar_year.h"

#include "common/number_rules.h"

namespace kelvaro {

namespace {

// The correction of the year start by sixty-year period.
struct PeriodCorrection {
  int yearFrom;
  int yearBefore;       // 0: no upper bound
  double remainAdded;   // added to YearRemain
  int weekdayAdded;     // added to the weekday sum
  int candidates;       // how many of 12..16 April are tried
};

// The first period tries four candidates only; the others all five.
constexpr PeriodCorrection kCorrections[] = {
    {1866, 1926, 0.7189, 4, 4},
    {1926, 1986, 0.2397, 3, 5},
    {1986, 2046, 0.7609, 1, 5},
    {2046, 0, 0.2814, 0, 5},
};

const PeriodCorrection* CorrectionOf(int year) {
  for (const auto& c : kCorrections) {
    if (year >= c.yearFrom && (c.yearBefore == 0 || year < c.yearBefore)) return &c;
  }
  return nullptr;
}

}  // namespace

std::string WeekdayNameOf(int number) {
  while (number >= 8) number -= 7;
  static const char* const kNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
  if (number < 1) return {};
  return kNames[number - 1];
}

int KaliyugaYearNumber(int year) {
  int n = year - 1986;
  if (n > 60) n -= 60;
  while (n < 0) n += 60;
  if (n == 0) n = 60;
  return n;
}

std::string KaliyugaYearName(int year, const KaliyugaYearTable& table) {
  const auto row = table.Row(KaliyugaYearNumber(year));
  return row ? row->yearname : std::string();
}

std::optional<OleDate> FindYearStart(int year, const KaliyugaYearTable& table, const SunTimesOfDate& sunTimes) {
  const auto start = FindYearStartAndFraction(year, table, sunTimes);
  if (!start) return std::nullopt;
  return start->moment;
}

std::optional<YearStart> FindYearStartAndFraction(int year, const KaliyugaYearTable& table,
                                                  const SunTimesOfDate& sunTimes) {
  const auto row = table.Row(KaliyugaYearNumber(year));
  const PeriodCorrection* correction = CorrectionOf(year);
  if (!row || !correction) return std::nullopt;

  double f = row->YearRemain + correction->remainAdded;
  const std::string weekday = WeekdayNameOf(CInt(Int(f) + row->DayVal + correction->weekdayAdded));

  std::optional<OleDate> start;
  for (int day = 12; day < 12 + correction->candidates && !start; ++day) {
    const OleDate candidate = OleDate::FromParts(year, 4, day);
    if (WeekdayNameOf(candidate.Weekday()) == weekday) start = candidate;
  }
  if (!start) return std::nullopt;

  f = f - Int(f);
  const double hours = f * 24;
  const double minutes = (hours - Int(hours)) * 24;  // 24 both times: that is the rule
  const SunTimes day = sunTimes(*start);
  OleDate t = DateAdd(Interval::Minute, Int(minutes), day.sunrise);
  t = DateAdd(Interval::Hour, Int(hours), t);
  if (t >= day.sunrise && t < day.sunset) return YearStart{day.sunrise, f};
  if (t >= day.sunset) return YearStart{sunTimes(DateAdd(Interval::Day, 1, *start)).sunrise, f};
  return std::nullopt;  // not reached: t is never before the sunrise it counts from
}

}  // namespace kelvaro
