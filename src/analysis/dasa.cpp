#include "analysis/dasa.h"

#include <string>

#include "analysis/lords.h"
#include "common/calculation_error.h"
#include "common/date_text.h"
#include "common/number_rules.h"

namespace kelvaro {

namespace {

constexpr double kMinutesPerStar = 800;
constexpr int kFirstStarAfterAbhijit = 22;
constexpr double kSchemeYears = 120;
// Antra days: the product of the three dasa years over 40 is the antra's
// length in days counted with 360-day years (120 * 120 / 360 = 40); the
// user's year over 365.25 then scales it.
constexpr double kAntraDivisor = 40;
constexpr double kAntraYearDays = 365.25;

constexpr const char* kDasaHeader = "Dasa       | From              | To                 |  Age ";
constexpr const char* kBuktiHeader = "Bhukthi  | From            | To                |  Age ";
constexpr const char* kAntraHeader = "Antra     | From            | To                |  Age ";
constexpr const char* kDateFormat = "dd/mmm/yyyy";

const DasaYearsRow& RowOf(std::string_view lord) {
  const auto first = lord.find_first_not_of(' ');
  if (first == std::string_view::npos) {
    lord = {};
  } else {
    lord = lord.substr(first, lord.find_last_not_of(' ') - first + 1);
  }
  for (const DasaYearsRow& row : kDasaYears) {
    if (lord == row.lord) return row;
  }
  throw CalculationError("No dasa lord named \"" + std::string(lord) + "\"");
}

std::string DateText(OleDate moment) { return FormatDate(moment, kDateFormat); }

// Whole years at `moment`: year numbers crossed since birth, not elapsed years.
std::string AgeText(OleDate birth, OleDate moment) { return std::to_string(DateDiff(Interval::Year, birth, moment)); }

std::string WholeText(double whole) { return std::to_string(static_cast<long long>(whole)); }

// A sub-period of t years in calendar units: whole years, whole months of the
// rest, and the rest of that in 30-day months, rounded to whole days.
OleDate AddSubPeriod(OleDate from, double t) {
  const double years = Int(t);
  const double months = (t - years) * 12;
  const double wholeMonths = Int(months);
  const double days = RoundHalfEven((months - wholeMonths) * 30);
  return DateAdd(Interval::Year, years, DateAdd(Interval::Month, wholeMonths, DateAdd(Interval::Day, days, from)));
}

// Writes one period into row `row`: lord, from, to, start age. `startText`
// carries the text of the start date from the row before.
void WritePeriodRow(Grid& grid, int row, const std::string& lord, OleDate birth, OleDate start, OleDate end,
                    std::string& startText) {
  std::string endText = DateText(end);
  grid.SetText(row, 0, lord);
  grid.SetText(row, 1, startText);
  grid.SetText(row, 2, endText);
  grid.SetText(row, 3, AgeText(birth, start));
  startText = std::move(endText);
}

void FillDasaGrid(const ChartData& chart, DasaTables& out) {
  const OleDate birth = chart.birthMoment;
  Grid& grid = out.mshDasa;
  grid.Clear();
  grid.SetHeader(kDasaHeader);
  grid.Resize(1 + static_cast<int>(out.DasaLord.size()), grid.Cols());
  OleDate start = birth;
  std::string startText = DateText(birth);
  for (size_t k = 0; k < out.DasaLord.size(); ++k) {
    WritePeriodRow(grid, static_cast<int>(k) + 1, LocalisedPlanetName(chart, out.DasaLord[k]), birth, start,
                   out.DasaEnd[k], startText);
    start = out.DasaEnd[k];
  }
}

std::vector<BhukthiRow> FillBuktis(const ChartData& chart, DasaTables& out) {
  const OleDate birth = chart.birthMoment;
  // The first dasa began before birth: its end less its whole length in
  // calendar years.
  OleDate end = DateAdd(Interval::Year, -DasaYears(out.DasaLord[0]), out.DasaEnd[0]);
  out.bhuktis.clear();
  for (size_t k = 0; k < out.DasaLord.size(); ++k) {
    const std::string& dasaLord = out.DasaLord[k];
    const int dasaYears = DasaYears(dasaLord);
    std::string lord = dasaLord;
    for (size_t j = 0; j < 9; ++j) {
      const OleDate start = end;
      end = AddSubPeriod(start, DasaYears(lord) * dasaYears / kSchemeYears);
      out.BhuktiLord[k * 9 + j] = lord;
      out.BhuktiEnd[k * 9 + j] = end;
      // Compared at the whole second: an end that the calendar steps put on
      // the birth moment, whatever its last bits, leaves no period of zero
      // length at birth.
      if (DateDiff(Interval::Second, birth, end) > 0) out.bhuktis.push_back({dasaLord, lord, {}, out.bhuktis.empty() ? birth : start, end});
      lord = NextDasaLord(lord);
    }
  }

  Grid& grid = out.mshBukti;
  grid.Clear();
  grid.SetHeader(kBuktiHeader);
  grid.Resize(1 + static_cast<int>(out.bhuktis.size()), grid.Cols());
  std::vector<BhukthiRow> rows;
  rows.reserve(out.bhuktis.size());
  std::string startText = DateText(birth);
  for (size_t i = 0; i < out.bhuktis.size(); ++i) {
    const DasaPeriod& p = out.bhuktis[i];
    const std::string& bhuktiName = LocalisedPlanetName(chart, p.bhuktiLord);
    BhukthiRow row{LocalisedPlanetName(chart, p.dasaLord), bhuktiName, startText, {}, AgeText(birth, p.start)};
    WritePeriodRow(grid, static_cast<int>(i) + 1, bhuktiName + " Dasa", birth, p.start, p.end, startText);
    row.end = startText;
    rows.push_back(std::move(row));
  }
  return rows;
}

void FillAntras(const ChartData& chart, DasaTables& out) {
  const OleDate birth = chart.birthMoment;
  out.antras.clear();
  out.antras.reserve(729);
  // Counted from birth, not from the start of the first dasa: the antras of
  // the first dasa run its whole length from the moment of birth.
  OleDate end = birth;
  for (const std::string& dasaLord : out.DasaLord) {
    const int dasaYears = DasaYears(dasaLord);
    std::string bhuktiLord = dasaLord;
    for (int j = 0; j < 9; ++j) {
      const int bhuktiYears = DasaYears(bhuktiLord);
      std::string antraLord = bhuktiLord;
      for (int i = 0; i < 9; ++i) {
        const double days = DasaYears(antraLord) * bhuktiYears * dasaYears / kAntraDivisor * chart.daysInYear /
                            kAntraYearDays;
        const OleDate start = end;
        end = DateAdd(Interval::Day, days, start);
        out.antras.push_back({dasaLord, bhuktiLord, antraLord, start, end});
        antraLord = NextDasaLord(antraLord);
      }
      bhuktiLord = NextDasaLord(bhuktiLord);
    }
  }

  Grid& grid = out.mshAntra;
  grid.Clear();
  grid.SetHeader(kAntraHeader);
  grid.Resize(1 + static_cast<int>(out.antras.size() / 9 * 10), grid.Cols());
  std::string startText = DateText(birth);
  int row = 1;
  for (size_t i = 0; i < out.antras.size(); ++i) {
    const DasaPeriod& p = out.antras[i];
    if (i % 9 == 0) {
      grid.SetText(row, 0,
                   LocalisedPlanetName(chart, p.dasaLord) + " Dasa, " + LocalisedPlanetName(chart, p.bhuktiLord) +
                       " Bhukthi");
      for (int col = 0; col < grid.Cols(); ++col) grid.SetBold(row, col, true);
      ++row;
    }
    WritePeriodRow(grid, row++, LocalisedPlanetName(chart, p.antraLord), birth, p.start, p.end, startText);
  }
}

}  // namespace

int DasaYears(std::string_view lord) { return RowOf(lord).years; }

std::string NextDasaLord(std::string_view lord) { return RowOf(lord).next; }

double MinutesLeftInStar(std::int16_t& starNo, double moonLongitude) {
  if (starNo >= kFirstStarAfterAbhijit) --starNo;
  const double degrees = Int(moonLongitude);
  const double minutes = degrees * 60 + (moonLongitude - degrees) * 60;
  return starNo * kMinutesPerStar - Int(minutes);
}

void FillDasa(const ChartData& chart, clsStar& star, const std::string& userId, BhukthiSink& sink, DasaTables& out) {
  const OleDate birth = chart.birthMoment;
  star.PlanetPosition = chart.Longitude(Body::Moon);
  star.findstar();
  std::int16_t starNo = star.StarNo;
  out.DasaLord[0] = StarLordOf(starNo);
  for (size_t k = 1; k < out.DasaLord.size(); ++k) out.DasaLord[k] = NextDasaLord(out.DasaLord[k - 1]);

  const double minutesLeft = MinutesLeftInStar(starNo, chart.Longitude(Body::Moon));
  out.balanceYears = DasaYears(out.DasaLord[0]) * minutesLeft / kMinutesPerStar;

  out.DasaEnd[0] = DateAdd(Interval::Day, out.balanceYears * chart.daysInYear, birth);
  for (size_t k = 1; k < out.DasaLord.size(); ++k) {
    out.DasaEnd[k] = DateAdd(Interval::Day, DasaYears(out.DasaLord[k]) * chart.daysInYear, out.DasaEnd[k - 1]);
  }

  const double years = Int(out.balanceYears);
  const double months = (out.balanceYears - years) * 12;
  const double wholeMonths = Int(months);
  const double days = Int((months - wholeMonths) * 30);
  // Joined as the label shows them, with no blank between the lord and the
  // years and one after the second dash.
  out.Lab_DasaBalanceV = "Dasa Balance at Birth :Dasa  " + out.DasaLord[0] + WholeText(years) + "-" +
                         WholeText(wholeMonths) + "- " + WholeText(days);
  out.DasaBalanceText = out.DasaLord[0] + " Dasa  " + WholeText(years) + " Years " + WholeText(wholeMonths) +
                        " Months " + WholeText(days) + " Days ";

  FillDasaGrid(chart, out);
  const std::vector<BhukthiRow> rows = FillBuktis(chart, out);
  FillAntras(chart, out);
  sink.Replace(userId, rows);
}

}  // namespace kelvaro
