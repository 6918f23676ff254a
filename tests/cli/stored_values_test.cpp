// StoredPlaceOutOfRangeIsRefused: a saved chart, a city or a zone whose
// stored numbers no place can have (a hand-edited or damaged database) is bad
// input naming the column, never computed as if the value were 0.
#include <gtest/gtest.h>

#include <SQLiteCpp/Database.h>

#include "cli/cli.h"
#include "cli/run_tool.h"
#include "store/chart_store.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/store_test_support.h"
#include "store/time_zone_master.h"

namespace kelvaro::cli {
namespace {

struct Damage {
  const char* sql;       // run on a fresh database with the sample chart saved
  const char* column;    // the column the message must name
  const char* command;   // "summary" or "convert"
};

constexpr Damage kDamages[] = {
    {"UPDATE ChartSave SET LatitudeDegree = 99999", "LatitudeDegree 99999 is not from 0 to 90", "summary"},
    {"UPDATE ChartSave SET LatitudeMinute = 60", "LatitudeMinute 60 is not from 0 to below 60", "summary"},
    {"UPDATE ChartSave SET LongitudeDegree = 'far'", "LongitudeDegree is not a number", "summary"},
    {"UPDATE ChartSave SET LongitudeDegree = 180, LongitudeMinute = 1", "LongitudeMinute 1 takes the place beyond 180",
     "summary"},
    {"UPDATE TimeZone SET TimeDifference = 15", "TimeDifference 15 is not from 0 to 14", "summary"},
    {"UPDATE City_Master SET LatitudeDegree = 91 WHERE CityName = 'Hyderabad (A.P)'",
     "LatitudeDegree 91 is not from 0 to 90", "convert"},
    {"UPDATE TimeZone SET TimeDifference = '5 1/2'", "TimeDifference is not a number", "convert"},
};

TEST(StoredValues, StoredPlaceOutOfRangeIsRefused) {
  for (const Damage& d : kDamages) {
    store::testing::TempFolder folder;
    const std::string path = (folder / "DBMirvaneBasic.db").string();
    std::int64_t sno = 0;
    {
      store::Database db(path);
      const auto india = store::CountryByName(db, "India")->id;
      sno = store::SaveChart(db, store::testing::SampleChartFields("Velnesh", india, store::ZonesOf(db, india).at(0).sno))
                .id;
      db.Write("damage", [&](SQLite::Database& c) { c.exec(d.sql); });
    }
    const Outcome run =
        std::string(d.command) == "summary"
            ? RunTool({"summary", "--chart", std::to_string(sno), "--database", path})
            : RunTool({"convert", "to-ghati", "--date", "14/07/1965", "--time", "14:15", "--city", "Hyderabad (A.P)",
                       "--country", "India", "--database", path});
    EXPECT_EQ(run.status, kExitBadInput) << d.sql << "\n" << run.out;
    EXPECT_NE(run.err.find(d.column), std::string::npos) << d.sql << "\n" << run.err;
  }
}

}  // namespace
}  // namespace kelvaro::cli
