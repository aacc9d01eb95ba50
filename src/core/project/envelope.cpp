#include "project/envelope.h"

#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <openssl/rand.h>

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>
#include <vector>

namespace linecalc {

namespace {

constexpr int kDerivationRounds = 1000;
constexpr std::size_t kBlock = 16;

struct DerivedKeys {
  std::vector<std::uint8_t> cipherKey;
  std::vector<std::uint8_t> codeKey;
  std::array<std::uint8_t, TEncryption::kVerifierSize> verifier{};
};

DerivedKeys deriveKeys(const std::string& password, std::span<const std::uint8_t> salt, std::size_t keySize) {
  std::vector<std::uint8_t> material(2 * keySize + TEncryption::kVerifierSize);
  PKCS5_PBKDF2_HMAC_SHA1(password.data(), static_cast<int>(password.size()), salt.data(), static_cast<int>(salt.size()),
                         kDerivationRounds, static_cast<int>(material.size()), material.data());
  DerivedKeys keys;
  keys.cipherKey.assign(material.begin(), material.begin() + static_cast<std::ptrdiff_t>(keySize));
  keys.codeKey.assign(material.begin() + static_cast<std::ptrdiff_t>(keySize),
                      material.begin() + static_cast<std::ptrdiff_t>(2 * keySize));
  std::copy_n(material.end() - TEncryption::kVerifierSize, TEncryption::kVerifierSize, keys.verifier.begin());
  return keys;
}

const EVP_CIPHER* blockCipher(std::size_t keySize) {
  switch (keySize) {
    case 16:
      return EVP_aes_128_ecb();
    case 24:
      return EVP_aes_192_ecb();
    default:
      return EVP_aes_256_ecb();
  }
}

// The format's counter mode: each 16-byte block is XORed with AES(counter), the counter a 128-bit
// little-endian number starting at 1 (unlike the big-endian counter of common CTR implementations).
std::string counterMode(const std::vector<std::uint8_t>& key, std::string_view input, std::size_t bufferSize) {
  std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
  if (!context || EVP_EncryptInit_ex(context.get(), blockCipher(key.size()), nullptr, key.data(), nullptr) != 1) {
    throw std::runtime_error("AES is not available");
  }
  EVP_CIPHER_CTX_set_padding(context.get(), 0);

  std::string output(input.size(), '\0');
  const std::size_t chunkBlocks = std::max<std::size_t>(bufferSize / kBlock, 1);
  std::vector<std::uint8_t> counters(chunkBlocks * kBlock);
  std::vector<std::uint8_t> keystream(counters.size() + kBlock);
  std::array<std::uint8_t, kBlock> counter{};
  for (std::size_t done = 0; done < input.size();) {
    const std::size_t length = std::min(counters.size(), input.size() - done);
    const std::size_t blocks = (length + kBlock - 1) / kBlock;
    for (std::size_t b = 0; b < blocks; ++b) {
      for (std::uint8_t& byte : counter) {
        if (++byte != 0) break;
      }
      std::copy(counter.begin(), counter.end(), counters.begin() + static_cast<std::ptrdiff_t>(b * kBlock));
    }
    int produced = 0;
    EVP_EncryptUpdate(context.get(), keystream.data(), &produced, counters.data(), static_cast<int>(blocks * kBlock));
    for (std::size_t i = 0; i < length; ++i) {
      output[done + i] = static_cast<char>(static_cast<std::uint8_t>(input[done + i]) ^ keystream[i]);
    }
    done += length;
  }
  return output;
}

std::array<std::uint8_t, TEncryption::kCodeSize> authenticationCode(const std::vector<std::uint8_t>& key,
                                                                    std::string_view ciphertext) {
  std::array<std::uint8_t, EVP_MAX_MD_SIZE> digest{};
  unsigned int length = 0;
  HMAC(EVP_sha1(), key.data(), static_cast<int>(key.size()), reinterpret_cast<const unsigned char*>(ciphertext.data()),
       ciphertext.size(), digest.data(), &length);
  std::array<std::uint8_t, TEncryption::kCodeSize> code{};
  std::copy_n(digest.begin(), code.size(), code.begin());
  return code;
}

std::span<const std::uint8_t> bytesOf(std::string_view text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

}  // namespace

TCrypt::TCrypt(std::string_view Kennwort, std::size_t Puffergroesse, int Staerke)
    : password_(Kennwort.substr(0, 128)), bufferSize_(Puffergroesse), strength_(Staerke) {
  if (strength_ < 1 || strength_ > 3) strength_ = password_.size() < 32 ? 1 : password_.size() < 48 ? 2 : 3;
}

void TEncryption::EncryptStream(std::string_view source, std::string& target,
                                std::span<const std::uint8_t> salt) const {
  const DerivedKeys keys = deriveKeys(password_, salt, keySize());
  const std::string ciphertext = counterMode(keys.cipherKey, source, bufferSize_);
  const auto code = authenticationCode(keys.codeKey, ciphertext);
  target.assign(salt.begin(), salt.end());
  target.append(keys.verifier.begin(), keys.verifier.end());
  target += ciphertext;
  target.append(code.begin(), code.end());
}

void TEncryption::EncryptStream(std::string_view source, std::string& target) const {
  std::vector<std::uint8_t> salt(saltSize());
  if (RAND_bytes(salt.data(), static_cast<int>(salt.size())) != 1) throw std::runtime_error("no random salt available");
  EncryptStream(source, target, salt);
}

bool TEncryption::DecryptStream(std::string_view source, std::string& target, std::size_t size) const {
  target.clear();
  source = source.substr(0, size);
  const std::size_t overhead = saltSize() + kVerifierSize + kCodeSize;
  if (source.size() < overhead) return false;

  // ReadHeader: salt, keys, verifier.
  const auto salt = bytesOf(source.substr(0, saltSize()));
  const DerivedKeys keys = deriveKeys(password_, salt, keySize());
  if (!std::equal(keys.verifier.begin(), keys.verifier.end(),
                  bytesOf(source.substr(saltSize(), kVerifierSize)).begin())) {
    return false;
  }
  const std::string_view ciphertext = source.substr(saltSize() + kVerifierSize, source.size() - overhead);
  target = counterMode(keys.cipherKey, ciphertext, bufferSize_);

  // ReadTrailer: the authentication code.
  const auto code = authenticationCode(keys.codeKey, ciphertext);
  return std::equal(code.begin(), code.end(), bytesOf(source.substr(source.size() - kCodeSize)).begin());
}

}  // namespace linecalc
