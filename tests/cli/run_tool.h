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
