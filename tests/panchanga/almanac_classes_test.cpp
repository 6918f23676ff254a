#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "common/calculation_error.h"
#include "panchanga/karnam.h"
#include "panchanga/planet_nature.h"
#include "panchanga/planet_strength.h"
#include "panchanga/solar_year_details.h"
#include "panchanga/time_display.h"
#include "panchanga/time_zone.h"
#include "panchanga/visha_ghati.h"
#include "support/year_table.h"

namespace kelvaro {
namespace {

constexpr double kArcSecond = 1.0 / 3600;

// Each window lies inside its own star (13 deg 20' each) and is 53' 20" long,
// all but Uttarabhadra's, whose end text reads 40 seconds where 20 keep the
// rule; "12.00.00" reads as 12 degrees despite its two digits.
TEST(VishaGhati, EveryWindowInsideItsStarAndOfTheTableLength) {
  for (int star = 1; star <= 27; ++star) {
    SCOPED_TRACE(star);
    ClsVishaGhati v;
    v.StarIndex = star;
    v.dispVishaghati();
    const double starStart = (star - 1) * 40.0 / 3;
    EXPECT_GT(v.VishaStart, starStart);
    EXPECT_LE(v.VishaEnd, starStart + 40.0 / 3 + 1e-9);  // Moola's ends with its star
    const double expectedLength = (star == 26 ? 53.0 / 60 + 40 * kArcSecond : 53.0 / 60 + 20 * kArcSecond);
    EXPECT_NEAR(v.VishaEnd - v.VishaStart, expectedLength, 1e-9);
  }
  ClsVishaGhati v;
  v.StarIndex = 1;
  v.dispVishaghati();
  EXPECT_EQ(v.VishaEndText, "12.00.00");
  EXPECT_DOUBLE_EQ(v.VishaEnd, 12.0);
  v.StarIndex = 26;
  v.dispVishaghati();
  EXPECT_EQ(v.VishaEndText, "339.33.40");
  v.StarIndex = 28;  // no such star: the window of Uttarabhadra stays
  v.dispVishaghati();
  EXPECT_EQ(v.VishaStartText, "338.40.00");
  EXPECT_THROW(VishaGhatiDegrees("12.00"), CalculationError);
  EXPECT_THROW(VishaGhatiDegrees("12.x0.00"), CalculationError);
}

TEST(PlanetStrength, LowerCaseWordsAndHousesOutsideTheSigns) {
  clsPlanetStrength s;
  s.SunHouse = 0;
  s.MoonHouse = 11;
  s.MarsHouse = 9;
  s.MercuryHouse = 5;
  s.JupiterHouse = 9;
  s.VenusHouse = 11;
  s.SaturnHouse = 6;
  s.RahuHouse = 7;
  s.KethuHouse = 7;
  s.FindPlanetStrength();
  EXPECT_EQ(s.SunStrength, "Exa");
  EXPECT_EQ(s.MoonStrength, "Neu");
  EXPECT_EQ(s.MarsStrength, "exa");
  EXPECT_EQ(s.MercuryStrength, "exa-own");
  EXPECT_EQ(s.JupiterStrength, "deb");
  EXPECT_EQ(s.VenusStrength, "Exa");
  EXPECT_EQ(s.SaturnStrength, "exa");
  EXPECT_EQ(s.RahuStrength, "exa");
  EXPECT_EQ(s.KethuStrength, "deb");
  // 12 and -1 name no sign: the words of the call before stay.
  s.SunHouse = 12;
  s.KethuHouse = -1;
  s.MoonHouse = 3;
  s.FindPlanetStrength();
  EXPECT_EQ(s.SunStrength, "Exa");
  EXPECT_EQ(s.KethuStrength, "deb");
  EXPECT_EQ(s.MoonStrength, "Own");
  clsPlanetStrength fresh;
  fresh.RahuHouse = 12;
  fresh.FindPlanetStrength();
  EXPECT_EQ(fresh.RahuStrength, "");
}

TEST(PlanetNature, RasiFromTheLagnaAndPositionsOutsideTheCircle) {
  clsPlanetNature n;
  n.LagnaPosition = 359.99;  // Pisces, the last row
  n.FindPlanet();
  EXPECT_EQ(n.JupiterNature, 2);
  EXPECT_EQ(n.VenusNature, -2);
  EXPECT_EQ(n.SaturnNature, -2);
  n.LagnaPosition = 270;  // exactly 270 is Capricorn, row 10, not Sagittarius
  n.FindPlanet();
  EXPECT_EQ(n.SunNature, -2);
  EXPECT_EQ(n.MercuryNature, 1);
  n.LagnaPosition = 360;  // rasi 13: nothing assigned
  n.FindPlanet();
  EXPECT_EQ(n.SunNature, -2);
  n.LagnaPosition = -0.5;
  n.FindPlanet();
  EXPECT_EQ(n.SunNature, -2);
}

TEST(Karnam, NamesOfTheTithiAndTheSplitToTheSecond) {
  clsKarnam k;
  k.TithiNumber = 30;
  k.TithiStart = OleDate::FromParts(2024, 1, 10, 16, 0, 0);
  k.TithiEnd = OleDate::FromParts(2024, 1, 11, 17, 27, 9);  // 91629 s later
  k.FindKarnam();
  EXPECT_EQ(k.KarnamName1, "Chatushpada");
  EXPECT_EQ(k.KarnamName2, "Naga");
  EXPECT_EQ(k.KarnamEnd1, OleDate::FromParts(2024, 1, 11, 4, 43, 34));  // 45814 s after the start
  EXPECT_EQ(k.KarnamStart2, k.KarnamEnd1);
  EXPECT_EQ(k.KarnamEnd2, k.TithiEnd);
  k.TithiNumber = 31;
  k.FindKarnam();
  EXPECT_EQ(k.KarnamName1, "Chatushpada");
  k.TithiNumber = 1;
  k.FindKarnam();
  EXPECT_EQ(k.KarnamName1, "Kintughna");
  EXPECT_EQ(k.KarnamName2, "Bava");
}

TEST(SolarYear, RowOfTheYearAndYearsWithoutOne) {
  const auto table = testing::SeedYearTable();
  ClsSolarYear y(table);
  y.EnglishYear = 1987;
  y.FindSolarYear();
  EXPECT_EQ(y.yearname, "Prabhava");
  EXPECT_EQ(y.YearDay, 1);
  EXPECT_DOUBLE_EQ(y.YearRemain, 0.3752);
  y.EnglishYear = 2107;  // Yearno 61: no row, Prabhava stays
  y.FindSolarYear();
  EXPECT_EQ(y.yearname, "Prabhava");
}

TEST(TimeDisplay, CaptionMinutesAndColoursOfDayAndNight) {
  clsTimeDisplay d;
  d.Sunrisetime = OleDate::FromParts(2024, 1, 11, 6, 45, 0);
  d.Sunsettime = OleDate::FromParts(2024, 1, 11, 18, 0, 0);
  d.TimeStart = OleDate::FromParts(2024, 1, 11, 8, 9, 20);
  d.TimeEnd = OleDate::FromParts(2024, 1, 11, 9, 33, 50);
  d.DisplayTime();
  EXPECT_EQ(d.TimeCaption, "08:09:20 to 09:33:50");
  EXPECT_EQ(d.TimeLeft, 84);   // 1 h 24 min 20 s
  EXPECT_EQ(d.TimeWidth, 85);  // 1 h 24 min 30 s, rounded up
  EXPECT_EQ(d.TimeBackColor, kDayBackColor);
  d.TimeBackColor.clear();
  d.TimeForeColor = "#ff0000";
  d.TimeStart = d.Sunsettime;
  d.TimeEnd = OleDate::FromParts(2024, 1, 11, 17, 0, 0);  // ends before it starts
  d.DisplayTime();
  EXPECT_EQ(d.TimeBackColor, kNightBackColor);
  EXPECT_EQ(d.TimeForeColor, "#ff0000");
  EXPECT_EQ(d.TimeWidth, 0);
  EXPECT_EQ(d.TimeLeft, 675);
}

TEST(TimeZone, HoursOfAMeridianOnEitherSide) {
  struct Row {
    std::int16_t degree;
    std::int16_t minute;
    double hours;
  };
  const Row rows[] = {{82, 30, 5.5}, {-75, 0, -5}, {-3, 45, -0.25}, {180, 0, 12}, {0, 0, 0}};
  for (const Row& r : rows) {
    kelvaro::TimeZone z;
    z.TZoneLongitudeDegree = r.degree;
    z.TZoneLongitudeMinute = r.minute;
    z.findTimeZone();
    EXPECT_DOUBLE_EQ(z.TimeZone, r.hours) << r.degree << " " << r.minute;
  }
  kelvaro::TimeZone z;
  z.TZoneLongitudeDegree = 82;
  z.TZoneLongitudeMinute = 30;
  z.findTimeZone();
  z.TZoneLongitudeMinute = 60;
  z.findTimeZone();
  z.TZoneLongitudeDegree = 181;
  z.TZoneLongitudeMinute = 0;
  z.findTimeZone();
  EXPECT_DOUBLE_EQ(z.TimeZone, 5.5);
}

}  // namespace
}  // namespace kelvaro
