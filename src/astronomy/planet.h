#pragma once
// ClsPlanet: one civil moment and one place in, eleven sidereal longitudes out
// (Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn, the mean nodes, Lagna and
// Midheaven), from mean-element theories counted from 1900 January 0.5.
//
// House pattern: set the public inputs, call FnCalculate(), read the public
// outputs. Intermediate results stay in the object between calls; nothing is
// cleared at the start of a calculation, and an unknown AyType leaves Ayanamsa
// as the previous calculation left it.
//
// A floating-point failure (invalid operation, division by zero, overflow)
// raises kelvaro::CalculationError out of FnCalculate; outputs already written
// stay written. Year 0 is reported through OnNotice ("No Year Zero") and the
// calculation goes on with the previous day number.
#include <array>
#include <functional>
#include <string>

#include "common/ole_date.h"

namespace kelvaro {

// Constants of the engine. They are the program's own short literals, not
// full-precision values: the difference is part of the longitudes.
inline constexpr double kDegToRad = 0.01745329252;        // `deg`
inline constexpr double kRadToDeg = 57.29577951;          // `rad`
inline constexpr double kTwoPi = 6.283185308;             // full circle, radians
inline constexpr double kPi = 3.14159265358979;           // half circle, also 180 deg
inline constexpr double kTwoPiArcTan2 = 6.28318530717958; // full circle in FnArcTan2 only

class ClsPlanet {
 public:
  // Inputs.
  OleDate BirthDateTime;           // civil date and clock at the place
  double CL_LongitudeDeg = 0;      // signed degrees, East negative
  double CL_LongitudeMin = 0;      // minutes, never negative
  double CL_LatitudeDeg = 0;       // signed degrees, South negative
  double CL_LatitideMin = 0;       // minutes, never negative
  double TZone = 0;                // hours East of Greenwich, West negative
  double strProgressVal = 0;       // Custom ayanamsa: seconds of arc a year
  double strZeroYearVal = 0;       // Custom ayanamsa: zero year
  double DSAVE = 0;                // daylight saving hours
  // Outputs, sidereal degrees.
  double LagnaValue = 0;
  double SuryaValue = 0;
  double ChandraValue = 0;
  double KujaValue = 0;
  double BudhaValue = 0;
  double GuruValue = 0;
  double SukraValue = 0;
  double SaniValue = 0;
  double RahuValue = 0;
  double KethuValue = 0;
  double MidHeaven = 0;
  double Ayanamsa = 0;             // the correction added, normally negative
  std::string AyType;              // "Lahiri", "Raman", "KP", "Sayana", "Custom"

  // Receives "No Year Zero"; nothing is shown when it is empty.
  std::function<void(const std::string&)> OnNotice;

  void FnCalculate();

  // The Sun and Moon alone: the first steps of FnCalculate, with the ayanamsa,
  // giving exactly the SuryaValue and ChandraValue that FnCalculate gives.
  // The lunar-date searches probe thousands of moments and need nothing else.
  void FnCalculateSunMoon();

  // The Lagna and Midheaven alone: the time steps, the ayanamsa and the Lagna,
  // giving exactly the LagnaValue and MidHeaven that FnCalculate gives. For
  // Gulika and Maandi, which are the Lagnas of their rise moments.
  void FnCalculateLagna();

  // Shared normalisers (public because other subsystems follow the same rules).
  static double FnNormalize360(double x);   // 0 to 360, both ends possible
  static double FnReduceDegrees(double x);  // x - Fix(x / 360) * 360
  static double FnReduceRadians(double x);  // x - Int(x / 6.283185308) * 6.283185308
  static double FnArcSin(double x);         // atan(x / sqrt(1 - x^2))
  static double FnArcTan2(double y, double x);  // 0 to 2 pi, with its own literals

  // Private working values, public for tests and for the facade's probes.
  double DayOfMonth = 0, MonthOfYear = 0, CalendarYear = 0;
  int HourOfDay = 0, MinuteOfHour = 0;
  double UniversalHours = 0;
  double DayNumber = 0;
  double JulianDay = 0;
  double JulianDayNumber = 0;
  double Centuries = 0;
  double CenturiesSquared = 0;
  double CenturiesCubed = 0;  // declared, read by FnFindMoon, never assigned: stays 0
  double SiderealHours = 0;   // written, read by nothing

  // Results of the Sun and nutation steps that the planets read.
  double SunTrueLongitude = 0;  // radians
  double SunDistance = 0;       // astronomical units
  double EccentricAnomaly = 0;  // radians, of the last FnSolveKepler
  double NutationLongitude = 0; // degrees
  double NutationObliquity = 0; // degrees; computed, read by nothing
  double TropicalAscendant = 0; // degrees; kept, read by nothing

  // Tropical longitudes before the ayanamsa, degrees.
  double TropicalSun = 0, TropicalMoon = 0, TropicalMars = 0, TropicalMercury = 0, TropicalJupiter = 0,
         TropicalVenus = 0, TropicalSaturn = 0, MeanNode = 0, TropicalRahu = 0, TropicalKethu = 0;

  // Steps, in the order FnCalculate runs them.
  void SplitBirthDateTime();
  void FnFindLocalSiderealTime();
  void FnFindSiderealTime();
  void FnFindDayNumber();
  void FnFindSun();
  void FnFindNutation();
  void FnFindMoon();
  void FnLoadMarsElements();
  void FnLoadMercuryElements();
  void FnLoadJupiterElements();
  void FnLoadVenusElements();
  void FnLoadSaturnElements();
  void FnFindMercury();
  void FnFindVenus();
  void FnFindMars();
  void FnFindJupiter();
  void FnFindSaturn();
  void FnFindRahu();
  void FnFindKethu();
  void FnFindAyanamsa();  // the dispatch by AyType
  void FnFindLahiri();
  void FnFindRaman();
  void FnFindKP();
  void FnFindCustom(double zeroYear, double progress);
  void FnFindLagna();
  void FnApplyAyanamsa();

  double FnSolveKepler(double meanAnomaly, double eccentricity);
  double FnFindSunMeanAnomaly() const;

  // Mean elements of one planet at T, as its load step leaves them.
  struct Elements {
    double meanLongitude = 0;  // degrees, 0 to 360
    double dailyMotion = 0;    // degrees a day
    double perihelion = 0;     // degrees
    double eccentricity = 0;
    double inclination = 0;    // degrees
    double node = 0;           // degrees
    double semiMajorAxis = 0;  // astronomical units
    double sinInclination = 0, cosInclination = 0;  // of inclination * deg
  };
  Elements Mercury, Venus, Mars, Jupiter, Saturn;

  // Working values of a planet pass, cleared at the start of each pass.
  double dL = 0, dR = 0, dl = 0, dM = 0, dE = 0, dA = 0, dB = 0;
  double Mm = 0, Mv = 0, Mr = 0, Mj = 0, Ms = 0, Me = 0;  // mean anomalies, radians

 private:
  enum class Geocentric { Inner, Outer };
  enum class Aberration { None, JupiterPi, SaturnPi };
  using Terms = void (ClsPlanet::*)();
  double FindPlanet(const Elements& planet, double& own, int passes, Terms terms, bool needsEarthAnomaly,
                    Geocentric form, Aberration aberration);
  void FnMercuryTerms();
  void FnVenusTerms();
  void FnMarsTerms();
  void FnJupiterTerms();
  void FnSaturnTerms();
  void FnFindGreatArgs(bool saturn);
  Elements LoadElements(int row) const;
  double DsaveFreeCenturies(double& universalHours) const;
  void StartCalculation();

  // Arguments of the great inequality and their sines and cosines (indexed by
  // the factor list of the Jupiter and Saturn series), set by FnFindGreatArgs.
  struct GreatArgs {
    double nu = 0, P = 0, Q = 0, S = 0, V = 0, W = 0, Z = 0, X = 0;
    std::array<double, 28> factor{};
  } great_;
  bool greatDone_ = false;
  double greatT_ = 0;
  std::array<double, 4> jupiterTerms_{};  // A, B, C, D of the Jupiter series
  bool jupiterTermsDone_ = false;
  bool nutationDone_ = false;             // the nutation of this calculation's T is known
  double nutationT_ = 0;
};

}  // namespace kelvaro
