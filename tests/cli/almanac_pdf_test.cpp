// kelvaro-cli almanac --format pdf: the month at a glance in a file.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "cli/run_tool.h"
#include "store/store_test_support.h"
#include "support/pdf_tools.h"

namespace kelvaro::cli {
namespace {

class AlmanacPdf : public ::testing::Test {
 protected:
  std::string Path(const char* name) const { return (folder_ / name).string(); }
  Outcome Run(std::vector<std::string> args) const {
    args.insert(args.begin(), "almanac");
    args.insert(args.end(), {"--database", Path("DBMirvaneBasic.db")});
    return RunTool(args);
  }
  store::testing::TempFolder folder_;
};

// Some days at a place given by numbers are named by their dates; the PDF
// asks for a file and refuses --json; an unwritable file is a failure.
TEST_F(AlmanacPdf, DaysByNumbersAndTheRefusals) {
  const std::vector<std::string> place = {"--lat", "17N20", "--lon", "78E30", "--tz", "5.5E"};
  auto with = [&](std::vector<std::string> more) {
    std::vector<std::string> args = {"--date", "10/01/2024", "--days", "3"};
    args.insert(args.end(), place.begin(), place.end());
    args.insert(args.end(), more.begin(), more.end());
    return Run(args);
  };
  ASSERT_TRUE(testing::HavePoppler());
  const Outcome ok = with({"--format", "pdf", "--output", Path("three.pdf"), "--paper", "letter"});
  ASSERT_EQ(ok.status, kExitOk) << ok.err;
  EXPECT_EQ(ok.out, "");
  const std::string text = testing::PdfPageText(Path("three.pdf"), 1);
  EXPECT_NE(text.find("Daily Almanac of 10/01/2024 to 12/01/2024"), std::string::npos) << text;
  EXPECT_NE(text.find("17N20 78E30 (zone 5.5E)"), std::string::npos) << text;
  EXPECT_EQ(testing::PdfInfo(Path("three.pdf"), "Page size").substr(0, 9), "612 x 792");

  for (const auto& more : {std::vector<std::string>{"--format", "pdf"},
                           std::vector<std::string>{"--format", "pdf", "--output", Path("x.pdf"), "--json"}}) {
    const Outcome bad = with(more);
    EXPECT_EQ(bad.status, kExitBadInput);
    EXPECT_EQ(bad.err, "kelvaro-cli: --format pdf needs --output FILE, and no --json\n");
  }
  const Outcome unwritable = with({"--format", "pdf", "--output", Path("no/such/folder/x.pdf")});
  EXPECT_EQ(unwritable.status, kExitFailure);
  EXPECT_NE(unwritable.err.find("x.pdf"), std::string::npos) << unwritable.err;
}

}  // namespace
}  // namespace kelvaro::cli
