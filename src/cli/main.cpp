#include <CLI/CLI.hpp>
#include <iostream>

#include "cli_context.h"
#include "convert_command.h"
#include "elements_command.h"

int main(int argc, char** argv) {
  using namespace linecalc::cli;
  CliContext context{.out = &std::cout, .err = &std::cerr};

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
           context.format = format == "json" ? OutputFormat::Json : OutputFormat::Text;
         },
         "Output: text (default) or json")
      ->check(CLI::IsMember({"text", "json"}));
  app.add_option("--separator", context.separator, "Decimal separator of numbers in text output: . (default) or ,")
      ->check(CLI::IsMember({'.', ','}));
  app.add_option("--language", context.language,
                 "Language of the words: D German, E English (default), F French, H Dutch")
      ->check(CLI::IsMember({'D', 'E', 'F', 'H'}));
  app.footer("Run `linecalc-cli COMMAND --help` for a command's options and examples.");

  addConvertCommand(app, context);
  addElementsCommand(app, context);

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
