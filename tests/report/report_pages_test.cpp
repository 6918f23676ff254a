#include "report/report_pages.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "report_models.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

using testing::FillDasaModel;
using testing::ReportModels;

std::vector<std::string> SplitPages(const std::string& report) {
  std::vector<std::string> pages;
  size_t from = 0;
  for (;;) {
    const size_t feed = report.find('\f', from);
    pages.push_back(report.substr(from, feed == std::string::npos ? std::string::npos : feed - from));
    if (feed == std::string::npos) return pages;
    from = feed + 1;
  }
}

// The lines of a page; every line must end with CR LF.
std::vector<std::string> Lines(const std::string& page) {
  std::vector<std::string> lines;
  size_t from = 0;
  while (from < page.size()) {
    const size_t end = page.find("\r\n", from);
    EXPECT_NE(end, std::string::npos) << "a line without CR LF: " << page.substr(from);
    if (end == std::string::npos) break;
    lines.push_back(page.substr(from, end - from));
    from = end + 2;
  }
  return lines;
}

// Lines of a page against the "line|text" rows of a data file.
void ExpectLines(const std::vector<std::string>& lines, const std::string& file) {
  for (const auto& row : kelvaro::testing::TestDataTable("report/" + file)) {
    ASSERT_EQ(row.size(), 2u) << file;
    const size_t at = std::stoul(row[0]);
    ASSERT_LT(at, lines.size()) << file;
    EXPECT_EQ(lines[at], row[1]) << file << " line " << at;
  }
}

std::string Blanks(int n) { return std::string(static_cast<size_t>(n), ' '); }

const std::string kUnderscores(70, '_');

// The models with three sub-periods of the first dasa left after birth.
ReportModels Models() {
  ReportModels m;
  FillDasaModel(m.dasa, 3);
  return m;
}

// ---- Title page --------------------------------------------------------------

// The title page of the sample chart without a letterhead, in
// tests/data/report/title_page.txt: every label in its order and the report's
// spelling ("Birth County"), each with its value.
std::vector<std::string> TitleTop() { return kelvaro::testing::TestDataLines("report/title_page.txt"); }

TEST(ReportTitlePage, EmptyLetterheadEndsAtTheSecondRule) {
  ReportModels m = Models();
  const std::vector<std::string> pages = SplitPages(ComposeReport(m.Input()));
  EXPECT_EQ(Lines(pages[0]), TitleTop());
}

// The owner's block under the title page: its trimmed fields joined, and only
// the lines that have something to show.
TEST(ReportTitlePage, OwnerBlockJoinsTheTrimmedFields) {
  ReportModels m = Models();
  ReportInput input = m.Input();
  const struct {
    OwnerDetails owner;
    std::vector<std::string> lines;
  } cases[] = {
      {{" Sri Jyotisha ", "12 Temple Road", "Ward 4", "Hyderabad", "India ", "500001", " 040-123 ", "mail@example.org"},
       {"     Sri Jyotisha", "     12 Temple Road, Ward 4, Hyderabad, India - 500001, Phone : 040-123",
        "     E-Mail : mail@example.org"}},
      {{"Kelvaro Technologies Pvt Ltd", "", "", "", "", "", "", ""}, {"     Kelvaro Technologies Pvt Ltd"}},
      {{"", " ", "", "", "", "", "", "a@b.org"}, {"     E-Mail : a@b.org"}},
  };
  for (const auto& c : cases) {
    input.owner = c.owner;
    std::vector<std::string> expected = TitleTop();
    expected.push_back("");
    expected.insert(expected.end(), c.lines.begin(), c.lines.end());
    EXPECT_EQ(Lines(SplitPages(ComposeReport(input))[0]), expected);
  }
}

// ---- Chart page --------------------------------------------------------------

// A South chart laid out from its line table: margin 10, rows of 49 "*",
// cells of 11 in three text lines and a blank one, the title in the centre.
TEST(ReportChartPage, SouthRasiAndNavamsaUnderTheHeader) {
  ReportModels m = Models();
  m.cells.rasi.south.SetCaption(0, "Sun  12.5\r\nMoo  3.40");
  m.cells.rasi.south.SetCaption(6, "Asc  25.14");
  m.cells.rasi.south.SetCaption(11, "Jup  1.2\r\nRah  2.3\r\nKet  4.5\r\nSat  6.7");
  m.cells.navamsa.south.SetCaption(4, "Mar  ");

  // Navamsa: 7 letters, left pad 12 - 4 (3.5 rounded to even).
  const std::vector<std::string> expected = kelvaro::testing::TestDataLines("report/chart_page_south.txt");
  EXPECT_EQ(Lines(SplitPages(ComposeReport(m.Input()))[1]), expected);
}

// The style is compared upper-cased; one that is no style leaves only the header.
TEST(ReportChartPage, StyleIsComparedUpperCased) {
  ReportModels m = Models();
  m.cells.rasi.east.SetCaption(1, "Sun  ");
  const std::string lower = SplitPages(ComposeReport(m.Input(false, "east")))[1];
  const std::string proper = SplitPages(ComposeReport(m.Input(false, "East")))[1];
  EXPECT_EQ(lower, proper);
  EXPECT_NE(proper.find("* * * * * * * * * * * * * * * * * * * * * *"), std::string::npos);
  EXPECT_NE(proper.find("Sun"), std::string::npos);
  const std::vector<std::string> lines = Lines(SplitPages(ComposeReport(m.Input(false, "West")))[1]);
  EXPECT_EQ(lines, (std::vector<std::string>{Blanks(38) + "www.kelvaro.org - Horoscope  Page 2", kUnderscores, "",
                                              "", ""}));
}

// ---- Bhava and planet pages -----------------------------------------------------

TEST(ReportBhavaPage, TitleFollowsTheSystem) {
  ReportModels m = Models();
  const std::string equal = SplitPages(ComposeReport(m.Input(false, "South", "Equal")))[2];
  const std::string other = SplitPages(ComposeReport(m.Input(false, "South", "Not Equal")))[2];
  EXPECT_NE(equal.find("\r\nBhava Positions  (Equal Division of Houses From M.C)\r\n"), std::string::npos);
  EXPECT_NE(other.find("\r\nBhava Positions  (Placidius Semi-Arc System)\r\n"), std::string::npos);
  EXPECT_EQ(equal.find("Placidius"), std::string::npos);
}

TEST(ReportPlanetPage, RowLeavesOutTheRasiLordAndFitsItsRule) {
  ReportModels m = Models();
  m.planets.mshNirayana.Resize(11, 10);
  const std::vector<std::string> sat = {"Sat",    "23.36.33 (R)", "Aquarius", "RASILORD", "P.Bhadrapad",
                                        "2",      "Jupiter",      "Saturn",   "Puttra",   "Agama"};
  for (int c = 0; c < 10; ++c) m.planets.mshNirayana.SetText(8, c, sat[static_cast<size_t>(c)]);
  const std::vector<std::string> lines = Lines(SplitPages(ComposeReport(m.Input()))[3]);
  ExpectLines(lines, "planet_page_lines.txt");
  for (const std::string& line : lines) EXPECT_LE(line.size(), 81u) << line;
}

// Sets a grid row from texts, column 0 first.
void SetRow(Grid& grid, int row, const std::vector<std::string>& texts) {
  for (size_t c = 0; c < texts.size(); ++c) grid.SetText(row, static_cast<int>(c), texts[c]);
}

// The table of the mid points under two heading lines; a long star name
// then widens its whole column and the rules with it.
TEST(ReportBhavaPage, TableOfTheMidPointsAndALongStarName) {
  ReportModels m = Models();
  Grid& houses = m.bhava.mshBhavaDetails;
  houses.Resize(13, 8);
  SetRow(houses, 3, {"3", "265.43.43", "Sagitarius", "Jupiter", "Poorvashada", "4", "Venus", "Mercury"});
  std::vector<std::string> lines = Lines(SplitPages(ComposeReport(m.Input()))[2]);
  // Header (3), drawing (21), two blank lines, then the table.
  ASSERT_EQ(lines.size(), 3u + 21u + 2u + 5u + 12u);
  ExpectLines(lines, "mid_points_lines.txt");

  SetRow(houses, 4, {"4", "295.58.10", "Capricon", "Saturn", "Uttarabhadrapada", "1", "Mars", "Rahu"});
  lines = Lines(SplitPages(ComposeReport(m.Input()))[2]);
  ASSERT_EQ(lines.size(), 3u + 21u + 2u + 5u + 12u);
  ExpectLines(lines, "mid_points_long_star_lines.txt");
}

TEST(ReportPlanetPage, AshtakavargaUnderThePlanetTablesShortNames) {
  ReportModels m = Models();
  m.planets.mshNirayana.Resize(11, 10);
  const std::vector<std::string> shortNames = {"Asc", "Sun", "Moo", "Mar", "Mer", "Jup", "Ven", "Sat", "Rah", "Ket"};
  for (int r = 1; r <= 10; ++r) m.planets.mshNirayana.SetText(r, 0, shortNames[static_cast<size_t>(r - 1)]);
  Grid& av = m.ashtakavarga.mshAshtaVarga;
  av.Resize(14, 12);
  SetRow(av, 1, {"Aries", "3", "5", "3", "5", "6", "4", "4", "3", "1", "30", "34"});
  SetRow(av, 13, {"Total", "48", "49", "39", "54", "56", "52", "39", "49", "43", "337", "429"});
  const std::vector<std::string> lines = Lines(SplitPages(ComposeReport(m.Input()))[3]);
  // The planet table's 20 lines, then title, rule, two heading lines, rule,
  // twelve rows, rule, the total and its rule.
  ASSERT_EQ(lines.size(), 20u + 1 + 1 + 2 + 1 + 12 + 1 + 1 + 1);
  ExpectLines(lines, "ashtakavarga_lines.txt");
}

TEST(ReportVargaDasaPage, DasaTableWithTheBalanceLine) {
  ReportModels m = Models();
  SetRow(m.dasa.mshDasa, 2, {"Moon", "01/Aug/1967", "31/Jul/1977", "2"});
  const std::vector<std::string> lines = Lines(SplitPages(ComposeReport(m.Input()))[4]);
  // An empty varga grid leaves its heading alone.
  ASSERT_EQ(lines.size(), 3u + 4u + 1u + 3u + 3u + 9u + 1u);
  ExpectLines(lines, "varga_dasa_lines.txt");
}

TEST(ReportChartPage, QuoteInACellIsPrintedAsItIs) {
  ReportModels m = Models();
  m.cells.rasi.south.SetCaption(1, "Su'  1.2");
  const std::vector<std::string> lines = Lines(SplitPages(ComposeReport(m.Input()))[1]);
  EXPECT_EQ(lines[4], Blanks(10) + "*           *Su'        *           *           *");
}

// ---- Page count, separators, page numbers ------------------------------------------

TEST(ReportPages, SixPagesWithoutAntraFifteenWithIt) {
  ReportModels m = Models();
  const std::string without = ComposeReport(m.Input(false));
  const std::string with = ComposeReport(m.Input(true));
  EXPECT_EQ(SplitPages(without).size(), 6u);
  // 81 antra blocks of eleven lines, five to a column, ten to a page.
  EXPECT_EQ(SplitPages(with).size(), 15u);
  // The antra pages come after everything else, which stays the same.
  EXPECT_EQ(with.substr(0, without.size()), without);
  EXPECT_EQ(with[without.size()], '\f');
}

TEST(ReportPages, EmptyModelsGiveEmptyBodiesWithoutFailing) {
  const ReportModels m;  // nothing calculated: no cells, no grid rows, no periods
  const std::vector<std::string> without = SplitPages(ComposeReport(m.Input(false)));
  ASSERT_EQ(without.size(), 6u);
  // The Rasi chart is still drawn, with empty cells.
  EXPECT_EQ(Lines(without[1])[4], Blanks(10) + "*           *           *           *           *");
  // The bhukti page keeps its title and headings over no periods.
  const std::vector<std::string> bhukti = Lines(without[5]);
  ASSERT_EQ(bhukti.size(), 9u);
  EXPECT_EQ(bhukti[3], "Bhukti");
  EXPECT_EQ(bhukti[7], "Bukti       Start        End            Bukti       Start        End");
  EXPECT_EQ(SplitPages(ComposeReport(m.Input(true))).size(), 7u);
}

TEST(ReportPages, FormFeedsSeparateAndEveryLineEndsWithCrLf) {
  ReportModels m;
  FillDasaModel(m.dasa, 9);
  const std::string report = ComposeReport(m.Input(true));
  EXPECT_NE(report.front(), '\f');
  EXPECT_NE(report.back(), '\f');
  for (size_t i = 0; i < report.size(); ++i) {
    if (report[i] == '\n') {
      ASSERT_TRUE(i > 0 && report[i - 1] == '\r') << "bare LF at " << i;
    }
    if (report[i] == '\r') {
      ASSERT_TRUE(i + 1 < report.size() && report[i + 1] == '\n') << "bare CR at " << i;
    }
    if (report[i] == '\f') {
      ASSERT_TRUE(report.compare(i - 2, 2, "\r\n") == 0) << "page not ended by CR LF at " << i;
    }
  }
  for (const std::string& page : SplitPages(report)) {
    ASSERT_GE(page.size(), 2u);
    EXPECT_EQ(page.substr(page.size() - 2), "\r\n");
  }
}

TEST(ReportPages, HeadersNumberEveryPageFromTwoOn) {
  ReportModels m = Models();
  const std::vector<std::string> pages = SplitPages(ComposeReport(m.Input(true)));
  for (size_t i = 1; i < pages.size(); ++i) {
    const std::vector<std::string> lines = Lines(pages[i]);
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[0], Blanks(38) + "www.kelvaro.org - Horoscope  Page " + std::to_string(i + 1));
    EXPECT_EQ(lines[1], kUnderscores);
  }
}

// ---- Bhukti and antra pages ----------------------------------------------------

TEST(ReportBhuktiPage, TwoColumnsOfDasaBlocks) {
  ReportModels m = Models();
  const std::vector<std::string> lines = Lines(SplitPages(ComposeReport(m.Input()))[5]);
  ASSERT_GT(lines.size(), 12u);
  ExpectLines(lines, "bhukti_page_lines.txt");
  // Kethu of the lists shows as the dasa grid names it.
  EXPECT_EQ(lines[11].substr(0, 28), "Ketu     => b1s          b1e");
  EXPECT_EQ(lines.size(), 9u + 49u);
  for (const std::string& line : lines) EXPECT_LE(line.size(), 76u) << line;
}

TEST(ReportBhuktiPage, AWholeFirstDasaStillFitsOnePage) {
  ReportModels m;
  FillDasaModel(m.dasa, 9);
  const std::vector<std::string> pages = SplitPages(ComposeReport(m.Input()));
  ASSERT_EQ(pages.size(), 6u);
  EXPECT_NE(pages[5].find("Venus - Bhukti"), std::string::npos);
}

TEST(ReportAntraPage, BlocksNameDasaAndBhuktiAndKeepTheirSpelling) {
  ReportModels m = Models();
  const std::vector<std::string> pages = SplitPages(ComposeReport(m.Input(true)));
  const std::vector<std::string> lines = Lines(pages[6]);
  ASSERT_GT(lines.size(), 12u);
  ExpectLines(lines, "antra_page_lines.txt");
  // The last page holds the one block left: Venus dasa, Kethu bhukti.
  const std::vector<std::string> last = Lines(pages.back());
  EXPECT_EQ(last[3], "Bhukthi");
  EXPECT_EQ(last[6], "Venus - Ketu - Antra");
  EXPECT_EQ(last[7], "Ketu     => s8.8.0       e8.8.0");
  EXPECT_EQ(last.size(), 6u + 11u);
}

}  // namespace
}  // namespace kelvaro
