#include "store/text_rules.h"

#include <cctype>
#include <charconv>
#include <cstdio>

namespace kelvaro::store {

namespace {
bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
}  // namespace

std::string Trim(std::string_view text) {
  size_t begin = 0;
  size_t end = text.size();
  while (begin < end && IsSpace(text[begin])) ++begin;
  while (end > begin && IsSpace(text[end - 1])) --end;
  return std::string(text.substr(begin, end - begin));
}

bool IsBlank(std::string_view text) { return Trim(text).empty(); }

std::string LowerAscii(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return out;
}

std::optional<double> NumericValue(std::string_view text) {
  const std::string trimmed = Trim(text);
  std::string_view s = trimmed;
  bool negative = false;
  if (!s.empty() && (s.front() == '+' || s.front() == '-')) {
    negative = s.front() == '-';
    s.remove_prefix(1);
  }
  // from_chars also reads "inf", "nan" and hex digits after 0x is not taken,
  // so insist on a digit or a point first.
  if (s.empty() || !(std::isdigit(static_cast<unsigned char>(s.front())) || s.front() == '.')) return std::nullopt;
  double value = 0.0;
  const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value, std::chars_format::general);
  if (ec != std::errc() || end != s.data() + s.size()) return std::nullopt;
  return negative ? -value : value;
}

}  // namespace kelvaro::store
