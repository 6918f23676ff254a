#pragma once
// CalculationError: the one error a calculation raises when a floating-point
// step fails (invalid operation, division by zero, overflow), when a 16-bit
// result does not fit, or when a search runs past its bound. The message is
// written for the user; the shell and the CLI decide how to show it.
#include <stdexcept>
#include <string>

namespace kelvaro {

class CalculationError : public std::runtime_error {
 public:
  explicit CalculationError(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace kelvaro
