#include "presentation/chart_cells_text.h"

#include <optional>
#include <string>
#include <vector>

namespace kelvaro {

namespace {

std::string Label(const CellRow& row) {
  std::string label = row.array + "(" + std::to_string(row.index) + ")";
  if (!row.houseSign.empty()) label += " [" + row.houseSign + "]";
  return label;
}

std::string Heading(const ChartWindow& window) {
  const std::optional<ChartFrame> frame = window.VisibleFrame();
  return window.name + " " + (frame ? FrameName(*frame) : "(no chart)") + "\n";
}

// The caption's lines, split at CR LF only, as the label shows them.
std::vector<std::string> CaptionLines(const std::string& caption) {
  std::vector<std::string> lines;
  size_t start = 0;
  for (size_t at = caption.find("\r\n"); at != std::string::npos; at = caption.find("\r\n", start)) {
    lines.push_back(caption.substr(start, at - start));
    start = at + 2;
  }
  lines.push_back(caption.substr(start));
  return lines;
}

}  // namespace

std::vector<CellRow> CellRows(const ChartWindow& window, ChartFrame frame) {
  const LabelArray& cells = window.Cells(frame);
  std::vector<CellRow> rows;
  rows.reserve(12);
  for (int i = cells.FirstIndex(); i <= cells.LastIndex(); ++i) {
    CellRow row;
    row.array = cells.Name();
    row.index = i;
    if (frame == ChartFrame::North) row.houseSign = window.northHouseNo.Caption(i);
    row.caption = cells.Caption(i);
    rows.push_back(std::move(row));
  }
  return rows;
}

std::vector<CellRow> VisibleCellRows(const ChartWindow& window) {
  const std::optional<ChartFrame> frame = window.VisibleFrame();
  if (!frame) return {};
  return CellRows(window, *frame);
}

std::string QuotedCaption(const std::string& caption) {
  std::string out = "\"";
  for (const char c : caption) {
    switch (c) {
      case '\\':
        out += "\\\\";
        break;
      case '"':
        out += "\\\"";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\n':
        out += "\\n";
        break;
      default:
        out += c;
    }
  }
  return out + "\"";
}

std::string CellsExactText(const ChartWindow& window) {
  std::string out = Heading(window);
  for (const CellRow& row : VisibleCellRows(window)) out += Label(row) + " = " + QuotedCaption(row.caption) + "\n";
  return out;
}

std::string CellsReadableText(const ChartWindow& window) {
  std::string out = Heading(window);
  for (const CellRow& row : VisibleCellRows(window)) {
    const std::string label = Label(row) + "  ";
    const std::vector<std::string> lines = CaptionLines(row.caption);
    out += label + lines.front() + "\n";
    for (size_t i = 1; i < lines.size(); ++i) out += std::string(label.size(), ' ') + lines[i] + "\n";
  }
  return out;
}

}  // namespace kelvaro
