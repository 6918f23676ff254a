#include "panchanga/lunar_calendar.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <utility>

#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/number_rules.h"
#include "panchanga/solar_year.h"

namespace kelvaro {

namespace {

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

// Signs by thirty-degree rows, Aries first.
constexpr std::array<const char*, 12> kSigns = {"ARIES",  "TAURUS",     "GEMINI",   "CANCER",
                                                "LEO",    "VIRGO",      "LIBRA",    "SCORPIO",
                                                "SAGITARIUS", "CAPRICON", "AQUARIUS", "PISCES"};

// The row of a longitude, 0 to 11, each upper bound included (0 itself is in
// the first row); -1 outside 0 to 360.
int SignRow(double longitude) {
  if (!(longitude >= 0 && longitude <= 360)) return -1;
  for (int row = 0; row < 12; ++row) {
    if (longitude <= 30.0 * (row + 1)) return row;
  }
  return -1;
}

struct MonthRow {
  const char* sign;
  const char* purnima;
  const char* amavasya;
};
// The eighth month is spelt differently in the two columns on purpose.
constexpr std::array<MonthRow, 12> kMonthNames = {{
    {"pisces", "Chaitra", "Chaitra"},
    {"aries", "Vaisakha", "Vaisakha"},
    {"taurus", "Jyeshtha", "Jyeshtha"},
    {"gemini", "Ashadha", "Ashadha"},
    {"cancer", "Sravana", "Sravana"},
    {"leo", "Bhadrapada", "Bhadrapada"},
    {"virgo", "Asvina", "Asvina"},
    {"libra", "Karttika", "Kartikka"},
    {"scorpio", "Margasira", "Margasira"},
    {"sagitarius", "Pausha", "Pausha"},
    {"capricon", "Magha", "Magha"},
    {"aquarius", "Phalguna", "Phalguna"},
}};

// Months whose year is the moment's own year, and the others, whose year is
// the one before for a moment in January to April. Four spellings of the
// eighth month are accepted.
constexpr std::array<const char*, 5> kYearOfMoment = {"chaitra", "vaisakha", "jyeshtha", "ashadha", "sravana"};
constexpr std::array<const char*, 10> kYearBeforeInSpring = {"bhadrapada", "asvina",    "karttika", "kartikka",
                                                             "karttikka",  "kartika",   "margasira", "pausha",
                                                             "magha",      "phalguna"};

template <size_t N>
bool OneOf(const std::string& word, const std::array<const char*, N>& words) {
  for (const char* w : words) {
    if (word == w) return true;
  }
  return false;
}

constexpr int kBoundSteps = kLunarSearchBoundDays * 24;

// A cursor stepped an hour at a time that gives up with CalculationError
// after kLunarSearchBoundDays days of steps. `sought` says what the walk is
// waiting for at the moment, for the message.
class HourlyWalk {
 public:
  HourlyWalk(OleDate start, int hours, std::string search, std::string sought)
      : start_(start), cursor_(start), hours_(hours), search_(std::move(search)), sought_(std::move(sought)) {}

  OleDate Cursor() const { return cursor_; }
  // Steps that change nothing the walk looks at, taken one by one (so the
  // cursor and the bound stay those of the hourly walk).
  void Coast(int steps) {
    for (int i = 0; i < steps; ++i) Step();
  }
  void Seek(std::string sought) { sought_ = std::move(sought); }

  OleDate Step() {
    if (++steps_ > kBoundSteps) {
      throw CalculationError(sought_ + " within " + std::to_string(kLunarSearchBoundDays) + " days " +
                             (hours_ < 0 ? "before " : "after ") + FormatDate(start_, "DD/MM/YYYY") + " (" +
                             search_ + ")");
    }
    cursor_ = DateAdd(Interval::Hour, hours_, cursor_);
    return cursor_;
  }

 private:
  OleDate start_;
  OleDate cursor_;
  int hours_;
  int steps_ = 0;
  std::string search_;
  std::string sought_;
};

// Bounds on how far the positions move in one hour, with a margin: the
// elongation of the Moon from the Sun at most about 0.61 degrees (the Moon's
// fastest 15.4 degrees a day less the Sun's slowest), the Sun at most about
// 0.043 degrees (1.02 a day).
constexpr double kMaxElongationPerHour = 0.7;
constexpr double kMaxSunPerHour = 0.05;

// How far a value lies from the nearest multiple of `span` (0 on one).
double FromNearestBound(double value, double span) {
  const double below = value - span * std::floor(value / span);
  return std::min(below, span - below);
}

// The hourly steps after a moment with these positions that are sure to
// keep both its tithi (rows of 12 degrees of elongation) and the Sun's sign
// (rows of 30 degrees): no condition of the walks can change over them, so
// they are stepped without working the positions out. Strictly inside the
// bounds, so a moment on a bound skips nothing; nothing either for values
// outside 0 to 360, where the classifiers keep earlier results.
int SteadyHours(double sun, double moon) {
  if (!(sun >= 0 && sun < 360 && moon >= 0 && moon < 360)) return 0;
  const double elongation = sun > moon ? moon + 360 - sun : moon - sun;
  const double hours =
      std::min(FromNearestBound(elongation, 12) / kMaxElongationPerHour, FromNearestBound(sun, 30) / kMaxSunPerHour);
  // One step fewer than the bound allows, so a move of exactly the bound
  // never counts as steady.
  return std::max(0, static_cast<int>(std::ceil(hours)) - 1);
}

// A 16-bit counter one up; CalculationError if it would not fit.
std::int16_t OneMore(std::int16_t count) { return CInt(static_cast<double>(count) + 1); }

bool IsBrightPratipada(const std::string& name, const std::string& side) {
  return name == "Pratipada" && side == "Bright";
}

}  // namespace

std::string SignOfSun(double longitude) {
  const int row = SignRow(longitude);
  return row < 0 ? std::string() : kSigns[static_cast<size_t>(row)];
}

std::string SignBeforeSun(double longitude) {
  const int row = SignRow(longitude);
  return row < 0 ? std::string() : kSigns[static_cast<size_t>((row + 11) % 12)];
}

std::string LunarMonthName(const std::string& kind, const std::string& sign) {
  const std::string k = Lower(kind);
  const std::string s = Lower(sign);
  if (k != "purnima" && k != "amavasya") return {};
  for (const auto& row : kMonthNames) {
    if (s == row.sign) return k == "purnima" ? row.purnima : row.amavasya;
  }
  return {};
}

std::string LunarYearName(OleDate moment, const std::string& month, const KaliyugaYearTable& table) {
  const std::string m = Lower(month);
  const DateParts parts = moment.Parts();
  if (OneOf(m, kYearOfMoment)) return KaliyugaYearName(parts.year, table);
  if (OneOf(m, kYearBeforeInSpring)) {
    return KaliyugaYearName(parts.month >= 1 && parts.month <= 4 ? parts.year - 1 : parts.year, table);
  }
  return {};
}

std::string LunarDateText(const LunarDate& date) { return date.flag + "  /  " + date.month + "  /  " + date.year; }

const LunarReckoning& KrishnadiReckoning() {
  static const LunarReckoning kKrishnadi{LunarReckoning::Which::Krishnadi, "Purnima", "Purnima", "purnima",
                                         "Krishnadi lunar date"};
  return kKrishnadi;
}

const LunarReckoning& SukladiReckoning() {
  // Searches "Amavashya", the tithi's name, but names months with "Amavasya".
  static const LunarReckoning kSukladi{LunarReckoning::Which::Sukladi, "Amavashya", "Amavasya", "amavasya",
                                       "Sukladi lunar date"};
  return kSukladi;
}

LunarCalendar::LunarCalendar(ClsFindPlanetPosition& positions, clsTithi& tithi, clsFindSunrise& sunrise,
                             clsFindSunSet& sunset, const KaliyugaYearTable& table)
    : positions_(positions), tithi_(tithi), sunrise_(sunrise), sunset_(sunset), table_(table) {}

namespace {

bool SameInputs(const LunarCalendarInputs& a, const LunarCalendarInputs& b) {
  const CalendarPlace& p = a.place;
  const CalendarPlace& q = b.place;
  return p.latNS == q.latNS && p.latDeg == q.latDeg && p.latMin == q.latMin && p.lonEW == q.lonEW &&
         p.lonDeg == q.lonDeg && p.lonMin == q.lonMin && p.zoneHours == q.zoneHours && p.zoneSide == q.zoneSide &&
         a.ayanamsa == b.ayanamsa && a.customYear == b.customYear && a.customProgress == b.customProgress;
}

// Enough for the walks of some days at one place; past it the memo starts
// afresh rather than grow without end.
constexpr size_t kMemoLimit = 20000;

}  // namespace

LunarCalendar::SunMoon LunarCalendar::PositionsAt(OleDate moment, const LunarCalendarInputs& in) {
  // The two reckonings, and the days next to each other, walk over the same
  // hours: the positions of a moment already worked out at these inputs are
  // taken from the memo.
  if (!hourByHour) {
    if (!memoValid_ || !SameInputs(memoInputs_, in) || memo_.size() >= kMemoLimit) {
      memo_.clear();
      memoInputs_ = in;
      memoValid_ = true;
    }
    const auto hit = memo_.find(moment.Linear());
    if (hit != memo_.end()) {
      facadeCurrent_ = false;
      lastMoment_ = moment;
      return hit->second;
    }
  }
  const CalendarPlace& p = in.place;
  positions_.FindSunMoonValues(moment, p.latNS, p.latDeg, p.latMin, p.lonEW, p.lonDeg, p.lonMin, p.zoneHours,
                               p.zoneSide, 0, in.ayanamsa, in.customYear, in.customProgress);
  const SunMoon at{positions_.FnFindSunPosition(), positions_.FnFindMoonPosition()};
  if (!hourByHour) memo_.emplace(moment.Linear(), at);
  facadeCurrent_ = true;
  lastMoment_ = moment;
  return at;
}

// The facade is left as a walk without the memo leaves it: holding the
// positions of the last moment asked for.
void LunarCalendar::SettleFacade(const LunarCalendarInputs& in) {
  if (facadeCurrent_) return;
  const CalendarPlace& p = in.place;
  positions_.FindSunMoonValues(lastMoment_, p.latNS, p.latDeg, p.latMin, p.lonEW, p.lonDeg, p.lonMin, p.zoneHours,
                               p.zoneSide, 0, in.ayanamsa, in.customYear, in.customProgress);
  facadeCurrent_ = true;
}

LunarCalendar::TithiAt LunarCalendar::TithiOf(OleDate moment, const LunarCalendarInputs& in) {
  const SunMoon at = PositionsAt(moment, in);
  TithiAt t;
  t.name = TithiNameOf(tithi_, at.moon, at.sun);
  t.number = TithiNumberOf(tithi_, at.moon, at.sun);
  t.side = TithiSideOf(tithi_, at.moon, at.sun);
  return t;
}

int LunarCalendar::Steady(const SunMoon& at, const LunarCalendarInputs& in) const {
  // A custom ayanamsa may progress at any rate, which moves the Sun's sign
  // bounds past the hourly bound above: those walks go hour by hour.
  if (hourByHour || in.ayanamsa == "Custom") return 0;
  return SteadyHours(at.sun, at.moon);
}

double& LunarCalendar::KeptSun(const LunarReckoning& r) {
  return r.which == LunarReckoning::Which::Krishnadi ? purnimaSun_ : amavasyaSun_;
}

LunarDate& LunarCalendar::Result(LunarReckoning::Which which) {
  return which == LunarReckoning::Which::Krishnadi ? krishnadi_ : sukladi_;
}

std::int16_t LunarCalendar::PurnimaCount(OleDate birth, const LunarCalendarInputs& in) {
  return MonthEndCount(KrishnadiReckoning(), birth, in);
}

std::int16_t LunarCalendar::AmavasyaCount(OleDate birth, const LunarCalendarInputs& in) {
  return MonthEndCount(SukladiReckoning(), birth, in);
}

std::int16_t LunarCalendar::MonthEndCount(const LunarReckoning& r, OleDate birth, const LunarCalendarInputs& in) {
  forwardCount_ = 0;
  std::string referenceSign, foundSign, currentSign, forwardSign;

  // The clock of the search is 23:55:55 written as "hh:mm AM/PM", so the
  // seconds fall away: every search starts at 11:55 PM of the birth date,
  // whatever the time of birth.
  const std::string clock = FormatDate(OleDate::FromParts(1899, 12, 30, 23, 55, 55), "hh:mm AM/PM");
  const auto first = ParseDateTime(FormatDate(birth, "DD/MM/YYYY") + " " + clock);
  if (!first) throw CalculationError("The birth date " + FormatDate(birth, "DD/MM/YYYY") + " is not a date");

  // Backward: from the first month end found, on to where the Sun leaves
  // the sign it held there.
  std::int16_t backward = 0;
  std::string lastDate;
  HourlyWalk back(*first, -1, r.name + ", backward search", "No " + r.monthEnd + " found");
  OleDate cursor = *first;
  for (;;) {
    SunMoon at = PositionsAt(cursor, in);
    std::string name = TithiNameOf(tithi_, at.moon, at.sun);
    currentSign = SignOfSun(at.sun);
    if (name == r.monthEnd) {
      back.Seek("No beginning of " + r.monthEnd + " found");
      do {
        back.Coast(Steady(at, in));
        cursor = back.Step();
        at = PositionsAt(cursor, in);
        name = TithiNameOf(tithi_, at.moon, at.sun);
        currentSign = SignOfSun(at.sun);
      } while (name == r.monthEnd);
      foundSign = currentSign;
      if (referenceSign.empty() || foundSign == referenceSign) {
        referenceSign = foundSign;
        // Dates are told apart by their "DD/MM/YYYY" text.
        const std::string date = FormatDate(cursor, "DD/MM/YYYY");
        if (backward == 0) {
          backward = 1;
          monthEndDates_.assign(1, cursor.DateOnly());
          KeptSun(r) = at.sun;
          lastDate = date;
        } else if (date != lastDate) {
          backward = OneMore(backward);
          monthEndDates_.push_back(cursor.DateOnly());
          KeptSun(r) = at.sun;
          lastDate = date;
        }
      }
      back.Seek("The Sun did not leave " + foundSign);
    }
    if (backward != 0 && foundSign != currentSign) break;
    back.Coast(Steady(at, in));
    cursor = back.Step();
  }
  if (backward == 2) {
    SettleFacade(in);
    return backward;
  }

  // Forward: from the first month end after the start, on to where the Sun
  // leaves the sign it held there.
  std::int16_t forward = 0;
  lastDate.clear();
  HourlyWalk ahead(*first, 1, r.name + ", forward search", "No " + r.monthEnd + " found");
  SunMoon at;  // nothing is known before the first step, so it coasts none
  for (;;) {
    cursor = ahead.Step();
    at = PositionsAt(cursor, in);
    std::string name = TithiNameOf(tithi_, at.moon, at.sun);
    currentSign = SignOfSun(at.sun);
    if (name == r.monthEnd) {
      forwardSign = currentSign;
      ahead.Seek("No end of " + r.monthEnd + " found");
      do {
        ahead.Coast(Steady(at, in));
        cursor = ahead.Step();
        at = PositionsAt(cursor, in);
        name = TithiNameOf(tithi_, at.moon, at.sun);
        currentSign = SignOfSun(at.sun);
      } while (name == r.monthEnd);
      const std::string date = FormatDate(cursor, "DD/MM/YYYY");
      if (forward == 0) {
        forward = 1;
        lastDate = date;
      } else if (date != lastDate) {
        forward = OneMore(forward);
        lastDate = date;
      }
      ahead.Seek("The Sun did not leave " + forwardSign);
    }
    if (forward != 0 && forwardSign != currentSign) break;
    ahead.Coast(Steady(at, in));
  }
  forwardCount_ = forwardSign == foundSign ? forward : 0;
  SettleFacade(in);
  return backward;
}

OleDate LunarCalendar::NextBrightPratipada(OleDate from, const LunarReckoning& r, const LunarCalendarInputs& in) {
  HourlyWalk walk(from, 1, r.name + ", search for the month's start", "No Bright Pratipada found");
  for (;;) {
    const OleDate cursor = walk.Step();
    const SunMoon at = PositionsAt(cursor, in);
    if (IsBrightPratipada(TithiNameOf(tithi_, at.moon, at.sun), TithiSideOf(tithi_, at.moon, at.sun))) {
      return cursor;
    }
    walk.Coast(Steady(at, in));
  }
}

// The month by the Sun that the Sukladi count keeps (for the Krishnadi date,
// the one the previous birth's count left): its own sign from sunrise on,
// the sign before it for a birth before sunrise, unless the status is "DP".
void LunarCalendar::FromAmavasyaSun(LunarDate& date, const LunarReckoning& r, OleDate birth, OleDate sunrise,
                                    const std::string& status) {
  const std::string sign = (status == "DP" || birth >= sunrise) ? SignOfSun(amavasyaSun_) : SignBeforeSun(amavasyaSun_);
  date.month = LunarMonthName(r.kindLower, sign);
  date.flag = forwardCount_ == 2 ? "Adhika" : "Shudha";
  date.year = LunarYearName(birth, date.month, table_);
}

LunarDate LunarCalendar::LunarDateKrishnadi(OleDate birth, const std::string& status, const LunarCalendarInputs& in) {
  return LunarDateOf(KrishnadiReckoning(), birth, status, in);
}

LunarDate LunarCalendar::LunarDateSukladi(OleDate birth, const std::string& status, const LunarCalendarInputs& in) {
  return LunarDateOf(SukladiReckoning(), birth, status, in);
}

LunarDate LunarCalendar::LunarDateOf(const LunarReckoning& r, OleDate birth, const std::string& status,
                                     const LunarCalendarInputs& in) {
  const bool sukladi = r.which == LunarReckoning::Which::Sukladi;
  LunarDate& own = Result(r.which);
  own.flag.clear();

  // 1. The day's limits and the positions at birth. The Sukladi date reads
  // the Lagna where the Krishnadi date reads the Moon, into the same field.
  const CalendarPlace& p = in.place;
  const OleDate birthDate = birth.DateOnly();
  const OleDate sunrise = sunrise_.FnFindSunrise(birthDate, p.latNS, p.latDeg, p.latMin, p.lonEW, p.lonDeg,
                                                 p.lonMin, 0, p.zoneHours, p.zoneSide);
  // The sunset is not read, but asking for it leaves the shared facade as
  // the rest of the run expects (it hands back its last value where the Sun
  // does not set).
  sunset_.FnFindSunset(birthDate, p.latNS, p.latDeg, p.latMin, p.lonEW, p.lonDeg, p.lonMin, 0, p.zoneHours,
                       p.zoneSide);
  if (sukladi) {
    positions_.FindFixValues(birth, p.latNS, p.latDeg, p.latMin, p.lonEW, p.lonDeg, p.lonMin, p.zoneHours,
                             p.zoneSide, 0, in.ayanamsa, in.customYear, in.customProgress);
    sunAtBirth_ = positions_.FnFindSunPosition();
    moonAtBirth_ = positions_.FnFindLagnaPosition();
  } else {
    const SunMoon at = PositionsAt(birth, in);
    sunAtBirth_ = at.sun;
    moonAtBirth_ = at.moon;
  }

  // 2. The count.
  const std::int16_t count = MonthEndCount(r, birth, in);

  // 3. One month end in the sign: the tithi at sunrise decides.
  if (count == 1) {
    const TithiAt atSunrise = TithiOf(sunrise, in);
    if (IsBrightPratipada(atSunrise.name, atSunrise.side)) {
      FromAmavasyaSun(own, r, birth, sunrise, status);
    } else if (atSunrise.name == r.monthEnd && atSunrise.side == "Dark") {
      if (sukladi) {
        // New moon at sunrise: the month by the Sun at birth, unless a
        // second new moon follows in the sign, or the next sunrise is not
        // yet the first of the bright half.
        own.month = LunarMonthName(r.kind, SignOfSun(sunAtBirth_));
        if (forwardCount_ == 2) {
          own.flag = "Adhika";
        } else {
          const TithiAt next = TithiOf(DateAdd(Interval::Day, 1, sunrise), in);
          if (next.name != "Pratipada") {
            const std::string sign =
                (status == "DP" || birth >= sunrise) ? SignOfSun(amavasyaSun_) : SignBeforeSun(amavasyaSun_);
            own.month = LunarMonthName(r.kind, sign);
          }
          own.flag = "Shudha";
        }
        own.year = LunarYearName(birth, own.month, table_);
      } else {
        // A Dark "Purnima" never occurs (the full moon is bright), so this
        // branch is never taken; it writes the other reckoning's date.
        LunarDate& other = Result(LunarReckoning::Which::Sukladi);
        other.month = LunarMonthName(r.kindLower, SignBeforeSun(sunAtBirth_));
        other.flag = forwardCount_ == 2 ? "Adhika" : "Shudha";
        other.year = LunarYearName(birth, other.month, table_);
      }
    } else {
      // The walk to the month's start decides nothing here (the month comes
      // from the kept Sun), but it is part of the date and can give up.
      NextBrightPratipada(monthEndDates_.front(), r, in);
      own.month = LunarMonthName(r.kind, SignOfSun(KeptSun(r)));
      own.flag = count + forwardCount_ == 2 ? "Adhika" : "Shudha";
      own.year = LunarYearName(birth, own.month, table_);
    }
  }

  // 5. Two month ends in one sign: one of the two months is the extra one.
  if (count == 2) {
    const TithiAt atSunrise = TithiOf(sunrise, in);
    if (IsBrightPratipada(atSunrise.name, atSunrise.side) ||
        (atSunrise.name == r.monthEnd && atSunrise.side == "Dark")) {
      FromAmavasyaSun(own, r, birth, sunrise, status);
    } else {
      // The dates are compared as "DD/MMM/YYYY" TEXTS, day first, not as
      // dates: that is the rule, odd as its order is.
      const std::string birthText = FormatDate(birth, "DD/MMM/YYYY");
      const std::string firstText = FormatDate(monthEndDates_[0], "DD/MMM/YYYY");
      const std::string secondText = FormatDate(monthEndDates_[1], "DD/MMM/YYYY");
      const bool between = (firstText <= birthText && birthText <= secondText) ||
                           (secondText <= birthText && birthText <= firstText);
      const OleDate from = between ? monthEndDates_[0] : monthEndDates_[1];
      const std::string& otherText = between ? secondText : firstText;
      const OleDate hit = NextBrightPratipada(from, r, in);
      own.month = LunarMonthName(r.kind, SignOfSun(amavasyaSun_));
      if (birthText >= FormatDate(hit, "DD/MMM/YYYY")) {
        own.flag = "Shudha";
      } else if (birthText >= otherText) {
        own.flag = "Adhika";
      }
      own.year = LunarYearName(birth, own.month, table_);
    }
  }
  SettleFacade(in);
  return own;
}

}  // namespace kelvaro
