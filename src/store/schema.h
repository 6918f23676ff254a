#pragma once
// The schema of DBMirvaneBasic.db by version, and the seed data of a new file.
//
// Version 1: the eleven tables with the seed data.
// Version 2: the world atlas (table Atlas) and the zone of each city
// (City_Master.ZoneID).
// Version 3: the clock offset each saved chart used, and why
// (ChartSave.ClockOffsetHours, ClockOffsetNote, ZoneID, ClockOffsetByUser).
// To change the schema, append a step to SchemaMigrations() (schema.cpp) that
// brings a version-1 file to version 2 and so on; never edit an old step, as
// files made by it exist on users' machines.
#include <SQLiteCpp/SQLiteCpp.h>

namespace kelvaro::store {

constexpr int kSchemaVersion = 3;

// Step 1: creates the tables and fills them with the seed data.
void CreateSchemaVersion1(SQLite::Database& db);

// Step 2: adds the atlas and the cities' zone column (atlas_seed.cpp).
void AddAtlasVersion2(SQLite::Database& db);

// Step 3: the chart's clock offset columns, empty for the charts already
// saved, which keep calculating with their zone's offset.
void AddClockOffsetVersion3(SQLite::Database& db);

// Fills the tables of a new file from the seed files compiled in. Throws
// StoreError naming the file and line of a seed row that does not fit.
void LoadSeedData(SQLite::Database& db);

}  // namespace kelvaro::store
