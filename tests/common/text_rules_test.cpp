#include <gtest/gtest.h>

#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/number_rules.h"
#include "support/moment_text.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

TEST(NumberRules, IntFloorsAndFixTruncates) {
  EXPECT_EQ(Int(-2.5), -3.0);
  EXPECT_EQ(Fix(-2.5), -2.0);
  EXPECT_EQ(Int(2.5), 2.0);
  EXPECT_EQ(Fix(2.5), 2.0);
}

TEST(NumberRules, ConversionRoundsHalfToEven) {
  EXPECT_EQ(CLng(2147483647.0), 2147483647);
  EXPECT_EQ(RoundHalfEven(0.125, 2), 0.12);
  EXPECT_EQ(RoundHalfEven(3.5), 4.0);
}

TEST(NumberRules, SixteenBitOverflowIsAnError) {
  EXPECT_THROW(CInt(32767.5), CalculationError);  // rounds to 32768
  EXPECT_THROW(CInt(-32768.6), CalculationError);
  EXPECT_EQ(CInt(-32768.4), -32768);
  EXPECT_THROW(CLng(2147483648.0), CalculationError);
}

// The rows of tests/data/common/text_rules.txt, each against its function.
TEST(TextRules, WorkedRows) {
  const auto rows = testing::TestDataTable("common/text_rules.txt");
  ASSERT_EQ(rows.size(), 49u);
  for (const auto& row : rows) {
    SCOPED_TRACE(row[0] + " " + row[1]);
    ASSERT_GE(row.size(), 3u);
    const std::string& expected = row.back();
    if (row[0] == "CInt") {
      EXPECT_EQ(CInt(std::stod(row[1])), std::stoi(expected));
    } else if (row[0] == "FormatPattern") {
      EXPECT_EQ(FormatPattern(std::stod(row[1]), row[2]), expected);
    } else if (row[0] == "FormatDate") {
      EXPECT_EQ(FormatDate(testing::MomentOf(row[1]), row[2]), expected);
    } else {
      ASSERT_EQ(row[0], "ParseDateTime");
      const auto parsed = ParseDateTime(row[1]);
      ASSERT_EQ(parsed.has_value(), !expected.empty());
      if (parsed) {
        EXPECT_EQ(*parsed, testing::MomentOf(expected));
      }
    }
  }
}

TEST(DateText, FormatThenParseRoundTrips) {
  for (double serial : {-1.25, 0.0, 23937.59375, 36586.999305555555, 2958465.0}) {
    const OleDate m = OleDate(serial);
    const auto back = ParseDateTime(FormatDate(m, "DD/MM/YYYY HH:NN AM/PM"));
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(DateDiff("n", m, *back), 0) << serial;
  }
}

}  // namespace
}  // namespace kelvaro
