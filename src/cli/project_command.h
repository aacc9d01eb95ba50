#pragma once

#include <CLI/CLI.hpp>

#include "cli_context.h"

namespace linecalc::cli {

// `linecalc-cli project FILE.slf`: the tables of a project, and with --check the table check.
void addProjectCommand(CLI::App& app, CliContext& context);

}  // namespace linecalc::cli
