#include "panchanga/solar_calendar.h"

#include <cstdlib>

#include "common/number_rules.h"

namespace kelvaro {

namespace {

// Offset of each month from the year start: the day count plus the whole
// part of (the year's fraction + the month's fraction); the fractional part
// of that sum gives hours and minutes.
struct MonthRow {
  const char* name;
  int days;
  double fraction;
};
constexpr std::array<MonthRow, 12> kMonths = {{
    {"Chaitra", 0, 0},  // the year start itself
    {"Vaisakha", 30, 0.9255},
    {"Jyeshtha", 62, 0.3289},
    {"Ashadha", 93, 0.9394},
    {"Sravana", 125, 0.4094},
    {"Bhadrapada", 156, 0.4456},
    {"Asvina", 186, 0.9017},
    {"Karttika", 216, 0.8036},
    {"Margasira", 246, 0.3103},
    {"Pausha", 275, 0.6583},
    {"Magha", 305, 0.1128},
    {"Phalguna", 334, 0.9194},
}};

// The Kaliyuga year by sixty-year period: the years crossed since the
// anchor ("1 / 1 / 1866" and so on) plus the period's number.
struct KaliyugaPeriod {
  int yearFrom;
  int yearBefore;  // 0: no upper bound
  int anchorYear;  // 1 January of it
  std::int32_t added;
};
constexpr KaliyugaPeriod kKaliyugaPeriods[] = {
    {1866, 1926, 1866, 4967},
    {1926, 1986, 1926, 5027},
    {1986, 2046, 1986, 5087},
    {2046, 0, 2046, 5147},
};

// The Kali day count is reckoned from the value 1 / 1 / 1800 (one divided by
// one divided by 1800, about 48 seconds into the date origin, not a date in
// 1800), plus this number.
constexpr double kKaliDayOrigin = 1.0 / 1.0 / 1800.0;
constexpr std::int32_t kKaliDaysAdded = 1790030;

std::int16_t DayCount(std::int64_t days) { return CInt(static_cast<double>(days)); }

}  // namespace

SolarMonthStarts SolarMonthsOf(const YearStart& start, const SunTimesOfDate& sunTimes) {
  SolarMonthStarts months;
  months.names[0] = kMonths[0].name;
  months.starts[0] = SunTimesOf(start.moment, sunTimes).sunrise;
  for (size_t m = 1; m < kMonths.size(); ++m) {
    const double x = start.fraction + kMonths[m].fraction;
    const double days = Int(x) + kMonths[m].days;
    const double hours = (x - Int(x)) * 24;
    const double minutes = (hours - Int(hours)) * 24;  // 24 again, as for the year start
    OleDate t = DateAdd(Interval::Day, days, start.moment);
    t = DateAdd(Interval::Hour, Int(hours), t);
    t = DateAdd(Interval::Minute, Int(minutes), t);
    const DaySunTimes day = SunTimesOf(t, sunTimes);
    months.names[m] = kMonths[m].name;
    months.starts[m] = t < day.sunset ? SunriseOf(t, sunTimes) : SunriseOf(DateAdd(Interval::Day, 1, t), sunTimes);
  }
  return months;
}

SolarDay SolarDayOf(OleDate monthStart, OleDate nextMonthStart, OleDate moment, const SunTimesOfDate& sunTimes) {
  const std::int64_t base = std::llabs(DateDiff(Interval::Day, monthStart, moment));
  SolarDay result;
  result.length = DayCount(std::llabs(DateDiff(Interval::Day, monthStart, nextMonthStart)));
  const DaySunTimes today = SunTimesOf(moment, sunTimes);
  const OleDate yesterday = SunriseOf(DateAdd(Interval::Day, -1, moment), sunTimes);
  if (moment >= today.sunrise && moment < today.nextSunrise) {
    result.day = DayCount(base + 1);
  } else if (moment >= yesterday && moment < today.sunrise) {
    result.day = DayCount(base);  // before sunrise the previous solar day runs on
  }
  if (result.day == 0) result.day = 1;
  return result;
}

SolarMonth SolarMonths(const YearStart& start, OleDate yearEnd, OleDate moment, const SunTimesOfDate& sunTimes) {
  const SolarMonthStarts months = SolarMonthsOf(start, sunTimes);
  SolarMonth found;
  for (size_t i = 0; i < months.starts.size(); ++i) {
    const OleDate next = i + 1 < months.starts.size() ? months.starts[i + 1] : yearEnd;
    if (moment >= months.starts[i] && moment < next) {
      found.index = static_cast<int>(i) + 1;
      found.name = months.names[i];
      found.start = months.starts[i];
      found.day = SolarDayOf(months.starts[i], next, moment, sunTimes);
      break;
    }
  }
  return found;
}

std::int32_t KaliyugaYearOf(OleDate moment) {
  const int year = moment.Year();
  for (const auto& p : kKaliyugaPeriods) {
    if (year >= p.yearFrom && (p.yearBefore == 0 || year < p.yearBefore)) {
      return static_cast<std::int32_t>(DateDiff(Interval::Year, OleDate::FromParts(p.anchorYear, 1, 1), moment)) +
             p.added;
    }
  }
  return 0;
}

std::int32_t KaliDays(OleDate today) {
  return static_cast<std::int32_t>(DateDiff(Interval::Day, OleDate(kKaliDayOrigin), today)) + kKaliDaysAdded;
}

std::string SolarDateText(const SolarDate& date) {
  if (!date.found) return {};
  return std::to_string(date.day) + "  /  " + date.monthName + "  /  " + date.yearName;
}

SolarDate SolarCalendar::SolarDateOf(OleDate moment, OleDate today, const SunTimesOfDate& sunTimes) {
  const int year = moment.Year();
  const auto thisYear = FindYearStartAndFraction(year, table_, sunTimes);
  const auto lastYear = FindYearStartAndFraction(year - 1, table_, sunTimes);
  const auto nextYear = FindYearStartAndFraction(year + 1, table_, sunTimes);

  SolarDate result;
  const YearStart* start = nullptr;
  OleDate yearEnd;
  int nameYear = 0;
  if (thisYear && nextYear && moment >= thisYear->moment && moment < nextYear->moment) {
    start = &*thisYear;
    yearEnd = nextYear->moment;
    nameYear = year;
  } else if (lastYear && thisYear && moment >= lastYear->moment && moment < thisYear->moment) {
    start = &*lastYear;
    yearEnd = thisYear->moment;
    nameYear = year - 1;
  }
  if (start) {
    const SolarMonth month = SolarMonths(*start, yearEnd, moment, sunTimes);
    if (month.index != 0) {
      monthName_ = month.name;
      result.found = true;
      result.day = month.day.day;
      result.monthStart = month.start;
      result.monthLength = month.day.length;
    }
    result.yearName = KaliyugaYearName(nameYear, table_);
    result.kaliyugaYear = KaliyugaYearOf(start->moment);
  }
  result.monthName = monthName_;
  result.kaliDays = KaliDays(today);
  return result;
}

}  // namespace kelvaro
