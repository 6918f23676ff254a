// kelvaro-cli charts, places and prefs, run in-process against real database
// files in a fresh folder per test.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/cli.h"
#include "cli/database_folder.h"
#include "store/chart_store.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/time_zone_master.h"
#include "store/store_test_support.h"

namespace kelvaro::cli {
namespace {

using store::testing::FileBytes;

// "     7  Velnesh~14-Jul-1965\n" for each chart: the number right-aligned in six columns.
std::string ChartLines(const std::vector<std::pair<std::int64_t, std::string>>& rows) {
  std::ostringstream out;
  for (const auto& [sno, name] : rows) out << std::setw(6) << sno << "  " << name << "\n";
  return out.str();
}

bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

class StoreCommands : public DatabaseFolder {
 protected:
  // Saves a chart through the store, as the birth form would.
  std::int64_t Save(const std::string& name, const std::string& gender, int hour) {
    store::Database db(Db());
    const auto india = store::CountryByName(db, "India")->id;
    store::ChartFields f = store::testing::SampleChartFields(name, india, store::ZonesOf(db, india).at(0).sno);
    f.gender = gender;
    f.hour = hour;
    return store::SaveChart(db, f).id;
  }
};

TEST_F(StoreCommands, PlacesOfTheSampleChartAndAnUnknownCountry) {
  const Outcome countries = RunTool({"places", "countries", "--database", Db()});
  ASSERT_EQ(countries.status, kExitOk) << countries.err;
  EXPECT_TRUE(Contains(countries.out, "  India\n"));

  const Outcome cities = RunTool({"places", "cities", "india", "--database", Db()});
  ASSERT_EQ(cities.status, kExitOk) << cities.err;
  EXPECT_TRUE(Contains(cities.out, "Hyderabad (A.P)  ")) << cities.out;
  EXPECT_TRUE(Contains(cities.out, "  17 20 N, 78 30 E\n")) << cities.out;
  EXPECT_TRUE(Contains(cities.out, "Kolkata")) << cities.out;

  const Outcome zones = RunTool({"places", "zones", "India", "--database", Db()});
  ASSERT_EQ(zones.status, kExitOk) << zones.err;
  EXPECT_TRUE(Contains(zones.out, "  Asia/Kolkata  5.5 E\n")) << zones.out;
  EXPECT_EQ(std::count(zones.out.begin(), zones.out.end(), '\n'), 1);

  const Outcome json = RunTool({"places", "zones", "India", "--json", "--database", Db()});
  ASSERT_EQ(json.status, kExitOk) << json.err;
  const auto j = nlohmann::json::parse(json.out);
  ASSERT_EQ(j.size(), 1u);
  EXPECT_EQ(j[0]["place"], "Asia/Kolkata");
  EXPECT_EQ(j[0]["time_difference"], 5.5);
  EXPECT_EQ(j[0]["direction"], "E");

  // A country by its id finds the same zones.
  store::Database db(Db());
  const auto india = std::to_string(store::CountryByName(db, "India")->id);
  EXPECT_EQ(RunTool({"places", "zones", india, "--database", Db()}).out, zones.out);
  // An unknown country is bad input.
  for (const char* what : {"cities", "zones"}) {
    const Outcome r = RunTool({"places", what, "Atlantis", "--database", Db()});
    EXPECT_EQ(r.status, kExitBadInput) << what;
    EXPECT_TRUE(Contains(r.err, "No Such Country Exists")) << r.err;
    EXPECT_TRUE(r.out.empty());
  }
}

TEST_F(StoreCommands, ChartsListShowDelete) {
  const auto velnesh = Save("Velnesh", "Male", 14);
  const auto asha = Save("Asha", "Female", 12);

  const Outcome list = RunTool({"charts", "list", "--database", Db()});
  ASSERT_EQ(list.status, kExitOk) << list.err;
  EXPECT_EQ(list.out, ChartLines({{asha, "Asha~14-Jul-1965"}, {velnesh, "Velnesh~14-Jul-1965"}}));
  const Outcome female = RunTool({"charts", "list", "--filter", "Female", "--database", Db()});
  EXPECT_EQ(female.out, ChartLines({{asha, "Asha~14-Jul-1965"}}));

  const Outcome show = RunTool({"charts", "show", std::to_string(velnesh), "--database", Db()});
  ASSERT_EQ(show.status, kExitOk) << show.err;
  EXPECT_TRUE(Contains(show.out, "Name           Velnesh\n")) << show.out;
  EXPECT_TRUE(Contains(show.out, "Birth Date     14/Jul/1965\n")) << show.out;
  EXPECT_TRUE(Contains(show.out, "Birth Time     02:15 PM\n")) << show.out;
  EXPECT_TRUE(Contains(show.out, "Birth Country  India\n")) << show.out;
  EXPECT_TRUE(Contains(show.out, "Latitude       17 N 20\n")) << show.out;
  EXPECT_TRUE(Contains(show.out, "Time Zone      Asia/Kolkata  (5.5 hrs E)\n")) << show.out;

  // Noon comes back as 12 PM.
  const Outcome noon = RunTool({"charts", "show", std::to_string(asha), "--json", "--database", Db()});
  ASSERT_EQ(noon.status, kExitOk) << noon.err;
  EXPECT_EQ(nlohmann::json::parse(noon.out)["time"], "12:15 PM");

  const Outcome del = RunTool({"charts", "delete", std::to_string(velnesh), "--database", Db()});
  ASSERT_EQ(del.status, kExitOk) << del.err;
  EXPECT_EQ(del.out, "Successfully Deleted\n");
  EXPECT_EQ(RunTool({"charts", "show", std::to_string(velnesh), "--database", Db()}).status, kExitBadInput);
  EXPECT_EQ(RunTool({"charts", "delete", std::to_string(velnesh), "--database", Db()}).status, kExitBadInput);
  EXPECT_EQ(RunTool({"charts", "list", "--database", Db()}).out, ChartLines({{asha, "Asha~14-Jul-1965"}}));
  // StoredNameWithALineBreakOrBadBytesListsOnItsLine: the list stays one
  // line a chart, in text and in JSON.
  const auto odd = Save("Two\nLines\xFF", "Male", 9);
  const Outcome listed = RunTool({"charts", "list", "--database", Db()});
  ASSERT_EQ(listed.status, kExitOk) << listed.err;
  EXPECT_TRUE(Contains(listed.out, std::to_string(odd) + "  Two\\nLines\\xFF~14-Jul-1965\n")) << listed.out;
  EXPECT_EQ(RunTool({"charts", "list", "--json", "--database", Db()}).status, kExitOk);
  ASSERT_EQ(RunTool({"charts", "delete", std::to_string(odd), "--database", Db()}).status, kExitOk);

  // ChartNumberTooLargeIsRefusedNotClamped.
  for (const char* id : {"99999999999999999999", "-3", "1x"}) {
    const Outcome refused = RunTool({"charts", "delete", id, "--database", Db()});
    EXPECT_EQ(refused.status, kExitBadInput) << id;
    EXPECT_TRUE(Contains(refused.err, std::string("ID \"") + id + "\"")) << refused.err;
  }
}

// The messages and their order are worked in the store's preference tests;
// here each field's name before its message, and the command's own refusals.
TEST_F(StoreCommands, PrefsSetValidatesWithTheSystemMessages) {
  ASSERT_EQ(RunTool({"prefs", "show", "--database", Db()}).status, kExitOk);
  const std::string before = FileBytes(Db());
  const struct {
    std::vector<std::string> pairs;
    const char* message;
  } cases[] = {
      {{"ayanamsa", "Custom", "zero-year", ""}, "zero-year: Enter Zero Year"},
      {{"ayanamsa", "Custom", "progression", " "}, "progression: Enter Progression"},
      // ZeroYearWithAFraction: refused as --zero-year refuses it.
      {{"ayanamsa", "Custom", "zero-year", "285.5", "progression", "50"}, "zero-year \"285.5\": expected a whole year"},
      {{"ayanamsa", "Fagan"}, "ayanamsa must be one of Lahiri, Raman, KP, Sayana, Custom"},
      {{"colour", "blue"}, "unknown preference \"colour\""},
      {{"ayanamsa"}, "KEY VALUE pairs"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.message);
    std::vector<std::string> args = {"prefs", "set", "--database", Db()};
    args.insert(args.end(), c.pairs.begin(), c.pairs.end());
    const Outcome r = RunTool(args);
    EXPECT_EQ(r.status, kExitBadInput);
    EXPECT_TRUE(Contains(r.err, c.message)) << r.err;
  }
  EXPECT_EQ(FileBytes(Db()), before);

  const Outcome set = RunTool({"prefs", "set", "--database", Db(), "ayanamsa", "custom ayanamsa", "zero-year", "2003",
                           "progression", "1000", "chart-style", "North Indian", "days", "360", "--json"});
  ASSERT_EQ(set.status, kExitOk) << set.err;
  const auto j = nlohmann::json::parse(set.out);
  EXPECT_EQ(j["ayanamsa"], "Custom");
  EXPECT_EQ(j["custom_year"], 2003.0);
  EXPECT_EQ(j["custom_progress"], 1000.0);
  EXPECT_EQ(j["chart_style"], "North");
  EXPECT_EQ(j["day_in_year"], 360.0);

  const Outcome show = RunTool({"prefs", "show", "--database", Db()});
  EXPECT_TRUE(Contains(show.out, "ayanamsa     Custom\n")) << show.out;
  EXPECT_TRUE(Contains(show.out, "zero-year    2003\n")) << show.out;
  EXPECT_TRUE(Contains(show.out, "days         360\n")) << show.out;
}

TEST_F(StoreCommands, FileFailuresExitWithOne) {
  const auto foreign = folder_ / "letter.txt";
  store::testing::WriteFile(foreign, std::string(2000, 'x'));
  const Outcome r = RunTool({"prefs", "show", "--database", foreign.string()});
  EXPECT_EQ(r.status, kExitFailure);
  EXPECT_TRUE(Contains(r.err, foreign.string())) << r.err;
  EXPECT_EQ(FileBytes(foreign), std::string(2000, 'x'));

  const auto missing = folder_ / "no-folder" / "DBMirvaneBasic.db";
  const Outcome m = RunTool({"charts", "list", "--database", missing.string()});
  EXPECT_EQ(m.status, kExitFailure);
  EXPECT_TRUE(Contains(m.err, "does not exist")) << m.err;
}

TEST_F(StoreCommands, WithoutDatabaseTheUserDataFolderIsUsed) {
  const char* old = std::getenv("XDG_DATA_HOME");
  const std::string saved = old ? old : "";
  ::setenv("XDG_DATA_HOME", (folder_ / "data").string().c_str(), 1);
  const Outcome r = RunTool({"places", "zones", "India"});
  if (old) {
    ::setenv("XDG_DATA_HOME", saved.c_str(), 1);
  } else {
    ::unsetenv("XDG_DATA_HOME");
  }
  ASSERT_EQ(r.status, kExitOk) << r.err;
  EXPECT_TRUE(std::filesystem::exists(folder_ / "data" / "Kelvaro" / "DBMirvaneBasic.db"));
}

}  // namespace
}  // namespace kelvaro::cli
