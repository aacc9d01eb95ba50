#pragma once

#include <iosfwd>
#include <string>

namespace linecalc::cli {

// Exit status of every command.
enum ExitStatus : int {
  kComputed = 0,  // the result was computed
  kRefused = 1,   // the program's own checks refused the input
  kUsage = 2,     // wrong options or an unreadable file
};

enum class OutputFormat { Text, Json };

// Options shared by all commands, parsed before the command runs.
struct CliContext {
  OutputFormat format = OutputFormat::Text;
  char separator = '.';
  char language = 'E';  // Sprachkennung: D, E, F or H
  std::ostream* out = nullptr;
  std::ostream* err = nullptr;
  int exitStatus = kComputed;
};

}  // namespace linecalc::cli
