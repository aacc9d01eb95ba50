#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/element_catalogue.h"
#include "catalogue/language_tables.h"

namespace linecalc {

// A caption or hint with the name of the control it belongs to.
struct NamedWord {
  std::string_view control;
  std::string word;
};

// The words of the main form's block in varsonst.gru1, in the block's order.
struct MainFormWords {
  std::vector<NamedWord> menuCaptions;                       // 100 rows; two unused rows have an empty control name
  std::vector<NamedWord> hints;                              // 18 tool button hints
  std::array<std::string, 2> viscosityKinds;                 // items of ComboBox5: dynamic, kinematic
  std::string Label6;                                        // the branch flow field
  std::array<std::string, 38> SV_Bereichspruefung_Elemente;  // [1..37]
  std::string SV_Werteingabe_Foerdermedium1, SV_Werteingabe_Foerdermedium2;
  std::string SV_Datei_oeffnen1, SV_Datei_oeffnen2, SV_Datei_oeffnen3;
  std::string SV_DruckvfVolumenstrom1, SV_DruckvfVolumenstrom2;
  std::array<std::string, 16> SV_Diverse;  // [1..15]
  std::string SV_Diverse10A, SV_Diverse10B, SV_Diverse10C, SV_Diverse10D, SV_Diverse10E, SV_Diverse10F;
  std::string SV_InfoRohrerweiterung;
  std::array<std::array<std::string, kElementsPerGroup + 1>, kGroupCount + 1> SV_Elementinfo;  // [1..13][1..9]

  // The caption of a menu entry or hint of a tool button by the control's name; empty when unknown.
  const std::string& menu(std::string_view control) const;
  const std::string& hint(std::string_view control) const;
};

std::span<const std::string_view> mainFormMenuEntries();
std::span<const std::string_view> mainFormHintControls();

// How many rows an element's information text spans in the block (0: (13,3) takes none).
int elementInfoRows(int group, int nr);

// Reads the main form's block ("MyWindow") in its fixed order.
MainFormWords readMainFormWords(const LanguageTables& tables);

// The words of the element chooser's block ("BtnBottomDlg").
struct ChooserWords {
  std::string caption, elementsTab, reversibleTab, ok, cancel;
};
ChooserWords readChooserWords(const LanguageTables& tables);

}  // namespace linecalc
