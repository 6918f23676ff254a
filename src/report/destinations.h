#pragma once
// Where the composed report goes: a text file, an HTML file, or the printer.
// The file destinations write atomically; the printer's page selection is
// kept here as plain code for the desktop program, which owns the printer.
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kelvaro {

// One file destination of the print view: its option caption and the
// filter of its save dialog.
struct FileDestination {
  const char* caption;
  const char* filter;
};

inline constexpr FileDestination kTextFileDestination{"Generate Horoscope as a Text file", "Text Files | *.Txt"};
inline constexpr FileDestination kHtmlFileDestination{"Generate Horoscope as a HTML file", "HTML Files | *.HTML"};

// A report file could not be written. The message names the file and says
// why, for the user.
class ReportWriteError : public std::runtime_error {
 public:
  explicit ReportWriteError(const std::string& message) : std::runtime_error(message) {}
};

// The bytes of each file: the text and CR LF, as one print of it; and for
// HTML three prints, "<pre>", the text as it is (no escaping) and "</pre>",
// each ended by CR LF. Standard output gets the same bytes.
std::string TextReportBytes(std::string_view text);
std::string HtmlReportBytes(std::string_view text);

// The report as a text file: the text, then CR LF, as one print of it.
// Written to a temporary file in the same folder and renamed over `path`,
// so that a failed write leaves an earlier file of that name as it was.
// Raises ReportWriteError.
void WriteTextReport(const std::filesystem::path& path, std::string_view text);

// The report as an HTML file: three prints, "<pre>", the text as it is (no
// escaping) and "</pre>", each ended by CR LF. Atomic as WriteTextReport.
void WriteHtmlReport(const std::filesystem::path& path, std::string_view text);

// Any other report file (a PDF): the bytes as they are, atomic as
// WriteTextReport.
void WriteReportFile(const std::filesystem::path& path, std::string_view bytes);

// The pieces that direct printing sends, one printer page each: the text
// split at every form feed; with withoutAntra ("Without Antra"), pieces of
// index above 5 are left out. File output never skips pages.
std::vector<std::string> PrintPieces(std::string_view text, bool withoutAntra);

}  // namespace kelvaro
