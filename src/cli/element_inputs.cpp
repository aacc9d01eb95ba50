#include "element_inputs.h"

#include <algorithm>
#include <vector>

namespace linecalc::cli {

namespace {

// Selects a unit by its text; an error text naming the list when the unit is not in it.
std::string selectUnit(Combo& combo, const std::optional<std::string>& unit, const std::string& option) {
  if (!unit) return {};
  if (combo.selectText(*unit)) return {};
  std::string known;
  for (const auto& item : combo.Items) known += (known.empty() ? "" : ", ") + item;
  return option + ": unit \"" + *unit + "\" is not offered here; choose one of: " + known;
}

void type(Edit& field, const std::optional<std::string>& text) {
  if (text) field.Text = *text;
}

}  // namespace

void addElementOptions(CLI::App& command, ElementInputs& in) {
  command.add_option("--group,-g", in.group, "Element group 1 to 13")->check(CLI::Range(1, 13));
  command.add_option("--element,-e", in.element, "Element 1 to 9 of the group")->check(CLI::Range(1, 9));
  for (std::size_t i = 0; i < 5; ++i) {
    const std::string n = std::to_string(i + 1);
    command.add_option("--va" + n, in.va[i], "Text of input row " + n);
    command.add_option("--va" + n + "-unit", in.vaUnit[i], "Unit of input row " + n + " (mm, in., m, ft., m2 ...)");
  }
  command.add_option("--pieces", in.pieces, "Count of like elements");
  command.add_option("--roughness", in.roughness, "Absolute pipe roughness");
  command.add_option("--roughness-unit", in.roughnessUnit, "mm or in.");
  command.add_option("--choice", in.choice, "The element's first or second choice")->check(CLI::IsMember({"1", "2"}));
  command.add_option("--designation", in.designation, "Pipe designation written into the table");
  command.add_option("--medium", in.medium, "Name of the medium");
  command.add_option("--state", in.state, "liquid or gas")->check(CLI::IsMember({"liquid", "gas"}));
  command.add_option("--flow", in.flow, "Flow");
  command.add_option("--flow-unit", in.flowUnit, "Unit of the flow (m3/h, kg/h, Nm3/h ...)");
  command.add_option("--flow-kind", in.flowKind, "volume, mass or standard")
      ->check(CLI::IsMember({"volume", "mass", "standard"}));
  command.add_option("--branch-flow", in.branchFlow, "Flow in the branch of a branch piece, in the flow unit");
  command.add_option("--density", in.density, "Density");
  command.add_option("--density-unit", in.densityUnit, "Unit of the density (kg/m3 ...)");
  command.add_option("--viscosity", in.viscosity, "Viscosity");
  command.add_option("--viscosity-unit", in.viscosityUnit, "Unit of the viscosity (10-6 kg/ms, cP, cSt ...)");
  command.add_option("--viscosity-kind", in.viscosityKind, "dynamic or kinematic")
      ->check(CLI::IsMember({"dynamic", "kinematic"}));
  command.add_option("--inlet-pressure", in.inletPressure, "Absolute inlet pressure of a gas");
  command.add_option("--inlet-pressure-unit", in.inletPressureUnit, "Unit of the inlet pressure (bar ...)");
  command.add_option("--inlet-temperature", in.inletTemperature, "Inlet temperature of a gas");
  command.add_option("--inlet-temperature-unit", in.inletTemperatureUnit, "Unit of the inlet temperature (°C, K ...)");
  command.add_option("--outlet-temperature", in.outletTemperature, "Outlet temperature of a gas");
  command.add_option("--outlet-temperature-unit", in.outletTemperatureUnit, "Unit of the outlet temperature");
}

std::string readElementInputs(const nlohmann::json& object, ElementInputs& in) {
  if (!object.is_object()) return "an element must be an object of inputs";
  std::vector<std::pair<std::string, std::optional<std::string>*>> texts = {
      {"pieces", &in.pieces},
      {"roughness", &in.roughness},
      {"roughness_unit", &in.roughnessUnit},
      {"choice", &in.choice},
      {"designation", &in.designation},
      {"medium", &in.medium},
      {"state", &in.state},
      {"flow", &in.flow},
      {"flow_unit", &in.flowUnit},
      {"flow_kind", &in.flowKind},
      {"branch_flow", &in.branchFlow},
      {"density", &in.density},
      {"density_unit", &in.densityUnit},
      {"viscosity", &in.viscosity},
      {"viscosity_unit", &in.viscosityUnit},
      {"viscosity_kind", &in.viscosityKind},
      {"inlet_pressure", &in.inletPressure},
      {"inlet_pressure_unit", &in.inletPressureUnit},
      {"inlet_temperature", &in.inletTemperature},
      {"inlet_temperature_unit", &in.inletTemperatureUnit},
      {"outlet_temperature", &in.outletTemperature},
      {"outlet_temperature_unit", &in.outletTemperatureUnit},
  };
  for (std::size_t i = 0; i < 5; ++i) {
    texts.push_back({"va" + std::to_string(i + 1), &in.va[i]});
    texts.push_back({"va" + std::to_string(i + 1) + "_unit", &in.vaUnit[i]});
  }
  for (const auto& [key, value] : object.items()) {
    if (key == "group" || key == "element") {
      if (!value.is_number_integer()) return "\"" + key + "\" must be a whole number";
      (key == "group" ? in.group : in.element) = value.get<int>();
      continue;
    }
    const auto found = std::find_if(texts.begin(), texts.end(), [&](const auto& t) { return t.first == key; });
    if (found == texts.end()) return "unknown input \"" + key + "\"";
    if (value.is_string()) {
      *found->second = value.get<std::string>();
    } else if (value.is_number()) {
      *found->second = value.dump();  // as typed: 36, 0.05
    } else {
      return "\"" + key + "\" must be a text or a number";
    }
  }
  return {};
}

std::string applyElementInputs(Anwendung& app, const ElementInputs& in) {
  TMyWindow& form = app.MyWindow;
  app.BtnBottomDlg.Start_Aktualisierung();
  if (!app.BtnBottomDlg.press(in.group, in.element)) {
    return "the catalogue has no element " + std::to_string(in.group) + "," + std::to_string(in.element);
  }
  app.BtnBottomDlg.OKBtnClick();

  if (in.state) form.selectLiquid(*in.state == "liquid");
  if (in.flowKind) {
    form.ComboBox4.ItemIndex = *in.flowKind == "mass" ? 1 : *in.flowKind == "standard" ? 2 : 0;
    form.Einheiten_Volumenstrom_aktualisieren();
  }
  if (in.viscosityKind) {
    form.ComboBox5.ItemIndex = *in.viscosityKind == "kinematic" ? 1 : 0;
    form.Einheiten_Visko_aktualisieren();
  }
  std::string error;
  for (std::size_t i = 0; i < 5 && error.empty(); ++i) {
    const int row = static_cast<int>(i) + 1;
    type(form.vaEdit(row), in.va[i]);
    error = selectUnit(form.comboVar(row), in.vaUnit[i], "--va" + std::to_string(row) + "-unit");
  }
  const std::pair<Combo*, std::pair<const std::optional<std::string>*, const char*>> units[] = {
      {&form.ComboBox6, {&in.roughnessUnit, "--roughness-unit"}},
      {&form.ComboBox1, {&in.flowUnit, "--flow-unit"}},
      {&form.ComboBox2, {&in.densityUnit, "--density-unit"}},
      {&form.ComboBox3, {&in.viscosityUnit, "--viscosity-unit"}},
      {&form.ComboBox6N, {&in.inletPressureUnit, "--inlet-pressure-unit"}},
      {&form.ComboBox7N, {&in.inletTemperatureUnit, "--inlet-temperature-unit"}},
      {&form.ComboBox8N, {&in.outletTemperatureUnit, "--outlet-temperature-unit"}},
  };
  for (const auto& [combo, option] : units) {
    if (error.empty()) error = selectUnit(*combo, *option.first, option.second);
  }
  if (!error.empty()) return error;
  form.Label7.Caption = form.ComboBox1.text();

  type(form.VaAnz_Edit, in.pieces);
  type(form.Edit2, in.roughness);
  type(form.Edit1, in.designation);
  type(form.Eingabe_Medium, in.medium);
  type(form.Eingabe_Volumenstrom, in.flow);
  type(form.Edit3, in.branchFlow);
  type(form.Eingabe_Dichte, in.density);
  type(form.Eingabe_Viskositaet, in.viscosity);
  type(form.Edit_EingangsdruckN, in.inletPressure);
  type(form.Edit_EingangstemperaturN, in.inletTemperature);
  type(form.Edit_AusgangstemperaturN, in.outletTemperature);
  if (in.choice && form.RadioButton1.Visible) {
    form.RadioButton1.Checked = *in.choice == "1";
    form.RadioButton2.Checked = !form.RadioButton1.Checked;
  }
  return {};
}

}  // namespace linecalc::cli
