#include "cli/gui_start.h"

#include <QGuiApplication>
#include <cstdio>

namespace kelvaro::cli {

namespace {

// Qt's notes on its own setup (a missing runtime folder on a headless
// machine) are not the user's business; what fails is reported by the
// command itself.
void CriticalOnly(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

void StartGui() {
  if (QCoreApplication::instance()) return;
  qInstallMessageHandler(CriticalOnly);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Qt keeps argc by reference for the application's whole life.
  static int argc = 1;
  static char name[] = "kelvaro-cli";
  static char* argv[] = {name, nullptr};
  // Lives until the process ends: a Qt application destroyed among the
  // static objects at exit can outlive the plugins it unloads.
  static const QGuiApplication* const app = new QGuiApplication(argc, argv);
  (void)app;
}

}  // namespace kelvaro::cli
