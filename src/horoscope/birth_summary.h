#pragma once
// The birth summary: the person, the clock in four reckonings, the place and
// the almanac of the moment, as the details view shows them. Each field is
// named after the control that shows it and holds its text.
#include <string>
#include <utility>
#include <vector>

#include "common/ole_date.h"

namespace kelvaro {

struct CalculationContext;

struct BirthSummary {
  // Working values of the two clock calculations.
  OleDate SummaryMoment;          // the moment as parsed from the birth text
  OleDate LocalMeanTimeMoment;    // after the correction from zone time to local mean time
  OleDate SunriseForGhati;        // sunrise of the day that holds the moment
  double IshtaGhatiMinutes = 0;   // minutes from that sunrise to the moment
  double IshtaGhati = 0;          // the same in ghatis
  bool IshtaGhatiKnown = true;    // false where the day has no sunrise: then the two above are 0
  std::string IshtaGhatiWords;    // why not, "Sun does not rise" or "Sun does not set"
  double SunAtGhatiDate = 0;      // the Sun's longitude on the date in force, kept

  // The fields, in the order they are written.
  std::string txtGName, txtSex, Txt_BC_Date, txtTimeOfBirth, txtist, txtlmt, txtgmt, txtIshtaGhati, txtAyanamsa,
      txtCity, txtCountry, txtLatutude, txtLongitude, txtSunRise, txtSunSet, txtGregorian, txtVedic, txtTimeZone,
      txtKLunarDate, txtSLunarDate, txtKaliyugaYear, txtSolarDate, txtAyana, txtLagna, txtStar, txtTithi, txtPaksha,
      txtKarnam, txtRasi, txtYogam;
  // The clock offset's reason; listed last, and only when there is one.
  std::string txtClockOffset;

  // (control name, label, text) in the order above.
  struct Field {
    const char* control;
    const char* label;
    const std::string* text;
  };
  std::vector<Field> Fields() const;
};

// What the Kaliyuga year and the solar date say for a moment whose year the
// year table does not reach.
inline constexpr const char* kYearNotKnown = "Not known: the year table does not reach this year";

// Fills ctx.summary from the state of the Rasi pass (step 6 of the
// calculation: the rasi fields hold Rasi positions).
void FillBirthSummary(CalculationContext& ctx);

// The local mean time of the birth into txtlmt; returns the ishta ghati.
double ComputeLocalMeanTime(CalculationContext& ctx);

// The ishta ghati text into txtIshtaGhati.
void ComputeIshtaGhati(CalculationContext& ctx);

}  // namespace kelvaro
