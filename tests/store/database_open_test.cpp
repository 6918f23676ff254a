// Opening, creating and upgrading the database file, and refusing files that
// are not ours, against real files in a fresh folder per test.
#include <gtest/gtest.h>

#include <fstream>

#include <chrono>

#include <SQLiteCpp/SQLiteCpp.h>

#include "store/chart_store.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/schema.h"
#include "store/store_error.h"
#include "store_test_support.h"

namespace kelvaro::store {
namespace {

using testing::FileBytes;
using testing::TempFolder;
using testing::WriteFile;

ChartFields SampleChart(const std::string& name) { return testing::SampleChartFields(name, 1, 1); }

// Expects a StoreError whose message names the file and holds `words`.
template <class Body>
void ExpectStoreError(const std::filesystem::path& path, const std::string& words, Body&& body) {
  try {
    body();
    FAIL() << "no StoreError; expected one about " << words;
  } catch (const StoreError& e) {
    const std::string message = e.what();
    EXPECT_NE(message.find(path.string()), std::string::npos) << message;
    EXPECT_NE(message.find(words), std::string::npos) << message;
  }
}

long long Pragma(const std::filesystem::path& path, const std::string& name) {
  SQLite::Database raw(path, SQLite::OPEN_READONLY);
  return raw.execAndGet("PRAGMA " + name).getInt64();
}

OpenOptions ReadOnly() {
  OpenOptions options;
  options.readOnly = true;
  return options;
}

// The program's steps followed by a later version's.
OpenOptions WithStep(Migration later) {
  OpenOptions options;
  options.migrations = SchemaMigrations();
  options.migrations.push_back(std::move(later));
  return options;
}

// A fresh folder per test and the database path in it, not yet created.
class DatabaseOpen : public ::testing::Test {
 protected:
  // Creates the file, with the sample chart when asked, and gives its number.
  std::int64_t Create(bool withChart = false) {
    Database db(path_);
    return withChart ? SaveChart(db, SampleChart("Velnesh")).id : 0;
  }
  // The backup an upgrade of a file of this version leaves beside it.
  static std::string Backup() { return "DBMirvaneBasic.db.v" + std::to_string(kSchemaVersion) + ".bak"; }
  TempFolder folder_;
  const std::filesystem::path path_ = folder_ / "DBMirvaneBasic.db";
};
using DatabaseUpgrade = DatabaseOpen;

TEST_F(DatabaseOpen, CreatesCloseReopensAndKeepsEverything) {
  std::int64_t chart = 0;
  std::int64_t country = 0;
  {
    Database db(path_);
    EXPECT_TRUE(db.Created());
    EXPECT_EQ(db.SchemaVersion(), kSchemaVersion);
    chart = SaveChart(db, SampleChart("Velnesh")).id;
    country = AddCountry(db, "Atlantis").id;
  }
  // Nothing but the database itself is left in the folder: no temporary
  // file, no journal, no backup.
  EXPECT_EQ(folder_.Entries(), std::vector<std::string>{"DBMirvaneBasic.db"});
  EXPECT_EQ(Pragma(path_, "application_id"), Database::kApplicationId);
  EXPECT_EQ(Pragma(path_, "user_version"), kSchemaVersion);

  const std::string before = FileBytes(path_);
  {
    Database db(path_);
    EXPECT_FALSE(db.Created());
    EXPECT_TRUE(db.BackupPath().empty());
    const auto opened = OpenChart(db, chart);
    ASSERT_TRUE(opened.has_value());
    EXPECT_EQ(opened->name, "Velnesh");
    ASSERT_TRUE(CountryById(db, country).has_value());
    EXPECT_EQ(CountryById(db, country)->name, "Atlantis");
  }
  // Opening and reading changes no byte.
  EXPECT_EQ(FileBytes(path_), before);
}

// A missing folder, a creation whose step fails, a read-only open of a
// missing file, a folder for a file: refused, and nothing is left behind.
TEST_F(DatabaseOpen, RefusedCreationsLeaveNothingBehind) {
  const auto inMissing = folder_ / "no-such-folder" / "DBMirvaneBasic.db";
  ExpectStoreError(folder_ / "no-such-folder", "does not exist", [&] { Database db(inMissing); });
  const OpenOptions broken = WithStep({kSchemaVersion + 1, [](SQLite::Database&) { throw std::runtime_error("step two broke"); }});
  ExpectStoreError(path_, "step two broke", [&] { Database db(path_, broken); });
  ExpectStoreError(path_, "does not exist", [&] { Database db(path_, ReadOnly()); });
  ExpectStoreError(folder_.Path(), "is a folder", [&] { Database db(folder_.Path()); });
  EXPECT_TRUE(folder_.Entries().empty());
}

// A creation that a killed run left half done is removed at the next open; a
// fresh one, perhaps another copy of the program at work, is left alone.
TEST_F(DatabaseOpen, TemporaryFilesOfAKilledRunAreRemoved) {
  const auto stale = folder_ / "DBMirvaneBasic.db.new-123456";
  const auto fresh = folder_ / "DBMirvaneBasic.db.new-789";
  for (const auto& p : {stale, fresh}) std::ofstream(p) << "half a database";
  std::filesystem::last_write_time(stale, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  Create();
  EXPECT_FALSE(std::filesystem::exists(stale));
  EXPECT_TRUE(std::filesystem::exists(fresh));
}

// A read-only open reads, refuses every write, and does not upgrade.
TEST_F(DatabaseOpen, ReadOnlyOpenReadsAndRefusesEveryWrite) {
  Create();
  const std::string before = FileBytes(path_);
  Database db(path_, ReadOnly());
  EXPECT_TRUE(db.ReadOnly());
  EXPECT_FALSE(ListCountries(db).empty());
  ExpectStoreError(path_, "read-only", [&] { AddCountry(db, "Atlantis"); });
  ExpectStoreError(path_, "read-only", [&] { SaveChart(db, SampleChart("Velnesh")); });
  OpenOptions upgrade = WithStep({kSchemaVersion + 1, [](SQLite::Database& c) { c.exec("CREATE TABLE Extra (x)"); }});
  upgrade.readOnly = true;
  ExpectStoreError(path_, "read-only", [&] { Database later(path_, upgrade); });
  EXPECT_EQ(FileBytes(path_), before);
}

TEST_F(DatabaseOpen, LockedFileIsReportedAndLeftAlone) {
  Create();
  const std::string before = FileBytes(path_);

  // Another program holds the file in an exclusive transaction.
  SQLite::Database other(path_, SQLite::OPEN_READWRITE);
  other.exec("BEGIN EXCLUSIVE");
  OpenOptions options;
  options.busyTimeoutMs = 50;
  ExpectStoreError(path_, "locked", [&] { Database db(path_, options); });
  other.exec("ROLLBACK");

  // Opened first, then locked by the other program: the write fails and is
  // rolled back.
  Database db(path_, options);
  other.exec("BEGIN EXCLUSIVE");
  ExpectStoreError(path_, "locked", [&] { AddCountry(db, "Atlantis"); });
  other.exec("ROLLBACK");
  EXPECT_EQ(FileBytes(path_), before);
  EXPECT_FALSE(CountryByName(db, "Atlantis").has_value());
}

// Files that are not a Kelvaro database of a known version: each is refused
// with a message naming it, and its bytes stay as they were.
TEST_F(DatabaseOpen, ForeignDamagedAndNewerFilesAreRefusedUntouched) {
  struct Case {
    const char* label;
    std::function<void(const std::filesystem::path&)> make;
    const char* words;
  };
  const std::vector<Case> cases = {
      {"text file",
       [](const auto& p) { WriteFile(p, std::string(3000, 'x') + "\nthis is a letter, not a database\n"); },
       "not a Kelvaro database"},
      {"empty file", [](const auto& p) { WriteFile(p, ""); }, "not a Kelvaro database"},
      {"another program's SQLite file",
       [](const auto& p) {
         SQLite::Database other(p, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
         other.exec("CREATE TABLE notes (body TEXT); INSERT INTO notes VALUES ('keep me')");
       },
       "not a Kelvaro database"},
      {"a table missing",
       [](const auto& p) {
         { Database db(p); }
         SQLite::Database raw(p, SQLite::OPEN_READWRITE);
         raw.exec("DROP TABLE tempdasasandhi");
       },
       "no table tempdasasandhi"},
      {"a newer schema",
       [](const auto& p) {
         { Database db(p); }
         SQLite::Database raw(p, SQLite::OPEN_READWRITE);
         raw.exec("PRAGMA user_version = 99");
       },
       "newer"},
      {"damaged pages",
       [](const auto& p) {
         { Database db(p); }
         std::string bytes = FileBytes(p);
         // Page size 4096: overwrite the whole of the second page, one of the
         // schema's table pages, keeping the header of page one intact.
         for (std::size_t i = 4096; i < 8192 && i < bytes.size(); ++i) bytes[i] = static_cast<char>(0xA5);
         WriteFile(p, bytes);
       },
       ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.label);
    TempFolder folder;
    const auto path = folder / "DBMirvaneBasic.db";
    c.make(path);
    const std::string before = FileBytes(path);
    ExpectStoreError(path, c.words, [&] { Database db(path); });
    EXPECT_EQ(FileBytes(path), before);
    EXPECT_EQ(folder.Entries(), std::vector<std::string>{"DBMirvaneBasic.db"});
  }
}

// A later version of the program adds a step; opening an older file copies it
// to a backup beside it and applies the step, keeping every row.
TEST_F(DatabaseUpgrade, BacksUpThenMigratesInOrder) {
  const std::int64_t chart = Create(true);
  const std::string version1 = FileBytes(path_);

  std::vector<int> ran;
  OpenOptions options;
  options.migrations = SchemaMigrations();
  options.migrations.push_back({kSchemaVersion + 1, [&](SQLite::Database& c) {
                                  ran.push_back(kSchemaVersion + 1);
                                  c.exec("ALTER TABLE ChartSave ADD COLUMN Notes TEXT");
                                  c.exec("UPDATE ChartSave SET Notes = 'from step 2'");
                                }});
  options.migrations.push_back({kSchemaVersion + 2, [&](SQLite::Database& c) {
                                  ran.push_back(kSchemaVersion + 2);
                                  // Sees the column of step 2, so the steps ran in order.
                                  c.exec("UPDATE ChartSave SET Notes = Notes || ', step 3'");
                                }});
  {
    Database db(path_, options);
    EXPECT_EQ(db.SchemaVersion(), kSchemaVersion + 2);
    EXPECT_EQ(ran, (std::vector<int>{kSchemaVersion + 1, kSchemaVersion + 2}));
    ASSERT_FALSE(db.BackupPath().empty());
    EXPECT_EQ(db.BackupPath(), folder_ / Backup());
    EXPECT_EQ(FileBytes(db.BackupPath()), version1);
    EXPECT_EQ(db.Connection().execAndGet("SELECT Notes FROM ChartSave").getString(), "from step 2, step 3");
    ASSERT_TRUE(OpenChart(db, chart).has_value());
  }
  EXPECT_EQ(Pragma(path_, "user_version"), kSchemaVersion + 2);

  // Opened again at the later version: nothing runs, no new backup.
  ran.clear();
  {
    Database db(path_, options);
    EXPECT_TRUE(ran.empty());
    EXPECT_TRUE(db.BackupPath().empty());
  }
  EXPECT_EQ(folder_.Entries(), (std::vector<std::string>{"DBMirvaneBasic.db", Backup()}));
}

TEST_F(DatabaseUpgrade, AFailedStepLeavesTheFileAsItWas) {
  const std::int64_t chart = Create(true);
  const std::string before = FileBytes(path_);
  const OpenOptions options = WithStep({kSchemaVersion + 1, [](SQLite::Database& c) {
                                          c.exec("ALTER TABLE ChartSave ADD COLUMN Notes TEXT");
                                          c.exec("DELETE FROM ChartSave");
                                          throw std::runtime_error("step two broke");
                                        }});
  ExpectStoreError(path_, "step two broke", [&] { Database db(path_, options); });
  EXPECT_EQ(FileBytes(path_), before);
  EXPECT_EQ(folder_.Entries(), std::vector<std::string>{"DBMirvaneBasic.db"});

  Database db(path_);
  EXPECT_EQ(db.SchemaVersion(), kSchemaVersion);
  EXPECT_TRUE(OpenChart(db, chart).has_value());
}

}  // namespace
}  // namespace kelvaro::store
