#include "panchanga/tithi.h"

#include <array>
#include <cstdint>

namespace kelvaro {

namespace {

// One lunar day: 12 degrees of elongation of the Moon from the Sun, upper
// bound included (the first row from 0 included). The karana of the first
// half covers up to 6 degrees into the row, that bound included.
// The spellings vary from row to row ("Bav"/"Bava", "Balav"/"Balava",
// "Kaulav"/"Kaulava", "Gar"): they are the almanac's printed names and stay.
struct TithiRow {
  double upTo;  // elongation, degrees, included
  std::int16_t no;
  const char* name;
  const char* side;
  const char* firstKarana;
  const char* secondKarana;
};

constexpr std::array<TithiRow, 30> kTithis = {{
    {12, 1, "Pratipada", "Bright", "Kintughna", "Bava"},
    {24, 2, "Dwitiya", "Bright", "Balav", "Kaulav"},
    {36, 3, "Tritiya", "Bright", "Taitila", "Gar"},
    {48, 4, "Chaturthi", "Bright", "Vanija", "Vishti"},
    {60, 5, "Panchami", "Bright", "Bav", "Balav"},
    {72, 6, "Shasthi", "Bright", "Kaulava", "Taitila"},
    {84, 7, "Saptami", "Bright", "Gar", "Vanija"},
    {96, 8, "Ashtami", "Bright", "Vishti", "Bav"},
    {108, 9, "Navami", "Bright", "Balava", "Kaulava"},
    {120, 10, "Dashami", "Bright", "Taitila", "Gar"},
    // 11-20
    {132, 11, "Ekadashi", "Bright", "Vanija", "Vishti"},
    {144, 12, "Dwadashi", "Bright", "Bav", "Balav"},
    {156, 13, "Triyodashi", "Bright", "Kaulava", "Taitila"},
    {168, 14, "Chaturdashi", "Bright", "Gar", "Vanija"},
    {180, 15, "Purnima", "Bright", "Vishti", "Bav"},
    {192, 16, "Pratipada", "Dark", "Balav", "Kaulava"},
    {204, 17, "Dwitiya", "Dark", "Taitila", "Gar"},
    {216, 18, "Tritiya", "Dark", "Vanija", "Vishti"},
    {228, 19, "Chaturthi", "Dark", "Bav", "Balav"},
    {240, 20, "Panchami", "Dark", "Kaulava", "Taitila"},
    // 21-30
    {252, 21, "Shasthi", "Dark", "Gar", "Vanija"},
    {264, 22, "Saptami", "Dark", "Vishti", "Bav"},
    {276, 23, "Ashtami", "Dark", "Balava", "Kaulava"},
    {288, 24, "Navami", "Dark", "Taitila", "Gar"},
    {300, 25, "Dashami", "Dark", "Vanija", "Vishti"},
    {312, 26, "Ekadashi", "Dark", "Bav", "Balava"},
    {324, 27, "Dwadashi", "Dark", "Kaulava", "Taitila"},
    {336, 28, "Triyodashi", "Dark", "Gar", "Vanija"},
    {348, 29, "Chaturdashi", "Dark", "Vishti", "Shakuni"},
    {360, 30, "Amavashya", "Dark", "Chatushpada", "Naga"},
}};

constexpr double kKaranaSpan = 6;    // degrees of elongation, half a lunar day
constexpr double kFullCircle = 360;  // degrees

}  // namespace

// The lunar searches call this some thousands of times per horoscope: a plain
// walk of thirty rows, and the results assigned from literals that fit in the
// strings' own buffers, so nothing is allocated.
void clsTithi::FindTithi() {
  sun_ = sunC;
  moon_ = moonA;
  // Strictly above: equal longitudes are elongation 0, new moon's first row.
  if (sun_ > moon_) moon_ += kFullCircle;
  const double elongation = moon_ - sun_;

  // An elongation below 0 or above 360 (only from inputs outside 0 to 360)
  // matches no row, and the previous results stay.
  if (!(elongation >= 0)) return;
  double rowStart = 0;
  for (const TithiRow& row : kTithis) {
    if (elongation <= row.upTo) {
      Tithi = row.name;
      TithiPosition = row.side;
      TithiNo = row.no;
      Karnam = (elongation - rowStart <= kKaranaSpan) ? row.firstKarana : row.secondKarana;
      return;
    }
    rowStart = row.upTo;
  }
}

std::string KaranaOfTithi(int tithiNo, int half) {
  if (tithiNo < 1 || tithiNo > 30) return {};
  const TithiRow& row = kTithis[static_cast<size_t>(tithiNo - 1)];
  return half == 1 ? row.firstKarana : row.secondKarana;
}

std::string TithiNameOf(clsTithi& tithi, double moon, double sun) {
  tithi.moonA = moon;
  tithi.sunC = sun;
  tithi.FindTithi();
  return tithi.Tithi;
}

std::int16_t TithiNumberOf(clsTithi& tithi, double moon, double sun) {
  tithi.moonA = moon;
  tithi.sunC = sun;
  tithi.FindTithi();
  return tithi.TithiNo;
}

std::string TithiSideOf(clsTithi& tithi, double moon, double sun) {
  tithi.moonA = moon;
  tithi.sunC = sun;
  tithi.FindTithi();
  return tithi.TithiPosition;
}

}  // namespace kelvaro
