// ClsPlanet: the Jupiter and Saturn perturbation series, from the arguments of
// the great inequality. Each term is a coefficient (a polynomial in nu) times
// one or two of the trigonometric factors, summed in the order of the text.
#include <array>
#include <cmath>

#include "astronomy/planet.h"

namespace kelvaro {

namespace {

// The trigonometric factors, computed once per calculation.
enum Factor {
  k1, sQ, cQ, s2Q, c2Q, s3Q, c3Q, s4Q, c4Q,
  sV, cV, s2V, c2V, sW,
  sZ, cZ, s2Z, c2Z, s3Z, c3Z, s4Z, c4Z, s5Z, c5Z,
  s2X, c2X, s3X, c3X,
  kFactorCount
};

struct GreatTerm {
  double c0, c1, c2;  // coefficient c0 + c1 nu + c2 nu^2
  Factor f1, f2;
};

// Jupiter, mean-longitude correction A (degrees).
constexpr GreatTerm kJupiterA[] = {
    {0.003228, -0.064436, 0.002075, cV, k1},
    {0.331364, -0.010281, -0.004692, sV, k1},
    {-0.003083, -0.000275, 0.000489, s2V, k1},
    {0.002472, 0, 0, sW, k1},
    {0.013619, 0, 0, sZ, k1},
    {0.018472, 0, 0, s2Z, k1},
    {0.006717, 0, 0, s3Z, k1},
    {0.002775, 0, 0, s4Z, k1},
    {0.006417, 0, 0, s2Z, sQ},
    {0.007275, -0.001253, 0, sZ, sQ},
    /* 11-20 */
    {0.002439, 0, 0, s3Z, sQ},
    {-0.035681, -0.001208, 0, sZ, cQ},
    {-0.003767, 0, 0, c2Z, sQ},
    {-0.033839, -0.001125, 0, cZ, sQ},
    {-0.004261, 0, 0, s2Z, cQ},
    {-0.006333, 0.001161, 0, cZ, cQ},
    {0.002178, 0, 0, cQ, k1},
    {-0.006675, 0, 0, c2Z, cQ},
    {-0.002664, 0, 0, c3Z, cQ},
    {-0.002572, 0, 0, sZ, s2Q},
    /* 21-23 */
    {-0.003567, 0, 0, s2Z, s2Q},
    {0.002094, 0, 0, cZ, c2Q},
    {0.003342, 0, 0, c2Z, c2Q},
};

// Jupiter, eccentricity correction B (units of 1e-07).
constexpr GreatTerm kJupiterB[] = {
    {3606, 130, -43, sV, k1},
    {1289, -580, 0, cV, k1},
    {-6764, 0, 0, sZ, sQ},
    {-1110, 0, 0, s2Z, sQ},
    {-224, 0, 0, s3Z, sQ},
    {-204, 0, 0, sQ, k1},
    {1284, 116, 0, cZ, sQ},
    {188, 0, 0, c2Z, sQ},
    {1460, 130, 0, sZ, cQ},
    {224, 0, 0, s2Z, cQ},
    /* 11-20 */
    {-817, 0, 0, cQ, k1},
    {6074, 0, 0, cZ, cQ},
    {992, 0, 0, c2Z, cQ},
    {508, 0, 0, c3Z, cQ},
    {230, 0, 0, c4Z, cQ},
    {108, 0, 0, c5Z, cQ},
    {-956, -73, 0, sZ, s2Q},
    {448, 0, 0, s2Z, s2Q},
    {137, 0, 0, s3Z, s2Q},
    {-997, 108, 0, cZ, s2Q},
    /* 21-29 */
    {480, 0, 0, c2Z, s2Q},
    {148, 0, 0, c3Z, s2Q},
    {-956, 99, 0, sZ, c2Q},
    {490, 0, 0, s2Z, c2Q},
    {158, 0, 0, s3Z, c2Q},
    {179, 0, 0, c2Q, k1},
    {1024, 75, 0, cZ, c2Q},
    {-437, 0, 0, c2Z, c2Q},
    {-132, 0, 0, c3Z, c2Q},
};

// Jupiter, perihelion correction C (degrees).
constexpr GreatTerm kJupiterC[] = {
    {0.007192, -0.003147, 0, sV, k1},
    {-0.004344, 0, 0, sQ, k1},
    {-0.020428, -0.000675, 0.000197, cV, k1},
    {0.034036, 0, 0, cZ, sQ},
    {0.007269, 0.000672, 0, sZ, sQ},
    {0.005614, 0, 0, c2Z, sQ},
    {0.002964, 0, 0, c3Z, sQ},
    {0.037761, 0, 0, sZ, cQ},
    {0.006158, 0, 0, s2Z, cQ},
    {-0.006603, 0, 0, cZ, cQ},
    /* 11-18 */
    {-0.005356, 0, 0, sZ, s2Q},
    {0.002722, 0, 0, s2Z, s2Q},
    {0.004483, 0, 0, cZ, s2Q},
    {-0.002642, 0, 0, c2Z, s2Q},
    {0.004403, 0, 0, sZ, c2Q},
    {-0.002536, 0, 0, s2Z, c2Q},
    {0.005547, 0, 0, cZ, c2Q},
    {-0.002689, 0, 0, c2Z, c2Q},
};

// Jupiter, semi-major axis correction D (units of 1e-06).
constexpr GreatTerm kJupiterD[] = {
    {205, 0, 0, cZ, k1},
    {-263, 0, 0, cV, k1},
    {693, 0, 0, c2Z, k1},
    {312, 0, 0, c3Z, k1},
    {147, 0, 0, c4Z, k1},
    {299, 0, 0, sZ, sQ},
    {181, 0, 0, c2Z, sQ},
    {204, 0, 0, s2Z, cQ},
    {111, 0, 0, s3Z, cQ},
    {-337, 0, 0, cZ, cQ},
    /* 11 */
    {-111, 0, 0, c2Z, cQ},
};

// Saturn, mean-longitude correction A (degrees).
constexpr GreatTerm kSaturnA[] = {
    {0.007581, 0, 0, s2V, k1},
    {-0.007986, 0, 0, sW, k1},
    {-0.148811, 0, 0, sZ, k1},
    {-0.040786, 0, 0, s2Z, k1},
    {-0.814181, 0.01815, -0.016714, sV, k1},
    {-0.010497, 0.160906, -0.0041, cV, k1},
    {-0.015208, 0, 0, s3Z, k1},
    {-0.006339, 0, 0, s4Z, k1},
    {-0.006244, 0, 0, sQ, k1},
    {-0.0165, 0, 0, s2Z, sQ},
    /* 11-20 */
    {0.008931, 0.002728, 0, sZ, sQ},
    {-0.005775, 0, 0, s3Z, sQ},
    {0.081344, 0.003206, 0, cZ, sQ},
    {0.015019, 0, 0, c2Z, sQ},
    {0.085581, 0.002494, 0, sZ, cQ},
    {0.014394, 0, 0, c2Z, cQ},
    {0.025328, -0.003117, 0, cZ, cQ},
    {0.006319, 0, 0, c3Z, cQ},
    {0.006369, 0, 0, sZ, s2Q},
    {0.009156, 0, 0, s2Z, s2Q},
    /* 21-24 */
    {0.007525, 0, 0, s3X, s2Q},
    {-0.005236, 0, 0, cZ, c2Q},
    {-0.007736, 0, 0, c2Z, c2Q},
    {-0.007528, 0, 0, c3X, c2Q},
};

// Saturn, eccentricity correction B (units of 1e-07).
constexpr GreatTerm kSaturnB[] = {
    {-12696, 0, 0, sZ, cQ},
    {-4200, 0, 0, s2Z, cQ},
    {-1503, 0, 0, s3Z, cQ},
    {-619, 0, 0, s4Z, cQ},
    {-268, 0, 0, s5Z, cQ},
    {-282, -1306, 0, cZ, cQ},
    {-86, 230, 0, c2Z, cQ},
    {461, 0, 0, s2X, cQ},
    {-350, 0, 0, s2Q, k1},
    {2211, -286, 0, sZ, s2Q},
    /* 11-20 */
    {-2208, 0, 0, s2Z, s2Q},
    {-568, 0, 0, s3Z, s2Q},
    {-346, 0, 0, s4Z, s2Q},
    {-2780, -222, 0, cZ, s2Q},
    {2022, 263, 0, c2Z, s2Q},
    {248, 0, 0, c3Z, s2Q},
    {242, 0, 0, s3X, s2Q},
    {467, 0, 0, c3X, s2Q},
    {-490, 0, 0, c2Q, k1},
    {-2842, -279, 0, sZ, c2Q},
    /* 21-30 */
    {13381, 1226, -253, cV, k1},
    {-7927, 2548, 91, sV, k1},
    {248, -121, 0, s2V, k1},
    {-305, -91, 0, c2V, k1},
    {412, 0, 0, s2Z, k1},
    {12415, 0, 0, sQ, k1},
    {390, -617, 0, sZ, sQ},
    {165, -204, 0, s2Z, sQ},
    {26599, 0, 0, cZ, sQ},
    {-4687, 0, 0, c2Z, sQ},
    /* 31-40 */
    {-1870, 0, 0, c3Z, sQ},
    {-821, 0, 0, c4Z, sQ},
    {-377, 0, 0, c5Z, sQ},
    {497, 0, 0, c2X, sQ},
    {163, -611, 0, cQ, k1},
    {128, 226, 0, s2Z, c2Q},
    {224, 0, 0, s3Z, c2Q},
    {-1594, 282, 0, cZ, c2Q},
    {2162, -207, 0, c2Z, c2Q},
    {561, 0, 0, c3Z, c2Q},
    /* 41-50 */
    {343, 0, 0, c4Z, c2Q},
    {469, 0, 0, s3X, c2Q},
    {-242, 0, 0, c3X, c2Q},
    {-205, 0, 0, sZ, s3Q},
    {262, 0, 0, s3Z, s3Q},
    {208, 0, 0, cZ, c3Q},
    {-271, 0, 0, c3Z, c3Q},
    {-382, 0, 0, c3Z, s4Q},
    {-376, 0, 0, s3Z, c4Q},
};

// Saturn, perihelion correction C (degrees).
constexpr GreatTerm kSaturnC[] = {
    {0.077108, 0.007186, -0.001533, sV, k1},
    {-0.007075, 0, 0, sZ, k1},
    {0.045803, -0.014766, -0.000536, cV, k1},
    {-0.072586, 0, 0, cQ, k1},
    {-0.075825, 0, 0, sZ, sQ},
    {-0.024839, 0, 0, s2Z, sQ},
    {-0.008631, 0, 0, s3Z, sQ},
    {-0.150383, 0, 0, cZ, cQ},
    {0.026897, 0, 0, c2Z, cQ},
    {0.010053, 0, 0, c3Z, cQ},
    /* 11-16 */
    {-0.013597, -0.001719, 0, sZ, s2Q},
    {0.011981, 0, 0, s2Z, c2Q},
    {-0.007742, 0.001517, 0, cZ, s2Q},
    {0.000522, -0.003003, 0, c2Z, c2Q},
    {-0.013667, 0.001239, 0, sZ, c2Q},
    {0.014861, 0.001136, 0, cZ, c2Q},
};

// Saturn, semi-major axis correction D (units of 1e-06).
constexpr GreatTerm kSaturnD[] = {
    {688, 0, 0, s2Z, sQ},
    {495, 0, 0, c2Z, s2Q},
    {250, 0, 0, c3Z, s2Q},
    {-393, 0, 0, s3Z, sQ},
    {-856, 0, 0, sZ, c2Q},
    {-228, 0, 0, s4Z, sQ},
    {441, 0, 0, s2Z, c2Q},
    {2138, 0, 0, cZ, sQ},
    {296, 0, 0, c2Z, c2Q},
    {-999, 0, 0, c2Z, sQ},
    /* 11-20 */
    {211, 0, 0, c3Z, c2Q},
    {-642, 0, 0, c3Z, sQ},
    {-427, 0, 0, sZ, s3Q},
    {-325, 0, 0, c4Z, sQ},
    {398, 0, 0, s3Z, s3Q},
    {-890, 0, 0, cQ, k1},
    {344, 0, 0, cZ, c3Q},
    {2206, 0, 0, sZ, cQ},
    {-427, 0, 0, c3Z, c3Q},
    {572, 0, 0, sV, k1},
    /* 21-30 */
    {-1590, 0, 0, s2Z, cQ},
    {2933, 0, 0, cV, k1},
    {-647, 0, 0, s3Z, cQ},
    {33629, 0, 0, cZ, k1},
    {-344, 0, 0, s4Z, cQ},
    {-3081, 0, 0, c2Z, k1},
    {2885, 0, 0, cZ, cQ},
    {-1423, 0, 0, c3Z, k1},
    {2172, 102, 0, c2Z, cQ},
    {-671, 0, 0, c4Z, k1},
    /* 31-36 */
    {296, 0, 0, c3Z, cQ},
    {-320, 0, 0, c5Z, k1},
    {-267, 0, 0, s2Z, s2Q},
    {1098, 0, 0, sQ, k1},
    {-778, 0, 0, cZ, s2Q},
    {-2812, 0, 0, sZ, sQ},
};

// Saturn, latitude correction H (degrees).
constexpr GreatTerm kSaturnH[] = {
    {0.000747, 0, 0, cZ, sQ},
    {0.001069, 0, 0, cZ, cQ},
    {0.002108, 0, 0, s2Z, s2Q},
    {0.001261, 0, 0, c2Z, s2Q},
    {0.001236, 0, 0, s2Z, c2Q},
    {-0.002075, 0, 0, c2Z, c2Q},
};

template <size_t N>
double SumSeries(const GreatTerm (&terms)[N], const std::array<double, kFactorCount>& f, double nu) {
  double sum = 0;
  for (const GreatTerm& t : terms) sum += (t.c0 + t.c1 * nu + t.c2 * (nu * nu)) * f[t.f1] * f[t.f2];
  return sum;
}

}  // namespace

// The arguments depend on T alone, so within one calculation every call gives
// the same values; they are worked out on the first call of the calculation.
void ClsPlanet::FnFindGreatArgs(bool /*saturn*/) {
  const double T = Centuries;
  if (greatDone_ && greatT_ == T) return;
  jupiterTermsDone_ = false;
  GreatArgs& g = great_;
  g.nu = T / 5 + 0.1;
  g.P = FnReduceRadians(4.14473 + 52.9691 * T);
  g.Q = FnReduceRadians(4.641118 + 21.32991 * T);
  g.S = FnReduceRadians(4.250177 + 7.478172 * T);
  g.V = 5 * g.Q - 2 * g.P;
  g.W = 2 * g.P - 6 * g.Q + 3 * g.S;
  g.Z = g.Q - g.P;
  g.X = g.S - g.Q;
  std::array<double, kFactorCount>& f = g.factor;
  f[k1] = 1;
  f[sQ] = std::sin(g.Q), f[cQ] = std::cos(g.Q);
  f[s2Q] = std::sin(2 * g.Q), f[c2Q] = std::cos(2 * g.Q);
  f[s3Q] = std::sin(3 * g.Q), f[c3Q] = std::cos(3 * g.Q);
  f[s4Q] = std::sin(4 * g.Q), f[c4Q] = std::cos(4 * g.Q);
  f[sV] = std::sin(g.V), f[cV] = std::cos(g.V);
  f[s2V] = std::sin(2 * g.V), f[c2V] = std::cos(2 * g.V);
  f[sW] = std::sin(g.W);
  f[sZ] = std::sin(g.Z), f[cZ] = std::cos(g.Z);
  f[s2Z] = std::sin(2 * g.Z), f[c2Z] = std::cos(2 * g.Z);
  f[s3Z] = std::sin(3 * g.Z), f[c3Z] = std::cos(3 * g.Z);
  f[s4Z] = std::sin(4 * g.Z), f[c4Z] = std::cos(4 * g.Z);
  f[s5Z] = std::sin(5 * g.Z), f[c5Z] = std::cos(5 * g.Z);
  f[s2X] = std::sin(2 * g.X), f[c2X] = std::cos(2 * g.X);
  f[s3X] = std::sin(3 * g.X), f[c3X] = std::cos(3 * g.X);
  greatDone_ = true;
  greatT_ = T;
}

// Jupiter's series depend on T alone, and its two passes ask for them with the
// same T: the sums are worked out once per calculation.
void ClsPlanet::FnJupiterTerms() {
  FnFindGreatArgs(false);
  if (!jupiterTermsDone_) {
    const auto& f = great_.factor;
    const double nu = great_.nu;
    jupiterTerms_ = {SumSeries(kJupiterA, f, nu), SumSeries(kJupiterB, f, nu), SumSeries(kJupiterC, f, nu),
                     SumSeries(kJupiterD, f, nu)};
    jupiterTermsDone_ = true;
  }
  const auto [A, B, C, D] = jupiterTerms_;
  dl = A * kDegToRad;
  dE = B * 1e-07;
  dM = dl - (C * kDegToRad) / Jupiter.eccentricity;  // e of the element row, before dE
  dA = D * 1e-06;
}

void ClsPlanet::FnSaturnTerms() {
  FnFindGreatArgs(true);
  const auto& f = great_.factor;
  const double nu = great_.nu;
  const double A = SumSeries(kSaturnA, f, nu);
  const double B = SumSeries(kSaturnB, f, nu);
  const double C = SumSeries(kSaturnC, f, nu);
  const double D = SumSeries(kSaturnD, f, nu);
  const double H = SumSeries(kSaturnH, f, nu);
  dl = A * kDegToRad;
  dE = B * 1e-07;
  dM = dl - (C * kDegToRad) / Saturn.eccentricity;
  dA = D * 1e-06;
  dB = H * kDegToRad;
}

}  // namespace kelvaro
