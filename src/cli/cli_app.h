#pragma once

#include <memory>

#include "cli_context.h"
#include "workspace/anwendung.h"

namespace linecalc::cli {

// The application for one command, started as the desktop program starts: the language and data
// files of the data folder, then the settings of --settings FILE, or the built-in defaults (never the
// desktop user's settings, so that batch results are reproducible), then the global options
// --decimals, --method and --gas-update. Reports a missing data or settings file and returns nullptr
// with the usage exit status.
std::unique_ptr<Anwendung> startApplication(CliContext& context, Meldungen& meldungen);

}  // namespace linecalc::cli
