#include "store/database.h"

#include <sqlite3.h>

#include <chrono>
#include <random>
#include <stdexcept>
#include <system_error>

#include "store/store_error.h"

namespace kelvaro::store {

namespace fs = std::filesystem;

namespace {

std::string Quoted(const fs::path& path) { return "\"" + path.string() + "\""; }

// Why a call failed, in words first and SQLite's own text after.
std::string Reason(const SQLite::Exception& e) {
  std::string words;
  switch (e.getErrorCode()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      words = "the file is locked by another program";
      break;
    case SQLITE_READONLY:
      words = "the file is read-only";
      break;
    case SQLITE_NOTADB:
      words = "the file is not a Kelvaro database";
      break;
    case SQLITE_CORRUPT:
      words = "the file is damaged";
      break;
    case SQLITE_CANTOPEN:
      words = "the file cannot be opened";
      break;
    case SQLITE_FULL:
      words = "the disk is full";
      break;
    case SQLITE_CONSTRAINT:
      words = "a value does not fit the table";
      break;
    default:
      return e.what();
  }
  return words + " (" + e.what() + ")";
}

int LatestVersion(const std::vector<Migration>& migrations) {
  return migrations.empty() ? 0 : migrations.back().version;
}

void CheckSteps(const std::vector<Migration>& migrations) {
  for (std::size_t i = 0; i < migrations.size(); ++i) {
    if (migrations[i].version != static_cast<int>(i) + 1 || !migrations[i].apply) {
      throw std::logic_error("schema steps must run 1, 2, 3, ... each with a body");
    }
  }
}

// PRAGMA takes no bound parameters; the value is the program's own integer.
void SetHeaderInteger(SQLite::Database& db, const char* pragma, long long value) {
  db.exec(std::string("PRAGMA ") + pragma + " = " + std::to_string(value));
}

long long HeaderInteger(SQLite::Database& db, const char* pragma) {
  SQLite::Statement query(db, std::string("PRAGMA ") + pragma);
  query.executeStep();
  return query.getColumn(0).getInt64();
}

void RemoveQuietly(const fs::path& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
  fs::remove(fs::path(path.string() + "-journal"), ignored);
}

// The tables a file of this program must hold.
constexpr const char* kTables[] = {
    "ChartSave", "GChartSave",          "Country_Master", "City_Master", "TimeZone",       "Preference",
    "PersonalDetails", "KaliyugaYearDetails", "chartsmaster", "tempBhukthi", "tempdasasandhi",
};

}  // namespace

namespace {

// A creation in progress is done in seconds; one older than this was left by
// a run that was killed, and its temporary file (and SQLite's journal of it)
// can go.
constexpr auto kStaleCreation = std::chrono::minutes(10);

void RemoveStaleCreations(const fs::path& path) {
  fs::path folder = path.parent_path();
  if (folder.empty()) folder = ".";
  const std::string prefix = path.filename().string() + ".new-";
  std::error_code ec;
  const auto now = fs::file_time_type::clock::now();
  for (const auto& entry : fs::directory_iterator(folder, ec)) {
    const std::string name = entry.path().filename().string();
    if (name.rfind(prefix, 0) != 0 || !entry.is_regular_file(ec)) continue;
    const auto written = entry.last_write_time(ec);
    if (!ec && now - written > kStaleCreation) RemoveQuietly(entry.path());
  }
}

}  // namespace

Database::Database(const fs::path& path, const OpenOptions& options) : path_(path) {
  const std::vector<Migration>& migrations = options.migrations.empty() ? SchemaMigrations() : options.migrations;
  CheckSteps(migrations);
  if (!options.readOnly) RemoveStaleCreations(path_);

  std::error_code ec;
  const fs::file_status status = fs::status(path_, ec);
  if (fs::is_directory(status)) throw StoreError(Quoted(path_) + " is a folder, not a database file");
  if (!fs::exists(status)) {
    if (options.readOnly) throw StoreError(Quoted(path_) + " does not exist");
    CreateFile(migrations);
  }

  const int flags = options.readOnly ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE;
  try {
    connection_ = std::make_unique<SQLite::Database>(path_, flags, options.busyTimeoutMs);
  } catch (const SQLite::Exception& e) {
    throw StoreError("Cannot open " + Quoted(path_) + ": " + Reason(e));
  }
  Verify(migrations, options.readOnly);
}

bool Database::ReadOnly() const { return sqlite3_db_readonly(connection_->getHandle(), "main") == 1; }

void Database::Fail(std::string_view action, const SQLite::Exception& e) const {
  throw StoreError("Cannot " + std::string(action) + " in " + Quoted(path_) + ": " + Reason(e));
}

void Database::Write(std::string_view action, const std::function<void(SQLite::Database&)>& body) {
  try {
    SQLite::Transaction transaction(*connection_, SQLite::TransactionBehavior::IMMEDIATE);
    body(*connection_);
    transaction.commit();
  } catch (const SQLite::Exception& e) {
    Fail(action, e);
  }
}

void Database::CreateFile(const std::vector<Migration>& migrations) {
  fs::path folder = path_.parent_path();
  if (folder.empty()) folder = ".";
  if (!fs::is_directory(folder)) {
    throw StoreError("Cannot create " + Quoted(path_) + ": the folder " + Quoted(folder) + " does not exist");
  }
  std::random_device random;
  const fs::path temporary =
      folder / (path_.filename().string() + ".new-" + std::to_string(random()) + std::to_string(random()));
  try {
    {
      SQLite::Database db(temporary, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
      SQLite::Transaction transaction(db);
      SetHeaderInteger(db, "application_id", kApplicationId);
      for (const Migration& step : migrations) step.apply(db);
      SetHeaderInteger(db, "user_version", LatestVersion(migrations));
      transaction.commit();
    }
    // A hard link puts the finished file in place without ever replacing a
    // file that another copy of the program created in the meantime.
    std::error_code linkError;
    fs::create_hard_link(temporary, path_, linkError);
    if (linkError) {
      if (!fs::exists(path_)) {
        // The file system has no hard links: a rename is the next best thing.
        fs::rename(temporary, path_);
        created_ = true;
        return;
      }
    } else {
      created_ = true;
    }
    RemoveQuietly(temporary);
  } catch (const SQLite::Exception& e) {
    RemoveQuietly(temporary);
    throw StoreError("Cannot create " + Quoted(path_) + ": " + Reason(e));
  } catch (const std::exception& e) {
    RemoveQuietly(temporary);
    throw StoreError("Cannot create " + Quoted(path_) + ": " + e.what());
  }
}

void Database::Verify(const std::vector<Migration>& migrations, bool readOnly) {
  const int latest = LatestVersion(migrations);
  try {
    const long long applicationId = HeaderInteger(*connection_, "application_id");
    const long long version = HeaderInteger(*connection_, "user_version");
    if (applicationId != kApplicationId || version < 1) {
      throw StoreError(Quoted(path_) + " is not a Kelvaro database; it is left as it is");
    }
    if (version > latest) {
      throw StoreError(Quoted(path_) + " was written by a newer Kelvaro (schema version " + std::to_string(version) +
                       "; this program knows up to " + std::to_string(latest) + "); it is left as it is");
    }
    {
      SQLite::Statement check(*connection_, "PRAGMA quick_check");
      if (check.executeStep() && check.getColumn(0).getString() != "ok") {
        throw StoreError(Quoted(path_) + " is damaged (" + check.getColumn(0).getString() + "); it is left as it is");
      }
    }
    if (version < latest) {
      if (readOnly) {
        throw StoreError(Quoted(path_) + " needs an upgrade from schema version " + std::to_string(version) + " to " +
                         std::to_string(latest) + ", which a read-only open cannot make");
      }
      Upgrade(migrations, static_cast<int>(version));
    }
    SQLite::Statement table(*connection_, "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE");
    for (const char* name : kTables) {
      table.reset();
      table.bind(1, name);
      table.executeStep();
      if (table.getColumn(0).getInt() != 1) {
        throw StoreError(Quoted(path_) + " is damaged: it has no table " + name + "; it is left as it is");
      }
    }
    version_ = latest;
  } catch (const SQLite::Exception& e) {
    throw StoreError("Cannot open " + Quoted(path_) + ": " + Reason(e));
  }
}

void Database::Upgrade(const std::vector<Migration>& migrations, int from) {
  const int latest = LatestVersion(migrations);
  fs::path backup = path_.string() + ".v" + std::to_string(from) + ".bak";
  for (int n = 2; fs::exists(backup); ++n) {
    backup = path_.string() + ".v" + std::to_string(from) + "-" + std::to_string(n) + ".bak";
  }
  const std::string what =
      "Cannot upgrade " + Quoted(path_) + " from schema version " + std::to_string(from) + " to " + std::to_string(latest);
  try {
    // The transaction holds off every other writer, so the copy below is the
    // file as it stands before the first step.
    SQLite::Transaction transaction(*connection_, SQLite::TransactionBehavior::IMMEDIATE);
    std::error_code copyError;
    fs::copy_file(path_, backup, copyError);
    if (copyError) {
      throw std::runtime_error("the backup " + Quoted(backup) + " cannot be written (" + copyError.message() + ")");
    }
    try {
      for (const Migration& step : migrations) {
        if (step.version > from) step.apply(*connection_);
      }
      SetHeaderInteger(*connection_, "user_version", latest);
      transaction.commit();
    } catch (...) {
      std::error_code ignored;
      fs::remove(backup, ignored);  // nothing changed, so the copy is not needed
      throw;
    }
    backup_ = backup;
  } catch (const SQLite::Exception& e) {
    throw StoreError(what + ": " + Reason(e) + "; the file is left as it was");
  } catch (const std::exception& e) {
    throw StoreError(what + ": " + e.what() + "; the file is left as it was");
  }
}

}  // namespace kelvaro::store
