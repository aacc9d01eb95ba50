#include "project/intermediate_table.h"

#include <algorithm>

#include "base/fields.h"
#include "base/numbers.h"
#include "catalogue/language_tables.h"

namespace linecalc {

namespace {

// Global word rows.
constexpr int kLiquidWord = 57, kGasWord = 67, kInWord = 77, kLaminarWord = 92, kTurbulentWord = 151;
constexpr int kGermanField = 4;
constexpr int kFirstElementDataRow = 15, kLastElementDataRow = 20;
constexpr int kStateRow = 1, kRegimeRow = 25;

// The base words of the file.
constexpr std::string_view kLiquid = "flüssig", kGaseous = "gasförmig";
constexpr std::string_view kLaminar = "laminar", kTurbulent = "turbulent";
constexpr std::string_view kIn = " in ";

bool replaceAll(std::string& text, std::string_view from, std::string_view to) {
  if (from.empty()) return false;
  bool replaced = false;
  for (std::size_t pos = text.find(from); pos != std::string::npos; pos = text.find(from, pos + to.size())) {
    text.replace(pos, from.size(), to);
    replaced = true;
  }
  return replaced;
}

// Rows in which the decimal mark is exchanged: the number rows and the element data rows.
bool holdsDecimalMark(int row) {
  return (row >= 2 && row <= 11) || (row >= 15 && row <= 24) || (row >= 26 && row <= 33);
}

// The rows whose numbers go to the decimal comma before the words are translated for saving.
bool isNumberRowForSaving(int row) {
  return (row >= 2 && row <= 11) || (row >= 21 && row <= 23) || (row >= 26 && row <= 33);
}

// A label fragment of the global words (rows marked "x"): its German word and its word in the
// current language.
struct Fragment {
  std::string german;
  std::string current;
};

std::vector<Fragment> labelFragments(const LanguageTables& Sprache) {
  const int column = Sprachspalte(Sprache.Sprachkennung);
  std::vector<Fragment> fragments;
  for (const std::string& line : Sprache.GlobalVariablen) {
    if (Feld_holen(line, '\t', 1) != "x") continue;
    fragments.push_back({Feld_holen(line, '\t', kGermanField), Feld_holen(line, '\t', column)});
  }
  return fragments;
}

// One pass of the word-by-word translation of a label cell: the first fragment, top down, whose
// source word occurs in the cell is replaced by its target word. `phrasesOnly` skips source words
// without a blank, so that longer phrases go first.
void translateOnce(std::string& cell, const std::vector<Fragment>& fragments, bool toGerman, bool phrasesOnly) {
  for (const Fragment& fragment : fragments) {
    const std::string& from = toGerman ? fragment.current : fragment.german;
    const std::string& to = toGerman ? fragment.german : fragment.current;
    if (from.empty() || to.empty() || cell.find(from) == std::string::npos) continue;
    if (phrasesOnly && from.find(' ') == std::string::npos) continue;
    replaceAll(cell, from, to);
    return;
  }
}

std::string& cellOf(FileColumn& column, int row) {
  return column[static_cast<std::size_t>(row)];
}

std::string trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  const std::size_t last = text.find_last_not_of(' ');
  return std::string(text.substr(first, last - first + 1));
}

bool isGermanElementName(std::string_view name, const LanguageTables& Sprache) {
  for (int g = 1; g <= kGroupCount; ++g) {
    for (int e = 1; e <= kElementsPerGroup; ++e) {
      if (!name.empty() && Sprache.Untergruppe_D_Name[g][e] == name) return true;
    }
  }
  return false;
}

// Repairs of element names in files of format 6.0 and older. A repair whose new name is no catalogue
// name is not applied: the catalogue keeps "Doppelgitter Rundrohr", so that repair stays inactive.
struct NameRepair {
  std::string_view oldName, newName;
};
constexpr NameRepair kOldFormatNameRepairs[] = {{"Doppelgitter Rundrohr", "Doppelgitter Kreisrohr"}};

// Texts of the choice row that files of format 6.0 and older hold in front of the choice; the
// misspelt one stands as such files have it.
constexpr std::string_view kOldChoicePrefixes[] = {"Die Rohroberfläche ist:  glatt", "Die Rohroberfläche ist:  rauh",
                                                   "Die Rohroberfläche ist: glatt",  "Die Rohrobefläche ist: rauh",
                                                   "Das Ventil ist:  geschmiedet",   "Das Ventil ist:  gegossen"};

}  // namespace

FileColumn toFileColumn(const CalcColumn& column, char separator) {
  FileColumn file;
  for (int row = 0; row < kResultRows; ++row) {
    const Cell& cell = column.cells[static_cast<std::size_t>(row)];
    file[static_cast<std::size_t>(row)] = cell.number ? formatShortest(*cell.number, separator) : cell.text;
  }
  // The table holds element name, pieces, designation in rows 12 to 14; the file designation first.
  std::rotate(file.begin() + 12, file.begin() + 14, file.begin() + 15);
  return file;
}

std::array<Cell, kResultRows> fromFileColumn(const FileColumn& file) {
  std::array<Cell, kResultRows> cells;
  for (int row = 0; row < kResultRows; ++row) {
    const std::string& text = file[static_cast<std::size_t>(row)];
    Cell& cell = cells[static_cast<std::size_t>(row)];
    bool readable = text.find_first_not_of(' ') != std::string::npos;
    const Real value = readable && isNumericRow(row) ? Zahl_lesen(text, readable) : 0;
    if (readable && isNumericRow(row)) {
      cell.number = value;
    } else {
      cell.text = text;
    }
  }
  // File rows designation, element name, pieces back to the table's element name, pieces, designation.
  std::rotate(cells.begin() + 12, cells.begin() + 13, cells.begin() + 15);
  return cells;
}

void Zwischentabelle_Dezimaltrennzeichen(StringGrid& StringGrid1, char Von, char Nach) {
  if (Von == Nach) return;
  const std::string from(1, Von), to(1, Nach);
  for (FileColumn& column : StringGrid1.columns) {
    for (int row = 0; row < kResultRows; ++row) {
      if (holdsDecimalMark(row)) replaceAll(cellOf(column, row), from, to);
    }
    if (Nach != ',') continue;
    // The points of abbreviations in the element data have become commas too.
    for (int row = kFirstElementDataRow; row <= kLastElementDataRow; ++row) {
      std::string& cell = cellOf(column, row);
      replaceAll(cell, "Elementdurchm,", "Elementdurchm.");
      replaceAll(cell, "in in,", "in in.");
      replaceAll(cell, "in sq,yd,", "in sq.yd.");
      replaceAll(cell, "in ft,", "in ft.");
      replaceAll(cell, "Corrug, distance,", "Corrug. distance");
    }
  }
}

void Zwischentabelle_bearbeiten_vor_SpeichernV7(StringGrid& StringGrid1, const LanguageTables& Sprache,
                                                char separator) {
  const std::vector<Fragment> fragments = labelFragments(Sprache);
  const std::string inWord = " " + Sprache.globalWord(kInWord) + " ";
  const std::string comma(1, ','), mark(1, separator);
  for (FileColumn& column : StringGrid1.columns) {
    std::string& state = cellOf(column, kStateRow);
    if (!state.empty() && state == Sprache.globalWord(kLiquidWord)) {
      state = kLiquid;
    } else if (!state.empty() && state == Sprache.globalWord(kGasWord)) {
      state = kGaseous;
    }

    for (int row = 0; row < kResultRows && separator != ','; ++row) {
      if (isNumberRowForSaving(row)) replaceAll(cellOf(column, row), mark, comma);
    }

    std::string& element = cellOf(column, kFileElementRow);
    std::string german;
    for (int g = 1; g <= kGroupCount; ++g) {
      for (int e = 1; e <= kElementsPerGroup; ++e) {
        if (!element.empty() && Sprache.Untergruppe_Name[g][e] == element) german = Sprache.Untergruppe_D_Name[g][e];
      }
    }
    if (!german.empty()) element = german;

    for (int pass = 1; pass <= 3; ++pass) {
      for (int row = kFirstElementDataRow; row <= kLastElementDataRow; ++row) {
        std::string& cell = cellOf(column, row);
        if (!cell.empty()) translateOnce(cell, fragments, true, pass == 1);
      }
    }
    for (int row = kFirstElementDataRow; row <= kLastElementDataRow; ++row)
      replaceAll(cellOf(column, row), inWord, kIn);

    std::string& regime = cellOf(column, kRegimeRow);
    if (!regime.empty()) regime = regime == Sprache.globalWord(kLaminarWord) ? kLaminar : kTurbulent;
  }
}

void Zwischentabelle_bearbeiten_nach_Oeffnen(StringGrid& StringGrid1, int Version, const LanguageTables& Sprache) {
  const bool german = Sprache.Sprachkennung == 'D';
  const std::vector<Fragment> fragments = german ? std::vector<Fragment>{} : labelFragments(Sprache);
  const std::string inWord = " " + Sprache.globalWord(kInWord) + " ";
  for (FileColumn& column : StringGrid1.columns) {
    if (!german) {
      std::string& state = cellOf(column, kStateRow);
      if (state == kLiquid) {
        state = Sprache.globalWord(kLiquidWord);
      } else if (state == kGaseous) {
        state = Sprache.globalWord(kGasWord);
      }
    }

    if (Version < 7) {
      std::string& choice = cellOf(column, kLastElementDataRow);
      choice = trimmed(choice);
      if (!choice.empty()) {
        for (const std::string_view prefix : kOldChoicePrefixes) replaceAll(choice, prefix, "");
      }
      replaceAll(cellOf(column, kFirstElementDataRow), "Elementdurchmesser", "Elementdurchm.");
      std::string& element = cellOf(column, kFileElementRow);
      for (const NameRepair& repair : kOldFormatNameRepairs) {
        if (element == repair.oldName && isGermanElementName(repair.newName, Sprache)) element = repair.newName;
      }
    }

    if (!german) {
      std::string& element = cellOf(column, kFileElementRow);
      for (int g = 1; g <= kGroupCount && !element.empty(); ++g) {
        for (int e = 1; e <= kElementsPerGroup; ++e) {
          if (Sprache.Untergruppe_D_Name[g][e] == element && !Sprache.Untergruppe_Name[g][e].empty()) {
            element = Sprache.Untergruppe_Name[g][e];
            g = kGroupCount;  // the German names are unique: the first match is the element
            break;
          }
        }
      }
      for (int pass = 1; pass <= 2; ++pass) {
        for (int row = kFirstElementDataRow; row <= kLastElementDataRow; ++row) {
          std::string& cell = cellOf(column, row);
          if (!cell.empty()) translateOnce(cell, fragments, false, false);
        }
      }
      for (int row = kFirstElementDataRow; row <= kLastElementDataRow; ++row) {
        replaceAll(cellOf(column, row), kIn, inWord);
      }
      // A word-by-word translation of the German height difference leaves broken forms in older files.
      std::string& first = cellOf(column, kFirstElementDataRow);
      replaceAll(first, "Heightndifferenz", "Vertical difference");
      replaceAll(first, "Hauteurndifferenz", "Dénivelé");
      replaceAll(first, "Hoogtendifferenz", "Hoogteverschil");
    }

    std::string& regime = cellOf(column, kRegimeRow);
    if (!regime.empty()) {
      regime = regime == kLaminar ? Sprache.globalWord(kLaminarWord) : Sprache.globalWord(kTurbulentWord);
    }
  }
}

std::string repairedElementName(const std::string& name, const LanguageTables& Sprache) {
  // "Zeta-Wert" was the name of the known coefficient in a circular pipe, element (12,1).
  if (name == "Zeta-Wert" && !Sprache.Untergruppe_D_Name[12][1].empty()) return Sprache.Untergruppe_D_Name[12][1];
  return name;
}

void repairOldElementNames(StringGrid& StringGrid1, const LanguageTables& Sprache) {
  for (FileColumn& column : StringGrid1.columns) {
    std::string& element = cellOf(column, kFileElementRow);
    element = repairedElementName(element, Sprache);
  }
}

}  // namespace linecalc
