#pragma once
// The report's input from a finished calculation: the title page's values
// from the birth summary, and the models of the views by reference.
#include "horoscope/calculation_context.h"
#include "report/report_pages.h"

namespace kelvaro {

TitlePageValues TitlePageValuesOf(const BirthSummary& summary);

// The context must outlive the input.
ReportInput ReportInputOf(const CalculationContext& ctx, OwnerDetails owner, bool withAntra);

}  // namespace kelvaro
