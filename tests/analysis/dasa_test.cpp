// The Vimshottari dasa of the sample chart (Moon 275.456182876786, Lahiri;
// birth 14 Jul 1965 14:15), worked by hand and by a separate script with its
// own calendar arithmetic: the balance, the dasa ends, the first sub-periods,
// antra lengths, the year length of the preference, and the rows handed to
// tempBhukthi.
#include "analysis/dasa.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "common/calculation_error.h"
#include "support/test_data.h"

namespace kelvaro {
namespace {

constexpr double kSampleMoon = 275.456182876786;

class RecordingSink : public BhukthiSink {
 public:
  void Replace(const std::string& userId, const std::vector<BhukthiRow>& rows) override {
    ++calls;
    lastUser = userId;
    lastRows = rows;
  }
  int calls = 0;
  std::string lastUser;
  std::vector<BhukthiRow> lastRows;
};

ChartData SampleChart(double moon = kSampleMoon, double daysInYear = 365.25) {
  ChartData chart;
  chart.longitude[static_cast<size_t>(Body::Moon)] = moon;
  chart.birthMoment = OleDate::FromParts(1965, 7, 14, 14, 15);
  chart.daysInYear = daysInYear;
  chart.LongNames = {"Asc", "Sun", "Moon", "Mars", "Mercury", "Venus", "Jupiter", "Saturn", "Rahu", "Ketu"};
  return chart;
}

struct Filled {
  DasaTables tables;
  RecordingSink sink;
};

void Fill(const ChartData& chart, Filled& f, const std::string& userId = "Velnesh") {
  clsStar star;
  FillDasa(chart, star, userId, f.sink, f.tables);
}

std::vector<std::string> Row(const Grid& grid, int row) { return grid.RowTexts(row); }

// The sample chart's dasa, filled once per test.
class SampleDasa : public ::testing::Test {
 protected:
  void SetUp() override { Fill(SampleChart(), f); }
  Filled f;
};

// Rows 1 to count of a grid against a data file of name|from|to|age lines.
void ExpectRows(const Grid& grid, const std::string& file, size_t count) {
  const auto rows = testing::TestDataTable(file);
  ASSERT_EQ(rows.size(), count);
  for (size_t k = 0; k < count; ++k) EXPECT_EQ(Row(grid, static_cast<int>(k) + 1), rows[k]) << file << " " << k + 1;
}

// Uttarashada (star 21, the Sun's) ends at 280 degrees = 16800 minutes; the
// Moon stands at 275 * 60 + 27.37 = 16527.37, cut to 16527: 273 minutes left.
// Balance 6 * 273 / 800 = 2.0475 years = 2 years, 0.57 months, 17.1 days.
TEST_F(SampleDasa, SampleChartBalance) {
  EXPECT_DOUBLE_EQ(f.tables.balanceYears, 2.0475);
  EXPECT_EQ(f.tables.Lab_DasaBalanceV, "Dasa Balance at Birth :Dasa  Sun2-0- 17");
  EXPECT_EQ(f.tables.DasaBalanceText, "Sun Dasa  2 Years 0 Months 17 Days ");
  const std::array<std::string, 9> lords = {"Sun",     "Moon",   "Mars",    "Rahu", "Jupiter",
                                            "Saturn", "Mercury", "Kethu", "Venus"};
  EXPECT_EQ(f.tables.DasaLord, lords);
}

// 2.0475 * 365.25 = 747.85 days, made 748: 14 Jul 1965 + 748 days is
// 1 Aug 1967. Then 10 * 365.25 = 3652.5 goes to the even 3652, 7 years to
// 2557 days, 18 years 6574.5 to 6574, 16 years 5844, 19 years 6939.75 to
// 6940, 17 years 6209.25 to 6209, 20 years 7305. The age is the count of year
// numbers crossed since birth at the start of the dasa.
TEST_F(SampleDasa, SampleChartDasaEnds) {
  const Grid& g = f.tables.mshDasa;
  ASSERT_EQ(g.Rows(), 10);
  ASSERT_EQ(g.Cols(), 4);
  EXPECT_EQ(Row(g, 0), (std::vector<std::string>{"Dasa       ", " From              ", " To                 ",
                                                  "  Age "}));
  ExpectRows(g, "analysis/dasa_sample_dasas.txt", 9);
  EXPECT_EQ(f.tables.DasaEnd[0], OleDate::FromParts(1967, 8, 1, 14, 15));
  EXPECT_EQ(f.tables.DasaEnd[8], OleDate::FromParts(2081, 7, 31, 14, 15));
}

// The Sun dasa began 6 calendar years before 1 Aug 1967. Sun 0.3 years is
// 3 months and 18 days (0.6 of a month; 0.3 * 12 falls just under 3.6);
// Moon 0.5 is 6 months; Mars 0.35 is 4 months 6 days; Rahu 0.9 is 10 months
// 24 days; Jupiter 0.8 is 9 months 18 days; Saturn 0.95 is 11 months 12 days,
// ending 18 May 1965, before birth. Mercury 0.85 (10 months 6 days) runs over
// the birth: 18 May 1965 + 6 days + 10 months = 24 Mar 1966.
TEST_F(SampleDasa, SampleChartFirstSubPeriods) {
  EXPECT_EQ(f.tables.BhuktiLord[0], "Sun");
  EXPECT_EQ(f.tables.BhuktiEnd[0], OleDate::FromParts(1961, 11, 19, 14, 15));
  EXPECT_EQ(f.tables.BhuktiEnd[5], OleDate::FromParts(1965, 5, 18, 14, 15));
  EXPECT_EQ(f.tables.BhuktiLord[80], "Kethu");
  EXPECT_EQ(f.tables.BhuktiEnd[80], OleDate::FromParts(2081, 7, 13, 14, 15));

  const Grid& g = f.tables.mshBukti;
  ASSERT_EQ(g.Rows(), 1 + 75);
  EXPECT_EQ(Row(g, 0), (std::vector<std::string>{"Bhukthi  ", " From            ", " To                ", "  Age "}));
  ExpectRows(g, "analysis/dasa_sample_bhuktis.txt", 6);
  EXPECT_EQ(f.tables.bhuktis.front().bhuktiLord, "Mercury");
  EXPECT_EQ(f.tables.bhuktis.front().start, SampleChart().birthMoment);
  EXPECT_EQ(Row(g, 75), (std::vector<std::string>{"Ketu Dasa", "13/May/2080", "13/Jul/2081", "115"}));
}

// The rows of tempBhukthi are those of the grid with the dasa's name beside
// them, handed over in one call for the user id.
TEST_F(SampleDasa, SubPeriodsGoToTheSinkOnce) {
  EXPECT_EQ(f.sink.calls, 1);
  EXPECT_EQ(f.sink.lastUser, "Velnesh");
  ASSERT_EQ(f.sink.lastRows.size(), 75U);
  EXPECT_EQ(f.sink.lastRows[0], (BhukthiRow{"Sun", "Mercury", "14/Jul/1965", "24/Mar/1966", "0"}));
  EXPECT_EQ(f.sink.lastRows[3], (BhukthiRow{"Moon", "Moon", "30/Jul/1967", "30/May/1968", "2"}));
  for (size_t i = 0; i < f.sink.lastRows.size(); ++i) {
    const BhukthiRow& r = f.sink.lastRows[i];
    EXPECT_EQ(Row(f.tables.mshBukti, static_cast<int>(i) + 1),
              (std::vector<std::string>{r.bhukthiName + " Dasa", r.start, r.end, r.age}));
  }
  // A second chart for the same user is handed over whole, in a call of its own.
  Fill(SampleChart(300.0), f, "Velnesh");
  EXPECT_EQ(f.sink.calls, 2);
  ASSERT_EQ(f.sink.lastRows.size(), 77U);
  EXPECT_EQ(f.sink.lastRows[0], (BhukthiRow{"Mars", "Mercury", "14/Jul/1965", "07/Jul/1966", "0"}));
}

// The antras run from birth, one after another, under a section row per
// bhukti.
TEST_F(SampleDasa, AntraGrid) {
  const Grid& g = f.tables.mshAntra;
  ASSERT_EQ(g.Rows(), 1 + 81 * 10);
  EXPECT_EQ(g.Text(0, 0), "Antra     ");
  EXPECT_EQ(g.Text(1, 0), "Sun Dasa, Sun Bhukthi");
  EXPECT_TRUE(g.Bold(1, 0));
  EXPECT_EQ(Row(g, 2), (std::vector<std::string>{"Sun", "14/Jul/1965", "19/Jul/1965", "0"}));
  EXPECT_FALSE(g.Bold(2, 0));
  EXPECT_EQ(Row(g, 3), (std::vector<std::string>{"Moon", "19/Jul/1965", "28/Jul/1965", "0"}));
  EXPECT_EQ(g.Text(11, 0), "Sun Dasa, Moon Bhukthi");
  EXPECT_EQ(Row(g, 13), (std::vector<std::string>{"Mars", "12/Nov/1965", "22/Nov/1965", "0"}));
  EXPECT_EQ(g.Text(801, 0), "Venus Dasa, Ketu Bhukthi");
  EXPECT_EQ(Row(g, 810), (std::vector<std::string>{"Mercury", "28/Aug/2083", "27/Oct/2083", "118"}));
  for (size_t i = 1; i < f.tables.antras.size(); ++i) {
    ASSERT_EQ(f.tables.antras[i].start, f.tables.antras[i - 1].end) << i;
  }
}

// DaysInYear 360 moves the dasa ends (2.0475 * 360 = 737.1, 737 days, to
// 21 Jul 1967; then 3600 days to 29 May 1977) but the sub-periods keep their
// calendar lengths from a start that moved with the first dasa's end.
TEST(Dasa, YearOf360Days) {
  Filled f;
  Fill(SampleChart(kSampleMoon, 360), f);
  EXPECT_EQ(f.tables.DasaEnd[0], OleDate::FromParts(1967, 7, 21, 14, 15));
  EXPECT_EQ(f.tables.DasaEnd[1], OleDate::FromParts(1977, 5, 29, 14, 15));
  EXPECT_EQ(f.tables.DasaEnd[8], OleDate::FromParts(2079, 11, 30, 14, 15));
  EXPECT_EQ(Row(f.tables.mshBukti, 1), (std::vector<std::string>{"Mercury Dasa", "14/Jul/1965", "13/Mar/1966", "0"}));
  EXPECT_EQ(Row(f.tables.mshBukti, 3), (std::vector<std::string>{"Venus Dasa", "19/Jul/1966", "19/Jul/1967", "1"}));
  // The dasa grid and the sub-periods drift apart: the Moon dasa starts on
  // 21 Jul 1967, its first sub-period on 19 Jul 1967.
  EXPECT_EQ(f.tables.mshDasa.Text(2, 1), "21/Jul/1967");
  EXPECT_EQ(f.tables.mshBukti.Text(4, 1), "19/Jul/1967");
}

// The rows of tests/data/analysis/dasa_rows.txt: minutes left in the Moon's
// star, the first periods on other Moons, and antra lengths.
TEST(Dasa, WorkedRows) {
  const auto rows = testing::TestDataTable("analysis/dasa_rows.txt");
  ASSERT_EQ(rows.size(), 16u);
  for (const auto& row : rows) {
    SCOPED_TRACE(row[0] + " " + row[1] + " " + row[2]);
    Filled f;
    if (row[0] == "MinutesLeftInStar") {
      ASSERT_EQ(row.size(), 5u);
      auto star = static_cast<std::int16_t>(std::stoi(row[1]));
      EXPECT_EQ(MinutesLeftInStar(star, std::stod(row[2])), std::stod(row[3]));
      EXPECT_EQ(star, std::stoi(row[4]));
    } else if (row[0] == "OtherMoon") {
      ASSERT_EQ(row.size(), 7u);
      Fill(SampleChart(std::stod(row[1])), f);
      EXPECT_EQ(f.tables.Lab_DasaBalanceV, row[2]);
      EXPECT_EQ(f.tables.mshDasa.Text(1, 2), row[3]);
      EXPECT_EQ(f.tables.bhuktis.size(), std::stoul(row[4]));
      EXPECT_EQ(f.tables.mshBukti.Text(1, 0), row[5]);
      EXPECT_EQ(f.tables.mshBukti.Text(1, 2), row[6]);
    } else {
      ASSERT_EQ(row[0], "Antra");
      ASSERT_EQ(row.size(), 7u);
      Fill(SampleChart(kSampleMoon, std::stod(row[1])), f);
      ASSERT_EQ(f.tables.antras.size(), 729U);
      const DasaPeriod& p = f.tables.antras[std::stoul(row[2])];
      EXPECT_EQ((std::vector<std::string>{p.dasaLord, p.bhuktiLord, p.antraLord}),
                (std::vector<std::string>{row[3], row[4], row[5]}));
      EXPECT_EQ(DateDiff(Interval::Day, p.start, p.end), std::stoi(row[6]));
      EXPECT_EQ(p.end.Value() - p.start.Value(), std::stoi(row[6])) << "the clock stays";
    }
  }
}

// 16 * 10 / 120 = 1.333... years: the fraction times 12 falls just under 4,
// so the Moon dasa's Jupiter sub-period is 1 year 3 months and 30 days, not
// 1 year 4 months: from 6 May 1969 it ends 5 Sep 1970, not 6 Sep.
TEST(Dasa, ThirtyDaysInsteadOfAMonth) {
  Filled f;
  Fill(SampleChart(278.0), f);
  EXPECT_EQ(Row(f.tables.mshBukti, 5), (std::vector<std::string>{"Jupiter Dasa", "06/May/1969", "05/Sep/1970", "4"}));
}

// A sub-period that ends exactly at birth is dropped; one a day later stays.
// With the Moon at 0 the Kethu dasa's end is birth + round(7 * DaysInYear)
// days; 2407 days reach 15 Feb 1972, so the dasa began 15 Feb 1965 and its
// first sub-period (4 months 27 days) ends 14 Jul 1965 14:15, at birth.
TEST(Dasa, SubPeriodEndingAtBirthIsDropped) {
  Filled f;
  Fill(SampleChart(0.0, 2407.0 / 7), f);
  ASSERT_EQ(f.tables.BhuktiEnd[0], SampleChart().birthMoment);
  EXPECT_EQ(f.tables.bhuktis.size(), 80U);
  EXPECT_EQ(Row(f.tables.mshBukti, 1), (std::vector<std::string>{"Venus Dasa", "14/Jul/1965", "14/Sep/1966", "0"}));

  Fill(SampleChart(0.0, 2408.0 / 7), f);
  EXPECT_EQ(f.tables.bhuktis.size(), 81U);
  EXPECT_EQ(Row(f.tables.mshBukti, 1), (std::vector<std::string>{"Ketu Dasa", "14/Jul/1965", "15/Jul/1965", "0"}));
}

TEST(Dasa, LocalisedNames) {
  ChartData chart = SampleChart();
  chart.LongNames = {"Lagna", "Surya", "Chandra", "Kuja", "Budha", "Sukra", "Guru", "Sani", "Rahu", "Ketu"};
  Filled f;
  Fill(chart, f);
  EXPECT_EQ(f.tables.mshDasa.Text(1, 0), "Surya");
  EXPECT_EQ(f.tables.mshDasa.Text(5, 0), "Guru");
  EXPECT_EQ(f.tables.mshBukti.Text(1, 0), "Budha Dasa");
  EXPECT_EQ(f.tables.mshAntra.Text(1, 0), "Surya Dasa, Surya Bhukthi");
  EXPECT_EQ(f.sink.lastRows[0].dasaName, "Surya");
  // The balance line keeps the English lord.
  EXPECT_EQ(f.tables.DasaBalanceText, "Sun Dasa  2 Years 0 Months 17 Days ");
}

// The nine lords make one cycle of 120 years; names are trimmed; anything
// else is not a lord.
TEST(Dasa, LordTable) {
  std::string lord = "Sun";
  int total = 0;
  for (int k = 0; k < 9; ++k) {
    total += DasaYears(lord);
    lord = NextDasaLord(lord);
  }
  EXPECT_EQ(total, 120);
  EXPECT_EQ(lord, "Sun");
  EXPECT_EQ(DasaYears("  Venus "), 20);
  EXPECT_EQ(NextDasaLord(" Kethu"), "Venus");
  EXPECT_EQ(DasaYears("Rahu"), 18);
  for (const char* bad : {"", "Ketu", "sun", "Pluto"}) {
    EXPECT_THROW(DasaYears(bad), CalculationError) << bad;
    EXPECT_THROW(NextDasaLord(bad), CalculationError) << bad;
  }
}

// A Moon outside 0 to 360 finds no star: a fresh classifier has no star
// number and so no lord, and the step fails before anything is handed over.
TEST(Dasa, MoonWithoutAStarFails) {
  Filled f;
  EXPECT_THROW(Fill(SampleChart(400.0), f), CalculationError);
  EXPECT_EQ(f.sink.calls, 0);
}

}  // namespace
}  // namespace kelvaro
