#include "panchanga/times.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "common/date_text.h"
#include "common/ole_date.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

// 1 Jan 2023 was a Sunday; 1..7 Jan 2023 run Sunday to Saturday.
constexpr int kSundayOfJanuary2023 = 1;

OleDate At(int day, int hh, int mm, int ss = 0) { return OleDate::FromParts(2023, 1, day, hh, mm, ss); }

std::vector<std::string> Split(const std::string& text) {
  std::vector<std::string> items;
  std::stringstream in(text);
  std::string item;
  while (std::getline(in, item, '~')) items.push_back(item);
  return items;
}

std::string Text(OleDate d) { return FormatDate(d, "dd/mm/yyyy hh:nn:ss"); }

clsTimes Timings(int day, OleDate sunrise, OleDate sunset, OleDate nextSunrise) {
  clsTimes t;
  t.currentdate = At(day, 10, 0);
  t.Sunrisetime = sunrise;
  t.Sunsettime = sunset;
  t.SunRiseNexttime = nextSunrise;
  t.findtimes();
  return t;
}

// The moments of tests/data/panchanga/times_twelve_hour_day.txt, each on the
// day of its weekday.
TEST(Times, NamedMomentsOfATwelveHourDay) {
  const std::array<std::string, 7> weekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                               "Thursday", "Friday", "Saturday"};
#define KELVARO_MOMENT(name) {#name, &clsTimes::name}
  const std::map<std::string, OleDate clsTimes::*> moments = {
      KELVARO_MOMENT(RahukaalStart),      KELVARO_MOMENT(RahukaalEnd),          KELVARO_MOMENT(GulikaRise_Day),
      KELVARO_MOMENT(GulikaRise_Night),   KELVARO_MOMENT(MandiRise_Day),        KELVARO_MOMENT(MandiRise_Night),
      KELVARO_MOMENT(yamaghanta2Start_Day), KELVARO_MOMENT(yamaghanta2End_Day), KELVARO_MOMENT(GulikaStart_Day),
      KELVARO_MOMENT(GulikaEnd_Day),      KELVARO_MOMENT(GulikaStart_Night),    KELVARO_MOMENT(GulikaEnd_Night),
      KELVARO_MOMENT(vaarvelaStart),      KELVARO_MOMENT(vaarvelaEnd),          KELVARO_MOMENT(kaalvelaStart),
      KELVARO_MOMENT(kaalvelaEnd),        KELVARO_MOMENT(ArdhayamaStart_Day),   KELVARO_MOMENT(ArdhayamaEnd_Day),
      KELVARO_MOMENT(Kantaka2Start_Day),  KELVARO_MOMENT(Kantaka2End_Day),      KELVARO_MOMENT(KaalratriStart),
      KELVARO_MOMENT(KaalratriEnd),       KELVARO_MOMENT(KantakaEnd),           KELVARO_MOMENT(KulikaStart_Day),
      KELVARO_MOMENT(AmritaGhatiStart),   KELVARO_MOMENT(VishaGhatiEnd),        KELVARO_MOMENT(yamaghanta2Start_Night),
      KELVARO_MOMENT(ArdhayamaEnd_Night), KELVARO_MOMENT(KulikaEnd_Night),      KELVARO_MOMENT(kaalaRise_Day),
      KELVARO_MOMENT(kaalaRise_Night),    KELVARO_MOMENT(YamagantaRise_Day),    KELVARO_MOMENT(ArdhaPrakarananRise_Night),
      KELVARO_MOMENT(VidaghatiRise_Day),
  };
#undef KELVARO_MOMENT
  const auto rows = testing::TestDataTable("panchanga/times_twelve_hour_day.txt");
  ASSERT_EQ(rows.size(), 104u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 4u);
    SCOPED_TRACE(row[0] + " " + row[1] + ": " + row[3]);
    const auto weekday = std::find(weekdays.begin(), weekdays.end(), row[0]) - weekdays.begin();
    const int day = kSundayOfJanuary2023 + static_cast<int>(weekday);
    const clsTimes t = Timings(day, At(day, 6, 0), At(day, 18, 0), At(day + 1, 6, 0));
    ASSERT_EQ(t.currentdate.Weekday(), weekday + 1);
    ASSERT_EQ(moments.count(row[1]), 1u);
    EXPECT_EQ(Text(t.*moments.at(row[1])), row[2]);
  }
}

// Day 43203 s, night 43197 s: the eighths are 5400.375 -> 5400 and
// 5399.625 -> 5400, so the eighth element lands 3 s short of sunset and
// 3 s after the next sunrise. Nothing corrects it.
TEST(Times, LastElementMissesTheEndOfTheSpan) {
  const int day = kSundayOfJanuary2023;  // Sunday: RahukaalEnd is day element 8
  const clsTimes t = Timings(day, At(day, 6, 0), At(day, 18, 0, 3), At(day + 1, 6, 0));
  EXPECT_EQ(DateDiff("s", t.RahukaalEnd, t.Sunsettime), 3);
  const std::vector<std::string> nightEnds = Split(t.HoraEnd_NightTemp);
  ASSERT_EQ(nightEnds.size(), 12u);
  EXPECT_EQ(nightEnds.back(), "06:00:03");  // 12 twelfths of 3600 s from 18:00:03
}

// The eighth is made whole half to even; every other part comes from that
// rounded eighth and is made whole again at each step.
TEST(Times, PartsComeFromTheRoundedEighth) {
  struct Case {
    int dayLengthSeconds;
    int rahukaalEndAfterSunrise;  // Sunday: day element 8, eight rounded eighths
  } cases[] = {
      {43204, 43200},  // 5400.5 -> 5400 (even)
      {43212, 43216},  // 5401.5 -> 5402 (even): 4 s beyond sunset
      {43196, 43200},  // 5399.5 -> 5400 (even)
  };
  const int day = kSundayOfJanuary2023;
  for (const auto& c : cases) {
    const OleDate sunrise = At(day, 6, 0);
    const OleDate sunset = DateAdd("s", c.dayLengthSeconds, sunrise);
    const clsTimes t = Timings(day, sunrise, sunset, At(day + 1, 6, 0));
    EXPECT_EQ(DateDiff("s", sunrise, t.RahukaalEnd), c.rahukaalEndAfterSunrise) << c.dayLengthSeconds;
  }

  // Day 43212 s: eighth 5401.5 -> 5402. Thirtieth 5402 * 8 / 30 = 1440.53,
  // made 1441 at each step: Maandi (Sunday, element 26) rises 26 * 1441 =
  // 37466 s after sunrise. From the length the thirtieth would be 1440.4 and
  // Maandi 37440 s; one multiplication would give 37453.9 s.
  const OleDate sunrise = At(day, 6, 0);
  const clsTimes rounded = Timings(day, sunrise, At(day, 18, 0, 12), At(day + 1, 6, 0));
  EXPECT_EQ(DateDiff("s", sunrise, rounded.MandiRise_Day), 37466);

  // Day 43208 s: eighth 5401. Twelfth 3600.67 -> 3601 and fifteenth
  // 2880.53 -> 2881, each made whole at each step.
  const clsTimes t = Timings(day, sunrise, At(day, 18, 0, 8), At(day + 1, 6, 0));
  const std::vector<std::string> horaStarts = Split(t.HoraStart_DayTemp);
  ASSERT_EQ(horaStarts.size(), 12u);
  EXPECT_EQ(horaStarts[1], "07:00:01");
  EXPECT_EQ(horaStarts[11], "17:00:11");
  EXPECT_EQ(Split(t.HoraEnd_DayTemp).back(), "18:00:12");  // 4 s after sunset
  const std::vector<std::string> ghatiStarts = Split(t.DoGhatiMuhurtaStart_Temp);
  ASSERT_EQ(ghatiStarts.size(), 30u);
  EXPECT_EQ(ghatiStarts[1], "06:48:01");
  EXPECT_EQ(ghatiStarts[14], "17:12:14");  // 14 * 2881 s
  EXPECT_EQ(ghatiStarts[15], "18:00:08");  // the night's list starts at sunset
}

// Wednesday (4): hora n is 4 - 2 (n - 1) brought into 1..7, which walks the
// Chaldean order Mercury, Moon, Saturn, Jupiter, Mars, Sun, Venus.
TEST(Times, HoraNamesAndTimesForWednesday) {
  const int day = kSundayOfJanuary2023 + 3;
  const clsTimes t = Timings(day, At(day, 6, 0), At(day, 18, 0), At(day + 1, 6, 0));
  EXPECT_EQ(t.HoraName_DayTemp,
            "Wednesday~Monday~Saturday~Thursday~Tuesday~Sunday~Friday~Wednesday~Monday~Saturday~Thursday~Tuesday");
  EXPECT_EQ(t.HoraName_NightTemp,
            "Sunday~Friday~Wednesday~Monday~Saturday~Thursday~Tuesday~Sunday~Friday~Wednesday~Monday~Saturday");
  EXPECT_EQ(t.HoraStart_DayTemp,
            "06:00:00~07:00:00~08:00:00~09:00:00~10:00:00~11:00:00~12:00:00~13:00:00~14:00:00~15:00:00~16:00:00~"
            "17:00:00");
  EXPECT_EQ(t.HoraEnd_NightTemp,
            "19:00:00~20:00:00~21:00:00~22:00:00~23:00:00~00:00:00~01:00:00~02:00:00~03:00:00~04:00:00~05:00:00~"
            "06:00:00");
}

// Run twice: a second call replaces the lists rather than appending to them.
TEST(Times, DoGhatiMuhurtaLists) {
  const int day = kSundayOfJanuary2023;
  clsTimes t = Timings(day, At(day, 6, 0), At(day, 18, 0), At(day + 1, 6, 0));
  t.findtimes();
  EXPECT_EQ(Split(t.HoraName_DayTemp).size(), 12u);
  const std::vector<std::string> names = Split(t.DoGhatiMuhurtaName_Temp);
  ASSERT_EQ(names.size(), 30u);
  EXPECT_EQ(names[0], "Rudra/Aridra");
  EXPECT_EQ(names[14], "Bhaga/PoorvaPalguni");
  EXPECT_EQ(names[15], "Rudra/Aridra");
  EXPECT_EQ(names[19], "Ashvani Kumar/Ashvani");
  EXPECT_EQ(names[29], "Pawan/Swati");
  // A fifteenth of a twelve-hour span is 48 minutes.
  const std::vector<std::string> starts = Split(t.DoGhatiMuhurtaStart_Temp);
  const std::vector<std::string> ends = Split(t.DoGhatiMuhurtaEnd_Temp);
  ASSERT_EQ(starts.size(), 30u);
  ASSERT_EQ(ends.size(), 30u);
  EXPECT_EQ(starts[0], "06:00:00");
  EXPECT_EQ(ends[0], "06:48:00");
  EXPECT_EQ(ends[14], "18:00:00");
  EXPECT_EQ(starts[15], "18:00:00");
  EXPECT_EQ(starts[23], "00:24:00");  // 8 * 48 min after 18:00
  EXPECT_EQ(ends[29], "06:00:00");
  for (std::size_t i = 0; i + 1 < 30; ++i) {
    if (i != 14) {
      EXPECT_EQ(ends[i], starts[i + 1]) << i;
    }
  }
}

}  // namespace
}  // namespace kelvaro
