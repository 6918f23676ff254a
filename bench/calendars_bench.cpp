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
#include "store/kaliyuga_year_table.h"

namespace {

using namespace kelvaro;

// A new database in the temporary folder, removed at the end, so that the
// year rows are read the way the program reads them.
class TemporaryDatabase {
 public:
  TemporaryDatabase()
      : folder_(std::filesystem::temp_directory_path() / ("kelvaro-bench-" + std::to_string(std::random_device()()))),
        db_((std::filesystem::create_directories(folder_), folder_ / "DBMirvaneBasic.db")) {}
  ~TemporaryDatabase() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  store::Database& Db() { return db_; }

 private:
  std::filesystem::path folder_;
  store::Database db_;
};

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
