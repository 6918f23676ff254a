#pragma once
// "Enter Birth Details": the one place where a birth is stated, saved,
// opened and deleted. Modal and made anew at each opening, with the present
// date and time as defaults. "&OK" checks the fields, hands them over and
// runs the calculation through the main window; the form closes only when the
// calculation succeeded.
#include <QDateTime>
#include <QDialog>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "horoscope/birth_form.h"
#include "horoscope/birth_offset.h"
#include "store/database.h"
#include "store/place_search.h"
#include "store/settings.h"
#include "store/system_zone_rules.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QSettings;
class QCompleter;
class QStringListModel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QAction;
class QVBoxLayout;

namespace kelvaro::shell {

class MasterDialog;
class SavedChartsDialog;

class BirthFormDialog : public QDialog {
  Q_OBJECT

 public:
  struct Services {
    store::Database* db = nullptr;
    store::SettingsStore* settings = nullptr;
    // Hands the form over and calculates; false when it failed (the caller
    // has shown why). userId keys the chart's tempBhukthi rows.
    std::function<bool(const BirthFormFields& form, std::int64_t userId)> calculate;
    std::function<QDateTime()> now = [] { return QDateTime::currentDateTime(); };
    QSettings* windowSettings = nullptr;  // the masters' sizes; may be null
  };

  BirthFormDialog(Services services, QWidget* parent);

  BirthFormFields Fields() const;
  // Sno of the chart on the form; 0 for a chart not yet stored.
  std::int64_t UserId() const { return userId_; }

  // Loads a saved chart into the form; nothing is calculated.
  void OpenChart(std::int64_t sno);

  void Ok();
  void Save();
  void New();
  void Open();
  void Delete();
  // The buttons beside the city and the zone: the form hides while the
  // master is open and comes back, its lists read anew, however it closes.
  MasterDialog* OpenCityMaster();
  MasterDialog* OpenTimeZoneMaster();

  QAction* NewAction() const { return newAction_; }
  QAction* OpenAction() const { return openAction_; }
  QAction* SaveAction() const { return saveAction_; }
  QAction* DeleteAction() const { return deleteAction_; }
  QAction* CloseAction() const { return closeAction_; }

 private:
  void BuildControls();
  void BuildMenuAndToolbar(QVBoxLayout* layout);
  void SetDefaults();
  void FillCountries();
  void ChooseCountry(bool chooseSingleZone = true);
  void FillCitiesAndZones(std::int64_t countryId);
  void ShowWhileOpen(MasterDialog* master);
  // The lists read anew, keeping what the form had chosen.
  void RefillLists();
  void ChooseCity();
  void ChooseZone();
  // The place finder: the atlas and the city master searched as the user
  // types; choosing a place fills the country, city, place and zone.
  void SearchPlaces(const QString& text);
  // Reads the places when the finder first takes the focus; false after
  // showing why it could not.
  bool LoadPlaces();
  void ChoosePlace(int row);
  void SetPlace(double latDeg, const std::string& latNS, double latMin, double lonDeg, const std::string& lonEW,
                double lonMin);
  // The checks and the place, country and zone behind the texts; false after
  // showing the first failure.
  bool Check();
  void ShowFailure(const std::string& field, const std::string& message);
  std::int64_t CountryId() const;
  std::int64_t ZoneSno() const;
  // The clock offset of the place's IANA zone at the form's date and time,
  // unless the user overruled it; shown under the zone at every change.
  OffsetDecision DecideOffset(const BirthFormFields& typed) const;
  // The fields as typed and chosen, with the zone list's offset.
  BirthFormFields TypedFields() const;
  void ShowClockOffset();
  void FitOffsetLine();
  // The date, time or place changed: a chart's saved offset gives way to
  // the rules again.
  void OffsetInputChanged();
  void SetZoneId(const std::string& zoneId);

  Services services_;
  std::int64_t userId_ = 0;
  std::int64_t openedZoneSno_ = 0;  // txt_VC_TimeDiffId
  bool placeKnown_ = false;
  bool zoneKnown_ = false;
  double latDeg_ = 0, latMin_ = 0, lonDeg_ = 0, lonMin_ = 0, timeDiff_ = 0;
  std::string latNS_ = "N", lonEW_ = "E", timeDiffEW_ = "E";
  std::string zoneId_;  // the place's IANA zone; empty when it has none
  // The offset an opened chart was saved with, shown and used until the
  // date, time or place changes.
  struct SavedOffset {
    double timeDiff = 0;
    std::string timeDiffEW, note;
    bool byUser = false;
  };
  std::optional<SavedOffset> savedOffset_;
  store::SystemZoneRules rules_;

  QLineEdit* name_;
  QComboBox* gender_;
  QComboBox* day_;
  QComboBox* month_;
  QComboBox* year_;
  QComboBox* hour_;
  QComboBox* minute_;
  QRadioButton* am_;
  QRadioButton* pm_;
  QLineEdit* find_;
  QCompleter* completer_;
  QStringListModel* found_;
  // Read when the finder first takes the focus, so that neither opening the
  // form nor a keystroke waits for the whole atlas.
  std::unique_ptr<store::PlaceIndex> places_;
  std::vector<store::PlaceRecord> shown_;
  QComboBox* country_;
  QComboBox* city_;
  QComboBox* zone_;
  QLabel* offsetLine_;
  QCheckBox* autoOffset_;
  QComboBox* fold_;
  QPushButton* cityButton_;
  QPushButton* zoneButton_;
  QLineEdit* lat_;
  QLineEdit* lon_;
  QPushButton* ok_;
  QPushButton* cancel_;
  QAction* newAction_ = nullptr;
  QAction* openAction_ = nullptr;
  QAction* saveAction_ = nullptr;
  QAction* deleteAction_ = nullptr;
  QAction* closeAction_ = nullptr;
};

}  // namespace kelvaro::shell
