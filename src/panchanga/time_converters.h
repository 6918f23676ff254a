#pragma once
// The two time converters: a clock time to ishta ghati (the time since
// sunrise in ghatis, vighatis and the third unit) and back. One hour is 2.5
// ghatis; a ghati is 24 minutes and has 60 vighatis of 60 third units each.
#include <functional>
#include <optional>
#include <string>

#include "common/ole_date.h"

namespace kelvaro {

// The entries of a converter window, as typed or chosen. The hour and minute
// lists hold a 12-hour clock (01 to 12, 00 to 59) for the birth time, and the
// ghatis (00 to 60) and vighatis (00 to 59) for the way back.
struct ConverterEntry {
  std::string day, month, year;  // month as "Jan" .. "Dec" or its number
  std::string hour, minute;
  bool pm = false;
  bool countryChosen = false;
  bool cityChosen = false;
};

// The first failing test, the message the window shows and the control that
// takes the focus.
struct ConverterProblem {
  std::string field;
  std::string message;
};

enum class Conversion { ToIshtaGhati, ToBirthTime };

// The tests of the submit button, in their order. Only the way to ishta ghati
// tests that the day, month and year form a date.
std::optional<ConverterProblem> ValidateConverter(const ConverterEntry& entry, Conversion conversion);

// Sunrise of a civil date at the chosen place.
using SunriseOfDate = std::function<OleDate(OleDate date)>;

struct IshtaGhati {
  int ghati = 0, vighati = 0, third = 0;
  std::string Text() const;  // "Ishta Ghati : g:v:t"
};

// From a birth moment: counted from that day's sunrise, or the day before's
// when the birth lies before it.
IshtaGhati BirthTimeToIshtaGhati(OleDate birth, const SunriseOfDate& sunriseOf);

// From ghatis and vighatis after the sunrise of `date`. The result may fall on
// the next day; the display shows the clock only.
OleDate IshtaGhatiToBirthTime(OleDate date, double ghatis, double vighatis, const SunriseOfDate& sunriseOf);
std::string BirthTimeText(OleDate moment);  // "Birth Time : hh:mm AM/PM"

// The moment the entry names ("DD/MM/YYYY HH:NN AM/PM"); nothing when the
// entry does not form one.
std::optional<OleDate> ConverterMoment(const ConverterEntry& entry);

}  // namespace kelvaro
