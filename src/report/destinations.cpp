#include "report/destinations.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace kelvaro {

namespace {

constexpr const char* kPrintEnd = "\r\n";
// Pieces 0 to 5 are the five fixed pages and the bhukti page.
constexpr size_t kLastPieceWithoutAntra = 5;

[[noreturn]] void Fail(const std::filesystem::path& path, int error) {
  throw ReportWriteError("Cannot write the report to \"" + path.string() + "\": " + std::strerror(error));
}

// A temporary name beside the target, unique within the process and among
// processes by the process id.
std::filesystem::path TemporaryBeside(const std::filesystem::path& path) {
  static std::atomic<unsigned> counter{0};
  std::filesystem::path tmp = path;
  tmp += ".tmp" + std::to_string(::getpid()) + "-" + std::to_string(counter++);
  return tmp;
}

void WriteAll(int fd, std::string_view data, const std::filesystem::path& path, const std::filesystem::path& tmp) {
  while (!data.empty()) {
    const ssize_t n = ::write(fd, data.data(), data.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      const int error = n < 0 ? errno : EIO;
      ::close(fd);
      if (!tmp.empty()) ::unlink(tmp.c_str());
      Fail(path, error);
    }
    data.remove_prefix(static_cast<size_t>(n));
  }
}

// A path that is not a regular file (a pipe, a terminal, a device) is written
// into as it is, never replaced; a pipe that nobody reads is refused rather
// than waited on.
void WriteInPlace(const std::filesystem::path& path, std::initializer_list<std::string_view> parts) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (fd < 0) Fail(path, errno == ENXIO ? EPIPE : errno);
  const int flags = ::fcntl(fd, F_GETFL);
  if (flags >= 0) ::fcntl(fd, F_SETFL, flags & ~O_NONBLOCK);
  for (std::string_view part : parts) WriteAll(fd, part, path, {});
  if (::close(fd) != 0) Fail(path, errno);
}

void WriteAtomically(const std::filesystem::path& given, std::initializer_list<std::string_view> parts) {
  // A symbolic link is followed: its target is written, the link stays.
  std::error_code ec;
  std::filesystem::path path = given;
  if (std::filesystem::is_symlink(std::filesystem::symlink_status(given, ec))) {
    path = std::filesystem::weakly_canonical(given, ec);
    if (ec) Fail(given, ec.value());
  }
  struct stat existing{};
  const bool exists = ::stat(path.c_str(), &existing) == 0;
  if (exists && S_ISDIR(existing.st_mode)) Fail(path, EISDIR);
  if (exists && !S_ISREG(existing.st_mode)) return WriteInPlace(path, parts);
  const std::filesystem::path tmp = TemporaryBeside(path);
  const int fd = ::open(tmp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (fd < 0) Fail(path, errno);
  // The file that is replaced keeps its permissions.
  if (exists) ::fchmod(fd, existing.st_mode & 07777);
  for (std::string_view part : parts) WriteAll(fd, part, path, tmp);
  if (::fsync(fd) != 0) {
    const int error = errno;
    ::close(fd);
    ::unlink(tmp.c_str());
    Fail(path, error);
  }
  if (::close(fd) != 0) {
    const int error = errno;
    ::unlink(tmp.c_str());
    Fail(path, error);
  }
  if (std::rename(tmp.c_str(), path.c_str()) != 0) {
    const int error = errno;
    ::unlink(tmp.c_str());
    Fail(path, error);
  }
}

}  // namespace

std::string TextReportBytes(std::string_view text) { return std::string(text) + kPrintEnd; }

std::string HtmlReportBytes(std::string_view text) {
  return std::string("<pre>") + kPrintEnd + std::string(text) + kPrintEnd + "</pre>" + kPrintEnd;
}

void WriteTextReport(const std::filesystem::path& path, std::string_view text) {
  WriteAtomically(path, {TextReportBytes(text)});
}

void WriteHtmlReport(const std::filesystem::path& path, std::string_view text) {
  WriteAtomically(path, {HtmlReportBytes(text)});
}

void WriteReportFile(const std::filesystem::path& path, std::string_view bytes) { WriteAtomically(path, {bytes}); }

std::vector<std::string> PrintPieces(std::string_view text, bool withoutAntra) {
  std::vector<std::string> pieces;
  size_t index = 0;
  for (;;) {
    const size_t feed = text.find('\f');
    const std::string_view piece = text.substr(0, feed);
    if (!(withoutAntra && index > kLastPieceWithoutAntra)) pieces.emplace_back(piece);
    if (feed == std::string_view::npos) break;
    text.remove_prefix(feed + 1);
    ++index;
  }
  return pieces;
}

}  // namespace kelvaro
