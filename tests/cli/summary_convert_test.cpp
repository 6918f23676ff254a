// kelvaro-cli summary and convert, against a database in a temporary folder.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/database_folder.h"
#include "store/chart_store.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/time_zone_master.h"

namespace kelvaro::cli {
namespace {

using SummaryAndConvert = DatabaseFolder;

TEST_F(SummaryAndConvert, SummaryJsonByControlName) {
  const Outcome r = RunTool(Sample("summary", {"--name", "Velnesh", "--city", "Hyderabad (A.P)", "--country", "India",
                                    "--zone-name", "IST", "--json"}));
  ASSERT_EQ(r.status, kExitOk) << r.err;
  const auto j = nlohmann::ordered_json::parse(r.out);
  ASSERT_EQ(j.size(), 30u);
  EXPECT_EQ(j.begin().key(), "txtGName");
  EXPECT_EQ((--j.end()).key(), "txtYogam");
  EXPECT_EQ(j["txtGName"], "Velnesh");
  EXPECT_EQ(j["Txt_BC_Date"], "14 / Jul / 1965");  // the birth form's texts
  EXPECT_EQ(j["txtTimeOfBirth"], "2 : 15  PM");
  EXPECT_EQ(j["txtAyanamsa"], "-23.22.20  (Lahiri)");  // the preferences' ayanamsa
  EXPECT_EQ(j["txtKaliyugaYear"], "5066");
  EXPECT_EQ(j["txtTimeZone"], "IST");
}

TEST_F(SummaryAndConvert, FlagsOverrideThePreferences) {
  const Outcome r = RunTool(Sample("summary", {"--ayanamsa", "Sayana", "--language", "Sanskrit", "--json"}));
  ASSERT_EQ(r.status, kExitOk) << r.err;
  const auto j = nlohmann::json::parse(r.out);
  EXPECT_EQ(j["txtAyanamsa"], "0.0.0  (Sayana)");
  EXPECT_EQ(j["txtRasi"], "Makara");  // the tropical Moon 298.8 is in the tenth sign too
}

TEST_F(SummaryAndConvert, SummaryOfASavedChart) {
  {
    store::Database db(Db());
    const auto india = store::CountryByName(db, "India")->id;
    const auto f = store::testing::SampleChartFields("Velnesh", india, store::ZonesOf(db, india).at(0).sno);
    ASSERT_EQ(store::SaveChart(db, f).id, 1);
  }
  const Outcome saved = RunTool({"summary", "--chart", "1", "--database", Db(), "--json"});
  ASSERT_EQ(saved.status, kExitOk) << saved.err;
  const Outcome flags = RunTool(Sample("summary", {"--json"}));
  const auto a = nlohmann::json::parse(saved.out);
  const auto b = nlohmann::json::parse(flags.out);
  EXPECT_EQ(a["txtGName"], "Velnesh");
  EXPECT_EQ(a["txtCountry"], "India");
  EXPECT_EQ(a["txtTimeZone"], "Asia/Kolkata  (5.5 hrs E)");
  for (const char* key : {"txtist", "txtlmt", "txtIshtaGhati", "txtKLunarDate", "txtSolarDate", "txtStar"}) {
    EXPECT_EQ(a[key], b[key]) << key;
  }
  const Outcome missing = RunTool({"summary", "--chart", "99", "--database", Db()});
  EXPECT_EQ(missing.status, kExitBadInput);
}

TEST_F(SummaryAndConvert, SummaryBadInput) {
  EXPECT_EQ(RunTool(Sample("summary", {"--language", "Hindi"})).status, kExitBadInput);
  std::vector<std::string> args = Sample("summary", {});
  args[2] = "31/02/1965";
  const Outcome r = RunTool(args);
  EXPECT_EQ(r.status, kExitBadInput);
  EXPECT_NE(r.err.find("--date \"31/02/1965\""), std::string::npos) << r.err;
  EXPECT_TRUE(r.out.empty());
  // NameThatIsNotUtf8IsBadInput.
  const Outcome name = RunTool(Sample("summary", {"--name", "Ra\xFFvi"}));
  EXPECT_EQ(name.status, kExitBadInput);
  EXPECT_EQ(name.err, "kelvaro-cli: --name \"Ra\\xFFvi\": not valid UTF-8 text\n");
}

TEST_F(SummaryAndConvert, ConvertBothWays) {
  const std::vector<std::string> place = {"--city", "Hyderabad (A.P)", "--country", "India", "--database", Db()};
  auto with = [&](std::vector<std::string> a) {
    a.insert(a.end(), place.begin(), place.end());
    return a;
  };
  // Sunrise 05:50: 14:15 is 505 minutes later, 21.0417 ghatis.
  const Outcome to = RunTool(with({"convert", "to-ghati", "--date", "14/07/1965", "--time", "14:15"}));
  ASSERT_EQ(to.status, kExitOk) << to.err;
  EXPECT_EQ(to.out, "Ishta Ghati : 21:2:30\n");
  // 21 ghatis 2 vighatis: 8 h 24 min and 48 s after 05:50.
  const Outcome back =
      RunTool(with({"convert", "to-time", "--date", "14/07/1965", "--ghati", "21", "--vighati", "2"}));
  ASSERT_EQ(back.status, kExitOk) << back.err;
  EXPECT_EQ(back.out, "Birth Time : 02:14 PM\n");
  struct Case {
    std::vector<std::string> args;
    const char* message;
  } cases[] = {
      {with({"convert", "to-ghati", "--date", "14/07/1799", "--time", "14:15"}), "Enter Year Between 1800 and 3000"},
      {with({"convert", "to-ghati", "--date", "31/06/1965", "--time", "14:15"}), "Enter Correct Date"},
      // ToTimeOfANonexistentDate: refused as to-ghati refuses it, not a failure.
      {with({"convert", "to-time", "--date", "31/02/1965", "--ghati", "21", "--vighati", "2"}), "Enter Correct Date"},
      {with({"convert", "to-ghati", "--date", "14/07/1965", "--time", "25:15"}), "Enter Correct Time"},
      {with({"convert", "to-time", "--date", "14/07/1965", "--ghati", "61", "--vighati", "0"}), "Enter Correct Time"},
      {{"convert", "to-ghati", "--date", "14/07/1965", "--time", "14:15", "--country", "India", "--city", "Nowhere",
        "--database", Db()},
       "Select City"},
      {{"convert", "to-ghati", "--date", "14/07/1965", "--time", "14:15", "--database", Db()}, "Select Country"},
      {with({"convert", "to-time", "--date", "14/07/1965", "--ghati", "21", "--vighati", "2", "--zone", "Asia/Dhaka"}),
       "Select Timezone"},  // a zone of another country
  };
  for (const auto& c : cases) {
    const Outcome r = RunTool(c.args);
    EXPECT_EQ(r.status, kExitBadInput) << c.message;
    EXPECT_EQ(r.err, std::string("kelvaro-cli: ") + c.message + "\n");
  }
}

}  // namespace
}  // namespace kelvaro::cli
