#pragma once
// The chart cell model: the Rasi, Navamsa and Bhava windows each hold one
// chart in three drawings (South, East, North), one frame per style, and each
// drawing is a row of twelve text labels that the fills write plain text into.
// This is the data only; the desktop program draws it and the report reduces
// it to its text charts.
//
// Label arrays keep the names and the index ranges of the windows:
//   frm_rasi        South Lab_GM_GirlHouse          sign - 1 (0 to 11)
//                   East  Lab_chartHouse_Girl_Rasi  sign (1 to 12)
//                   North Lab_ChartHouseN_Girl      house from the Lagna (1 to 12)
//   frm_Navamsa     South Lab_GirlNav               navamsa sign - 1 (0 to 11)
//                   East  Lab_ChartGHouse_Girl_Nav  navamsa sign (1 to 12)
//                   North Lab_ChartHouseN_GirlNav   house from the navamsa Lagna
//   frm_BhavaChart  South Lab_GirlNav, East Lab_ChartGHouse_Girl_Nav,
//                   North Lab_ChartHouseN_GirlNav, indexed as for frm_Navamsa
// and each window's Lab_NHouseNo (1 to 12) holds the sign number shown at
// each house of the North drawing.
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "analysis/chart_data.h"

namespace kelvaro {

// A control array of twelve text labels, indexed firstIndex to firstIndex + 11.
// An index outside that range raises CalculationError, as the label array of
// a window fails the step.
class LabelArray {
 public:
  LabelArray(std::string name, int firstIndex);

  const std::string& Name() const { return name_; }
  int FirstIndex() const { return first_; }
  int LastIndex() const { return first_ + 11; }

  const std::string& Caption(int index) const;
  void SetCaption(int index, std::string text);
  void Append(int index, std::string_view text);
  // Blanks all twelve captions.
  void Clear();

 private:
  size_t Slot(int index) const;

  std::string name_;
  int first_;
  std::array<std::string, 12> captions_;
};

enum class ChartFrame { South, East, North };

// The name of a style's frame: "Frame_SouthBride", "Frame_EastBride",
// "Frame_NorthBride".
const char* FrameName(ChartFrame frame);

// One chart window with its three drawings and their frames.
struct ChartWindow {
  ChartWindow(std::string windowName, const char* southArray, const char* eastArray, const char* northArray);

  std::string name;  // "frm_rasi", "frm_Navamsa", "frm_BhavaChart"
  LabelArray south;  // indices 0 to 11
  LabelArray east;   // indices 1 to 12
  LabelArray north;  // indices 1 to 12
  LabelArray northHouseNo{"Lab_NHouseNo", 1};
  // Frame_SouthBride, Frame_EastBride, Frame_NorthBride. No frame is shown
  // before the first fill; a fill sets all three.
  bool southVisible = false;
  bool eastVisible = false;
  bool northVisible = false;

  // Shows the frame of one style and hides the two others.
  void ShowOnly(ChartFrame frame);
  // The frame shown when exactly one is; none before the first fill.
  std::optional<ChartFrame> VisibleFrame() const;
  const LabelArray& Cells(ChartFrame frame) const;
  LabelArray& Cells(ChartFrame frame);
};

// Index of a body among the eleven of NorthHouseOfBody: Sun 0 to Maandi 10.
inline constexpr int kNorthBodyCount = 11;

// The three chart windows and the two working lists of the North fill.
struct ChartCells {
  ChartCells();

  ChartWindow rasi;     // frm_rasi
  ChartWindow navamsa;  // frm_Navamsa
  ChartWindow bhava;    // frm_BhavaChart

  // Of the North fill that ran last: the house from the Lagna of Sun, Moon,
  // Mars, Mercury, Jupiter, Venus, Saturn, Rahu, Ketu, Gulika, Maandi (in
  // that order), and the rasi shown at houses 1 to 12 (index 0 is house 1).
  std::array<std::int16_t, kNorthBodyCount> northHouseOfBody{};
  std::array<std::int16_t, 12> northRasiOfHouse{};
};

// Blanks the twelve captions of one label array:
//   1 frm_rasi Lab_GM_GirlHouse          2 frm_Navamsa Lab_GirlNav
//   3 frm_rasi Lab_ChartHouseN_Girl      4 frm_Navamsa Lab_ChartHouseN_GirlNav
//   5 frm_rasi Lab_chartHouse_Girl_Rasi  6 frm_Navamsa Lab_ChartGHouse_Girl_Nav
//   7 frm_BhavaChart Lab_ChartHouseN_GirlNav
//   8 frm_BhavaChart Lab_ChartGHouse_Girl_Nav
//   9 frm_BhavaChart Lab_GirlNav
// Any other selector names no array and blanks nothing.
void ChartCellClear(ChartCells& cells, std::int16_t selector);

// Appends one body to the cell of its sign. kind "1" frm_rasi South (index
// signNo - 1), "2" frm_Navamsa South (signNo - 1), "3" frm_rasi East (signNo),
// "5" frm_Navamsa East (signNo); any other kind writes nothing (there is no
// "4": the North drawings never come here). text is the body's short text,
// position its longitude in degrees.
//
// An empty cell takes the first form, a cell with text the second:
//   "1": text "  " degrees          / old CR LF text "  " degrees
//   "2", "5": text "  "             / old CR LF text "  "
//   "3": text "  "                  / old "  " text   (one line, no CR LF)
// where degrees is DegreeMinuteText(FoldToSign(position)). Only the South
// Rasi cell shows degrees and only the East Rasi cell stays on one line; the
// report's text charts rely on both.
void ChartCellFill(ChartCells& cells, const std::string& kind, const std::string& text, std::int16_t signNo,
                   double position);

// The Rasi chart of frm_rasi for chart.chartStyle ("South", "East" or
// "North", exactly): clears the cells of that style, shows its frame and
// places the twelve bodies from chart.rasi (Rasi signs) and chart.longitude,
// in body order, which is the order of the names inside a shared cell. With
// any other style the window is left as it is.
void FillRasiChart(const ChartData& chart, ChartCells& cells);

// The Navamsa chart of frm_Navamsa, the same way; chart.rasi must hold the
// navamsa signs (the position pass of division 3.33333333333333).
void FillNavamsaChart(const ChartData& chart, ChartCells& cells);

// The Bhava chart of frm_BhavaChart for chartStyle. bhavaRasi[k - 1] is the
// rasi of house k, bhavaPlanets[k - 1] its short names as the Bhava system
// lists them; house k's text is appended to Lab_GirlNav(rasi - 1) (South),
// Lab_ChartGHouse_Girl_Nav(rasi) (East) or Lab_ChartHouseN_GirlNav(k)
// (North, where Lab_NHouseNo(k) shows the rasi). Any other style leaves the
// window as it is.
void FillBhavaChart(const std::string& chartStyle, const std::array<std::int16_t, 12>& bhavaRasi,
                    const std::array<std::string, 12>& bhavaPlanets, ChartCells& cells);

}  // namespace kelvaro
