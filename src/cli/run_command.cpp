#include "run_command.h"

#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>

#include "cli_app.h"
#include "cli_meldungen.h"
#include "element_inputs.h"
#include "project/project_file.h"
#include "table_output.h"
#include "workspace/anwendung.h"

namespace linecalc::cli {

namespace {

struct RunOptions {
  std::string file;
  std::string save;  // a project file to write the table into
};

void usageError(CliContext& context, const std::string& message) {
  *context.err << "linecalc-cli: " << message << '\n';
  context.exitStatus = kUsage;
}

void runFile(const RunOptions& options, CliContext& context) {
  nlohmann::json run;
  try {
    std::ifstream in(options.file);
    if (!in) return usageError(context, "cannot read " + options.file);
    run = nlohmann::json::parse(in);
  } catch (const nlohmann::json::exception& e) {
    return usageError(context, options.file + ": " + e.what());
  }
  if (!run.is_object() || !run.contains("elements") || !run["elements"].is_array()) {
    return usageError(context, options.file + ": needs an object with a list \"elements\"");
  }

  CliMeldungen meldungen(context.format == OutputFormat::Json ? nullptr : context.err, Answer::No);
  const std::unique_ptr<Anwendung> started = startApplication(context, meldungen);
  if (!started) return;
  Anwendung& app = *started;
  if (run.contains("title") && run["title"].is_string()) app.Ausgabeneu_Fenster.Edit1.Text = run["title"];

  // The medium is typed in once and stays in the panel; each element may change any input.
  ElementInputs inputs;
  if (run.contains("medium")) {
    if (const std::string error = readElementInputs(run["medium"], inputs); !error.empty()) {
      return usageError(context, options.file + ": medium: " + error);
    }
  }
  nlohmann::json log = nlohmann::json::array();
  context.exitStatus = kComputed;
  int index = 0;
  for (const auto& element : run["elements"]) {
    ++index;
    if (const std::string error = readElementInputs(element, inputs); !error.empty()) {
      return usageError(context, options.file + ": element " + std::to_string(index) + ": " + error);
    }
    if (const std::string error = applyElementInputs(app, inputs); !error.empty()) {
      return usageError(context, options.file + ": element " + std::to_string(index) + ": " + error);
    }
    const std::size_t before = meldungen.messages().size();
    const int columns = app.Ausgabeneu_Fenster.Anzahl_Berechnungen();
    app.MyWindow.Berechnen(0);
    nlohmann::json messages = nlohmann::json::array();
    for (std::size_t m = before; m < meldungen.messages().size(); ++m) {
      const auto& message = meldungen.messages()[m];
      messages.push_back({{"kind", kindName(message.kind)}, {"caption", message.caption}, {"text", message.text}});
    }
    const bool written = app.Ausgabeneu_Fenster.Anzahl_Berechnungen() > columns;
    log.push_back({{"element", index}, {"column_written", written}, {"messages", messages}});
    if (!written) {  // a refused element ends the run: what follows would hang on a wrong column
      context.exitStatus = kRefused;
      break;
    }
  }

  if (!options.save.empty() && !saveProjectAs(app, options.save)) {
    *context.err << "linecalc-cli: cannot save the project " << options.save << '\n';
    context.exitStatus = kUsage;
  }
  const TAusgabeneu_Fenster& window = app.Ausgabeneu_Fenster;
  switch (context.format) {
    case OutputFormat::Json:
      *context.out << nlohmann::json{{"title", window.Edit1.Text},
                                     {"elements", log},
                                     {"table", tableJson(window, window.table())}}
                          .dump(2)
                   << '\n';
      break;
    case OutputFormat::Csv:
      printCsv(*context.out, window, window.table());
      break;
    case OutputFormat::Text:
      printTable(*context.out, window, window.table());
      break;
  }
}

}  // namespace

void addRunCommand(CLI::App& app, CliContext& context) {
  auto options = std::make_shared<RunOptions>();
  CLI::App* command = app.add_subcommand("run", "Compute a whole pipe run described in a JSON file into one table");
  command->add_option("file", options->file, "The run file")->required();
  command->add_option("--save", options->save, "Also save the table as a project file (.slf)");
  command->footer(
      "The file holds an optional \"title\", an optional \"medium\" and a list \"elements\"; their keys are the\n"
      "options of `element` with \"_\" for \"-\" (\"va1_unit\", \"flow_kind\"). Every element continues from the\n"
      "panels the one before left, as when a user works down the run. A refused element ends the run (exit 1).\n"
      "Example file:\n"
      "  {\"title\": \"Cooling water\",\n"
      "   \"medium\": {\"flow\": \"36\", \"density\": \"998,2\", \"viscosity\": \"1002\"},\n"
      "   \"elements\": [{\"group\": 1, \"element\": 1, \"va1\": \"100\", \"va2\": \"25\"},\n"
      "                {\"group\": 4, \"element\": 1, \"va2\": \"150\", \"va3\": \"90\", \"pieces\": \"3\"},\n"
      "                {\"group\": 13, \"element\": 1, \"va1\": \"12\"}]}\n"
      "Example:\n"
      "  linecalc-cli --language D run examples/cooling-water.json\n"
      "  linecalc-cli run examples/cooling-water.json --save cooling-water.slf");
  command->callback([options, &context] { runFile(*options, context); });
}

}  // namespace linecalc::cli
