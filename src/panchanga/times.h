#pragma once
// clsTimes: cuts the day (sunrise to sunset) and the night (sunset to the next
// sunrise) into equal parts and hands out, by weekday, the moments of the
// inauspicious and named periods, the horas and the Do Ghati Muhurtas.
//
// Usage: set currentdate, Sunrisetime, Sunsettime and SunRiseNexttime, call
// findtimes(), read the results. The horoscope reads GulikaRise_Day,
// GulikaRise_Night, MandiRise_Day and MandiRise_Night.
#include <array>
#include <string>

#include "common/ole_date.h"

namespace kelvaro {

class clsTimes {
 public:
  // Inputs.
  OleDate Sunrisetime;
  OleDate Sunsettime;
  OleDate currentdate;  // its weekday picks the rows
  OleDate SunRiseNexttime;

  // Results.
  OleDate vaarvelaStart;
  OleDate vaarvelaEnd;
  OleDate kaalvelaStart;
  OleDate kaalvelaEnd;
  OleDate RahukaalStart;
  OleDate RahukaalEnd;
  OleDate GulikaRise_Day;
  OleDate GulikaStart_Day;
  OleDate GulikaEnd_Day;
  OleDate yamaghanta2Start_Day;
  OleDate yamaghanta2End_Day;
  OleDate ArdhayamaStart_Day;
  OleDate ArdhayamaEnd_Day;
  OleDate Kantaka2Start_Day;
  OleDate Kantaka2End_Day;
  OleDate KaalratriStart;
  OleDate KaalratriEnd;
  OleDate GulikaRise_Night;
  OleDate GulikaStart_Night;
  OleDate GulikaEnd_Night;
  OleDate yamaghanta2Start_Night;
  OleDate yamaghanta2End_Night;
  OleDate ArdhayamaStart_Night;
  OleDate ArdhayamaEnd_Night;
  OleDate Kantaka2Start_Night;
  OleDate Kantaka2End_Night;
  OleDate KulikaStart_Day;
  OleDate KulikaEnd_Day;
  OleDate kaalvela2Start;
  OleDate bkaalvela2Start;
  OleDate kaalvela2End;
  OleDate yamaghantaStart;
  OleDate yamaghantaEnd;
  OleDate KantakaStart;
  OleDate KantakaEnd;
  OleDate KulikaStart_Night;
  OleDate KulikaEnd_Night;
  std::string HoraName_DayTemp;     // twelve weekday names joined with "~"
  std::string HoraStart_DayTemp;    // twelve "hh:mm:ss" clock times joined with "~"
  std::string HoraEnd_DayTemp;
  std::string HoraName_NightTemp;
  std::string HoraStart_NightTemp;
  std::string HoraEnd_NightTemp;
  OleDate VishaGhatiStart;
  OleDate VishaGhatiEnd;
  OleDate MandiRise_Day;
  OleDate MandiRise_Night;
  OleDate AmritaGhatiStart;
  OleDate AmritaGhatiEnd;
  std::string DoGhatiMuhurtaName_Temp;   // thirty names joined with "~"
  std::string DoGhatiMuhurtaStart_Temp;  // thirty "hh:mm:ss" clock times joined with "~"
  std::string DoGhatiMuhurtaEnd_Temp;
  OleDate kaalaRise_Day;
  OleDate kaalaRise_Night;
  OleDate karesaRise_Day;
  OleDate karesaRise_Night;
  OleDate KalainananRise_Day;
  OleDate KalainananRise_Night;
  OleDate YamagantaRise_Night;
  OleDate YamagantaRise_Day;
  OleDate VidaghatiRise_Day;
  OleDate VidaghatiRise_Night;
  OleDate ArdhaPrakarananRise_Day;
  OleDate ArdhaPrakarananRise_Night;

  // Fills every result from the four inputs. Raises CalculationError when a
  // span is too long for a 32-bit count of seconds.
  void findtimes();

 private:
  // Boundary tables: element k is the start of the span plus k parts, each
  // part added in whole seconds to the element before.
  std::array<OleDate, 9> m_dayEighths{};
  std::array<OleDate, 9> m_nightEighths{};
  std::array<OleDate, 17> m_daySixteenths{};
  std::array<OleDate, 17> m_nightSixteenths{};
  std::array<OleDate, 13> m_dayTwelfths{};
  std::array<OleDate, 13> m_nightTwelfths{};
  std::array<OleDate, 31> m_dayThirtieths{};
  std::array<OleDate, 31> m_nightThirtieths{};
  std::array<OleDate, 61> m_wholeDaySixtieths{};
  std::array<OleDate, 16> m_dayFifteenths{};
  std::array<OleDate, 16> m_nightFifteenths{};
};

}  // namespace kelvaro
