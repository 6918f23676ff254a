#pragma once
// FpGuard: clears the floating-point exception flags when it is made, and
// Check() raises CalculationError naming the operation when an invalid
// operation, a division by zero or an overflow happened since. This is how the
// engine keeps a NaN or an infinity from ever reaching a result.
#include <cfenv>
#include <cmath>
#include <string>

#include "common/calculation_error.h"

#ifdef __FAST_MATH__
#error "Kelvaro's engine must not be compiled with -ffast-math: results must be reproduced exactly"
#endif

namespace kelvaro {

class FpGuard {
 public:
  FpGuard() { std::feclearexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW); }

  // Raises when a guarded exception flag is up. `operation` names the step.
  void Check(const char* operation) const {
    const int raised = std::fetestexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
    if (raised != 0) Raise(operation, raised);
  }

  // Raises when `value` is not finite, whatever the flags say.
  static void CheckFinite(double value, const char* operation) {
    if (!std::isfinite(value)) Raise(operation, FE_INVALID);
  }

 private:
  [[noreturn]] static void Raise(const char* operation, int raised) {
    std::string what = (raised & FE_DIVBYZERO) ? "division by zero"
                       : (raised & FE_OVERFLOW) ? "overflow"
                                                : "invalid floating-point operation";
    std::feclearexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
    throw CalculationError(std::string("Calculation failed in ") + operation + ": " + what);
  }
};

}  // namespace kelvaro
