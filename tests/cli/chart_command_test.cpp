// kelvaro-cli chart: every view of the sample chart, against a database in a
// temporary folder.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/database_folder.h"

namespace kelvaro::cli {
namespace {

using ChartCommand = DatabaseFolder;

TEST_F(ChartCommand, EveryViewAsJson) {
  const Outcome r = RunTool(Sample("chart", {"--json"}));
  ASSERT_EQ(r.status, kExitOk) << r.err;
  const auto j = nlohmann::ordered_json::parse(r.out);
  std::vector<std::string> keys;
  for (const auto& item : j.items()) keys.push_back(item.key());
  EXPECT_EQ(keys, (std::vector<std::string>{"style", "rasi_chart", "navamsa_chart", "bhava_chart", "mshNirayana",
                                            "msh_Bhava", "mshBhavaDetails", "mshVargas", "mshAshtaVarga",
                                            "Lab_DasaBalanceV", "mshDasa", "mshBukti", "mshAntra"}));
  EXPECT_EQ(j["style"], "South");
  // South Rasi cells carry degrees: sign 6 holds Mars 14.39, Gulika, Maandi.
  EXPECT_EQ(j["rasi_chart"]["cells"][5]["text"], "Mar  14.39\r\nGul  29.0\r\nMaa  22.35");
  EXPECT_EQ(j["mshNirayana"].size(), 11u);  // header and ten bodies
  EXPECT_EQ(j["mshNirayana"][3][2], "Capricon");
  EXPECT_EQ(j["mshVargas"].size(), 22u);    // header and 21 charts
  EXPECT_EQ(j["mshAshtaVarga"][13][10], "337");  // the Total row
  EXPECT_EQ(j["mshAshtaVarga"][13][11], "429");
  // Moon in Uttarashada, ruled by the Sun: the Sun's dasa runs at birth.
  EXPECT_EQ(j["mshDasa"][1][0], "Sun");
}

TEST_F(ChartCommand, NorthStyleNumbersTheHouses) {
  const Outcome r = RunTool(Sample("chart", {"--style", "North", "--language", "Sanskrit", "--json"}));
  ASSERT_EQ(r.status, kExitOk) << r.err;
  const auto j = nlohmann::json::parse(r.out);
  EXPECT_EQ(j["rasi_chart"]["frame"], "Frame_NorthBride");
  // Lagna in Libra: house 1 shows sign 7, house 4 sign 10 with the Moon.
  EXPECT_EQ(j["rasi_chart"]["cells"][0]["house_sign"], "7");
  EXPECT_EQ(j["rasi_chart"]["cells"][0]["text"], "Lagna  ");
  EXPECT_EQ(j["rasi_chart"]["cells"][3]["house_sign"], "10");
  EXPECT_EQ(j["rasi_chart"]["cells"][3]["text"], "Cha  ");
}

TEST_F(ChartCommand, BadChoicesAreRefused) {
  for (const auto& args :
       {Sample("chart", {"--style", "West"}), Sample("chart", {"--bhava", "Placidus"}), Sample("chart", {"--days", "365"})}) {
    const Outcome r = RunTool(args);
    EXPECT_EQ(r.status, kExitBadInput) << r.err;
    EXPECT_TRUE(r.out.empty());
  }
}

}  // namespace
}  // namespace kelvaro::cli
