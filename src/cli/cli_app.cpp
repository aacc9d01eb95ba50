#include "cli_app.h"

#include <ostream>
#include <stdexcept>

#include "base/directories.h"
#include "project/registrierung.h"

namespace linecalc::cli {

std::unique_ptr<Anwendung> startApplication(CliContext& context, Meldungen& meldungen) {
  auto app = std::make_unique<Anwendung>(meldungen, context.separator);
  app->Sprache.Sprachkennung = context.language;
  try {
    std::unique_ptr<MemoryRegistrierung> store = context.settingsFile
                                                     ? std::make_unique<IniFileRegistrierung>(*context.settingsFile)
                                                     : std::make_unique<MemoryRegistrierung>();
    if (context.settingsFile && !std::filesystem::exists(*context.settingsFile)) {
      throw std::runtime_error("settings file " + context.settingsFile->string() + " does not exist");
    }
    app->FormCreate(dataDirectory(), *store);
    if (!context.settingsFile) app->Sprache.Sprachkennung = context.language;
    app->FormShow(*store);
  } catch (const std::exception& e) {
    *context.err << "linecalc-cli: " << e.what() << '\n';
    context.exitStatus = kUsage;
    return nullptr;
  }
  if (context.decimals) app->EinstellungenDlg.Edit2.Text = std::to_string(*context.decimals);
  if (context.method) app->EinstellungenDlg.ComboBox4.ItemIndex = *context.method;
  if (context.gasUpdate) app->EinstellungenDlg.RadioGroup1 = *context.gasUpdate;
  return app;
}

}  // namespace linecalc::cli
