// The typeset PDF of a whole calculation, read back with poppler's tools:
// its pages, the texts a client reads first, the charts as vector drawings,
// and a write that fails.
#include "render/pdf_report.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QTemporaryDir>
#include <csignal>
#include <fstream>
#include <sstream>

#include "horoscope/calculate_horoscope.h"
#include "horoscope/report_input.h"
#include "report/destinations.h"
#include "support/charts_master.h"
#include "support/pdf_tools.h"
#include "support/year_table.h"

namespace kelvaro::render {
namespace {

namespace fs = std::filesystem;
using testing::Occurrences;
using testing::PdfPageSvg;
using testing::PdfPageText;
using testing::PdfPages;

// The stroke colours of the chart painter as pdftocairo writes them: the
// cell lines and the South and East Lagna mark.
constexpr const char* kChartLineStroke = "stroke:rgb(23.136902%,16.470337%,11.764526%)";
constexpr const char* kLagnaMarkStroke = "stroke:rgb(58.822632%,11.764526%,11.764526%)";

std::string Read(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

class SamplePdf : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(testing::HavePoppler()) << "pdftotext is missing: install poppler-utils";
    ASSERT_TRUE(dir_.isValid());
    ctx_.state.ChartName = "Velnesh";
  }
  fs::path Write(const std::string& name, bool withAntra, PaperSize paper = PaperSize::A4) {
    CalculateHoroscope(ctx_);
    const fs::path file = fs::path(dir_.path().toStdString()) / name;
    WritePdfReport(file, ReportInputOf(ctx_, {"Sri Jyothisha Nilayam", "12 Temple Street", "", "Hyderabad", "India",
                                              "500001", "040 2345 6789", "office@example.org"},
                                       withAntra),
                   paper);
    return file;
  }

  testing::MapYearTable years_ = testing::SeedYearTable();
  testing::SeedChartsMaster charts_;
  CalculationContext ctx_{&years_, &charts_};
  QTemporaryDir dir_;
};

// The first page (title page), the charts, the Bhava and planet tables, the
// vargas and dasa, one page of bhuktis (nine blocks of nine lines fit one
// page); the 81 antra blocks of ten lines take six pages more.
TEST_F(SamplePdf, PagesWithoutAndWithAntra) {
  const fs::path without = Write("without.pdf", false);
  const fs::path with = Write("with.pdf", true);
  EXPECT_EQ(PdfPages(without), 5);
  EXPECT_EQ(PdfPages(with), 11);
  EXPECT_EQ(testing::PdfInfo(with, "Page size").substr(0, 9), "595 x 842");  // A4, 210 by 297 mm
  EXPECT_EQ(Read(with).substr(0, 5), "%PDF-");
  // Every page says whose horoscope it is and where it stands.
  for (int page : {1, 6, 11}) {
    const std::string text = PdfPageText(with, page);
    EXPECT_NE(text.find("Horoscope of Velnesh"), std::string::npos) << page;
    EXPECT_NE(text.find("Page " + std::to_string(page) + " of 11"), std::string::npos) << page;
  }
  // Every font the pages use travels inside the file.
  const std::string fonts = testing::CommandOutput("pdffonts " + testing::Quoted(with));
  EXPECT_NE(fonts.find("DejaVuSans"), std::string::npos);
  const size_t fontLines = Occurrences(fonts, "\n") - 2;  // below the two heading lines
  EXPECT_GE(fontLines, 3u);
  EXPECT_EQ(Occurrences(fonts, "Identity-H       yes"), fontLines) << fonts;  // the "emb" column
}

TEST_F(SamplePdf, FirstPageNamesThePersonLagnaRasiAndStar) {
  const std::string page1 = PdfPageText(Write("sample.pdf", false), 1);
  for (const char* text : {"Sri Jyothisha Nilayam", "AUM GANESHAYA NAMAH", "Velnesh", "LAGNA", "Libra", "RASI",
                           "Capricon", "STAR", "Uttarashada, Pada: 3", "Hyderabad (A.P)", "17 20 N", "Birth Country",
                           "Kaulava", "E-Mail : office@example.org"}) {
    EXPECT_NE(page1.find(text), std::string::npos) << text << "\n" << page1;
  }
  // The letterhead comes first, the person after it.
  EXPECT_LT(page1.find("Sri Jyothisha Nilayam"), page1.find("Velnesh"));
}

// The charts of page 2 are drawn: lines as stroked paths, the bodies as
// text, no picture and no asterisks.
TEST_F(SamplePdf, ChartsAreVectorDrawings) {
  const fs::path file = Write("sample.pdf", false);
  const std::string svg = PdfPageSvg(file, 2);
  EXPECT_EQ(Occurrences(svg, "<image"), 0u);
  EXPECT_GE(Occurrences(svg, kChartLineStroke), 6u);  // inner lines and border of each of three charts
  EXPECT_EQ(Occurrences(svg, kLagnaMarkStroke), 3u);  // Rasi, Navamsa and Bhava each mark the Lagna
  const std::string text = PdfPageText(file, 2);
  for (const char* body : {"Jup 25.29", "Rah 18.18", "Sun 28.19", "Asc 25.14", "Navamsa", "Bhava"}) {
    EXPECT_NE(text.find(body), std::string::npos) << body << "\n" << text;
  }
  EXPECT_EQ(text.find("****"), std::string::npos);
}

TEST_F(SamplePdf, SanskritNorthChart) {
  ctx_.state.Language = "Sanskrit";
  ctx_.state.ChartStyle = "North";
  const fs::path file = Write("north.pdf", true, PaperSize::Letter);
  EXPECT_EQ(testing::PdfInfo(file, "Page size").substr(0, 9), "612 x 792");
  const std::string page1 = PdfPageText(file, 1);
  EXPECT_NE(page1.find("Tula"), std::string::npos) << page1;
  EXPECT_NE(page1.find("Makara"), std::string::npos) << page1;
  const std::string svg = PdfPageSvg(file, 2);
  EXPECT_EQ(Occurrences(svg, kLagnaMarkStroke), 0u);  // North tints house 1 instead
  EXPECT_GE(Occurrences(svg, kChartLineStroke), 6u);
  const std::string page2 = PdfPageText(file, 2);
  // North has no title inside the diamond: each chart is named under it.
  for (const char* name : {"Rasi", "Navamsa", "Bhava"}) EXPECT_NE(page2.find(name), std::string::npos) << name;
  // The bodies in the Sanskrit short names of the model.
  for (const Body body : {Body::Sun, Body::Moon, Body::Saturn}) {
    EXPECT_NE(page2.find(ctx_.state.ShortNameOf(body)), std::string::npos) << ctx_.state.ShortNameOf(body);
  }
}

// A write stopped half way (the file size limit stands in for a full disk)
// says why and leaves the earlier file as it was.
TEST_F(SamplePdf, FailedWriteKeepsTheEarlierFile) {
  const fs::path file = Write("sample.pdf", false);
  const std::string earlier = Read(file);
  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small = old;
  small.rlim_cur = 4096;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  std::string message;
  try {
    WritePdfReport(file, ReportInputOf(ctx_, {}, true), PaperSize::A4);
  } catch (const ReportWriteError& e) {
    message = e.what();
  }
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, oldHandler);
  EXPECT_NE(message.find(file.string()), std::string::npos) << message;
  EXPECT_NE(message.find("File too large"), std::string::npos) << message;
  EXPECT_EQ(Read(file), earlier);
  EXPECT_THROW(WritePdfReport(file / "below-a-file.pdf", ReportInputOf(ctx_, {}, false), PaperSize::A4),
               ReportWriteError);
}

TEST(PaperSize, NamesInAnyCase) {
  EXPECT_EQ(PaperSizeOf("A4"), PaperSize::A4);
  EXPECT_EQ(PaperSizeOf("letter"), PaperSize::Letter);
  EXPECT_EQ(PaperSizeOf("LETTER"), PaperSize::Letter);
  EXPECT_EQ(PaperSizeOf("A5"), std::nullopt);
  EXPECT_EQ(PaperSizeOf(""), std::nullopt);
  EXPECT_STREQ(PaperSizeName(PaperSize::Letter), "Letter");
}

}  // namespace
}  // namespace kelvaro::render
