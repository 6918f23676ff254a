// Help and About from the Help menu: the guide's first page in the help
// window with its links and history, a missing guide said in words, and the
// about box with the version, the database and the licences.
#include <QLabel>
#include <QMenu>
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
  // Help menu entries by their text, on a window that looks for the guide in `guideFolders`.
  void Trigger(const QString& entry, const QStringList& guideFolders) {
    MainWindow::Options options{DatabasePath(), settings_.get(), {}, guideFolders};
    window_ = std::make_unique<MainWindow>(options);
    window_->show();
    startBoxes_ = AnswerBoxes([&] { window_->Start(); });
    for (QAction* a : window_->findChild<QMenu*>("mdiHelpmnu")->actions()) {
      if (a->text() == entry) boxes_ = AnswerBoxes([&] { a->trigger(); });
    }
  }
  std::unique_ptr<MainWindow> window_;
  std::vector<testing::SeenBox> boxes_;
};

TEST_F(HelpTest, GuideOpensOnItsFirstPageAndFollowsItsLinks) {
  Trigger("&Help", {folder_.filePath("nowhere"), KELVARO_GUIDE_DIR});
  auto* help = window_->findChild<HelpWindow*>();
  ASSERT_NE(help, nullptr);
  EXPECT_TRUE(help->isVisible());
  QTextBrowser* browser = help->Browser();
  EXPECT_EQ(browser->source().fileName(), "index.html");
  EXPECT_EQ(help->windowTitle(), "Kelvaro Help - Kelvaro user guide");
  // Every page the index names is there, and Home comes back.
  const QString index = browser->toHtml();
  for (const char* page : {"birth.html", "views.html", "charts.html", "places.html", "preferences.html",
                           "printing.html", "almanac.html"}) {
    EXPECT_TRUE(index.contains(page)) << page;
    browser->setSource(QUrl(page));
    EXPECT_FALSE(browser->documentTitle().isEmpty()) << page;
  }
  EXPECT_TRUE(browser->isBackwardAvailable());
  help->findChild<QAction*>("HelpHome")->trigger();
  EXPECT_EQ(browser->source().fileName(), "index.html");
}

TEST_F(HelpTest, MissingGuideIsSaidAndNothingOpens) {
  Trigger("&Help", {folder_.filePath("nowhere")});
  ASSERT_EQ(boxes_.size(), 1u);
  EXPECT_EQ(boxes_[0].icon, QMessageBox::Critical);
  EXPECT_TRUE(boxes_[0].text.contains("nowhere")) << boxes_[0].text.toStdString();
  EXPECT_EQ(window_->findChild<HelpWindow*>(), nullptr);
}

TEST_F(HelpTest, AboutNamesVersionDatabaseAndLicences) {
  Trigger("&About Us", {});
  auto* about = window_->findChild<AboutDialog*>();
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
