// The two time converters: their tests in order, and conversions worked by
// hand on a day whose sunrise is at 06:00 (and 06:00 the day before).
#include "panchanga/time_converters.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "common/date_text.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

OleDate SixAm(OleDate date) { return OleDate::FromParts(date.Year(), date.Month(), date.Day(), 6, 0); }

ConverterEntry Good() { return {"14", "Jul", "1965", "02", "15", true, true, true}; }

TEST(TimeConverters, TestsInTheirOrder) {
  struct Case {
    ConverterEntry entry;
    Conversion conversion;
    const char* field;
    const char* message;
  };
  auto with = [](auto change) {
    ConverterEntry e = Good();
    change(e);
    return e;
  };
  const Case cases[] = {
      {with([](auto& e) { e.day = ""; e.month = ""; }), Conversion::ToIshtaGhati, "txtDate", "Enter Date"},
      {with([](auto& e) { e.month = " "; }), Conversion::ToIshtaGhati, "txtMonth", "Enter Month"},
      {with([](auto& e) { e.year = ""; e.hour = ""; }), Conversion::ToIshtaGhati, "txtYear", "Enter Year"},
      {with([](auto& e) { e.year = "19x5"; }), Conversion::ToIshtaGhati, "txtYear", "Enter Year Between 1800 and 3000"},
      {with([](auto& e) { e.year = "1799"; }), Conversion::ToIshtaGhati, "txtYear", "Enter Year Between 1800 and 3000"},
      {with([](auto& e) { e.year = "3001"; }), Conversion::ToBirthTime, "txtYear", "Enter Year Between 1800 and 3000"},
      {with([](auto& e) { e.day = "31"; e.month = "Jun"; }), Conversion::ToIshtaGhati, "txtDate", "Enter Correct Date"},
      {with([](auto& e) { e.day = "31"; e.month = "Jun"; e.hour = ""; }), Conversion::ToBirthTime, "cbHour",
       "Enter Correct Time"},  // the way back does not test the date
      {with([](auto& e) { e.hour = ""; e.minute = ""; }), Conversion::ToIshtaGhati, "cbHour", "Enter Correct Time"},
      {with([](auto& e) { e.minute = ""; }), Conversion::ToIshtaGhati, "cbMins", "Enter Correct Time"},
      {with([](auto& e) { e.hour = "13"; }), Conversion::ToIshtaGhati, "cbHour", "Enter Correct Time"},
      {with([](auto& e) { e.hour = "61"; }), Conversion::ToBirthTime, "cbHour", "Enter Correct Time"},
      {with([](auto& e) { e.minute = "60"; }), Conversion::ToBirthTime, "cbMins", "Enter Correct Time"},
      {with([](auto& e) { e.countryChosen = false; e.cityChosen = false; }), Conversion::ToIshtaGhati,
       "Cmb_VP_Country", "Select Country"},
      {with([](auto& e) { e.cityChosen = false; }), Conversion::ToBirthTime, "Cmb_VP_City", "Select City"},
  };
  for (const auto& c : cases) {
    const auto problem = ValidateConverter(c.entry, c.conversion);
    ASSERT_TRUE(problem.has_value()) << c.message;
    EXPECT_EQ(problem->field, c.field);
    EXPECT_EQ(problem->message, c.message);
  }
  EXPECT_FALSE(ValidateConverter(Good(), Conversion::ToIshtaGhati).has_value());
  EXPECT_FALSE(ValidateConverter(with([](auto& e) { e.hour = "60"; }), Conversion::ToBirthTime).has_value());
}

// The rows of tests/data/panchanga/time_converters.txt, both ways.
TEST(TimeConverters, IshtaGhatiBothWays) {
  const OleDate day = OleDate::FromParts(1965, 7, 14);
  const auto rows = testing::TestDataTable("panchanga/time_converters.txt");
  ASSERT_EQ(rows.size(), 10u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 3u);
    SCOPED_TRACE(row[0] + " " + row[1]);
    double first = 0, second = 0;
    ASSERT_EQ(std::sscanf(row[1].c_str(), "%lf%*[: ]%lf", &first, &second), 2);
    if (row[0] == "ToIshtaGhati") {
      const OleDate birth = OleDate::FromParts(1965, 7, 14, static_cast<int>(first), static_cast<int>(second));
      EXPECT_EQ(BirthTimeToIshtaGhati(birth, SixAm).Text(), row[2]);
    } else {
      EXPECT_EQ(FormatDate(IshtaGhatiToBirthTime(day, first, second, SixAm), "DD/MM/YYYY HH:NN"), row[2]);
    }
  }
  EXPECT_EQ(BirthTimeText(OleDate::FromParts(1965, 7, 15, 6, 0)), "Birth Time : 06:00 AM");
  EXPECT_EQ(BirthTimeText(OleDate::FromParts(1965, 7, 14, 14, 14)), "Birth Time : 02:14 PM");
}

TEST(TimeConverters, EntryMomentUsesTheTwelveHourClock) {
  ConverterEntry e = Good();
  EXPECT_EQ(FormatDate(*ConverterMoment(e), "DD/MM/YYYY HH:NN"), "14/07/1965 14:15");
  e.hour = "12";
  e.pm = false;
  EXPECT_EQ(FormatDate(*ConverterMoment(e), "HH:NN"), "00:15");
  e.pm = true;
  EXPECT_EQ(FormatDate(*ConverterMoment(e), "HH:NN"), "12:15");
  e.day = "31";
  e.month = "Jun";
  EXPECT_FALSE(ConverterMoment(e).has_value());
}

}  // namespace
}  // namespace kelvaro
