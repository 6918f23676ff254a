#pragma once
// Test helper: files under tests/data, found through KELVARO_TEST_DATA (set by
// CTest), or beside the seed data folder when a test binary is run by hand.
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace kelvaro::testing {

// The bytes of a data file; a missing file fails the test that asked for it.
inline std::string ReadTestData(const std::string& name) {
  const char* root = std::getenv("KELVARO_TEST_DATA");
#ifdef KELVARO_DATA_DIR
  const std::string folder = root ? root : KELVARO_DATA_DIR "/../tests/data";
#else
  const std::string folder = root ? root : "tests/data";
#endif
  std::ifstream in(folder + "/" + name, std::ios::binary);
  if (!in) throw std::runtime_error("no test data file " + folder + "/" + name);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Its lines as they are, trailing blanks kept, without the LF that ends each.
inline std::vector<std::string> TestDataLines(const std::string& name) {
  const std::string bytes = ReadTestData(name);
  std::vector<std::string> lines;
  for (size_t from = 0; from < bytes.size();) {
    const size_t end = bytes.find('\n', from);
    lines.push_back(bytes.substr(from, end == std::string::npos ? std::string::npos : end - from));
    if (end == std::string::npos) break;
    from = end + 1;
  }
  return lines;
}

// A field with CR and LF written as the escapes \r and \n.
inline std::string Unescaped(const std::string& text) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\' && i + 1 < text.size() && (text[i + 1] == 'r' || text[i + 1] == 'n')) {
      out += text[++i] == 'r' ? '\r' : '\n';
    } else {
      out += text[i];
    }
  }
  return out;
}

// The rows of a table file: fields split at '|', blank lines and lines that
// begin with '#' (comments on where the values come from) left out.
inline std::vector<std::vector<std::string>> TestDataTable(const std::string& name) {
  std::vector<std::vector<std::string>> rows;
  for (const std::string& line : TestDataLines(name)) {
    if (line.empty() || line[0] == '#') continue;
    std::vector<std::string> fields;
    for (size_t from = 0;;) {
      const size_t bar = line.find('|', from);
      fields.push_back(line.substr(from, bar == std::string::npos ? std::string::npos : bar - from));
      if (bar == std::string::npos) break;
      from = bar + 1;
    }
    rows.push_back(std::move(fields));
  }
  return rows;
}

// An angle or a zone as the data files write it: "17 N 20" (degrees, side,
// minutes) or "5.5 E" (hours and side, no minutes).
struct SidedValue {
  double value = 0;
  std::string side;
  double minutes = 0;
};

inline SidedValue ReadSided(const std::string& text) {
  SidedValue v;
  std::istringstream(text) >> v.value >> v.side >> v.minutes;
  return v;
}

#ifdef KELVARO_DATA_DIR
// The rows of a seed file in data/ (plain fields split at ',', no quoting),
// the line of column names and blank lines left out.
inline std::vector<std::vector<std::string>> SeedCsvRows(const std::string& name) {
  std::ifstream in(std::string(KELVARO_DATA_DIR) + "/" + name);
  if (!in) throw std::runtime_error("no seed file " + name);
  std::vector<std::vector<std::string>> rows;
  std::string line;
  std::getline(in, line);
  while (std::getline(in, line)) {
    if (line.empty()) continue;
    std::vector<std::string> fields;
    std::istringstream split(line);
    for (std::string field; std::getline(split, field, ',');) fields.push_back(field);
    rows.push_back(std::move(fields));
  }
  return rows;
}
#endif

}  // namespace kelvaro::testing
