#include "common/type_ahead.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

TEST(TypeAhead, FirstItemFromTheTopWithoutRegardToCase) {
  const std::vector<std::string> items{"India", "Indonesia", "Iran", "\xC3\x85land Islands", "india (old)"};
  EXPECT_EQ(FindItemStartingWith(items, "ind"), 0u);
  EXPECT_EQ(FindItemStartingWith(items, "INDO"), 1u);
  EXPECT_EQ(FindItemStartingWith(items, "india "), 4u);
  EXPECT_EQ(FindItemStartingWith(items, "\xC3\x85l"), 3u);
  EXPECT_FALSE(FindItemStartingWith(items, "\xC3\xA5l").has_value());  // only A to Z fold
  EXPECT_FALSE(FindItemStartingWith(items, "Indiana").has_value());
  EXPECT_FALSE(FindItemStartingWith(items, "").has_value());
}

}  // namespace
}  // namespace kelvaro
