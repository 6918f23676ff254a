// kelvaro-cli positions: the JSON contract, the table, bad input and batches.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "astronomy/find_planet_position.h"
#include "cli/cli.h"
#include "cli/database_folder.h"

namespace kelvaro::cli {
namespace {

std::vector<std::string> Sample(const std::vector<std::string>& extra = {}) { return SampleBirth("positions", extra); }

// The sample's arguments with one flag's value replaced.
std::vector<std::string> SampleWith(const std::string& flag, const std::string& value) {
  std::vector<std::string> a = Sample();
  *(std::find(a.begin(), a.end(), flag) + 1) = value;
  return a;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

TEST(PositionsCommand, JsonCarriesEveryKeyInOrder) {
  const Outcome r = RunTool(Sample({"--ayanamsa", "Lahiri", "--json"}));
  ASSERT_EQ(r.status, 0) << r.err;
  const auto j = nlohmann::ordered_json::parse(r.out);
  std::vector<std::string> keys;
  for (const auto& item : j.items()) keys.push_back(item.key());
  EXPECT_EQ(keys, (std::vector<std::string>{"lagna", "sun", "moon", "mars", "mercury", "jupiter", "venus", "saturn",
                                            "rahu", "ketu", "midheaven", "ayanamsa", "sunrise", "sunset",
                                            "day_or_night", "gulika", "maandi", "rasi"}));
  // The numbers are the facade's, to the last digit.
  ClsFindPlanetPosition f;
  f.FindFixValues(OleDate::FromParts(1965, 7, 14, 14, 15), "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Lahiri", 0, 0);
  EXPECT_EQ(j["moon"].get<double>(), f.FnFindMoonPosition());
  EXPECT_EQ(j["lagna"].get<double>(), f.FnFindLagnaPosition());
  EXPECT_EQ(j["ayanamsa"].get<double>(), f.FnFindAyanamsa());
  EXPECT_EQ(j["midheaven"].get<double>(), f.FnFindMidHeaven());
  EXPECT_EQ(j["day_or_night"], "Day");
  EXPECT_EQ(j["sunrise"].get<std::string>().substr(0, 11), "14/07/1965 ");
  EXPECT_EQ(j["sunrise"].get<std::string>().size(), 16u);  // DD/MM/YYYY HH:MM
  EXPECT_EQ(j["rasi"].size(), 12u);
  EXPECT_EQ(j["rasi"]["moon"], 10);
  EXPECT_EQ(j["rasi"]["gulika"], 6);
}

TEST(PositionsCommand, TableShowsDegreesAndRasiNames) {
  const Outcome r = RunTool(Sample());
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("Moon          275°27'22\"  Capricon"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("Ayanamsa      -23°22'20\"  (Lahiri)"), std::string::npos) << r.out;
}

TEST(PositionsCommand, BadInputNamesTheFieldAndPrintsNothing) {
  struct Case {
    std::vector<std::string> args;
    std::string message;
  } cases[] = {
      {SampleWith("--date", "31/02/1965"), "--date \"31/02/1965\": there is no such day"},
      {SampleWith("--time", "14:75"), "--time \"14:75\": minute must be 0 to 59"},
      {SampleWith("--lat", "95N00"), "--lat \"95N00\": degrees must be 0 to 90"},
      // The birth form's years, everywhere.
      {SampleWith("--date", "31/12/1799"), "--date \"31/12/1799\": year must be 1800 to 3000"},
      {SampleWith("--date", "01/01/3001"), "--date \"01/01/3001\": year must be 1800 to 3000"},
      // NumbersTooLargeAreNotReadAsZero.
      {SampleWith("--lat", "99999999999N00"), "--lat \"99999999999N00\": degrees must be 0 to 90"},
      {SampleWith("--lon", "78E4294967296"), "--lon \"78E4294967296\": minutes must be 0 to 59"},
      {SampleWith("--lon", "78X30"), "--lon \"78X30\""},
      {SampleWith("--tz", "15E"), "--tz \"15E\": a zone is at most 14 hours from Greenwich"},
      {Sample({"--ayanamsa", "lahiri"}), "--ayanamsa \"lahiri\""},
      // A value is quoted cut short and with its control characters escaped.
      {Sample({"--ayanamsa", "Lahiri\n" + std::string(100, 'x')}), "--ayanamsa \"Lahiri\\n" + std::string(53, 'x') + "...\""},
      {Sample({"--ayanamsa", "Custom"}), "--zero-year"},
      {Sample({"--ayanamsa", "Custom", "--zero-year", "abc", "--progress", "50"}), "--zero-year \"abc\""},
  };
  for (const auto& c : cases) {
    const Outcome r = RunTool(c.args);
    EXPECT_EQ(r.status, kExitBadInput) << c.message;
    EXPECT_TRUE(r.out.empty()) << c.message;
    EXPECT_NE(r.err.find(c.message), std::string::npos) << r.err;
    EXPECT_EQ(Lines(r.err).size(), 1u) << r.err;
  }
}

TEST(PositionsCommand, CustomAyanamsaTakesItsYearAndProgress) {
  const Outcome r = RunTool(Sample({"--ayanamsa", "Custom", "--zero-year", "397", "--progress", "50.2388475", "--json"}));
  ASSERT_EQ(r.status, 0) << r.err;
  ClsFindPlanetPosition f;
  f.FindFixValues(OleDate::FromParts(1965, 7, 14, 14, 15), "N", 17, 20, "E", 78, 30, 5.5, "E", 0, "Custom", 397,
                  50.2388475);
  EXPECT_EQ(nlohmann::json::parse(r.out)["ayanamsa"].get<double>(), f.FnFindAyanamsa());
}

class BatchFile : public DatabaseFolder {
 protected:
  std::filesystem::path path_ = folder_ / "births.csv";
  void Write(const std::string& text) { std::ofstream(path_) << text; }
};

TEST_F(BatchFile, GoodRowsPrintInOrderAndBadRowsAreCounted) {
  Write(
      "date,time,lat,lon,tz,ayanamsa\n"
      "14/07/1965,14:15,17N20,78E30,5.5E,Lahiri\n"
      "31/02/1965,14:15,17N20,78E30,5.5E,Lahiri\n"
      "14/07/1965,14:15,17N20\n"
      "01/01/2000,00:00,51N30,0W07,0E,KP\r\n"
      "01/01/0100,00:00,51N30,0W07,0E,KP\n"
      "\n"
      "14/07/1965,14:15,17N20,78E30,5.5E,Sayana\n");
  const Outcome r = RunTool({"positions", "--batch", path_.string()});
  EXPECT_EQ(r.status, kExitBadInput);
  const auto out = Lines(r.out);
  ASSERT_EQ(out.size(), 3u);
  // Order kept: the Lahiri row, the same answer as the sample asked alone,
  // then the KP row of 2000 and the Sayana row.
  EXPECT_EQ(nlohmann::json::parse(out[0]), nlohmann::json::parse(RunTool(SampleBirth("positions", {"--json"})).out));
  EXPECT_NEAR(nlohmann::json::parse(out[1])["ayanamsa"].get<double>(), -23.76, 0.02);
  EXPECT_EQ(nlohmann::json::parse(out[2])["ayanamsa"].get<double>(), 0.0);
  const auto err = Lines(r.err);
  ASSERT_EQ(err.size(), 4u);
  EXPECT_NE(err[0].find("row 3: date \"31/02/1965\""), std::string::npos) << err[0];
  EXPECT_NE(err[1].find("row 4: expected 6 fields, found 3"), std::string::npos) << err[1];
  EXPECT_NE(err[2].find("row 6: date \"01/01/0100\": year must be 1800 to 3000"), std::string::npos) << err[2];
  EXPECT_NE(err[3].find("3 of 6 rows rejected"), std::string::npos) << err[3];
}

// A byte order mark before the header is read past and another header is
// refused; a folder is named as one and a missing file said; a line with no
// end (an endless input) stops the batch at the limit, after the rows before
// it have printed.
TEST_F(BatchFile, HeaderFileAndEndlessLine) {
  Write("\xEF\xBB\xBF" "date,time,lat,lon,tz,ayanamsa\r\n14/07/1965,14:15,17N20,78E30,5.5E,Lahiri\r\n");
  const Outcome bom = RunTool({"positions", "--batch", path_.string()});
  EXPECT_EQ(bom.status, kExitOk) << bom.err;
  EXPECT_EQ(Lines(bom.out).size(), 1u);
  Write("date,time,latitude,lon,tz,ayanamsa\n14/07/1965,14:15,17N20,78E30,5.5E,Lahiri\n");
  const Outcome header = RunTool({"positions", "--batch", path_.string()});
  EXPECT_EQ(header.status, kExitBadInput);
  EXPECT_TRUE(header.out.empty());
  EXPECT_NE(header.err.find("header"), std::string::npos);

  const Outcome folder = RunTool({"positions", "--batch", std::filesystem::temp_directory_path().string()});
  EXPECT_EQ(folder.status, kExitFailure);
  EXPECT_NE(folder.err.find("is a folder, not a file"), std::string::npos) << folder.err;
  const Outcome missing = RunTool({"positions", "--batch", (path_.string() + ".none")});
  EXPECT_EQ(missing.status, kExitFailure);
  EXPECT_NE(missing.err.find("cannot open"), std::string::npos);

  Write("date,time,lat,lon,tz,ayanamsa\n14/07/1965,14:15,17N20,78E30,5.5E,Lahiri\n" + std::string(10000, '\0'));
  const Outcome endless = RunTool({"positions", "--batch", path_.string()});
  EXPECT_EQ(endless.status, kExitBadInput);
  EXPECT_EQ(Lines(endless.out).size(), 1u);
  EXPECT_NE(endless.err.find("row 3 is longer than 4096 characters"), std::string::npos) << endless.err;
}

}  // namespace
}  // namespace kelvaro::cli
