#include "analysis/rasi_number.h"

#include "common/number_rules.h"

namespace kelvaro {

std::int16_t RasiOfLongitude(double longitude, double division) {
  double rasi = Int(longitude / division) + 1;
  while (rasi > 12) rasi -= 12;
  return CInt(rasi);
}

}  // namespace kelvaro
