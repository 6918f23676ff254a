// The seed data of a new file: its invariants, and values checked against the
// tzdata tables read by eye and against the cycle of sixty years.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "store/calculation_tables.h"
#include "store/city_master.h"
#include "store/country_master.h"
#include "store/csv_table.h"
#include "store/database.h"
#include "store/personal_details.h"
#include "store/preferences.h"
#include "store/seed_files.h"
#include "store/text_rules.h"
#include "store/time_zone_master.h"
#include "store_test_support.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;
using namespace std::string_literals;

class SeedData : public ::testing::Test {
 protected:
  TempFolder folder_;
  Database db_{folder_ / "DBMirvaneBasic.db"};

  long long Count(const std::string& sql) { return db_.Connection().execAndGet(sql).getInt64(); }
};

TEST_F(SeedData, PreferenceRowIsTheProgramDefault) {
  EXPECT_EQ(testing::PreferenceFields(ReadPreferences(db_)),
            std::make_tuple("Lahiri"s, "Equal"s, 365.25, "South"s, "English"s, 0.0, 0.0));
  EXPECT_EQ(Count("SELECT count(*) FROM Preference"), 1);
  EXPECT_EQ(db_.Connection().execAndGet("SELECT PreID FROM Preference").getString(), "1");
}

TEST_F(SeedData, SampleChartPlacesExist) {
  const auto india = CountryByName(db_, "India");
  ASSERT_TRUE(india.has_value());
  const auto hyderabad = CityByName(db_, india->id, "Hyderabad (A.P)");
  ASSERT_TRUE(hyderabad.has_value());
  EXPECT_EQ(CoordinatesText(*hyderabad), "17 20 N, 78 30 E");
  const auto zones = ZonesOf(db_, india->id);
  ASSERT_EQ(zones.size(), 1u);  // India has one zone, so the birth form chooses it unasked
  EXPECT_EQ(zones[0].place, "Asia/Kolkata");
  EXPECT_EQ(zones[0].timeDifference, 5.5);
  EXPECT_EQ(zones[0].direction, "E");
}

// Every zone of every country's list exists, every zone is in some list, the
// lists hold no element twice, and every country name is unique.
TEST_F(SeedData, ZoneListsAndZonesAgree) {
  const auto countries = ListCountries(db_);
  EXPECT_GE(countries.size(), 249u);  // the ISO 3166 list of tzdata 2025b
  std::set<std::string> names;
  std::set<std::int64_t> listed;
  for (const CountryRow& c : countries) {
    EXPECT_TRUE(names.insert(LowerAscii(c.name)).second) << c.name;
    std::set<std::int64_t> own;
    std::stringstream list(c.timeZoneIds);
    for (std::string element; std::getline(list, element, ',');) {
      ASSERT_TRUE(NumericValue(element).has_value()) << c.name << ": " << c.timeZoneIds;
      const auto sno = static_cast<std::int64_t>(*NumericValue(element));
      EXPECT_TRUE(ZoneBySno(db_, sno).has_value()) << c.name << " lists zone " << sno;
      EXPECT_TRUE(own.insert(sno).second) << c.name << " lists zone " << sno << " twice";
      listed.insert(sno);
    }
    EXPECT_EQ(ZonesOf(db_, c.id).size(), own.size()) << c.name;
  }
  const auto zones = ListZones(db_);
  EXPECT_GE(zones.size(), 300u);
  for (const ZoneRow& z : zones) {
    EXPECT_TRUE(listed.count(z.sno)) << z.place << " is in no country's list";
    EXPECT_TRUE(z.direction == "E" || z.direction == "W") << z.place;
    // Standard offsets today run from 12 W to 14 E in quarter hours.
    EXPECT_GE(z.timeDifference, 0.0) << z.place;
    EXPECT_LE(z.timeDifference, z.direction == "E" ? 14.0 : 12.0) << z.place;
    EXPECT_EQ(std::fmod(z.timeDifference * 4, 1.0), 0.0) << z.place << " " << z.timeDifference;
  }
}

// Offsets in the master's form, from the zones' standard offsets as every
// atlas gives them (tzdata: Zone lines' STDOFF).
TEST_F(SeedData, KnownZoneOffsets) {
  const std::map<std::string, std::string> expected = {
      {"Asia/Kolkata", "5.5 E"},      {"Asia/Kathmandu", "5.75 E"},  {"America/St_Johns", "3.5 W"},
      {"Australia/Eucla", "8.75 E"},  {"Pacific/Chatham", "12.75 E"}, {"Pacific/Marquesas", "9.5 W"},
      {"Europe/London", "0 E"},       {"America/New_York", "5 W"},   {"Asia/Tokyo", "9 E"},
      {"Pacific/Kiritimati", "14 E"}, {"America/Caracas", "4 W"},    {"Asia/Tehran", "3.5 E"},
  };
  std::map<std::string, std::string> found;
  for (const ZoneRow& z : ListZones(db_)) {
    if (expected.count(z.place)) found[z.place] = OffsetText(z);
  }
  EXPECT_EQ(found, expected);
}

// Principal cities of zones, with coordinates read from zone1970.tab by eye:
// Asia/Kolkata +2232+08822, America/St_Johns +4734-05243,
// Australia/Sydney -3352+15113, Europe/London +513030-0000731 (seconds
// rounded to the nearest minute: 51 31 N, 0 8 W).
TEST_F(SeedData, ZoneCitiesHaveTheirCoordinates) {
  const std::vector<std::pair<std::string, std::pair<std::string, std::string>>> cases = {
      {"India", {"Kolkata", "22 32 N, 88 22 E"}},
      {"Canada", {"St Johns", "47 34 N, 52 43 W"}},
      {"Australia", {"Sydney", "33 52 S, 151 13 E"}},
      {"Britain (UK)", {"London", "51 31 N, 0 8 W"}},
  };
  for (const auto& [country, city] : cases) {
    SCOPED_TRACE(country);
    const auto c = CountryByName(db_, country);
    ASSERT_TRUE(c.has_value());
    const auto row = CityByName(db_, c->id, city.first);
    ASSERT_TRUE(row.has_value()) << city.first;
    EXPECT_EQ(CoordinatesText(*row), city.second);
  }
}

TEST_F(SeedData, CountriesWithoutAZoneHaveAnEmptyList) {
  // Bouvet Island has no zone of its own in zone1970.tab.
  const auto bouvet = CountryByName(db_, "Bouvet Island");
  ASSERT_TRUE(bouvet.has_value());
  EXPECT_EQ(bouvet->timeZoneIds, "");
  EXPECT_TRUE(ZonesOf(db_, bouvet->id).empty());
}

TEST_F(SeedData, CitiesAreValidAndNotDuplicated) {
  SQLite::Statement q(db_.Connection(),
                      "SELECT CityName, CountryID, LatitudeDegree, Latitude_NS, LatitudeMinute, LongitudeDegree, "
                      "Longitude_EW, LongitudeMinute FROM City_Master");
  std::set<std::pair<std::int64_t, std::string>> seen;
  int rows = 0;
  while (q.executeStep()) {
    ++rows;
    const std::string name = q.getColumn(0).getString();
    EXPECT_TRUE(seen.emplace(q.getColumn(1).getInt64(), LowerAscii(name)).second) << name << " twice";
    EXPECT_TRUE(CountryById(db_, q.getColumn(1).getInt64()).has_value()) << name;
    EXPECT_LE(q.getColumn(2).getDouble(), 90) << name;
    EXPECT_LE(q.getColumn(5).getDouble(), 180) << name;
    EXPECT_LT(q.getColumn(4).getDouble(), 60) << name;
    EXPECT_LT(q.getColumn(7).getDouble(), 60) << name;
  }
  EXPECT_GE(rows, 300);  // at least the principal city of nearly every zone
}

// The curated list (when the build has it): every row is in the master once,
// under its country, and its zone is one the country offers.
TEST_F(SeedData, CuratedCitiesAreAllThere) {
  const auto bytes = SeedFile("cities_curated.csv");
  if (!bytes) GTEST_SKIP() << "the build has no data/cities_curated.csv";
  const CsvTable curated = CsvTable::Parse(*bytes, "cities_curated.csv");
  const CsvTable countries = CsvTable::Parse(*SeedFile("countries.csv"), "countries.csv");
  std::map<std::string, std::string> nameOfIso;
  for (std::size_t r = 0; r < countries.RowCount(); ++r) nameOfIso[countries.Cell(r, "iso")] = countries.Cell(r, "name");
  for (std::size_t r = 0; r < curated.RowCount(); ++r) {
    SCOPED_TRACE(curated.Where(r));
    const auto country = CountryByName(db_, nameOfIso.at(curated.Cell(r, "iso")));
    ASSERT_TRUE(country.has_value());
    EXPECT_TRUE(CityByName(db_, country->id, curated.Cell(r, "city")).has_value()) << curated.Cell(r, "city");
    bool offered = false;
    for (const ZoneRow& z : ZonesOf(db_, country->id)) offered = offered || z.place == curated.Cell(r, "zone");
    EXPECT_TRUE(offered) << curated.Cell(r, "zone") << " is not a zone of " << curated.Cell(r, "iso");
  }
}

// Prabhava began in April 1987; the names run through the cycle, so that
// 2024 (row 38) is Krodhi and 2025 Vishvavasu, and 1986 (row 60) Akshaya.
TEST_F(SeedData, SixtyKaliyugaYears) {
  EXPECT_EQ(Count("SELECT count(*) FROM KaliyugaYearDetails"), 60);
  EXPECT_EQ(Count("SELECT count(DISTINCT yearname) FROM KaliyugaYearDetails"), 60);
  const std::map<int, std::string> named = {{1, "Prabhava"},  {2, "Vibhava"},     {3, "Shukla"},
                                            {38, "Krodhi"},   {39, "Vishvavasu"}, {60, "Akshaya"}};
  for (const auto& [yearno, name] : named) {
    const auto row = KaliyugaYear(db_, yearno);
    ASSERT_TRUE(row.has_value()) << yearno;
    EXPECT_EQ(row->yearname, name);
    EXPECT_EQ(row->yearVal, 1986 + yearno);
  }
  EXPECT_FALSE(KaliyugaYear(db_, 0).has_value());
  EXPECT_FALSE(KaliyugaYear(db_, 61).has_value());
}

TEST_F(SeedData, OneTempDasaSandhiRowAndEmptyWorkTables) {
  EXPECT_EQ(Count("SELECT count(*) FROM tempdasasandhi"), 1);
  EXPECT_EQ(Count("SELECT count(*) FROM tempBhukthi"), 0);
  EXPECT_EQ(Count("SELECT count(*) FROM ChartSave"), 0);
  EXPECT_EQ(Count("SELECT count(*) FROM GChartSave"), 0);
  EXPECT_FALSE(ReadPersonalDetails(db_).has_value());
}

// The bands of each chart and rasi run from 0 to 30 without gap or overlap,
// and each names a rasi.
TEST_F(SeedData, ChartsMasterBandsCoverEachRasiOnce) {
  if (!SeedFile("chartsmaster.csv")) GTEST_SKIP() << "the build has no data/chartsmaster.csv";
  const std::set<std::string> known = {"hora",         "drekkana",         "chaturthamsha",   "panchamsha",
                                       "shashtamsha",  "sapthamsha",       "ashatamsha",      "navamsa",
                                       "dashamsha",    "ekadashamsha",     "dwadashamsha",    "shodashamsha",
                                       "vimshamsha",   "chaturvimshamsha", "saptavimshamsha", "trimshamsha",
                                       "khavedamsa",   "akshvedamsa",      "shastiamsa",      "nava-navamsa"};
  SQLite::Statement names(db_.Connection(), "SELECT DISTINCT chartname FROM chartsmaster");
  int charts = 0;
  while (names.executeStep()) {
    const std::string chart = names.getColumn(0).getString();
    SCOPED_TRACE(chart);
    ++charts;
    EXPECT_TRUE(known.count(chart));
    for (int rasi = 1; rasi <= 12; ++rasi) {
      SCOPED_TRACE(rasi);
      SQLite::Statement bands(db_.Connection(),
                              "SELECT startDegree, EndDegree, HouseNumber FROM chartsmaster WHERE chartname = ? AND "
                              "RasiHouse = ? ORDER BY startDegree");
      bands.bind(1, chart);
      bands.bind(2, rasi);
      double reached = 0.0;
      int count = 0;
      while (bands.executeStep()) {
        ++count;
        EXPECT_EQ(bands.getColumn(0).getDouble(), reached);
        EXPECT_GT(bands.getColumn(1).getDouble(), bands.getColumn(0).getDouble());
        reached = bands.getColumn(1).getDouble();
        const int house = bands.getColumn(2).getInt();
        EXPECT_TRUE(house >= 1 && house <= 12) << house;
      }
      EXPECT_GT(count, 0);
      EXPECT_EQ(reached, 30.0);
    }
  }
  EXPECT_GE(charts, 1);
  EXPECT_EQ(Count("SELECT count(*) FROM chartsmaster WHERE RasiHouse NOT BETWEEN 1 AND 12"), 0);
}

}  // namespace
}  // namespace kelvaro::store
