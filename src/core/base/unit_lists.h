#pragma once

#include <span>
#include <string_view>

#include "base/units.h"

namespace linecalc {

// A unit combo box of the settings dialog. These lists are the master lists of units of the whole
// program: the main form's and the dialogs' unit boxes copy them.
struct UnitList {
  std::string_view comboName;
  UnitFamily family;
  std::span<const std::string_view> units;
};

std::span<const UnitList> masterUnitLists();

// The list of the named combo box ("combo_Volumenstrom", "Combo_Querschnitt", ...); empty when unknown.
std::span<const std::string_view> masterUnits(std::string_view comboName);

}  // namespace linecalc
