#include <benchmark/benchmark.h>

#include "horoscope/daily_almanac.h"
#include "store/database.h"
#include "store/kaliyuga_year_table.h"
#include "temporary_database.h"

namespace {

using namespace kelvaro;

AlmanacPlace Hyderabad() {
  AlmanacPlace p;
  p.place = {"N", 17, 20, "E", 78, 30, 5.5, "E"};
  return p;
}

const OleDate kFirstDay = OleDate::FromParts(2024, 1, 1);

// The whole almanac of one day: sunrises, the searched ends, both lunar
// dates, the solar date, the periods and the planets.
void BM_AlmanacDay(benchmark::State& state) {
  bench::TemporaryDatabase database;
  store::DatabaseKaliyugaYearTable table(database.Db());
  DailyAlmanacMaker maker(table);
  const AlmanacPlace place = Hyderabad();
  int day = 0;
  for (auto _ : state) {
    DailyAlmanac a = maker.DayOf(DateAdd(Interval::Day, day++ % 30, kFirstDay), place);
    benchmark::DoNotOptimize(a);
  }
}
BENCHMARK(BM_AlmanacDay)->Unit(benchmark::kMillisecond);

// The same on a maker of its own each time: the first day a window or the
// command line asks for, with nothing kept from a day before.
void BM_AlmanacDayFirst(benchmark::State& state) {
  bench::TemporaryDatabase database;
  store::DatabaseKaliyugaYearTable table(database.Db());
  const AlmanacPlace place = Hyderabad();
  int day = 0;
  for (auto _ : state) {
    DailyAlmanacMaker maker(table);
    DailyAlmanac a = maker.DayOf(DateAdd(Interval::Day, day++ % 30, kFirstDay), place);
    benchmark::DoNotOptimize(a);
  }
}
BENCHMARK(BM_AlmanacDayFirst)->Unit(benchmark::kMillisecond);

// The month at a glance: thirty-one lines of tithi, star and yoga at sunrise
// with their ends.
void BM_AlmanacMonthTable(benchmark::State& state) {
  bench::TemporaryDatabase database;
  store::DatabaseKaliyugaYearTable table(database.Db());
  DailyAlmanacMaker maker(table);
  const AlmanacPlace place = Hyderabad();
  for (auto _ : state) {
    for (int day = 0; day < 31; ++day) {
      DailyAlmanac a = maker.SunriseLineOf(DateAdd(Interval::Day, day, kFirstDay), place);
      benchmark::DoNotOptimize(a);
    }
  }
}
BENCHMARK(BM_AlmanacMonthTable)->Unit(benchmark::kMillisecond);

}  // namespace
