#include "panchanga/time_display.h"

#include <algorithm>

#include "common/date_text.h"

namespace kelvaro {

void clsTimeDisplay::DisplayTime() {
  TimeCaption = FormatDate(TimeStart, "hh:mm:ss") + " to " + FormatDate(TimeEnd, "hh:mm:ss");
  // Whole seconds first, then minutes rounded to the nearest, so a period of
  // 1 h 29 min 50 s is 90 minutes wide and not 89.
  const auto minutes = [](OleDate from, OleDate to) {
    const std::int64_t s = DateDiff(Interval::Second, from, to);
    return static_cast<std::int32_t>((s >= 0 ? s + 30 : s - 30) / 60);
  };
  TimeLeft = minutes(Sunrisetime, TimeStart);
  TimeWidth = std::max<std::int32_t>(0, minutes(TimeStart, TimeEnd));
  const bool byDay = TimeStart < Sunsettime;
  if (TimeBackColor.empty()) TimeBackColor = byDay ? kDayBackColor : kNightBackColor;
  if (TimeForeColor.empty()) TimeForeColor = byDay ? kDayForeColor : kNightForeColor;
}

}  // namespace kelvaro
