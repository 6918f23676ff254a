#include "common/date_text.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

namespace kelvaro {

namespace {

constexpr const char* kWeekdays[7] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr const char* kMonths[12] = {"January", "February", "March",     "April",   "May",      "June",
                                     "July",    "August",   "September", "October", "November", "December"};

std::string Lower(std::string_view s) {
  std::string out(s);
  for (char& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return out;
}

void AppendTwoDigits(std::string& out, int v) {
  if (v < 0 || v > 99) {
    out += std::to_string(v);
    return;
  }
  out += static_cast<char>('0' + v / 10);
  out += static_cast<char>('0' + v % 10);
}

// ASCII only: patterns are our own fixed texts.
constexpr char LowerChar(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

size_t RunLength(std::string_view s, size_t i) {
  const char c = LowerChar(s[i]);
  size_t j = i;
  while (j < s.size() && LowerChar(s[j]) == c) ++j;
  return j - i;
}

bool StartsWithNoCase(std::string_view s, size_t at, std::string_view word) {
  if (s.size() - at < word.size()) return false;
  for (size_t k = 0; k < word.size(); ++k) {
    if (LowerChar(s[at + k]) != word[k]) return false;
  }
  return true;
}

size_t RunLength(std::string_view s, size_t i);

}  // namespace

std::string WeekdayName(int weekday) {
  if (weekday < 1 || weekday > 7) return {};
  return kWeekdays[weekday - 1];
}

std::string MonthName(int month, bool abbreviated) {
  if (month < 1 || month > 12) return {};
  std::string name = kMonths[month - 1];
  return abbreviated ? name.substr(0, 3) : name;
}

std::string FormatDate(OleDate moment, std::string_view pattern) {
  // The clock is cheap to read; the calendar date is read only when the
  // pattern asks for it (the clock texts of the day's parts never do).
  const double secondsOfDay = std::floor(moment.Linear() * 86400.0 + 0.5);
  const auto clock = static_cast<long long>(secondsOfDay - std::floor(secondsOfDay / 86400.0) * 86400.0);
  DateParts p;
  p.hour = static_cast<int>(clock / 3600);
  p.minute = static_cast<int>(clock / 60 % 60);
  p.second = static_cast<int>(clock % 60);
  bool haveDate = false;
  const auto needDate = [&]() {
    if (!haveDate) p = moment.Parts();
    haveDate = true;
  };
  bool twelveHour = false;
  for (size_t i = 0; i < pattern.size() && !twelveHour; ++i) twelveHour = StartsWithNoCase(pattern, i, "am/pm");
  std::string out;
  bool afterHour = false;  // an m/mm right after an hour token means minutes
  for (size_t i = 0; i < pattern.size();) {
    const char c = LowerChar(pattern[i]);
    if (c == 'a' && StartsWithNoCase(pattern, i, "am/pm")) {
      const bool upper = pattern[i] == 'A';
      out += p.hour < 12 ? (upper ? "AM" : "am") : (upper ? "PM" : "pm");
      i += 5;
      continue;
    }
    const size_t run = RunLength(pattern, i);
    if (c == 'd' || c == 'y' || (c == 'm' && !(afterHour && run <= 2))) needDate();
    switch (c) {
      case 'd':
        if (run == 1) out += std::to_string(p.day);
        else if (run == 2) AppendTwoDigits(out, p.day);
        else out += run == 3 ? WeekdayName(moment.Weekday()).substr(0, 3) : WeekdayName(moment.Weekday());
        break;
      case 'm':
        if (afterHour && run <= 2) {
          if (run == 1) out += std::to_string(p.minute);
          else AppendTwoDigits(out, p.minute);
        } else if (run <= 2) {
          if (run == 1) out += std::to_string(p.month);
          else AppendTwoDigits(out, p.month);
        } else {
          out += MonthName(p.month, run == 3);
        }
        break;
      case 'y':
        if (run <= 2) AppendTwoDigits(out, p.year % 100);
        else out += std::to_string(p.year);
        break;
      case 'h': {
        int h = p.hour;
        if (twelveHour) h = h % 12 == 0 ? 12 : h % 12;
        if (run == 1) out += std::to_string(h);
        else AppendTwoDigits(out, h);
        break;
      }
      case 'n':
        if (run == 1) out += std::to_string(p.minute);
        else AppendTwoDigits(out, p.minute);
        break;
      case 's':
        if (run == 1) out += std::to_string(p.second);
        else AppendTwoDigits(out, p.second);
        break;
      default:
        out.append(pattern.substr(i, run));
        break;
    }
    if (c == 'h') afterHour = true;
    else if (c != ':' && c != ' ' && c != '.') afterHour = false;
    i += run;
  }
  return out;
}

namespace {

// A tiny cursor over the text for the parser.
struct Cursor {
  std::string_view s;
  size_t i = 0;
  void SkipBlanks() {
    while (i < s.size() && s[i] == ' ') ++i;
  }
  bool Digits(int& value, size_t maxDigits) {
    size_t n = 0;
    value = 0;
    while (i < s.size() && n < maxDigits && std::isdigit(static_cast<unsigned char>(s[i]))) {
      value = value * 10 + (s[i] - '0');
      ++i;
      ++n;
    }
    return n > 0;
  }
  bool Letters(std::string& word) {
    word.clear();
    while (i < s.size() && std::isalpha(static_cast<unsigned char>(s[i]))) word += s[i++];
    return !word.empty();
  }
  bool Accept(char c) {
    if (i < s.size() && s[i] == c) {
      ++i;
      return true;
    }
    return false;
  }
  bool AtEnd() const { return i == s.size(); }
};

int MonthFromName(const std::string& word) {
  const std::string w = Lower(word);
  for (int m = 1; m <= 12; ++m) {
    const std::string full = Lower(kMonths[m - 1]);
    if (w == full || w == full.substr(0, 3)) return m;
  }
  return 0;
}

// Reads "h:mm[:ss| : ss] [AM|PM]" from the cursor.
bool ReadClock(Cursor& c, int& hour, int& minute, int& second) {
  second = 0;
  if (!c.Digits(hour, 2) || !c.Accept(':')) return false;
  if (!c.Digits(minute, 2)) return false;
  if (c.Accept(':')) {
    c.SkipBlanks();
    if (!c.Digits(second, 2)) return false;
  }
  c.SkipBlanks();
  std::string half;
  if (c.Letters(half)) {
    const std::string h = Lower(half);
    if ((h != "am" && h != "pm") || hour < 1 || hour > 12) return false;
    if (h == "am" && hour == 12) hour = 0;
    if (h == "pm" && hour != 12) hour += 12;
  }
  c.SkipBlanks();
  return c.AtEnd() && hour <= 23 && minute <= 59 && second <= 59;
}

}  // namespace

std::optional<OleDate> ParseDateTime(std::string_view text) {
  Cursor c{text};
  c.SkipBlanks();
  int day = 0, month = 0, year = 0;
  if (!c.Digits(day, 2)) return std::nullopt;
  char sep = 0;
  if (c.Accept('/')) sep = '/';
  else if (c.Accept('-')) sep = '-';
  else return std::nullopt;
  std::string word;
  if (c.Letters(word)) {
    month = MonthFromName(word);
    if (month == 0) return std::nullopt;
  } else if (!c.Digits(month, 2)) {
    return std::nullopt;
  }
  if (!c.Accept(sep) || !c.Digits(year, 4)) return std::nullopt;
  if (!OleDate::IsValidDate(year, month, day)) return std::nullopt;
  int hour = 0, minute = 0, second = 0;
  c.SkipBlanks();
  if (!c.AtEnd() && !ReadClock(c, hour, minute, second)) return std::nullopt;
  return OleDate::FromParts(year, month, day, hour, minute, second);
}

bool ParseClock(std::string_view text, int& hour, int& minute) {
  Cursor c{text};
  c.SkipBlanks();
  int h = 0, m = 0, s = 0;
  if (!ReadClock(c, h, m, s) || s != 0) return false;
  hour = h;
  minute = m;
  return true;
}

}  // namespace kelvaro
