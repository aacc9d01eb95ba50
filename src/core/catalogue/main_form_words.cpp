#include "catalogue/main_form_words.h"

namespace linecalc {

namespace {

// Menu entries of the main form in the order of their rows; "" marks the two unused rows.
constexpr std::string_view kMenuEntries[] = {"Datei1",
                                             "Neu1",
                                             "ffnen1",
                                             "Speichern1",
                                             "Speichernunter1",
                                             "Beenden1",
                                             "Bearbeiten1",
                                             "Kopieren1",
                                             "Einfgen1",
                                             "Lschen1",
                                             "Tabelle1",
                                             "abelleanzeigen1",
                                             "Ansichtgrer1",
                                             "Ansichtkleiner1",
                                             "Schriftartndern1",
                                             "Spaltenbreitendern1",
                                             "GlobaleTabellennderungen1",
                                             "Tabelledrucken2",
                                             "DruckformatStandard1",
                                             "Druckformatkopieren1",
                                             "HeaderFooterkopieren1",
                                             "Tabelleneu1",
                                             "abellekopieren1",
                                             "AktuelleTabellelschen1",
                                             "Sortieren1",
                                             "Tabelleumbenennen1",
                                             "Tabelleneunummerieren1",
                                             "KopiereninZwischenablage1",
                                             "abelleimExcelFormatspeichern1",
                                             "abellenSpalte1",
                                             "GewhlteTabellenspaltendern1",
                                             "GewhlteSpalteentfernen1",
                                             "KopiereninEingabefelder1",
                                             "Kurz1",
                                             "Kurzanzeigeanzeigen1",
                                             "Kurzanzeigedrucken1",
                                             "Frdermedien1",
                                             "N12",
                                             "StoffdatenWasser1",
                                             "StoffdatenLuft1",
                                             "StoffdatenfeuchteLuft1",
                                             "StoffdatenLuftSttigungszustand1",
                                             "StoffdatenCO2allgemein1",
                                             "StoffdatenCO2Sttigungszustand1",
                                             "StoffdatensonstigeMedien1",
                                             "StoffdatensonstigeGase1",
                                             "Stoffdatenabschtzen1",
                                             "WssrigeLsungenberechnen1",
                                             "Kuehlsolenberechnen",
                                             "Wrmetrgerleberechnen1",
                                             "UserDatenbankFlssigkeiten1",
                                             "UserDatenbankGase1",
                                             "BenutzerdefinierteDatenbankAltVersion",
                                             "BenutzerdefinierteDatenbank2",
                                             "BenutzerdefinierteDatenbankbearbeiten1",
                                             "Rohr1",
                                             "Rohrleitungselementwhlen1",
                                             "RohrInformationen1",
                                             "Rohre1",
                                             "Rohrerechteckig1",
                                             "Bgen1",
                                             "ReduzierungenErweiterungen1",
                                             "T_Stuecke1",
                                             "UserDatenbankRohre1",
                                             "ZetaWerteBerechnungvonspeziellenRohrleitungselementen1",
                                             "Rohrverzweigungen1",
                                             "ZetaWerteDatenbank1",
                                             "ZetaWerteDatenbank2",
                                             "Berechnen1",
                                             "Stromlauf1",
                                             "StromlauffVolulmenstrom1",
                                             "Nennweite1",
                                             "NennweiteGase1",
                                             "Frderhhe1",
                                             "NPSHWert1",
                                             "RohrInhaltFllzeit1",
                                             "PumpenSchnellauslegung1",
                                             "GeschwindigkeitinVolumenstrom1",
                                             "VolumenstrominGeschwindigkeit1",
                                             "NormminBetriebsm1",
                                             "kvinZeta1",
                                             "CvinZeta1",
                                             "Gerinneberechnen1",
                                             "VorhandenesGerinneberechnen1",
                                             "Gerinneauslegen1",
                                             "AusflussBerechnungen1",
                                             "KonstanterFlssigkeitsspiegel1",
                                             "AbnehmenderFlssigkeitsspiegel1",
                                             "DrosselblendeAuslegung1",
                                             "Einheitenumrechnen1",
                                             "Einstellungen1",
                                             "Einstellungen2",
                                             "Hilfe1",
                                             "Index1",
                                             "berStromlauf1",
                                             "",
                                             "",
                                             "Kopieren2",
                                             "Einfgen2",
                                             "Lschen2"};
static_assert(std::size(kMenuEntries) == 100);

constexpr std::string_view kHintControls[] = {
    "ToolButton1",  "ToolButton15", "ToolButton3",  "ToolButton2",  "ToolButton5",  "ToolButton7",
    "ToolButton8",  "ToolButton9",  "ToolButton10", "ToolButton11", "ToolButton13", "ToolButton14",
    "ToolButton12", "ToolButton17", "SpeedButton1", "BitBtn1",      "ComboBox4",    "ComboBox5"};

std::vector<NamedWord> readNamed(WordBlock& block, std::span<const std::string_view> controls) {
  std::vector<NamedWord> words;
  for (const std::string_view control : controls) words.push_back({control, block.next()});
  return words;
}

const std::string& findNamed(const std::vector<NamedWord>& words, std::string_view control) {
  static const std::string none;
  for (const auto& named : words) {
    if (!control.empty() && named.control == control) return named.word;
  }
  return none;
}

}  // namespace

std::span<const std::string_view> mainFormMenuEntries() {
  return kMenuEntries;
}
std::span<const std::string_view> mainFormHintControls() {
  return kHintControls;
}

const std::string& MainFormWords::menu(std::string_view control) const {
  return findNamed(menuCaptions, control);
}
const std::string& MainFormWords::hint(std::string_view control) const {
  return findNamed(hints, control);
}

int elementInfoRows(int group, int nr) {
  if (group == 13 && nr == 3) return 0;
  if ((group == 1 && nr == 5) || (group == 13 && nr == 2)) return 3;
  if (group == 3 && nr <= 4) return 2;
  if (group == 9 && (nr == 1 || nr == 5 || nr == 6)) return 2;
  if (group == 10 && nr <= 4) return 2;
  if (group == 13 && nr == 1) return 2;
  return 1;
}

MainFormWords readMainFormWords(const LanguageTables& tables) {
  WordBlock block = tables.block("MyWindow");
  MainFormWords words;
  words.menuCaptions = readNamed(block, kMenuEntries);
  words.hints = readNamed(block, kHintControls);
  for (auto& item : words.viscosityKinds) item = block.next();
  words.Label6 = block.next();
  for (int i = 1; i <= 37; ++i) words.SV_Bereichspruefung_Elemente[i] = block.next();
  for (std::string* text : {&words.SV_Werteingabe_Foerdermedium1, &words.SV_Werteingabe_Foerdermedium2,
                            &words.SV_Datei_oeffnen1, &words.SV_Datei_oeffnen2, &words.SV_Datei_oeffnen3,
                            &words.SV_DruckvfVolumenstrom1, &words.SV_DruckvfVolumenstrom2}) {
    *text = block.next();
  }
  for (int i = 1; i <= 10; ++i) words.SV_Diverse[i] = block.next();
  for (std::string* text : {&words.SV_Diverse10A, &words.SV_Diverse10B, &words.SV_Diverse10C, &words.SV_Diverse10D,
                            &words.SV_Diverse10E, &words.SV_Diverse10F}) {
    *text = block.next();
  }
  for (int i = 11; i <= 15; ++i) words.SV_Diverse[i] = block.next();
  words.SV_InfoRohrerweiterung = block.nextJoined(3);
  for (int g = 1; g <= kGroupCount; ++g) {
    for (int e = 1; e <= kElementsPerGroup; ++e) {
      if (const int rows = elementInfoRows(g, e); rows > 0) words.SV_Elementinfo[g][e] = block.nextJoined(rows);
    }
  }
  words.SV_Elementinfo[13][3] = words.SV_Elementinfo[13][2];
  return words;
}

ChooserWords readChooserWords(const LanguageTables& tables) {
  WordBlock block = tables.block("BtnBottomDlg");
  ChooserWords words;
  for (std::string* text : {&words.caption, &words.elementsTab, &words.reversibleTab, &words.ok, &words.cancel}) {
    *text = block.next();
  }
  return words;
}

}  // namespace linecalc
