// A sentence as a pilot says it, for what a tone doesn't show: a codec treats speech as such. Spoken by espeak-ng.
#pragma once

#include <vector>

namespace orvelle::heard {

// Mono at 48 kHz, some ten seconds; empty where it can't be spoken.
std::vector<float> Speech();

}  // namespace orvelle::heard
