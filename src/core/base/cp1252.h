#pragma once

#include <string>
#include <string_view>

namespace linecalc {

// Windows-1252 bytes to UTF-8. The five bytes that code page leaves undefined (0x81, 0x8D, 0x8F,
// 0x90, 0x9D) map to the C1 control characters of the same value, so every byte survives a round trip.
std::string cp1252ToUtf8(std::string_view bytes);

// UTF-8 to Windows-1252; a character the code page cannot hold becomes '?', and so does a
// malformed UTF-8 sequence.
std::string utf8ToCp1252(std::string_view text);

bool isValidUtf8(std::string_view bytes);

// Text read from a data file: UTF-8 when it is valid UTF-8, else Windows-1252 converted to UTF-8.
std::string decodeFileText(std::string_view bytes);

}  // namespace linecalc
