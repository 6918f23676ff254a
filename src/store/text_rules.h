#pragma once
// The small text rules the store's forms share: trimming, blank tests,
// ASCII lower-casing for the searches, the numeric test of a typed field and
// the default text form of a number.
#include <optional>
#include <string>
#include <string_view>
#include "common/number_rules.h"

namespace kelvaro::store {

std::string Trim(std::string_view text);  // blanks, tabs, line ends at both sides
bool IsBlank(std::string_view text);
std::string LowerAscii(std::string_view text);

// The value of a typed number: optional blanks, an optional sign, digits with
// at most one point, an optional exponent ("1.5e3"). Nothing for any other
// text, including "", "inf", "0x10" and "1,000".
std::optional<double> NumericValue(std::string_view text);

// A number as text in its default form (common/number_rules.h).
using kelvaro::NumberText;

}  // namespace kelvaro::store
