// The clock offset a chart was calculated with: absent, not invented, for the
// charts of a file saved before it was kept, and kept by an update.
#include <gtest/gtest.h>

#include <tuple>

#include "store/chart_store.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/schema.h"
#include "store/time_zone_master.h"
#include "store_test_support.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;

TEST(ChartOffsetMigration, AnOlderFilesChartsKeepTheirNumbersAndOpen) {
  TempFolder folder;
  const auto path = folder / "DBMirvaneBasic.db";
  OpenOptions version2;
  version2.migrations = {SchemaMigrations()[0], SchemaMigrations()[1]};
  std::int64_t india = 0, zone = 0;
  {
    Database db(path, version2);
    india = CountryByName(db, "India")->id;
    zone = ZonesOf(db, india).at(0).sno;
    // As the program of version 2 saved it: seventeen columns and a gap in the numbers.
    SQLite::Statement insert(db.Connection(),
                             "INSERT INTO ChartSave (Sno, ChartName, Gender, Country, City, ChartDay, ChartMonth, "
                             "ChartYear, ChartHour, ChartMinute, ChartSecond, LatitudeDegree, Latitude_NS, "
                             "LatitudeMinute, LongitudeDegree, Longitude_EW, LongitudeMinute, TimeDifference) "
                             "VALUES (7, 'Velnesh~14-Jul-1965', 'Male', ?, 'Hyderabad (A.P)', 14, 7, 1965, 14, 15, "
                             "0, 17, 'N', 20, 78, 'E', 30, ?)");
    insert.bind(1, india);
    insert.bind(2, zone);
    insert.exec();
  }
  Database db(path);
  EXPECT_EQ(db.SchemaVersion(), 3);
  const auto opened = OpenChart(db, 7);
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->name, "Velnesh");
  EXPECT_EQ(opened->hour12, 2);
  EXPECT_TRUE(opened->pm);
  EXPECT_EQ(opened->zoneSno, zone);
  EXPECT_DOUBLE_EQ(opened->timeDiff, 5.5);
  EXPECT_FALSE(opened->clockOffsetHours);
  EXPECT_EQ(opened->clockOffsetNote, "");
  // The next chart takes the number after the old one's.
  EXPECT_EQ(SaveChart(db, testing::SampleChartFields("Ravi", india, zone)).id, 8);

  // Updated with the offset it was calculated with, it keeps it.
  ChartFields f = testing::SampleChartFields("Velnesh", india, zone);
  f.clockOffsetHours = -4.0;
  f.clockOffsetNote = "overruled by the user: 4 W";
  f.clockOffsetByUser = true;
  ASSERT_TRUE(UpdateChart(db, 7, f).ok());
  const auto updated = OpenChart(db, 7);
  EXPECT_EQ(std::tie(updated->clockOffsetHours, updated->clockOffsetNote, updated->clockOffsetByUser),
            std::tie(f.clockOffsetHours, f.clockOffsetNote, f.clockOffsetByUser));
}

}  // namespace
}  // namespace kelvaro::store
