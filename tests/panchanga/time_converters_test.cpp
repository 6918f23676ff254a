// The two time converters: their tests in order, and conversions worked by
// hand on a day whose sunrise is at 06:00 (and 06:00 the day before).
#include "panchanga/time_converters.h"

#include <gtest/gtest.h>

#include "common/date_text.h"

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

TEST(TimeConverters, BirthTimeToIshtaGhati) {
  struct Case {
    int hour, minute;
    const char* text;
  } cases[] = {
      {6, 0, "Ishta Ghati : 0:0:0"},     // at sunrise
      {8, 24, "Ishta Ghati : 6:0:0"},    // 144 minutes: 6 ghatis exactly
      {14, 15, "Ishta Ghati : 20:37:30"},  // 495 min: 20.625 ghatis, 0.625 * 60 = 37.5 vighatis
      {6, 1, "Ishta Ghati : 0:2:30"},    // 0.041667 shows as 00.0417: 2.502 vighatis, 0.502 * 60 = 30.12
      {5, 50, "Ishta Ghati : 59:34:59"},  // 1430 min from the day before's sunrise: 59.5833
  };
  for (const auto& c : cases) {
    const OleDate birth = OleDate::FromParts(1965, 7, 14, c.hour, c.minute);
    EXPECT_EQ(BirthTimeToIshtaGhati(birth, SixAm).Text(), c.text) << c.hour << ":" << c.minute;
  }
}

TEST(TimeConverters, IshtaGhatiToBirthTime) {
  const OleDate day = OleDate::FromParts(1965, 7, 14);
  struct Case {
    double ghatis, vighatis;
    const char* when;
  } cases[] = {
      {0, 0, "14/07/1965 06:00"},
      {6, 0, "14/07/1965 08:24"},
      {6, 30, "14/07/1965 08:36"},   // 30 vighatis are 12 minutes
      {20, 37, "14/07/1965 14:14"},  // 8 h, 14.8 min: the seconds 48 are added first and stay seconds
      {60, 0, "15/07/1965 06:00"},   // a whole day: the next day's sunrise
  };
  for (const auto& c : cases) {
    const OleDate t = IshtaGhatiToBirthTime(day, c.ghatis, c.vighatis, SixAm);
    EXPECT_EQ(FormatDate(t, "DD/MM/YYYY HH:NN"), c.when) << c.ghatis << " " << c.vighatis;
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
