// Feeds arbitrary bytes to the data-file decipher: it must never crash or read out of bounds,
// whatever a damaged or foreign file holds. The first byte picks the strength.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "project/data_file.h"
#include "project/envelope.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const int strength = 1 + data[0] % 3;
  const std::string_view file(reinterpret_cast<const char*>(data + 1), size - 1);
  std::string plain;
  linecalc::TEncryption(linecalc::Schluessel07, 64, strength).DecryptStream(file, plain, file.size());
  linecalc::splitTextLines(plain);
  return 0;
}
