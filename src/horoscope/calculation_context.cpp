#include "horoscope/calculation_context.h"

#include <chrono>

namespace kelvaro {

namespace {

class NoYears : public KaliyugaYearTable {
 public:
  std::optional<KaliyugaYearValues> Row(int) const override { return std::nullopt; }
};

const NoYears kNoYears;

OleDate SystemToday() {
  const auto now = std::chrono::system_clock::now();
  const auto days = std::chrono::floor<std::chrono::days>(now);
  const std::chrono::year_month_day ymd{days};
  return OleDate::FromParts(static_cast<int>(ymd.year()), static_cast<int>(static_cast<unsigned>(ymd.month())),
                            static_cast<int>(static_cast<unsigned>(ymd.day())));
}

}  // namespace

CalculationContext::CalculationContext(const KaliyugaYearTable* yearTable)
    : years(yearTable ? *yearTable : kNoYears),
      lunar(calendarPositions, tithi, sunrise, sunset, years),
      solar(years),
      today(SystemToday) {}

OleDate SunriseAtBirthPlace(CalculationContext& ctx, OleDate date) {
  const HoroscopeState& s = ctx.state;
  return ctx.sunrise.FnFindSunrise(date, s.LatNS, s.LatDeg, s.LatMin, s.LonEW, s.LonDeg, s.LonMin, 0, s.TimeDiff,
                                   s.TimeDiffEW);
}

OleDate SunsetAtBirthPlace(CalculationContext& ctx, OleDate date) {
  const HoroscopeState& s = ctx.state;
  return ctx.sunset.FnFindSunset(date, s.LatNS, s.LatDeg, s.LatMin, s.LonEW, s.LonDeg, s.LonMin, 0, s.TimeDiff,
                                 s.TimeDiffEW);
}

}  // namespace kelvaro
