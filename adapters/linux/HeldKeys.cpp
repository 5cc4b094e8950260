#include "adapters/linux/HeldKeys.h"

#include <sys/mman.h>

#include <algorithm>

namespace orvelle::linux {

namespace {

std::uint64_t Bit(int keyCode) { return std::uint64_t{1} << (keyCode % 64); }

}  // namespace

HeldKeys::HeldKeys() : memory(memfd_create("orvelle-held-keys", MFD_CLOEXEC)) {
    if (memory && ftruncate(memory.Number(), sizeof(Memory)) != 0) memory.Close();
    Map();
}

HeldKeys::HeldKeys(FileDescriptor shared) : memory(std::move(shared)) { Map(); }

HeldKeys::~HeldKeys() {
    if (set != &own) munmap(set, sizeof(Memory));
}

void HeldKeys::Map() {
    if (!memory) return;
    void* const address = mmap(nullptr, sizeof(Memory), PROT_READ | PROT_WRITE, MAP_SHARED, memory.Number(), 0);
    if (address == MAP_FAILED)
        memory.Close();
    else
        set = static_cast<Memory*>(address);
}

void HeldKeys::Insert(int keyCode) { set->Keys[keyCode / WordBits] |= Bit(keyCode); }

void HeldKeys::Erase(int keyCode) { set->Keys[keyCode / WordBits] &= ~Bit(keyCode); }

bool HeldKeys::Contains(int keyCode) const {
    return keyCode >= 0 && keyCode < KeyCodes && (set->Keys[keyCode / WordBits] & Bit(keyCode)) != 0;
}

bool HeldKeys::IsEmpty() const {
    return std::all_of(std::begin(set->Keys), std::end(set->Keys), [](const Word& word) { return word == 0; });
}

std::vector<int> HeldKeys::Keys() const {
    std::vector<int> keys;
    for (int keyCode = 0; keyCode < KeyCodes; ++keyCode)
        if (Contains(keyCode)) keys.push_back(keyCode);
    return keys;
}

std::vector<int> HeldKeys::TakeAll() {
    std::vector<int> keys;
    for (int word = 0; word < Words; ++word) {
        const std::uint64_t taken = set->Keys[word].exchange(0);
        for (int bit = 0; bit < WordBits; ++bit)
            if (taken & Bit(bit)) keys.push_back(word * WordBits + bit);
    }
    return keys;
}

void HeldKeys::Beat() { set->LastBeat = Clock::now().time_since_epoch().count(); }

int HeldKeys::PatienceLeft() const {
    const Clock::time_point lastBeat{Clock::duration(set->LastBeat)};
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(lastBeat + Patience - Clock::now());
    return static_cast<int>(std::clamp<std::chrono::milliseconds>(left, {}, Patience).count());
}

}  // namespace orvelle::linux
