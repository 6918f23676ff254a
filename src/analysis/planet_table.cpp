#include "analysis/planet_table.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <utility>

#include "analysis/avasthas.h"
#include "analysis/karakas.h"
#include "analysis/lords.h"
#include "analysis/rasi_number.h"
#include "common/angle_text.h"
#include "common/number_rules.h"
#include "common/ole_date.h"

namespace kelvaro {

namespace {

// Index into LongNames (Venus stands before Jupiter there).
enum class Lord : std::uint8_t { Sun = 1, Moon, Mars, Mercury, Venus, Jupiter, Saturn, Rahu, Ketu };

// One sub-lord band: degrees within the rasi up to and including `upTo`.
// The limits are the stored 15-significant-digit decimals, used as written.
struct SubLordBand {
  double upTo;
  Lord lord;
};

// Rasis 1, 5, 9.
constexpr std::array<SubLordBand, 22> kSubLordTable1 = {{
    {0.777777777777778, Lord::Ketu},
    {3.0, Lord::Venus},
    {3.66666666666667, Lord::Sun},
    {4.77777777777778, Lord::Moon},
    {5.55555555555556, Lord::Mars},
    {7.55555555555556, Lord::Rahu},
    {9.33333333333333, Lord::Jupiter},
    {11.4444444444444, Lord::Saturn},
    {13.3333333333333, Lord::Mercury},
    {15.5555555555556, Lord::Venus},
    // 11-20
    {16.2222222222222, Lord::Sun},
    {17.3333333333333, Lord::Moon},
    {18.1111111111111, Lord::Mars},
    {20.1111111111111, Lord::Rahu},
    {21.8888888888889, Lord::Jupiter},
    {24.0, Lord::Saturn},
    {25.8888888888889, Lord::Mercury},
    {26.6666666666667, Lord::Ketu},
    {27.3333333333333, Lord::Sun},
    {28.4444444444444, Lord::Moon},
    // 21-22
    {29.2222222222222, Lord::Mars},
    {30.0, Lord::Rahu},
}};

// Rasis 2, 6, 10.
constexpr std::array<SubLordBand, 19> kSubLordTable2 = {{
    {1.22222222222222, Lord::Rahu},
    {3.0, Lord::Jupiter},
    {5.11111111111111, Lord::Saturn},
    {7.0, Lord::Mercury},
    {7.77777777777778, Lord::Ketu},
    {10.0, Lord::Venus},
    {11.1111111111111, Lord::Moon},
    {11.8888888888889, Lord::Mars},
    {13.8888888888889, Lord::Rahu},
    {15.6666666666667, Lord::Jupiter},
    // 11-19
    {17.7777777777778, Lord::Saturn},
    {19.6666666666667, Lord::Mercury},
    {20.4444444444444, Lord::Ketu},
    {22.6666666666667, Lord::Venus},
    {23.3333333333333, Lord::Sun},
    {24.1111111111111, Lord::Mars},
    {26.1111111111111, Lord::Rahu},
    {27.8888888888889, Lord::Jupiter},
    {30.0, Lord::Saturn},
}};

// Rasis 3, 7, 11. The two Sun bands in a row (to 17.4444444444444 and to
// 18.1111111111111) are the table as it stands: there is no Moon band
// between them.
constexpr std::array<SubLordBand, 21> kSubLordTable3 = {{
    {1.88888888888889, Lord::Mercury},
    {2.66666666666667, Lord::Ketu},
    {4.88888888888889, Lord::Venus},
    {5.55555555555556, Lord::Sun},
    {6.66666666666667, Lord::Moon},
    {8.66666666666667, Lord::Rahu},
    {10.4444444444444, Lord::Jupiter},
    {12.5555555555556, Lord::Saturn},
    {14.4444444444444, Lord::Mercury},
    {15.2222222222222, Lord::Ketu},
    // 11-20
    {17.4444444444444, Lord::Sun},
    {18.1111111111111, Lord::Sun},
    {19.2222222222222, Lord::Moon},
    {20.0, Lord::Mars},
    {21.7777777777778, Lord::Jupiter},
    {23.8888888888889, Lord::Saturn},
    {25.7777777777778, Lord::Mercury},
    {26.5555555555556, Lord::Ketu},
    {28.7777777777778, Lord::Venus},
    {29.4444444444444, Lord::Sun},
    // 21
    {30.0, Lord::Moon},
}};

// Rasis 4, 8, 12.
constexpr std::array<SubLordBand, 21> kSubLordTable4 = {{
    {0.555555555555556, Lord::Moon},
    {1.33333333333333, Lord::Mars},
    {3.33333333333333, Lord::Rahu},
    {5.44444444444444, Lord::Saturn},
    {7.33333333333333, Lord::Mercury},
    {8.11111111111111, Lord::Ketu},
    {10.3333333333333, Lord::Venus},
    {11.0, Lord::Sun},
    {12.1111111111111, Lord::Moon},
    {12.8888888888889, Lord::Mars},
    // 11-20
    {14.8888888888889, Lord::Rahu},
    {16.6666666666667, Lord::Jupiter},
    {18.5555555555556, Lord::Mercury},
    {19.3333333333333, Lord::Ketu},
    {21.5555555555556, Lord::Venus},
    {22.2222222222222, Lord::Sun},
    {23.3333333333333, Lord::Moon},
    {24.1111111111111, Lord::Mars},
    {26.1111111111111, Lord::Rahu},
    {27.8888888888889, Lord::Jupiter},
    // 21
    {30.0, Lord::Saturn},
}};

const std::string kNoText;

const std::string& SubLordIn(std::span<const SubLordBand> bands, const ChartData& chart, double degrees) {
  if (degrees < 0) return kNoText;
  for (const SubLordBand& band : bands) {
    if (degrees <= band.upTo) return chart.LongNames[static_cast<size_t>(band.lord)];
  }
  return kNoText;
}

// Grid layout.
constexpr int kBodyRows = 10;  // Lagna to Ketu in rows 1 to 10
constexpr int kCols = 10;
constexpr int kNameCol = 0, kDegreesCol = 1, kRasiCol = 2, kRasiLordCol = 3, kStarCol = 4, kPadaCol = 5,
              kStarLordCol = 6, kSubLordCol = 7, kKarakaCol = 8, kAvasthaCol = 9;
constexpr int kLagnaRow = 1, kRahuRow = 9, kKetuRow = 10;
constexpr double kRasiSize = 30;

// Sun to Ketu by the English names that the avastha's ordinal reads.
constexpr std::array<const char*, 9> kEnglishLords = {
    "Sun", "Moon", "Mars", "Mercury", "Jupiter", "Venus", "Saturn", "Rahu", "Kethu",
};

}  // namespace

const std::string& SubLordTable1(const ChartData& chart, double degreesInRasi) {
  return SubLordIn(kSubLordTable1, chart, degreesInRasi);
}
const std::string& SubLordTable2(const ChartData& chart, double degreesInRasi) {
  return SubLordIn(kSubLordTable2, chart, degreesInRasi);
}
const std::string& SubLordTable3(const ChartData& chart, double degreesInRasi) {
  return SubLordIn(kSubLordTable3, chart, degreesInRasi);
}
const std::string& SubLordTable4(const ChartData& chart, double degreesInRasi) {
  return SubLordIn(kSubLordTable4, chart, degreesInRasi);
}

const std::string& SubLordOf(const ChartData& chart, int rasi, double longitude) {
  const double degrees = DegreesInRasi(longitude);
  switch (rasi) {
    case 1: case 5: case 9: return SubLordTable1(chart, degrees);
    case 2: case 6: case 10: return SubLordTable2(chart, degrees);
    case 3: case 7: case 11: return SubLordTable3(chart, degrees);
    case 4: case 8: case 12: return SubLordTable4(chart, degrees);
    default: return kNoText;
  }
}

std::string RetroMark(double today, double nextDay, int kind) {
  if (kind == 1 && !(nextDay > today)) return " (R)";
  if (kind == 2 && nextDay > today) return " (R)";
  return {};
}

void FillPlanetTable(const ChartData& chart, std::optional<double> ishtaGhati, ClsFindPlanetPosition& positions,
                     clsStar& star, PlanetTable& table) {
  // The seven planets a day later, for the retrograde marks only.
  positions.FindFixValues(DateAdd(Interval::Day, 1, chart.birthMoment), chart.latNS, chart.latDeg, chart.latMin,
                          chart.lonEW, chart.lonDeg, chart.lonMin, chart.timeDiff, chart.timeDiffEW, 0,
                          chart.ayanamsaInForce, chart.yearInForce, chart.progressInForce);
  std::array<double, kBodyCount> nextDay{};
  nextDay[static_cast<size_t>(Body::Mars)] = positions.FnFindMarsPosition();
  nextDay[static_cast<size_t>(Body::Mercury)] = positions.FnFindMercuryPosition();
  nextDay[static_cast<size_t>(Body::Jupiter)] = positions.FnFindJupiterPosition();
  nextDay[static_cast<size_t>(Body::Venus)] = positions.FnFindVenusPosition();
  nextDay[static_cast<size_t>(Body::Saturn)] = positions.FnFindSaturnPosition();
  nextDay[static_cast<size_t>(Body::Rahu)] = positions.FnFindRahuPosition();
  nextDay[static_cast<size_t>(Body::Ketu)] = positions.FnFindKethuPosition();

  std::array<std::int16_t, kBodyRows> rasi{};
  for (int b = 0; b < kBodyRows; ++b) rasi[static_cast<size_t>(b)] = RasiOfLongitude(chart.longitude[static_cast<size_t>(b)], kRasiSize);

  // Built aside, so that a failed step leaves the last table in place.
  PlanetTable built;
  Grid& grid = built.mshNirayana;
  grid.SetHeader(kPlanetTableHeader);
  grid.Resize(kBodyRows + 1, kCols);
  auto lon = [&](int b) { return chart.longitude[static_cast<size_t>(b)]; };

  for (int b = 0; b < kBodyRows; ++b) grid.SetText(b + 1, kNameCol, chart.ShortNames[static_cast<size_t>(b)]);
  for (int b = 0; b < kBodyRows; ++b) grid.SetText(b + 1, kDegreesCol, FormatDegrees(DegreesInRasi(lon(b))));
  for (int b = 0; b < kBodyRows; ++b) grid.SetText(b + 1, kRasiCol, RasiNameOf(chart, rasi[static_cast<size_t>(b)]));
  for (int b = 0; b < kBodyRows; ++b) grid.SetText(b + 1, kRasiLordCol, RasiLordOf(chart, lon(b), "Rasi"));
  for (int b = 0; b < kBodyRows; ++b) {
    star.PlanetPosition = lon(b);
    star.findstar();
    grid.SetText(b + 1, kStarCol, star.StarName);
    grid.SetText(b + 1, kPadaCol, std::to_string(star.StarQuarter));
    grid.SetText(b + 1, kStarLordCol, LocalisedPlanetName(chart, StarLordOf(star.StarNo)));
  }
  for (int b = 0; b < kBodyRows; ++b) {
    grid.SetText(b + 1, kSubLordCol, SubLordOf(chart, rasi[static_cast<size_t>(b)], lon(b)));
  }

  RankKarakas(grid, built.MSFlexGridSort);
  const double moon = chart.Longitude(Body::Moon);
  const std::int16_t lagnaRasi = rasi[static_cast<size_t>(Body::Lagna)];
  for (int b = static_cast<int>(Body::Sun); b <= static_cast<int>(Body::Ketu); ++b) {
    grid.SetText(b + 1, kAvasthaCol,
                 ishtaGhati ? SayanadiAvastha(star, lon(b), kEnglishLords[static_cast<size_t>(b - 1)], moon, lagnaRasi,
                                              *ishtaGhati)
                            : "----");
  }
  grid.SetText(kLagnaRow, kAvasthaCol, "----");
  for (int row : {kLagnaRow, kRahuRow, kKetuRow}) {
    grid.SetText(row, kKarakaCol, "--");
    grid.SetBold(row, kKarakaCol, true);
  }

  // The degrees again, now with the retrograde mark, which had to stay off
  // while the karakas were matched by text. The Lagna, Sun and Moon never
  // carry it.
  for (int b = 0; b < kBodyRows; ++b) {
    std::string text = FormatDegrees(DegreesInRasi(lon(b)));
    if (b >= static_cast<int>(Body::Mars)) {
      const int kind = b >= static_cast<int>(Body::Rahu) ? 2 : 1;
      text += RetroMark(lon(b), nextDay[static_cast<size_t>(b)], kind);
    }
    grid.SetText(b + 1, kDegreesCol, std::move(text));
  }
  table = std::move(built);
}

}  // namespace kelvaro
