#include "water_command.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>

#include "base/directories.h"
#include "cli_meldungen.h"
#include "project/data_file.h"
#include "workspace/anwendung.h"

namespace linecalc::cli {

namespace {

constexpr int kStateHeadingWord = 16, kLiquidWord = 57, kGasWord = 67;

struct WaterOptions {
  std::string pressure, pressureUnit = "bar";
  std::string temperature, temperatureUnit = "°C";
};

struct SaturationOptions {
  std::optional<std::string> pressure, temperature;
  std::string pressureUnit = "bar", temperatureUnit = "°C";
};

std::string itemsText(const Combo& combo) {
  std::string text;
  for (const auto& item : combo.Items) text += (text.empty() ? "" : ", ") + item;
  return text;
}

// Selects a unit in a dialog's box; on failure reports the units the box holds and sets the usage status.
bool selectUnit(Combo& combo, const std::string& unit, const std::string& what, CliContext& context) {
  if (combo.selectText(unit)) return true;
  *context.err << "linecalc-cli: unknown " << what << " unit \"" << unit << "\"; known units: " << itemsText(combo)
               << '\n';
  context.exitStatus = kUsage;
  return false;
}

// An application started on the data folder with the command's language and decimals; nullptr (and the usage
// status) when the data files cannot be read.
std::unique_ptr<Anwendung> startApplication(CliMeldungen& meldungen, CliContext& context) {
  auto app = std::make_unique<Anwendung>(meldungen, context.separator);
  app->Sprache.Sprachkennung = context.language;
  try {
    app->start(dataDirectory());
  } catch (const DataFileError& e) {
    *context.err << "linecalc-cli: " << e.what() << '\n';
    context.exitStatus = kUsage;
    return nullptr;
  }
  if (context.decimals) app->EinstellungenDlg.Edit2.Text = std::to_string(*context.decimals);
  return app;
}

nlohmann::json messagesJson(const CliMeldungen& meldungen) {
  nlohmann::json messages = nlohmann::json::array();
  for (const auto& m : meldungen.messages()) {
    messages.push_back({{"kind", kindName(m.kind)}, {"caption", m.caption}, {"text", m.text}});
  }
  return messages;
}

double number(Real value) {
  return static_cast<double>(value);
}

// One result row: the label without its colon, the text as the dialog shows it, the unit.
void printRow(std::ostream& out, const Label& label, const std::string& text, const Combo& unit) {
  out << label.Caption << ' ' << text << ' ' << unit.text() << '\n';
}

void runWater(const WaterOptions& options, CliContext& context) {
  const bool json = context.format == OutputFormat::Json;
  CliMeldungen meldungen(json ? nullptr : context.err, Answer::No);
  const auto app = startApplication(meldungen, context);
  if (!app) return;
  TIAPWSDlg& dialog = app->IAPWSDlg;
  dialog.FormShow();
  if (!selectUnit(dialog.ComboBox1, options.pressureUnit, "pressure", context) ||
      !selectUnit(dialog.ComboBox2, options.temperatureUnit, "temperature", context)) {
    return;
  }
  dialog.Edit1.Text = options.pressure;
  dialog.Edit2.Text = options.temperature;
  dialog.BitBtn1Click();

  const bool computed = dialog.resultStands();
  context.exitStatus = computed ? kComputed : kRefused;
  const std::string stateWord = app->Sprache.globalWord(dialog.fluessig ? kLiquidWord : kGasWord);
  if (!json) {
    if (!computed) return;
    std::ostream& out = *context.out;
    out << "IAPWS-IF97: " << dialog.Bereich << '\n';
    out << app->Sprache.globalWord(kStateHeadingWord) << ": " << stateWord << '\n';
    printRow(out, dialog.densityLabel, dialog.Label6.Caption, dialog.ComboBox3);
    printRow(out, dialog.specificVolumeLabel, dialog.Label13.Caption, dialog.ComboBox4);
    printRow(out, dialog.viscosityLabel, dialog.Label7.Caption, dialog.ComboBox5);
    return;
  }
  nlohmann::json answer = {{"computed", computed}, {"messages", messagesJson(meldungen)}};
  if (computed) {
    answer["region"] = dialog.Bereich;
    answer["state"] = dialog.fluessig ? "liquid" : "gas";
    answer["state_word"] = stateWord;
    answer["density"] = number(dialog.GL_Dichte);
    answer["specific_volume"] = number(1 / dialog.GL_Dichte);
    answer["viscosity"] = number(dialog.GL_Viskositaet);
    answer["units"] = {{"density", "kg/m3"}, {"specific_volume", "m3/kg"}, {"viscosity", "10-6 kg/ms"}};
    answer["texts"] = {
        {"density", {{"text", dialog.Label6.Caption}, {"unit", dialog.ComboBox3.text()}}},
        {"specific_volume", {{"text", dialog.Label13.Caption}, {"unit", dialog.ComboBox4.text()}}},
        {"viscosity", {{"text", dialog.Label7.Caption}, {"unit", dialog.ComboBox5.text()}}},
    };
  }
  *context.out << answer.dump(2) << '\n';
}

nlohmann::json phaseJson(Real density, Real viscosity, const Label& densityText, const Combo& densityUnit,
                         const Label& volumeText, const Combo& volumeUnit, const Label& viscosityText,
                         const Combo& viscosityUnit) {
  return {{"density", number(density)},
          {"specific_volume", number(1 / density)},
          {"viscosity", number(viscosity)},
          {"texts",
           {{"density", {{"text", densityText.Caption}, {"unit", densityUnit.text()}}},
            {"specific_volume", {{"text", volumeText.Caption}, {"unit", volumeUnit.text()}}},
            {"viscosity", {{"text", viscosityText.Caption}, {"unit", viscosityUnit.text()}}}}}};
}

void runSaturation(const SaturationOptions& options, CliContext& context) {
  const bool json = context.format == OutputFormat::Json;
  CliMeldungen meldungen(json ? nullptr : context.err, Answer::No);
  const auto app = startApplication(meldungen, context);
  if (!app) return;
  TSattdampfDialog& dialog = app->SattdampfDialog;
  const bool temperatureGiven = options.temperature.has_value();
  dialog.RadioGroup1Click(temperatureGiven ? 0 : 1);
  dialog.FormShow();
  if (temperatureGiven) {
    if (!selectUnit(dialog.ComboBox2, options.temperatureUnit, "temperature", context)) return;
    dialog.Edit2.Text = *options.temperature;
  } else {
    if (!selectUnit(dialog.ComboBox1, options.pressureUnit, "pressure", context)) return;
    dialog.Edit1.Text = *options.pressure;
  }
  // The computed pressure is shown in --pressure-unit, the computed temperature in --temperature-unit.
  if (temperatureGiven ? !selectUnit(dialog.ComboBox6, options.pressureUnit, "pressure", context)
                       : !selectUnit(dialog.ComboBox6, options.temperatureUnit, "temperature", context)) {
    return;
  }
  dialog.BitBtn2Click();

  const bool computed = dialog.resultStands();
  context.exitStatus = computed ? kComputed : kRefused;
  if (!json) {
    if (!computed) return;
    std::ostream& out = *context.out;
    out << dialog.computedLabel.Caption << ' ' << dialog.Label22.Caption << ' ' << dialog.ComboBox6.text() << '\n';
    out << dialog.vapourHeading.Caption << '\n';
    printRow(out, dialog.densityLabel, dialog.Label18.Caption, dialog.ComboBox3);
    printRow(out, dialog.specificVolumeLabel, dialog.Label2.Caption, dialog.ComboBox4);
    printRow(out, dialog.viscosityLabel, dialog.Label19.Caption, dialog.ComboBox5);
    out << dialog.liquidHeading.Caption << '\n';
    printRow(out, dialog.densityLabel, dialog.Label20.Caption, dialog.ComboBox7);
    printRow(out, dialog.specificVolumeLabel, dialog.Label4.Caption, dialog.ComboBox8);
    printRow(out, dialog.viscosityLabel, dialog.Label21.Caption, dialog.ComboBox9);
    return;
  }
  nlohmann::json answer = {{"computed", computed}, {"messages", messagesJson(meldungen)}};
  if (computed) {
    answer["given"] = temperatureGiven ? "temperature" : "pressure";
    answer["temperature"] = number(dialog.Temp);
    answer["pressure"] = number(dialog.Dadru);
    answer["computed_text"] = {{"text", dialog.Label22.Caption}, {"unit", dialog.ComboBox6.text()}};
    answer["units"] = {{"temperature", "K"},
                       {"pressure", "bar"},
                       {"density", "kg/m3"},
                       {"specific_volume", "m3/kg"},
                       {"viscosity", "10-6 kg/ms"}};
    answer["vapour"] = phaseJson(dialog.DichteG, dialog.ViskoG, dialog.Label18, dialog.ComboBox3, dialog.Label2,
                                 dialog.ComboBox4, dialog.Label19, dialog.ComboBox5);
    answer["liquid"] = phaseJson(dialog.DichteF, dialog.ViskoF, dialog.Label20, dialog.ComboBox7, dialog.Label4,
                                 dialog.ComboBox8, dialog.Label21, dialog.ComboBox9);
  }
  *context.out << answer.dump(2) << '\n';
}

}  // namespace

void addWaterCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<WaterOptions>();
  CLI::App* command = app.add_subcommand(
      "water", "Density, specific volume and dynamic viscosity of water or steam at a pressure and temperature");
  command->footer(
      "By IAPWS-IF97 (Region 5 in its form of 1997) and the IAPS 1985 viscosity, as the dialog\n"
      "\"Wasser/-dampf (allgemein)\" computes them: 0 to 800 °C up to 1000 bar, 800 to 900 °C up to 100 bar.\n"
      "Results in kg/m3, m3/kg and 10-6 kg/ms, shown with --decimals (default 3).\n"
      "Examples:\n"
      "  linecalc-cli water --pressure 1,013 --temperature 20\n"
      "  linecalc-cli --format json water --pressure 300 --temperature 400\n"
      "  linecalc-cli --language D --separator , water --pressure 14,7 --pressure-unit psia \\\n"
      "      --temperature 600 --temperature-unit degF");
  command->add_option("--pressure,-p", options->pressure, "Pressure, absolute; comma or point")->required();
  command->add_option("--pressure-unit", options->pressureUnit, "Unit of the pressure (default bar)");
  command->add_option("--temperature,-t", options->temperature, "Temperature; comma or point")->required();
  command->add_option("--temperature-unit", options->temperatureUnit,
                      "Unit of the temperature: °C (default), K, degF, °R");
  command->callback([options, &context] { runWater(*options, context); });
}

void addWaterSaturationCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<SaturationOptions>();
  CLI::App* command = app.add_subcommand(
      "water-saturation", "Saturation state of water from a temperature or a pressure, vapour and liquid");
  command->footer(
      "By IAPWS-IF97, as the dialog \"Wasser/-dampf (Sättigungszustand)\" computes it: a temperature from\n"
      "0 to 373 °C (273.15 to 646.15 K) or a pressure from 0.007 to 220 bar. The computed pressure is shown\n"
      "in --pressure-unit, the computed temperature in --temperature-unit.\n"
      "Examples:\n"
      "  linecalc-cli water-saturation --temperature 100\n"
      "  linecalc-cli --format json water-saturation --pressure 10 --temperature-unit K\n"
      "  linecalc-cli water-saturation --temperature 646,15 --temperature-unit K --pressure-unit MPa");
  auto* temperature = command->add_option("--temperature,-t", options->temperature, "The given temperature");
  auto* pressure = command->add_option("--pressure,-p", options->pressure, "The given pressure, absolute");
  temperature->excludes(pressure);
  command->add_option("--temperature-unit", options->temperatureUnit,
                      "Unit of temperatures: °C (default), K, degF, °R");
  command->add_option("--pressure-unit", options->pressureUnit, "Unit of pressures (default bar)");
  command->callback([options, &context] {
    if (!options->temperature && !options->pressure) {
      throw CLI::ValidationError("water-saturation", "needs --temperature or --pressure");
    }
    runSaturation(*options, context);
  });
}

}  // namespace linecalc::cli
