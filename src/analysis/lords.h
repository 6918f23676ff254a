#pragma once
// The lords of a longitude, shared by the planet table, the bhava table and
// the divisional charts: degrees within the rasi, the rasi's name and lord,
// the star's lord, and the local name of a lord.
//
// Lord names handed between routines are English long names; the south node
// is "Kethu" there, while the display tables (LongNames) say "Ketu".
#include <string>

#include "analysis/chart_data.h"

namespace kelvaro {

// The longitude less 30 as often as it is 30 or more: 30 gives 0. A negative
// value is returned as it is.
double DegreesInRasi(double longitude);

// The RasiNames entry of rasi 1 to 12; any other number raises
// CalculationError, as an out-of-range subscript does.
const std::string& RasiNameOf(const ChartData& chart, int rasi);

// English long name of the lord of the rasi that holds the longitude. Kind
// "Rasi" counts rasis of 30 degrees; any other kind counts Navamsa rasis of
// 3.33333333333333 degrees (the program's literal, not a third of 10) through
// the whole zodiac. A rasi outside 1 to 12 (a negative longitude) has no lord:
// empty text.
std::string RasiLordOf(double longitude, const std::string& kind);

// The same lord by its long name in the chart's language (LongNames), as the
// star-lord and sub-lord columns beside it show theirs: "Sukra" in Sanskrit.
std::string RasiLordOf(const ChartData& chart, double longitude, const std::string& kind);

// English name of the lord of star 1 to 28 as clsStar numbers them, Abhijit
// being 22 and ruled by the Sun; "Kethu" for the south node. Any other number
// gives empty text.
std::string StarLordOf(int starNo);

// The LongNames entry of the body whose English name is given ("Sun" to
// "Saturn", "Rahu", "Kethu"); any other text, "Ketu" included, gives empty
// text.
const std::string& LocalisedPlanetName(const ChartData& chart, const std::string& englishLord);

}  // namespace kelvaro
