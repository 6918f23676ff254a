#include "astronomy/decimal.h"

#include <charconv>
#include <string>

#include "common/calculation_error.h"

namespace kelvaro {

namespace {

double NumberOf(std::string_view part, std::string_view whole) {
  while (!part.empty() && part.front() == ' ') part.remove_prefix(1);
  while (!part.empty() && part.back() == ' ') part.remove_suffix(1);
  double value = 0;
  const auto r = std::from_chars(part.data(), part.data() + part.size(), value);
  if (part.empty() || r.ec != std::errc() || r.ptr != part.data() + part.size()) {
    throw CalculationError("Type mismatch: \"" + std::string(whole) + "\" is not an angle of the form DDD.MM.SS");
  }
  return value;
}

}  // namespace

double clsDecimal::FnFindDecimal(std::string_view text) const {
  if (text.size() < 6) NumberOf({}, text);
  const double degrees = NumberOf(text.substr(0, 3), text);
  const double minutes = NumberOf(text.substr(4, 2), text);
  const double seconds = NumberOf(text.substr(text.size() - 2), text);
  return degrees + minutes / 60 + seconds / 3600;
}

}  // namespace kelvaro
