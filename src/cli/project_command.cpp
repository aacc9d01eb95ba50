#include "project_command.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <vector>

#include "cli_app.h"
#include "cli_meldungen.h"
#include "project/project_file.h"
#include "table_output.h"

namespace linecalc::cli {

namespace {

struct ProjectOptions {
  std::string file;
  bool check = false;
};

void runProject(const ProjectOptions& options, CliContext& context) {
  CliMeldungen meldungen(context.format == OutputFormat::Json ? nullptr : context.err, Answer::No);
  const std::unique_ptr<Anwendung> started = startApplication(context, meldungen);
  if (!started) return;
  Anwendung& app = *started;
  if (!Datei_oeffnen(app, options.file)) {
    context.exitStatus = kUsage;
    if (context.format == OutputFormat::Json) {
      *context.err << "linecalc-cli: " << (meldungen.messages().empty() ? "" : meldungen.messages().back().text)
                   << '\n';
    }
    return;
  }
  TAusgabeneu_Fenster& window = app.Ausgabeneu_Fenster;
  nlohmann::json pages = nlohmann::json::array();
  context.exitStatus = kComputed;
  for (int page = 0; page < static_cast<int>(window.pages.size()); ++page) {
    window.activePage = page;
    nlohmann::json entry = tableJson(window, window.table());
    if (options.check) {
      std::vector<int> failed;
      const bool passes = app.MyWindow.Tabelle_pruefen(&failed);
      entry["check"] = {{"passes", passes}, {"failed_columns", failed}};
      if (!passes) context.exitStatus = kRefused;
      if (context.format != OutputFormat::Json) {
        *context.out << window.table().caption << ": ";
        if (passes) {
          *context.out << "all " << window.Anzahl_Berechnungen() << " calculations pass the check\n";
        } else {
          *context.out << "columns failing the check:";
          for (const int column : failed) *context.out << ' ' << column;
          *context.out << '\n';
        }
      }
    } else if (context.format == OutputFormat::Text) {
      *context.out << window.table().caption << '\n';
      printTable(*context.out, window, window.table());
      *context.out << '\n';
    } else if (context.format == OutputFormat::Csv) {
      printCsv(*context.out, window, window.table());
    }
    pages.push_back(entry);
  }
  if (context.format == OutputFormat::Json) {
    *context.out << nlohmann::json{{"file", options.file}, {"title", window.Edit1.Text}, {"pages", pages}}.dump(2)
                 << '\n';
  }
}

}  // namespace

void addProjectCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<ProjectOptions>();
  CLI::App* command = app.add_subcommand("project", "Print the tables of a project file, or check them");
  command->add_option("file", options->file, "The project file (.slf)")->required();
  command->add_flag("--check", options->check,
                    "Run every calculation of every table again through today's checks and report the columns that "
                    "fail (exit 1 when any does)");
  command->footer(
      "Examples:\n"
      "  linecalc-cli project cooling-water.slf\n"
      "  linecalc-cli --language D project cooling-water.slf --check\n"
      "  linecalc-cli --format json project cooling-water.slf");
  command->callback([options, &context] { runProject(*options, context); });
}

}  // namespace linecalc::cli
