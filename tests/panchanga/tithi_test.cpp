#include "panchanga/tithi.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "support/test_data.h"

namespace kelvaro {
namespace {

struct TithiExpect {
  std::int16_t no;
  const char* name;
  const char* side;
  const char* karana;
};

void ExpectTithi(const clsTithi& t, const TithiExpect& e) {
  EXPECT_EQ(t.TithiNo, e.no);
  EXPECT_EQ(t.Tithi, e.name);
  EXPECT_EQ(t.TithiPosition, e.side);
  EXPECT_EQ(t.Karnam, e.karana);
}

clsTithi TithiAt(double moon, double sun) {
  clsTithi t;
  t.moonA = moon;
  t.sunC = sun;
  t.FindTithi();
  return t;
}

double Above(double x) { return std::nextafter(x, std::numeric_limits<double>::infinity()); }

// The rows of tests/data/panchanga/tithi_rows.txt. With the Sun at 0 the
// elongation is the Moon's longitude exactly, so each row's bounds can be hit
// to the last bit. Row k (1-based) runs from 12(k-1), excluded (row 1:
// included), to 12k, included; its first karana to 12(k-1)+6 included.
TEST(Tithi, RowsAtTheirBoundsAndTheirKaranaHalves) {
  const auto rows = testing::TestDataTable("panchanga/tithi_rows.txt");
  ASSERT_EQ(rows.size(), 7u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 5u);
    SCOPED_TRACE(row[0]);
    const auto no = static_cast<std::int16_t>(std::stoi(row[0]));
    const TithiExpect first{no, row[1].c_str(), row[2].c_str(), row[3].c_str()};
    const TithiExpect second{no, row[1].c_str(), row[2].c_str(), row[4].c_str()};
    const double start = 12.0 * (no - 1);
    if (no > 1) ExpectTithi(TithiAt(Above(start), 0), first);
    ExpectTithi(TithiAt(start + 6, 0), first);
    ExpectTithi(TithiAt(Above(start + 6), 0), second);
    ExpectTithi(TithiAt(12.0 * no, 0), second);
  }
}

// The elongations of tests/data/panchanga/tithi_elongations.txt.
TEST(Tithi, WorkedElongations) {
  const auto rows = testing::TestDataTable("panchanga/tithi_elongations.txt");
  ASSERT_EQ(rows.size(), 6u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 7u);
    SCOPED_TRACE(row[6]);
    const auto no = static_cast<std::int16_t>(std::stoi(row[2]));
    ExpectTithi(TithiAt(std::stod(row[0]), std::stod(row[1])), {no, row[3].c_str(), row[4].c_str(), row[5].c_str()});
  }
}

// An elongation outside 0 to 360 matches no row: every result keeps the value
// of the previous call on the same object.
TEST(Tithi, OutOfRangeKeepsThePreviousResults) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  struct Case {
    const char* why;
    double moon, sun;
  } cases[] = {
      {"Moon 400: elongation 390", 400, 10},
      {"Sun 400 above Moon 10: 370 - 400 = -30", 10, 400},
      {"just above 360", Above(360), 0},
      {"Sun below 0: 10 - (-355) = 365", 10, -355},
      {"not a number", nan, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.why);
    clsTithi t;
    // 275.4562 - 88.3176 = 187.1386: row 16, second half (worked above).
    t.moonA = 275.4562;
    t.sunC = 88.3176;
    t.FindTithi();
    t.moonA = c.moon;
    t.sunC = c.sun;
    t.FindTithi();
    ExpectTithi(t, {16, "Pratipada", "Dark", "Kaulava"});
  }
  // A fresh object that never matched keeps its empty results.
  clsTithi fresh = TithiAt(400, 10);
  ExpectTithi(fresh, {0, "", "", ""});
}

// The wrappers set both inputs on the shared instance, run it and hand back
// one result each; the instance keeps all four results of the last call.
TEST(Tithi, WrappersRunTheSharedInstance) {
  clsTithi shared;
  EXPECT_EQ(TithiNameOf(shared, 10, 350), "Dwitiya");  // elongation 20, worked above
  EXPECT_EQ(shared.moonA, 10);
  EXPECT_EQ(shared.sunC, 350);
  EXPECT_EQ(shared.Karnam, "Kaulav");

  // 275.4562 - 88.3176 = 187.1386: row 16.
  EXPECT_EQ(TithiNumberOf(shared, 275.4562, 88.3176), 16);
  EXPECT_EQ(shared.Tithi, "Pratipada");
  // 100 + 360 - 300 = 160: row 14, Bright. 310 - 100 = 210: row 18 (204, 216],
  // Dark, 6 in: first half.
  EXPECT_EQ(TithiSideOf(shared, 100, 300), "Bright");
  EXPECT_EQ(shared.TithiNo, 14);
  EXPECT_EQ(TithiSideOf(shared, 310, 100), "Dark");
  EXPECT_EQ(shared.TithiNo, 18);
  EXPECT_EQ(shared.Karnam, "Vanija");

  // Out of range through a wrapper: the previous result comes back.
  EXPECT_EQ(TithiNameOf(shared, 400, 10), "Tritiya");
  EXPECT_EQ(TithiNumberOf(shared, 400, 10), 18);
  EXPECT_EQ(TithiSideOf(shared, 10, 400), "Dark");
}

}  // namespace
}  // namespace kelvaro
