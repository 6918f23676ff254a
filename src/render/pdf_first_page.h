#pragma once
// The first page of the typeset horoscope: the letterhead, the invocation,
// the person, the Lagna, the Rasi and the star in a band, and the birth
// particulars beside the almanac.
#include <QString>
#include <string>

#include "render/pdf_document.h"
#include "report/report_pages.h"

namespace kelvaro::render {

// A value as the models hold it, laid out for a fixed pitch with doubled
// blanks as spacing: in a proportional font single blanks read right.
QString SingleSpaced(const std::string& text);

void FirstPage(PdfDocument& doc, const ReportInput& in);

}  // namespace kelvaro::render
