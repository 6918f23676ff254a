#include "panchanga/rasi.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "support/test_data.h"

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

// The rows of tests/data/panchanga/rasi_bounds.txt, in both languages.
TEST(Rasi, SignBoundsAndHalves) {
  const auto rows = testing::TestDataTable("panchanga/rasi_bounds.txt");
  ASSERT_EQ(rows.size(), 16u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 6u);
    SCOPED_TRACE(row[0] + " " + row[1]);
    const double position = row[1] == "above" ? Above(std::stod(row[0])) : std::stod(row[0]);
    for (const char* language : {"Sanskrit", "English"}) {
      const clsRasi r = RasiAt(position, language);
      EXPECT_EQ(r.RasiNo, std::stoi(row[2]));
      EXPECT_EQ(r.RasiName, std::string(language) == "English" ? row[4] : row[3]);
      EXPECT_EQ(r.RasiHalf, std::stoi(row[5]));
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
