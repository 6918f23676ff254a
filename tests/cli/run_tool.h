#pragma once
// Runs kelvaro-cli in the test's process with its output captured.
#include <sstream>
#include <string>
#include <vector>

#include "cli/cli.h"

namespace kelvaro::cli {

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

// A command on the sample birth (14/07/1965 14:15 at 17N20 78E30, 5.5E),
// then the given arguments.
inline std::vector<std::string> SampleBirth(const std::string& command, const std::vector<std::string>& extra) {
  std::vector<std::string> a = {command, "--date", "14/07/1965", "--time", "14:15", "--lat", "17N20",
                                "--lon",  "78E30",  "--tz",       "5.5E"};
  a.insert(a.end(), extra.begin(), extra.end());
  return a;
}

inline Outcome RunTool(std::vector<std::string> args) {
  args.insert(args.begin(), "kelvaro-cli");
  std::vector<const char*> argv;
  for (const auto& a : args) argv.push_back(a.c_str());
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunCli(static_cast<int>(argv.size()), argv.data(), out, err);
  return {status, out.str(), err.str()};
}

}  // namespace kelvaro::cli
