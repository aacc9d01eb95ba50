// Enciphers a plain data file into the envelope the program reads, with a fresh random salt.
//   linecalc-encipher KEYNAME INPUT OUTPUT
// KEYNAME is the name of the program's key for that file (Schluessel01, Schluessel03, Schluessel06,
// Schluessel07), so that the keys live in one place.
#include <fstream>
#include <iostream>
#include <map>
#include <string>

#include "project/data_file.h"
#include "project/envelope.h"

int main(int argc, char** argv) {
  using namespace linecalc;
  const std::map<std::string, std::string_view> keys = {{"Schluessel01", Schluessel01},
                                                        {"Schluessel03", Schluessel03},
                                                        {"Schluessel06", Schluessel06},
                                                        {"Schluessel07", Schluessel07}};
  if (argc != 4 || !keys.contains(argv[1])) {
    std::cerr << "usage: linecalc-encipher Schluessel01|Schluessel03|Schluessel06|Schluessel07 INPUT OUTPUT\n";
    return 2;
  }
  try {
    const std::string plaintext = readWholeFile(argv[2]);
    std::string enciphered;
    TEncryption(keys.at(argv[1]), kDecipherBufferSize, 1).EncryptStream(plaintext, enciphered);
    std::ofstream out(argv[3], std::ios::binary | std::ios::trunc);
    out.write(enciphered.data(), static_cast<std::streamsize>(enciphered.size()));
    if (!out.flush()) {
      std::cerr << "linecalc-encipher: cannot write " << argv[3] << '\n';
      return 1;
    }
  } catch (const std::exception& e) {
    std::cerr << "linecalc-encipher: " << e.what() << '\n';
    return 1;
  }
  return 0;
}
