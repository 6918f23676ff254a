#pragma once
// The month at a glance as it goes on paper: texts only, one line a day,
// filled from the almanac model and typeset by the renderer.
#include <string>
#include <vector>

namespace kelvaro {

struct AlmanacMonthLine {
  std::string date;  // "DD/MM/YYYY"
  std::string weekday;
  std::string tithi;     // with its half of the month: "Krishna Panchami"
  std::string tithiEnd;  // "HH:MM", with "(DD/MM)" where it ends on another day
  std::string star;
  std::string starEnd;
  std::string yoga;
  std::string yogaEnd;
};

struct AlmanacMonthSheet {
  std::string place;   // "Hyderabad, India"
  std::string period;  // "January 2024", or the first and last dates
  std::vector<AlmanacMonthLine> lines;
};

}  // namespace kelvaro
