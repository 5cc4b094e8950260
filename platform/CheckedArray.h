// An array indexed by the panel's own numbers. An index that is not there is run-time error 9, as it is with an array
// of controls.
#pragma once

#include <array>
#include <cstddef>

#include "platform/RuntimeError.h"
#include "platform/Types.h"

namespace orvelle {

template <typename T, Long Size>
class CheckedArray {
public:
    static constexpr Long Count = Size;

    T& operator[](Long index) { return held[Checked(index)]; }
    const T& operator[](Long index) const { return held[Checked(index)]; }
    void Fill(const T& value) { held.fill(value); }

private:
    static std::size_t Checked(Long index) {
        if (index < 0 || index >= Size) [[unlikely]]
            Refuse();
        return static_cast<std::size_t>(index);
    }
    // Apart, so that the check is small where it is inlined.
    [[noreturn]] static void Refuse() { throw RuntimeError(RuntimeError::SubscriptOutOfRange); }

    std::array<T, static_cast<std::size_t>(Size)> held{};
};

}  // namespace orvelle
