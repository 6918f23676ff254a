#include "presentation/text_charts.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "common/number_rules.h"

namespace kelvaro {

namespace {

constexpr std::string_view kCrLf = "\r\n";

std::string_view TrimBlanks(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  const size_t last = text.find_last_not_of(' ');
  return text.substr(first, last - first + 1);
}

// Split at the delimiter; each piece trimmed, cut to three characters and
// followed by one blank; the whole trimmed. Empty pieces (two delimiters in
// a row, a trailing delimiter) still add their blank, which TightenBlanks
// later narrows.
std::string Reduce(const std::string& label, std::string_view delimiter) {
  if (label.empty()) return {};
  std::string out;
  size_t from = 0;
  while (true) {
    const size_t at = label.find(delimiter, from);
    const std::string_view piece =
        std::string_view(label).substr(from, at == std::string::npos ? std::string::npos : at - from);
    out.append(TrimBlanks(piece).substr(0, 3));
    out.push_back(' ');
    if (at == std::string::npos) break;
    from = at + delimiter.size();
  }
  return std::string(TrimBlanks(out));
}

std::string Upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

// C(k, s, w): cell k from its character s (1-based) on, cut to w or padded
// with blanks on the right.
void AppendField(std::string& line, const std::string& cell, int start, int width) {
  const auto from = static_cast<size_t>(start - 1);
  const auto w = static_cast<size_t>(width);
  const std::string_view piece = from < cell.size() ? std::string_view(cell).substr(from, w) : std::string_view{};
  line.append(piece);
  line.append(w - piece.size(), ' ');
}

// N: a sign number right-aligned in two characters.
std::string SignField(int sign) {
  std::string digits = std::to_string(sign);
  if (digits.size() < 2) digits.insert(0, 2 - digits.size(), ' ');
  return digits;
}

TextChartCells Tightened(const TextChartCells& cells) {
  TextChartCells out;
  for (size_t i = 0; i < cells.size(); ++i) out[i] = TightenBlanks(cells[i]);
  return out;
}

// One piece of a line table: a literal, a cell field C(k, s, w), the sign
// number N of a cell's house, or the end of a line.
struct Piece {
  enum class Kind { Literal, Field, Sign, EndOfLine };
  Kind kind;
  const char* text;
  int cell;
  int start;
  int width;
};

constexpr Piece L(const char* text) { return {Piece::Kind::Literal, text, 0, 0, 0}; }
constexpr Piece C(int cell, int start, int width) { return {Piece::Kind::Field, "", cell, start, width}; }
// The sign number standing at the inner corner of the given cell.
constexpr Piece N(int cell) { return {Piece::Kind::Sign, "", cell, 0, 0}; }
constexpr Piece kEol{Piece::Kind::EndOfLine, "", 0, 0, 0};

constexpr const char* kB41 = "* * * * * * * * * * * * * * * * * * * * *";
constexpr const char* kB43 = "* * * * * * * * * * * * * * * * * * * * * *";
constexpr int kNorthWidth = 41;
constexpr int kEastWidth = 43;

// The North diamond. Cells stand in reading order of the drawing, not by
// house position: cell 1 is the upper-left triangle, cell 3 the top diamond,
// cell 10 the bottom diamond. The cuts and their widths follow the room the
// diagonals leave and are irregular from cell to cell (C(1,30,7) beside
// C(2,29,7)); a body can fall between two cuts, and the drawing keeps that.
// Each N is the sign of the house of the cell whose inner corner it marks.
// Line 2 ends in a blank, as its table has it.
constexpr Piece kNorthTable[] = {
    L(kB41), kEol,
    L("* * "), C(2, 1, 15), L(" * "), C(4, 1, 15), L(" * * "), kEol,
    L("*   * "), C(2, 17, 11), L(" *   * "), C(4, 17, 11), L(" *   *"), kEol,
    L("* "), C(1, 1, 3), L(" * "), C(2, 29, 7), L(" *   "), C(3, 1, 3), L(" * "), C(4, 29, 7), L(" * "), C(5, 1, 3),
    L(" *"), kEol,
    L("*"), C(1, 5, 7), L("*  "), N(2), L(" *  "), C(3, 5, 7), L("  *  "), N(4), L(" *"), C(5, 5, 7), L("*"), kEol,
    L("*"), C(1, 13, 7), N(1), L("* *  "), C(3, 13, 11), L("  * *"), N(5), C(5, 13, 7), L("*"), kEol,
    L("*"), C(1, 21, 7), L("  * *    "), C(3, 25, 7), L("    * *  "), C(5, 21, 7), L("*"), kEol,
    L("*"), C(1, 30, 7), L("*     *    "), C(3, 33, 3), L("    *     *"), C(5, 30, 7), L("*"), kEol,
    // 9-13
    L("*     *   "), C(6, 1, 3), L("   *       *   "), C(7, 1, 3), L("   *     *"), kEol,
    L("*   *   "), C(6, 5, 7), L("   * "), N(3), L("*   "), C(7, 5, 7), L("   *   *"), kEol,
    L("* *   "), C(6, 13, 11), L("   *   "), C(7, 13, 11), L("   * *"), kEol,
    L("* *     "), C(6, 25, 7), L("   "), N(6), L("*"), N(7), L("   "), C(7, 25, 7), L("     * *"), kEol,
    L("*   *     "), C(6, 33, 3), L("     * "), N(10), L("*     "), C(7, 33, 3), L("     *   *"), kEol,
    // 14-18
    L("* "), C(8, 1, 3), L(" *         *  "), C(10, 1, 3), L("  *         * "), C(12, 1, 3), L(" *"), kEol,
    L("*"), C(8, 5, 7), L("*     *  "), C(10, 5, 7), L("  *     *"), C(12, 5, 7), L("*"), kEol,
    L("*"), C(8, 13, 7), N(8), L("* *  "), C(10, 13, 11), L("  * *"), N(12), C(12, 13, 7), L("*"), kEol,
    L("*"), C(8, 21, 7), L("  * *    "), C(10, 25, 7), L("    * *  "), C(12, 21, 7), L("*"), kEol,
    L("*"), C(8, 29, 7), L("*  "), N(9), L(" *    "), C(10, 33, 3), L("    *  "), N(11), L(" *"), C(12, 29, 7), L("*"),
    kEol,
    // 19-22
    L("*     * "), C(9, 1, 7), L(" *       * "), C(11, 1, 7), L(" *     *"), kEol,
    L("*   * "), C(9, 9, 11), L(" *   * "), C(11, 9, 11), L(" *   *"), kEol,
    L("* * "), C(9, 21, 15), L(" * "), C(11, 21, 15), L(" * *"), kEol,
    L(kB41), kEol,
};

// The East square: cells 1 to 5 across the top band, 6 and 7 beside the
// open centre, 8 to 12 across the bottom band.
constexpr const char* kEastGap = " *             * ";
constexpr const char* kElevenBlanks = "           ";
constexpr Piece kEastTable[] = {
    L(kB43), kEol,
    L("* *"), C(2, 1, 11), L("* "), C(3, 1, 7), L("     *"), C(4, 1, 11), L("* *"), kEol,
    L("*"), C(1, 1, 3), L("*  "), C(2, 13, 7), L("* "), C(3, 9, 7), L("     *"), C(4, 13, 7), L("  *"), C(5, 1, 3),
    L("*"), kEol,
    L("*"), C(1, 5, 3), L("  *"), C(2, 21, 7), L("* "), C(3, 13, 7), L("     *"), C(4, 21, 7), L("*  "), C(5, 5, 3),
    L("*"), kEol,
    L("*"), C(1, 9, 7), L("*  "), C(2, 29, 3), L("* "), C(3, 25, 7), L("     *"), C(4, 29, 3), L("  *"), C(5, 9, 7),
    L("*"), kEol,
    L("*"), C(1, 17, 7), L("  *"), C(2, 33, 3), L("*   "), C(3, 33, 3), L("       *"), C(4, 33, 3), L("*  "),
    C(5, 17, 7), L("*"), kEol,
    L("*"), C(1, 25, 11), L("* *             * *"), C(5, 25, 11), L("*"), kEol,
    L(kB43), kEol,
    // 9-15
    L("* "), C(6, 1, 11), L(kEastGap), C(7, 1, 11), L(" *"), kEol,
    L("* "), C(6, 13, 11), L(kEastGap), C(7, 13, 11), L(" *"), kEol,
    L("* "), C(6, 25, 11), L(kEastGap), C(7, 25, 11), L(" *"), kEol,
    L("* "), L(kElevenBlanks), L(kEastGap), L(kElevenBlanks), L(" *"), kEol,
    L("* "), L(kElevenBlanks), L(kEastGap), L(kElevenBlanks), L(" *"), kEol,
    L("* "), L(kElevenBlanks), L(kEastGap), L(kElevenBlanks), L(" *"), kEol,
    L(kB43), kEol,
    // 16-22
    L("*"), C(8, 1, 11), L("* *             * *"), C(12, 1, 11), L("*"), kEol,
    L("*"), C(8, 13, 7), L("  *"), C(9, 1, 3), L("*   "), C(10, 1, 3), L("       *"), C(11, 1, 3), L("*  "),
    C(12, 13, 7), L("*"), kEol,
    L("*"), C(8, 21, 7), L("*  "), C(9, 5, 3), L("* "), C(10, 5, 7), L("     *"), C(11, 5, 3), L("  *"), C(12, 21, 7),
    L("*"), kEol,
    L("*"), C(8, 29, 3), L("  *"), C(9, 9, 7), L("* "), C(10, 13, 7), L("     *"), C(11, 9, 7), L("*  "), C(12, 29, 3),
    L("*"), kEol,
    L("*"), C(8, 33, 3), L("*  "), C(9, 17, 7), L("* "), C(10, 21, 7), L("     *"), C(11, 17, 7), L("  *"),
    C(12, 33, 3), L("*"), kEol,
    L("* *"), C(9, 25, 11), L("* "), C(10, 29, 7), L("     *"), C(11, 25, 11), L("* *"), kEol,
    L(kB43), kEol,
};

// The sign of house `cell` for a Lagna in lagnaSign, with 12 taken off while
// above 12.
int HouseSign(int lagnaSign, int cell) {
  int sign = lagnaSign + cell - 1;
  while (sign > 12) sign -= 12;
  return sign;
}

template <size_t Size>
std::string DrawTable(const Piece (&table)[Size], const TextChartCells& cells, int margin, int lagnaSign) {
  const TextChartCells tight = Tightened(cells);
  const std::string marginText(static_cast<size_t>(margin), ' ');
  std::string out;
  std::string line = marginText;
  for (const Piece& piece : table) {
    switch (piece.kind) {
      case Piece::Kind::Literal:
        line.append(piece.text);
        break;
      case Piece::Kind::Field:
        AppendField(line, tight[static_cast<size_t>(piece.cell - 1)], piece.start, piece.width);
        break;
      case Piece::Kind::Sign:
        line.append(SignField(HouseSign(lagnaSign, piece.cell)));
        break;
      case Piece::Kind::EndOfLine:
        out.append(line);
        out.append(kCrLf);
        line = marginText;
        break;
    }
  }
  return out;
}

// A title line over a frame of the given width: the margin, then the title
// centred (half to even), with no blanks after it; no title, just the margin.
std::string TitleLine(const std::string& title, int margin, int width) {
  const int pad =
      title.empty() ? 0 : std::max(0, static_cast<int>(CInt((width - static_cast<double>(title.size())) / 2.0)));
  std::string line(static_cast<size_t>(margin + pad), ' ');
  line.append(title);
  line.append(kCrLf);
  return line;
}

constexpr int kSouthCellWidth = 11;
constexpr int kSouthCentreWidth = 23;
constexpr int kSouthWidth = 49;
// The three text lines of a South cell start at characters 1, 13 and 25, so
// that each holds three names; characters 12 and 24, the blank after every
// third name, fall between the lines.
constexpr int kSouthLineStarts[3] = {1, 13, 25};

}  // namespace

std::string ReduceCellLines(const std::string& label) { return Reduce(label, "\r\n"); }
std::string ReduceCellPairs(const std::string& label) { return Reduce(label, "  "); }
std::string ReduceCellBlanks(const std::string& label) { return Reduce(label, " "); }

std::string TightenBlanks(const std::string& text) {
  std::string out;
  size_t from = 0;
  while (true) {
    const size_t at = text.find("   ", from);
    if (at == std::string::npos) break;
    out.append(text, from, at - from);
    out.push_back(' ');
    from = at + 3;
  }
  out.append(text, from, std::string::npos);
  return out;
}

std::string SouthTextChart(const TextChartCells& cells, const std::string& title) {
  const TextChartCells tight = Tightened(cells);
  const std::string margin(static_cast<size_t>(kSouthTextChartMargin), ' ');
  const std::string stars(kSouthWidth, '*');
  const std::string cellStars(kSouthCellWidth, '*');
  std::string out;
  auto endLine = [&out](const std::string& line) {
    out.append(line);
    out.append(kCrLf);
  };
  // Line `row` (0 to 3) of a cell: three text lines and a blank one.
  auto cellLine = [&tight](std::string& line, int cell, int row) {
    if (row < 3) {
      AppendField(line, tight[static_cast<size_t>(cell - 1)], kSouthLineStarts[row], kSouthCellWidth);
    } else {
      line.append(kSouthCellWidth, ' ');
    }
  };
  auto fourAcross = [&](int firstCell) {
    for (int row = 0; row < 4; ++row) {
      std::string line = margin + "*";
      for (int cell = firstCell; cell < firstCell + 4; ++cell) {
        cellLine(line, cell, row);
        line.push_back('*');
      }
      endLine(line);
    }
  };
  auto twoBeside = [&](int leftCell, int rightCell) {
    for (int row = 0; row < 4; ++row) {
      std::string line = margin + "*";
      cellLine(line, leftCell, row);
      line.append("*").append(kSouthCentreWidth, ' ').append("*");
      cellLine(line, rightCell, row);
      line.push_back('*');
      endLine(line);
    }
  };

  endLine(margin + stars);
  fourAcross(1);
  endLine(margin + stars);
  twoBeside(5, 6);
  // The title's left pad is 12 less half its length, rounded half to even.
  const std::string centreTitle = title.substr(0, kSouthCentreWidth);
  const auto length = static_cast<int>(centreTitle.size());
  const int leftPad = std::clamp(static_cast<int>(CInt(12 - length / 2.0)), 0, kSouthCentreWidth - length);
  std::string centre(static_cast<size_t>(leftPad), ' ');
  centre.append(centreTitle);
  centre.append(static_cast<size_t>(kSouthCentreWidth - leftPad - length), ' ');
  endLine(margin + "*" + cellStars + "*" + centre + "*" + cellStars + "*");
  twoBeside(7, 8);
  endLine(margin + stars);
  fourAcross(9);
  endLine(margin + stars);
  return out;
}

std::string NorthTextChart(const TextChartCells& cells, const std::string& title, int lagnaSign) {
  return TitleLine(title, kNorthTextChartMargin, kNorthWidth) +
         DrawTable(kNorthTable, cells, kNorthTextChartMargin, lagnaSign);
}

std::string EastTextChart(const TextChartCells& cells, const std::string& title) {
  return TitleLine(title, kEastTextChartMargin, kEastWidth) + DrawTable(kEastTable, cells, kEastTextChartMargin, 0);
}

namespace {

using Reducer = std::string (*)(const std::string&);

// The twelve labels of the style's array, in index order, each reduced.
TextChartCells CellsOf(const ChartWindow& window, const std::string& style, Reducer south, Reducer north,
                       Reducer east) {
  const std::string upper = Upper(style);
  const LabelArray* labels = nullptr;
  Reducer reducer = nullptr;
  if (upper == "SOUTH") {
    labels = &window.south;
    reducer = south;
  } else if (upper == "NORTH") {
    labels = &window.north;
    reducer = north;
  } else if (upper == "EAST") {
    labels = &window.east;
    reducer = east;
  } else {
    return {};
  }
  TextChartCells out;
  for (int i = 0; i < 12; ++i) out[static_cast<size_t>(i)] = reducer(labels->Caption(labels->FirstIndex() + i));
  return out;
}

}  // namespace

TextChartCells ReportCells(const ChartWindow& window, const std::string& style) {
  return CellsOf(window, style, ReduceCellLines, ReduceCellPairs, ReduceCellLines);
}

TextChartCells ReportBhavaCells(const ChartWindow& window, const std::string& style) {
  return CellsOf(window, style, ReduceCellBlanks, ReduceCellBlanks, ReduceCellBlanks);
}

int NorthLagnaSign(const ChartWindow& window) {
  const std::string& caption = window.northHouseNo.Caption(1);
  if (caption.empty() || !std::all_of(caption.begin(), caption.end(), [](unsigned char c) { return std::isdigit(c); })) {
    return 0;
  }
  return std::stoi(caption);
}

std::string TextChart(const std::string& style, const TextChartCells& cells, const std::string& title,
                      int lagnaSign) {
  const std::string upper = Upper(style);
  if (upper == "SOUTH") return SouthTextChart(cells, title);
  if (upper == "NORTH") return NorthTextChart(cells, title, lagnaSign);
  if (upper == "EAST") return EastTextChart(cells, title);
  return {};
}

}  // namespace kelvaro
