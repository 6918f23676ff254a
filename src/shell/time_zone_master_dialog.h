#pragma once
// "Time Zone": adds and edits the time zones of a country. A new zone joins
// the country's list of zones, so the birth form offers it for that country.
// Each tab has its country list and a grid of that country's zones.
#include "shell/master_dialog.h"
#include "store/time_zone_master.h"

class QPushButton;
class QTabWidget;

namespace kelvaro::shell {

class GridView;

inline constexpr const char* kTimeZoneMasterCaption = "Time Zone";

class TimeZoneMasterDialog : public MasterDialog {
  Q_OBJECT

 public:
  TimeZoneMasterDialog(store::Database& db, QSettings* settings, QWidget* parent);

  // Opens on the add tab with this country chosen (the birth form's).
  void StartWithCountry(std::int64_t countryId);

  void Add();
  void Update();

 private:
  struct ZoneFields {
    QComboBox* country = nullptr;
    QLineEdit* name = nullptr;
    QLineEdit* hours = nullptr;
    QLineEdit* minutes = nullptr;
    QComboBox* direction = nullptr;
    store::ZoneInput Input() const;
  };

  QWidget* BuildZoneTab(ZoneFields& fields, bool editing, QPushButton*& button, GridView*& grid);
  QWidget* BuildViewTab();
  void ShowZones(QComboBox* country, GridView* grid, std::vector<store::ZoneRow>* rows);
  void ChooseEditCountry();
  void ChooseEditZone();
  // The notice of what is stored, then the message of the write.
  void Report(const store::WriteResult& result);


  QTabWidget* tabs_;
  ZoneFields add_;
  QPushButton* save_ = nullptr;
  GridView* addGrid_ = nullptr;
  ZoneFields edit_;
  QComboBox* editZone_ = nullptr;  // cbEditCity: the zone to edit
  QPushButton* update_ = nullptr;
  GridView* editGrid_ = nullptr;
  QComboBox* viewCountry_ = nullptr;
  GridView* viewGrid_ = nullptr;
};

}  // namespace kelvaro::shell
