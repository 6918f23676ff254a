#pragma once
// "Daily Almanac": the almanac of a date at a city of the atlas, with the
// day before and after and today a key away, the day drawn as one bar from
// sunrise to sunrise, and the month at a glance (one line per day).
#include <QDate>
#include <QDialog>
#include <QWidget>
#include <memory>
#include <vector>

#include "horoscope/daily_almanac.h"
#include "render/almanac_month_pdf.h"
#include "store/city_master.h"
#include "store/country_master.h"

class QComboBox;
class QDateEdit;
class QLabel;
class QPushButton;
class QSettings;
class QTabWidget;
class QTableWidget;

namespace kelvaro::store {
class Database;
}

namespace kelvaro::shell {

// The bar of one day; paints with the renderer's painter.
class DayBarWidget : public QWidget {
  Q_OBJECT

 public:
  explicit DayBarWidget(QWidget* parent = nullptr);
  void SetDay(std::vector<DayBarPeriod> periods, int totalMinutes);
  const std::vector<DayBarPeriod>& Periods() const { return periods_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;  // the caption of the period under the mouse as its tooltip

 private:
  std::vector<DayBarPeriod> periods_;
  int totalMinutes_ = 0;
};

class DailyAlmanacWindow : public QDialog {
  Q_OBJECT

 public:
  // The database and the year table must outlive the window; `settings`
  // (may be null) keeps its size. It opens on `date` at the named country
  // and city, or the first ones the atlas has.
  DailyAlmanacWindow(store::Database& db, const KaliyugaYearTable& years, QSettings* settings, QDate date,
                     const QString& country, const QString& city, QWidget* parent = nullptr);
  ~DailyAlmanacWindow() override;

  // Works out and shows the day (and, on its tab, the month) chosen; false
  // after a message when it cannot.
  bool ShowDay();
  bool ShowMonth();
  // The month of the date on the form to a PDF file (through a save dialog)
  // or, after a print preview, to the printer.
  void SaveMonthAsPdf();
  void PrintMonth();
  // The month last shown, as it goes on paper.
  const AlmanacMonthSheet& MonthSheet() const { return monthSheet_; }

  QDateEdit* DateEdit() const { return date_; }
  QComboBox* CountryBox() const { return country_; }
  QComboBox* CityBox() const { return city_; }
  QTableWidget* DayTable() const { return dayTable_; }
  QTableWidget* PlanetTable() const { return planets_; }
  QTableWidget* MonthTable() const { return month_; }
  DayBarWidget* DayBar() const { return bar_; }
  QTabWidget* Tabs() const { return tabs_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void FillCountries(const QString& chosen);
  void FillCities(const QString& chosen);
  bool PlaceOf(AlmanacPlace& place);
  void Step(int days);
  render::PaperSize Paper() const;

  store::Database& db_;
  QSettings* settings_;
  std::unique_ptr<DailyAlmanacMaker> maker_;
  std::vector<store::CountryRow> countries_;
  std::vector<store::CityRow> cities_;
  QDateEdit* date_;
  QComboBox* country_;
  QComboBox* city_;
  QTabWidget* tabs_;
  QTableWidget* dayTable_;
  QTableWidget* planets_;
  QTableWidget* month_;
  DayBarWidget* bar_;
  QLabel* status_;
  AlmanacMonthSheet monthSheet_;
};

}  // namespace kelvaro::shell
