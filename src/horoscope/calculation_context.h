#pragma once
// CalculationContext: everything one run of the program calculates with. The
// shell or the CLI owns one for the whole run; there is no global state.
// The long-lived instances keep their carry-over between calls, as the
// calculation classes require (the lunar calendar keeps a Sun longitude from
// one horoscope to the next), so a context is neither copied nor moved.
#include <functional>
#include <memory>
#include <string>

#include "analysis/ashtakavarga.h"
#include "analysis/bhava.h"
#include "analysis/bhukthi_sink.h"
#include "analysis/charts_master_table.h"
#include "analysis/dasa.h"
#include "analysis/planet_table.h"
#include "analysis/vargas.h"
#include "astronomy/find_planet_position.h"
#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "horoscope/birth_summary.h"
#include "horoscope/horoscope_state.h"
#include "panchanga/kaliyuga_year_table.h"
#include "panchanga/lunar_calendar.h"
#include "panchanga/rasi.h"
#include "panchanga/solar_calendar.h"
#include "panchanga/star.h"
#include "panchanga/times.h"
#include "panchanga/tithi.h"
#include "panchanga/yoga.h"
#include "presentation/chart_cells.h"

namespace kelvaro {

struct CalculationContext {
  // Where the calculation reads and writes master data (the store's tables in
  // the program): the sixty years, the divisional-chart bands, and the
  // tempBhukthi rows. Without them no year has a row, no band matches, and the
  // rows go nowhere. They must outlive the context.
  explicit CalculationContext(const KaliyugaYearTable* years = nullptr, const ChartsMasterTable* charts = nullptr,
                              BhukthiSink* bhukthi = nullptr);
  CalculationContext(const CalculationContext&) = delete;
  CalculationContext& operator=(const CalculationContext&) = delete;

  HoroscopeState state = SampleChart();
  std::string UserId = "0";  // the chart's number (Sno) when it is saved; keys its tempBhukthi rows
  std::string CurrentView;   // the view the user last chose; "" is the details

  // The models of the views.
  BirthSummary summary;
  ChartCells cells;  // the Rasi, Navamsa and Bhava charts
  Ashtakavarga ashtakavarga;
  BhavaTables bhava;
  PlanetTable planets;
  Vargas vargas;
  DasaTables dasa;

  ClsFindPlanetPosition positions;          // the driver's facade
  ClsFindPlanetPosition calendarPositions;  // the calendar module's facade
  clsFindSunrise sunrise;
  clsFindSunSet sunset;
  clsTimes times;
  clsRasi rasi;
  clsStar star;
  clsTithi tithi;
  clsYoga yoga;
  const KaliyugaYearTable& years;
  const ChartsMasterTable& chartsMaster;
  BhukthiSink& bhukthi;
  LunarCalendar lunar;
  SolarCalendar solar;

  // The day the program runs, for the Kali day count; the clock by default.
  std::function<OleDate()> today;
  // Called with (done, total) as the calculation moves: 0 at the start, then
  // after each of its fifteen marked steps.
  std::function<void(int, int)> OnProgress;
};

// Sunrise and sunset of a civil date at the birth place in force.
OleDate SunriseAtBirthPlace(CalculationContext& ctx, OleDate date);
OleDate SunsetAtBirthPlace(CalculationContext& ctx, OleDate date);

// One position pass: the moment from the birth text, the ten longitudes and
// their rasis under `division`, the day's limits, Gulika and Maandi. Raises
// CalculationError when the birth text is not a date or a step fails.
void ComputeChartPositions(CalculationContext& ctx, double division);

}  // namespace kelvaro
