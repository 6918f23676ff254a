#pragma once
// The per-user settings through QSettings: the section "Horo" of the last
// saved chart, and the windows' sizes.
#include <QSettings>

#include "store/settings.h"

namespace kelvaro::shell {

class QtSettingsStore final : public store::SettingsStore {
 public:
  // The settings must outlive the store.
  explicit QtSettingsStore(QSettings& settings) : settings_(settings) {}
  std::optional<std::string> Read(std::string_view section, std::string_view key) const override;
  void Write(std::string_view section, std::string_view key, std::string_view value) override;

 private:
  QSettings& settings_;
};

// "Horo/Name": a section and a key as QSettings names them.
QString SettingsKey(std::string_view section, std::string_view key);

}  // namespace kelvaro::shell
