#include "qsettings_registrierung.h"

#include "control_binding.h"

namespace linecalc::gui {

namespace {

constexpr const char* kVersionGroup = "7.2";

QString keyOf(std::string_view section, std::string_view name) {
  return QStringLiteral("%1/%2/%3").arg(QLatin1String(kVersionGroup), qs(section), qs(name));
}

}  // namespace

QSettingsRegistrierung::QSettingsRegistrierung()
    : settings_(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Werkhof"), QStringLiteral("WH Linecalc")) {}

QSettingsRegistrierung::QSettingsRegistrierung(const QString& iniFile) : settings_(iniFile, QSettings::IniFormat) {}

std::optional<std::string> QSettingsRegistrierung::readString(std::string_view section, std::string_view name) const {
  const QVariant value = settings_.value(keyOf(section, name));
  if (!value.isValid()) return std::nullopt;
  return ss(value.toString());
}

void QSettingsRegistrierung::writeString(std::string_view section, std::string_view name, std::string_view value) {
  settings_.setValue(keyOf(section, name), qs(value));
}

bool QSettingsRegistrierung::sectionExists(std::string_view section) const {
  settings_.beginGroup(QLatin1String(kVersionGroup));
  const bool exists = settings_.childGroups().contains(qs(section));
  settings_.endGroup();
  return exists;
}

}  // namespace linecalc::gui
