#include <benchmark/benchmark.h>

#include "horoscope/birth_offset.h"
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

// What the birth form does at each keystroke in the date, time or place: the
// form's texts read and the offset decided, with its line.
static void BM_BirthFormOffsetDecision(benchmark::State& state) {
  const kelvaro::store::SystemZoneRules rules;
  kelvaro::BirthFormFields form;
  form.day = "14", form.month = "Jul", form.year = "1943", form.hour = "02", form.minute = "15", form.pm = true;
  form.lonDeg = 88, form.lonMin = 22, form.timeDiff = 5.5;
  benchmark::DoNotOptimize(kelvaro::DecideBirthOffset(form, "Asia/Kolkata", false, kelvaro::Fold::Earlier, rules));
  for (auto _ : state) {
    kelvaro::OffsetDecision d = kelvaro::DecideBirthOffset(form, "Asia/Kolkata", false, kelvaro::Fold::Earlier, rules);
    benchmark::DoNotOptimize(d);
  }
}
BENCHMARK(BM_BirthFormOffsetDecision);
