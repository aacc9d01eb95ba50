#include "base/cp1252.h"

#include <array>
#include <cstdint>

namespace linecalc {

namespace {

// Code points of the bytes 0x80 to 0x9F; 0xA0 to 0xFF equal their Latin-1 code points.
constexpr std::array<char32_t, 32> kHighControlRange = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t codePointOf(unsigned char byte) {
  return (byte >= 0x80 && byte < 0xA0) ? kHighControlRange[byte - 0x80] : char32_t{byte};
}

void appendUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out.push_back(static_cast<char>(cp));
  } else if (cp < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
    out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
  } else if (cp < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
    out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
    out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
  }
}

// Decodes one UTF-8 sequence at text[pos]; returns its length, 0 when malformed.
std::size_t decodeUtf8(std::string_view text, std::size_t pos, char32_t& cp) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(pos);
  std::size_t length = 0;
  char32_t minimum = 0;
  if (lead < 0x80) {
    cp = lead;
    return 1;
  } else if ((lead & 0xE0) == 0xC0) {
    length = 2, cp = lead & 0x1F, minimum = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3, cp = lead & 0x0F, minimum = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4, cp = lead & 0x07, minimum = 0x10000;
  } else {
    return 0;
  }
  if (pos + length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(pos + i) & 0xC0) != 0x80) return 0;
    cp = (cp << 6) | (byte(pos + i) & 0x3F);
  }
  const bool surrogate = cp >= 0xD800 && cp <= 0xDFFF;
  return (cp < minimum || cp > 0x10FFFF || surrogate) ? 0 : length;
}

int cp1252ByteOf(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<int>(cp);
  for (std::size_t i = 0; i < kHighControlRange.size(); ++i) {
    if (kHighControlRange[i] == cp) return static_cast<int>(0x80 + i);
  }
  return -1;
}

}  // namespace

std::string cp1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 8);
  for (char c : bytes) appendUtf8(out, codePointOf(static_cast<unsigned char>(c)));
  return out;
}

std::string utf8ToCp1252(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) {
    char32_t cp = 0;
    const std::size_t length = decodeUtf8(text, pos, cp);
    const int byte = length == 0 ? -1 : cp1252ByteOf(cp);
    out.push_back(byte < 0 ? '?' : static_cast<char>(byte));
    pos += length == 0 ? 1 : length;
  }
  return out;
}

bool isValidUtf8(std::string_view bytes) {
  for (std::size_t pos = 0; pos < bytes.size();) {
    char32_t cp = 0;
    const std::size_t length = decodeUtf8(bytes, pos, cp);
    if (length == 0) return false;
    pos += length;
  }
  return true;
}

std::string decodeFileText(std::string_view bytes) {
  return isValidUtf8(bytes) ? std::string(bytes) : cp1252ToUtf8(bytes);
}

}  // namespace linecalc
