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
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "horoscope/calculate_horoscope.h"
#include "horoscope/views.h"
#include "shell/birth_form_dialog.h"
#include "shell/chart_view.h"
#include "shell/daily_almanac_window.h"
#include "shell/dasa_view.h"
#include "shell/details_view.h"
#include "shell/messages.h"
#include "shell/print_view.h"
#include "shell/table_views.h"
#include "store/personal_details.h"
#include "store/preferences.h"
#include "store/settings.h"
#include "store/store_error.h"

// The help guide is compiled into the shell library; a static library's
// resources must be registered by name, outside any namespace.
static void RegisterShellResources() { Q_INIT_RESOURCE(kelvaro); }

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
  RegisterShellResources();
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
  birthDetails_ = menuBar()->addAction(tr("&Enter Birth Details"), this, [this] { OpenBirthForm(); });
  birthDetails_->setObjectName("mnuBirthDetails");
  // The tool windows behind these entries are not built yet: they stand in
  // their places, disabled, so the menus already read as they will.
  QMenu* tools = menuBar()->addMenu(tr("&Tools"));
  tools->setObjectName("mnuTools");
  for (const char* text : {"&Country Master", "Cit&y Master", "Time &Zone Master", "", "Edit Personal &Info",
                           "&Preferences"}) {
    if (*text == '\0') {
      tools->addSeparator();
      continue;
    }
    tools->addAction(tr(text))->setEnabled(false);
  }
  QMenu* converter = menuBar()->addMenu(tr("&Time Converter"));
  converter->setObjectName("mnuBirthTime");
  converter->addAction(tr("&BirthTime To  IshtaGhatika"))->setEnabled(false);
  converter->addSeparator();
  converter->addAction(tr("Ishta&Ghatika To BirthTime"))->setEnabled(false);
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
  services.calculate = [this](const BirthFormFields& form, std::int64_t userId) {
    return CalculateBirth(form, userId);
  };
  auto* form = new BirthFormDialog(std::move(services), this);
  form->open();
  return form;
}

DailyAlmanacWindow* MainWindow::OpenAlmanac() {
  if (!db_) {
    ShowError(this, tr("The database \"%1\" is not open, so no almanac can be made.").arg(options_.databasePath));
    return nullptr;
  }
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

void MainWindow::ShowHelp() {
  auto* help = findChild<QDialog*>("HelpWindow");
  if (!help) {
    help = new QDialog(this);
    help->setObjectName("HelpWindow");
    help->setWindowTitle(tr("Kelvaro Help"));
    auto* browser = new QTextBrowser(help);
    browser->setOpenExternalLinks(false);
    browser->setSource(QUrl("qrc:/help/guide.html"));
    auto* layout = new QVBoxLayout(help);
    layout->addWidget(browser);
    help->resize(640, 560);
  }
  help->show();
  help->raise();
}

void MainWindow::ShowAbout() {
  QMessageBox::about(
      this, tr("About Kelvaro"),
      tr("<h3>Kelvaro Basic</h3><p>Version 2.4: a Vedic astrology program with its own calculation of the "
         "planets.</p><p>Database: %1</p><p>Built with Qt %2 (LGPL 3), SQLite (public domain), SQLiteCpp (MIT), "
         "fmt (MIT), CLI11 (BSD 3-clause) and nlohmann-json (MIT). Fonts: DejaVu (free licence) and "
         "Liberation (SIL Open Font License).</p>")
          .arg(options_.databasePath.toHtmlEscaped(), QT_VERSION_STR));
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
