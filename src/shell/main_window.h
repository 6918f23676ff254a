#pragma once
// The main window "Kelvaro - Kelvaro Basic (Version 2.4)": the menus, the
// tree of the ten views docked at the left, the chosen view beside it, and
// the progress of a calculation in the status bar. It owns the one database
// connection and the one calculation context of the run.
#include <QMainWindow>
#include <QSettings>
#include <QStringList>
#include <array>
#include <memory>

#include "horoscope/birth_form.h"
#include "horoscope/calculation_context.h"
#include "panchanga/time_converters.h"
#include "report/report_pages.h"
#include "shell/qt_settings_store.h"
#include "store/bhukthi_sink.h"
#include "store/charts_master_table.h"
#include "store/database.h"
#include "store/kaliyuga_year_table.h"
#include "store/preferences.h"

class QLabel;
class QProgressBar;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;
class QAction;
class QDockWidget;

namespace kelvaro::shell {

class BirthFormDialog;
class CityMasterDialog;
class CountryMasterDialog;
class TimeZoneMasterDialog;
class HelpWindow;
class PersonalInfoDialog;
class PreferencesDialog;
class TimeConverterDialog;
class PrintView;
class DailyAlmanacWindow;
class ViewPage;

inline constexpr const char* kMainCaption = "Kelvaro - Kelvaro Basic (Version 2.4)";

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  struct Options {
    QString databasePath;               // the database file
    QSettings* settings = nullptr;      // "Horo" and the windows' sizes; must outlive the window
    std::function<OleDate()> today;     // the day of the Kali day count; the clock when empty
    QStringList guideFolders;           // where the user guide may stand; beside the program when empty
  };

  explicit MainWindow(Options options, QWidget* parent = nullptr);
  ~MainWindow() override;

  // Start-up, in order: the progress, the database, the preferences, the
  // letterhead, the last chart from "Horo" (the sample chart at a first
  // start), the calculation, the Birth Details view. A failure says why in a
  // critical box and skips the later steps; the window stays usable.
  // False when a step failed.
  bool Start();

  // Hands a birth form over and runs the whole calculation; false, after a
  // critical box, when it failed, with the views left as they were.
  bool CalculateBirth(const BirthFormFields& form, std::int64_t userId);
  // Runs the whole calculation on the state in force.
  bool Recalculate();

  // The views by their index in kHoroscopeViews.
  void ShowView(std::size_t index);
  std::size_t CurrentViewIndex() const;
  ViewPage* View(std::size_t index) const;

  BirthFormDialog* OpenBirthForm();
  CountryMasterDialog* OpenCountryMaster();
  CityMasterDialog* OpenCityMaster();
  TimeZoneMasterDialog* OpenTimeZoneMaster();
  PreferencesDialog* OpenPreferences();
  PersonalInfoDialog* OpenPersonalInfo();
  TimeConverterDialog* OpenConverter(Conversion conversion);
  HelpWindow* ShowHelp();

  // "&Save" and "&Apply" of the preferences: the values into the state in
  // force (the house system only with withBhava) and the whole calculation.
  // A failed calculation puts the state back as it was.
  bool ChangePreferences(const store::Preferences& values, bool withBhava);
  // The "Daily Almanac" window, opened on today at the chart's city (one
  // window: a second call brings it forward).
  DailyAlmanacWindow* OpenAlmanac();

  QTreeWidget* Tree() const { return tree_; }
  QDockWidget* TreeDock() const { return dock_; }
  const CalculationContext* Context() const { return ctx_.get(); }
  store::Database* Database() const { return db_.get(); }
  QString DatabasePath() const { return options_.databasePath; }
  QAction* BirthDetailsAction() const { return birthDetails_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BuildFileMenu();
  PrintView& PrintPage() const;
  void BuildTree();
  void BuildViews();
  void ShowProgress(int done, int total);
  void HideProgress();
  bool OpenDatabase();
  bool Run();
  void RefreshViews();
  void ShowAbout();
  template <class Master>
  Master* OpenMaster();
  // False, after saying what cannot be done, when no database is open.
  bool DatabaseOpen(const QString& consequence);

  Options options_;
  QtSettingsStore settingsStore_;
  std::unique_ptr<store::Database> db_;
  std::unique_ptr<store::DatabaseKaliyugaYearTable> years_;
  std::unique_ptr<store::DatabaseChartsMasterTable> charts_;
  std::unique_ptr<store::DatabaseBhukthiSink> bhukthi_;
  std::unique_ptr<CalculationContext> ctx_;
  OwnerDetails owner_;

  QTreeWidget* tree_ = nullptr;
  QDockWidget* dock_ = nullptr;
  QStackedWidget* stack_ = nullptr;
  std::array<ViewPage*, 10> views_{};
  QLabel* progressLabel_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QAction* birthDetails_ = nullptr;
};

}  // namespace kelvaro::shell
