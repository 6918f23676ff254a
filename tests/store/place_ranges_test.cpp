// PlaceOutOfRangeIsNotStored: the city and zone masters refuse a place past a
// pole or the date line, a minute of 60 and a zone beyond 14 hours, naming the
// field, before anything is written; the limits themselves are stored.
#include <gtest/gtest.h>

#include "store/city_master.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/time_zone_master.h"
#include "store_test_support.h"

namespace kelvaro::store {
namespace {

struct CityRange {
  const char *latDeg, *latMin, *lonDeg, *lonMin;
  const char* field;  // empty: stored
  const char* message;
};

constexpr CityRange kCities[] = {
    {"90", "0", "180", "0", "", ""},
    {"0", "59.5", "0", "0", "", ""},
    {"91", "0", "78", "0", "LatDeg", "Enter Lat Deg between 0 and 90"},
    {"-1", "0", "78", "0", "LatDeg", "Enter Lat Deg between 0 and 90"},
    {"17", "60", "78", "0", "LAtMin", "Enter Lat Min between 0 and 59"},
    {"90", "1", "78", "0", "LAtMin", "Enter Lat Min between 0 and 59"},
    {"17", "0", "180.5", "0", "LonDeg", "Enter Lon Deg between 0 and 180"},
    {"17", "0", "4294967296", "0", "LonDeg", "Enter Lon Deg between 0 and 180"},
    {"17", "0", "180", "30", "LonMin", "Enter Lon Min between 0 and 59"},
};

struct ZoneRange {
  const char *hours, *minutes;
  const char* field;
  const char* message;
};

constexpr ZoneRange kZones[] = {
    {"14", "0", "", ""},
    {"14", "30", "LAtMin", "Enter Time Min between 0 and 59"},
    {"15", "0", "LatDeg", "Enter Time Hours between 0 and 14"},
    {"5", "60", "LAtMin", "Enter Time Min between 0 and 59"},
    {"-2", "0", "LatDeg", "Enter Time Hours between 0 and 14"},
};

TEST(PlaceRanges, PlaceOutOfRangeIsNotStored) {
  testing::TempFolder folder;
  Database db(folder / "DBMirvaneBasic.db");
  const auto atlantis = AddCountry(db, "Atlantis").id;
  int n = 0;
  for (const CityRange& c : kCities) {
    const std::string name = "Town " + std::to_string(++n);
    const CityInput in{atlantis, name, c.latDeg, c.latMin, "N", c.lonDeg, c.lonMin, "E"};
    const WriteResult added = AddCity(db, in);
    if (*c.field == '\0') {
      EXPECT_TRUE(added.ok()) << name;
      continue;
    }
    ASSERT_FALSE(added.ok()) << c.latDeg << " " << c.latMin << " " << c.lonDeg << " " << c.lonMin;
    EXPECT_EQ(added.failure->field, std::string("txtAdd") + c.field);
    EXPECT_EQ(added.failure->message, c.message);
    EXPECT_FALSE(CityByName(db, atlantis, name).has_value());
  }
  // The edit goes through the same test.
  const auto town = CityByName(db, atlantis, "Town 1")->id;
  const WriteResult edited = EditCity(db, town, {atlantis, "Town 1", "95", "0", "N", "0", "0", "E"});
  ASSERT_FALSE(edited.ok());
  EXPECT_EQ(edited.failure->message, "Enter Lat Deg between 0 and 90");
  EXPECT_EQ(CityById(db, town)->latDeg, 90);

  for (const ZoneRange& z : kZones) {
    const WriteResult added = AddZone(db, {atlantis, "Zone " + std::to_string(++n), z.hours, z.minutes, "E"});
    if (*z.field == '\0') {
      EXPECT_TRUE(added.ok()) << z.hours << ":" << z.minutes;
      continue;
    }
    ASSERT_FALSE(added.ok()) << z.hours << ":" << z.minutes;
    EXPECT_EQ(added.failure->field, std::string("txtAdd") + z.field);
    EXPECT_EQ(added.failure->message, z.message);
  }
  EXPECT_EQ(ZonesOf(db, atlantis).size(), 1u);
}

}  // namespace
}  // namespace kelvaro::store
