#include "store/place_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

#include "store/database.h"

namespace kelvaro::store {

namespace {

// The base letter of U+00C0 to U+017F (Latin-1 Supplement and Latin
// Extended-A); 0 where there is none (the signs of U+00D7 and U+00F7).
constexpr char kLatinBase[] =
    "aaaaaaaceeeeiiii"  // C0-CF
    "dnooooo\0ouuuuyts"  // D0-DF
    "aaaaaaaceeeeiiii"  // E0-EF
    "dnooooo\0ouuuuyty"  // F0-FF
    "aaaaaaccccccccdd"  // 100-10F
    "ddeeeeeeeeeegggg"  // 110-11F
    "gggghhhhiiiiiiii"  // 120-12F
    "iijjjjkkklllllll"  // 130-13F
    "lllnnnnnnnnnoooo"  // 140-14F
    "oooorrrrrrssssss"  // 150-15F
    "ssttttttuuuuuuuu"  // 160-16F
    "uuuuwwyyyzzzzzzs"  // 170-17F
    ;

}  // namespace

std::string FoldForSearch(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto c = static_cast<unsigned char>(text[i]);
    if (c < 0x80) {
      out += static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
      continue;
    }
    if ((c & 0xE0) == 0xC0 && i + 1 < text.size()) {
      const unsigned code = ((c & 0x1Fu) << 6) | (static_cast<unsigned char>(text[i + 1]) & 0x3Fu);
      if (code >= 0xC0 && code < 0xC0 + sizeof kLatinBase - 1 && kLatinBase[code - 0xC0] != '\0') {
        out += kLatinBase[code - 0xC0];
        ++i;
        continue;
      }
    }
    out += static_cast<char>(c);
  }
  return out;
}

std::string PlaceRecord::Label() const { return region.empty() ? name : name + ", " + region; }

PlaceIndex PlaceIndex::Load(Database& db) {
  PlaceIndex index;
  db.Read("read the places", [&](SQLite::Database& c) {
    SQLite::Statement cities(c,
                             "SELECT City_Master.CityID, CityName, City_Master.CountryID, CountryName, "
                             "LatitudeDegree, LatitudeMinute, Latitude_NS, LongitudeDegree, LongitudeMinute, "
                             "Longitude_EW, ZoneID FROM City_Master JOIN Country_Master "
                             "ON Country_Master.CountryID = City_Master.CountryID");
    while (cities.executeStep()) {
      PlaceRecord p;
      p.cityId = cities.getColumn(0).getInt64();
      p.name = cities.getColumn(1).getString();
      p.countryId = cities.getColumn(2).getInt64();
      p.country = cities.getColumn(3).getString();
      const double lat = cities.getColumn(4).getDouble() + cities.getColumn(5).getDouble() / 60.0;
      const double lon = cities.getColumn(7).getDouble() + cities.getColumn(8).getDouble() / 60.0;
      p.latitude = cities.getColumn(6).getString() == "S" ? -lat : lat;
      p.longitude = cities.getColumn(9).getString() == "W" ? -lon : lon;
      p.zoneId = cities.getColumn(10).isNull() ? "" : cities.getColumn(10).getString();
      index.places_.push_back(std::move(p));
    }
    SQLite::Statement atlas(c,
                            "SELECT PlaceID, PlaceName, Region, Atlas.CountryID, CountryName, Latitude, Longitude, "
                            "ZoneID, Population FROM Atlas JOIN Country_Master "
                            "ON Country_Master.CountryID = Atlas.CountryID");
    while (atlas.executeStep()) {
      PlaceRecord p;
      p.placeId = atlas.getColumn(0).getInt64();
      p.name = atlas.getColumn(1).getString();
      p.region = atlas.getColumn(2).getString();
      p.countryId = atlas.getColumn(3).getInt64();
      p.country = atlas.getColumn(4).getString();
      p.latitude = atlas.getColumn(5).getDouble();
      p.longitude = atlas.getColumn(6).getDouble();
      p.zoneId = atlas.getColumn(7).getString();
      p.population = atlas.getColumn(8).getInt64();
      index.places_.push_back(std::move(p));
    }
  });
  // A city the user added has no zone of its own: it takes the zone of the
  // nearest atlas place of its country.
  for (PlaceRecord& city : index.places_) {
    if (city.cityId == 0 || !city.zoneId.empty()) continue;
    double best = 1e9;
    for (const PlaceRecord& p : index.places_) {
      if (p.placeId == 0 || p.countryId != city.countryId) continue;
      const double dLat = p.latitude - city.latitude, dLon = p.longitude - city.longitude;
      if (dLat * dLat + dLon * dLon < best) {
        best = dLat * dLat + dLon * dLon;
        city.zoneId = p.zoneId;
      }
    }
  }
  index.keys_.reserve(index.places_.size());
  for (std::uint32_t i = 0; i < index.places_.size(); ++i) index.keys_.emplace_back(FoldForSearch(index.places_[i].name), i);
  std::sort(index.keys_.begin(), index.keys_.end());
  // Most seed cities are also in the atlas, under the same name a few
  // minutes of arc away; the search shows such a place once, with its region.
  constexpr double kSamePlaceDegrees = 0.25;
  std::vector<bool> merged(index.keys_.size(), false);
  for (std::size_t k = 0; k < index.keys_.size(); ++k) {
    const PlaceRecord& city = index.places_[index.keys_[k].second];
    if (city.cityId == 0) continue;
    auto it = std::lower_bound(index.keys_.begin(), index.keys_.end(), index.keys_[k].first,
                               [](const auto& entry, const std::string& key) { return entry.first < key; });
    for (; it != index.keys_.end() && it->first == index.keys_[k].first; ++it) {
      const PlaceRecord& p = index.places_[it->second];
      if (p.placeId != 0 && p.countryId == city.countryId && std::abs(p.latitude - city.latitude) < kSamePlaceDegrees &&
          std::abs(p.longitude - city.longitude) < kSamePlaceDegrees) {
        merged[k] = true;
      }
    }
  }
  std::size_t kept = 0;
  for (std::size_t k = 0; k < index.keys_.size(); ++k) {
    if (!merged[k]) index.keys_[kept++] = std::move(index.keys_[k]);
  }
  index.keys_.resize(kept);
  return index;
}

std::vector<const PlaceRecord*> PlaceIndex::Find(std::string_view text, std::optional<std::int64_t> countryId,
                                                 std::size_t limit) const {
  const std::string key = FoldForSearch(text);
  std::vector<const PlaceRecord*> found;
  if (key.empty()) return found;
  auto it = std::lower_bound(keys_.begin(), keys_.end(), key,
                             [](const auto& entry, const std::string& k) { return entry.first < k; });
  std::vector<std::pair<const std::string*, const PlaceRecord*>> matches;
  for (; it != keys_.end() && it->first.compare(0, key.size(), key) == 0; ++it) {
    const PlaceRecord& p = places_[it->second];
    if (countryId && p.countryId != *countryId) continue;
    matches.emplace_back(&it->first, &p);
  }
  const auto rank = [&](const auto& m) {
    return std::make_tuple(*m.first != key, m.second->cityId == 0, -m.second->population);
  };
  if (matches.empty()) return found;
  const std::size_t n = std::min(limit, matches.size());
  std::partial_sort(matches.begin(), matches.begin() + static_cast<std::ptrdiff_t>(n), matches.end(),
                    [&](const auto& a, const auto& b) { return rank(a) < rank(b); });
  for (std::size_t i = 0; i < n; ++i) found.push_back(matches[i].second);
  return found;
}

}  // namespace kelvaro::store
