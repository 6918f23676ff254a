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
#include "support/test_data.h"

namespace kelvaro::cli {
namespace {

// The rows of tests/data/cli/stored_damage.txt: the damage, the words, the command.
TEST(StoredValues, StoredPlaceOutOfRangeIsRefused) {
  const auto rows = kelvaro::testing::TestDataTable("cli/stored_damage.txt");
  ASSERT_EQ(rows.size(), 7u);
  for (const auto& d : rows) {
    ASSERT_EQ(d.size(), 3u);
    SCOPED_TRACE(d[0]);
    store::testing::TempFolder folder;
    const std::string path = (folder / "DBMirvaneBasic.db").string();
    std::int64_t sno = 0;
    {
      store::Database db(path);
      const auto india = store::CountryByName(db, "India")->id;
      sno = store::SaveChart(db, store::testing::SampleChartFields("Velnesh", india, store::ZonesOf(db, india).at(0).sno))
                .id;
      db.Write("damage", [&](SQLite::Database& c) { c.exec(d[0]); });
    }
    const Outcome run =
        d[2] == "summary"
            ? RunTool({"summary", "--chart", std::to_string(sno), "--database", path})
            : RunTool({"convert", "to-ghati", "--date", "14/07/1965", "--time", "14:15", "--city", "Hyderabad (A.P)",
                       "--country", "India", "--database", path});
    EXPECT_EQ(run.status, kExitBadInput) << run.out;
    EXPECT_NE(run.err.find(d[1]), std::string::npos) << run.err;
  }
}

}  // namespace
}  // namespace kelvaro::cli
