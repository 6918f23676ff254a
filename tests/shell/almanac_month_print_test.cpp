// The month tab's "Save as PDF" and "Print", driven as a user drives them:
// the button clicked, the save dialog answered or cancelled, the preview read.
#include <QApplication>
#include <QDateEdit>
#include <QFileDialog>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "shell/daily_almanac_window.h"
#include "shell_test_support.h"
#include "support/pdf_tools.h"

namespace kelvaro::shell {
namespace {

using testing::ShellTest;

struct Seen {
  QString title;
  int previewPages = -1;
};

// Clicks `button`; a save dialog gets `file` typed and Enter (or Cancel for
// none); a print preview is counted and closed.
Seen ClickAndAnswer(DailyAlmanacWindow* w, const char* button, const QString& file) {
  Seen seen;
  QTimer timer;
  timer.setInterval(5);
  QObject::connect(&timer, &QTimer::timeout, [&] {
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
      seen.title = dialog->windowTitle();
      if (file.isEmpty()) return dialog->reject();
      auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
      ASSERT_NE(name, nullptr);
      name->setText(file);
      QTest::keyClick(name, Qt::Key_Return);
    } else if (auto* preview = qobject_cast<QPrintPreviewDialog*>(modal)) {
      seen.title = preview->windowTitle();
      seen.previewPages = preview->findChild<QPrintPreviewWidget*>()->pageCount();
      preview->reject();
    }
  });
  timer.start();
  QTest::mouseClick(w->findChild<QPushButton*>(button), Qt::LeftButton);
  timer.stop();
  return seen;
}

TEST_F(ShellTest, AlmanacMonthSavedAsPdfAndPrinted) {
  ASSERT_TRUE(kelvaro::testing::HavePoppler());
  auto window = StartWindow();
  DailyAlmanacWindow* almanac = window->OpenAlmanac();
  ASSERT_NE(almanac, nullptr);
  almanac->DateEdit()->setDate(QDate(2024, 1, 20));
  almanac->Tabs()->setCurrentIndex(1);
  QTemporaryDir dir;
  ASSERT_TRUE(dir.isValid());

  EXPECT_EQ(ClickAndAnswer(almanac, "cmdMonthPdf", {}).title, "Save as PDF");
  EXPECT_TRUE(QDir(dir.path()).isEmpty());  // cancelled: nothing written
  // A name typed without its extension gets it.
  ClickAndAnswer(almanac, "cmdMonthPdf", dir.filePath("month"));
  const std::filesystem::path pdf = dir.filePath("month.pdf").toStdString();
  EXPECT_EQ(kelvaro::testing::PdfPages(pdf), 1);
  const std::string text = kelvaro::testing::PdfPageText(pdf, 1);
  EXPECT_NE(text.find("Hyderabad (A.P), India"), std::string::npos) << text;
  // 14 January: the kshaya Chaturthi beside the Tritiya of sunrise, ending on
  // the 15th as the day table says; the 1st is the dark half's Panchami (full
  // moon 26 December 2023), the 25th the full moon, named without a half.
  const auto& lines = almanac->MonthSheet().lines;
  EXPECT_EQ(lines.at(13).date + " " + lines.at(13).weekday, "14/01/2024 Sunday");
  EXPECT_EQ(lines.at(13).tithi + " " + lines.at(13).tithiEnd, "Sukla Tritiya / Sukla Chaturthi 08:00 / 05:00 (15/01)");
  EXPECT_NE(text.find("Sukla Tritiya / Sukla Chaturthi"), std::string::npos);
  EXPECT_EQ(lines.at(0).tithi + ", " + lines.at(24).tithi, "Krishna Panchami, Purnima");

  const Seen printed = ClickAndAnswer(almanac, "cmdMonthPrint", {});
  EXPECT_EQ(printed.title, "Print Preview");
  EXPECT_EQ(printed.previewPages, 1);
}

}  // namespace
}  // namespace kelvaro::shell
