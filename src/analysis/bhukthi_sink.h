#pragma once
// Where the dasa step leaves its sub-periods for the user id of the chart:
// the work table tempBhukthi. This header stands alone (no library behind it)
// so that the store can implement the interface without linking the analysis.
#include <string>
#include <vector>

namespace kelvaro {

// One sub-period as the bhukti grid shows it, every field a text.
struct BhukthiRow {
  std::string dasaName;
  std::string bhukthiName;
  std::string start;  // "dd/mmm/yyyy"
  std::string end;    // "dd/mmm/yyyy"
  std::string age;    // whole years at the start
  friend bool operator==(const BhukthiRow&, const BhukthiRow&) = default;
};

class BhukthiSink {
 public:
  virtual ~BhukthiSink() = default;
  // The rows of the chart just calculated take the place of whatever the user
  // id held before; called once per calculation.
  virtual void Replace(const std::string& userId, const std::vector<BhukthiRow>& rows) = 0;
};

}  // namespace kelvaro
