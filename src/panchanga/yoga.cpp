#include "panchanga/yoga.h"

#include <array>
#include <cstdint>

namespace kelvaro {

namespace {

// Each yoga spans 13.333 degrees: the 13 degrees 20 minutes cut to three
// decimals, so the bounds are whole multiples of 13.333 and drift below the
// true ones (13.3335 is already the second yoga), and the last row takes up
// the slack to 360. Upper bound included; the first row starts at 0, included.
struct YogaRow {
  double upTo;
  std::int16_t no;
  const char* name;
};

constexpr std::array<YogaRow, 27> kYogas = {{
    {13.333, 1, "Vishkumbha"},
    {26.666, 2, "Preeti"},
    {39.999, 3, "Ayushmaana"},
    {53.332, 4, "Saubhagya"},
    {66.665, 5, "Shobhana"},
    {79.998, 6, "Atiganda"},
    {93.331, 7, "Sukarma"},
    {106.664, 8, "Dhriti"},
    {119.997, 9, "Shoola"},
    {133.33, 10, "Ganda"},
    // 11-20
    {146.663, 11, "Vriddhi"},
    {159.996, 12, "Dhruva"},
    {173.329, 13, "Vyaghata"},
    {186.662, 14, "Harshana"},
    {199.995, 15, "Vajra"},
    {213.328, 16, "Siddhi"},
    {226.661, 17, "Vyatipaata"},
    {239.994, 18, "Variyana"},
    {253.327, 19, "Parigha"},
    {266.66, 20, "Shiva"},
    // 21-27
    {279.993, 21, "Siddha"},
    {293.326, 22, "Sadhya"},
    {306.659, 23, "Shubha"},
    {319.992, 24, "Shukla"},
    {333.325, 25, "Brahma"},
    {346.658, 26, "Indra"},
    {360, 27, "Vaidhriti"},
}};

constexpr double kFullCircle = 360;  // degrees

}  // namespace

void clsYoga::findyoga() {
  double sum = moon_position + sun_position;
  // One fold only, and only above 360: a sum of exactly 360 stays in the last
  // row, and a sum still above 360 after the fold matches nothing.
  if (sum > kFullCircle) sum -= kFullCircle;

  if (!(sum >= 0)) return;
  for (const YogaRow& row : kYogas) {
    if (sum <= row.upTo) {
      YogaName = row.name;
      YogaNo = row.no;
      return;
    }
  }
}

}  // namespace kelvaro
