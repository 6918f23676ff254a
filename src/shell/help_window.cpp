#include "shell/help_window.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

#include "shell/remembered_size.h"

namespace kelvaro::shell {

QStringList GuideFolders() {
  const QDir program(QCoreApplication::applicationDirPath());
  return {program.filePath("guide"), QDir::cleanPath(program.filePath("../share/kelvaro/guide"))};
}

QString FindGuide(const QStringList& candidates) {
  for (const QString& folder : candidates) {
    if (QFileInfo(QDir(folder).filePath(kGuideIndex)).isFile()) return QDir(folder).absolutePath();
  }
  return {};
}

HelpWindow::HelpWindow(const QString& folder, QSettings* settings, QWidget* parent) : QDialog(parent) {
  setObjectName("HelpWindow");
  setWindowTitle(tr("Kelvaro Help"));
  browser_ = new QTextBrowser(this);
  browser_->setObjectName("HelpBrowser");
  browser_->setOpenLinks(true);
  browser_->setOpenExternalLinks(false);
  browser_->setSearchPaths({folder});

  auto* bar = new QToolBar(this);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  QStyle* s = style();
  QAction* back = bar->addAction(s->standardIcon(QStyle::SP_ArrowBack), tr("&Back"), browser_, &QTextBrowser::backward);
  back->setShortcut(QKeySequence::Back);
  back->setObjectName("HelpBack");
  QAction* forward =
      bar->addAction(s->standardIcon(QStyle::SP_ArrowForward), tr("&Forward"), browser_, &QTextBrowser::forward);
  forward->setShortcut(QKeySequence::Forward);
  forward->setObjectName("HelpForward");
  QAction* home = bar->addAction(s->standardIcon(QStyle::SP_DirHomeIcon), tr("&Home"), browser_, &QTextBrowser::home);
  home->setObjectName("HelpHome");
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
    const QString title = browser_->documentTitle();
    setWindowTitle(title.isEmpty() ? tr("Kelvaro Help") : tr("Kelvaro Help - %1").arg(title));
  });

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(bar);
  layout->addWidget(browser_);
  resize(760, 620);
  RememberSize(this, settings, "Help/geometry");
  browser_->setSource(QUrl::fromLocalFile(QDir(folder).filePath(kGuideIndex)));
}

}  // namespace kelvaro::shell
