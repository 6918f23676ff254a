#include <benchmark/benchmark.h>

#include "store/system_zone_rules.h"

// The offset of one birth, looked up by zone name as the birth form and the
// command line do it (the database itself is read once, on first use).
static void BM_ZoneOffsetOneBirth(benchmark::State& state) {
  const kelvaro::store::SystemZoneRules rules;
  const kelvaro::LocalClockTime birth{1943, 7, 14, 12, 0, 88.37};
  benchmark::DoNotOptimize(rules.OffsetAt("Asia/Kolkata", birth));
  for (auto _ : state) {
    kelvaro::ClockOffset offset = rules.OffsetAt("Asia/Kolkata", birth);
    benchmark::DoNotOptimize(offset);
  }
}
BENCHMARK(BM_ZoneOffsetOneBirth);
