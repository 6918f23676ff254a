#include <gtest/gtest.h>

#include "store/database.h"
#include "store/personal_details.h"
#include "store_test_support.h"

namespace kelvaro::store {
namespace {

using testing::TempFolder;

TEST(PersonalDetailsTest, ReplaceKeepsOneRowAndClearGivesTheDefaultName) {
  TempFolder folder;
  const auto path = folder / "DBMirvaneBasic.db";
  const PersonalDetails first{"Sri Jyotish", "12 O'Neil St; Flat 3", "", "Chennai", "India", "600001", "+91 44 1234", "a@b.in"};
  const PersonalDetails second{"Ramesh Pandit", "Ålesund vei 4", "2nd floor", "Bergen", "Norway", "5003", "", ""};
  {
    Database db(path);
    EXPECT_EQ(LetterheadOf(db).name, "Kelvaro Technologies Pvt Ltd");
    EXPECT_EQ(LetterheadOf(db).address, "");
    const WriteResult saved = SavePersonalDetails(db, first);
    ASSERT_TRUE(saved.ok());
    EXPECT_EQ(saved.message, "Details Saved");
    ASSERT_TRUE(SavePersonalDetails(db, second).ok());
  }
  Database db(path);
  EXPECT_EQ(ReadPersonalDetails(db), second);
  EXPECT_EQ(db.Connection().execAndGet("SELECT count(*) FROM PersonalDetails").getInt(), 1);
  ClearPersonalDetails(db);
  EXPECT_FALSE(ReadPersonalDetails(db).has_value());
  EXPECT_EQ(LetterheadOf(db).name, "Kelvaro Technologies Pvt Ltd");
}

}  // namespace
}  // namespace kelvaro::store
