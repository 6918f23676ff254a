#include "panchanga/visha_ghati.h"

#include <array>
#include <cstdlib>

#include "common/calculation_error.h"

namespace kelvaro {

namespace {

struct VishaRow {
  const char* start;
  const char* end;
};

// Degrees.minutes.seconds of sidereal longitude, in star order.
constexpr std::array<VishaRow, 27> kVishaGhati = {{
    {"011.06.40", "12.00.00"},  {"018.40.00", "019.33.20"}, {"033.20.00", "034.13.20"},
    {"048.53.20", "049.46.40"}, {"056.26.40", "057.20.00"}, {"071.20.00", "072.13.20"},
    {"086.40.00", "087.33.20"}, {"097.46.40", "098.40.00"}, {"113.46.40", "114.40.00"},
    // 10-18
    {"126.40.00", "127.33.20"}, {"137.46.40", "138.40.00"}, {"150.40.00", "151.33.20"},
    {"164.40.00", "165.33.20"}, {"177.46.40", "178.40.00"}, {"189.46.40", "190.40.00"},
    {"203.06.40", "204.00.00"}, {"215.33.20", "216.26.40"}, {"229.46.40", "230.40.00"},
    // 19-27
    {"252.26.40", "253.20.00"}, {"258.40.00", "259.33.20"}, {"271.06.40", "272.00.00"},
    {"282.13.20", "283.06.40"}, {"295.33.20", "296.26.40"}, {"310.40.00", "311.33.20"},
    {"323.33.20", "324.26.40"}, {"338.40.00", "339.33.40"}, {"353.20.00", "354.13.20"},
}};

}  // namespace

double VishaGhatiDegrees(const std::string& text) {
  const char* p = text.c_str();
  double parts[3] = {0, 0, 0};
  for (int i = 0; i < 3; ++i) {
    char* next = nullptr;
    parts[i] = static_cast<double>(std::strtol(p, &next, 10));
    if (next == p || (i < 2 && *next != '.') || (i == 2 && *next != '\0')) {
      throw CalculationError("\"" + text + "\" is not a longitude of degrees.minutes.seconds");
    }
    p = next + 1;
  }
  return parts[0] + parts[1] / 60 + parts[2] / 3600;
}

void ClsVishaGhati::dispVishaghati() {
  if (StarIndex < 1 || StarIndex > 27) return;
  const VishaRow& row = kVishaGhati[static_cast<size_t>(StarIndex - 1)];
  VishaStartText = row.start;
  VishaEndText = row.end;
  VishaStart = VishaGhatiDegrees(VishaStartText);
  VishaEnd = VishaGhatiDegrees(VishaEndText);
}

}  // namespace kelvaro
