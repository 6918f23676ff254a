// The tool windows from their menu entries to shown: preferences, personal
// info, the two converters, help and about, on a started main window.
// Target: each under 100 ms.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "shell/about_dialog.h"
#include "shell/help_window.h"
#include "shell/main_window.h"
#include "shell/personal_info_dialog.h"
#include "shell/preferences_dialog.h"
#include "shell/time_converter_dialog.h"

namespace {

using kelvaro::shell::MainWindow;

enum Window { kPreferences, kPersonalInfo, kToGhati, kToTime, kHelp, kAbout };

QDialog* Open(MainWindow& window, int which) {
  switch (which) {
    case kPreferences: return window.OpenPreferences();
    case kPersonalInfo: return window.OpenPersonalInfo();
    case kToGhati: return window.OpenConverter(kelvaro::Conversion::ToIshtaGhati);
    case kToTime: return window.OpenConverter(kelvaro::Conversion::ToBirthTime);
    case kHelp: return window.ShowHelp();
    default: return new kelvaro::shell::AboutDialog(window.DatabasePath(), &window);
  }
}

void BM_OpenToolWindow(benchmark::State& state) {
  QTemporaryDir dir;
  QSettings settings(dir.filePath("settings.ini"), QSettings::IniFormat);
  MainWindow::Options options;
  options.databasePath = dir.filePath("DBMirvaneBasic.db");
  options.settings = &settings;
  options.guideFolders = {KELVARO_GUIDE_DIR};
  MainWindow window(options);
  window.show();
  if (!window.Start()) state.SkipWithError("the start failed");
  const char* names[] = {"Preferences", "Edit Personal Info", "Birth Time To Ishta Ghatika",
                         "Ishta Ghatika To Birth Time", "Help", "About us"};
  for (auto _ : state) {
    QDialog* dialog = Open(window, static_cast<int>(state.range(0)));
    if (!dialog) {
      state.SkipWithError("the window did not open (is the guide beside the program?)");
      break;
    }
    dialog->show();
    dialog->repaint();
    state.PauseTiming();
    delete dialog;
    state.ResumeTiming();
  }
  state.SetLabel(names[state.range(0)]);
}
BENCHMARK(BM_OpenToolWindow)->DenseRange(kPreferences, kAbout)->Unit(benchmark::kMillisecond);

}  // namespace
