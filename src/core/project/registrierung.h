#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace linecalc {

// The key under the user's hive that holds the sections of the settings. A store that keeps the
// sections of several programs or versions places them beneath this path; the stores here hold only
// this program's sections.
inline constexpr std::string_view kRegistryBasePath = "Software\\Werkhof\\WH Linecalc\\7.2\\";

// The settings store: string values by section and name, as the Windows registry holds them.
class Registrierung {
 public:
  virtual ~Registrierung() = default;

  // The value, or nothing when the section or the value is absent.
  virtual std::optional<std::string> readString(std::string_view section, std::string_view name) const = 0;
  // Sets a value, creating its section as needed.
  virtual void writeString(std::string_view section, std::string_view name, std::string_view value) = 0;
  virtual bool sectionExists(std::string_view section) const = 0;
};

// Settings held in memory: the tests' store, and the command-line tool's reproducible defaults (an
// empty store gives the defaults of a first start). Sections and values keep the order of their first
// writing.
class MemoryRegistrierung : public Registrierung {
 public:
  using Values = std::vector<std::pair<std::string, std::string>>;
  using Section = std::pair<std::string, Values>;

  std::optional<std::string> readString(std::string_view section, std::string_view name) const override;
  void writeString(std::string_view section, std::string_view name, std::string_view value) override;
  bool sectionExists(std::string_view section) const override;

  const std::vector<Section>& sections() const { return sections_; }
  void clear() { sections_.clear(); }

  // The store as INI text: "[section]" lines, each followed by its "name=value" lines, LF line ends.
  // A backslash, a line feed and a carriage return in a value are written as \\, \n and \r.
  std::string iniText() const;
  // Adds the values of an INI text to the store. Blank lines, lines starting with ';' or '#', and
  // lines without '=' or before the first section are skipped; a name is trimmed of blanks, a value is
  // taken as it stands up to the line end. CR LF line ends and a leading UTF-8 byte-order mark are
  // accepted.
  void readIniText(std::string_view text);

 private:
  std::vector<Section> sections_;
};

// Settings in a plain INI text file (UTF-8). The file is read when the store is made; a missing file
// is an empty store (a first start). Changes stay in memory until save().
class IniFileRegistrierung : public MemoryRegistrierung {
 public:
  // Throws std::runtime_error, naming the file, when the file exists but cannot be read: a store
  // made empty instead would overwrite the user's settings with the defaults at the next save.
  explicit IniFileRegistrierung(std::filesystem::path file);

  // Writes the whole store: into a temporary file beside the target, flushed and closed, then renamed
  // over the target, so that the old file stays whole until the new one is complete. Creates the
  // folder as needed. Throws std::runtime_error naming the file when it cannot be written; the old
  // file is then untouched.
  void save() const;

  const std::filesystem::path& file() const { return file_; }
  // The temporary file that save() writes before the rename.
  std::filesystem::path temporaryFile() const;

  // The settings file of the user: $XDG_CONFIG_HOME/Werkhof/WH Linecalc/7.2/settings.ini, with
  // ~/.config in place of an unset $XDG_CONFIG_HOME.
  static std::filesystem::path defaultFile();

 private:
  std::filesystem::path file_;
};

}  // namespace linecalc
