#pragma once
// PlaceIndex: every place a birth can be given at, the world atlas and the
// cities of the city master together, searched by the beginning of a name as
// the user types. Loaded once from the database (some tens of milliseconds
// for the whole atlas), then each search runs in memory.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro::store {

class Database;

struct PlaceRecord {
  std::string name;
  std::string region;   // the atlas's first-level region; empty for a city of the master
  std::string country;  // Country_Master's name
  std::int64_t countryId = 0;
  double latitude = 0;   // degrees, north positive
  double longitude = 0;  // degrees, east positive
  std::string zoneId;    // IANA name; empty for a city that has none
  std::int64_t population = 0;
  std::int64_t cityId = 0;   // City_Master's CityID, 0 for an atlas place
  std::int64_t placeId = 0;  // Atlas's PlaceID, 0 for a city of the master

  // "Hyderabad, Telangana"; a place without a region by its name alone.
  std::string Label() const;
};

class PlaceIndex {
 public:
  static PlaceIndex Load(Database& db);

  // The places whose name begins with `text` (without regard to case or to
  // the accents of Latin letters: "sao" finds "São Paulo"), in one country
  // when `countryId` is given: an exact name first, then the cities of the
  // master, then by population. At most `limit`.
  std::vector<const PlaceRecord*> Find(std::string_view text, std::optional<std::int64_t> countryId = std::nullopt,
                                       std::size_t limit = 50) const;

  std::size_t Size() const { return places_.size(); }

 private:
  std::vector<PlaceRecord> places_;
  // The folded name of each place and its index, sorted by name.
  std::vector<std::pair<std::string, std::uint32_t>> keys_;
};

// Lower-cased ASCII with the accents of Latin letters taken off ("São" ->
// "sao", "Zürich" -> "zurich"); other characters as they are.
std::string FoldForSearch(std::string_view text);

}  // namespace kelvaro::store
