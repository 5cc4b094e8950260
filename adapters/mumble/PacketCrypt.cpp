#include "adapters/mumble/PacketCrypt.h"

#include <openssl/crypto.h>

#include <algorithm>

namespace orvelle::mumble {

namespace {

constexpr unsigned NonceLowBytes = 256;  // as many packets a head can tell apart

CryptBlock Plus(CryptBlock nonce, unsigned step) {
    for (std::uint8_t& byte : nonce) {
        step += byte;
        byte = static_cast<std::uint8_t>(step);
        step >>= 8;
    }
    return nonce;
}

CryptBlock Minus(CryptBlock nonce, unsigned step) {
    for (std::uint8_t& byte : nonce) {
        const bool borrows = byte < step;
        byte = static_cast<std::uint8_t>(byte - step);
        step = borrows ? 1 : 0;
    }
    return nonce;
}

}  // namespace

PacketCrypt::PacketCrypt(const CryptBlock& key, const CryptBlock& ownNonce, const CryptBlock& farNonce)
    : cipher(key), ownNonce(ownNonce) {
    SetFarNonce(farNonce);
}

std::span<const std::uint8_t> PacketCrypt::Encrypt(std::span<const std::uint8_t> plain) {
    if (plain.size() > VoicePacketBound) return {};
    ownNonce = Plus(ownNonce, 1);
    const std::span packet = std::span(encrypted).first(CryptHead + plain.size());
    const CryptBlock tag = cipher.Encrypt(ownNonce, plain, packet.subspan(CryptHead));
    packet[0] = ownNonce[0];
    std::copy_n(tag.begin(), CryptHead - 1, packet.begin() + 1);
    return packet;
}

std::optional<std::span<const std::uint8_t>> PacketCrypt::Decrypt(std::span<const std::uint8_t> packet) {
    if (packet.size() < CryptHead || packet.size() > encrypted.size()) return std::nullopt;
    // The head tells which of the packets around the newest one this is.
    const auto ahead = static_cast<std::uint8_t>(packet[0] - farNonce[0]);
    const unsigned behind = ahead == 0 ? 0 : NonceLowBytes - ahead;
    const bool isLate = behind <= LateBound;
    if (isLate && seen[behind]) return std::nullopt;

    const CryptBlock nonce = isLate ? Minus(farNonce, behind) : Plus(farNonce, ahead);
    const std::span plain = std::span(decrypted).first(packet.size() - CryptHead);
    const std::optional<CryptBlock> tag = cipher.Decrypt(nonce, packet.subspan(CryptHead), plain);
    if (!tag || CRYPTO_memcmp(tag->data(), packet.data() + 1, CryptHead - 1) != 0) return std::nullopt;

    if (isLate) {
        seen.set(behind);
        ++counts.Late;
        --counts.Lost;
    } else {
        farNonce = nonce;
        seen <<= ahead;
        seen.set(0);
        counts.Lost += ahead - 1;
    }
    ++counts.Good;
    return plain;
}

void PacketCrypt::SetFarNonce(const CryptBlock& nonce) {
    farNonce = nonce;
    seen.set();  // what was sent before may have been heard
}

std::optional<CryptBlock> ReadCryptBlock(std::string_view bytes) {
    CryptBlock block;
    if (bytes.size() != block.size()) return std::nullopt;
    std::ranges::copy(bytes, block.begin());
    return block;
}

}  // namespace orvelle::mumble
