// The clock offset a chart was calculated with: kept by a save and an update,
// given back by opening, and absent, not invented, for the charts of a file
// saved before it was kept.
#include <gtest/gtest.h>

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
  EXPECT_EQ(opened->zoneId, "");
  EXPECT_FALSE(opened->clockOffsetByUser);
  // The next chart takes the number after the old one's.
  EXPECT_EQ(SaveChart(db, testing::SampleChartFields("Ravi", india, zone)).id, 8);
}

TEST(ChartOffsetMigration, SaveUpdateAndOpenCarryTheOffset) {
  TempFolder folder;
  Database db(folder / "DBMirvaneBasic.db");
  const std::int64_t india = CountryByName(db, "India")->id;
  const std::int64_t zone = ZonesOf(db, india).at(0).sno;
  ChartFields f = testing::SampleChartFields("Anand", india, zone);
  f.year = "1943";
  f.clockOffsetHours = 6.5;
  f.clockOffsetNote = "Asia/Kolkata: +6:30 on 14/07/1943 (war time)";
  f.zoneId = "Asia/Kolkata";
  const std::int64_t sno = SaveChart(db, f).id;
  auto opened = OpenChart(db, sno);
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->clockOffsetHours, 6.5);
  EXPECT_EQ(opened->clockOffsetNote, f.clockOffsetNote);
  EXPECT_EQ(opened->zoneId, "Asia/Kolkata");
  EXPECT_DOUBLE_EQ(opened->timeDiff, 5.5);  // the zone row's own, beside it

  f.clockOffsetHours = -4.0;
  f.clockOffsetByUser = true;
  f.clockOffsetNote = "overruled by the user: 4 W";
  ASSERT_TRUE(UpdateChart(db, sno, f).ok());
  opened = OpenChart(db, sno);
  EXPECT_EQ(opened->clockOffsetHours, -4.0);
  EXPECT_TRUE(opened->clockOffsetByUser);
  EXPECT_EQ(opened->clockOffsetNote, "overruled by the user: 4 W");

  f.clockOffsetHours.reset();
  f.clockOffsetByUser = false;
  f.clockOffsetNote.clear();
  f.zoneId.clear();
  ASSERT_TRUE(UpdateChart(db, sno, f).ok());
  EXPECT_FALSE(OpenChart(db, sno)->clockOffsetHours);
}

}  // namespace
}  // namespace kelvaro::store
