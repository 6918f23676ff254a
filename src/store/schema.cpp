#include "store/schema.h"

#include "store/database.h"

namespace kelvaro::store {

namespace {

// Names and spellings are those the program's statements use (BhukhiEnd,
// TimeDifference holding a zone number in ChartSave). Names and chart names
// compare without regard to case, as the lookups by name expect: "HORA" finds
// the rows of "hora", "india" finds "India".
constexpr const char* kVersion1 = R"sql(
CREATE TABLE ChartSave (
  Sno             INTEGER PRIMARY KEY AUTOINCREMENT,
  ChartName       TEXT COLLATE NOCASE NOT NULL,
  Gender          TEXT COLLATE NOCASE CHECK (Gender IN ('Male', 'Female')),
  Country         INTEGER,
  City            TEXT,
  ChartDay        INTEGER,
  ChartMonth      INTEGER,
  ChartYear       INTEGER,
  ChartHour       INTEGER,
  ChartMinute     INTEGER,
  ChartSecond     INTEGER,
  LatitudeDegree  REAL,
  Latitude_NS     TEXT CHECK (Latitude_NS IN ('N', 'S')),
  LatitudeMinute  REAL,
  LongitudeDegree REAL,
  Longitude_EW    TEXT CHECK (Longitude_EW IN ('E', 'W')),
  LongitudeMinute REAL,
  TimeDifference  INTEGER
);

CREATE TABLE GChartSave (
  Sno       INTEGER PRIMARY KEY AUTOINCREMENT,
  ChartName TEXT COLLATE NOCASE NOT NULL
);

CREATE TABLE Country_Master (
  CountryID   INTEGER PRIMARY KEY AUTOINCREMENT,
  CountryName TEXT COLLATE NOCASE NOT NULL,
  TimeZoneID  TEXT NOT NULL DEFAULT ''
);

CREATE TABLE City_Master (
  CityID          INTEGER PRIMARY KEY AUTOINCREMENT,
  CityName        TEXT COLLATE NOCASE NOT NULL,
  CountryID       INTEGER NOT NULL,
  LatitudeDegree  REAL NOT NULL,
  Latitude_NS     TEXT NOT NULL CHECK (Latitude_NS IN ('N', 'S')),
  LatitudeMinute  REAL NOT NULL,
  LongitudeDegree REAL NOT NULL,
  Longitude_EW    TEXT NOT NULL CHECK (Longitude_EW IN ('E', 'W')),
  LongitudeMinute REAL NOT NULL
);
CREATE INDEX City_Master_Country ON City_Master (CountryID, CityName);

CREATE TABLE TimeZone (
  SNo            INTEGER PRIMARY KEY AUTOINCREMENT,
  Place          TEXT COLLATE NOCASE NOT NULL,
  TimeDifference REAL NOT NULL CHECK (TimeDifference >= 0),
  TimeZone       TEXT NOT NULL CHECK (TimeZone IN ('E', 'W'))
);

CREATE TABLE Preference (
  PreID          TEXT PRIMARY KEY,
  Ayanamsa       TEXT NOT NULL,
  Bhava          TEXT NOT NULL,
  DayInYear      REAL NOT NULL,
  ChartStyle     TEXT NOT NULL,
  PreferLanguage TEXT NOT NULL,
  CustomYear     REAL NOT NULL DEFAULT 0,
  CustomProgress REAL NOT NULL DEFAULT 0
);

CREATE TABLE PersonalDetails (
  Name     TEXT,
  Address  TEXT,
  Address2 TEXT,
  City     TEXT,
  Country  TEXT,
  Zipcode  TEXT,
  Phone    TEXT,
  EMail    TEXT
);

CREATE TABLE KaliyugaYearDetails (
  Yearno     INTEGER PRIMARY KEY,
  yearname   TEXT NOT NULL,
  YearVal    REAL,
  DayVal     INTEGER,
  YearRemain REAL
);

CREATE TABLE chartsmaster (
  chartname   TEXT COLLATE NOCASE NOT NULL,
  RasiHouse   INTEGER NOT NULL,
  startDegree REAL NOT NULL,
  EndDegree   REAL NOT NULL,
  HouseNumber INTEGER NOT NULL
);
CREATE INDEX chartsmaster_lookup ON chartsmaster (chartname, RasiHouse);

CREATE TABLE tempBhukthi (
  UserID       TEXT,
  DasaName     TEXT,
  BhukthiName  TEXT,
  BhukthiStart TEXT,
  BhukhiEnd    TEXT,
  BhukthiAge   TEXT
);
CREATE INDEX tempBhukthi_User ON tempBhukthi (UserID);

-- No statement names a column of this table; it only has to hold one row.
CREATE TABLE tempdasasandhi (
  Sno INTEGER PRIMARY KEY
);
)sql";

}  // namespace

void AddClockOffsetVersion3(SQLite::Database& db) {
  db.exec(
      "ALTER TABLE ChartSave ADD COLUMN ClockOffsetHours REAL;"
      "ALTER TABLE ChartSave ADD COLUMN ClockOffsetNote TEXT;"
      "ALTER TABLE ChartSave ADD COLUMN ZoneID TEXT;"
      "ALTER TABLE ChartSave ADD COLUMN ClockOffsetByUser INTEGER;");
}

void CreateSchemaVersion1(SQLite::Database& db) {
  db.exec(kVersion1);
  LoadSeedData(db);
}

const std::vector<Migration>& SchemaMigrations() {
  static const std::vector<Migration> steps = {
      {1, CreateSchemaVersion1},
      {2, AddAtlasVersion2},
      {3, AddClockOffsetVersion3},
  };
  return steps;
}

}  // namespace kelvaro::store
