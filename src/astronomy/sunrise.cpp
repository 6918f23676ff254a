#include "astronomy/sunrise.h"
#include "astronomy/signed_degrees.h"

#include <array>
#include <cmath>
#include <string>

#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/fp_guard.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

constexpr double kDegToRad = 0.0174532925;      // this class's own short literal, not pi/180
constexpr double kFullCircle = 6.283185307;     // likewise, not 2 pi
constexpr double kMjdJ2000 = 51544.5;           // MJD of the epoch J2000
constexpr double kCalendarSwitch = 15821004.1;  // 1582 October 4 as YYYYMMDD, inclusive
constexpr const char* kOperation = "sunrise and sunset";

// Altitude thresholds as angles in radians, each degree count times 0.0174532925;
// the search compares against their sines. Index 0 is the one in use.
constexpr std::array<double, 4> kThresholdAngles = {
    -0.014538592652499998,  // -0.833 deg: upper limb with refraction (-50')
    -0.104719755,           // -6 deg
    -0.20943951,            // -12 deg
    -0.31415926499999997,   // -18 deg
};

// x - Int(x), brought into [0, 1). Int is the floor, so the correction never
// fires; it is kept as the theory writes it.
double Frac(double x) {
  double f = x - Int(x);
  if (f < 0) f = f + 1;
  return f;
}

// "78N00": whole degrees, hemisphere, two-digit minutes, for messages.
std::string LatitudeText(double latitude, double deg, double min) {
  return FormatPattern(std::fabs(deg), "0") + (latitude < 0 ? "S" : "N") + FormatPattern(min, "00");
}

}  // namespace

void clsSunrise::FnCalculate() {
  FpGuard guard;

  // The sign is taken from the degrees, a negative zero included, so that a
  // place a few minutes South of the equator (0 S 13) stays South.
  m_latitude = JoinDegrees(CL_LatitudeDeg, CL_LatitideMin);
  m_longitude = JoinDegrees(CL_LongitudeDeg, CL_LongitudeMin);
  FpGuard::CheckFinite(m_latitude, kOperation);
  FpGuard::CheckFinite(m_longitude, kOperation);
  FpGuard::CheckFinite(STZ, kOperation);

  const DateParts parts = BirthDateTime.Parts();
  m_year = parts.year;
  m_month = parts.month;
  m_day = parts.day;

  m_mjd = FnFindMJD(static_cast<double>(m_day), static_cast<double>(m_month), static_cast<double>(m_year), 0);
  FnFindRiseAndSet();
  guard.Check(kOperation);
}

// Modified Julian Date of a calendar date and hour. Before 1582 October 5 the
// Julian correction is -2 TIMES Fix((Y + 4716) / 4) - 1179, a product where the
// theory has a sum; the product is what our results are made of, so it stays.
double clsSunrise::FnFindMJD(double day, double month, double year, double hour) {
  if (month <= 2) {
    month = month + 12;
    year = year - 1;
  }
  const double a = 10000 * year + 100 * month + day;
  double b;
  if (a <= kCalendarSwitch) {
    b = -2 * Fix((year + 4716) / 4) - 1179;
  } else {
    b = Fix(year / 400) - Fix(year / 100) + Fix(year / 4);
  }
  return 365 * year - 679004 + b + Fix(30.6001 * (month + 1)) + day + hour / 24;
}

// Steps a parabola through three altitudes two hours at a time, from clock
// hour 0 of the date. It stops once hour 25 is reached (or a set is flagged)
// and a rise has been flagged; while there is no rise it goes on into the
// following days, and whatever it then finds is stamped on the requested date.
void clsSunrise::FnFindRiseAndSet() {
  m_sinLatitude = std::sin(m_latitude * kDegToRad);
  m_cosLatitude = std::cos(m_latitude * kDegToRad);
  const double sinh0 = std::sin(kThresholdAngles[static_cast<std::size_t>(m_thresholdIndex)]);

  const double date = m_mjd - STZ / 24;
  const double boundHours = static_cast<double>(m_searchBoundDays) * 24;
  double hour = 1;
  bool rise = false;
  bool set = false;
  double riseTime = 0;
  double setTime = 0;
  Parabola p;

  double yMinus = FnFindSinAltitude(date, hour - 1) - sinh0;
  while (!((hour >= 25 || set) && rise)) {
    if (!rise && hour > boundHours) {
      throw CalculationError("No sunrise found within " + std::to_string(m_searchBoundDays) + " days of " +
                             FormatDate(BirthDateTime, "dd/mmm/yyyy") + " at " +
                             LatitudeText(m_latitude, CL_LatitudeDeg, CL_LatitideMin));
    }
    const double y0 = FnFindSinAltitude(date, hour) - sinh0;
    const double yPlus = FnFindSinAltitude(date, hour + 1) - sinh0;
    FnFindQuadraticRoots(yMinus, y0, yPlus, p);
    if (p.nz == 1) {
      if (yMinus < 0) {
        riseTime = hour + p.x1;
        rise = true;
      } else {
        setTime = hour + p.x1;
        set = true;
      }
    }
    if (p.nz == 2) {
      // Two crossings in one window raise no flag: the search goes on and a
      // later crossing may overwrite these times.
      if (p.ye < 0) {
        riseTime = hour + p.x2;
        setTime = hour + p.x1;
      } else {
        riseTime = hour + p.x1;
        setTime = hour + p.x2;
      }
    }
    yMinus = yPlus;
    hour = hour + 2;
  }

  if (rise) m_dateSunrise = FnHoursToDate(riseTime);
  if (set) m_dateSunset = FnHoursToDate(setTime);

  // An ordinary day needs nothing more: both events were flagged on the date,
  // the rise first.
  if (rise && set && riseTime < setTime && setTime < 24) {
    m_sunriseEvent = {SunEventKind::OnDate, m_dateSunrise};
    m_sunsetEvent = {SunEventKind::OnDate, m_dateSunset};
    return;
  }
  ClassifyEvents(date, sinh0);
}

// The first rise within 48 hours of the date's start, and the first set after
// it (or the first set, when the date has no rise), by the same parabolas as
// the search: a set before the rise ends the day before. Unlike the search,
// every crossing counts, two in one window included, and nothing found on a
// later day is stamped on this date. Where an event is found on the date, its
// output takes the true value; otherwise the output keeps what the search
// left (the carry-over that the calendars' scans rely on) and the event says
// what happened.
void clsSunrise::ClassifyEvents(double date, double sinh0) {
  constexpr double kScanHours = 48;
  double firstRise = kScanHours;
  double firstSet = kScanHours;
  double setBeforeRise = kScanHours;  // a set on the date before its rise
  Parabola p;
  const auto noteSet = [&](double at) {
    if (at < firstRise) {
      if (at < setBeforeRise) setBeforeRise = at;
    } else if (at < firstSet) {
      firstSet = at;
    }
  };
  double yMinus = FnFindSinAltitude(date, 0) - sinh0;
  for (double hour = 1; hour < kScanHours; hour = hour + 2) {
    const double y0 = FnFindSinAltitude(date, hour) - sinh0;
    const double yPlus = FnFindSinAltitude(date, hour + 1) - sinh0;
    FnFindQuadraticRoots(yMinus, y0, yPlus, p);
    // Windows come in time order, so the first rise is found before any set
    // that follows it.
    if (p.nz == 1) {
      if (yMinus < 0 && firstRise == kScanHours) firstRise = hour + p.x1;
      if (yMinus >= 0) noteSet(hour + p.x1);
    } else if (p.nz == 2) {
      // A minimum below the horizon: down at x1, up at x2; a maximum: the reverse.
      const double riseAt = hour + (p.ye < 0 ? p.x2 : p.x1);
      const double setAt = hour + (p.ye < 0 ? p.x1 : p.x2);
      if (p.ye < 0) noteSet(setAt);
      if (firstRise == kScanHours) firstRise = riseAt;
      if (p.ye >= 0) noteSet(setAt);
    }
    yMinus = yPlus;
  }
  // Without an event the Sun keeps one side of the horizon the whole time;
  // its altitude at the date's noon tells which.
  const bool up = FnFindSinAltitude(date, 12) - sinh0 > 0;
  const auto eventAt = [this, up](double hours) {
    if (hours >= kScanHours) return SunEvent{up ? SunEventKind::SunStaysUp : SunEventKind::SunStaysDown, OleDate()};
    return SunEvent{hours < 24 ? SunEventKind::OnDate : SunEventKind::NextDate, TrueMoment(hours)};
  };
  m_sunriseEvent = eventAt(firstRise);
  // Without a rise on the date, a set on it is the date's set.
  m_sunsetEvent = eventAt(firstRise >= 24 && setBeforeRise < kScanHours ? setBeforeRise : firstSet);
  if (m_sunriseEvent.kind == SunEventKind::OnDate) m_dateSunrise = m_sunriseEvent.moment;
  if (m_sunsetEvent.kind == SunEventKind::OnDate) m_dateSunset = m_sunsetEvent.moment;
}

// `hours` after the date's clock midnight, to the whole minute, on whatever
// date that falls.
OleDate clsSunrise::TrueMoment(double hours) const {
  const double minutes = Fix(hours * 60 + 0.5);
  return DateAdd(Interval::Minute, minutes, OleDate::FromParts(m_year, m_month, m_day));
}

// The parabola through (-1, y-), (0, y0), (+1, y+): its extreme (xe, ye) and
// the roots within [-1, 1]. nz counts those roots; x1 and x2 keep their old
// values when there is no real root.
void clsSunrise::FnFindQuadraticRoots(double yMinus, double y0, double yPlus, Parabola& p) {
  const double a = 0.5 * (yMinus + yPlus) - y0;
  const double b = 0.5 * (yPlus - yMinus);
  const double c = y0;
  if (a == 0) {
    // Three altitudes on a straight line: xe and the roots divide by zero.
    throw CalculationError(std::string("Calculation failed in ") + kOperation + ": division by zero");
  }
  p.xe = -b / (2 * a);
  p.ye = (a * p.xe + b) * p.xe + c;
  const double disc = b * b - 4 * a * c;
  p.nz = 0;
  if (disc > 0) {
    const double dx = 0.5 * std::sqrt(disc) / std::fabs(a);
    p.x1 = p.xe - dx;
    p.x2 = p.xe + dx;
    if (std::fabs(p.x1) <= 1) p.nz = p.nz + 1;
    if (std::fabs(p.x2) <= 1) p.nz = p.nz + 1;
    if (p.x1 < -1) p.x1 = p.x2;
  }
}

// Sine of the Sun's altitude at `hour` hours after the MJD `date`.
double clsSunrise::FnFindSinAltitude(double date, double hour) const {
  const double t = date + hour / 24;
  const double centuries = (t - kMjdJ2000) / 36525;
  const MiniSun sun = FnFindMiniSun(centuries);
  const double tau = (FnFindLocalSiderealHours(t, m_longitude) - sun.rightAscensionHours) * 15;  // degrees
  return m_sinLatitude * std::sin(sun.declinationDeg * kDegToRad) +
         m_cosLatitude * std::cos(sun.declinationDeg * kDegToRad) * std::cos(tau * kDegToRad);
}

// Local mean sidereal time in hours at the MJD `mjd` and East longitude in degrees.
double clsSunrise::FnFindLocalSiderealHours(double mjd, double longitudeDeg) {
  const double x = mjd - kMjdJ2000;
  const double t = x / 36525;
  double g = 280.46061837 + 360.98564736629 * x + 0.000387933 * t * t - t * t * t / 38710000;
  g = (g / 360 - Int(g / 360)) * 360;
  if (g < 0) g = g + 360;
  return longitudeDeg / 15 + g / 15;
}

// Low-precision Sun: declination in degrees and right ascension in hours at
// `centuries` Julian centuries from J2000.
clsSunrise::MiniSun clsSunrise::FnFindMiniSun(double centuries) {
  const double t = centuries;
  const double m = kFullCircle * Frac(0.993133 + 99.997361 * t);
  const double dl = 6893 * std::sin(m) + 72 * std::sin(2 * m);
  const double lon = kFullCircle * Frac(0.7859453 + m / kFullCircle + (6191.2 * t + dl) / 1296000);
  const double sl = std::sin(lon);
  const double x = std::cos(lon);
  const double y = 0.91748 * sl;
  const double z = 0.39778 * sl;
  const double rho = std::sqrt(1 - z * z);
  MiniSun sun;
  sun.declinationDeg = (360 / kFullCircle) * std::atan(z / rho);
  sun.rightAscensionHours = (48 / kFullCircle) * std::atan(y / (x + rho));
  if (sun.rightAscensionHours < 0) sun.rightAscensionHours = sun.rightAscensionHours + 24;
  return sun;
}

// The moment, on the date of BirthDateTime, of `hours` counted from that
// date's clock midnight, rounded to the whole minute.
//
// The folds "while hh > 24 subtract 24" and "while mm > 60 subtract 60" leave
// hh = 24 and mm = 60 standing. The event always falls on the date of
// BirthDateTime, so we read the clock as hh * 60 + mm minutes into that date,
// taken modulo one day: 24:mm is 00:mm of the SAME date (not of the next), and
// h:60 is (h + 1):00, with 23:60 again 00:00 of the same date.
OleDate clsSunrise::FnHoursToDate(double hours) const {
  const double x = Fix(hours * 60 + 0.5) / 60;
  double hh = Fix(x);
  double mm = Fix(60 * (x - hh) + 0.5);
  while (hh > 24) hh = hh - 24;
  while (mm > 60) mm = mm - 60;
  int minutes = static_cast<int>(hh) * 60 + static_cast<int>(Int(mm));
  if (minutes >= 1440) minutes = minutes - 1440;
  return OleDate::FromParts(m_year, m_month, m_day, minutes / 60, minutes % 60);
}

}  // namespace kelvaro
