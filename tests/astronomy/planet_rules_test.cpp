// The engine's time rules, normalisers, ayanamsa dispatch, facade signs and
// error paths, each against values worked by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "astronomy/decimal.h"
#include "astronomy/find_planet_position.h"
#include "astronomy/planet.h"
#include "common/calculation_error.h"
#include "common/fp_guard.h"

namespace kelvaro {
namespace {

constexpr double kExact = 1e-12;  // degrees or days: the same arithmetic, done by hand

ClsPlanet PlanetAt(int y, int m, int d, int h, int n, double tzone = 0, const std::string& ayanamsa = "Lahiri") {
  ClsPlanet p;
  p.BirthDateTime = OleDate::FromParts(y, m, d, h, n);
  p.TZone = tzone;
  p.AyType = ayanamsa;
  p.CL_LatitudeDeg = 17;
  p.CL_LatitideMin = 20;
  p.CL_LongitudeDeg = -78;
  p.CL_LongitudeMin = 30;
  return p;
}

TEST(DayNumber, CalendarSwitchAndItsQuirks) {
  struct Case {
    int y, m, d;
    double dayNumber;
    const char* why;
  } cases[] = {
      {1900, 1, 1, 0.5, "the epoch is 1900 January 0.5"},
      {1582, 10, 15, -115859.5, "first Gregorian day: JD 2299160.5"},
      {1582, 10, 4, -115860.5, "last Julian day, the day before"},
      {1582, 10, 10, -115864.5, "a day of the gap goes on as Gregorian"},
      {1583, 2, 1, -115740.5, "February 1583 counts as Julian: ten days later than Gregorian"},
      {1583, 3, 1, -115722.5, "March 1583 is Gregorian again"},
      {2000, 1, 1, 36524.5, "J2000 0h: JD 2451544.5"},
      {1965, 7, 14, 23935.5, "the sample chart's date: JD 2438955.5"},
  };
  for (const auto& c : cases) {
    ClsPlanet p = PlanetAt(c.y, c.m, c.d, 12, 0);
    p.SplitBirthDateTime();
    p.FnFindDayNumber();
    EXPECT_DOUBLE_EQ(p.DayNumber, c.dayNumber) << c.why;
    EXPECT_DOUBLE_EQ(p.JulianDayNumber, c.dayNumber + 2415020.0 + 0.5) << c.why;
  }
}

TEST(DayNumber, UniversalHoursAreNotWrapped) {
  ClsPlanet p = PlanetAt(1965, 7, 14, 0, 10, 5.5);
  p.FnCalculate();
  EXPECT_NEAR(p.UniversalHours, 10.0 / 60 - 5.5, kExact);  // about -5.33, same day number
  EXPECT_DOUBLE_EQ(p.DayNumber, 23935.5);
  EXPECT_NEAR(p.Centuries, 23935.5 / 36525 + p.UniversalHours / 876600, kExact);
  EXPECT_EQ(p.CenturiesCubed, 0.0);  // never assigned
}

TEST(DayNumber, SecondsChangeNothing) {
  ClsPlanet a = PlanetAt(1965, 7, 14, 14, 15);
  ClsPlanet b = a;
  b.BirthDateTime = OleDate::FromParts(1965, 7, 14, 14, 15, 29);
  a.FnCalculate();
  b.FnCalculate();
  EXPECT_EQ(a.ChandraValue, b.ChandraValue);
  EXPECT_EQ(a.LagnaValue, b.LagnaValue);
}

TEST(Normalisers, BoundariesAsWritten) {
  EXPECT_EQ(ClsPlanet::FnNormalize360(360), 360);  // exactly 360 stays
  EXPECT_EQ(ClsPlanet::FnNormalize360(-720), 0);
  EXPECT_EQ(ClsPlanet::FnNormalize360(720.5), 0.5);
  EXPECT_EQ(ClsPlanet::FnNormalize360(0), 0);
  EXPECT_EQ(ClsPlanet::FnReduceDegrees(-370), -10);  // truncating: stays negative
  EXPECT_EQ(ClsPlanet::FnReduceDegrees(725), 5);
  EXPECT_NEAR(ClsPlanet::FnReduceRadians(-1), 6.283185308 - 1, kExact);
  EXPECT_THROW(ClsPlanet::FnNormalize360(std::numeric_limits<double>::infinity()), CalculationError);
}

TEST(Normalisers, ArcTan2Quadrants) {
  struct Case {
    double y, x, expected;
  } cases[] = {
      {1, 0, 3.14159265358979 / 2},  {-1, 0, 9.42477796076937 / 2},
      {0, 0, 0},                     {1, 1, std::atan(1.0)},
      {1, -1, std::atan(-1.0) + 3.14159265358979}, {-1, 1, std::atan(-1.0) + 6.28318530717958},
      {0, -2, 3.14159265358979},
      // The Lagna with zero sidereal time on the equator: c = 1, q = -0, so
      // the x = 0, y > 0 branch, 90 degrees tropical.
      {1, -0.0, 3.14159265358979 / 2},
  };
  for (const auto& c : cases) EXPECT_EQ(ClsPlanet::FnArcTan2(c.y, c.x), c.expected) << c.y << "," << c.x;
}

TEST(Decimal, DegreesMinutesSecondsText) {
  const clsDecimal d;
  EXPECT_NEAR(d.FnFindDecimal("011.06.40"), 11 + 6.0 / 60 + 40.0 / 3600, kExact);
  EXPECT_NEAR(d.FnFindDecimal("123:45:06"), 123 + 45.0 / 60 + 6.0 / 3600, kExact);  // separators not examined
  EXPECT_THROW(d.FnFindDecimal("abc.06.40"), CalculationError);
  EXPECT_THROW(d.FnFindDecimal("01"), CalculationError);
}

TEST(Ayanamsa, DispatchAndCarryOver) {
  // KP on 1900 January 1: no days into the count, so the constants alone.
  ClsPlanet kp = PlanetAt(1900, 1, 1, 0, 0, 0, "KP");
  kp.FnCalculate();
  EXPECT_DOUBLE_EQ(kp.Ayanamsa, -(22.3602777777778 + 0.000833333333333333));

  // An unknown word (case matters) keeps the previous calculation's value.
  kp.AyType = "lahiri";
  kp.BirthDateTime = OleDate::FromParts(1965, 7, 14, 14, 15);
  kp.FnCalculate();
  EXPECT_DOUBLE_EQ(kp.Ayanamsa, -(22.3602777777778 + 0.000833333333333333));
  ClsPlanet fresh = PlanetAt(1965, 7, 14, 14, 15, 5.5, "lahiri");
  fresh.FnCalculate();
  EXPECT_EQ(fresh.Ayanamsa, 0.0);

  // Sayana leaves every longitude tropical.
  ClsPlanet sayana = PlanetAt(1965, 7, 14, 14, 15, 5.5, "Sayana");
  sayana.FnCalculate();
  EXPECT_EQ(sayana.Ayanamsa, 0.0);
  EXPECT_EQ(sayana.SuryaValue, ClsPlanet::FnNormalize360(sayana.TropicalSun));

  // Raman on 1 January: the year term alone, (151/3)(Y - 397)/3600, negated.
  ClsPlanet raman = PlanetAt(1965, 1, 1, 23, 59, 5.5, "Raman");
  raman.FnCalculate();
  EXPECT_NEAR(raman.Ayanamsa, -((151.0 / 3) * (1965 - 397)) / 3600, kExact);
  // One midnight later the daily term adds 3020/365.25/60 seconds of arc.
  raman.BirthDateTime = OleDate::FromParts(1965, 1, 2, 0, 1);
  raman.FnCalculate();
  EXPECT_NEAR(raman.Ayanamsa, -((151.0 / 3) * 1568 / 3600 + 3019.999999999998 / 365.25 / 60 / 3600), kExact);

  // Custom: zero year 285, 50.2388475 seconds a year, on 11 January 2000.
  ClsPlanet custom = PlanetAt(2000, 1, 11, 12, 0, 0, "Custom");
  custom.strZeroYearVal = 285;
  custom.strProgressVal = 50.2388475;
  custom.FnCalculate();
  EXPECT_NEAR(custom.Ayanamsa, -((2000 - 285) * 50.2388475 / 3600 + 50.2388475 * 10 / 365.25 / 3600), kExact);

  // Lahiri in 1965 is about 23 degrees 22 minutes, and negative.
  ClsPlanet lahiri = PlanetAt(1965, 7, 14, 14, 15, 5.5, "Lahiri");
  lahiri.FnCalculate();
  EXPECT_NEAR(lahiri.Ayanamsa, -23.372, 0.002);
}

TEST(Nodes, KethuIsOppositeRahu) {
  for (int year : {1900, 1937, 1965, 1999, 2024, 2087}) {
    ClsPlanet p = PlanetAt(year, 3, 17, 6, 45, 5.5, "Lahiri");
    p.FnCalculate();
    EXPECT_NEAR(std::fmod(p.TropicalKethu - p.TropicalRahu + 360, 360), 180, 1e-9) << year;
    EXPECT_NEAR(std::fmod(p.KethuValue - p.RahuValue + 360, 360), 180, 1e-9) << year;
    EXPECT_GE(p.RahuValue, 0);
    EXPECT_LE(p.RahuValue, 360);
  }
}

TEST(Facade, SignRules) {
  struct Case {
    const char* ns;
    double latDeg;
    const char* ew;
    double lonDeg;
    const char* side;
    double expectedLat, expectedLon, expectedZone;
  } cases[] = {
      {"N", 13, "E", 78, "E", 13, -78, 5.5},   // East is negative in the engine
      {"S", 13, "W", 78, "W", -13, 78, -5.5},
      {"S", -13, "E", -78, "E", -13, -78, 5.5},  // already negative: passes unchanged
      {"N", -13, "W", -78, "X", -13, -78, 5.5},  // any side but "W" is East
      {"S", 0, "E", 0, "E", 0, 0, 5.5},          // 0 degrees keeps its sign whatever the letter
  };
  for (const auto& c : cases) {
    ClsFindPlanetPosition f;
    f.FindFixValues(OleDate::FromParts(1965, 7, 14, 14, 15), c.ns, c.latDeg, 20, c.ew, c.lonDeg, 30, 5.5, c.side, 0,
                    "Lahiri", 0, 0);
    EXPECT_EQ(f.Planet().CL_LatitudeDeg, c.expectedLat);
    EXPECT_EQ(f.Planet().CL_LongitudeDeg, c.expectedLon);
    EXPECT_EQ(f.Planet().TZone, c.expectedZone);
    EXPECT_EQ(f.Planet().DSAVE, 0.0);
  }
}

TEST(Facade, CustomInputsOnlyForCustomAndDaylightIgnored) {
  ClsFindPlanetPosition f;
  const OleDate m = OleDate::FromParts(1965, 7, 14, 14, 15);
  f.FindFixValues(m, "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 397, 50);
  EXPECT_EQ(f.Planet().strZeroYearVal, 0.0);
  EXPECT_EQ(f.Planet().strProgressVal, 0.0);
  const double lagna = f.FnFindLagnaPosition();
  f.FindFixValues(m, "N", 17, 20, "E", 78, 30, 5.5, "E", 1, "Lahiri", 0, 0);  // daylight 1 hour: no effect
  EXPECT_EQ(f.FnFindLagnaPosition(), lagna);
  f.FindFixValues(m, "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Custom", 397, 50);
  EXPECT_EQ(f.Planet().strZeroYearVal, 397.0);
  EXPECT_EQ(f.Planet().strProgressVal, 50.0);
  ClsFindPlanetPosition fresh;
  EXPECT_EQ(fresh.FnFindMoonPosition(), 0.0);  // the getters do not calculate
}

TEST(Facade, ProbesGiveTheWholeCalculationsValues) {
  ClsFindPlanetPosition whole, probe, lagnaProbe;
  const std::vector<std::string> kinds = {"Lahiri", "Raman", "KP", "Sayana", "Custom"};
  int i = 0;
  for (double serial = -20000; serial < 70000; serial += 997.37, ++i) {
    const OleDate m(serial);
    const std::string& kind = kinds[static_cast<size_t>(i) % kinds.size()];
    whole.FindFixValues(m, "S", 33, 52, "W", 151, 12, 10, "E", 0, kind, 285, 50.2388475);
    probe.FindSunMoonValues(m, "S", 33, 52, "W", 151, 12, 10, "E", 0, kind, 285, 50.2388475);
    EXPECT_EQ(probe.FnFindSunPosition(), whole.FnFindSunPosition()) << serial;
    EXPECT_EQ(probe.FnFindMoonPosition(), whole.FnFindMoonPosition()) << serial;
    EXPECT_EQ(probe.FnFindAyanamsa(), whole.FnFindAyanamsa()) << serial;
    lagnaProbe.FindLagnaValues(m, "S", 33, 52, "W", 151, 12, 10, "E", 0, kind, 285, 50.2388475);
    EXPECT_EQ(lagnaProbe.FnFindLagnaPosition(), whole.FnFindLagnaPosition()) << serial;
    EXPECT_EQ(lagnaProbe.FnFindMidHeaven(), whole.FnFindMidHeaven()) << serial;
  }
}

TEST(Failures, FloatingPointFailuresRaiseNeverNaN) {
  // A latitude that is not a number: invalid operations in the Lagna.
  ClsFindPlanetPosition f;
  EXPECT_THROW(f.FindFixValues(OleDate::FromParts(1965, 7, 14, 14, 15), "N", std::nan(""), 0, "E", 78, 30, 5.5, "E",
                               0, "Lahiri", 0, 0),
               CalculationError);
  // The arc sine of exactly 1 divides by zero.
  FpGuard guard;
  volatile double r = ClsPlanet::FnArcSin(1.0);
  (void)r;
  EXPECT_THROW(guard.Check("FnArcSin"), CalculationError);
}

TEST(Failures, LongitudeTextThatIsNoNumber) {
  // The local sidereal step joins degrees, "." and minutes times 60 as text and
  // reads it back: 0.01 minutes make "78.0.6", which is no number.
  ClsFindPlanetPosition f;
  EXPECT_THROW(f.FindFixValues(OleDate::FromParts(1965, 7, 14, 14, 15), "N", 17, 20, "E", 78, 0.01, 5.5, "E", 0,
                               "Lahiri", 0, 0),
               CalculationError);
  EXPECT_NO_THROW(f.FindFixValues(OleDate::FromParts(1965, 7, 14, 14, 15), "N", 17, 20, "E", 78, 30.5, 5.5, "E", 0,
                                  "Lahiri", 0, 0));
}

}  // namespace
}  // namespace kelvaro
