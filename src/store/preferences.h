#pragma once
// Preferences: the one row of Preference (PreID "1"), read at start and
// changed by the preferences dialog.
#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "store/database.h"
#include "store/field_message.h"

namespace kelvaro::store {

struct Preferences {
  std::string ayanamsa;  // "Lahiri", "Raman", "KP", "Sayana" or "Custom"
  std::string bhava;     // "Equal" or "Not Equal"
  double dayInYear = 365.25;
  std::string chartStyle;  // "South", "North" or "East"
  std::string language;    // "English" or "Sanskrit"
  double customYear = 0.0;
  double customProgress = 0.0;
};

// A dialog list: the text shown and the value stored.
struct Choice {
  std::string_view listText;
  std::string_view stored;
};

inline constexpr std::array<Choice, 5> kAyanamsaChoices{{
    {"Chitrapaksha Ayanamsa (Lahiri)", "Lahiri"},
    {"Raman Ayanamsa", "Raman"},
    {"Krishnamoorthy Ayanamsa", "KP"},
    {"Tropical Ayanamsa (Sayana)", "Sayana"},
    {"Custom Ayanamsa", "Custom"},
}};
inline constexpr std::array<Choice, 2> kDayInYearChoices{{{"365.25", "365.25"}, {"360", "360"}}};
// The dialog lists "Equal House" only; "Placidius" is the text a stored
// "Not Equal" shows as, and the save keeps it. Only the data can set it.
inline constexpr std::array<Choice, 2> kBhavaChoices{{{"Equal House", "Equal"}, {"Placidius", "Not Equal"}}};
inline constexpr std::size_t kBhavaListed = 1;
inline constexpr std::array<Choice, 3> kChartStyleChoices{{
    {"South Indian", "South"},
    {"North Indian", "North"},
    {"East Indian", "East"},
}};
inline constexpr std::array<Choice, 2> kLanguageChoices{{{"English", "English"}, {"Sanskrit", "Sanskrit"}}};

// The stored value of a list text, and back; nothing for a text not listed.
std::optional<std::string_view> StoredValueOf(std::span<const Choice> choices, std::string_view listText);
std::optional<std::string_view> ListTextOf(std::span<const Choice> choices, std::string_view stored);

// Reads the row. A database without it gives a StoreError.
Preferences ReadPreferences(Database& db);

// The dialog's fields: the choices as stored values, the two custom fields as
// typed.
struct PreferenceInput {
  std::string ayanamsa;
  std::string bhava;
  double dayInYear = 365.25;
  std::string chartStyle;
  std::string language;
  std::string zeroYear;     // txtZero
  std::string progression;  // txtPogression
};

// The eight tests, made only for the "Custom" ayanamsa, in order:
// "Enter Zero Year", "Enter Progression", "Enter Year in Number",
// "Enter Progression in Number ", "Enter Zero Year Less than current Year "
// (above 2003), "Enter Positive Zero Year " (below 0), "Enter Positive
// Progression " (below 0), "Enter Progression less than 1000" (above 1000).
// 2003, 0 and 1000 pass.
std::optional<FieldMessage> ValidatePreferences(const PreferenceInput& input);

// What "&Apply" takes: the validated values, with the zero year and the
// progression set to 0 for any ayanamsa but "Custom".
struct PreferenceOutcome {
  std::optional<FieldMessage> failure;
  Preferences values;
};
PreferenceOutcome PreferencesFromInput(const PreferenceInput& input);

// "&Save": the same, then the row is rewritten. No message on success.
WriteResult SavePreferences(Database& db, const PreferenceInput& input);

}  // namespace kelvaro::store
