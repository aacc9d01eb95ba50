#include "convert_command.h"

#include <array>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "base/numbers.h"
#include "base/units.h"

namespace linecalc::cli {

namespace {

struct QuantityName {
  std::string_view name;
  UnitFamily family;
};

constexpr std::array kQuantities = {
    QuantityName{"length", UnitFamily::Length},
    QuantityName{"diameter", UnitFamily::Diameter},
    QuantityName{"density", UnitFamily::Density},
    QuantityName{"specific-volume", UnitFamily::SpecificVolume},
    QuantityName{"volume-flow", UnitFamily::VolumeFlow},
    QuantityName{"volume", UnitFamily::Volume},
    QuantityName{"mass-flow", UnitFamily::MassFlow},
    QuantityName{"dynamic-viscosity", UnitFamily::DynamicViscosity},
    QuantityName{"kinematic-viscosity", UnitFamily::KinematicViscosity},
    QuantityName{"pressure", UnitFamily::Pressure},
    QuantityName{"standard-volume-flow", UnitFamily::StandardVolumeFlow},
    QuantityName{"velocity", UnitFamily::Velocity},
    QuantityName{"section", UnitFamily::Section},
    QuantityName{"power", UnitFamily::Power},
    QuantityName{"temperature", UnitFamily::Temperature},
};

struct ConvertOptions {
  std::string quantity;
  std::string from;
  std::string to;
  std::string value;
  bool list = false;
};

UnitFamily familyNamed(const std::string& name) {
  for (const auto& q : kQuantities) {
    if (q.name == name) return q.family;
  }
  return UnitFamily::Length;  // unreachable: CLI11 checks the name against the list
}

std::string unitListText(UnitFamily family) {
  std::string text;
  for (const auto& unit : unitSteps(family)) text += (text.empty() ? "" : ", ") + std::string(unit.text);
  return text;
}

void listUnits(const ConvertOptions& options, CliContext& context) {
  const UnitFamily family = familyNamed(options.quantity);
  if (context.format == OutputFormat::Json) {
    nlohmann::json units = nlohmann::json::array();
    for (const auto& unit : unitSteps(family)) units.push_back(unit.text);
    *context.out
        << nlohmann::json{{"quantity", options.quantity}, {"base_unit", baseUnit(family)}, {"units", units}}.dump(2)
        << '\n';
  } else {
    *context.out << options.quantity << " (base " << baseUnit(family) << "): " << unitListText(family) << '\n';
  }
}

void refuse(CliContext& context, const std::string& message) {
  context.exitStatus = kRefused;
  if (context.format == OutputFormat::Json) {
    *context.out << nlohmann::json{{"error", message}}.dump(2) << '\n';
  } else {
    *context.err << "linecalc-cli: " << message << '\n';
  }
}

void runConvert(const ConvertOptions& options, CliContext& context) {
  if (options.list) return listUnits(options, context);
  const UnitFamily family = familyNamed(options.quantity);
  for (const std::string* unit : {&options.from, &options.to}) {
    if (!findUnit(family, *unit)) {
      return refuse(context,
                    "unknown " + options.quantity + " unit \"" + *unit + "\"; known units: " + unitListText(family));
    }
  }
  bool readable = true;
  const Real value = Zahl_lesen(options.value, readable);
  if (!readable) return refuse(context, "\"" + options.value + "\" is not a number");

  const Real result = convertUnit(family, options.from, options.to, value);
  if (context.format == OutputFormat::Json) {
    const nlohmann::json answer = {{"quantity", options.quantity},
                                   {"from", options.from},
                                   {"to", options.to},
                                   {"value", static_cast<double>(value)},
                                   {"result", static_cast<double>(result)},
                                   {"base_unit", baseUnit(family)}};
    *context.out << answer.dump(2) << '\n';
  } else {
    *context.out << formatShortest(value, context.separator) << ' ' << options.from << " = "
                 << formatShortest(result, context.separator) << ' ' << options.to << '\n';
  }
}

}  // namespace

void addConvertCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<ConvertOptions>();
  CLI::App* command = app.add_subcommand("convert", "Convert a value between two units of one quantity");
  command->footer(
      "Examples:\n"
      "  linecalc-cli convert --quantity pressure --from psi --to bar 14,7\n"
      "  linecalc-cli convert --quantity volume-flow --from gal/min --to m3/h 1 --format json\n"
      "  linecalc-cli convert --quantity temperature --list");
  std::vector<std::string> names;
  for (const auto& q : kQuantities) names.emplace_back(q.name);
  command->add_option("--quantity,-q", options->quantity, "The quantity")->required()->check(CLI::IsMember(names));
  command->add_flag("--list", options->list, "List the unit texts the quantity knows and stop");
  command->add_option("--from", options->from,
                      "Unit of the value, as the program writes it (\"m3/h\", \"psi\", \"°C\")");
  command->add_option("--to", options->to, "Unit of the result");
  command->add_option("value", options->value, "The value; comma or point for the decimals");
  command->callback([options, &context, command] {
    if (!options->list && (options->from.empty() || options->to.empty() || options->value.empty())) {
      throw CLI::ValidationError("convert", "needs --from, --to and a value (or --list)");
    }
    runConvert(*options, context);
  });
}

}  // namespace linecalc::cli
