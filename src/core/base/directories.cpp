#include "base/directories.h"

#include <cstdlib>
#include <system_error>

namespace linecalc {

namespace {

std::filesystem::path executableFolder() {
  std::error_code error;
  const auto exe = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::filesystem::current_path() : exe.parent_path();
}

}  // namespace

std::filesystem::path dataDirectory() {
  if (const char* configured = std::getenv("LINECALC_DATA_DIR"); configured && *configured) return configured;
  const auto folder = executableFolder();
  const auto installed = folder / ".." / "share" / "linecalc";
  std::error_code error;
  if (std::filesystem::is_directory(installed, error)) return installed.lexically_normal();
  return folder / "data";
}

std::filesystem::path userDataDirectory() {
  if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg && *xdg) return std::filesystem::path(xdg) / "linecalc";
  const char* home = std::getenv("HOME");
  return std::filesystem::path(home ? home : ".") / ".local" / "share" / "linecalc";
}

}  // namespace linecalc
