// ClsPlanet: mean elements of the five planets, the planet procedure they
// share, and the perturbation terms of Mercury, Venus and Mars.
#include <array>
#include <cmath>

#include "astronomy/planet.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

double Frac(double x) { return x - Int(x); }

// Mean orbital elements referred to 1900 January 0.5, one row per planet.
// Mean longitude L0 + 360 frac(n T) + (l2 + l3 T) T^2 (degrees); daily motion
// n * 0.009856263 + (l2 + l3) / 36525; the others are cubics in T.
// Jupiter's e2 of -4.676e-77 is the table's own exponent, kept: a nil term.
// The apparent size at 1 unit and the magnitude are carried, read by nothing.
struct ElementRow {
  double L0, n, l2, l3;
  double p0, p1, p2, p3;      // perihelion, degrees
  double e0, e1, e2, e3;      // eccentricity
  double i0, i1, i2, i3;      // inclination, degrees
  double o0, o1, o2, o3;      // node, degrees
  double a;                   // semi-major axis, astronomical units
  double size, magnitude;
};

enum PlanetRow { kMercury, kVenus, kMars, kJupiter, kSaturn };

constexpr ElementRow kElements[] = {
    // Mercury
    {178.179078, 415.2057519, 0.0003011, 0, 75.899697, 1.5554889, 0.0002947, 0, 0.20561421, 2.046e-05, -3e-08, 0,
     7.002881, 0.0018608, -1.83e-05, 0, 47.145944, 1.1852083, 0.0001739, 0, 0.3870986, 6.74, -0.42},
    // Venus
    {342.767053, 162.5533664, 0.0003097, 0, 130.163833, 1.4080361, -0.0009764, 0, 0.00682069, -4.774e-05, 9.1e-08, 0,
     3.393631, 0.0010058, -1e-06, 0, 75.779647, 0.89985, 0.00041, 0, 0.7233316, 16.92, -4.4},
    // Mars
    {293.737334, 53.17137642, 0.0003107, 0, 334.218203, 1.8407584, 0.0001299, -1.19e-06, 0.0933129, 9.2064e-05,
     7.7e-08, 0, 1.850333, -0.000675, 1.26e-05, 0, 48.786442, 0.7709917, -1.4e-06, -5.33e-06, 1.5236883, 9.36, -1.52},
    // Jupiter
    {238.049257, 8.434172183, 0.0003347, -1.65e-06, 12.720972, 1.6099617, 0.00105627, -3.43e-06, 0.04833475,
     0.00016418, -4.676e-77, -1.7e-09, 1.308736, -0.0056961, 3.9e-06, 0, 99.443414, 1.01053, 0.00035222, -8.51e-06,
     5.202561, 196.74, -9.4},
    // Saturn
    {266.564377, 3.398638567, 0.0003245, -5.8e-06, 91.098214, 1.9584158, 0.00082636, 4.61e-06, 0.05589232,
     -0.0003455, -7.28e-07, 7.4e-10, 2.492519, -0.0039189, -1.549e-05, 4e-08, 112.790414, 0.8731951, -0.00015218,
     -5.31e-06, 9.554747, 165.6, -8.88},
};

// One periodic term: coefficient times the cosine of a sum of multiples of the
// mean anomalies (Earth, Mercury, Venus, Mars, Jupiter; radians) plus a phase.
struct AnomalyTerm {
  double coefficient;
  int me, mm, mv, mr, mj;
  double phase;  // radians
};

template <size_t N>
double SumCosines(const AnomalyTerm (&terms)[N], double Me, double Mm, double Mv, double Mr, double Mj) {
  double sum = 0;
  for (const AnomalyTerm& t : terms) {
    sum += t.coefficient * std::cos(t.me * Me + t.mm * Mm + t.mv * Mv + t.mr * Mr + t.mj * Mj + t.phase);
  }
  return sum;
}

// Mercury: dL in degrees, dR in astronomical units.
constexpr AnomalyTerm kMercuryLongitude[] = {
    {0.00204, 0, -2, 5, 0, 0, 0.21328},   // 5Mv - 2Mm
    {0.00103, 0, -1, 2, 0, 0, -2.8046},   // 2Mv - Mm
    {0.00091, 0, -1, 0, 0, 2, -0.64582},  // 2Mj - Mm
    {0.00078, 0, -3, 5, 0, 0, 0.17692},   // 5Mv - 3Mm
};
constexpr AnomalyTerm kMercuryRadius[] = {
    {6.802e-06, 0, -3, 5, 0, 0, -4.53642},  // 5Mv - 3Mm
    {7.525e-06, 0, -1, 0, 0, 2, 0.925251},  // 2Mj - Mm
    {5.457e-06, 0, -2, 2, 0, 0, -1.24246},  // 2Mv - 2Mm
    {3.569e-06, 0, -1, 5, 0, 0, -1.35699},  // 5Mv - Mm
};

// Venus.
constexpr AnomalyTerm kVenusLongitude[] = {
    {0.00313, 2, 0, -2, 0, 0, -2.587},     // 2Me - 2Mv
    {0.00198, 3, 0, -3, 0, 0, 0.044768},   // 3Me - 3Mv
    {0.00136, 1, 0, -1, 0, 0, -2.0788},    // Me - Mv
    {0.00096, 3, 0, -2, 0, 0, -2.3721},    // 3Me - 2Mv
    {0.00082, 0, 0, -1, 0, 1, -3.6318},    // Mj - Mv
};
constexpr AnomalyTerm kVenusRadius[] = {
    {2.2501e-05, 2, 0, -2, 0, 0, -1.01592},  // 2Me - 2Mv
    {1.9045e-05, 3, 0, -3, 0, 0, 1.61577},   // 3Me - 3Mv
    {6.887e-06, 0, 0, -1, 0, 1, -2.06106},   // Mj - Mv
    {5.172e-06, 1, 0, -1, 0, 0, -0.508065},  // Me - Mv
    {3.62e-06, 5, 0, -4, 0, 0, -1.81877},    // 5Me - 4Mv
    {3.283e-06, 4, 0, -4, 0, 0, 1.10851},    // 4Me - 4Mv
    {3.074e-06, 0, 0, -2, 0, 2, -0.962846},  // 2Mj - 2Mv
};

// Mars.
constexpr AnomalyTerm kMarsLongitude[] = {
    {0.00705, 0, 0, 0, -1, 1, -0.85448},  // Mj - Mr
    {0.00607, 0, 0, 0, -1, 2, -3.2873},   // 2Mj - Mr
    {0.00445, 0, 0, 0, -2, 2, -3.3492},   // 2Mj - 2Mr
    {0.00388, 1, 0, 0, -2, 0, 0.35771},   // Me - 2Mr
    {0.00238, 1, 0, 0, -1, 0, 0.61256},   // Me - Mr
    {0.00204, 2, 0, 0, -3, 0, 2.7688},    // 2Me - 3Mr
    {0.00177, 0, 0, -1, 3, 0, -1.0053},   // 3Mr - Mv
    {0.00136, 2, 0, 0, -4, 0, 2.6894},    // 2Me - 4Mr
    {0.00104, 0, 0, 0, 0, 1, 0.30749},    // Mj
};
constexpr AnomalyTerm kMarsRadius[] = {
    {5.3227e-05, 0, 0, 0, -1, 1, 0.717864},  // Mj - Mr
    {5.0989e-05, 0, 0, 0, -2, 2, -1.77997},  // 2Mj - 2Mr
    {3.8278e-05, 0, 0, 0, -1, 2, -1.71617},  // 2Mj - Mr
    {1.5996e-05, 1, 0, 0, -1, 0, -0.969618}, // Me - Mr
    {1.4764e-05, 2, 0, 0, -3, 0, 1.19768},   // 2Me - 3Mr
    {8.966e-06, 0, 0, 0, -2, 1, 0.761225},   // Mj - 2Mr
    {7.914e-06, 0, 0, 0, -2, 3, -2.43887},   // 3Mj - 2Mr
    {7.004e-06, 0, 0, 0, -3, 2, -1.79573},   // 2Mj - 3Mr
    {6.62e-06, 1, 0, 0, -2, 0, 1.97575},     // Me - 2Mr
    {4.93e-06, 0, 0, 0, -3, 3, -1.33069},    // 3Mj - 3Mr
    {4.693e-06, 3, 0, 0, -5, 0, 3.32665},    // 3Me - 5Mr
    {4.571e-06, 2, 0, 0, -4, 0, 4.27086},    // 2Me - 4Mr
    {4.409e-06, 0, 0, 0, -1, 3, -2.02158},   // 3Mj - Mr
};

}  // namespace

ClsPlanet::Elements ClsPlanet::LoadElements(int row) const {
  const ElementRow& r = kElements[static_cast<size_t>(row)];
  const double T = DayNumber / 36525 + UniversalHours / 876600;
  const double T2 = T * T;
  const double T3 = T2 * T;
  Elements el;
  double L = r.L0 + 360 * Frac(r.n * T) + (r.l2 + r.l3 * T) * T2;
  while (L < 0) L += 360;
  while (L > 360) L -= 360;
  el.meanLongitude = L;
  el.dailyMotion = r.n * 0.009856263 + (r.l2 + r.l3) / 36525;
  el.perihelion = r.p0 + r.p1 * T + r.p2 * T2 + r.p3 * T3;
  el.eccentricity = r.e0 + r.e1 * T + r.e2 * T2 + r.e3 * T3;
  el.inclination = r.i0 + r.i1 * T + r.i2 * T2 + r.i3 * T3;
  el.node = r.o0 + r.o1 * T + r.o2 * T2 + r.o3 * T3;
  el.semiMajorAxis = r.a;
  // Every pass of the planet reads these of the same angle.
  el.sinInclination = std::sin(el.inclination * kDegToRad);
  el.cosInclination = std::cos(el.inclination * kDegToRad);
  return el;
}

void ClsPlanet::FnLoadMarsElements() { Mars = LoadElements(kMars); }
void ClsPlanet::FnLoadMercuryElements() { Mercury = LoadElements(kMercury); }
void ClsPlanet::FnLoadJupiterElements() { Jupiter = LoadElements(kJupiter); }
void ClsPlanet::FnLoadVenusElements() { Venus = LoadElements(kVenus); }
void ClsPlanet::FnLoadSaturnElements() { Saturn = LoadElements(kSaturn); }

namespace {

// (L - perihelion) - w tau, in radians: the mean anomaly at the light-time tau.
double MeanAnomaly(const ClsPlanet::Elements& el, double tau) {
  return (el.meanLongitude - el.perihelion - el.dailyMotion * tau) * kDegToRad;
}

}  // namespace

// The procedure the five planets share. `own` is the member holding the
// planet's own mean anomaly (Mm, Mv, Mr, Mj or Ms); it returns the tropical
// longitude in degrees, 0 to 360.
double ClsPlanet::FindPlanet(const Elements& planet, double& own, int passes, Terms terms, bool needsEarthAnomaly,
                             Geocentric form, Aberration aberration) {
  const double T = DayNumber / 36525 + UniversalHours / 876600;
  Centuries = T;
  const double R = SunDistance;
  const double Le = SunTrueLongitude + kPi;  // the Earth's heliocentric longitude
  double tau = 0;                            // light-time, days
  double rd = 0, Delta = 0, lp = 0, rho = 0;
  for (int pass = 1; pass <= passes; ++pass) {
    Mm = MeanAnomaly(Mercury, tau);
    Mv = MeanAnomaly(Venus, tau);
    Mr = MeanAnomaly(Mars, tau);
    Mj = MeanAnomaly(Jupiter, tau);
    if (&own == &Ms) Ms = MeanAnomaly(Saturn, tau);
    dL = dR = dl = dM = dE = dA = dB = 0;
    if (needsEarthAnomaly) Me = FnFindSunMeanAnomaly();
    (this->*terms)();
    const double e = planet.eccentricity + dE;
    const double M = own + dM;
    const double v = FnSolveKepler(M, e);
    double r = (1 - e * e) * (planet.semiMajorAxis + dA) / (1 + e * std::cos(v));
    const double l = ((dl - dM) * kRadToDeg + (v * kRadToDeg + planet.perihelion)) * kDegToRad;
    const double Omega = planet.node * kDegToRad;
    const double u = l - Omega;
    const double su = std::sin(u);
    const double cu = std::cos(u);
    r = r + dR;
    const double psi = FnArcSin(planet.sinInclination * su) + dB;  // heliocentric latitude
    lp = std::atan(planet.cosInclination * su / cu) + Omega + dL * kDegToRad;
    if (cu < 0) lp += kPi;
    if (lp > kTwoPi) lp -= kTwoPi;  // once only: lp may stay negative
    rd = r * std::cos(psi);
    Delta = lp - Le;
    rho = std::sqrt(R * R + r * r - 2 * R * r * std::cos(psi) * std::cos(Delta));
    tau = rho * 0.005775518;
  }
  double lambda = form == Geocentric::Inner
                      ? std::atan(-rd * std::sin(Delta) / (R - rd * std::cos(Delta))) + Le + kPi
                      : std::atan(R * std::sin(Delta) / (rd - R * std::cos(Delta))) + lp;
  while (lambda < 0) lambda += kTwoPi;
  while (lambda > kTwoPi) lambda -= kTwoPi;
  FnFindNutation();
  double tropical;
  if (aberration == Aberration::None) {
    tropical = (lambda + NutationLongitude * kDegToRad) * kRadToDeg;
  } else {
    const double lambda1 = lambda + NutationLongitude * kDegToRad;
    const double pi = aberration == Aberration::JupiterPi ? 3.1415927 : 3.14159265358979;
    const double c = std::cos(Le + pi - lambda1);
    // The distance goes to the cosine as it stands, as if it were an angle:
    // the correction swings with the distance. Kept as the program has it.
    tropical = (lambda1 - 9.9387e-05 * c / std::cos(rho)) * kRadToDeg;
  }
  return FnNormalize360(tropical);
}

void ClsPlanet::FnFindMercury() {
  TropicalMercury =
      FindPlanet(Mercury, Mm, 2, &ClsPlanet::FnMercuryTerms, false, Geocentric::Inner, Aberration::None);
}

void ClsPlanet::FnFindVenus() {
  TropicalVenus = FindPlanet(Venus, Mv, 2, &ClsPlanet::FnVenusTerms, true, Geocentric::Inner, Aberration::None);
}

void ClsPlanet::FnFindMars() {
  TropicalMars = FindPlanet(Mars, Mr, 1, &ClsPlanet::FnMarsTerms, true, Geocentric::Outer, Aberration::None);
}

void ClsPlanet::FnFindJupiter() {
  TropicalJupiter =
      FindPlanet(Jupiter, Mj, 2, &ClsPlanet::FnJupiterTerms, false, Geocentric::Outer, Aberration::JupiterPi);
}

// Saturn's pass counter starts at 1 and is already past the second-pass test:
// one pass, with the light-time left at 0.
void ClsPlanet::FnFindSaturn() {
  TropicalSaturn =
      FindPlanet(Saturn, Ms, 1, &ClsPlanet::FnSaturnTerms, false, Geocentric::Outer, Aberration::SaturnPi);
}

void ClsPlanet::FnMercuryTerms() {
  dL = SumCosines(kMercuryLongitude, Me, Mm, Mv, Mr, Mj);
  dR = SumCosines(kMercuryRadius, Me, Mm, Mv, Mr, Mj);
}

void ClsPlanet::FnVenusTerms() {
  const double T = Centuries;
  dl = 0.00077 * std::sin(4.1406 + 2.6227 * T) * kDegToRad;
  dM = dl;
  dL = SumCosines(kVenusLongitude, Me, Mm, Mv, Mr, Mj);
  dR = SumCosines(kVenusRadius, Me, Mm, Mv, Mr, Mj);
}

void ClsPlanet::FnMarsTerms() {
  const double A = 3 * Mj - 8 * Mr + 4 * Me;
  dl = -(0.01133 * std::sin(A) + 0.00933 * std::cos(A)) * kDegToRad;
  dM = dl;
  dL = SumCosines(kMarsLongitude, Me, Mm, Mv, Mr, Mj);
  dR = SumCosines(kMarsRadius, Me, Mm, Mv, Mr, Mj);
}

}  // namespace kelvaro
