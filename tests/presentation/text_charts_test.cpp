#include "presentation/text_charts.h"

#include <gtest/gtest.h>

#include <string>

namespace kelvaro {
namespace {

// ---- Reducers ---------------------------------------------------------------

TEST(ReduceCell, EmptyLabelStaysEmpty) {
  EXPECT_EQ(ReduceCellLines(""), "");
  EXPECT_EQ(ReduceCellPairs(""), "");
  EXPECT_EQ(ReduceCellBlanks(""), "");
}

TEST(ReduceCell, LinesKeepTheNamesOfASouthRasiCell) {
  EXPECT_EQ(ReduceCellLines("Sun  12.5"), "Sun");
  EXPECT_EQ(ReduceCellLines("Sun  12.5\r\nMoo  3.40"), "Sun Moo");
  EXPECT_EQ(ReduceCellLines("Asc  28.19\r\nSun  0.5\r\nMer  29.60"), "Asc Sun Mer");
  // A Navamsa South cell: names with their two trailing blanks.
  EXPECT_EQ(ReduceCellLines("Mar  \r\nSat  "), "Mar Sat");
}

TEST(ReduceCell, LinesKeepOnlyThreeCharactersOfAnEastRasiLabel) {
  // The East Rasi label joins its bodies with blanks and no CR LF.
  EXPECT_EQ(ReduceCellLines("Sun    Moo"), "Sun");
  EXPECT_EQ(ReduceCellLines("Sun    Moo    Mar"), "Sun");
}

TEST(ReduceCell, PairsSplitANorthLabel) {
  EXPECT_EQ(ReduceCellPairs("Asc  "), "Asc");
  EXPECT_EQ(ReduceCellPairs("Lagna  Sun  Moo  "), "Lag Sun Moo");
  // A label of one body with no trailing blanks.
  EXPECT_EQ(ReduceCellPairs("Rah"), "Rah");
}

TEST(ReduceCell, BlanksSplitABhavaLabel) {
  EXPECT_EQ(ReduceCellBlanks("Asc Sun Moo"), "Asc Sun Moo");
  EXPECT_EQ(ReduceCellBlanks("Asc "), "Asc");
  // Two blanks in a row leave an empty piece, which still adds its blank.
  EXPECT_EQ(ReduceCellBlanks("Sun  Moo"), "Sun  Moo");
}

TEST(ReduceCell, EmptyPiecesInsideAddBlanksTheEndsDoNot) {
  EXPECT_EQ(ReduceCellLines("Sun  1.2\r\n\r\nMoo  3.4"), "Sun  Moo");
  EXPECT_EQ(ReduceCellLines("\r\nSun  1.2\r\n"), "Sun");
  EXPECT_EQ(ReduceCellPairs("Sun      Moo"), "Sun   Moo");
  EXPECT_EQ(ReduceCellBlanks("   "), "");
}

// ---- TightenBlanks -----------------------------------------------------------

TEST(TightenBlanks, RunsOfThreeInOnePassFromTheLeft) {
  EXPECT_EQ(TightenBlanks(""), "");
  EXPECT_EQ(TightenBlanks("  "), "  ");
  EXPECT_EQ(TightenBlanks("   "), " ");
  EXPECT_EQ(TightenBlanks("    "), "  ");
  EXPECT_EQ(TightenBlanks("     "), "   ");  // not looked at again
  EXPECT_EQ(TightenBlanks("      "), "  ");
  EXPECT_EQ(TightenBlanks("Sun   Moo"), "Sun Moo");
  EXPECT_EQ(TightenBlanks("Sun    Moo  Mar"), "Sun  Moo  Mar");
}

}  // namespace
}  // namespace kelvaro
