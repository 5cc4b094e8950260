#include "adapters/linux/HeldKeys.h"

#include <sys/mman.h>

namespace orvelle::linux {

namespace {

constexpr std::size_t Size = HeldKeys::KeyCodes / 8;

std::uint64_t Bit(int keyCode) { return std::uint64_t{1} << (keyCode % 64); }

}  // namespace

HeldKeys::HeldKeys() : memory(memfd_create("orvelle-held-keys", MFD_CLOEXEC)) {
    if (memory && ftruncate(memory.Number(), Size) != 0) memory.Close();
    Map();
}

HeldKeys::HeldKeys(FileDescriptor shared) : memory(std::move(shared)) { Map(); }

HeldKeys::~HeldKeys() {
    if (words != own) munmap(words, Size);
}

void HeldKeys::Map() {
    if (!memory) return;
    void* const address = mmap(nullptr, Size, PROT_READ | PROT_WRITE, MAP_SHARED, memory.Number(), 0);
    if (address == MAP_FAILED)
        memory.Close();
    else
        words = static_cast<Word*>(address);
}

void HeldKeys::Insert(int keyCode) { words[keyCode / WordBits] |= Bit(keyCode); }

void HeldKeys::Erase(int keyCode) { words[keyCode / WordBits] &= ~Bit(keyCode); }

bool HeldKeys::Contains(int keyCode) const {
    return keyCode >= 0 && keyCode < KeyCodes && (words[keyCode / WordBits] & Bit(keyCode)) != 0;
}

std::vector<int> HeldKeys::Keys() const {
    std::vector<int> keys;
    for (int keyCode = 0; keyCode < KeyCodes; ++keyCode)
        if (Contains(keyCode)) keys.push_back(keyCode);
    return keys;
}

}  // namespace orvelle::linux
