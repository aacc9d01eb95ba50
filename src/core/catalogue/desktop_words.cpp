#include "catalogue/desktop_words.h"

namespace linecalc {

DesktopWords readDesktopWords(const LanguageTables& tables) {
  WordBlock block = tables.block("Desktop");
  DesktopWords w;
  for (std::string* text : {&w.mediumPanel, &w.elementPanel, &w.calculate, &w.chooseElement, &w.notYetAvailable,
                            &w.yes, &w.no, &w.cancel, &w.ok, &w.projectFiles, &w.allFiles, &w.languageChange,
                            &w.renameTable, &w.quantityColumn, &w.unitColumn, &w.sum, &w.deleteTable,
                            &w.noColumn, &w.about}) {
    *text = block.next();
  }
  return w;
}

}  // namespace linecalc
