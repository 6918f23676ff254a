#include "panchanga/rasi.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace kelvaro {

namespace {

// Lower bound excluded (the first row's included), upper bound included. The
// first sign ends at 30.01, not 30, in both languages: a longitude up to
// 30.01 is still the first sign, and the second starts above it. The names
// are the almanac's spellings ("Vrishaba", "Khumba", "Sagitarius",
// "Capricon") and stay as they are.
struct RasiRow {
  std::int16_t no;
  double lower;
  double upper;
  const char* sanskrit;
  const char* english;
};

constexpr std::array<RasiRow, 12> kRasis = {{
    {1, 0, 30.01, "Mesha", "Aries"},
    {2, 30.01, 60, "Vrishaba", "Taurus"},
    {3, 60, 90, "Mithuna", "Gemini"},
    {4, 90, 120, "Kataka", "Cancer"},
    {5, 120, 150, "Simha", "Leo"},
    {6, 150, 180, "Kanya", "Virgo"},
    {7, 180, 210, "Thula", "Libra"},
    {8, 210, 240, "Vrishchika", "Scorpio"},
    {9, 240, 270, "Dhanus", "Sagitarius"},
    {10, 270, 300, "Makara", "Capricon"},
    {11, 300, 330, "Khumba", "Aquarius"},
    {12, 330, 360, "Meena", "Pisces"},
}};

constexpr double kSignSpan = 30;  // degrees
constexpr double kHalfSign = 15;  // degrees

}  // namespace

void clsRasi::findRasi() {
  position_ = PlanetPosition;

  // Exact words, case included; any other value leaves every result alone.
  bool sanskrit = false;
  if (nchkLanguage == "Sanskrit") {
    sanskrit = true;
  } else if (nchkLanguage != "English") {
    return;
  }

  for (const RasiRow& row : kRasis) {
    const bool aboveLower = (row.no == 1) ? position_ >= row.lower : position_ > row.lower;
    if (aboveLower && position_ <= row.upper) {
      RasiName = sanskrit ? row.sanskrit : row.english;
      RasiNo = row.no;
      break;
    }
  }

  // The half is worked out even when no sign matched. The first 30 comes off
  // unconditionally, so 0 to 30 gives a rest of 0 or less and always half 1,
  // and an exact multiple of 30 from 60 on stops at a rest of 30, half 2.
  // Taking 30 off while the rest is above 30 leaves the rest in (0, 30]; every
  // such subtraction is exact, so one fmod gives the same value and cannot
  // spin on a huge or infinite input.
  double rest = position_ - kSignSpan;
  if (rest > kSignSpan) {
    rest = std::fmod(rest, kSignSpan);
    if (rest == 0) rest = kSignSpan;
  }
  RasiHalf = (rest <= kHalfSign) ? 1 : 2;
}

}  // namespace kelvaro
