#include "project/einstellungen_dlg.h"

#include <utility>

#include "base/unit_lists.h"

namespace linecalc {

TEinstellungenDlg::TEinstellungenDlg() {
  for (const UnitList& list : masterUnitLists()) {
    Combo* combo = unitCombo(list.comboName);
    combo->setItems(list.units);
    combo->ItemIndex = 0;
  }
  ComboBox4.Items = {"Variante A", "Variante B"};
  ComboBox4.ItemIndex = 0;
  Edit1.Text = "20";
  Edit2.Text = "3";
}

Combo* TEinstellungenDlg::unitCombo(std::string_view comboName) {
  const std::pair<std::string_view, Combo*> combos[] = {
      {"combo_Volumenstrom", &combo_Volumenstrom},
      {"combo_Massenstrom", &combo_Massenstrom},
      {"combo_Normvolumenstrom", &combo_Normvolumenstrom},
      {"combo_Visko_dyn", &combo_Visko_dyn},
      {"combo_Visko_kin", &combo_Visko_kin},
      {"combo_Dichte", &combo_Dichte},
      {"combo_Druck", &combo_Druck},
      {"combo_Stromlauf1", &combo_Stromlauf1},
      {"combo_Stromlauf2", &combo_Stromlauf2},
      {"combo_Temperatur", &combo_Temperatur},
      {"combo_geschwindigkeit", &combo_geschwindigkeit},
      {"combo_Laenge", &combo_Laenge},
      {"combo_Durchmesser", &combo_Durchmesser},
      {"Combo_Querschnitt", &Combo_Querschnitt},
      {"combo_Volumen", &combo_Volumen},
      {"combo_spezVolumen", &combo_spezVolumen},
      {"combo_Leistung", &combo_Leistung},
  };
  for (const auto& [name, combo] : combos) {
    if (name == comboName) return combo;
  }
  return nullptr;
}

}  // namespace linecalc
