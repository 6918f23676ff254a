#include "horoscope/horoscope_state.h"

#include <cmath>

#include "common/number_rules.h"

namespace kelvaro {

namespace {

// The longitude and rasi fields of each body, in the canonical order.
constexpr double HoroscopeState::*kLongitudeFields[kBodyCount] = {
    &HoroscopeState::LagnaLon,  &HoroscopeState::SunLon,     &HoroscopeState::MoonLon,   &HoroscopeState::MarsLon,
    &HoroscopeState::MercuryLon, &HoroscopeState::JupiterLon, &HoroscopeState::VenusLon, &HoroscopeState::SaturnLon,
    &HoroscopeState::RahuLon,   &HoroscopeState::KetuLon,    &HoroscopeState::GulikaLon, &HoroscopeState::MaandiLon};
constexpr std::int16_t HoroscopeState::*kRasiFields[kBodyCount] = {
    &HoroscopeState::LagnaRasi,  &HoroscopeState::SunRasi,     &HoroscopeState::MoonRasi,   &HoroscopeState::MarsRasi,
    &HoroscopeState::MercuryRasi, &HoroscopeState::JupiterRasi, &HoroscopeState::VenusRasi, &HoroscopeState::SaturnRasi,
    &HoroscopeState::RahuRasi,   &HoroscopeState::KetuRasi,    &HoroscopeState::GulikaRasi, &HoroscopeState::MaandiRasi};

}  // namespace

double HoroscopeState::LongitudeOf(Body body) const { return this->*kLongitudeFields[static_cast<int>(body)]; }

std::int16_t HoroscopeState::RasiOf(Body body) const { return this->*kRasiFields[static_cast<int>(body)]; }

void HoroscopeState::SetRasi(Body body, std::int16_t rasi) { this->*kRasiFields[static_cast<int>(body)] = rasi; }

const std::string& HoroscopeState::LongNameOf(Body body) const {
  switch (body) {
    case Body::Jupiter: return LongNames[6];  // Venus stands before Jupiter here
    case Body::Venus: return LongNames[5];
    case Body::Gulika: return GulikaLongName;
    case Body::Maandi: return MaandiLongName;
    default: return LongNames[static_cast<size_t>(body)];
  }
}

ChartData ChartDataOf(const HoroscopeState& s) {
  ChartData d;
  for (int b = 0; b < kBodyCount; ++b) {
    d.longitude[static_cast<size_t>(b)] = s.LongitudeOf(static_cast<Body>(b));
    d.rasi[static_cast<size_t>(b)] = s.RasiOf(static_cast<Body>(b));
  }
  d.midHeaven = s.MidHeaven;
  d.ayanamsa = s.Ayanamsa;
  d.birthMoment = s.BirthMomentDate;
  d.gulikaMaandiKnown = s.GulikaMaandiKnown;
  d.language = s.Language;
  d.bhavaSystem = s.BhavaSystem;
  d.chartStyle = s.ChartStyle;
  d.daysInYear = s.DaysInYear;
  d.ayanamsaInForce = s.AyanamsaInForce;
  d.yearInForce = s.YearInForce;
  d.progressInForce = s.ProgressInForce;
  d.latNS = s.LatNS;
  d.latDeg = s.LatDeg;
  d.latMin = s.LatMin;
  d.lonEW = s.LonEW;
  d.lonDeg = s.LonDeg;
  d.lonMin = s.LonMin;
  d.timeDiff = s.TimeDiff;
  d.timeDiffEW = s.TimeDiffEW;
  d.ShortNames = s.ShortNames;
  d.LongNames = s.LongNames;
  d.RasiNames = s.RasiNames;
  d.RasiShortNames = s.RasiShortNames;
  return d;
}

HoroscopeState SampleChart() {
  HoroscopeState s;
  s.ChartName = "Velnesh";
  s.BirthGender = "Male";
  s.BirthDay = "14";
  s.BirthMonth = "7";
  s.BirthYear = "1965";
  s.BirthHour = "14";
  s.BirthMinute = "15";
  s.BirthMoment = OleDate::FromParts(1965, 7, 14, 14, 15);
  s.BirthCity = "Hyderabad (A.P)";
  s.BirthCountry = "India";
  s.LatDeg = 17;
  s.LatMin = 20;
  s.LatNS = "N";
  s.LonDeg = 78;
  s.LonMin = 30;
  s.LonEW = "E";
  s.TimeDiff = 5.5;
  s.TimeDiffEW = "E";
  return s;
}

namespace {

struct BodyNames {
  const char* englishShort;
  const char* englishLong;
  const char* sanskritShort;
  const char* sanskritLong;
};

// In the canonical body order.
constexpr BodyNames kBodyNames[] = {
    {"Asc", "Asc", "Lag", "Lagna"},        {"Sun", "Sun", "Rav", "Surya"},
    {"Moo", "Moon", "Cha", "Chandra"},     {"Mar", "Mars", "Kuj", "Kuja"},
    {"Mer", "Mercury", "Bud", "Budha"},    {"Jup", "Jupiter", "Gur", "Guru"},
    {"Ven", "Venus", "Suk", "Sukra"},      {"Sat", "Saturn", "San", "Sani"},
    {"Rah", "Rahu", "Rah", "Rahu"},        {"Ket", "Ketu", "Ket", "Ketu"},
    {"Gul", "Gulika", "Gul", "Gulika"},    {"Maa", "Maandi", "Maa", "Maandi"},
};

struct RasiNameRow {
  const char* englishFull;
  const char* englishShort;
  const char* sanskritFull;
  const char* sanskritShort;
};

// "Sagitarius" and "Capricon" are the program's spellings.
constexpr RasiNameRow kRasiNames[] = {
    {"Aries", "Ari", "Mesha", "Mes"},       {"Taurus", "Tau", "Rishaba", "Ris"},
    {"Gemini", "Gem", "Mithuna", "Mit"},    {"Cancer", "Can", "Kataka", "Kat"},
    {"Leo", "Leo", "Simha", "Sim"},         {"Virgo", "Vir", "Kanya", "Kan"},
    {"Libra", "Lib", "Tula", "Tul"},        {"Scorpio", "Sco", "Vrischika", "Vri"},
    {"Sagitarius", "Sag", "Dhanus", "Dha"}, {"Capricon", "Cap", "Makara", "Mak"},
    {"Aquarius", "Aqu", "Kumbha", "Kum"},   {"Pisces", "Pis", "Meena", "Mee"},
};

// LongNames order: Lagna, Sun, Moon, Mars, Mercury, Venus, Jupiter, Saturn, Rahu, Ketu.
constexpr Body kLongNameOrder[] = {Body::Lagna, Body::Sun,     Body::Moon,   Body::Mars, Body::Mercury,
                                   Body::Venus, Body::Jupiter, Body::Saturn, Body::Rahu, Body::Ketu};

}  // namespace

void LoadNamesForLanguage(HoroscopeState& state) {
  bool english;
  if (state.Language == "English") english = true;
  else if (state.Language == "Sanskrit") english = false;
  else return;
  for (size_t i = 0; i < state.ShortNames.size(); ++i) {
    state.ShortNames[i] = english ? kBodyNames[i].englishShort : kBodyNames[i].sanskritShort;
  }
  for (size_t i = 0; i < state.LongNames.size(); ++i) {
    const BodyNames& n = kBodyNames[static_cast<size_t>(kLongNameOrder[i])];
    state.LongNames[i] = english ? n.englishLong : n.sanskritLong;
  }
  for (size_t i = 0; i < 12; ++i) {
    state.RasiNames[i] = english ? kRasiNames[i].englishFull : kRasiNames[i].sanskritFull;
    state.RasiShortNames[i] = english ? kRasiNames[i].englishShort : kRasiNames[i].sanskritShort;
  }
}

std::string BirthMomentText(const std::string& day, const std::string& month, const std::string& year,
                            const std::string& hour, const std::string& minute) {
  return day + "/" + month + "/" + year + " " + hour + ":" + minute + ": 00";
}

}  // namespace kelvaro
