#pragma once
// The grids of the city and time zone masters: one row for each city or zone
// of the country chosen, under a heading row.
#include <vector>

#include "analysis/grid.h"
#include "store/city_master.h"
#include "store/time_zone_master.h"

namespace kelvaro::shell {

// City, then degree, letter and minute of the latitude and the longitude.
Grid CityGrid(const std::vector<store::CityRow>& cities);
// Zone name, its number, the offset in decimal hours and its direction.
Grid ZoneGrid(const std::vector<store::ZoneRow>& zones);

}  // namespace kelvaro::shell
