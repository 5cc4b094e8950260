// The set of X key codes (0 to 255) that this program holds down. It lies in memory that the key guard shares, so it
// tells the truth after the program died at any instant, and keeping it costs no system call.
#pragma once

#include <atomic>
#include <cstdint>
#include <vector>

#include "adapters/linux/FileDescriptor.h"

namespace orvelle::linux {

class HeldKeys {
public:
    static constexpr int KeyCodes = 256;

    // A new, empty set. Where the system gives no shared memory it is private, and Descriptor() is -1.
    HeldKeys();
    // The set of the process that passed the descriptor on; empty if that is no such set.
    explicit HeldKeys(FileDescriptor shared);
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;
    ~HeldKeys();

    int Descriptor() const { return memory.Number(); }
    void Insert(int keyCode);
    void Erase(int keyCode);
    bool Contains(int keyCode) const;
    std::vector<int> Keys() const;

private:
    using Word = std::atomic<std::uint64_t>;
    static constexpr int WordBits = 64;
    static constexpr int Words = KeyCodes / WordBits;
    static_assert(Word::is_always_lock_free);

    void Map();

    FileDescriptor memory;
    Word own[Words] = {};
    Word* words = own;
};

}  // namespace orvelle::linux
