// kelvaro-cli beyond the polar circles: the words where the Sun does not rise
// or set, the true date of a sunset after midnight, Gulika and Maandi left
// out, and batches that no longer fail there.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/cli.h"
#include "cli/run_tool.h"
#include "store/store_test_support.h"

namespace kelvaro::cli {
namespace {

class HighLatitudeTool : public ::testing::Test {
 protected:
  std::string Db() const { return (folder_ / "DBMirvaneBasic.db").string(); }
  store::testing::TempFolder folder_;
};

std::vector<std::string> Birth(const std::string& command, const std::string& date, const std::string& lat,
                               const std::string& lon, const std::string& tz) {
  return {command, "--date", date, "--time", "12:00", "--lat", lat, "--lon", lon, "--tz", tz};
}

TEST(HighLatitudeCli, SunThatDoesNotRiseIsSaidInTheJson) {
  const struct {
    const char* date;
    const char* words;
  } cases[] = {{"21/12/2000", "Sun does not rise"}, {"21/06/2000", "Sun does not set"}};
  for (const auto& c : cases) {
    std::vector<std::string> args = Birth("positions", c.date, "70N00", "25E00", "1E");
    args.push_back("--json");
    const Outcome r = RunTool(args);
    ASSERT_EQ(r.status, kExitOk) << r.err;
    const auto j = nlohmann::json::parse(r.out);
    EXPECT_EQ(j["sunrise"], c.words) << c.date;
    EXPECT_EQ(j["sunset"], c.words) << c.date;
    for (const char* key : {"day_or_night", "gulika", "maandi"}) EXPECT_TRUE(j[key].is_null()) << key;
    EXPECT_TRUE(j["rasi"]["gulika"].is_null());
    EXPECT_TRUE(j["rasi"]["maandi"].is_null());
    EXPECT_TRUE(j["rasi"]["moon"].is_number());
  }
}

// Reykjavik, 15 Jun 2000: the Sun sets a minute or so after midnight.
TEST(HighLatitudeCli, ReykjavikMidsummerNoonIsNotNight) {
  std::vector<std::string> args = Birth("positions", "15/06/2000", "64N08", "21W56", "0E");
  args.push_back("--json");
  const Outcome r = RunTool(args);
  ASSERT_EQ(r.status, kExitOk) << r.err;
  const auto j = nlohmann::json::parse(r.out);
  EXPECT_EQ(j["day_or_night"], "Day");
  EXPECT_EQ(j["sunset"].get<std::string>().substr(0, 15), "16/06/2000 00:0");
  EXPECT_TRUE(j["gulika"].is_number());
  EXPECT_EQ(r.out.find("1899"), std::string::npos);
}

TEST_F(HighLatitudeTool, SummaryAndReportSayItInWords) {
  std::vector<std::string> summary = Birth("summary", "21/12/2000", "70N00", "25E00", "1E");
  summary.insert(summary.end(), {"--database", Db(), "--json"});
  const Outcome s = RunTool(summary);
  ASSERT_EQ(s.status, kExitOk) << s.err;
  const auto j = nlohmann::json::parse(s.out);
  EXPECT_EQ(j["txtSunRise"], "Sun does not rise");
  EXPECT_EQ(j["txtSunSet"], "Sun does not rise");
  EXPECT_EQ(j["txtIshtaGhati"], "Sun does not rise");

  std::vector<std::string> report = Birth("report", "21/12/2000", "70N00", "25E00", "1E");
  report.insert(report.end(), {"--database", Db()});
  const Outcome r = RunTool(report);
  ASSERT_EQ(r.status, kExitOk) << r.err;
  EXPECT_NE(r.out.find("     Sun Rise              : Sun does not rise\r\n"), std::string::npos);
  EXPECT_EQ(r.out.find("Gul"), std::string::npos);
  EXPECT_EQ(r.out.find("Maa"), std::string::npos);
}

TEST_F(HighLatitudeTool, ConverterWithoutSunriseSaysWhy) {
  const Outcome r = RunTool({"convert", "to-ghati", "--date", "21/12/2000", "--time", "12:00", "--city",
                             "Longyearbyen", "--country", "Svalbard & Jan Mayen", "--database", Db()});
  EXPECT_EQ(r.status, kExitFailure);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "kelvaro-cli: No sunrise at Longyearbyen on 21/Dec/2000: Sun does not rise\n");
}

// Far south in July 2500 the night from the carried-over sunset of 1899 once
// overflowed a 32-bit count of seconds and rejected the row.
TEST(HighLatitudeCli, NoOverflowAtHighLatitude) {
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() /
      ("kelvaro_hilat_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + ".csv");
  {
    std::ofstream out(path);
    out << "date,time,lat,lon,tz,ayanamsa\n";
    for (const char* lat : {"70S00", "75S00", "80S00", "85S00", "89S00", "90S00", "90N00"}) {
      out << "10/07/2500,12:00," << lat << ",25E00,1E,Lahiri\n";
    }
  }
  const Outcome r = RunTool({"positions", "--batch", path.string()});
  std::filesystem::remove(path);
  EXPECT_EQ(r.status, kExitOk);
  EXPECT_EQ(r.err, "");
  EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), 7);
}

}  // namespace
}  // namespace kelvaro::cli
