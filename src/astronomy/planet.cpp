// ClsPlanet: the order of FnCalculate, the moment and epoch, the normalisers.
#include "astronomy/planet.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>

#include "common/calculation_error.h"
#include "common/fp_guard.h"
#include "common/number_rules.h"

namespace kelvaro {

void ClsPlanet::StartCalculation() {
  nutationDone_ = false;
  greatDone_ = false;
  SplitBirthDateTime();
  FnFindLocalSiderealTime();
  SplitBirthDateTime();
  FnFindSiderealTime();
  FnFindSun();
  FnFindMoon();
}

void ClsPlanet::FnCalculate() {
  FpGuard guard;
  StartCalculation();
  FnLoadMarsElements();
  FnLoadMercuryElements();
  FnLoadJupiterElements();
  FnLoadVenusElements();
  FnLoadSaturnElements();
  FnFindMercury();
  FnFindVenus();
  FnFindMars();
  FnFindJupiter();
  FnFindSaturn();
  FnFindRahu();
  FnFindKethu();
  FnFindAyanamsa();
  FnFindLagna();
  FnApplyAyanamsa();
  guard.Check("the position calculation");
}

void ClsPlanet::FnCalculateSunMoon() {
  FpGuard guard;
  StartCalculation();
  FnFindAyanamsa();
  SuryaValue = FnNormalize360(TropicalSun + Ayanamsa);
  ChandraValue = FnNormalize360(TropicalMoon + Ayanamsa);
  guard.Check("the Sun and Moon calculation");
}

void ClsPlanet::FnCalculateLagna() {
  FpGuard guard;
  SplitBirthDateTime();
  FnFindLocalSiderealTime();
  SplitBirthDateTime();
  FnFindSiderealTime();
  FnFindAyanamsa();
  FnFindLagna();
  guard.Check("the Lagna calculation");
}

void ClsPlanet::SplitBirthDateTime() {
  const DateParts p = BirthDateTime.Parts();
  DayOfMonth = p.day;
  MonthOfYear = p.month;
  CalendarYear = p.year;
  HourOfDay = p.hour;
  MinuteOfHour = p.minute;  // the seconds are dropped
}

namespace {

// Writes the text a number shows when it is joined into a string: whole
// values without a point, others to 15 significant digits. Returns the end.
char* WriteNumberText(char* first, char* last, double x) {
  if (x == std::trunc(x) && std::fabs(x) < 1e15) {
    return std::to_chars(first, last, static_cast<long long>(x)).ptr;
  }
  const int n = std::snprintf(first, static_cast<size_t>(last - first), "%.15G", x);
  return first + n;
}

// Joins degrees, "." and minutes times 60 as text and reads the text back as
// a number. The join is not always a number ("78.0.6" for 0.01 minutes).
double JoinedLongitude(double degrees, double minutes) {
  char text[80];
  char* end = WriteNumberText(text, text + 38, degrees);
  *end++ = '.';
  end = WriteNumberText(end, end + 38, minutes * 60);
  double value = 0;
  const auto r = std::from_chars(text, end, value);
  if (r.ec != std::errc() || r.ptr != end) {
    throw CalculationError("Type mismatch: the longitude text \"" + std::string(text, end) + "\" is not a number");
  }
  return value;
}

// Greenwich sidereal hours before reduction, for a day number and hours.
double SiderealAngleHours(double dayNumber, double calendarYear, double hours) {
  const double t = dayNumber / 36525 - 1;
  const double r0 = 0.0513366 * t + 2.586222e-05 * t * t - 1.722e-09 * t * t * t;
  const double r1 = 6.697374558 + 2400 * (t - (calendarYear - 2000) / 100);
  return 1.002737908 * hours + r1 + r0;
}

}  // namespace

// Runs before FnFindSiderealTime, which writes again all it writes; what can be
// seen of it is a second "No Year Zero" and the failure of its number text.
void ClsPlanet::FnFindLocalSiderealTime() {
  UniversalHours = MinuteOfHour / 60.0 + HourOfDay - TZone - DSAVE;
  FnFindDayNumber();
  const double L = JoinedLongitude(CL_LongitudeDeg, CL_LongitudeMin);
  const double Z = TZone * 15;
  const double d = L < Z ? Z - L : Z + L;
  OleDate local = DateAdd(Interval::Minute, -(Int(d) * 4), BirthDateTime);
  local = DateAdd(Interval::Second, -RoundHalfEven((d - Int(d)) * 4, 1), local);
  // The clock as "HH:MM AM/PM" shows it, to the second rounded.
  const double clockSeconds = std::floor(local.Linear() * 86400.0 + 0.5);
  const double secondsOfDay = clockSeconds - std::floor(clockSeconds / 86400.0) * 86400.0;
  const double hours = std::floor(secondsOfDay / 3600) + std::floor(std::fmod(secondsOfDay, 3600) / 60) / 60.0 - TZone - DSAVE;
  const double G = SiderealAngleHours(DayNumber, CalendarYear, hours);
  SiderealHours = (G / 24 - Int(G / 24)) * 24 + TZone;
}

void ClsPlanet::FnFindSiderealTime() {
  UniversalHours = MinuteOfHour / 60.0 + HourOfDay - TZone - DSAVE;
  FnFindDayNumber();
  const double G = SiderealAngleHours(DayNumber, CalendarYear, UniversalHours);
  SiderealHours = (G / 24 - Int(G / 24)) * 24;
}

void ClsPlanet::FnFindDayNumber() {
  if (CalendarYear == 0) {
    if (OnNotice) OnNotice("No Year Zero");
    return;  // the previous day number stands
  }
  const double D = DayOfMonth;
  const double M = MonthOfYear;
  double y = CInt(CalendarYear);
  double m = M;
  double B = 0;
  if (y < 1) y = y + 1;
  if (M < 3) {
    m = M + 12;
    y = y - 1;
  }
  // Compared with y after the shift and M as given, so January and February
  // of 1583 count as Julian. Dates in the gap of 5 to 14 October 1582 go on
  // as Gregorian without a word.
  bool gregorian;
  if (y > 1582) gregorian = true;
  else if (y < 1582) gregorian = false;
  else if (M < 10) gregorian = false;
  else if (M == 10 && D < 5) gregorian = false;
  else gregorian = true;
  if (gregorian) {
    const double A = Int(y / 100);
    B = 2 - A + Int(A / 4);
  }
  double C = Int(365.25 * y) - 694025;
  if (y < 0) C = 365.25 * y - 0.75 - 694025;
  DayNumber = C + B + Int(30.6001 * (m + 1)) + D - 0.5;
  JulianDay = DayNumber + 2415020.0;
  JulianDayNumber = JulianDay + 0.5;
}

double ClsPlanet::FnNormalize360(double x) {
  if (!std::isfinite(x)) FpGuard::CheckFinite(x, "FnNormalize360");
  while (x < 0) x += 360;
  while (x > 360) x -= 360;
  return x;
}

double ClsPlanet::FnReduceDegrees(double x) { return x - Fix(x / 360) * 360; }

double ClsPlanet::FnReduceRadians(double x) { return x - Int(x / 6.283185308) * 6.283185308; }

double ClsPlanet::FnArcSin(double x) { return std::atan(x / std::sqrt(1 - x * x)); }

double ClsPlanet::FnArcTan2(double y, double x) {
  if (x < 0) return std::atan(y / x) + 3.14159265358979;
  if (x > 0 && y >= 0) return std::atan(y / x);
  if (x > 0 && y < 0) return std::atan(y / x) + kTwoPiArcTan2;
  if (y > 0) return 3.14159265358979 / 2;
  if (y < 0) return 9.42477796076937 / 2;
  return 0;
}

void ClsPlanet::FnApplyAyanamsa() {
  SuryaValue = FnNormalize360(TropicalSun + Ayanamsa);
  ChandraValue = FnNormalize360(TropicalMoon + Ayanamsa);
  KujaValue = FnNormalize360(TropicalMars + Ayanamsa);
  BudhaValue = FnNormalize360(TropicalMercury + Ayanamsa);
  GuruValue = FnNormalize360(TropicalJupiter + Ayanamsa);
  SukraValue = FnNormalize360(TropicalVenus + Ayanamsa);
  SaniValue = FnNormalize360(TropicalSaturn + Ayanamsa);
  RahuValue = FnNormalize360(TropicalRahu + Ayanamsa);
  KethuValue = FnNormalize360(TropicalKethu + Ayanamsa);
}

}  // namespace kelvaro
