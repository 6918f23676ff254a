#include "panchanga/rasi.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace kelvaro {
namespace {

double Above(double x) { return std::nextafter(x, std::numeric_limits<double>::infinity()); }
double Below(double x) { return std::nextafter(x, -std::numeric_limits<double>::infinity()); }

clsRasi RasiAt(double position, const char* language) {
  clsRasi r;
  r.nchkLanguage = language;
  r.PlanetPosition = position;
  r.findRasi();
  return r;
}

// Sign upper bounds, included, and the next double above, in both languages;
// the first sign reaches to 30.01. The half, worked by hand: 30 comes off
// once, then again while the rest is above 30; a rest of at most 15 is half 1.
// At 30k (k >= 2) the rest stops at exactly 30: half 2. Just above 30k it is
// a hair above 0: half 1.
TEST(Rasi, SignBoundsAndHalves) {
  struct Case {
    double position;
    std::int16_t no;
    const char* sanskrit;
    const char* english;
    std::int16_t half;
  } cases[] = {
      {0, 1, "Mesha", "Aries", 1},
      {15, 1, "Mesha", "Aries", 1},  // rest -15: the first sign has no second half
      {30, 1, "Mesha", "Aries", 1},  // rest 0
      {30.01, 1, "Mesha", "Aries", 1},  // 30.01 - 30 = 0.01
      {Above(30.01), 2, "Vrishaba", "Taurus", 1},
      {45.0, 2, "Vrishaba", "Taurus", 1},  // rest 15, included in half 1
      {Above(45.0), 2, "Vrishaba", "Taurus", 2},
      {60, 2, "Vrishaba", "Taurus", 2},    // rest 30, not above 30: stays 30
      {Above(60), 3, "Mithuna", "Gemini", 1},
      {180, 6, "Kanya", "Virgo", 2},
      {Above(180), 7, "Thula", "Libra", 1},
      {330, 11, "Khumba", "Aquarius", 2},
      {Above(330), 12, "Meena", "Pisces", 1},
      {345, 12, "Meena", "Pisces", 1},    // 315 -> ... -> 15
      {359.9, 12, "Meena", "Pisces", 2},  // 329.9 -> ... -> 29.9 (inexact, but well clear of 15)
      {360, 12, "Meena", "Pisces", 2},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.position);
    for (const char* language : {"Sanskrit", "English"}) {
      const clsRasi r = RasiAt(c.position, language);
      EXPECT_EQ(r.RasiNo, c.no);
      EXPECT_EQ(r.RasiName, std::string(language) == "English" ? c.english : c.sanskrit);
      EXPECT_EQ(r.RasiHalf, c.half);
    }
  }
}

// With any language word but the two exact ones, nothing at all is assigned.
TEST(Rasi, OtherLanguageWordsAssignNothing) {
  const char* words[] = {"sanskrit", "ENGLISH", "", "Hindi", "English "};
  for (const char* word : words) {
    SCOPED_TRACE(word);
    clsRasi r = RasiAt(100, "English");  // Cancer, 4; 70 -> 40 -> 10: half 1
    r.nchkLanguage = word;
    r.PlanetPosition = 45.5;  // would be Taurus, 2, half 2
    r.findRasi();
    EXPECT_EQ(r.RasiName, "Cancer");
    EXPECT_EQ(r.RasiNo, 4);
    EXPECT_EQ(r.RasiHalf, 1);
  }
  const clsRasi fresh = RasiAt(100, "Tamil");
  EXPECT_EQ(fresh.RasiName, "");
  EXPECT_EQ(fresh.RasiNo, 0);
  EXPECT_EQ(fresh.RasiHalf, 0);
}

// Outside 0 to 360 no sign matches and name and number stay; the half is
// still worked out from the position. A position that no almanac gives must
// still return: the folding of the half is not a loop that could spin on it.
TEST(Rasi, OutOfRangeKeepsTheSignButWorksTheHalf) {
  struct Case {
    double position;
    std::int16_t half;  // 0: not looked at
  } cases[] = {
      {360.5, 1},       // 330.5 -> ... -> 0.5
      {375.5, 2},       // 345.5 -> ... -> 15.5
      {Above(360), 1},  // a hair above 0 after the folds
      {Below(0), 1},    // rest just below -30
      {-10, 1},
      {1e300, 0},
      {std::numeric_limits<double>::infinity(), 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.position);
    clsRasi r = RasiAt(45.5, "Sanskrit");  // Vrishaba, 2, half 2
    r.PlanetPosition = c.position;
    r.findRasi();
    EXPECT_EQ(r.RasiName, "Vrishaba");
    EXPECT_EQ(r.RasiNo, 2);
    if (c.half != 0) {
      EXPECT_EQ(r.RasiHalf, c.half);
    }
  }
}

}  // namespace
}  // namespace kelvaro
