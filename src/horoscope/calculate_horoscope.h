#pragma once
// CalculateHoroscope: the one procedure that turns the birth details and the
// preferences in the context's state into every result. It runs the whole
// sequence every time; there is no partial recalculation.
//
// The sequence, in this order (a star marks a step after which the progress
// advances, fifteen times in all):
//   1 open the progress              10 Navamsa chart *
//   2 clear the views *              11 houses (own pass, division 30) and Bhava chart *
//   3 position pass, division 30 *   12 planet table *
//   4 names by language *            13 planet table again *
//   5 Rasi chart *                   14 divisional charts *
//   6 birth summary *                15 Vimshottari dasa *
//   7 Ashtakavarga *                 16 show the current view *
//   8 position pass, 3.33333333333333 *   17 close the progress
//   9 names by language *
//
// A step that fails raises (CalculationError or the store's error); the
// state and the summary then hold the results of the last complete run. The
// carry-over of the calculation classes is not rolled back.
#include "horoscope/calculation_context.h"

namespace kelvaro {

inline constexpr int kProgressSteps = 15;

void CalculateHoroscope(CalculationContext& ctx);

}  // namespace kelvaro
