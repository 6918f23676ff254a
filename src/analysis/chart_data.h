#pragma once
// ChartData: what the analysis steps read of the horoscope in force. The
// calculation driver copies it from the horoscope state before each analysis
// step; the analysis never sees the state itself.
#include <array>
#include <cstdint>
#include <string>

#include "common/ole_date.h"

namespace kelvaro {

// Canonical order of the bodies in tables, grids and loops; Gulika and Maandi
// stand last where they appear.
enum class Body { Lagna, Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, Rahu, Ketu, Gulika, Maandi };
inline constexpr int kBodyCount = 12;

struct ChartData {
  // By Body: sidereal longitudes, and the rasi numbers of the pass that ran
  // last (Rasi positions for division 30, Navamsa ones for 3.33333333333333).
  std::array<double, kBodyCount> longitude{};
  std::array<std::int16_t, kBodyCount> rasi{};
  double midHeaven = 0;
  double ayanamsa = 0;
  OleDate birthMoment;  // BirthMomentDate
  // False where no sunrise or sunset bounds the birth's day: Gulika and
  // Maandi are then not known, and not placed in any chart.
  bool gulikaMaandiKnown = true;

  // Preferences in force.
  std::string language = "English";
  std::string bhavaSystem = "Equal";
  std::string chartStyle = "South";
  double daysInYear = 365.25;
  std::string ayanamsaInForce = "Lahiri";
  double yearInForce = 0, progressInForce = 0;

  // The birth place, for the positions of the next day.
  std::string latNS = "N";
  double latDeg = 0, latMin = 0;
  std::string lonEW = "E";
  double lonDeg = 0, lonMin = 0;
  double timeDiff = 0;
  std::string timeDiffEW = "E";

  // Name tables as LoadNamesForLanguage fills them. ShortNames in the
  // canonical order (12); LongNames stands Venus before Jupiter (10):
  // Lagna, Sun, Moon, Mars, Mercury, Venus, Jupiter, Saturn, Rahu, Ketu.
  std::array<std::string, 12> ShortNames;
  std::array<std::string, 10> LongNames;
  std::array<std::string, 12> RasiNames;       // index 0 is rasi 1
  std::array<std::string, 12> RasiShortNames;  // index 0 is rasi 1

  double Longitude(Body b) const { return longitude[static_cast<size_t>(b)]; }
  std::int16_t Rasi(Body b) const { return rasi[static_cast<size_t>(b)]; }
};

}  // namespace kelvaro
