#pragma once
// The per-user settings, section "Horo": the last saved chart, written on
// every save and read at start. Each key is declared once in kHoroSettings
// with its type and default; callers use ReadLastChart / WriteLastChart or
// the HoroKey accessors, never a literal key or default.
//
// SettingsStore is the storage; the desktop program backs it with QSettings,
// the tests with InMemorySettings. Values are texts, as the form holds them.
#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace kelvaro::store {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::optional<std::string> Read(std::string_view section, std::string_view key) const = 0;
  virtual void Write(std::string_view section, std::string_view key, std::string_view value) = 0;
};

class InMemorySettings final : public SettingsStore {
 public:
  std::optional<std::string> Read(std::string_view section, std::string_view key) const override;
  void Write(std::string_view section, std::string_view key, std::string_view value) override;
  std::size_t Size() const { return values_.size(); }

 private:
  std::map<std::pair<std::string, std::string>, std::string> values_;
};

inline constexpr std::string_view kHoroSection = "Horo";

enum class HoroKey {
  Name, Day, Month, Year, Hour, Min, TimeZone, Sex, City,
  Country, LatNS, LatMin, LatDeg, LonEW, LonMin, LonDeg, TimeDiff, TimeDiffEW,
};

enum class SettingType {
  Text,          // free text
  WholeNumber,   // digits, as "14"
  DecimalNumber, // as "5.5"
  Letter,        // one of two letters, as "N" / "S"
};

struct HoroSetting {
  HoroKey id;
  std::string_view key;
  SettingType type;
  std::optional<std::string_view> defaultValue;  // nothing: the key is written but never read
};

// The eighteen keys in the order the form writes them; the defaults together
// are the sample chart (Velnesh, 14 Jul 1965, 14:15, Hyderabad).
inline constexpr std::array<HoroSetting, 18> kHoroSettings{{
    {HoroKey::Name, "Name", SettingType::Text, "Velnesh"},
    {HoroKey::Day, "Day", SettingType::WholeNumber, "14"},
    {HoroKey::Month, "Month", SettingType::Text, "Jul"},
    {HoroKey::Year, "Year", SettingType::WholeNumber, "1965"},
    {HoroKey::Hour, "Hour", SettingType::WholeNumber, "14"},  // on a 24-hour clock
    {HoroKey::Min, "Min", SettingType::WholeNumber, "15"},
    {HoroKey::TimeZone, "TimeZone", SettingType::Text, std::nullopt},
    {HoroKey::Sex, "Sex", SettingType::Text, "Male"},
    {HoroKey::City, "City", SettingType::Text, "Hyderabad (A.P)"},
    {HoroKey::Country, "Country", SettingType::Text, "India"},
    {HoroKey::LatNS, "LatNS", SettingType::Letter, "N"},
    {HoroKey::LatMin, "LatMin", SettingType::WholeNumber, "20"},
    {HoroKey::LatDeg, "LatDeg", SettingType::WholeNumber, "17"},
    {HoroKey::LonEW, "LonEW", SettingType::Letter, "E"},
    {HoroKey::LonMin, "LonMin", SettingType::WholeNumber, "30"},
    {HoroKey::LonDeg, "LonDeg", SettingType::WholeNumber, "78"},
    {HoroKey::TimeDiff, "TimeDiff", SettingType::DecimalNumber, "5.5"},
    {HoroKey::TimeDiffEW, "TimeDiffEW", SettingType::Letter, "E"},
}};

const HoroSetting& HoroSettingOf(HoroKey key);

// The stored text, or the key's default when it was never written. A key
// without a default (TimeZone) reads as empty: nothing reads it back.
std::string ReadHoro(const SettingsStore& store, HoroKey key);
void WriteHoro(SettingsStore& store, HoroKey key, std::string_view value);

// The last saved chart, as the birth form writes it.
struct LastChart {
  std::string name, day, month, year;
  std::string hour;  // 24-hour text
  std::string minute;
  std::string timeZone;  // written, never read back
  std::string sex, city, country;
  std::string latNS, latMin, latDeg;
  std::string lonEW, lonMin, lonDeg;
  std::string timeDiff, timeDiffEW;
  friend bool operator==(const LastChart&, const LastChart&) = default;
};

// Start-up: every key with its default; timeZone is left empty.
LastChart ReadLastChart(const SettingsStore& store);
// Save: all eighteen keys.
void WriteLastChart(SettingsStore& store, const LastChart& chart);

}  // namespace kelvaro::store
