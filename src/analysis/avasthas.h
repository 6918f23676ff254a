#pragma once
// Sayanadi avasthas: the state of a body, one of twelve names, from its star,
// its ordinal among the nine bodies, its navamsa within the rasi, the Moon's
// star, the ishta ghati of the birth and the Lagna's rasi.
#include <cstdint>
#include <string>

#include "panchanga/star.h"

namespace kelvaro {

// The star number of clsStar for the longitude, less 1 from 22 on, so that
// the 27 stars run 1 to 27 without Abhijit. Uses (and leaves) the shared
// classifier, carry-over included.
std::int16_t SortedStarNumber(clsStar& star, double longitude);

// "Sun" 1, "Moon" 2, "Mars" 3, "Mercury" 4, "Jupiter" 5, "Venus" 6, "Saturn" 7,
// "Rahu" 8, "Kethu" 9 (the English lord names); any other text 0.
std::int16_t PlanetOrdinal(const std::string& lordName);

// The navamsa 1 to 9 of a value of degrees within a rasi; a value on a limit
// belongs to the lower navamsa (10 is navamsa 3). Above 30: 0.
std::int16_t NavamsaInRasi(double degreesInRasi);

// "Sayana" for 1 to "Nidra" for 12; any other number gives empty text.
std::string AvasthaName(int number);

// The avastha of a body: SortedStarNumber(body) * PlanetOrdinal(name) *
// NavamsaInRasi(DegreesInRasi(body)) + SortedStarNumber(moon) + the ishta
// ghati made whole (half to even) + lagnaRasi, taken modulo 12, 0 meaning 12.
// Every step is 16-bit: a result outside -32768..32767 raises
// CalculationError. The Lagna's longitude takes no part.
std::string SayanadiAvastha(clsStar& star, double bodyLongitude, const std::string& lordName, double moonLongitude,
                            std::int16_t lagnaRasi, double ishtaGhati);

}  // namespace kelvaro
