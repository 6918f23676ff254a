#include "presentation/chart_geometry.h"

#include <gtest/gtest.h>

namespace kelvaro {
namespace {

TEST(ChartGeometry, HousesSignsAndFolds) {
  struct House {
    int lagna, body, house;
  } houses[] = {{7, 7, 1}, {7, 6, 12}, {7, 10, 4}, {1, 12, 12}, {12, 1, 2}, {1, 1, 1}};
  for (const auto& h : houses) {
    EXPECT_EQ(HouseFromLagna(static_cast<std::int16_t>(h.lagna), static_cast<std::int16_t>(h.body)), h.house);
  }
  EXPECT_EQ(FoldToSign(275.456), 275.456 - 270);
  EXPECT_EQ(FoldToSign(30), 0);
  EXPECT_EQ(FoldToSign(29.999), 29.999);
  EXPECT_EQ(SignOfLongitude(275.456, 30), 10);
  EXPECT_EQ(SignOfLongitude(360, 30), 1);  // 13 folds to 1
  EXPECT_EQ(SignOfLongitude(359.99, 3.33333333333333), 12);
}

}  // namespace
}  // namespace kelvaro
