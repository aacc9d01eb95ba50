// Reading and writing the settings and the last state of the panels, and the defaults of a first start.
#include "project/registry.h"

#include <charconv>
#include <string>

#include "catalogue/element_catalogue.h"
#include "project/registrierung.h"
#include "workspace/anwendung.h"

namespace linecalc {

namespace {

constexpr std::string_view kAllgemein = "Allgemein", kUnits = "Units", kFenster = "Fenster", kMedium = "Medium",
                           kGasdaten = "Gasdaten", kRohr = "Rohr", kRecentFiles = "RecentFiles";

constexpr int kDefaultMediumWord = 161;  // the name of the default medium, water

// The value name of each unit list in section Units.
struct UnitValue {
  std::string_view name;
  std::string_view comboName;
};

constexpr UnitValue kUnitValues[] = {
    {"EHVolumenstromA", "combo_Volumenstrom"},
    {"EHMassenstromA", "combo_Massenstrom"},
    {"EHDichteA", "combo_Dichte"},
    {"EHViskodynA", "combo_Visko_dyn"},
    {"EHViskokinA", "combo_Visko_kin"},
    {"EHDruckA", "combo_Druck"},
    {"EHTemperaturA", "combo_Temperatur"},
    {"EHNormvolumenstromA", "combo_Normvolumenstrom"},
    {"EHDurchmesserA", "combo_Durchmesser"},
    {"EHLaengeA", "combo_Laenge"},
    {"EHQuerschnittA", "Combo_Querschnitt"},
    {"EHGeschwindigkeitA", "combo_geschwindigkeit"},
    {"EHStromlauf1A", "combo_Stromlauf1"},
    {"EHStromlauf2A", "combo_Stromlauf2"},
    {"EHVolumen", "combo_Volumen"},
    {"EHSpezVolumen", "combo_spezVolumen"},
    {"EHLeistung", "combo_Leistung"},
};

// The reading side: each value on its own, an absent or unreadable value changes nothing.
class Reader {
 public:
  Reader(const Registrierung& store, std::string_view section) : store_(store), section_(section) {}

  std::optional<int> number(std::string_view name) const {
    const auto text = store_.readString(section_, name);
    if (!text) return std::nullopt;
    std::string_view digits = *text;
    while (!digits.empty() && digits.front() == ' ') digits.remove_prefix(1);
    while (!digits.empty() && digits.back() == ' ') digits.remove_suffix(1);
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size() || digits.empty()) return std::nullopt;
    return value;
  }

  void text(std::string_view name, std::string& target) const {
    if (auto value = store_.readString(section_, name)) target = std::move(*value);
  }

  void text(std::string_view name, Edit& target) const { text(name, target.Text); }

  // "j" or "n"; anything else leaves the check box.
  void flag(std::string_view name, Check& target) const {
    const auto value = store_.readString(section_, name);
    if (value == "j") target.Checked = true;
    if (value == "n") target.Checked = false;
  }

  // The index of a box with its list in place. A stored index outside the list selects the first
  // entry; a box without entries (a row the element does not use) is left alone.
  void index(std::string_view name, Combo& combo) const {
    const auto value = number(name);
    if (!value || combo.Items.empty()) return;
    combo.ItemIndex = *value >= 0 && *value < static_cast<int>(combo.Items.size()) ? *value : 0;
  }

  // An index among `count` choices without a list of their own (radio groups, kinds).
  void choice(std::string_view name, int count, int& target) const {
    if (const auto value = number(name)) target = *value >= 0 && *value < count ? *value : 0;
  }

  void position(std::string_view name, std::optional<int>& target) const {
    if (const auto value = number(name)) target = value;
  }

 private:
  const Registrierung& store_;
  std::string_view section_;
};

class Writer {
 public:
  Writer(Registrierung& store, std::string_view section) : store_(store), section_(section) {}

  void text(std::string_view name, std::string_view value) { store_.writeString(section_, name, value); }
  void number(std::string_view name, int value) { text(name, std::to_string(value)); }
  void flag(std::string_view name, bool value) { text(name, value ? "j" : "n"); }
  void position(std::string_view name, const std::optional<int>& value) {
    if (value) number(name, *value);
  }

 private:
  Registrierung& store_;
  std::string_view section_;
};

std::string vaName(int row) {
  return "Va" + std::to_string(row);
}

std::string vaUnitName(int row) {
  return vaName(row) + "_Einheit";
}

}  // namespace

void Registry_Sprachversion_lesen(Anwendung& app, const Registrierung& store) {
  const auto version = Reader(store, kAllgemein).number("Sprachversion");
  if (!version || *version < 0 || *version >= static_cast<int>(kSprachversionen.size())) return;
  const auto i = static_cast<std::size_t>(*version);
  app.Sprache.Sprachkennung = kSprachversionen[i];
  app.productTitle = kProductTitles[i];
}

void Standardeinstellungen(Anwendung& app) {
  const char d = app.Dezimaltrennzeichen;
  TEinstellungenDlg& settings = app.EinstellungenDlg;
  TMyWindow& form = app.MyWindow;
  const bool german = app.Sprache.Sprachkennung == 'D';
  settings.Normspaltenbreite0 = 130;
  settings.Normspaltenbreite1 = 150;
  settings.selectLanguage(app.Sprache.Sprachkennung);
  settings.Edit2.Text = "3";
  settings.Edit1.Text = "20";
  settings.ComboBox1.ItemIndex = german ? 0 : 1;
  settings.RadioGroup1 = 0;

  form.Eingabe_Medium.Text = app.Sprache.globalWord(kDefaultMediumWord);
  form.ComboBox4.ItemIndex = 0;
  form.Einheiten_Volumenstrom_aktualisieren();  // also shows the flow unit in Label7
  form.Eingabe_Volumenstrom.Text = buildDefault("1d0", d);
  form.ComboBox2.ItemIndex = 0;
  form.Eingabe_Dichte.Text = buildDefault("998d2", d);
  form.ComboBox5.ItemIndex = 0;
  form.Einheiten_Visko_aktualisieren();
  form.Eingabe_Viskositaet.Text = "1002";
  form.Edit_EingangsdruckN.Text = "1";
  form.Edit_EingangstemperaturN.Text = "300";
  form.Edit_AusgangstemperaturN.Text = "250";
  form.ComboBox6N.ItemIndex = form.ComboBox7N.ItemIndex = form.ComboBox8N.ItemIndex = 0;
  form.selectLiquid(true);  // greys the gas data
  form.Edit2.Text = buildDefault("0d1", d);
  form.ComboBox6.ItemIndex = 0;
}

void Registry_Lesen(Anwendung& app, const Registrierung& store) {
  Standardeinstellungen(app);
  TEinstellungenDlg& settings = app.EinstellungenDlg;
  TMyWindow& form = app.MyWindow;

  {
    const Reader r(store, kAllgemein);
    for (auto [name, width] : {std::pair{"RNormspaltenbreite0", &settings.Normspaltenbreite0},
                               std::pair{"RNormspaltenbreite1", &settings.Normspaltenbreite1}}) {
      if (const auto value = r.number(name); value && *value > 0) *width = *value;
    }
    settings.ComboBox4.ItemIndex = 0;
    r.index("Beremethode", settings.ComboBox4);
    if (const auto value = store.readString(kAllgemein, "Nachkomma");
        value && TEinstellungenDlg::isValidDecimals(*value)) {
      settings.Edit2.Text = *value;
    }
    if (const auto value = store.readString(kAllgemein, "Punkte_Dia");
        value && TEinstellungenDlg::isValidDiagramPoints(*value)) {
      settings.Edit1.Text = *value;
    }
    r.index("Sprache_Stoffe", settings.ComboBox1);
    settings.ComboBox3.ItemIndex = 0;
    r.index("Ben_Daba_Einheit", settings.ComboBox3);
    settings.CheckBox1.Checked = settings.CheckBox2.Checked = false;
    r.flag("Zeilenumbruch", settings.CheckBox1);
    r.flag("Unit_Umrechnung", settings.CheckBox2);
    r.choice("Gasdaten_aktualisieren", 3, settings.RadioGroup1);
    // The language box shows the language the program runs in; a choice made in the dialog was
    // written at the last close and is in force now.
    settings.selectLanguage(app.Sprache.Sprachkennung);
  }
  {
    const Reader r(store, kUnits);
    for (const UnitValue& unit : kUnitValues) {
      Combo& combo = *settings.unitCombo(unit.comboName);
      combo.ItemIndex = 0;
      r.index(unit.name, combo);
    }
    settings.Combo_SI_US.ItemIndex = 0;
    r.index("EHSI_US", settings.Combo_SI_US);
  }
  {
    const Reader r(store, kFenster);
    WindowPlacement& place = app.Fenster;
    for (auto [name, value] : {std::pair{"HF_Left", &place.HF_Left}, std::pair{"HF_Top", &place.HF_Top},
                               std::pair{"AF_Left", &place.AF_Left}, std::pair{"AF_Top", &place.AF_Top},
                               std::pair{"AF_Width", &place.AF_Width}, std::pair{"AF_Height", &place.AF_Height}}) {
      r.position(name, *value);
    }
    // A result window stored below the bottom of this screen, or above its top, comes back at the top.
    if (place.AF_Top && (*place.AF_Top < 0 || (place.screenHeight > 0 && *place.AF_Top > place.screenHeight - 50))) {
      place.AF_Top = 0;
    }
  }
  {
    const Reader r(store, kMedium);
    r.text("Art", form.Eingabe_Medium);
    r.choice("Vol_Mastrom", 3, form.ComboBox4.ItemIndex);
    form.Einheiten_Volumenstrom_aktualisieren();
    r.text("Menge", form.Eingabe_Volumenstrom);
    r.index("Menge_Einheit", form.ComboBox1);
    form.Label7.Caption = form.ComboBox1.text();
    r.text("Dichte", form.Eingabe_Dichte);
    r.index("Dichte_Einheit", form.ComboBox2);
    r.choice("Dyn_KinVisko", 2, form.ComboBox5.ItemIndex);
    form.Einheiten_Visko_aktualisieren();
    r.text("Visko", form.Eingabe_Viskositaet);
    r.index("Visko_Einheit", form.ComboBox3);
    if (const auto liquid = store.readString(kMedium, "fluessig")) form.selectLiquid(*liquid == "1");
  }
  {
    const Reader r(store, kGasdaten);
    r.text("E_Druck", form.Edit_EingangsdruckN);
    r.index("E_Druck_Einheit", form.ComboBox6N);
    r.text("E_Temp", form.Edit_EingangstemperaturN);
    r.index("E_Temp_Einheit", form.ComboBox7N);
    r.text("A_Temp", form.Edit_AusgangstemperaturN);
    r.index("A_Temp_Einheit", form.ComboBox8N);
  }
  {
    const Reader r(store, kRohr);
    // The element is one key: unless both numbers name an element of the catalogue, the straight pipe.
    const auto group = r.number("Gruppe");
    const auto nr = r.number("UGruppe");
    const bool known = group && nr && findElement(*group, *nr);
    app.state.ElementGruppe = known ? *group : 1;
    app.state.ElementNr = known ? *nr : 1;
    form.ComboVar1.ItemIndex = form.ComboVar2.ItemIndex = form.ComboVar3.ItemIndex = 0;
    form.Element_Fenster_aktualisieren();
    for (int row = 1; row <= kPanelRows; ++row) {
      r.text(vaName(row), form.vaEdit(row));
      r.index(vaUnitName(row), form.comboVar(row));
    }
    r.text("VaRauh", form.Edit2);
    r.index("VaRauh_Einheit", form.ComboBox6);
  }
  if (store.sectionExists(kRecentFiles)) app.RecentFiles.LoadFromReg(store, kRecentFiles);
}

void Registry_Schreiben(const Anwendung& app, Registrierung& store) {
  const TEinstellungenDlg& settings = app.EinstellungenDlg;
  const TMyWindow& form = app.MyWindow;
  {
    Writer w(store, kAllgemein);
    w.number("Sprachversion", settings.ComboBox2.ItemIndex);
    w.number("RNormspaltenbreite0", settings.Normspaltenbreite0);
    w.number("RNormspaltenbreite1", settings.Normspaltenbreite1);
    w.number("Beremethode", settings.ComboBox4.ItemIndex);
    w.text("Nachkomma", settings.Edit2.Text);
    w.text("Punkte_Dia", settings.Edit1.Text);
    w.number("Sprache_Stoffe", settings.ComboBox1.ItemIndex);
    w.number("Ben_Daba_Einheit", settings.ComboBox3.ItemIndex);
    w.flag("Zeilenumbruch", settings.CheckBox1.Checked);
    w.flag("Unit_Umrechnung", settings.CheckBox2.Checked);
    w.number("Gasdaten_aktualisieren", settings.RadioGroup1);
  }
  {
    Writer w(store, kUnits);
    for (const UnitValue& unit : kUnitValues) w.number(unit.name, settings.unitCombo(unit.comboName)->ItemIndex);
    w.number("EHSI_US", settings.Combo_SI_US.ItemIndex);
  }
  {
    Writer w(store, kFenster);
    const WindowPlacement& place = app.Fenster;
    w.position("HF_Left", place.HF_Left);
    w.position("HF_Top", place.HF_Top);
    w.position("AF_Left", place.AF_Left);
    w.position("AF_Top", place.AF_Top);
    w.position("AF_Width", place.AF_Width);
    w.position("AF_Height", place.AF_Height);
  }
  {
    Writer w(store, kMedium);
    w.text("Art", form.Eingabe_Medium.Text);
    w.number("Vol_Mastrom", form.ComboBox4.ItemIndex);
    w.text("Menge", form.Eingabe_Volumenstrom.Text);
    w.number("Menge_Einheit", form.ComboBox1.ItemIndex);
    w.text("Dichte", form.Eingabe_Dichte.Text);
    w.number("Dichte_Einheit", form.ComboBox2.ItemIndex);
    w.number("Dyn_KinVisko", form.ComboBox5.ItemIndex);
    w.text("Visko", form.Eingabe_Viskositaet.Text);
    w.number("Visko_Einheit", form.ComboBox3.ItemIndex);
    w.text("fluessig", form.Radio_fluessig.Checked ? "1" : "0");
  }
  {
    Writer w(store, kGasdaten);
    w.text("E_Druck", form.Edit_EingangsdruckN.Text);
    w.number("E_Druck_Einheit", form.ComboBox6N.ItemIndex);
    w.text("E_Temp", form.Edit_EingangstemperaturN.Text);
    w.number("E_Temp_Einheit", form.ComboBox7N.ItemIndex);
    w.text("A_Temp", form.Edit_AusgangstemperaturN.Text);
    w.number("A_Temp_Einheit", form.ComboBox8N.ItemIndex);
  }
  {
    Writer w(store, kRohr);
    w.number("Gruppe", app.state.ElementGruppe);
    w.number("UGruppe", app.state.ElementNr);
    for (int row = 1; row <= kPanelRows; ++row) {
      w.text(vaName(row), form.vaEdit(row).Text);
      w.number(vaUnitName(row), form.comboVar(row).ItemIndex);
    }
    w.text("VaRauh", form.Edit2.Text);
    w.number("VaRauh_Einheit", form.ComboBox6.ItemIndex);
  }
  app.RecentFiles.SaveToReg(store, kRecentFiles);
}

}  // namespace linecalc
