// The panel's numeric types, named as the outside controls count them.
#pragma once

#include <cstdint>

namespace orvelle {

using Long = std::int32_t;     // signed, 32 bits; sums and differences of the clock wrap
using Integer = std::int16_t;  // signed, 16 bits: mixer levels and TeamSpeak results

}  // namespace orvelle
