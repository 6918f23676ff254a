#include "horoscope/views.h"

namespace kelvaro {

std::size_t ViewIndexOfName(std::string_view currentView) {
  for (std::size_t i = 0; i < kHoroscopeViews.size(); ++i) {
    if (kHoroscopeViews[i].name == currentView) return i;
  }
  return 0;
}

std::optional<std::size_t> ViewIndexOfKey(std::string_view key) {
  for (std::size_t i = 0; i < kHoroscopeViews.size(); ++i) {
    if (kHoroscopeViews[i].key == key) return i;
  }
  return std::nullopt;
}

}  // namespace kelvaro
