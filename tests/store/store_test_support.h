#pragma once
// Helpers for the store tests: a fresh folder per test and the bytes of a file.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "store/chart_store.h"
#include "store/preferences.h"

namespace kelvaro::store::testing {

// A new empty folder under the system's temporary folder, removed with its
// contents at the end of the test.
class TempFolder {
 public:
  TempFolder() {
    std::random_device random;
    path_ = std::filesystem::temp_directory_path() /
            ("kelvaro-store-" + std::to_string(random()) + "-" + std::to_string(random()));
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

  // Names of the entries of the folder, sorted.
  std::vector<std::string> Entries() const {
    std::vector<std::string> names;
    for (const auto& e : std::filesystem::directory_iterator(path_)) names.push_back(e.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::filesystem::path path_;
};

// The sample chart as the birth form hands it to the store: Velnesh's birth,
// 14 Jul 1965 14:15 at Hyderabad, with the given country and zone numbers.
inline ChartFields SampleChartFields(const std::string& name, std::int64_t countryId, std::int64_t zoneSno) {
  ChartFields f;
  f.name = name;
  f.gender = "Male";
  f.countryId = countryId;
  f.city = "Hyderabad (A.P)";
  f.day = "14";
  f.month = "Jul";
  f.year = "1965";
  f.hour = 14;
  f.minute = 15;
  f.latDeg = 17;
  f.latNS = "N";
  f.latMin = 20;
  f.lonDeg = 78;
  f.lonEW = "E";
  f.lonMin = 30;
  f.zoneSno = zoneSno;
  return f;
}

// The preference row's fields, in their order, for one comparison.
inline auto PreferenceFields(const Preferences& p) {
  return std::tie(p.ayanamsa, p.bhava, p.dayInYear, p.chartStyle, p.language, p.customYear, p.customProgress);
}

inline std::string FileBytes(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
}

}  // namespace kelvaro::store::testing
