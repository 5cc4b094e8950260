// Authenticated encryption of one packet by OCB2 with AES-128, as voice servers use it. It must not be used for
// anything else: a way to forge was found in 2019, and the measures against it change what is encrypted. Used by
// PacketCrypt.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

struct evp_cipher_ctx_st;

namespace orvelle::mumble {

constexpr std::size_t CryptBlockSize = 16;
using CryptBlock = std::array<std::uint8_t, CryptBlockSize>;  // a key, a nonce, a tag or 16 bytes of a packet

class Ocb2 {
public:
    explicit Ocb2(const CryptBlock& key);  // std::bad_alloc where the library has no memory

    // `cipher` is as long as `plain`. Where the last block but one begins with 15 zeros, one bit of it is flipped,
    // since with such a packet another could be forged; in a voice nobody hears it. Returns the tag.
    CryptBlock Encrypt(const CryptBlock& nonce, std::span<const std::uint8_t> plain, std::span<std::uint8_t> cipher);
    // `plain` is as long as `cipher`. Returns the tag, to be compared; none where the packet is one that Encrypt would
    // not make, or was forged of such a one. `plain` means nothing then.
    std::optional<CryptBlock> Decrypt(const CryptBlock& nonce, std::span<const std::uint8_t> cipher,
                                      std::span<std::uint8_t> plain);

private:
    struct Free {
        void operator()(evp_cipher_ctx_st* gone) const;
    };
    using Aes = std::unique_ptr<evp_cipher_ctx_st, Free>;

    Aes encipher;
    Aes decipher;
};

}  // namespace orvelle::mumble
