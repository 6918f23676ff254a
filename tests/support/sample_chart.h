#pragma once
// Test helper: the name tables of the two languages, written out from the name
// lists, and the sample chart's longitudes (14/07/1965 14:15, 17N20 78E30,
// zone 5.5 E, Lahiri) from its position pass, Lagna to Maandi.
#include <array>
#include <cstdint>
#include <string>

#include "analysis/chart_data.h"

namespace kelvaro::testing {

inline ChartData EnglishNames() {
  ChartData c;
  c.language = "English";
  c.ShortNames = {"Asc", "Sun", "Moo", "Mar", "Mer", "Jup", "Ven", "Sat", "Rah", "Ket", "Gul", "Maa"};
  c.LongNames = {"Asc", "Sun", "Moon", "Mars", "Mercury", "Venus", "Jupiter", "Saturn", "Rahu", "Ketu"};
  c.RasiNames = {"Aries", "Taurus",  "Gemini",     "Cancer",   "Leo",      "Virgo",
                 "Libra", "Scorpio", "Sagitarius", "Capricon", "Aquarius", "Pisces"};
  return c;
}

// Sanskrit names, so that a local name never equals its English lord and a
// LongNames index mixed up between Venus and Jupiter shows.
inline ChartData SanskritNames() {
  ChartData c;
  c.language = "Sanskrit";
  c.ShortNames = {"Lag", "Rav", "Cha", "Kuj", "Bud", "Gur", "Suk", "San", "Rah", "Ket", "Gul", "Maa"};
  c.LongNames = {"Lagna", "Surya", "Chandra", "Kuja", "Budha", "Sukra", "Guru", "Sani", "Rahu", "Ketu"};
  c.RasiNames = {"Mesha", "Rishaba",   "Mithuna", "Kataka", "Simha",  "Kanya",
                 "Tula",  "Vrischika", "Dhanus",  "Makara", "Kumbha", "Meena"};
  return c;
}

inline constexpr std::array<double, 12> kSampleLongitude = {
    205.24722234655192, 88.3175878697087,   275.4561828767856,  164.6582273760534,
    114.62903806815622, 55.498183964240155, 112.99345829639297, 323.6090305022042,
    48.314118595505974, 228.31411859550596, 179.0066583336399,  172.58448531111418};

// Rasi and navamsa signs of the sample chart's bodies, Lagna to Maandi: the
// whole part of longitude / 30 (or / 3.33333333333333), plus 1, folded to 1..12.
inline constexpr std::array<std::int16_t, 12> kSampleRasi = {7, 3, 10, 6, 4, 2, 4, 11, 2, 8, 6, 6};
inline constexpr std::array<std::int16_t, 12> kSampleNavamsa = {2, 3, 11, 2, 11, 5, 10, 2, 3, 9, 6, 4};

// The sample chart in English names, in a style, with its Rasi or its
// Navamsa signs.
inline ChartData SampleChartData(const std::string& style, bool navamsa) {
  ChartData c = EnglishNames();
  c.chartStyle = style;
  c.longitude = kSampleLongitude;
  c.rasi = navamsa ? kSampleNavamsa : kSampleRasi;
  return c;
}

}  // namespace kelvaro::testing
