// FillBirthSummary: the details view's fields, in the order they are written.
#include "horoscope/birth_summary.h"

#include <cmath>
#include <optional>
#include <string>

#include "common/angle_text.h"
#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/number_rules.h"
#include "horoscope/calculation_context.h"

namespace kelvaro {

std::vector<BirthSummary::Field> BirthSummary::Fields() const {
  std::vector<Field> fields = {
      {"txtGName", "Name", &txtGName},
      {"txtSex", "Gender", &txtSex},
      {"Txt_BC_Date", "Date of Birth", &Txt_BC_Date},
      {"txtTimeOfBirth", "Time of Birth", &txtTimeOfBirth},
      {"txtist", "Standard Time", &txtist},
      {"txtlmt", "Local Mean Time", &txtlmt},
      {"txtgmt", "Greenwich Time", &txtgmt},
      {"txtIshtaGhati", "Ishta Ghati", &txtIshtaGhati},
      {"txtAyanamsa", "Ayanamsa", &txtAyanamsa},
      {"txtCity", "City", &txtCity},
      {"txtCountry", "Country", &txtCountry},
      {"txtLatutude", "Latitude", &txtLatutude},
      {"txtLongitude", "Longitude", &txtLongitude},
      {"txtSunRise", "Sunrise", &txtSunRise},
      {"txtSunSet", "Sunset", &txtSunSet},
      {"txtGregorian", "Gregorian Day", &txtGregorian},
      {"txtVedic", "Vedic Day", &txtVedic},
      {"txtTimeZone", "Time Zone", &txtTimeZone},
      {"txtKLunarDate", "Lunar Date (Krishnadi)", &txtKLunarDate},
      {"txtSLunarDate", "Lunar Date (Sukladi)", &txtSLunarDate},
      {"txtKaliyugaYear", "Kaliyuga Year", &txtKaliyugaYear},
      {"txtSolarDate", "Solar Date", &txtSolarDate},
      {"txtAyana", "Ayana", &txtAyana},
      {"txtLagna", "Lagna", &txtLagna},
      {"txtStar", "Star", &txtStar},
      {"txtTithi", "Tithi", &txtTithi},
      {"txtPaksha", "Paksha", &txtPaksha},
      {"txtKarnam", "Karanam", &txtKarnam},
      {"txtRasi", "Rasi", &txtRasi},
      {"txtYogam", "Yogam", &txtYogam},
  };
  if (!txtClockOffset.empty()) fields.push_back({"txtClockOffset", "Clock Offset", &txtClockOffset});
  return fields;
}

namespace {

// Sunrise of the day that holds the moment: the day before's when the moment
// is less than a whole minute after that date's sunrise (or before it).
// Nothing where that date has no sunrise of its own (beyond the polar
// circles); `why` then says what the Sun does instead.
std::optional<OleDate> SunriseOfTheDay(CalculationContext& ctx, OleDate moment, SunEvent& why) {
  OleDate sunrise = SunriseAtBirthPlace(ctx, moment);
  why = ctx.sunrise.LastSunrise();
  if (why.kind != SunEventKind::OnDate) return std::nullopt;
  if (DateDiff(Interval::Minute, sunrise, moment) >= 1) return sunrise;
  sunrise = SunriseAtBirthPlace(ctx, DateAdd(Interval::Day, -1, moment));
  why = ctx.sunrise.LastSunrise();
  if (why.kind != SunEventKind::OnDate) return std::nullopt;
  return sunrise;
}

// Steps 4 and 5 of the local mean time, shared with the ishta ghati. Both
// use the local mean time moment, so the sunrise is the last one before it
// and the ghati lies from 0 to below 60. Without a sunrise the ghati is not
// known and the words say why.
void GhatiFromSunrise(CalculationContext& ctx) {
  BirthSummary& b = ctx.summary;
  SunEvent why;
  const std::optional<OleDate> sunrise = SunriseOfTheDay(ctx, b.LocalMeanTimeMoment, why);
  b.IshtaGhatiKnown = sunrise.has_value();
  if (!sunrise) {
    b.IshtaGhatiWords = SunEventWords(why);
    b.IshtaGhatiMinutes = b.IshtaGhati = 0;
    return;
  }
  b.SunriseForGhati = *sunrise;
  b.IshtaGhatiMinutes = static_cast<double>(DateDiff(Interval::Minute, b.SunriseForGhati, b.LocalMeanTimeMoment));
  b.IshtaGhati = b.IshtaGhatiMinutes / 60 * 2.5;
}

// A sunrise or sunset for the details: the clock on the date, the full date
// and clock after midnight, or the words.
std::string SunEventField(const SunEvent& event, OleDate onDate) {
  switch (event.kind) {
    case SunEventKind::OnDate: return FormatDate(onDate, "HH:NN AM/PM");
    case SunEventKind::NextDate: return FormatDate(event.moment, "dd/MMM/YYYY HH:NN AM/PM");
    default: return SunEventWords(event);
  }
}

std::string PlaceText(double degrees, double minutes, const std::string& letter) {
  return NumberText(degrees) + " " + NumberText(minutes) + " " + letter;
}

// The months of the northern course of the Sun; the other six are the
// southern.
bool IsUttarayana(const std::string& month) {
  for (const char* m : {"Vaisakha", "Chaitra", "Jyeshtha", "Pausha", "Magha", "Phalguna"}) {
    if (month == m) return true;
  }
  return false;
}

bool IsDakshinayana(const std::string& month) {
  // Karttika under both of its spellings, so the ayana is never blank.
  for (const char* m : {"Sravana", "Ashadha", "Bhadrapada", "Asvina", "Karttika", "Kartikka", "Margasira"}) {
    if (month == m) return true;
  }
  return false;
}

// The two lunar dates, the Kaliyuga year, the solar date and the ayana.
void FillCalendarFields(CalculationContext& ctx) {
  const HoroscopeState& s = ctx.state;
  BirthSummary& b = ctx.summary;
  LunarCalendarInputs in;
  in.place = {s.LatNS, s.LatDeg, s.LatMin, s.LonEW, s.LonDeg, s.LonMin, s.TimeDiff, s.TimeDiffEW};
  in.ayanamsa = s.AyanamsaInForce;
  in.customYear = s.PrefYear;  // the Preference row's values, as the searches read them
  in.customProgress = s.PrefProgress;
  // Krishnadi first, Sukladi second: the first reads what the second kept in
  // the previous horoscope.
  b.txtKLunarDate = LunarDateText(ctx.lunar.LunarDateKrishnadi(b.SummaryMoment, "TP", in));
  const LunarDate sukladi = ctx.lunar.LunarDateSukladi(b.SummaryMoment, "TP", in);
  b.txtSLunarDate = LunarDateText(sukladi);
  const SolarDate solar =
      ctx.solar.SolarDateOf(b.SummaryMoment, ctx.today(), SunTimesAt(ctx.sunrise, ctx.sunset, in.place));
  // Where the year table knows no start of the year, say so rather than
  // show an empty field and a year 0.
  b.txtKaliyugaYear = solar.found ? std::to_string(solar.kaliyugaYear) : std::string(kYearNotKnown);
  b.txtSolarDate = solar.found ? SolarDateText(solar) : std::string(kYearNotKnown);
  // The month last found, the Sukladi one, gives the ayana; another word
  // leaves the field as it was.
  if (IsUttarayana(sukladi.month)) b.txtAyana = "Uttrayana";
  else if (IsDakshinayana(sukladi.month)) b.txtAyana = "Dakshinaya";
}

}  // namespace

double ComputeLocalMeanTime(CalculationContext& ctx) {
  const HoroscopeState& s = ctx.state;
  BirthSummary& b = ctx.summary;
  // East longitudes and east zones count positive, so "west of the zone
  // meridian" is geometric: New York, 74 W in the zone of 75 W, lies east of
  // its meridian and its local mean time is later than the clock.
  const double longitude = (s.LonEW == "W" ? -1 : 1) * (s.LonDeg + s.LonMin / 60);
  const double meridian = (s.TimeDiffEW == "W" ? -1 : 1) * s.TimeDiff * 15;
  // Degrees of difference times 4 are minutes of time; the digits after the
  // point of that number's text are the fraction that makes the seconds.
  const std::string text = NumberText(std::fabs(longitude - meridian) * 4);
  const auto point = text.find('.');
  const double minutes = std::stod(text.substr(0, point));
  const double seconds = point == std::string::npos ? 0 : Int(std::stod("0" + text.substr(point)) * 60);
  const double sign = longitude < meridian ? -1 : 1;  // west of the zone meridian: earlier
  b.LocalMeanTimeMoment =
      DateAdd(Interval::Second, sign * seconds, DateAdd(Interval::Minute, sign * minutes, b.SummaryMoment));
  b.txtlmt = FormatDate(b.LocalMeanTimeMoment, "dd/MMM/YYYY HH:MM AM/PM");
  GhatiFromSunrise(ctx);
  return b.IshtaGhati;
}

void ComputeIshtaGhati(CalculationContext& ctx) {
  const HoroscopeState& s = ctx.state;
  BirthSummary& b = ctx.summary;
  GhatiFromSunrise(ctx);
  if (!b.IshtaGhatiKnown) {
    b.txtIshtaGhati = b.IshtaGhatiWords;
    return;
  }
  // The date in force goes to the positions, and the Sun there is kept.
  ctx.positions.FindFixValues(b.SunriseForGhati.DateOnly(), s.LatNS, s.LatDeg, s.LatMin, s.LonEW, s.LonDeg,
                              s.LonMin, s.TimeDiff, s.TimeDiffEW, 0, s.AyanamsaInForce, s.YearInForce,
                              s.ProgressInForce);
  b.SunAtGhatiDate = ctx.positions.FnFindSunPosition();
  const std::string text = FormatPattern(b.IshtaGhati, "00.0000");
  const auto point = text.find('.');
  b.txtIshtaGhati = text.substr(0, point) + ":" + text.substr(point + 1);
}

void FillBirthSummary(CalculationContext& ctx) {
  HoroscopeState& s = ctx.state;
  BirthSummary& b = ctx.summary;
  const std::string birthText =
      s.BirthDay + "/" + s.BirthMonth + "/" + s.BirthYear + " " + s.BirthHour + ":" + s.BirthMinute + ": 00";
  const auto moment = ParseDateTime(birthText);
  if (!moment) throw CalculationError("The birth date and time \"" + birthText + "\" is not a valid moment");
  b.SummaryMoment = *moment;

  b.txtGName = s.ChartName;
  b.txtSex = s.BirthGender;
  b.Txt_BC_Date = s.BirthDay + " / " + s.BirthMonth + " / " + s.BirthYear;
  const int hour = moment->Hour();
  b.txtTimeOfBirth = std::to_string(hour % 12 == 0 ? 12 : hour % 12) + " : " + s.BirthMinute + "  " +
                     (hour >= 12 ? "PM" : "AM");
  b.txtist = FormatDate(b.SummaryMoment, "dd/MMM/YYYY HH:MM AM/PM");
  ComputeLocalMeanTime(ctx);
  const double zoneMinutes = s.TimeDiffEW == "E" ? -(s.TimeDiff * 60) : s.TimeDiff * 60;
  b.txtgmt = FormatDate(DateAdd(Interval::Minute, zoneMinutes, b.SummaryMoment), "DD/MMM/YYYY HH:MM AM/PM");
  ComputeIshtaGhati(ctx);
  b.txtAyanamsa = FormatDegrees(s.Ayanamsa) + "  (" + s.AyanamsaName + ")";
  b.txtCity = s.BirthCity;
  b.txtCountry = s.BirthCountry;
  b.txtLatutude = PlaceText(s.LatDeg, s.LatMin, s.LatNS);
  b.txtLongitude = PlaceText(s.LonDeg, s.LonMin, s.LonEW);
  b.txtSunRise = SunEventField(s.SunriseEvent, s.SunriseOfBirthDay);
  b.txtSunSet = SunEventField(s.SunsetEvent, s.SunsetOfBirthDay);
  b.txtGregorian = WeekdayName(b.SummaryMoment.Weekday());
  // The Vedic day begins at sunrise; on a date without one it is the civil day.
  const bool beforeSunrise = s.SunriseEvent.kind == SunEventKind::OnDate && b.SummaryMoment < s.SunriseOfBirthDay;
  const OleDate vedicDay = beforeSunrise ? DateAdd(Interval::Day, -1, b.SummaryMoment) : b.SummaryMoment;
  b.txtVedic = WeekdayName(vedicDay.Weekday());
  b.txtTimeZone = s.BirthTimeZoneName;
  b.txtClockOffset = s.ClockOffsetNote;

  FillCalendarFields(ctx);

  b.txtLagna = s.RasiNames[static_cast<size_t>(s.LagnaRasi - 1)];
  ctx.star.PlanetPosition = s.MoonLon;
  ctx.star.findstar();
  b.txtStar = ctx.star.StarName + ", Pada: " + std::to_string(ctx.star.StarQuarter);
  ctx.tithi.moonA = s.MoonLon;
  ctx.tithi.sunC = s.SunLon;
  ctx.tithi.FindTithi();
  b.txtTithi = ctx.tithi.Tithi;
  b.txtPaksha = ctx.tithi.TithiNo <= 15 ? "Sukla Paksha (Bright)" : "Krishna Paksha (Dark)";
  b.txtKarnam = ctx.tithi.Karnam;
  ctx.rasi.nchkLanguage = s.Language;
  ctx.rasi.PlanetPosition = s.MoonLon;
  ctx.rasi.findRasi();
  b.txtRasi = ctx.rasi.RasiName;
  ctx.yoga.moon_position = s.MoonLon;
  ctx.yoga.sun_position = s.SunLon;
  ctx.yoga.findyoga();
  b.txtYogam = ctx.yoga.YogaName;
}

}  // namespace kelvaro
