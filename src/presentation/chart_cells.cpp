#include "presentation/chart_cells.h"

#include <string>
#include <utility>

#include "common/angle_text.h"
#include "common/calculation_error.h"
#include "presentation/chart_geometry.h"

namespace kelvaro {

namespace {

constexpr const char* kTwoBlanks = "  ";
constexpr const char* kCrLf = "\r\n";

// Which fill a window's style uses: the clear selector and the kind of
// ChartCellFill (North has no kind: it never goes through ChartCellFill).
struct StyleFill {
  std::int16_t southSelector, eastSelector, northSelector;
  const char* southKind;
  const char* eastKind;
};
constexpr StyleFill kRasiFill{1, 5, 3, "1", "3"};
constexpr StyleFill kNavamsaFill{2, 6, 4, "2", "5"};
constexpr std::int16_t kBhavaSouthSelector = 9, kBhavaEastSelector = 8, kBhavaNorthSelector = 7;

std::optional<ChartFrame> StyleFrame(const std::string& style) {
  if (style == "South") return ChartFrame::South;
  if (style == "East") return ChartFrame::East;
  if (style == "North") return ChartFrame::North;
  return std::nullopt;
}

// Gulika and Maandi stand last; where no sunrise or sunset bounds the day
// they are not known and not placed.
int PlacedBodyCount(const ChartData& chart) {
  return chart.gulikaMaandiKnown ? kBodyCount : static_cast<int>(Body::Gulika);
}

// The North drawing: houses counted from the Lagna's sign, the Lagna's long
// text in house 1, then each other body's short text in its house, entries
// separated only by their two trailing blanks (the label wraps by itself).
void FillNorth(const ChartData& chart, ChartCells& cells, ChartWindow& window, std::int16_t selector) {
  window.ShowOnly(ChartFrame::North);
  ChartCellClear(cells, selector);
  const std::int16_t lagna = chart.Rasi(Body::Lagna);
  const int bodies = PlacedBodyCount(chart);
  for (int b = 1; b < kBodyCount; ++b) {
    cells.northHouseOfBody[static_cast<size_t>(b - 1)] =
        b < bodies ? HouseFromLagna(lagna, chart.rasi[static_cast<size_t>(b)]) : std::int16_t{0};
  }
  for (int k = 1; k <= 12; ++k) {
    int sign = k - 1 + lagna;
    if (sign > 12) sign -= 12;
    cells.northRasiOfHouse[static_cast<size_t>(k - 1)] = static_cast<std::int16_t>(sign);
    window.northHouseNo.SetCaption(k, std::to_string(sign));
  }
  window.north.Append(1, chart.LongNames[0] + kTwoBlanks);
  for (int b = 1; b < bodies; ++b) {
    window.north.Append(cells.northHouseOfBody[static_cast<size_t>(b - 1)],
                        chart.ShortNames[static_cast<size_t>(b)] + kTwoBlanks);
  }
}

void FillChart(const ChartData& chart, ChartCells& cells, ChartWindow& window, const StyleFill& fill) {
  const std::optional<ChartFrame> frame = StyleFrame(chart.chartStyle);
  if (!frame) return;
  if (*frame == ChartFrame::North) {
    FillNorth(chart, cells, window, fill.northSelector);
    return;
  }
  const bool south = *frame == ChartFrame::South;
  ChartCellClear(cells, south ? fill.southSelector : fill.eastSelector);
  window.ShowOnly(*frame);
  const std::string kind = south ? fill.southKind : fill.eastKind;
  for (int b = 0; b < PlacedBodyCount(chart); ++b) {
    const auto i = static_cast<size_t>(b);
    ChartCellFill(cells, kind, chart.ShortNames[i], chart.rasi[i], chart.longitude[i]);
  }
}

}  // namespace

LabelArray::LabelArray(std::string name, int firstIndex) : name_(std::move(name)), first_(firstIndex) {}

size_t LabelArray::Slot(int index) const {
  if (index < first_ || index > LastIndex()) {
    throw CalculationError("No label " + std::to_string(index) + " in " + name_ + " (" + std::to_string(first_) +
                           " to " + std::to_string(LastIndex()) + ")");
  }
  return static_cast<size_t>(index - first_);
}

const std::string& LabelArray::Caption(int index) const { return captions_[Slot(index)]; }

void LabelArray::SetCaption(int index, std::string text) { captions_[Slot(index)] = std::move(text); }

void LabelArray::Append(int index, std::string_view text) { captions_[Slot(index)].append(text); }

void LabelArray::Clear() {
  for (auto& caption : captions_) caption.clear();
}

const char* FrameName(ChartFrame frame) {
  switch (frame) {
    case ChartFrame::South:
      return "Frame_SouthBride";
    case ChartFrame::East:
      return "Frame_EastBride";
    case ChartFrame::North:
      return "Frame_NorthBride";
  }
  return "";
}

ChartWindow::ChartWindow(std::string windowName, const char* southArray, const char* eastArray,
                         const char* northArray)
    : name(std::move(windowName)), south(southArray, 0), east(eastArray, 1), north(northArray, 1) {}

void ChartWindow::ShowOnly(ChartFrame frame) {
  southVisible = frame == ChartFrame::South;
  eastVisible = frame == ChartFrame::East;
  northVisible = frame == ChartFrame::North;
}

std::optional<ChartFrame> ChartWindow::VisibleFrame() const {
  if (southVisible + eastVisible + northVisible != 1) return std::nullopt;
  if (southVisible) return ChartFrame::South;
  if (eastVisible) return ChartFrame::East;
  return ChartFrame::North;
}

const LabelArray& ChartWindow::Cells(ChartFrame frame) const {
  switch (frame) {
    case ChartFrame::South:
      return south;
    case ChartFrame::East:
      return east;
    case ChartFrame::North:
      break;
  }
  return north;
}

LabelArray& ChartWindow::Cells(ChartFrame frame) {
  return const_cast<LabelArray&>(static_cast<const ChartWindow&>(*this).Cells(frame));
}

ChartCells::ChartCells()
    : rasi("frm_rasi", "Lab_GM_GirlHouse", "Lab_chartHouse_Girl_Rasi", "Lab_ChartHouseN_Girl"),
      navamsa("frm_Navamsa", "Lab_GirlNav", "Lab_ChartGHouse_Girl_Nav", "Lab_ChartHouseN_GirlNav"),
      bhava("frm_BhavaChart", "Lab_GirlNav", "Lab_ChartGHouse_Girl_Nav", "Lab_ChartHouseN_GirlNav") {}

void ChartCellClear(ChartCells& cells, std::int16_t selector) {
  switch (selector) {
    case 1:
      cells.rasi.south.Clear();
      break;
    case 2:
      cells.navamsa.south.Clear();
      break;
    case 3:
      cells.rasi.north.Clear();
      break;
    case 4:
      cells.navamsa.north.Clear();
      break;
    case 5:
      cells.rasi.east.Clear();
      break;
    case 6:
      cells.navamsa.east.Clear();
      break;
    case 7:
      cells.bhava.north.Clear();
      break;
    case 8:
      cells.bhava.east.Clear();
      break;
    case 9:
      cells.bhava.south.Clear();
      break;
    default:
      break;
  }
}

void ChartCellFill(ChartCells& cells, const std::string& kind, const std::string& text, std::int16_t signNo,
                   double position) {
  LabelArray* array = nullptr;
  int index = signNo;
  if (kind == "1") {
    array = &cells.rasi.south;
    index = signNo - 1;
  } else if (kind == "2") {
    array = &cells.navamsa.south;
    index = signNo - 1;
  } else if (kind == "3") {
    array = &cells.rasi.east;
  } else if (kind == "5") {
    array = &cells.navamsa.east;
  } else {
    return;
  }
  const std::string& old = array->Caption(index);
  const bool empty = old.empty();
  std::string entry;
  if (kind == "3") {
    entry = empty ? text + kTwoBlanks : kTwoBlanks + text;  // one line: the blanks lead the next name
  } else {
    entry = (empty ? std::string() : std::string(kCrLf)) + text + kTwoBlanks;
    if (kind == "1") entry += DegreeMinuteText(FoldToSign(position));
  }
  array->Append(index, entry);
}

void FillRasiChart(const ChartData& chart, ChartCells& cells) { FillChart(chart, cells, cells.rasi, kRasiFill); }

void FillNavamsaChart(const ChartData& chart, ChartCells& cells) {
  FillChart(chart, cells, cells.navamsa, kNavamsaFill);
}

void FillBhavaChart(const std::string& chartStyle, const std::array<std::int16_t, 12>& bhavaRasi,
                    const std::array<std::string, 12>& bhavaPlanets, ChartCells& cells) {
  const std::optional<ChartFrame> frame = StyleFrame(chartStyle);
  if (!frame) return;
  ChartWindow& window = cells.bhava;
  switch (*frame) {
    case ChartFrame::South:
      ChartCellClear(cells, kBhavaSouthSelector);
      break;
    case ChartFrame::East:
      ChartCellClear(cells, kBhavaEastSelector);
      break;
    case ChartFrame::North:
      ChartCellClear(cells, kBhavaNorthSelector);
      break;
  }
  window.ShowOnly(*frame);
  for (int k = 1; k <= 12; ++k) {
    const auto i = static_cast<size_t>(k - 1);
    const int rasi = bhavaRasi[i];
    switch (*frame) {
      case ChartFrame::South:
        window.south.Append(rasi - 1, bhavaPlanets[i]);
        break;
      case ChartFrame::East:
        window.east.Append(rasi, bhavaPlanets[i]);
        break;
      case ChartFrame::North:
        window.north.Append(k, bhavaPlanets[i]);
        window.northHouseNo.SetCaption(k, std::to_string(rasi));
        break;
    }
  }
}

}  // namespace kelvaro
