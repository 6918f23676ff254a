#pragma once
// HoroscopeState: the one record of the horoscope in force. Callers fill the
// preferences and the birth details; the calculation steps fill the results.
// Results are never cleared: each run overwrites them.
#include <array>
#include <cstdint>
#include <string>

#include "analysis/chart_data.h"
#include "analysis/rasi_number.h"
#include "astronomy/sun_event.h"
#include "common/ole_date.h"

namespace kelvaro {


struct HoroscopeState {
  // Preferences in force.
  double DaysInYear = 365.25;
  std::string ChartStyle = "South";
  std::string Language = "English";
  double PrefYear = 0;
  double PrefProgress = 0;
  std::string AyanamsaName = "Lahiri";
  std::string BhavaSystem = "Equal";
  // The copies the astronomy calls actually receive.
  std::string AyanamsaInForce = "Lahiri";
  double YearInForce = 0;
  double ProgressInForce = 0;

  // Birth details in force, as text where the entry form holds text.
  std::string ChartName;
  std::string BirthDay, BirthMonth, BirthYear;
  std::string BirthHour;  // 24-hour clock: "0" for 12:xx AM, "12" for 12:xx PM
  std::string BirthMinute;
  std::string BirthTimeZoneName;
  OleDate BirthMoment;
  std::string BirthGender;
  std::string BirthCity, BirthCountry;
  double LatDeg = 0, LatMin = 0;
  std::string LatNS = "N";
  double LonDeg = 0, LonMin = 0;
  std::string LonEW = "E";
  double TimeDiff = 0;
  std::string TimeDiffEW = "E";
  // Why the clock offset is what it is, when it came from the IANA rules of
  // the place ("Asia/Kolkata: +6:30 on 14/07/1943 (war time)"); empty when
  // the user gave the offset.
  std::string ClockOffsetNote;

  // Results of one position pass.
  OleDate BirthMomentDate;
  double Ayanamsa = 0;
  double MidHeaven = 0;
  double LagnaLon = 0, SunLon = 0, MoonLon = 0, MarsLon = 0, MercuryLon = 0, JupiterLon = 0, VenusLon = 0,
         SaturnLon = 0, RahuLon = 0, KetuLon = 0;
  double GulikaLon = 0, MaandiLon = 0;
  // Rasi numbers under the division size of the pass that ran last.
  std::int16_t LagnaRasi = 0, SunRasi = 0, MoonRasi = 0, MarsRasi = 0, MercuryRasi = 0, JupiterRasi = 0,
               VenusRasi = 0, SaturnRasi = 0, RahuRasi = 0, KetuRasi = 0, GulikaRasi = 0, MaandiRasi = 0;
  OleDate SunriseOfBirthDay, SunsetOfBirthDay, SunriseNextDay;
  OleDate DayCurrentDate, DaySunrise, DaySunset, DayNextSunrise;
  std::string DayOrNight;
  OleDate GulikaDay, GulikaNight, MandiDay, MandiNight;
  OleDate GulikaMoment, MandiMoment;
  // What the sunrise search found for the civil date of the birth: each event
  // on the date, after midnight (with its true date), or none, in words.
  SunEvent SunriseEvent, SunsetEvent;
  // False where no sunrise or sunset bounds the birth's day (beyond the polar
  // circles): DayOrNight is then empty, and Gulika and Maandi are left out,
  // their longitudes and rasis 0.
  bool GulikaMaandiKnown = true;

  // Name tables, by LoadNamesForLanguage. ShortNames stands in the canonical
  // order; LongNames stands Venus before Jupiter, so address both by body.
  std::array<std::string, 12> ShortNames;
  std::array<std::string, 10> LongNames;
  std::array<std::string, 12> RasiNames;       // index 0 is rasi 1
  std::array<std::string, 12> RasiShortNames;  // index 0 is rasi 1
  std::string GulikaLongName = "Gulika";
  std::string MaandiLongName = "Maandi";

  double LongitudeOf(Body body) const;
  std::int16_t RasiOf(Body body) const;
  void SetRasi(Body body, std::int16_t rasi);
  const std::string& ShortNameOf(Body body) const { return ShortNames[static_cast<size_t>(body)]; }
  const std::string& LongNameOf(Body body) const;
};

// The text the birth's moment is read from: day "/" month "/" year " " hour
// ":" minute ": 00" (the hour on the 24-hour clock; the blank after the
// second colon is part of it).
std::string BirthMomentText(const std::string& day, const std::string& month, const std::string& year,
                            const std::string& hour, const std::string& minute);

// What the analysis steps read of the state.
ChartData ChartDataOf(const HoroscopeState& state);

// The first content of the birth details on a machine with no saved chart:
// Velnesh, Male, 14 Jul 1965 14:15, Hyderabad (A.P), India, 17 20 N,
// 78 30 E, 5.5 hours East; with the default preferences.
HoroscopeState SampleChart();

// Fills the name tables from Language: "English" or "Sanskrit"; any other
// value leaves the tables as they are.
void LoadNamesForLanguage(HoroscopeState& state);

}  // namespace kelvaro
