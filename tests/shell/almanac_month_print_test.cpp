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

// Clicks `button`; a save dialog gets `file` typed in and Enter, or is
// cancelled when `file` is empty; a print preview is counted and closed.
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

  // Cancelled: nothing written.
  const Seen cancelled = ClickAndAnswer(almanac, "cmdMonthPdf", {});
  EXPECT_EQ(cancelled.title, "Save as PDF");
  EXPECT_TRUE(QDir(dir.path()).isEmpty());

  // A name typed without its extension gets it.
  ClickAndAnswer(almanac, "cmdMonthPdf", dir.filePath("month"));
  const std::filesystem::path pdf = dir.filePath("month.pdf").toStdString();
  ASSERT_TRUE(std::filesystem::exists(pdf));
  EXPECT_EQ(kelvaro::testing::PdfPages(pdf), 1);
  const std::string text = kelvaro::testing::PdfPageText(pdf, 1);
  for (const char* part : {"Daily Almanac of January 2024", "Hyderabad (A.P), India", "Page 1 of 1"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part << "\n" << text;
  }
  // 14 January has a kshaya tithi: both tithis on its line, the second
  // ending on the 15th, as the day table says.
  const AlmanacMonthLine& line = almanac->MonthSheet().lines.at(13);
  EXPECT_EQ(line.date, "14/01/2024");
  EXPECT_EQ(line.weekday, "Sunday");
  EXPECT_EQ(line.tithi, "Sukla Tritiya / Sukla Chaturthi");
  EXPECT_EQ(line.tithiEnd, "08:00 / 05:00 (15/01)");
  EXPECT_NE(text.find("Sukla Tritiya / Sukla Chaturthi"), std::string::npos);
  // The first is the dark half's Panchami (full moon 26 December 2023), the
  // 25th the full moon itself, named without a half.
  EXPECT_EQ(almanac->MonthSheet().lines.at(0).tithi, "Krishna Panchami");
  EXPECT_EQ(almanac->MonthSheet().lines.at(24).tithi, "Purnima");

  const Seen printed = ClickAndAnswer(almanac, "cmdMonthPrint", {});
  EXPECT_EQ(printed.title, "Print Preview");
  EXPECT_EQ(printed.previewPages, 1);
}

}  // namespace
}  // namespace kelvaro::shell
