// The desktop program's two waits: from the start to the first view shown,
// and from "&OK" of the birth form to every view filled.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "shell/birth_form_dialog.h"
#include "shell/main_window.h"
#include "store/database.h"
#include "support/sample_birth_form.h"

namespace {

using kelvaro::shell::MainWindow;

struct Folder {
  QTemporaryDir dir;
  QSettings settings{dir.filePath("settings.ini"), QSettings::IniFormat};
  MainWindow::Options Options() {
    MainWindow::Options o;
    o.databasePath = dir.filePath("DBMirvaneBasic.db");
    o.settings = &settings;
    return o;
  }
};

// Window, database opened (made once before), preferences, last chart, the
// whole calculation, the views filled and the first one painted.
void BM_StartToFirstView(benchmark::State& state) {
  Folder folder;
  { kelvaro::store::Database made(folder.Options().databasePath.toStdString()); }
  for (auto _ : state) {
    MainWindow window(folder.Options());
    window.show();
    if (!window.Start()) state.SkipWithError("the start failed");
    window.repaint();
    QApplication::processEvents();
  }
}
BENCHMARK(BM_StartToFirstView)->Unit(benchmark::kMillisecond);

// "&OK": the hand-over, the calculation and every view refreshed, the chosen
// view (a chart) painted.
void BM_OkToViewsFilled(benchmark::State& state) {
  Folder folder;
  MainWindow window(folder.Options());
  window.show();
  if (!window.Start()) state.SkipWithError("the start failed");
  window.ShowView(1);
  const kelvaro::BirthFormFields form = kelvaro::testing::SampleBirthForm();
  for (auto _ : state) {
    if (!window.CalculateBirth(form, 0)) state.SkipWithError("the calculation failed");
    window.repaint();
  }
}
BENCHMARK(BM_OkToViewsFilled)->Unit(benchmark::kMillisecond);

// Opening "Enter Birth Details" on a database that holds the atlas: the
// form, its lists, shown and painted. The atlas itself is read only when the
// place finder takes the focus.
void BM_OpenBirthForm(benchmark::State& state) {
  Folder folder;
  MainWindow window(folder.Options());
  window.show();
  if (!window.Start()) state.SkipWithError("the start failed");
  for (auto _ : state) {
    auto* form = window.OpenBirthForm();
    if (form == nullptr) state.SkipWithError("no form");
    form->repaint();
    state.PauseTiming();
    form->close();
    QApplication::processEvents();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_OpenBirthForm)->Unit(benchmark::kMillisecond);

}  // namespace
