#pragma once
// clsSunrise: the clock times of sunrise and sunset at a place on a civil date.
//
// A small solar theory of its own (epoch J2000, MJD 51544.5) and a search by
// parabolas through the sine of the Sun's altitude in two-hour steps of the
// local clock. It shares nothing with ClsPlanet: its degree is 0.0174532925
// radians, its full circle 6.283185307, and East longitude is positive here.
//
// Usage: set the public members, call FnCalculate(), read m_dateSunrise and
// m_dateSunset. An output whose event is not found keeps its earlier value;
// callers rely on that carry-over. m_sunriseEvent and m_sunsetEvent say
// honestly what was found: on the date, after midnight, or no event at all.
#include "astronomy/sun_event.h"
#include "common/ole_date.h"

namespace kelvaro {

class clsSunrise {
 public:
  OleDate BirthDateTime;         // the date; its clock part is ignored
  double CL_LongitudeDeg = 0.0;  // signed degrees, East positive
  double CL_LongitudeMin = 0.0;  // minutes, never negative
  double CL_LatitudeDeg = 0.0;   // signed degrees, South negative
  double CL_LatitideMin = 0.0;   // minutes, never negative
  OleDate m_dateSunrise;         // output
  OleDate m_dateSunset;          // output
  double STZ = 0.0;              // zone hours, East positive
  double DSAVE = 0.0;            // stored; no step reads it
  SunEvent m_sunriseEvent;       // output: the rise of the date, or why there is none
  SunEvent m_sunsetEvent;        // output: the set of the date, or why there is none

  // Fills m_dateSunrise and m_dateSunset, each stamped on the date of
  // BirthDateTime to the whole minute. Raises CalculationError when a
  // floating-point step fails, and when no sunrise turns up within 400 days of
  // hours after the date (the search steps on into later days while the Sun
  // has not risen). Sets m_sunriseEvent and m_sunsetEvent; an ordinary day
  // costs nothing more than the search.
  void FnCalculate();

 private:
  friend struct SunriseTestPeer;

  // Outputs of FnFindQuadraticRoots, kept by the caller between calls: a call
  // that finds no real root leaves x1 and x2 as they were.
  struct Parabola {
    int nz = 0;
    double x1 = 0.0;
    double x2 = 0.0;
    double xe = 0.0;
    double ye = 0.0;
  };

  struct MiniSun {
    double declinationDeg = 0.0;
    double rightAscensionHours = 0.0;
  };

  static double FnFindMJD(double day, double month, double year, double hour);
  void FnFindRiseAndSet();
  static void FnFindQuadraticRoots(double yMinus, double y0, double yPlus, Parabola& p);
  double FnFindSinAltitude(double date, double hour) const;
  static double FnFindLocalSiderealHours(double mjd, double longitudeDeg);
  static MiniSun FnFindMiniSun(double centuries);
  OleDate FnHoursToDate(double hours) const;
  // The events of a day that is not an ordinary one, from a scan of its own.
  void ClassifyEvents(double date, double sinh0);
  OleDate TrueMoment(double hours) const;

  // Altitude thresholds; index 0 is the one in use (the selector is never set).
  int m_thresholdIndex = 0;
  // The bound of the search for a sunrise, in days. A member rather than a
  // constant only so that a test can reach the bound without a long search.
  int m_searchBoundDays = 400;

  double m_latitude = 0.0;   // phi, signed degrees
  double m_longitude = 0.0;  // L, signed degrees, East positive
  double m_sinLatitude = 0.0;
  double m_cosLatitude = 0.0;
  double m_mjd = 0.0;
  int m_year = 0;
  int m_month = 0;
  int m_day = 0;
};

}  // namespace kelvaro
