// kelvaro-cli places find, zone, and --tz auto on the commands that calculate.
#include <gtest/gtest.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>

#include "../store/store_test_support.h"
#include "run_tool.h"
#include "support/test_data.h"

namespace kelvaro::cli {
namespace {

class PlacesAndZones : public ::testing::Test {
 protected:
  // One database for the suite: making one loads the whole atlas.
  static void SetUpTestSuite() {
    folder_ = std::make_unique<store::testing::TempFolder>();
    database_ = (*folder_ / "DBMirvaneBasic.db").string();
  }
  static void TearDownTestSuite() { folder_.reset(); }
  static Outcome Run(std::vector<std::string> args) {
    args.push_back("--database");
    args.push_back(database_);
    return RunTool(std::move(args));
  }
  static std::unique_ptr<store::testing::TempFolder> folder_;
  static std::string database_;
};
std::unique_ptr<store::testing::TempFolder> PlacesAndZones::folder_;
std::string PlacesAndZones::database_;

// The rows of tests/data/cli/zone_json.txt.
TEST_F(PlacesAndZones, ZoneJson) {
  const auto rows = kelvaro::testing::TestDataTable("cli/zone_json.txt");
  ASSERT_EQ(rows.size(), 5u);
  for (const auto& c : rows) {
    ASSERT_EQ(c.size(), 8u);
    SCOPED_TRACE(c[1] + " " + c[0]);
    std::vector<std::string> args = {"zone", "--date", c[1], "--time", c[2], "--json"};
    std::istringstream place(c[0]);
    for (std::string flag; std::getline(place, flag, ';');) args.push_back(flag);
    const Outcome r = Run(args);
    ASSERT_EQ(r.status, kExitOk) << r.err;
    const auto j = nlohmann::json::parse(r.out);
    EXPECT_NEAR(j["offset_hours"].get<double>(), std::stod(c[3]), 1e-9);
    EXPECT_EQ(j["tz"], c[4]);
    EXPECT_EQ(j["kind"], c[5]);
    EXPECT_EQ(j["abbreviation"], c[6]);
    EXPECT_EQ(j["ambiguous"], c[7] == "ambiguous");
    EXPECT_EQ(j["nonexistent"], c[7] == "nonexistent");
  }
}

TEST_F(PlacesAndZones, ZoneTextAndItsRefusals) {
  const Outcome war = Run({"zone", "--city", "kolkata", "--country", "india", "--date", "14/07/1943", "--time", "12:00"});
  ASSERT_EQ(war.status, kExitOk) << war.err;
  EXPECT_NE(war.out.find("Asia/Kolkata: +6:30 on 14/07/1943 (war time)\n"), std::string::npos) << war.out;

  struct Refusal {
    std::vector<std::string> args;
    const char* words;
    const char* date = "14/07/1943";
  };
  const Refusal refusals[] = {
      {{"--city", "Albany", "--country", "United States"}, "Albany, New York; Albany, Georgia"},
      {{"--city", "Nowhere Town", "--country", "India"}, "no such place in India"},
      {{"--city", "Kolkata", "--country", "Atlantis"}, "No Such Country Exists"},
      {{"--zone-id", "Asia/Hyderabad", "--lat", "17N20", "--lon", "78E30"}, "no such zone"},
      {{"--zone-id", "Asia/Kolkata", "--lat", "17N20"}, "--lon: is required with --zone-id"},
      {{"--city", "Kolkata"}, "--country: is required"},
      {{"--city", "Kolkata", "--country", "India"}, "--date \"31/02/1943\": there is no such day", "31/02/1943"},
  };
  for (const Refusal& c : refusals) {
    std::vector<std::string> args = {"zone", "--date", c.date, "--time", "12:00"};
    args.insert(args.end(), c.args.begin(), c.args.end());
    const Outcome r = Run(args);
    EXPECT_EQ(r.status, kExitBadInput) << c.words;
    EXPECT_NE(r.err.find(c.words), std::string::npos) << r.err;
  }
}

TEST_F(PlacesAndZones, PlacesFind) {
  const Outcome text = Run({"places", "find", "Hyderabad"});
  ASSERT_EQ(text.status, kExitOk) << text.err;
  EXPECT_NE(text.out.find("Hyderabad, Telangana  India  17.3840 N, 78.4564 E  Asia/Kolkata\n"), std::string::npos)
      << text.out;
  EXPECT_NE(text.out.find("Hyderabad, Sindh  Pakistan  25.3924 N, 68.3737 E  Asia/Karachi\n"), std::string::npos);

  const Outcome json = Run({"places", "find", "hyderabad", "--country", "Pakistan", "--json"});
  ASSERT_EQ(json.status, kExitOk) << json.err;
  const auto j = nlohmann::json::parse(json.out);
  ASSERT_EQ(j.size(), 1u);
  EXPECT_EQ(j[0]["region"], "Sindh");
  EXPECT_EQ(j[0]["zone_id"], "Asia/Karachi");
  EXPECT_EQ(j[0]["source"], "atlas");

  EXPECT_EQ(Run({"places", "find", "Hyderabad", "--country", "Atlantis"}).status, kExitBadInput);
  EXPECT_EQ(Run({"places", "find", "Qqqzx"}).status, kExitBadInput);
  EXPECT_EQ(Run({"places", "find", "Qqqzx", "--json"}).out, "[]\n");
}

// --tz auto computes with the offset of the rules and says why; the moment in
// Greenwich time is the clock time less that offset.
TEST_F(PlacesAndZones, TzAutoInTheSummaryAndTheReport) {
  const Outcome summary = Run({"summary", "--date", "14/07/1943", "--time", "12:00", "--tz", "auto", "--city",
                               "Kolkata", "--country", "India", "--json"});
  ASSERT_EQ(summary.status, kExitOk) << summary.err;
  const auto j = nlohmann::json::parse(summary.out);
  EXPECT_EQ(j["txtgmt"], "14/Jul/1943 05:30 AM");
  EXPECT_EQ(j["txtLatutude"], "22 34 N");
  EXPECT_EQ(j["txtClockOffset"], "Asia/Kolkata: +6:30 on 14/07/1943 (war time)");

  const Outcome given = Run({"summary", "--date", "14/07/1965", "--time", "14:15", "--lat", "17N20", "--lon", "78E30",
                             "--tz", "5.5E", "--json"});
  ASSERT_EQ(given.status, kExitOk) << given.err;
  EXPECT_FALSE(nlohmann::json::parse(given.out).contains("txtClockOffset"));

  const Outcome report = Run({"report", "--date", "14/07/1943", "--time", "12:00", "--tz", "auto", "--city", "Kolkata",
                              "--country", "India"});
  ASSERT_EQ(report.status, kExitOk) << report.err;
  EXPECT_NE(report.out.find(": Asia/Kolkata: +6:30 on 14/07/1943 (war time)\r\n"), std::string::npos);

  const Outcome noPlace = Run({"chart", "--date", "14/07/1943", "--time", "12:00", "--tz", "auto"});
  EXPECT_EQ(noPlace.status, kExitBadInput);
  EXPECT_NE(noPlace.err.find("--lat is required"), std::string::npos) << noPlace.err;
}

// positions with --tz auto gives what the offset and the place it found give
// when typed in, and says why.
TEST_F(PlacesAndZones, TzAutoInPositions) {
  const Outcome found = Run({"positions", "--date", "14/07/1943", "--time", "12:00", "--tz", "auto", "--city",
                             "Kolkata", "--country", "India", "--json"});
  ASSERT_EQ(found.status, kExitOk) << found.err;
  const Outcome typed = RunTool({"positions", "--date", "14/07/1943", "--time", "12:00", "--lat", "22N34", "--lon",
                                 "88E22", "--tz", "6.5E", "--json"});
  ASSERT_EQ(typed.status, kExitOk) << typed.err;
  auto j = nlohmann::json::parse(found.out);
  EXPECT_EQ(j["clock_offset"], "Asia/Kolkata: +6:30 on 14/07/1943 (war time)");
  j.erase("clock_offset");
  EXPECT_EQ(j, nlohmann::json::parse(typed.out));

  // 5:14 exactly at 78 30 E, not the 5.2333 hours of the flag's text.
  const Outcome lmt = RunTool({"positions", "--date", "14/07/1850", "--time", "12:00", "--lat", "17N20", "--lon",
                               "78E30", "--tz", "auto", "--zone-id", "Asia/Kolkata", "--json"});
  ASSERT_EQ(lmt.status, kExitOk) << lmt.err;
  const Outcome exact = RunTool({"positions", "--date", "14/07/1850", "--time", "12:00", "--lat", "17N20", "--lon",
                                 "78E30", "--tz", "5.23333333333333E", "--json"});
  ASSERT_EQ(exact.status, kExitOk) << exact.err;
  EXPECT_EQ(nlohmann::json::parse(lmt.out)["moon"], nlohmann::json::parse(exact.out)["moon"]);
}

}  // namespace
}  // namespace kelvaro::cli
