#pragma once
// A new database in the temporary folder, removed at the end, so that the
// benchmarks read master data the way the program reads it.
#include <filesystem>
#include <random>
#include <string>

#include "store/database.h"

namespace kelvaro::bench {

class TemporaryDatabase {
 public:
  TemporaryDatabase()
      : folder_(std::filesystem::temp_directory_path() / ("kelvaro-bench-" + std::to_string(std::random_device()()))),
        db_((std::filesystem::create_directories(folder_), folder_ / "DBMirvaneBasic.db")) {}
  ~TemporaryDatabase() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  store::Database& Db() { return db_; }

 private:
  std::filesystem::path folder_;
  store::Database db_;
};

}  // namespace kelvaro::bench
