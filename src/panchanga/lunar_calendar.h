#pragma once
// The two lunar dates of a birth: Krishnadi (the month ends at the full moon)
// and Sukladi (the month ends at the new moon). Neither comes from a table:
// the clock is walked hour by hour until the tithi sought begins or ends, with
// the Sun and Moon worked out at every step that could change what is sought.
//
// One routine serves both reckonings; LunarReckoning holds what differs. The
// calendar keeps state between births on purpose: the Krishnadi date reads
// the Sun longitude that the Sukladi count of the PREVIOUS birth left (0 for
// the first birth of a run), so one LunarCalendar lives for the whole run.
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "astronomy/find_planet_position.h"
#include "astronomy/find_sunrise.h"
#include "astronomy/find_sunset.h"
#include "common/ole_date.h"
#include "panchanga/kaliyuga_year_table.h"
#include "panchanga/sun_times.h"
#include "panchanga/tithi.h"

namespace kelvaro {

// Upper-case sign of a longitude by thirty-degree rows, each upper bound
// included: 0 to 30 is "ARIES" on to "PISCES"; empty outside 0 to 360. The
// spellings "SAGITARIUS" and "CAPRICON" are the stored ones.
std::string SignOfSun(double longitude);
// The same rows one sign back: 0 to 30 is "PISCES", 30 to 60 "ARIES" ...
std::string SignBeforeSun(double longitude);

// The month named by the word of the search ("purnima" or "amavasya") and the
// Sun's sign, both compared in lower case; empty for any other pair. The
// eighth month is "Karttika" for "purnima" and "Kartikka" for "amavasya".
std::string LunarMonthName(const std::string& kind, const std::string& sign);

// The name of the year a lunar month belongs to: the moment's year for
// Chaitra to Sravana; for the other months the year before when the moment
// falls in January to April. Empty for a word that names no month.
std::string LunarYearName(OleDate moment, const std::string& month, const KaliyugaYearTable& table);

// One lunar date: "Adhika" or "Shudha", the month and the year's name.
struct LunarDate {
  std::string flag;
  std::string month;
  std::string year;
};
// "flag  /  month  /  year", as the summary shows it.
std::string LunarDateText(const LunarDate& date);

// What differs between the two reckonings.
struct LunarReckoning {
  enum class Which { Krishnadi, Sukladi };
  Which which;
  std::string monthEnd;   // the tithi that ends the month: "Purnima" or "Amavashya"
  std::string kind;       // month-name word of the search steps: "Purnima" or "Amavasya"
  std::string kindLower;  // and of the other steps: "purnima" or "amavasya"
  std::string name;       // for messages
};
const LunarReckoning& KrishnadiReckoning();
const LunarReckoning& SukladiReckoning();

// Where and how the positions are worked out. The custom ayanamsa's year and
// progress are those of the Preference row; the caller reads them.
struct LunarCalendarInputs {
  CalendarPlace place;
  std::string ayanamsa = "Lahiri";
  double customYear = 0;
  double customProgress = 0;
};

// Every search walks at most this many days; past it the date cannot be
// found and CalculationError says which search gave up.
inline constexpr int kLunarSearchBoundDays = 400;

class LunarCalendar {
 public:
  // All five are shared with the rest of the run and must outlive the
  // calendar. The facade is the calendar's own (its values are overwritten at
  // every step); the tithi classifier is the shared one.
  LunarCalendar(ClsFindPlanetPosition& positions, clsTithi& tithi, clsFindSunrise& sunrise, clsFindSunSet& sunset,
                const KaliyugaYearTable& table);

  // The two dates of the summary; `status` is "TP" there, and "DP" is the
  // only other value that changes anything. Krishnadi first, then Sukladi:
  // the order matters (see above). Each returns the fields of its own date
  // as they stand after the call.
  LunarDate LunarDateKrishnadi(OleDate birth, const std::string& status, const LunarCalendarInputs& inputs);
  LunarDate LunarDateSukladi(OleDate birth, const std::string& status, const LunarCalendarInputs& inputs);
  // The routine behind both.
  LunarDate LunarDateOf(const LunarReckoning& reckoning, OleDate birth, const std::string& status,
                        const LunarCalendarInputs& inputs);

  // The counts of month ends (the tithi of the reckoning), each on a date of
  // its own. Backward from 11:55 PM of the birth date to where the Sun leaves
  // the sign it held at the last one found; one in another sign than the
  // first is not counted. Unless that makes 2, forward from the same moment
  // to where the Sun leaves the sign of the first one ahead: that count is
  // kept as ForwardCount() when the sign is the one found behind, else 0.
  // A month end in force at 11:55 PM is counted both ways.
  std::int16_t PurnimaCount(OleDate birth, const LunarCalendarInputs& inputs);
  std::int16_t AmavasyaCount(OleDate birth, const LunarCalendarInputs& inputs);
  std::int16_t MonthEndCount(const LunarReckoning& reckoning, OleDate birth, const LunarCalendarInputs& inputs);

  // The walks step over the hours in which neither the tithi nor the Sun's
  // sign can change without working the positions out, and keep the
  // positions they worked out for the next walks at the same inputs; true
  // works out every hour afresh (the slow walk, kept to check the quick one
  // against).
  bool hourByHour = false;

  // State after the last call.
  const LunarDate& Krishnadi() const { return krishnadi_; }
  const LunarDate& Sukladi() const { return sukladi_; }
  std::int16_t ForwardCount() const { return forwardCount_; }
  // Dates of the month ends counted backward, latest first.
  const std::vector<OleDate>& MonthEndDates() const { return monthEndDates_; }
  // The Sun at the last month end that each count recorded.
  double PurnimaSun() const { return purnimaSun_; }
  double AmavasyaSun() const { return amavasyaSun_; }
  // Read at the birth moment by the last date asked; the Sukladi date puts
  // the Lagna into the Moon's field.
  double SunAtBirth() const { return sunAtBirth_; }
  double MoonAtBirth() const { return moonAtBirth_; }

 private:
  struct SunMoon {
    double sun = 0;
    double moon = 0;
  };
  struct TithiAt {
    std::string name;
    std::int16_t number = 0;
    std::string side;
  };

  SunMoon PositionsAt(OleDate moment, const LunarCalendarInputs& inputs);
  void SettleFacade(const LunarCalendarInputs& inputs);
  TithiAt TithiOf(OleDate moment, const LunarCalendarInputs& inputs);
  int Steady(const SunMoon& at, const LunarCalendarInputs& inputs) const;
  OleDate NextBrightPratipada(OleDate from, const LunarReckoning& reckoning, const LunarCalendarInputs& inputs);
  double& KeptSun(const LunarReckoning& reckoning);
  LunarDate& Result(LunarReckoning::Which which);
  void FromAmavasyaSun(LunarDate& date, const LunarReckoning& reckoning, OleDate birth, OleDate sunrise,
                       const std::string& status);

  ClsFindPlanetPosition& positions_;
  clsTithi& tithi_;
  clsFindSunrise& sunrise_;
  clsFindSunSet& sunset_;
  const KaliyugaYearTable& table_;

  LunarDate krishnadi_;
  LunarDate sukladi_;
  std::int16_t forwardCount_ = 0;
  std::vector<OleDate> monthEndDates_;
  double purnimaSun_ = 0;
  double amavasyaSun_ = 0;
  double sunAtBirth_ = 0;
  double moonAtBirth_ = 0;

  // Positions already worked out, by moment, for memoInputs_.
  std::unordered_map<double, SunMoon> memo_;
  LunarCalendarInputs memoInputs_;
  bool memoValid_ = false;
  // Whether the facade holds the positions of lastMoment_, the moment last
  // asked for (a memo hit leaves it behind).
  bool facadeCurrent_ = true;
  OleDate lastMoment_;
};

}  // namespace kelvaro
