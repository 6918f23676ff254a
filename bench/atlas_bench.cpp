#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

#include "store/database.h"
#include "store/place_search.h"
#include "temporary_database.h"

// A new database file with its seed data and the whole atlas: what the first
// start of the program pays once.
static void BM_FreshDatabaseWithAtlas(benchmark::State& state) {
  const auto folder = std::filesystem::temp_directory_path() / ("kelvaro-bench-" + std::to_string(std::random_device()()));
  std::filesystem::create_directories(folder);
  for (auto _ : state) {
    { kelvaro::store::Database db(folder / "DBMirvaneBasic.db"); }
    state.PauseTiming();
    std::filesystem::remove(folder / "DBMirvaneBasic.db");
    state.ResumeTiming();
  }
  std::filesystem::remove_all(folder);
}
BENCHMARK(BM_FreshDatabaseWithAtlas)->Unit(benchmark::kMillisecond);

// Reading every place into the search index (the birth form does it once).
static void BM_PlaceIndexLoad(benchmark::State& state) {
  kelvaro::bench::TemporaryDatabase db;
  for (auto _ : state) {
    auto index = kelvaro::store::PlaceIndex::Load(db.Db());
    benchmark::DoNotOptimize(index);
  }
}
BENCHMARK(BM_PlaceIndexLoad)->Unit(benchmark::kMillisecond);

// One search per keystroke: the worst are the first letters, which match the
// most places.
static void BM_PlaceSearchKeystroke(benchmark::State& state) {
  kelvaro::bench::TemporaryDatabase db;
  const auto index = kelvaro::store::PlaceIndex::Load(db.Db());
  const std::string typed = state.range(0) == 0 ? "s" : "Hyderabad";
  for (auto _ : state) {
    auto found = index.Find(typed);
    benchmark::DoNotOptimize(found);
  }
}
BENCHMARK(BM_PlaceSearchKeystroke)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
