// kelvaro-cli report --format pdf and chart --image: the drawing commands,
// which start Qt on the offscreen platform by themselves.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/database_folder.h"
#include "support/pdf_tools.h"

namespace kelvaro::cli {
namespace {

using store::testing::FileBytes;

class DrawingCommands : public DatabaseFolder {
 protected:
  std::vector<std::string> Sample(const char* command, std::vector<std::string> extra) const {
    extra.insert(extra.begin(), {"--name", "Velnesh"});
    return DatabaseFolder::Sample(command, extra);
  }
};

TEST_F(DrawingCommands, ReportAsPdf) {
  ASSERT_TRUE(testing::HavePoppler()) << "pdftotext is missing: install poppler-utils";
  const Outcome a4 = RunTool(Sample("report", {"--format", "pdf", "--with-antra", "--output", Path("v.pdf")}));
  ASSERT_EQ(a4.status, kExitOk) << a4.err;
  EXPECT_TRUE(a4.out.empty());
  EXPECT_EQ(testing::PdfPages(Path("v.pdf")), 11);
  EXPECT_NE(testing::PdfPageText(Path("v.pdf"), 1).find("Velnesh"), std::string::npos);
  const Outcome letter = RunTool(Sample("report", {"--format", "pdf", "--paper", "Letter", "--output", Path("l.pdf")}));
  ASSERT_EQ(letter.status, kExitOk) << letter.err;
  EXPECT_EQ(testing::PdfPages(Path("l.pdf")), 5);
  EXPECT_EQ(testing::PdfInfo(Path("l.pdf"), "Page size").substr(0, 9), "612 x 792");
}

// Refused before anything is calculated (2), or failing to write (1) with
// the file named; an earlier file stays.
TEST_F(DrawingCommands, RefusalsAndFailedWrites) {
  struct Case {
    const char* command;
    std::vector<std::string> extra;
    int status;
    const char* message;
  };
  const std::string folder = folder_.Path().string();
  const std::vector<Case> cases = {
      {"report", {"--format", "pdf"}, kExitBadInput, "--format pdf needs --output FILE"},
      {"report", {"--format", "pdf", "--paper", "A5", "--output", Path("x.pdf")}, kExitBadInput, "A5"},
      {"report", {"--format", "pdf", "--output", folder}, kExitFailure, folder.c_str()},
      {"chart", {"--image", Path("r.jpg")}, kExitBadInput, "must end in .svg or .png"},
      {"chart", {"--window", "navamsa"}, kExitBadInput, "--window requires --image"},
      {"chart", {"--image", Path("r.png"), "--window", "moon"}, kExitBadInput, "moon"},
      {"chart", {"--image", (folder_ / "none" / "r.svg").string()}, kExitFailure, "none/r.svg"},
  };
  for (const Case& c : cases) {
    const Outcome o = RunTool(Sample(c.command, c.extra));
    EXPECT_EQ(o.status, c.status) << c.extra[0] << " " << o.err;
    EXPECT_NE(o.err.find(c.message), std::string::npos) << o.err;
  }
  EXPECT_FALSE(std::filesystem::exists(Path("x.pdf")));
  EXPECT_FALSE(std::filesystem::exists(Path("r.png")));
}

TEST_F(DrawingCommands, ChartImages) {
  const Outcome svg = RunTool(Sample("chart", {"--image", Path("n.svg"), "--window", "Navamsa", "--style", "North"}));
  ASSERT_EQ(svg.status, kExitOk) << svg.err;
  EXPECT_TRUE(svg.out.empty());
  const std::string drawing = FileBytes(Path("n.svg"));
  EXPECT_NE(drawing.find("<title>Navamsa</title>"), std::string::npos);
  EXPECT_GE(testing::Occurrences(drawing, "<polyline") + testing::Occurrences(drawing, "<path"), 12u);
  const Outcome png = RunTool(Sample("chart", {"--image", Path("b.PNG"), "--window", "bhava"}));
  ASSERT_EQ(png.status, kExitOk) << png.err;
  const std::string image = FileBytes(Path("b.PNG"));
  ASSERT_GT(image.size(), 24u);
  EXPECT_EQ(image.substr(1, 3), "PNG");
  // Width and height, big-endian, in the header chunk: 800 by 800.
  EXPECT_EQ(image.substr(16, 8), std::string("\0\0\x03\x20\0\0\x03\x20", 8));
}

}  // namespace
}  // namespace kelvaro::cli
