// ClsPlanet: the mean lunar nodes and the five ayanamsas.
#include <cmath>

#include "astronomy/planet.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

double NodeToCircle(double x) {
  if (std::fabs(x) > 360) {
    x = x - Int(x / 360) * 360;
  } else if (x < 0) {
    x = x + 360;
  }
  return ClsPlanet::FnNormalize360(x);
}

}  // namespace

void ClsPlanet::FnFindRahu() { TropicalRahu = NodeToCircle(MeanNode); }

void ClsPlanet::FnFindKethu() { TropicalKethu = NodeToCircle(TropicalRahu + 180); }

// Compared case-sensitively; an unknown word runs no step and Ayanamsa keeps
// the previous calculation's value.
void ClsPlanet::FnFindAyanamsa() {
  if (AyType == "Lahiri") {
    FnFindLahiri();  // already negative
  } else if (AyType == "Raman") {
    FnFindRaman();
    Ayanamsa = -Ayanamsa;
  } else if (AyType == "KP") {
    FnFindKP();
    Ayanamsa = -Ayanamsa;
  } else if (AyType == "Sayana") {
    Ayanamsa = 0;
  } else if (AyType == "Custom") {
    FnFindCustom(strZeroYearVal, strProgressVal);
    Ayanamsa = -Ayanamsa;
  }
}

// Centuries for the ayanamsa and the Lagna: from the clock and the zone alone,
// so the daylight-saving hours do not reach them.
double ClsPlanet::DsaveFreeCenturies(double& universalHours) const {
  universalHours = HourOfDay + MinuteOfHour / 60.0 - TZone;
  return ((universalHours / 24 + (JulianDayNumber - 2415020.0)) - 0.5) / 36525;
}

void ClsPlanet::FnFindLahiri() {
  double U;
  const double T = DsaveFreeCenturies(U);
  double N = (933060 - 6962911 * T + 7.5 * (T * T)) / 3600;
  while (N > 360) N -= 360;
  while (N < 0) N += 360;
  const double L = (2013816 + 259205536 * T) / 3600;
  const double a = std::sin(N * kPi / 180);
  const double b = std::sin(L * kPi / 180);
  Ayanamsa = ((1.27 * b + 17.23 * a) - (5025.64 + 1.11 * T) * T - 80861.27) / 3600;
}

namespace {

// Whole days from 1 January of `year` to the moment: midnights crossed.
double DaysSinceNewYear(int year, OleDate moment) {
  return static_cast<double>(DateDiff(Interval::Day, OleDate::FromParts(year, 1, 1), moment));
}

}  // namespace

void ClsPlanet::FnFindKP() {
  const double d = DaysSinceNewYear(1900, BirthDateTime);
  const double A = ((3014.33085 / 365.25) * d / 60) / 3600;
  Ayanamsa = A + 22.3602777777778 + 0.000833333333333333;
}

void ClsPlanet::FnFindRaman() {
  const double Y = CalendarYear;
  const double d = DaysSinceNewYear(static_cast<int>(Y), BirthDateTime);
  const double A = ((3019.999999999998 / 365.25) * d / 60) / 3600;
  Ayanamsa = ((151.0 / 3) * (Y - 397)) / 3600 + A;
}

void ClsPlanet::FnFindCustom(double zeroYear, double progress) {
  const double Y = CalendarYear;
  const double z = zeroYear;
  const double p = progress;
  const double d = DaysSinceNewYear(static_cast<int>(Y), BirthDateTime);
  Ayanamsa = ((Y - z) * p) / 3600 + (((p * 60) / 365.25) * d / 60) / 3600;
}

}  // namespace kelvaro
