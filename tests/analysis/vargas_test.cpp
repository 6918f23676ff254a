// The divisional charts: the computed rows of the sample chart worked by hand,
// the questions asked of the bands, a band's end, the short division sizes,
// Nava-Navamsa, the header by language and the errors.
#include "analysis/vargas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "common/calculation_error.h"
#include "support/charts_master.h"
#include "support/sample_chart.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

// The rasis' short names are the first three letters of the long ones in both
// name lists ("Ari", "Ris").
// Longitudes Lagna to Maandi; those left out are 0.
ChartData ChartWith(const std::array<double, 12>& longitudes, const std::string& language = "English") {
  ChartData c = language == "Sanskrit" ? testing::SanskritNames() : testing::EnglishNames();
  c.language = language;
  for (size_t i = 0; i < 12; ++i) c.RasiShortNames[i] = c.RasiNames[i].substr(0, 3);
  c.longitude = longitudes;
  return c;
}

constexpr const std::array<double, 12>& kSample = testing::kSampleLongitude;

struct Question {
  std::string chart;
  double degree;
  int rasi;
};

// A table that keeps the questions it is asked and answers by a rule given
// by the test.
class FakeTable : public ChartsMasterTable {
 public:
  using Rule = std::function<std::optional<int>(std::string_view, double, int)>;
  explicit FakeTable(Rule rule) : rule_(std::move(rule)) {}
  std::optional<int> House(std::string_view chart, double degree, int rasi) const override {
    asked.push_back({std::string(chart), degree, rasi});
    return rule_(chart, degree, rasi);
  }
  mutable std::vector<Question> asked;

 private:
  Rule rule_;
};

// Answers every chart with the body's own sign.
std::optional<int> SameSign(std::string_view, double, int rasi) { return rasi; }

std::vector<std::string> Cells(const Grid& g, int row) {
  std::vector<std::string> cells = g.RowTexts(row);
  cells.erase(cells.begin());
  return cells;
}

// Every row of the sample chart through the seed bands, from
// tests/data/analysis/vargas_sample.txt.
TEST(Vargas, SampleChartRows) {
  const testing::SeedChartsMaster table;
  ASSERT_GT(table.Size(), 0u);
  Vargas v;
  FillVargas(ChartWith(kSample), table, v);
  ASSERT_EQ(v.mshVargas.Rows(), 22);
  ASSERT_EQ(v.mshVargas.Cols(), 11);
  const auto rows = testing::TestDataTable("analysis/vargas_sample.txt");
  ASSERT_EQ(rows.size(), 21u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 12u);
    const int r = std::stoi(row[0]);
    if (!row[1].empty()) {
      EXPECT_EQ(v.mshVargas.Text(r, 0), row[1]);
    }
    EXPECT_EQ(Cells(v.mshVargas, r), std::vector<std::string>(row.begin() + 2, row.end())) << row[0];
  }
}

// The table charts ask, for each body, its degrees within the sign (as the
// lookup's text carries them, to 15 significant digits) and its Rasi sign,
// under the chart's name in capitals; the answer stands in the cell. The
// hora answers here follow the classical rule (odd signs: Leo then Cancer;
// even signs the reverse), worked by hand for the sample chart.
TEST(Vargas, SampleChartTableRowsAskTheBands) {
  const ChartData chart = ChartWith(kSample);
  const FakeTable table([](std::string_view name, double degree, int rasi) -> std::optional<int> {
    if (name != "HORA") return rasi;
    const bool odd = rasi % 2 == 1;
    return (odd == (degree < 15)) ? 5 : 4;
  });
  Vargas v;
  FillVargas(chart, table, v);
  EXPECT_EQ(Cells(v.mshVargas, 3),
            (std::vector<std::string>{"Can", "Can", "Can", "Can", "Leo", "Leo", "Leo", "Can", "Leo", "Leo"}));
  EXPECT_EQ(v.mshVargas.Text(3, 0), "Hora");

  const char* const charts[] = {"HORA",         "DREKKANA",         "CHATURTHAMSHA", "DASHAMSHA",
                                "EKADASHAMSHA", "DWADASHAMSHA",     "CHATURVIMSHAMSHA", "TRIMSHAMSHA",
                                "KHAVEDAMSA",   "AKSHVEDAMSA",      "SHASTIAMSA"};
  const double degrees[] = {25.2472223465519, 28.3175878697087, 5.45618287678559, 14.6582273760534,
                            24.6290380681562, 25.4981839642402, 22.993458296393,  23.6090305022042,
                            18.314118595506,  18.314118595506};
  const int signs[] = {7, 3, 10, 6, 4, 2, 4, 11, 2, 8};
  ASSERT_EQ(table.asked.size(), 110u);
  for (size_t c = 0; c < 11; ++c) {
    for (size_t b = 0; b < 10; ++b) {
      const Question& q = table.asked[c * 10 + b];
      SCOPED_TRACE(std::string(charts[c]) + " body " + std::to_string(b));
      EXPECT_EQ(q.chart, charts[c]);
      EXPECT_EQ(q.degree, degrees[b]);
      EXPECT_EQ(q.rasi, signs[b]);
    }
  }
  // A table chart shows what the table says, not the division: with every
  // answer the body's own sign, the Drekkana row is the Rasi row.
  EXPECT_EQ(Cells(v.mshVargas, 4), Cells(v.mshVargas, 1));
}

// Hora bands of Aries as the table holds them: 0 to 15 Leo, 15 to 30 Cancer,
// each band's end outside it. A body a hair below 15 whose 15-digit text is
// "15" is asked as 15 and lands in the second band.
TEST(Vargas, BandEdgeIsExclusive) {
  const FakeTable table([](std::string_view name, double degree, int rasi) -> std::optional<int> {
    if (name != "HORA") return rasi;
    if (rasi != 1) return std::nullopt;
    if (0 <= degree && degree < 15) return 5;
    if (15 <= degree && degree < 30) return 4;
    return std::nullopt;
  });
  const ChartData chart = ChartWith({15.0, 14.9999, 14.999999999999993, 0.0, 29.999999, 7.5, 1, 2, 3, 4});
  Vargas v;
  FillVargas(chart, table, v);
  EXPECT_EQ(Cells(v.mshVargas, 3),
            (std::vector<std::string>{"Can", "Leo", "Can", "Leo", "Can", "Leo", "Leo", "Leo", "Leo", "Leo"}));
}

// The computed charts divide by the short sizes as written, and a body at
// the end of a division moves on: 299.9995 / 4.2857 is 70.0001, Aquarius,
// where a seventh of 30 would give Capricorn; 359.998 / 1.1111 is 324.0001,
// Aries, where a 27th of 30 would give Pisces. Panchamsha divides by 6: 12 is
// the start of the third part.
TEST(Vargas, DivisionEdgesAndShortSizes) {
  const FakeTable table(SameSign);
  const ChartData chart = ChartWith({299.9995, 359.998, 12.0, 11.999999, 0, 0, 0, 0, 0, 0});
  Vargas v;
  FillVargas(chart, table, v);
  EXPECT_EQ(v.mshVargas.Text(8, 1), "Aqu");   // Sapthamsha of 299.9995
  EXPECT_EQ(v.mshVargas.Text(16, 2), "Ari");  // Saptavimshamsha of 359.998
  EXPECT_EQ(v.mshVargas.Text(6, 3), "Gem");   // Panchamsha of 12
  EXPECT_EQ(v.mshVargas.Text(6, 4), "Tau");   // Panchamsha of 11.999999
}

// Nava-Navamsa by hand: 100.5 x 81 = 8140.5, / 360 = 22.6125, 23 less 12 is
// 11, Aquarius; 4.4444444 x 81 = 359.99999964, below one part: Aries;
// 30 x 81 / 360 = 6.75: Libra; 359.99 x 81 / 360 = 80.99775, 81 less 72 is
// 9: Sagittarius; 0: Aries; 80 x 81 / 360 = 18 exactly: part 19, less 12 is
// 7, Libra.
TEST(Vargas, NavaNavamsaByHand) {
  const FakeTable table(SameSign);
  const ChartData chart = ChartWith({100.5, 4.4444444, 30.0, 359.99, 0.0, 80.0, 0, 0, 0, 0});
  Vargas v;
  FillVargas(chart, table, v);
  EXPECT_EQ(v.mshVargas.Text(21, 0), "Nava-Navamsa");
  const std::vector<std::string> want = {"Aqu", "Ari", "Lib", "Sag", "Ari", "Lib"};
  for (int b = 0; b < 6; ++b) EXPECT_EQ(v.mshVargas.Text(21, b + 1), want[static_cast<size_t>(b)]) << b;
}

TEST(Vargas, HeaderAndNamesByLanguage) {
  const FakeTable table(SameSign);
  Vargas v;
  FillVargas(ChartWith(kSample, "Sanskrit"), table, v);
  EXPECT_EQ(v.mshVargas.RowTexts(0),
            (std::vector<std::string>{"  Chart                  ", " Lag  ", " Sur  ", " Cha  ", " Kuj  ", " Bud  ",
                                      " Gur  ", " Suk  ", " San  ", " Rah  ", " Ket  "}));
  EXPECT_EQ(v.mshVargas.Text(1, 1), "Tul");  // the Lagna in Libra
  EXPECT_EQ(v.mshVargas.Text(1, 3), "Mak");  // the Moon in Capricorn

  // Another language keeps the header of the last fill.
  FillVargas(ChartWith(kSample, "Tamil"), table, v);
  EXPECT_EQ(v.mshVargas.Text(0, 1), " Lag  ");

  FillVargas(ChartWith(kSample, "English"), table, v);
  EXPECT_EQ(v.mshVargas.RowTexts(0),
            (std::vector<std::string>{"  Chart                  ", " Asc  ", " Sun  ", " Moo  ", " Mar  ", " Mer  ",
                                      " Jup  ", " Ven  ", " Sat  ", " Rah  ", " Ket  "}));
  EXPECT_EQ(v.mshVargas.Text(1, 1), "Lib");
  EXPECT_EQ(v.mshVargas.Rows(), 22);

  // A first fill in another language has an empty header of the same width.
  Vargas fresh;
  FillVargas(ChartWith(kSample, "Tamil"), table, fresh);
  EXPECT_EQ(fresh.mshVargas.Cols(), 11);
  EXPECT_EQ(fresh.mshVargas.Text(0, 1), "");
}

TEST(Vargas, MissingBandRaises) {
  const FakeTable table([](std::string_view name, double, int rasi) -> std::optional<int> {
    if (name == "TRIMSHAMSHA") return std::nullopt;
    return rasi;
  });
  Vargas v;
  EXPECT_THROW(FillVargas(ChartWith(kSample), table, v), CalculationError);
}

TEST(Vargas, RowOfChartNameAndShortName) {
  const struct {
    const char* name;
    int row;
  } cases[] = {{"NAVAMSA", 2},        {"navamsa", 2},  {" Nava-Navamsa ", 21}, {"HORA", 3},
               {"SHASTIAMSA", 20},    {"Rasi", 0},     {"navamsas", 0},        {"", 0}};
  for (const auto& c : cases) EXPECT_EQ(VargaRowOfChart(c.name), c.row) << c.name;
  // Every chart handed on finds its own row.
  for (int row = 2; row <= kVargaChartCount; ++row) EXPECT_EQ(VargaRowOfChart(kVargaCharts[row - 1].name), row);

  const ChartData chart = ChartWith(kSample);
  EXPECT_EQ(RasiShortFromName(chart, "Capricon"), "Cap");
  EXPECT_EQ(RasiShortFromName(chart, "Capricorn"), "");
}

}  // namespace
}  // namespace kelvaro
