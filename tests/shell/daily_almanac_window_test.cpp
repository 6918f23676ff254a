#include "shell/daily_almanac_window.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include "shell_test_support.h"
#include "store/kaliyuga_year_table.h"

namespace kelvaro::shell {
namespace {

using testing::Click;
using testing::ShellTest;

QString Value(QTableWidget* table, const QString& item) {
  for (int r = 0; r < table->rowCount(); ++r) {
    if (table->item(r, 0)->text() == item) return table->item(r, 1)->text();
  }
  return "(no such item)";
}

// The sample chart's city is Hyderabad; the user types a date and steps on.
TEST_F(ShellTest, DailyAlmanacByDateAndTheDayAfter) {
  auto window = StartWindow();
  DailyAlmanacWindow* almanac = window->OpenAlmanac();
  ASSERT_NE(almanac, nullptr);
  EXPECT_EQ(almanac->CityBox()->currentText(), "Hyderabad (A.P)");
  QDateEdit* date = almanac->DateEdit();
  QApplication::setActiveWindow(almanac);
  date->setFocus();
  // Each section chosen, as a click on it chooses it, and typed over.
  for (const auto& [section, text] : {std::pair{QDateTimeEdit::DaySection, "14"},
                                      std::pair{QDateTimeEdit::MonthSection, "01"},
                                      std::pair{QDateTimeEdit::YearSection, "2024"}}) {
    date->setSelectedSection(section);
    QTest::keyClicks(date, text);
  }
  ASSERT_EQ(date->date(), QDate(2024, 1, 14)) << date->text().toStdString();
  const auto boxes = Click(almanac, "cmdShow");
  EXPECT_TRUE(boxes.empty());
  EXPECT_EQ(Value(almanac->DayTable(), "Tithi"), "Tritiya, Sukla Paksha (Bright) until 14/01/2024 08:00:59");
  EXPECT_EQ(Value(almanac->DayTable(), "Next tithi"), "Chaturthi until 15/01/2024 05:00:16  (kshaya)");
  EXPECT_EQ(almanac->PlanetTable()->rowCount(), 9);
  // The bar holds the day, the night and the periods of the day.
  EXPECT_GE(almanac->DayBar()->Periods().size(), 5u);

  Click(almanac, "cmdNext");
  EXPECT_EQ(date->date(), QDate(2024, 1, 15));
  EXPECT_TRUE(Value(almanac->DayTable(), "Tithi").startsWith("Panchami, "));
  Click(almanac, "cmdPrevious");
  Click(almanac, "cmdPrevious");
  EXPECT_TRUE(Value(almanac->DayTable(), "Tithi").startsWith("Dwitiya, "));

  // The month at a glance: a line a day; the kshaya tithi beside the one at sunrise.
  almanac->Tabs()->setCurrentIndex(1);
  QTableWidget* month = almanac->MonthTable();
  ASSERT_EQ(month->rowCount(), 31);
  EXPECT_EQ(month->item(13, 0)->text(), "14/01/2024 Sun");
  EXPECT_EQ(month->item(13, 2)->text(),
            "Tritiya until 14/01/2024 08:00:59, Chaturthi until 15/01/2024 05:00:16");

  // A second opening brings the same window forward.
  EXPECT_EQ(window->OpenAlmanac(), almanac);
}

TEST_F(ShellTest, DailyAlmanacNamesAMissingCityAndKeepsItsSize) {
  auto window = StartWindow();
  DailyAlmanacWindow* almanac = window->OpenAlmanac();
  ASSERT_NE(almanac, nullptr);
  const QString before = Value(almanac->DayTable(), "Tithi");
  almanac->CityBox()->lineEdit()->clear();
  QTest::keyClicks(almanac->CityBox()->lineEdit(), "Atlantis");
  const auto boxes = Click(almanac, "cmdShow");
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].title, "Daily Almanac");
  EXPECT_EQ(boxes[0].text, "Select City");
  EXPECT_EQ(Value(almanac->DayTable(), "Tithi"), before);  // the day shown stays

  almanac->resize(900, 720);
  almanac->close();
  store::DatabaseKaliyugaYearTable years(*window->Database());
  DailyAlmanacWindow again(*window->Database(), years, settings_.get(), QDate(2024, 1, 1), "India",
                           "Hyderabad (A.P)");
  EXPECT_EQ(again.size(), QSize(900, 720));
}

}  // namespace
}  // namespace kelvaro::shell
