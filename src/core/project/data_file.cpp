#include "project/data_file.h"

#include <fstream>
#include <sstream>

#include "base/cp1252.h"
#include "project/envelope.h"

namespace linecalc {

std::vector<std::string>* DataLists::byCode(char Ziel) {
  switch (Ziel) {
    case 'A':
      return &Siedepunktdateiliste;
    case 'B':
      return &pipesByStandard[0];
    case 'C':
      return &pipesByStandard[1];
    case 'D':
      return &pipesByStandard[2];
    case 'E':
      return &rectangularPipes;
    case 'F':
      return &bends;
    case 'G':
      return &reducers;
    case 'H':
      return &tees;
    case '1':
      return &liquids;
    case '2':
      return &vapourPressures;
    case '3':
      return &gases;
    case '4':
      return &estimationSubstances;
    case '5':
      return &aqueousSolutions;
    case '6':
      return &heatTransferOils;
    case 'S':
      return &Sprachdateiliste;
    case 'T':
      return &GlobalVariablen;
    default:
      return nullptr;
  }
}

std::vector<std::string> splitTextLines(std::string_view bytes) {
  const std::string text = decodeFileText(bytes);
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    std::size_t stop = end;
    if (stop > start && text[stop - 1] == '\r') --stop;
    lines.emplace_back(text, start, stop - start);
    start = end + 1;
  }
  return lines;
}

std::string readWholeFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw DataFileError("cannot read data file " + path.string());
  std::ostringstream content;
  content << in.rdbuf();
  if (in.bad()) throw DataFileError("cannot read data file " + path.string());
  return std::move(content).str();
}

void Datei_laden_entschluesseln(const std::filesystem::path& Dateiname, std::string_view Schluessel, char Ziel,
                                DataLists& lists) {
  const std::string source = readWholeFile(Dateiname);
  const TEncryption encryption(Schluessel, kDecipherBufferSize, 1);
  std::string plaintext;
  encryption.DecryptStream(source, plaintext, source.size());  // the result is not looked at: garbage stays garbage
  if (std::vector<std::string>* target = lists.byCode(Ziel)) *target = splitTextLines(plaintext);
}

}  // namespace linecalc
