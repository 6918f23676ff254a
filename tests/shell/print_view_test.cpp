// The Print view as a user meets it: the options, the save dialogs of the
// text and HTML files (and Cancel), a write that fails, the print preview's
// pages, and the typeset PDF from the File menu on the paper chosen.
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QTest>

#include "shell/print_view.h"
#include "shell_test_support.h"
#include "support/pdf_tools.h"

namespace kelvaro::shell {
namespace {

using testing::AnswerBoxes;
using testing::ShellTest;

constexpr std::size_t kPrintIndex = 9;

struct SeenDialog {
  QStringList filters;
  QString title;
  int previewPages = -1;
};

// Runs `action`; the save dialog that opens gets `file` typed in and is
// accepted, or is cancelled when `file` is empty. A print preview is read
// and closed.
SeenDialog AnswerDialog(const std::function<void()>& action, const QString& file) {
  SeenDialog seen;
  QTimer timer;
  timer.setInterval(5);
  QObject::connect(&timer, &QTimer::timeout, [&] {
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
      seen.filters = dialog->nameFilters();
      seen.title = dialog->windowTitle();
      if (file.isEmpty()) {
        dialog->reject();
      } else {
        // Typed into the name field, as a user does, and Enter.
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(name, nullptr);
        name->setText(file);
        QTest::keyClick(name, Qt::Key_Return);
      }
    } else if (auto* preview = qobject_cast<QPrintPreviewDialog*>(modal)) {
      seen.title = preview->windowTitle();
      seen.previewPages = preview->findChild<QPrintPreviewWidget*>()->pageCount();
      preview->reject();
    }
  });
  timer.start();
  action();
  timer.stop();
  return seen;
}

// A click on the option's circle, where a user aims (a click right of the
// caption does not choose it).
void Choose(QRadioButton& option) {
  QTest::mouseClick(&option, Qt::LeftButton, {}, QPoint(6, option.height() / 2));
  ASSERT_TRUE(option.isChecked()) << option.text().toStdString();
}

QByteArray FileBytes(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class PrintViewTest : public ShellTest {
 protected:
  void SetUp() override {
    ShellTest::SetUp();
    window_ = StartWindow();
    window_->ShowView(kPrintIndex);
    view_ = static_cast<PrintView*>(window_->View(kPrintIndex));
  }
  QString Path(const char* name) const { return folder_.filePath(name); }
  std::unique_ptr<MainWindow> window_;
  PrintView* view_ = nullptr;
};

TEST_F(PrintViewTest, OptionsAsTheUserSeesThem) {
  QStringList frames;
  for (const QGroupBox* box : view_->findChildren<QGroupBox*>()) frames << box->title();
  EXPECT_EQ(frames, QStringList({"Horoscope Option", "Output Option"}));
  EXPECT_EQ(view_->WithoutAntra().text(), "Without Antra");
  EXPECT_EQ(view_->WithAntra().text(), "With Antra");
  EXPECT_EQ(view_->TextFile().text(), "Generate Horoscope as a Text file");
  EXPECT_EQ(view_->HtmlFile().text(), "Generate Horoscope as a HTML file");
  EXPECT_EQ(view_->PrintDirectly().text(), "Print Directly");
  EXPECT_EQ(view_->PrintButton().text(), "&Print");
  EXPECT_TRUE(view_->WithoutAntra().isChecked());
  EXPECT_TRUE(view_->TextFile().isChecked());
  EXPECT_TRUE(QFontInfo(view_->Text().font()).fixedPitch());
  EXPECT_TRUE(view_->Text().toPlainText().contains("AUM GANESHAYA NAMAH"));
}

// Each file through its dialog: the filter, the extension added to a name
// typed without one, the bytes of the atomic writer; Cancel writes nothing
// and says nothing.
TEST_F(PrintViewTest, TextAndHtmlFilesThroughTheSaveDialog) {
  Choose(view_->TextFile());
  SeenDialog seen;
  auto boxes = AnswerBoxes([&] { seen = AnswerDialog([&] { QTest::mouseClick(&view_->PrintButton(), Qt::LeftButton); }, Path("velnesh")); });
  EXPECT_TRUE(boxes.empty());
  EXPECT_EQ(seen.filters, QStringList({"Text Files (*.Txt)"}));
  const QByteArray text = FileBytes(Path("velnesh.Txt"));
  EXPECT_TRUE(text.startsWith("\r\n\r\n\r\n                         AUM GANESHAYA NAMAH\r\n"));
  EXPECT_EQ(text.count('\f'), 5);  // six pages without the antra pages
  EXPECT_TRUE(text.endsWith("\r\n"));

  Choose(view_->HtmlFile());
  Choose(view_->WithAntra());
  seen = AnswerDialog([&] { view_->PrintButton().click(); }, Path("velnesh.HTML"));
  EXPECT_EQ(seen.filters, QStringList({"HTML Files (*.HTML)"}));
  const QByteArray html = FileBytes(Path("velnesh.HTML"));
  EXPECT_TRUE(html.startsWith("<pre>\r\n\r\n"));
  EXPECT_TRUE(html.endsWith("\r\n</pre>\r\n"));
  EXPECT_GT(html.count('\f'), 5);  // the antra pages follow

  boxes = AnswerBoxes([&] { AnswerDialog([&] { view_->PrintButton().click(); }, {}); });
  EXPECT_TRUE(boxes.empty());
  EXPECT_EQ(QDir(folder_.path()).entryList({"*.Txt", "*.HTML"}, QDir::Files).size(), 2);
}

TEST_F(PrintViewTest, FailedWriteSaysWhyInACriticalBox) {
  const QString file = Path("missing-folder/velnesh.Txt");
  const auto boxes = AnswerBoxes([&] { AnswerDialog([&] { view_->PrintButton().click(); }, file); });
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
  EXPECT_TRUE(boxes[0].text.contains(file)) << boxes[0].text.toStdString();
  EXPECT_FALSE(QFile::exists(file));
}

// Direct printing: one page per piece of the report; "Without Antra" stops
// after the sixth piece (the bhukti page), "With Antra" prints them all.
TEST_F(PrintViewTest, PreviewShowsOnePagePerPiece) {
  Choose(view_->PrintDirectly());
  SeenDialog seen = AnswerDialog([&] { view_->PrintButton().click(); }, {});
  EXPECT_EQ(seen.title, "Print Preview");
  EXPECT_EQ(seen.previewPages, 6);
  Choose(view_->WithAntra());
  const int pieces = static_cast<int>(view_->Text().toPlainText().count(QChar(0x2500) + QString(69, QChar(0x2500)))) + 1;
  EXPECT_GT(pieces, 6);
  seen = AnswerDialog([&] { view_->PrintButton().click(); }, {});
  EXPECT_EQ(seen.previewPages, pieces);
}

// The File menu's "Save as PDF" on the paper of the view, which is kept for
// the next start.
TEST_F(PrintViewTest, SaveAsPdfFromTheFileMenu) {
  ASSERT_TRUE(kelvaro::testing::HavePoppler()) << "pdfinfo is missing: install poppler-utils";
  view_->Paper().setCurrentText("Letter");
  QAction* save = window_->findChild<QMenu*>("mnuFile")->actions().at(0);
  const SeenDialog seen = AnswerDialog([&] { save->trigger(); }, Path("velnesh"));
  EXPECT_EQ(seen.title, "Save as PDF");
  EXPECT_EQ(seen.filters, QStringList({"PDF Files (*.pdf)"}));
  const std::filesystem::path pdf = Path("velnesh.pdf").toStdString();
  EXPECT_EQ(kelvaro::testing::PdfPages(pdf), 5);
  EXPECT_EQ(kelvaro::testing::PdfInfo(pdf, "Page size").substr(0, 9), "612 x 792");
  EXPECT_NE(kelvaro::testing::PdfPageText(pdf, 1).find("Velnesh"), std::string::npos);

  window_.reset();
  auto again = StartWindow();
  EXPECT_EQ(static_cast<PrintView*>(again->View(kPrintIndex))->Paper().currentText(), "Letter");
}

}  // namespace
}  // namespace kelvaro::shell
