#include "adapters/mumble/Ocb2.h"

#include <openssl/evp.h>

#include <algorithm>
#include <bit>
#include <new>

namespace orvelle::mumble {

namespace {

constexpr std::size_t ShamBytes = CryptBlockSize - 1;  // of a block, that a forger must know to be zero

CryptBlock Xor(const CryptBlock& one, const CryptBlock& other) {
    using Halves = std::array<std::uint64_t, 2>;
    const auto [first, second] = std::bit_cast<Halves>(one);
    const auto [otherFirst, otherSecond] = std::bit_cast<Halves>(other);
    return std::bit_cast<CryptBlock>(Halves{first ^ otherFirst, second ^ otherSecond});
}

// In the field of 2 to the power of 128 elements, big-endian.
CryptBlock Doubled(const CryptBlock& block) {
    CryptBlock doubled;
    for (std::size_t index = 0; index < CryptBlockSize; ++index) {
        const unsigned next = index + 1 < CryptBlockSize ? block[index + 1] >> 7 : 0;
        doubled[index] = static_cast<std::uint8_t>(block[index] << 1 | next);
    }
    if ((block[0] & 0x80) != 0) doubled[ShamBytes] ^= 0x87;
    return doubled;
}

CryptBlock Tripled(const CryptBlock& block) { return Xor(block, Doubled(block)); }

// How many bits the last block has, as a block.
CryptBlock BitsOf(std::span<const std::uint8_t> last) {
    CryptBlock bits{};
    bits[ShamBytes] = static_cast<std::uint8_t>(8 * last.size());
    return bits;
}

CryptBlock BlockOf(std::span<const std::uint8_t> bytes) {
    CryptBlock block;
    std::copy_n(bytes.begin(), CryptBlockSize, block.begin());
    return block;
}

bool IsSham(const CryptBlock& block) {
    return std::all_of(block.begin(), block.begin() + ShamBytes, [](std::uint8_t byte) { return byte == 0; });
}

// A context of one block after another. An update of a whole block without padding has nothing that could fail.
CryptBlock Pass(evp_cipher_ctx_st* aes, const CryptBlock& block) {
    CryptBlock passed{};
    int size = 0;
    if (EVP_CipherUpdate(aes, passed.data(), &size, block.data(), CryptBlockSize) != 1) throw std::bad_alloc();
    return passed;
}

evp_cipher_ctx_st* Aes128(const CryptBlock& key, int isEncipher) {
    evp_cipher_ctx_st* const aes = EVP_CIPHER_CTX_new();
    const bool isReady = aes != nullptr &&
                         EVP_CipherInit_ex(aes, EVP_aes_128_ecb(), nullptr, key.data(), nullptr, isEncipher) == 1 &&
                         EVP_CIPHER_CTX_set_padding(aes, 0) == 1;
    if (isReady) return aes;
    EVP_CIPHER_CTX_free(aes);
    throw std::bad_alloc();
}

}  // namespace

void Ocb2::Free::operator()(evp_cipher_ctx_st* gone) const { EVP_CIPHER_CTX_free(gone); }

Ocb2::Ocb2(const CryptBlock& key) : encipher(Aes128(key, 1)), decipher(Aes128(key, 0)) {}

CryptBlock Ocb2::Encrypt(const CryptBlock& nonce, std::span<const std::uint8_t> plain, std::span<std::uint8_t> cipher) {
    CryptBlock offset = Pass(encipher.get(), nonce);
    CryptBlock checksum{};
    while (plain.size() > CryptBlockSize) {
        offset = Doubled(offset);
        CryptBlock block = BlockOf(plain);
        if (plain.size() <= 2 * CryptBlockSize && IsSham(block)) block[0] ^= 1;
        checksum = Xor(checksum, block);
        std::ranges::copy(Xor(offset, Pass(encipher.get(), Xor(offset, block))), cipher.begin());
        plain = plain.subspan(CryptBlockSize);
        cipher = cipher.subspan(CryptBlockSize);
    }
    offset = Doubled(offset);
    const CryptBlock pad = Pass(encipher.get(), Xor(offset, BitsOf(plain)));
    CryptBlock last = pad;
    std::ranges::copy(plain, last.begin());
    std::copy_n(Xor(last, pad).begin(), cipher.size(), cipher.begin());
    return Pass(encipher.get(), Xor(Tripled(offset), Xor(checksum, last)));
}

std::optional<CryptBlock> Ocb2::Decrypt(const CryptBlock& nonce, std::span<const std::uint8_t> cipher,
                                        std::span<std::uint8_t> plain) {
    CryptBlock offset = Pass(encipher.get(), nonce);
    CryptBlock checksum{};
    while (cipher.size() > CryptBlockSize) {
        offset = Doubled(offset);
        const CryptBlock block = Xor(offset, Pass(decipher.get(), Xor(offset, BlockOf(cipher))));
        if (cipher.size() <= 2 * CryptBlockSize && IsSham(block)) return std::nullopt;
        checksum = Xor(checksum, block);
        std::ranges::copy(block, plain.begin());
        cipher = cipher.subspan(CryptBlockSize);
        plain = plain.subspan(CryptBlockSize);
    }
    offset = Doubled(offset);
    const CryptBlock pad = Pass(encipher.get(), Xor(offset, BitsOf(cipher)));
    CryptBlock last{};
    std::ranges::copy(cipher, last.begin());
    last = Xor(last, pad);
    std::copy_n(last.begin(), plain.size(), plain.begin());
    std::copy(pad.begin() + static_cast<std::ptrdiff_t>(cipher.size()), pad.end(),
              last.begin() + static_cast<std::ptrdiff_t>(cipher.size()));
    // A packet made of another's block of bare zeros has this last block.
    if (IsSham(Xor(last, offset))) return std::nullopt;
    return Pass(encipher.get(), Xor(Tripled(offset), Xor(checksum, last)));
}

}  // namespace orvelle::mumble
