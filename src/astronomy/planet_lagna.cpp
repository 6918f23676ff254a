// ClsPlanet: the ascendant (Lagna) and the Midheaven, from a sidereal time and
// a mean obliquity of their own; no nutation, no high-latitude guard.
#include <cmath>

#include "astronomy/planet.h"
#include "astronomy/signed_degrees.h"

namespace kelvaro {

void ClsPlanet::FnFindLagna() {
  double U;
  const double T = DsaveFreeCenturies(U);
  // The sign of each coordinate rests on its degrees, a negative zero
  // included: 0 degrees with a southern or eastern letter keeps its side.
  const double phi = JoinDegrees(CL_LatitudeDeg, CL_LatitideMin);
  const double lambda = JoinDegrees(CL_LongitudeDeg, CL_LongitudeMin);
  double theta = ((6.6460656 + 2400.0513 * T + 2.58e-05 * (T * T)) + U) * 15 - lambda;  // East negative
  while (theta > 360) theta -= 360;
  while (theta < 0) theta += 360;
  theta = theta * (kPi / 180);
  const double epsilon = (23.452294 - 0.0130125 * T) * (kPi / 180);

  const double t = std::tan(theta);
  double m = t < 0 ? std::atan(t / std::cos(epsilon)) : FnArcTan2(t, std::cos(epsilon));
  if (m < 0) m += kPi;
  if (std::sin(theta) < 0) m += kPi;
  m = (180 / kPi) * m;  // left unnormalised until the ayanamsa is added

  const double c = std::cos(theta);
  const double q = -std::sin(theta) * std::cos(epsilon) - std::sin(epsilon) * std::tan(phi * (kPi / 180));
  double a = c < 0 ? std::atan(c / q) : FnArcTan2(c, q);
  if (a < 0) a += kPi;
  if (std::cos(theta) < 0) a += kPi;
  a = (180 / kPi) * a;
  while (a > 360) a -= 360;
  while (a < 0) a += 360;
  TropicalAscendant = a;

  LagnaValue = FnNormalize360(a + Ayanamsa);
  // Near a pole q is huge and a lands a hair below a full turn, which can
  // round to exactly 360 (at 90S it does); a full turn is Aries 0.
  if (LagnaValue >= 360) LagnaValue -= 360;
  MidHeaven = FnNormalize360(m + Ayanamsa);
}

}  // namespace kelvaro
