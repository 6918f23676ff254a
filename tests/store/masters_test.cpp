// The country, city and time zone masters: every validation message in its
// order, the duplicate rules, the zone lists and the stored offsets.
#include <gtest/gtest.h>

#include <functional>

#include "store/city_master.h"
#include "store/country_master.h"
#include "store/database.h"
#include "store/store_error.h"
#include "store/time_zone_master.h"
#include "store_test_support.h"
#include "support/test_data.h"

namespace kelvaro::store {
namespace {

using testing::FileBytes;
using testing::TempFolder;

class Masters : public ::testing::Test {
 protected:
  long long Count(const std::string& sql) { return db_.Connection().execAndGet(sql).getInt64(); }
  TempFolder folder_;
  Database db_{folder_ / "DBMirvaneBasic.db"};
};

// A good input spoilt one way per case, and the message the write must give.
template <class Input>
struct Spoilt {
  const char* label;
  std::function<void(Input&)> spoil;
  FieldMessage expected;
};

template <class Input, class Write>
void ExpectMessages(const Input& good, const std::vector<Spoilt<Input>>& cases, Write write) {
  for (const Spoilt<Input>& c : cases) {
    SCOPED_TRACE(c.label);
    Input in = good;
    c.spoil(in);
    EXPECT_EQ(write(in).failure, c.expected);
  }
}

// ---- countries ----

TEST_F(Masters, AddCountryValidatesTrimsAndStartsWithNoZones) {
  EXPECT_EQ(AddCountry(db_, "  ").failure, (FieldMessage{"txtAddName", "Enter a Country Name"}));
  EXPECT_EQ(AddCountry(db_, " india ").failure, (FieldMessage{"txtAddName", "Country Name already Exists"}));

  const WriteResult added = AddCountry(db_, "  Côte d'Atlantis ");
  ASSERT_TRUE(added.ok());
  EXPECT_EQ(added.message, "Details Saved");
  const auto row = CountryById(db_, added.id);
  ASSERT_TRUE(row.has_value());
  EXPECT_EQ(row->name, "Côte d'Atlantis");
  EXPECT_EQ(row->timeZoneIds, "");
  EXPECT_TRUE(ZonesOf(db_, added.id).empty());
  EXPECT_EQ(AddCountry(db_, "Côte d'Atlantis").failure, (FieldMessage{"txtAddName", "Country Name already Exists"}));
}

TEST_F(Masters, RenameCountryMessagesInOrder) {
  const auto id = AddCountry(db_, "Atlantis").id;
  EXPECT_EQ(RenameCountry(db_, id, " ").failure, (FieldMessage{"txtEdit", "Enter the New Name"}));
  EXPECT_EQ(RenameCountry(db_, id, " Atlantis ").failure, (FieldMessage{"txtEdit", "No Modifications Done"}));
  // A change of case alone is a modification, and then a duplicate of itself.
  EXPECT_EQ(RenameCountry(db_, id, "ATLANTIS").failure, (FieldMessage{"txtEdit", "Country Name already Exists"}));
  EXPECT_EQ(RenameCountry(db_, id, "India").failure, (FieldMessage{"txtEdit", "Country Name already Exists"}));

  const WriteResult renamed = RenameCountry(db_, id, "Lemuria");
  ASSERT_TRUE(renamed.ok());
  EXPECT_EQ(renamed.message, "Successfully Updated");
  EXPECT_EQ(CountryById(db_, id)->name, "Lemuria");
  EXPECT_THROW(RenameCountry(db_, 999999, "Mu"), StoreError);
}

TEST_F(Masters, CountrySearchFindsTheFirstStart) {
  const auto all = ListCountries(db_);
  const SearchResult india = SearchCountries(all, "indi");
  ASSERT_TRUE(india.found());
  EXPECT_EQ(all[*india.index].name, "India");
}

// ---- cities ----

CityInput GoodCity(std::int64_t country) {
  return {country, "Secunderabad", "17", "26", "N", "78", "30", "E"};
}

TEST_F(Masters, AddCityMessagesInOrder) {
  const auto india = CountryByName(db_, "India")->id;
  const std::vector<Spoilt<CityInput>> cases = {
      {"no country", [](CityInput& c) { c.countryId = 0; c.city = ""; }, {"cbAddCountry", "Select Country "}},
      {"no city", [](CityInput& c) { c.city = " "; c.latDeg = ""; }, {"txtAddCity", "Enter City "}},
      {"no lat deg", [](CityInput& c) { c.latDeg = ""; c.latMin = ""; }, {"txtAddLatDeg", "Enter Lat Deg"}},
      {"no lat min", [](CityInput& c) { c.latMin = ""; c.latNS = ""; }, {"txtAddLAtMin", "Enter Lat Min"}},
      {"no N or S", [](CityInput& c) { c.latNS = ""; c.lonDeg = ""; }, {"cbAddNS", "Add Lat Zone"}},
      {"no lon deg", [](CityInput& c) { c.lonDeg = ""; c.lonMin = ""; }, {"txtAddLonDeg", "Enter Lon Deg"}},
      {"no lon min", [](CityInput& c) { c.lonMin = ""; c.lonEW = "X"; }, {"txtAddLonMin", "Enter Lon Min"}},
      {"no E or W", [](CityInput& c) { c.lonEW = "X"; c.latDeg = "x"; }, {"cbAddEW", "Add Lon Zone"}},
      {"lat deg not a number", [](CityInput& c) { c.latDeg = "17a"; c.lonMin = "b"; }, {"txtAddLatDeg", "Enter Number "}},
      {"lat min not a number", [](CityInput& c) { c.latMin = "2 6"; c.lonDeg = "-"; }, {"txtAddLAtMin", "Enter Number "}},
      {"lon deg not a number", [](CityInput& c) { c.lonDeg = "7,8"; }, {"txtAddLonDeg", "Enter Number "}},
      {"lon min not a number", [](CityInput& c) { c.lonMin = "3O"; }, {"txtAddLonMin", "Enter Number "}},
      {"duplicate in the country", [](CityInput& c) { c.city = " hyderabad (a.p) "; }, {"txtAddCity", "City Details Already Exists"}},
  };
  const long long before = Count("SELECT count(*) FROM City_Master");
  ExpectMessages(GoodCity(india), cases, [&](const CityInput& in) { return AddCity(db_, in); });
  EXPECT_EQ(Count("SELECT count(*) FROM City_Master"), before);

  const WriteResult added = AddCity(db_, GoodCity(india));
  ASSERT_TRUE(added.ok());
  EXPECT_EQ(added.message, "City Details Saved");
  const auto row = CityByName(db_, india, "secunderabad");
  ASSERT_TRUE(row.has_value());
  EXPECT_EQ(row->id, added.id);
  EXPECT_EQ(CoordinatesText(*row), "17 26 N, 78 30 E");
}

TEST_F(Masters, SameCityNameInTwoCountriesIsAllowed) {
  const auto india = CountryByName(db_, "India")->id;
  const auto atlantis = AddCountry(db_, "Atlantis").id;
  CityInput in = GoodCity(atlantis);
  in.city = "Hyderabad (A.P)";
  in.latDeg = "1";
  ASSERT_TRUE(AddCity(db_, in).ok());
  // Each country's lookup finds its own.
  EXPECT_EQ(CityByName(db_, atlantis, "Hyderabad (A.P)")->latDeg, 1);
  EXPECT_EQ(CityByName(db_, india, "Hyderabad (A.P)")->latDeg, 17);
}

TEST_F(Masters, EditCityMessagesInOrder) {
  const auto india = CountryByName(db_, "India")->id;
  const auto id = AddCity(db_, GoodCity(india)).id;
  // The city chosen is tested after the country and before the name.
  CityInput noName = GoodCity(india);
  noName.city = "";
  EXPECT_EQ(EditCity(db_, 0, noName).failure, (FieldMessage{"cbEditCity", "Select CIty"}));
  noName.countryId = 0;
  EXPECT_EQ(EditCity(db_, 0, noName).failure, (FieldMessage{"cbEditCountry", "Select Country "}));
  const std::vector<Spoilt<CityInput>> cases = {
      {"no name", [](CityInput& c) { c.city = ""; c.latMin = ""; }, {"txtEditCity", "Enter City "}},
      // No test of an empty latitude degree: the next test speaks first.
      {"no lat min", [](CityInput& c) { c.latDeg = ""; c.latMin = ""; }, {"txtEditLatMIn", "Enter Lat Min"}},
      {"no N or S", [](CityInput& c) { c.latNS = ""; c.lonDeg = ""; }, {"cbEditNS", "Add Lat Zone"}},
      {"no lon deg", [](CityInput& c) { c.lonDeg = ""; c.lonMin = ""; }, {"txtEditLonDeg", "Enter Lon Deg"}},
      {"no lon min", [](CityInput& c) { c.lonMin = ""; c.lonEW = ""; }, {"txtEditLonMin", "Enter Lon Min"}},
      {"no E or W", [](CityInput& c) { c.lonEW = ""; }, {"cbEditEW", "Add Lon Zone"}},
      {"empty lat deg", [](CityInput& c) { c.latDeg = " "; }, {"txtEditLatDeg", "Enter Number "}},
      {"lat min", [](CityInput& c) { c.latMin = "x"; }, {"txtEditLatMIn", "Enter Number "}},
      {"lon deg", [](CityInput& c) { c.lonDeg = "x"; }, {"txtEditLonDeg", "Enter Number "}},
      {"lon min", [](CityInput& c) { c.lonMin = "x"; }, {"txtEditLonMin", "Enter Number "}},
  };
  ExpectMessages(GoodCity(india), cases, [&](const CityInput& in) { return EditCity(db_, id, in); });
  CityInput in = {india, "Secunderabad Cantt", "17", "27", "N", "78", "31", "E"};
  const WriteResult edited = EditCity(db_, id, in);
  ASSERT_TRUE(edited.ok());
  EXPECT_EQ(edited.message, "Successfully Updated");
  EXPECT_EQ(CoordinatesText(*CityById(db_, id)), "17 27 N, 78 31 E");
  EXPECT_EQ(CityById(db_, id)->name, "Secunderabad Cantt");
  EXPECT_THROW(EditCity(db_, 999999, in), StoreError);
}

// ---- time zones ----

ZoneInput GoodZone(std::int64_t country) { return {country, "Atlantis Time", "5", "30", "E"}; }

TEST_F(Masters, AddZoneMessagesInOrder) {
  const auto atlantis = AddCountry(db_, "Atlantis").id;
  const std::vector<Spoilt<ZoneInput>> cases = {
      {"no country", [](ZoneInput& z) { z.countryId = 0; z.name = ""; }, {"cbAddCountry", "Select Country "}},
      {"no name", [](ZoneInput& z) { z.name = " "; z.hours = ""; }, {"txtAddCity", "Enter City "}},
      {"no hours", [](ZoneInput& z) { z.hours = ""; z.minutes = ""; }, {"txtAddLatDeg", "Enter Time Hours"}},
      {"no minutes", [](ZoneInput& z) { z.minutes = ""; z.direction = ""; }, {"txtAddLAtMin", "Enter Time Min"}},
      {"no direction", [](ZoneInput& z) { z.direction = ""; z.hours = "x"; }, {"cbAddEW", "Enter Zone"}},
      {"hours not a number", [](ZoneInput& z) { z.hours = "five"; z.minutes = "x"; }, {"txtAddLatDeg", "Enter Number "}},
      {"minutes not a number", [](ZoneInput& z) { z.minutes = "3o"; }, {"txtAddLAtMin", "Enter Number "}},
  };
  ExpectMessages(GoodZone(atlantis), cases, [&](const ZoneInput& in) { return AddZone(db_, in); });
  EXPECT_TRUE(ZonesOf(db_, atlantis).empty());
}

TEST_F(Masters, AddZoneSaysWhatItStoresAndKeepsTheCountryList) {
  const auto atlantis = AddCountry(db_, "Atlantis").id;
  const WriteResult first = AddZone(db_, GoodZone(atlantis));
  ASSERT_TRUE(first.ok());
  EXPECT_EQ(first.notice, "Your Entered Time  5  hours 30  Minutes is saved as  5.5 hours");
  EXPECT_EQ(first.message, "Details successfully saved");
  EXPECT_EQ(CountryById(db_, atlantis)->timeZoneIds, std::to_string(first.id));

  ZoneInput second = GoodZone(atlantis);
  second.name = "Atlantis West";
  second.hours = "3";
  second.minutes = "20";
  second.direction = "W";
  const WriteResult added = AddZone(db_, second);
  ASSERT_TRUE(added.ok());
  EXPECT_EQ(added.notice, "Your Entered Time  3  hours 20  Minutes is saved as  3.33 hours");
  EXPECT_EQ(CountryById(db_, atlantis)->timeZoneIds, std::to_string(first.id) + "," + std::to_string(added.id));

  const auto zones = ZonesOf(db_, atlantis);
  ASSERT_EQ(zones.size(), 2u);
  EXPECT_EQ(ZoneItemText(zones[0]), "Atlantis Time  (5.5 hrs E)");
  EXPECT_EQ(ZoneItemText(zones[1]), "Atlantis West  (3.33 hrs W)");
}

// The zone and the list entry are one write: when the list cannot be kept
// (the country does not exist), the zone is not stored either.
TEST_F(Masters, AddZoneToAMissingCountryWritesNothing) {
  const long long zones = Count("SELECT count(*) FROM TimeZone");
  const std::string before = FileBytes(db_.Path());
  EXPECT_THROW(AddZone(db_, GoodZone(999999)), StoreError);
  EXPECT_EQ(Count("SELECT count(*) FROM TimeZone"), zones);
  EXPECT_EQ(FileBytes(db_.Path()), before);
}

TEST_F(Masters, ZoneListSkipsWhatIsNotAZone) {
  const auto atlantis = AddCountry(db_, "Atlantis").id;
  const auto a = AddZone(db_, GoodZone(atlantis)).id;
  SQLite::Statement set(db_.Connection(), "UPDATE Country_Master SET TimeZoneID = ? WHERE CountryID = ?");
  set.bind(1, "999999,," + std::to_string(a) + ",x");
  set.bind(2, atlantis);
  set.exec();
  const auto zones = ZonesOf(db_, atlantis);
  ASSERT_EQ(zones.size(), 1u);
  EXPECT_EQ(zones[0].sno, a);
}

TEST_F(Masters, EditZoneMessagesInOrderAndUnchangedUpdateKeepsTheOffset) {
  const auto atlantis = AddCountry(db_, "Atlantis").id;
  ZoneInput in = GoodZone(atlantis);
  in.minutes = "45";
  const auto sno = AddZone(db_, in).id;

  // The zone chosen is tested after the country and before the name.
  ZoneInput noName = GoodZone(atlantis);
  noName.name = "";
  EXPECT_EQ(EditZone(db_, 0, noName).failure, (FieldMessage{"cbEditCity", "Select Time Zone"}));
  noName.countryId = 0;
  EXPECT_EQ(EditZone(db_, 0, noName).failure, (FieldMessage{"cbEditCountry", "Select Country "}));
  const std::vector<Spoilt<ZoneInput>> cases = {
      {"no name", [](ZoneInput& z) { z.name = ""; z.hours = ""; }, {"txtEditCity", "Enter Time Zone "}},
      {"no hours", [](ZoneInput& z) { z.hours = ""; z.minutes = ""; }, {"txtEditLatDeg", "Enter Hours"}},
      {"no minutes", [](ZoneInput& z) { z.minutes = ""; z.direction = ""; }, {"txtEditLatMIn", "Enter Minutes"}},
      {"no direction", [](ZoneInput& z) { z.direction = "N"; }, {"cbEditEW", "Add Zone"}},
      {"hours", [](ZoneInput& z) { z.hours = "x"; z.minutes = "y"; }, {"txtEditLatDeg", "Enter Number "}},
      {"minutes", [](ZoneInput& z) { z.minutes = "y"; }, {"txtEditLatMIn", "Enter Number "}},
  };
  ExpectMessages(GoodZone(atlantis), cases, [&](const ZoneInput& in) { return EditZone(db_, sno, in); });

  // The edit tab shows 5.75 as 5 and 45; saving it unchanged keeps 5.75.
  const ZoneEditFields shown = ZoneForEdit(*ZoneBySno(db_, sno));
  EXPECT_EQ(shown.name, "Atlantis Time");
  EXPECT_EQ(shown.direction, "E");
  const WriteResult edited = EditZone(db_, sno, {atlantis, shown.name, shown.hours, shown.minutes, shown.direction});
  ASSERT_TRUE(edited.ok());
  EXPECT_EQ(edited.notice, "Your Entered Time  5  hours  45 Minutes  is saved as  5.75 hours");
  EXPECT_EQ(edited.message, "Successfully Updated");
  EXPECT_EQ(ZoneBySno(db_, sno)->timeDifference, 5.75);

  ASSERT_TRUE(EditZone(db_, sno, {atlantis, "Atlantis Standard", "4", "0", "W"}).ok());
  const auto row = ZoneBySno(db_, sno);
  EXPECT_EQ(row->place, "Atlantis Standard");
  EXPECT_EQ(OffsetText(*row), "4 W");
  EXPECT_EQ(CountryById(db_, atlantis)->timeZoneIds, std::to_string(sno));
  EXPECT_THROW(EditZone(db_, 999999, {atlantis, "x", "1", "0", "E"}), StoreError);
}

// The rows of tests/data/store/master_rows.txt, each against its function.
TEST(MasterRows, OffsetsAndSearches) {
  std::vector<CityRow> cities(3);
  cities[0].name = "Hyderabad (A.P)";
  cities[1].name = "Kolkata";
  cities[2].name = "Kollam";
  const std::vector<CountryRow> countries = {{1, "India", ""}, {2, "Indonesia", ""}, {3, "Iran", ""}};
  const auto rows = kelvaro::testing::TestDataTable("store/master_rows.txt");
  ASSERT_EQ(rows.size(), 24u);
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 4u);
    SCOPED_TRACE(row[0] + " " + row[1] + " " + row[2]);
    if (row[0] == "StoredOffset") {
      EXPECT_EQ(StoredOffset(std::stod(row[1]), std::stod(row[2])), std::stod(row[3]));
    } else if (row[0] == "ZoneForEdit") {
      const ZoneEditFields f = ZoneForEdit({1, "Z", std::stod(row[1]), "E"});
      EXPECT_EQ(f.hours + " " + f.minutes, row[2] + " " + row[3]);
    } else {
      const SearchResult r = row[0] == "SearchCountries" ? SearchCountries(countries, row[1])
                                                         : FindCityInList(cities, row[1]);
      EXPECT_EQ(r.index, row[2].empty() ? std::nullopt : std::optional<std::size_t>(std::stoul(row[2])));
      EXPECT_EQ(r.failure ? r.failure->message : "", row[3]);
    }
  }
}

}  // namespace
}  // namespace kelvaro::store
