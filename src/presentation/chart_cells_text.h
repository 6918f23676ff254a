#pragma once
// Two text forms of a chart window's cells, cell by cell, for the command
// line: an exact one with the captions quoted and CR, LF escaped, and a
// readable one with each caption's lines stacked under one another.
#include <string>
#include <vector>

#include "presentation/chart_cells.h"

namespace kelvaro {

struct CellRow {
  std::string array;      // the label array, e.g. "Lab_GM_GirlHouse"
  int index = 0;          // the label's index in its array
  std::string houseSign;  // North only: the caption of Lab_NHouseNo(index)
  std::string caption;
};

// The twelve cells of one drawing of the window, in index order.
std::vector<CellRow> CellRows(const ChartWindow& window, ChartFrame frame);
// The cells of the frame shown; none when no frame is shown.
std::vector<CellRow> VisibleCellRows(const ChartWindow& window);

// The caption in double quotes, with backslash, double quote, CR and LF
// written \\, \", \r and \n, so that trailing blanks and line breaks show.
std::string QuotedCaption(const std::string& caption);

// Exact form: a first line naming the window and its frame, then one line per
// cell: Lab_GM_GirlHouse(2) = "Sun  28.19\r\nMoo  5.27"; North cells carry the
// sign of their house: Lab_ChartHouseN_Girl(1) [7] = "Asc  ". Lines end in
// "\n". A window with no frame shown gives its name and "(no chart)".
std::string CellsExactText(const ChartWindow& window);

// Readable form: the same heading, then per cell the label, and the caption
// split at CR LF with its further lines indented under the first.
std::string CellsReadableText(const ChartWindow& window);

}  // namespace kelvaro
