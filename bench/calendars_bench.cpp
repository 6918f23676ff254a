#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

#include "astronomy/find_planet_position.h"
#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "panchanga/lunar_calendar.h"
#include "panchanga/solar_calendar.h"
#include "panchanga/tithi.h"
#include "store/database.h"
#include "temporary_database.h"
#include "store/kaliyuga_year_table.h"

namespace {

using namespace kelvaro;

using bench::TemporaryDatabase;

// The sample chart: 14/07/1965 14:15 at Hyderabad, 17N20 78E30, zone 5.5 E.
const OleDate kSampleBirth = OleDate::FromParts(1965, 7, 14, 14, 15);
const CalendarPlace kHyderabad{"N", 17, 20, "E", 78, 30, 5.5, "E"};

// Both lunar dates of one horoscope: the hourly searches of the two counts
// and of the month's start.
void BM_LunarDatesSampleChart(benchmark::State& state) {
  TemporaryDatabase database;
  store::DatabaseKaliyugaYearTable table(database.Db());
  ClsFindPlanetPosition positions;
  clsTithi tithi;
  clsFindSunrise sunrise;
  clsFindSunSet sunset;
  LunarCalendar calendar(positions, tithi, sunrise, sunset, table);
  LunarCalendarInputs in;
  in.place = kHyderabad;
  in.ayanamsa = "Lahiri";
  for (auto _ : state) {
    LunarDate k = calendar.LunarDateKrishnadi(kSampleBirth, "TP", in);
    LunarDate s = calendar.LunarDateSukladi(kSampleBirth, "TP", in);
    benchmark::DoNotOptimize(k);
    benchmark::DoNotOptimize(s);
  }
}
BENCHMARK(BM_LunarDatesSampleChart)->Unit(benchmark::kMillisecond);

// The solar date and Kaliyuga year of one horoscope: three year starts, the
// twelve month starts and the day, each with its sunrises.
void BM_SolarDateSampleChart(benchmark::State& state) {
  TemporaryDatabase database;
  store::DatabaseKaliyugaYearTable table(database.Db());
  clsFindSunrise sunrise;
  clsFindSunSet sunset;
  const SunTimesOfDate sunTimes = SunTimesAt(sunrise, sunset, kHyderabad);
  SolarCalendar calendar(table);
  const OleDate today = OleDate::FromParts(2024, 1, 1);
  for (auto _ : state) {
    SolarDate date = calendar.SolarDateOf(kSampleBirth, today, sunTimes);
    benchmark::DoNotOptimize(date);
  }
}
BENCHMARK(BM_SolarDateSampleChart)->Unit(benchmark::kMillisecond);

}  // namespace
