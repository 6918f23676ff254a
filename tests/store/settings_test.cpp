// The "Horo" settings: the eighteen keys with their defaults (the sample
// chart), and the last chart written and read back.
#include <gtest/gtest.h>

#include <set>

#include "store/settings.h"

namespace kelvaro::store {
namespace {

TEST(HoroSettings, EighteenKeysOnceEach) {
  std::set<std::string_view> keys;
  for (const HoroSetting& s : kHoroSettings) {
    EXPECT_TRUE(keys.insert(s.key).second) << s.key;
    EXPECT_EQ(HoroSettingOf(s.id).key, s.key);
  }
  EXPECT_EQ(keys.size(), 18u);
}

TEST(HoroSettings, AFirstStartReadsTheSampleChart) {
  const InMemorySettings empty;
  const LastChart c = ReadLastChart(empty);
  const LastChart sample{"Velnesh", "14",  "Jul", "1965", "14", "15", "", "Male", "Hyderabad (A.P)", "India",
                         "N",       "20",  "17",  "E",    "30", "78", "5.5", "E"};
  EXPECT_EQ(c, sample);
}

TEST(HoroSettings, WrittenChartReadsBackExceptTheZoneName) {
  InMemorySettings store;
  const LastChart saved{"Asha O'Neil", "05", "Mar", "2001", "0",  "07", "Asia/Kolkata  (5.5 hrs E)", "Female",
                        "Chennai",     "India", "N", "4",   "13", "E", "17", "80", "5.5", "E"};
  WriteLastChart(store, saved);
  EXPECT_EQ(store.Size(), 18u);
  EXPECT_EQ(store.Read("Horo", "TimeZone"), "Asia/Kolkata  (5.5 hrs E)");
  EXPECT_EQ(store.Read("Horo", "Min"), "07");
  EXPECT_EQ(store.Read("Horo", "Sex"), "Female");

  LastChart expected = saved;
  expected.timeZone = "";  // written, but the start-up reading leaves it empty
  EXPECT_EQ(ReadLastChart(store), expected);
}

TEST(HoroSettings, KeysReadSeparatelyFallBackToTheirDefaults) {
  InMemorySettings store;
  WriteHoro(store, HoroKey::City, "Pune");
  EXPECT_EQ(ReadHoro(store, HoroKey::City), "Pune");
  EXPECT_EQ(ReadHoro(store, HoroKey::Country), "India");
  EXPECT_EQ(ReadHoro(store, HoroKey::TimeDiff), "5.5");
  EXPECT_EQ(store.Read("Other", "City"), std::nullopt);
}

}  // namespace
}  // namespace kelvaro::store
