#include <CLI/CLI.hpp>
#include <iostream>

#include "cli_context.h"
#include "convert_command.h"
#include "element_command.h"
#include "elements_command.h"
#include "project_command.h"
#include "run_command.h"
#include "water_command.h"

int main(int argc, char** argv) {
  using namespace linecalc::cli;
  CliContext context;
  context.out = &std::cout;
  context.err = &std::cerr;

  CLI::App app{
      "WH Linecalc command-line tool: the pipe-run calculator's calculations without the desktop.\n"
      "Texts are read exactly as the program's input fields read them (comma or point)."};
  app.name("linecalc-cli");
  app.set_version_flag("--version", "linecalc-cli 7.2.2");
  app.require_subcommand(0, 1);
  app.fallthrough();
  app.add_option_function<std::string>(
         "--format",
         [&context](const std::string& format) {
           context.format = format == "json"  ? OutputFormat::Json
                            : format == "csv" ? OutputFormat::Csv
                                              : OutputFormat::Text;
         },
         "Output: text (default), csv or json")
      ->check(CLI::IsMember({"text", "csv", "json"}));
  app.add_option("--separator", context.separator, "Decimal separator of numbers in text output: . (default) or ,")
      ->check(CLI::IsMember({'.', ','}));
  app.add_option("--language", context.language,
                 "Language of the words: D German, E English (default), F French, H Dutch")
      ->check(CLI::IsMember({'D', 'E', 'F', 'H'}));
  app.add_option("--decimals", context.decimals, "Decimals of the result table, 0 to 6 (default 3)")
      ->check(CLI::Range(0, 6));
  app.add_option("--method", context.method, "Friction factor: 0 Colebrook (default), 1 by sections, 2 Churchill")
      ->check(CLI::Range(0, 2));
  app.add_option("--gas-update", context.gasUpdate, "Gas state along the line: 0 none (default), 1 real, 2 ideal")
      ->check(CLI::Range(0, 2));
  app.add_option("--settings", context.settingsFile, "A settings file (INI) instead of the built-in defaults");
  app.footer("Run `linecalc-cli COMMAND --help` for a command's options and examples.");

  addConvertCommand(app, context);
  addElementsCommand(app, context);
  addElementCommand(app, context);
  addRunCommand(app, context);
  addProjectCommand(app, context);
  addWaterCommand(app, context);
  addWaterSaturationCommand(app, context);

  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& e) {
    return app.exit(e);
  } catch (const CLI::CallForVersion& e) {
    return app.exit(e);
  } catch (const CLI::ParseError& e) {
    app.exit(e);
    return kUsage;
  }
  if (app.get_subcommands().empty()) std::cout << app.help();
  return context.exitStatus;
}
