// The store calls under the opening of the tool windows, and a converter's
// submit. The windows must open in under 100 ms: what they read is timed
// here, the whole opening in gui/tool_windows_open_bench.cpp.
#include <benchmark/benchmark.h>

#include "horoscope/time_conversion.h"
#include "store/city_master.h"
#include "store/country_master.h"
#include "store/personal_details.h"
#include "store/preferences.h"
#include "temporary_database.h"

namespace {

using kelvaro::bench::TemporaryDatabase;
namespace store = kelvaro::store;

// Preferences: the one row.
void BM_PreferencesRead(benchmark::State& state) {
  TemporaryDatabase t;
  for (auto _ : state) benchmark::DoNotOptimize(store::ReadPreferences(t.Db()));
}
BENCHMARK(BM_PreferencesRead)->Unit(benchmark::kMicrosecond);

// Edit Personal Info: the letterhead row.
void BM_PersonalDetailsRead(benchmark::State& state) {
  TemporaryDatabase t;
  store::SavePersonalDetails(t.Db(), {"Sri Jyotisha Kendra", "12 Temple Street", "Abids", "Hyderabad", "India",
                                      "500001", "040 2345 6789", "kendra@example.org"});
  for (auto _ : state) benchmark::DoNotOptimize(store::ReadPersonalDetails(t.Db()));
}
BENCHMARK(BM_PersonalDetailsRead)->Unit(benchmark::kMicrosecond);

// A converter: every country, then the cities and zones of the one chosen.
void BM_ConverterLists(benchmark::State& state) {
  TemporaryDatabase t;
  const auto india = store::CountryByName(t.Db(), "India");
  if (!india) state.SkipWithError("no India in the seed data");
  for (auto _ : state) {
    benchmark::DoNotOptimize(store::CountriesInTableOrder(t.Db()));
    benchmark::DoNotOptimize(store::CitiesOf(t.Db(), india->id));
    benchmark::DoNotOptimize(store::ZonesOf(t.Db(), india->id));
  }
}
BENCHMARK(BM_ConverterLists)->Unit(benchmark::kMicrosecond);

// "&Submit": the place looked up and the sunrise found.
void BM_ConverterSubmit(benchmark::State& state) {
  TemporaryDatabase t;
  const auto india = store::CountryByName(t.Db(), "India");
  if (!india) state.SkipWithError("no India in the seed data");
  kelvaro::ConverterEntry entry{"14", "Jul", "1965", "02", "15", true, true, true};
  for (auto _ : state) {
    const auto city = store::CityByName(t.Db(), india->id, "Hyderabad (A.P)");
    const auto zone = kelvaro::ConverterZone(t.Db(), india->id, "");
    benchmark::DoNotOptimize(kelvaro::ConvertTime(entry, kelvaro::Conversion::ToIshtaGhati, city, zone));
  }
}
BENCHMARK(BM_ConverterSubmit)->Unit(benchmark::kMicrosecond);

}  // namespace
