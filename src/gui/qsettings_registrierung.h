#pragma once

#include <QSettings>

#include "project/registrierung.h"

namespace linecalc::gui {

// The settings of the desktop program in QSettings: organisation "Werkhof", application
// "WH Linecalc", the sections beneath the group "7.2". On Linux an INI file,
// ~/.config/Werkhof/WH Linecalc.ini.
class QSettingsRegistrierung final : public Registrierung {
 public:
  QSettingsRegistrierung();
  // A store in a given INI file (the tests' and a portable installation's).
  explicit QSettingsRegistrierung(const QString& iniFile);

  std::optional<std::string> readString(std::string_view section, std::string_view name) const override;
  void writeString(std::string_view section, std::string_view name, std::string_view value) override;
  bool sectionExists(std::string_view section) const override;

  // Writes pending changes to the file.
  void sync() { settings_.sync(); }
  QString fileName() const { return settings_.fileName(); }

 private:
  mutable QSettings settings_;
};

}  // namespace linecalc::gui
