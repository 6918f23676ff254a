#include "analysis/bhava.h"

#include <cmath>
#include <utility>

#include "analysis/lords.h"
#include "analysis/planet_table.h"
#include "analysis/rasi_number.h"
#include "common/angle_text.h"
#include "common/calculation_error.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

constexpr double kRasiSize = 30;
// PlanetsInBhava reads a house as one across 0 degrees from these two limits
// alone, never from start against end.
constexpr double kWrapStartFrom = 329;
constexpr double kWrapEndUpTo = 345;

constexpr std::array<Body, 9> kPlanets = {Body::Sun,     Body::Moon,  Body::Mars,   Body::Mercury, Body::Jupiter,
                                          Body::Venus,   Body::Saturn, Body::Rahu,  Body::Ketu};

// Step of one sixth of the arc from `from` forward to `to`.
double SixthOfArc(double to, double from) {
  double arc = to - from;
  if (arc < 0) arc += 360;
  return arc / 6;
}

// The semi-arc points become the house starts. The mid points are halfway to
// the next start, with the two departures from a plain midpoint that the
// program has always shown: house 1 takes no account of 0 degrees, and house
// 8 across 0 degrees adds 360 less the next start instead of 360 more.
void MakeStartsOfMids(BhavaLimits& h) {
  const std::array<double, 12> old = h.BhavaMid;
  const double s = old[0];
  h.BhavaStart[0] = s;
  h.BhavaMid[0] = (old[1] + s) / 2;
  for (int k = 2; k <= 12; ++k) {
    const size_t i = static_cast<size_t>(k - 1);
    const double a = old[i];
    h.BhavaSandhi[i - 1] = a;
    h.BhavaStart[i] = a;
    if (k < 12) {
      const double b = old[i + 1];
      if (k == 8 && a > b) {
        h.BhavaMid[i] = (a + (360 - b)) / 2;  // house 8 to 9: 360 less, on purpose
      } else if (a > b) {
        h.BhavaMid[i] = (a + (b + 360)) / 2;
      } else {
        h.BhavaMid[i] = (a + b) / 2;
      }
    } else {
      // House 12 compares with the new mid point of house 1, but halves
      // towards the start of house 1 when it does not wrap.
      const double nextMid = h.BhavaMid[0];
      h.BhavaMid[i] = a > nextMid ? (a + (nextMid + 360)) / 2 : (a + s) / 2;
    }
  }
  h.BhavaSandhi[11] = s;
  for (double& mid : h.BhavaMid) mid = Normalize360(mid);
}

}  // namespace

double Normalize360(double degrees) {
  if (!std::isfinite(degrees)) throw CalculationError("Overflow: a house limit is not a number");
  while (degrees < 0) degrees += 360;
  while (degrees >= 360) degrees -= 360;
  return degrees;
}

std::int16_t Reduce12(std::int16_t number) {
  while (number >= 13) number = static_cast<std::int16_t>(number - 12);
  return number;
}

BhavaLimits ComputeBhavaLimits(double lagna, double midHeaven, const std::string& bhavaSystem) {
  BhavaLimits h;
  auto& p = h.BhavaPoints;
  // From the midheaven to the Lagna: points 18 to 24, left unreduced.
  const double step1 = SixthOfArc(lagna, midHeaven);
  for (int i = 0; i <= 6; ++i) p[static_cast<size_t>(18 + i)] = i * step1 + midHeaven;
  // From the descendant to the midheaven: points 12 to 18. Point 18 is
  // written again here, and this second value is the one that stands.
  const double descendant = Normalize360(lagna + 180);
  const double step2 = SixthOfArc(midHeaven, descendant);
  for (int i = 0; i <= 6; ++i) p[static_cast<size_t>(12 + i)] = Normalize360(i * step2 + lagna + 180);
  for (size_t i = 0; i <= 11; ++i) p[i] = Normalize360(p[i + 12] + 180);

  for (size_t k = 0; k < 12; ++k) {
    h.BhavaMid[k] = Normalize360(p[2 * k]);
    h.BhavaSandhi[k] = Normalize360(p[2 * k + 1]);
  }
  h.BhavaStart[0] = h.BhavaSandhi[11];
  for (size_t k = 1; k < 12; ++k) h.BhavaStart[k] = h.BhavaSandhi[k - 1];

  if (bhavaSystem == "Not Equal") MakeStartsOfMids(h);
  return h;
}

std::vector<Body> BodiesInBhava(const ChartData& chart, double start, double end) {
  double firstLow = start, firstHigh = end;
  bool second = false;
  if (start >= kWrapStartFrom && end <= kWrapEndUpTo) {
    firstHigh = 360;
    second = true;
  }
  std::vector<Body> found;
  for (Body b : kPlanets) {
    const double lon = chart.Longitude(b);
    if (lon >= firstLow && lon <= firstHigh) found.push_back(b);
  }
  if (second) {
    for (Body b : kPlanets) {
      const double lon = chart.Longitude(b);
      if (lon >= 0 && lon <= end) found.push_back(b);
    }
  }
  return found;
}

namespace {

std::string ShortNamesOf(const ChartData& chart, const std::vector<Body>& bodies) {
  std::string text;
  for (Body b : bodies) {
    if (!text.empty()) text += ' ';
    text += chart.ShortNames[static_cast<size_t>(b)];
  }
  return text;
}

}  // namespace

std::string PlanetsInBhava(const ChartData& chart, double start, double end) {
  return ShortNamesOf(chart, BodiesInBhava(chart, start, end));
}

void FillBhava(const ChartData& chart, clsStar& star, BhavaTables& out) {
  BhavaTables t;
  t.limits = ComputeBhavaLimits(chart.Longitude(Body::Lagna), chart.midHeaven, chart.bhavaSystem);
  const BhavaLimits& h = t.limits;

  t.BhavaRasi[0] = RasiOfLongitude(chart.Longitude(Body::Lagna), kRasiSize);
  for (size_t k = 1; k < 12; ++k) t.BhavaRasi[k] = Reduce12(static_cast<std::int16_t>(t.BhavaRasi[0] + k));

  for (size_t k = 0; k < 12; ++k) {
    BhavaChartHouse& house = t.chart[k];
    house.house = static_cast<int>(k) + 1;
    house.sign = t.BhavaRasi[k];
    const std::vector<Body> found = BodiesInBhava(chart, h.BhavaStart[k], h.BhavaSandhi[k]);
    std::string text = ShortNamesOf(chart, found);
    if (k == 0) {
      // The Lagna leads house 1, followed by a blank even when the house
      // holds nothing else.
      text = chart.ShortNames[static_cast<size_t>(Body::Lagna)] + " " + text;
      house.bodies.push_back(Body::Lagna);
    }
    house.bodies.insert(house.bodies.end(), found.begin(), found.end());
    house.text = text;
    t.BhavaPlanets[k] = std::move(text);
  }

  Grid& limits = t.msh_Bhava;
  limits.SetHeader(kBhavaHeader);
  limits.Resize(13, limits.Cols());
  for (size_t k = 0; k < 12; ++k) {
    const int row = static_cast<int>(k) + 1;
    limits.SetText(row, 0, std::to_string(row));
    limits.SetText(row, 1, FormatDegrees(h.BhavaStart[k]));
    limits.SetText(row, 2, FormatDegrees(h.BhavaMid[k]));
    limits.SetText(row, 3, FormatDegrees(h.BhavaSandhi[k]));
    limits.SetText(row, 4, t.BhavaPlanets[k]);
  }

  Grid& details = t.mshBhavaDetails;
  details.SetHeader(kBhavaDetailsHeader);
  details.Resize(13, details.Cols());
  for (size_t k = 0; k < 12; ++k) {
    const int row = static_cast<int>(k) + 1;
    const double mid = h.BhavaMid[k];
    const std::int16_t rasi = RasiOfLongitude(mid, kRasiSize);
    details.SetText(row, 0, std::to_string(row));
    details.SetText(row, 1, FormatDegrees(mid));
    details.SetText(row, 2, RasiNameOf(chart, rasi));
    details.SetText(row, 3, RasiLordOf(chart, mid, "Rasi"));
    star.PlanetPosition = mid;
    star.findstar();
    details.SetText(row, 4, star.StarName);
    details.SetText(row, 5, std::to_string(star.StarQuarter));
    details.SetText(row, 6, LocalisedPlanetName(chart, StarLordOf(star.StarNo)));
    details.SetText(row, 7, SubLordOf(chart, rasi, mid));
  }

  out = std::move(t);
}

}  // namespace kelvaro
