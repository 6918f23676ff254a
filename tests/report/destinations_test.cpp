#include "report/destinations.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

namespace kelvaro {
namespace {

namespace fs = std::filesystem;

// A fresh folder in the temporary folder, removed at the end.
class ReportFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("kelvaro-report-" + std::to_string(std::random_device()()));
    fs::create_directories(folder_);
  }
  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  static std::string Read(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
  }
  static void Put(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
  }
  // Names in the folder, so that no temporary file is left behind.
  size_t Entries() const {
    size_t n = 0;
    for ([[maybe_unused]] const auto& e : fs::directory_iterator(folder_)) ++n;
    return n;
  }
  fs::path folder_;
};

const std::string kReport = "Page one\r\n<b>&</b>\r\n\fPage two\r\n";

// Runs a write that must fail, and expects its message to name the file and
// the system's reason.
template <class Write>
void ExpectWriteError(const fs::path& file, const std::string& reason, Write&& write) {
  try {
    write();
    ADD_FAILURE() << "no error; expected " << reason;
  } catch (const ReportWriteError& e) {
    const std::string message = e.what();
    EXPECT_NE(message.find(file.string()), std::string::npos) << message;
    EXPECT_NE(message.find(reason), std::string::npos) << message;
  }
}

// The text file is the text as one print adds its line end; the HTML file
// wraps that, unescaped, in <pre>.
TEST_F(ReportFolder, TextAndHtmlFiles) {
  WriteTextReport(folder_ / "chart.Txt", kReport);
  EXPECT_EQ(Read(folder_ / "chart.Txt"), "Page one\r\n<b>&</b>\r\n\fPage two\r\n\r\n");
  WriteHtmlReport(folder_ / "chart.HTML", kReport);
  EXPECT_EQ(Read(folder_ / "chart.HTML"), "<pre>\r\nPage one\r\n<b>&</b>\r\n\fPage two\r\n\r\n</pre>\r\n");
  EXPECT_EQ(Entries(), 2u);
}

TEST_F(ReportFolder, WritingAgainReplacesTheEarlierFile) {
  const fs::path file = folder_ / "chart.Txt";
  Put(file, std::string(5000, 'x'));
  WriteTextReport(file, "short");
  EXPECT_EQ(Read(file), "short\r\n");
  EXPECT_EQ(Entries(), 1u);
}

TEST_F(ReportFolder, MissingFolderRaisesAndNamesTheFile) {
  const fs::path file = folder_ / "no such folder" / "chart.Txt";
  ExpectWriteError(file, "No such file or directory", [&] { WriteTextReport(file, kReport); });
  EXPECT_FALSE(fs::exists(file));
  EXPECT_EQ(Entries(), 0u);
}

TEST_F(ReportFolder, DirectoryInThePlaceOfTheFileSurvives) {
  const fs::path file = folder_ / "chart.HTML";
  fs::create_directories(file);
  Put(file / "kept.txt", "kept");
  ExpectWriteError(file, "Is a directory", [&] { WriteHtmlReport(file, kReport); });
  EXPECT_TRUE(fs::is_directory(file));
  EXPECT_EQ(Read(file / "kept.txt"), "kept");
  EXPECT_EQ(Entries(), 1u);
}

// A link is followed and stays a link; a replaced file keeps its
// permissions; a pipe is written into or refused, never replaced by a file.
TEST_F(ReportFolder, LinksPermissionsAndPipes) {
  const fs::path target = folder_ / "real.Txt";
  Put(target, "old");
  fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write);
  const fs::path link = folder_ / "link.Txt";
  fs::create_symlink(target, link);
  WriteTextReport(link, kReport);
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(Read(target), TextReportBytes(kReport));
  EXPECT_EQ(fs::status(target).permissions() & fs::perms::all, fs::perms::owner_read | fs::perms::owner_write);

  const fs::path pipe = folder_ / "pipe.Txt";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THROW(WriteTextReport(pipe, kReport), ReportWriteError);  // nobody reads it
  EXPECT_TRUE(fs::is_fifo(pipe));
  EXPECT_NO_THROW(WriteTextReport("/dev/null", kReport));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(Entries(), 3u);  // no temporary file left
}

// A write that fails half way, as on a full disk: the file size limit of the
// process stops it (root passes permission bits, not this limit).
TEST_F(ReportFolder, FailedWriteLeavesTheEarlierFileIntact) {
  const fs::path file = folder_ / "chart.Txt";
  const std::string earlier = "the earlier report\r\n";
  Put(file, earlier);

  rlimit old{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
  const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small = old;
  small.rlim_cur = 4096;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  ExpectWriteError(file, "File too large", [&] { WriteTextReport(file, std::string(100000, 'r')); });
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, oldHandler);

  EXPECT_EQ(Read(file), earlier);
  EXPECT_EQ(Entries(), 1u);
}

// ---- Direct printing -------------------------------------------------------------

std::string Pages(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    if (i > 0) text += '\f';
    text += "p" + std::to_string(i) + "\r\n";
  }
  return text;
}

// Split at every form feed; without the antra pages only pieces 0 to 5 are
// kept, and a report of six pages or fewer loses nothing.
TEST(ReportPrintPieces, SplitAndWithoutAntra) {
  const std::vector<std::string> pieces = PrintPieces(Pages(8), false);
  ASSERT_EQ(pieces.size(), 8u);
  EXPECT_EQ(pieces.front(), "p0\r\n");
  EXPECT_EQ(pieces.back(), "p7\r\n");
  EXPECT_EQ(PrintPieces(Pages(15), true), PrintPieces(Pages(6), false));
  EXPECT_EQ(PrintPieces(Pages(6), true).size(), 6u);
  EXPECT_EQ(PrintPieces(Pages(3), true).size(), 3u);

  // Edge pieces.
  EXPECT_EQ(PrintPieces("", false), std::vector<std::string>{""});
  EXPECT_EQ(PrintPieces("\f", false), (std::vector<std::string>{"", ""}));
  EXPECT_EQ(PrintPieces("a\fb\f", true), (std::vector<std::string>{"a", "b", ""}));
}

}  // namespace
}  // namespace kelvaro
