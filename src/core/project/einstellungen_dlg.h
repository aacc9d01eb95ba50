#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/controls.h"

namespace linecalc {

class Anwendung;

// The program languages in the order of the language box and of the stored `Sprachversion`:
// 0 German, 1 English, 2 Dutch, 3 French.
inline constexpr std::array<char, 4> kSprachversionen = {'D', 'E', 'H', 'F'};
// The index of a language code in that order; English (1) for a code that is not there.
int sprachversionIndex(char Sprachkennung);

// The settings dialog. Its unit combo boxes are the master unit lists of the whole program; the
// other forms read its controls directly.
class TEinstellungenDlg : public Form {
 public:
  explicit TEinstellungenDlg(Anwendung& app);
  TEinstellungenDlg(const TEinstellungenDlg&) = delete;
  TEinstellungenDlg& operator=(const TEinstellungenDlg&) = delete;

  // ---- unit lists, first entry selected
  Combo combo_Volumenstrom, combo_Massenstrom, combo_Normvolumenstrom;
  Combo combo_Visko_dyn, combo_Visko_kin, combo_Dichte, combo_Druck;
  Combo combo_Stromlauf1, combo_Stromlauf2;  // units of the pressure loss in result tables: element, running sum
  Combo combo_Temperatur, combo_geschwindigkeit, combo_Laenge, combo_Durchmesser, Combo_Querschnitt;
  Combo combo_Volumen, combo_spezVolumen, combo_Leistung;
  Combo Combo_SI_US;  // unit system of the element rows of a result table: "SI", "US"

  // ---- general settings
  Combo ComboBox1;               // language of the substance names: 0 German, 1 English
  Combo ComboBox2;               // language of the program, taking effect at the next start (kSprachversionen)
  Combo ComboBox3;               // units of the older user database: "metrisch", "US"
  Combo ComboBox4;               // friction method: 0 "Variante A" (Colebrook), 1 "Variante B" (by sections)
  Edit Edit1;                    // points of a diagram
  Edit Edit2;                    // decimals shown
  Check CheckBox1;               // line wrap within a table cell
  Check CheckBox2;               // convert tables to the set units on opening
  int RadioGroup1 = 0;           // gas update along the line: 0 none, 1 real gas, 2 ideal gas
  int Normspaltenbreite0 = 130;  // standard width of the row caption column of a result table
  int Normspaltenbreite1 = 150;  // standard width of a calculation column

  // ---- words
  std::string Caption;
  Label TabSheet1, TabSheet2;  // the pages: general settings, units
  Label programLanguageLabel, substanceLanguageLabel, userDatabaseUnitsLabel, frictionMethodLabel;
  Label diagramPointsLabel, decimalsLabel, unitSystemLabel;
  Label RadioGroup1Caption;
  std::array<std::string, 3> RadioGroup1Items;
  Button Button1, Button2, OKBtn, CancelBtn;
  std::string decimalsMessage, diagramPointsMessage;

  // ---- the state saved when the dialog opens, restored on Cancel
  std::string Anz_Nachkomma_alt, Anz_BerePunkte_alt;
  int Volumenstrom_alt = 0, Massenstrom_alt = 0, Normvolumenstrom_alt = 0, Visko_dyn_alt = 0, Visko_kin_alt = 0;
  int Dichte_alt = 0, Druck_alt = 0, Stromlauf1_alt = 0, Stromlauf2_alt = 0, Temperatur_alt = 0;
  int Geschwindigkeit_alt = 0, Laenge_alt = 0, Durchmesser_alt = 0, Querschnitt_alt = 0, Volumen_alt = 0;
  int spezVolumen_alt = 0, Leistung_alt = 0;
  int Sprachversion_alt = 1, Stoffnamen_alt = 1, Variante_alt = 0, GasBere_alt = 0;
  int Ben_Daba_Einheit_alt = 0, EHSI_US_alt = 0;
  bool Zeilenumbruch_alt = false, Einheiten_Umrechnen_alt = false;

  // The combo box of a master list by its name ("combo_Durchmesser"); nullptr when unknown.
  Combo* unitCombo(std::string_view comboName);
  const Combo* unitCombo(std::string_view comboName) const {
    return const_cast<TEinstellungenDlg*>(this)->unitCombo(comboName);
  }
  // The label beside a master list's combo box; nullptr when unknown.
  Label* unitLabel(std::string_view comboName);

  void Sprache_anpassen();
  // Selects the entry of ComboBox2 for a language code.
  void selectLanguage(char Sprachkennung);

  // Opening: the current settings are saved, then the dialog shows.
  void FormShow();
  void Alte_Einstellungen_sicher();
  void Alte_Einstellungen_wieder();
  // Checks decimals (0 to 6) and diagram points (at least 2); a bad value is reported, gets the focus
  // and keeps the dialog open. Otherwise converts the open tables and closes. Returns whether it closed.
  bool OKBtnClick();
  // Restores the settings of the opening and closes.
  void CancelBtnClick();
  // Whether the program language differs from the one at the opening (it takes effect at the next start).
  bool languageChanged() const { return ComboBox2.ItemIndex != Sprachversion_alt; }
  // The current result table takes the units now set.
  void Tabellen_Einheiten_umrechnen();

  // The SI and the US set of units.
  void Button1Click();
  void Button2Click();
  // Length, diameter and section units stay in one unit system: choosing a metric unit in one of the
  // three boxes moves the other two to metric units, a US unit to US units. A unit already in the
  // chosen system is kept.
  void combo_LaengeChange();
  void combo_DurchmesserChange();
  void Combo_QuerschnittChange();

  // Whether a text is an allowed number of decimals (a whole number from 0 to 6) or of diagram points
  // (a whole number of at least 2); blanks around the number are allowed.
  static bool isValidDecimals(std::string_view text);
  static bool isValidDiagramPoints(std::string_view text);

  // The index of an item text in a box; -1 when the box has no such item.
  static int Hole_Itemindex_von_Box_m(const Combo& Box, std::string_view Text);

 private:
  Anwendung& app_;
  std::array<Label, 17> unitLabels_;  // in the order of the master unit lists

  void keepUnitSystem(bool us);
  void selectSet(bool us);
};

}  // namespace linecalc
