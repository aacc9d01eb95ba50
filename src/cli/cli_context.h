#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

namespace linecalc::cli {

// Exit status of every command.
enum ExitStatus : int {
  kComputed = 0,  // the result was computed
  kRefused = 1,   // the program's own checks refused the input
  kUsage = 2,     // wrong options or an unreadable file
};

enum class OutputFormat { Text, Csv, Json };

// Options shared by all commands, parsed before the command runs.
struct CliContext {
  OutputFormat format = OutputFormat::Text;
  char separator = '.';
  char language = 'E';                                // Sprachkennung: D, E, F or H
  std::optional<int> decimals;                        // decimals of the result table, 0 to 6
  std::optional<int> method;                          // friction method 0, 1, 2
  std::optional<int> gasUpdate;                       // gas state along the line: 0 none, 1 real gas, 2 ideal gas
  std::optional<std::filesystem::path> settingsFile;  // a settings file instead of the built-in defaults
  std::ostream* out = nullptr;
  std::ostream* err = nullptr;
  int exitStatus = kComputed;
};

}  // namespace linecalc::cli
