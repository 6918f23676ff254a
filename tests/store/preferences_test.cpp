// Preferences: the eight tests of the custom ayanamsa in their order, the
// reset of the custom values for other ayanamsas, and the saved row.
#include <gtest/gtest.h>

#include "store/database.h"
#include "store/preferences.h"
#include "store/store_error.h"
#include "store_test_support.h"
#include "support/test_data.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;
using namespace std::string_literals;

PreferenceInput Custom(const std::string& zero, const std::string& progression) {
  return {"Custom", "Equal", 365.25, "South", "English", zero, progression};
}

// From tests/data/store/custom_ayanamsa_checks.txt.
TEST(PreferenceValidation, EightTestsInOrder) {
  const auto rows = kelvaro::testing::TestDataTable("store/custom_ayanamsa_checks.txt");
  ASSERT_EQ(rows.size(), 16u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 4u);
    SCOPED_TRACE(row[0] + " / " + row[1]);
    const std::optional<FieldMessage> expected =
        row[2].empty() ? std::nullopt : std::optional<FieldMessage>(FieldMessage{row[2], row[3]});
    EXPECT_EQ(ValidatePreferences(Custom(row[0], row[1])), expected);
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
  EXPECT_EQ(testing::PreferenceFields(ReadPreferences(db)),
            std::make_tuple("Custom"s, "Not Equal"s, 360.0, "North"s, "Sanskrit"s, 285.0, 50.25));
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
