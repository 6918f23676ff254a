// The month at a glance as a PDF, read back with poppler's tools: the pages,
// the heading, a day's row in reading order, and a write that fails.
#include "render/almanac_month_pdf.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <sstream>

#include "common/date_text.h"
#include "horoscope/almanac_month_lines.h"
#include "report/destinations.h"
#include "support/pdf_tools.h"
#include "support/year_table.h"

namespace kelvaro::render {
namespace {

namespace fs = std::filesystem;

// Days of the real model at Hyderabad from 1 January 2024 on.
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

// The line of the page text, laid out as printed, that begins with `start`.
std::string LineStarting(const std::string& text, const std::string& start) {
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    const size_t at = line.find_first_not_of(' ');
    if (at != std::string::npos && line.compare(at, start.size(), start) == 0) return line.substr(at);
  }
  return {};
}

std::string LaidOutPage(const fs::path& pdf, int page) {
  const std::string p = std::to_string(page);
  return testing::CommandOutput("pdftotext -layout -f " + p + " -l " + p + " " + testing::Quoted(pdf) + " -");
}

class MonthPdf : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(testing::HavePoppler()) << "pdftotext is missing: install poppler-utils";
    ASSERT_TRUE(dir_.isValid());
  }
  fs::path Write(const AlmanacMonthSheet& sheet, const std::string& name) {
    const fs::path file = fs::path(dir_.path().toStdString()) / name;
    WriteAlmanacMonthPdf(file, sheet, PaperSize::A4);
    return file;
  }
  QTemporaryDir dir_;
};

// A month is one page; a row reads across as it stands in the model. The
// new moon of 11 January 2024 fell at 11:57 UT; by sunrise on the 15th
// (01:20 UT) the Moon, just past perigee, is some 49 degrees from the Sun:
// the bright Panchami (48 to 60), with the Moon near 319 degrees sidereal,
// in Shatabhisha (306 2/3 to 320), spelt as the program spells it.
TEST_F(MonthPdf, OneMonthOnOnePageWithItsRows) {
  const AlmanacMonthSheet sheet = HyderabadSheet(31);
  const fs::path pdf = Write(sheet, "january.pdf");
  EXPECT_EQ(testing::PdfPages(pdf), 1);
  const std::string page = LaidOutPage(pdf, 1);
  for (const char* text : {"Daily Almanac of January 2024", "Hyderabad, India", "Page 1 of 1", "Tithi", "Yoga"}) {
    EXPECT_NE(page.find(text), std::string::npos) << text << "\n" << page;
  }
  const AlmanacMonthLine& l = sheet.lines[14];
  EXPECT_EQ(l.tithi, "Sukla Panchami");
  EXPECT_EQ(l.star, "Shatbhisha");
  const std::string row = LineStarting(page, "15/01/2024");
  std::size_t at = 0;
  for (const std::string& cell : {l.weekday, l.tithi, l.tithiEnd, l.star, l.starEnd, l.yoga, l.yogaEnd}) {
    const std::size_t found = row.find(cell, at);
    ASSERT_NE(found, std::string::npos) << cell << " in\n" << row;
    at = found + cell.size();
  }
  EXPECT_NE(LineStarting(page, "31/01/2024"), "");
}

// Three months run on over pages that repeat the table's heading; every page
// counts itself among all.
TEST_F(MonthPdf, LongSheetRunsOnWithHeadingsAndPageNumbers) {
  const fs::path pdf = Write(HyderabadSheet(91), "quarter.pdf");
  const int pages = testing::PdfPages(pdf);
  ASSERT_GE(pages, 2);
  for (int p = 1; p <= pages; ++p) {
    const std::string page = LaidOutPage(pdf, p);
    EXPECT_NE(page.find("Page " + std::to_string(p) + " of " + std::to_string(pages)), std::string::npos) << p;
    EXPECT_NE(LineStarting(page, "Date"), "") << p;
  }
  EXPECT_NE(LineStarting(LaidOutPage(pdf, pages), "31/03/2024"), "");
}

// A folder that is not there: the write names it in ReportWriteError.
TEST_F(MonthPdf, FailedWriteIsReported) {
  const fs::path pdf = fs::path(dir_.path().toStdString()) / "missing" / "month.pdf";
  EXPECT_THROW(WriteAlmanacMonthPdf(pdf, HyderabadSheet(1), PaperSize::A4), ReportWriteError);
  EXPECT_FALSE(fs::exists(pdf));
}

}  // namespace
}  // namespace kelvaro::render
