#pragma once
// The ten views of a horoscope, as the tree lists them: the node's text, its
// key, and the view name that the driver's CurrentView holds.
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace kelvaro {

struct HoroscopeView {
  std::string_view nodeText;
  std::string_view key;   // "Bava" is spelled so
  std::string_view name;  // CurrentView
};

inline constexpr std::array<HoroscopeView, 10> kHoroscopeViews{{
    {"Birth Details", "User", "Details"},
    {"Rasi", "Rasi", "Rasi"},
    {"Navamsa", "Navamsa", "Navamsa"},
    {"Bhava", "Bava", "Bhava"},
    {"Bhava Features", "BP", "Bhava Features"},
    {"Planet Positions", "PP", "Planet Positions"},
    {"Vargas", "Vargas", "Vargas"},
    {"Ashta Vargas", "AshtaVargas", "AVargas"},
    {"Dasa", "Dasa", "Dasa"},
    {"Print", "Print", "Print"},
}};

// The view a CurrentView names; the empty name, and any name not listed, is
// the birth details (index 0).
std::size_t ViewIndexOfName(std::string_view currentView);
std::optional<std::size_t> ViewIndexOfKey(std::string_view key);

}  // namespace kelvaro
