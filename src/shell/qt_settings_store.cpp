#include "shell/qt_settings_store.h"

namespace kelvaro::shell {

QString SettingsKey(std::string_view section, std::string_view key) {
  return QString::fromUtf8(section.data(), static_cast<qsizetype>(section.size())) + '/' +
         QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

std::optional<std::string> QtSettingsStore::Read(std::string_view section, std::string_view key) const {
  const QVariant value = settings_.value(SettingsKey(section, key));
  if (!value.isValid()) return std::nullopt;
  return value.toString().toStdString();
}

void QtSettingsStore::Write(std::string_view section, std::string_view key, std::string_view value) {
  settings_.setValue(SettingsKey(section, key), QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size())));
}

}  // namespace kelvaro::shell
