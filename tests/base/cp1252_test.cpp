#include "base/cp1252.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <optional>
#include <string>

namespace linecalc {
namespace {

// glibc's iconv serves as the independent reference for the code page.
std::optional<std::string> iconvConvert(const char* to, const char* from, std::string input) {
  iconv_t cd = iconv_open(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
  std::string output(input.size() * 4 + 4, '\0');
  char* in = input.data();
  char* out = output.data();
  std::size_t inLeft = input.size(), outLeft = output.size();
  const std::size_t rc = iconv(cd, &in, &inLeft, &out, &outLeft);
  iconv_close(cd);
  if (rc == static_cast<std::size_t>(-1)) return std::nullopt;
  output.resize(output.size() - outLeft);
  return output;
}

bool undefinedInCodePage(int byte) {
  return byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
}

TEST(Cp1252, EveryHighByteMatchesTheReferenceInBothDirections) {
  if (!iconvConvert("UTF-8", "CP1252", "a")) GTEST_SKIP() << "iconv has no CP1252 here";
  for (int byte = 0x80; byte <= 0xFF; ++byte) {
    const std::string single(1, static_cast<char>(byte));
    const std::string utf8 = cp1252ToUtf8(single);
    EXPECT_EQ(utf8ToCp1252(utf8), single) << std::hex << byte;
    if (undefinedInCodePage(byte)) continue;  // iconv refuses them; we keep them as C1 controls
    const auto reference = iconvConvert("UTF-8", "CP1252", single);
    ASSERT_TRUE(reference) << std::hex << byte;
    EXPECT_EQ(utf8, *reference) << std::hex << byte;
    EXPECT_EQ(iconvConvert("CP1252", "UTF-8", utf8).value_or(""), single) << std::hex << byte;
  }
}

TEST(Cp1252, KnownCharacters) {
  EXPECT_EQ(cp1252ToUtf8("\x80"), "€");
  EXPECT_EQ(cp1252ToUtf8("Kr\xFCmmer \xB0"
                         "C \xB3"),
            "Krümmer °C ³");
  EXPECT_EQ(utf8ToCp1252("Graugußkrümmer"),
            "Graugu\xDF"
            "kr\xFCmmer");
  EXPECT_EQ(cp1252ToUtf8("\x81"), "\xC2\x81");
}

TEST(Cp1252, UnrepresentableAndMalformedTextBecomesQuestionMarks) {
  EXPECT_EQ(utf8ToCp1252("Δp"), "?p");             // Greek capital delta is not in the code page
  EXPECT_EQ(utf8ToCp1252("a\xC3"), "a?");          // truncated sequence
  EXPECT_EQ(utf8ToCp1252("\xE0\x80\xAF"), "???");  // overlong encoding
  EXPECT_EQ(utf8ToCp1252("\xED\xA0\x80"), "???");  // UTF-16 surrogate
}

TEST(DecodeFileText, AcceptsUtf8AndFallsBackToTheCodePage) {
  EXPECT_EQ(decodeFileText("Rohrdurchmesser D\xC3\xBC"), "Rohrdurchmesser Dü");  // valid UTF-8 stays
  EXPECT_EQ(decodeFileText("Rohrkr\xFCmmer"), "Rohrkrümmer");                    // a lone 0xFC is 1252
  EXPECT_TRUE(isValidUtf8(""));
  EXPECT_FALSE(isValidUtf8("\xFF"));
}

}  // namespace
}  // namespace linecalc
