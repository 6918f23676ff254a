#include "panchanga/times.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "common/date_text.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

// ---------------------------------------------------------------------------
// Weekday rows. Element numbers count parts from the start of the span, so the
// period "element e" runs from element e - 1 to element e, and a period that
// starts at element s ends at element s + 1.

// The rows as the almanac fixes them, Sunday first.
struct FixedRow {
  std::int8_t rahukaalStart;    // day eighths; RahukaalEnd is the next element
  std::int8_t gulikaRiseDay;    // day eighths
  std::int8_t gulikaRiseNight;  // night eighths
  std::int8_t mandiRiseDay;     // day thirtieths
  std::int8_t mandiRiseNight;   // night thirtieths
};
constexpr std::array<FixedRow, 7> kFixedRows = {{
    {7, 7, 3, 26, 10},  // Sunday
    {1, 6, 2, 22, 6},   // Monday
    {6, 5, 1, 18, 2},   // Tuesday
    {4, 4, 7, 14, 26},  // Wednesday
    {5, 3, 6, 10, 22},  // Thursday
    {3, 2, 5, 6, 18},   // Friday
    {2, 1, 4, 2, 14},   // Saturday
}};

// The classical rule behind the Gulika rows above and the Sunday layout of
// the other periods: the first seven eighths of the day are ruled by the seven
// planets in weekday order (Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn),
// beginning with the lord of the weekday; the eighth part has no lord. The
// eighths of the night run in the same order, beginning with the lord of the
// fifth weekday counted from this one (Sunday night begins with Jupiter).
// Each row gives the part (1..7) ruled by each planet; the part's end is the
// element of that number, its start the element before.
struct LordParts {
  std::int8_t sun, moon, mars, mercury, jupiter, venus, saturn;
};
constexpr std::array<LordParts, 7> kDayParts = {{
    //  Sun Moo Mar Mer Jup Ven Sat
    {1, 2, 3, 4, 5, 6, 7},  // Sunday
    {7, 1, 2, 3, 4, 5, 6},  // Monday
    {6, 7, 1, 2, 3, 4, 5},  // Tuesday
    {5, 6, 7, 1, 2, 3, 4},  // Wednesday
    {4, 5, 6, 7, 1, 2, 3},  // Thursday
    {3, 4, 5, 6, 7, 1, 2},  // Friday
    {2, 3, 4, 5, 6, 7, 1},  // Saturday
}};
constexpr std::array<LordParts, 7> kNightParts = {{
    //  Sun Moo Mar Mer Jup Ven Sat
    {4, 5, 6, 7, 1, 2, 3},  // Sunday: Jupiter first
    {3, 4, 5, 6, 7, 1, 2},  // Monday: Venus first
    {2, 3, 4, 5, 6, 7, 1},  // Tuesday: Saturn first
    {1, 2, 3, 4, 5, 6, 7},  // Wednesday: Sun first
    {7, 1, 2, 3, 4, 5, 6},  // Thursday: Moon first
    {6, 7, 1, 2, 3, 4, 5},  // Friday: Mars first
    {5, 6, 7, 1, 2, 3, 4},  // Saturday: Mercury first
}};

// Which lord's part gives which result. Day periods read the day eighths,
// night periods the night eighths; every "Rise" is the end of the lord's part,
// as GulikaRise is. Names without "_Night" are day periods, except Kaalratri,
// which belongs to the night.
//   Sun:     kaalaRise (Kaala).
//   Moon:    AmritaGhati, karesaRise.
//   Mars:    Kantaka and Kantaka2 (Mrityu), Kaalratri, KalainananRise.
//   Mercury: vaarvela, Ardhayama, ArdhaPrakarananRise (Ardhaprahara).
//   Jupiter: kaalvela, kaalvela2 (bkaalvela2Start with it), yamaghanta,
//            yamaghanta2, YamagantaRise (Yamaghantaka).
//   Venus:   VidaghatiRise.
//   Saturn:  Gulika (its Rise is the fixed row above), Kulika, VishaGhati.
// The almanac names no planet for karesa, Kalainanan and Vidaghati: the three
// lords left over (Moon, Mars, Venus) are given to them in weekday order.

// Every rule must reproduce the rows and the Sunday layout the almanac fixes.
constexpr bool RulesReproduceTheFixedRows() {
  for (std::size_t w = 0; w < 7; ++w) {
    if (kFixedRows[w].gulikaRiseDay != kDayParts[w].saturn) return false;
    if (kFixedRows[w].gulikaRiseNight != kNightParts[w].saturn) return false;
  }
  const LordParts& day = kDayParts[0];
  const LordParts& night = kNightParts[0];
  return day.mercury - 1 == 3 &&  // vaarvelaStart 3, vaarvelaEnd 4
         day.jupiter - 1 == 4 &&  // kaalvelaStart 4, kaalvelaEnd 5
         day.saturn - 1 == 6 &&   // GulikaStart_Day 6, GulikaEnd_Day 7
         day.mars - 1 == 2 &&     // Kantaka2Start_Day 2, Kantaka2End_Day 3
         night.mars - 1 == 5 &&   // KaalratriStart 5, KaalratriEnd 6
         night.saturn - 1 == 2;   // GulikaStart_Night 2, GulikaEnd_Night 3
}
static_assert(RulesReproduceTheFixedRows());

// The thirty Do Ghati Muhurtas: fifteen of the day, then fifteen of the night.
constexpr std::array<const char*, 30> kDoGhatiMuhurtaNames = {
    "Rudra/Aridra",       "Sarpa/Ashlesha",
    "Mitra/Anuradha",     "Pitar/Magha",
    "Vasu/Dhanishta",     "Jal/Poorvashada",
    "Vishvadeva/UttaraShada", "Brahma/Abhijit",
    "Brahma/Rohini",      "Indra/Jyeshta",
    "Indragani/Vishaka",  "Raakshas/Moola",
    "Varun/Shatabisha",   "Aryama/UttaraPalguni",
    "Bhaga/PoorvaPalguni",  // 15: the last of the day
    "Rudra/Aridra",       "Ajpad/Poorvabhadra",
    "Ahirbhudhanya/Uttarabhadra", "Pusha/Revati",
    "Ashvani Kumar/Ashvani", "Yama/Bharni",
    "Agni/Krittika",      "Brahma/Rohini",
    "Chandra/Mrigasirsha", "Aditi/Punarvasu",
    "Brihsapati/Pushya",  "Vishnu/Shravana",
    "Surya/Hasta",        "Vishvakarma/Chitra",
    "Pawan/Swati",
};

// Timing texts of the lists use the program's form for timings, "hh:mm:ss"
// on the 24-hour clock.
constexpr const char* kTimingPattern = "hh:mm:ss";

// Element 0 is the start; element k is element k - 1 plus one part, the part
// made a whole number of seconds (half to even) at each step, so that the
// last element can miss the end of the span by a few seconds.
template <std::size_t N>
void BuildTable(std::array<OleDate, N>& table, OleDate start, double partSeconds) {
  table[0] = start;
  for (std::size_t k = 1; k < N; ++k) table[k] = DateAdd(Interval::Second, partSeconds, table[k - 1]);
}

void Append(std::string& list, const std::string& item) {
  if (!list.empty()) list += "~";
  list += item;
}

}  // namespace

void clsTimes::findtimes() {
  const auto dayLength = static_cast<double>(DateDiff(Interval::Second, Sunrisetime, Sunsettime));
  const auto nightLength = static_cast<double>(DateDiff(Interval::Second, Sunsettime, SunRiseNexttime));
  const auto wholeDayLength = static_cast<double>(DateDiff(Interval::Second, Sunrisetime, SunRiseNexttime));

  // The eighth is held as a 32-bit integer; every other part comes from that
  // rounded eighth, not from the length, and stays a double until DateAdd.
  const double dayEighth = CLng(dayLength / 8);
  const double nightEighth = CLng(nightLength / 8);

  BuildTable(m_dayEighths, Sunrisetime, dayEighth);
  BuildTable(m_nightEighths, Sunsettime, nightEighth);
  BuildTable(m_daySixteenths, Sunrisetime, dayEighth / 2);
  BuildTable(m_nightSixteenths, Sunsettime, nightEighth / 2);
  BuildTable(m_dayTwelfths, Sunrisetime, dayEighth * 8 / 12);
  BuildTable(m_nightTwelfths, Sunsettime, nightEighth * 8 / 12);
  BuildTable(m_dayThirtieths, Sunrisetime, dayEighth * 8 / 30);
  BuildTable(m_nightThirtieths, Sunsettime, nightEighth * 8 / 30);
  BuildTable(m_wholeDaySixtieths, Sunrisetime, wholeDayLength / 60);
  BuildTable(m_dayFifteenths, Sunrisetime, dayEighth * 8 / 15);
  BuildTable(m_nightFifteenths, Sunsettime, nightEighth * 8 / 15);

  const int weekday = currentdate.Weekday();  // Sunday 1
  const auto w = static_cast<std::size_t>(weekday - 1);
  const FixedRow& fixed = kFixedRows[w];
  const LordParts& day = kDayParts[w];
  const LordParts& night = kNightParts[w];
  const auto d8 = [this](int element) { return m_dayEighths[static_cast<std::size_t>(element)]; };
  const auto n8 = [this](int element) { return m_nightEighths[static_cast<std::size_t>(element)]; };

  vaarvelaStart = d8(day.mercury - 1);
  vaarvelaEnd = d8(day.mercury);
  kaalvelaStart = d8(day.jupiter - 1);
  kaalvelaEnd = d8(day.jupiter);
  RahukaalStart = d8(fixed.rahukaalStart);
  RahukaalEnd = d8(fixed.rahukaalStart + 1);
  GulikaRise_Day = d8(fixed.gulikaRiseDay);
  GulikaStart_Day = d8(day.saturn - 1);
  GulikaEnd_Day = d8(day.saturn);
  yamaghanta2Start_Day = d8(day.jupiter - 1);
  yamaghanta2End_Day = d8(day.jupiter);
  ArdhayamaStart_Day = d8(day.mercury - 1);
  ArdhayamaEnd_Day = d8(day.mercury);
  Kantaka2Start_Day = d8(day.mars - 1);
  Kantaka2End_Day = d8(day.mars);
  KaalratriStart = n8(night.mars - 1);
  KaalratriEnd = n8(night.mars);
  GulikaRise_Night = n8(fixed.gulikaRiseNight);
  GulikaStart_Night = n8(night.saturn - 1);
  GulikaEnd_Night = n8(night.saturn);
  yamaghanta2Start_Night = n8(night.jupiter - 1);
  yamaghanta2End_Night = n8(night.jupiter);
  ArdhayamaStart_Night = n8(night.mercury - 1);
  ArdhayamaEnd_Night = n8(night.mercury);
  Kantaka2Start_Night = n8(night.mars - 1);
  Kantaka2End_Night = n8(night.mars);
  KulikaStart_Day = d8(day.saturn - 1);
  KulikaEnd_Day = d8(day.saturn);
  kaalvela2Start = d8(day.jupiter - 1);
  bkaalvela2Start = d8(day.jupiter - 1);
  kaalvela2End = d8(day.jupiter);
  yamaghantaStart = d8(day.jupiter - 1);
  yamaghantaEnd = d8(day.jupiter);
  KantakaStart = d8(day.mars - 1);
  KantakaEnd = d8(day.mars);
  KulikaStart_Night = n8(night.saturn - 1);
  KulikaEnd_Night = n8(night.saturn);

  // Horas: the first is the weekday's own; hora n (2..24) is the weekday
  // number less 2 (n - 1), brought into 1..7 by adding 7.
  HoraName_DayTemp.clear();
  HoraStart_DayTemp.clear();
  HoraEnd_DayTemp.clear();
  HoraName_NightTemp.clear();
  HoraStart_NightTemp.clear();
  HoraEnd_NightTemp.clear();
  int counter = 0;
  for (int n = 1; n <= 24; ++n) {
    int lord = weekday;
    if (n > 1) {
      counter = counter + 2;
      lord = weekday - counter;
      while (lord < 1) lord = lord + 7;
    }
    const std::string name = WeekdayName(lord);
    if (n <= 12) {
      const auto k = static_cast<std::size_t>(n);
      Append(HoraName_DayTemp, name);
      Append(HoraStart_DayTemp, FormatDate(m_dayTwelfths[k - 1], kTimingPattern));
      Append(HoraEnd_DayTemp, FormatDate(m_dayTwelfths[k], kTimingPattern));
    } else {
      const auto k = static_cast<std::size_t>(n - 12);
      Append(HoraName_NightTemp, name);
      Append(HoraStart_NightTemp, FormatDate(m_nightTwelfths[k - 1], kTimingPattern));
      Append(HoraEnd_NightTemp, FormatDate(m_nightTwelfths[k], kTimingPattern));
    }
  }

  VishaGhatiStart = d8(day.saturn - 1);
  VishaGhatiEnd = d8(day.saturn);
  MandiRise_Day = m_dayThirtieths[static_cast<std::size_t>(fixed.mandiRiseDay)];
  MandiRise_Night = m_nightThirtieths[static_cast<std::size_t>(fixed.mandiRiseNight)];
  AmritaGhatiStart = d8(day.moon - 1);
  AmritaGhatiEnd = d8(day.moon);

  DoGhatiMuhurtaName_Temp.clear();
  DoGhatiMuhurtaStart_Temp.clear();
  DoGhatiMuhurtaEnd_Temp.clear();
  for (std::size_t i = 0; i < kDoGhatiMuhurtaNames.size(); ++i) {
    const auto& table = i < 15 ? m_dayFifteenths : m_nightFifteenths;
    const std::size_t k = i % 15;
    Append(DoGhatiMuhurtaName_Temp, kDoGhatiMuhurtaNames[i]);
    Append(DoGhatiMuhurtaStart_Temp, FormatDate(table[k], kTimingPattern));
    Append(DoGhatiMuhurtaEnd_Temp, FormatDate(table[k + 1], kTimingPattern));
  }

  kaalaRise_Day = d8(day.sun);
  kaalaRise_Night = n8(night.sun);
  karesaRise_Day = d8(day.moon);
  karesaRise_Night = n8(night.moon);
  KalainananRise_Day = d8(day.mars);
  KalainananRise_Night = n8(night.mars);
  YamagantaRise_Night = n8(night.jupiter);
  YamagantaRise_Day = d8(day.jupiter);
  VidaghatiRise_Day = d8(day.venus);
  VidaghatiRise_Night = n8(night.venus);
  ArdhaPrakarananRise_Day = d8(day.mercury);
  ArdhaPrakarananRise_Night = n8(night.mercury);
}

}  // namespace kelvaro
