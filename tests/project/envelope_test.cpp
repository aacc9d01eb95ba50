#include "project/envelope.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace linecalc {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::string textOf(const Bytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

// Entries of ZIP archives written by 7-Zip 26.02 (Debian package 7zip), an independent WinZip-AES
// writer: `7zz a -tzip -mem=AES128 -mx=0 -p'tulise' kat.zip words.txt` (and -mem=AES256 with the
// password QEVOKAT3), where words.txt holds kPlainWords. The bytes are the entry's data cut from the
// archive: salt, verifier, ciphertext and authentication code, starting at offset 50.
const std::string kPlainWords = "Rohrdurchmesser\tpipe diameter\r\nKrümmer\tbend\r\n";
const Bytes kAes128Entry = {0x7c, 0x6d, 0x65, 0x6c, 0x93, 0xd3, 0x72, 0xdc, 0x63, 0x17, 0xbc, 0x80, 0x72, 0xf7,
                            0xce, 0x07, 0x23, 0x26, 0x73, 0x9f, 0xf7, 0xb7, 0x10, 0x46, 0xe1, 0xa1, 0x9e, 0x2b,
                            0xf4, 0x7e, 0xe0, 0xf2, 0xa9, 0x89, 0x74, 0x4a, 0x9a, 0xeb, 0x9a, 0x3c, 0x21, 0x5a,
                            0x2c, 0x73, 0xc6, 0x61, 0xfc, 0x44, 0xdb, 0xf9, 0x36, 0xe5, 0xd2, 0xdb, 0x4a, 0xfc,
                            0x22, 0x33, 0x76, 0x68, 0xe2, 0x1c, 0x38, 0x8e, 0x64, 0x42};
const Bytes kAes256Entry = {0x38, 0x1c, 0xac, 0x77, 0xa8, 0x90, 0x64, 0x93, 0xb7, 0x6a, 0x30, 0x0b, 0xb5, 0x25, 0x36,
                            0x25, 0x3d, 0xac, 0xb4, 0x5f, 0xc2, 0x27, 0xf3, 0x13, 0x10, 0x86, 0xb2, 0x8d, 0x0b, 0x1e,
                            0x45, 0x3b, 0xa2, 0xaf, 0x85, 0x14, 0xba, 0x61, 0x41, 0xe6, 0x8a, 0xe6, 0xfe, 0xda, 0xdc,
                            0x5e, 0x8a, 0xe1, 0xf9, 0xa5, 0x0f, 0x2b, 0xe0, 0x32, 0x87, 0xff, 0xd5, 0xcd, 0x4b, 0x94,
                            0xbc, 0x16, 0x68, 0xc4, 0x80, 0x4d, 0x1d, 0xe7, 0x30, 0x7b, 0x72, 0x2b, 0xc5, 0x33};

TEST(Envelope, DeciphersEntriesOfAnIndependentWriter) {
  struct Case {
    const Bytes* entry;
    const char* password;
    int strength;
  };
  for (const Case& c : {Case{&kAes128Entry, "tulise", 1}, Case{&kAes256Entry, "QEVOKAT3", 3}}) {
    const std::string source = textOf(*c.entry);
    std::string plain;
    EXPECT_TRUE(TEncryption(c.password, 0x40000, c.strength).DecryptStream(source, plain, source.size()));
    EXPECT_EQ(plain, kPlainWords) << "strength " << c.strength;
  }
}

TEST(Envelope, EnciphersExactlyAsTheIndependentWriterWithItsSalt) {
  const Bytes salt(kAes128Entry.begin(), kAes128Entry.begin() + 8);
  std::string enciphered;
  TEncryption("tulise", 0x40000, 1).EncryptStream(kPlainWords, enciphered, salt);
  EXPECT_EQ(enciphered, textOf(kAes128Entry));
}

TEST(Envelope, RoundTripsAtAllStrengthsAndAcrossBufferBoundaries) {
  std::mt19937 random(7);
  std::string plain(100000, '\0');
  for (char& c : plain) c = static_cast<char>(random());
  for (const int strength : {1, 2, 3}) {
    for (const std::size_t buffer : {std::size_t{16}, std::size_t{1000}, std::size_t{0x40000}}) {
      const TEncryption encryption("kuvR27&!", buffer, strength);
      std::string enciphered, deciphered;
      encryption.EncryptStream(plain, enciphered);
      EXPECT_EQ(enciphered.size(), plain.size() + encryption.saltSize() + 12);
      EXPECT_TRUE(encryption.DecryptStream(enciphered, deciphered, enciphered.size()));
      EXPECT_EQ(deciphered, plain) << "strength " << strength << " buffer " << buffer;
    }
  }
}

TEST(Envelope, FreshSaltsGiveDifferentFiles) {
  const TEncryption encryption("tulise", 0x40000, 1);
  std::string first, second;
  encryption.EncryptStream(kPlainWords, first);
  encryption.EncryptStream(kPlainWords, second);
  EXPECT_NE(first, second);
}

TEST(Envelope, AWrongPasswordIsRefusedAtTheVerifierAndLeavesNothing) {
  const std::string source = textOf(kAes128Entry);
  std::string plain = "stale";
  EXPECT_FALSE(TEncryption("tulisE", 0x40000, 1).DecryptStream(source, plain, source.size()));
  EXPECT_TRUE(plain.empty());
}

TEST(Envelope, ADamagedCiphertextIsDecipheredButFailsItsCode) {
  std::string source = textOf(kAes128Entry);
  source[20] ^= 0x01;
  std::string plain;
  EXPECT_FALSE(TEncryption("tulise", 0x40000, 1).DecryptStream(source, plain, source.size()));
  EXPECT_EQ(plain.size(), kPlainWords.size());
  EXPECT_NE(plain, kPlainWords);
}

TEST(Envelope, ShortAndTruncatedFilesGiveNothing) {
  const TEncryption encryption("tulise", 0x40000, 1);
  const std::string source = textOf(kAes128Entry);
  for (const std::size_t size : {std::size_t{0}, std::size_t{5}, std::size_t{19}, std::size_t{20}}) {
    std::string plain;
    encryption.DecryptStream(source, plain, size);
    EXPECT_TRUE(plain.empty()) << size;
  }
}

TEST(Envelope, StrengthComesFromTheCallOrElseFromThePasswordLength) {
  EXPECT_EQ(TCrypt("tulise", 16, 2).strength(), 2);
  EXPECT_EQ(TCrypt(std::string(31, 'k'), 16, 0).strength(), 1);
  EXPECT_EQ(TCrypt(std::string(32, 'k'), 16, 7).strength(), 2);
  EXPECT_EQ(TCrypt(std::string(47, 'k'), 16, -1).strength(), 2);
  EXPECT_EQ(TCrypt(std::string(48, 'k'), 16, 4).strength(), 3);
  EXPECT_EQ(TCrypt(std::string(500, 'k'), 16, 0).strength(), 3);  // cut to 128 characters first
}

TEST(Envelope, PasswordsAreCutTo128Characters) {
  const std::string longPassword = std::string(128, 'a') + "tail";
  std::string enciphered, plain;
  TEncryption(longPassword, 0x40000, 1).EncryptStream(kPlainWords, enciphered);
  EXPECT_TRUE(TEncryption(std::string(128, 'a'), 0x40000, 1).DecryptStream(enciphered, plain, enciphered.size()));
  EXPECT_EQ(plain, kPlainWords);
}

}  // namespace
}  // namespace linecalc
