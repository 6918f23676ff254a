// kelvaro-cli report: the whole printed horoscope, as text or HTML, to
// standard output or to a file, or typeset as a PDF file.
#include <CLI/CLI.hpp>

#include <memory>
#include <string>

#include "cli/cli.h"
#include "cli/gui_start.h"
#include "cli/horoscope_run.h"
#include "horoscope/calculation_context.h"
#include "horoscope/report_input.h"
#include "render/pdf_report.h"
#include "report/destinations.h"
#include "report/report_pages.h"
#include "store/personal_details.h"
#include "store/store_error.h"

namespace kelvaro::cli {

namespace {

struct ReportOptions {
  HoroscopeOptions horoscope;
  bool withAntra = false;
  std::string format = "text";
  std::string output;
  std::string paper = "A4";
};

OwnerDetails OwnerOf(store::Database& db) {
  OwnerDetails o;
  if (const auto p = store::ReadPersonalDetails(db)) {
    o = {p->name, p->address, p->address2, p->city, p->country, p->zipcode, p->phone, p->email};
  }
  return o;
}

void WritePdf(const ReportOptions& o, const CalculationContext& ctx, store::Database& db, Session& session) {
  StartGui();
  const auto paper = render::PaperSizeOf(o.paper);
  try {
    render::WritePdfReport(o.output, ReportInputOf(ctx, OwnerOf(db), o.withAntra), paper.value_or(render::PaperSize::A4));
  } catch (const ReportWriteError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  }
}

void PrintReport(const ReportOptions& o, const CalculationContext& ctx, store::Database& db, Session& session) {
  if (o.format == "pdf") return WritePdf(o, ctx, db, session);
  const std::string text = ComposeReport(ReportInputOf(ctx, OwnerOf(db), o.withAntra));
  const bool html = o.format == "html";
  if (o.output.empty()) {
    session.out << (html ? HtmlReportBytes(text) : TextReportBytes(text));
    return;
  }
  try {
    if (html) WriteHtmlReport(o.output, text);
    else WriteTextReport(o.output, text);
  } catch (const ReportWriteError& e) {
    session.err << "kelvaro-cli: " << e.what() << "\n";
    session.status = kExitFailure;
  }
}

}  // namespace

void RegisterReportCommand(CLI::App& app, Session& session) {
  auto* cmd = app.add_subcommand("report", "The printed horoscope: every page, as text or HTML");
  auto o = std::make_shared<ReportOptions>();
  AddHoroscopeOptions(cmd, o->horoscope, false, false);
  cmd->add_flag("--with-antra", o->withAntra, "Add the antra pages");
  cmd->add_option("--format", o->format, "text, html or pdf")->check(CLI::IsMember({"text", "html", "pdf"}));
  cmd->add_option("--output", o->output, "File to write (default: standard output; pdf needs a file)");
  cmd->add_option("--paper", o->paper, "Paper of the PDF: A4 or Letter")
      ->check(CLI::IsMember({"A4", "Letter"}, CLI::ignore_case));
  cmd->callback([&session, o]() {
    if (o->format == "pdf" && o->output.empty()) {
      session.err << "kelvaro-cli: --format pdf needs --output FILE\n";
      session.status = kExitBadInput;
      return;
    }
    RunHoroscope(o->horoscope, session,
                 [&](const CalculationContext& ctx, store::Database& db) { PrintReport(*o, ctx, db, session); });
  });
}

}  // namespace kelvaro::cli
