#include <gtest/gtest.h>

#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/number_rules.h"

namespace kelvaro {
namespace {

TEST(NumberRules, IntFloorsAndFixTruncates) {
  EXPECT_EQ(Int(-2.5), -3.0);
  EXPECT_EQ(Fix(-2.5), -2.0);
  EXPECT_EQ(Int(2.5), 2.0);
  EXPECT_EQ(Fix(2.5), 2.0);
}

TEST(NumberRules, ConversionRoundsHalfToEven) {
  struct Case {
    double x;
    int expected;
  } cases[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {2.5000001, 3}, {32767.4, 32767}};
  for (const auto& c : cases) EXPECT_EQ(CInt(c.x), c.expected) << c.x;
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

TEST(NumberRules, DigitPatternsRoundHalfAwayFromZero) {
  struct Case {
    double x;
    const char* pattern;
    const char* expected;
  } cases[] = {
      {0.5, "00", "01"},        {1.5, "00", "02"},        {2.5, "00", "03"},          {59.5, "00", "60"},
      {7.0, "00", "07"},        {123.0, "00", "123"},     {-2.5, "00", "-03"},        {-0.4, "00", "00"},
      {4.23456789, "00.0000", "04.2346"},                 {12.00005, "00.0000", "12.0001"},
      {2.675, "0.00", "2.68"},  // the 15-digit decimal form is 2.675, so it rounds up
      {1965.0, "0000", "1965"}, {5.0, "0000", "0005"},    {0.0, "00.0000", "00.0000"}, {99.99996, "00.0000", "100.0000"},
  };
  for (const auto& c : cases) EXPECT_EQ(FormatPattern(c.x, c.pattern), c.expected) << c.x << " " << c.pattern;
}

TEST(DateText, FixedPatternsFormat) {
  const OleDate m = OleDate::FromParts(1965, 7, 14, 14, 5, 9);
  const OleDate night = OleDate::FromParts(1965, 7, 4, 0, 30, 0);
  struct Case {
    OleDate moment;
    const char* pattern;
    const char* expected;
  } cases[] = {
      {m, "DD/MM/YYYY HH:NN AM/PM", "14/07/1965 02:05 PM"},
      {m, "dd/mmm/yyyy", "14/Jul/1965"},
      {m, "DD/MMM/YYYY HH:MM AM/PM", "14/Jul/1965 02:05 PM"},
      {m, "hh:mm AM/PM", "02:05 PM"},
      {m, "hh:mm:ss", "14:05:09"},
      {m, "dd-mmm-yyyy", "14-Jul-1965"},
      {m, "dddd", "Wednesday"},
      {night, "hh:mm AM/PM", "12:30 AM"},
      {night, "DD/MM/YYYY HH:NN", "04/07/1965 00:30"},
      {OleDate::FromParts(2000, 1, 1, 12, 0), "hh:mm am/pm", "12:00 pm"},
  };
  for (const auto& c : cases) EXPECT_EQ(FormatDate(c.moment, c.pattern), c.expected) << c.pattern;
}

TEST(DateText, FixedPatternsParse) {
  struct Case {
    const char* text;
    int y, m, d, h, n, s;
  } cases[] = {
      {"14/07/1965", 1965, 7, 14, 0, 0, 0},        {"14/7/1965 14:15: 00", 1965, 7, 14, 14, 15, 0},
      {"14/Jul/1965 02:15 PM", 1965, 7, 14, 14, 15, 0}, {"1/1/2000 12:00 AM", 2000, 1, 1, 0, 0, 0},
      {"01-Jan-2000 12:30 PM", 2000, 1, 1, 12, 30, 0},  {"29/02/2000 23:59:59", 2000, 2, 29, 23, 59, 59},
  };
  for (const auto& c : cases) {
    const auto parsed = ParseDateTime(c.text);
    ASSERT_TRUE(parsed.has_value()) << c.text;
    EXPECT_EQ(*parsed, OleDate::FromParts(c.y, c.m, c.d, c.h, c.n, c.s)) << c.text;
  }
  for (const char* bad : {"31/04/1965", "29/02/1965", "14/13/1965", "14/07/1965 14:75", "14/07/1965 25:00",
                          "14/07/1965 13:00 PM", "14.07.1965", "", "14/Foo/1965", "14/07/1965 14:15 XM"}) {
    EXPECT_FALSE(ParseDateTime(bad).has_value()) << bad;
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
