#include "store/personal_details.h"

namespace kelvaro::store {

std::optional<PersonalDetails> ReadPersonalDetails(Database& db) {
  return db.Read("read the personal details", [](SQLite::Database& c) -> std::optional<PersonalDetails> {
    SQLite::Statement q(c,
                        "SELECT Name, Address, Address2, City, Country, Zipcode, Phone, EMail FROM PersonalDetails "
                        "ORDER BY rowid LIMIT 1");
    if (!q.executeStep()) return std::nullopt;
    return PersonalDetails{q.getColumn(0).getString(), q.getColumn(1).getString(), q.getColumn(2).getString(),
                           q.getColumn(3).getString(), q.getColumn(4).getString(), q.getColumn(5).getString(),
                           q.getColumn(6).getString(), q.getColumn(7).getString()};
  });
}

PersonalDetails LetterheadOf(Database& db) {
  if (auto details = ReadPersonalDetails(db)) return *details;
  PersonalDetails details;
  details.name = kDefaultOwnerName;
  return details;
}

void ClearPersonalDetails(Database& db) {
  db.Write("clear the personal details", [](SQLite::Database& c) { c.exec("DELETE FROM PersonalDetails"); });
}

WriteResult SavePersonalDetails(Database& db, const PersonalDetails& d) {
  WriteResult result;
  db.Write("save the personal details", [&](SQLite::Database& c) {
    c.exec("DELETE FROM PersonalDetails");
    SQLite::Statement insert(c,
                             "INSERT INTO PersonalDetails (Name, Address, Address2, City, Country, Zipcode, Phone, "
                             "EMail) VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
    insert.bind(1, d.name);
    insert.bind(2, d.address);
    insert.bind(3, d.address2);
    insert.bind(4, d.city);
    insert.bind(5, d.country);
    insert.bind(6, d.zipcode);
    insert.bind(7, d.phone);
    insert.bind(8, d.email);
    insert.exec();
    result.id = c.getLastInsertRowid();
    result.message = "Details Saved";
  });
  return result;
}

}  // namespace kelvaro::store
