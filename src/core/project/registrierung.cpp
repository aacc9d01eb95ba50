#include "project/registrierung.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "base/cp1252.h"

#if __has_include(<fcntl.h>) && __has_include(<unistd.h>)
#include <fcntl.h>
#include <unistd.h>
#define LINECALC_HAVE_FSYNC 1
#endif

namespace linecalc {

namespace {

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(" \t");
  return text.substr(first, last - first + 1);
}

std::string escaped(std::string_view value) {
  std::string out;
  out.reserve(value.size());
  for (char c : value) {
    switch (c) {
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      default:
        out += c;
    }
  }
  return out;
}

// The reverse of escaped(); any other backslash stays as it stands, so a hand-written Windows path
// such as "C:\Daten" reads back unchanged.
std::string unescaped(std::string_view value) {
  std::string out;
  out.reserve(value.size());
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] == '\\' && i + 1 < value.size()) {
      const char next = value[i + 1];
      if (next == '\\' || next == 'n' || next == 'r') {
        out += next == '\\' ? '\\' : next == 'n' ? '\n' : '\r';
        ++i;
        continue;
      }
    }
    out += value[i];
  }
  return out;
}

// Puts the file's data on the disk before it is renamed over the old file, so that a power failure
// right after the rename cannot leave an empty file behind.
bool syncToDisk(const std::filesystem::path& file) {
#ifdef LINECALC_HAVE_FSYNC
  const int fd = ::open(file.c_str(), O_RDONLY);
  if (fd < 0) return false;
  const bool synced = ::fsync(fd) == 0;
  ::close(fd);
  return synced;
#else
  (void)file;
  return true;
#endif
}

[[noreturn]] void fail(const std::string& what, const std::filesystem::path& file, const std::string& reason) {
  throw std::runtime_error(what + " " + file.string() + ": " + reason);
}

}  // namespace

std::optional<std::string> MemoryRegistrierung::readString(std::string_view section, std::string_view name) const {
  for (const auto& [sectionName, values] : sections_) {
    if (sectionName != section) continue;
    for (const auto& [valueName, value] : values) {
      if (valueName == name) return value;
    }
    return std::nullopt;
  }
  return std::nullopt;
}

void MemoryRegistrierung::writeString(std::string_view section, std::string_view name, std::string_view value) {
  auto it = std::find_if(sections_.begin(), sections_.end(), [&](const Section& s) { return s.first == section; });
  if (it == sections_.end()) it = sections_.insert(sections_.end(), Section{std::string(section), {}});
  Values& values = it->second;
  for (auto& [valueName, stored] : values) {
    if (valueName == name) {
      stored = value;
      return;
    }
  }
  values.emplace_back(std::string(name), std::string(value));
}

bool MemoryRegistrierung::sectionExists(std::string_view section) const {
  return std::any_of(sections_.begin(), sections_.end(), [&](const Section& s) { return s.first == section; });
}

std::string MemoryRegistrierung::iniText() const {
  std::string text;
  for (const auto& [section, values] : sections_) {
    if (!text.empty()) text += '\n';
    text += '[' + section + "]\n";
    for (const auto& [name, value] : values) text += name + '=' + escaped(value) + '\n';
  }
  return text;
}

void MemoryRegistrierung::readIniText(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  std::string section;
  bool inSection = false;
  while (!text.empty()) {
    const auto end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);

    const std::string_view bare = trimmed(line);
    if (bare.empty() || bare.front() == ';' || bare.front() == '#') continue;
    if (bare.front() == '[' && bare.back() == ']') {
      section = trimmed(bare.substr(1, bare.size() - 2));
      inSection = true;
      // An empty section still exists.
      if (!sectionExists(section)) sections_.emplace_back(section, Values{});
      continue;
    }
    const auto equals = line.find('=');
    if (!inSection || equals == std::string_view::npos) continue;
    const std::string_view name = trimmed(line.substr(0, equals));
    if (name.empty()) continue;
    writeString(section, name, unescaped(line.substr(equals + 1)));
  }
}

IniFileRegistrierung::IniFileRegistrierung(std::filesystem::path file) : file_(std::move(file)) {
  std::error_code error;
  if (!std::filesystem::exists(file_, error)) return;
  if (!std::filesystem::is_regular_file(file_, error)) fail("Cannot read the settings file", file_, "not a file");
  std::ifstream in(file_, std::ios::binary);
  if (!in) fail("Cannot read the settings file", file_, std::strerror(errno));
  const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (in.bad()) fail("Cannot read the settings file", file_, std::strerror(errno));
  readIniText(decodeFileText(bytes));
}

std::filesystem::path IniFileRegistrierung::temporaryFile() const {
  std::filesystem::path temporary = file_;
  temporary += ".tmp";
  return temporary;
}

void IniFileRegistrierung::save() const {
  const std::filesystem::path temporary = temporaryFile();
  std::error_code error;
  if (file_.has_parent_path()) {
    std::filesystem::create_directories(file_.parent_path(), error);
    if (error) fail("Cannot create the folder of the settings file", file_, error.message());
  }
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (!out) fail("Cannot write the settings file", temporary, std::strerror(errno));
    const std::string text = iniText();
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.flush();
    if (!out) {
      out.close();
      std::filesystem::remove(temporary, error);
      fail("Cannot write the settings file", temporary, "write failed");
    }
  }
  if (!syncToDisk(temporary)) {
    std::filesystem::remove(temporary, error);
    fail("Cannot write the settings file", temporary, "sync failed");
  }
  std::filesystem::rename(temporary, file_, error);
  if (error) {
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);
    fail("Cannot replace the settings file", file_, error.message());
  }
}

std::filesystem::path IniFileRegistrierung::defaultFile() {
  std::filesystem::path base;
  if (const char* config = std::getenv("XDG_CONFIG_HOME"); config && *config) {
    base = config;
  } else if (const char* home = std::getenv("HOME"); home && *home) {
    base = std::filesystem::path(home) / ".config";
  } else {
    base = ".config";
  }
  return base / "Werkhof" / "WH Linecalc" / "7.2" / "settings.ini";
}

}  // namespace linecalc
