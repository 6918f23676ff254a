// ClsPlanet: the Sun (with nutation and aberration), Kepler's equation, and the
// Moon from a truncated Brown series of 50 periodic terms.
#include <array>
#include <cmath>

#include "astronomy/planet.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

double Frac(double x) { return x - Int(x); }

}  // namespace

// Mean anomaly M (radians) and eccentricity e in; true anomaly out, radians,
// not normalised. Ends on the first |d| below 1e-06 radians (about a fifth of a
// second of arc); there is no bound on the count, since e < 1 always converges.
double ClsPlanet::FnSolveKepler(double meanAnomaly, double eccentricity) {
  const double M0 = FnReduceRadians(meanAnomaly);
  double E = M0;
  // Sine and cosine of each E come from one call; the cosine serves the next
  // step of the loop. The values are those of separate sin and cos calls.
  double sinE, cosE;
  ::sincos(E, &sinE, &cosE);
  double d = E - eccentricity * sinE - M0;
  while (!(std::fabs(d) < 1e-06)) {
    d = d / (1 - eccentricity * cosE);
    E = E - d;
    ::sincos(E, &sinE, &cosE);
    d = E - eccentricity * sinE - M0;
  }
  EccentricAnomaly = E;
  return 2 * std::atan(std::sqrt((1 + eccentricity) / (1 - eccentricity)) * std::tan(E / 2));
}

double ClsPlanet::FnFindSunMeanAnomaly() const {
  const double T = Centuries;
  return (358.47583 - (0.00015 + 3.3e-06 * T) * (T * T) + 360 * Frac(99.99736042 * T)) * kDegToRad;
}

void ClsPlanet::FnFindSun() {
  const double T = DayNumber / 36525 + UniversalHours / 876600;
  Centuries = T;
  const double T2 = T * T;
  CenturiesSquared = T2;
  const double L = 279.69668 + 0.0003025 * T2 + 360 * Frac(100.0021359 * T);
  const double M = 358.47583 - (0.00015 + 3.3e-06 * T) * T2 + 360 * Frac(99.99736042 * T);
  const double e = 0.01675104 - 4.18e-05 * T - 1.26e-07 * T2;
  const double v = FnSolveKepler(M * kDegToRad, e);
  const double A = (153.23 + 360 * Frac(62.55209472 * T)) * kDegToRad;
  const double B = (216.57 + 360 * Frac(125.1041894 * T)) * kDegToRad;
  const double C = (312.69 + 360 * Frac(91.56766028 * T)) * kDegToRad;
  const double D = (350.74 - 0.00144 * T2 + 360 * Frac(1236.853095 * T)) * kDegToRad;
  const double G = (231.19 + 20.2 * T) * kDegToRad;
  const double H = (353.4 + 360 * Frac(183.1353208 * T)) * kDegToRad;
  const double dLon =
      0.00134 * std::cos(A) + 0.00154 * std::cos(B) + 0.002 * std::cos(C) + 0.00179 * std::sin(D) + 0.00178 * std::sin(G);
  const double dRad = 5.43e-06 * std::sin(A) + 1.575e-05 * std::sin(B) + 1.627e-05 * std::sin(C) +
                      3.076e-05 * std::cos(D) + 9.27e-06 * std::sin(H);
  SunTrueLongitude = (L - M + dLon) * kDegToRad + v;
  while (SunTrueLongitude < 0) SunTrueLongitude += kTwoPi;
  while (SunTrueLongitude > kTwoPi) SunTrueLongitude -= kTwoPi;  // exactly 2 pi stays
  SunDistance = 1.0000002 * (1 - e * std::cos(EccentricAnomaly)) + dRad;
  FnFindNutation();
  TropicalSun = FnNormalize360(SunTrueLongitude * kRadToDeg + NutationLongitude - 0.00569);  // 0.00569: aberration
}

// Nutation in longitude and obliquity. Its element constants differ slightly
// from the Sun's, as published. Every step of one calculation asks with the
// same T, so the series is evaluated once and reused: the results are the same
// to the last bit.
void ClsPlanet::FnFindNutation() {
  const double T = DayNumber / 36525 + UniversalHours / 876600;
  Centuries = T;
  const double T2 = T * T;
  CenturiesSquared = T2;
  if (nutationDone_ && nutationT_ == T) return;
  const double L2 = (279.6967 + 0.000303 * T2 + 360 * Frac(100.0021358 * T)) * 0.03490658504;
  const double D2 = (270.4342 - 0.001133 * T2 + 360 * Frac(1336.855231 * T)) * 0.03490658504;
  const double Ms_ = (358.4758 - 0.00015 * T2 + 360 * Frac(99.99736056 * T)) * kDegToRad;
  const double Mm_ = (296.1046 + 0.009192 * T2 + 360 * Frac(1325.552359 * T)) * kDegToRad;
  const double N = (259.1833 + 0.002078 * T2 - 360 * Frac(5.372616667 * T)) * kDegToRad;
  const double N2 = N + N;
  // The last term of the longitude is subtracted on purpose.
  const double dPsi = (-17.2327 - 0.01737 * T) * std::sin(N) + (-1.2729 - 0.00013 * T) * std::sin(L2) +
                      0.2088 * std::sin(N2) - 0.2037 * std::sin(D2) + (0.1261 - 0.00031 * T) * std::sin(Ms_) +
                      0.0675 * std::sin(Mm_) - (0.0497 - 0.00012 * T) * std::sin(L2 + Ms_) -
                      0.0342 * std::sin(D2 - N) - 0.0261 * std::sin(D2 + Mm_) + 0.0214 * std::sin(L2 - Ms_) -
                      0.0149 * std::sin(L2 - D2 + Mm_) + 0.0124 * std::sin(L2 - N) - 0.0114 * std::sin(D2 - Mm_);
  const double dEps = (9.21 + 0.00091 * T) * std::cos(N) + (0.522 - 0.00029 * T) * std::cos(L2) -
                      0.0904 * std::cos(N2) + 0.0884 * std::cos(D2) + 0.0216 * std::cos(L2 + Ms_) +
                      0.0183 * std::cos(D2 - N) + 0.0113 * std::cos(D2 + Mm_) - 0.0093 * std::cos(L2 - Ms_) -
                      0.0066 * std::cos(L2 - N);
  NutationLongitude = dPsi / 3600;
  NutationObliquity = dEps / 3600;
  nutationDone_ = true;
  nutationT_ = T;
}

namespace {

// One periodic term of the Moon's longitude: coefficient (degrees) times E to
// the power `e` times the sine of d*D + m*M + mp*M' + f*F.
struct MoonTerm {
  double coefficient;
  int e;
  int d, m, mp, f;
};

// Units: degrees. Rows in the order of the published table.
constexpr MoonTerm kMoonLongitudeTerms[] = {
    {6.28875, 0, 0, 0, 1, 0},      // M'
    {1.274018, 0, 2, 0, -1, 0},    // 2D - M'
    {0.658309, 0, 2, 0, 0, 0},     // 2D
    {0.213616, 0, 0, 0, 2, 0},     // 2M'
    {-0.185596, 1, 0, 1, 0, 0},    // M
    {-0.114336, 0, 0, 0, 0, 2},    // 2F
    {0.058793, 0, 2, 0, -2, 0},    // 2D - 2M'
    {0.057212, 1, 2, -1, -1, 0},   // 2D - M - M'
    {0.05332, 0, 2, 0, 1, 0},      // 2D + M'
    {0.045874, 1, 2, -1, 0, 0},    // 2D - M
    /* 11-20 */
    {0.041024, 1, 0, -1, 1, 0},    // -M + M'
    {-0.034718, 0, 1, 0, 0, 0},    // D
    {-0.030465, 1, 0, 1, 1, 0},    // M + M'
    {0.015326, 0, 2, 0, 0, -2},    // 2D - 2F
    {-0.012528, 0, 0, 0, 1, 2},    // 2F + M'
    {-0.01098, 0, 0, 0, -1, 2},    // 2F - M'
    {0.010674, 0, 4, 0, -1, 0},    // 4D - M'
    {0.010034, 0, 0, 0, 3, 0},     // 3M'
    {0.008548, 0, 4, 0, -2, 0},    // 4D - 2M'
    {-0.00791, 1, 2, 1, -1, 0},    // 2D + M - M'
    /* 21-30 */
    {-0.006783, 1, 2, 1, 0, 0},    // 2D + M
    {0.005162, 0, -1, 0, 1, 0},    // -D + M'
    {0.005, 1, 1, 1, 0, 0},        // D + M
    {0.004049, 1, 2, -1, 1, 0},    // 2D - M + M'
    {0.003996, 0, 2, 0, 2, 0},     // 2D + 2M'
    {0.003862, 0, 4, 0, 0, 0},     // 4D
    {0.003665, 0, 2, 0, -3, 0},    // 2D - 3M'
    {0.002695, 1, 0, -1, 2, 0},    // -M + 2M'
    {0.002602, 0, -2, 0, 1, -2},   // -2D - 2F + M'
    {0.002396, 1, 2, -1, -2, 0},   // 2D - M - 2M'
    /* 31-40 */
    {-0.002349, 0, 1, 0, 1, 0},    // D + M'
    {0.002249, 2, 2, -2, 0, 0},    // 2D - 2M
    {-0.002125, 1, 0, 1, 2, 0},    // M + 2M'
    {-0.002079, 2, 0, 2, 0, 0},    // 2M
    {0.002059, 2, 2, -2, -1, 0},   // 2D - 2M - M'
    {-0.001773, 0, 2, 0, 1, -2},   // 2D - 2F + M'
    {-0.001595, 0, 2, 0, 0, 2},    // 2D + 2F
    {0.00122, 1, 4, -1, -1, 0},    // 4D - M - M'
    {-0.00111, 0, 0, 0, 2, 2},     // 2F + 2M'
    {0.000892, 0, -3, 0, 1, 0},    // -3D + M'
    /* 41-50 */
    {-0.000811, 1, 2, 1, 1, 0},    // 2D + M + M'
    {0.000761, 1, 4, -1, -2, 0},   // 4D - M - 2M'
    {0.000717, 2, 0, -2, 1, 0},    // -2M + M'
    {0.000704, 2, -2, -2, 1, 0},   // -2D - 2M + M'
    {0.000693, 1, 2, 1, -2, 0},    // 2D + M - 2M'
    {0.000598, 1, 2, -1, 0, -2},   // 2D - 2F - M
    {0.00055, 0, 4, 0, 1, 0},      // 4D + M'
    {0.000538, 0, 0, 0, 4, 0},     // 4M'
    {0.000521, 1, 4, -1, 0, 0},    // 4D - M
    {0.000486, 0, -1, 0, 2, 0},    // -D + 2M'
};

}  // namespace

// Runs after FnFindSun and depends on it: T is recomputed, but T squared is
// read as FnFindSun left it, and T cubed is CenturiesCubed, which nothing ever
// assigns, so every cubic term is nil. The cubic constants stay in the
// expressions so that they read as published.
void ClsPlanet::FnFindMoon() {
  const double T = DayNumber / 36525 + UniversalHours / 876600;
  Centuries = T;
  const double T2 = CenturiesSquared;
  const double T3 = CenturiesCubed;
  double Lp = 270.434164 + 481267.8831 * T - 0.001133 * T2 + 1.9e-06 * T3;
  double M = 358.475833 + 35999.0498 * T - 0.00015 * T2 - 3.3e-06 * T3;
  double Mp = 296.104608 + 477198.8491 * T + 0.009192 * T2 + 1.44e-05 * T3;
  double D = 350.737486 + 445267.1142 * T - 0.001436 * T2 + 1.9e-06 * T3;
  double F = 11.250889 + 483202.0251 * T - 0.003211 * T2 - 3e-07 * T3;
  double Omega = 259.183275 - 1934.142 * T + 0.002078 * T2 + 2.2e-06 * T3;
  const double OmegaRad = Omega * kPi / 180;
  const double a1 = std::sin((51.2 + 20.2 * T) * kPi / 180);
  const double a2 = 0.003964 * std::sin((346.56 + 132.87 * T - 0.0091731 * T2) * kPi / 180);
  const double sinOmega = std::sin(OmegaRad);
  Lp = Lp + 0.000233 * a1;
  Lp = Lp + a2 + 0.001964 * sinOmega;
  M = M - 0.001778 * a1;
  Mp = Mp + 0.000817 * a1;
  Mp = Mp + a2 + 0.002541 * sinOmega;
  D = D + 0.002011 * a1;
  D = D + a2 + 0.001964 * sinOmega;
  F = F + a2 - 0.024691 * sinOmega;
  F = F - 0.004328 * std::sin((275.05 - 2.3 * T) * kPi / 180 + OmegaRad);
  const double E = 1 - 0.002495 * T - 7.52e-06 * T2;
  const double E2 = E * E;
  Omega = OmegaRad * 180 / kPi;
  Lp = FnReduceDegrees(Lp);
  M = FnReduceDegrees(M);
  Mp = FnReduceDegrees(Mp);
  D = FnReduceDegrees(D);
  F = FnReduceDegrees(F);
  MeanNode = FnReduceDegrees(Omega);
  M = M * kPi / 180;
  Mp = Mp * kPi / 180;
  D = D * kPi / 180;
  F = F * kPi / 180;
  double lambda = Lp;
  for (const MoonTerm& t : kMoonLongitudeTerms) {
    const double argument = t.d * D + t.m * M + t.mp * Mp + t.f * F;
    const double factor = t.e == 0 ? 1.0 : (t.e == 1 ? E : E2);
    lambda = lambda + t.coefficient * factor * std::sin(argument);
  }
  TropicalMoon = lambda + 0.00461;  // no nutation for the Moon: 0.00461 is all; not normalised here
}

}  // namespace kelvaro
