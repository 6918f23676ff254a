// PlaceOutOfRangeIsNotStored: the city and zone masters refuse a place past a
// pole or the date line, a minute of 60 and a zone beyond 14 hours, naming the
// field, before anything is written; the limits themselves are stored.
#include <gtest/gtest.h>

#include "store/city_master.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/time_zone_master.h"
#include "store_test_support.h"
#include "support/test_data.h"

namespace kelvaro::store {
namespace {

// The rows of tests/data/store/place_ranges.txt: a city or a zone, its
// numbers, and the field and message of the refusal (none: it is stored).
TEST(PlaceRanges, PlaceOutOfRangeIsNotStored) {
  testing::TempFolder folder;
  Database db(folder / "DBMirvaneBasic.db");
  const auto atlantis = AddCountry(db, "Atlantis").id;
  const auto rows = kelvaro::testing::TestDataTable("store/place_ranges.txt");
  ASSERT_EQ(rows.size(), 14u);
  int n = 0;
  for (const auto& row : rows) {
    const bool city = row[0] == "city";
    ASSERT_EQ(row.size(), city ? 7u : 5u);
    const std::string name = row[0] + " " + std::to_string(++n);
    SCOPED_TRACE(name);
    const WriteResult added = city ? AddCity(db, {atlantis, name, row[1], row[2], "N", row[3], row[4], "E"})
                                   : AddZone(db, {atlantis, name, row[1], row[2], "E"});
    const std::string& field = row[row.size() - 2];
    if (field.empty()) {
      EXPECT_TRUE(added.ok());
      continue;
    }
    ASSERT_FALSE(added.ok());
    EXPECT_EQ(added.failure->field, "txtAdd" + field);
    EXPECT_EQ(added.failure->message, row.back());
    if (city) {
      EXPECT_FALSE(CityByName(db, atlantis, name).has_value());
    }
  }
  EXPECT_EQ(ZonesOf(db, atlantis).size(), 1u);
  // The edit goes through the same test.
  const auto town = CityByName(db, atlantis, "city 1")->id;
  const WriteResult edited = EditCity(db, town, {atlantis, "city 1", "95", "0", "N", "0", "0", "E"});
  ASSERT_FALSE(edited.ok());
  EXPECT_EQ(edited.failure->message, "Enter Lat Deg between 0 and 90");
  EXPECT_EQ(CityById(db, town)->latDeg, 90);
}

}  // namespace
}  // namespace kelvaro::store
