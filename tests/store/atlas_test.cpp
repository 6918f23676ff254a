// The world atlas: what the migration adds, what it keeps, and the search.
#include <gtest/gtest.h>

#include <SQLiteCpp/SQLiteCpp.h>

#include <map>
#include <tuple>

#include "store/city_master.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/place_search.h"
#include "store/schema.h"
#include "store/system_zone_rules.h"
#include "store_test_support.h"
#include "support/test_data.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;

// One new file for the whole suite: making it loads the whole atlas.
struct World {
  TempFolder folder;
  Database db{folder / "DBMirvaneBasic.db"};
  PlaceIndex index = PlaceIndex::Load(db);
};

class Atlas : public ::testing::Test {
 protected:
  static World& TheWorld() {
    static World world;
    return world;
  }
  Database& db_ = TheWorld().db;
  const PlaceIndex& index_ = TheWorld().index;
  long long Count(const std::string& sql) { return db_.Connection().execAndGet(sql).getInt64(); }
  std::int64_t CountryId(const char* name) { return CountryByName(db_, name)->id; }
};

TEST_F(Atlas, CoversTheWorldWithoutDuplicates) {
  EXPECT_GT(Count("SELECT count(*) FROM Atlas"), 40000);
  // India's places of 1,000 to 5,000 people are in; elsewhere they are not.
  EXPECT_GT(Count("SELECT count(*) FROM Atlas JOIN Country_Master USING (CountryID) "
                  "WHERE CountryName = 'India' AND Population < 5000"),
            100);
  EXPECT_EQ(Count("SELECT count(*) FROM Atlas JOIN Country_Master USING (CountryID) "
                  "WHERE CountryName <> 'India' AND CountryName <> 'Nepal' AND CountryName <> 'Sri Lanka' "
                  "AND CountryName <> 'Bangladesh' AND CountryName <> 'Pakistan' AND Population < 5000"),
            0);
  EXPECT_EQ(Count("SELECT count(*) FROM (SELECT 1 FROM Atlas GROUP BY CountryID, lower(PlaceName), lower(Region) "
                  "HAVING count(*) > 1)"),
            0);
  EXPECT_EQ(Count("SELECT count(*) FROM Atlas WHERE CountryID NOT IN (SELECT CountryID FROM Country_Master)"), 0);
}

TEST_F(Atlas, EveryZoneIsOneTheSystemKnows) {
  const SystemZoneRules rules;
  SQLite::Statement zones(db_.Connection(),
                          "SELECT DISTINCT ZoneID FROM Atlas UNION SELECT DISTINCT ZoneID FROM City_Master");
  int count = 0;
  while (zones.executeStep()) {
    ASSERT_FALSE(zones.getColumn(0).isNull()) << "a seed city without a zone";
    EXPECT_TRUE(rules.Knows(zones.getColumn(0).getString())) << zones.getColumn(0).getString();
    ++count;
  }
  EXPECT_GT(count, 300);
}

TEST_F(Atlas, SearchFindsNamesakesByRegionAndRanksThem) {
  const auto rows = kelvaro::testing::TestDataTable("store/atlas_search.txt");
  ASSERT_EQ(rows.size(), 6u);
  for (const auto& c : rows) {
    ASSERT_EQ(c.size(), 4u);
    SCOPED_TRACE(c[0]);
    const auto found = index_.Find(c[0], c[1].empty() ? std::nullopt : std::optional(CountryId(c[1].c_str())));
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(found.front()->Label(), c[2]);
    EXPECT_EQ(found.front()->zoneId, c[3]);
    for (const PlaceRecord* p : found) {
      EXPECT_EQ(FoldForSearch(p->name).rfind(FoldForSearch(c[0]), 0), 0u) << p->name;
      if (!c[1].empty()) {
        EXPECT_EQ(p->country, c[1]);
      }
    }
  }
  const auto both = index_.Find("Hyderabad");
  ASSERT_GE(both.size(), 2u);
  EXPECT_EQ(both[1]->Label(), "Hyderabad, Sindh");
  EXPECT_EQ(index_.Find("a", std::nullopt, 7).size(), 7u);
  EXPECT_TRUE(index_.Find("").empty());
  EXPECT_TRUE(index_.Find("Qqqxz").empty());
}

TEST(AtlasMigration, KeepsTheCitiesAndNumbersOfAnOlderFile) {
  TempFolder folder;
  const auto path = folder / "DBMirvaneBasic.db";
  OpenOptions version1;
  version1.migrations = {SchemaMigrations().front()};
  using Row = std::tuple<std::string, std::int64_t, double, double, std::string>;
  const auto cities = [](Database& db) {
    std::map<std::int64_t, Row> rows;
    SQLite::Statement q(db.Connection(),
                        "SELECT CityID, CityName, CountryID, LatitudeDegree, LongitudeMinute, Longitude_EW "
                        "FROM City_Master");
    while (q.executeStep()) {
      rows[q.getColumn(0).getInt64()] = {q.getColumn(1).getString(), q.getColumn(2).getInt64(),
                                         q.getColumn(3).getDouble(), q.getColumn(4).getDouble(),
                                         q.getColumn(5).getString()};
    }
    return rows;
  };
  const auto zoneOf = [](Database& db, const char* city) {
    SQLite::Statement q(db.Connection(), "SELECT ifnull(ZoneID, '') FROM City_Master WHERE CityName = ?");
    q.bind(1, city);
    return q.executeStep() ? q.getColumn(0).getString() : "(no such city)";
  };
  std::map<std::int64_t, Row> before;
  std::int64_t mine = 0;
  {
    Database db(path, version1);
    CityInput city{CountryByName(db, "India")->id, "Kelvaro Nagar", "21", "10", "N", "79", "5", "E"};
    mine = AddCity(db, city).id;
    ASSERT_GT(mine, 0);
    before = cities(db);
  }
  Database db(path);
  EXPECT_EQ(db.SchemaVersion(), kSchemaVersion);
  const auto after = cities(db);
  EXPECT_EQ(after, before);
  EXPECT_EQ(zoneOf(db, "Hyderabad (A.P)"), "Asia/Kolkata");
  EXPECT_EQ(zoneOf(db, "Kelvaro Nagar"), "");  // the user's own city: the seed data does not know it

  // The search gives it the zone of the nearest atlas place of its country.
  const PlaceIndex index = PlaceIndex::Load(db);
  const auto found = index.Find("Kelvaro Nagar");
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found.front()->cityId, mine);
  EXPECT_EQ(found.front()->zoneId, "Asia/Kolkata");
  EXPECT_NEAR(found.front()->latitude, 21 + 10 / 60.0, 1e-9);
}

TEST(AtlasSearchText, FoldsCaseAndLatinAccents) {
  EXPECT_EQ(FoldForSearch("Łódź"), "lodz");
  EXPECT_EQ(FoldForSearch("Ærøskøbing"), "aroskobing");
  EXPECT_EQ(FoldForSearch("Đà Nẵng"), "da n\xe1\xba\xb5ng");  // a letter past Latin Extended-A stays as it is
  EXPECT_EQ(FoldForSearch("×"), "×");
}

}  // namespace
}  // namespace kelvaro::store
