// Feeds arbitrary bytes to the project reader as a file's content: reading and checking must never
// crash or read out of bounds, whatever a damaged or foreign file holds. The first byte picks the
// program language and the decimal separator, so that the translation of words and marks runs too.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "catalogue/language_tables.h"
#include "project/project_file.h"

namespace {

// A few label fragments in the layout of the global words: mark, row, note, German, English, French, Dutch.
linecalc::LanguageTables tables(char language) {
  linecalc::LanguageTables Sprache;
  Sprache.Sprachkennung = language;
  Sprache.GlobalVariablen = {"x\t6\tangle\tKnickwinkel\tDeflection angle\tAngle de déviation\tKnikhoek",
                             "x\t73\tdegree\tGrad\tdegree\tdegré\tgraad",
                             "x\t147\tconvolutions\tWellen\tconvolutions\tondes\tgolven", "\t77\tin\tin\tin\ten\tin",
                             "x\t163\tangle\tWinkel\tAngle\tAngle\tHoek"};
  Sprache.readGlobalWords();
  Sprache.Untergruppe_D_Name[12][1] = "Berechnen mit bekanntem Zeta-Wert Kreisrohr";
  Sprache.Untergruppe_Name[12][1] = "Known zeta value, circular pipe";
  return Sprache;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static const linecalc::LanguageTables languages[] = {tables('D'), tables('E'), tables('F'), tables('H')};
  const linecalc::LanguageTables& Sprache = languages[data[0] % 4];
  const char separator = (data[0] & 4) != 0 ? '.' : ',';
  const std::string_view file(reinterpret_cast<const char*>(data + 1), size - 1);
  linecalc::readProjectFile(file, Sprache, separator);
  return 0;
}
