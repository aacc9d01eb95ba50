#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace linecalc {

// The envelope of the enciphered data files: the WinZip AES format without any ZIP structure.
//   salt (8, 12 or 16 bytes for strength 1, 2, 3) | 2-byte password verifier | ciphertext | 10-byte code
// Keys come from PBKDF2-HMAC-SHA1 (1000 rounds) of the password and salt; the cipher is AES in the
// format's counter mode (16-byte little-endian counter from 1); the code is HMAC-SHA1 over the
// ciphertext, cut to 10 bytes.
class TCrypt {
 public:
  // The password is cut to 128 characters. A strength of 1 to 3 stands; any other is chosen from the
  // password's length: under 32 characters 1, under 48 characters 2, else 3.
  TCrypt(std::string_view Kennwort, std::size_t Puffergroesse, int Staerke);

  int strength() const { return strength_; }
  std::size_t saltSize() const { return 4 + 4 * static_cast<std::size_t>(strength_); }
  std::size_t keySize() const { return 8 + 8 * static_cast<std::size_t>(strength_); }

 protected:
  std::string password_;
  std::size_t bufferSize_;
  int strength_;
};

class TEncryption : public TCrypt {
 public:
  using TCrypt::TCrypt;

  static constexpr std::size_t kVerifierSize = 2;
  static constexpr std::size_t kCodeSize = 10;

  // Enciphers source into target with the given salt (saltSize() bytes).
  void EncryptStream(std::string_view source, std::string& target, std::span<const std::uint8_t> salt) const;
  // Enciphers with a fresh random salt.
  void EncryptStream(std::string_view source, std::string& target) const;

  // Deciphers `size` bytes of source (salt, verifier, ciphertext and code). A wrong password ends at
  // the verifier with false and target left empty. A ciphertext that fails its code is still
  // deciphered into target, and the result is false.
  bool DecryptStream(std::string_view source, std::string& target, std::size_t size) const;
};

}  // namespace linecalc
