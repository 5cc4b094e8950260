// The encryption against the vectors of its Internet-Draft, draft-krovetz-ocb-00, and against the forgery that was
// published in 2019 (Inoue, Iwata, Minematsu, Poettering: Cryptanalysis of OCB2).
#include "adapters/mumble/Ocb2.h"

#include <gtest/gtest.h>
#include <openssl/evp.h>

#include <algorithm>

#include "tests/mumble/Hexadecimal.h"

namespace orvelle::mumble {
namespace {

CryptBlock BlockOf(const std::vector<std::uint8_t>& bytes) {
    CryptBlock block{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), block.size()), block.begin());
    return block;
}

const CryptBlock Key = BlockOf(CountingBytes(16));
const CryptBlock Nonce = Key;
const CryptBlock Bits128 = BlockOf(BytesOf("00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 80"));

CryptBlock Xor(CryptBlock one, const CryptBlock& other) {
    for (std::size_t index = 0; index < one.size(); ++index) one[index] ^= other[index];
    return one;
}

CryptBlock Aes(const CryptBlock& block) {
    CryptBlock encrypted{};
    int size = 0;
    EVP_CIPHER_CTX* const context = EVP_CIPHER_CTX_new();
    EXPECT_EQ(EVP_EncryptInit_ex(context, EVP_aes_128_ecb(), nullptr, Key.data(), nullptr), 1);
    EXPECT_EQ(EVP_EncryptUpdate(context, encrypted.data(), &size, block.data(), 16), 1);
    EVP_CIPHER_CTX_free(context);
    return encrypted;
}

CryptBlock Doubled(const CryptBlock& block) {
    CryptBlock doubled{};
    for (std::size_t index = 0; index < block.size(); ++index)
        doubled[index] = static_cast<std::uint8_t>(block[index] << 1 | (index < 15 ? block[index + 1] >> 7 : 0));
    if ((block[0] & 0x80) != 0) doubled[15] ^= 0x87;
    return doubled;
}

// Of a packet's first block.
CryptBlock FirstOffset() { return Doubled(Aes(Nonce)); }

std::vector<std::uint8_t> Encrypted(const std::vector<std::uint8_t>& plain, CryptBlock& tag) {
    std::vector<std::uint8_t> cipher(plain.size());
    tag = Ocb2(Key).Encrypt(Nonce, plain, cipher);
    return cipher;
}

struct Vector {
    std::size_t Size;  // of 00 01 02 and so on
    const char* Cipher;
    const char* Tag;
};

constexpr Vector Published[] = {
    {0, "", "BF3108130773AD5EC70EC69E7875A7B0"},
    {8, "C636B3A868F429BB", "A45F5FDEA5C088D1D7C8BE37CABC8C5C"},
    {16, "52E48F5D19FE2D9869F0C4A4B3D2BE57", "F7EE49AE7AA5B5E6645DB6B3966136F9"},
    {24, "F75D6BC8B4DC8D66B836A2B08B32A636CC579E145D323BEB", "A1A50F822819D6E0A216784AC24AC84C"},
    {32, "F75D6BC8B4DC8D66B836A2B08B32A636CEC3C555037571709DA25E1BB0421A27", "09CA6C73F0B5C6C5FD587122D75F2AA3"},
    {40, "F75D6BC8B4DC8D66B836A2B08B32A6369F1CD3C5228D79FD6C267F5F6AA7B231C7DFB9D59951AE9C",
     "9DB0CDF880F73E3E10D4EB3217766688"},
};

TEST(Ocb2Test, EncryptsAsThePublishedVectors) {
    for (const Vector& vector : Published) {
        CryptBlock tag;
        EXPECT_EQ(HexadecimalOf(Encrypted(CountingBytes(vector.Size), tag)), vector.Cipher);
        EXPECT_EQ(HexadecimalOf(tag), vector.Tag);
    }
}

TEST(Ocb2Test, DecryptsThePublishedVectors) {
    for (const Vector& vector : Published) {
        std::vector<std::uint8_t> plain(vector.Size);
        const std::optional<CryptBlock> tag = Ocb2(Key).Decrypt(Nonce, BytesOf(vector.Cipher), plain);
        EXPECT_EQ(plain, CountingBytes(vector.Size));
        ASSERT_TRUE(tag);
        EXPECT_EQ(HexadecimalOf(*tag), vector.Tag);
    }
}

// The vectors never reach the field's polynomial, which longer packets do: these are held against the definition, and
// its doubling against RFC 4493, where it is the same.
TEST(Ocb2Test, EncryptsLongPacketsByTheDefinition) {
    const CryptBlock subkey = BlockOf(BytesOf("FBEED618357133667C85E08F7236A8DE"));
    EXPECT_EQ(HexadecimalOf(Doubled(subkey)), "F7DDAC306AE266CCF90BC11EE46D513B");

    const std::vector<std::uint8_t> plain = CountingBytes(256);
    std::string expected;
    CryptBlock offset = Aes(Nonce);
    CryptBlock checksum{};
    for (std::size_t place = 0; place < plain.size(); place += 16) {
        const CryptBlock block = BlockOf({plain.begin() + static_cast<std::ptrdiff_t>(place), plain.end()});
        offset = Doubled(offset);
        checksum = Xor(checksum, block);
        const bool isLast = place + 16 == plain.size();
        expected +=
            HexadecimalOf(isLast ? Xor(block, Aes(Xor(offset, Bits128))) : Xor(offset, Aes(Xor(offset, block))));
    }
    CryptBlock tag;
    EXPECT_EQ(HexadecimalOf(Encrypted(plain, tag)), expected);
    EXPECT_EQ(tag, Aes(Xor(checksum, Xor(offset, Doubled(offset)))));
}

TEST(Ocb2Test, ABitIsFlippedWhereAForgeryCouldBegin) {
    struct Row {
        std::size_t Size;     // of zeros
        std::size_t Flipped;  // the byte
    };
    for (const Row& row : {Row{17, 0}, Row{32, 0}, Row{33, 16}, Row{48, 16}}) {
        CryptBlock tag;
        const std::vector<std::uint8_t> cipher = Encrypted(std::vector<std::uint8_t>(row.Size), tag);
        std::vector<std::uint8_t> plain(row.Size);
        EXPECT_EQ(Ocb2(Key).Decrypt(Nonce, cipher, plain), tag) << row.Size;
        std::vector<std::uint8_t> expected(row.Size);
        expected[row.Flipped] = 1;
        EXPECT_EQ(plain, expected) << row.Size;
    }
}

TEST(Ocb2Test, ZerosElsewhereAreLeftAlone) {
    std::vector<std::uint8_t> plain(64);
    plain[46] = 1;  // the fifteenth of the last block but one
    CryptBlock tag;
    const std::vector<std::uint8_t> cipher = Encrypted(plain, tag);
    std::vector<std::uint8_t> decrypted(64);
    EXPECT_EQ(Ocb2(Key).Decrypt(Nonce, cipher, decrypted), tag);
    EXPECT_EQ(decrypted, plain);
}

TEST(Ocb2Test, APacketThatNobodyMayMakeIsRefused) {
    const CryptBlock offset = FirstOffset();
    const CryptBlock first = Xor(offset, Aes(Xor(offset, Bits128)));
    std::vector<std::uint8_t> cipher(first.begin(), first.end());
    cipher.resize(20);
    std::vector<std::uint8_t> plain(20);
    EXPECT_FALSE(Ocb2(Key).Decrypt(Nonce, cipher, plain));
    cipher[0] ^= 1;
    EXPECT_TRUE(Ocb2(Key).Decrypt(Nonce, cipher, plain));
}

// Of the first block of a packet that nobody may make, a packet of one block follows, whose tag is known without the
// key.
TEST(Ocb2Test, TheForgeryIsRefused) {
    const CryptBlock offset = FirstOffset();
    CryptBlock forged = Xor(Xor(offset, Aes(Xor(offset, Bits128))), Bits128);
    CryptBlock plain{};
    EXPECT_FALSE(Ocb2(Key).Decrypt(Nonce, forged, plain));
    forged[0] ^= 1;
    EXPECT_TRUE(Ocb2(Key).Decrypt(Nonce, forged, plain));
}

}  // namespace
}  // namespace orvelle::mumble
