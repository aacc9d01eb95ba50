#pragma once

#include <string>
#include <vector>

namespace linecalc::test {

struct CliResult {
  int status = -1;
  std::string out;
  std::string err;
};

// Runs the built linecalc-cli with the given arguments, without a shell, and collects its output.
CliResult runCli(const std::vector<std::string>& arguments);

}  // namespace linecalc::test
