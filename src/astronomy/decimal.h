#pragma once
// clsDecimal: reads an angle held as text "DDD.MM.SS" (three digits, a
// separator, two digits, a separator, two digits) into decimal degrees.
// The separators are not examined. Text that is not a number in its three
// places raises CalculationError, as a failed conversion does.
#include <string_view>

namespace kelvaro {

class clsDecimal {
 public:
  double FnFindDecimal(std::string_view text) const;
};

}  // namespace kelvaro
