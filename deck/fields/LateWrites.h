// Tells which writes to the interface records came lately: those of the last flurry, a row of changes with no pause of
// three seconds or more between them. It needs no timer: a flurry stays the last one until the next begins.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orvelle::deck {

class LateWrites {
public:
    static constexpr std::int64_t Pause = 3000;  // milliseconds

    // `writes` counts all writes so far, `now` is any clock that never goes back, milliseconds.
    void Count(std::size_t writes, std::int64_t now) {
        if (writes == counted) return;
        if (now - lastChange >= Pause) before = counted;
        counted = writes;
        lastChange = now;
    }
    // Writes that were there already belong to no flurry.
    void Forget(std::size_t writes) { before = counted = writes; }

    bool IsLate(std::size_t writeNumber) const { return writeNumber > before; }

private:
    std::size_t counted = 0;
    std::size_t before = 0;
    std::int64_t lastChange = -Pause;
};

}  // namespace orvelle::deck
