#pragma once
// Date and time texts, always in fixed patterns of our own and never through
// the system locale.
//
// FormatDate understands these tokens, case-insensitively:
//   d dd ddd dddd   day, two-digit day, "Mon", "Monday"
//   m mm mmm mmmm   month, two-digit month, "Jul", "July"
//   yy yyyy         year
//   h hh            hour (12-hour clock when the pattern holds AM/PM)
//   n nn            minute; m and mm right after an hour token are minutes too
//   s ss            second
//   AM/PM am/pm     the half of the day, in the case written
// Anything else is copied as it stands.
#include <optional>
#include <string>
#include <string_view>

#include "common/ole_date.h"

namespace kelvaro {

std::string FormatDate(OleDate moment, std::string_view pattern);

// English names, no locale: WeekdayName(1) is "Sunday"; MonthName(7, true) is "Jul".
std::string WeekdayName(int weekday);
std::string MonthName(int month, bool abbreviated);

// Reads a date, optionally followed by a clock time:
//   "14/07/1965", "14/7/1965", "14/Jul/1965", "14-Jul-1965",
//   then "14:15", "2:15 PM", "14:15:30" or "14:15: 00" (the blank after the
//   second colon is what a text joined from the birth fields holds).
// Returns nothing when the text is not such a date or names a date or time
// that does not exist.
std::optional<OleDate> ParseDateTime(std::string_view text);

// "HH:MM" on a 24-hour clock or "hh:mm AM/PM"; gives hour 0..23 and minute.
bool ParseClock(std::string_view text, int& hour, int& minute);

}  // namespace kelvaro
