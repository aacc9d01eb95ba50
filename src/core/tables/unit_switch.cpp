// Switching the units of a result table: a numeric row to another unit of its quantity, the element
// rows to the other unit system, the whole table to the units of the settings dialog.
#include <algorithm>
#include <optional>
#include <span>

#include "base/numbers.h"
#include "base/unit_lists.h"
#include "base/units.h"
#include "tables/ausgabe_fenster.h"
#include "tables/element_row_text.h"
#include "workspace/anwendung.h"

namespace linecalc {

namespace {

constexpr int kInWord = 77;  // global word row between an element row's label and its unit
constexpr int kSystemRow = 15, kFirstElementRow = 15, kLastElementRow = 19;
constexpr int kRoughnessRow = 26, kFirstLossRow = 31, kSumRow = 33;

// The rows that take the units of the settings, in the order they are converted. The sums of row 33
// are not among them: they are formed again from row 32.
constexpr int kUnitRows[] = {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 21, 23, 26, 30, 31, 32};

// A unit family of the element rows: the units it is recognised by, its conversion and its unit in
// the metric ("SI") and the American ("US") system.
struct ElementFamily {
  std::span<const std::string_view> units;
  Real (*convert)(std::string_view, std::string_view, Real);
  std::string_view si, us;

  std::string_view unitIn(bool usSystem) const { return usSystem ? us : si; }
};

constexpr std::string_view kDiameterUnits[] = {"mm", "in."};
constexpr std::string_view kLengthUnits[] = {"m", "ft."};
constexpr std::string_view kSectionUnits[] = {"m2", "mm2", "cm2", "yd2", "in2", "ft2"};
constexpr ElementFamily kDiameter{kDiameterUnits, Umre_Durchmesser, "mm", "in."};
constexpr ElementFamily kElementFamilies[] = {
    kDiameter,
    {kLengthUnits, Umre_Laenge, "m", "ft."},
    {kSectionUnits, Umre_Querschnitt, "m2", "yd2"},
};

const ElementFamily* elementFamilyOf(std::string_view unit) {
  for (const ElementFamily& family : kElementFamilies) {
    if (std::ranges::find(family.units, unit) != family.units.end()) return &family;
  }
  return nullptr;
}

// The element row "label in unit: value" in the unit system; the text as it stands when it names
// no diameter, length or section unit (angles, percent, waves, coefficients) or holds no number.
std::string inUnitSystem(const std::string& text, const std::string& inWord, bool us, char separator) {
  const ElementRowText parts = splitElementRow(text, inWord);
  const ElementFamily* family = elementFamilyOf(parts.unit);
  bool readable = !parts.value.empty();
  const Real value = Zahl_lesen(parts.value, readable);
  if (!family || !readable || parts.unit == family->unitIn(us)) return text;
  const std::string_view target = family->unitIn(us);
  return parts.head + std::string(target) + ": " + formatShortest(family->convert(parts.unit, target, value), separator);
}

// The quantity of a row's unit cell, by the master unit list it takes its units from.
std::optional<UnitFamily> quantityOfRow(int row) {
  const std::string_view source = unitSourceOfRow(row);
  for (const UnitList& list : masterUnitLists()) {
    if (list.comboName == source) return list.family;
  }
  return std::nullopt;
}

// Converts the numbers of a row from one unit of its quantity to another and puts the new unit into
// the row's unit cell; empty cells stay empty. The sums of row 33 only take the unit: they are formed
// again afterwards. Returns false, with nothing changed, for the same unit, a row without a quantity
// or a unit its quantity doesn't know.
bool convertRow(ResultTable& page, int row, const std::string& from, const std::string& to) {
  const std::optional<UnitFamily> quantity = quantityOfRow(row);
  if (from == to || !quantity || !findUnit(*quantity, from) || !findUnit(*quantity, to)) return false;
  if (row != kSumRow) {
    for (int i = 0; i < page.Anzahl_Berechnungen(); ++i) {
      std::optional<Real>& number = page.get_Spalte(i).cells.at(static_cast<std::size_t>(row)).number;
      if (number) number = convertUnit(*quantity, from, to, *number);
    }
  }
  page.unitCells.at(static_cast<std::size_t>(row)) = to;
  return true;
}

}  // namespace

void TAusgabeneu_Fenster::Tabellen_Einheiten_umrechnen() {
  ResultTable& page = table();
  const TEinstellungenDlg& settings = app_.EinstellungenDlg;
  bool changed = false;
  const auto followSettings = [&](int row) {
    const std::string current = page.unitCells.at(static_cast<std::size_t>(row));
    changed |= convertRow(page, row, current, settings.unitCombo(unitSourceOfRow(row))->text());
  };
  std::ranges::for_each(kUnitRows, followSettings);
  followSettings(kSumRow);
  const std::string system = settings.Combo_SI_US.text();
  if (!system.empty() && page.unitCells[kSystemRow] != system) {
    page.unitCells[kSystemRow] = system;
    Zeile_Elemente_umrechnen();
    changed = true;
  }
  Neue_Summen_bilden();
  if (changed) projectChanged();
}

void TAusgabeneu_Fenster::Zeile_Daten_umrechnen(int row, const std::string& oldUnit) {
  if (!quantityOfRow(row)) return;
  ResultTable& page = table();
  std::string& unitCell = page.unitCells.at(static_cast<std::size_t>(row));
  if (unitCell == oldUnit) return;
  if (!convertRow(page, row, oldUnit, std::string(unitCell))) {
    unitCell = oldUnit;  // a unit the quantity can't convert to isn't taken
    return;
  }
  if (row >= kFirstLossRow) Neue_Summen_bilden();  // the losses and their sums
  projectChanged();
}

void TAusgabeneu_Fenster::Zeile_Elemente_umrechnen() {
  ResultTable& page = table();
  const bool us = page.unitCells[kSystemRow] == "US";
  const std::string inWord = app_.Sprache.globalWord(kInWord);
  bool changed = false;
  for (int i = 0; i < page.Anzahl_Berechnungen(); ++i) {
    for (int row = kFirstElementRow; row <= kLastElementRow; ++row) {
      std::string& text = page.get_Spalte(i).cells.at(static_cast<std::size_t>(row)).text;
      std::string rewritten = inUnitSystem(text, inWord, us, app_.Dezimaltrennzeichen);
      if (rewritten != text) {
        text = std::move(rewritten);
        changed = true;
      }
    }
  }
  const std::string roughnessUnit = page.unitCells[kRoughnessRow];
  changed |= convertRow(page, kRoughnessRow, roughnessUnit, std::string(kDiameter.unitIn(us)));
  if (changed) projectChanged();
}

}  // namespace linecalc
