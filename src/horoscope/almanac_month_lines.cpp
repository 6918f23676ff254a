#include "horoscope/almanac_month_lines.h"

#include "common/date_text.h"

namespace kelvaro {

namespace {

// The end of a period: the clock, and the date too where it ends on another
// day than the line's.
std::string EndText(OleDate end, OleDate day) {
  const std::string clock = FormatDate(end, "HH:NN");
  return end.DateOnly() == day.DateOnly() ? clock : clock + " (" + FormatDate(end, "DD/MM") + ")";
}

// The name repeats in both halves of the month, so the line says which:
// "Krishna Panchami"; the full and the new moon need no word.
std::string TithiWithHalf(int number, const std::string& name) {
  if (number == 15 || number == 30) return name;
  return (number < 15 ? "Sukla " : "Krishna ") + name;
}

}  // namespace

AlmanacMonthLine AlmanacMonthLineOf(OleDate day, const DailyAlmanac& d) {
  AlmanacMonthLine line{FormatDate(day, "DD/MM/YYYY"), FormatDate(day, "dddd"), TithiWithHalf(d.tithiNo, d.tithi),
                        EndText(d.tithiEnd, day),      d.star,                   EndText(d.starEnd, day),
                        d.yoga,                        EndText(d.yogaEnd, day)};
  if (d.nextTithiKshaya) {
    line.tithi += " / " + TithiWithHalf(d.nextTithiNo, d.nextTithi);
    line.tithiEnd += " / " + EndText(d.nextTithiEnd, day);
  }
  return line;
}

}  // namespace kelvaro
