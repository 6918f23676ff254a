#pragma once
// Reading a birth from the command line's text forms, with messages that name
// the field and the value. Shared by the single-birth flags and the batch CSV.
#include <optional>
#include <string>

#include "common/text_checks.h"
#include "horoscope/horoscope_state.h"

namespace kelvaro::cli {

// The raw texts of one birth, as typed.
struct BirthText {
  std::string date;      // DD/MM/YYYY
  std::string time;      // HH:MM, 24-hour clock
  std::string lat;       // DEG{N|S}MIN, e.g. 17N20
  std::string lon;       // DEG{E|W}MIN, e.g. 78E30
  std::string tz;        // HOURS{E|W}, e.g. 5.5E
  std::string ayanamsa;  // Lahiri, Raman, KP, Sayana or Custom
  std::optional<std::string> zeroYear;  // Custom only
  std::optional<std::string> progress;  // Custom only
};

// What went wrong: the field (as the user named it) and a sentence.
struct InputError {
  std::string field;
  std::string value;
  std::string problem;
  std::string Message() const {
    return value.empty() ? field + ": " + problem : field + " \"" + MessageValue(value) + "\": " + problem;
  }
};

// Fills the birth details and the ayanamsa of `state` from the texts, or
// returns the first field that is wrong. `prefix` is put before field names
// ("--" for flags, "" for CSV columns).
std::optional<InputError> ApplyBirthText(const BirthText& text, const std::string& prefix, HoroscopeState& state);

// The same for the date, time and place alone.
std::optional<InputError> ApplyBirthDetails(const BirthText& text, const std::string& prefix, HoroscopeState& state);

// The same for the ayanamsa alone (its name, and for Custom the zero year and
// the progress), into the preference and the copies in force.
std::optional<InputError> ApplyAyanamsa(const std::string& name, const std::optional<std::string>& zeroYear,
                                        const std::optional<std::string>& progress, const std::string& prefix,
                                        HoroscopeState& state);

}  // namespace kelvaro::cli
