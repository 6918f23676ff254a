#include "store/settings.h"

#include <stdexcept>

namespace kelvaro::store {

std::optional<std::string> InMemorySettings::Read(std::string_view section, std::string_view key) const {
  const auto it = values_.find({std::string(section), std::string(key)});
  if (it == values_.end()) return std::nullopt;
  return it->second;
}

void InMemorySettings::Write(std::string_view section, std::string_view key, std::string_view value) {
  values_[{std::string(section), std::string(key)}] = std::string(value);
}

const HoroSetting& HoroSettingOf(HoroKey key) {
  for (const HoroSetting& s : kHoroSettings) {
    if (s.id == key) return s;
  }
  throw std::logic_error("HoroKey without a setting");
}

std::string ReadHoro(const SettingsStore& store, HoroKey key) {
  const HoroSetting& s = HoroSettingOf(key);
  if (!s.defaultValue) return {};
  if (auto value = store.Read(kHoroSection, s.key)) return *value;
  return std::string(*s.defaultValue);
}

void WriteHoro(SettingsStore& store, HoroKey key, std::string_view value) {
  store.Write(kHoroSection, HoroSettingOf(key).key, value);
}

namespace {

// Each field of LastChart with its key, so that read and write stay in step.
template <class Chart, class Visit>
void ForEachField(Chart& c, Visit&& visit) {
  visit(HoroKey::Name, c.name);
  visit(HoroKey::Day, c.day);
  visit(HoroKey::Month, c.month);
  visit(HoroKey::Year, c.year);
  visit(HoroKey::Hour, c.hour);
  visit(HoroKey::Min, c.minute);
  visit(HoroKey::TimeZone, c.timeZone);
  visit(HoroKey::Sex, c.sex);
  visit(HoroKey::City, c.city);
  visit(HoroKey::Country, c.country);
  visit(HoroKey::LatNS, c.latNS);
  visit(HoroKey::LatMin, c.latMin);
  visit(HoroKey::LatDeg, c.latDeg);
  visit(HoroKey::LonEW, c.lonEW);
  visit(HoroKey::LonMin, c.lonMin);
  visit(HoroKey::LonDeg, c.lonDeg);
  visit(HoroKey::TimeDiff, c.timeDiff);
  visit(HoroKey::TimeDiffEW, c.timeDiffEW);
}

}  // namespace

LastChart ReadLastChart(const SettingsStore& store) {
  LastChart chart;
  ForEachField(chart, [&](HoroKey key, std::string& field) { field = ReadHoro(store, key); });
  return chart;
}

void WriteLastChart(SettingsStore& store, const LastChart& chart) {
  ForEachField(chart, [&](HoroKey key, const std::string& field) { WriteHoro(store, key, field); });
}

}  // namespace kelvaro::store
