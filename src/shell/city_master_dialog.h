#pragma once
// "City Details": adds, edits and finds the cities of a country. Each tab
// has its country list and a grid of that country's cities; the view tab
// finds a city in its grid by the start of its name.
#include "shell/master_dialog.h"
#include "store/city_master.h"

class QPushButton;
class QTabWidget;

namespace kelvaro::shell {

class GridView;

inline constexpr const char* kCityMasterCaption = "City Details";

class CityMasterDialog : public MasterDialog {
  Q_OBJECT

 public:
  CityMasterDialog(store::Database& db, QSettings* settings, QWidget* parent);

  // Opens on the add tab with this country chosen (the birth form's).
  void StartWithCountry(std::int64_t countryId);

  void Add();
  void Update();
  void Find();

 private:
  // The fields of one tab that states a place.
  struct PlaceFields {
    QComboBox* country = nullptr;
    QLineEdit* city = nullptr;
    QLineEdit* latDeg = nullptr;
    QLineEdit* latMin = nullptr;
    QComboBox* latNS = nullptr;
    QLineEdit* lonDeg = nullptr;
    QLineEdit* lonMin = nullptr;
    QComboBox* lonEW = nullptr;
    store::CityInput Input() const;
  };

  QWidget* BuildAddTab();
  QWidget* BuildEditTab();
  QWidget* BuildViewTab();
  void ShowCities(QComboBox* country, GridView* grid, std::vector<store::CityRow>* rows);
  void ChooseEditCountry();
  void ChooseEditCity();


  QTabWidget* tabs_;
  PlaceFields add_;
  QPushButton* save_ = nullptr;
  GridView* addGrid_ = nullptr;
  PlaceFields edit_;
  QComboBox* editCity_ = nullptr;  // cbEditCity: the city to edit
  QPushButton* update_ = nullptr;
  GridView* editGrid_ = nullptr;
  std::vector<store::CityRow> editCities_;
  QComboBox* viewCountry_ = nullptr;
  QLineEdit* findText_ = nullptr;
  GridView* viewGrid_ = nullptr;
  std::vector<store::CityRow> viewCities_;  // as the view grid shows them
};

}  // namespace kelvaro::shell
