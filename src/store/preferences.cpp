#include "store/preferences.h"

#include "store/store_error.h"
#include "store/text_rules.h"

namespace kelvaro::store {

namespace {

// The test is against the fixed year 2003, whatever the message says.
constexpr double kLatestZeroYear = 2003;
constexpr double kLargestProgression = 1000;

}  // namespace

std::optional<std::string_view> StoredValueOf(std::span<const Choice> choices, std::string_view listText) {
  for (const Choice& c : choices) {
    if (c.listText == listText) return c.stored;
  }
  return std::nullopt;
}

std::optional<std::string_view> ListTextOf(std::span<const Choice> choices, std::string_view stored) {
  for (const Choice& c : choices) {
    if (c.stored == stored) return c.listText;
  }
  return std::nullopt;
}

Preferences ReadPreferences(Database& db) {
  auto row = db.Read("read the preferences", [](SQLite::Database& c) -> std::optional<Preferences> {
    SQLite::Statement q(c,
                        "SELECT DayInYear, ChartStyle, PreferLanguage, Ayanamsa, Bhava, CustomYear, CustomProgress "
                        "FROM Preference ORDER BY PreID LIMIT 1");
    if (!q.executeStep()) return std::nullopt;
    Preferences p;
    p.dayInYear = q.getColumn(0).getDouble();
    p.chartStyle = q.getColumn(1).getString();
    p.language = q.getColumn(2).getString();
    p.ayanamsa = q.getColumn(3).getString();
    p.bhava = q.getColumn(4).getString();
    p.customYear = q.getColumn(5).getDouble();
    p.customProgress = q.getColumn(6).getDouble();
    return p;
  });
  if (!row) throw StoreError("\"" + db.Path().string() + "\" has no preferences row");
  return *row;
}

std::optional<FieldMessage> ValidatePreferences(const PreferenceInput& in) {
  if (in.ayanamsa != "Custom") return std::nullopt;
  if (IsBlank(in.zeroYear)) return FieldMessage{"txtZero", "Enter Zero Year"};
  if (IsBlank(in.progression)) return FieldMessage{"txtPogression", "Enter Progression"};
  const auto year = NumericValue(in.zeroYear);
  if (!year) return FieldMessage{"txtZero", "Enter Year in Number"};
  const auto progression = NumericValue(in.progression);
  if (!progression) return FieldMessage{"txtPogression", "Enter Progression in Number "};
  if (*year > kLatestZeroYear) return FieldMessage{"txtZero", "Enter Zero Year Less than current Year "};
  if (*year < 0) return FieldMessage{"txtZero", "Enter Positive Zero Year "};
  if (*progression < 0) return FieldMessage{"txtPogression", "Enter Positive Progression "};
  if (*progression > kLargestProgression) return FieldMessage{"txtPogression", "Enter Progression less than 1000"};
  return std::nullopt;
}

PreferenceOutcome PreferencesFromInput(const PreferenceInput& in) {
  PreferenceOutcome out;
  out.failure = ValidatePreferences(in);
  if (out.failure) return out;
  Preferences& p = out.values;
  p.ayanamsa = in.ayanamsa;
  p.bhava = in.bhava;
  p.dayInYear = in.dayInYear;
  p.chartStyle = in.chartStyle;
  p.language = in.language;
  // A stale custom year must not remain once another ayanamsa is chosen.
  if (in.ayanamsa == "Custom") {
    p.customYear = *NumericValue(in.zeroYear);
    p.customProgress = *NumericValue(in.progression);
  }
  return out;
}

WriteResult SavePreferences(Database& db, const PreferenceInput& input) {
  const PreferenceOutcome outcome = PreferencesFromInput(input);
  if (outcome.failure) return WriteResult{outcome.failure, 0, {}, {}};
  const Preferences& p = outcome.values;
  db.Write("save the preferences", [&](SQLite::Database& c) {
    SQLite::Statement update(c,
                             "UPDATE Preference SET Ayanamsa = ?, Bhava = ?, DayInYear = ?, ChartStyle = ?, "
                             "PreferLanguage = ?, CustomYear = ?, CustomProgress = ? WHERE PreID = '1'");
    update.bind(1, p.ayanamsa);
    update.bind(2, p.bhava);
    update.bind(3, p.dayInYear);
    update.bind(4, p.chartStyle);
    update.bind(5, p.language);
    update.bind(6, p.customYear);
    update.bind(7, p.customProgress);
    if (update.exec() == 0) {
      throw StoreError("Cannot save the preferences in \"" + db.Path().string() + "\": it has no preferences row");
    }
  });
  return {};
}

}  // namespace kelvaro::store
