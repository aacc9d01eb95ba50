#pragma once

#include <string>

#include "base/controls.h"

namespace linecalc {

// The settings dialog. Its unit combo boxes are the master unit lists of the whole program; the
// other forms read its controls directly.
class TEinstellungenDlg : public Form {
 public:
  TEinstellungenDlg();

  // unit lists, first entry selected
  Combo combo_Volumenstrom, combo_Massenstrom, combo_Normvolumenstrom;
  Combo combo_Visko_dyn, combo_Visko_kin, combo_Dichte, combo_Druck;
  Combo combo_Stromlauf1, combo_Stromlauf2;  // units of the pressure loss in result tables
  Combo combo_Temperatur, combo_geschwindigkeit, combo_Laenge, combo_Durchmesser, Combo_Querschnitt;
  Combo combo_Volumen, combo_spezVolumen, combo_Leistung;

  Combo ComboBox1;      // language of the substance names
  Combo ComboBox2;      // language of the program
  Combo ComboBox4;      // friction method: 0 "Variante A" (Colebrook), 1 "Variante B" (by sections)
  Edit Edit1;           // points of a diagram
  Edit Edit2;           // decimals shown
  int RadioGroup1 = 0;  // gas update along the line: 0 none, 1 real gas, 2 ideal gas
  int Normspaltenbreite0 = 130;
  int Normspaltenbreite1 = 150;

  // The combo box of a master list by its name ("combo_Durchmesser"); nullptr when unknown.
  Combo* unitCombo(std::string_view comboName);
};

}  // namespace linecalc
