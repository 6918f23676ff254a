#include "cli/gui_start.h"

#include <QGuiApplication>

namespace kelvaro::cli {

void StartGui() {
  if (QCoreApplication::instance()) return;
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
