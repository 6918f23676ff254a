#include "shell/print_view.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QSettings>
#include <QVBoxLayout>

#include "horoscope/report_input.h"
#include "render/text_pages.h"
#include "report/destinations.h"
#include "shell/messages.h"

namespace kelvaro::shell {

namespace {

constexpr const char* kPaperKey = "Print/paper";
constexpr const char* kFolderKey = "Print/folder";
constexpr const char* kPreviewKey = "Print/previewGeometry";
constexpr double kPrintMarginMm = 15;

// The report is laid out for Courier New; fontconfig gives Liberation Mono,
// its metric twin, where Courier New itself is missing.
QFont ReportFont() {
  QFont font("Courier New");
  font.setStyleHint(QFont::TypeWriter);
  font.setFixedPitch(true);
  font.setPointSize(9);
  return font;
}

// The page breaks of the text are form feeds and its lines end in CR LF;
// the box shows a rule where a page ends.
QString ScreenText(const std::string& report) {
  QString text = Qs(report);
  text.remove('\r');
  text.replace('\f', QString("\n") + QString(70, QChar(0x2500)) + "\n");
  return text;
}

// The save dialog's filter in Qt's form: "Text Files | *.Txt" becomes
// "Text Files (*.Txt)".
QString DialogFilter(const char* filter) {
  const QStringList parts = QString::fromLatin1(filter).split('|');
  return parts.size() == 2 ? QString("%1 (%2)").arg(parts[0].trimmed(), parts[1].trimmed()) : QString(filter);
}

}  // namespace

PrintView::PrintView(QWidget* parent)
    : ViewPage(parent),
      withoutAntra_(new QRadioButton(tr("Without Antra"), this)),
      withAntra_(new QRadioButton(tr("With Antra"), this)),
      textFile_(new QRadioButton(tr(kTextFileDestination.caption), this)),
      htmlFile_(new QRadioButton(tr(kHtmlFileDestination.caption), this)),
      printDirectly_(new QRadioButton(tr("Print Directly"), this)),
      paper_(new QComboBox(this)),
      print_(new QPushButton(tr("&Print"), this)),
      pdf_(new QPushButton(tr("Save as P&DF..."), this)),
      text_(new QPlainTextEdit(this)) {
  withoutAntra_->setObjectName("Op2");
  withAntra_->setObjectName("Op1");
  textFile_->setObjectName("Op4");
  htmlFile_->setObjectName("Op3");
  printDirectly_->setObjectName("Op5");
  print_->setObjectName("CoPrt");
  text_->setObjectName("Te");
  text_->setReadOnly(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setFont(ReportFont());
  for (const render::PaperSize size : {render::PaperSize::A4, render::PaperSize::Letter}) {
    paper_->addItem(render::PaperSizeName(size));
  }
  paper_->setToolTip(tr("Paper of the printer and of the PDF"));

  auto* horoscope = new QGroupBox(tr("Horoscope Option"), this);
  auto* horoscopeLayout = new QVBoxLayout(horoscope);
  horoscopeLayout->addWidget(withoutAntra_);
  horoscopeLayout->addWidget(withAntra_);
  auto* output = new QGroupBox(tr("Output Option"), this);
  auto* outputLayout = new QVBoxLayout(output);
  outputLayout->addWidget(textFile_);
  outputLayout->addWidget(htmlFile_);
  outputLayout->addWidget(printDirectly_);
  auto* paperLabel = new QLabel(tr("Pape&r"), this);
  paperLabel->setBuddy(paper_);
  auto* buttons = new QVBoxLayout;
  auto* paperRow = new QHBoxLayout;
  paperRow->addWidget(paperLabel);
  paperRow->addWidget(paper_, 1);
  buttons->addLayout(paperRow);
  buttons->addWidget(print_);
  buttons->addWidget(pdf_);
  buttons->addStretch(1);
  auto* options = new QHBoxLayout;
  options->addWidget(horoscope);
  options->addWidget(output);
  options->addLayout(buttons);
  options->addStretch(1);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(MakeHeading(tr("Print"), this));
  layout->addLayout(options);
  layout->addWidget(text_, 1);
  // Checked once in their frames: radio buttons exclude each other within
  // their parent.
  withoutAntra_->setChecked(true);
  textFile_->setChecked(true);
  print_->setDefault(true);
  connect(withAntra_, &QRadioButton::toggled, this, [this] { ShowText(); });
  connect(print_, &QPushButton::clicked, this, &PrintView::PrintReport);
  connect(pdf_, &QPushButton::clicked, this, &PrintView::SaveAsPdf);
  connect(paper_, &QComboBox::currentTextChanged, this, [this](const QString& paper) {
    if (settings_) settings_->setValue(kPaperKey, paper);
  });
}

void PrintView::UseSettings(QSettings* settings) {
  settings_ = settings;
  if (!settings_) return;
  const int index = paper_->findText(settings_->value(kPaperKey).toString());
  if (index >= 0) paper_->setCurrentIndex(index);
}

void PrintView::Refresh(const ViewSource& source) {
  ctx_ = &source.ctx;
  owner_ = source.owner;
  ShowText();
}

std::string PrintView::Compose() const {
  return ComposeReport(ReportInputOf(*ctx_, owner_, withAntra_->isChecked()));
}

void PrintView::ShowText() {
  if (!ctx_) return;
  text_->setPlainText(ScreenText(Compose()));
}

bool PrintView::HasHoroscope() {
  if (ctx_) return true;
  ShowError(this, tr("There is no horoscope to print: no calculation has finished yet."));
  return false;
}

render::PaperSize PrintView::PaperSize() const {
  return render::PaperSizeOf(Std(paper_->currentText())).value_or(render::PaperSize::A4);
}

QString PrintView::ChooseFile(const QString& caption, const QString& filter, const QString& suffix) {
  const QString folder = settings_ ? settings_->value(kFolderKey, QDir::homePath()).toString() : QDir::homePath();
  const QString name = ctx_ ? Qs(ctx_->summary.txtGName).trimmed() : QString();
  QFileDialog dialog(this, caption, folder, filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  // A name typed without its extension gets it.
  dialog.setDefaultSuffix(suffix);
  if (!name.isEmpty()) dialog.selectFile(name + "." + suffix);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  const QString file = dialog.selectedFiles().constFirst();
  if (settings_) settings_->setValue(kFolderKey, QFileInfo(file).absolutePath());
  return file;
}

void PrintView::PrintReport() {
  if (!HasHoroscope()) return;
  try {
    if (printDirectly_->isChecked()) return PrintWithPreview();
    const bool html = htmlFile_->isChecked();
    const FileDestination& destination = html ? kHtmlFileDestination : kTextFileDestination;
    // The report is composed first, as the dialog may take a while and the
    // text must be the one on the screen.
    const std::string text = Compose();
    const QString file = ChooseFile(tr(destination.caption), DialogFilter(destination.filter), html ? "HTML" : "Txt");
    if (file.isEmpty()) return;  // cancelled: nothing to say
    if (html) WriteHtmlReport(Std(file), text);
    else WriteTextReport(Std(file), text);
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
}

void PrintView::SaveAsPdf() {
  if (!HasHoroscope()) return;
  try {
    const QString file = ChooseFile(tr("Save as PDF"), tr("PDF Files (*.pdf)"), "pdf");
    if (file.isEmpty()) return;
    render::WritePdfReport(Std(file), ReportInputOf(*ctx_, owner_, withAntra_->isChecked()), PaperSize());
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
  }
}

void PrintView::PrintWithPreview() {
  if (!HasHoroscope()) return;
  const std::vector<std::string> pieces = PrintPieces(Compose(), withoutAntra_->isChecked());
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(QPageSize(PaperSize() == render::PaperSize::Letter ? QPageSize::Letter : QPageSize::A4));
  printer.setPageMargins(QMarginsF(kPrintMarginMm, kPrintMarginMm, kPrintMarginMm, kPrintMarginMm),
                         QPageLayout::Millimeter);
  printer.setDocName(tr("Horoscope of %1").arg(Qs(ctx_->summary.txtGName).trimmed()));
  QPrintPreviewDialog preview(&printer, this);
  preview.setWindowTitle(tr("Print Preview"));
  connect(&preview, &QPrintPreviewDialog::paintRequested, this, [&pieces](QPrinter* target) {
    QPainter painter(target);
    render::PaintTextPages(painter, *target, pieces);
  });
  preview.resize(900, 760);
  if (settings_) preview.restoreGeometry(settings_->value(kPreviewKey).toByteArray());
  preview.exec();
  if (settings_) settings_->setValue(kPreviewKey, preview.saveGeometry());
}

}  // namespace kelvaro::shell
