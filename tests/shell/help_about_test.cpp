// Help and About from the Help menu: the guide's first page in the help
// window with its links and history, a missing guide said in words, and the
// about box with the version, the database and the licences.
#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QTextBrowser>

#include "shell/about_dialog.h"
#include "shell/help_window.h"
#include "shell_test_support.h"

namespace kelvaro::shell {
namespace {

using testing::AnswerBoxes;
using testing::ShellTest;

class HelpTest : public ShellTest {
 protected:
  std::unique_ptr<MainWindow> Window(const QStringList& guideFolders) {
    MainWindow::Options options;
    options.databasePath = DatabasePath();
    options.settings = settings_.get();
    options.guideFolders = guideFolders;
    auto window = std::make_unique<MainWindow>(options);
    window->show();
    startBoxes_ = AnswerBoxes([&] { window->Start(); });
    return window;
  }
  static QAction* HelpEntry(MainWindow& window, const QString& text) {
    for (QAction* a : window.menuBar()->actions().at(3)->menu()->actions()) {
      if (a->text() == text) return a;
    }
    return nullptr;
  }
};

TEST_F(HelpTest, GuideOpensOnItsFirstPageAndFollowsItsLinks) {
  auto window = Window({folder_.filePath("nowhere"), KELVARO_GUIDE_DIR});
  HelpEntry(*window, "&Help")->trigger();
  auto* help = window->findChild<HelpWindow*>();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  QTextBrowser* browser = help->Browser();
  EXPECT_EQ(browser->source().fileName(), "index.html");
  EXPECT_EQ(browser->documentTitle(), "Kelvaro user guide");
  EXPECT_TRUE(help->windowTitle().endsWith("Kelvaro user guide"));
  // Every page the index names is there, and Back comes home.
  const QString index = browser->toHtml();
  for (const char* page : {"birth.html", "views.html", "charts.html", "places.html", "preferences.html",
                           "printing.html"}) {
    EXPECT_TRUE(index.contains(page)) << page;
    browser->setSource(QUrl(page));
    EXPECT_FALSE(browser->documentTitle().isEmpty()) << page;
    EXPECT_FALSE(browser->toPlainText().contains("Kelvaro user guide\n")) << page;
  }
  EXPECT_TRUE(browser->isBackwardAvailable());
  help->findChild<QAction*>("HelpHome")->trigger();
  EXPECT_EQ(browser->source().fileName(), "index.html");
  // A second "&Help" brings the same window forward.
  HelpEntry(*window, "&Help")->trigger();
  EXPECT_EQ(window->findChildren<HelpWindow*>().size(), 1);
}

TEST_F(HelpTest, MissingGuideIsSaidAndNothingOpens) {
  auto window = Window({folder_.filePath("nowhere")});
  const auto boxes = AnswerBoxes([&] { HelpEntry(*window, "&Help")->trigger(); });
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
  EXPECT_TRUE(boxes[0].text.contains("nowhere")) << boxes[0].text.toStdString();
  EXPECT_EQ(window->findChild<HelpWindow*>(), nullptr);
  EXPECT_EQ(FindGuide({folder_.filePath("nowhere"), KELVARO_GUIDE_DIR}), QDir(KELVARO_GUIDE_DIR).absolutePath());
}

TEST_F(HelpTest, AboutNamesVersionDatabaseAndLicences) {
  auto window = Window({});
  HelpEntry(*window, "&About Us")->trigger();
  auto* about = window->findChild<AboutDialog*>();
  ASSERT_NE(about, nullptr);
  EXPECT_EQ(about->windowTitle(), "About us");
  const QString text = about->findChild<QLabel*>("AboutText")->text();
  for (const QString& part : {QString("Version 2.4"), DatabasePath(), QString("GNU LGPL version 3"),
                              QString("public domain"), QString("BSD 3-clause"), QString("Bitstream Vera"),
                              QString("SIL Open Font Licence 1.1")}) {
    EXPECT_TRUE(text.contains(part)) << part.toStdString();
  }
}

}  // namespace
}  // namespace kelvaro::shell
