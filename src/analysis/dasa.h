#pragma once
// The Vimshottari dasa: the 120-year scheme of nine lords from the Moon at
// birth, with its sub-periods (bhukti) and third-level periods (antra).
//
// Two kinds of date stand side by side on purpose. The dasa ends add whole
// days, the year being the user's DaysInYear; the sub-periods add calendar
// days, months and years. With a DaysInYear other than 365.25 the two drift
// apart. The antra lengths are counted in days of a 360-day year, scaled by
// DaysInYear / 365.25.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/bhukthi_sink.h"
#include "analysis/chart_data.h"
#include "analysis/grid.h"
#include "common/ole_date.h"
#include "panchanga/star.h"

namespace kelvaro {

struct DasaYearsRow {
  const char* lord;  // English, "Kethu" for the south node
  int years;
  const char* next;
};

// The running order of the lords, with the years of each dasa.
inline constexpr std::array<DasaYearsRow, 9> kDasaYears = {{
    {"Sun", 6, "Moon"},
    {"Moon", 10, "Mars"},
    {"Mars", 7, "Rahu"},
    {"Rahu", 18, "Jupiter"},
    {"Jupiter", 16, "Saturn"},
    {"Saturn", 19, "Mercury"},
    {"Mercury", 17, "Kethu"},
    {"Kethu", 7, "Venus"},
    {"Venus", 20, "Sun"},
}};

// Years of the lord's dasa, the name's blanks trimmed first. A name that is
// not a lord raises CalculationError.
int DasaYears(std::string_view lord);
// The lord whose dasa follows; CalculationError for a name that is not a lord.
std::string NextDasaLord(std::string_view lord);

// Minutes of arc from the Moon to the end of its star (each star 800
// minutes). A star number of 22 or more is first lowered by 1, in place, which
// squeezes out Abhijit and numbers the 27 stars. The Moon's minutes are cut to
// whole minutes before the subtraction.
double MinutesLeftInStar(std::int16_t& starNo, double moonLongitude);

// One period: a sub-period has no antra lord.
struct DasaPeriod {
  std::string dasaLord;   // English
  std::string bhuktiLord;  // English
  std::string antraLord;   // English; empty for a sub-period
  OleDate start;
  OleDate end;
};

// Frm_Dasa: the three grids, the balance line, and the periods behind them.
struct DasaTables {
  // Four columns each: lord, from, to, and the age in whole years at the
  // start. mshDasa has a row per dasa; mshBukti a row per sub-period that ends
  // after birth; mshAntra, per sub-period, a bold section row naming the dasa
  // and sub lords and then its nine antras.
  Grid mshDasa{"mshDasa"};
  Grid mshBukti{"mshBukti"};
  Grid mshAntra{"mshAntra"};
  std::string Lab_DasaBalanceV;
  std::string DasaBalanceText;  // the balance line of the report

  double balanceYears = 0;  // of the first dasa, left at birth
  std::array<std::string, 9> DasaLord;  // English, from the dasa at birth
  std::array<OleDate, 9> DasaEnd{};
  std::array<std::string, 81> BhuktiLord;  // English, nine per dasa
  std::array<OleDate, 81> BhuktiEnd{};
  // The sub-periods that end after birth, the first starting at birth: the
  // rows of mshBukti and of tempBhukthi.
  std::vector<DasaPeriod> bhuktis;
  // All 729 antras in order, the first starting at birth.
  std::vector<DasaPeriod> antras;
};

// Fills `out` from the Moon of `chart` (its longitude, classified by the
// shared `star`), the birth moment and DaysInYear, and hands the sub-periods
// to `sink` for `userId` in one call. Lord names in the grids are the
// chart's LongNames.
void FillDasa(const ChartData& chart, clsStar& star, const std::string& userId, BhukthiSink& sink, DasaTables& out);

}  // namespace kelvaro
