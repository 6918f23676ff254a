#include "shell/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "horoscope/calculate_horoscope.h"
#include "horoscope/views.h"
#include "shell/about_dialog.h"
#include "shell/birth_form_dialog.h"
#include "shell/chart_view.h"
#include "shell/city_master_dialog.h"
#include "shell/country_master_dialog.h"
#include "shell/daily_almanac_window.h"
#include "shell/dasa_view.h"
#include "shell/details_view.h"
#include "shell/help_window.h"
#include "shell/messages.h"
#include "shell/personal_info_dialog.h"
#include "shell/preferences_dialog.h"
#include "shell/print_view.h"
#include "shell/table_views.h"
#include "shell/time_zone_master_dialog.h"
#include "shell/time_converter_dialog.h"
#include "store/personal_details.h"
#include "store/preferences.h"
#include "store/settings.h"
#include "store/store_error.h"

namespace kelvaro::shell {

namespace {

const QColor kTreeBackground(230, 217, 189);
constexpr const char* kGeometryKey = "MainWindow/geometry";
constexpr const char* kStateKey = "MainWindow/state";

OwnerDetails OwnerOf(const store::PersonalDetails& p) {
  return {p.name, p.address, p.address2, p.city, p.country, p.zipcode, p.phone, p.email};
}

}  // namespace

MainWindow::MainWindow(Options options, QWidget* parent)
    : QMainWindow(parent), options_(std::move(options)), settingsStore_(*options_.settings) {
  setWindowTitle(kMainCaption);
  setObjectName("MDILight");
  BuildMenus();
  BuildViews();
  BuildTree();
  progressLabel_ = new QLabel("Please Wait ....", this);
  progress_ = new QProgressBar(this);
  progress_->setObjectName("PicOut");
  progress_->setTextVisible(false);
  progress_->setMaximumWidth(320);
  statusBar()->addWidget(progressLabel_);
  statusBar()->addWidget(progress_, 1);
  HideProgress();
  resize(1240, 780);
  restoreGeometry(options_.settings->value(kGeometryKey).toByteArray());
  restoreState(options_.settings->value(kStateKey).toByteArray());
}

MainWindow::~MainWindow() = default;

void MainWindow::BuildMenus() {
  BuildFileMenu();
  birthDetails_ = menuBar()->addAction(tr("&Enter Birth Details"), this, [this] { OpenBirthForm(); });
  birthDetails_->setObjectName("mnuBirthDetails");
  QMenu* tools = menuBar()->addMenu(tr("&Tools"));
  tools->setObjectName("mnuTools");
  tools->addAction(tr("&Country Master"), this, [this] { OpenCountryMaster(); })->setObjectName("mDI_Country");
  tools->addAction(tr("Cit&y Master"), this, [this] { OpenCityMaster(); })->setObjectName("MDI_LAt_Lon");
  tools->addAction(tr("Time &Zone Master"), this, [this] { OpenTimeZoneMaster(); })
      ->setObjectName("MDI_ADD_TimeZone");
  tools->addSeparator();
  tools->addAction(tr("Edit Personal &Info"), this, [this] { OpenPersonalInfo(); })->setObjectName("mnudetails");
  tools->addAction(tr("&Preferences"), this, [this] { OpenPreferences(); })->setObjectName("mnuPreferences");
  QMenu* converter = menuBar()->addMenu(tr("&Time Converter"));
  converter->setObjectName("mnuBirthTime");
  converter->addAction(tr("&BirthTime To  IshtaGhatika"), this, [this] {
    OpenConverter(Conversion::ToIshtaGhati);
  })->setObjectName("Mnu_IshtaGhatika");
  converter->addSeparator();
  converter->addAction(tr("Ishta&Ghatika To BirthTime"), this, [this] {
    OpenConverter(Conversion::ToBirthTime);
  })->setObjectName("mnu_BirthTime");
  QMenu* almanac = menuBar()->addMenu(tr("&Almanac"));
  almanac->setObjectName("mnuAlmanac");
  almanac->addAction(tr("&Daily Almanac"), this, [this] { OpenAlmanac(); });
  QMenu* help = menuBar()->addMenu(tr("Help"));
  help->setObjectName("mdiHelpmnu");
  help->addAction(tr("&Help"), QKeySequence(QKeySequence::HelpContents), this, &MainWindow::ShowHelp);
  help->addSeparator();
  help->addAction(tr("&About Us"), this, &MainWindow::ShowAbout);
  help->addAction(tr("E&xit"), QKeySequence(QKeySequence::Quit), this, &QWidget::close);
}

// The horoscope on paper: the Print view does the work, from here as from
// its own buttons, with the choices that stand there.
void MainWindow::BuildFileMenu() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  file->setObjectName("mnuFile");
  file->addAction(tr("Save as &PDF..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), this,
                  [this] { PrintPage().SaveAsPdf(); });
  file->addAction(tr("&Print..."), QKeySequence(QKeySequence::Print), this, [this] { PrintPage().PrintWithPreview(); });
}

PrintView& MainWindow::PrintPage() const { return *static_cast<PrintView*>(views_.back()); }

void MainWindow::BuildViews() {
  stack_ = new QStackedWidget(this);
  views_ = {new DetailsView(stack_),
            new ChartView(ChartKind::Rasi, stack_),
            new ChartView(ChartKind::Navamsa, stack_),
            new ChartView(ChartKind::Bhava, stack_),
            MakeBhavaFeaturesView(stack_),
            MakePlanetPositionsView(stack_),
            MakeVargasView(stack_),
            MakeAshtaVargasView(stack_),
            new DasaView(stack_),
            new PrintView(stack_)};
  for (std::size_t i = 0; i < views_.size(); ++i) {
    views_[i]->setObjectName(Qs(std::string(kHoroscopeViews[i].key)));
    stack_->addWidget(views_[i]);
  }
  PrintPage().UseSettings(options_.settings);
  setCentralWidget(stack_);
}

void MainWindow::BuildTree() {
  dock_ = new QDockWidget(tr("Horoscope"), this);
  dock_->setObjectName("frm_MainHoroscope");
  dock_->setFeatures(QDockWidget::DockWidgetMovable);
  tree_ = new QTreeWidget(dock_);
  tree_->setObjectName("tV");
  tree_->setHeaderHidden(true);
  tree_->setRootIsDecorated(false);
  QPalette palette = tree_->palette();
  palette.setColor(QPalette::Base, kTreeBackground);
  tree_->setPalette(palette);
  tree_->setAutoFillBackground(true);
  for (const HoroscopeView& v : kHoroscopeViews) {
    auto* item = new QTreeWidgetItem(tree_, {Qs(std::string(v.nodeText))});
    item->setData(0, Qt::UserRole, Qs(std::string(v.key)));
  }
  tree_->setMinimumWidth(150);
  dock_->setWidget(tree_);
  addDockWidget(Qt::LeftDockWidgetArea, dock_);
  // A click or the arrow keys choose a node; the view is remembered and
  // shown again after every calculation.
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (!item) return;
    const auto index = ViewIndexOfKey(Std(item->data(0, Qt::UserRole).toString()));
    if (!index) return;
    if (ctx_) ctx_->CurrentView = std::string(kHoroscopeViews[*index].name);
    ShowView(*index);
  });
}

void MainWindow::ShowView(std::size_t index) {
  if (index >= views_.size()) return;
  stack_->setCurrentIndex(static_cast<int>(index));
  for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = tree_->topLevelItem(i);
    QFont font = item->font(0);
    font.setBold(static_cast<std::size_t>(i) == index);
    item->setFont(0, font);
  }
  QTreeWidgetItem* chosen = tree_->topLevelItem(static_cast<int>(index));
  if (tree_->currentItem() != chosen) {
    const QSignalBlocker block(tree_);
    tree_->setCurrentItem(chosen);
  }
}

ViewPage* MainWindow::View(std::size_t index) const { return views_.at(index); }

std::size_t MainWindow::CurrentViewIndex() const { return static_cast<std::size_t>(stack_->currentIndex()); }

void MainWindow::ShowProgress(int done, int total) {
  progressLabel_->show();
  progress_->show();
  progress_->setMaximum(total);
  progress_->setValue(done);
  // Painted at once: the event loop does not run in the middle of a calculation.
  statusBar()->repaint();
}

void MainWindow::HideProgress() {
  progressLabel_->hide();
  progress_->hide();
}

bool MainWindow::OpenDatabase() {
  try {
    if (options_.databasePath.isEmpty()) {
      throw store::StoreError("No place for the database: neither XDG_DATA_HOME nor HOME names a folder");
    }
    const QFileInfo file(options_.databasePath);
    if (!QDir().mkpath(file.absolutePath())) {
      throw store::StoreError("Cannot create the data folder \"" + Std(file.absolutePath()) + "\"");
    }
    auto db = std::make_unique<store::Database>(Std(options_.databasePath));
    auto years = std::make_unique<store::DatabaseKaliyugaYearTable>(*db);
    auto charts = std::make_unique<store::DatabaseChartsMasterTable>(*db);
    auto bhukthi = std::make_unique<store::DatabaseBhukthiSink>(*db);
    auto ctx = std::make_unique<CalculationContext>(years.get(), charts.get(), bhukthi.get());
    if (options_.today) ctx->today = options_.today;
    ctx->OnProgress = [this](int done, int total) { ShowProgress(done, total); };
    db_ = std::move(db);
    years_ = std::move(years);
    charts_ = std::move(charts);
    bhukthi_ = std::move(bhukthi);
    ctx_ = std::move(ctx);
    return true;
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
    return false;
  }
}

bool MainWindow::Start() {
  ShowProgress(0, kProgressSteps);
  if (!OpenDatabase()) {
    HideProgress();
    return false;
  }
  try {
    ApplyPreferences(store::ReadPreferences(*db_), ctx_->state);
    owner_ = OwnerOf(store::LetterheadOf(*db_));
    const store::LastChart last = store::ReadLastChart(settingsStore_);
    if (const auto problem = ApplyLastChart(last, ctx_->state)) {
      // ApplyLastChart left the state as the context made it: the sample chart.
      ShowError(this, tr("The last chart could not be restored: %1. The sample chart is shown instead.")
                          .arg(Qs(*problem)));
    }
  } catch (const std::exception& e) {
    HideProgress();
    ShowError(this, Qs(e.what()));
    return false;
  }
  return Run();
}

bool MainWindow::Run() {
  if (!ctx_) return false;
  try {
    CalculateHoroscope(*ctx_);
  } catch (const std::exception& e) {
    HideProgress();
    ShowError(this, Qs(e.what()));
    return false;
  }
  RefreshViews();
  HideProgress();
  ShowView(ViewIndexOfName(ctx_->CurrentView));
  return true;
}

bool MainWindow::Recalculate() {
  ShowProgress(0, kProgressSteps);
  return Run();
}

bool MainWindow::CalculateBirth(const BirthFormFields& form, std::int64_t userId) {
  if (!ctx_) {
    ShowError(this, tr("The database \"%1\" is not open, so nothing can be calculated.").arg(options_.databasePath));
    return false;
  }
  const HoroscopeState before = ctx_->state;
  const std::string userBefore = ctx_->UserId;
  try {
    HandOverBirthForm(form, ctx_->state);
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
    return false;
  }
  ctx_->UserId = std::to_string(userId);
  ShowProgress(0, kProgressSteps);
  if (Run()) return true;
  ctx_->state = before;
  ctx_->UserId = userBefore;
  return false;
}

void MainWindow::RefreshViews() {
  const ViewSource source{*ctx_, owner_};
  for (ViewPage* view : views_) view->Refresh(source);
}

BirthFormDialog* MainWindow::OpenBirthForm() {
  if (!db_) {
    ShowError(this, tr("The database \"%1\" is not open, so no birth can be entered.").arg(options_.databasePath));
    return nullptr;
  }
  BirthFormDialog::Services services;
  services.db = db_.get();
  services.settings = &settingsStore_;
  services.windowSettings = options_.settings;
  services.calculate = [this](const BirthFormFields& form, std::int64_t userId) {
    return CalculateBirth(form, userId);
  };
  auto* form = new BirthFormDialog(std::move(services), this);
  form->open();
  return form;
}

template <class Master>
Master* MainWindow::OpenMaster() {
  if (!DatabaseOpen(tr("the masters cannot be shown"))) return nullptr;
  auto* master = new Master(*db_, options_.settings, this);
  master->open();
  return master;
}

DailyAlmanacWindow* MainWindow::OpenAlmanac() {
  if (!DatabaseOpen(tr("no almanac can be made"))) return nullptr;
  auto* window = findChild<DailyAlmanacWindow*>();
  if (!window) {
    window = new DailyAlmanacWindow(*db_, *years_, options_.settings, QDate::currentDate(),
                                    QString::fromStdString(ctx_->state.BirthCountry),
                                    QString::fromStdString(ctx_->state.BirthCity), this);
    window->show();
    window->ShowDay();
  }
  window->show();
  window->raise();
  window->activateWindow();
  return window;
}

CountryMasterDialog* MainWindow::OpenCountryMaster() { return OpenMaster<CountryMasterDialog>(); }
CityMasterDialog* MainWindow::OpenCityMaster() { return OpenMaster<CityMasterDialog>(); }
TimeZoneMasterDialog* MainWindow::OpenTimeZoneMaster() { return OpenMaster<TimeZoneMasterDialog>(); }

bool MainWindow::ChangePreferences(const store::Preferences& values, bool withBhava) {
  const HoroscopeState before = ctx_->state;
  store::Preferences next = values;
  // "&Apply" leaves the house system as it is in force.
  if (!withBhava) next.bhava = ctx_->state.BhavaSystem;
  ApplyPreferences(next, ctx_->state);
  if (Recalculate()) return true;
  ctx_->state = before;
  return false;
}

PreferencesDialog* MainWindow::OpenPreferences() {
  if (!DatabaseOpen(tr("the preferences cannot be changed"))) return nullptr;
  PreferencesDialog::Services services;
  services.db = db_.get();
  services.settings = options_.settings;
  services.apply = [this](const store::Preferences& values, bool withBhava) { ChangePreferences(values, withBhava); };
  try {
    auto* dialog = new PreferencesDialog(std::move(services), this);
    dialog->open();
    return dialog;
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
    return nullptr;
  }
}

PersonalInfoDialog* MainWindow::OpenPersonalInfo() {
  if (!DatabaseOpen(tr("the personal details cannot be edited"))) return nullptr;
  PersonalInfoDialog::Services services;
  services.db = db_.get();
  services.settings = options_.settings;
  services.changed = [this](const store::PersonalDetails& letterhead) {
    owner_ = OwnerOf(letterhead);
    RefreshViews();
  };
  try {
    auto* dialog = new PersonalInfoDialog(std::move(services), this);
    dialog->open();
    return dialog;
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
    return nullptr;
  }
}

TimeConverterDialog* MainWindow::OpenConverter(Conversion conversion) {
  if (!DatabaseOpen(tr("the converters have no places"))) return nullptr;
  TimeConverterDialog::Services services;
  services.db = db_.get();
  services.settings = options_.settings;
  services.country = ctx_->state.BirthCountry;
  services.city = ctx_->state.BirthCity;
  try {
    auto* dialog = new TimeConverterDialog(conversion, std::move(services), this);
    dialog->open();
    return dialog;
  } catch (const std::exception& e) {
    ShowError(this, Qs(e.what()));
    return nullptr;
  }
}

HelpWindow* MainWindow::ShowHelp() {
  if (auto* help = findChild<HelpWindow*>()) {
    help->show();
    help->raise();
    help->activateWindow();
    return help;
  }
  const QStringList folders = options_.guideFolders.isEmpty() ? GuideFolders() : options_.guideFolders;
  const QString folder = FindGuide(folders);
  if (folder.isEmpty()) {
    ShowError(this, tr("The user guide is missing: no %1 was found in %2.").arg(kGuideIndex, folders.join(tr(" or "))));
    return nullptr;
  }
  auto* help = new HelpWindow(folder, options_.settings, this);
  help->show();
  return help;
}

void MainWindow::ShowAbout() { (new AboutDialog(options_.databasePath, this))->open(); }

bool MainWindow::DatabaseOpen(const QString& consequence) {
  if (db_) return true;
  ShowError(this, tr("The database \"%1\" is not open, so %2.").arg(options_.databasePath, consequence));
  return false;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  options_.settings->setValue(kGeometryKey, saveGeometry());
  options_.settings->setValue(kStateKey, saveState());
  // Every window of the program closes with this one.
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (w != this && w->isVisible()) w->close();
  }
  event->accept();
}

}  // namespace kelvaro::shell
