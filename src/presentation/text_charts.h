#pragma once
// The report's charts in plain text, drawn with "*": one routine per chart
// style, each laying twelve short cell texts into fixed fields of its line
// table; and the reducers that turn the on-screen cell labels into those
// texts (three-letter body names joined by one blank).
#include <array>
#include <string>

#include "presentation/chart_cells.h"

namespace kelvaro {

// The three reducers: split the label at CR LF, at two blanks or at one
// blank; trim each piece (blanks only), keep its first three characters and
// a blank; trim the whole at the end. An empty label gives "". A South Rasi
// cell "Sun  12.5\r\nMoo  3.40" gives "Sun Moo" by ReduceCellLines; an East
// Rasi label "Sun    Moo" has no CR LF and gives "Sun" (the report keeps
// three characters of the whole label there, on purpose).
std::string ReduceCellLines(const std::string& label);
std::string ReduceCellPairs(const std::string& label);
std::string ReduceCellBlanks(const std::string& label);

// Replaces each run of three blanks by one, in one pass from the left, as a
// plain text replace of "   " by " " does: four blanks become two.
std::string TightenBlanks(const std::string& text);

// The twelve cell texts of a text chart; index 0 is cell 1.
using TextChartCells = std::array<std::string, 12>;

// Left margins of the drawings, in blanks: each drawing stands about the
// middle of the report's 70-column rules.
inline constexpr int kSouthTextChartMargin = 10;  // 49 columns wide
inline constexpr int kNorthTextChartMargin = 14;  // 41 columns wide
inline constexpr int kEastTextChartMargin = 13;   // 43 columns wide

// Each returns the drawing: every line begins with the routine's left margin
// and ends with "\r\n". Each routine tightens the blanks of its twelve cells
// first. The South chart carries the title in its open centre (cut to the
// centre's 23 columns if longer); the North and East charts carry it on a
// line of its own above the frame, centred over the frame's width.
std::string SouthTextChart(const TextChartCells& cells, const std::string& title);
// lagnaSign is the sign of house 1 (cell 1); the sign of house k, folded
// into 1 to 12, stands at the inner corner of cell k.
std::string NorthTextChart(const TextChartCells& cells, const std::string& title, int lagnaSign);
std::string EastTextChart(const TextChartCells& cells, const std::string& title);

// The report's cells of one window in a style, compared upper-cased with
// "SOUTH", "NORTH", "EAST": South labels 0 to 11 by ReduceCellLines, North
// labels 1 to 12 by ReduceCellPairs, East labels 1 to 12 by ReduceCellLines.
// Another style gives twelve empty cells.
TextChartCells ReportCells(const ChartWindow& window, const std::string& style);
// The Bhava chart's cells: the labels of the style's array, by ReduceCellBlanks.
TextChartCells ReportBhavaCells(const ChartWindow& window, const std::string& style);

// The sign the window's North drawing shows at house 1 (Lab_NHouseNo(1)), for
// the North routine; 0 when the North drawing has not been filled.
int NorthLagnaSign(const ChartWindow& window);

// The routine for a style, compared upper-cased with "SOUTH", "NORTH",
// "EAST"; any other style gives "". lagnaSign serves the North routine only.
std::string TextChart(const std::string& style, const TextChartCells& cells, const std::string& title,
                      int lagnaSign);

}  // namespace kelvaro
