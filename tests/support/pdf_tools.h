#pragma once
// Reads a PDF back with poppler's command-line tools (poppler-utils, which
// the test command installs), as a reader's program would see the file.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

namespace kelvaro::testing {

// The standard output of a shell command; fails the test when it cannot run.
inline std::string CommandOutput(const std::string& command) {
  std::string out;
  std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  if (!pipe) {
    ADD_FAILURE() << "cannot run: " << command;
    return out;
  }
  std::array<char, 4096> buffer{};
  while (const size_t n = std::fread(buffer.data(), 1, buffer.size(), pipe.get())) out.append(buffer.data(), n);
  return out;
}

inline bool HavePoppler() { return std::system("command -v pdftotext >/dev/null 2>&1") == 0; }

inline std::string Quoted(const std::filesystem::path& path) { return "'" + path.string() + "'"; }

// The "Key:   value" line of pdfinfo, trimmed.
inline std::string PdfInfo(const std::filesystem::path& pdf, const std::string& key) {
  const std::string info = CommandOutput("pdfinfo " + Quoted(pdf) + " 2>/dev/null");
  const size_t at = info.find(key + ":");
  if (at == std::string::npos) return {};
  const size_t start = info.find_first_not_of(' ', at + key.size() + 1);
  return info.substr(start, info.find('\n', start) - start);
}

inline int PdfPages(const std::filesystem::path& pdf) {
  const std::string pages = PdfInfo(pdf, "Pages");
  return pages.empty() ? -1 : std::stoi(pages);
}

// The text of one page (1-based), in reading order.
inline std::string PdfPageText(const std::filesystem::path& pdf, int page) {
  const std::string p = std::to_string(page);
  return CommandOutput("pdftotext -f " + p + " -l " + p + " " + Quoted(pdf) + " - 2>/dev/null");
}

// One page as SVG, to see what it is drawn with (paths, glyphs, images).
inline std::string PdfPageSvg(const std::filesystem::path& pdf, int page) {
  const std::string p = std::to_string(page);
  return CommandOutput("pdftocairo -svg -f " + p + " -l " + p + " " + Quoted(pdf) + " - 2>/dev/null");
}

inline size_t Occurrences(const std::string& text, const std::string& what) {
  size_t count = 0;
  for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + what.size())) ++count;
  return count;
}

}  // namespace kelvaro::testing
