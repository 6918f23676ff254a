#pragma once
// Database: the one connection to DBMirvaneBasic.db.
//
// Opening a path that does not exist builds the whole file (schema and seed
// data) in a temporary file beside it and moves it into place only when it is
// complete. Opening an existing file checks that it is a Kelvaro database of a
// version this program knows, and upgrades an older one step by step after
// copying it to a backup beside it. A foreign, damaged, locked or read-only
// file gives a StoreError that names the file; nothing is overwritten.
//
// Every write of the store goes through Write(): one transaction, rolled back
// as a whole when any statement fails.
#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdint>
#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro::store {

// One step of the schema: brings a file from version `version - 1` to
// `version`, inside the transaction of the upgrade.
struct Migration {
  int version = 0;
  std::function<void(SQLite::Database&)> apply;
};

struct OpenOptions {
  // Opens the file for reading only; every write then fails with a message
  // naming the file. A file that would need an upgrade is refused.
  bool readOnly = false;
  // How long to wait for another program's lock before giving up.
  int busyTimeoutMs = 2000;
  // The schema steps; empty means the program's own (SchemaMigrations()).
  std::vector<Migration> migrations;
};

class Database {
 public:
  // "KLVR" in the file header's application id, so that a file of another
  // program is never taken for ours.
  static constexpr std::int32_t kApplicationId = 0x4B4C5652;

  explicit Database(const std::filesystem::path& path, const OpenOptions& options = {});

  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  int SchemaVersion() const { return version_; }
  bool ReadOnly() const;
  bool Created() const { return created_; }  // this open made the file
  // The copy made before an upgrade at this open; empty when there was none.
  const std::filesystem::path& BackupPath() const { return backup_; }

  SQLite::Database& Connection() { return *connection_; }

  // Runs `body` in one transaction; commits when it returns, rolls back when
  // it throws. A database failure becomes a StoreError that names the file
  // and says what was being done (`action`, as "save the chart").
  void Write(std::string_view action, const std::function<void(SQLite::Database&)>& body);

  // Runs a read; a database failure becomes a StoreError naming the file.
  template <class Body>
  auto Read(std::string_view action, Body&& body) -> decltype(body(std::declval<SQLite::Database&>())) {
    try {
      return body(*connection_);
    } catch (const SQLite::Exception& e) {
      Fail(action, e);
    }
  }

  // The StoreError for a failed database call, with the file's name.
  [[noreturn]] void Fail(std::string_view action, const SQLite::Exception& e) const;

 private:
  void CreateFile(const std::vector<Migration>& migrations);
  void Verify(const std::vector<Migration>& migrations, bool readOnly);
  void Upgrade(const std::vector<Migration>& migrations, int from);

  std::filesystem::path path_;
  std::unique_ptr<SQLite::Database> connection_;
  int version_ = 0;
  bool created_ = false;
  std::filesystem::path backup_;
};

// The program's schema steps, oldest first; the last one's version is the
// version of a file this program writes.
const std::vector<Migration>& SchemaMigrations();

}  // namespace kelvaro::store
