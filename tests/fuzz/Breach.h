// What the fuzz targets of readers share: the end at a breach, the count of what was taken, and the texts that are one
// step away from one that the fuzzer makes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <string>
#include <string_view>

namespace orvelle::fuzz {

[[noreturn]] inline void Fail(std::string_view what, std::string_view text) {
    std::cerr << "breach: " << what << ": " << text << '\n';
    std::abort();
}

inline void Hold(bool isSo, std::string_view what) {
    if (!isSo) Fail(what, "");
}

// Told by its own destructor, since the fuzzer ends the program by exit: so each target has a static one.
class Counts {
public:
    explicit Counts(const char* name) : of(name) {}
    Counts(const Counts&) = delete;
    Counts& operator=(const Counts&) = delete;
    ~Counts() { std::cerr << of << ": " << refused << " refused, " << taken << " taken\n"; }
    void Count(bool isTaken) { ++(isTaken ? taken : refused); }

private:
    const char* const of;
    unsigned long refused = 0, taken = 0;
};

inline std::string_view TextOf(const std::uint8_t* bytes, std::size_t count) {
    return {reinterpret_cast<const char*>(bytes), count};
}

// What is one step away from a text in JSON: cut somewhere, or with one byte less, more or another. Most of these are
// malformed in one place, and they cost far less than an input that the fuzzer makes.
template <typename Read>
void ReadNeighbours(std::string_view text, std::size_t neighbours, const Read& read) {
    constexpr std::string_view Bytes = "\"\\{}[],:0-.e9x\n \xFF\xC3";
    if (text.empty()) return;
    std::size_t step = std::hash<std::string_view>()(text);
    for (std::size_t count = 0; count < neighbours; ++count) {
        step = step * 6364136223846793005U + 1442695040888963407U;
        const std::size_t place = (step >> 33) % text.size();
        const char byte = Bytes[(step >> 20) % Bytes.size()];
        std::string neighbour(text);
        if (count % 4 == 0)
            neighbour.resize(place);
        else if (count % 4 == 1)
            neighbour.erase(place, 1);
        else if (count % 4 == 2)
            neighbour.insert(place, 1, byte);
        else
            neighbour[place] = byte;
        read(neighbour);
    }
}

}  // namespace orvelle::fuzz
