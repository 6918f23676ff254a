// Opening each master window offscreen on the full seed atlas, until it is
// painted: the controls, the country lists and, for the city and time zone
// masters, the grid of the country with the most cities or zones (the
// birth form opens them on its country). Target: under 100 ms each.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

#include "shell/city_master_dialog.h"
#include "shell/country_master_dialog.h"
#include "shell/time_zone_master_dialog.h"
#include "store/city_master.h"
#include "store/time_zone_master.h"

namespace {

namespace store = kelvaro::store;
using namespace kelvaro::shell;

struct Atlas {
  QTemporaryDir dir;
  store::Database db{dir.filePath("DBMirvaneBasic.db").toStdString()};

  template <class Size>
  std::int64_t LargestCountry(Size size) {
    std::int64_t best = 0;
    std::size_t most = 0;
    for (const auto& c : store::ListCountries(db)) {
      if (const std::size_t n = size(c.id); n > most) {
        most = n;
        best = c.id;
      }
    }
    return best;
  }
};

void Shown(QDialog* window) {
  window->show();
  window->repaint();
  QApplication::processEvents();
  window->close();
}

void BM_CountryMasterWindow(benchmark::State& state) {
  Atlas atlas;
  for (auto _ : state) {
    auto* window = new CountryMasterDialog(atlas.db, nullptr, nullptr);
    Shown(window);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}
BENCHMARK(BM_CountryMasterWindow)->Unit(benchmark::kMillisecond);

void BM_CityMasterWindow(benchmark::State& state) {
  Atlas atlas;
  const std::int64_t country = atlas.LargestCountry([&](std::int64_t id) { return store::CitiesOf(atlas.db, id).size(); });
  for (auto _ : state) {
    auto* window = new CityMasterDialog(atlas.db, nullptr, nullptr);
    window->StartWithCountry(country);
    Shown(window);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}
BENCHMARK(BM_CityMasterWindow)->Unit(benchmark::kMillisecond);

void BM_TimeZoneMasterWindow(benchmark::State& state) {
  Atlas atlas;
  const std::int64_t country = atlas.LargestCountry([&](std::int64_t id) { return store::ZonesOf(atlas.db, id).size(); });
  for (auto _ : state) {
    auto* window = new TimeZoneMasterDialog(atlas.db, nullptr, nullptr);
    window->StartWithCountry(country);
    Shown(window);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}
BENCHMARK(BM_TimeZoneMasterWindow)->Unit(benchmark::kMillisecond);

}  // namespace
