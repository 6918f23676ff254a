#include "store/calculation_tables.h"

namespace kelvaro::store {

std::optional<KaliyugaYearRow> KaliyugaYear(Database& db, int yearno) {
  return db.Read("read the Kaliyuga year", [&](SQLite::Database& c) -> std::optional<KaliyugaYearRow> {
    SQLite::Statement q(c, "SELECT Yearno, yearname, YearVal, DayVal, YearRemain FROM KaliyugaYearDetails WHERE Yearno = ?");
    q.bind(1, yearno);
    if (!q.executeStep()) return std::nullopt;
    return KaliyugaYearRow{q.getColumn(0).getInt(), q.getColumn(1).getString(), q.getColumn(2).getDouble(),
                           q.getColumn(3).getInt(), q.getColumn(4).getDouble()};
  });
}

std::optional<int> ChartsMasterHouse(Database& db, std::string_view chartName, double degree, int rasi) {
  return db.Read("read chartsmaster", [&](SQLite::Database& c) -> std::optional<int> {
    SQLite::Statement q(c,
                        "SELECT HouseNumber FROM chartsmaster WHERE chartname = ? AND startDegree <= ? AND "
                        "EndDegree > ? AND RasiHouse = ? ORDER BY rowid LIMIT 1");
    q.bind(1, std::string(chartName));
    q.bind(2, degree);
    q.bind(3, degree);
    q.bind(4, rasi);
    if (!q.executeStep()) return std::nullopt;
    return q.getColumn(0).getInt();
  });
}

void ReplaceBhukthiRows(Database& db, std::string_view userId, const std::vector<BhukthiRow>& rows) {
  db.Write("keep the bhukthi rows", [&](SQLite::Database& c) {
    SQLite::Statement del(c, "DELETE FROM tempBhukthi WHERE UserID = ?");
    del.bind(1, std::string(userId));
    del.exec();
    SQLite::Statement insert(c,
                             "INSERT INTO tempBhukthi (UserID, DasaName, BhukthiName, BhukthiStart, BhukhiEnd, "
                             "BhukthiAge) VALUES (?, ?, ?, ?, ?, ?)");
    for (const BhukthiRow& r : rows) {
      insert.reset();
      insert.bind(1, std::string(userId));
      insert.bind(2, r.dasaName);
      insert.bind(3, r.bhukthiName);
      insert.bind(4, r.start);
      insert.bind(5, r.end);
      insert.bind(6, r.age);
      insert.exec();
    }
  });
}

std::vector<BhukthiRow> BhukthiRowsOf(Database& db, std::string_view userId) {
  return db.Read("read the bhukthi rows", [&](SQLite::Database& c) {
    std::vector<BhukthiRow> rows;
    SQLite::Statement q(c,
                        "SELECT DasaName, BhukthiName, BhukthiStart, BhukhiEnd, BhukthiAge FROM tempBhukthi "
                        "WHERE UserID = ? ORDER BY rowid");
    q.bind(1, std::string(userId));
    while (q.executeStep()) {
      rows.push_back({q.getColumn(0).getString(), q.getColumn(1).getString(), q.getColumn(2).getString(),
                      q.getColumn(3).getString(), q.getColumn(4).getString()});
    }
    return rows;
  });
}

}  // namespace kelvaro::store
