#include "store/chart_store.h"

#include "common/date_text.h"
#include "store/city_master.h"
#include "store/column_number.h"
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

// Binds the twenty-one stored fields of a chart, from `ChartName` to
// `ClockOffsetByUser`, in the column order of both the insert and the update.
void BindChartColumns(SQLite::Statement& st, const std::string& chartName, const ChartFields& f, OleDate date,
                      int second) {
  st.bind(1, chartName);
  st.bind(2, f.gender == "Male" ? "Male" : "Female");
  st.bind(3, f.countryId);
  st.bind(4, f.city);
  st.bind(5, date.Day());
  st.bind(6, date.Month());
  st.bind(7, date.Year());
  st.bind(8, f.hour);
  st.bind(9, f.minute);
  st.bind(10, second);
  st.bind(11, f.latDeg);
  st.bind(12, f.latNS);
  st.bind(13, f.latMin);
  st.bind(14, f.lonDeg);
  st.bind(15, f.lonEW);
  st.bind(16, f.lonMin);
  BindZone(st, 17, f.zoneSno);
  if (f.clockOffsetHours) {
    st.bind(18, *f.clockOffsetHours);
  } else {
    st.bind(18);
  }
  st.bind(19, f.clockOffsetNote);
  st.bind(20, f.zoneId);
  st.bind(21, f.clockOffsetByUser ? 1 : 0);
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
                             "LongitudeDegree, Longitude_EW, LongitudeMinute, TimeDifference, ClockOffsetHours, "
                             "ClockOffsetNote, ZoneID, ClockOffsetByUser) "
                             "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    BindChartColumns(insert, ChartNameOf(name, FormatDate(*date, "dd"), FormatDate(*date, "mmm"), FormatDate(*date, "yyyy")),
                     f, *date, f.second);
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
                        "LongitudeMinute, TimeDifference, ClockOffsetHours, ClockOffsetNote, ZoneID, ClockOffsetByUser "
                        "FROM ChartSave WHERE Sno = ?");
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
    o.latDeg = ColumnNumber(q.getColumn(10));
    o.latNS = q.getColumn(11).getString();
    o.latMin = ColumnNumber(q.getColumn(12));
    o.lonDeg = ColumnNumber(q.getColumn(13));
    o.lonEW = q.getColumn(14).getString();
    o.lonMin = ColumnNumber(q.getColumn(15));
    o.latText = PlaceText(o.latDeg, o.latNS, o.latMin);
    o.lonText = PlaceText(o.lonDeg, o.lonEW, o.lonMin);
    if (!q.getColumn(16).isNull()) o.zoneSno = q.getColumn(16).getInt64();
    if (!q.getColumn(17).isNull()) o.clockOffsetHours = ColumnNumber(q.getColumn(17));
    if (!q.getColumn(18).isNull()) o.clockOffsetNote = q.getColumn(18).getString();
    if (!q.getColumn(19).isNull()) o.zoneId = q.getColumn(19).getString();
    o.clockOffsetByUser = !q.getColumn(20).isNull() && q.getColumn(20).getInt() != 0;
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
                             "ChartMonth = ?, ChartYear = ?, ChartHour = ?, ChartMinute = ?, ChartSecond = ?, "
                             "LatitudeDegree = ?, Latitude_NS = ?, LatitudeMinute = ?, LongitudeDegree = ?, "
                             "Longitude_EW = ?, LongitudeMinute = ?, TimeDifference = ?, ClockOffsetHours = ?, "
                             "ClockOffsetNote = ?, ZoneID = ?, ClockOffsetByUser = ? WHERE Sno = ?");
    // An update stores the seconds as "00".
    BindChartColumns(update, ChartNameOf(Trim(f.name), Trim(f.day), Trim(f.month), Trim(f.year)), f, *date, 0);
    update.bind(22, sno);
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
