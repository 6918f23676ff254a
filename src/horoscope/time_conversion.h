#pragma once
// A time converter's submit, without its window: the entry's tests, the
// zone of the country, the sunrise at the chosen city and the conversion
// either way. The converter windows and `kelvaro-cli convert` both call it.
#include <optional>
#include <string>

#include "panchanga/time_converters.h"
#include "store/city_master.h"
#include "store/database.h"
#include "store/time_zone_master.h"

namespace kelvaro {

// The zone a converter uses: the one named, or the country's first when the
// name is empty. Nothing when the country has no such zone.
std::optional<store::ZoneRow> ConverterZone(store::Database& db, std::int64_t countryId, const std::string& zoneName);

struct ConversionOutcome {
  std::optional<ConverterProblem> problem;  // set: nothing was converted
  std::string text;                         // "Ishta Ghati : g:v:t" or "Birth Time : hh:mm AM/PM"
};

// The entry's tests in their order (the caller sets countryChosen and
// cityChosen from what it found), then "Select Timezone" on cbTimeZone when
// there is no zone, then the conversion. The way back takes the date alone
// and says "Enter Correct Date" on txtDate when it names no day. Raises
// CalculationError when the sunrise cannot be found.
ConversionOutcome ConvertTime(const ConverterEntry& entry, Conversion conversion,
                              const std::optional<store::CityRow>& city, const std::optional<store::ZoneRow>& zone);

}  // namespace kelvaro
