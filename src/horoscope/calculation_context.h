#pragma once
// CalculationContext: everything one run of the program calculates with. The
// shell or the CLI owns one for the whole run; there is no global state.
// The long-lived instances keep their carry-over between calls, as the
// calculation classes require.
#include "astronomy/find_planet_position.h"
#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "horoscope/horoscope_state.h"
#include "panchanga/times.h"

namespace kelvaro {

struct CalculationContext {
  HoroscopeState state = SampleChart();
  ClsFindPlanetPosition positions;          // the driver's facade
  ClsFindPlanetPosition calendarPositions;  // the calendar module's facade
  clsFindSunrise sunrise;
  clsFindSunSet sunset;
  clsTimes times;
};

// The Rasi pass and the Navamsa pass differ only in the division size.
inline constexpr double kRasiDivision = 30;
inline constexpr double kNavamsaDivision = 3.33333333333333;  // this literal, not a third of 10

// One position pass: the moment from the birth text, the ten longitudes and
// their rasis under `division`, the day's limits, Gulika and Maandi. Raises
// CalculationError when the birth text is not a date or a step fails.
void ComputeChartPositions(CalculationContext& ctx, double division);

}  // namespace kelvaro
