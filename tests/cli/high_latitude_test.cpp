// kelvaro-cli where the Sun does not rise: the words and the nulls.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cli/cli.h"
#include "cli/run_tool.h"

namespace kelvaro::cli {
namespace {

TEST(HighLatitudeCli, SunThatDoesNotRiseIsSaid) {
  const Outcome r = RunTool({"positions", "--date", "21/12/2000", "--time", "12:00", "--lat", "70N00", "--lon",
                             "25E00", "--tz", "1E", "--json"});
  ASSERT_EQ(r.status, kExitOk) << r.err;
  const auto j = nlohmann::json::parse(r.out);
  EXPECT_EQ(j["sunrise"], "Sun does not rise");
  EXPECT_EQ(j["sunset"], "Sun does not rise");
  for (const auto& v : {j["day_or_night"], j["gulika"], j["maandi"], j["rasi"]["gulika"], j["rasi"]["maandi"]}) {
    EXPECT_TRUE(v.is_null());
  }
}

}  // namespace
}  // namespace kelvaro::cli
