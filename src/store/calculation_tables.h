#pragma once
// The tables the calculation reads or writes: the sixty Kaliyuga years, the
// divisional-chart bands of chartsmaster, and the work table tempBhukthi. The
// calculation folders declare their own small interfaces; these plain
// functions are what the store's implementations of them call.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"

namespace kelvaro::store {

struct KaliyugaYearRow {
  int yearno = 0;
  std::string yearname;
  double yearVal = 0.0;
  int dayVal = 0;
  double yearRemain = 0.0;
};

// The row of Yearno `yearno` (1 to 60); nothing for any other number.
std::optional<KaliyugaYearRow> KaliyugaYear(Database& db, int yearno);

// HouseNumber of the first chartsmaster row of that chart (the name compared
// without regard to case) and rasi whose band holds `degree`: startDegree not
// above it, EndDegree above it. Nothing when no band holds it.
std::optional<int> ChartsMasterHouse(Database& db, std::string_view chartName, double degree, int rasi);

struct BhukthiRow {
  std::string dasaName;
  std::string bhukthiName;
  std::string start;
  std::string end;
  std::string age;
  friend bool operator==(const BhukthiRow&, const BhukthiRow&) = default;
};

// Keeps only the rows of the chart last calculated for `userId`: the user's
// old rows go and `rows` take their place, in one transaction.
void ReplaceBhukthiRows(Database& db, std::string_view userId, const std::vector<BhukthiRow>& rows);
std::vector<BhukthiRow> BhukthiRowsOf(Database& db, std::string_view userId);

}  // namespace kelvaro::store
