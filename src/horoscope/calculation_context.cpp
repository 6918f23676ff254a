#include "horoscope/calculation_context.h"

#include <chrono>

namespace kelvaro {

namespace {

class NoYears : public KaliyugaYearTable {
 public:
  std::optional<KaliyugaYearValues> Row(int) const override { return std::nullopt; }
};

const NoYears kNoYears;

class NoBands : public ChartsMasterTable {
 public:
  std::optional<int> House(std::string_view, double, int) const override { return std::nullopt; }
};

const NoBands kNoBands;

class NoBhukthiRows : public BhukthiSink {
 public:
  void Replace(const std::string&, const std::vector<BhukthiRow>&) override {}
};

NoBhukthiRows kNoRows;  // holds nothing: the rows are dropped

OleDate SystemToday() {
  const auto now = std::chrono::system_clock::now();
  const auto days = std::chrono::floor<std::chrono::days>(now);
  const std::chrono::year_month_day ymd{days};
  return OleDate::FromParts(static_cast<int>(ymd.year()), static_cast<int>(static_cast<unsigned>(ymd.month())),
                            static_cast<int>(static_cast<unsigned>(ymd.day())));
}

}  // namespace

CalculationContext::CalculationContext(const KaliyugaYearTable* yearTable, const ChartsMasterTable* charts,
                                       BhukthiSink* bhukthiSink)
    : years(yearTable ? *yearTable : kNoYears),
      chartsMaster(charts ? *charts : kNoBands),
      bhukthi(bhukthiSink ? *bhukthiSink : kNoRows),
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
