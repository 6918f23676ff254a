#include <benchmark/benchmark.h>

#include "common/date_text.h"

// The birth text is parsed for every position pass and every batch row.
static void BM_ParseBirthText(benchmark::State& state) {
  for (auto _ : state) {
    auto m = kelvaro::ParseDateTime("14/7/1965 14:15: 00");
    benchmark::DoNotOptimize(m);
  }
}
BENCHMARK(BM_ParseBirthText);
