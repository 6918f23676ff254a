#include <benchmark/benchmark.h>

#include "astronomy/find_planet_position.h"

namespace {

// One whole FnCalculate through the facade: the sample chart's moment and place.
void BM_FindFixValues(benchmark::State& state) {
  kelvaro::ClsFindPlanetPosition f;
  const kelvaro::OleDate moment = kelvaro::OleDate::FromParts(1965, 7, 14, 14, 15);
  for (auto _ : state) {
    f.FindFixValues(moment, "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 0, 0);
    benchmark::DoNotOptimize(f.FnFindSaturnPosition());
  }
}
BENCHMARK(BM_FindFixValues);

// The Sun-and-Moon probe of the lunar-date searches.
void BM_FindSunMoonValues(benchmark::State& state) {
  kelvaro::ClsFindPlanetPosition f;
  const kelvaro::OleDate moment = kelvaro::OleDate::FromParts(1965, 7, 14, 14, 15);
  for (auto _ : state) {
    f.FindSunMoonValues(moment, "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 0, 0);
    benchmark::DoNotOptimize(f.FnFindMoonPosition());
  }
}
BENCHMARK(BM_FindSunMoonValues);

}  // namespace
