#pragma once
// What the commands that read or write a database share in their tests: a
// fresh folder for each test with the database file in it, and the sample
// birth aimed at that database.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/run_tool.h"
#include "store/store_test_support.h"

namespace kelvaro::cli {

class DatabaseFolder : public ::testing::Test {
 protected:
  std::string Db() const { return (folder_ / "DBMirvaneBasic.db").string(); }
  std::string Path(const char* name) const { return (folder_ / name).string(); }

  // `command` on the sample birth, then `extra`, on the folder's database.
  std::vector<std::string> Sample(const std::string& command, std::vector<std::string> extra) const {
    extra.insert(extra.end(), {"--database", Db()});
    return SampleBirth(command, extra);
  }

  store::testing::TempFolder folder_;
};

}  // namespace kelvaro::cli
