#pragma once
// The printed horoscope as plain text: pages separated by a form feed (code
// 12), every line ended by CR LF, for a fixed-pitch font. The report reads
// the models that the calculation filled and computes nothing of its own
// but the layout. It takes everything as parameters, so that it never
// depends on the calculation driver or on the store.
#include <array>
#include <string>
#include <utility>

#include "analysis/ashtakavarga.h"
#include "analysis/bhava.h"
#include "analysis/dasa.h"
#include "analysis/planet_table.h"
#include "analysis/vargas.h"
#include "presentation/chart_cells.h"

namespace kelvaro {

// The 29 values of the title page, in the order of its labels, as the birth
// summary holds them in the language of the preference.
struct TitlePageValues {
  std::string name, sex, dateOfBirth, timeOfBirth, lmt, gmt, timeZone, ishtaGhati, birthCountry, birthCity, latitude,
      longitude, sunRise, sunSet, ayanamsa;
  std::string vedicDay, gregorianDay, solarDate, lunarSukladiDate, lunarKrishnadiDate, kaliyugaYear, ayana;
  std::string janmaLagna, janmaRasi, star, tithi, paksha, yogam, karnam;
  // Why the clock offset is what it is, when the IANA rules gave it; a line
  // of its own under the first group, only when there is one.
  std::string clockOffset;
};

inline constexpr int kTitlePageLabelCount = 29;

// (label, value) in the page's order. "Birth County" is the report's own
// spelling and stays.
std::array<std::pair<const char*, const std::string*>, kTitlePageLabelCount> TitlePageFields(
    const TitlePageValues& values);

// The owner's letterhead (the PersonalDetails row); an absent row is all
// empty and prints an empty owner block.
struct OwnerDetails {
  std::string name, address, address2, city, country, zipcode, phone, email;
};

// What the pages read. The models are held by reference and must outlive
// the call.
struct ReportInput {
  TitlePageValues title;
  OwnerDetails owner;
  std::string chartStyle;   // as the preference holds it: "South", "North", "East"
  std::string bhavaSystem;  // "Equal" or another system
  const ChartCells& cells;
  const PlanetTable& planets;
  const BhavaTables& bhava;
  const Vargas& vargas;
  const Ashtakavarga& ashtakavarga;
  const DasaTables& dasa;
  bool withAntra = false;
  // The Lagna's sign in the Rasi chart and in the Navamsa, for the mark of
  // the drawn charts (the Bhava chart marks the Rasi one); 0 leaves them
  // unmarked. The text charts do not use them.
  int rasiLagnaSign = 0;
  int navamsaLagnaSign = 0;
};

// The web address of the page header.
inline constexpr const char* kReportWebAddress = "www.kelvaro.org";
// Lines of periods in each of the two columns of a bhukti or antra page.
inline constexpr int kPeriodColumnLines = 55;

// Every page: 1 the title page and the owner, 2 the Rasi and Navamsa charts,
// 3 the Bhava chart and houses, 4 the planet table and Ashtakavarga, 5 the
// divisional charts and the dasa, then the bhukti pages and, with
// withAntra, the antra pages, numbered on from 6.
std::string ComposeReport(const ReportInput& input);

}  // namespace kelvaro
