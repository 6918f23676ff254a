// The month at a glance as a PDF, read back with poppler's tools.
#include "render/almanac_month_pdf.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "horoscope/almanac_month_lines.h"
#include "support/pdf_tools.h"
#include "support/year_table.h"

namespace kelvaro::render {
namespace {

// Days of the model at Hyderabad from 1 January 2024 on.
AlmanacMonthSheet HyderabadSheet(int days) {
  const testing::MapYearTable years = testing::SeedYearTable();
  DailyAlmanacMaker maker(years);
  AlmanacPlace place;
  place.place = {"N", 17, 20, "E", 78, 30, 5.5, "E"};
  AlmanacMonthSheet sheet{"Hyderabad, India", "January 2024", {}};
  for (int i = 0; i < days; ++i) {
    const OleDate date = DateAdd(Interval::Day, i, OleDate::FromParts(2024, 1, 1));
    sheet.lines.push_back(AlmanacMonthLineOf(date, maker.SunriseLineOf(date, place)));
  }
  return sheet;
}

// The page as laid out, from the line that begins with `start` to its end.
std::string LineFrom(const std::string& pdf, int page, const std::string& start) {
  const std::string p = std::to_string(page);
  const std::string text = testing::CommandOutput("pdftotext -layout -f " + p + " -l " + p + " '" + pdf + "' -");
  const size_t at = text.find(start);
  return at == std::string::npos ? std::string() : text.substr(at, text.find('\n', at) - at);
}

// A month is one page and a row reads across in order. The new moon of 11
// January 2024 fell at 11:57 UT; by sunrise on the 15th (01:20 UT) the Moon,
// just past perigee, is some 49 degrees from the Sun: the bright Panchami (48
// to 60), the Moon near 319 degrees sidereal, in Shatabhisha (306 2/3 to 320).
// Three months run on over pages that repeat the heading and count themselves.
TEST(MonthPdf, PagesAndARowReadBack) {
  ASSERT_TRUE(testing::HavePoppler());
  QTemporaryDir dir;
  const std::string month = dir.filePath("month.pdf").toStdString(), quarter = dir.filePath("q.pdf").toStdString();
  const AlmanacMonthSheet sheet = HyderabadSheet(31);
  WriteAlmanacMonthPdf(month, sheet, PaperSize::A4);
  WriteAlmanacMonthPdf(quarter, HyderabadSheet(91), PaperSize::A4);
  EXPECT_EQ(testing::PdfPages(month), 1);
  EXPECT_NE(LineFrom(month, 1, "Daily Almanac of January 2024"), "");
  const AlmanacMonthLine& l = sheet.lines[14];
  EXPECT_EQ(l.tithi + " " + l.star, "Sukla Panchami Shatbhisha");
  const std::string row = LineFrom(month, 1, "15/01/2024");
  std::size_t at = 0;
  for (const std::string& cell : {l.weekday, l.tithi, l.tithiEnd, l.star, l.starEnd, l.yoga, l.yogaEnd}) {
    at = row.find(cell, at);
    ASSERT_NE(at, std::string::npos) << cell << " in\n" << row;
  }
  const int pages = testing::PdfPages(quarter);
  ASSERT_GE(pages, 2);
  for (int p = 1; p <= pages; ++p) {
    EXPECT_NE(LineFrom(quarter, p, "Date"), "") << p;
    EXPECT_NE(LineFrom(quarter, p, "Page " + std::to_string(p) + " of " + std::to_string(pages)), "") << p;
  }
  EXPECT_NE(LineFrom(quarter, pages, "31/03/2024"), "");
}

}  // namespace
}  // namespace kelvaro::render
