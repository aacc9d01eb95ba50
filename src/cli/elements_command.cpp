#include "elements_command.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "base/directories.h"
#include "catalogue/language_tables.h"
#include "catalogue/main_form_words.h"
#include "project/data_file.h"

namespace linecalc::cli {

namespace {

std::string unitText(const LanguageTables& tables, const PanelRow& row) {
  switch (row.unit) {
    case RowUnit::Durchmesser:
      return "mm | in.";
    case RowUnit::Laenge:
      return "m | ft.";
    case RowUnit::Querschnitt:
      return "m2 | cm2 | mm2 | in2 | ft2 | yd2";
    case RowUnit::Fixed:
      return row.fixedUnitRow ? tables.globalWord(row.fixedUnitRow) : std::string(row.fixedUnit);
    case RowUnit::None:
      return "";
  }
  return "";
}

std::string defaultText(const PanelRow& row, char separator) {
  if (row.copyFrom) return "Va" + std::to_string(row.copyFrom);
  return row.keep ? std::string() : buildDefault(row.defaultText, separator);
}

nlohmann::json elementJson(const LanguageTables& tables, const MainFormWords& words, const ElementDefinition& e,
                           char separator) {
  nlohmann::json rows = nlohmann::json::array();
  for (const auto& row : e.rows) {
    if (!row.used()) continue;
    rows.push_back({{"label", tables.globalWord(row.labelRow) + std::string(row.suffix)},
                    {"unit", unitText(tables, row)},
                    {"default", defaultText(row, separator)},
                    {"keeps_input", row.keep}});
  }
  nlohmann::json element = {{"group", e.group},
                            {"element", e.nr},
                            {"group_name", tables.Gruppe_Name[e.group]},
                            {"name", tables.Untergruppe_Name[e.group][e.nr]},
                            {"german_name", e.germanName},
                            {"picture", e.picture},
                            {"rows", rows},
                            {"roughness", e.roughness},
                            {"branch_flow", e.branchFlow},
                            {"information", words.SV_Elementinfo[e.group][e.nr]}};
  if (e.choice.labelRow) {
    const auto choiceText = [&](const ChoiceText& c) { return std::string(c.prefix) + tables.globalWord(c.wordRow); };
    element["choice"] = {{"label", tables.globalWord(e.choice.labelRow)},
                         {"first", choiceText(e.choice.first)},
                         {"second", choiceText(e.choice.second)}};
  }
  return element;
}

void printText(std::ostream& out, const nlohmann::json& element) {
  out << element["group"].get<int>() << ',' << element["element"].get<int>() << "  "
      << element["group_name"].get<std::string>() << " - " << element["name"].get<std::string>() << '\n';
  for (const auto& row : element["rows"]) {
    out << "      " << row["label"].get<std::string>() << ' ' << row["unit"].get<std::string>();
    if (!row["default"].get<std::string>().empty()) out << "  [" << row["default"].get<std::string>() << ']';
    out << '\n';
  }
  if (element.contains("choice")) {
    out << "      " << element["choice"]["label"].get<std::string>() << ": "
        << element["choice"]["first"].get<std::string>() << " | " << element["choice"]["second"].get<std::string>()
        << '\n';
  }
}

void runElements(int group, CliContext& context) {
  LanguageTables tables;
  tables.Sprachkennung = context.language;
  try {
    tables.Sprachdatei_laden(dataDirectory());
    tables.Gruppen_laden(dataDirectory());
  } catch (const DataFileError& e) {
    *context.err << "linecalc-cli: " << e.what() << '\n';
    context.exitStatus = kUsage;
    return;
  }
  const MainFormWords words = readMainFormWords(tables);
  nlohmann::json all = nlohmann::json::array();
  for (const auto& element : allElements()) {
    if (group == 0 || element.group == group) all.push_back(elementJson(tables, words, element, context.separator));
  }
  if (context.format == OutputFormat::Json) {
    *context.out << all.dump(2) << '\n';
    return;
  }
  for (const auto& element : all) printText(*context.out, element);
}

}  // namespace

void addElementsCommand(CLI::App& app, CliContext& context) {
  auto group = std::make_shared<int>(0);
  CLI::App* command = app.add_subcommand("elements", "List the pipe elements with their input rows and defaults");
  command->add_option("--group,-g", *group, "Only this group (1 to 13)")->check(CLI::Range(1, 13));
  command->footer(
      "Examples:\n"
      "  linecalc-cli elements --group 4\n"
      "  linecalc-cli --language D --separator , elements\n"
      "  linecalc-cli --format json elements -g 9");
  command->callback([group, &context] { runElements(*group, context); });
}

}  // namespace linecalc::cli
