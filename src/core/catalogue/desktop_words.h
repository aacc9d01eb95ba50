#pragma once

#include <string>

#include "catalogue/language_tables.h"

namespace linecalc {

// Words of the desktop program's own windows that the forms of the calculation have no row for:
// panel captions, button captions of the message boxes, file dialog filters and notes.
struct DesktopWords {
  std::string mediumPanel, elementPanel, calculate, chooseElement, notYetAvailable;
  std::string yes, no, cancel, ok;
  std::string projectFiles, allFiles;
  std::string languageChange, renameTable;
  std::string quantityColumn, unitColumn, sum;
  std::string deleteTable, noColumn;
  std::string about;
};

// Reads the block "Desktop" in its fixed order.
DesktopWords readDesktopWords(const LanguageTables& tables);

}  // namespace linecalc
