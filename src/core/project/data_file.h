#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace linecalc {

// Keys of the enciphered data files.
inline constexpr std::string_view Schluessel01 = "kuvR27&!";  // substance files *.stw1
inline constexpr std::string_view Schluessel03 = "QEVOKAT3";  // pipe and fitting files *.nfk1
inline constexpr std::string_view Schluessel06 = "mfpe4qoc";  // boiling points dadru20.dad1
inline constexpr std::string_view Schluessel07 = "tulise";    // language files varsonst.gru1, varglob.gru1

inline constexpr std::size_t kDecipherBufferSize = 0x40000;

// The in-memory lists the data files are loaded into, each named by a one-character target code.
struct DataLists {
  std::vector<std::string> Siedepunktdateiliste;  // "A"
  std::vector<std::string> pipesByStandard[3];    // "B", "C", "D"
  std::vector<std::string> rectangularPipes;      // "E"
  std::vector<std::string> bends;                 // "F"
  std::vector<std::string> reducers;              // "G"
  std::vector<std::string> tees;                  // "H"
  std::vector<std::string> liquids;               // "1"
  std::vector<std::string> vapourPressures;       // "2"
  std::vector<std::string> gases;                 // "3"
  std::vector<std::string> estimationSubstances;  // "4"
  std::vector<std::string> aqueousSolutions;      // "5"
  std::vector<std::string> heatTransferOils;      // "6"
  std::vector<std::string> Sprachdateiliste;      // "S"
  std::vector<std::string> GlobalVariablen;       // "T"

  // The list of a target code; nullptr for a code that names none.
  std::vector<std::string>* byCode(char Ziel);
};

// A data file that cannot be read; what() names the file.
class DataFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Splits deciphered text into lines (LF or CR LF), UTF-8 or Windows-1252, as a text list loads a file.
std::vector<std::string> splitTextLines(std::string_view bytes);

// Loads one enciphered file into the list of the target code. A wrong key or a damaged file leaves
// the list empty or garbled, without a message; a missing or unreadable file throws DataFileError.
void Datei_laden_entschluesseln(const std::filesystem::path& Dateiname, std::string_view Schluessel, char Ziel,
                                DataLists& lists);

// Reads a whole file; throws DataFileError naming it when it cannot be read.
std::string readWholeFile(const std::filesystem::path& path);

}  // namespace linecalc
