#pragma once
// Print: the composed horoscope as it will be printed, without or with the
// antra pages, in a fixed-pitch box; "&Print" sends it to a text file, an
// HTML file or the printer (after a preview), and "Save as PDF" typesets it.
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "render/pdf_report.h"
#include "shell/view_page.h"

class QSettings;

namespace kelvaro::shell {

class PrintView : public ViewPage {
  Q_OBJECT

 public:
  explicit PrintView(QWidget* parent = nullptr);
  void Refresh(const ViewSource& source) override;
  // Where the paper size and the last folder are kept; may stay unset.
  void UseSettings(QSettings* settings);

  QPlainTextEdit& Text() { return *text_; }
  QRadioButton& WithoutAntra() { return *withoutAntra_; }
  QRadioButton& WithAntra() { return *withAntra_; }
  QRadioButton& TextFile() { return *textFile_; }
  QRadioButton& HtmlFile() { return *htmlFile_; }
  QRadioButton& PrintDirectly() { return *printDirectly_; }
  QComboBox& Paper() { return *paper_; }
  QPushButton& PrintButton() { return *print_; }
  QPushButton& PdfButton() { return *pdf_; }

  // "&Print": the report to the output chosen.
  void PrintReport();
  // "Save as PDF": the typeset horoscope to a file chosen in a save dialog.
  void SaveAsPdf();
  // The preview of the printer's pages; printing from it.
  void PrintWithPreview();

 private:
  // Composes the report of the last calculation, without or with antra, as
  // the choice stands.
  std::string Compose() const;
  void ShowText();
  // A save dialog; the file chosen, or empty when the user cancelled.
  QString ChooseFile(const QString& caption, const QString& filter, const QString& suffix);
  render::PaperSize PaperSize() const;
  bool HasHoroscope();

  QRadioButton* withoutAntra_;
  QRadioButton* withAntra_;
  QRadioButton* textFile_;
  QRadioButton* htmlFile_;
  QRadioButton* printDirectly_;
  QComboBox* paper_;
  QPushButton* print_;
  QPushButton* pdf_;
  QPlainTextEdit* text_;
  QSettings* settings_ = nullptr;
  // The context lives as long as the main window; its models are always
  // those of the last complete calculation.
  const CalculationContext* ctx_ = nullptr;
  OwnerDetails owner_;
};

}  // namespace kelvaro::shell
