#include "adapters/mumble/PacketCrypt.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/mumble/Hexadecimal.h"

namespace orvelle::mumble {
namespace {

using Bytes = std::vector<std::uint8_t>;

CryptBlock BlockOf(const Bytes& bytes) {
    CryptBlock block{};
    std::copy_n(bytes.begin(), block.size(), block.begin());
    return block;
}

const CryptBlock Key = BlockOf(CountingBytes(16));

// What one side sends to the other.
class PacketCryptTest : public testing::Test {
protected:
    Bytes Sent(const Bytes& plain) {
        const std::span<const std::uint8_t> packet = sender.Encrypt(plain);
        return {packet.begin(), packet.end()};
    }
    Bytes SentNext() { return Sent({++last}); }
    void Lose(int count) {
        while (count-- > 0) SentNext();
    }
    std::optional<Bytes> Received(const Bytes& packet) {
        const std::optional<std::span<const std::uint8_t>> plain = receiver.Decrypt(packet);
        return plain ? std::optional<Bytes>({plain->begin(), plain->end()}) : std::nullopt;
    }
    void Start(const CryptBlock& nonce) {
        sender = PacketCrypt(Key, nonce, {});
        receiver = PacketCrypt(Key, {}, nonce);
    }
    void ExpectCounts(std::uint32_t good, std::uint32_t late, std::uint32_t lost) {
        EXPECT_EQ(receiver.Counted().Good, good);
        EXPECT_EQ(receiver.Counted().Late, late);
        EXPECT_EQ(receiver.Counted().Lost, lost);
    }

    PacketCrypt sender{Key, {}, {}};
    PacketCrypt receiver{Key, {}, {}};
    std::uint8_t last = 0;
};

// The nonce that follows is that of the published vector.
TEST_F(PacketCryptTest, APacketIsAByteOfItsNonceThreeOfItsTagAndThePublishedCipher) {
    Start(BlockOf(BytesOf("FF 00 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F")));
    const Bytes packet = Sent(CountingBytes(40));
    EXPECT_EQ(HexadecimalOf(packet),
              "00"
              "9DB0CD"
              "F75D6BC8B4DC8D66B836A2B08B32A6369F1CD3C5228D79FD6C267F5F6AA7B231C7DFB9D59951AE9C");
    EXPECT_EQ(sender.OwnNonce(), Key);
    EXPECT_EQ(Received(packet), CountingBytes(40));
}

TEST_F(PacketCryptTest, PacketsOfEveryLengthComeBack) {
    for (std::size_t size = 0; size <= VoicePacketBound; ++size) {
        const Bytes plain = CountingBytes(size);
        EXPECT_EQ(Received(Sent(plain)), plain) << size;
    }
    ExpectCounts(VoicePacketBound + 1, 0, 0);
}

TEST_F(PacketCryptTest, LongerOnesAreNotSentAndNotRead) {
    EXPECT_TRUE(Sent(CountingBytes(VoicePacketBound + 1)).empty());
    EXPECT_EQ(sender.OwnNonce(), CryptBlock{});
    EXPECT_FALSE(Received(Bytes(CryptHead + VoicePacketBound + 1, 1)));
    for (std::size_t size = 0; size < CryptHead; ++size) EXPECT_FALSE(Received(Bytes(size, 1)));
}

TEST_F(PacketCryptTest, APacketIsTakenOnce) {
    const Bytes first = SentNext();
    EXPECT_TRUE(Received(first));
    EXPECT_FALSE(Received(first));
    const Bytes second = SentNext();
    EXPECT_TRUE(Received(second));
    EXPECT_FALSE(Received(first));
    EXPECT_FALSE(Received(second));
    // Neither when its byte of the nonce comes round again.
    for (int count = 0; count < 600; ++count) {
        EXPECT_TRUE(Received(SentNext()));
        EXPECT_FALSE(Received(first));
    }
    ExpectCounts(602, 0, 0);
}

TEST_F(PacketCryptTest, ALatePacketIsTakenOnce) {
    const Bytes first = SentNext();
    const Bytes second = SentNext();
    const Bytes third = SentNext();
    EXPECT_EQ(Received(third), Bytes{3});
    ExpectCounts(1, 0, 2);
    EXPECT_EQ(Received(first), Bytes{1});
    EXPECT_FALSE(Received(first));
    EXPECT_EQ(Received(second), Bytes{2});
    EXPECT_FALSE(Received(second));
    EXPECT_FALSE(Received(third));
    ExpectCounts(3, 2, 0);
}

TEST_F(PacketCryptTest, APacketMayBeSoLateAndNoLater) {
    const Bytes first = SentNext();
    const Bytes second = SentNext();
    Lose(LateBound - 1);
    EXPECT_TRUE(Received(SentNext()));
    EXPECT_FALSE(Received(first));
    EXPECT_TRUE(Received(second));
    ExpectCounts(2, 1, LateBound);
}

TEST_F(PacketCryptTest, OneChangedBitIsRefusedAndChangesNothing) {
    EXPECT_TRUE(Received(SentNext()));
    const Bytes packet = Sent(CountingBytes(40));
    for (std::size_t bit = 0; bit < 8 * packet.size(); ++bit) {
        Bytes changed = packet;
        changed[bit / 8] ^= static_cast<std::uint8_t>(1 << bit % 8);
        EXPECT_FALSE(Received(changed)) << bit;
    }
    for (std::size_t size = 0; size < packet.size(); ++size)
        EXPECT_FALSE(Received(Bytes(packet.begin(), packet.begin() + static_cast<std::ptrdiff_t>(size)))) << size;
    EXPECT_TRUE(Received(packet));
    ExpectCounts(2, 0, 0);
}

TEST_F(PacketCryptTest, AnotherKeyOrNonceIsRefused) {
    PacketCrypt stranger(CryptBlock{}, {}, {});
    const Bytes plain = CountingBytes(9);
    const std::span<const std::uint8_t> packet = stranger.Encrypt(plain);
    EXPECT_FALSE(Received({packet.begin(), packet.end()}));
    receiver.SetFarNonce(Key);
    EXPECT_FALSE(Received(SentNext()));
}

TEST_F(PacketCryptTest, TheNonceCarriesOverAllItsBytesAndAround) {
    CryptBlock nonce;
    nonce.fill(0xFF);
    nonce[0] = 0xFD;
    Start(nonce);
    const Bytes beforeTheEnd = SentNext();
    EXPECT_TRUE(Received(SentNext()));
    const Bytes first = SentNext();
    EXPECT_EQ(sender.OwnNonce(), CryptBlock{});
    EXPECT_TRUE(Received(SentNext()));
    EXPECT_TRUE(Received(first));
    EXPECT_EQ(Received(beforeTheEnd), Bytes{1});
    ExpectCounts(4, 2, 0);
}

TEST_F(PacketCryptTest, AsManyAsAHeadTellsApartMayBeLost) {
    Lose(222);
    EXPECT_TRUE(Received(SentNext()));
    ExpectCounts(1, 0, 222);
    Lose(223);
    for (int count = 0; count < 600; ++count) EXPECT_FALSE(Received(SentNext()));
    ExpectCounts(1, 0, 222);
}

TEST_F(PacketCryptTest, After300LostTheNonceIsToldAnew) {
    EXPECT_TRUE(Received(SentNext()));
    Lose(300);
    const Bytes before = SentNext();
    EXPECT_FALSE(Received(before));
    receiver.SetFarNonce(sender.OwnNonce());
    EXPECT_FALSE(Received(before));
    const Bytes after = SentNext();
    EXPECT_TRUE(Received(after));
    EXPECT_FALSE(Received(after));
    ExpectCounts(2, 0, 0);
}

TEST_F(PacketCryptTest, KeysAndNoncesAreSixteenBytes) {
    EXPECT_EQ(ReadCryptBlock(std::string(Key.begin(), Key.end())), Key);
    for (const std::size_t size : {0, 15, 17}) EXPECT_FALSE(ReadCryptBlock(std::string(size, 'x')));
}

}  // namespace
}  // namespace orvelle::mumble
