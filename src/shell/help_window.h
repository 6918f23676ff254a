#pragma once
// The user guide: local HTML pages shipped beside the program, shown in a
// browser window of their own with back, forward and home. Nothing is ever
// fetched from a network; a link that leaves the guide is not followed.
#include <QDialog>
#include <QStringList>

class QSettings;
class QTextBrowser;

namespace kelvaro::shell {

inline constexpr const char* kGuideIndex = "index.html";

// Where the guide may stand: "guide" beside the executable (the build), then
// "../share/kelvaro/guide" (an installed layout).
QStringList GuideFolders();
// The first folder of `candidates` that holds the index page; empty if none.
QString FindGuide(const QStringList& candidates);

class HelpWindow : public QDialog {
  Q_OBJECT

 public:
  // `folder` holds the guide's pages, as FindGuide gives it.
  HelpWindow(const QString& folder, QSettings* settings, QWidget* parent);

  QTextBrowser* Browser() const { return browser_; }

 private:
  QTextBrowser* browser_ = nullptr;
};

}  // namespace kelvaro::shell
