#include "cli/grid_output.h"

#include <gtest/gtest.h>

namespace kelvaro::cli {
namespace {

TEST(GridOutput, AlignedColumnsAndRowsOfTexts) {
  Grid g("mshTest");
  g.SetHeader("Planet|Rasi");
  g.Resize(3, 2);
  g.SetText(1, 0, "Sun");
  g.SetText(1, 1, "Gemini");
  g.SetText(2, 0, "Moon");
  g.SetText(2, 1, "Capricon\r\nMoo  5.27");  // a cell of two lines
  EXPECT_EQ(GridText(g),
            "Planet  Rasi\n"
            "-----------------\n"
            "Sun     Gemini\n"
            "Moon    Capricon\n"
            "        Moo  5.27\n");
  EXPECT_EQ(GridJson(g).dump(), R"([["Planet","Rasi"],["Sun","Gemini"],["Moon","Capricon\r\nMoo  5.27"]])");
}

}  // namespace
}  // namespace kelvaro::cli
