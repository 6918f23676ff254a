#include "report/report_pages.h"

#include <algorithm>
#include <cctype>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "presentation/text_charts.h"
#include "report/period_blocks.h"

namespace kelvaro {

namespace {

constexpr const char* kEol = "\r\n";
constexpr char kFormFeed = '\f';
constexpr int kLabelIndent = 5;
constexpr int kLabelWidth = 22;
constexpr int kHeaderIndent = 38;
constexpr int kUnderscoreRule = 70;
constexpr int kTitleBlankLines = 3;

// The widths of a table's columns in characters: each a minimum that holds
// its heading and its usual texts with a blank after them, widened by Fit.
using Widths = std::vector<int>;

std::string Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

void RightTrim(std::string& line) {
  const auto last = line.find_last_not_of(' ');
  line.erase(last == std::string::npos ? 0 : last + 1);
}

std::string Upper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

// A text in a field of `width`; a longer text keeps one blank after it.
void AppendField(std::string& line, std::string_view text, int width) {
  line += text;
  const int pad = width - static_cast<int>(text.size());
  line.append(static_cast<size_t>(pad > 0 ? pad : 1), ' ');
}

using Rows = std::vector<std::vector<std::string>>;

// The columns widened where a text needs it: to its length and one blank,
// the last column to its length, so that a long name (a star with Abhijit
// in it) moves its whole column instead of the rest of its line.
Widths Fit(Widths widths, const Rows& rows) {
  for (const auto& row : rows) {
    for (size_t i = 0; i < row.size() && i < widths.size(); ++i) {
      const int need = static_cast<int>(row[i].size()) + (i + 1 < widths.size() ? 1 : 0);
      widths[i] = std::max(widths[i], need);
    }
  }
  return widths;
}

int TableWidth(const Widths& widths) {
  int sum = 0;
  for (int w : widths) sum += w;
  return sum;
}

class Page {
 public:
  void Line(std::string_view text = {}) {
    text_ += text;
    text_ += kEol;
  }
  void Blank(int count) {
    for (int i = 0; i < count; ++i) Line();
  }
  void Indented(int blanks, std::string_view text) {
    Line(std::string(static_cast<size_t>(blanks), ' ') + std::string(text));
  }
  void Rule(char c, int width) { Line(std::string(static_cast<size_t>(width), c)); }
  // A table line: each text in its column, trailing blanks dropped.
  void Row(const std::vector<std::string>& texts, const Widths& widths) {
    std::string line;
    for (size_t i = 0; i < texts.size() && i < widths.size(); ++i) AppendField(line, texts[i], widths[i]);
    RightTrim(line);
    Line(line);
  }
  // The header of every page but the first: the web address with the page
  // number behind it, over a rule.
  void Header(int number) {
    Indented(kHeaderIndent, std::string(kReportWebAddress) + " - Horoscope  Page " + std::to_string(number));
    Rule('_', kUnderscoreRule);
    Line();
  }
  void Append(std::string_view drawing) { text_ += drawing; }
  std::string& Text() { return text_; }

 private:
  std::string text_;
};

std::vector<std::string> GridRow(const Grid& grid, int row, std::initializer_list<int> cols) {
  std::vector<std::string> texts;
  texts.reserve(cols.size());
  for (int col : cols) texts.push_back(col < grid.Cols() ? Trim(grid.Text(row, col)) : std::string());
  return texts;
}

// ---- Page 1 ----------------------------------------------------------------

// The letterhead: the name, the address line and the mail line, each only
// when it has something to show, so that a letterhead of a name alone (the
// default) prints no bare separators.
void OwnerBlock(Page& page, const OwnerDetails& o) {
  const OwnerDetails t{Trim(o.name),    Trim(o.address), Trim(o.address2), Trim(o.city),
                       Trim(o.country), Trim(o.zipcode), Trim(o.phone),    Trim(o.email)};
  const bool hasAddress = !(t.address.empty() && t.address2.empty() && t.city.empty() && t.country.empty() &&
                            t.zipcode.empty() && t.phone.empty());
  if (t.name.empty() && !hasAddress && t.email.empty()) return;
  page.Line();
  if (!t.name.empty()) page.Indented(kLabelIndent, t.name);
  if (hasAddress) {
    page.Indented(kLabelIndent, t.address + ", " + t.address2 + ", " + t.city + ", " + t.country + " - " +
                                    t.zipcode + ", Phone : " + t.phone);
  }
  if (!t.email.empty()) page.Indented(kLabelIndent, "E-Mail : " + t.email);
}

void TitlePage(Page& page, const ReportInput& in) {
  page.Blank(kTitleBlankLines);
  page.Indented(25, "AUM GANESHAYA NAMAH");
  page.Indented(11, "JANANI JANMA SOUKHYANAM VARDHINEE KULA SAMPADAM");
  page.Indented(11, "PADAVI POORVA PUNYANAM  LIKHYATE  JANMA PATRIKA");
  page.Blank(kTitleBlankLines);
  page.Indented(kHeaderIndent, std::string(kReportWebAddress) + " - Horoscope");
  page.Rule('_', kUnderscoreRule);
  const auto fields = TitlePageFields(in.title);
  // Groups: "Name" to "Ayanamsa", "Vedic Day" to "Ayana", "Janma Lagna" to "Karnam".
  constexpr std::array<size_t, 4> kGroupStarts = {0, 15, 22, 29};
  for (size_t g = 0; g + 1 < kGroupStarts.size(); ++g) {
    page.Blank(kTitleBlankLines);
    for (size_t i = kGroupStarts[g]; i < kGroupStarts[g + 1]; ++i) {
      std::string line(kLabelIndent, ' ');
      AppendField(line, fields[i].first, kLabelWidth);
      line += ": ";
      line += *fields[i].second;
      page.Line(line);
    }
    if (g == 0 && !in.title.clockOffset.empty()) {
      std::string line(kLabelIndent, ' ');
      AppendField(line, "Clock Offset", kLabelWidth);
      page.Line(line + ": " + in.title.clockOffset);
    }
  }
  page.Blank(kTitleBlankLines);
  page.Rule('_', kUnderscoreRule);
  OwnerBlock(page, in.owner);
}

// ---- Pages 2 and 3 -----------------------------------------------------------

void ChartDrawing(Page& page, const std::string& style, const ChartWindow& window, const TextChartCells& cells,
                  const char* title) {
  page.Append(TextChart(style, cells, title, NorthLagnaSign(window)));
}

void ChartsPage(Page& page, const ReportInput& in) {
  const std::string style = Upper(in.chartStyle);
  page.Header(2);
  ChartDrawing(page, style, in.cells.rasi, ReportCells(in.cells.rasi, style), "Rasi");
  page.Blank(2);
  ChartDrawing(page, style, in.cells.navamsa, ReportCells(in.cells.navamsa, style), "Navamsa");
}

void BhavaPage(Page& page, const ReportInput& in) {
  const std::string style = Upper(in.chartStyle);
  page.Header(3);
  ChartDrawing(page, style, in.cells.bhava, ReportBhavaCells(in.cells.bhava, style), "Bhava");
  page.Blank(2);
  page.Line(in.bhavaSystem == "Equal" ? "Bhava Positions  (Equal Division of Houses From M.C)"
                                      : "Bhava Positions  (Placidius Semi-Arc System)");
  const Grid& grid = in.bhava.mshBhavaDetails;
  Rows rows;
  for (int row = 1; row <= 12 && row < grid.Rows(); ++row) rows.push_back(GridRow(grid, row, {0, 1, 2, 3, 4, 5, 6, 7}));
  const Widths widths = Fit({6, 11, 12, 10, 13, 5, 10, 9}, rows);
  page.Rule('-', TableWidth(widths));
  page.Row({"House", "Mid", "Rasi", "Rasi Lord", "Star", "Pada", "Star Lord", "Sub Lord"}, widths);
  page.Row({"", "Longitude", "", "", "", "", "", ""}, widths);
  page.Rule('-', TableWidth(widths));
  for (const auto& row : rows) page.Row(row, widths);
}

// ---- Page 4 ------------------------------------------------------------------

void PlanetPage(Page& page, const ReportInput& in) {
  page.Header(4);
  page.Line("Planet Positions");
  // The grid's rasi lord column is not printed.
  const Grid& planets = in.planets.mshNirayana;
  Rows rows;
  for (int row = 1; row < planets.Rows(); ++row) rows.push_back(GridRow(planets, row, {0, 1, 2, 4, 5, 6, 7, 8, 9}));
  const Widths widths = Fit({7, 13, 11, 12, 5, 8, 8, 8, 9}, rows);
  const int width = TableWidth(widths);
  page.Rule('-', width);
  page.Row({"Planet", "Longitude", "Rasi", "Star", "Pada", "Star", "Sub", "Jaimini", "Sayanadi"}, widths);
  page.Row({"", "", "", "", "", "Lord", "Lord", "Karaka", "Avastha"}, widths);
  page.Rule('-', width);
  for (const auto& row : rows) page.Row(row, widths);
  page.Rule('-', width);

  // Ashtakavarga: the contributors by the planet table's short names (rows
  // Sun to Saturn, then the Lagna and Rahu); the Lagna and Rahu columns are
  // the starred ones that only "With *" counts.
  page.Line();
  page.Line("Ashta Vargas");
  const Grid& grid = in.ashtakavarga.mshAshtaVarga;
  const std::initializer_list<int> cols = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
  Rows signs;
  for (int row = 1; row <= 12 && row < grid.Rows(); ++row) signs.push_back(GridRow(grid, row, cols));
  Rows total;
  if (grid.Rows() > 13) {
    total.push_back(GridRow(grid, 13, cols));
    total[0][0] = "Total  ";
  }
  std::vector<std::string> heading = {"Rasi"};
  for (int row : {2, 3, 4, 5, 6, 7, 8, 1, 9}) {
    heading.push_back(row < planets.Rows() && planets.Cols() > 0 ? Trim(planets.Text(row, 0)) : std::string());
  }
  heading.push_back("  Total");
  heading.push_back("Total");
  Rows all = signs;
  all.insert(all.end(), total.begin(), total.end());
  all.push_back(heading);
  const Widths av = Fit({12, 5, 5, 5, 5, 5, 5, 5, 5, 5, 8, 6}, all);
  page.Rule('-', TableWidth(av));
  page.Row(heading, av);
  page.Row({"", "", "", "", "", "", "", "", "*", "*", "", "With *"}, av);
  page.Rule('-', TableWidth(av));
  for (const auto& row : signs) page.Row(row, av);
  page.Rule('-', TableWidth(av));
  for (const auto& row : total) page.Row(row, av);
  page.Rule('-', TableWidth(av));
}

// ---- Page 5 ------------------------------------------------------------------

void VargaDasaPage(Page& page, const ReportInput& in) {
  page.Header(5);
  page.Line("Vargas");
  const Grid& vargas = in.vargas.mshVargas;
  const std::initializer_list<int> vcols = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
  std::vector<std::string> heading = vargas.Rows() > 0 ? GridRow(vargas, 0, vcols) : std::vector<std::string>(11);
  heading[0] = "Chart Type";
  Rows charts = {heading};
  for (int row = 1; row < vargas.Rows(); ++row) charts.push_back(GridRow(vargas, row, vcols));
  const Widths vw = Fit({18, 5, 5, 5, 5, 5, 5, 5, 5, 5, 4}, charts);
  page.Rule('-', TableWidth(vw));
  page.Row(heading, vw);
  page.Rule('-', TableWidth(vw));
  for (size_t i = 1; i < charts.size(); ++i) page.Row(charts[i], vw);

  page.Line();
  page.Line("Vimshottari Dasa");
  page.Line("================");
  page.Line(in.dasa.DasaBalanceText);
  const Grid& dasa = in.dasa.mshDasa;
  Rows periods;
  for (int row = 1; row < dasa.Rows(); ++row) periods.push_back(GridRow(dasa, row, {0, 1, 2, 3}));
  const Widths dw = Fit({12, 15, 15, 9}, periods);
  page.Rule('-', TableWidth(dw));
  page.Row({"Dasa", "Start", "End", "Start Age"}, dw);
  page.Rule('-', TableWidth(dw));
  for (const auto& row : periods) page.Row(row, dw);
  page.Rule('-', TableWidth(dw));
}

// ---- Bhukti and antra pages ------------------------------------------------

// One period line of a two-column page: lord, " => ", start, end.
constexpr int kPeriodLordWidth = 8;
constexpr int kPeriodDateWidth = 13;
constexpr int kPeriodColumnWidth = kPeriodLordWidth + 4 + kPeriodDateWidth + 11;
constexpr int kPeriodColumnGap = 4;

std::string PeriodLine(const std::string& lord, const std::string& start, const std::string& end) {
  std::string line;
  AppendField(line, lord, kPeriodLordWidth);
  line += " => ";
  AppendField(line, start, kPeriodDateWidth);
  line += end;
  return line;
}

// A block: its heading, its period lines and a blank line; a block is never
// split across columns.
using Block = std::vector<std::string>;

// The text of each block: its heading, its period lines and a blank line.
std::vector<Block> TextBlocks(const std::vector<PeriodBlock>& periods) {
  std::vector<Block> blocks;
  for (const PeriodBlock& p : periods) {
    Block block{p.heading};
    for (const auto& line : p.lines) block.push_back(PeriodLine(line.lord, line.start, line.end));
    block.emplace_back();
    blocks.push_back(std::move(block));
  }
  return blocks;
}

struct TwoColumnSection {
  const char* title;
  const char* underline;
  const char* periodHeading;  // "Bukti" or "Antra"
  const char* blockHeading;   // "Dasa" or "Bhukthi"
};

void ColumnHeadings(Page& page, const TwoColumnSection& section) {
  std::string heading;
  for (int column = 0; column < 2; ++column) {
    std::string one;
    AppendField(one, section.periodHeading, kPeriodLordWidth + 4);
    AppendField(one, "Start", kPeriodDateWidth);
    AppendField(one, "End", kPeriodColumnWidth - kPeriodLordWidth - 4 - kPeriodDateWidth);
    AppendField(heading, one, kPeriodColumnWidth + kPeriodColumnGap);
  }
  page.Line(section.blockHeading);
  RightTrim(heading);
  page.Line(heading);
  page.Line();
}

// Lays the blocks down the left column, then the right, then onto a new
// page; returns the number of the last page written.
int TwoColumnPages(std::vector<std::string>& pages, const TwoColumnSection& section, const std::vector<Block>& blocks,
                   int pageNumber) {
  size_t next = 0;
  bool first = true;
  do {
    Page page;
    page.Header(pageNumber);
    if (first) {
      page.Line(section.title);
      page.Line(section.underline);
      page.Line();
    }
    ColumnHeadings(page, section);
    std::array<std::vector<std::string>, 2> columns;
    for (auto& column : columns) {
      while (next < blocks.size() &&
             (column.empty() || column.size() + blocks[next].size() <= static_cast<size_t>(kPeriodColumnLines))) {
        column.insert(column.end(), blocks[next].begin(), blocks[next].end());
        ++next;
      }
    }
    const size_t lines = std::max(columns[0].size(), columns[1].size());
    for (size_t i = 0; i < lines; ++i) {
      std::string line;
      AppendField(line, i < columns[0].size() ? columns[0][i] : std::string(), kPeriodColumnWidth + kPeriodColumnGap);
      if (i < columns[1].size()) line += columns[1][i];
      RightTrim(line);
      page.Line(line);
    }
    pages.push_back(std::move(page.Text()));
    first = false;
    ++pageNumber;
  } while (next < blocks.size());
  return pageNumber - 1;
}

}  // namespace

std::array<std::pair<const char*, const std::string*>, kTitlePageLabelCount> TitlePageFields(
    const TitlePageValues& v) {
  return {{{"Name", &v.name},
           {"Sex", &v.sex},
           {"Date of Birth", &v.dateOfBirth},
           {"Time of Birth", &v.timeOfBirth},
           {"LMT", &v.lmt},
           {"GMT", &v.gmt},
           {"Time Zone", &v.timeZone},
           {"Ishta Ghati", &v.ishtaGhati},
           {"Birth County", &v.birthCountry},
           {"Birth City", &v.birthCity},
           {"Latitude", &v.latitude},
           {"Longitude", &v.longitude},
           {"Sun Rise", &v.sunRise},
           {"Sun Set", &v.sunSet},
           {"Ayanamsa", &v.ayanamsa},
           {"Vedic Day", &v.vedicDay},
           {"Gregorian Day", &v.gregorianDay},
           {"Solar Date", &v.solarDate},
           {"Lunar Sukladi Date", &v.lunarSukladiDate},
           {"Lunar Krishnadi Date", &v.lunarKrishnadiDate},
           {"Kaliyuga Year", &v.kaliyugaYear},
           {"Ayana", &v.ayana},
           {"Janma Lagna", &v.janmaLagna},
           {"Janma Rasi", &v.janmaRasi},
           {"Star", &v.star},
           {"Tithi", &v.tithi},
           {"Paksha", &v.paksha},
           {"Yogam", &v.yogam},
           {"Karnam", &v.karnam}}};
}

std::string ComposeReport(const ReportInput& input) {
  std::vector<std::string> pages;
  pages.reserve(16);
  {
    Page page;
    TitlePage(page, input);
    pages.push_back(std::move(page.Text()));
  }
  using PageComposer = void (*)(Page&, const ReportInput&);
  constexpr std::array<PageComposer, 4> kFixedPages = {ChartsPage, BhavaPage, PlanetPage, VargaDasaPage};
  for (const PageComposer compose : kFixedPages) {
    Page page;
    compose(page, input);
    pages.push_back(std::move(page.Text()));
  }
  int last = TwoColumnPages(pages, {"Bhukti", "======", "Bukti", "Dasa"}, TextBlocks(BhuktiPeriodBlocks(input.dasa)), 6);
  if (input.withAntra) TwoColumnPages(pages, {"Antra", "=====", "Antra", "Bhukthi"}, TextBlocks(AntraPeriodBlocks(input.dasa)), last + 1);

  std::string report;
  size_t size = pages.size();
  for (const std::string& p : pages) size += p.size();
  report.reserve(size);
  for (size_t i = 0; i < pages.size(); ++i) {
    if (i > 0) report += kFormFeed;
    report += pages[i];
  }
  return report;
}

}  // namespace kelvaro
