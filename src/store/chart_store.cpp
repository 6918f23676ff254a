#include "store/chart_store.h"

#include "common/date_text.h"
#include "store/city_master.h"
#include "store/store_error.h"
#include "store/text_rules.h"
#include "store/time_zone_master.h"

namespace kelvaro::store {

namespace {

std::optional<OleDate> DateOf(const ChartFields& f) {
  return ParseDateTime(Trim(f.day) + "/" + Trim(f.month) + "/" + Trim(f.year));
}

void BindZone(SQLite::Statement& s, int index, std::int64_t zoneSno) {
  if (zoneSno == 0) {
    s.bind(index);  // null: the chart has no zone
  } else {
    s.bind(index, zoneSno);
  }
}

}  // namespace

std::string ChartNameOf(std::string_view name, std::string_view day, std::string_view month, std::string_view year) {
  return std::string(name) + "~" + std::string(day) + "-" + std::string(month) + "-" + std::string(year);
}

WriteResult SaveChart(Database& db, const ChartFields& f) {
  const std::string name = Trim(f.name);
  if (name.empty()) return WriteResult::Fail("Txt_SC_ChartName", "Enter Chart Name");
  const std::optional<OleDate> date = DateOf(f);
  if (!date) return WriteResult::Fail("", "Enter Correct Date");

  WriteResult result;
  db.Write("save the chart", [&](SQLite::Database& c) {
    // Compared exactly, case and all, as the program compares the names.
    SQLite::Statement same(c, "SELECT 1 FROM ChartSave WHERE ChartName = ? COLLATE BINARY LIMIT 1");
    same.bind(1, name);
    if (same.executeStep()) {
      result = WriteResult::Fail("Txt_SC_ChartName", "Chart Name Already Used , Enter Another Name");
      return;
    }
    SQLite::Statement insert(c,
                             "INSERT INTO ChartSave (ChartName, Gender, Country, City, ChartDay, ChartMonth, ChartYear, "
                             "ChartHour, ChartMinute, ChartSecond, LatitudeDegree, Latitude_NS, LatitudeMinute, "
                             "LongitudeDegree, Longitude_EW, LongitudeMinute, TimeDifference) "
                             "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    insert.bind(1, ChartNameOf(name, FormatDate(*date, "dd"), FormatDate(*date, "mmm"), FormatDate(*date, "yyyy")));
    insert.bind(2, f.gender == "Male" ? "Male" : "Female");
    insert.bind(3, f.countryId);
    insert.bind(4, f.city);
    insert.bind(5, date->Day());
    insert.bind(6, date->Month());
    insert.bind(7, date->Year());
    insert.bind(8, f.hour);
    insert.bind(9, f.minute);
    insert.bind(10, f.second);
    insert.bind(11, f.latDeg);
    insert.bind(12, f.latNS);
    insert.bind(13, f.latMin);
    insert.bind(14, f.lonDeg);
    insert.bind(15, f.lonEW);
    insert.bind(16, f.lonMin);
    BindZone(insert, 17, f.zoneSno);
    insert.exec();
    result.id = c.getLastInsertRowid();
    result.message = "Chart Successfully Saved";
  });
  return result;
}

ChartList ListCharts(Database& db, std::string_view dataGen) {
  ChartList list;
  std::string sql;
  std::string gender;
  if (dataGen == "Female" || dataGen == "Male") {
    sql = "SELECT Sno, ChartName FROM ChartSave WHERE Gender = ? ORDER BY ChartName, Sno";
    gender = std::string(dataGen);
    list.label = dataGen == "Female" ? "Select Female Details" : "Select Male Details";
  } else if (dataGen == "All") {
    sql = "SELECT Sno, ChartName FROM ChartSave ORDER BY ChartName, Sno";
    list.label = "Select User Details";
  } else if (dataGen == "G") {
    sql = "SELECT Sno, ChartName FROM GChartSave ORDER BY ChartName, Sno";
    list.label = "Select Couple Details";
  } else {
    return list;
  }
  db.Read("list the charts", [&](SQLite::Database& c) {
    SQLite::Statement query(c, sql);
    if (!gender.empty()) query.bind(1, gender);
    while (query.executeStep()) {
      list.items.push_back({query.getColumn(0).getInt64(), query.getColumn(1).getString()});
    }
  });
  return list;
}

void TwelveHourClock(int hour24, int& hour12, bool& pm) {
  pm = hour24 >= 12;
  hour12 = hour24 % 12 == 0 ? 12 : hour24 % 12;
}

std::optional<OpenedChart> OpenChart(Database& db, std::int64_t sno) {
  std::optional<OpenedChart> opened;
  db.Read("open the chart", [&](SQLite::Database& c) {
    SQLite::Statement q(c,
                        "SELECT Sno, ChartName, Gender, Country, City, ChartDay, ChartMonth, ChartYear, ChartHour, "
                        "ChartMinute, LatitudeDegree, Latitude_NS, LatitudeMinute, LongitudeDegree, Longitude_EW, "
                        "LongitudeMinute, TimeDifference FROM ChartSave WHERE Sno = ?");
    q.bind(1, sno);
    if (!q.executeStep()) return;
    OpenedChart o;
    o.sno = q.getColumn(0).getInt64();
    const std::string chartName = q.getColumn(1).getString();
    o.name = chartName.substr(0, chartName.find('~'));
    o.gender = q.getColumn(2).getString();
    o.countryId = q.getColumn(3).getInt64();
    o.city = q.getColumn(4).getString();
    o.day = q.getColumn(5).getInt();
    o.month = MonthName(q.getColumn(6).getInt(), true);
    o.year = q.getColumn(7).getInt();
    TwelveHourClock(q.getColumn(8).getInt(), o.hour12, o.pm);
    o.minute = q.getColumn(9).getInt();
    o.latDeg = q.getColumn(10).getDouble();
    o.latNS = q.getColumn(11).getString();
    o.latMin = q.getColumn(12).getDouble();
    o.lonDeg = q.getColumn(13).getDouble();
    o.lonEW = q.getColumn(14).getString();
    o.lonMin = q.getColumn(15).getDouble();
    o.latText = PlaceText(o.latDeg, o.latNS, o.latMin);
    o.lonText = PlaceText(o.lonDeg, o.lonEW, o.lonMin);
    if (!q.getColumn(16).isNull()) o.zoneSno = q.getColumn(16).getInt64();
    opened = std::move(o);
  });
  if (opened && opened->zoneSno) {
    if (const auto zone = ZoneBySno(db, *opened->zoneSno)) {
      opened->zoneText = ZoneItemText(*zone);
      opened->timeDiff = zone->timeDifference;
      opened->timeDiffEW = zone->direction;
    }
  }
  return opened;
}

WriteResult UpdateChart(Database& db, std::int64_t sno, const ChartFields& f) {
  const std::optional<OleDate> date = DateOf(f);
  if (!date) return WriteResult::Fail("", "Enter Correct Date");
  WriteResult result;
  db.Write("update the chart", [&](SQLite::Database& c) {
    SQLite::Statement update(c,
                             "UPDATE ChartSave SET ChartName = ?, Gender = ?, Country = ?, City = ?, ChartDay = ?, "
                             "ChartMonth = ?, ChartYear = ?, ChartHour = ?, ChartMinute = ?, ChartSecond = 0, "
                             "LatitudeDegree = ?, Latitude_NS = ?, LatitudeMinute = ?, LongitudeDegree = ?, "
                             "Longitude_EW = ?, LongitudeMinute = ?, TimeDifference = ? WHERE Sno = ?");
    update.bind(1, ChartNameOf(Trim(f.name), Trim(f.day), Trim(f.month), Trim(f.year)));
    update.bind(2, f.gender == "Male" ? "Male" : "Female");
    update.bind(3, f.countryId);
    update.bind(4, f.city);
    update.bind(5, date->Day());
    update.bind(6, date->Month());
    update.bind(7, date->Year());
    update.bind(8, f.hour);
    update.bind(9, f.minute);
    update.bind(10, f.latDeg);
    update.bind(11, f.latNS);
    update.bind(12, f.latMin);
    update.bind(13, f.lonDeg);
    update.bind(14, f.lonEW);
    update.bind(15, f.lonMin);
    BindZone(update, 16, f.zoneSno);
    update.bind(17, sno);
    if (update.exec() == 0) {
      throw StoreError("Cannot update chart " + std::to_string(sno) + " in \"" + db.Path().string() +
                       "\": it no longer exists");
    }
    result.id = sno;
    result.message = "Details are Sucessfully Updated";
  });
  return result;
}

bool DeleteChart(Database& db, std::int64_t sno) {
  bool deleted = false;
  db.Write("delete the chart", [&](SQLite::Database& c) {
    SQLite::Statement del(c, "DELETE FROM ChartSave WHERE Sno = ?");
    del.bind(1, sno);
    deleted = del.exec() > 0;
  });
  return deleted;
}

}  // namespace kelvaro::store
