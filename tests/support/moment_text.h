#pragma once
// Test helper: a moment as the data files write it, "yyyy-mm-dd hh:nn:ss".
#include <array>
#include <cstdio>
#include <stdexcept>
#include <string>

#include "common/ole_date.h"

namespace kelvaro::testing {

// Year, month, day, hour, minute and second, as written.
inline std::array<int, 6> MomentFields(const std::string& text) {
  std::array<int, 6> f{};
  if (std::sscanf(text.c_str(), "%d-%d-%d %d:%d:%d", &f[0], &f[1], &f[2], &f[3], &f[4], &f[5]) != 6) {
    throw std::runtime_error("not a moment: " + text);
  }
  return f;
}

inline OleDate MomentOf(const std::string& text) {
  const std::array<int, 6> f = MomentFields(text);
  return OleDate::FromParts(f[0], f[1], f[2], f[3], f[4], f[5]);
}

}  // namespace kelvaro::testing
