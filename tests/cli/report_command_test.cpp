// kelvaro-cli report: pages to standard output or a file, text or HTML.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "cli/database_folder.h"

namespace kelvaro::cli {
namespace {

using ReportCommand = DatabaseFolder;

long Pages(const std::string& text) { return std::count(text.begin(), text.end(), '\f') + 1; }

TEST_F(ReportCommand, PagesWithAndWithoutAntra) {
  const Outcome plain = RunTool(Sample("report", {}));
  ASSERT_EQ(plain.status, kExitOk) << plain.err;
  const Outcome antra = RunTool(Sample("report", {"--with-antra"}));
  ASSERT_EQ(antra.status, kExitOk) << antra.err;
  EXPECT_EQ(Pages(plain.out), 6);   // five pages and the bhukti page
  EXPECT_GT(Pages(antra.out), 6);   // the antra pages follow
  EXPECT_EQ(antra.out.substr(0, plain.out.size() - 2), plain.out.substr(0, plain.out.size() - 2));
  EXPECT_NE(plain.out.find("     Birth County          : \r\n"), std::string::npos);
  EXPECT_EQ(plain.out.substr(plain.out.size() - 2), "\r\n");
}

TEST_F(ReportCommand, HtmlAndFileOutputCarryTheSameText) {
  const Outcome text = RunTool(Sample("report", {}));
  const Outcome html = RunTool(Sample("report", {"--format", "html"}));
  ASSERT_EQ(html.status, kExitOk) << html.err;
  EXPECT_EQ(html.out, "<pre>\r\n" + text.out + "</pre>\r\n");
  const std::string path = (folder_ / "Velnesh.Txt").string();
  const Outcome file = RunTool(Sample("report", {"--output", path}));
  ASSERT_EQ(file.status, kExitOk) << file.err;
  EXPECT_TRUE(file.out.empty());
  EXPECT_EQ(store::testing::FileBytes(path), text.out);
  // A file that cannot be written: its folder does not exist.
  const Outcome bad = RunTool(Sample("report", {"--output", (folder_ / "none" / "x.Txt").string()}));
  EXPECT_EQ(bad.status, kExitFailure);
  EXPECT_NE(bad.err.find("x.Txt"), std::string::npos) << bad.err;
}

}  // namespace
}  // namespace kelvaro::cli
