#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/controls.h"
#include "base/real.h"
#include "catalogue/element_catalogue.h"
#include "catalogue/main_form_words.h"

namespace linecalc {

class Anwendung;

// The panel state that table operations save before they overwrite the panels.
struct SavedPanel {
  int SiGruppe = 1, SiUGruppe = 1;
  std::string SiRohrbezeichnung, SiAnzahl;
  std::array<std::string, kPanelRows> SiVar_Static, SiVar_Edit;
  std::array<int, kPanelRows> SiComboVarIndex{};
  int SiRadioGroupItemindex = 0;
  int SiComboRauhigkeit = 0;
  std::string SiRauhigkeit;
  int SiVolMa = 0, SiVolumenstrom_EH = 0, SiDichte_EH = 0, SiKinDyn = 0, SiVisko_EH = 0;
  std::string SiMedium, SiVolumenstrom, SiabzwVolumenstrom, SiDichte, SiVisko;
  bool SiRadio = true;  // liquid
  std::string SiEGDruck, SiEGTemp, SiAGTemp;
  int SiEGDruck_EH = 0, SiEGTemp_EH = 0, SiAGTemp_EH = 0;
};

// The main window: the medium panel and the element panel, and the calculation run that reads them.
class TMyWindow : public Form {
 public:
  explicit TMyWindow(Anwendung& app);
  TMyWindow(const TMyWindow&) = delete;
  TMyWindow& operator=(const TMyWindow&) = delete;

  // ---- medium panel
  Label Medium_Titel;
  Edit Eingabe_Medium;
  Label Label3;  // heading of the aggregate state
  Check Radio_fluessig, Radio_gas;
  Label Volumenstrom_Titel;
  Edit Eingabe_Volumenstrom;
  Combo ComboBox4;  // kind of flow: 0 volume flow, 1 mass flow, 2 standard volume flow
  Combo ComboBox1;  // unit of the flow
  Label Dichte_Titel;
  Edit Eingabe_Dichte;
  Combo ComboBox2;  // unit of the density
  Label Visko_Titel;
  Edit Eingabe_Viskositaet;
  Combo ComboBox5;  // kind of viscosity: 0 dynamic, 1 kinematic
  Combo ComboBox3;  // unit of the viscosity
  Label Label2N;    // heading of the gas data
  Label Label4N, Label5N, Label6N;
  Edit Edit_EingangsdruckN, Edit_EingangstemperaturN, Edit_AusgangstemperaturN;
  Combo ComboBox6N, ComboBox7N, ComboBox8N;

  // ---- element panel
  Label Statisch_Element_Name1;  // "group - element"
  int Image1 = 0;                // picture number of the element
  Button ToolButton15;           // element information
  Label Va1_Static, Va2_Static, Va3_Static, Va4_Static, Va5_Static;
  Edit Va1_Edit, Va2_Edit, Va3_Edit, Va4_Edit, Va5_Edit;
  Label LabelVar1, LabelVar2, LabelVar3, LabelVar4, LabelVar5;  // fixed units
  Combo ComboVar1, ComboVar2, ComboVar3, ComboVar4, ComboVar5;
  Label VaAnz_Titel;
  Edit VaAnz_Edit;
  Label Label2;  // pipe designation
  Edit Edit1;
  Label Label5;  // the element's choice pair
  Check RadioButton1, RadioButton2;
  Label Label4;  // roughness
  Edit Edit2;
  Combo ComboBox6;
  Button SpeedButton1;  // roughness database
  Label Label6;         // branch flow of (5,5), (5,6)
  Edit Edit3;
  Label Label7;  // unit of the branch flow: that of ComboBox1

  MainFormWords words;  // menu captions, hints and the SV_ message texts
  SavedPanel saved;

  // Row n of the element panel (1..5).
  Label& vaStatic(int row);
  Edit& vaEdit(int row);
  Label& labelVar(int row);
  Combo& comboVar(int row);
  const Label& vaStatic(int row) const { return const_cast<TMyWindow*>(this)->vaStatic(row); }
  const Edit& vaEdit(int row) const { return const_cast<TMyWindow*>(this)->vaEdit(row); }
  const Label& labelVar(int row) const { return const_cast<TMyWindow*>(this)->labelVar(row); }
  const Combo& comboVar(int row) const { return const_cast<TMyWindow*>(this)->comboVar(row); }
  // The visible rows of the element panel as "label text unit", one a line, for messages.
  std::string elementInputsText() const;

  // ---- words and panels
  void Sprache_anpassen();
  void Einheiten_Volumenstrom_aktualisieren();
  void Einheiten_Visko_aktualisieren();
  void Gasdaten_grau();
  void Gasdaten_schwarz();
  void selectLiquid(bool liquid);  // the radio pair and the gas fields

  void Element_Fenster_aktualisieren();
  void El_Zeile_belegen(int Zeile, const std::string& Beschriftung, RowUnit Einheiten_Art,
                        const std::string& Feste_Einheit, const std::string& Vorgabe);
  void Belege_ElementGruppe(const std::string& Beschriftung, const std::string& Auswahl1, const std::string& Auswahl2);
  void Belege_abzw_Volumenstrom();
  void Hauptfenster_sichern();
  void Hauptfenster_wiederherstellen();
  // Replays every calculation of the current table through the run, without writing, and says
  // whether all of them still pass their checks; the panels end as they were.
  // The numbers (from 1) of the columns that fail go to failedColumns when it is given.
  bool Tabelle_pruefen(std::vector<int>* failedColumns = nullptr);

  // ---- the calculation run
  void Berechnen(int Spalte);
  void Werteingabe_Rohrleitungselement_lesen();
  void Umrechnung_Daten_Rohrleitungselement();
  void Werteingabe_Foerdermedium_lesen();
  void Umrechnung_Daten_Foerdermedium_Abzweig();
  void Bereichspruefung_Medium();
  void Bereichspruefung_Elemente(int Spalte);
  void Pruefe_Bereich(bool Untergrenze_pruefen, bool Obergrenze_pruefen, Real Wert, Real Untergrenze, Real Obergrenze,
                      bool Null_erlaubt, const Label& Beschriftung, const Control& Eingabefeld);
  void Falsche_Eingabe(const Label& Beschriftung, const Control& Eingabefeld);
  void Gasdaten_neu_berechnen_real();
  void Gasdaten_neu_berechnen_ideal();

 private:
  Anwendung& app_;
  std::array<RowUnit, kPanelRows> rowFamilies_{};  // the unit family each row's combo shows now
  int currentSpalte_ = 0;                          // column of the running table check, for messages

  void enableGasFields(bool enabled);
  Real readNumber(const Edit& field, const Label& label);  // Zahl_lesen with Falsche_Eingabe on failure
  bool isStandardFlowUnit() const;
  bool branchFlowIsRead() const;
  std::string elementName() const;
  std::string columnPrefix() const;
  void reportRange(const Label& label, const std::string& limitWord, const std::string& limit, const Control& field);
  void ruleMessage(std::initializer_list<int> entries, const Control& field, bool warning = false);
};

}  // namespace linecalc
