// kelvaro-cli almanac, against a database in a temporary folder.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/database_folder.h"

namespace kelvaro::cli {
namespace {

class AlmanacCommand : public DatabaseFolder {
 protected:
  Outcome Run(std::vector<std::string> args) const {
    args.insert(args.begin(), "almanac");
    args.insert(args.end(), {"--database", Db()});
    return RunTool(args);
  }
};

TEST_F(AlmanacCommand, CityOfTheDatabaseAndTheSamePlaceByNumbers) {
  const Outcome byCity =
      Run({"--date", "14/01/2024", "--city", "Hyderabad (A.P)", "--country", "india", "--json"});
  ASSERT_EQ(byCity.status, kExitOk) << byCity.err;
  const Outcome byNumbers = Run({"--date", "14/01/2024", "--lat", "17N20", "--lon", "78E30", "--tz", "5.5E", "--json"});
  ASSERT_EQ(byNumbers.status, kExitOk) << byNumbers.err;
  EXPECT_EQ(byCity.out, byNumbers.out);
  const auto j = nlohmann::json::parse(byCity.out);
  for (const char* key : {"tithi", "tithi_end", "karanas", "star", "pada", "star_end", "vishaghati", "yoga",
                          "yoga_end", "rahu_kalam", "yamaganda", "gulika_kalam", "horas", "planets"}) {
    EXPECT_TRUE(j.contains(key)) << key;
  }
  EXPECT_EQ(j["tithi"], "Tritiya");
  EXPECT_EQ(j["tithi_end"], "14/01/2024 08:00:59");
  EXPECT_EQ(j["next_tithi_kshaya"], true);
  EXPECT_EQ(j["karanas"].size(), 2u);
  EXPECT_EQ(j["karanas"][1]["end"], j["tithi_end"]);
  EXPECT_EQ(j["planets"].size(), 9u);
  EXPECT_TRUE(j["planets"][8]["nature"].is_null());  // the nodes have no nature
}

// After the kshaya Chaturthi the next day opens on Panchami; the days follow
// one another, each from its own sunrise.
TEST_F(AlmanacCommand, DaysInARowAndTheTextPage) {
  const Outcome r = Run({"--date", "14/01/2024", "--lat", "17N20", "--lon", "78E30", "--tz", "5.5E", "--days", "3",
                         "--json"});
  ASSERT_EQ(r.status, kExitOk) << r.err;
  const auto j = nlohmann::json::parse(r.out);
  ASSERT_EQ(j.size(), 3u);
  EXPECT_EQ(j[1]["date"], "15/01/2024");
  EXPECT_EQ(j[1]["tithi"], "Panchami");
  EXPECT_EQ(j[2]["sunrise"], j[1]["next_sunrise"]);
  const Outcome text = Run({"--date", "14/01/2024", "--lat", "17N20", "--lon", "78E30", "--tz", "5.5E"});
  ASSERT_EQ(text.status, kExitOk) << text.err;
  EXPECT_NE(text.out.find("Next tithi              : Chaturthi until 15/01/2024 05:00:16 (kshaya: at no sunrise)\n"),
            std::string::npos)
      << text.out;
}

TEST_F(AlmanacCommand, BadInputAndDaysWithoutSunrise) {
  struct Row {
    std::vector<std::string> args;
    int status;
    const char* message;
  };
  const std::vector<std::string> numbers = {"--lat", "17N20", "--lon", "78E30", "--tz", "5.5E"};
  auto with = [&](std::vector<std::string> a) {
    a.insert(a.end(), numbers.begin(), numbers.end());
    return a;
  };
  const Row rows[] = {
      {{"--date", "14/01/2024"}, kExitBadInput, "name the place by --city and --country, or by --lat, --lon and --tz"},
      {with({"--date", "14/01/2024", "--city", "Hyderabad (A.P)", "--country", "India"}), kExitBadInput,
       "name the place"},
      {with({"--date", "31/02/2024"}), kExitBadInput, "--date \"31/02/2024\": there is no such day"},
      {with({"--date", "14/01/2024", "--days", "0"}), kExitBadInput, "--days \"0\": must be 1 to 400"},
      {{"--date", "14/01/2024", "--city", "Atlantis", "--country", "India"}, kExitBadInput, "Select City"},
      {{"--date", "14/01/2024", "--city", "Hyderabad (A.P)", "--country", "Ruritania"}, kExitBadInput,
       "Select Country"},
      {{"--date", "21/12/2024", "--lat", "78N13", "--lon", "15E38", "--tz", "1E"}, kExitFailure,
       "The Sun does not both rise and set at this place on 21/12/2024"},
  };
  for (const Row& row : rows) {
    const Outcome r = Run(row.args);
    EXPECT_EQ(r.status, row.status) << r.err;
    EXPECT_NE(r.err.find(row.message), std::string::npos) << r.err;
    EXPECT_EQ(r.out, "");
  }
}

}  // namespace
}  // namespace kelvaro::cli
