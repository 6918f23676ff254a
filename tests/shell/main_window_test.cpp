// The main window as a user meets it: the caption, the menus, the tree and
// its views, the start on the sample chart or the chart saved last, and a
// database that cannot be opened.
#include <QDockWidget>
#include <QFile>
#include <QImage>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTest>
#include <QTreeWidget>

#include "horoscope/views.h"
#include "shell/chart_view.h"
#include "shell/table_views.h"
#include "shell_test_support.h"

namespace kelvaro::shell {
namespace {

using testing::AnswerBoxes;
using testing::DetailsValue;
using testing::ShellTest;

QStringList MenuTexts(const QList<QAction*>& actions) {
  QStringList texts;
  for (const QAction* a : actions) texts << (a->isSeparator() ? "-" : a->text());
  return texts;
}

TEST_F(ShellTest, CaptionMenusAndTree) {
  auto window = StartWindow();
  EXPECT_TRUE(startBoxes_.empty());
  EXPECT_EQ(window->windowTitle(), "Kelvaro - Kelvaro Basic (Version 2.4)");
  EXPECT_EQ(MenuTexts(window->menuBar()->actions()),
            QStringList({"&File", "&Enter Birth Details", "&Tools", "&Time Converter", "&Almanac", "Help"}));
  const QList<QAction*> top = window->menuBar()->actions();
  EXPECT_EQ(MenuTexts(top[0]->menu()->actions()), QStringList({"Save as &PDF...", "&Print..."}));
  EXPECT_EQ(MenuTexts(top[2]->menu()->actions()),
            QStringList({"&Country Master", "Cit&y Master", "Time &Zone Master", "-", "Edit Personal &Info",
                         "&Preferences"}));
  EXPECT_EQ(MenuTexts(top[3]->menu()->actions()),
            QStringList({"&BirthTime To  IshtaGhatika", "-", "Ishta&Ghatika To BirthTime"}));
  EXPECT_EQ(MenuTexts(top[4]->menu()->actions()), QStringList({"&Daily Almanac"}));
  EXPECT_EQ(MenuTexts(top[5]->menu()->actions()), QStringList({"&Help", "-", "&About Us", "E&xit"}));

  QTreeWidget* tree = window->Tree();
  ASSERT_EQ(tree->topLevelItemCount(), 10);
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(tree->topLevelItem(i)->text(0).toStdString(), kHoroscopeViews[static_cast<size_t>(i)].nodeText);
    EXPECT_EQ(tree->topLevelItem(i)->data(0, Qt::UserRole).toString().toStdString(),
              kHoroscopeViews[static_cast<size_t>(i)].key);
  }
  EXPECT_EQ(tree->palette().color(QPalette::Base), QColor(230, 217, 189));
  EXPECT_EQ(window->dockWidgetArea(window->TreeDock()), Qt::LeftDockWidgetArea);

  // The sample chart at a first start, on the Birth Details view.
  EXPECT_EQ(window->CurrentViewIndex(), 0u);
  EXPECT_EQ(DetailsValue(*window, "Name"), "Velnesh");
  EXPECT_EQ(DetailsValue(*window, "Lagna"), "Libra");
  EXPECT_EQ(DetailsValue(*window, "Star"), "Uttarashada, Pada: 3");
}

TEST_F(ShellTest, TreeChoosesViewsAndTheChoiceOutlivesACalculation) {
  auto window = StartWindow();
  QTreeWidget* tree = window->Tree();
  const QRect rasi = tree->visualItemRect(tree->topLevelItem(1));
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, rasi.center());
  EXPECT_EQ(window->CurrentViewIndex(), 1u);
  EXPECT_TRUE(tree->topLevelItem(1)->font(0).bold());
  EXPECT_FALSE(tree->topLevelItem(0)->font(0).bold());
  auto* chart = static_cast<ChartView*>(window->View(1));
  ASSERT_TRUE(chart->Chart().Picture().has_value());
  EXPECT_EQ(chart->Chart().Picture()->style, ChartFrame::South);
  EXPECT_EQ(chart->Chart().Picture()->lagnaSign, 7);  // Libra

  // The arrow keys walk the tree too.
  tree->setFocus();
  QTest::keyClick(tree, Qt::Key_Down);
  EXPECT_EQ(window->CurrentViewIndex(), 2u);
  EXPECT_EQ(window->Context()->CurrentView, "Navamsa");
  EXPECT_EQ(static_cast<ChartView*>(window->View(2))->Chart().Picture()->lagnaSign, 2);  // navamsa Taurus

  ASSERT_TRUE(window->Recalculate());
  EXPECT_EQ(window->CurrentViewIndex(), 2u);

  // Save as PNG and SVG; a folder that does not exist is named in a box.
  ChartWidget& drawn = chart->Chart();
  EXPECT_TRUE(drawn.SaveAs(folder_.filePath("rasi.png"), false));
  EXPECT_EQ(QImage(folder_.filePath("rasi.png")).width(), kChartExportPixels);
  EXPECT_TRUE(drawn.SaveAs(folder_.filePath("rasi.svg"), true));
  const QString missing = folder_.filePath("no/such/folder/rasi.svg");
  const auto boxes = AnswerBoxes([&] { EXPECT_FALSE(drawn.SaveAs(missing, true)); });
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
  EXPECT_TRUE(boxes[0].text.contains(missing)) << boxes[0].text.toStdString();

  // The grids are shown as the calculation left them, read-only.
  auto* planets = static_cast<TablesView*>(window->View(5));
  const GridModel& model = planets->Table(0).Model();
  EXPECT_EQ(model.rowCount(), 10);
  EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Planet");
  EXPECT_EQ(model.data(model.index(2, 0), Qt::DisplayRole).toString().toStdString(),
            window->Context()->planets.mshNirayana.Text(3, 0));
  EXPECT_FALSE(model.flags(model.index(0, 0)) & Qt::ItemIsEditable);
}

TEST_F(ShellTest, LastSavedChartOpensAtTheNextStart) {
  QSettings& s = *settings_;
  for (const auto& [key, value] : {std::pair{"Horo/Name", "Ananya"}, {"Horo/Day", "05"}, {"Horo/Month", "Jan"},
                                   {"Horo/Year", "1990"}, {"Horo/Hour", "0"}, {"Horo/Min", "05"},
                                   {"Horo/City", "Chennai"}, {"Horo/LatDeg", "13"}, {"Horo/LatMin", "5"}}) {
    s.setValue(key, value);
  }
  auto window = StartWindow();
  EXPECT_TRUE(startBoxes_.empty());
  EXPECT_EQ(DetailsValue(*window, "Name"), "Ananya");
  EXPECT_EQ(DetailsValue(*window, "City"), "Chennai");
  EXPECT_EQ(DetailsValue(*window, "Standard Time"), "05/Jan/1990 12:05 AM");
}

TEST_F(ShellTest, DatabaseThatCannotBeOpenedIsNamedAndTheWindowKeepsRunning) {
  // A file of another program where the database should be.
  const QString path = folder_.filePath("foreign.db");
  QFile foreign(path);
  ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
  foreign.write("this is not a database, just text of another program\n");
  foreign.close();
  auto window = StartWindow(path);
  ASSERT_EQ(startBoxes_.size(), 1u);
  EXPECT_EQ(startBoxes_[0].icon, QMessageBox::Critical);
  EXPECT_TRUE(startBoxes_[0].text.contains("foreign.db")) << startBoxes_[0].text.toStdString();
  EXPECT_EQ(window->Database(), nullptr);
  EXPECT_TRUE(window->isVisible());
  // The birth form cannot open without a database: said, not crashed.
  const auto boxes = AnswerBoxes([&] { window->BirthDetailsAction()->trigger(); });
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
  QFile check(path);
  ASSERT_TRUE(check.open(QIODevice::ReadOnly));
  EXPECT_TRUE(check.readAll().startsWith("this is not a database"));
}

TEST_F(ShellTest, WindowSizeIsRemembered) {
  {
    auto window = StartWindow();
    window->resize(900, 640);
    window->close();
  }
  auto again = StartWindow();
  EXPECT_EQ(again->size(), QSize(900, 640));
}

}  // namespace
}  // namespace kelvaro::shell
