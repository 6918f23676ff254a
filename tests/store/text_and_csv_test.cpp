// The numeric test of typed fields, the default number text, the CSV reader
// of the seed files and the default database location.
#include <gtest/gtest.h>

#include <map>

#include "store/csv_table.h"
#include "store/database_location.h"
#include "store/store_error.h"
#include "store/text_rules.h"
#include "support/test_data.h"

namespace kelvaro::store {
namespace {

// The rows of tests/data/store/number_texts.txt: what counts as a typed
// number, and the default text of a number.
TEST(NumberTexts, TypedNumbersAndDefaultText) {
  const auto rows = kelvaro::testing::TestDataTable("store/number_texts.txt");
  ASSERT_EQ(rows.size(), 26u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 3u);
    SCOPED_TRACE(row[0] + " \"" + row[1] + '"');
    if (row[0] == "NumericValue") {
      EXPECT_EQ(NumericValue(row[1]), row[2].empty() ? std::nullopt : std::optional<double>(std::stod(row[2])));
    } else {
      EXPECT_EQ(NumberText(std::stod(row[1])), row[2]);
    }
  }
}

TEST(CsvTableTest, QuotesCommasAndLineEnds) {
  const CsvTable t = CsvTable::Parse(
      "\xEF\xBB\xBFiso,name\r\nAA,\"Comma, Inc\"\r\nBB,\"Say \"\"hi\"\"\"\nCC,\"two\nlines\"\n\nDD,\n", "test.csv");
  ASSERT_EQ(t.RowCount(), 4u);
  EXPECT_EQ(t.Header(), (std::vector<std::string>{"iso", "name"}));
  EXPECT_EQ(t.Cell(0, "name"), "Comma, Inc");
  EXPECT_EQ(t.Cell(1, "name"), "Say \"hi\"");
  EXPECT_EQ(t.Cell(2, "name"), "two\nlines");
  EXPECT_EQ(t.Cell(3, "iso"), "DD");
  EXPECT_EQ(t.Cell(3, "name"), "");
  EXPECT_EQ(t.Where(3), "test.csv line 7");
  EXPECT_THROW(t.Cell(0, "zone"), StoreError);
}

TEST(CsvTableTest, FaultsNameTheFileAndLine) {
  try {
    CsvTable::Parse("a,b\n1,2\n3\n", "bad.csv");
    FAIL();
  } catch (const StoreError& e) {
    EXPECT_EQ(std::string(e.what()), "bad.csv line 3: 1 fields where the header has 2");
  }
  EXPECT_THROW(CsvTable::Parse("a,b\n1,\"2\n", "bad.csv"), StoreError);
  const CsvTable t = CsvTable::Parse("n,x\n12,1.5\nx1,\n", "n.csv");
  EXPECT_EQ(t.WholeNumber(0, "n"), 12);
  EXPECT_EQ(t.Number(0, "x"), 1.5);
  EXPECT_THROW(t.WholeNumber(1, "n"), StoreError);
  EXPECT_THROW(t.Number(1, "x"), StoreError);
}

TEST(DatabaseLocation, XdgDataHomeThenHome) {
  auto env = [](std::map<std::string, std::string> vars) {
    return [vars](const char* name) -> std::optional<std::string> {
      const auto it = vars.find(name);
      if (it == vars.end()) return std::nullopt;
      return it->second;
    };
  };
  EXPECT_EQ(DefaultDatabasePath(env({{"XDG_DATA_HOME", "/data"}, {"HOME", "/home/a"}})),
            std::filesystem::path("/data/Kelvaro/DBMirvaneBasic.db"));
  EXPECT_EQ(DefaultDatabasePath(env({{"HOME", "/home/a"}})),
            std::filesystem::path("/home/a/.local/share/Kelvaro/DBMirvaneBasic.db"));
  // Empty or relative XDG_DATA_HOME is not a folder by the XDG rules.
  EXPECT_EQ(DefaultDatabasePath(env({{"XDG_DATA_HOME", ""}, {"HOME", "/home/a"}})),
            std::filesystem::path("/home/a/.local/share/Kelvaro/DBMirvaneBasic.db"));
  EXPECT_EQ(DefaultDatabasePath(env({{"XDG_DATA_HOME", "rel"}, {"HOME", "/home/a"}})),
            std::filesystem::path("/home/a/.local/share/Kelvaro/DBMirvaneBasic.db"));
  EXPECT_THROW(DefaultDatabasePath(env({})), StoreError);
}

}  // namespace
}  // namespace kelvaro::store
