#pragma once
// The typeset horoscope as a PDF: the letterhead and the person's birth
// data with the Lagna, Rasi and star on the first page, the charts drawn as
// vector graphics, and every table of the text report as a real table, with
// the person's name and the page number in a running footer. It reads the
// same models as the text report and computes nothing of its own. Needs a
// QGuiApplication (for the fonts).
#include <QByteArray>
#include <QString>

class QPainter;
class QPdfWriter;
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "report/report_pages.h"

namespace kelvaro::render {

enum class PaperSize { A4, Letter };

// "A4" or "Letter", in any case; nothing for another text.
std::optional<PaperSize> PaperSizeOf(std::string_view name);
const char* PaperSizeName(PaperSize paper);

QByteArray PdfReport(const ReportInput& input, PaperSize paper);

// A PDF in memory: a writer at 600 dots an inch on the paper, portrait, no
// margins of its own, titled; `draw` paints it (the writer is the device).
QByteArray PdfBytes(PaperSize paper, const QString& title, const std::function<void(QPainter&, QPdfWriter&)>& draw);

// PdfReport written atomically to `path`: a failed write leaves an earlier
// file of that name as it was. Raises ReportWriteError.
void WritePdfReport(const std::filesystem::path& path, const ReportInput& input, PaperSize paper);

}  // namespace kelvaro::render
