// Preferences: the eight tests of the custom ayanamsa in their order, the
// reset of the custom values for other ayanamsas, and the saved row.
#include <gtest/gtest.h>

#include "store/database.h"
#include "store/preferences.h"
#include "store/store_error.h"
#include "store_test_support.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;

PreferenceInput Custom(const std::string& zero, const std::string& progression) {
  return {"Custom", "Equal", 365.25, "South", "English", zero, progression};
}

TEST(PreferenceValidation, EightTestsInOrder) {
  const struct {
    const char* zero;
    const char* progression;
    std::optional<FieldMessage> expected;
  } cases[] = {
      {"", "", FieldMessage{"txtZero", "Enter Zero Year"}},
      {" ", "abc", FieldMessage{"txtZero", "Enter Zero Year"}},
      {"abc", "", FieldMessage{"txtPogression", "Enter Progression"}},
      {"abc", "xyz", FieldMessage{"txtZero", "Enter Year in Number"}},
      {"2004", "xyz", FieldMessage{"txtPogression", "Enter Progression in Number "}},
      {"2004", "-1", FieldMessage{"txtZero", "Enter Zero Year Less than current Year "}},
      {"2003.5", "50", FieldMessage{"txtZero", "Enter Zero Year Less than current Year "}},
      {"-1", "-1", FieldMessage{"txtZero", "Enter Positive Zero Year "}},
      {"-0.5", "50", FieldMessage{"txtZero", "Enter Positive Zero Year "}},
      {"285", "-0.01", FieldMessage{"txtPogression", "Enter Positive Progression "}},
      {"285", "1000.5", FieldMessage{"txtPogression", "Enter Progression less than 1000"}},
      {"285", "1.5e3", FieldMessage{"txtPogression", "Enter Progression less than 1000"}},
      // The limits themselves pass, and the tests read the text as a number.
      {"2003", "1000", std::nullopt},
      {"0", "0", std::nullopt},
      {"1.5e3", " 50.2 ", std::nullopt},
      {"+285", "50", std::nullopt},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.zero) + " / " + c.progression);
    EXPECT_EQ(ValidatePreferences(Custom(c.zero, c.progression)), c.expected);
  }
}

TEST(PreferenceValidation, OnlyTheCustomAyanamsaIsTested) {
  for (const Choice& choice : kAyanamsaChoices) {
    PreferenceInput in = Custom("", "abc");
    in.ayanamsa = std::string(choice.stored);
    SCOPED_TRACE(in.ayanamsa);
    EXPECT_EQ(ValidatePreferences(in).has_value(), in.ayanamsa == "Custom");
  }
}

TEST(PreferenceValidation, OtherAyanamsasDropTheCustomValues) {
  PreferenceInput in = Custom("285", "50.5");
  in.ayanamsa = "Raman";
  const PreferenceOutcome raman = PreferencesFromInput(in);
  ASSERT_FALSE(raman.failure.has_value());
  EXPECT_EQ(raman.values.customYear, 0.0);
  EXPECT_EQ(raman.values.customProgress, 0.0);

  const PreferenceOutcome custom = PreferencesFromInput(Custom("285", "50.5"));
  EXPECT_EQ(custom.values.customYear, 285.0);
  EXPECT_EQ(custom.values.customProgress, 50.5);
}

TEST(PreferenceChoices, ListTextsAndStoredValues) {
  EXPECT_EQ(StoredValueOf(kAyanamsaChoices, "Krishnamoorthy Ayanamsa"), "KP");
  EXPECT_EQ(StoredValueOf(kAyanamsaChoices, "Chitrapaksha Ayanamsa (Lahiri)"), "Lahiri");
  EXPECT_EQ(ListTextOf(kAyanamsaChoices, "Sayana"), "Tropical Ayanamsa (Sayana)");
  EXPECT_EQ(ListTextOf(kBhavaChoices, "Not Equal"), "Placidius");
  EXPECT_EQ(StoredValueOf(kBhavaChoices, "Equal House"), "Equal");
  EXPECT_EQ(ListTextOf(kChartStyleChoices, "East"), "East Indian");
  EXPECT_EQ(StoredValueOf(kDayInYearChoices, "360"), "360");
  EXPECT_FALSE(StoredValueOf(kLanguageChoices, "Tamil").has_value());
}

TEST(Preferences, SaveRewritesTheOneRow) {
  TempFolder folder;
  const auto path = folder / "DBMirvaneBasic.db";
  {
    Database db(path);
    PreferenceInput in = Custom("285", "50.25");
    in.bhava = "Not Equal";
    in.dayInYear = 360;
    in.chartStyle = "North";
    in.language = "Sanskrit";
    EXPECT_TRUE(SavePreferences(db, in).ok());
    EXPECT_EQ(SavePreferences(db, Custom("2004", "1")).failure,
              (FieldMessage{"txtZero", "Enter Zero Year Less than current Year "}));
  }
  Database db(path);
  const Preferences p = ReadPreferences(db);
  EXPECT_EQ(p.ayanamsa, "Custom");
  EXPECT_EQ(p.bhava, "Not Equal");
  EXPECT_EQ(p.dayInYear, 360.0);
  EXPECT_EQ(p.chartStyle, "North");
  EXPECT_EQ(p.language, "Sanskrit");
  EXPECT_EQ(p.customYear, 285.0);
  EXPECT_EQ(p.customProgress, 50.25);
  EXPECT_EQ(db.Connection().execAndGet("SELECT count(*) FROM Preference").getInt(), 1);

  PreferenceInput lahiri = Custom("285", "50.25");
  lahiri.ayanamsa = "Lahiri";
  ASSERT_TRUE(SavePreferences(db, lahiri).ok());
  EXPECT_EQ(ReadPreferences(db).customYear, 0.0);
}

TEST(Preferences, AMissingRowIsAStoreError) {
  TempFolder folder;
  Database db(folder / "DBMirvaneBasic.db");
  db.Connection().exec("DELETE FROM Preference");
  EXPECT_THROW(ReadPreferences(db), StoreError);
  EXPECT_THROW(SavePreferences(db, Custom("0", "0")), StoreError);
}

}  // namespace
}  // namespace kelvaro::store
