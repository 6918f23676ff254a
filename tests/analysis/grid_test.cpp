#include "analysis/grid.h"

#include <gtest/gtest.h>

#include "common/calculation_error.h"

namespace kelvaro {
namespace {

TEST(Grid, HeaderCellsAndBounds) {
  Grid g("mshNirayana");
  g.SetHeader("Planet|   Longitude  |   Rasi    ");
  EXPECT_EQ(g.Rows(), 1);
  EXPECT_EQ(g.Cols(), 3);
  EXPECT_EQ(g.Text(0, 1), "   Longitude  ");  // captions keep their blanks
  g.Resize(11, 3);
  g.SetText(10, 2, "Capricon");
  g.SetBold(10, 2, true);
  EXPECT_EQ(g.Text(0, 0), "Planet");  // kept through the resize
  EXPECT_TRUE(g.Bold(10, 2));
  EXPECT_FALSE(g.Bold(9, 2));
  EXPECT_EQ(g.RowTexts(10), (std::vector<std::string>{"", "", "Capricon"}));
  EXPECT_THROW(g.Text(11, 0), CalculationError);
  EXPECT_THROW(g.SetText(0, 3, "x"), CalculationError);
  EXPECT_THROW(g.Text(-1, 0), CalculationError);
  g.Resize(2, 2);
  EXPECT_EQ(g.Text(0, 1), "   Longitude  ");
  g.Clear();
  EXPECT_EQ(g.Rows(), 0);
  EXPECT_THROW(g.Text(0, 0), CalculationError);
}

}  // namespace
}  // namespace kelvaro
