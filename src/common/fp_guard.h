#pragma once
// FpGuard: clears the floating-point exception flags when it is made, and
// Check() raises CalculationError naming the operation when an invalid
// operation, a division by zero or an overflow happened since. This is how the
// engine keeps a NaN or an infinity from ever reaching a result.
#include <cfenv>
#include <cmath>
#include <string>

#if defined(__x86_64__) && defined(__SSE2__)
#include <xmmintrin.h>
#define KELVARO_SSE_FLAGS 1
#endif

#include "common/calculation_error.h"

#ifdef __FAST_MATH__
#error "Kelvaro's engine must not be compiled with -ffast-math: results must be reproduced exactly"
#endif

namespace kelvaro {

class FpGuard {
 public:
  FpGuard() { Clear(); }

  // Raises when a guarded exception flag is up. `operation` names the step.
  void Check(const char* operation) const {
    const int raised = Raised();
    if (raised != 0) Raise(operation, raised);
  }

  // Raises when `value` is not finite, whatever the flags say.
  static void CheckFinite(double value, const char* operation) {
    if (!std::isfinite(value)) Raise(operation, FE_INVALID);
  }

 private:
  // On x86-64 all double arithmetic, the maths library's included, runs on
  // SSE, whose flags are the MXCSR's: reading and clearing them there is a
  // tenth of the cost of the full environment calls, which also touch the x87
  // unit that nothing here uses.
#ifdef KELVARO_SSE_FLAGS
  static constexpr unsigned kInvalid = 0x01, kDivByZero = 0x04, kOverflow = 0x08;
  static void Clear() { _mm_setcsr(_mm_getcsr() & ~(kInvalid | kDivByZero | kOverflow)); }
  static int Raised() {
    const unsigned csr = _mm_getcsr();
    return ((csr & kInvalid) ? FE_INVALID : 0) | ((csr & kDivByZero) ? FE_DIVBYZERO : 0) |
           ((csr & kOverflow) ? FE_OVERFLOW : 0);
  }
#else
  static void Clear() { std::feclearexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW); }
  static int Raised() { return std::fetestexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW); }
#endif

  [[noreturn]] static void Raise(const char* operation, int raised) {
    std::string what = (raised & FE_DIVBYZERO) ? "division by zero"
                       : (raised & FE_OVERFLOW) ? "overflow"
                                                : "invalid floating-point operation";
    Clear();
    throw CalculationError(std::string("Calculation failed in ") + operation + ": " + what);
  }
};

}  // namespace kelvaro
