// The set of X key codes (0 to 255) that this program holds down, and when it last showed that it goes on. It lies in
// memory that the key guard shares, so it tells the truth after the program died or hung at any instant, and keeping it
// costs no system call. Both sides may change the set at once: the guard takes keys out where it lets them go.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <vector>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

class HeldKeys {
public:
    static constexpr int KeyCodes = 256;
    // How long a program that holds keys may be silent. The logic itself may sleep for two seconds, and beats are a
    // second apart.
    static constexpr std::chrono::seconds Patience{4};

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
    bool IsEmpty() const;
    std::vector<int> Keys() const;
    // Empties the set; a key that is inserted at the same time is either among the result or stays.
    std::vector<int> TakeAll();

    // The program goes on.
    void Beat();
    // Milliseconds until the patience with the last beat ends, by the clock that stands still while the computer
    // sleeps; 0 if it has ended.
    int PatienceLeft() const;

private:
    using Word = std::atomic<std::uint64_t>;
    using Clock = std::chrono::steady_clock;
    static constexpr int WordBits = 64;
    static constexpr int Words = KeyCodes / WordBits;

    struct Memory {
        Word Keys[Words];
        std::atomic<Clock::rep> LastBeat;
    };
    static_assert(Word::is_always_lock_free && std::atomic<Clock::rep>::is_always_lock_free);

    void Map();

    FileDescriptor memory;
    Memory own = {};
    Memory* set = &own;
};

}  // namespace orvelle::linux
