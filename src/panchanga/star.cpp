#include "panchanga/star.h"

#include <array>
#include <cstdint>

namespace kelvaro {

namespace {

// One star: 13 degrees 20 minutes, start excluded (the first row's included),
// end included. Every boundary is the decimal the almanac stores, to fifteen
// significant digits, not a multiple of 40/3 worked in binary: at the exact
// boundaries the stored literal decides. The three inner pada ends are the
// start plus 3.33333333333333, 6.66666666666667 and 10, rounded to the same
// digits (so 56.6666666666666 ends the first pada of Mrigshira, not ...667);
// the fourth pada ends with the star.
// firstHouse is the navamsa sign of pada 1; the others follow it. 0: HouseNo
// is not assigned in that star.
struct StarRow {
  std::int16_t no;
  const char* name;
  double start;
  double end;
  std::array<double, 3> padaEnd;
  std::int16_t firstHouse;
};

constexpr std::array<StarRow, 27> kStars = {{
    {1, "Ashwini", 0, 13.3333333333333, {3.33333333333333, 6.66666666666667, 10}, 1},
    {2, "Bharani", 13.3333333333333, 26.6666666666667, {16.6666666666666, 20, 23.3333333333333}, 5},
    {3, "Kritika", 26.6666666666667, 40, {30, 33.3333333333334, 36.6666666666667}, 9},
    {4, "Rohini", 40, 53.3333333333333, {43.3333333333333, 46.6666666666667, 50}, 1},
    {5, "Mrigshira", 53.3333333333333, 66.6666666666667, {56.6666666666666, 60, 63.3333333333333}, 5},
    {6, "Ardra", 66.6666666666667, 80, {70, 73.3333333333334, 76.6666666666667}, 9},
    {7, "Punarvasu", 80, 93.3333333333333, {83.3333333333333, 86.6666666666667, 90}, 1},
    {8, "Pushya", 93.3333333333333, 106.666666666667, {96.6666666666666, 100, 103.333333333333}, 5},
    {9, "Ashlesha", 106.666666666667, 120, {110, 113.333333333334, 116.666666666667}, 9},
    {10, "Magha", 120, 133.333333333333, {123.333333333333, 126.666666666667, 130}, 1},
    // 11-20
    {11, "P.Falguni", 133.333333333333, 146.666666666667, {136.666666666666, 140, 143.333333333333}, 5},
    {12, "U.Falguni", 146.666666666667, 160, {150, 153.333333333334, 156.666666666667}, 9},
    {13, "Hasta", 160, 173.333333333333, {163.333333333333, 166.666666666667, 170}, 1},
    {14, "Chitra", 173.333333333333, 186.666666666667, {176.666666666666, 180, 183.333333333333}, 5},
    {15, "Swati", 186.666666666667, 200, {190, 193.333333333334, 196.666666666667}, 9},
    {16, "Vishaka", 200, 213.333333333333, {203.333333333333, 206.666666666667, 210}, 1},
    {17, "Anuradha", 213.333333333333, 226.666666666667, {216.666666666666, 220, 223.333333333333}, 5},
    {18, "Jyestha", 226.666666666667, 240, {230, 233.333333333334, 236.666666666667}, 9},
    {19, "Moola", 240, 253.333333333333, {243.333333333333, 246.666666666667, 250}, 1},
    {20, "Poorvashada", 253.333333333333, 266.666666666667, {256.666666666666, 260, 263.333333333333}, 0},
    // 21-28. Uttarashada runs to 280 here; its last part from 276.666666666667
    // becomes star 22, "Uttarashada - Abijit", after the pada is found. Its
    // second pada ends at 273.333333333333, not the ...334 the rule would give.
    {21, "Uttarashada", 266.666666666667, 280, {270, 273.333333333333, 276.666666666667}, 0},
    // Pada 1 of Shravana ends at 283.333333333334, one digit past the rule, and
    // is named "Shravana - Abijit".
    {23, "Shravana", 280, 293.333333333333, {283.333333333334, 286.666666666667, 290}, 1},
    {24, "Dhanishtha", 293.333333333333, 306.666666666667, {296.666666666666, 300, 303.333333333333}, 5},
    {25, "Shatbhisha", 306.666666666667, 320, {310, 313.333333333334, 316.666666666667}, 9},
    {26, "P.Bhadrapad", 320, 333.333333333333, {323.333333333333, 326.666666666667, 330}, 1},
    {27, "U.Bhadrapad", 333.333333333333, 346.666666666667, {336.666666666666, 340, 343.333333333333}, 5},
    {28, "Revati", 346.666666666667, 360, {350, 353.333333333334, 356.666666666667}, 9},
}};

// Padas whose StarPadaDistance is taken from a value other than the pada's
// end. The pada test is the regular one; only the subtraction differs. These
// are the almanac's own constants and the printed distances depend on them, so
// they stay as they are, odd as they look: most fall a few thousandths short of
// the pada's end, Bharani's is a third of a degree past it, Ardra's twenty
// degrees past it, and Shravana - Abijit's three degrees short.
struct IrregularPadaEnd {
  std::int16_t starNo;
  std::int16_t quarter;
  double subtractFrom;
};

constexpr std::array<IrregularPadaEnd, 8> kIrregularPadaEnds = {{
    {2, 3, 23.6666666666667},   // Bharani
    {5, 1, 56.66525},           // Mrigshira
    {6, 1, 90},                 // Ardra
    {7, 1, 83.33125},           // Punarvasu
    {11, 2, 139.9965},          // P.Falguni
    {13, 1, 163.32925},         // Hasta
    {23, 1, 280.333333333333},  // Shravana - Abijit
    {23, 2, 286.6595},          // Shravana
}};

// Ashlesha pada 3 subtracts the other way about: position minus this, a
// negative distance. Kept as the almanac has it.
constexpr std::int16_t kAshleshaNo = 9;
constexpr std::int16_t kAshleshaReversedQuarter = 3;
constexpr double kAshleshaReversedFrom = 116.666666666667;

// The Abijit part at the end of Uttarashada: both bounds included, so
// 276.666666666667 itself is Abijit in pada 3.
constexpr std::int16_t kUttarashadaNo = 21;
constexpr double kAbijitStart = 276.666666666667;
constexpr double kAbijitEnd = 280;
constexpr std::int16_t kAbijitNo = 22;
constexpr const char* kAbijitName = "Uttarashada - Abijit";

constexpr std::int16_t kShravanaNo = 23;
constexpr const char* kShravanaFirstPadaName = "Shravana - Abijit";

bool InStar(const StarRow& row, double position) {
  const bool aboveStart = (row.no == 1) ? position >= row.start : position > row.start;
  return aboveStart && position <= row.end;
}

}  // namespace

void clsStar::findstar() {
  position_ = PlanetPosition;

  for (const StarRow& row : kStars) {
    if (!InStar(row, position_)) continue;

    std::int16_t quarter = 4;
    double padaEnd = row.end;
    for (std::int16_t q = 1; q <= 3; ++q) {
      if (position_ <= row.padaEnd[q - 1]) {
        quarter = q;
        padaEnd = row.padaEnd[q - 1];
        break;
      }
    }

    name_ = row.name;
    StarNo = row.no;
    StarQuarter = quarter;
    if (row.firstHouse != 0) HouseNo = static_cast<std::int16_t>(row.firstHouse + quarter - 1);

    double subtractFrom = padaEnd;
    for (const IrregularPadaEnd& irregular : kIrregularPadaEnds) {
      if (irregular.starNo == row.no && irregular.quarter == quarter) subtractFrom = irregular.subtractFrom;
    }
    if (row.no == kAshleshaNo && quarter == kAshleshaReversedQuarter) {
      StarPadaDistance = position_ - kAshleshaReversedFrom;
    } else {
      StarPadaDistance = subtractFrom - position_;
    }

    if (row.no == kUttarashadaNo && position_ >= kAbijitStart && position_ <= kAbijitEnd) {
      name_ = kAbijitName;
      StarNo = kAbijitNo;
    }
    if (row.no == kShravanaNo && quarter == 1) name_ = kShravanaFirstPadaName;
    break;
  }

  // Also when nothing matched: then the name of the last star found comes back.
  StarName = name_;
}

}  // namespace kelvaro
