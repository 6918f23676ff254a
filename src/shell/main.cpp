// kelvaro: the desktop program. Everything it does lives in the shell
// library; this only starts it.
#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>

#include "shell/main_window.h"
#include "store/database_location.h"
#include "store/store_error.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Kelvaro");
  QApplication::setApplicationVersion("2.4");

  QCommandLineParser parser;
  parser.setApplicationDescription("Kelvaro: Vedic astrology");
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption database("database", "The database file (default: the per-user data folder).", "PATH");
  parser.addOption(database);
  const QCommandLineOption exitAfterStart(
      "exit-after-start", "Start, show the first view, and exit (status 1 when the start failed); for timing.");
  parser.addOption(exitAfterStart);
  parser.process(app);

  QSettings settings("Kelvaro", "Kelvaro");
  kelvaro::shell::MainWindow::Options options;
  if (parser.isSet(database)) {
    options.databasePath = parser.value(database);
  } else {
    // The command-line tool's own rule, so that both always open one file.
    // Without a home folder the path stays empty and the start says so.
    try {
      options.databasePath = QString::fromStdString(kelvaro::store::DefaultDatabasePath().string());
    } catch (const kelvaro::store::StoreError&) {
    }
  }
  options.settings = &settings;
  kelvaro::shell::MainWindow window(options);
  window.show();
  const bool started = window.Start();
  if (parser.isSet(exitAfterStart)) {
    QApplication::processEvents();
    return started ? 0 : 1;
  }
  return QApplication::exec();
}
